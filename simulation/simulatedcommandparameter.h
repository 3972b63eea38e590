#pragma once

#include "simulatedparameter.h"

#include "parameters/icommandparameter.h"

namespace Simulation {

//! A Command feature; it is done again after its duration.
class SimulatedCommandParameter : public SimulatedParameter<ParameterCollection::ICommandParameter>
{
public:
    SimulatedCommandParameter(
        QSharedPointer<DeviceState> state, const FeatureRef& ref, const QString& fullName, const QString& name);
    ~SimulatedCommandParameter() override;

    void setCommandPending(bool pending) override;
    void execute(bool verify) override;
};

} // namespace Simulation
