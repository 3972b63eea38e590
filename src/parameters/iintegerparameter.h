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
    virtual qint64 getMinimum() const = 0;
    virtual qint64 getMaximum() const = 0;

protected:
    explicit IIntegerParameter(QObject* parent = nullptr);
};

} // namespace ParameterCollection
