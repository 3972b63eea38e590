/*!
 * \file messages/errorreporting.h
 * The show... functions, which log a message and queue it on
 * GetTheGlobalAsyncErrorQueue() for the application to show.
 *
 * Callers pass the name of the calling function as context, so that the log
 * says where a failure happened, and a translated sentence as text. Nothing
 * is shown by the library itself. Any thread.
 */
#pragma once

#include "zarvexviewercomponents_export.h"

#include <QString>

#include <exception>

class QWidget;

//! Logs "Warning: <context>: <title> : <text>" and queues a Warning entry.
ZVC_EXPORT void showWarningMessage(
    const QString& title, const QString& context, const QString& text, const QString& details, QWidget* parent);
//! The same with empty details.
ZVC_EXPORT void showWarningMessage(const QString& title, const QString& context, const QString& text, QWidget* parent);

//! Logs "Critical message: <context> : <title> : <text> : <details>" at critical level and queues a Critical entry.
ZVC_EXPORT void showCriticalMessage(
    const QString& title, const QString& context, const QString& text, const QString& details, QWidget* parent);
//! The same with empty details.
ZVC_EXPORT void showCriticalMessage(const QString& title, const QString& context, const QString& text, QWidget* parent);

//! Queues an Error entry; logs nothing.
ZVC_EXPORT void showErrorMessage(const QString& text, const QString& details, QWidget* parent);
//! The same with empty details.
ZVC_EXPORT void showErrorMessage(const QString& text, QWidget* parent);

//! A critical message titled "Error" whose text is e.what(). The entry never has a parent.
ZVC_EXPORT void showException(const QString& context, const std::exception& e, QWidget* parent);
//! A critical message titled "Error" with text, and e.what() as details. The entry never has a parent.
ZVC_EXPORT void showException(const QString& context, const std::exception& e, const QString& text, QWidget* parent);
//! A critical message titled "Unexpected exception occurred". The entry never has a parent.
ZVC_EXPORT void showUnexpectedException(const QString& context, const QString& text, QWidget* parent);
