/*!
 * \file featuretree/ifeaturetreestatusservice.h
 * Plugin::FeatureTree::IFeatureTreeStatusService, a feature tree's news for a
 * host's plug-ins.
 */
#pragma once

#include "parameters/genapienums.h"
#include "parameters/iparameter.h"
#include "parameters/iservice.h"
#include "zarvexviewercomponents_export.h"

#include <QSharedPointer>
#include <QString>

namespace Plugin {
//! The service interfaces around a feature tree, for a host's plug-ins.
namespace FeatureTree {

/*!
 * Service through which a host's plug-ins learn what happens in a feature
 * tree. The library only declares it: a host implements it and connects the
 * matching signals of FeatureTreeWidget (visibilityChanged, onCurrentChanged
 * and onNewText) to the signals here.
 */
class ZVC_EXPORT IFeatureTreeStatusService : public Core::Service::IService
{
    Q_OBJECT

public:
    ~IFeatureTreeStatusService() override;

signals:
    //! The user level of the tree changed.
    void visibilityChanged(GenApi::EVisibility visibility);
    //! The current row of the tree now stands for this parameter.
    void currentChanged(QSharedPointer<ParameterCollection::IParameter> parameter);
    //! The current row has no parameter but this description.
    void newText(QString text);

protected:
    //! For the host's implementation.
    explicit IFeatureTreeStatusService(QObject* parent = nullptr);
};

} // namespace FeatureTree
} // namespace Plugin
