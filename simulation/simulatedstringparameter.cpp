#include "simulatedstringparameter.h"

namespace Simulation {

SimulatedStringParameter::SimulatedStringParameter(
    QSharedPointer<DeviceState> state, const FeatureRef& ref, const QString& fullName, const QString& name)
    : SimulatedParameter(std::move(state), ref, fullName, name)
{
}

SimulatedStringParameter::~SimulatedStringParameter() = default;

} // namespace Simulation
