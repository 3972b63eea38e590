/*!
 * \file aravis/aravisstream.h
 * Aravis::AravisStream, the images of a camera opened through Aravis, handed
 * to the thread of the widgets.
 */
#pragma once

#include "aravisframe.h"
#include "zarvexaravis_export.h"

#include <QObject>
#include <QSharedPointer>
#include <QString>

#include <memory>

namespace Aravis {

class AravisCamera;
class AravisDevice;

/*!
 * The image stream of a camera opened through Aravis: acquisition started and
 * stopped, a pool of buffers that the camera fills on a thread of Aravis's,
 * and each completed image handed to the thread that made the stream (the
 * thread of the widgets) as an AravisFrame, through frameReady().
 *
 * Nothing here blocks that thread while frames arrive. At most one frame is
 * on its way to it at a time: a frame completed while the previous one is
 * still waiting in the event loop goes straight back to the pool and counts
 * as dropped, so a busy event loop shows fewer frames and never falls behind.
 * A frame's buffer goes back to the pool when the receiver lets go of the
 * frame (AravisFrame's documentation says how), so a receiver that keeps the
 * frame it shows, and drops it for the next, keeps one buffer.
 *
 * To show a camera's images:
 * \code
 * auto* stream = new Aravis::AravisStream(*camera, window); // camera from Aravis::AravisCamera::open()
 * connect(stream, &Aravis::AravisStream::frameReady, pane, &ImagePane::showFrame); // keeps the frame until the next
 * connect(stream, &Aravis::AravisStream::stopped, window, &Window::onStreamStopped);
 * if (!stream->start())
 *     statusBar()->showMessage(stream->errorString());
 * ... stream->statistics().completed, .lost(), .dropped for the status bar
 * \endcode
 *
 * On GigE Vision the stream receives through an ordinary socket (the packet
 * socket receives nothing from a camera on the loopback interface), asks the
 * camera for the largest packet the path carries, and sizes the socket's
 * receive buffer for several frames, so that a busy host loses no packets
 * between two turns of the receiving thread.
 *
 * When the camera goes away (Aravis's control-lost, or the node map finding
 * it gone) the stream stops by itself, without talking to the camera any
 * more, and emits stopped() with the reason. Frames already handed out stay
 * valid.
 */
class ZVC_ARAVIS_EXPORT AravisStream : public QObject
{
    Q_OBJECT

public:
    //! What the stream has counted since start().
    struct Statistics
    {
        quint64 completed = 0; //!< frames that arrived whole
        quint64 failed = 0; //!< frames that arrived incomplete (missing packets, time-out) and were thrown away
        quint64 underruns = 0; //!< frames the camera sent while no buffer was free
        quint64 delivered = 0; //!< complete frames handed to frameReady()
        quint64 dropped = 0; //!< complete frames put back because the previous one was still on its way

        //! Every frame the stream saw: complete, incomplete or without a buffer.
        quint64 received() const { return completed + failed + underruns; }
        //! Frames that did not arrive whole.
        quint64 lost() const { return failed + underruns; }
        //! Complete frames as a share of received(), from 0 to 1; 1 before any frame.
        double completedShare() const { return received() ? double(completed) / double(received()) : 1.0; }
    };

    /*!
     * A stream of the camera; nothing starts before start(). The stream holds
     * the camera's device itself, so it may outlive the AravisCamera object.
     */
    explicit AravisStream(const AravisCamera& camera, QObject* parent = nullptr);
    //! \cond
    // For this library's own tools and tests, which open the device directly.
    explicit AravisStream(QSharedPointer<AravisDevice> device, QObject* parent = nullptr);
    //! \endcond
    //! Stops the stream if it runs.
    ~AravisStream() override;

    /*!
     * Starts acquisition in continuous mode with bufferCount buffers of the
     * camera's present payload. Gives false, and sets errorString(), when the
     * camera refuses or is gone; nothing is then left running. Width, Height,
     * PixelFormat and the frame rate are the camera's features, set before.
     */
    bool start(int bufferCount = 8);
    //! Stops acquisition and the receiving thread; does nothing when not running.
    void stop();
    //! True between a successful start() and stop() or the camera's loss.
    bool isRunning() const { return m_camera != nullptr; }
    //! Why the last start() failed, or why the stream stopped by itself.
    QString errorString() const { return m_error; }
    //! The counts since the last start(); kept after a stop.
    Statistics statistics() const;
    //! The GigE Vision packet size in bytes that start() agreed with the camera; 0 for other cameras.
    int packetSize() const { return m_packetSize; }

signals:
    //! A complete frame, on the thread that made the stream. Keep it only while it is shown.
    void frameReady(const Aravis::AravisFrame& frame);
    //! The stream stopped by itself: the camera went away. stop() itself emits nothing.
    void stopped(const QString& reason);

private:
    struct Shared;

    void stopStreaming(bool cameraAnswers);
    void onLost(const QString& reason);
    // Aravis's callbacks, on its own threads; void* keeps Aravis out of this header.
    static void onNewBuffer(void* stream, void* shared);
    static void onControlLost(void* device, void* shared);
    static AravisFrame frameOf(void* stream, void* buffer);

    QSharedPointer<AravisDevice> m_device;
    void* m_camera = nullptr; //!< ArvCamera
    void* m_stream = nullptr; //!< ArvStream
    std::shared_ptr<Shared> m_shared;
    unsigned long m_controlLostHandler = 0;
    QMetaObject::Connection m_nodeMapLost;
    Statistics m_last;
    int m_packetSize = 0;
    QString m_error;
};

} // namespace Aravis
