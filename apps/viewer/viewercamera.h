#pragma once

#include "parameters/ibaseinfo.h"
#include "parameters/iparametercollection.h"

#include <QHash>
#include <QObject>
#include <QSharedPointer>
#include <QStringList>

#include <memory>

namespace Simulation {
class SimulatedCamera;
}
#ifdef ZVC_WITH_ARAVIS
namespace Aravis {
class AravisCamera;
}
#endif

/*!
 * An open camera as the viewer sees it: node maps by name, the camera's
 * information, and the simulated camera behind it when there is one, so that
 * the Simulate menu can make it misbehave. lost() comes from either kind.
 */
class ViewerCamera : public QObject
{
    Q_OBJECT

public:
    explicit ViewerCamera(std::unique_ptr<Simulation::SimulatedCamera> camera);
#ifdef ZVC_WITH_ARAVIS
    explicit ViewerCamera(std::unique_ptr<Aravis::AravisCamera> camera);
#endif
    ~ViewerCamera() override;

    QStringList nodeMapNames() const;
    QSharedPointer<ParameterCollection::IParameterCollection> nodeMap(const QString& name) const;
    QSharedPointer<Plugin::CameraPool::IBaseInfo> baseInfo() const;
    QString transportLayerType() const;
    //! Null for a real camera.
    Simulation::SimulatedCamera* simulation() const;

    //! True if the camera sends pictures through frameReady().
    bool hasImages() const;

signals:
    //! The camera went away.
    void lost(const QString& reason);
    //! A picture: raw pixels of the GenICam pixel format, row after row.
    void frameReady(const QByteArray& data, int width, int height, const QString& pixelFormat, quint64 frameId);

private:
    //! Takes what the viewer needs from either kind of camera once, when it is opened.
    template <typename Camera> void adopt(const Camera& camera);

    std::unique_ptr<Simulation::SimulatedCamera> m_simulated;
#ifdef ZVC_WITH_ARAVIS
    std::unique_ptr<Aravis::AravisCamera> m_aravis;
#endif
    QStringList m_nodeMapNames;
    QHash<QString, QSharedPointer<ParameterCollection::IParameterCollection>> m_nodeMaps;
    QSharedPointer<Plugin::CameraPool::IBaseInfo> m_baseInfo;
    QString m_transportLayerType;
};
