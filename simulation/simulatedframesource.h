#pragma once

#include "expression.h"
#include "simulatedframe.h"

#include <QElapsedTimer>
#include <QHash>
#include <QObject>
#include <QSharedPointer>
#include <QTimer>
#include <QVector>

namespace Simulation {

class SimulatedDevice;

/*!
 * The pictures of a simulated camera. It reads the quantities its device's
 * description names (size, offsets, pixel format, mirroring, test pattern,
 * frame rate, brightness) through expressions over the camera's own
 * features, and while the camera acquires it sends a frame at the frame
 * rate. Lives in the thread that made it; frames come from its timer.
 */
class SimulatedFrameSource : public QObject
{
    Q_OBJECT

public:
    //! What one frame looks like, read from the camera's features.
    struct Settings
    {
        bool acquiring = false;
        int width = 0;
        int height = 0;
        int offsetX = 0;
        int offsetY = 0;
        QString pixelFormat;
        bool reverseX = false;
        bool reverseY = false;
        QString testPattern;
        double frameRate = 0.0;
        double brightness = 1.0; //!< 1: the scene as it is
        int sensorWidth = 0;
        int sensorHeight = 0;
    };

    //! A source for the device's description; isValid() false if the description has none.
    explicit SimulatedFrameSource(QSharedPointer<SimulatedDevice> device, QObject* parent = nullptr);
    ~SimulatedFrameSource() override;

    bool isValid() const { return m_valid; }
    //! The quantities as the camera's features give them now.
    Settings settings() const;
    //! Makes the frame with that id for the settings, without sending it.
    static SimulatedFrame render(const Settings& settings, quint64 frameId);
    //! True for the pixel formats render() makes; for others it gives a frame without data.
    static bool canRender(const QString& pixelFormat);

    //! Frames sent since the source was made.
    quint64 framesSent() const { return m_frameId; }
    //! While running, the source watches the camera and sends frames when it acquires; it runs from construction.
    void setRunning(bool running);
    bool isRunning() const { return m_running; }

signals:
    void frameReady(const Simulation::SimulatedFrame& frame);
    //! The camera began (true) or ended (false) its acquisition.
    void acquisitionChanged(bool acquiring);

private:
    void tick();

    QSharedPointer<SimulatedDevice> m_device;
    QString m_nodeMap;
    QHash<QString, Expression> m_expressions;
    bool m_valid = false;
    bool m_acquiring = false;
    bool m_running = false;
    quint64 m_frameId = 0;
    QTimer m_timer;
    QElapsedTimer m_clock;
    double m_nextFrameAt = 0.0; //!< milliseconds on m_clock
};

} // namespace Simulation
