#pragma once

#include "simulatedparameter.h"

namespace Simulation {

//! A String feature.
class SimulatedStringParameter : public SimulatedParameter<ParameterCollection::IParameter>
{
public:
    SimulatedStringParameter(
        QSharedPointer<DeviceState> state, const FeatureRef& ref, const QString& fullName, const QString& name);
    ~SimulatedStringParameter() override;
};

} // namespace Simulation
