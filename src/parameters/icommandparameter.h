#pragma once

#include "iparameter.h"

namespace ParameterCollection {

//! A command (kind 4).
class ZVC_EXPORT ICommandParameter : public IParameter
{
    Q_OBJECT

public:
    ~ICommandParameter() override;

    //! Marks whether the command still counts as pending in the user interface.
    virtual void setCommandPending(bool pending) = 0;
    //! Starts the command.
    virtual void execute(bool verify) = 0;

protected:
    explicit ICommandParameter(QObject* parent = nullptr);
};

} // namespace ParameterCollection
