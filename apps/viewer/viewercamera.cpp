#include "viewercamera.h"

#include "simulateddevice.h"

#ifdef ZVC_WITH_ARAVIS
#include "aravisdevice.h"
#include "aravisnodemap.h"
#endif

ViewerCamera::ViewerCamera(QSharedPointer<Simulation::SimulatedDevice> device)
    : m_simulated(std::move(device))
{
}

#ifdef ZVC_WITH_ARAVIS
ViewerCamera::ViewerCamera(QSharedPointer<Aravis::AravisDevice> device)
    : m_aravis(std::move(device))
{
}
#endif

QStringList ViewerCamera::nodeMapNames() const
{
    if (m_simulated)
        return m_simulated->nodeMapNames();
#ifdef ZVC_WITH_ARAVIS
    if (m_aravis)
        return m_aravis->nodeMapNames();
#endif
    return QStringList();
}

QSharedPointer<ParameterCollection::IParameterCollection> ViewerCamera::nodeMap(const QString& name) const
{
    if (m_simulated)
        return m_simulated->nodeMap(name);
#ifdef ZVC_WITH_ARAVIS
    if (m_aravis)
        return m_aravis->nodeMap(name);
#endif
    return QSharedPointer<ParameterCollection::IParameterCollection>();
}

QSharedPointer<Plugin::CameraPool::IBaseInfo> ViewerCamera::baseInfo() const
{
    if (m_simulated)
        return m_simulated->baseInfo();
#ifdef ZVC_WITH_ARAVIS
    if (m_aravis)
        return m_aravis->baseInfo();
#endif
    return QSharedPointer<Plugin::CameraPool::IBaseInfo>();
}

QString ViewerCamera::transportLayerType() const
{
    if (m_simulated)
        return m_simulated->transportLayerType();
#ifdef ZVC_WITH_ARAVIS
    if (m_aravis)
        return m_aravis->transportLayerType();
#endif
    return QString();
}

Simulation::SimulatedDevice* ViewerCamera::simulation() const
{
    return m_simulated.data();
}
