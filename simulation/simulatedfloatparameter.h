#pragma once

#include "simulatedparameter.h"

#include "parameters/ifloatparameter.h"

namespace Simulation {

//! A Float feature.
class SimulatedFloatParameter : public SimulatedParameter<ParameterCollection::IFloatParameter>
{
public:
    SimulatedFloatParameter(
        QSharedPointer<DeviceState> state, const FeatureRef& ref, const QString& fullName, const QString& name);
    ~SimulatedFloatParameter() override;

    void setValue(double value) override;
    double getValue() const override;
    double getMinimum() const override;
    double getMaximum() const override;
};

} // namespace Simulation
