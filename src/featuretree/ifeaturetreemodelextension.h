#pragma once

#include "parameters/genapienums.h"
#include "parameters/iparameter.h"
#include "parameters/iparametercollection.h"
#include "zarvexviewercomponents_export.h"

#include <QModelIndex>
#include <QSharedPointer>
#include <QString>
#include <QVariant>

class FavoritesData;
class FeatureTreeHighlighter;
class FeatureTreeINodeItem;
class FeatureTreeItem;

/*!
 * What items, the view and the widget may ask of the feature tree's model.
 * FeatureTreeModel implements it on its own items; FeatureTreeProxyModel
 * forwards it with its index mapping, so presentation code can speak to
 * either. Items hold it as a raw pointer: it lives as long as the model.
 */
class ZVC_EXPORT IFeatureTreeModelExtension
{
public:
    virtual ~IFeatureTreeModelExtension();

    virtual bool IsFavoriteTreeItem(const FeatureTreeItem* item) const = 0;
    virtual bool IsFavoriteTreeRoot(const FeatureTreeItem* item) const = 0;
    virtual QModelIndex indexForItem(FeatureTreeItem* item, int column) const = 0;
    virtual QModelIndex GetFavoritesRootIndex() = 0;
    virtual void EnablePolling(bool on) = 0;
    virtual bool GetPolling() const = 0;
    virtual void EnableViewAllFavorites(bool on) = 0;
    virtual bool GetViewAllFavorites() const = 0;
    virtual void SetDeviceAlive(bool alive) = 0;
    virtual QModelIndex findItem(const FeatureTreeItem* item, const FeatureTreeItem* start, int column) const = 0;
    virtual QModelIndex findItemByFullName(const QString& name, FeatureTreeItem* start, int column) const = 0;
    virtual QModelIndex findItemByRole(int role, const QVariant& value, FeatureTreeItem* start, int column) const = 0;
    virtual void addParameterCollection(QSharedPointer<ParameterCollection::IParameterCollection> collection,
        const QString& displayName, const QString& nodeMapName, bool textAsUtf8)
        = 0;
    virtual void rebuildFavoriteItems() = 0;
    virtual void CreateFavoritesRoot() = 0;
    virtual bool RemoveFavorite(QModelIndex index) = 0;
    virtual bool AddFavorite(QSharedPointer<ParameterCollection::IParameter> parameter, int index) = 0;
    virtual FavoritesData* GetFavorites() = 0;
    virtual bool MoveFavorite(QModelIndex index, bool up) = 0;
    virtual bool CanMoveFavorite(QModelIndex index, bool up) const = 0;
    virtual bool CanAddAsFavorite(QModelIndex index) const = 0;
    virtual void refresh() = 0;
    virtual void addChildren(FeatureTreeINodeItem* nodeItem) = 0;
    virtual void setVisibility(GenApi::EVisibility visibility) = 0;
    virtual GenApi::EVisibility getVisibility() const = 0;
    virtual void setMonitorMode(bool on) = 0;
    virtual void setGenICamCallbacksEnable(bool on) = 0;
    virtual bool getGenICamCallbackEnable() const = 0;
    virtual FeatureTreeItem* getFeatureTreeItem(const QModelIndex& index) const = 0;
    virtual void setHighlighter(FeatureTreeHighlighter* highlighter) = 0;
    virtual FeatureTreeItem* getSearchHelpItem() const = 0;
    virtual void refreshSpecialItems() = 0;
    virtual void clear() = 0;
    virtual void onNodeUpdated(int row, FeatureTreeINodeItem* nodeItem) = 0;
    virtual void onTimerPoll() = 0;
    virtual QString GetParameterCollectionName(
        QSharedPointer<ParameterCollection::IParameterCollection> collection) const = 0;
    virtual void replaceFavoritesZombies(
        QSharedPointer<ParameterCollection::IParameterCollection> collection, const QString& nodeMapName)
        = 0;
    virtual int getFavoritesIndexFromFeatureTreeItem(const FeatureTreeItem* item) const = 0;
    virtual int getFavoritesIndexFromModelIndex(QModelIndex index) const = 0;

protected:
    IFeatureTreeModelExtension() = default;
    IFeatureTreeModelExtension(const IFeatureTreeModelExtension&) = default;
    IFeatureTreeModelExtension& operator=(const IFeatureTreeModelExtension&) = default;
};
