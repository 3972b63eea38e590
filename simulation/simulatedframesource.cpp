#include "simulatedframesource.h"

#include "simulateddevice.h"

#include <QtEndian>

#include <algorithm>
#include <cmath>
#include <vector>

namespace Simulation {

namespace {

//! Before the first acquisition and between acquisitions the source looks at the camera this often.
constexpr int kIdleIntervalMs = 20;
//! Larger pictures are refused rather than allocated.
constexpr qint64 kMaxPixels = qint64(16384) * 16384;

//! The scene before the sensor, red, green, blue and luminance per pixel; made once per sensor size.
struct Scene
{
    int width = 0;
    int height = 0;
    std::vector<quint8> pixels; //!< 4 bytes a pixel: r, g, b, y

    void make(int w, int h)
    {
        width = w;
        height = h;
        pixels.assign(size_t(w) * size_t(h) * 4, 0);
        struct Disc
        {
            double x, y, r;
            int cr, cg, cb;
        };
        const Disc discs[]
            = { { 0.25, 0.35, 0.16, 230, 60, 40 }, { 0.6, 0.6, 0.2, 50, 200, 80 }, { 0.82, 0.28, 0.12, 60, 90, 240 } };
        for (int y = 0; y < h; ++y) {
            quint8* row = pixels.data() + size_t(y) * size_t(w) * 4;
            const double fy = h > 1 ? double(y) / (h - 1) : 0.0;
            for (int x = 0; x < w; ++x) {
                const double fx = w > 1 ? double(x) / (w - 1) : 0.0;
                int r = int(30 + 90 * fx);
                int g = int(40 + 80 * fy);
                int b = int(120 - 70 * fx + 40 * fy);
                for (const Disc& d : discs) {
                    const double dx = (fx - d.x) * w;
                    const double dy = (fy - d.y) * h;
                    const double radius = d.r * std::min(w, h);
                    if (dx * dx + dy * dy < radius * radius) {
                        r = d.cr;
                        g = d.cg;
                        b = d.cb;
                    }
                }
                if (x % 64 == 0 || y % 64 == 0) {
                    r = r / 3;
                    g = g / 3;
                    b = b / 3;
                }
                quint8* p = row + size_t(x) * 4;
                p[0] = quint8(qBound(0, r, 255));
                p[1] = quint8(qBound(0, g, 255));
                p[2] = quint8(qBound(0, b, 255));
                p[3] = quint8((p[0] * 77 + p[1] * 150 + p[2] * 29) >> 8);
            }
        }
    }
};

const Scene& sceneFor(int width, int height)
{
    thread_local Scene scene;
    if (scene.width != width || scene.height != height)
        scene.make(width, height);
    return scene;
}

enum class Layout { None, Mono8, Mono16, Rgb, Bgr, Bayer };

struct FormatInfo
{
    Layout layout = Layout::None;
    int shift = 0; //!< Mono16 containers: bits below the 8 significant ones
    int bayerFirstRed = 0; //!< Bayer: the position of red in the 2x2 cell, 0..3 (row * 2 + column)
};

FormatInfo formatInfo(const QString& name)
{
    FormatInfo info;
    if (name == QLatin1String("Mono8")) {
        info.layout = Layout::Mono8;
    } else if (name == QLatin1String("Mono10")) {
        info.layout = Layout::Mono16;
        info.shift = 2;
    } else if (name == QLatin1String("Mono12")) {
        info.layout = Layout::Mono16;
        info.shift = 4;
    } else if (name == QLatin1String("Mono16")) {
        info.layout = Layout::Mono16;
        info.shift = 8;
    } else if (name == QLatin1String("RGB8")) {
        info.layout = Layout::Rgb;
    } else if (name == QLatin1String("BGR8")) {
        info.layout = Layout::Bgr;
    } else if (name == QLatin1String("BayerRG8")) {
        info.layout = Layout::Bayer;
        info.bayerFirstRed = 0;
    } else if (name == QLatin1String("BayerGR8")) {
        info.layout = Layout::Bayer;
        info.bayerFirstRed = 1;
    } else if (name == QLatin1String("BayerGB8")) {
        info.layout = Layout::Bayer;
        info.bayerFirstRed = 2;
    } else if (name == QLatin1String("BayerBG8")) {
        info.layout = Layout::Bayer;
        info.bayerFirstRed = 3;
    }
    return info;
}

int bytesPerPixel(Layout layout)
{
    switch (layout) {
    case Layout::Mono16:
        return 2;
    case Layout::Rgb:
    case Layout::Bgr:
        return 3;
    case Layout::None:
        return 0;
    default:
        return 1;
    }
}

//! Fills one row of red, green, blue for a test pattern; false for a pattern it doesn't know.
bool patternRow(const QString& pattern, int y, int width, int height, quint64 frameId, quint8* rgb)
{
    const int moving = int(frameId % 256);
    if (pattern == QLatin1String("Black") || pattern == QLatin1String("White")) {
        std::fill(rgb, rgb + size_t(width) * 3, pattern == QLatin1String("White") ? 255 : 0);
        return true;
    }
    for (int x = 0; x < width; ++x) {
        int r = 0, g = 0, b = 0;
        if (pattern == QLatin1String("GreyHorizontalRamp")) {
            r = g = b = width > 1 ? x * 255 / (width - 1) : 0;
        } else if (pattern == QLatin1String("GreyVerticalRamp")) {
            r = g = b = height > 1 ? y * 255 / (height - 1) : 0;
        } else if (pattern == QLatin1String("GreyHorizontalRampMoving")) {
            r = g = b = (x + moving) & 0xFF;
        } else if (pattern == QLatin1String("GreyDiagonalRampMoving")) {
            r = g = b = (x + y + moving) & 0xFF;
        } else if (pattern == QLatin1String("ColorBar")) {
            // White, yellow, cyan, green, magenta, red, blue, black.
            static const int bars[8][3] = { { 255, 255, 255 }, { 255, 255, 0 }, { 0, 255, 255 }, { 0, 255, 0 },
                { 255, 0, 255 }, { 255, 0, 0 }, { 0, 0, 255 }, { 0, 0, 0 } };
            const int* c = bars[qBound(0, x * 8 / qMax(1, width), 7)];
            r = c[0];
            g = c[1];
            b = c[2];
        } else if (pattern == QLatin1String("FrameCounter")) {
            r = g = b = int(frameId & 0xFF);
        } else {
            return false;
        }
        rgb[x * 3] = quint8(r);
        rgb[x * 3 + 1] = quint8(g);
        rgb[x * 3 + 2] = quint8(b);
    }
    return true;
}

} // namespace

SimulatedFrameSource::SimulatedFrameSource(QSharedPointer<SimulatedDevice> device, QObject* parent)
    : QObject(parent)
    , m_device(std::move(device))
{
    qRegisterMetaType<Simulation::SimulatedFrame>();
    if (!m_device || !m_device->description().frameSource.isSet())
        return;
    const FrameSourceDescription& description = m_device->description().frameSource;
    m_nodeMap = description.nodeMap;
    for (auto it = description.expressions.constBegin(); it != description.expressions.constEnd(); ++it)
        m_expressions.insert(it.key(), Expression::parse(it.value()));
    m_valid = true;
    m_timer.setSingleShot(true);
    m_timer.setTimerType(Qt::PreciseTimer);
    connect(&m_timer, &QTimer::timeout, this, &SimulatedFrameSource::tick);
    m_clock.start();
    m_running = true;
    m_timer.start(0);
}

SimulatedFrameSource::~SimulatedFrameSource() = default;

void SimulatedFrameSource::setRunning(bool running)
{
    if (!m_valid || running == m_running)
        return;
    m_running = running;
    if (running)
        m_timer.start(0);
    else
        m_timer.stop();
}

SimulatedFrameSource::Settings SimulatedFrameSource::settings() const
{
    Settings s;
    if (!m_valid)
        return s;
    const auto value = [this](const char* name, bool* present) {
        const auto it = m_expressions.constFind(QLatin1String(name));
        *present = it != m_expressions.constEnd() && it->isValid();
        return *present ? m_device->evaluate(m_nodeMap, *it) : ExpressionValue();
    };
    bool present = false;
    ExpressionValue v = value("acquiring", &present);
    s.acquiring = present && v.toBool() && m_device->isPlugged();
    v = value("width", &present);
    s.width = present ? int(qBound(qint64(0), v.toInteger(), qint64(1) << 20)) : 640;
    v = value("height", &present);
    s.height = present ? int(qBound(qint64(0), v.toInteger(), qint64(1) << 20)) : 480;
    v = value("offsetX", &present);
    s.offsetX = present ? int(qBound(qint64(0), v.toInteger(), qint64(1) << 20)) : 0;
    v = value("offsetY", &present);
    s.offsetY = present ? int(qBound(qint64(0), v.toInteger(), qint64(1) << 20)) : 0;
    v = value("pixelFormat", &present);
    s.pixelFormat = present ? v.toText() : QStringLiteral("Mono8");
    v = value("reverseX", &present);
    s.reverseX = present && v.toBool();
    v = value("reverseY", &present);
    s.reverseY = present && v.toBool();
    v = value("testPattern", &present);
    s.testPattern = present ? v.toText() : QString();
    v = value("frameRate", &present);
    s.frameRate = present ? v.toDouble() : 30.0;
    v = value("brightness", &present);
    s.brightness = present ? v.toDouble() : 1.0;
    v = value("sensorWidth", &present);
    s.sensorWidth = present ? int(qBound(qint64(0), v.toInteger(), qint64(1) << 20)) : 0;
    v = value("sensorHeight", &present);
    s.sensorHeight = present ? int(qBound(qint64(0), v.toInteger(), qint64(1) << 20)) : 0;
    return s;
}

bool SimulatedFrameSource::canRender(const QString& pixelFormat)
{
    return formatInfo(pixelFormat).layout != Layout::None;
}

SimulatedFrame SimulatedFrameSource::render(const Settings& settings, quint64 frameId)
{
    SimulatedFrame frame;
    frame.width = settings.width;
    frame.height = settings.height;
    frame.pixelFormat = settings.pixelFormat;
    frame.frameId = frameId;
    const FormatInfo info = formatInfo(settings.pixelFormat);
    const int width = settings.width;
    const int height = settings.height;
    if (info.layout == Layout::None || width <= 0 || height <= 0 || qint64(width) * height > kMaxPixels)
        return frame;
    const int bpp = bytesPerPixel(info.layout);
    frame.data.resize(int(qint64(width) * height * bpp));
    auto* out = reinterpret_cast<quint8*>(frame.data.data());

    // The scene covers the sensor; the region of interest is cut from it and
    // slides a little with every frame, so that the picture moves.
    const int sensorWidth = qMax(settings.sensorWidth, settings.offsetX + width);
    const int sensorHeight = qMax(settings.sensorHeight, settings.offsetY + height);
    const bool pattern = !settings.testPattern.isEmpty() && settings.testPattern != QLatin1String("Off");
    const Scene* scene = pattern ? nullptr : &sceneFor(sensorWidth, sensorHeight);
    const int shift = int((frameId * 4) % quint64(sensorWidth));

    quint8 gain[256];
    const double brightness = std::isfinite(settings.brightness) ? qMax(0.0, settings.brightness) : 1.0;
    for (int i = 0; i < 256; ++i)
        gain[i] = quint8(qBound(0.0, std::round(i * brightness), 255.0));

    std::vector<quint8> rgb(static_cast<size_t>(width) * 3);
    std::vector<int> columns(static_cast<size_t>(width));
    for (int x = 0; x < width; ++x) {
        const int sx = settings.offsetX + (settings.reverseX ? width - 1 - x : x);
        columns[size_t(x)] = (sx + shift) % sensorWidth;
    }
    for (int y = 0; y < height; ++y) {
        const int row = settings.reverseY ? height - 1 - y : y;
        if (pattern) {
            if (!patternRow(settings.testPattern, row, width, height, frameId, rgb.data()))
                std::fill(rgb.begin(), rgb.end(), 0);
            if (settings.reverseX)
                for (int x = 0; x < width / 2; ++x)
                    for (int c = 0; c < 3; ++c)
                        std::swap(rgb[size_t(x) * 3 + c], rgb[size_t(width - 1 - x) * 3 + c]);
        } else {
            const quint8* source = scene->pixels.data() + size_t(settings.offsetY + row) * size_t(scene->width) * 4;
            for (int x = 0; x < width; ++x) {
                const quint8* p = source + size_t(columns[size_t(x)]) * 4;
                rgb[size_t(x) * 3] = gain[p[0]];
                rgb[size_t(x) * 3 + 1] = gain[p[1]];
                rgb[size_t(x) * 3 + 2] = gain[p[2]];
            }
        }
        quint8* line = out + size_t(y) * size_t(width) * size_t(bpp);
        const quint8* c = rgb.data();
        switch (info.layout) {
        case Layout::Mono8:
            for (int x = 0; x < width; ++x, c += 3)
                line[x] = quint8((c[0] * 77 + c[1] * 150 + c[2] * 29) >> 8);
            break;
        case Layout::Mono16:
            for (int x = 0; x < width; ++x, c += 3) {
                const int v = (c[0] * 77 + c[1] * 150 + c[2] * 29) >> 8;
                // The 8 bits on top, repeated below them, so that white is the largest value.
                const int wide = info.shift == 8 ? (v << 8) | v : (v << info.shift) | (v >> (8 - info.shift));
                qToLittleEndian<quint16>(quint16(wide), line + size_t(x) * 2);
            }
            break;
        case Layout::Rgb:
            std::copy(c, c + size_t(width) * 3, line);
            break;
        case Layout::Bgr:
            for (int x = 0; x < width; ++x, c += 3) {
                line[x * 3] = c[2];
                line[x * 3 + 1] = c[1];
                line[x * 3 + 2] = c[0];
            }
            break;
        case Layout::Bayer: {
            // Red sits at bayerFirstRed in the 2x2 cell, blue opposite, green on the other two.
            const int redRow = info.bayerFirstRed / 2;
            const int redColumn = info.bayerFirstRed % 2;
            for (int x = 0; x < width; ++x, c += 3) {
                const bool onRedRow = (y & 1) == redRow;
                const bool onRedColumn = (x & 1) == redColumn;
                line[x] = onRedRow && onRedColumn ? c[0] : (!onRedRow && !onRedColumn ? c[2] : c[1]);
            }
            break;
        }
        case Layout::None:
            break;
        }
    }
    return frame;
}

void SimulatedFrameSource::tick()
{
    const Settings now = settings();
    if (now.acquiring != m_acquiring) {
        m_acquiring = now.acquiring;
        m_nextFrameAt = double(m_clock.elapsed());
        emit acquisitionChanged(m_acquiring);
    }
    if (!m_acquiring || !(now.frameRate > 0.0)) {
        if (m_running)
            m_timer.start(kIdleIntervalMs);
        return;
    }
    emit frameReady(render(now, ++m_frameId));
    if (!m_running)
        return;
    // Frames keep to the rate on average; a source that fell behind by more
    // than a frame starts counting afresh rather than sending a burst.
    const double period = 1000.0 / qMin(now.frameRate, 1000.0);
    const double elapsed = double(m_clock.elapsed());
    m_nextFrameAt += period;
    if (m_nextFrameAt < elapsed - period)
        m_nextFrameAt = elapsed;
    if (!m_timer.isActive())
        m_timer.start(int(qMax(0.0, std::floor(m_nextFrameAt - elapsed))));
}

} // namespace Simulation
