#pragma once

#include "simulatedparameter.h"

namespace Simulation {

//! What a look-up of a name the node map does not hold gives: a zombie that only tells its names.
class SimulatedZombieParameter : public SimulatedParameter<ParameterCollection::IParameter>
{
public:
    SimulatedZombieParameter(
        QSharedPointer<DeviceState> state, const FeatureRef& ref, const QString& fullName, const QString& name);
    ~SimulatedZombieParameter() override;
};

} // namespace Simulation
