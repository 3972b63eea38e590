/*!
 * \file parameters/ienumparameter.h
 * ParameterCollection::IEnumParameter, the interface of enumerations.
 */
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
    //! For the implementations of the parameter layer.
    explicit IEnumParameter(QObject* parent = nullptr);
};

} // namespace ParameterCollection
