#include "ifloatparameter.h"

namespace ParameterCollection {

IFloatParameter::IFloatParameter(QObject* parent)
    : IParameter(parent)
{
}

IFloatParameter::~IFloatParameter() = default;

} // namespace ParameterCollection
