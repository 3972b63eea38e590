#include "aravisintegerparameter.h"

namespace Aravis {

AravisIntegerParameter::AravisIntegerParameter(
    QSharedPointer<NodeMapState> state, int index, const QString& fullName, const QString& name)
    : AravisParameter(std::move(state), index, fullName, name)
{
}

AravisIntegerParameter::~AravisIntegerParameter() = default;

void AravisIntegerParameter::setValue(qint64 value, bool verify)
{
    Q_UNUSED(verify) // every write is checked against range and increment
    m_state->setInteger(m_index, m_fullName, value);
}

qint64 AravisIntegerParameter::getValue() const
{
    return m_state->integerValue(m_index, m_fullName, NodeMapState::Value);
}

qint64 AravisIntegerParameter::getMinimum() const
{
    return m_state->integerValue(m_index, m_fullName, NodeMapState::Minimum);
}

qint64 AravisIntegerParameter::getMaximum() const
{
    return m_state->integerValue(m_index, m_fullName, NodeMapState::Maximum);
}

} // namespace Aravis
