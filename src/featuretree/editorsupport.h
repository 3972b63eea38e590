#pragma once

// Helpers shared by the value editors; not installed.

#include "parameters/iparameter.h"

#include <QSharedPointer>
#include <QString>
#include <QWidget>

namespace EditorSupport {

/*!
 * The parameter's short name for a log line. Never throws: a null parameter
 * or one whose name can't be fetched gives an empty text, so that a handler
 * can always finish its report.
 */
QString nodeName(const QSharedPointer<ParameterCollection::IParameter>& node);

//! nodeName() in UTF-8, for the %s of a log line.
QByteArray nodeNameUtf8(const QSharedPointer<ParameterCollection::IParameter>& node);

/*!
 * Both lines of the logging pattern, for use inside a catch (...) block only:
 * the sentence (a format with one %s, filled with the parameter's name) as a
 * warning, then the exception being handled as the second line of function.
 */
void logFailure(
    const char* function, const char* sentence, const QSharedPointer<ParameterCollection::IParameter>& node);

//! Enables or disables the widget only when its state differs, so that an unchanged state costs nothing.
void keepEnabledInStep(QWidget* widget, bool writable);

} // namespace EditorSupport
