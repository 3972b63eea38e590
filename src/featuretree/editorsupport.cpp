#include "editorsupport.h"

#include "messages/exceptionlogging.h"

namespace EditorSupport {

QString nodeName(const QSharedPointer<ParameterCollection::IParameter>& node)
{
    if (!node)
        return QString();
    try {
        return node->getName();
    } catch (...) {
        // The handler that asks is already reporting a failure; a second one adds nothing.
        return QString();
    }
}

QByteArray nodeNameUtf8(const QSharedPointer<ParameterCollection::IParameter>& node)
{
    return nodeName(node).toUtf8();
}

void logFailure(const char* function, const char* sentence, const QSharedPointer<ParameterCollection::IParameter>& node)
{
    ExceptionLogging::logCurrentException(function, QString::asprintf(sentence, nodeNameUtf8(node).constData()));
}

void keepEnabledInStep(QWidget* widget, bool writable)
{
    if (widget->isEnabled() != writable)
        widget->setEnabled(writable);
}

} // namespace EditorSupport
