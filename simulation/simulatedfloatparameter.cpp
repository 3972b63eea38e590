#include "simulatedfloatparameter.h"

namespace Simulation {

SimulatedFloatParameter::SimulatedFloatParameter(
    QSharedPointer<DeviceState> state, const FeatureRef& ref, const QString& fullName, const QString& name)
    : SimulatedParameter(std::move(state), ref, fullName, name)
{
}

SimulatedFloatParameter::~SimulatedFloatParameter() = default;

void SimulatedFloatParameter::setValue(double value)
{
    m_state->setFloat(m_ref, m_fullName, value);
}

double SimulatedFloatParameter::getValue() const
{
    return m_state->getFloat(m_ref, m_fullName, Operation::GetValue);
}

double SimulatedFloatParameter::getMinimum() const
{
    return m_state->getFloat(m_ref, m_fullName, Operation::GetMinimum);
}

double SimulatedFloatParameter::getMaximum() const
{
    return m_state->getFloat(m_ref, m_fullName, Operation::GetMaximum);
}

} // namespace Simulation
