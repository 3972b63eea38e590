#include "iintegerparameter.h"

namespace ParameterCollection {

IIntegerParameter::IIntegerParameter(QObject* parent)
    : IParameter(parent)
{
}

IIntegerParameter::~IIntegerParameter() = default;

} // namespace ParameterCollection
