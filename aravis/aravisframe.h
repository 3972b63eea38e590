/*!
 * \file aravis/aravisframe.h
 * Aravis::AravisFrame, one image of a camera's stream, sharing the stream's
 * buffer until the last copy of it goes.
 */
#pragma once

#include "zarvexaravis_export.h"

#include <QByteArray>
#include <QMetaType>
#include <QString>

#include <memory>

namespace Aravis {

/*!
 * One image from a camera's stream, as AravisStream hands it to the thread
 * of the widgets: the pixel bytes, their size and layout, and where the
 * image came from.
 *
 * A frame is a small value and is passed and copied freely; copies share the
 * pixel memory, which is the stream's own buffer, filled by the camera. No
 * pixel is copied on the way from the network to the slot. The buffer goes
 * back to the stream's pool when the last copy of the frame is destroyed or
 * reset (release()), so a receiver keeps a frame only as long as it shows it:
 * every frame held is a buffer the camera can't fill. Frames may outlive
 * their stream, and may be destroyed on any thread.
 *
 * For an image pane: bytes() holds height() lines of bytesPerLine() bytes,
 * the first line first, in the GenICam pixel format named by pixelFormat()
 * ("Mono8", "Mono10", "Mono12", "Mono16", "RGB8", "BGR8", "BayerRG8", ...;
 * 10, 12 and 16 bits take two little-endian bytes a pixel). A QImage can be
 * made over the bytes without a copy, as long as the frame is kept with it:
 * \code
 * QImage image(reinterpret_cast<const uchar*>(frame.data()), frame.width(), frame.height(),
 *     frame.bytesPerLine(), QImage::Format_Grayscale8);
 * \endcode
 */
class ZVC_ARAVIS_EXPORT AravisFrame
{
public:
    //! A null frame: no bytes, no size.
    AravisFrame() = default;

    //! True for a frame that holds no image.
    bool isNull() const { return !m_data; }
    //! The pixel bytes, without a copy: valid while this frame (or a copy of it) lives.
    QByteArray bytes() const;
    //! The first pixel byte, or null; valid while this frame (or a copy of it) lives.
    const char* data() const { return m_data; }
    //! How many bytes data() holds.
    qint64 size() const { return m_size; }
    //! Width in pixels.
    int width() const { return m_width; }
    //! Height in lines.
    int height() const { return m_height; }
    //! Bytes from the start of one line to the start of the next.
    int bytesPerLine() const { return m_bytesPerLine; }
    //! The GenICam name of the pixel format ("Mono8"), or the code as "0x" and eight hexadecimal digits.
    QString pixelFormat() const { return pixelFormatName(m_pixelFormatCode); }
    //! The pixel format's number as the GenICam pixel format naming convention gives it (Mono8 is 0x01080001).
    quint32 pixelFormatCode() const { return m_pixelFormatCode; }
    //! The camera's number for the frame (GigE Vision's block id), rising by one a frame.
    quint64 frameId() const { return m_frameId; }
    //! When the camera took the frame, in nanoseconds of the camera's own clock.
    quint64 timestamp() const { return m_timestamp; }
    //! When the frame arrived, in nanoseconds since the epoch, by this host's clock.
    quint64 systemTimestamp() const { return m_systemTimestamp; }

    //! Lets go of the pixels (the buffer goes back to the stream once no copy holds it) and turns the frame null.
    void release();

    //! The GenICam name of a pixel format code, or the code as "0x" and eight hexadecimal digits.
    static QString pixelFormatName(quint32 code);
    //! Bits a pixel takes in memory for a pixel format code (Mono12 16, RGB8 24), or 0 for one unknown here.
    static int bitsPerPixel(quint32 code);

private:
    friend class AravisStream;

    std::shared_ptr<void> m_keeper; //!< gives the buffer back when the last copy goes
    const char* m_data = nullptr;
    qint64 m_size = 0;
    int m_width = 0;
    int m_height = 0;
    int m_bytesPerLine = 0;
    quint32 m_pixelFormatCode = 0;
    quint64 m_frameId = 0;
    quint64 m_timestamp = 0;
    quint64 m_systemTimestamp = 0;
};

} // namespace Aravis

Q_DECLARE_METATYPE(Aravis::AravisFrame)
