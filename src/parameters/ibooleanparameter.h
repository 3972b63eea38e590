/*!
 * \file parameters/ibooleanparameter.h
 * ParameterCollection::IBooleanParameter, the interface of boolean parameters.
 */
#pragma once

#include "iparameter.h"

namespace ParameterCollection {

//! A boolean parameter (kind 2). Written with setValueFromString, read from its snapshot.
class ZVC_EXPORT IBooleanParameter : public IParameter
{
    Q_OBJECT

public:
    ~IBooleanParameter() override;

protected:
    //! For the implementations of the parameter layer.
    explicit IBooleanParameter(QObject* parent = nullptr);
};

} // namespace ParameterCollection
