#include "ifeaturetreecontrolservice.h"

namespace Plugin {
namespace FeatureTree {

IFeatureTreeControlService::IFeatureTreeControlService(QObject* parent)
    : Core::Service::IService(parent)
{
}

IFeatureTreeControlService::~IFeatureTreeControlService() = default;

} // namespace FeatureTree
} // namespace Plugin
