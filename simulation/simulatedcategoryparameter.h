#pragma once

#include "simulatedparameter.h"

namespace Simulation {

//! A Category feature.
class SimulatedCategoryParameter : public SimulatedParameter<ParameterCollection::IParameter>
{
public:
    SimulatedCategoryParameter(
        QSharedPointer<DeviceState> state, const FeatureRef& ref, const QString& fullName, const QString& name);
    ~SimulatedCategoryParameter() override;
};

} // namespace Simulation
