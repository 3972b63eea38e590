#include "aravisadvancedaccess.h"

#include "nodemapstate.h"

namespace Aravis {

AravisAdvancedAccess::AravisAdvancedAccess(QSharedPointer<NodeMapState> state, int index, const QString& fullName)
    : m_state(std::move(state))
    , m_index(index)
    , m_fullName(fullName)
{
}

AravisAdvancedAccess::~AravisAdvancedAccess() = default;

QString AravisAdvancedAccess::getProperty(QString key) const
{
    return m_state->property(m_index, m_fullName, key, QString());
}

QString AravisAdvancedAccess::getProperty(QString key, QString defaultValue) const
{
    return m_state->property(m_index, m_fullName, key, defaultValue);
}

void AravisAdvancedAccess::setProperty(QString key, QString value)
{
    m_state->setProperty(m_index, m_fullName, key, value);
}

} // namespace Aravis
