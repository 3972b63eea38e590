/*!
 * \file messages/exceptionlogging.h
 * The library's logging of caught exceptions: ZVC_LOGGER, the QDebug output
 * of a std::exception and the functions of ExceptionLogging.
 *
 * Every function that calls the parameter layer catches at its own boundary
 * and leaves two warnings: its own sentence, then the cause.
 */
#pragma once

#include "zarvexviewercomponents_export.h"

#include <QDebug>

#include <exception>

/*!
 * The logger of every message of the library: category "default", no file,
 * line or function information. Use as ZVC_LOGGER.warning(...) or
 * ZVC_LOGGER.debug() << ...
 */
#define ZVC_LOGGER QMessageLogger(nullptr, 0, nullptr, "default")

/*!
 * Writes "Exception occurred:\n", e.what() and "\n" to the stream, each
 * honouring the stream's spacing.
 */
ZVC_EXPORT QDebug operator<<(QDebug debug, const std::exception& e);

//! The two-line logging pattern for caught exceptions.
namespace ExceptionLogging {

/*!
 * The second line of the logging pattern for a caught std::exception:
 * function, ": " and the exception, as a warning in the category "default".
 * The caller logs its own sentence first.
 */
ZVC_EXPORT void logException(const char* function, const std::exception& e);

//! The second line of the logging pattern for anything that is not a std::exception:
//! "<function>: Unspecified exception occurred." as a warning.
ZVC_EXPORT void logUnspecifiedException(const char* function);

/*!
 * Both lines of the logging pattern, for use inside a catch (...) block only:
 * the caller's sentence as a warning, then the cause of the exception being
 * handled, classified as logException() or logUnspecifiedException() would.
 */
ZVC_EXPORT void logCurrentException(const char* function, const QString& sentence);

} // namespace ExceptionLogging
