/*!
 * \file parameters/ifloatparameter.h
 * ParameterCollection::IFloatParameter, the interface of float parameters.
 */
#pragma once

#include "iparameter.h"

namespace ParameterCollection {

//! A float parameter (kind 3).
class ZVC_EXPORT IFloatParameter : public IParameter
{
    Q_OBJECT

public:
    ~IFloatParameter() override;

    //! Writes the value to the device. Throws on rejection.
    virtual void setValue(double value) = 0;
    //! The current value, read from the device.
    virtual double getValue() const = 0;
    //! The present lower limit, read from the device.
    virtual double getMinimum() const = 0;
    //! The present upper limit, read from the device.
    virtual double getMaximum() const = 0;

protected:
    //! For the implementations of the parameter layer.
    explicit IFloatParameter(QObject* parent = nullptr);
};

} // namespace ParameterCollection
