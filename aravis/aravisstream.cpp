#include "arvglib.h"

#include "aravisstream.h"

#include "araviscamera.h"
#include "aravisdevice.h"
#include "aravisnodemap.h"

#include <QMutex>
#include <QMutexLocker>

#include <atomic>

namespace Aravis {

namespace {

// The socket's receive buffer holds this many frames, within these bounds;
// the kernel may grant less (net.core.rmem_max).
constexpr int socketBufferFrames = 4;
constexpr qint64 minimumSocketBuffer = 1 << 20;
constexpr qint64 maximumSocketBuffer = 64 << 20;

QString takeError(GError** error, const QString& fallback)
{
    QString text = fallback;
    if (*error) {
        text = QString::fromUtf8((*error)->message);
        g_clear_error(error);
    }
    return text;
}

} // namespace

// What the threads of Aravis share with the stream object: the owner, while
// it wants frames, and the counts the stream itself keeps.
struct AravisStream::Shared
{
    QMutex mutex;
    AravisStream* owner = nullptr; //!< guarded by mutex; null once the stream stops
    std::atomic<bool> inFlight { false }; //!< a frame is on its way to the owner's thread
    std::atomic<quint64> delivered { 0 };
    std::atomic<quint64> dropped { 0 };
};

namespace {

// Every GLib handler holds the shared state through one of these, freed with the handler.
template <typename T> gpointer holdShared(const std::shared_ptr<T>& shared)
{
    return new std::shared_ptr<T>(shared);
}

template <typename T> void releaseShared(gpointer data, GClosure*)
{
    delete static_cast<std::shared_ptr<T>*>(data);
}

// A UDP datagram over loopback holds 65 507 bytes; GigE Vision packet sizes
// count the IP and UDP headers and go in steps of 4 on most cameras.
constexpr int largestLoopbackPacket = 65500;

bool isOnLoopback(ArvDevice* device)
{
    if (!ARV_IS_GV_DEVICE(device))
        return false;
    GSocketAddress* address = arv_gv_device_get_device_address(ARV_GV_DEVICE(device));
    return address && G_IS_INET_SOCKET_ADDRESS(address)
        && g_inet_address_get_is_loopback(g_inet_socket_address_get_address(G_INET_SOCKET_ADDRESS(address)));
}

bool isImage(ArvBuffer* buffer)
{
    const ArvBufferPayloadType type = arv_buffer_get_payload_type(buffer);
    return type == ARV_BUFFER_PAYLOAD_TYPE_IMAGE || type == ARV_BUFFER_PAYLOAD_TYPE_EXTENDED_CHUNK_DATA;
}

} // namespace

AravisStream::AravisStream(QSharedPointer<AravisDevice> device, QObject* parent)
    : QObject(parent)
    , m_device(std::move(device))
{
    qRegisterMetaType<Aravis::AravisFrame>();
}

AravisStream::AravisStream(const AravisCamera& camera, QObject* parent)
    : AravisStream(camera.m_device, parent)
{
}

AravisStream::~AravisStream()
{
    stop();
}

bool AravisStream::start(int bufferCount)
{
    if (isRunning())
        return true;
    m_error.clear();
    m_last = Statistics();
    m_packetSize = 0;
    const QSharedPointer<AravisNodeMap> map
        = m_device ? m_device->nodeMap(QStringLiteral("@CameraDevice")) : QSharedPointer<AravisNodeMap>();
    if (!map || map->isLost()) {
        m_error = QStringLiteral("the camera is gone");
        return false;
    }
    GError* error = nullptr;
    // The camera takes a reference of its own to the device.
    ArvCamera* camera = arv_camera_new_with_device(m_device->arvDevice(), &error);
    if (!camera) {
        m_error = takeError(&error, QStringLiteral("Aravis could not make a camera of the device"));
        return false;
    }
    auto fail = [&](const QString& fallback) {
        m_error = takeError(&error, fallback);
        if (m_stream) {
            arv_stream_set_emit_signals(ARV_STREAM(m_stream), FALSE);
            g_object_unref(m_stream);
            m_stream = nullptr;
        }
        g_object_unref(camera);
        return false;
    };

    if (arv_camera_is_gv_device(camera)) {
        // The packet socket receives nothing from a camera on the loopback interface.
        arv_camera_gv_set_stream_options(camera, ARV_GV_STREAM_OPTION_PACKET_SOCKET_DISABLED);
        // The largest packet the path carries: fewer packets, fewer chances to lose one.
        m_packetSize = int(arv_camera_gv_auto_packet_size(camera, &error));
        g_clear_error(&error);
        // Aravis's negotiation stops at an Ethernet frame where the camera
        // fires no test packets; the loopback interface carries datagrams of
        // 64 KiB, so a camera there gets the largest packet it accepts below that.
        if (isOnLoopback(m_device->arvDevice())) {
            gint64 minimum = 0;
            gint64 maximum = 0;
            arv_device_get_integer_feature_bounds(
                m_device->arvDevice(), "GevSCPSPacketSize", &minimum, &maximum, &error);
            const gint64 wanted = qMin(maximum, gint64(largestLoopbackPacket));
            if (!error && wanted > m_packetSize) {
                arv_camera_gv_set_packet_size(camera, gint(wanted), &error);
                g_clear_error(&error);
            }
            g_clear_error(&error);
        }
        m_packetSize = int(arv_camera_gv_get_packet_size(camera, &error));
        g_clear_error(&error);
    }
    arv_camera_set_acquisition_mode(camera, ARV_ACQUISITION_MODE_CONTINUOUS, &error);
    if (error)
        return fail(QString());
    const guint payload = arv_camera_get_payload(camera, &error);
    if (error || payload == 0)
        return fail(QStringLiteral("the camera gives no payload size"));

    ArvStream* stream = arv_camera_create_stream(camera, nullptr, nullptr, &error);
    if (!stream)
        return fail(QStringLiteral("Aravis could not open the camera's stream"));
    m_stream = stream;
    if (ARV_IS_GV_STREAM(stream)) {
        const qint64 wanted = qBound(minimumSocketBuffer, qint64(payload) * socketBufferFrames, maximumSocketBuffer);
        g_object_set(
            stream, "socket-buffer", ARV_GV_STREAM_SOCKET_BUFFER_FIXED, "socket-buffer-size", gint(wanted), nullptr);
    }
    for (int i = 0; i < qMax(2, bufferCount); ++i)
        arv_stream_push_buffer(stream, arv_buffer_new_allocate(payload));

    m_shared = std::make_shared<Shared>();
    m_shared->owner = this;
    g_signal_connect_data(stream, "new-buffer", G_CALLBACK(&AravisStream::onNewBuffer), holdShared(m_shared),
        releaseShared<Shared>, GConnectFlags(0));
    arv_stream_set_emit_signals(stream, TRUE);
    m_controlLostHandler = g_signal_connect_data(m_device->arvDevice(), "control-lost",
        G_CALLBACK(&AravisStream::onControlLost), holdShared(m_shared), releaseShared<Shared>, GConnectFlags(0));
    m_nodeMapLost = connect(map.data(), &AravisNodeMap::lost, this, &AravisStream::onLost);

    m_camera = camera;
    arv_camera_start_acquisition(camera, &error);
    if (error) {
        m_error = takeError(&error, QString());
        stopStreaming(true);
        return false;
    }
    return true;
}

void AravisStream::stop()
{
    stopStreaming(true);
}

void AravisStream::onLost(const QString& reason)
{
    if (!isRunning())
        return;
    m_error = reason;
    stopStreaming(false);
    emit stopped(reason);
}

void AravisStream::stopStreaming(bool cameraAnswers)
{
    if (!m_camera)
        return;
    auto* camera = static_cast<ArvCamera*>(m_camera);
    auto* stream = static_cast<ArvStream*>(m_stream);
    {
        QMutexLocker lock(&m_shared->mutex);
        m_shared->owner = nullptr;
    }
    m_last = statistics();
    // A camera that is gone is not asked for anything more: each request would wait for its time-out.
    const QSharedPointer<AravisNodeMap> map = m_device->nodeMap(QStringLiteral("@CameraDevice"));
    if (cameraAnswers && map && !map->isLost()) {
        GError* error = nullptr;
        arv_camera_stop_acquisition(camera, &error);
        g_clear_error(&error);
    }
    disconnect(m_nodeMapLost);
    if (m_controlLostHandler) {
        g_signal_handler_disconnect(m_device->arvDevice(), m_controlLostHandler);
        m_controlLostHandler = 0;
    }
    arv_stream_set_emit_signals(stream, FALSE);
    // Buffers held by frames come back to the stream, which goes, with its
    // receiving thread, when the last of them does.
    g_object_unref(stream);
    g_object_unref(camera);
    m_stream = nullptr;
    m_camera = nullptr;
}

AravisStream::Statistics AravisStream::statistics() const
{
    if (!m_stream)
        return m_last;
    Statistics counts;
    guint64 completed = 0;
    guint64 failed = 0;
    guint64 underruns = 0;
    arv_stream_get_statistics(static_cast<ArvStream*>(m_stream), &completed, &failed, &underruns);
    counts.completed = completed;
    counts.failed = failed;
    counts.underruns = underruns;
    counts.delivered = m_shared->delivered;
    counts.dropped = m_shared->dropped;
    return counts;
}

void AravisStream::onNewBuffer(void* streamObject, void* data)
{
    auto* stream = static_cast<ArvStream*>(streamObject);
    const std::shared_ptr<Shared> shared = *static_cast<std::shared_ptr<Shared>*>(data);
    ArvBuffer* buffer = arv_stream_try_pop_buffer(stream);
    if (!buffer)
        return;
    // Aravis counts the incomplete ones; their buffers go straight back.
    if (arv_buffer_get_status(buffer) != ARV_BUFFER_STATUS_SUCCESS || !isImage(buffer)) {
        arv_stream_push_buffer(stream, buffer);
        return;
    }
    QMutexLocker lock(&shared->mutex);
    AravisStream* owner = shared->owner;
    if (!owner) {
        arv_stream_push_buffer(stream, buffer);
        return;
    }
    if (shared->inFlight.exchange(true)) {
        ++shared->dropped;
        arv_stream_push_buffer(stream, buffer);
        return;
    }
    const AravisFrame frame = frameOf(stream, buffer);
    // Posted to the owner's thread; should the owner go first, Qt drops the
    // call and the frame with it, and the buffer goes back.
    QMetaObject::invokeMethod(
        owner,
        [owner, shared, frame] {
            shared->inFlight = false;
            if (owner->m_shared != shared || !owner->isRunning())
                return; // from a run that has ended since
            ++shared->delivered;
            emit owner->frameReady(frame);
        },
        Qt::QueuedConnection);
}

void AravisStream::onControlLost(void*, void* data)
{
    const std::shared_ptr<Shared> shared = *static_cast<std::shared_ptr<Shared>*>(data);
    QMutexLocker lock(&shared->mutex);
    if (AravisStream* owner = shared->owner) {
        QMetaObject::invokeMethod(
            owner,
            [owner, shared] {
                if (owner->m_shared == shared)
                    owner->onLost(QStringLiteral("the camera stopped answering its heartbeat"));
            },
            Qt::QueuedConnection);
    }
}

AravisFrame AravisStream::frameOf(void* streamObject, void* bufferObject)
{
    auto* stream = static_cast<ArvStream*>(streamObject);
    auto* buffer = static_cast<ArvBuffer*>(bufferObject);
    AravisFrame frame;
    size_t size = 0;
    frame.m_data = static_cast<const char*>(arv_buffer_get_image_data(buffer, &size));
    frame.m_size = qint64(size);
    frame.m_width = arv_buffer_get_image_width(buffer);
    frame.m_height = arv_buffer_get_image_height(buffer);
    frame.m_pixelFormatCode = arv_buffer_get_image_pixel_format(buffer);
    gint paddingX = 0;
    gint paddingY = 0;
    arv_buffer_get_image_padding(buffer, &paddingX, &paddingY);
    const int bits = AravisFrame::bitsPerPixel(frame.m_pixelFormatCode);
    frame.m_bytesPerLine = bits > 0 ? (frame.m_width * bits + 7) / 8 + paddingX
                                    : (frame.m_height > 0 ? int(frame.m_size / frame.m_height) : 0);
    frame.m_frameId = arv_buffer_get_frame_id(buffer);
    frame.m_timestamp = arv_buffer_get_timestamp(buffer);
    frame.m_systemTimestamp = arv_buffer_get_system_timestamp(buffer);
    // The last copy of the frame gives the buffer back, to a stream kept alive till then.
    g_object_ref(stream);
    frame.m_keeper = std::shared_ptr<void>(buffer, [stream](void* held) {
        arv_stream_push_buffer(stream, static_cast<ArvBuffer*>(held));
        g_object_unref(stream);
    });
    if (!frame.m_data) {
        frame.m_size = 0;
        frame.m_keeper.reset();
    }
    return frame;
}

} // namespace Aravis
