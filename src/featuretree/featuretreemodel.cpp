#include "featuretreemodel.h"

#include "featuretreefavoritesitem.h"
#include "featuretreeinodeitem.h"
#include "featuretreeitem.h"
#include "messages/errorreporting.h"
#include "messages/exceptionlogging.h"
#include "parameters/genericexception.h"
#include "parameters/iadvancedparameteraccess.h"

#include <QDataStream>
#include <QIODevice>
#include <QMimeData>
#include <QSet>

#include <memory>

using namespace ParameterCollection;

// A layout change of the model for the length of a scope: layoutAboutToBeChanged()
// at its start, layoutChanged() at its end, also when it is left by an exception.
class FeatureTreeModel::LayoutChange
{
public:
    explicit LayoutChange(FeatureTreeModel* model)
        : m_model(model)
        , m_outer(model->m_layoutChanging)
    {
        m_model->m_layoutChanging = true;
        emit m_model->layoutAboutToBeChanged();
    }
    ~LayoutChange()
    {
        emit m_model->layoutChanged();
        m_model->m_layoutChanging = m_outer;
    }
    LayoutChange(const LayoutChange&) = delete;
    LayoutChange& operator=(const LayoutChange&) = delete;

private:
    FeatureTreeModel* m_model;
    bool m_outer;
};

namespace {

const char* const itemMimeType = "application/x-fti";

// "Fav*<stem>*<name>": the stem is the node map's name without any "@", up to the first "/".
QString favoriteFullName(const FavoritesData::FavoritesDataItem& favorite)
{
    QString stem = favorite.nodeMapName;
    stem.remove(QLatin1Char('@'));
    stem = stem.section(QLatin1Char('/'), 0, 0);
    return QStringLiteral("Fav*%1*%2").arg(stem, favorite.name);
}

// The parameter holds the same name as the list of children already: keeping
// its copy instead of the list's frees a string of some 100 bytes per row. A
// parameter that can't tell its name just keeps the list's.
QString sharedFullName(const IParameter& parameter, const QString& listed)
{
    try {
        const QString own = parameter.getFullName();
        if (own == listed)
            return own;
    } catch (...) {
    }
    return listed;
}

// Whether addChildren() builds an item for a child: not for a parameter gone
// with its device, nor for an invisible category, which goes with everything
// below it. Features of any visibility are built and filtered by the proxy.
// unfilledCategoryShowsFeature() judges by the same rule. May throw.
bool buildsItemFor(const QSharedPointer<IParameter>& parameter)
{
    if (!parameter || parameter->isZombie())
        return false;
    return !(parameter->getType() == TypeCategory && parameter->getVisibility() > GenApi::Guru);
}

} // namespace

FavoritesData FeatureTreeModel::m_favorites(nullptr);

FeatureTreeModel::FeatureTreeModel(QObject* parent)
    : QAbstractItemModel(parent)
    , m_root(new FeatureTreeItem(QString(), this, QString(), nullptr))
{
    m_timer.setSingleShot(true);
    connect(&m_timer, SIGNAL(timeout()), this, SLOT(onTimerPoll()));
}

FeatureTreeModel::~FeatureTreeModel()
{
    if (m_polling)
        m_timer.stop();
    delete m_root;
    m_root = nullptr;
    m_favorites.SaveFavorites(m_favorites.getSettingsPath());
}

// ---- QAbstractItemModel ---------------------------------------------------

FeatureTreeItem* FeatureTreeModel::itemFromIndex(const QModelIndex& index) const
{
    if (index.row() < 0 || index.column() < 0 || !index.model())
        return m_root;
    return static_cast<FeatureTreeItem*>(index.internalPointer());
}

QModelIndex FeatureTreeModel::index(int row, int column, const QModelIndex& parent) const
{
    FeatureTreeItem* parentItem = itemFromIndex(parent);
    if (!parentItem)
        return QModelIndex();
    FeatureTreeItem* child = parentItem->child(row);
    if (!child)
        return QModelIndex();
#if defined(__GNUC__)
    // Views, the proxy and copies walk the rows of a level in order, and on a
    // tree too large for the cache each item is a miss: start loading the
    // next sibling's item while this row is read. (Reading DisplayRole of
    // every row of 100 000 features took half as long again without it.)
    if (FeatureTreeItem* next = parentItem->child(row + 1)) {
        const char* bytes = reinterpret_cast<const char*>(next);
        __builtin_prefetch(bytes);
        __builtin_prefetch(bytes + 64);
        __builtin_prefetch(bytes + 128);
    }
#endif
    return createIndex(row, column, child);
}

QModelIndex FeatureTreeModel::parent(const QModelIndex& index) const
{
    if (!index.isValid())
        return QModelIndex();
    const FeatureTreeItem* item = static_cast<FeatureTreeItem*>(index.internalPointer());
    if (!item)
        return QModelIndex();
    FeatureTreeItem* parentItem = const_cast<FeatureTreeItem*>(item->parent());
    if (!parentItem || parentItem == m_root)
        return QModelIndex();
    return createIndex(parentItem->row(), 0, parentItem);
}

int FeatureTreeModel::rowCount(const QModelIndex& parent) const
{
    FeatureTreeItem* item = itemFromIndex(parent);
    return item ? item->childCount() : 0;
}

int FeatureTreeModel::columnCount(const QModelIndex& parent) const
{
    const FeatureTreeItem* item = itemFromIndex(parent);
    return item ? item->columnCount() : 2;
}

bool FeatureTreeModel::hasChildren(const QModelIndex& parent) const
{
    const FeatureTreeItem* item = itemFromIndex(parent);
    if (!item || item == m_root)
        return true;
    return item->hasChildren();
}

QVariant FeatureTreeModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation == Qt::Horizontal && role == Qt::DisplayRole) {
        if (section == 0)
            return tr("Feature");
        if (section == 1)
            return tr("Value");
    }
    return QVariant();
}

Qt::ItemFlags FeatureTreeModel::flags(const QModelIndex& index) const
{
    if (!index.isValid())
        return Qt::ItemIsEnabled;
    const FeatureTreeItem* item = static_cast<FeatureTreeItem*>(index.internalPointer());
    if (!item)
        return Qt::ItemIsEnabled;
    return item->flags(index.column());
}

QVariant FeatureTreeModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid())
        return QVariant();
    const FeatureTreeItem* item = static_cast<FeatureTreeItem*>(index.internalPointer());
    if (!item)
        return QVariant();
    // One dialog per run of failing reads: a successful read rearms it.
    try {
        // Not const: returned by move, not by a copy of the variant.
        QVariant result = item->data(index.column(), role);
        m_errorShown = false;
        return result;
    } catch (const GenICam::GenericException&) {
        if (!m_errorShown)
            m_errorShown = true;
    } catch (const std::exception& e) {
        if (!m_errorShown) {
            m_errorShown = true;
            showException(QStringLiteral("data"), e, tr("Failed to get a feature value"), nullptr);
        }
    } catch (...) {
        if (!m_errorShown) {
            m_errorShown = true;
            showUnexpectedException(QStringLiteral("data"), tr("Failed to get a feature value"), nullptr);
        }
    }
    return QVariant();
}

bool FeatureTreeModel::setData(const QModelIndex& index, const QVariant& value, int role)
{
    if (!index.isValid() || role != Qt::EditRole || index.column() != 1 || !value.isValid() || !m_deviceAlive)
        return false;
    FeatureTreeItem* item = static_cast<FeatureTreeItem*>(index.internalPointer());
    if (!item)
        return false;
    try {
        if (item->data(index.column(), Qt::EditRole) != value)
            item->setData(index.column(), value, Qt::EditRole);
        return true;
    } catch (const GenICam::GenericException&) {
        return false;
    } catch (const std::exception& e) {
        if (m_deviceAlive)
            showException(QStringLiteral("setData"), e, tr("Failed to set a feature value."), nullptr);
    } catch (...) {
        if (m_deviceAlive)
            showUnexpectedException(QStringLiteral("setData"), tr("Failed to set a feature value."), nullptr);
    }
    return false;
}

QMimeData* FeatureTreeModel::mimeData(const QModelIndexList& indexes) const
{
    QMimeData* mime = QAbstractItemModel::mimeData(indexes);
    if (!mime)
        mime = new QMimeData;
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    for (const QModelIndex& index : indexes) {
        if (index.isValid())
            stream << static_cast<qint64>(reinterpret_cast<quintptr>(index.internalPointer()));
    }
    mime->setData(QLatin1String(itemMimeType), bytes);
    return mime;
}

bool FeatureTreeModel::isItemOfBuiltTree(const FeatureTreeItem* candidate) const
{
    // Compares addresses only: the candidate is never dereferenced before it is found here.
    return candidate && candidate != m_root && m_root->findShallow(candidate);
}

bool FeatureTreeModel::dropMimeData(
    const QMimeData* data, Qt::DropAction action, int row, int /*column*/, const QModelIndex& /*parent*/)
{
    if (action == Qt::IgnoreAction)
        return true;
    if (!data || !data->hasFormat(QLatin1String(itemMimeType)))
        return false;
    if (row == -1)
        row = rowCount(QModelIndex());

    // The payload carries raw addresses that are meaningful only inside this
    // process and only while the tree is unchanged. Anything that is not an
    // item of this model's built tree right now (a stale drag, another
    // process, forged bytes) is passed over without being touched.
    QList<FeatureTreeItem*> items;
    QDataStream stream(data->data(QLatin1String(itemMimeType)));
    QSet<const FeatureTreeItem*> builtItems;
    bool builtItemsKnown = false;
    while (!stream.atEnd()) {
        qint64 address = 0;
        stream >> address;
        if (stream.status() != QDataStream::Ok)
            break;
        if (address == 0)
            continue;
        auto* candidate = reinterpret_cast<FeatureTreeItem*>(static_cast<quintptr>(address));
        if (!builtItemsKnown) {
            // One walk of the built tree per drop, then set look-ups.
            QList<const FeatureTreeItem*> pending { m_root };
            while (!pending.isEmpty()) {
                const FeatureTreeItem* item = pending.takeLast();
                builtItems.insert(item);
                for (int i = 0; i < item->builtChildCount(); ++i)
                    pending.append(item->child(i));
            }
            builtItems.remove(m_root);
            builtItemsKnown = true;
        }
        if (builtItems.contains(candidate))
            items.append(candidate);
    }

    m_favorites.setDeferDataUpdatedSignals(true);
    // Backwards: each lands at the same row before the ones already placed, so a selection keeps its order.
    for (int i = items.count() - 1; i >= 0; --i) {
        FeatureTreeItem* item = items.at(i);
        if (IsFavoriteTreeItem(item)) {
            m_favorites.moveNode(getFavoritesIndexFromFeatureTreeItem(item), row);
        } else if (auto* nodeItem = qobject_cast<FeatureTreeINodeItem*>(item)) {
            try {
                AddFavorite(nodeItem->node(), row);
            } catch (...) {
                ExceptionLogging::logCurrentException("dropMimeData", QStringLiteral("Failed to add a favorite"));
            }
        }
    }
    m_favorites.setDeferDataUpdatedSignals(false);
    return true;
}

Qt::DropActions FeatureTreeModel::supportedDropActions() const
{
    return Qt::MoveAction;
}

// ---- building the tree ----------------------------------------------------

void FeatureTreeModel::connectItem(FeatureTreeINodeItem* item)
{
    // The item calls onNodeUpdated() itself, before it emits nodeUpdated. A
    // connection per item cost the item a connection list of its own, some
    // 200 bytes a row, and the parsing of two signatures for every row built.
    // The model owns every item it connects, so the item never outlives it.
    Q_ASSERT(item->m_extension == static_cast<IFeatureTreeModelExtension*>(this));
    item->m_notifiesModel = true;
    if (!item->m_childrenFetched && item->m_node)
        ++m_unfetchedCategories;
}

void FeatureTreeModel::addParameterCollection(QSharedPointer<IParameterCollection> collection,
    const QString& displayName, const QString& nodeMapName, bool textAsUtf8)
{
    try {
        m_textAsUtf8 = textAsUtf8;
        QSharedPointer<IParameter> rootParameter;
        if (collection)
            rootParameter = collection->getParameter(nodeMapName + QStringLiteral("/Root"));
        const QString fullName = nodeMapName + QStringLiteral("*") + QStringLiteral("Root");
        auto* item = new FeatureTreeINodeItem(collection, rootParameter, displayName, this, fullName, m_root, false);
        item->setHighlighter(m_highlighter);
        item->SetIsFullRowItem(true);
        item->SetIsSpecialNode(false);
        connectItem(item);

        {
            const LayoutChange change(this);
            m_root->appendChild(item);
        }

        replaceFavoritesZombies(collection, nodeMapName);
        item->childCount();
        m_nodemaps.append({ nodeMapName, collection });
        refreshSpecialItems();
    } catch (const std::exception& e) {
        showException(QStringLiteral("addParameterCollection"), e,
            tr("Failed to get the node 'Root' from the node map"), nullptr);
    } catch (...) {
        showUnexpectedException(
            QStringLiteral("addParameterCollection"), tr("Failed to get the node 'Root' from the node map"), nullptr);
    }
}

// For a category whose level isn't filled yet: 1 if some feature below it
// passes the empty search at `level`, 0 if none does, -1 when the index is not
// such a category (its items must be asked).
//
// The answer comes from the parameters, read as addChildren() and the items
// would read them, without building a single item: filtering the categories
// whose rows a view keeps (the spanned rows of the first levels, see
// refreshSpecialItems()) built all their levels before the first paint, most
// of the tree on a large camera. The walk usually ends at the first feature.
int FeatureTreeModel::unfilledCategoryShowsFeature(const QModelIndex& index, int level) const
{
    const FeatureTreeItem* item = itemFromIndex(index);
    if (!index.isValid() || !item || item->metaObject() != &FeatureTreeINodeItem::staticMetaObject)
        return -1;
    const auto* category = static_cast<const FeatureTreeINodeItem*>(item);
    if (category->m_childrenFetched || !category->m_node)
        return -1;
    const QSharedPointer<IParameterCollection> collection = category->collection();
    if (!collection)
        return 0;
    // As the proxy judges a feature's item for the empty search.
    const auto passes = [level](const ParameterData& data) {
        const bool showMe = data.implemented && data.visibility <= GenApi::Guru;
        return (showMe || level == GenApi::Invisible) && data.visibility <= level;
    };
    QStringList pending;
    try {
        pending.append(category->m_node->getFullName());
    } catch (...) {
        return 0;
    }
    while (!pending.isEmpty()) {
        const QString parentName = pending.takeLast();
        QList<QString> names;
        try {
            names = collection->getChildNames(parentName, false, true);
        } catch (...) {
            continue;
        }
        for (const QString& name : qAsConst(names)) {
            try {
                const QSharedPointer<IParameter> parameter = collection->getParameter(name);
                if (!buildsItemFor(parameter))
                    continue;
                // An item that can't read its data shows a placeholder.
                QSharedPointer<const ParameterData> data;
                try {
                    data = parameter->getParameterData();
                } catch (...) {
                }
                if (!data)
                    data = ParameterData::createPlaceholder();
                if (data->type == TypeCategory) {
                    pending.append(parameter->getFullName());
                    continue;
                }
                // A node map's root is never a hit; an item reads the name
                // only from a parameter with advanced access.
                if (parameter->getName() == QLatin1String("Root") && parameter->advancedAccess())
                    continue;
                if (passes(*data))
                    return 1;
            } catch (...) {
                // The item would not be built, or would show nothing.
            }
        }
    }
    return 0;
}

void FeatureTreeModel::addChildren(FeatureTreeINodeItem* nodeItem)
{
    if (!nodeItem || !nodeItem->node())
        return;
    const QSharedPointer<IParameterCollection> collection = nodeItem->collection();
    if (!collection)
        return;
    // This runs inside rowCount() of a view: nothing may leave it. A node map
    // that can't list the children leaves the category empty, and the item
    // doesn't ask again; a child that throws is dropped like a zombie.
    QList<QString> names;
    try {
        names = collection->getChildNames(nodeItem->node()->getFullName(), false, true);
    } catch (...) {
        ExceptionLogging::logCurrentException(
            "addChildren", QStringLiteral("Failed to get the children of a node: %1").arg(nodeItem->getFullName()));
        return;
    }
    QList<FeatureTreeINodeItem*> built;
    built.reserve(names.count());
    for (const QString& name : qAsConst(names)) {
        try {
            const QSharedPointer<IParameter> parameter = collection->getParameter(name);
            if (!buildsItemFor(parameter))
                continue;
            const QString fullName = sharedFullName(*parameter, name);
            auto* item = new FeatureTreeINodeItem(collection, parameter, this, fullName, nodeItem, m_textAsUtf8);
            item->setHighlighter(m_highlighter);
            item->SetIsFullRowItem(false);
            item->SetIsSpecialNode(false);
            connectItem(item);
            built.append(item);
        } catch (...) {
            ExceptionLogging::logCurrentException("addChildren", QStringLiteral("Failed to add the node %1").arg(name));
        }
    }
    if (built.isEmpty())
        return;
    // Inside a layout change of this model, whose receivers ask for the rows
    // of levels not filled yet, the new rows are part of that change: every
    // receiver reads the layout again at layoutChanged(), and a parent that
    // had no rows moves no persistent index. Announcing them as an insertion
    // there would nest one change in another, which proxies and views are not
    // made for.
    const bool announce = !m_layoutChanging && m_quietFills == 0;
    if (announce)
        beginInsertRows(indexForItem(nodeItem, 0), 0, built.count() - 1);
    // One block of the right size for the list, instead of the slack of growing it.
    nodeItem->m_children.reserve(nodeItem->m_children.count() + built.count());
    for (FeatureTreeINodeItem* item : qAsConst(built))
        nodeItem->appendChild(item);
    if (announce)
        endInsertRows();
}

void FeatureTreeModel::clear()
{
    m_root->clearChildren();
    // The favourites root and the search help line went with the other
    // children. Forget them, so that the next rebuildFavoriteItems() makes
    // them anew instead of reaching into freed memory.
    m_favoritesRoot = nullptr;
    m_searchHelpItem = nullptr;
}

// ---- finding items --------------------------------------------------------

QModelIndex FeatureTreeModel::indexForItem(FeatureTreeItem* item, int column) const
{
    // The invisible root's index is the invalid one, as everywhere in the model.
    // An index of its own would name row 0 of the top level, and a change or an
    // insertion announced for the root would land below that row instead.
    if (!item || item == m_root)
        return QModelIndex();
    return createIndex(item->row(), column, item);
}

FeatureTreeItem* FeatureTreeModel::getFeatureTreeItem(const QModelIndex& index) const
{
    return static_cast<FeatureTreeItem*>(index.internalPointer());
}

QModelIndex FeatureTreeModel::findItem(const FeatureTreeItem* item, const FeatureTreeItem* start, int column) const
{
    const FeatureTreeItem* from = start ? start : m_root;
    if (item && from->findShallow(item))
        return indexForItem(const_cast<FeatureTreeItem*>(item), column);
    return QModelIndex();
}

QModelIndex FeatureTreeModel::findItemByFullName(const QString& name, FeatureTreeItem* start, int column) const
{
    FeatureTreeItem* from = start ? start : m_root;
    return indexForItem(from->findByFullNameShallow(name), column);
}

QModelIndex FeatureTreeModel::findItemByRole(int role, const QVariant& value, FeatureTreeItem* start, int column) const
{
    FeatureTreeItem* from = start ? start : m_root;
    return indexForItem(from->findByRoleShallow(role, value), column);
}

// ---- settings of the model ------------------------------------------------

void FeatureTreeModel::setVisibility(GenApi::EVisibility visibility)
{
    m_visibility = visibility;
}

GenApi::EVisibility FeatureTreeModel::getVisibility() const
{
    return static_cast<GenApi::EVisibility>(m_visibility);
}

void FeatureTreeModel::setHighlighter(FeatureTreeHighlighter* highlighter)
{
    m_highlighter = highlighter;
}

FeatureTreeItem* FeatureTreeModel::getSearchHelpItem() const
{
    return m_searchHelpItem;
}

QString FeatureTreeModel::GetParameterCollectionName(QSharedPointer<IParameterCollection>) const
{
    return QString();
}

// ---- live updates and polling ---------------------------------------------

void FeatureTreeModel::EnablePolling(bool on)
{
    if (on == m_polling)
        return;
    m_polling = on;
    // Turning polling off leaves an armed tick alone: it fires once more and isn't rearmed.
    if (on)
        m_timer.start(static_cast<int>(m_pollInterval));
}

bool FeatureTreeModel::GetPolling() const
{
    return m_polling;
}

void FeatureTreeModel::SetDeviceAlive(bool alive)
{
    m_deviceAlive = alive;
}

void FeatureTreeModel::setMonitorMode(bool on)
{
    m_monitorMode = on;
}

void FeatureTreeModel::setGenICamCallbacksEnable(bool on)
{
    m_genICamCallbacksEnabled = on;
}

bool FeatureTreeModel::getGenICamCallbackEnable() const
{
    return m_genICamCallbacksEnabled;
}

void FeatureTreeModel::refresh()
{
    if (!m_nodemaps.isEmpty() && m_nodemaps.first().collection)
        m_nodemaps.first().collection->refreshAll();
}

void FeatureTreeModel::onTimerPoll()
{
    if (!m_deviceAlive)
        return;
    try {
        if (m_monitorMode)
            refresh();
        else if (!m_nodemaps.isEmpty() && m_nodemaps.first().collection)
            m_nodemaps.first().collection->poll(m_pollInterval);
    } catch (...) {
        ExceptionLogging::logCurrentException("onTimerPoll", QStringLiteral("Failed to run feature polling."));
    }
    // Rearmed only after the poll returned, so a slow device never piles up ticks.
    if (m_polling)
        m_timer.start(static_cast<int>(m_pollInterval));
}

void FeatureTreeModel::onNodeUpdated(int row, FeatureTreeINodeItem* nodeItem)
{
    if (!m_deviceAlive)
        return;
    const QModelIndex first = createIndex(row, 0, nodeItem);
    emit dataChanged(first, first, QVector<int>());
    const QModelIndex second = createIndex(row, 1, nodeItem);
    emit dataChanged(second, second, QVector<int>());
}

void FeatureTreeModel::refreshSpecialItems()
{
    const auto refreshIfFullRow = [this](FeatureTreeItem* item) {
        const QModelIndex index = indexForItem(item, 0);
        if (data(index, FeatureTreeItem::IsFullRowRole).toBool())
            emit dataChanged(index, index, QVector<int>());
    };
    // Counts are asked again at each turn: items added by the walk are met.
    for (int i = 0; i < m_root->childCount(); ++i) {
        FeatureTreeItem* level1 = m_root->child(i);
        refreshIfFullRow(level1);
        for (int j = 0; j < level1->childCount(); ++j) {
            FeatureTreeItem* level2 = level1->child(j);
            refreshIfFullRow(level2);
            for (int k = 0; k < level2->childCount(); ++k)
                refreshIfFullRow(level2->child(k));
        }
    }
}

// ---- favourites -----------------------------------------------------------

FavoritesData* FeatureTreeModel::GetFavorites()
{
    return &m_favorites;
}

bool FeatureTreeModel::IsFavoriteTreeRoot(const FeatureTreeItem* item) const
{
    return item && item == m_favoritesRoot;
}

bool FeatureTreeModel::IsFavoriteTreeItem(const FeatureTreeItem* item) const
{
    return item && m_favoritesRoot && item->parent() == m_favoritesRoot;
}

QModelIndex FeatureTreeModel::GetFavoritesRootIndex()
{
    return indexForItem(m_favoritesRoot, 0);
}

void FeatureTreeModel::EnableViewAllFavorites(bool on)
{
    m_favorites.setViewAllFavorites(on);
}

bool FeatureTreeModel::GetViewAllFavorites() const
{
    return m_favorites.getViewAllFavorites();
}

void FeatureTreeModel::syncPersistentIndexes()
{
    // Rows were moved under a layout change or announced at another position
    // than they took: bring every persistent index back to its item's row.
    const QModelIndexList persistent = persistentIndexList();
    for (const QModelIndex& old : persistent) {
        FeatureTreeItem* item = static_cast<FeatureTreeItem*>(old.internalPointer());
        if (!item || !isItemOfBuiltTree(item))
            continue;
        const int row = item->row();
        if (row != old.row())
            changePersistentIndex(old, createIndex(row, old.column(), item));
    }
}

void FeatureTreeModel::CreateFavoritesRoot()
{
    if (m_favoritesRoot)
        return;
    {
        const LayoutChange change(this);
        auto* favoritesRoot = new FeatureTreeFavoritesItem(tr("Favorites"), this, m_root);
        favoritesRoot->SetDescription(tr(
            "<h3>Favorites</h3><b>This node contains a list of features selected by the user</b><br><br>To add a "
            "feature, right-click the feature and choose 'Add to Favorites' from the context menu. You can also use "
            "drag and drop to add features to your favorites.<br>Favorites can be moved up and down within the list as "
            "well as removed from the list by right-clicking an item and choosing the appropriate option from the "
            "context menu."));
        m_root->insertChild(favoritesRoot, 0);
        favoritesRoot->setVisibility(GenApi::Beginner);
        favoritesRoot->SetIsFullRowItem(true);
        favoritesRoot->SetIsSpecialNode(true);
        m_favoritesRoot = favoritesRoot;
        syncPersistentIndexes();
    }
    const QModelIndex rootIndex = indexForItem(m_root, 0);
    emit dataChanged(rootIndex, rootIndex);
    const QModelIndex favoritesIndex = indexForItem(m_favoritesRoot, 0);
    emit dataChanged(favoritesIndex, favoritesIndex);
}

void FeatureTreeModel::rebuildFavoriteItems()
{
    CreateFavoritesRoot();

    const QModelIndex favoritesIndex = indexForItem(m_favoritesRoot, 0);
    const int oldCount = m_favoritesRoot->builtChildCount();
    if (oldCount > 0) {
        beginRemoveRows(favoritesIndex, 0, oldCount - 1);
        m_favoritesRoot->clearChildren();
        endRemoveRows();
    }

    const GenApi::EVisibility zombieVisibility
        = m_favorites.getViewAllFavorites() ? GenApi::Beginner : GenApi::Invisible;
    QList<FeatureTreeItem*> zombies;
    for (int i = 0; i < m_favorites.countNodes(); ++i) {
        const FavoritesData::FavoritesDataItem* favorite = m_favorites.nodeAt(i);
        if (!favorite || favorite->name.isEmpty())
            continue;
        auto* zombie = new FeatureTreeItem(favorite->displayName, this, favoriteFullName(*favorite), m_favoritesRoot);
        zombie->setVisibility(zombieVisibility);
        zombie->SetIsFullRowItem(false);
        zombie->SetIsSpecialNode(false);
        zombies.append(zombie);
    }

    if (!zombies.isEmpty()) {
        beginInsertRows(favoritesIndex, 0, zombies.count() - 1);
        for (FeatureTreeItem* zombie : qAsConst(zombies))
            m_favoritesRoot->appendChild(zombie);
        endInsertRows();
    } else {
        auto* help = new FeatureTreeItem(
            tr("Add favorites by right-clicking a feature below."), this, QStringLiteral("Dummy"), m_favoritesRoot);
        help->SetToolTip(tr("To add a feature, right-click the feature and choose 'Add to Favorites' from the context "
                            "menu. You can also use drag and drop to add features to your favorites."));
        help->setVisibility(GenApi::Beginner);
        help->SetIsFullRowItem(true);
        help->SetIsSpecialNode(true);
        m_favoritesRoot->appendChild(help);
        const QModelIndex helpIndex = indexForItem(help, 0);
        emit dataChanged(helpIndex, helpIndex);
    }

    // The rebuild runs from the views' slots: a node map that throws leaves its
    // favourites as zombies instead of taking the rebuild down.
    for (const NodemapListEntry& entry : qAsConst(m_nodemaps)) {
        if (entry.name.isEmpty())
            continue;
        try {
            replaceFavoritesZombies(entry.collection, entry.name);
        } catch (...) {
            ExceptionLogging::logCurrentException(
                "rebuildFavoriteItems", QStringLiteral("Failed to bind the favorites of %1").arg(entry.name));
        }
    }

    if (!m_searchHelpItem) {
        const QModelIndex rootIndex = indexForItem(m_root, 0);
        beginInsertRows(rootIndex, 1, 1);
        auto* searchHelp = new FeatureTreeItem(
            QStringLiteral("<HTML><B>X search results found (Y of them visible at higher user level)</B>"), this,
            QStringLiteral("Search"), m_root);
        searchHelp->setVisibility(GenApi::Invisible);
        searchHelp->SetIsFullRowItem(true);
        searchHelp->SetIsSpecialNode(true);
        m_root->insertChild(searchHelp, 0);
        m_searchHelpItem = searchHelp;
        emit dataChanged(rootIndex, indexForItem(searchHelp, 0));
        endInsertRows();
        syncPersistentIndexes();
    }

    refreshSpecialItems();
}

void FeatureTreeModel::replaceFavoritesZombies(
    QSharedPointer<IParameterCollection> collection, const QString& nodeMapName)
{
    if (!collection || !m_favoritesRoot)
        return;
    const QModelIndex favoritesIndex = indexForItem(m_favoritesRoot, 0);
    const int count = m_favorites.countNodes();
    for (int i = 0; i < count; ++i) {
        const FavoritesData::FavoritesDataItem* favorite = m_favorites.nodeAt(i);
        if (!favorite || favorite->nodeMapName != nodeMapName)
            continue;
        const QSharedPointer<IParameter> parameter
            = collection->getParameter(favorite->nodeMapName + QStringLiteral("/") + favorite->name);
        if (!parameter || parameter->isZombie())
            continue;
        FeatureTreeItem* child = m_favoritesRoot->child(i);
        if (!child)
            continue;
        if (auto* live = qobject_cast<FeatureTreeINodeItem*>(child)) {
            // The first collection to bind a favourite keeps it.
            live->SetIsFullRowItem(false);
            live->SetIsSpecialNode(false);
            continue;
        }
        auto* item = new FeatureTreeINodeItem(
            collection, parameter, this, child->getFullName(), m_favoritesRoot, m_textAsUtf8);
        item->setHighlighter(m_highlighter);
        item->SetIsSpecialNode(false);
        item->SetIsFullRowItem(false);

        beginRemoveRows(favoritesIndex, i, i);
        FeatureTreeItem* zombie = m_favoritesRoot->removeChild(i);
        endRemoveRows();
        delete zombie;

        beginInsertRows(favoritesIndex, i, i);
        m_favoritesRoot->insertChild(item, i);
        endInsertRows();

        const QModelIndex firstRow = index(0, 0, favoritesIndex);
        emit dataChanged(firstRow, firstRow);
        connectItem(item);
    }
    updateFavoritesRootToolTip();
    refreshSpecialItems();
}

void FeatureTreeModel::updateFavoritesRootToolTip()
{
    int unavailable = 0;
    for (int i = 0; i < m_favoritesRoot->builtChildCount(); ++i) {
        const FeatureTreeItem* child = m_favoritesRoot->child(i);
        if (!qobject_cast<const FeatureTreeINodeItem*>(child) && child->getFullName() != QLatin1String("Dummy"))
            ++unavailable;
    }
    const int total = m_favorites.countNodes();
    if (unavailable == 1) {
        const QString word = total < 2 ? tr("Favorite") : tr("Favorites");
        m_favoritesRoot->SetToolTip(
            tr("%1 %2 (%3 is unavailable for the current camera)").arg(total).arg(word).arg(unavailable));
    } else if (unavailable > 1) {
        const QString word = total < 2 ? tr("Favorite") : tr("Favorites");
        m_favoritesRoot->SetToolTip(
            tr("%1 %2 (%3 are unavailable for the current camera)").arg(total).arg(word).arg(unavailable));
    } else if (total > 0) {
        const QString word = total == 1 ? tr("Favorite") : tr("Favorites");
        m_favoritesRoot->SetToolTip(QStringLiteral("%1 %2").arg(total).arg(word));
    }
}

int FeatureTreeModel::getFavoritesIndexFromFeatureTreeItem(const FeatureTreeItem* item) const
{
    if (!item)
        return -1;
    const QStringList parts = item->getFullName().split(QLatin1Char('*'), Qt::KeepEmptyParts, Qt::CaseSensitive);
    QString nodeMapPart;
    QString name;
    if (parts.count() == 2) {
        nodeMapPart = parts.at(0);
        name = parts.at(1);
    } else if (parts.count() >= 3) {
        if (parts.at(0) == QLatin1String("Fav")) {
            nodeMapPart = parts.at(1);
            name = parts.at(2);
        } else {
            nodeMapPart = parts.at(0);
            name = parts.at(1);
        }
    }
    FavoritesData::FavoritesDataItem favorite;
    favorite.name = QString::fromLatin1(name.toLocal8Bit());
    favorite.nodeMapName = QStringLiteral("@") + nodeMapPart;
    return m_favorites.indexOfNode(favorite);
}

int FeatureTreeModel::getFavoritesIndexFromModelIndex(QModelIndex index) const
{
    if (!index.isValid())
        return -1;
    return getFavoritesIndexFromFeatureTreeItem(static_cast<const FeatureTreeItem*>(index.internalPointer()));
}

bool FeatureTreeModel::AddFavorite(QSharedPointer<IParameter> parameter, int index)
{
    if (!parameter || parameter->isZombie() || index < 0)
        return false;
    FavoritesData::FavoritesDataItem favorite;
    if (const QSharedPointer<IAdvancedParameterAccess> access = parameter->advancedAccess())
        favorite.displayName = access->getProperty(QStringLiteral("DisplayName"));
    favorite.nodeMapName = parameter->getFullName().section(QLatin1Char('/'), 0, 0);
    favorite.name = parameter->getName();
    if (index < m_favorites.countNodes())
        return m_favorites.insertNode(index, favorite);
    return m_favorites.appendNode(favorite);
}

bool FeatureTreeModel::RemoveFavorite(QModelIndex index)
{
    const int position = getFavoritesIndexFromModelIndex(index);
    if (position < 0)
        return false;
    return m_favorites.removeNode(position, nullptr);
}

bool FeatureTreeModel::MoveFavorite(QModelIndex index, bool up)
{
    const int position = getFavoritesIndexFromModelIndex(index);
    if (position < 0)
        return false;
    // The store's target is the position before which the item is to stand.
    return up ? m_favorites.moveNode(position, position - 1) : m_favorites.moveNode(position, position + 2);
}

bool FeatureTreeModel::CanMoveFavorite(QModelIndex index, bool up) const
{
    if (!index.isValid())
        return false;
    const int position = getFavoritesIndexFromModelIndex(index);
    if (position < 0)
        return false;
    return up ? position > 0 : position < m_favorites.countNodes() - 1;
}

bool FeatureTreeModel::CanAddAsFavorite(QModelIndex index) const
{
    if (!index.isValid())
        return false;
    const auto* item
        = qobject_cast<const FeatureTreeINodeItem*>(static_cast<const FeatureTreeItem*>(index.internalPointer()));
    if (!item)
        return false;
    const QSharedPointer<IParameter> node = item->node();
    // Asked as the current row changes: a device that fails to answer makes
    // the feature no candidate, and nothing escapes into the view.
    try {
        if (!node || node->isZombie())
            return false;
        const int kind = node->getType();
        if (kind < TypeInteger || kind > TypeEnumeration)
            return false;
    } catch (...) {
        ExceptionLogging::logCurrentException(
            "CanAddAsFavorite", QStringLiteral("Failed to read the kind of the node %1").arg(item->getFullName()));
        return false;
    }
    return getFavoritesIndexFromModelIndex(index) < 0;
}
