#include "simulatedenumparameter.h"

namespace Simulation {

SimulatedEnumParameter::SimulatedEnumParameter(
    QSharedPointer<DeviceState> state, const FeatureRef& ref, const QString& fullName, const QString& name)
    : SimulatedParameter(std::move(state), ref, fullName, name)
{
}

SimulatedEnumParameter::~SimulatedEnumParameter() = default;

} // namespace Simulation
