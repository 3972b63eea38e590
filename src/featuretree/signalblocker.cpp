#include "signalblocker.h"

#include <QObject>

SignalBlocker::SignalBlocker(QObject* object)
    : m_object(object)
    , m_previouslyBlocked(object ? object->blockSignals(true) : false)
{
}

SignalBlocker::~SignalBlocker()
{
    if (m_object)
        m_object->blockSignals(m_previouslyBlocked);
}
