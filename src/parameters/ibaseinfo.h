/*!
 * \file parameters/ibaseinfo.h
 * Plugin::CameraPool::IBaseInfo, what the library asks of a camera, and the
 * transport-layer type texts.
 */
#pragma once

#include "zarvexviewercomponents_export.h"

#include <QString>

//! The host's plug-in interfaces that the library declares or uses.
namespace Plugin {
//! Information about the cameras a host offers.
namespace CameraPool {

/*!
 * \name Transport-layer type texts
 * Transport-layer type texts, the values of IBaseInfo::getTLType(). They also
 * begin the names of the node map filter files.
 */
//@{
ZVC_EXPORT extern const char* const TLTypeGigE; //!< "GEV": GigE Vision
ZVC_EXPORT extern const char* const TLTypeUSB; //!< "U3V": USB3 Vision
ZVC_EXPORT extern const char* const TLType1394; //!< "IIDC": IEEE 1394
ZVC_EXPORT extern const char* const TLTypeZCON; //!< "ZCON"
ZVC_EXPORT extern const char* const TLTypeCL; //!< "CL": Camera Link
ZVC_EXPORT extern const char* const TLTypeCamEmu; //!< "CamEmu": a camera emulation
ZVC_EXPORT extern const char* const TLTypeIPCam; //!< "IPCam"
ZVC_EXPORT extern const char* const TLTypeCXP; //!< "CXP": CoaXPress
ZVC_EXPORT extern const char* const TLTypeCustom; //!< "Custom"
//@}

/*!
 * Information about a camera. FeatureTreeWidget takes it at construction and
 * picks the node map filters by its transport-layer type; a null pointer
 * means that no filter is applied.
 */
class ZVC_EXPORT IBaseInfo
{
public:
    virtual ~IBaseInfo();

    //! One of the TLType texts.
    virtual QString getTLType() const = 0;

protected:
    //! For the host's implementations.
    IBaseInfo() = default;
    //! Copies nothing: the interface has no data.
    IBaseInfo(const IBaseInfo&) = default;
    //! Copies nothing: the interface has no data.
    IBaseInfo& operator=(const IBaseInfo&) = default;
};

} // namespace CameraPool
} // namespace Plugin
