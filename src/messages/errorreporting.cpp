#include "errorreporting.h"

#include "asyncerrorqueue.h"
#include "exceptionlogging.h"

#include <QObject>
#include <QtGlobal>

void showWarningMessage(
    const QString& title, const QString& context, const QString& text, const QString& details, QWidget* parent)
{
    ZVC_LOGGER.warning("Warning: %s: %s : %s", context.toLatin1().constData(), title.toLatin1().constData(),
        text.toLatin1().constData());
    GetTheGlobalAsyncErrorQueue()->reportErrorAsync(AsyncErrorQueue::Warning, text, details, parent);
}

void showWarningMessage(const QString& title, const QString& context, const QString& text, QWidget* parent)
{
    showWarningMessage(title, context, text, QString(), parent);
}

void showCriticalMessage(
    const QString& title, const QString& context, const QString& text, const QString& details, QWidget* parent)
{
    ZVC_LOGGER.critical("Critical message: %s : %s : %s : %s", context.toLatin1().constData(),
        title.toLatin1().constData(), text.toLatin1().constData(), details.toLatin1().constData());
    GetTheGlobalAsyncErrorQueue()->reportErrorAsync(AsyncErrorQueue::Critical, text, details, parent);
}

void showCriticalMessage(const QString& title, const QString& context, const QString& text, QWidget* parent)
{
    showCriticalMessage(title, context, text, QString(), parent);
}

void showErrorMessage(const QString& text, const QString& details, QWidget* parent)
{
    GetTheGlobalAsyncErrorQueue()->reportErrorAsync(AsyncErrorQueue::Error, text, details, parent);
}

void showErrorMessage(const QString& text, QWidget* parent)
{
    showErrorMessage(text, QString(), parent);
}

// The exception reports are never parented, whatever the caller passes: they
// are raised from deep inside model calls, where the caller's widget may be
// on its way out by the time the event loop shows the message.
void showException(const QString& context, const std::exception& e, QWidget* /*parent*/)
{
    showCriticalMessage(QObject::tr("Error"), context, QString::fromLatin1(e.what()), nullptr);
}

void showException(const QString& context, const std::exception& e, const QString& text, QWidget* /*parent*/)
{
    showCriticalMessage(QObject::tr("Error"), context, text, QString::fromLatin1(e.what()), nullptr);
}

void showUnexpectedException(const QString& context, const QString& text, QWidget* /*parent*/)
{
    showCriticalMessage(QObject::tr("Unexpected exception occurred"), context, text, nullptr);
}
