/*!
 * \file featuretree/ifeaturetreecontrolservice.h
 * Plugin::FeatureTree::IFeatureTreeControlService, through which a host's
 * plug-ins steer a feature tree.
 */
#pragma once

#include "parameters/genapienums.h"
#include "parameters/iservice.h"
#include "zarvexviewercomponents_export.h"

namespace Plugin {
namespace FeatureTree {

/*!
 * Service through which a host's plug-ins steer a feature tree. The library
 * only declares it and never calls it: a host implements it, typically by
 * forwarding each operation to the FeatureTreeWidget of the same name.
 */
class ZVC_EXPORT IFeatureTreeControlService : public Core::Service::IService
{
    Q_OBJECT

public:
    ~IFeatureTreeControlService() override;

    //! Shows the features up to this user level.
    virtual void setVisibility(GenApi::EVisibility visibility) = 0;
    //! Switches the polling of values on or off.
    virtual void setPolling(bool enable) = 0;
    //! Reads every shown value from the device again.
    virtual void Refresh() = 0;
    //! Tells the tree that its device has gone: polling ends, writes are refused.
    virtual void deviceIsClosed() = 0;

protected:
    //! For the host's implementation.
    explicit IFeatureTreeControlService(QObject* parent = nullptr);
};

} // namespace FeatureTree
} // namespace Plugin
