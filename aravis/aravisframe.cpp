#include "aravisframe.h"

namespace Aravis {

namespace {

struct PixelFormat
{
    quint32 code;
    const char* name;
    int bits;
};

// The formats a viewer shows, by the GenICam pixel format naming convention.
const PixelFormat pixelFormats[] = {
    { 0x01080001, "Mono8", 8 },
    { 0x01100003, "Mono10", 16 },
    { 0x01100005, "Mono12", 16 },
    { 0x01100007, "Mono16", 16 },
    { 0x010C0004, "Mono10Packed", 12 },
    { 0x010C0006, "Mono12Packed", 12 },
    { 0x01080008, "BayerGR8", 8 },
    { 0x01080009, "BayerRG8", 8 },
    { 0x0108000A, "BayerGB8", 8 },
    { 0x0108000B, "BayerBG8", 8 },
    { 0x02180014, "RGB8", 24 },
    { 0x02180015, "BGR8", 24 },
    { 0x02200016, "RGBa8", 32 },
    { 0x02200017, "BGRa8", 32 },
    { 0x0210001F, "YUV422_8_UYVY", 16 },
};

const PixelFormat* findPixelFormat(quint32 code)
{
    for (const PixelFormat& format : pixelFormats)
        if (format.code == code)
            return &format;
    return nullptr;
}

} // namespace

QByteArray AravisFrame::bytes() const
{
    return m_data ? QByteArray::fromRawData(m_data, int(m_size)) : QByteArray();
}

void AravisFrame::release()
{
    *this = AravisFrame();
}

QString AravisFrame::pixelFormatName(quint32 code)
{
    if (const PixelFormat* format = findPixelFormat(code))
        return QString::fromLatin1(format->name);
    return QStringLiteral("0x%1")
        .arg(code, 8, 16, QLatin1Char('0'))
        .toUpper()
        .replace(QLatin1String("0X"), QLatin1String("0x"));
}

int AravisFrame::bitsPerPixel(quint32 code)
{
    const PixelFormat* format = findPixelFormat(code);
    return format ? format->bits : 0;
}

} // namespace Aravis
