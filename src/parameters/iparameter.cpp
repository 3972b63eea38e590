#include "iparameter.h"

namespace ParameterCollection {

IParameter::IParameter(QObject* parent)
    : QObject(parent)
{
}

IParameter::~IParameter() = default;

} // namespace ParameterCollection
