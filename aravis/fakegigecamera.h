#pragma once

#include <QString>

struct _ArvGvFakeCamera;

namespace Aravis {

/*!
 * Aravis's own simulated GigE Vision camera, answering on a network interface
 * of this host (the loopback interface "lo" by default) from a thread of
 * Aravis's, until stop() or destruction. It lets the node map be tested
 * against a device that speaks the real protocol.
 */
class FakeGigECamera
{
public:
    //! Starts the camera; isRunning() tells whether it did, errorString() why not.
    explicit FakeGigECamera(const QString& serialNumber, const QString& interfaceName = QStringLiteral("lo"),
        const QString& genicamFile = QString());
    ~FakeGigECamera();
    FakeGigECamera(const FakeGigECamera&) = delete;
    FakeGigECamera& operator=(const FakeGigECamera&) = delete;

    bool isRunning() const;
    QString errorString() const { return m_error; }
    QString serialNumber() const { return m_serialNumber; }
    //! Stops answering; a device opened on it then times out.
    void stop();
    //! Looks the camera up with arv_update_device_list() and gives its Aravis id, or empty.
    QString findDeviceId() const;

private:
    _ArvGvFakeCamera* m_camera = nullptr;
    QString m_serialNumber;
    QString m_error;
};

} // namespace Aravis
