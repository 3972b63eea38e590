#include "simulatedadvancedaccess.h"

namespace Simulation {

SimulatedAdvancedAccess::SimulatedAdvancedAccess(
    QSharedPointer<DeviceState> state, const FeatureRef& ref, const QString& fullName)
    : m_state(std::move(state))
    , m_ref(ref)
    , m_fullName(fullName)
{
}

SimulatedAdvancedAccess::~SimulatedAdvancedAccess() = default;

QString SimulatedAdvancedAccess::getProperty(QString key) const
{
    return getProperty(key, QString());
}

QString SimulatedAdvancedAccess::getProperty(QString key, QString defaultValue) const
{
    bool present = false;
    if (key == QLatin1String("SelectedFeatures")) {
        // The device's own checks first (faults, unplugged, unknown name), by asking for the name.
        m_state->getProperty(m_ref, m_fullName, QStringLiteral("Name"), &present);
        if (m_ref.alias)
            return defaultValue;
        const DeviceDescription& device = m_state->description();
        const NodeMapDescription& map = device.nodeMaps.at(m_ref.map);
        const QStringList names = selectedFeatureNames(map, m_ref.feature, m_state->transportLayerType());
        return names.isEmpty() ? defaultValue : names.join(QLatin1Char(','));
    }
    const QString value = m_state->getProperty(m_ref, m_fullName, key, &present);
    return present ? value : defaultValue;
}

void SimulatedAdvancedAccess::setProperty(QString key, QString value)
{
    m_state->setProperty(m_ref, m_fullName, key, value);
}

} // namespace Simulation
