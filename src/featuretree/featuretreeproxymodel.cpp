#include "featuretreeproxymodel.h"

#include "favoritesdata.h"
#include "featuretreefavoritesitem.h"
#include "featuretreeinodeitem.h"
#include "featuretreeitem.h"
#include "featuretreemodel.h"

#include <QVector>

using namespace ParameterCollection;

FeatureTreeProxyModel::FeatureTreeProxyModel(QObject* parent)
    : QSortFilterProxyModel(parent)
{
    // The base class drops its mappings around these two signals, and every
    // row is filtered again as its parent is mapped anew.
    connect(this, SIGNAL(layoutAboutToBeChanged()), this, SLOT(startPass()));
    connect(this, SIGNAL(modelAboutToBeReset()), this, SLOT(startPass()));
    connect(this, SIGNAL(sourceModelChanged()), this, SLOT(watchSource()));
}

FeatureTreeProxyModel::~FeatureTreeProxyModel() = default;

int FeatureTreeProxyModel::getVisibleMatchCount() const
{
    completeCounts();
    return m_visibleMatches.count;
}

int FeatureTreeProxyModel::getInvisibleMatchCount() const
{
    completeCounts();
    return m_invisibleMatches.count;
}

void FeatureTreeProxyModel::watchSource()
{
    disconnect(m_sourceInserted);
    disconnect(m_sourceRemoved);
    m_countsComplete = false;
    if (QAbstractItemModel* source = sourceModel()) {
        m_sourceInserted
            = connect(source, SIGNAL(rowsInserted(QModelIndex, int, int)), this, SLOT(sourceRowsInserted()));
        m_sourceRemoved = connect(source, SIGNAL(rowsRemoved(QModelIndex, int, int)), this, SLOT(sourceRowsRemoved()));
    }
}

void FeatureTreeProxyModel::sourceRowsInserted()
{
    // The walk's own filling adds rows that it is about to count.
    if (!m_countingWalk)
        m_countsComplete = false;
}

void FeatureTreeProxyModel::sourceRowsRemoved()
{
    // A removed feature may have been the only row of its name: the counts
    // start afresh and are walked again when next asked for.
    if (m_addingCollection)
        return;
    dropCounts();
}

void FeatureTreeProxyModel::dropCounts() const
{
    m_visibleMatches.startPass();
    m_invisibleMatches.startPass();
    m_countsComplete = false;
}

void FeatureTreeProxyModel::followPattern() const
{
    const SearchPattern pattern = SearchPattern::ofProxy(*this, m_pattern);
    if (pattern != m_pattern || m_visibility != m_passVisibility) {
        dropCounts();
        m_pattern = pattern;
        m_passVisibility = m_visibility;
    }
    m_passDropped = false;
}

void FeatureTreeProxyModel::completeCounts() const
{
    // Filtering counts the rows it reaches, and it stops below a row at the
    // first accepted descendant and never reaches the rows under a collapsed
    // category: a deep match would go uncounted. So the counts, once asked
    // for, come from one walk over every row of the source, by the same rule
    // and with the text and level of the present pass; the filtering that
    // follows finds its names counted already. A level that is set but not
    // filtered yet is counted from the next pass on, when it filters. Nothing
    // is counted while a collection is being added.
    const QAbstractItemModel* source = sourceModel();
    if (!source || m_addingCollection || m_countingWalk)
        return;
    // Mappings dropped and not yet filtered again: the pass takes the text
    // and level of now, as its filtering will.
    if (m_passDropped) {
        followPattern();
        m_patternKnown = true;
    }
    if (m_countsComplete)
        return;
    m_sourceIsFeatureTreeModel = source->metaObject() == &FeatureTreeModel::staticMetaObject;
    const bool wasCached = m_patternCached;
    m_patternCached = true;
    // Restores both flags on every way out, a throwing row included.
    struct WalkScope
    {
        const FeatureTreeProxyModel& proxy;
        bool wasCached;
        ~WalkScope()
        {
            proxy.m_countingWalk = false;
            proxy.m_patternCached = wasCached;
        }
    } scope { *this, wasCached };
    m_countingWalk = true;
    QVector<QModelIndex> pending { QModelIndex() };
    while (!pending.isEmpty()) {
        const QModelIndex parent = pending.takeLast();
        // (Asking for the row count lets a FeatureTreeModel fill the level.)
        const int rows = source->rowCount(parent);
        for (int row = 0; row < rows; ++row) {
            const QModelIndex index = source->index(row, 0, parent);
            filterAcceptsIndexItself(index);
            if (source->hasChildren(index))
                pending.append(index);
        }
    }
    m_countsComplete = true;
}

FeatureTreeModel* FeatureTreeProxyModel::getFeatureTreeModel()
{
    return qobject_cast<FeatureTreeModel*>(sourceModel());
}

const FeatureTreeModel* FeatureTreeProxyModel::getFeatureTreeModel() const
{
    return qobject_cast<const FeatureTreeModel*>(sourceModel());
}

// ---- filtering -----------------------------------------------------------

bool FeatureTreeProxyModel::fillSourceLevel(const QModelIndex& parent) const
{
    QAbstractItemModel* source = sourceModel();
    if (!source)
        return true;
    // A view asks this for every row it walks. Once a FeatureTreeModel has
    // fetched every category it has nothing left to fill, and the mapping of
    // the parent to the source (about a tenth of a search keystroke on a large
    // tree) is spared.
    if (source->metaObject() != &FeatureTreeModel::staticMetaObject) {
        source->rowCount(mapToSource(parent));
        return true;
    }
    if (static_cast<const FeatureTreeModel*>(source)->m_unfetchedCategories == 0)
        return true;
    const QModelIndex sourceParent = mapToSource(parent);
    // A category that shows may not be filled yet (see hasAcceptedChildren()).
    // Filled while the source or this proxy is in the middle of a change, its
    // rows would be announced inside that change, where no view or tester
    // expects another: such a level is filled once the change is over, and
    // counts no rows until then.
    const FeatureTreeINodeItem* category = nullptr;
    if (sourceParent.isValid()) {
        const auto* item = static_cast<const FeatureTreeItem*>(sourceParent.internalPointer());
        category = qobject_cast<const FeatureTreeINodeItem*>(item);
        if (category && (category->m_childrenFetched || !category->m_node))
            category = nullptr;
    }
    if (category && m_sourceChanges > 0) {
        m_levelsToFill.append(QPersistentModelIndex(sourceParent));
        return false;
    }
    // A level that nothing has mapped or counted yet is filled without an
    // announcement: announced, it would reach the views as an insertion in
    // the middle of the very layout that asks for it (a view expanding the
    // category), and each would lay out the tree again. Only a level that
    // the base class mapped empty while it waited has rows to announce.
    auto* model = static_cast<FeatureTreeModel*>(source);
    const bool quiet = category && !m_levelsToFill.contains(QPersistentModelIndex(sourceParent));
    if (quiet)
        ++model->m_quietFills;
    source->rowCount(sourceParent);
    if (quiet)
        --model->m_quietFills;
    return true;
}

// Keeps a FeatureTreeModel from filling levels for the length of a scope.
class FeatureTreeProxyModel::FillHold
{
public:
    explicit FillHold(const QAbstractItemModel* source)
        : m_model(source && source->metaObject() == &FeatureTreeModel::staticMetaObject
                ? const_cast<FeatureTreeModel*>(static_cast<const FeatureTreeModel*>(source))
                : nullptr)
    {
        if (m_model)
            ++m_model->m_fillHolds;
    }
    ~FillHold()
    {
        if (m_model)
            --m_model->m_fillHolds;
    }
    FillHold(const FillHold&) = delete;
    FillHold& operator=(const FillHold&) = delete;

private:
    FeatureTreeModel* m_model;
};

void FeatureTreeProxyModel::setSourceModel(QAbstractItemModel* model)
{
    for (const QMetaObject::Connection& connection : qAsConst(m_changeConnections))
        disconnect(connection);
    m_changeConnections.clear();
    m_sourceChanges = 0;
    m_levelsToFill.clear();
    // The start of each change is seen before the base class handles it, and
    // its end after: connected before and after the base class connects.
    const auto begins = [this] { ++m_sourceChanges; };
    const auto ends = [this] { sourceChangeEnds(); };
    if (model) {
        m_changeConnections << connect(model, &QAbstractItemModel::rowsAboutToBeInserted, this, begins)
                            << connect(model, &QAbstractItemModel::rowsAboutToBeRemoved, this, begins)
                            << connect(model, &QAbstractItemModel::rowsAboutToBeMoved, this, begins)
                            << connect(model, &QAbstractItemModel::columnsAboutToBeInserted, this, begins)
                            << connect(model, &QAbstractItemModel::columnsAboutToBeRemoved, this, begins)
                            << connect(model, &QAbstractItemModel::columnsAboutToBeMoved, this, begins)
                            << connect(model, &QAbstractItemModel::layoutAboutToBeChanged, this, begins)
                            << connect(model, &QAbstractItemModel::modelAboutToBeReset, this, begins)
                            << connect(model, &QAbstractItemModel::dataChanged, this, begins);
    }
    QSortFilterProxyModel::setSourceModel(model);
    if (model) {
        m_changeConnections << connect(model, &QAbstractItemModel::rowsInserted, this, ends)
                            << connect(model, &QAbstractItemModel::rowsRemoved, this, ends)
                            << connect(model, &QAbstractItemModel::rowsMoved, this, ends)
                            << connect(model, &QAbstractItemModel::columnsInserted, this, ends)
                            << connect(model, &QAbstractItemModel::columnsRemoved, this, ends)
                            << connect(model, &QAbstractItemModel::columnsMoved, this, ends)
                            << connect(model, &QAbstractItemModel::layoutChanged, this, ends)
                            << connect(model, &QAbstractItemModel::modelReset, this, ends)
                            << connect(model, &QAbstractItemModel::dataChanged, this, ends);
    }
}

void FeatureTreeProxyModel::sourceChangeEnds()
{
    if (m_sourceChanges > 0)
        --m_sourceChanges;
    if (m_sourceChanges > 0 || m_levelsToFill.isEmpty() || m_fillPosted)
        return;
    // Posted: the source may still be telling others of the change.
    m_fillPosted = true;
    QMetaObject::invokeMethod(
        this, [this] { fillWaitingLevels(); }, Qt::QueuedConnection);
}

void FeatureTreeProxyModel::fillWaitingLevels()
{
    m_fillPosted = false;
    if (m_sourceChanges > 0)
        return; // the end of that change posts again
    QAbstractItemModel* source = sourceModel();
    const QList<QPersistentModelIndex> levels = m_levelsToFill;
    m_levelsToFill.clear();
    for (const QPersistentModelIndex& level : levels) {
        if (source && level.isValid() && level.model() == source)
            source->rowCount(level);
    }
}

QModelIndex FeatureTreeProxyModel::index(int row, int column, const QModelIndex& parent) const
{
    if (fillSourceLevel(parent))
        return QSortFilterProxyModel::index(row, column, parent);
    // The level waits: the base class maps it as it stands, empty.
    const FillHold hold(sourceModel());
    return QSortFilterProxyModel::index(row, column, parent);
}

int FeatureTreeProxyModel::rowCount(const QModelIndex& parent) const
{
    if (fillSourceLevel(parent))
        return QSortFilterProxyModel::rowCount(parent);
    const FillHold hold(sourceModel());
    return QSortFilterProxyModel::rowCount(parent);
}

int FeatureTreeProxyModel::columnCount(const QModelIndex& parent) const
{
    // The base class would map the parent to answer, and so fill its level;
    // every column passes, so the source's count is the answer.
    const QAbstractItemModel* source = sourceModel();
    if (parent.isValid() && source && source->metaObject() == &FeatureTreeModel::staticMetaObject)
        return source->columnCount(mapToSource(parent));
    return QSortFilterProxyModel::columnCount(parent);
}

bool FeatureTreeProxyModel::hasChildren(const QModelIndex& parent) const
{
    // A row that shows has a child that shows whenever its source row has
    // children: a category shows only for a descendant that passes, and the
    // descendants of a hit pass with it. So the level need not be filled, nor
    // its rows filtered, to answer: a view asks this of every row it lays out.
    const QAbstractItemModel* source = sourceModel();
    if (parent.isValid() && !m_addingCollection && source
        && source->metaObject() == &FeatureTreeModel::staticMetaObject) {
        const QModelIndex sourceParent = mapToSource(parent);
        return sourceParent.isValid() && source->hasChildren(sourceParent) && source->columnCount(sourceParent) > 0;
    }
    if (fillSourceLevel(parent))
        return QSortFilterProxyModel::hasChildren(parent);
    const FillHold hold(sourceModel());
    return QSortFilterProxyModel::hasChildren(parent);
}

bool FeatureTreeProxyModel::matchesFilter(const QString& text) const
{
    // Outside filterAcceptsRow() the pattern of the pass is left alone. (Two
    // calls, not one with a conditional: that would copy the pass's pattern
    // into a temporary for every row.)
    if (m_patternCached)
        return m_pattern.matches(text);
    return SearchPattern::ofProxy(*this, m_pattern).matches(text);
}

namespace {

// What the filter reads of a row: the same as IsCategoryRole, NodeNameRole,
// ShowMeRole, VisibilityRole and Qt::DisplayRole of the name column give. The
// texts point into the item where it is read directly, else into the copies
// below.
struct FilterFields
{
    bool isCategory = false;
    const QString* name = nullptr;
    bool showMe = false;
    int visibility = 0;
    const QString* displayText = nullptr;
    QString nameCopy;
    QString displayTextCopy;
};

const QString emptyText;

} // namespace

bool FeatureTreeProxyModel::readFilterFields(const QModelIndex& index, void* fieldsOut) const
{
    // A search pass reads these five roles of every row several times (the
    // row, its ancestors, its children): reading them from the items of a
    // FeatureTreeModel directly spares the virtual data() call, the QVariant
    // around each value and the exception guard around each read, which was
    // about half of a keystroke's time on a large tree. Any other model, and
    // item classes this code doesn't know, are read through data().
    auto& fields = *static_cast<FilterFields*>(fieldsOut);
    if (!m_sourceIsFeatureTreeModel)
        return false;
    const FeatureTreeItem* item = static_cast<const FeatureTreeItem*>(index.internalPointer());
    if (!item)
        return false;
    const QMetaObject* kind = item->metaObject();
    if (kind == &FeatureTreeINodeItem::staticMetaObject) {
        const auto* nodeItem = static_cast<const FeatureTreeINodeItem*>(item);
        if (nodeItem->answersRoles()) {
            fields.isCategory = nodeItem->m_parameterData->type == ParameterCollection::TypeCategory;
            fields.name = &nodeItem->m_name;
            fields.showMe = nodeItem->FeatureTreeINodeItem::ShowMe(GenApi::Guru);
            fields.visibility = nodeItem->FeatureTreeINodeItem::getVisibility();
            fields.displayText = &nodeItem->displayText();
        } else {
            // Without parameter or snapshot every role is an invalid QVariant.
            fields.name = &emptyText;
            fields.displayText = &emptyText;
        }
    } else if (kind == &FeatureTreeItem::staticMetaObject) {
        fields.nameCopy = item->getFullName();
        fields.name = &fields.nameCopy;
        fields.showMe = item->FeatureTreeItem::ShowMe(GenApi::Guru);
        fields.visibility = item->FeatureTreeItem::getVisibility();
        fields.displayTextCopy = item->getDisplayedName();
        fields.displayText = &fields.displayTextCopy;
    } else if (kind == &FeatureTreeFavoritesItem::staticMetaObject) {
        fields.isCategory = true;
    } else {
        return false;
    }
    // A read through the model rearms its error dialog; so does this one.
    static_cast<const FeatureTreeModel*>(sourceModel())->m_errorShown = false;
    return true;
}

void FeatureTreeProxyModel::MatchSet::insert(const QString& name)
{
    // At most half full, so that a probe ends soon at an empty slot.
    if (2 * (used + 1) > int(table.size()))
        grow();
    const uint hash = qHash(name);
    const size_t mask = table.size() - 1;
    for (size_t i = hash & mask;; i = (i + 1) & mask) {
        Slot& slot = table[i];
        if (slot.pass == 0) {
            slot.name = name;
            slot.hash = hash;
            slot.pass = pass;
            ++used;
            ++count;
            return;
        }
        if (slot.hash == hash && slot.name == name) {
            if (slot.pass != pass) {
                slot.pass = pass;
                ++count;
            }
            return;
        }
    }
}

void FeatureTreeProxyModel::MatchSet::grow()
{
    std::vector<Slot> old;
    old.swap(table);
    table.resize(qMax<size_t>(1024, 2 * old.size()));
    const size_t mask = table.size() - 1;
    for (Slot& slot : old) {
        if (slot.pass == 0)
            continue;
        size_t i = slot.hash & mask;
        while (table[i].pass != 0)
            i = (i + 1) & mask;
        table[i] = std::move(slot);
    }
}

bool FeatureTreeProxyModel::filterAcceptsRowItself(int sourceRow, const QModelIndex& sourceParent) const
{
    const QAbstractItemModel* source = sourceModel();
    if (!source)
        return false;
    return filterAcceptsIndexItself(source->index(sourceRow, 0, sourceParent));
}

bool FeatureTreeProxyModel::filterAcceptsIndexItself(const QModelIndex& index) const
{
    const QAbstractItemModel* source = sourceModel();
    if (!source || !index.isValid())
        return false;

    if (!m_patternCached)
        m_sourceIsFeatureTreeModel = source->metaObject() == &FeatureTreeModel::staticMetaObject;
    FilterFields fields;
    const bool direct = readFilterFields(index, &fields);
    // Categories are never hits: searching finds features, and categories show
    // only as the path to them. Asked first, so that the many ancestor and
    // category checks of a pass cost one read each.
    if (!direct)
        fields.isCategory = source->data(index, FeatureTreeItem::IsCategoryRole).toBool();
    if (fields.isCategory)
        return false;

    if (!direct) {
        fields.nameCopy = source->data(index, FeatureTreeItem::NodeNameRole).toString();
        fields.name = &fields.nameCopy;
    }
    const QString& name = *fields.name;
    // A node map's root is never a hit and never counted.
    if (name == QLatin1String("Root"))
        return false;
    if (!direct)
        fields.showMe = source->data(index, FeatureTreeItem::ShowMeRole).toBool();
    // The counting walk judges by the level of the pass it completes.
    const GenApi::EVisibility level = m_countingWalk ? m_passVisibility : m_visibility;
    if (!fields.showMe && level != GenApi::Invisible)
        return false;
    if (!direct)
        fields.visibility = source->data(index, FeatureTreeItem::VisibilityRole).toInt();
    const int visibility = fields.visibility;
    const bool shown = visibility <= level;

    bool hit = matchesFilter(name);
    if (!hit) {
        if (!direct) {
            fields.displayTextCopy = source->data(index, Qt::DisplayRole).toString();
            fields.displayText = &fields.displayTextCopy;
        }
        hit = matchesFilter(*fields.displayText);
    }
    if (hit) {
        if (visibility <= GenApi::Guru && visibility > level)
            m_invisibleMatches.insert(name);
        if (visibility <= level)
            m_visibleMatches.insert(name);
    }
    // The search help line passes without matching.
    // (Its name role is its full name, so only a row named "Search" needs the look.)
    if (name == QLatin1String("Search")) {
        const FeatureTreeModel* model = getFeatureTreeModel();
        const FeatureTreeItem* item = model ? model->getFeatureTreeItem(index) : nullptr;
        if (item && item->getFullName() == QLatin1String("Search"))
            hit = true;
    }
    return hit && shown;
}

bool FeatureTreeProxyModel::hasAcceptedChildren(int sourceRow, const QModelIndex& sourceParent, int depth) const
{
    const QAbstractItemModel* source = sourceModel();
    if (!source)
        return false;
    const QModelIndex index = source->index(sourceRow, 0, sourceParent);
    if (!index.isValid())
        return false;
    // With nothing searched, a category whose level isn't filled yet is
    // answered by its model from the parameters, and stays unfilled until it
    // is shown. (A search reads every feature anyway, and counts them.)
    if (!m_countingWalk && m_patternCached && m_pattern.isFixedString() && m_pattern.text().isEmpty()
        && source->metaObject() == &FeatureTreeModel::staticMetaObject) {
        const int shows
            = static_cast<const FeatureTreeModel*>(source)->unfilledCategoryShowsFeature(index, m_visibility);
        if (shows >= 0)
            return shows == 1;
    }
    const int rows = source->rowCount(index);
    if (rows <= 0)
        return false;
    // One level is tried whole before any child is descended into.
    for (int row = 0; row < rows; ++row) {
        if (filterAcceptsRowItself(row, index))
            return true;
    }
    for (int row = 0; row < rows; ++row) {
        if (hasAcceptedChildren(row, index, depth + 1))
            return true;
    }
    return false;
}

void FeatureTreeProxyModel::startPass()
{
    // Adding a collection counts nothing and leaves the counts alone; the
    // widget invalidates afterwards.
    if (m_addingCollection)
        return;
    dropCounts();
    m_patternKnown = false;
    m_passDropped = true;
}

bool FeatureTreeProxyModel::filterAcceptsRow(int sourceRow, const QModelIndex& sourceParent) const
{
    if (m_addingCollection)
        return true;
    // The row, its ancestors and its children are each matched against the
    // filter, and the filter's pattern is only to be had as a copy, which
    // costs about as much as filtering the row. A new filter text makes
    // QSortFilterProxyModel filter the top level before any level below it,
    // so the copy is taken on the top-level rows only (a handful per pass)
    // and kept for the rows below them.
    //
    // A pass, and the counts with it, starts with a new text or level or when
    // the mappings go (startPass()). Not with the first top-level row: a new text
    // filters the shown rows before the hidden ones, and the mappings are
    // built again first for the parents of the view's persistent rows, deep
    // ones before the top level, so matches counted before that row would be
    // lost and, their parents being mapped already, not come back.
    if (!sourceParent.isValid() || !m_patternKnown) {
        followPattern();
        m_patternKnown = true;
        const QAbstractItemModel* source = sourceModel();
        m_sourceIsFeatureTreeModel = source && source->metaObject() == &FeatureTreeModel::staticMetaObject;
    }
    // (Filling a category can insert rows and filter them inside this call.)
    const bool wasCached = m_patternCached;
    m_patternCached = true;
    const bool accepted = filterAcceptsRowOrRelative(sourceRow, sourceParent);
    m_patternCached = wasCached;
    return accepted;
}

bool FeatureTreeProxyModel::filterAcceptsRowOrRelative(int sourceRow, const QModelIndex& sourceParent) const
{
    if (filterAcceptsRowItself(sourceRow, sourceParent))
        return true;
    // The descendants of a hit stay visible. Each ancestor is judged by the
    // index at hand: asking for it again by row under its own parent cost a
    // parent() and an index() per level for every row that isn't a hit.
    for (QModelIndex ancestor = sourceParent; ancestor.isValid(); ancestor = ancestor.parent()) {
        if (filterAcceptsIndexItself(ancestor.column() == 0 ? ancestor : ancestor.sibling(ancestor.row(), 0)))
            return true;
    }
    return hasAcceptedChildren(sourceRow, sourceParent, 0);
}

// ---- forwarding to the model ----------------------------------------------

bool FeatureTreeProxyModel::IsFavoriteTreeItem(const FeatureTreeItem* item) const
{
    const FeatureTreeModel* model = getFeatureTreeModel();
    return model && model->IsFavoriteTreeItem(item);
}

bool FeatureTreeProxyModel::IsFavoriteTreeRoot(const FeatureTreeItem* item) const
{
    const FeatureTreeModel* model = getFeatureTreeModel();
    return model && model->IsFavoriteTreeRoot(item);
}

QModelIndex FeatureTreeProxyModel::indexForItem(FeatureTreeItem* item, int column) const
{
    const FeatureTreeModel* model = getFeatureTreeModel();
    return model ? mapFromSource(model->indexForItem(item, column)) : QModelIndex();
}

QModelIndex FeatureTreeProxyModel::GetFavoritesRootIndex()
{
    FeatureTreeModel* model = getFeatureTreeModel();
    return model ? mapFromSource(model->GetFavoritesRootIndex()) : QModelIndex();
}

void FeatureTreeProxyModel::EnablePolling(bool on)
{
    if (FeatureTreeModel* model = getFeatureTreeModel())
        model->EnablePolling(on);
}

bool FeatureTreeProxyModel::GetPolling() const
{
    const FeatureTreeModel* model = getFeatureTreeModel();
    return model && model->GetPolling();
}

void FeatureTreeProxyModel::EnableViewAllFavorites(bool on)
{
    if (FeatureTreeModel* model = getFeatureTreeModel())
        model->EnableViewAllFavorites(on);
}

bool FeatureTreeProxyModel::GetViewAllFavorites() const
{
    const FeatureTreeModel* model = getFeatureTreeModel();
    return model && model->GetViewAllFavorites();
}

void FeatureTreeProxyModel::SetDeviceAlive(bool alive)
{
    if (FeatureTreeModel* model = getFeatureTreeModel())
        model->SetDeviceAlive(alive);
}

QModelIndex FeatureTreeProxyModel::findItem(const FeatureTreeItem* item, const FeatureTreeItem* start, int column) const
{
    const FeatureTreeModel* model = getFeatureTreeModel();
    return model ? mapFromSource(model->findItem(item, start, column)) : QModelIndex();
}

QModelIndex FeatureTreeProxyModel::findItemByFullName(const QString& name, FeatureTreeItem* start, int column) const
{
    const FeatureTreeModel* model = getFeatureTreeModel();
    return model ? mapFromSource(model->findItemByFullName(name, start, column)) : QModelIndex();
}

QModelIndex FeatureTreeProxyModel::findItemByRole(
    int role, const QVariant& value, FeatureTreeItem* start, int column) const
{
    const FeatureTreeModel* model = getFeatureTreeModel();
    return model ? mapFromSource(model->findItemByRole(role, value, start, column)) : QModelIndex();
}

void FeatureTreeProxyModel::addParameterCollection(QSharedPointer<IParameterCollection> collection,
    const QString& displayName, const QString& nodeMapName, bool textAsUtf8)
{
    m_addingCollection = true;
    if (FeatureTreeModel* model = getFeatureTreeModel())
        model->addParameterCollection(collection, displayName, nodeMapName, textAsUtf8);
    m_addingCollection = false;
}

void FeatureTreeProxyModel::rebuildFavoriteItems()
{
    if (FeatureTreeModel* model = getFeatureTreeModel())
        model->rebuildFavoriteItems();
}

void FeatureTreeProxyModel::CreateFavoritesRoot()
{
    if (FeatureTreeModel* model = getFeatureTreeModel())
        model->CreateFavoritesRoot();
}

bool FeatureTreeProxyModel::RemoveFavorite(QModelIndex index)
{
    FeatureTreeModel* model = getFeatureTreeModel();
    return model && model->RemoveFavorite(mapToSource(index));
}

bool FeatureTreeProxyModel::AddFavorite(QSharedPointer<IParameter> parameter, int index)
{
    FeatureTreeModel* model = getFeatureTreeModel();
    return model && model->AddFavorite(parameter, index);
}

FavoritesData* FeatureTreeProxyModel::GetFavorites()
{
    if (FeatureTreeModel* model = getFeatureTreeModel())
        return model->GetFavorites();
    // Callers never see null, even before a model is set.
    static FavoritesData fallback(nullptr);
    return &fallback;
}

bool FeatureTreeProxyModel::MoveFavorite(QModelIndex index, bool up)
{
    FeatureTreeModel* model = getFeatureTreeModel();
    return model && model->MoveFavorite(mapToSource(index), up);
}

bool FeatureTreeProxyModel::CanMoveFavorite(QModelIndex index, bool up) const
{
    const FeatureTreeModel* model = getFeatureTreeModel();
    return model && model->CanMoveFavorite(mapToSource(index), up);
}

bool FeatureTreeProxyModel::CanAddAsFavorite(QModelIndex index) const
{
    const FeatureTreeModel* model = getFeatureTreeModel();
    return model && model->CanAddAsFavorite(mapToSource(index));
}

void FeatureTreeProxyModel::refresh()
{
    if (FeatureTreeModel* model = getFeatureTreeModel())
        model->refresh();
}

void FeatureTreeProxyModel::addChildren(FeatureTreeINodeItem* nodeItem)
{
    if (FeatureTreeModel* model = getFeatureTreeModel())
        model->addChildren(nodeItem);
}

void FeatureTreeProxyModel::setVisibility(GenApi::EVisibility visibility)
{
    m_visibility = visibility;
    // The counts of the old level stay until the next row is filtered.
    m_patternKnown = false;
    if (FeatureTreeModel* model = getFeatureTreeModel())
        model->setVisibility(visibility);
}

GenApi::EVisibility FeatureTreeProxyModel::getVisibility() const
{
    const FeatureTreeModel* model = getFeatureTreeModel();
    return model ? model->getVisibility() : GenApi::Beginner;
}

void FeatureTreeProxyModel::setMonitorMode(bool on)
{
    if (FeatureTreeModel* model = getFeatureTreeModel())
        model->setMonitorMode(on);
}

void FeatureTreeProxyModel::setGenICamCallbacksEnable(bool on)
{
    if (FeatureTreeModel* model = getFeatureTreeModel())
        model->setGenICamCallbacksEnable(on);
}

bool FeatureTreeProxyModel::getGenICamCallbackEnable() const
{
    const FeatureTreeModel* model = getFeatureTreeModel();
    return model && model->getGenICamCallbackEnable();
}

FeatureTreeItem* FeatureTreeProxyModel::getFeatureTreeItem(const QModelIndex& index) const
{
    const FeatureTreeModel* model = getFeatureTreeModel();
    return model ? model->getFeatureTreeItem(mapToSource(index)) : nullptr;
}

void FeatureTreeProxyModel::setHighlighter(FeatureTreeHighlighter* highlighter)
{
    if (FeatureTreeModel* model = getFeatureTreeModel())
        model->setHighlighter(highlighter);
}

FeatureTreeItem* FeatureTreeProxyModel::getSearchHelpItem() const
{
    const FeatureTreeModel* model = getFeatureTreeModel();
    return model ? model->getSearchHelpItem() : nullptr;
}

void FeatureTreeProxyModel::refreshSpecialItems()
{
    if (FeatureTreeModel* model = getFeatureTreeModel())
        model->refreshSpecialItems();
}

void FeatureTreeProxyModel::clear()
{
    if (FeatureTreeModel* model = getFeatureTreeModel())
        model->clear();
}

void FeatureTreeProxyModel::onNodeUpdated(int row, FeatureTreeINodeItem* nodeItem)
{
    if (FeatureTreeModel* model = getFeatureTreeModel())
        model->onNodeUpdated(row, nodeItem);
}

void FeatureTreeProxyModel::onTimerPoll()
{
    if (FeatureTreeModel* model = getFeatureTreeModel())
        model->onTimerPoll();
}

QString FeatureTreeProxyModel::GetParameterCollectionName(QSharedPointer<IParameterCollection> collection) const
{
    const FeatureTreeModel* model = getFeatureTreeModel();
    return model ? model->GetParameterCollectionName(collection) : QStringLiteral("unknown NodeMap name");
}

void FeatureTreeProxyModel::replaceFavoritesZombies(
    QSharedPointer<IParameterCollection> collection, const QString& nodeMapName)
{
    if (FeatureTreeModel* model = getFeatureTreeModel())
        model->replaceFavoritesZombies(collection, nodeMapName);
}

int FeatureTreeProxyModel::getFavoritesIndexFromFeatureTreeItem(const FeatureTreeItem* item) const
{
    const FeatureTreeModel* model = getFeatureTreeModel();
    return model ? model->getFavoritesIndexFromFeatureTreeItem(item) : -1;
}

int FeatureTreeProxyModel::getFavoritesIndexFromModelIndex(QModelIndex index) const
{
    const FeatureTreeModel* model = getFeatureTreeModel();
    return model ? model->getFavoritesIndexFromModelIndex(mapToSource(index)) : -1;
}
