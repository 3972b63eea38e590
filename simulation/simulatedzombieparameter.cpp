#include "simulatedzombieparameter.h"

namespace Simulation {

SimulatedZombieParameter::SimulatedZombieParameter(
    QSharedPointer<DeviceState> state, const FeatureRef& ref, const QString& fullName, const QString& name)
    : SimulatedParameter(std::move(state), ref, fullName, name)
{
}

SimulatedZombieParameter::~SimulatedZombieParameter() = default;

} // namespace Simulation
