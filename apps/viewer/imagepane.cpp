#include "imagepane.h"

#include "pixelconverter.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QRegion>
#include <QWheelEvent>

#include <cmath>

namespace {

constexpr double kMinimumZoom = 1.0 / 32.0;
constexpr double kMaximumZoom = 64.0;
constexpr double kWheelStep = 1.25;
//! Grey pictures up to this size are painted from an RGB32 copy.
constexpr qint64 kConvertedGreyPixels = 1024 * 1024;

QPointF wheelPosition(const QWheelEvent* event)
{
#if QT_VERSION >= QT_VERSION_CHECK(5, 14, 0)
    return event->position();
#else
    return event->posF();
#endif
}

QPoint mousePosition(const QMouseEvent* event)
{
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
    return event->position().toPoint();
#else
    return event->pos();
#endif
}

} // namespace

ImagePane::ImagePane(QWidget* parent)
    : QWidget(parent)
{
    setObjectName(QStringLiteral("imagePane"));
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    setMinimumSize(160, 120);
    setAttribute(Qt::WA_OpaquePaintEvent);
    m_clock.start();
}

ImagePane::Statistics ImagePane::statistics() const
{
    Statistics statistics = m_statistics;
    const qint64 now = m_clock.elapsed();
    int recent = 0;
    for (const qint64 at : m_arrivals) {
        if (now - at <= 1000)
            ++recent;
    }
    // Frames of the last second; a run shorter than that counts from its first frame.
    if (recent >= 2) {
        const qint64 span = now - m_arrivals.at(m_arrivals.size() - recent);
        statistics.framesPerSecond = span > 0 ? (recent - 1) * 1000.0 / qMax<qint64>(span, 1) : 0.0;
        if (now - m_arrivals.last() > 1000)
            statistics.framesPerSecond = 0.0;
    }
    return statistics;
}

void ImagePane::resetStatistics()
{
    m_statistics = Statistics();
    m_arrivals.clear();
    m_lastFrameId = 0;
}

void ImagePane::setPlaceholderText(const QString& text)
{
    m_placeholder = text;
    update();
}

void ImagePane::clearFrame()
{
    m_data.clear();
    m_image = QImage();
    m_pending = false;
    m_width = m_height = 0;
    m_error.clear();
    update();
}

void ImagePane::setFrame(const QByteArray& data, int width, int height, const QString& pixelFormat, quint64 frameId)
{
    ++m_statistics.received;
    if (m_pending)
        ++m_statistics.dropped;
    if (m_lastFrameId != 0 && frameId > m_lastFrameId + 1)
        m_statistics.missing += frameId - m_lastFrameId - 1;
    m_lastFrameId = frameId;
    const qint64 now = m_clock.elapsed();
    m_arrivals.append(now);
    while (!m_arrivals.isEmpty() && now - m_arrivals.first() > 1000)
        m_arrivals.removeFirst();

    const bool resized = width != m_width || height != m_height;
    m_data = data;
    m_width = width;
    m_height = height;
    m_format = pixelFormat;
    m_frameId = frameId;
    m_pending = true;
    if (resized && !m_fit)
        m_origin = QPointF((this->width() - width * m_zoom) / 2.0, (this->height() - height * m_zoom) / 2.0);
    update();
}

void ImagePane::convertPending()
{
    if (!m_pending)
        return;
    m_pending = false;
    m_error.clear();
    m_image = PixelConverter::toImage(m_data, m_width, m_height, m_format, &m_error);
    // Qt scales RGB32 pictures on its fast path: a small grey picture
    // converted once costs less than one scaled line by line; a large one is
    // painted as it is, without the copy.
    const bool grey = m_image.format() == QImage::Format_Grayscale8 || m_image.format() == QImage::Format_Grayscale16;
    if (grey && qint64(m_image.width()) * m_image.height() <= kConvertedGreyPixels)
        m_image = m_image.convertToFormat(QImage::Format_RGB32);
}

double ImagePane::zoom() const
{
    if (!m_fit)
        return m_zoom;
    if (m_width <= 0 || m_height <= 0)
        return 1.0;
    return qMin(double(width()) / m_width, double(height()) / m_height);
}

QRectF ImagePane::targetRect() const
{
    if (m_width <= 0 || m_height <= 0)
        return QRectF();
    const double factor = zoom();
    const QSizeF size(m_width * factor, m_height * factor);
    if (m_fit)
        return QRectF(QPointF((width() - size.width()) / 2.0, (height() - size.height()) / 2.0), size);
    return QRectF(m_origin, size);
}

QPoint ImagePane::framePixelAt(const QPoint& point) const
{
    const QRectF target = targetRect();
    if (target.isEmpty())
        return QPoint(-1, -1);
    const double factor = zoom();
    return QPoint(
        int(std::floor((point.x() - target.left()) / factor)), int(std::floor((point.y() - target.top()) / factor)));
}

void ImagePane::paintEvent(QPaintEvent*)
{
    const bool fresh = m_pending;
    convertPending();
    QPainter painter(this);
    if (m_image.isNull()) {
        painter.fillRect(rect(), palette().color(QPalette::Dark));
        painter.setPen(palette().color(QPalette::BrightText));
        const QString text = m_error.isEmpty() ? m_placeholder : m_error;
        painter.drawText(rect(), Qt::AlignCenter | Qt::TextWordWrap, text);
        return;
    }
    const QRectF target = targetRect();
    // Only the margins beside the picture are filled: the picture covers the rest.
    const QRegion margins = QRegion(rect()).subtracted(QRegion(target.toAlignedRect().adjusted(1, 1, -1, -1)));
    for (const QRect& margin : margins)
        painter.fillRect(margin, palette().color(QPalette::Dark));
    // Enlarged pixels stay sharp squares; a reduced picture is smoothed.
    painter.setRenderHint(QPainter::SmoothPixmapTransform, zoom() < 1.0);
    painter.drawImage(target, m_image);
    if (hasFocus()) {
        painter.setPen(QPen(palette().color(QPalette::Highlight), 2));
        painter.drawRect(rect().adjusted(1, 1, -1, -1));
    }
    if (fresh) {
        ++m_statistics.shown;
        emit framePainted(m_frameId);
    }
}

void ImagePane::zoomAround(double factor, const QPointF& anchor)
{
    if (m_width <= 0 || m_height <= 0)
        return;
    const QRectF before = targetRect();
    const double oldZoom = zoom();
    const double newZoom = qBound(kMinimumZoom, oldZoom * factor, kMaximumZoom);
    // The frame point under the anchor stays under it.
    const QPointF framePoint = (anchor - before.topLeft()) / oldZoom;
    m_fit = false;
    m_zoom = newZoom;
    m_origin = anchor - framePoint * newZoom;
    update();
    emit zoomChanged();
}

void ImagePane::wheelEvent(QWheelEvent* event)
{
    const int delta = event->angleDelta().y();
    if (delta == 0) {
        event->ignore();
        return;
    }
    zoomAround(std::pow(kWheelStep, delta / 120.0), wheelPosition(event));
    reportPixelAt(wheelPosition(event).toPoint());
    event->accept();
}

void ImagePane::fitToWindow()
{
    m_fit = true;
    update();
    emit zoomChanged();
}

void ImagePane::showActualSize()
{
    const QPointF centre(width() / 2.0, height() / 2.0);
    if (m_width <= 0 || m_height <= 0) {
        m_fit = false;
        m_zoom = 1.0;
        update();
        emit zoomChanged();
        return;
    }
    zoomAround(1.0 / zoom(), centre);
}

void ImagePane::zoomIn()
{
    zoomAround(kWheelStep, QPointF(width() / 2.0, height() / 2.0));
}

void ImagePane::zoomOut()
{
    zoomAround(1.0 / kWheelStep, QPointF(width() / 2.0, height() / 2.0));
}

void ImagePane::reportPixelAt(const QPoint& point)
{
    m_lastMouse = point;
    const QPoint pixel = framePixelAt(point);
    const QString value = PixelConverter::pixelText(m_data, m_width, m_height, m_format, pixel.x(), pixel.y());
    if (value.isEmpty())
        emit pixelHovered(-1, -1, QString());
    else
        emit pixelHovered(pixel.x(), pixel.y(), value);
}

void ImagePane::mouseMoveEvent(QMouseEvent* event)
{
    reportPixelAt(mousePosition(event));
    QWidget::mouseMoveEvent(event);
}

void ImagePane::mousePressEvent(QMouseEvent* event)
{
    setFocus(Qt::MouseFocusReason);
    QWidget::mousePressEvent(event);
}

void ImagePane::leaveEvent(QEvent* event)
{
    m_lastMouse = QPoint(-1, -1);
    emit pixelHovered(-1, -1, QString());
    QWidget::leaveEvent(event);
}

void ImagePane::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Plus:
    case Qt::Key_Equal:
        zoomIn();
        break;
    case Qt::Key_Minus:
        zoomOut();
        break;
    case Qt::Key_0:
        fitToWindow();
        break;
    case Qt::Key_1:
        showActualSize();
        break;
    default:
        QWidget::keyPressEvent(event);
        return;
    }
    event->accept();
}

void ImagePane::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    update();
}
