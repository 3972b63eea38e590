#pragma once

#include <QByteArray>
#include <QElapsedTimer>
#include <QImage>
#include <QVector>
#include <QWidget>

/*!
 * The picture of the open camera. Frames arrive raw (setFrame); only the
 * latest is kept, and it is converted when painted, so a frame that a newer
 * one replaces before the next paint is dropped, and counted. Fits the
 * picture to the pane or shows it at a zoom factor (100 %: one pixel per
 * pixel), zoomed with the wheel around the cursor; tells the position and raw
 * value of the pixel under the cursor.
 */
class ImagePane : public QWidget
{
    Q_OBJECT

public:
    explicit ImagePane(QWidget* parent = nullptr);

    //! Frames received, shown, dropped before shown, and missing from the camera's count.
    struct Statistics
    {
        quint64 received = 0;
        quint64 shown = 0;
        quint64 dropped = 0;
        quint64 missing = 0;
        double framesPerSecond = 0.0;
        quint64 lost() const { return dropped + missing; }
    };

    Statistics statistics() const;
    void resetStatistics();

    bool isFitting() const { return m_fit; }
    //! The factor from frame pixels to pane pixels, as painted now.
    double zoom() const;
    //! The frame pixel under a point of the pane; outside the frame when the point is beside it.
    QPoint framePixelAt(const QPoint& point) const;
    //! The last frame's image, converted; null before the first frame.
    QImage currentImage() const { return m_image; }
    //! A text when there is no picture ("No camera", "Acquisition stopped", ...).
    void setPlaceholderText(const QString& text);
    QString placeholderText() const { return m_placeholder; }
    //! Shows nothing but the placeholder until the next frame.
    void clearFrame();

public slots:
    void setFrame(const QByteArray& data, int width, int height, const QString& pixelFormat, quint64 frameId);
    void fitToWindow();
    void showActualSize();
    void zoomIn();
    void zoomOut();

signals:
    //! The cursor is over (x, y) of the frame, whose raw value reads value; x -1 when it left the frame.
    void pixelHovered(int x, int y, const QString& value);
    //! A frame was painted for the first time.
    void framePainted(quint64 frameId);
    //! Fit or zoom changed.
    void zoomChanged();

protected:
    void paintEvent(QPaintEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    //! Where the frame is painted in the pane.
    QRectF targetRect() const;
    void zoomAround(double factor, const QPointF& anchor);
    void convertPending();
    void reportPixelAt(const QPoint& point);

    QByteArray m_data;
    int m_width = 0;
    int m_height = 0;
    QString m_format;
    quint64 m_frameId = 0;
    quint64 m_lastFrameId = 0;
    bool m_pending = false; //!< a frame arrived that is not converted yet
    QImage m_image;
    QString m_error;
    QString m_placeholder;

    bool m_fit = true;
    double m_zoom = 1.0;
    QPointF m_origin; //!< top left of the frame in the pane when not fitting

    Statistics m_statistics;
    QVector<qint64> m_arrivals; //!< milliseconds of the last second's frames
    QElapsedTimer m_clock;
    QPoint m_lastMouse { -1, -1 };
};
