#include "invalidargumentexception.h"

namespace GenICam {

InvalidArgumentException::InvalidArgumentException(const char* message, const char* sourceFile, int line)
    : GenericException(message, sourceFile, line)
{
}

InvalidArgumentException::~InvalidArgumentException() = default;

} // namespace GenICam
