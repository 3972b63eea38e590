#pragma once

#include "iparameter.h"

namespace ParameterCollection {

//! An enumeration (kind 6). Written with setValueFromString (the symbolic value), read from its snapshot.
class ZVC_EXPORT IEnumParameter : public IParameter
{
    Q_OBJECT

public:
    ~IEnumParameter() override;

protected:
    explicit IEnumParameter(QObject* parent = nullptr);
};

} // namespace ParameterCollection
