/*!
 * \file parameters/icommandparameter.h
 * ParameterCollection::ICommandParameter, the interface of commands.
 */
#pragma once

#include "iparameter.h"

namespace ParameterCollection {

//! A command (kind 4). Its snapshot, a CommandParameterData, tells whether it is still running.
class ZVC_EXPORT ICommandParameter : public IParameter
{
    Q_OBJECT

public:
    ~ICommandParameter() override;

    //! Marks whether the command still counts as pending in the user interface.
    //! The tree sets it right after execute(); ToolButtonEditor clears it.
    virtual void setCommandPending(bool pending) = 0;
    //! Starts the command; the library always passes true for verify.
    virtual void execute(bool verify) = 0;

protected:
    //! For the implementations of the parameter layer.
    explicit ICommandParameter(QObject* parent = nullptr);
};

} // namespace ParameterCollection
