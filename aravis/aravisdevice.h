#pragma once

#include "araviscamera.h"

#include "parameters/ibaseinfo.h"
#include "parameters/iparametercollection.h"

#include <QList>
#include <QSharedPointer>
#include <QString>
#include <QStringList>

struct _ArvDevice;

namespace Aravis {

class AravisNodeMap;

//! A camera that Aravis found, as arv_update_device_list() lists it.
using DeviceInfo = CameraInfo;

/*!
 * One camera opened through Aravis (GigE Vision or USB3 Vision), or a
 * GenICam document of our own loaded into an in-memory device. Its node maps
 * are parameter collections; so far Aravis gives one, the camera's own, as
 * "@CameraDevice". The collections and parameters hold the device themselves,
 * so a host may drop this object first.
 */
class AravisDevice
{
public:
    ~AravisDevice();
    AravisDevice(const AravisDevice&) = delete;
    AravisDevice& operator=(const AravisDevice&) = delete;

    //! Looks for cameras on every interface Aravis knows and lists them.
    static QList<DeviceInfo> listDevices();

    /*!
     * Opens a camera by its Aravis id (an empty id opens the first one found).
     * Gives null and sets error (Aravis's message) when that fails.
     */
    static QSharedPointer<AravisDevice> open(const QString& id, QString* error = nullptr);

    /*!
     * Loads a GenICam document into an in-memory device whose registers all
     * start at 0. Gives null and sets error when the document doesn't parse or
     * has no Root category.
     */
    static QSharedPointer<AravisDevice> fromGenICamXml(
        const QByteArray& xml, QString* error = nullptr, const QString& transportLayerType = QStringLiteral("Custom"));

    QString id() const { return m_id; }
    //! What the look-up said about the camera; for a document of our own only id and transport-layer type.
    DeviceInfo info() const { return m_info; }
    QString transportLayerType() const { return m_transportLayerType; }
    QStringList nodeMapNames() const;
    //! The node map by name ("@CameraDevice"), or null.
    QSharedPointer<AravisNodeMap> nodeMap(const QString& name) const;
    QSharedPointer<Plugin::CameraPool::IBaseInfo> baseInfo() const { return m_baseInfo; }
    //! The Aravis device itself, for callers that talk to Aravis directly.
    _ArvDevice* arvDevice() const { return m_device; }

private:
    AravisDevice(_ArvDevice* device, const QString& id, const QString& transportLayerType, QString* error);

    _ArvDevice* m_device = nullptr;
    QString m_id;
    DeviceInfo m_info;
    QString m_transportLayerType;
    QSharedPointer<AravisNodeMap> m_cameraNodeMap;
    QSharedPointer<Plugin::CameraPool::IBaseInfo> m_baseInfo;
};

//! The transport-layer type text for an Aravis protocol name.
QString transportLayerTypeOf(const QString& protocol);

} // namespace Aravis
