#include "simulatedbooleanparameter.h"

namespace Simulation {

SimulatedBooleanParameter::SimulatedBooleanParameter(
    QSharedPointer<DeviceState> state, const FeatureRef& ref, const QString& fullName, const QString& name)
    : SimulatedParameter(std::move(state), ref, fullName, name)
{
}

SimulatedBooleanParameter::~SimulatedBooleanParameter() = default;

} // namespace Simulation
