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
class AravisFrame;
class AravisStream;
} // namespace Aravis
#endif

/*!
 * An open camera as the viewer sees it: node maps by name, the camera's
 * information, and the simulated camera behind it when there is one, so that
 * the Simulate menu can make it misbehave. lost() and frameReady() come from
 * either kind. A simulated camera sends pictures once its AcquisitionStart
 * runs; a real one through a stream of its own, which startStream() starts.
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

    //! What a camera's own stream counted since it started.
    struct StreamCounts
    {
        quint64 received = 0; //!< every frame the camera sent, whole or not
        quint64 lost = 0; //!< incomplete, without a buffer, or put back while the last was still on its way
    };

    //! True if the pictures come through a stream of the camera's own rather than after AcquisitionStart.
    bool hasStream() const;
    //! Starts the camera's stream, which runs AcquisitionStart itself; false with the reason when it can't.
    bool startStream(QString* error = nullptr);
    //! Stops the stream (and with it the acquisition); nothing when none runs.
    void stopStream();
    bool isStreaming() const;
    //! The counts of the stream's present or last run.
    StreamCounts streamCounts() const;

signals:
    //! The camera went away.
    void lost(const QString& reason);
    //! A picture: raw pixels of the GenICam pixel format, row after row.
    void frameReady(const QByteArray& data, int width, int height, const QString& pixelFormat, quint64 frameId);
    //! The stream stopped by itself, the camera gone; stopStream() says nothing.
    void streamStopped(const QString& reason);

private:
    //! Takes what the viewer needs from either kind of camera once, when it is opened.
    template <typename Camera> void adopt(const Camera& camera);

    std::unique_ptr<Simulation::SimulatedCamera> m_simulated;
#ifdef ZVC_WITH_ARAVIS
    void passOn(const Aravis::AravisFrame& frame);

    std::unique_ptr<Aravis::AravisCamera> m_aravis;
    std::unique_ptr<Aravis::AravisStream> m_stream; //!< after the camera: it goes first
#endif
    QStringList m_nodeMapNames;
    QHash<QString, QSharedPointer<ParameterCollection::IParameterCollection>> m_nodeMaps;
    QSharedPointer<Plugin::CameraPool::IBaseInfo> m_baseInfo;
    QString m_transportLayerType;
};
