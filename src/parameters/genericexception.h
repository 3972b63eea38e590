#pragma once

#include "zarvexviewercomponents_export.h"

#include <exception>
#include <string>

namespace GenICam {

//! Base of every exception thrown by the parameter layer.
class ZVC_EXPORT GenericException : public std::exception
{
public:
    GenericException(const char* description, const char* sourceFile, int sourceLine);
    ~GenericException() override;

    //! The description; callers log this text.
    const char* what() const noexcept override;

    const char* GetDescription() const noexcept;
    const char* GetSourceFileName() const noexcept;
    unsigned int GetSourceLine() const noexcept;

private:
    std::string m_description;
    std::string m_sourceFile;
    unsigned int m_sourceLine;
};

} // namespace GenICam
