#include "simulatedcamera.h"

#include "simulateddevice.h"
#include "simulatedframesource.h"

#include <QMetaObject>

namespace Simulation {

SimulatedCamera::SimulatedCamera(QSharedPointer<SimulatedDevice> device)
    : m_device(std::move(device))
{
    if (!m_device->description().frameSource.isSet())
        return;
    m_frames = new SimulatedFrameSource(m_device, this);
    connect(m_frames, &SimulatedFrameSource::frameReady, this, [this](const SimulatedFrame& frame) {
        emit frameReady(frame.data, frame.width, frame.height, frame.pixelFormat, frame.frameId);
    });
}

bool SimulatedCamera::hasImages() const
{
    return m_frames != nullptr;
}

SimulatedCamera::~SimulatedCamera() = default;

std::unique_ptr<SimulatedCamera> SimulatedCamera::adopt(QSharedPointer<SimulatedDevice> device)
{
    if (!device)
        return nullptr;
    return std::unique_ptr<SimulatedCamera>(new SimulatedCamera(std::move(device)));
}

std::unique_ptr<SimulatedCamera> SimulatedCamera::createDefault(const QString& transportLayerType)
{
    return adopt(SimulatedDevice::createDefault(transportLayerType));
}

std::unique_ptr<SimulatedCamera> SimulatedCamera::fromJson(
    const QByteArray& json, QString* error, const QString& transportLayerType)
{
    QString ignored;
    return adopt(SimulatedDevice::fromJson(json, error ? error : &ignored, transportLayerType));
}

std::unique_ptr<SimulatedCamera> SimulatedCamera::fromFile(
    const QString& path, QString* error, const QString& transportLayerType)
{
    QString ignored;
    return adopt(SimulatedDevice::fromFile(path, error ? error : &ignored, transportLayerType));
}

QStringList SimulatedCamera::defaultTransportLayerTypes()
{
    return { QStringLiteral("GEV"), QStringLiteral("U3V"), QStringLiteral("CXP"), QStringLiteral("CamEmu") };
}

QString SimulatedCamera::transportLayerType() const
{
    return m_device->transportLayerType();
}

QString SimulatedCamera::vendor() const
{
    return m_device->description().vendor;
}

QString SimulatedCamera::model() const
{
    return m_device->description().model;
}

QString SimulatedCamera::serialNumber() const
{
    return m_device->description().serialNumber;
}

QStringList SimulatedCamera::nodeMapNames() const
{
    return m_device->nodeMapNames();
}

QSharedPointer<ParameterCollection::IParameterCollection> SimulatedCamera::nodeMap(const QString& name) const
{
    return m_device->nodeMap(name);
}

QList<NodeMapEntry> SimulatedCamera::nodeMaps() const
{
    QList<NodeMapEntry> entries;
    for (const QString& name : nodeMapNames())
        entries.append({ nodeMap(name), name, name.startsWith(QLatin1Char('@')) ? name.mid(1) : name });
    return entries;
}

QSharedPointer<Plugin::CameraPool::IBaseInfo> SimulatedCamera::baseInfo() const
{
    return m_device->baseInfo();
}

void SimulatedCamera::unplug()
{
    if (!m_device->isPlugged())
        return;
    m_device->unplug();
    // From the event loop, as a real camera's loss arrives: the host may
    // delete its tree in the slot, which it must not do inside a call of it.
    QMetaObject::invokeMethod(
        this, [this] { emit lost(QStringLiteral("the simulated camera was unplugged")); }, Qt::QueuedConnection);
}

void SimulatedCamera::replug()
{
    m_device->replug();
}

bool SimulatedCamera::isPlugged() const
{
    return m_device->isPlugged();
}

void SimulatedCamera::makeWritesFail(const QString& fullName)
{
    for (Operation operation : { Operation::SetValueFromString, Operation::SetValue, Operation::Execute })
        m_device->injectFault(fullName, operation, FaultKind::StdException);
}

void SimulatedCamera::clearFaults()
{
    m_device->clearFaults();
}

bool SimulatedCamera::changeOnDevice(const QString& fullName, const QVariant& value)
{
    return m_device->changeOnDevice(fullName, value);
}

} // namespace Simulation
