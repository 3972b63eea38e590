#include "ibooleanparameter.h"

namespace ParameterCollection {

IBooleanParameter::IBooleanParameter(QObject* parent)
    : IParameter(parent)
{
}

IBooleanParameter::~IBooleanParameter() = default;

} // namespace ParameterCollection
