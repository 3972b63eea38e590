#include "aravisfloatparameter.h"

namespace Aravis {

AravisFloatParameter::AravisFloatParameter(
    QSharedPointer<NodeMapState> state, int index, const QString& fullName, const QString& name)
    : AravisParameter(std::move(state), index, fullName, name)
{
}

AravisFloatParameter::~AravisFloatParameter() = default;

void AravisFloatParameter::setValue(double value)
{
    m_state->setFloat(m_index, m_fullName, value);
}

double AravisFloatParameter::getValue() const
{
    return m_state->floatValue(m_index, m_fullName, NodeMapState::Value);
}

double AravisFloatParameter::getMinimum() const
{
    return m_state->floatValue(m_index, m_fullName, NodeMapState::Minimum);
}

double AravisFloatParameter::getMaximum() const
{
    return m_state->floatValue(m_index, m_fullName, NodeMapState::Maximum);
}

} // namespace Aravis
