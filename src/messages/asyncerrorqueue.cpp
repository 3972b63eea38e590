#include "asyncerrorqueue.h"

#include <QMetaObject>
#include <QMutexLocker>
#include <QWidget>

AsyncErrorQueue::AsyncErrorQueue(QObject* parent)
    : QObject(parent)
{
    // So that displayError can be spied on and connected across threads.
    qRegisterMetaType<AsyncErrorQueue::ErrorSeverity>("AsyncErrorQueue::ErrorSeverity");
    qRegisterMetaType<QWidget*>("QWidget*");
}

AsyncErrorQueue::~AsyncErrorQueue()
{
    clear();
}

int AsyncErrorQueue::count() const
{
    QMutexLocker locker(&m_mutex);
    return m_entries.count();
}

void AsyncErrorQueue::clear()
{
    QMutexLocker locker(&m_mutex);
    m_entries.clear();
}

void AsyncErrorQueue::reportErrorAsync(
    ErrorSeverity severity, const QString& text, const QString& details, QWidget* parent)
{
    AsyncErrorEntry entry;
    entry.severity = severity;
    entry.text = text;
    entry.details = details;
    entry.parent = parent;
    {
        QMutexLocker locker(&m_mutex);
        m_entries.append(entry);
    }
    // Outside the lock: a slot of displayError may report again.
    QMetaObject::invokeMethod(this, "asyncSignaler", Qt::QueuedConnection);
}

void AsyncErrorQueue::asyncSignaler()
{
    AsyncErrorEntry entry;
    {
        QMutexLocker locker(&m_mutex);
        if (m_entries.isEmpty())
            return;
        // The newest entry goes first; piled-up entries come out last-in, first-out.
        entry = m_entries.takeLast();
    }
    emit displayError(entry.severity, entry.text, entry.details, entry.parent);
}

AsyncErrorQueue* GetTheGlobalAsyncErrorQueue()
{
    static AsyncErrorQueue queue(nullptr);
    return &queue;
}
