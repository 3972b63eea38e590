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
    bool present = false;
    const QString value = m_state->getProperty(m_ref, m_fullName, key, &present);
    return present ? value : QString();
}

QString SimulatedAdvancedAccess::getProperty(QString key, QString defaultValue) const
{
    bool present = false;
    const QString value = m_state->getProperty(m_ref, m_fullName, key, &present);
    return present ? value : defaultValue;
}

void SimulatedAdvancedAccess::setProperty(QString key, QString value)
{
    m_state->setProperty(m_ref, m_fullName, key, value);
}

} // namespace Simulation
