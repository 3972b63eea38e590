/*!
 * \file parameters/iparametercollection.h
 * ParameterCollection::IParameterCollection, one node map of a device: the
 * interface a host implements to show its camera in a FeatureTreeWidget.
 */
#pragma once

#include "iparameter.h"
#include "zarvexviewercomponents_export.h"

#include <QList>
#include <QObject>
#include <QSharedPointer>
#include <QString>

namespace ParameterCollection {

/*!
 * One node map. Every operation may throw.
 *
 * A host hands one collection per node map of its device ("@CameraDevice",
 * "@DeviceTransportLayer", ...) to FeatureTreeWidget::addParameterCollection().
 * The library calls it on the thread of the widgets only, holds it as a
 * shared pointer and never deletes it.
 */
class ZVC_EXPORT IParameterCollection : public QObject
{
    Q_OBJECT

public:
    ~IParameterCollection() override;

    //! For a name the node map doesn't hold: null or a zombie.
    virtual QSharedPointer<IParameter> getParameter(QString fullName) = 0;
    //! The node map holds a parameter of this full name; asked for "<full name>/Alias".
    virtual bool hasParameter(QString fullName) const = 0;
    //! Full names of the direct children of a category, in presentation order.
    //! The library always passes false and true as the flags.
    virtual QList<QString> getChildNames(QString fullName, bool recursive, bool presentationOrder) const = 0;
    //! Brings every snapshot up to date, emitting parameterDataChangedDecoupled as needed.
    virtual void refreshAll() = 0;
    //! Lets polled parameters update themselves; receives the polling interval.
    virtual void poll(qint64 elapsedMilliseconds) = 0;

protected:
    //! For the implementations of the parameter layer.
    explicit IParameterCollection(QObject* parent = nullptr);
};

} // namespace ParameterCollection
