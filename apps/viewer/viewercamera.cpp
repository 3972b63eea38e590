#include "viewercamera.h"

#include "simulateddevice.h"

#ifdef ZVC_WITH_ARAVIS
#include "aravisdevice.h"
#include "aravisnodemap.h"
#endif

template <typename Device> void ViewerCamera::adopt(const Device& device)
{
    if (!device)
        return;
    m_nodeMapNames = device->nodeMapNames();
    for (const QString& name : m_nodeMapNames)
        m_nodeMaps.insert(name, device->nodeMap(name));
    m_baseInfo = device->baseInfo();
    m_transportLayerType = device->transportLayerType();
}

ViewerCamera::ViewerCamera(QSharedPointer<Simulation::SimulatedDevice> device)
    : m_simulated(std::move(device))
{
    adopt(m_simulated);
}

#ifdef ZVC_WITH_ARAVIS
ViewerCamera::ViewerCamera(QSharedPointer<Aravis::AravisDevice> device)
    : m_aravis(std::move(device))
{
    adopt(m_aravis);
}
#endif

QStringList ViewerCamera::nodeMapNames() const
{
    return m_nodeMapNames;
}

QSharedPointer<ParameterCollection::IParameterCollection> ViewerCamera::nodeMap(const QString& name) const
{
    return m_nodeMaps.value(name);
}

QSharedPointer<Plugin::CameraPool::IBaseInfo> ViewerCamera::baseInfo() const
{
    return m_baseInfo;
}

QString ViewerCamera::transportLayerType() const
{
    return m_transportLayerType;
}

Simulation::SimulatedDevice* ViewerCamera::simulation() const
{
    return m_simulated.data();
}
