#include "arvglib.h"

#include "aravisdevice.h"

#include "aravisbaseinfo.h"
#include "aravisnodemap.h"
#include "nodemapstate.h"
#include "sparsememorydevice.h"

#include "parameters/ibaseinfo.h"

namespace Aravis {

namespace {

const QString cameraNodeMapName = QStringLiteral("@CameraDevice");

QString text(const char* value)
{
    return value ? QString::fromUtf8(value) : QString();
}

} // namespace

QString transportLayerTypeOf(const QString& protocol)
{
    if (protocol == QLatin1String("GigEVision"))
        return QString::fromLatin1(Plugin::CameraPool::TLTypeGigE);
    if (protocol == QLatin1String("USB3Vision"))
        return QString::fromLatin1(Plugin::CameraPool::TLTypeUSB);
    if (protocol == QLatin1String("Fake"))
        return QString::fromLatin1(Plugin::CameraPool::TLTypeCamEmu);
    return QString::fromLatin1(Plugin::CameraPool::TLTypeCustom);
}

AravisDevice::AravisDevice(_ArvDevice* device, const QString& id, const QString& transportLayerType, QString* error)
    : m_device(device)
    , m_id(id)
    , m_transportLayerType(transportLayerType)
    , m_baseInfo(new AravisBaseInfo(transportLayerType))
{
    size_t size = 0;
    const char* xml = arv_device_get_genicam_xml(m_device, &size);
    if (!xml || size == 0) {
        *error = QStringLiteral("the device gives no GenICam document");
        return;
    }
    QSharedPointer<NodeMapState> state(new NodeMapState(m_device, cameraNodeMapName, QByteArray(xml, int(size))));
    if (!state->xmlIndex().isValid()) {
        *error = state->xmlIndex().errorString();
        return;
    }
    const QString rootProblem = state->xmlIndex().problem(QStringLiteral("Root"));
    if (!rootProblem.isEmpty()) {
        *error = QStringLiteral("the GenICam document's Root category is unusable: %1").arg(rootProblem);
        return;
    }
    if (!arv_device_get_genicam(m_device) || !state->hasParameter(QStringLiteral("Root"))) {
        *error = QStringLiteral("the GenICam document has no Root category");
        return;
    }
    if (const int problems = state->xmlIndex().problemCount())
        qWarning("The GenICam document of %s has %d nodes that can't be used and are left out; %s", qPrintable(id),
            problems, qPrintable(state->xmlIndex().firstProblem()));
    m_cameraNodeMap.reset(new AravisNodeMap(state));
}

AravisDevice::~AravisDevice()
{
    m_cameraNodeMap.reset();
    if (m_device)
        g_object_unref(m_device);
}

namespace {

// The devices of Aravis's last look-up, without looking again.
QList<DeviceInfo> knownDevices()
{
    QList<DeviceInfo> devices;
    const unsigned int count = arv_get_n_devices();
    for (unsigned int i = 0; i < count; ++i) {
        DeviceInfo info;
        info.id = text(arv_get_device_id(i));
        info.vendor = text(arv_get_device_vendor(i));
        info.model = text(arv_get_device_model(i));
        info.serialNumber = text(arv_get_device_serial_nbr(i));
        info.protocol = text(arv_get_device_protocol(i));
        info.address = text(arv_get_device_address(i));
        info.transportLayerType = transportLayerTypeOf(info.protocol);
        devices.append(info);
    }
    return devices;
}

const DeviceInfo* findDevice(const QList<DeviceInfo>& devices, const QString& id)
{
    for (const DeviceInfo& info : devices)
        if (id.isEmpty() || info.id == id)
            return &info;
    return nullptr;
}

} // namespace

QList<DeviceInfo> AravisDevice::listDevices()
{
    arv_update_device_list();
    return knownDevices();
}

QSharedPointer<AravisDevice> AravisDevice::open(const QString& id, QString* error)
{
    QString ignored;
    QString& message = error ? *error : ignored;
    // A camera found by the last look-up is opened without looking again (a
    // GigE Vision look-up waits a second for answers).
    QList<DeviceInfo> devices = knownDevices();
    bool fresh = false;
    const DeviceInfo* found = findDevice(devices, id);
    if (!found) {
        devices = listDevices();
        fresh = true;
        found = findDevice(devices, id);
    }
    if (!found) {
        message = id.isEmpty() ? QStringLiteral("Aravis found no camera")
                               : QStringLiteral("Aravis found no camera %1").arg(id);
        return {};
    }
    DeviceInfo chosenInfo = *found;
    QString chosen = found->id;
    QString protocol = found->protocol;
    GError* gerror = nullptr;
    ArvDevice* device = arv_open_device(chosen.toUtf8().constData(), &gerror);
    if (!device && !fresh) {
        // The last look-up may be stale: look again before giving up.
        g_clear_error(&gerror);
        devices = listDevices();
        if ((found = findDevice(devices, id))) {
            chosenInfo = *found;
            chosen = found->id;
            protocol = found->protocol;
            device = arv_open_device(chosen.toUtf8().constData(), &gerror);
        }
    }
    if (!device) {
        message = gerror ? QString::fromUtf8(gerror->message) : QStringLiteral("Aravis could not open %1").arg(chosen);
        if (gerror)
            g_error_free(gerror);
        return {};
    }
    message.clear();
    QSharedPointer<AravisDevice> opened(new AravisDevice(device, chosen, transportLayerTypeOf(protocol), &message));
    if (!opened->m_cameraNodeMap)
        return {};
    opened->m_info = chosenInfo;
    return opened;
}

QSharedPointer<AravisDevice> AravisDevice::fromGenICamXml(
    const QByteArray& xml, QString* error, const QString& transportLayerType)
{
    QString ignored;
    QString& message = error ? *error : ignored;
    message.clear();
    // Aravis's own parser is lenient; ours tells first whether the document is XML at all.
    const GenICamXmlIndex index(xml);
    if (!index.isValid()) {
        message = index.errorString();
        return {};
    }
    QSharedPointer<AravisDevice> loaded(
        new AravisDevice(createSparseMemoryDevice(xml), QStringLiteral("memory"), transportLayerType, &message));
    if (!loaded->m_cameraNodeMap)
        return {};
    loaded->m_info.id = loaded->m_id;
    loaded->m_info.transportLayerType = transportLayerType;
    return loaded;
}

QStringList AravisDevice::nodeMapNames() const
{
    return m_cameraNodeMap ? QStringList { cameraNodeMapName } : QStringList();
}

QSharedPointer<AravisNodeMap> AravisDevice::nodeMap(const QString& name) const
{
    return name == cameraNodeMapName ? m_cameraNodeMap : QSharedPointer<AravisNodeMap>();
}

} // namespace Aravis
