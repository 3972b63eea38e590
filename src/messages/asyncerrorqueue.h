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
 */
class ZVC_EXPORT AsyncErrorQueue : public QObject
{
    Q_OBJECT

public:
    enum ErrorSeverity { Critical = 10, Error = 20, Warning = 30 };
    Q_ENUM(ErrorSeverity)

    struct AsyncErrorEntry
    {
        ErrorSeverity severity = Critical;
        QString text;
        QString details;
        QWidget* parent = nullptr; //!< not owned and not guarded
    };

    explicit AsyncErrorQueue(QObject* parent = nullptr);
    ~AsyncErrorQueue() override;

    //! Number of entries waiting. Any thread.
    int count() const;
    //! Drops every waiting entry; events already posted then find nothing. Any thread.
    void clear();
    //! Queues one entry and posts one event to this object's thread. Any thread.
    void reportErrorAsync(ErrorSeverity severity, const QString& text, const QString& details, QWidget* parent);

signals:
    void displayError(AsyncErrorQueue::ErrorSeverity severity, QString text, QString details, QWidget* parent);

protected slots:
    void asyncSignaler();

private:
    mutable QMutex m_mutex;
    QList<AsyncErrorEntry> m_entries;
};

//! The one queue of the process, built on the first call, on the calling thread.
ZVC_EXPORT AsyncErrorQueue* GetTheGlobalAsyncErrorQueue();
