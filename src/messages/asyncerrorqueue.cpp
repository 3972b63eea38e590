#include "asyncerrorqueue.h"

#include <QMetaObject>
#include <QWidget>

// g++ defines __SANITIZE_THREAD__ under -fsanitize=thread; clang tells by __has_feature.
#if defined(__SANITIZE_THREAD__)
#define ZVC_TSAN_MUTEX_ANNOTATIONS
#elif defined(__has_feature)
#if __has_feature(thread_sanitizer)
#define ZVC_TSAN_MUTEX_ANNOTATIONS
#endif
#endif
#ifdef ZVC_TSAN_MUTEX_ANNOTATIONS
#include <sanitizer/tsan_interface.h>
#endif

namespace {

// Locks the queue's QMutex for a scope. Qt's own libraries are not built with
// ThreadSanitizer, so it cannot see the ordering QMutex gives, and it took
// every append from two reporting threads for a race. In a ThreadSanitizer
// build this tells it about the lock; otherwise it is a plain QMutexLocker.
class QueueLocker
{
public:
    explicit QueueLocker(QMutex* mutex)
        : m_mutex(mutex)
    {
#ifdef ZVC_TSAN_MUTEX_ANNOTATIONS
        __tsan_mutex_pre_lock(m_mutex, 0);
#endif
        m_mutex->lock();
#ifdef ZVC_TSAN_MUTEX_ANNOTATIONS
        __tsan_mutex_post_lock(m_mutex, 0, 0);
#endif
    }
    ~QueueLocker()
    {
#ifdef ZVC_TSAN_MUTEX_ANNOTATIONS
        __tsan_mutex_pre_unlock(m_mutex, 0);
#endif
        m_mutex->unlock();
#ifdef ZVC_TSAN_MUTEX_ANNOTATIONS
        __tsan_mutex_post_unlock(m_mutex, 0);
#endif
    }
    QueueLocker(const QueueLocker&) = delete;
    QueueLocker& operator=(const QueueLocker&) = delete;

private:
    QMutex* m_mutex;
};

} // namespace

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
    QueueLocker locker(&m_mutex);
    return m_entries.count();
}

void AsyncErrorQueue::clear()
{
    QueueLocker locker(&m_mutex);
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
        QueueLocker locker(&m_mutex);
        m_entries.append(entry);
    }
    // Outside the lock: a slot of displayError may report again.
    QMetaObject::invokeMethod(this, "asyncSignaler", Qt::QueuedConnection);
}

void AsyncErrorQueue::asyncSignaler()
{
    AsyncErrorEntry entry;
    {
        QueueLocker locker(&m_mutex);
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
