#include "ifeaturetreestatusservice.h"

namespace Plugin {
namespace FeatureTree {

IFeatureTreeStatusService::IFeatureTreeStatusService(QObject* parent)
    : Core::Service::IService(parent)
{
}

IFeatureTreeStatusService::~IFeatureTreeStatusService() = default;

} // namespace FeatureTree
} // namespace Plugin
