#pragma once

namespace GenApi {

//! How visible a feature is. A smaller value is more visible.
enum EVisibility { Beginner = 0, Expert = 1, Guru = 2, Invisible = 3, _UndefinedVisibility = 99 };

//! Access mode of a feature, as computed from a snapshot.
enum EAccessMode {
    NI = 0, //!< not implemented
    NA = 1, //!< not available
    WO = 2, //!< write only
    RO = 3, //!< read only
    RW = 4, //!< read and write
    _UndefinedAccesMode = 5
};

} // namespace GenApi
