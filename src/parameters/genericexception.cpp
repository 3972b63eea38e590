#include "genericexception.h"

namespace GenICam {

GenericException::GenericException(const char* description, const char* sourceFile, int sourceLine)
    : m_description(description ? description : "")
    , m_sourceFile(sourceFile ? sourceFile : "")
    , m_sourceLine(sourceLine < 0 ? 0u : static_cast<unsigned int>(sourceLine))
{
}

GenericException::~GenericException() = default;

const char* GenericException::what() const noexcept
{
    return m_description.c_str();
}

const char* GenericException::GetDescription() const noexcept
{
    return m_description.c_str();
}

const char* GenericException::GetSourceFileName() const noexcept
{
    return m_sourceFile.c_str();
}

unsigned int GenericException::GetSourceLine() const noexcept
{
    return m_sourceLine;
}

} // namespace GenICam
