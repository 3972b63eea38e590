#include "arvglib.h"

#include "fakegigecamera.h"

#include "aravisdevice.h"

namespace Aravis {

FakeGigECamera::FakeGigECamera(const QString& serialNumber, const QString& interfaceName, const QString& genicamFile)
    : m_serialNumber(serialNumber)
{
    const QByteArray interface = interfaceName.toUtf8();
    const QByteArray serial = serialNumber.toUtf8();
    if (genicamFile.isEmpty())
        m_camera = arv_gv_fake_camera_new(interface.constData(), serial.constData());
    else
        m_camera
            = arv_gv_fake_camera_new_full(interface.constData(), serial.constData(), genicamFile.toUtf8().constData());
    if (!m_camera)
        m_error = QStringLiteral("Aravis could not create its fake GigE Vision camera on %1").arg(interfaceName);
    else if (!arv_gv_fake_camera_is_running(m_camera))
        m_error = QStringLiteral("Aravis's fake GigE Vision camera did not start on %1 (is the interface up, is "
                                 "port 3956 free?)")
                      .arg(interfaceName);
}

FakeGigECamera::~FakeGigECamera()
{
    stop();
}

bool FakeGigECamera::isRunning() const
{
    return m_camera && arv_gv_fake_camera_is_running(m_camera);
}

void FakeGigECamera::stop()
{
    if (m_camera) {
        g_object_unref(m_camera);
        m_camera = nullptr;
    }
}

QString FakeGigECamera::findDeviceId() const
{
    for (const DeviceInfo& info : AravisDevice::listDevices()) {
        if (info.serialNumber == m_serialNumber && info.protocol == QLatin1String("GigEVision"))
            return info.id;
    }
    return QString();
}

} // namespace Aravis
