#pragma once

#include "iparameter.h"

namespace ParameterCollection {

//! A float parameter (kind 3).
class ZVC_EXPORT IFloatParameter : public IParameter
{
    Q_OBJECT

public:
    ~IFloatParameter() override;

    virtual void setValue(double value) = 0;
    //! The current value, read from the device.
    virtual double getValue() const = 0;
    virtual double getMinimum() const = 0;
    virtual double getMaximum() const = 0;

protected:
    explicit IFloatParameter(QObject* parent = nullptr);
};

} // namespace ParameterCollection
