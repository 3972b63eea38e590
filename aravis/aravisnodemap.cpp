#include "aravisnodemap.h"

#include "nodemapstate.h"

namespace Aravis {

AravisNodeMap::AravisNodeMap(QSharedPointer<NodeMapState> state, QObject* parent)
    : IParameterCollection(parent)
    , m_state(std::move(state))
{
    connect(m_state.data(), &NodeMapState::lost, this, &AravisNodeMap::lost);
}

AravisNodeMap::~AravisNodeMap() = default;

QString AravisNodeMap::name() const
{
    return m_state->nodeMapName();
}

bool AravisNodeMap::isLost() const
{
    return m_state->isLost();
}

QSharedPointer<ParameterCollection::IParameter> AravisNodeMap::getParameter(QString fullName)
{
    return m_state->parameter(fullName);
}

bool AravisNodeMap::hasParameter(QString fullName) const
{
    return m_state->hasParameter(fullName);
}

QList<QString> AravisNodeMap::getChildNames(QString fullName, bool recursive, bool presentationOrder) const
{
    return m_state->childNames(fullName, recursive, presentationOrder);
}

void AravisNodeMap::refreshAll()
{
    m_state->refreshLive();
}

void AravisNodeMap::poll(qint64 elapsedMilliseconds)
{
    // Aravis has no clock of its own to advance: every poll reads what is held.
    Q_UNUSED(elapsedMilliseconds)
    m_state->refreshLive();
}

} // namespace Aravis
