#include "simulatedcategoryparameter.h"

namespace Simulation {

SimulatedCategoryParameter::SimulatedCategoryParameter(
    QSharedPointer<DeviceState> state, const FeatureRef& ref, const QString& fullName, const QString& name)
    : SimulatedParameter(std::move(state), ref, fullName, name)
{
}

SimulatedCategoryParameter::~SimulatedCategoryParameter() = default;

} // namespace Simulation
