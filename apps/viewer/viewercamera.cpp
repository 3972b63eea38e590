#include "viewercamera.h"

#include "simulatedcamera.h"

#ifdef ZVC_WITH_ARAVIS
#include "araviscamera.h"
#include "aravisframe.h"
#include "aravisstream.h"
#endif

#include "pixelconverter.h"

#include <cstring>

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
    if (!m_aravis)
        return;
    m_stream = std::make_unique<Aravis::AravisStream>(*m_aravis);
    connect(m_stream.get(), &Aravis::AravisStream::frameReady, this, &ViewerCamera::passOn);
    connect(m_stream.get(), &Aravis::AravisStream::stopped, this, &ViewerCamera::streamStopped);
}

void ViewerCamera::passOn(const Aravis::AravisFrame& frame)
{
    // The image pane keeps its frame's bytes, and an image made over them,
    // until it paints a newer one; that may be long after the stream wants
    // the buffer back. So the pane gets a copy without the lines' padding,
    // and the buffer goes back to the camera as soon as this returns.
    const int bytesPerPixel = PixelConverter::bytesPerPixel(frame.pixelFormat());
    const int lineBytes = bytesPerPixel > 0 ? frame.width() * bytesPerPixel : frame.bytesPerLine();
    if (frame.isNull() || lineBytes <= 0 || frame.height() <= 0 || lineBytes > frame.bytesPerLine()
        || qint64(frame.bytesPerLine()) * (frame.height() - 1) + lineBytes > frame.size())
        return;
    QByteArray data;
    if (lineBytes == frame.bytesPerLine()) {
        data = QByteArray(frame.data(), lineBytes * frame.height());
    } else {
        data.resize(lineBytes * frame.height());
        for (int y = 0; y < frame.height(); ++y)
            std::memcpy(
                data.data() + qint64(y) * lineBytes, frame.data() + qint64(y) * frame.bytesPerLine(), lineBytes);
    }
    emit frameReady(data, frame.width(), frame.height(), frame.pixelFormat(), frame.frameId());
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
    return (m_simulated && m_simulated->hasImages()) || hasStream();
}

bool ViewerCamera::hasStream() const
{
#ifdef ZVC_WITH_ARAVIS
    return m_stream != nullptr;
#else
    return false;
#endif
}

bool ViewerCamera::startStream(QString* error)
{
#ifdef ZVC_WITH_ARAVIS
    if (m_stream) {
        if (m_stream->start())
            return true;
        if (error)
            *error = m_stream->errorString();
        return false;
    }
#endif
    if (error)
        error->clear();
    return false;
}

void ViewerCamera::stopStream()
{
#ifdef ZVC_WITH_ARAVIS
    if (m_stream)
        m_stream->stop();
#endif
}

bool ViewerCamera::isStreaming() const
{
#ifdef ZVC_WITH_ARAVIS
    return m_stream && m_stream->isRunning();
#else
    return false;
#endif
}

ViewerCamera::StreamCounts ViewerCamera::streamCounts() const
{
    StreamCounts counts;
#ifdef ZVC_WITH_ARAVIS
    if (m_stream) {
        const Aravis::AravisStream::Statistics statistics = m_stream->statistics();
        counts.received = statistics.received();
        counts.lost = statistics.lost() + statistics.dropped;
    }
#endif
    return counts;
}
