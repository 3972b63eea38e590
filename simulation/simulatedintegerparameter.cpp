#include "simulatedintegerparameter.h"

namespace Simulation {

SimulatedIntegerParameter::SimulatedIntegerParameter(
    QSharedPointer<DeviceState> state, const FeatureRef& ref, const QString& fullName, const QString& name)
    : SimulatedParameter(std::move(state), ref, fullName, name)
{
}

SimulatedIntegerParameter::~SimulatedIntegerParameter() = default;

void SimulatedIntegerParameter::setValue(qint64 value, bool verify)
{
    Q_UNUSED(verify) // every write is checked against range and increment
    m_state->setInteger(m_ref, m_fullName, value);
}

qint64 SimulatedIntegerParameter::getValue() const
{
    return m_state->getInteger(m_ref, m_fullName, Operation::GetValue);
}

qint64 SimulatedIntegerParameter::getMinimum() const
{
    return m_state->getInteger(m_ref, m_fullName, Operation::GetMinimum);
}

qint64 SimulatedIntegerParameter::getMaximum() const
{
    return m_state->getInteger(m_ref, m_fullName, Operation::GetMaximum);
}

} // namespace Simulation
