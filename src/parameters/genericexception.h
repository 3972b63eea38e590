/*!
 * \file parameters/genericexception.h
 * GenICam::GenericException, the base of the parameter layer's exceptions.
 */
#pragma once

#include "zarvexviewercomponents_export.h"

#include <exception>
#include <string>

/*!
 * The exceptions of the published GenICam interface. The parameter layer
 * throws them; the library catches them at its own boundaries and throws
 * InvalidArgumentException itself from the float editors.
 */
namespace GenICam {

//! Base of every exception thrown by the parameter layer.
class ZVC_EXPORT GenericException : public std::exception
{
public:
    //! Keeps copies of the description and the source location of the throw.
    GenericException(const char* description, const char* sourceFile, int sourceLine);
    ~GenericException() override;

    //! The description; callers log this text.
    const char* what() const noexcept override;

    //! The description, the same text as what().
    const char* GetDescription() const noexcept;
    //! The source file given at construction.
    const char* GetSourceFileName() const noexcept;
    //! The source line given at construction.
    unsigned int GetSourceLine() const noexcept;

private:
    std::string m_description;
    std::string m_sourceFile;
    unsigned int m_sourceLine;
};

} // namespace GenICam
