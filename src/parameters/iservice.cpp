#include "iservice.h"

namespace Core {
namespace Service {

IService::IService(QObject* parent)
    : QObject(parent)
{
}

IService::~IService() = default;

} // namespace Service
} // namespace Core
