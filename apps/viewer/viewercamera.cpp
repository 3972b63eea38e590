#include "viewercamera.h"

#include "simulatedcamera.h"

#ifdef ZVC_WITH_ARAVIS
#include "araviscamera.h"
#endif

template <typename Camera> void ViewerCamera::adopt(const Camera& camera)
{
    if (!camera)
        return;
    m_nodeMapNames = camera->nodeMapNames();
    for (const QString& name : m_nodeMapNames)
        m_nodeMaps.insert(name, camera->nodeMap(name));
    m_baseInfo = camera->baseInfo();
    m_transportLayerType = camera->transportLayerType();
    connect(camera.get(), &std::decay_t<decltype(*camera)>::lost, this, &ViewerCamera::lost);
}

ViewerCamera::ViewerCamera(std::unique_ptr<Simulation::SimulatedCamera> camera)
    : m_simulated(std::move(camera))
{
    adopt(m_simulated);
    if (m_simulated)
        connect(m_simulated.get(), &Simulation::SimulatedCamera::frameReady, this, &ViewerCamera::frameReady);
}

#ifdef ZVC_WITH_ARAVIS
ViewerCamera::ViewerCamera(std::unique_ptr<Aravis::AravisCamera> camera)
    : m_aravis(std::move(camera))
{
    adopt(m_aravis);
}
#endif

ViewerCamera::~ViewerCamera() = default;

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

Simulation::SimulatedCamera* ViewerCamera::simulation() const
{
    return m_simulated.get();
}

bool ViewerCamera::hasImages() const
{
    return m_simulated && m_simulated->hasImages();
}
