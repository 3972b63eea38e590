#include "icommandparameter.h"

namespace ParameterCollection {

ICommandParameter::ICommandParameter(QObject* parent)
    : IParameter(parent)
{
}

ICommandParameter::~ICommandParameter() = default;

} // namespace ParameterCollection
