#include "araviscamera.h"

#include "aravisdevice.h"
#include "aravisnodemap.h"

namespace Aravis {

AravisCamera::AravisCamera(QSharedPointer<AravisDevice> device)
    : m_device(std::move(device))
{
    for (const QString& name : m_device->nodeMapNames()) {
        // Every node map of the device finds it gone together; the first word of it is enough.
        connect(m_device->nodeMap(name).data(), &AravisNodeMap::lost, this, [this](const QString& reason) {
            if (m_lostAnnounced)
                return;
            m_lostAnnounced = true;
            emit lost(reason);
        });
    }
}

AravisCamera::~AravisCamera() = default;

QList<CameraInfo> AravisCamera::listCameras()
{
    return AravisDevice::listDevices();
}

std::unique_ptr<AravisCamera> AravisCamera::open(const QString& id, QString* error)
{
    QSharedPointer<AravisDevice> device = AravisDevice::open(id, error);
    if (!device)
        return nullptr;
    return std::unique_ptr<AravisCamera>(new AravisCamera(std::move(device)));
}

CameraInfo AravisCamera::info() const
{
    return m_device->info();
}

QString AravisCamera::id() const
{
    return m_device->id();
}

QString AravisCamera::transportLayerType() const
{
    return m_device->transportLayerType();
}

QStringList AravisCamera::nodeMapNames() const
{
    return m_device->nodeMapNames();
}

QSharedPointer<ParameterCollection::IParameterCollection> AravisCamera::nodeMap(const QString& name) const
{
    return m_device->nodeMap(name);
}

QList<NodeMapEntry> AravisCamera::nodeMaps() const
{
    QList<NodeMapEntry> entries;
    for (const QString& name : nodeMapNames())
        entries.append({ nodeMap(name), name, name.startsWith(QLatin1Char('@')) ? name.mid(1) : name });
    return entries;
}

QSharedPointer<Plugin::CameraPool::IBaseInfo> AravisCamera::baseInfo() const
{
    return m_device->baseInfo();
}

bool AravisCamera::isLost() const
{
    for (const QString& name : m_device->nodeMapNames())
        if (m_device->nodeMap(name)->isLost())
            return true;
    return false;
}

} // namespace Aravis
