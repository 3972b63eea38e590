#pragma once

#include "simulatedparameter.h"

#include "parameters/iintegerparameter.h"

namespace Simulation {

//! An Integer feature, or the integer alias "<full name>/Alias" of a Float feature.
class SimulatedIntegerParameter : public SimulatedParameter<ParameterCollection::IIntegerParameter>
{
public:
    SimulatedIntegerParameter(
        QSharedPointer<DeviceState> state, const FeatureRef& ref, const QString& fullName, const QString& name);
    ~SimulatedIntegerParameter() override;

    void setValue(qint64 value, bool verify) override;
    qint64 getValue() const override;
    qint64 getMinimum() const override;
    qint64 getMaximum() const override;
};

} // namespace Simulation
