/*!
 * \file featuretree/ifeaturetreemodelextension.h
 * IFeatureTreeModelExtension, what the feature tree's items, view and widget
 * ask of its model, whether they hold the model itself or the search proxy.
 */
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
 *
 * Indexes passed in and handed out belong to the object asked: the proxy's
 * indexes when it is the proxy. Nothing here fetches children that the view
 * hasn't asked for, except where stated. GUI thread only.
 */
class ZVC_EXPORT IFeatureTreeModelExtension
{
public:
    virtual ~IFeatureTreeModelExtension();

    //! True for a row of the favourites list, a direct child of the favourites root; false for null.
    virtual bool IsFavoriteTreeItem(const FeatureTreeItem* item) const = 0;
    //! True for the root of the favourites branch; false for null.
    virtual bool IsFavoriteTreeRoot(const FeatureTreeItem* item) const = 0;
    //! The index of an item in column; invalid for null and for the invisible root.
    virtual QModelIndex indexForItem(FeatureTreeItem* item, int column) const = 0;
    //! The index of the favourites root; invalid while there is none.
    virtual QModelIndex GetFavoritesRootIndex() = 0;
    //! Starts or stops polling the first node map every 300 ms; polling is off at first.
    //! Stopping lets a tick already armed fire once more.
    virtual void EnablePolling(bool on) = 0;
    //! Whether polling is on.
    virtual bool GetPolling() const = 0;
    //! Shows or hides the favourites that the present camera lacks; forwarded to the favourites store.
    virtual void EnableViewAllFavorites(bool on) = 0;
    //! Whether favourites that the present camera lacks are shown.
    virtual bool GetViewAllFavorites() const = 0;
    /*!
     * Tells whether the device is still there. While it isn't, polling ends
     * for good (until polling is switched off and on again), writes are
     * refused and value changes are not announced; the tree keeps its last
     * values. Setting it back to true restarts nothing.
     */
    virtual void SetDeviceAlive(bool alive) = 0;
    //! The index of item in column if it is start or built below it (below the invisible root for a null start).
    //! Compares addresses; fetches nothing.
    virtual QModelIndex findItem(const FeatureTreeItem* item, const FeatureTreeItem* start, int column) const = 0;
    //! The first built item at or below start (the invisible root for null), depth first, whose full name is name.
    virtual QModelIndex findItemByFullName(const QString& name, FeatureTreeItem* start, int column) const = 0;
    //! The first built item at or below start (the invisible root for null), depth first, whose column 0 answers
    //! value in role.
    virtual QModelIndex findItemByRole(int role, const QVariant& value, FeatureTreeItem* start, int column) const = 0;
    /*!
     * Adds one node map as a top-level item named displayName, with the
     * first level of its categories filled, and binds the favourites of
     * nodeMapName that the collection holds. The node map's root category is
     * looked up as nodeMapName followed by "/Root". textAsUtf8 chooses how
     * values are written: as UTF-8 bytes rather than Latin-1. Each call adds
     * one more top-level item, also for a name added before; a failure is
     * queued on the error queue.
     */
    virtual void addParameterCollection(QSharedPointer<ParameterCollection::IParameterCollection> collection,
        const QString& displayName, const QString& nodeMapName, bool textAsUtf8)
        = 0;
    /*!
     * Builds the favourites branch anew from the store: every favourite
     * first as a placeholder showing its remembered name, then bound to a
     * live feature wherever a node map added so far holds it. An empty store
     * gives one help line instead. Makes the favourites root and the search
     * result line first if they aren't there.
     */
    virtual void rebuildFavoriteItems() = 0;
    //! Makes the favourites root, at the top of the tree, if there is none yet.
    virtual void CreateFavoritesRoot() = 0;
    //! Removes the favourite behind a row of the favourites list from the store; false for any other row.
    virtual bool RemoveFavorite(QModelIndex index) = 0;
    /*!
     * Adds a live parameter to the favourites store at position index, or at
     * the end for an index past it. False for null, a zombie, a negative
     * index or a feature that is a favourite already. The tree follows when
     * the store announces the change.
     */
    virtual bool AddFavorite(QSharedPointer<ParameterCollection::IParameter> parameter, int index) = 0;
    //! The favourites store of the process (FeatureTreeModel::m_favorites).
    virtual FavoritesData* GetFavorites() = 0;
    //! Moves the favourite behind a row of the favourites list one place up or down.
    virtual bool MoveFavorite(QModelIndex index, bool up) = 0;
    //! A row of the favourites list that can move one place up (not the first) or down (not the last).
    virtual bool CanMoveFavorite(QModelIndex index, bool up) const = 0;
    //! A live feature of the main tree, of any kind but a category, that may become a favourite.
    virtual bool CanAddAsFavorite(QModelIndex index) const = 0;
    //! Brings every snapshot of the first node map up to date (IParameterCollection::refreshAll()).
    virtual void refresh() = 0;
    //! Fills a category with items for its children, once; the view's row count calls it.
    virtual void addChildren(FeatureTreeINodeItem* nodeItem) = 0;
    //! Sets the user level against which rows are judged.
    virtual void setVisibility(GenApi::EVisibility visibility) = 0;
    //! The user level against which rows are judged.
    virtual GenApi::EVisibility getVisibility() const = 0;
    //! In monitor mode each poll tick refreshes every snapshot of the first node map instead of polling it.
    virtual void setMonitorMode(bool on) = 0;
    //! While off, items drop every new snapshot and keep showing their last one.
    virtual void setGenICamCallbacksEnable(bool on) = 0;
    //! Whether items take new snapshots; true at first.
    virtual bool getGenICamCallbackEnable() const = 0;
    //! The item behind an index, unchecked.
    virtual FeatureTreeItem* getFeatureTreeItem(const QModelIndex& index) const = 0;
    //! The search highlighter handed to every item built from now on; not owned.
    virtual void setHighlighter(FeatureTreeHighlighter* highlighter) = 0;
    //! The line at the top of the tree that reports the results of a search; null until the favourites are built.
    virtual FeatureTreeItem* getSearchHelpItem() const = 0;
    //! Announces the full-row items of the first three levels again, so that views span them anew.
    //! Fills the first two levels of every node map on the way.
    virtual void refreshSpecialItems() = 0;
    //! Deletes every item below the invisible root; the node maps stay known to polling and refresh().
    virtual void clear() = 0;
    //! An item took a new snapshot: announces both columns of its row, unless the device is gone.
    virtual void onNodeUpdated(int row, FeatureTreeINodeItem* nodeItem) = 0;
    //! One poll tick: polls (or, in monitor mode, refreshes) the first node map and arms the next tick.
    virtual void onTimerPoll() = 0;
    //! A name for the collection; the model keeps none and gives an empty text.
    virtual QString GetParameterCollectionName(
        QSharedPointer<ParameterCollection::IParameterCollection> collection) const = 0;
    //! Binds the favourites of nodeMapName that the collection holds to live items in the favourites branch,
    //! and brings the favourites root's tool tip up to date.
    virtual void replaceFavoritesZombies(
        QSharedPointer<ParameterCollection::IParameterCollection> collection, const QString& nodeMapName)
        = 0;
    //! The favourites store position of a row of the favourites list, from its full name; -1 for anything else.
    virtual int getFavoritesIndexFromFeatureTreeItem(const FeatureTreeItem* item) const = 0;
    //! The same for the item behind an index; -1 for an invalid index.
    virtual int getFavoritesIndexFromModelIndex(QModelIndex index) const = 0;

protected:
    //! For the models.
    IFeatureTreeModelExtension() = default;
    //! Copies nothing: the interface has no data.
    IFeatureTreeModelExtension(const IFeatureTreeModelExtension&) = default;
    //! Copies nothing: the interface has no data.
    IFeatureTreeModelExtension& operator=(const IFeatureTreeModelExtension&) = default;
};
