#include "ibaseinfo.h"

namespace Plugin {
namespace CameraPool {

const char* const TLTypeGigE = "GEV";
const char* const TLTypeUSB = "U3V";
const char* const TLType1394 = "IIDC";
const char* const TLTypeZCON = "ZCON";
const char* const TLTypeCL = "CL";
const char* const TLTypeCamEmu = "CamEmu";
const char* const TLTypeIPCam = "IPCam";
const char* const TLTypeCXP = "CXP";
const char* const TLTypeCustom = "Custom";

IBaseInfo::~IBaseInfo() = default;

} // namespace CameraPool
} // namespace Plugin
