/*!
 * \file parameters/iintegerparameter.h
 * ParameterCollection::IIntegerParameter, the interface of integer parameters.
 */
#pragma once

#include "iparameter.h"

namespace ParameterCollection {

//! An integer parameter (kind 1).
class ZVC_EXPORT IIntegerParameter : public IParameter
{
    Q_OBJECT

public:
    ~IIntegerParameter() override;

    //! Writes the value; the library always passes true for verify.
    virtual void setValue(qint64 value, bool verify) = 0;
    //! The current value, read from the device.
    virtual qint64 getValue() const = 0;
    //! The present lower limit, read from the device.
    virtual qint64 getMinimum() const = 0;
    //! The present upper limit, read from the device.
    virtual qint64 getMaximum() const = 0;

protected:
    //! For the implementations of the parameter layer.
    explicit IIntegerParameter(QObject* parent = nullptr);
};

} // namespace ParameterCollection
