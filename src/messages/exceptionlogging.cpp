#include "exceptionlogging.h"

QDebug operator<<(QDebug debug, const std::exception& e)
{
    debug << "Exception occurred:\n" << e.what() << "\n";
    return debug;
}

namespace ExceptionLogging {

void logException(const char* function, const std::exception& e)
{
    ZVC_LOGGER.warning() << function << ": " << e;
}

void logCurrentException(const char* function, const QString& sentence)
{
    ZVC_LOGGER.warning("%s", sentence.toUtf8().constData());
    try {
        throw;
    } catch (const std::exception& e) {
        logException(function, e);
    } catch (...) {
        logUnspecifiedException(function);
    }
}

void logUnspecifiedException(const char* function)
{
    ZVC_LOGGER.warning("%s: Unspecified exception occurred.", function);
}

} // namespace ExceptionLogging
