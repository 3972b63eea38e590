#include "araviscommandparameter.h"

namespace Aravis {

AravisCommandParameter::AravisCommandParameter(
    QSharedPointer<NodeMapState> state, int index, const QString& fullName, const QString& name)
    : AravisParameter(std::move(state), index, fullName, name)
{
}

AravisCommandParameter::~AravisCommandParameter() = default;

void AravisCommandParameter::setCommandPending(bool pending)
{
    // Only the user interface's mark; the device keeps no pending state of ours.
    Q_UNUSED(pending)
    checked();
}

void AravisCommandParameter::execute(bool verify)
{
    Q_UNUSED(verify) // Aravis reports a failed write itself
    m_state->execute(m_index, m_fullName);
}

} // namespace Aravis
