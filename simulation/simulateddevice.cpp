#include "simulateddevice.h"

#include "devicestate.h"
#include "simulatedbaseinfo.h"

#include <QFile>

// The resources of a static library have to be registered by hand.
static void initSimulationResources()
{
    Q_INIT_RESOURCE(simulation);
}

namespace Simulation {

SimulatedDevice::SimulatedDevice(QSharedPointer<DeviceState> state)
    : m_state(std::move(state))
{
    const QStringList names = m_state->nodeMapNames();
    for (int i = 0; i < names.size(); ++i)
        m_nodeMaps.append(QSharedPointer<SimulatedNodeMap>(new SimulatedNodeMap(m_state, i)));
    const DeviceDescription& d = m_state->description();
    m_baseInfo.reset(new SimulatedBaseInfo(m_state->transportLayerType(), d.vendor, d.model, d.serialNumber));
}

SimulatedDevice::~SimulatedDevice() = default;

QSharedPointer<SimulatedDevice> SimulatedDevice::createDefault(const QString& tlType)
{
    QString error;
    QSharedPointer<SimulatedDevice> device
        = fromFile(QStringLiteral(":/simulation/devices/default-camera.json"), &error, tlType);
    if (!device)
        qWarning("The default simulated camera is refused: %s", qPrintable(error));
    return device;
}

QSharedPointer<SimulatedDevice> SimulatedDevice::fromJson(const QByteArray& json, QString* error, const QString& tlType)
{
    DeviceDescription description;
    if (!DeviceDescription::fromJson(json, &description, error))
        return {};
    return fromDescription(description, tlType, error);
}

QSharedPointer<SimulatedDevice> SimulatedDevice::fromFile(const QString& path, QString* error, const QString& tlType)
{
    initSimulationResources();
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        if (error)
            *error = QStringLiteral("%1: %2").arg(path, file.errorString());
        return {};
    }
    return fromJson(file.readAll(), error, tlType);
}

QSharedPointer<SimulatedDevice> SimulatedDevice::fromDescription(
    const DeviceDescription& description, const QString& tlType, QString* error)
{
    QSharedPointer<DeviceState> state = DeviceState::build(description, tlType, error);
    if (!state)
        return {};
    return QSharedPointer<SimulatedDevice>(new SimulatedDevice(state));
}

QStringList SimulatedDevice::nodeMapNames() const
{
    return m_state->nodeMapNames();
}

QSharedPointer<SimulatedNodeMap> SimulatedDevice::nodeMap(const QString& name) const
{
    for (const auto& map : m_nodeMaps)
        if (map->name() == name)
            return map;
    return {};
}

QSharedPointer<Plugin::CameraPool::IBaseInfo> SimulatedDevice::baseInfo() const
{
    return m_baseInfo;
}

QString SimulatedDevice::transportLayerType() const
{
    return m_state->transportLayerType();
}

const DeviceDescription& SimulatedDevice::description() const
{
    return m_state->description();
}

void SimulatedDevice::unplug()
{
    m_state->setPlugged(false);
}

void SimulatedDevice::replug()
{
    m_state->setPlugged(true);
}

bool SimulatedDevice::isPlugged() const
{
    return m_state->isPlugged();
}

void SimulatedDevice::injectFault(const QString& target, Operation op, FaultKind kind, int times)
{
    m_state->injectFault(target, op, kind, times);
}

void SimulatedDevice::clearFaults()
{
    m_state->clearFaults();
}

void SimulatedDevice::setNullSnapshot(const QString& fullName, bool on)
{
    m_state->setNullSnapshot(fullName, on);
}

void SimulatedDevice::setDeliveryThread(QThread* thread)
{
    m_state->setDeliveryThread(thread);
}

bool SimulatedDevice::changeOnDevice(const QString& fullName, const QVariant& value)
{
    return m_state->changeOnDevice(fullName, value);
}

qint64 SimulatedDevice::clockMilliseconds() const
{
    return m_state->clockMilliseconds();
}

ExpressionValue SimulatedDevice::evaluate(const QString& nodeMap, const Expression& expression) const
{
    return m_state->evaluateExpression(nodeMap, expression);
}

} // namespace Simulation
