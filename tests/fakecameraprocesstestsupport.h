// Aravis's fake GigE Vision camera in a process of its own
// (zarvex-fake-gv-camera, ZVC_FAKE_CAMERA_EXECUTABLE), for the tests that link
// the installed components as a host does: those hold their own copy of the
// internals, which must not meet a second one, the fake camera's, in the same
// process. The camera is found through the public AravisCamera::listCameras().
#pragma once

#include "cameraskiptestsupport.h"

#include "araviscamera.h"

#include <QProcess>
#include <QString>
#include <QStringList>

namespace FakeCameraTestSupport {

class FakeCameraProcess
{
public:
    //! Starts the camera with that serial number and looks for it; skipReason() says why when it isn't found.
    explicit FakeCameraProcess(const QString& serial)
        : m_serial(serial)
    {
        m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        m_process.start(QStringLiteral(ZVC_FAKE_CAMERA_EXECUTABLE), { QStringLiteral("--serial"), serial });
        if (!m_process.waitForStarted()) {
            m_skipReason = QStringLiteral("zarvex-fake-gv-camera does not start: %1").arg(m_process.errorString());
            return;
        }
        // A look-up waits about a second for answers; the camera may need more than one to be up.
        for (int attempt = 0; attempt < 5 && m_id.isEmpty() && m_process.state() == QProcess::Running; ++attempt) {
            for (const Aravis::CameraInfo& info : Aravis::AravisCamera::listCameras()) {
                if (info.serialNumber == serial && info.protocol == QLatin1String("GigEVision"))
                    m_id = info.id;
            }
        }
        if (m_id.isEmpty())
            m_skipReason = QStringLiteral("Aravis's fake GigE Vision camera %1 can't be reached on the loopback "
                                          "interface here")
                               .arg(serial);
    }
    ~FakeCameraProcess() { kill(); }
    FakeCameraProcess(const FakeCameraProcess&) = delete;
    FakeCameraProcess& operator=(const FakeCameraProcess&) = delete;

    //! The camera's Aravis id, as AravisCamera::open() takes it; empty when it wasn't found.
    QString id() const { return m_id; }
    QString serialNumber() const { return m_serial; }
    //! Why a test can't run on the camera; empty when it can.
    QString skipReason() const { return m_skipReason; }
    //! The camera goes away at once, as one unplugged does.
    void kill()
    {
        if (m_process.state() != QProcess::NotRunning) {
            m_process.kill();
            m_process.waitForFinished();
        }
    }

private:
    QProcess m_process;
    QString m_serial;
    QString m_id;
    QString m_skipReason;
};

} // namespace FakeCameraTestSupport
