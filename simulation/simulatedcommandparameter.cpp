#include "simulatedcommandparameter.h"

namespace Simulation {

SimulatedCommandParameter::SimulatedCommandParameter(
    QSharedPointer<DeviceState> state, const FeatureRef& ref, const QString& fullName, const QString& name)
    : SimulatedParameter(std::move(state), ref, fullName, name)
{
}

SimulatedCommandParameter::~SimulatedCommandParameter() = default;

void SimulatedCommandParameter::setCommandPending(bool pending)
{
    m_state->setCommandPending(m_ref, m_fullName, pending);
}

void SimulatedCommandParameter::execute(bool verify)
{
    Q_UNUSED(verify)
    m_state->execute(m_ref, m_fullName);
}

} // namespace Simulation
