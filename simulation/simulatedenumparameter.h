#pragma once

#include "simulatedparameter.h"

#include "parameters/ienumparameter.h"

namespace Simulation {

//! An Enumeration feature.
class SimulatedEnumParameter : public SimulatedParameter<ParameterCollection::IEnumParameter>
{
public:
    SimulatedEnumParameter(
        QSharedPointer<DeviceState> state, const FeatureRef& ref, const QString& fullName, const QString& name);
    ~SimulatedEnumParameter() override;
};

} // namespace Simulation
