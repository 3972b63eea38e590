#pragma once

#include <QByteArray>
#include <QImage>
#include <QString>
#include <QStringList>

/*!
 * Turns a camera's raw frame, pixels of a GenICam pixel format row after row
 * without padding, into a QImage for painting. Mono8, Mono16, RGB8 and BGR8
 * are wrapped without a copy: the image shares the frame's bytes and keeps
 * them alive. Mono10 and Mono12 are scaled to 8 bits, and the Bayer 8-bit
 * patterns are demosaiced, each cell of four giving its colour to its four
 * pixels' neighbourhood. Any camera's frames go through it.
 */
class PixelConverter
{
public:
    //! The pixel formats toImage() takes.
    static QStringList supportedFormats();
    static bool isSupported(const QString& pixelFormat);
    //! Bytes per pixel of a supported format, 0 for another.
    static int bytesPerPixel(const QString& pixelFormat);

    /*!
     * The image of the frame; a null image, and the reason in error, when the
     * format is not supported or the data is shorter than width x height
     * pixels.
     */
    static QImage toImage(
        const QByteArray& data, int width, int height, const QString& pixelFormat, QString* error = nullptr);

    //! The raw value of the pixel at (x, y) as text: "128", "1023", "255, 0, 12", "R 200"; empty outside.
    static QString pixelText(const QByteArray& data, int width, int height, const QString& pixelFormat, int x, int y);
};
