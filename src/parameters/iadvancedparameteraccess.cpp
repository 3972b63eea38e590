#include "iadvancedparameteraccess.h"

namespace ParameterCollection {

IAdvancedParameterAccess::~IAdvancedParameterAccess() = default;

} // namespace ParameterCollection
