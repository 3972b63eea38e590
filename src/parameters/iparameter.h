/*!
 * \file parameters/iparameter.h
 * ParameterCollection::IParameter, one feature of a node map.
 */
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
 *
 * The library calls every operation on the thread of the widgets. A full name
 * is "@", the node map's name, "/" and the short name, as in
 * "@CameraDevice/Width"; the root category of a node map is
 * "@CameraDevice/Root", and "@CameraDevice/Width/Alias" names the integer
 * alias of a float feature, where there is one.
 */
class ZVC_EXPORT IParameter : public QObject
{
    Q_OBJECT

public:
    ~IParameter() override;

    //! Writes the value from its text (for an enumeration the symbolic value). Throws on rejection.
    virtual void setValueFromString(QString value) = 0;
    //! True when the object no longer stands for a live feature.
    //! Every other operation may then fail, so callers ask this first.
    virtual bool isZombie() const = 0;
    //! The value may be written now; the last check before a write.
    virtual bool isWritable() const = 0;
    //! Asked of a zombie only: may filter properties be imposed on it all the same?
    virtual bool isImposable() const = 0;
    //! The user level from which the feature is shown.
    virtual GenApi::EVisibility getVisibility() const = 0;
    //! The kind, one of ParameterType.
    virtual int getType() const = 0;
    //! The full name, such as "@CameraDevice/Width".
    virtual QString getFullName() const = 0;
    //! The short name, such as "Width"; the library logs with it.
    virtual QString getName() const = 0;
    //! May be null.
    virtual QSharedPointer<IAdvancedParameterAccess> advancedAccess() const = 0;
    //! The current snapshot; may be null.
    virtual QSharedPointer<const ParameterData> getParameterData() const = 0;

signals:
    //! A fresh snapshot after any change of value, range, access or visibility.
    //! Never delivered inside the call that caused the change.
    //!
    //! The library connects with the automatic connection type, so an
    //! emission from another thread reaches the widgets' thread queued. Slots
    //! may call back into the parameter, writing to it included.
    void parameterDataChangedDecoupled(QSharedPointer<const ParameterCollection::ParameterData> data);

protected:
    //! For the implementations of the parameter layer.
    explicit IParameter(QObject* parent = nullptr);
};

} // namespace ParameterCollection
