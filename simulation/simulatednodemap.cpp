#include "simulatednodemap.h"

#include "devicestate.h"

namespace Simulation {

SimulatedNodeMap::SimulatedNodeMap(QSharedPointer<DeviceState> state, int index, QObject* parent)
    : IParameterCollection(parent)
    , m_state(std::move(state))
    , m_index(index)
    , m_name(m_state->nodeMapNames().value(index))
{
}

SimulatedNodeMap::~SimulatedNodeMap() = default;

QSharedPointer<ParameterCollection::IParameter> SimulatedNodeMap::getParameter(QString fullName)
{
    return m_state->getParameter(m_index, fullName);
}

bool SimulatedNodeMap::hasParameter(QString fullName) const
{
    return m_state->hasParameter(m_index, fullName);
}

QList<QString> SimulatedNodeMap::getChildNames(QString fullName, bool recursive, bool presentationOrder) const
{
    return m_state->getChildNames(m_index, fullName, recursive, presentationOrder);
}

void SimulatedNodeMap::refreshAll()
{
    m_state->refreshAll(m_index);
}

void SimulatedNodeMap::poll(qint64 elapsedMilliseconds)
{
    m_state->poll(m_index, elapsedMilliseconds);
}

} // namespace Simulation
