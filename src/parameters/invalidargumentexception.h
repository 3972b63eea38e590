/*!
 * \file parameters/invalidargumentexception.h
 * GenICam::InvalidArgumentException, for arguments out of range or form.
 */
#pragma once

#include "genericexception.h"

namespace GenICam {

//! Thrown for an argument out of its allowed range or form.
class ZVC_EXPORT InvalidArgumentException : public GenericException
{
public:
    //! An exception with message as its description, thrown at sourceFile and line.
    InvalidArgumentException(const char* message, const char* sourceFile, int line);
    ~InvalidArgumentException() override;
};

} // namespace GenICam
