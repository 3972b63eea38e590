/*!
 * \file featuretree/featuretreemodel.h
 * FeatureTreeModel, the item model behind every feature tree.
 */
#pragma once

#include "favoritesdata.h"
#include "ifeaturetreemodelextension.h"
#include "zarvexviewercomponents_export.h"

#include <QAbstractItemModel>
#include <QList>
#include <QSharedPointer>
#include <QTimer>

class FeatureTreeItem;
class FeatureTreeINodeItem;
class FeatureTreeHighlighter;

/*!
 * The item model behind every feature tree: an invisible root, the search
 * help line, the favourites branch, and one top-level item per node map with
 * its categories and features below, filled one level at a time as the view
 * asks for rows.
 *
 * Ownership: the model owns the root item and through it every item. Items
 * share parameters and collections with the parameter layer and delete
 * neither. The highlighter is not owned. The favourites store is one static
 * object shared by all models of the process.
 *
 * Values written through setData() come back through the parameter's own
 * change signal: the model emits nothing for a write by itself.
 *
 * The tree has two columns, "Feature" and "Value". Under the invisible root
 * stand the search result line, the favourites root and one item per node
 * map. Polling, when on, polls the first node map every 300 ms on a
 * single-shot timer that is armed again after each poll. A failing read or
 * write is queued on the error queue (GetTheGlobalAsyncErrorQueue()); a run
 * of failing reads gives one message.
 */
class ZVC_EXPORT FeatureTreeModel : public QAbstractItemModel, public IFeatureTreeModelExtension
{
    Q_OBJECT

public:
    //! One node map added to the model.
    struct NodemapListEntry
    {
        QString name; //!< as passed to addParameterCollection
        QSharedPointer<ParameterCollection::IParameterCollection> collection; //!< the node map
    };

    //! An empty model, polling off; the favourites branch comes with rebuildFavoriteItems().
    explicit FeatureTreeModel(QObject* parent = nullptr);
    //! Stops polling, deletes every item and saves the favourites.
    ~FeatureTreeModel() override;

    //! QObject's parent(), which parent(const QModelIndex&) would hide.
    using QObject::parent;

    // QAbstractItemModel
    //! The index of a built child; invalid where there is none. Fetches nothing.
    QModelIndex index(int row, int column, const QModelIndex& parent = QModelIndex()) const override;
    //! The index of the parent item in column 0; invalid for a top-level item.
    QModelIndex parent(const QModelIndex& index) const override;
    //! The number of children, fetching a category's children on the first call.
    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    //! Always 2.
    int columnCount(const QModelIndex& parent = QModelIndex()) const override;
    //! True for the invisible root, also when it is empty, and for a category before it is fetched.
    bool hasChildren(const QModelIndex& parent = QModelIndex()) const override;
    //! "Feature" and "Value" as horizontal display texts, translated.
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;
    //! The item's flags for the index's column; Qt::ItemIsEnabled for an invalid index.
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    //! What the item shows. A read that throws gives an invalid QVariant and queues
    //! one message for a run of failures (none for a GenICam::GenericException).
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    /*!
     * Writes a value of column 1 in Qt::EditRole to the parameter, unless the
     * item shows that value already. False for any other cell or role, an
     * invalid value, a gone device or a failed write; a failed write (other
     * than a GenICam::GenericException) is queued on the error queue while
     * the device is there. Emits nothing: the
     * new value comes back through the parameter's change signal.
     */
    bool setData(const QModelIndex& index, const QVariant& value, int role = Qt::EditRole) override;
    //! The base class's data plus "application/x-fti": the dragged items, valid only inside this process.
    QMimeData* mimeData(const QModelIndexList& indexes) const override;
    /*!
     * Drops rows on the favourites: a dragged favourite moves to row, a
     * dragged feature is added there (row -1 counts as the number of
     * top-level rows, so past the end of a short list). The favourites
     * branch is rebuilt once for the whole drop. Items that aren't in the
     * built tree any more are passed over.
     */
    bool dropMimeData(
        const QMimeData* data, Qt::DropAction action, int row, int column, const QModelIndex& parent) override;
    //! Qt::MoveAction.
    Qt::DropActions supportedDropActions() const override;

    // IFeatureTreeModelExtension
    bool IsFavoriteTreeItem(const FeatureTreeItem* item) const override;
    bool IsFavoriteTreeRoot(const FeatureTreeItem* item) const override;
    QModelIndex indexForItem(FeatureTreeItem* item, int column) const override;
    QModelIndex GetFavoritesRootIndex() override;
    void EnablePolling(bool on) override;
    bool GetPolling() const override;
    void EnableViewAllFavorites(bool on) override;
    bool GetViewAllFavorites() const override;
    void SetDeviceAlive(bool alive) override;
    QModelIndex findItem(const FeatureTreeItem* item, const FeatureTreeItem* start, int column) const override;
    QModelIndex findItemByFullName(const QString& name, FeatureTreeItem* start, int column) const override;
    QModelIndex findItemByRole(int role, const QVariant& value, FeatureTreeItem* start, int column) const override;
    void addParameterCollection(QSharedPointer<ParameterCollection::IParameterCollection> collection,
        const QString& displayName, const QString& nodeMapName, bool textAsUtf8) override;
    void rebuildFavoriteItems() override;
    void CreateFavoritesRoot() override;
    bool RemoveFavorite(QModelIndex index) override;
    bool AddFavorite(QSharedPointer<ParameterCollection::IParameter> parameter, int index) override;
    FavoritesData* GetFavorites() override;
    bool MoveFavorite(QModelIndex index, bool up) override;
    bool CanMoveFavorite(QModelIndex index, bool up) const override;
    bool CanAddAsFavorite(QModelIndex index) const override;
    void refresh() override;
    void addChildren(FeatureTreeINodeItem* nodeItem) override;
    void setVisibility(GenApi::EVisibility visibility) override;
    GenApi::EVisibility getVisibility() const override;
    void setMonitorMode(bool on) override;
    void setGenICamCallbacksEnable(bool on) override;
    bool getGenICamCallbackEnable() const override;
    FeatureTreeItem* getFeatureTreeItem(const QModelIndex& index) const override;
    void setHighlighter(FeatureTreeHighlighter* highlighter) override;
    FeatureTreeItem* getSearchHelpItem() const override;
    void refreshSpecialItems() override;
    QString GetParameterCollectionName(
        QSharedPointer<ParameterCollection::IParameterCollection> collection) const override;
    void replaceFavoritesZombies(
        QSharedPointer<ParameterCollection::IParameterCollection> collection, const QString& nodeMapName) override;
    int getFavoritesIndexFromFeatureTreeItem(const FeatureTreeItem* item) const override;
    int getFavoritesIndexFromModelIndex(QModelIndex index) const override;

    //! False after SetDeviceAlive(false).
    bool isDeviceAlive() const { return m_deviceAlive; }
    //! Whether poll ticks refresh instead of poll.
    bool isMonitorMode() const { return m_monitorMode; }
    //! The node maps added, in order; clear() keeps them.
    QList<NodemapListEntry> nodemaps() const { return m_nodemaps; }
    //! The invisible root. Owned by the model.
    FeatureTreeItem* rootItem() const { return m_root; }

    //! The favourites of the process, shared by every model and view.
    static FavoritesData m_favorites;

public slots:
    //! Deletes every item below the invisible root. Signals no reset: callers reset their views around it.
    void clear() override;
    //! An item took a new snapshot: emits dataChanged() for column 0 and then column 1 of its row,
    //! with no roles named, unless the device is gone.
    void onNodeUpdated(int row, FeatureTreeINodeItem* nodeItem) override;
    //! One poll tick: polls (or, in monitor mode, refreshes) the first node map and arms the next
    //! tick while polling is on. A failed poll is logged; polling goes on. Nothing happens once the device is gone.
    void onTimerPoll() override;

private:
    friend class FeatureTreeProxyModel;

    FeatureTreeItem* itemFromIndex(const QModelIndex& index) const;
    void connectItem(FeatureTreeINodeItem* item);
    void updateFavoritesRootToolTip();
    void syncPersistentIndexes();
    bool isItemOfBuiltTree(const FeatureTreeItem* candidate) const;
    int unfilledCategoryShowsFeature(const QModelIndex& index, int level) const;

    FeatureTreeItem* m_root; // owned
    FeatureTreeItem* m_favoritesRoot = nullptr; // owned through m_root
    FeatureTreeItem* m_searchHelpItem = nullptr; // owned through m_root
    QList<NodemapListEntry> m_nodemaps;
    mutable bool m_errorShown = false;
    qint32 m_visibility = GenApi::Guru;
    const qint64 m_pollInterval = 300;
    QTimer m_timer;
    bool m_polling = false;
    bool m_deviceAlive = true;
    bool m_monitorMode = false;
    bool m_genICamCallbacksEnabled = true;
    bool m_textAsUtf8 = false;
    // Between this model's layoutAboutToBeChanged() and the return of its
    // layoutChanged(): levels filled then are part of that layout change.
    bool m_layoutChanging = false;
    class LayoutChange;
    FeatureTreeHighlighter* m_highlighter = nullptr; // not owned
    // Items of this model whose children are still to be fetched (kept by the
    // items, see FeatureTreeINodeItem::childCount): at zero the proxy knows
    // that asking a row count can't fill anything.
    int m_unfetchedCategories = 0;
    // While above zero, counting a category's children does not fill it (see
    // FeatureTreeProxyModel::fillSourceLevel()).
    int m_fillHolds = 0;
    // While above zero, a category filled is not announced: the proxy asks
    // for it so while no one has mapped or counted its rows yet.
    int m_quietFills = 0;
    friend class FeatureTreeINodeItem;
};
