#pragma once

#include "zarvexviewercomponents_export.h"

#include <QString>

namespace Plugin {
namespace CameraPool {

//! Transport-layer type texts, the values of IBaseInfo::getTLType().
ZVC_EXPORT extern const char* const TLTypeGigE;
ZVC_EXPORT extern const char* const TLTypeUSB;
ZVC_EXPORT extern const char* const TLType1394;
ZVC_EXPORT extern const char* const TLTypeZCON;
ZVC_EXPORT extern const char* const TLTypeCL;
ZVC_EXPORT extern const char* const TLTypeCamEmu;
ZVC_EXPORT extern const char* const TLTypeIPCam;
ZVC_EXPORT extern const char* const TLTypeCXP;
ZVC_EXPORT extern const char* const TLTypeCustom;

//! Information about a camera.
class ZVC_EXPORT IBaseInfo
{
public:
    virtual ~IBaseInfo();

    //! One of the TLType texts.
    virtual QString getTLType() const = 0;

protected:
    IBaseInfo() = default;
    IBaseInfo(const IBaseInfo&) = default;
    IBaseInfo& operator=(const IBaseInfo&) = default;
};

} // namespace CameraPool
} // namespace Plugin
