#pragma once

#include "aravisparameter.h"

#include "parameters/ifloatparameter.h"

namespace Aravis {

//! An Float feature.
class AravisFloatParameter : public AravisParameter<ParameterCollection::IFloatParameter>
{
public:
    AravisFloatParameter(QSharedPointer<NodeMapState> state, int index, const QString& fullName, const QString& name);
    ~AravisFloatParameter() override;

    void setValue(double value) override;
    double getValue() const override;
    double getMinimum() const override;
    double getMaximum() const override;
};

} // namespace Aravis
