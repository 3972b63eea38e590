/*!
 * \file parameters/genapienums.h
 * The GenICam enumerations that travel with every parameter: user level
 * (EVisibility) and access mode (EAccessMode).
 */
#pragma once

/*!
 * The enumerations of the published GenICam interface, with the values the
 * parameter layer and the library use.
 */
namespace GenApi {

/*!
 * How visible a feature is. A smaller value is more visible. The underlying
 * type is fixed, so any int is a value of the type: a level such as 4, -1 or
 * 99 that a host passes is simply compared like the named ones.
 */
enum EVisibility : int { Beginner = 0, Expert = 1, Guru = 2, Invisible = 3, _UndefinedVisibility = 99 };

/*!
 * \var GenApi::Beginner
 * Shown at every user level.
 * \var GenApi::Expert
 * Shown from the Expert level up.
 * \var GenApi::Guru
 * Shown from the Guru level up.
 * \var GenApi::Invisible
 * Shown only at the Invisible level; a category of this level is never built into the tree.
 * \var GenApi::_UndefinedVisibility
 * No visibility known, as in the placeholder snapshot.
 */

/*!
 * Access mode of a feature, as computed from a snapshot. The underlying type
 * is fixed, so any int is a value of the type; the library compares modes
 * (NA and below allow no editor) and never indexes by them.
 */
enum EAccessMode : int {
    NI = 0, //!< not implemented
    NA = 1, //!< not available
    WO = 2, //!< write only
    RO = 3, //!< read only
    RW = 4, //!< read and write
    _UndefinedAccesMode = 5 //!< no access mode known
};

} // namespace GenApi
