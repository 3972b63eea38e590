/*!
 * \file messages/asyncerrorqueue.h
 * AsyncErrorQueue, which defers the library's error messages to the
 * application's event loop, and GetTheGlobalAsyncErrorQueue().
 */
#pragma once

#include "zarvexviewercomponents_export.h"

#include <QList>
#include <QMutex>
#include <QObject>
#include <QString>

class QWidget;

/*!
 * Takes error messages from any thread and hands them, one per event-loop turn,
 * to whatever the application connected to displayError(). The newest queued
 * entry is always handed out first. The library only queues; it shows nothing.
 *
 * A host connects displayError() of GetTheGlobalAsyncErrorQueue() to what
 * shows errors in its application; a message with nobody connected is lost.
 * The signal is emitted outside the lock, so a slot may report errors
 * itself, and a modal dialog opened by a slot may see the next entry emitted
 * over it.
 */
class ZVC_EXPORT AsyncErrorQueue : public QObject
{
    Q_OBJECT

public:
    /*!
     * How grave a message is; the values are fixed, in steps of ten. The
     * underlying type is fixed too, so any int a host passes is queued and
     * handed to displayError() unchanged.
     */
    enum ErrorSeverity : int { Critical = 10, Error = 20, Warning = 30 };
    /*!
     * \var AsyncErrorQueue::Critical
     * From showCriticalMessage(), and so from showException() and showUnexpectedException().
     * \var AsyncErrorQueue::Error
     * From showErrorMessage().
     * \var AsyncErrorQueue::Warning
     * From showWarningMessage().
     */
    Q_ENUM(ErrorSeverity)

    //! One queued message.
    struct AsyncErrorEntry
    {
        ErrorSeverity severity = Critical; //!< how grave it is
        QString text; //!< the main text
        QString details; //!< further text; may be empty
        QWidget* parent = nullptr; //!< not owned and not guarded
    };

    //! An empty queue, living on the calling thread.
    explicit AsyncErrorQueue(QObject* parent = nullptr);
    //! Drops the entries still waiting.
    ~AsyncErrorQueue() override;

    //! Number of entries waiting. Any thread.
    int count() const;
    //! Drops every waiting entry; events already posted then find nothing. Any thread.
    void clear();
    //! Queues one entry and posts one event to this object's thread. Any thread.
    void reportErrorAsync(ErrorSeverity severity, const QString& text, const QString& details, QWidget* parent);

signals:
    //! One entry to show, emitted on the queue's thread; parent is the widget to show it over, or null.
    void displayError(AsyncErrorQueue::ErrorSeverity severity, QString text, QString details, QWidget* parent);

protected slots:
    //! Takes the newest waiting entry, if any, and emits displayError() with it; one entry per posted event.
    void asyncSignaler();

private:
    mutable QMutex m_mutex;
    QList<AsyncErrorEntry> m_entries;
};

//! The one queue of the process, built on the first call, on the calling thread.
ZVC_EXPORT AsyncErrorQueue* GetTheGlobalAsyncErrorQueue();
