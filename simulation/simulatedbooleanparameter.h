#pragma once

#include "simulatedparameter.h"

#include "parameters/ibooleanparameter.h"

namespace Simulation {

//! A Boolean feature.
class SimulatedBooleanParameter : public SimulatedParameter<ParameterCollection::IBooleanParameter>
{
public:
    SimulatedBooleanParameter(
        QSharedPointer<DeviceState> state, const FeatureRef& ref, const QString& fullName, const QString& name);
    ~SimulatedBooleanParameter() override;
};

} // namespace Simulation
