// Soak driver: FeatureTreeWidget on the default simulated camera (all its
// node maps) plus a synthetic node map of many features, driven by a seeded
// random sequence of user gestures and device events. After every step the
// invariants hold:
//  - the view's proxy keeps QAbstractItemModel's contract: each of its
//    signals is checked as it comes (ModelSignalChecks), and after a step
//    that inserted, removed or moved rows QAbstractItemModelTester walks it
//    all;
//  - every time the widget announces match counts, they are exactly those of
//    a walk over every feature of the model at the present level, each name
//    once, whatever is expanded;
//  - every persistent editor sits on a shown, available row, and every such
//    row below an expanded parent has one;
//  - the favourites store equals the shadow list the driver keeps.
// A failure prints the seed and the step count that replay it:
//   tst_chaos --seed N --steps M --features F
// (or ZVC_CHAOS_SEED, ZVC_CHAOS_STEPS, ZVC_CHAOS_FEATURES). The synthetic
// node map has 10 000 features by default. ZVC_CHAOS_NO_CLEAR leaves out the
// clearing of the tree, ZVC_CHAOS_TRACE prints every step with its time. At
// the end the run prints its wall time and the steps and time of each kind.

#include "../featuretreewidgettestsupport.h"
#include "modelsignalchecks.h"

#include "featuretree/favoritesdata.h"
#include "featuretree/featuretreeinodeitem.h"
#include "featuretree/featuretreeitem.h"
#include "featuretree/featuretreemodel.h"
#include "featuretree/featuretreeproxymodel.h"
#include "featuretree/featuretreewidget.h"
#include "parameters/iparametercollection.h"
#include "syntheticnodemapgenerator.h"

#include <QAction>
#include <QClipboard>
#include <QElapsedTimer>
#include <QGuiApplication>
#include <QHeaderView>
#include <QLineEdit>
#include <QMenu>
#include <QMimeData>
#include <QPointer>
#include <QSet>
#include <QWheelEvent>

#include <cstdio>
#include <ctime>
#include <random>
#include <thread>

using namespace TreeTest;

namespace {

quint64 g_seed = 0;
int g_steps = 0;
int g_features = 10000;

const char* const kNodeMaps[]
    = { "@CameraDevice", "@DeviceTransportLayer", "@StreamGrabber0", "@EventGrabber", "@ImageFormatConverter" };
const char* const kSynthetic = "@SyntheticDevice";
// The favourites list is kept below this length (see the favourite step).
const int kManyFavourites = 16;

const char* const kSearchTexts[] = { "gain", "Width", "a", "x", "Fav", "Root", "*", "?", "feature1", "Exp", "zz" };

struct Shadow
{
    QString name;
    QString nodeMap;
    bool operator==(const Shadow& other) const { return name == other.name && nodeMap == other.nodeMap; }
};

} // namespace

class TestChaos : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase();
    void soak();

private:
    // The random source; every choice of the run goes through it.
    int pick(int n) { return n <= 0 ? 0 : int(m_random() % quint64(n)); }
    bool chance(int percent) { return pick(100) < percent; }

    void build();
    void addCollections(FeatureTreeWidget& widget);
    FeatureTreeProxyModel* proxy() const { return static_cast<FeatureTreeProxyModel*>(m_widget->treeView()->model()); }
    QList<QModelIndex> proxyRows(bool onlyShown);
    QModelIndex randomRow(bool onlyShown);
    QModelIndex randomFeatureRow();
    QSharedPointer<ParameterCollection::IParameter> randomParameter();
    QString randomFullName();
    QString step(int kind);
    QString checkInvariants(const QString& what);
    void walkModel();
    QString checkCounts();
    QString triggerFavouriteAction(QAction* action);
    void onContextMenu(QSharedPointer<QMenu> menu);
    void compareCounts(int total, int hidden);
    QString checkEditors();
    QString walkEditors(bool onlyShown, int* editorsSeen);
    QString checkFavourites();
    QList<Shadow> storeList() const;
    void deliver() { TreeTest::deliver(); }

    std::mt19937_64 m_random;
    QSharedPointer<Simulation::SimulatedDevice> m_device;
    QSharedPointer<Simulation::SimulatedDevice> m_synthetic;
    std::unique_ptr<FeatureTreeWidget> m_widget;
    std::unique_ptr<FeatureTreeWidget> m_second;
    std::unique_ptr<ModelTesterReports> m_reports;
    std::unique_ptr<ViewLikeProxy> m_viewLike;
    std::unique_ptr<ModelSignalChecks> m_signalChecks;
    // Where the time goes, in nanoseconds: per step kind, and per check.
    template <typename Work> static void timed(qint64& total, Work work)
    {
        QElapsedTimer timer;
        timer.start();
        work();
        total += timer.nsecsElapsed();
    }
    qint64 m_walkTime = 0;
    qint64 m_countsTime = 0;
    qint64 m_editorsTime = 0;
    int m_structuralSeen = 0; // m_signalChecks->structuralChanges() at the last whole walk
    QList<Shadow> m_shadow;
    // Rows (column 1 of the proxy) that the view asked an editor for while the
    // delegate could make none: a parameter gone with its device, or one with
    // faults. The view asks again only when the row's parent is expanded or
    // the row changes; until then the row may go without.
    QSet<QPersistentModelIndex> m_mayLackEditor;
    QSet<QString> m_faulted; // full names that ever had a fault or a null snapshot
    // The context menu: the last one handed to the listener, one it keeps, and what it did.
    QPointer<QMenu> m_lastMenu;
    QSharedPointer<QMenu> m_heldMenu;
    QString m_menuWhat;
    QString m_countFailure; // the first announcement of counts that a walk of the model contradicts
};

void TestChaos::initTestCase()
{
    QStandardPaths::setTestModeEnabled(true);
    QCoreApplication::setOrganizationName(QStringLiteral("ZarvexTests"));
    QCoreApplication::setApplicationName(QStringLiteral("tst_chaos"));
    QSettings().remove(QStringLiteral("Favorites"));
    FavoritesData& store = FeatureTreeModel::m_favorites;
    while (store.countNodes() > 0)
        store.removeNode(0, nullptr);
    // Device faults are logged by design; only the step summary is of interest.
    QLoggingCategory::setFilterRules(QStringLiteral("default.debug=false\ndefault.warning=false"));

    m_random.seed(g_seed);
    std::printf("tst_chaos: seed %llu, %d steps, %d synthetic features\n", static_cast<unsigned long long>(g_seed),
        g_steps, g_features);
    std::fflush(stdout);

    m_device = Simulation::SimulatedDevice::createDefault(QStringLiteral("GEV"));
    QVERIFY(m_device);
    Simulation::SyntheticNodeMapGenerator::Options options;
    options.featureCount = g_features;
    options.seed = g_seed + 1;
    options.nodeMapName = QLatin1String(kSynthetic);
    QString error;
    m_synthetic = Simulation::SimulatedDevice::fromDescription(
        Simulation::SyntheticNodeMapGenerator(options).generateDevice(), QString(), &error);
    QVERIFY2(m_synthetic, qPrintable(error));
    build();
}

void TestChaos::cleanupTestCase()
{
    m_heldMenu.reset();
    m_signalChecks.reset();
    m_viewLike.reset();
    m_reports.reset();
    m_second.reset();
    m_widget.reset();
    m_device->clearFaults();
    m_synthetic->clearFaults();
}

void TestChaos::addCollections(FeatureTreeWidget& widget)
{
    for (const char* name : kNodeMaps)
        widget.addParameterCollection(
            m_device->nodeMap(QLatin1String(name)), QLatin1String(name), QLatin1String(name), false);
    widget.addParameterCollection(
        m_synthetic->nodeMap(QLatin1String(kSynthetic)), QLatin1String(kSynthetic), QLatin1String(kSynthetic), false);
}

void TestChaos::build()
{
    m_signalChecks.reset();
    m_viewLike.reset();
    m_reports.reset();
    m_widget.reset(new FeatureTreeWidget(QStringLiteral("chaos"), m_device->baseInfo()));
    addCollections(*m_widget);
    m_heldMenu.reset();
    connect(m_widget.get(), &FeatureTreeWidget::contextMenuRequested, this,
        [this](const QPoint&, QSharedPointer<QMenu> menu) { onContextMenu(menu); });
    connect(m_widget.get(), &FeatureTreeWidget::filterMatchesChanged, this,
        [this](int total, int hidden) { compareCounts(total, hidden); });
    m_reports.reset(new ModelTesterReports);
    m_viewLike.reset(new ViewLikeProxy);
    m_viewLike->setSourceModel(proxy());
    m_signalChecks.reset(new ModelSignalChecks(m_viewLike.get()));
    m_mayLackEditor.clear();
    // Both look up only the rows at hand: the tree emits hundreds of changes a
    // step, and a walk of the whole set on each made a long run slower and
    // slower as the set grew.
    connect(m_widget->treeView(), &QTreeView::expanded, this, [this](const QModelIndex& parent) {
        if (m_mayLackEditor.isEmpty())
            return;
        const QAbstractItemModel* model = parent.model();
        for (int row = 0, count = model->rowCount(parent); row < count; ++row)
            m_mayLackEditor.remove(QPersistentModelIndex(model->index(row, 1, parent)));
    });
    connect(proxy(), &QAbstractItemModel::dataChanged, this,
        [this](const QModelIndex& topLeft, const QModelIndex& bottomRight) {
            if (m_mayLackEditor.isEmpty() || topLeft.column() > 1 || bottomRight.column() < 1)
                return;
            for (int row = topLeft.row(); row <= bottomRight.row(); ++row)
                m_mayLackEditor.remove(QPersistentModelIndex(topLeft.sibling(row, 1)));
        });
    walkModel();
    m_widget->resize(600, 800);
    m_widget->show();
}

QList<QModelIndex> TestChaos::proxyRows(bool onlyShown)
{
    QList<QModelIndex> rows;
    QTreeView* view = m_widget->treeView();
    QAbstractItemModel* model = view->model();
    QList<QModelIndex> pending { QModelIndex() };
    while (!pending.isEmpty()) {
        const QModelIndex parent = pending.takeLast();
        if (onlyShown && parent.isValid() && !view->isExpanded(parent))
            continue;
        const int count = model->rowCount(parent);
        for (int row = 0; row < count; ++row) {
            if (onlyShown && view->isRowHidden(row, parent))
                continue;
            const QModelIndex index = model->index(row, 0, parent);
            rows << index;
            pending << index;
        }
    }
    return rows;
}

QModelIndex TestChaos::randomRow(bool onlyShown)
{
    const QList<QModelIndex> rows = proxyRows(onlyShown);
    return rows.isEmpty() ? QModelIndex() : rows.at(pick(rows.size()));
}

QModelIndex TestChaos::randomFeatureRow()
{
    for (int attempt = 0; attempt < 8; ++attempt) {
        const QModelIndex index = randomRow(true);
        if (index.isValid() && !index.data(FeatureTreeItem::IsCategoryRole).toBool())
            return index;
    }
    return QModelIndex();
}

QString TestChaos::randomFullName()
{
    const Simulation::DeviceDescription& description
        = chance(30) ? m_synthetic->description() : m_device->description();
    if (description.nodeMaps.isEmpty())
        return QString();
    const Simulation::NodeMapDescription& map = description.nodeMaps.at(pick(description.nodeMaps.size()));
    if (map.features.isEmpty())
        return QString();
    return map.name + QLatin1Char('/') + map.features.at(pick(map.features.size())).name;
}

QSharedPointer<ParameterCollection::IParameter> TestChaos::randomParameter()
{
    const QSharedPointer<Simulation::SimulatedDevice>& device = chance(30) ? m_synthetic : m_device;
    const QVector<Simulation::NodeMapDescription>& maps = device->description().nodeMaps;
    if (maps.isEmpty())
        return {};
    const Simulation::NodeMapDescription& map = maps.at(pick(maps.size()));
    if (map.features.isEmpty())
        return {};
    const QString fullName = map.name + QLatin1Char('/') + map.features.at(pick(map.features.size())).name;
    try {
        return device->nodeMap(map.name)->getParameter(fullName);
    } catch (...) {
        return {};
    }
}

QList<Shadow> TestChaos::storeList() const
{
    QList<Shadow> list;
    const FavoritesData& store = FeatureTreeModel::m_favorites;
    for (int i = 0; i < store.countNodes(); ++i)
        list << Shadow { store.nodeAt(i)->name, store.nodeAt(i)->nodeMapName };
    return list;
}

QString TestChaos::step(int kind)
{
    QTreeView* view = m_widget->treeView();
    IFeatureTreeModelExtension* extension = m_widget->getFeatureExtension();
    auto* search = m_widget->findChild<QLineEdit*>(QStringLiteral("filterEdit"));
    switch (kind) {
    case 0: { // type a search text, or clear it
        if (!search)
            return QStringLiteral("no search line");
        search->setFocus();
        if (chance(35) || !search->text().isEmpty()) {
            search->selectAll();
            QTest::keyClick(search, Qt::Key_Backspace);
            return QStringLiteral("clear search");
        }
        const QString text = QLatin1String(kSearchTexts[pick(int(sizeof kSearchTexts / sizeof *kSearchTexts))]);
        // Typed letter by letter, each letter is a search of its own over the
        // whole tree; pasted, the text is one. Both are in the mix.
        if (chance(25)) {
            QTest::keyClicks(search, text);
            return QStringLiteral("search ") + text;
        }
        QGuiApplication::clipboard()->setText(text);
        QTest::keyClick(search, Qt::Key_V, Qt::ControlModifier);
        if (search->text() != text)
            return QStringLiteral("FAILURE: pasting \"%1\" into the search line gave \"%2\"").arg(text, search->text());
        return QStringLiteral("paste search ") + text;
    }
    case 1: { // change the level
        const int level = pick(4);
        QMetaObject::invokeMethod(m_widget.get(), "onVisibilityChanged", Q_ARG(int, level));
        return QStringLiteral("level %1").arg(level);
    }
    case 2: { // expand or collapse
        const QModelIndex index = randomRow(true);
        if (!index.isValid())
            return QStringLiteral("expand: nothing");
        if (view->isExpanded(index))
            view->collapse(index);
        else
            view->expand(index);
        return QStringLiteral("toggle ") + index.data(FeatureTreeItem::NodeNameRole).toString();
    }
    case 3: { // move the current row by keys
        view->setFocus();
        static const Qt::Key keys[]
            = { Qt::Key_Down, Qt::Key_Up, Qt::Key_PageDown, Qt::Key_Home, Qt::Key_End, Qt::Key_Right, Qt::Key_Left };
        const Qt::Key key = keys[pick(7)];
        QTest::keyClick(view, key);
        return QStringLiteral("key %1").arg(int(key), 0, 16);
    }
    case 4: { // edit through an open editor: keys or wheel
        const QModelIndex row = randomFeatureRow();
        if (!row.isValid())
            return QStringLiteral("edit: nothing");
        view->scrollTo(row);
        QWidget* editor = view->indexWidget(row.sibling(row.row(), 1));
        if (!editor)
            return QStringLiteral("edit: no editor");
        QList<QWidget*> targets = editor->findChildren<QWidget*>();
        targets << editor;
        QWidget* target = targets.at(pick(targets.size()));
        if (!target->isVisible())
            return QStringLiteral("edit: hidden part");
        if (chance(50)) {
            static const Qt::Key keys[] = { Qt::Key_Up, Qt::Key_Down, Qt::Key_PageUp, Qt::Key_Return, Qt::Key_Space,
                Qt::Key_1, Qt::Key_Escape };
            QTest::keyClick(target, keys[pick(7)]);
        } else if (chance(50)) {
            const QPoint centre = target->rect().center();
            QWheelEvent wheel(centre, target->mapToGlobal(centre), QPoint(), QPoint(0, chance(50) ? 120 : -120),
                Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
            QCoreApplication::sendEvent(target, &wheel);
        } else {
            QTest::mouseClick(target, Qt::LeftButton, Qt::NoModifier, target->rect().center());
        }
        return QStringLiteral("edit ") + row.data(FeatureTreeItem::NodeNameRole).toString();
    }
    case 5: { // add, move or remove a favourite by the widget's actions
        // Each change of the list rebuilds all its rows: a list grown to
        // hundreds over a long run would make every later step slower. Past
        // a few dozen one goes.
        if (FeatureTreeModel::m_favorites.countNodes() >= kManyFavourites && extension) {
            const QModelIndex root = extension->GetFavoritesRootIndex();
            const int rows = root.isValid() ? view->model()->rowCount(root) : 0;
            if (rows > 0) {
                view->setCurrentIndex(view->model()->index(pick(rows), 0, root));
                return triggerFavouriteAction(m_widget->findChild<QAction*>(QStringLiteral("actionRemoveFavourite")));
            }
        }
        const QModelIndex row = chance(50) ? randomFeatureRow() : QModelIndex();
        if (row.isValid())
            view->setCurrentIndex(row);
        const QModelIndex current = m_widget->GetCurrentIndex();
        if (!current.isValid() || !extension)
            return QStringLiteral("favourite: no current row");
        static const char* const actions[]
            = { "actionAddToFavourites", "actionMoveFavouriteUp", "actionMoveFavouriteDown", "actionRemoveFavourite" };
        const char* action = actions[pick(4)];
        if (qstrcmp(action, "actionAddToFavourites") != 0 && extension->getFavoritesIndexFromModelIndex(current) < 0)
            return QStringLiteral("favourite: current row is no favourite");
        return triggerFavouriteAction(m_widget->findChild<QAction*>(QLatin1String(action)));
    }
    case 6: { // drag a row onto the favourites
        const QModelIndex row = randomFeatureRow();
        const QModelIndex root = extension ? extension->GetFavoritesRootIndex() : QModelIndex();
        if (!row.isValid() || !root.isValid())
            return QStringLiteral("drag: nothing");
        QAbstractItemModel* model = view->model();
        std::unique_ptr<QMimeData> data(model->mimeData({ row }));
        if (!data)
            return QStringLiteral("drag: no payload");
        if (extension->getFavoritesIndexFromModelIndex(row) >= 0)
            return QStringLiteral("drag: a favourite");
        if (FeatureTreeModel::m_favorites.countNodes() >= kManyFavourites)
            return QStringLiteral("drag: favourites enough");
        const int before = FeatureTreeModel::m_favorites.countNodes();
        const int at = pick(before + 1);
        model->dropMimeData(data.get(), Qt::CopyAction, at, 0, root);
        const QList<Shadow> now = storeList();
        if (now.size() == before + 1) {
            // One new favourite; everything else keeps its order (checked against the shadow).
            int position = 0;
            while (position < m_shadow.size() && m_shadow.at(position) == now.at(position))
                ++position;
            m_shadow.insert(position, now.at(position));
        } else if (now.size() != before) {
            return QStringLiteral("FAILURE: drag: store changed by more than the dragged feature");
        }
        return QStringLiteral("drag to favourites at %1").arg(at);
    }
    case 7: { // copy, save and restore state
        if (chance(50)) {
            const QModelIndex row = randomFeatureRow();
            if (row.isValid())
                view->setCurrentIndex(row);
            m_widget->copyToClipboard();
            return QStringLiteral("copy");
        }
        const QByteArray state = m_widget->saveState(1);
        if (!m_widget->restoreState(state, 1))
            return QStringLiteral("FAILURE: restore state: own state refused");
        return QStringLiteral("save and restore state");
    }
    case 8: { // a value or a range changes on the device
        const QString name = randomFullName();
        if (name.isEmpty())
            return QStringLiteral("device change: nothing");
        const QVariant value = chance(50) ? QVariant(pick(2000) - 500) : QVariant(double(pick(10000)) / 7.0);
        m_device->changeOnDevice(name, value);
        m_synthetic->changeOnDevice(name, value);
        m_widget->Refresh();
        return QStringLiteral("device change ") + name;
    }
    case 9: { // access or visibility changes
        const QSharedPointer<ParameterCollection::IParameter> parameter = randomParameter();
        if (!parameter)
            return QStringLiteral("property: nothing");
        static const char* const access[] = { "RW", "RO", "WO", "NA", "NI" };
        static const char* const visibility[] = { "Beginner", "Expert", "Guru", "Invisible" };
        const bool isAccess = chance(50);
        const char* value = isAccess ? access[pick(5)] : visibility[pick(4)];
        try {
            parameter->advancedAccess()->setProperty(
                QLatin1String(isAccess ? "AccessMode" : "Visibility"), QLatin1String(value));
        } catch (...) {
        }
        return QStringLiteral("property %1 %2").arg(isAccess ? "access" : "visibility", value);
    }
    case 10: { // a fault on a random operation, a null snapshot, or all cleared
        const QString name = randomFullName();
        if (chance(30) || name.isEmpty()) {
            m_device->clearFaults();
            m_synthetic->clearFaults();
            return QStringLiteral("clear faults");
        }
        if (chance(20)) {
            m_device->setNullSnapshot(name, chance(70));
            m_faulted.insert(name);
            return QStringLiteral("null snapshot ") + name;
        }
        const auto op = Simulation::Operation(pick(int(Simulation::Operation::Poll) + 1));
        const auto fault = Simulation::FaultKind(pick(3));
        const int times = chance(50) ? 1 + pick(3) : -1;
        m_device->injectFault(name, op, fault, times);
        m_faulted.insert(name);
        m_synthetic->injectFault(name, op, fault, times);
        return QStringLiteral("fault %1 op %2 kind %3 times %4").arg(name).arg(int(op)).arg(int(fault)).arg(times);
    }
    case 11: { // a value set from a worker thread
        const QSharedPointer<ParameterCollection::IParameter> parameter = randomParameter();
        if (!parameter)
            return QStringLiteral("worker: nothing");
        const QString text = QString::number(pick(100));
        std::thread worker([parameter, text] {
            try {
                parameter->setValueFromString(text);
            } catch (...) {
            }
        });
        worker.join();
        return QStringLiteral("worker set");
    }
    case 12: { // unplug and replug
        if (m_device->isPlugged()) {
            m_device->unplug();
            if (chance(50))
                m_widget->Refresh();
            return QStringLiteral("unplug");
        }
        m_device->replug();
        m_widget->Refresh();
        return QStringLiteral("replug");
    }
    case 13: { // clear and add the collections again
        m_widget->clear();
        deliver();
        addCollections(*m_widget);
        return QStringLiteral("clear and re-add");
    }
    case 14: { // a second widget on the same store, built and destroyed
        if (m_second) {
            m_second.reset();
            return QStringLiteral("second widget destroyed");
        }
        m_second.reset(new FeatureTreeWidget(QStringLiteral("second"), m_device->baseInfo()));
        m_second->addParameterCollection(m_device->nodeMap(QStringLiteral("@CameraDevice")),
            QStringLiteral("@CameraDevice"), QStringLiteral("@CameraDevice"), false);
        m_second->show();
        return QStringLiteral("second widget built");
    }
    case 15: { // a context menu asked for on a row, by a right click or by the signal
        QString what;
        if (m_heldMenu && chance(50)) {
            const QPointer<QMenu> held = m_heldMenu.data();
            m_heldMenu.reset();
            if (held)
                return QStringLiteral("FAILURE: the menu outlived its last owner");
            what = QStringLiteral("menu let go; ");
        }
        m_menuWhat = QStringLiteral("no menu");
        bool hadCurrent = false;
        const QModelIndex row = randomRow(true);
        QRect rect;
        if (row.isValid()) {
            view->scrollTo(row);
            rect = view->visualRect(row);
        }
        if (rect.isValid() && view->viewport()->rect().contains(rect.center()) && chance(60)) {
            const QPoint point = rect.center();
            QTest::mousePress(view->viewport(), Qt::RightButton, Qt::NoModifier, point);
            hadCurrent = m_widget->GetCurrentIndex().isValid();
            QContextMenuEvent event(QContextMenuEvent::Mouse, point, view->viewport()->mapToGlobal(point));
            QCoreApplication::sendEvent(view->viewport(), &event);
            QTest::mouseRelease(view->viewport(), Qt::RightButton, Qt::NoModifier, point);
            what += QStringLiteral("right click: ");
        } else {
            if (row.isValid() && chance(50))
                view->setCurrentIndex(row);
            hadCurrent = m_widget->GetCurrentIndex().isValid();
            emit m_widget->customContextMenuRequested(QPoint(pick(m_widget->width()), pick(m_widget->height())));
            what += QStringLiteral("context menu request: ");
        }
        // The menu follows the current row: one with it, none without.
        if (hadCurrent == (m_menuWhat == QLatin1String("no menu")))
            return QStringLiteral("FAILURE: %1 with%2 a current row").arg(what + m_menuWhat, hadCurrent ? "" : "out");
        return what + m_menuWhat;
    }
    }
    return QString();
}

void TestChaos::onContextMenu(QSharedPointer<QMenu> menu)
{
    // A host's listener: it may add entries of its own, trigger one of the
    // menu's actions, keep the menu a while, or just let it go.
    m_lastMenu = menu.data();
    if (!menu) {
        m_menuWhat = QStringLiteral("FAILURE: a null menu");
        return;
    }
    if (chance(20))
        menu->addAction(QStringLiteral("Host entry"));
    QList<QAction*> actions;
    for (QAction* action : menu->actions()) {
        if (!action->isSeparator() && action->isEnabled() && action->isVisible() && !action->objectName().isEmpty())
            actions << action;
    }
    if (!actions.isEmpty() && chance(60))
        m_menuWhat = QStringLiteral("menu: ") + triggerFavouriteAction(actions.at(pick(actions.size())));
    else
        m_menuWhat = QStringLiteral("menu of %1 entries left alone").arg(menu->actions().size());
    if (chance(15)) {
        m_heldMenu = menu;
        m_menuWhat += QStringLiteral(", kept");
    }
}

QString TestChaos::triggerFavouriteAction(QAction* action)
{
    // Triggers one of the widget's favourites actions on the current row and
    // keeps the shadow in step with what it should have done.
    IFeatureTreeModelExtension* extension = m_widget->getFeatureExtension();
    const QModelIndex current = m_widget->GetCurrentIndex();
    if (!action || !extension)
        return QStringLiteral("favourite: no action");
    const QString name = action->objectName();
    const int favourite = current.isValid() ? extension->getFavoritesIndexFromModelIndex(current) : -1;
    const int before = FeatureTreeModel::m_favorites.countNodes();
    if (name == QLatin1String("actionAddToFavourites")) {
        action->trigger();
        const QList<Shadow> now = storeList();
        // A camera with a fault injected may refuse the feature; otherwise it lands at the end.
        if (now.size() == before + 1)
            m_shadow << now.last();
        else if (now.size() != before)
            return QStringLiteral("FAILURE: add favourite changed the store by more than one");
        return QStringLiteral("add favourite");
    }
    if (name == QLatin1String("actionMoveFavouriteUp") || name == QLatin1String("actionMoveFavouriteDown")) {
        const bool up = name == QLatin1String("actionMoveFavouriteUp");
        const bool can = current.isValid() && extension->CanMoveFavorite(current, up);
        action->trigger();
        if (can && favourite >= 0)
            m_shadow.move(favourite, up ? favourite - 1 : favourite + 1);
        return QStringLiteral("move favourite %1 %2").arg(favourite).arg(up ? "up" : "down");
    }
    if (name == QLatin1String("actionRemoveFavourite")) {
        action->trigger();
        if (favourite >= 0 && favourite < m_shadow.size())
            m_shadow.removeAt(favourite);
        return QStringLiteral("remove favourite %1").arg(favourite);
    }
    return QStringLiteral("FAILURE: unknown action ") + name;
}

QString TestChaos::checkCounts()
{
    QString failure;
    failure.swap(m_countFailure);
    return failure;
}

void TestChaos::compareCounts(int total, int hidden)
{
    FeatureTreeProxyModel* filter = proxy();
    const QString text = SearchPattern::ofProxy(*filter).text();
    if (text.isEmpty() || !m_countFailure.isEmpty())
        return;
    QElapsedTimer timer;
    timer.start();
    // The counts are those of every feature of the model, whatever the view
    // shows expanded and whatever the filtering reached: each name once,
    // shown at the present level or withheld by it (up to Guru). The walk
    // runs as the counts are announced, on the model as the filter saw it
    // (the widget rewrites the search help line afterwards). It asks every
    // level for its rows; the proxy's own count has filled them all already.
    const int level = int(m_widget->visibility());
    QSet<QString> visibleNames, hiddenNames;
    QAbstractItemModel* model = filter->sourceModel();
    QList<QModelIndex> pending { QModelIndex() };
    while (!pending.isEmpty()) {
        const QModelIndex parent = pending.takeLast();
        const int rows = model->rowCount(parent);
        for (int row = 0; row < rows; ++row) {
            const QModelIndex index = model->index(row, 0, parent);
            pending << index;
            const QString name = index.data(FeatureTreeItem::NodeNameRole).toString();
            if (name == QLatin1String("Root") || index.data(FeatureTreeItem::IsCategoryRole).toBool())
                continue;
            if (!index.data(FeatureTreeItem::ShowMeRole).toBool() && level != 3)
                continue;
            const QString display = index.data(Qt::DisplayRole).toString();
            if (!display.contains(text, Qt::CaseInsensitive) && !name.contains(text, Qt::CaseInsensitive))
                continue;
            const int visibility = index.data(FeatureTreeItem::VisibilityRole).toInt();
            if (visibility <= 2 && visibility > level)
                hiddenNames.insert(name);
            if (visibility <= level)
                visibleNames.insert(name);
        }
    }
    const int visible = total - hidden;
    if (visible != visibleNames.size() || hidden != hiddenNames.size())
        m_countFailure = QStringLiteral("match counts %1 shown and %2 hidden announced for \"%3\" at level %4; "
                                        "the model has %5 shown and %6 hidden")
                             .arg(visible)
                             .arg(hidden)
                             .arg(text)
                             .arg(level)
                             .arg(visibleNames.size())
                             .arg(hiddenNames.size());
    m_countsTime += timer.nsecsElapsed();
}

QString TestChaos::checkEditors()
{
    // Both ways: no persistent editor on a hidden or unavailable row (in a
    // collapsed branch too, where editors stay open), and one on every row
    // the view shows, below expanded parents, that may have one: an item that
    // wants a persistent editor, within the level, and available.
    QTreeView* view = m_widget->treeView();
    // Rows that have gone since can never be asked again.
    for (auto it = m_mayLackEditor.begin(); it != m_mayLackEditor.end();) {
        if (it->isValid())
            ++it;
        else
            it = m_mayLackEditor.erase(it);
    }
    // The rows shown first; collapsed branches only when some editor is not
    // among the shown rows, since walking them maps them all in the proxy.
    const int editors = view->viewport()->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly).size();
    int editorsSeen = 0;
    QString failure = walkEditors(true, &editorsSeen);
    if (failure.isEmpty() && editorsSeen < editors)
        failure = walkEditors(false, &editorsSeen);
    return failure;
}

QString TestChaos::walkEditors(bool onlyShown, int* editorsSeen)
{
    QTreeView* view = m_widget->treeView();
    QAbstractItemModel* model = view->model();
    IFeatureTreeModelExtension* extension = m_widget->getFeatureExtension();
    const GenApi::EVisibility level = m_widget->visibility();
    QList<QPair<QModelIndex, bool>> pending { { QModelIndex(), true } }; // a parent; its rows are shown
    while (!pending.isEmpty()) {
        const QModelIndex parent = pending.last().first;
        const bool parentShown = pending.takeLast().second;
        const int count = model->rowCount(parent);
        for (int row = 0; row < count; ++row) {
            const QModelIndex index = model->index(row, 1, parent);
            const QModelIndex name = index.sibling(row, 0);
            const bool hidden = view->isRowHidden(row, parent);
            const bool shown = parentShown && !hidden && view->isExpanded(name);
            if (shown || !onlyShown)
                pending << qMakePair(name, shown);
            FeatureTreeItem* item = extension->getFeatureTreeItem(index);
            if (!item || !item->usePersistentEditor())
                continue;
            const bool editor = view->indexWidget(index) != nullptr;
            if (editor && onlyShown)
                ++*editorsSeen;
            if (!editor && (!parentShown || hidden))
                continue;
            const QString fullName = name.data(FeatureTreeItem::FullNameRole).toString();
            if (editor && hidden)
                return QStringLiteral("editor on a hidden row: ") + fullName;
            if (editor)
                m_mayLackEditor.remove(index);
            else if (m_mayLackEditor.contains(index))
                continue;
            bool available = false;
            bool withinLevel = false;
            try {
                available = item->getAccessMode() > GenApi::NA;
                withinLevel = item->getVisibility() <= level && item->ShowMe(level);
                // The delegate makes no editor for a parameter that has gone
                // with its device, and may have met a fault where this check meets none.
                const auto* nodeItem = qobject_cast<FeatureTreeINodeItem*>(item);
                if (!editor && nodeItem
                    && (!nodeItem->node() || nodeItem->node()->isZombie() || m_faulted.contains(fullName))) {
                    m_mayLackEditor.insert(index);
                    continue;
                }
            } catch (...) {
                if (!editor)
                    m_mayLackEditor.insert(index);
                continue; // the device refuses to tell; the view cannot know either
            }
            if (editor && !available)
                return QStringLiteral("editor on an unavailable row: ") + fullName;
            if (!editor && available && withinLevel)
                return QStringLiteral(
                    "no editor on a shown, available row: %1 (access %2, visibility %3, level %4, editor type %5)")
                    .arg(fullName)
                    .arg(int(item->getAccessMode()))
                    .arg(int(item->getVisibility()))
                    .arg(int(level))
                    .arg(int(item->editorType()));
        }
    }
    return QString();
}

QString TestChaos::checkFavourites()
{
    const QList<Shadow> store = storeList();
    if (store == m_shadow)
        return QString();
    QStringList a, b;
    for (const Shadow& s : store)
        a << s.nodeMap + QLatin1Char('/') + s.name;
    for (const Shadow& s : m_shadow)
        b << s.nodeMap + QLatin1Char('/') + s.name;
    return QStringLiteral("favourites store [%1] differs from the shadow [%2]")
        .arg(a.join(QLatin1Char(',')), b.join(QLatin1Char(',')));
}

void TestChaos::walkModel()
{
    // Built on the model at rest, the tester walks all of it once, checking
    // every row's parent, siblings, flags and data, and goes again.
    QAbstractItemModelTester walk(m_viewLike.get(), QAbstractItemModelTester::FailureReportingMode::Warning);
    m_structuralSeen = m_signalChecks->structuralChanges();
}

QString TestChaos::checkInvariants(const QString& what)
{
    if (what.startsWith(QLatin1String("FAILURE: ")))
        return what;
    // The widget and the listener have let go of every menu but the one kept.
    if (m_lastMenu && m_lastMenu != m_heldMenu.data())
        return QStringLiteral("a context menu lives on after its last owner let go");
    if (what.contains(QLatin1String("FAILURE: ")))
        return what;
    const QStringList signalFailures = m_signalChecks->takeFailures();
    if (!signalFailures.isEmpty())
        return QStringLiteral("model signals: ") + signalFailures.join(QLatin1Char('\n'));
    // Only rows inserted, removed or moved can have broken what the signal
    // checks don't see: then the whole model is walked.
    if (m_signalChecks->structuralChanges() != m_structuralSeen)
        timed(m_walkTime, [this] { walkModel(); });
    const QStringList reports = m_reports->unexcused([](const QString& report) {
        return report.contains(QLatin1String("FAIL! flags == Qt::ItemIsDropEnabled || flags == 0"));
    });
    if (!reports.isEmpty())
        return QStringLiteral("model tester: ") + reports.join(QLatin1Char('\n'));
    QString failure = checkCounts();
    if (failure.isEmpty())
        timed(m_editorsTime, [&] { failure = checkEditors(); });
    if (failure.isEmpty())
        failure = checkFavourites();
    return failure;
}

void TestChaos::soak()
{
    // Weights of the step kinds: gestures first, device events after.
    // Clearing and re-adding the collections is in the mix unless
    // ZVC_CHAOS_NO_CLEAR is set, to tell its failures from the others'.
    // A search or a level change while a search shows the large node map
    // opens thousands of editors and costs a hundred times another step:
    // they come less often than the cheap gestures, so that a long soak
    // still runs a hundred thousand steps in well under an hour.
    const int clearWeight = qEnvironmentVariableIsSet("ZVC_CHAOS_NO_CLEAR") ? 0 : 1;
    const int weights[] = { 5, 2, 10, 8, 12, 10, 4, 3, 8, 5, 5, 3, 2, clearWeight, 1, 5 };
    constexpr int kinds = int(sizeof weights / sizeof *weights);
    static const char* const kindNames[kinds]
        = { "search", "level", "expand", "keys", "edit", "favourite", "drag", "copy/state", "device value",
              "device property", "fault", "worker", "unplug", "clear", "second widget", "context menu" };
    int sum = 0;
    for (int weight : weights)
        sum += weight;
    int stepsOfKind[kinds] = {};
    qint64 timeOfKind[kinds] = {};
    qint64 checkTime = 0;
    QElapsedTimer wall;
    wall.start();
    const std::clock_t cpuStart = std::clock();
    const bool trace = qEnvironmentVariableIsSet("ZVC_CHAOS_TRACE");
    for (int i = 0; i < g_steps; ++i) {
        int roll = pick(sum);
        int kind = 0;
        while (roll >= weights[kind])
            roll -= weights[kind++];
        if (trace) {
            std::printf("%d: kind %d\n", i + 1, kind);
            std::fflush(stdout);
        }
        // Nothing a user or a camera does may let an exception out of the widget.
        QString what, failure;
        QElapsedTimer timer;
        timer.start();
        try {
            what = step(kind);
            deliver();
        } catch (const std::exception& e) {
            failure = QStringLiteral("exception escaped from a step of kind %1: %2").arg(kind).arg(e.what());
        } catch (...) {
            failure = QStringLiteral("exception escaped from a step of kind %1").arg(kind);
        }
        ++stepsOfKind[kind];
        timeOfKind[kind] += timer.nsecsElapsed();
        // The editors of the rows out of sight open in slices of the event
        // loop after a gesture. Every third step leaves them waiting and
        // goes on, so that the next gesture lands in the middle of them; the
        // others let them all open and check that the tree is whole.
        const bool check = i % 3 != 1 || i + 1 == g_steps;
        if (failure.isEmpty() && check) {
            timed(checkTime, [&] {
                failure = TreeTest::letEditorsOpen()
                    ? checkInvariants(what)
                    : QStringLiteral("editors still waiting to open after five minutes");
            });
        }
        if (!failure.isEmpty()) {
            std::printf("tst_chaos: failed at step %d (%s); replay: tst_chaos --seed %llu --steps %d --features %d\n",
                i + 1, qPrintable(what), static_cast<unsigned long long>(g_seed), i + 1, g_features);
            std::fflush(stdout);
            QFAIL(qPrintable(failure));
        }
        if ((i + 1) % 5000 == 0 && !trace) {
            std::printf("tst_chaos: %d steps, %.0f s\n", i + 1, double(wall.nsecsElapsed()) / 1e9);
            std::fflush(stdout);
        }
        if (trace) {
            std::printf("%d: %s (%.1f ms)\n", i + 1, qPrintable(what), double(timer.nsecsElapsed()) / 1e6);
            std::fflush(stdout);
        }
    }
    const double seconds = double(wall.nsecsElapsed()) / 1e9;
    const double cpuSeconds = double(std::clock() - cpuStart) / CLOCKS_PER_SEC;
    std::printf("tst_chaos: %d steps passed, seed %llu, %d synthetic features, %.1f s (%.1f s of processor time), "
                "%.1f steps/s\n",
        g_steps, static_cast<unsigned long long>(g_seed), g_features, seconds, cpuSeconds,
        seconds > 0 ? g_steps / seconds : 0.0);
    for (int kind = 0; kind < kinds; ++kind)
        std::printf("tst_chaos:   %-16s %7d steps %9.1f s\n", kindNames[kind], stepsOfKind[kind],
            double(timeOfKind[kind]) / 1e9);
    std::printf("tst_chaos:   checks %.1f s (whole model walks %.1f s, match counts %.1f s, editors %.1f s)\n",
        double(checkTime) / 1e9, double(m_walkTime) / 1e9, double(m_countsTime) / 1e9, double(m_editorsTime) / 1e9);
    std::fflush(stdout);
}

int main(int argc, char** argv)
{
    g_seed = qEnvironmentVariableIsSet("ZVC_CHAOS_SEED") ? qgetenv("ZVC_CHAOS_SEED").toULongLong()
                                                         : quint64(std::random_device()());
    g_steps = qEnvironmentVariableIsSet("ZVC_CHAOS_STEPS") ? qEnvironmentVariableIntValue("ZVC_CHAOS_STEPS") : 2000;
    if (qEnvironmentVariableIsSet("ZVC_CHAOS_FEATURES"))
        g_features = qEnvironmentVariableIntValue("ZVC_CHAOS_FEATURES");
    // Our own options go; the rest is QtTest's.
    std::vector<char*> rest;
    for (int i = 0; i < argc; ++i) {
        const QByteArray arg(argv[i]);
        if ((arg == "--seed" || arg == "--steps" || arg == "--features") && i + 1 < argc) {
            const QByteArray value(argv[++i]);
            if (arg == "--seed")
                g_seed = value.toULongLong();
            else if (arg == "--steps")
                g_steps = value.toInt();
            else
                g_features = value.toInt();
            continue;
        }
        rest.push_back(argv[i]);
    }
    int restCount = int(rest.size());
    QApplication app(restCount, rest.data());
    TestChaos test;
    return QTest::qExec(&test, restCount, rest.data());
}

#include "tst_chaos.moc"
