#include "spinboxeventcatcher.h"

#include <QEvent>

SpinBoxEventCatcher::SpinBoxEventCatcher(QObject* parent)
    : QObject(parent)
{
}

bool SpinBoxEventCatcher::eventFilter(QObject* watched, QEvent* event)
{
    switch (event->type()) {
    case QEvent::FocusIn:
        emit focusEvent(true);
        return false;
    case QEvent::FocusOut:
        emit focusEvent(false);
        return false;
    default:
        return QObject::eventFilter(watched, event);
    }
}
