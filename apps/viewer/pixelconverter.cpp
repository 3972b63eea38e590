#include "pixelconverter.h"

#include <QCoreApplication>
#include <QtEndian>

#include <limits>

namespace {

//! Keeps a frame's bytes alive as long as an image that wraps them.
void releaseFrame(void* frame)
{
    delete static_cast<QByteArray*>(frame);
}

QImage wrap(const QByteArray& data, int width, int height, int bytesPerLine, QImage::Format format)
{
    auto* kept = new QByteArray(data);
    return QImage(
        reinterpret_cast<const uchar*>(kept->constData()), width, height, bytesPerLine, format, releaseFrame, kept);
}

//! Where red sits in the 2x2 cell (row * 2 + column) of a Bayer format; -1 for another format.
int bayerRed(const QString& format)
{
    if (format == QLatin1String("BayerRG8"))
        return 0;
    if (format == QLatin1String("BayerGR8"))
        return 1;
    if (format == QLatin1String("BayerGB8"))
        return 2;
    if (format == QLatin1String("BayerBG8"))
        return 3;
    return -1;
}

QImage demosaic(const uchar* raw, int width, int height, int red)
{
    QImage image(width, height, QImage::Format_RGB32);
    const int redRow = red / 2;
    const int redColumn = red % 2;
    // Each 2x2 cell holds one red, two greens and one blue; every pixel takes
    // the colour of the cell it falls in, the greens averaged.
    for (int y = 0; y < height; y += 2) {
        const int y1 = qMin(y + 1, height - 1);
        const uchar* row0 = raw + size_t(y) * size_t(width);
        const uchar* row1 = raw + size_t(y1) * size_t(width);
        auto* out0 = reinterpret_cast<QRgb*>(image.scanLine(y));
        auto* out1 = reinterpret_cast<QRgb*>(image.scanLine(y1));
        for (int x = 0; x < width; x += 2) {
            const int x1 = qMin(x + 1, width - 1);
            const uchar cell[4] = { row0[x], row0[x1], row1[x], row1[x1] };
            const int r = cell[redRow * 2 + redColumn];
            const int b = cell[(1 - redRow) * 2 + (1 - redColumn)];
            const int g = (cell[redRow * 2 + (1 - redColumn)] + cell[(1 - redRow) * 2 + redColumn] + 1) / 2;
            const QRgb rgb = qRgb(r, g, b);
            out0[x] = rgb;
            out0[x1] = rgb;
            out1[x] = rgb;
            out1[x1] = rgb;
        }
    }
    return image;
}

QImage narrow(const uchar* raw, int width, int height, int shift)
{
    QImage image(width, height, QImage::Format_Grayscale8);
    for (int y = 0; y < height; ++y) {
        const uchar* in = raw + size_t(y) * size_t(width) * 2;
        uchar* out = image.scanLine(y);
        for (int x = 0; x < width; ++x)
            out[x] = uchar(qMin(255, qFromLittleEndian<quint16>(in + size_t(x) * 2) >> shift));
    }
    return image;
}

} // namespace

QStringList PixelConverter::supportedFormats()
{
    return { QStringLiteral("Mono8"), QStringLiteral("Mono10"), QStringLiteral("Mono12"), QStringLiteral("Mono16"),
        QStringLiteral("RGB8"), QStringLiteral("BGR8"), QStringLiteral("BayerRG8"), QStringLiteral("BayerGR8"),
        QStringLiteral("BayerGB8"), QStringLiteral("BayerBG8") };
}

bool PixelConverter::isSupported(const QString& pixelFormat)
{
    return bytesPerPixel(pixelFormat) > 0;
}

int PixelConverter::bytesPerPixel(const QString& pixelFormat)
{
    if (pixelFormat == QLatin1String("Mono8") || bayerRed(pixelFormat) >= 0)
        return 1;
    if (pixelFormat == QLatin1String("Mono10") || pixelFormat == QLatin1String("Mono12")
        || pixelFormat == QLatin1String("Mono16"))
        return 2;
    if (pixelFormat == QLatin1String("RGB8") || pixelFormat == QLatin1String("BGR8"))
        return 3;
    return 0;
}

QImage PixelConverter::toImage(
    const QByteArray& data, int width, int height, const QString& pixelFormat, QString* error)
{
    const int bpp = bytesPerPixel(pixelFormat);
    if (bpp == 0) {
        if (error)
            *error = QCoreApplication::translate("PixelConverter", "The pixel format %1 cannot be shown.")
                         .arg(pixelFormat);
        return QImage();
    }
    if (width <= 0 || height <= 0 || qint64(width) * height * bpp > data.size()
        || qint64(width) * bpp > std::numeric_limits<int>::max()) {
        if (error)
            *error = QCoreApplication::translate("PixelConverter", "The frame is incomplete.");
        return QImage();
    }
    const auto* raw = reinterpret_cast<const uchar*>(data.constData());
    if (pixelFormat == QLatin1String("Mono8"))
        return wrap(data, width, height, width, QImage::Format_Grayscale8);
    if (pixelFormat == QLatin1String("Mono16")) {
        if (QSysInfo::ByteOrder == QSysInfo::LittleEndian)
            return wrap(data, width, height, width * 2, QImage::Format_Grayscale16);
        return narrow(raw, width, height, 8);
    }
    if (pixelFormat == QLatin1String("Mono10"))
        return narrow(raw, width, height, 2);
    if (pixelFormat == QLatin1String("Mono12"))
        return narrow(raw, width, height, 4);
    if (pixelFormat == QLatin1String("RGB8"))
        return wrap(data, width, height, width * 3, QImage::Format_RGB888);
    if (pixelFormat == QLatin1String("BGR8"))
        return wrap(data, width, height, width * 3, QImage::Format_BGR888);
    return demosaic(raw, width, height, bayerRed(pixelFormat));
}

QString PixelConverter::pixelText(
    const QByteArray& data, int width, int height, const QString& pixelFormat, int x, int y)
{
    const int bpp = bytesPerPixel(pixelFormat);
    if (bpp == 0 || x < 0 || y < 0 || x >= width || y >= height || (qint64(y) * width + x + 1) * bpp > data.size())
        return QString();
    const auto* p = reinterpret_cast<const uchar*>(data.constData()) + (qint64(y) * width + x) * bpp;
    if (bpp == 2)
        return QString::number(qFromLittleEndian<quint16>(p));
    if (pixelFormat == QLatin1String("RGB8"))
        return QStringLiteral("%1, %2, %3").arg(p[0]).arg(p[1]).arg(p[2]);
    if (pixelFormat == QLatin1String("BGR8"))
        return QStringLiteral("%1, %2, %3").arg(p[2]).arg(p[1]).arg(p[0]);
    const int red = bayerRed(pixelFormat);
    if (red >= 0) {
        const int site = (y & 1) * 2 + (x & 1);
        const int blue = 3 - red;
        const QString channel = site == red ? QStringLiteral("R")
            : site == blue                  ? QStringLiteral("B")
                                            : QStringLiteral("G");
        return channel + QLatin1Char(' ') + QString::number(p[0]);
    }
    return QString::number(p[0]);
}
