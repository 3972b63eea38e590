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
 */
class ZVC_EXPORT FeatureTreeModel : public QAbstractItemModel, public IFeatureTreeModelExtension
{
    Q_OBJECT

public:
    //! One node map added to the model.
    struct NodemapListEntry
    {
        QString name; //!< as passed to addParameterCollection
        QSharedPointer<ParameterCollection::IParameterCollection> collection;
    };

    explicit FeatureTreeModel(QObject* parent = nullptr);
    ~FeatureTreeModel() override;

    using QObject::parent;

    // QAbstractItemModel
    QModelIndex index(int row, int column, const QModelIndex& parent = QModelIndex()) const override;
    QModelIndex parent(const QModelIndex& index) const override;
    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    int columnCount(const QModelIndex& parent = QModelIndex()) const override;
    bool hasChildren(const QModelIndex& parent = QModelIndex()) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role = Qt::EditRole) override;
    QMimeData* mimeData(const QModelIndexList& indexes) const override;
    bool dropMimeData(
        const QMimeData* data, Qt::DropAction action, int row, int column, const QModelIndex& parent) override;
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

    bool isDeviceAlive() const { return m_deviceAlive; }
    bool isMonitorMode() const { return m_monitorMode; }
    QList<NodemapListEntry> nodemaps() const { return m_nodemaps; }
    //! The invisible root. Owned by the model.
    FeatureTreeItem* rootItem() const { return m_root; }

    //! The favourites of the process, shared by every model and view.
    static FavoritesData m_favorites;

public slots:
    //! Deletes every item below the invisible root. Signals no reset: callers reset their views around it.
    void clear() override;
    void onNodeUpdated(int row, FeatureTreeINodeItem* nodeItem) override;
    void onTimerPoll() override;

private:
    friend class FeatureTreeProxyModel;

    FeatureTreeItem* itemFromIndex(const QModelIndex& index) const;
    void connectItem(FeatureTreeINodeItem* item);
    void updateFavoritesRootToolTip();
    void syncPersistentIndexes();
    bool isItemOfBuiltTree(const FeatureTreeItem* candidate) const;

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
    friend class FeatureTreeINodeItem;
};
