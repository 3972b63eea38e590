// Aravis's fake GigE Vision camera on the loopback interface, for the tests
// that run it in their own process and reach the internal classes: whether
// the interface is free, and the camera started and found by Aravis's look-up.
#pragma once

#include "cameraskiptestsupport.h"

#include "aravisdevice.h"
#include "fakegigecamera.h"

#include <QString>

#include <memory>

namespace FakeCameraTestSupport {

/*!
 * Why the loopback interface can't be the test's: fake cameras share the GigE
 * Vision port, so with another device already answering there, ours couldn't
 * be told apart from it. Empty when it is free. Looked up once, on the first
 * call, which must come before the test starts a camera of its own
 * (initTestCase() is the place).
 */
inline QString loopbackBusyReason()
{
    static const QString reason = [] {
        for (const Aravis::DeviceInfo& info : Aravis::AravisDevice::listDevices()) {
            if (info.protocol == QLatin1String("GigEVision") && info.address.startsWith(QLatin1String("127.")))
                return QStringLiteral("another GigE Vision device (%1) already answers on the loopback interface")
                    .arg(info.id);
        }
        return QString();
    }();
    return reason;
}

//! A fake camera that answers and that Aravis finds, or why the test can't have one.
struct FakeCamera
{
    std::unique_ptr<Aravis::FakeGigECamera> camera;
    QString deviceId; //!< what AravisDevice::open() takes
    QString skipReason; //!< empty when the camera runs and was found
};

//! Starts a fake camera with that serial number (and GenICam document, if any) on the loopback interface.
inline FakeCamera startFakeCamera(const QString& serial, const QString& genicamFile = QString())
{
    FakeCamera fake;
    fake.skipReason = loopbackBusyReason();
    if (!fake.skipReason.isEmpty())
        return fake;
    fake.camera = std::make_unique<Aravis::FakeGigECamera>(serial, QStringLiteral("lo"), genicamFile);
    if (!fake.camera->isRunning()) {
        fake.skipReason = fake.camera->errorString();
        return fake;
    }
    fake.deviceId = fake.camera->findDeviceId();
    if (fake.deviceId.isEmpty())
        fake.skipReason = QStringLiteral("Aravis's fake GigE Vision camera %1 runs on lo, but "
                                         "arv_update_device_list() does not find it")
                              .arg(serial);
    return fake;
}

} // namespace FakeCameraTestSupport
