/*!
 * \file parameters/iadvancedparameteraccess.h
 * ParameterCollection::IAdvancedParameterAccess, a parameter's properties as text.
 */
#pragma once

#include "zarvexviewercomponents_export.h"

#include <QString>

namespace ParameterCollection {

/*!
 * Properties of a parameter as text. Keys read by the library: "Unit",
 * "Description", "Tooltip", "DocuURL", "DisplayName", "Representation".
 * Keys written: "Visibility" and "AccessMode".
 *
 * Reached through IParameter::advancedAccess(). Every operation may throw.
 */
class ZVC_EXPORT IAdvancedParameterAccess
{
public:
    virtual ~IAdvancedParameterAccess();

    //! The property's text, or empty.
    virtual QString getProperty(QString key) const = 0;
    //! The property's text, or defaultValue if the feature hasn't got it.
    virtual QString getProperty(QString key, QString defaultValue) const = 0;
    //! Imposes a property; from then on the parameter behaves and reports itself with it. Throws on refusal.
    virtual void setProperty(QString key, QString value) = 0;

protected:
    //! For the implementations of the parameter layer.
    IAdvancedParameterAccess() = default;
    //! Copies nothing: the interface has no data.
    IAdvancedParameterAccess(const IAdvancedParameterAccess&) = default;
    //! Copies nothing: the interface has no data.
    IAdvancedParameterAccess& operator=(const IAdvancedParameterAccess&) = default;
};

} // namespace ParameterCollection
