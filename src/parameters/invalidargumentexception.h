#pragma once

#include "genericexception.h"

namespace GenICam {

//! Thrown for an argument out of its allowed range or form.
class ZVC_EXPORT InvalidArgumentException : public GenericException
{
public:
    InvalidArgumentException(const char* message, const char* sourceFile, int line);
    ~InvalidArgumentException() override;
};

} // namespace GenICam
