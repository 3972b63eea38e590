#include "featuretreeview.h"

#include "editorpark.h"

#include "favoritesdata.h"
#include "featuretreedelegate.h"
#include "featuretreeitem.h"
#include "featuretreemodel.h"
#include "featuretreeproxymodel.h"
#include "ifeaturetreemodelextension.h"
#include "messages/exceptionlogging.h"
#include "signalblocker.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QPainter>

#include <exception>
#include <functional>

FeatureTreeView::FeatureTreeView(QWidget* parent)
    : QTreeView(parent)
    , m_visibility(GenApi::Guru)
{
    // A disabled tree keeps its ordinary background.
    QPalette pal = palette();
    pal.setBrush(QPalette::Disabled, QPalette::Base, pal.brush(QPalette::Active, QPalette::Base));
    setPalette(pal);

    createModel();

    connect(this, SIGNAL(expanded(QModelIndex)), this, SLOT(onSelfExpanded(QModelIndex)));
    connect(this, SIGNAL(collapsed(QModelIndex)), this, SLOT(onSelfCollapsed(QModelIndex)));

    viewport()->setAcceptDrops(true);
    setDropIndicatorShown(true);

    if (IFeatureTreeModelExtension* extension = getFeatureExtension()) {
        if (FavoritesData* favorites = extension->GetFavorites()) {
            favorites->InitOnce(QStringLiteral("Favorites"));
            favorites->Register(this);
        }
    }
}

FeatureTreeView::~FeatureTreeView()
{
    if (IFeatureTreeModelExtension* extension = getFeatureExtension()) {
        if (FavoritesData* favorites = extension->GetFavorites())
            favorites->Deregister(this);
    }
    // Model and proxy have no parent, so the view deletes them, and only now:
    // Deregister() above reaches the store through the extension, and saving
    // the favourites there must not meet a model that is already gone. The
    // view lets go of the proxy first, so that no signal of the dying models
    // reaches a half-destroyed view, then deletes the proxy before its source.
    dropWaitingEditors();
    setModel(nullptr);
    delete m_ownedProxy;
    delete m_ownedModel;
}

void FeatureTreeView::createModel()
{
    auto* model = new FeatureTreeModel();
    auto* proxy = new FeatureTreeProxyModel();
    m_ownedModel = model;
    m_ownedProxy = proxy;
    proxy->setSourceModel(model);
    setModel(proxy);
    proxy->setDynamicSortFilter(false);
    proxy->setFilterCaseSensitivity(Qt::CaseInsensitive);
    proxy->setFilterKeyColumn(1);
    proxy->setHighlighter(&m_highlighter);
    setItemDelegate(new FeatureTreeDelegate(this, proxy, &m_highlighter));
    connect(proxy, SIGNAL(layoutChanged()), this, SLOT(onModelLayoutChanged()));
}

void FeatureTreeView::onModelLayoutChanged()
{
    // invalidate() filters every row again: a row that passes now and did
    // not before comes with the layout change, not as an inserted row, and
    // nothing else gives it an editor. (Within a bulk change this waits for
    // its end.) As after a bulk change, the rows in sight first, then the
    // others for the rest of this turn's allowance and in later slices.
    openEditorsSoon(QModelIndex());
    openEditorsInSight();
    openWaitingEditorsWithinTurn();
}

IFeatureTreeModelExtension* FeatureTreeView::getFeatureExtension()
{
    return const_cast<IFeatureTreeModelExtension*>(qAsConst(*this).getFeatureExtension());
}

const IFeatureTreeModelExtension* FeatureTreeView::getFeatureExtension() const
{
    // Asked at every changed cell: the proxy the view made itself is known
    // without the cost of a cross cast; a host's model is asked.
    const QAbstractItemModel* current = model();
    if (current && current == m_ownedProxy)
        return static_cast<const FeatureTreeProxyModel*>(current);
    return dynamic_cast<const IFeatureTreeModelExtension*>(current);
}

FeatureTreeHighlighter* FeatureTreeView::getHightlighter()
{
    return &m_highlighter;
}

void FeatureTreeView::setSettingsPath(QString const& path)
{
    IFeatureTreeModelExtension* extension = getFeatureExtension();
    if (!extension || !extension->GetFavorites())
        return;
    extension->GetFavorites()->setSettingsPath(path);
}

QString FeatureTreeView::getSettingsPath() const
{
    // GetFavorites() is not const on the extension; the store itself is process-wide.
    auto* extension = const_cast<IFeatureTreeModelExtension*>(getFeatureExtension());
    if (!extension || !extension->GetFavorites())
        return QString();
    return extension->GetFavorites()->getSettingsPath();
}

void FeatureTreeView::openPersistentEditor(QModelIndex const& index)
{
    // Held back during a bulk change, before the item is looked up in the
    // whole tree: endBulkChange() opens what is visible then.
    if (m_bulkDepth > 0)
        return;
    IFeatureTreeModelExtension* extension = getFeatureExtension();
    if (!extension)
        return;
    FeatureTreeItem* item = extension->getFeatureTreeItem(index);
    if (!item || !extension->findItem(item, nullptr, 0).isValid())
        return;
    if (!item->usePersistentEditor())
        return;
    if (item->getVisibility() > m_visibility)
        return;
    if (item->getAccessMode() <= GenApi::NA)
        return;
    m_lastVisualIndex = QModelIndex();
    QAbstractItemView::openPersistentEditor(index);
    QWidget* editor = indexWidget(index);
    if (!editor)
        return;
    m_editorIndexes.insert(index);
    // The base class shows every new editor. One out of sight waits hidden
    // until its row scrolls into view (see placeEditors()). The base class
    // has just asked visualRect() for the cell; its answer is reused.
    const QRect cell = m_lastVisualIndex == index ? m_lastVisualRect : QTreeView::visualRect(index);
    if (!m_placingEditors && !keepsEditorShown(index, cell)) {
        editor->hide();
        m_editorsOutOfSight = true;
    }
}

void FeatureTreeView::beginBulkChange()
{
    if (m_bulkDepth++ == 0) {
        m_editorsClosedForBulk = false;
        m_bulkEditorVisits = 0;
    }
}

void FeatureTreeView::endBulkChange()
{
    if (m_bulkDepth == 0) {
        ZVC_LOGGER.debug("endBulkChange: no bulk change to end");
        return;
    }
    if (--m_bulkDepth > 0)
        return;
    // The rows in sight get their editors now, before the repaint that
    // usually follows; the others in the coming turns of the event loop.
    openEditorsSoon(QModelIndex());
    openEditorsInSight();
    openWaitingEditorsWithinTurn();
    placeEditors();
    releaseParkedEditors(true);
}

void FeatureTreeView::closeEditorsForBulkChange()
{
    if (m_bulkDepth == 0 || m_editorsClosedForBulk)
        return;
    // This range, and each one after it, visits every open editor.
    m_bulkEditorVisits += m_editorIndexes.size();
    if (m_bulkEditorVisits <= m_bulkEditorBudget && m_bulkEditorBudget > 0)
        return;
    m_editorsClosedForBulk = true;
    // Runs inside the model's row signals: only the base class's bookkeeping
    // is touched here, not the model.
    const QModelIndex current = currentIndex();
    const QList<QPersistentModelIndex> cells = m_editorIndexes.values();
    m_editorIndexes.clear();
    // Our delegate keeps the editors aside for the rows that stay, which get
    // them back when they open theirs again (see EditorPark).
    EditorPark* park
        = qobject_cast<FeatureTreeDelegate*>(itemDelegate()) ? EditorPark::of(itemDelegate(), true) : nullptr;
    if (park)
        park->setOpen(true);
    for (const QPersistentModelIndex& cell : cells) {
        if (!cell.isValid())
            continue;
        // The current row keeps its editor, with whatever the user has typed into it.
        if (current.isValid() && cell.row() == current.row() && cell.parent() == current.parent()) {
            m_editorIndexes.insert(cell);
            continue;
        }
        if (indexWidget(cell))
            closePersistentEditor(cell);
    }
    if (park)
        park->setOpen(false);
}

void FeatureTreeView::releaseParkedEditors(bool whenAllOpen)
{
    if (whenAllOpen && (hasEditorsToOpen() || m_bulkDepth > 0))
        return;
    if (EditorPark* park = EditorPark::of(itemDelegate(), false))
        park->release();
}

void FeatureTreeView::openVisibleEditors(QModelIndex const& parent)
{
    IFeatureTreeModelExtension* extension = getFeatureExtension();
    if (!extension || !model() || m_bulkDepth > 0)
        return;
    if (parent.isValid() && !isExpanded(parent))
        return;
    // Top to bottom, the order of the view's rows, so that each editor finds
    // its row next to the one before.
    const int rows = model()->rowCount(parent);
    for (int row = 0; row < rows; ++row) {
        if (isRowHidden(row, parent))
            continue;
        const QModelIndex child = model()->index(row, 1, parent);
        FeatureTreeItem* item = extension->getFeatureTreeItem(child);
        if (item && item->ShowMe(m_visibility) && item->usePersistentEditor() && !indexWidget(child))
            openPersistentEditor(child);
        const QModelIndex name = model()->index(row, 0, parent);
        if (isExpanded(name))
            openVisibleEditors(name);
    }
}

void FeatureTreeView::updateEditorGeometries()
{
    // Every expansion, inserted row range and layout asks for all editors to
    // be placed again, and placing one looks its row up among all rows of the
    // view. Expanding a hundred categories with thousands of editors open
    // made that rows x editors a hundred times over; once per turn of the
    // event loop is enough, before the next paint.
    if (m_placingEditors) {
        QTreeView::updateEditorGeometries();
        return;
    }
    postOnce(&FeatureTreeView::m_placeEditorsPosted, &FeatureTreeView::placeEditors);
}

void FeatureTreeView::postOnce(bool FeatureTreeView::*posted, void (FeatureTreeView::*call)())
{
    if (this->*posted)
        return;
    this->*posted = true;
    // A posted call, not a timer: it runs before the repaint that the same
    // turn of the event loop asks for, and dies with the view. The call
    // clears the flag; a call that clears it first cancels this one.
    QMetaObject::invokeMethod(
        this,
        [this, posted, call] {
            if (this->*posted)
                (this->*call)();
        },
        Qt::QueuedConnection);
}

void FeatureTreeView::placeEditors()
{
    // Only the editors of the rows in sight are shown and placed; the base
    // class hides those whose rectangle visualRect() gives as empty. Every
    // shown sibling editor makes each repaint of the viewport's children
    // look at all the others, so thousands of editors shown below the
    // visible rows made expanding a large camera quadratic in its editors.
    m_placeEditorsPosted = false;
    m_placingEditors = true;
    m_editorsOutOfSight = false;
    QTreeView::updateEditorGeometries();
    m_placingEditors = false;
}

bool FeatureTreeView::keepsEditorShown(QModelIndex const& index, QRect const& cell) const
{
    if (cell.intersects(viewport()->rect()))
        return true;
    // The editor being typed into keeps its focus, in sight or not.
    QWidget* editor = indexWidget(index);
    return editor && editor->isAncestorOf(QApplication::focusWidget());
}

QRect FeatureTreeView::visualRect(QModelIndex const& index) const
{
    const QRect cell = QTreeView::visualRect(index);
    m_lastVisualIndex = index;
    m_lastVisualRect = cell;
    if (!m_placingEditors || !cell.isValid() || keepsEditorShown(index, cell))
        return cell;
    m_editorsOutOfSight = true;
    return QRect();
}

void FeatureTreeView::scrollContentsBy(int dx, int dy)
{
    QTreeView::scrollContentsBy(dx, dy);
    showEditorsInSight();
}

void FeatureTreeView::showEditorsInSight()
{
    const bool waiting = hasEditorsToOpen() && m_bulkDepth == 0;
    if ((!m_editorsOutOfSight && !waiting) || !model() || m_placingEditors)
        return;
    QStyleOptionViewItem option;
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    option = viewOptions();
#else
    initViewItemOption(&option);
#endif
    const QRect sight = viewport()->rect();
    for (QModelIndex name = indexAt(QPoint(0, 0)); name.isValid(); name = indexBelow(name)) {
        const QModelIndex value = name.sibling(name.row(), 1);
        const QRect cell = QTreeView::visualRect(value);
        if (cell.top() > sight.bottom())
            break;
        QWidget* editor = indexWidget(value);
        if (!editor) {
            // A row whose editor was still waiting opens it as it comes into sight.
            if (waiting && wantsEditor(value))
                openPersistentEditor(value);
            continue;
        }
        if (!editor->isHidden())
            continue;
        option.rect = cell;
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
        QAbstractItemDelegate* delegate = itemDelegate(value);
#else
        QAbstractItemDelegate* delegate = itemDelegateForIndex(value);
#endif
        if (delegate)
            delegate->updateEditorGeometry(editor, option, value);
        editor->show();
    }
}

void FeatureTreeView::forEachValueCell(QModelIndex const& parent,
    const std::function<void(int row, QModelIndex const& child, FeatureTreeItem* item)>& visit)
{
    IFeatureTreeModelExtension* extension = getFeatureExtension();
    if (!extension || !model() || !isExpanded(parent))
        return;
    const int rows = model()->rowCount(parent);
    for (int row = 0; row < rows; ++row) {
        const QModelIndex child = model()->index(row, 1, parent);
        visit(row, child, extension->getFeatureTreeItem(child));
    }
}

void FeatureTreeView::openPersistentEditorsForChildren(QModelIndex const& parent)
{
    if (m_bulkDepth > 0)
        return;
    forEachValueCell(parent, [this](int, QModelIndex const& child, FeatureTreeItem* item) {
        if (item && item->ShowMe(m_visibility) && !indexWidget(child) && item->usePersistentEditor())
            openPersistentEditor(child);
    });
}

void FeatureTreeView::hideRow(int row, QModelIndex const& parent)
{
    const QModelIndex current = currentIndex();
    setRowHidden(row, parent, true);
    // The host must drop a parameter that has gone out of sight.
    if (current.isValid() && current.row() == row && current.parent() == parent)
        emit onCurrentChanged(QModelIndex());
}

void FeatureTreeView::updateRows(QModelIndex const& parent)
{
    updateRowsOf(parent, true);
}

void FeatureTreeView::updateRowsOf(QModelIndex const& parent, bool openEditors)
{
    forEachValueCell(parent, [this, &parent, openEditors](int row, QModelIndex const& child, FeatureTreeItem* item) {
        if (item) {
            if (item->ShowMe(m_visibility)) {
                if (isRowHidden(row, parent))
                    setRowHidden(row, parent, false);
                if (openEditors && !indexWidget(child) && item->usePersistentEditor())
                    openPersistentEditor(child);
            } else if (!isRowHidden(row, parent)) {
                hideRow(row, parent);
            }
        }
        // On the column-1 index: a deeper level is handled when it is expanded.
        updateRowsOf(child, openEditors);
    });
}

void FeatureTreeView::rowsInserted(QModelIndex const& parent, int start, int end)
{
    QTreeView::rowsInserted(parent, start, end);
    closeEditorsForBulkChange();
    // A branch waiting below this parent resumes at the same row as before.
    const int count = end - start + 1;
    for (WaitingBranch& branch : m_waitingBranches) {
        if ((branch.root ? !parent.isValid() : branch.parent == parent) && branch.nextRow > start)
            branch.nextRow += count;
    }
    if (parent.isValid()) {
        openEditorsSoon(parent);
        openWaitingEditorsWithinTurn();
    }
}

void FeatureTreeView::rowsAboutToBeRemoved(QModelIndex const& parent, int start, int end)
{
    // Before the model walks its persistent indexes for this range.
    closeEditorsForBulkChange();
    for (WaitingBranch& branch : m_waitingBranches) {
        if (!(branch.root ? !parent.isValid() : branch.parent == parent))
            continue;
        if (branch.nextRow > end)
            branch.nextRow -= end - start + 1;
        else if (branch.nextRow > start)
            branch.nextRow = start;
    }
    QTreeView::rowsAboutToBeRemoved(parent, start, end);
}

void FeatureTreeView::reset()
{
    dropWaitingEditors();
    QTreeView::reset();
}

bool FeatureTreeView::wantsEditor(QModelIndex const& value) const
{
    const IFeatureTreeModelExtension* extension = getFeatureExtension();
    FeatureTreeItem* item = extension ? extension->getFeatureTreeItem(value) : nullptr;
    return item && item->ShowMe(m_visibility) && item->usePersistentEditor() && !indexWidget(value);
}

void FeatureTreeView::openEditorsSoon(QModelIndex const& parent)
{
    if (!model() || m_bulkDepth > 0)
        return;
    if (parent.isValid() && !isExpanded(parent))
        return;
    WaitingBranch branch;
    branch.ticket = ++m_nextTicket;
    if (!parent.isValid()) {
        // A walk from the top reaches every branch on its way.
        m_waitingBranches.clear();
        m_waitingTickets.clear();
        branch.root = true;
        m_rootTicket = branch.ticket;
    } else {
        branch.parent = parent.sibling(parent.row(), 0);
        // A branch asked for again is walked again from its first row; its
        // older entry is skipped.
        m_waitingTickets.insert(branch.parent, branch.ticket);
    }
    m_waitingBranches.push_back(branch);
    postEditorSlice();
}

void FeatureTreeView::openEditorsInSight()
{
    if (!model() || m_bulkDepth > 0 || !getFeatureExtension())
        return;
    const int bottom = viewport()->rect().bottom();
    for (QModelIndex name = indexAt(QPoint(0, 0)); name.isValid(); name = indexBelow(name)) {
        if (QTreeView::visualRect(name).top() > bottom)
            break;
        const QModelIndex value = name.sibling(name.row(), 1);
        if (wantsEditor(value))
            openPersistentEditor(value);
    }
}

void FeatureTreeView::postEditorSlice()
{
    postOnce(&FeatureTreeView::m_editorSlicePosted, &FeatureTreeView::openEditorSlice);
}

void FeatureTreeView::openEditorSlice()
{
    m_editorSlicePosted = false;
    // A bulk change in progress opens everything at its end.
    if (m_bulkDepth > 0 || !hasEditorsToOpen())
        return;
    // Long enough to open some dozens of editors, short enough that typing
    // and scrolling meanwhile feel immediate.
    const qint64 sliceNanoseconds = 12 * 1000 * 1000;
    openEditorsInSight();
    openWaitingEditorsFor(sliceNanoseconds);
    if (hasEditorsToOpen())
        postEditorSlice();
}

void FeatureTreeView::openWaitingEditorsWithinTurn()
{
    // What one turn of the event loop may spend opening editors before it
    // leaves the rest to the slices: enough for the branches a user expands
    // one at a time, short next to the first frame of a large expansion.
    const qint64 turnNanoseconds = 16 * 1000 * 1000;
    if (!hasEditorsToOpen() || m_bulkDepth > 0)
        return;
    if (!m_turnClock.isValid()) {
        m_turnClock.start();
        QMetaObject::invokeMethod(
            this, [this] { m_turnClock.invalidate(); }, Qt::QueuedConnection);
    }
    const qint64 left = turnNanoseconds - m_turnClock.nsecsElapsed();
    if (left > 0)
        openWaitingEditorsFor(left);
}

void FeatureTreeView::openWaitingEditors()
{
    openEditorsInSight();
    openWaitingEditorsFor(-1);
}

void FeatureTreeView::dropWaitingEditors()
{
    m_waitingBranches.clear();
    m_waitingTickets.clear();
    m_rootTicket = 0;
    releaseParkedEditors(false);
}

void FeatureTreeView::openWaitingEditorsFor(qint64 nanoseconds)
{
    IFeatureTreeModelExtension* extension = getFeatureExtension();
    QAbstractItemModel* itemModel = model();
    if (!extension || !itemModel || m_bulkDepth > 0 || m_openingWaitingEditors)
        return;
    m_openingWaitingEditors = true;
    QElapsedTimer clock;
    clock.start();
    // One row per round, and the front branch looked at anew each time:
    // opening an editor may change the model, and the branches with it.
    while (!m_waitingBranches.empty()) {
        WaitingBranch& branch = m_waitingBranches.front();
        const bool live = branch.root ? branch.ticket == m_rootTicket
                                      : branch.parent.isValid() && branch.parent.model() == itemModel
                && m_waitingTickets.value(branch.parent) == branch.ticket && isExpanded(branch.parent);
        const QModelIndex parent = branch.root ? QModelIndex() : QModelIndex(branch.parent);
        if (!live || branch.nextRow >= itemModel->rowCount(parent)) {
            if (live && !branch.root)
                m_waitingTickets.remove(branch.parent);
            m_waitingBranches.pop_front();
            continue;
        }
        const quint64 ticket = branch.ticket;
        const int row = branch.nextRow++;
        if (!isRowHidden(row, parent)) {
            const QModelIndex value = itemModel->index(row, 1, parent);
            if (wantsEditor(value))
                openPersistentEditor(value);
            const QModelIndex name = itemModel->index(row, 0, parent);
            // The rows below an expanded child come before the parent's next row.
            if (name.isValid() && isExpanded(name) && !m_waitingBranches.empty()
                && m_waitingBranches.front().ticket == ticket) {
                WaitingBranch child;
                child.parent = name;
                child.ticket = ++m_nextTicket;
                m_waitingTickets.insert(child.parent, child.ticket);
                m_waitingBranches.push_front(child);
            }
        }
        if (nanoseconds >= 0 && clock.nsecsElapsed() > nanoseconds)
            break;
    }
    m_openingWaitingEditors = false;
    releaseParkedEditors(true);
}

void FeatureTreeView::currentChanged(QModelIndex const& current, QModelIndex const& previous)
{
    emit onCurrentChanged(current);
    QTreeView::currentChanged(current, previous);
}

void FeatureTreeView::onSelfExpanded(QModelIndex const& index)
{
    updateRowsOf(index, false);
    if (IFeatureTreeModelExtension* extension = getFeatureExtension()) {
        if (index == extension->GetFavoritesRootIndex() && extension->GetFavorites())
            extension->GetFavorites()->setExpanded(true);
    }
    // The editors of the children, and of the rows below children that
    // stayed expanded: a bulk change while the branch was collapsed closed
    // theirs and opened again only those of the rows then on screen.
    // Expanding every category of a large camera one after the other would
    // otherwise open thousands of editors before the first frame: they open
    // now for as long as this turn of the event loop allows, which is all of
    // them for a single expansion of an ordinary branch; the children in
    // sight open now in any case.
    openEditorsSoon(index);
    openWaitingEditorsWithinTurn();
    openChildEditorsInSight(index);
}

void FeatureTreeView::openChildEditorsInSight(QModelIndex const& parent)
{
    QAbstractItemModel* itemModel = model();
    if (!itemModel || m_bulkDepth > 0 || !isExpanded(parent))
        return;
    // The children follow one another down the view: the first one below
    // the viewport ends the walk, usually at once.
    const QRect sight = viewport()->rect();
    const int rows = itemModel->rowCount(parent);
    for (int row = 0; row < rows; ++row) {
        if (isRowHidden(row, parent))
            continue;
        const QModelIndex value = itemModel->index(row, 1, parent);
        const QRect cell = QTreeView::visualRect(value);
        if (cell.top() > sight.bottom())
            break;
        if (cell.bottom() >= sight.top() && wantsEditor(value))
            openPersistentEditor(value);
    }
}

void FeatureTreeView::onSelfCollapsed(QModelIndex const& index)
{
    // The editors of a collapsed branch stay open.
    if (IFeatureTreeModelExtension* extension = getFeatureExtension()) {
        if (index == extension->GetFavoritesRootIndex() && extension->GetFavorites())
            extension->GetFavorites()->setExpanded(false);
    }
}

void FeatureTreeView::onFavoriteDataExpanded(bool bExpand)
{
    IFeatureTreeModelExtension* extension = getFeatureExtension();
    if (!extension)
        return;
    const QModelIndex root = extension->GetFavoritesRootIndex();
    if (bExpand && !isExpanded(root))
        expand(root);
    else if (!bExpand && isExpanded(root))
        collapse(root);
}

void FeatureTreeView::onFavoriteDataUpdated()
{
    IFeatureTreeModelExtension* extension = getFeatureExtension();
    if (!extension)
        return;

    // Names, not indexes, carry the selection across the rebuild.
    QString currentName;
    const QModelIndex current = currentIndex();
    if (current.isValid())
        currentName = current.data(FeatureTreeItem::FullNameRole).toString();
    QStringList selectedNames;
    const QModelIndexList selected = selectedIndexes();
    for (const QModelIndex& index : selected)
        selectedNames << (index.isValid() ? index.data(FeatureTreeItem::FullNameRole).toString() : QString());

    extension->rebuildFavoriteItems();

    if (QItemSelectionModel* selection = selectionModel()) {
        for (const QString& name : qAsConst(selectedNames)) {
            const QModelIndex index = extension->findItemByFullName(name, nullptr, 0);
            if (index.isValid())
                selection->select(index, QItemSelectionModel::Select);
        }
    }
    if (!currentName.isEmpty()) {
        const QModelIndex index = extension->findItemByFullName(currentName, nullptr, 0);
        if (index.isValid())
            setCurrentIndex(index);
    }

    const QModelIndex favoritesRoot = extension->GetFavoritesRootIndex();
    updateRows(favoritesRoot);
    if (extension->GetFavorites() && extension->GetFavorites()->getExpanded())
        expand(favoritesRoot);
    else
        collapse(favoritesRoot);
}

void FeatureTreeView::setVisibility(GenApi::EVisibility visibility)
{
    // One pointer for all views: the model of the last effective call.
    static const QAbstractItemModel* lastModel = nullptr;
    if (visibility == m_visibility && model() == lastModel)
        return;
    m_visibility = visibility;
    lastModel = model();
    if (model()) {
        onFavoriteDataUpdated();
        // The level is the user's, whatever the device says: an unplugged or
        // failing camera must not turn a change of level into a crash.
        if (IFeatureTreeModelExtension* extension = getFeatureExtension()) {
            try {
                extension->refresh();
            } catch (...) {
                ExceptionLogging::logCurrentException(Q_FUNC_INFO, QStringLiteral("Failed to refresh the features"));
            }
        }
    }
}

void FeatureTreeView::dataChanged(QModelIndex const& topLeft, QModelIndex const& bottomRight, QVector<int> const& roles)
{
    IFeatureTreeModelExtension* extension = getFeatureExtension();
    if (extension && topLeft == bottomRight) {
        try {
            const QModelIndex parent = topLeft.parent();
            const int row = topLeft.row();
            // Setting the span repaints the whole viewport, so it is set only
            // when it changes: a value that changes at each poll repaints its
            // own cell alone.
            if (topLeft.isValid()) {
                const bool span = topLeft.data(FeatureTreeItem::IsFullRowRole).toBool();
                if (isFirstColumnSpanned(row, parent) != span)
                    setFirstColumnSpanned(row, parent, span);
            }
            FeatureTreeItem* item = extension->getFeatureTreeItem(topLeft);
            if (topLeft.isValid() && topLeft.column() == 1) {
                if (item) {
                    const bool show = item->ShowMe(m_visibility);
                    if (show && isRowHidden(row, parent))
                        setRowHidden(row, parent, false);
                    else if (!show && !isRowHidden(row, parent))
                        hideRow(row, parent);

                    const GenApi::EAccessMode access = item->getAccessMode();
                    const bool hidden = isRowHidden(row, parent);
                    const bool editable = item->isEditable();
                    QWidget* widget = indexWidget(topLeft);
                    const bool persistent = item->usePersistentEditor();
                    if (widget && persistent) {
                        if (hidden || access <= GenApi::NA) {
                            closePersistentEditor(topLeft);
                            m_editorIndexes.remove(topLeft);
                        }
                    } else if (widget) {
                        if (hidden || !editable)
                            closeEditor(widget, QAbstractItemDelegate::NoHint);
                    } else if (access > GenApi::NA && !hidden && persistent) {
                        openPersistentEditor(topLeft);
                    }
                }
            } else if (item && item->getFullName() == QLatin1String("Dummy")) {
                // The help line of an empty favourites list spans the row.
                setFirstColumnSpanned(0, parent, true);
            }
        } catch (const std::exception& e) {
            ZVC_LOGGER.warning("Failed to access the node");
            ExceptionLogging::logException(Q_FUNC_INFO, e);
        } catch (...) {
            ZVC_LOGGER.warning("Failed to access the node");
            ExceptionLogging::logUnspecifiedException(Q_FUNC_INFO);
        }
    }
    executeDelayedItemsLayout();
    QTreeView::dataChanged(topLeft, bottomRight, roles);
}

namespace {

// A selected row shows only through its text, half transparent; the
// highlight behind it is invisible.
void makeSelectionTransparent(QStyleOptionViewItem& options)
{
    const QBrush transparent(QColor(0, 0, 0, 0));
    QColor activeText = options.palette.color(QPalette::Active, QPalette::Text);
    activeText.setAlpha(128);
    options.palette.setBrush(QPalette::Active, QPalette::HighlightedText, QBrush(activeText));
    options.palette.setBrush(QPalette::Active, QPalette::Highlight, transparent);
    for (QPalette::ColorGroup group : { QPalette::Disabled, QPalette::Inactive }) {
        options.palette.setBrush(
            group, QPalette::HighlightedText, QBrush(options.palette.color(group, QPalette::Text)));
        options.palette.setBrush(group, QPalette::Highlight, transparent);
    }
}

} // namespace

#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
QStyleOptionViewItem FeatureTreeView::viewOptions() const
{
    QStyleOptionViewItem options = QTreeView::viewOptions();
    makeSelectionTransparent(options);
    return options;
}
#else
void FeatureTreeView::initViewItemOption(QStyleOptionViewItem* option) const
{
    QTreeView::initViewItemOption(option);
    makeSelectionTransparent(*option);
}
#endif

void FeatureTreeView::drawRow(QPainter* painter, QStyleOptionViewItem const& option, QModelIndex const& index) const
{
    // A selected row is painted as an unselected one; the selection shows
    // through the palette of viewOptions() only.
    QItemSelectionModel* selection = selectionModel();
    SignalBlocker blocker(selection);
    const bool wasSelected = selection && selection->isSelected(index);
    if (wasSelected)
        selection->select(index, QItemSelectionModel::Deselect);
    QTreeView::drawRow(painter, option, index);
    if (wasSelected)
        selection->select(index, QItemSelectionModel::Select);
}

void FeatureTreeView::paintEvent(QPaintEvent* event)
{
    QTreeView::paintEvent(event);
    if (model() && model()->rowCount(rootIndex()) > 0)
        return;
    QPainter painter(viewport());
    painter.setPen(palette().color(QPalette::Active, QPalette::Text));
    painter.drawText(rect(), Qt::AlignHCenter | Qt::AlignTop, tr("No search results found."));
}
