#include "ienumparameter.h"

namespace ParameterCollection {

IEnumParameter::IEnumParameter(QObject* parent)
    : IParameter(parent)
{
}

IEnumParameter::~IEnumParameter() = default;

} // namespace ParameterCollection
