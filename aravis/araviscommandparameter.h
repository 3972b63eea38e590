#pragma once

#include "aravisparameter.h"

#include "parameters/icommandparameter.h"

namespace Aravis {

//! A Command feature. Aravis writes a command synchronously, so it is done once execute() returns.
class AravisCommandParameter : public AravisParameter<ParameterCollection::ICommandParameter>
{
public:
    AravisCommandParameter(QSharedPointer<NodeMapState> state, int index, const QString& fullName, const QString& name);
    ~AravisCommandParameter() override;

    void setCommandPending(bool pending) override;
    void execute(bool verify) override;
};

} // namespace Aravis
