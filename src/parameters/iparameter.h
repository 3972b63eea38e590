#pragma once

#include "genapienums.h"
#include "parameterdata.h"
#include "zarvexviewercomponents_export.h"

#include <QObject>
#include <QSharedPointer>
#include <QString>

namespace ParameterCollection {

class IAdvancedParameterAccess;

/*!
 * One feature of a node map, as the parameter layer offers it. Objects are
 * owned by the parameter layer and reach the library as shared pointers.
 * Every operation may throw: a GenICam::GenericException or anything else.
 *
 * Narrow to a kind with qobject_cast / QMetaObject::cast or dynamic_cast.
 */
class ZVC_EXPORT IParameter : public QObject
{
    Q_OBJECT

public:
    ~IParameter() override;

    //! Writes the value from its text (for an enumeration the symbolic value). Throws on rejection.
    virtual void setValueFromString(QString value) = 0;
    //! True when the object no longer stands for a live feature.
    virtual bool isZombie() const = 0;
    virtual bool isWritable() const = 0;
    //! Asked of a zombie only: may filter properties be imposed on it all the same?
    virtual bool isImposable() const = 0;
    virtual GenApi::EVisibility getVisibility() const = 0;
    //! The kind, one of ParameterType.
    virtual int getType() const = 0;
    virtual QString getFullName() const = 0;
    virtual QString getName() const = 0;
    //! May be null.
    virtual QSharedPointer<IAdvancedParameterAccess> advancedAccess() const = 0;
    //! The current snapshot; may be null.
    virtual QSharedPointer<const ParameterData> getParameterData() const = 0;

signals:
    //! A fresh snapshot after any change of value, range, access or visibility.
    //! Never delivered inside the call that caused the change.
    void parameterDataChangedDecoupled(QSharedPointer<const ParameterCollection::ParameterData> data);

protected:
    explicit IParameter(QObject* parent = nullptr);
};

} // namespace ParameterCollection
