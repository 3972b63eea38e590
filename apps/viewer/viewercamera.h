#pragma once

#include "parameters/ibaseinfo.h"
#include "parameters/iparametercollection.h"

#include <QHash>
#include <QSharedPointer>
#include <QStringList>

namespace Simulation {
class SimulatedDevice;
}
#ifdef ZVC_WITH_ARAVIS
namespace Aravis {
class AravisDevice;
}
#endif

/*!
 * An open camera as the viewer sees it: node maps by name, the camera's
 * information, and the simulated device behind it when there is one, so that
 * the Simulate menu can make it misbehave.
 */
class ViewerCamera
{
public:
    explicit ViewerCamera(QSharedPointer<Simulation::SimulatedDevice> device);
#ifdef ZVC_WITH_ARAVIS
    explicit ViewerCamera(QSharedPointer<Aravis::AravisDevice> device);
#endif

    QStringList nodeMapNames() const;
    QSharedPointer<ParameterCollection::IParameterCollection> nodeMap(const QString& name) const;
    QSharedPointer<Plugin::CameraPool::IBaseInfo> baseInfo() const;
    QString transportLayerType() const;
    //! Null for a real camera.
    Simulation::SimulatedDevice* simulation() const;

private:
    //! Takes what the viewer needs from either kind of device once, when it is opened.
    template <typename Device> void adopt(const Device& device);

    QSharedPointer<Simulation::SimulatedDevice> m_simulated;
#ifdef ZVC_WITH_ARAVIS
    QSharedPointer<Aravis::AravisDevice> m_aravis;
#endif
    QStringList m_nodeMapNames;
    QHash<QString, QSharedPointer<ParameterCollection::IParameterCollection>> m_nodeMaps;
    QSharedPointer<Plugin::CameraPool::IBaseInfo> m_baseInfo;
    QString m_transportLayerType;
};
