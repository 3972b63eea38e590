/*!
 * \file featuretree/featuretreeproxymodel.h
 * FeatureTreeProxyModel, the filter of the feature tree by user level and
 * search text, with its match counts.
 */
#pragma once

#include "ifeaturetreemodelextension.h"
#include "searchpattern.h"
#include "zarvexviewercomponents_export.h"

#include <QHash>
#include <QSortFilterProxyModel>

#include <vector>

class FeatureTreeModel;

/*!
 * Filters the feature tree by user level and by search text with one rule,
 * and counts on the way how many features matched and how many of those the
 * present level withholds. Everything else of IFeatureTreeModelExtension is
 * passed on to the FeatureTreeModel below, with indexes mapped.
 *
 * A row shows when it is a hit that the level shows, when one of its
 * ancestors is, or when something below it is. Categories are never hits: a
 * search finds features, and categories show as the path to them. A feature
 * counts once however many rows show it (tree and favourites, or two node
 * maps): the counts are keyed by the feature's name.
 *
 * The counts are a side effect of filtering: they cover the rows filtered
 * since the search text or the level changed or the mappings were last
 * dropped (invalidate(), a layout change, a reset).
 *
 * The search text is set with setFilterFixedString() and compared
 * case-insensitively with each row's display text and name. A search help
 * line (full name "Search") always passes the search; node map roots are
 * never hits. Without a FeatureTreeModel as source, the extension's
 * operations do nothing and give false, null, -1 or an invalid index.
 */
class ZVC_EXPORT FeatureTreeProxyModel : public QSortFilterProxyModel, public IFeatureTreeModelExtension
{
    Q_OBJECT

public:
    //! A proxy judging rows at the Guru level, with no source yet.
    explicit FeatureTreeProxyModel(QObject* parent = nullptr);
    ~FeatureTreeProxyModel() override;

    //! QSortFilterProxyModel's parent(const QModelIndex&) and QObject's parent(),
    //! which the overrides here would hide.
    using QSortFilterProxyModel::parent;

    // The model fills a category when its children are first counted, and
    // announces them. These count the source level first, so that the
    // announcement never arrives while the base class is mapping that very
    // parent: it would map it a second time and lose the first mapping.
    //! The base class's index, after the source level below parent is filled.
    QModelIndex index(int row, int column, const QModelIndex& parent = QModelIndex()) const override;
    //! The base class's row count, after the source level below parent is filled.
    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    //! For a row: whether its source row has children, since a row that shows
    //! has a child that shows; fills nothing. The base class's answer for the root.
    bool hasChildren(const QModelIndex& parent = QModelIndex()) const override;
    //! The source's column count for a row, the base class's for the root; fills nothing.
    int columnCount(const QModelIndex& parent = QModelIndex()) const override;
    //! Also follows when the source is in the middle of a change (see fillSourceLevel()).
    void setSourceModel(QAbstractItemModel* sourceModel) override;

    /*!
     * Features that matched the search and show at the present level, each
     * counted once by name. Every feature of the source counts, whether or
     * not its parent is expanded, filled or mapped: the first call after the
     * search, the level or the rows changed walks the whole source (filling
     * what the model has not filled yet), later calls cost nothing.
     */
    int getVisibleMatchCount() const;
    /*!
     * Features that matched the search but need a higher level than the
     * present one (up to Guru), counted as getVisibleMatchCount() counts.
     */
    int getInvisibleMatchCount() const;

    //! The source as a FeatureTreeModel; null if it isn't one.
    FeatureTreeModel* getFeatureTreeModel();
    //! The source as a FeatureTreeModel; null if it isn't one.
    const FeatureTreeModel* getFeatureTreeModel() const;

    // IFeatureTreeModelExtension, forwarded to the source.
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
    //! Every row passes while the collection is added; the caller invalidates afterwards.
    void addParameterCollection(QSharedPointer<ParameterCollection::IParameterCollection> collection,
        const QString& displayName, const QString& nodeMapName, bool textAsUtf8) override;
    void rebuildFavoriteItems() override;
    void CreateFavoritesRoot() override;
    bool RemoveFavorite(QModelIndex index) override;
    bool AddFavorite(QSharedPointer<ParameterCollection::IParameter> parameter, int index) override;
    //! The model's store; without a model a store of the proxy's own, never null.
    FavoritesData* GetFavorites() override;
    bool MoveFavorite(QModelIndex index, bool up) override;
    bool CanMoveFavorite(QModelIndex index, bool up) const override;
    bool CanAddAsFavorite(QModelIndex index) const override;
    void refresh() override;
    void addChildren(FeatureTreeINodeItem* nodeItem) override;
    //! Also judges rows against this level from now on; doesn't invalidate.
    void setVisibility(GenApi::EVisibility visibility) override;
    GenApi::EVisibility getVisibility() const override;
    void setMonitorMode(bool on) override;
    void setGenICamCallbacksEnable(bool on) override;
    bool getGenICamCallbackEnable() const override;
    FeatureTreeItem* getFeatureTreeItem(const QModelIndex& index) const override;
    void setHighlighter(FeatureTreeHighlighter* highlighter) override;
    FeatureTreeItem* getSearchHelpItem() const override;
    void refreshSpecialItems() override;
    void clear() override;
    void onNodeUpdated(int row, FeatureTreeINodeItem* nodeItem) override;
    void onTimerPoll() override;
    QString GetParameterCollectionName(
        QSharedPointer<ParameterCollection::IParameterCollection> collection) const override;
    void replaceFavoritesZombies(
        QSharedPointer<ParameterCollection::IParameterCollection> collection, const QString& nodeMapName) override;
    int getFavoritesIndexFromFeatureTreeItem(const FeatureTreeItem* item) const override;
    int getFavoritesIndexFromModelIndex(QModelIndex index) const override;

protected:
    /*!
     * A row passes when it is a hit that the level shows, when one of its
     * ancestors is, or when a descendant is; every row passes while a
     * collection is being added. Counts the matches it meets.
     */
    bool filterAcceptsRow(int sourceRow, const QModelIndex& sourceParent) const override;
    //! The row itself is a hit that the level shows; counts it as it goes.
    bool filterAcceptsRowItself(int sourceRow, const QModelIndex& sourceParent) const;
    //! A child of the row, or a descendant, passes filterAcceptsRowItself.
    bool hasAcceptedChildren(int sourceRow, const QModelIndex& sourceParent, int depth) const;

private slots:
    //! New counts: the base class is about to drop its mappings and filter every row again.
    void startPass();
    //! Follows the source's row insertions and removals for the counts.
    void watchSource();
    void sourceRowsInserted();
    void sourceRowsRemoved();

private:
    //! Lets the model fill the source level below parent, outside any mapping of the base class;
    //! false if the level must wait for the end of a change of the source.
    bool fillSourceLevel(const QModelIndex& parent) const;
    class FillHold;
    //! filterAcceptsRowItself for the row of a source index in column 0.
    bool filterAcceptsIndexItself(const QModelIndex& index) const;
    bool matchesFilter(const QString& text) const;
    bool filterAcceptsRowOrRelative(int sourceRow, const QModelIndex& sourceParent) const;
    //! Fills the filter's fields of a row from its item; false where only data() can tell.
    bool readFilterFields(const QModelIndex& index, void* fieldsOut) const;
    //! Makes the counts those of the present text and level over every row of the source.
    void completeCounts() const;
    // Empties both counts and marks them incomplete.
    void dropCounts() const;
    //! Starts new counts if the text or the level differs from the present pass's.
    void followPattern() const;

    bool m_addingCollection = false;
    GenApi::EVisibility m_visibility = GenApi::Guru;
    // The names that matched in the present filtering pass. Each name keeps
    // the number of the last pass that saw it, so that a new pass costs a
    // counter instead of freeing and allocating a table entry per feature
    // again; on a large tree that was a tenth of a keystroke.
    //
    // The names sit in one open-addressed table rather than a QHash: a QHash
    // look-up reads a bucket and then a node allocated apart, two cache misses
    // per matching row on a tree too large for the cache, where the table's
    // slot holds name, hash and pass together.
    struct MatchSet
    {
        struct Slot
        {
            QString name;
            uint hash = 0;
            quint32 pass = 0; // 0: an empty slot
        };
        std::vector<Slot> table; // a power of two in size, or empty
        int used = 0; // slots holding a name
        quint32 pass = 1;
        int count = 0;

        void startPass()
        {
            // Pass 0 marks empty slots; when the number wraps, old slots
            // could pass for this pass's, so the table starts afresh. Names
            // no longer seen are dropped too, now and then, not on every pass.
            const bool wrapped = ++pass == 0;
            if (wrapped)
                pass = 1;
            if (wrapped || used > 2 * count + 1024) {
                table.clear();
                used = 0;
            }
            count = 0;
        }
        void insert(const QString& name);

    private:
        void grow();
    };
    // Filled during const filtering.
    mutable MatchSet m_visibleMatches;
    mutable MatchSet m_invisibleMatches;
    // The filter's pattern as of the last top-level row filtered; used while
    // filterAcceptsRow() runs (m_patternCached).
    mutable SearchPattern m_pattern;
    mutable bool m_patternKnown = false;
    // The level of the present pass.
    mutable GenApi::EVisibility m_passVisibility = GenApi::Guru;
    mutable bool m_patternCached = false;
    // The source is a FeatureTreeModel itself, not a class derived from it.
    mutable bool m_sourceIsFeatureTreeModel = false;
    // The counts hold every match of the source, not only those that the
    // filtering happened to reach; cleared with each pass and each change of
    // the source's rows that isn't the counting walk's own filling.
    mutable bool m_countsComplete = false;
    mutable bool m_countingWalk = false;
    // startPass() ran and no row was filtered since: the next pass's text
    // and level are those of now.
    mutable bool m_passDropped = false;
    QMetaObject::Connection m_sourceInserted;
    QMetaObject::Connection m_sourceRemoved;
    // Changes of the source under way, this proxy's handling of them included.
    int m_sourceChanges = 0;
    QList<QMetaObject::Connection> m_changeConnections;
    // Source levels asked for during a change, filled once it is over.
    mutable QList<QPersistentModelIndex> m_levelsToFill;
    mutable bool m_fillPosted = false;
    void sourceChangeEnds();
    void fillWaitingLevels();
};
