#pragma once

#include "aravisparameter.h"

#include "parameters/iintegerparameter.h"

namespace Aravis {

//! An Integer feature, or the integer alias "<full name>/Alias" that a Float names with pAlias.
class AravisIntegerParameter : public AravisParameter<ParameterCollection::IIntegerParameter>
{
public:
    AravisIntegerParameter(QSharedPointer<NodeMapState> state, int index, const QString& fullName, const QString& name);
    ~AravisIntegerParameter() override;

    void setValue(qint64 value, bool verify) override;
    qint64 getValue() const override;
    qint64 getMinimum() const override;
    qint64 getMaximum() const override;
};

} // namespace Aravis
