#include "featuretreewidget.h"

#include "favoritesdata.h"
#include "featuretreehighlighter.h"
#include "featuretreeinodeitem.h"
#include "featuretreeitem.h"
#include "featuretreeproxymodel.h"
#include "featuretreeview.h"
#include "ifeaturetreemodelextension.h"
#include "messages/exceptionlogging.h"
#include "nodemapfilter.h"
#include "resourceicons.h"
#include "ui_featuretreewidget.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QGuiApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMenu>
#include <QSettings>
#include <QShortcut>
#include <QTextStream>

#include <limits>

namespace {

// Esc twice clears the search. One flag for every feature tree of the
// process: Esc in one tree and Esc in another count as a double press.
bool escapePressedOnce = false;

QIcon resourceIcon(QString const& file)
{
    return ResourceIcons::icon(QStringLiteral(":/zarvexviewercomponents/Resources/") + file);
}

} // namespace

FeatureTreeWidget::FeatureTreeWidget(QString text, QSharedPointer<Plugin::CameraPool::IBaseInfo> cameraInfo,
    QWidget* parent, GenApi::EVisibility visibility, bool flag)
    : TreeWidgetBase(parent)
    , ui(new Ui_FeatureTreeWidgetClass)
    , m_text(std::move(text))
    , m_firstFilter(true)
    , m_cameraInfo(std::move(cameraInfo))
{
    // The tree starts at its own default level; a host sets another with setVisibility().
    Q_UNUSED(visibility)
    Q_UNUSED(flag)
    ui->setupUi(this);

    ui->treeView->header()->resizeSection(0, 200);
    ui->treeView->setEditTriggers(QAbstractItemView::AllEditTriggers);
    ui->treeView->setSelectionBehavior(QAbstractItemView::SelectRows);
    ui->treeView->setSelectionMode(QAbstractItemView::SingleSelection);

    connect(ui->treeView, SIGNAL(onCurrentChanged(QModelIndex)), this, SLOT(onCurrentChanged(QModelIndex)));
    connect(this, SIGNAL(pollingStateChanged(bool)), this, SLOT(onPollingStateChanged(bool)));
    setContextMenuPolicy(Qt::CustomContextMenu);
    connect(this, SIGNAL(customContextMenuRequested(QPoint)), this, SLOT(contextualMenu(QPoint)));
    connect(ui->filterEdit, SIGNAL(textChanged(QString)), this, SLOT(onFilterTextChanged(QString)));

    getFeatureExtension()->rebuildFavoriteItems();

    actionAddToFavourites = createFavouritesAction("actionAddToFavourites", QKeySequence(tr("Ctrl+D")),
        QStringLiteral("AddGigECamera_16.png"), tr("Add to Favorites"), SLOT(AddToFavourites_triggered()));
    actionMoveFavouriteUp = createFavouritesAction("actionMoveFavouriteUp", QKeySequence(tr("Ctrl+Up")),
        QStringLiteral("Move_Up.png"), tr("Move Up"), SLOT(FavouriteMoveUp_triggered()));
    actionMoveFavouriteDown = createFavouritesAction("actionMoveFavouriteDown", QKeySequence(tr("Ctrl+Down")),
        QStringLiteral("Move_Down.png"), tr("Move Down"), SLOT(FavouriteMoveDown_triggered()));
    actionRemoveFavourite = createFavouritesAction("actionRemoveFavourite", QKeySequence(QKeySequence::Delete),
        QStringLiteral("RemGigECamera_16.png"), tr("Remove"), SLOT(FavouriteRemove_triggered()));
    ui->treeView->setSelectionBehavior(QAbstractItemView::SelectRows);

    actionTogglePolling = new QAction(this);
    actionTogglePolling->setObjectName(QStringLiteral("actionTogglePolling"));
    actionTogglePolling->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    actionTogglePolling->setText(tr("Polling"));
    actionTogglePolling->setCheckable(true);
    actionTogglePolling->setChecked(ui->checkBoxPolling->isChecked());
    connect(actionTogglePolling, SIGNAL(triggered()), this, SLOT(TogglePolling_triggered()));

    auto* findShortcut = new QShortcut(QKeySequence(Qt::Key_F3), ui->filterEdit);
    findShortcut->setContext(Qt::WindowShortcut);
    connect(findShortcut, SIGNAL(activated()), ui->filterEdit, SLOT(setFocus()));
    auto* searchShortcut = new QShortcut(QKeySequence(Qt::CTRL | Qt::Key_F), ui->filterEdit);
    searchShortcut->setContext(Qt::WindowShortcut);
    connect(searchShortcut, SIGNAL(activated()), ui->filterEdit, SLOT(setFocus()));
    QString shadow = tr("Search (%1)").arg(searchShortcut->key().toString(QKeySequence::NativeText));
    ui->filterEdit->setShadowDisplayString(shadow);

    auto* collapseShortcut = new QShortcut(QKeySequence(Qt::CTRL | Qt::ALT | Qt::SHIFT | Qt::Key_Minus), ui->treeView);
    collapseShortcut->setContext(Qt::WindowShortcut);
    connect(collapseShortcut, SIGNAL(activated()), ui->treeView, SLOT(collapseAll()));
    auto* expandShortcut = new QShortcut(QKeySequence(Qt::CTRL | Qt::ALT | Qt::SHIFT | Qt::Key_Plus), this);
    expandShortcut->setContext(Qt::WindowShortcut);
    connect(expandShortcut, SIGNAL(activated()), this, SLOT(expandTree()));

    // Polling is always off after construction; nothing is read from the settings.
    QSettings settings;
    settings.beginGroup(QStringLiteral("FeatureTree"));
    setPolling(false);
    settings.endGroup();
}

FeatureTreeWidget::~FeatureTreeWidget()
{
    delete ui;
}

QAction* FeatureTreeWidget::createFavouritesAction(const char* objectName, QKeySequence const& shortcut,
    QString const& iconFile, QString const& text, const char* slot)
{
    auto* action = new QAction(this);
    action->setObjectName(QLatin1String(objectName));
    action->setShortcut(shortcut);
    action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    action->setIcon(resourceIcon(iconFile));
    action->setIconText(text);
    action->setEnabled(false);
    action->setVisible(true);
    connect(action, SIGNAL(triggered()), this, slot);
    addAction(action);
    return action;
}

FeatureTreeView* FeatureTreeWidget::featureTreeView() const
{
    return ui->treeView;
}

QTreeView* FeatureTreeWidget::treeView()
{
    return ui->treeView;
}

const QTreeView* FeatureTreeWidget::treeView() const
{
    return ui->treeView;
}

GenApi::EVisibility FeatureTreeWidget::visibility() const
{
    return featureTreeView()->getVisibility();
}

void FeatureTreeWidget::setVisibility(GenApi::EVisibility visibility)
{
    featureTreeView()->setVisibility(visibility);
    if (IFeatureTreeModelExtension* extension = getFeatureExtension())
        extension->setVisibility(visibility);
    refreshTree();
}

void FeatureTreeWidget::setCameraType(QString cameraType)
{
    m_cameraType = std::move(cameraType);
}

QSize FeatureTreeWidget::sizeHint() const
{
    return QSize(400, 500);
}

void FeatureTreeWidget::setPolling(bool on)
{
    IFeatureTreeModelExtension* extension = getFeatureExtension();
    if (!extension)
        return;
    extension->EnablePolling(on);
    ui->checkBoxPolling->setChecked(on);
    actionTogglePolling->setChecked(on);
}

bool FeatureTreeWidget::getPolling() const
{
    const IFeatureTreeModelExtension* extension = getFeatureExtension();
    return extension && extension->GetPolling();
}

void FeatureTreeWidget::setPollingVisible(bool visible)
{
    ui->checkBoxPolling->setVisible(visible);
}

void FeatureTreeWidget::setViewAllFavorites(bool on)
{
    IFeatureTreeModelExtension* extension = getFeatureExtension();
    if (!extension)
        return;
    extension->EnableViewAllFavorites(on);
    ui->checkBoxViewAllFavorites->setChecked(on);
}

bool FeatureTreeWidget::getViewAllFavorites() const
{
    const IFeatureTreeModelExtension* extension = getFeatureExtension();
    return extension && extension->GetViewAllFavorites();
}

void FeatureTreeWidget::setViewAllFavoritesVisible(bool visible)
{
    ui->checkBoxViewAllFavorites->setVisible(visible);
}

void FeatureTreeWidget::EnableGenICamCallbacks(bool on)
{
    if (IFeatureTreeModelExtension* extension = getFeatureExtension())
        extension->setGenICamCallbacksEnable(on);
}

void FeatureTreeWidget::setMonitorMode(bool on)
{
    if (IFeatureTreeModelExtension* extension = getFeatureExtension())
        extension->setMonitorMode(on);
}

void FeatureTreeWidget::deviceIsClosed()
{
    getFeatureExtension()->SetDeviceAlive(false);
}

void FeatureTreeWidget::clear()
{
    auto* proxy = qobject_cast<FeatureTreeProxyModel*>(ui->treeView->model());
    QAbstractItemModel* model = proxy ? proxy->sourceModel() : nullptr;
    auto* extension = dynamic_cast<IFeatureTreeModelExtension*>(model);
    if (!extension) {
        getFeatureExtension()->clear();
        return;
    }
    // The model frees its items without telling anyone, so the views above it
    // are reset around the clearing: the proxy lets go of the model while its
    // items still stand, and takes it up again empty. Without this the proxy's
    // mapping and the view's persistent editors would keep the freed items'
    // addresses and reach into them at the next filter pass.
    proxy->setSourceModel(nullptr);
    extension->clear();
    proxy->setSourceModel(model);
}

void FeatureTreeWidget::Refresh()
{
    on_resetButton_clicked();
}

void FeatureTreeWidget::refreshTree()
{
    auto* proxy = qobject_cast<FeatureTreeProxyModel*>(ui->treeView->model());
    if (!proxy)
        return;
    // Both filter passes may move many row ranges: in the bracket the editors
    // may close, and those of the visible rows open again at its end.
    featureTreeView()->beginBulkChange();
    // The empty text first forces the filter to run again even if the text has not changed.
    proxy->setFilterFixedString(QString());
    proxy->setFilterFixedString(m_filterText);
    if (!m_filterText.isEmpty())
        expandTree();
    proxy->invalidate();
    proxy->refreshSpecialItems();
    featureTreeView()->endBulkChange();
}

void FeatureTreeWidget::expandTree()
{
    ui->treeView->expandToDepth(2);
}

void FeatureTreeWidget::addParameterCollection(
    QSharedPointer<ParameterCollection::IParameterCollection> pParameterCollection, QString const& rootName,
    QString const& roleName, bool isUtf8)
{
    // The filter lets a refusal of the collection itself through (an
    // unplugged camera); the tree is still built from what the model can read.
    try {
        NodeMapFilter::applyFilter(pParameterCollection, m_cameraInfo, roleName);
    } catch (...) {
        ExceptionLogging::logCurrentException(Q_FUNC_INFO, QStringLiteral("Failed to apply the node map filter"));
    }
    IFeatureTreeModelExtension* extension = getFeatureExtension();
    if (!extension)
        return;
    extension->addParameterCollection(pParameterCollection, rootName, roleName, isUtf8);
    if (auto* proxy = qobject_cast<FeatureTreeProxyModel*>(ui->treeView->model()))
        proxy->invalidate();
    extension->refreshSpecialItems();
    FavoritesData* favorites = extension->GetFavorites();
    ui->treeView->setExpanded(extension->GetFavoritesRootIndex(), favorites && favorites->getExpanded());
}

void FeatureTreeWidget::onPollingStateChanged(bool newState)
{
    setPolling(newState);
}

IFeatureTreeModelExtension* FeatureTreeWidget::getFeatureExtension()
{
    return dynamic_cast<IFeatureTreeModelExtension*>(ui->treeView->model());
}

const IFeatureTreeModelExtension* FeatureTreeWidget::getFeatureExtension() const
{
    return dynamic_cast<const IFeatureTreeModelExtension*>(ui->treeView->model());
}

QModelIndex FeatureTreeWidget::GetCurrentIndex() const
{
    return ui->treeView->currentIndex();
}

FeatureTreeItem* FeatureTreeWidget::GetCurrentItem() const
{
    const QModelIndex index = GetCurrentIndex();
    const IFeatureTreeModelExtension* extension = getFeatureExtension();
    if (!index.isValid() || !extension)
        return nullptr;
    return extension->getFeatureTreeItem(index);
}

QSharedPointer<ParameterCollection::IParameter> FeatureTreeWidget::GetCurrentNode() const
{
    if (auto* item = qobject_cast<FeatureTreeINodeItem*>(GetCurrentItem()))
        return item->node();
    return QSharedPointer<ParameterCollection::IParameter>();
}

bool FeatureTreeWidget::IsCurrentFavorite() const
{
    const IFeatureTreeModelExtension* extension = getFeatureExtension();
    return extension && extension->IsFavoriteTreeItem(GetCurrentItem());
}

bool FeatureTreeWidget::IsOnCurrentItem(QPoint const& globalPoint)
{
    const QModelIndex current = GetCurrentIndex();
    const QModelIndex atPoint = ui->treeView->indexAt(ui->treeView->viewport()->mapFromGlobal(globalPoint));
    return atPoint.isValid() && current.isValid() && atPoint == current;
}

void FeatureTreeWidget::onCurrentChanged(QModelIndex const& current)
{
    IFeatureTreeModelExtension* extension = getFeatureExtension();
    if (current.isValid() && extension) {
        if (FeatureTreeItem* item = extension->getFeatureTreeItem(current)) {
            auto* nodeItem = qobject_cast<FeatureTreeINodeItem*>(item);
            if (nodeItem && nodeItem->node()) {
                // While the user types a search, the host's own panel must not jump along.
                if (!ui->filterEdit->hasFocus())
                    emit onCurrentChanged(nodeItem->node());
            } else if (item->HasDescription()) {
                emit onNewText(item->GetDescription());
            }
        }
    }
    if (extension) {
        actionAddToFavourites->setEnabled(extension->CanAddAsFavorite(current));
        actionRemoveFavourite->setEnabled(extension->IsFavoriteTreeItem(extension->getFeatureTreeItem(current)));
        actionMoveFavouriteUp->setEnabled(extension->CanMoveFavorite(current, true));
        actionMoveFavouriteDown->setEnabled(extension->CanMoveFavorite(current, false));
    }
}

void FeatureTreeWidget::on_resetButton_clicked()
{
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    // The delegate makes no editor for a parameter gone with its device, so
    // rows expanded while the camera was away have none, and its return
    // need not change a value that would tell the view. The end of the bulk
    // change looks for the editors missing: those in sight open now, the
    // others in the coming turns of the event loop.
    featureTreeView()->beginBulkChange();
    // Caught here so that a failing camera leaves neither a crash nor the wait cursor behind.
    if (IFeatureTreeModelExtension* extension = getFeatureExtension()) {
        try {
            extension->refresh();
        } catch (...) {
            ExceptionLogging::logCurrentException(Q_FUNC_INFO, QStringLiteral("Failed to refresh the features"));
        }
    }
    featureTreeView()->endBulkChange();
    QGuiApplication::restoreOverrideCursor();
}

void FeatureTreeWidget::on_checkBoxPolling_clicked()
{
    emit pollingStateChanged(ui->checkBoxPolling->isChecked());
}

void FeatureTreeWidget::TogglePolling_triggered()
{
    emit pollingStateChanged(actionTogglePolling->isChecked());
}

void FeatureTreeWidget::on_checkBoxViewAllFavorites_clicked()
{
    // The host answers with setViewAllFavorites(); the model is not told here.
    emit viewAllFavoritesStateChanged(ui->checkBoxViewAllFavorites->isChecked());
    refreshTree();
}

void FeatureTreeWidget::onVisibilityChanged(int level)
{
    static const GenApi::EVisibility levels[] = { GenApi::Beginner, GenApi::Expert, GenApi::Guru, GenApi::Invisible };
    if (level < 0 || level > 3 || levels[level] == GenApi::_UndefinedVisibility)
        return;
    const GenApi::EVisibility visibility = levels[level];
    setVisibility(visibility);
    emit visibilityChanged(visibility);
    onFilterTextChanged(m_filterText);
    refreshTree();
}

bool FeatureTreeWidget::event(QEvent* event)
{
    const bool result = QWidget::event(event);
    if (event->type() == QEvent::FontChange) {
        // Persistent editors and other descendants take the new font too.
        const QList<QWidget*> descendants = findChildren<QWidget*>();
        for (QWidget* widget : descendants)
            QCoreApplication::sendEvent(widget, event);
    }
    return result;
}

void FeatureTreeWidget::keyPressEvent(QKeyEvent* event)
{
    if (event->key() != Qt::Key_Escape) {
        escapePressedOnce = false;
    } else if (!escapePressedOnce) {
        escapePressedOnce = true;
    } else {
        ui->filterEdit->clear();
        escapePressedOnce = false;
    }
    QWidget::keyPressEvent(event);
}

// ---- search ----------------------------------------------------------------

void FeatureTreeWidget::onFilterTextChanged(QString const& newText)
{
    m_filterText = newText;
    if (m_firstFilter) {
        QGuiApplication::setOverrideCursor(Qt::WaitCursor);
        QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    }

    auto* proxy = qobject_cast<FeatureTreeProxyModel*>(ui->treeView->model());
    IFeatureTreeModelExtension* extension = getFeatureExtension();
    // A new filter text removes or inserts rows range by range, and with
    // thousands of editors open each range walked all of them: a keystroke
    // took seconds, clearing the search a minute. In the bracket the view
    // closes its editors once the ranges have walked them often enough, and
    // restoring the expansion and expanding the tree open none; the editors
    // of the visible rows then open in one pass, after expandTree() and
    // before the repaint, so the repaint shows the same tree as ever.
    featureTreeView()->beginBulkChange();
    if (proxy) {
        // The user's expansion and current row are kept for the whole search,
        // saved at its first letter and given back when the line is empty again.
        const bool patternWasEmpty = SearchPattern::ofProxy(*proxy).text().isEmpty();
        if (patternWasEmpty && !newText.isEmpty()) {
            saveExpandedStatus();
            saveSelectionStatus();
        }
        proxy->setFilterFixedString(newText);
        if (!patternWasEmpty && newText.isEmpty()) {
            restoreExpandedStatus();
            restoreSelectionStatus();
        }
    }
    featureTreeView()->getHightlighter()->setTextToHighlight(newText);

    FeatureTreeItem* helpItem = extension ? extension->getSearchHelpItem() : nullptr;
    if (!newText.isEmpty())
        expandTree();
    featureTreeView()->endBulkChange();
    if (!newText.isEmpty()) {
        ui->treeView->repaint();
        const int hidden = proxy ? proxy->getInvisibleMatchCount() : 0;
        const int total = hidden + (proxy ? proxy->getVisibleMatchCount() : 0);
        emit filterMatchesChanged(total, hidden);
        const QString result = tr("<B>%1 search results (%2 of them visible at higher user level)</B>")
                                   .arg(QString::number(total), QString::number(hidden));
        if (helpItem) {
            helpItem->setDisplayedName(QStringLiteral("<HTML>") + result);
            helpItem->SetToolTip(result);
            helpItem->setVisibility(hidden > 0 ? GenApi::Beginner : GenApi::Invisible);
        }
    } else {
        emit filterMatchesChanged(0, 0);
        if (helpItem) {
            helpItem->setDisplayedName(QString());
            helpItem->SetToolTip(QString());
            helpItem->setVisibility(GenApi::Invisible);
        }
    }
    if (extension)
        extension->refreshSpecialItems();

    // Restored even when no cursor was set above.
    QGuiApplication::restoreOverrideCursor();
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    m_firstFilter = false;
    if (proxy) {
        proxy->invalidate();
        proxy->refreshSpecialItems();
        proxy->setFilterFixedString(newText);
    }
}

// ---- context menu and favourites -------------------------------------------

void FeatureTreeWidget::contextualMenu(QPoint const& point)
{
    // The menu follows the current row, not the point.
    if (!GetCurrentIndex().isValid())
        return;
    auto* menu = new QMenu();
    if (IsCurrentFavorite()) {
        if (getFeatureExtension()) {
            menu->addAction(actionMoveFavouriteUp);
            menu->addAction(actionMoveFavouriteDown);
        }
        menu->addSeparator();
        menu->addAction(actionRemoveFavourite);
    } else {
        menu->addAction(actionAddToFavourites);
    }
    // The host shows it; the last owner to let go deletes it.
    emit contextMenuRequested(point, QSharedPointer<QMenu>(menu));
}

void FeatureTreeWidget::AddToFavourites_triggered()
{
    IFeatureTreeModelExtension* extension = getFeatureExtension();
    if (!extension || !extension->CanAddAsFavorite(GetCurrentIndex()))
        return;
    // The largest position places it at the end.
    extension->AddFavorite(GetCurrentNode(), std::numeric_limits<int>::max());
    if (auto* proxy = qobject_cast<FeatureTreeProxyModel*>(ui->treeView->model()))
        proxy->invalidate();
    extension->refreshSpecialItems();
}

void FeatureTreeWidget::FavouriteMoveUp_triggered()
{
    const QModelIndex index = GetCurrentIndex();
    // The action's enabled state may be older than the list: a move past
    // either end would take the favourite out of the store for good.
    if (IFeatureTreeModelExtension* extension = getFeatureExtension();
        extension && index.isValid() && extension->CanMoveFavorite(index, true))
        extension->MoveFavorite(index, true);
}

void FeatureTreeWidget::FavouriteMoveDown_triggered()
{
    const QModelIndex index = GetCurrentIndex();
    // The action's enabled state may be older than the list: a move past
    // either end would take the favourite out of the store for good.
    if (IFeatureTreeModelExtension* extension = getFeatureExtension();
        extension && index.isValid() && extension->CanMoveFavorite(index, false))
        extension->MoveFavorite(index, false);
}

void FeatureTreeWidget::FavouriteRemove_triggered()
{
    const QModelIndex index = GetCurrentIndex();
    IFeatureTreeModelExtension* extension = getFeatureExtension();
    if (!index.isValid() || !extension)
        return;
    // The selection lands on a neighbour before the row goes.
    QModelIndex neighbour = ui->treeView->indexBelow(index);
    if (!neighbour.isValid())
        neighbour = ui->treeView->indexAbove(index);
    ui->treeView->clearSelection();
    const QPersistentModelIndex removed(index);
    ui->treeView->setCurrentIndex(neighbour);
    extension->RemoveFavorite(removed);
    refreshTree();
}

// ---- expansion and selection memory ----------------------------------------

void FeatureTreeWidget::saveExpandedStatus()
{
    m_savedExpandedKeys.clear();
    const QAbstractItemModel* model = ui->treeView->model();
    if (!model)
        return;
    const int rows = model->rowCount();
    for (int row = 0; row < rows; ++row)
        saveExpandedOnLevel(model->index(row, 0));
}

void FeatureTreeWidget::saveExpandedOnLevel(QModelIndex const& index)
{
    if (!ui->treeView->isExpanded(index))
        return;
    m_savedExpandedKeys.append(index.data(FeatureTreeItem::ItemIdRole).toULongLong());
    const int rows = index.model()->rowCount(index);
    for (int row = 0; row < rows; ++row)
        saveExpandedOnLevel(index.model()->index(row, 0, index));
}

void FeatureTreeWidget::restoreExpandedStatus()
{
    const QAbstractItemModel* model = ui->treeView->model();
    if (!model)
        return;
    ui->treeView->setUpdatesEnabled(false);
    const int rows = model->rowCount();
    for (int row = 0; row < rows; ++row)
        restoreExpandedOnLevel(model->index(row, 0));
    ui->treeView->setUpdatesEnabled(true);
}

void FeatureTreeWidget::restoreExpandedOnLevel(QModelIndex const& index)
{
    const quint64 key = index.model() ? index.data(FeatureTreeItem::ItemIdRole).toULongLong() : 0;
    if (m_savedExpandedKeys.contains(key)) {
        ui->treeView->setExpanded(index, true);
        m_savedExpandedKeys.removeOne(key);
    } else {
        ui->treeView->setExpanded(index, false);
    }
    if (!index.model())
        return;
    const int rows = index.model()->rowCount(index);
    for (int row = 0; row < rows; ++row)
        restoreExpandedOnLevel(index.model()->index(row, 0, index));
}

void FeatureTreeWidget::saveSelectionStatus()
{
    m_savedSelectionKey = QVariant();
    if (!ui->treeView->selectionModel())
        return;
    const QModelIndex current = ui->treeView->selectionModel()->currentIndex();
    if (current.model())
        m_savedSelectionKey = current.data(FeatureTreeItem::ItemIdRole);
}

void FeatureTreeWidget::restoreSelectionStatus()
{
    IFeatureTreeModelExtension* extension = getFeatureExtension();
    if (m_savedSelectionKey.isValid() && extension)
        ui->treeView->setCurrentIndex(
            extension->findItemByRole(FeatureTreeItem::ItemIdRole, m_savedSelectionKey, nullptr, 0));
    m_savedSelectionKey = QVariant();
}

void FeatureTreeWidget::expandRootNodes()
{
    const QAbstractItemModel* model = ui->treeView->model();
    if (!model)
        return;
    const int rows = model->rowCount();
    for (int row = 0; row < rows; ++row)
        ui->treeView->expand(model->index(row, 0));
}

// ---- clipboard -------------------------------------------------------------

void FeatureTreeWidget::copyToClipboard()
{
    if (!getFeatureExtension())
        return;

    // Writes one line a row, pre-order, through the model interface only:
    // collapsed rows and rows the view merely hides are written too.
    class ModelDumper
    {
    public:
        void dump(QTextStream& stream, QAbstractItemModel const* model, QModelIndex parent, int depth)
        {
            const int rows = model->rowCount(parent);
            for (int row = 0; row < rows; ++row) {
                const QModelIndex name = model->index(row, 0, parent);
                const QModelIndex value = model->index(row, 1, parent);
                // Indentation and field add up to 40, so the tab lines up for every name that fits.
                stream << QString(2 * depth, QLatin1Char(' '));
                stream << Qt::left << qSetFieldWidth(2 * (20 - depth)) << name.data(Qt::DisplayRole).toString()
                       << qSetFieldWidth(0);
                stream << '\t' << value.data(Qt::DisplayRole).toString() << Qt::endl;
                dump(stream, model, name, depth + 1);
            }
        }
    };

    QString text;
    QTextStream stream(&text, QIODevice::ReadWrite);
    ModelDumper().dump(stream, ui->treeView->model(), QModelIndex(), 0);
    QGuiApplication::clipboard()->setText(text, QClipboard::Clipboard);
}
