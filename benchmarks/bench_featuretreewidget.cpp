// The feature tree as a user meets it, on the default simulated camera (all
// its node maps) and on synthetic node maps of 1 000, 10 000 and 100 000
// features.
//
// The plain Qt alternative: a QTreeView over a QSortFilterProxyModel
// (recursive, case-insensitive, for the search) over a QStandardItemModel
// holding the same rows (name and value text), filled level by level as the
// view asks (fetchMore), as the feature tree fills its model, with a
// persistent editor opened by openPersistentEditor on visible values, as many
// as the feature tree opens, and the values kept up to date from the
// parameters' own change signal.
//
// Measured, each to the end of the repaint it causes:
//   first paint     construct, add all node maps, show, first paint
//   expand all      expand every category; the editors open on every visible value
//                   (at 100 000 features: the largest category and its ancestors)
//   first frame     from the start of expanding to the first paint after it
//   search key      one keystroke in the search, with expand and repaint, until
//                   every editor is open
//   first frame     from the keystroke to the first paint of its results
//   clear search    back to the empty search
//   poll tick       one device poll (100 polled values, 10 of them change)
//                   while about 1 000 editors are open; both sides receive
//                   the same change signals of the same parameters
// Both sides run in turns, the order changing from one round to the next,
// and each figure is the fastest of three rounds (one round at 100 000
// features, where a round takes minutes).
//
// Run from a Release build on the offscreen platform:
//   QT_QPA_PLATFORM=offscreen build-bench/benchmarks/bench_featuretreewidget
// With "--search-only 10000" it builds the feature tree on that many
// synthetic features and times expanding, the search keystroke and clearing
// the search, then the same on the plain tree unless "--ours-only" is
// given, for a profiler; "--first-paint-only 10000" only the first
// paint. Both take "default" for the default camera. "--skip-100k"
// leaves the largest camera out. "--screenshot 10000 tree.png" saves a
// picture of that tree, expanded and scrolled halfway; a search text after
// the file name is typed first.

#include "benchmarkutil.h"

#include "featuretree/SearchEdit.h"
#include "featuretree/featuretreemodel.h"
#include "featuretree/featuretreeview.h"
#include "featuretree/featuretreewidget.h"
#include "parameters/iadvancedparameteraccess.h"
#include "parameters/iparametercollection.h"
#include "simulateddevice.h"
#include "syntheticnodemapgenerator.h"

#include <QApplication>
#include <QHeaderView>
#include <QScrollBar>
#include <QSettings>
#include <QSortFilterProxyModel>
#include <QStandardItemModel>
#include <QTemporaryDir>
#include <QTest>
#include <QTextStream>
#include <QTreeView>

#include <functional>
#include <limits>
#include <memory>

using namespace Simulation;
using namespace ParameterCollection;

namespace {

//! A camera to show: its node maps, each with the name under which it is added.
struct Camera
{
    QString label;
    //! One keystroke into the empty search, matching some of the features.
    QString searchKey;
    QSharedPointer<SimulatedDevice> device;
    QStringList nodeMaps;
};

Camera defaultCamera()
{
    Camera camera;
    camera.label = QStringLiteral("default camera");
    camera.searchKey = QStringLiteral("x");
    camera.device = SimulatedDevice::createDefault(QStringLiteral("GEV"));
    camera.nodeMaps = camera.device->nodeMapNames();
    return camera;
}

Camera syntheticCamera(int featureCount, int polled, int changing)
{
    SyntheticNodeMapGenerator::Options options;
    options.featureCount = featureCount;
    options.depth = 2;
    options.fanOut = 10;
    options.polledCount = polled;
    options.changingPolledCount = changing;
    Camera camera;
    camera.label = QStringLiteral("%1 features").arg(featureCount);
    camera.searchKey = QStringLiteral("7");
    camera.device = SimulatedDevice::fromDescription(SyntheticNodeMapGenerator(options).generateDevice());
    camera.nodeMaps = camera.device->nodeMapNames();
    return camera;
}

//! "default" for the default camera, else a synthetic one of that many features.
Camera cameraNamed(const QString& name)
{
    return name == QLatin1String("default") ? defaultCamera() : syntheticCamera(name.toInt(), -1, -1);
}

//! Paint events of a viewport, to know that a paint has happened, and when
//! the first one came after arm().
class PaintWatch : public QObject
{
public:
    int paints = 0;

    void arm()
    {
        m_clock.start();
        m_firstPaintMs = -1;
    }
    //! Milliseconds from arm() to the first paint after it; -1 if none came.
    double firstPaintMs() const { return m_firstPaintMs; }

protected:
    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() == QEvent::Paint) {
            ++paints;
            if (m_firstPaintMs < 0 && m_clock.isValid())
                m_firstPaintMs = double(m_clock.nsecsElapsed()) / 1e6;
        }
        return false;
    }

private:
    QElapsedTimer m_clock;
    double m_firstPaintMs = -1;
};

//! Lets queued work run and paints the window now. The benchmark runs
//! outside any event loop, where processEvents() never runs deferred
//! deletes: they are run here, as an application's event loop would, so
//! that closed editors are paid for and do not pile up in the event queue.
void settleAndPaint(QWidget* window)
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
    window->repaint();
    QCoreApplication::processEvents();
}

//! The editors open on value cells below expanded parents, shown or not: the
//! feature tree keeps those of rows out of sight hidden until they scroll in.
int editorCountBelow(const QTreeView* view, const QModelIndex& parent)
{
    const QAbstractItemModel* model = view->model();
    int count = 0;
    for (int row = 0; row < model->rowCount(parent); ++row) {
        const QModelIndex name = model->index(row, 0, parent);
        if (view->indexWidget(model->index(row, 1, parent)))
            ++count;
        if (view->isExpanded(name))
            count += editorCountBelow(view, name);
    }
    return count;
}

int editorCount(const QTreeView* view)
{
    return view->model() ? editorCountBelow(view, QModelIndex()) : 0;
}

int visibleRows(const QTreeView* view, const QModelIndex& parent)
{
    const QAbstractItemModel* model = view->model();
    int count = 0;
    for (int row = 0; row < model->rowCount(parent); ++row) {
        if (view->isRowHidden(row, parent))
            continue;
        ++count;
        const QModelIndex child = model->index(row, 0, parent);
        if (view->isExpanded(child))
            count += visibleRows(view, child);
    }
    return count;
}

//! Expands every category one by one, as a user's clicks would, so that the
//! view's expanded() signal runs for each.
void expandEveryCategory(QTreeView* view, const QModelIndex& parent)
{
    QAbstractItemModel* model = view->model();
    const int rows = model->rowCount(parent);
    for (int row = 0; row < rows; ++row) {
        const QModelIndex child = model->index(row, 0, parent);
        if (model->hasChildren(child)) {
            view->setExpanded(child, true);
            expandEveryCategory(view, child);
        }
    }
}

//! Expands the rows whose texts are given, from the top level down.
void expandPathIn(QTreeView* view, const QStringList& path)
{
    QAbstractItemModel* model = view->model();
    QModelIndex parent;
    for (const QString& text : path) {
        QModelIndex found;
        for (int row = 0; row < model->rowCount(parent) && !found.isValid(); ++row) {
            const QModelIndex index = model->index(row, 0, parent);
            if (index.data().toString() == text)
                found = index;
        }
        if (!found.isValid()) {
            qWarning("no row \"%s\" to expand", qPrintable(text));
            return;
        }
        view->setExpanded(found, true);
        // An expansion while the view's layout is pending fetches nothing:
        // the next row of the path must be there to be found.
        if (model->canFetchMore(found))
            model->fetchMore(found);
        parent = found;
    }
}

//! The display names from a node map's row down to the category with the
//! most rows of its own.
QStringList largestCategoryPath(const Camera& camera)
{
    QStringList best;
    int bestRows = -1;
    std::function<void(IParameterCollection&, const QString&, const QStringList&)> visit
        = [&](IParameterCollection& collection, const QString& fullName, const QStringList& path) {
              const QStringList children = collection.getChildNames(fullName, false, true);
              if (children.size() > bestRows) {
                  bestRows = int(children.size());
                  best = path;
              }
              for (const QString& child : children) {
                  const QSharedPointer<IParameter> parameter = collection.getParameter(child);
                  if (!parameter || parameter->getType() != TypeCategory)
                      continue;
                  visit(collection, child,
                      QStringList(path) << parameter->advancedAccess()->getProperty(
                          QStringLiteral("DisplayName"), parameter->getName()));
              }
          };
    for (const QString& name : camera.nodeMaps)
        visit(*camera.device->nodeMap(name), name + QStringLiteral("/Root"), { name });
    return best;
}

// ---- the plain side -----------------------------------------------------------

// A value that may have an editor: any feature's value that can be read or
// written. The feature tree keeps editors on read-only values too, so a
// category of read-only features must not leave the plain tree without any.
const int EditableRole = Qt::UserRole + 1;
// A category not filled yet: its full name.
const int UnfetchedRole = Qt::UserRole + 2;
// The poll interval the feature tree passes to the device.
const qint64 kPollInterval = 300;

//! The plain tree's model: a category's rows are made when the view first
//! asks for them, one level at a time, and each value follows its
//! parameter's change signal.
class LazyStandardModel : public QStandardItemModel
{
public:
    //! Adds the rows of one node map's root below a new top-level row.
    void addNodeMap(const QSharedPointer<IParameterCollection>& collection, const QString& name)
    {
        auto* root = new QStandardItem(name);
        root->setEditable(false);
        auto* rootValue = new QStandardItem;
        rootValue->setEditable(false);
        appendRow({ root, rootValue });
        m_collections.insert(root, collection);
        fillLevel(root, *collection, name + QStringLiteral("/Root"));
    }

    bool hasChildren(const QModelIndex& parent = QModelIndex()) const override
    {
        const QStandardItem* item = itemFromIndex(parent);
        if (item && item->data(UnfetchedRole).isValid())
            return true;
        return QStandardItemModel::hasChildren(parent);
    }
    bool canFetchMore(const QModelIndex& parent) const override
    {
        const QStandardItem* item = itemFromIndex(parent);
        return item && item->data(UnfetchedRole).isValid();
    }
    void fetchMore(const QModelIndex& parent) override
    {
        QStandardItem* item = itemFromIndex(parent);
        if (!item || !item->data(UnfetchedRole).isValid())
            return;
        const QString fullName = item->data(UnfetchedRole).toString();
        item->setData(QVariant(), UnfetchedRole);
        QStandardItem* top = item;
        while (top->parent())
            top = top->parent();
        fillLevel(item, *m_collections.value(top), fullName);
    }
    //! Makes every level, as a search over the whole tree needs.
    void fetchAll(const QModelIndex& parent = QModelIndex())
    {
        if (canFetchMore(parent))
            fetchMore(parent);
        for (int row = 0; row < rowCount(parent); ++row)
            fetchAll(index(row, 0, parent));
    }

private:
    //! The same names and value texts as standard items, values that may have an editor marked.
    void fillLevel(QStandardItem* parent, IParameterCollection& collection, const QString& fullName)
    {
        QList<QList<QStandardItem*>> rows;
        QList<QPair<QSharedPointer<IParameter>, QStandardItem*>> followed;
        for (const QString& child : collection.getChildNames(fullName, false, true)) {
            const QSharedPointer<IParameter> parameter = collection.getParameter(child);
            if (!parameter || parameter->isZombie())
                continue;
            const QSharedPointer<const ParameterData> data = parameter->getParameterData();
            if (!data || !data->implemented || data->visibility > GenApi::Guru)
                continue;
            const QString displayName
                = parameter->advancedAccess()->getProperty(QStringLiteral("DisplayName"), parameter->getName());
            auto* nameItem = new QStandardItem(displayName);
            auto* valueItem = new QStandardItem(data->valueText);
            nameItem->setEditable(false);
            const bool isCategory = parameter->getType() == TypeCategory;
            valueItem->setData(!isCategory && (data->writable || data->readable), EditableRole);
            valueItem->setEditable(!isCategory && data->writable);
            if (isCategory)
                nameItem->setData(child, UnfetchedRole);
            else
                followed.append(qMakePair(parameter, valueItem));
            rows.append(QList<QStandardItem*> { nameItem, valueItem });
        }
        for (const QList<QStandardItem*>& row : rows)
            parent->appendRow(row);
        for (const auto& pair : followed)
            follow(pair.first, pair.second);
    }
    //! The value item takes each new value text the parameter announces.
    void follow(const QSharedPointer<IParameter>& parameter, QStandardItem* valueItem)
    {
        QStandardItemModel* model = this;
        const QPersistentModelIndex value = valueItem->index();
        m_followed.append(parameter);
        QObject::connect(parameter.data(), &IParameter::parameterDataChangedDecoupled, this,
            [model, value](QSharedPointer<const ParameterData> data) {
                if (data && value.isValid())
                    model->setData(value, data->valueText);
            });
    }

    QHash<const QStandardItem*, QSharedPointer<IParameterCollection>> m_collections;
    QList<QSharedPointer<IParameter>> m_followed;
};

//! Opens editors on visible values that may have one until `budget` editors are open.
void openEditorsOnVisibleValues(QTreeView* view, const QModelIndex& parent, int& budget)
{
    const QAbstractItemModel* model = view->model();
    for (int row = 0; row < model->rowCount(parent) && budget > 0; ++row) {
        const QModelIndex value = model->index(row, 1, parent);
        if (value.data(EditableRole).toBool() && !view->indexWidget(value)) {
            view->openPersistentEditor(value);
            --budget;
        }
        const QModelIndex name = model->index(row, 0, parent);
        if (view->isExpanded(name))
            openEditorsOnVisibleValues(view, name, budget);
    }
}

class PlainTree
{
public:
    //! editors: as many persistent editors as the feature tree opens, at most.
    explicit PlainTree(const Camera& camera, int editors = std::numeric_limits<int>::max())
        : maxEditors(editors)
        , pollCollection(camera.device->nodeMap(camera.nodeMaps.first()))
    {
        proxy.setSourceModel(&model);
        proxy.setRecursiveFilteringEnabled(true);
        proxy.setFilterCaseSensitivity(Qt::CaseInsensitive);
        proxy.setFilterKeyColumn(0);
        model.setHorizontalHeaderLabels({ QStringLiteral("Feature"), QStringLiteral("Value") });
        for (const QString& name : camera.nodeMaps)
            model.addNodeMap(camera.device->nodeMap(name), name);
        view.setModel(&proxy);
        view.setUniformRowHeights(true);
        view.header()->resizeSection(0, 200);
        view.resize(484, 600);
        view.viewport()->installEventFilter(&watch);
    }

    void showAndPaint()
    {
        view.show();
        while (watch.paints == 0)
            QCoreApplication::processEvents();
        settleAndPaint(&view);
    }

    void expandAll()
    {
        expandEveryCategory(&view, QModelIndex());
        openEditors();
        settleAndPaint(&view);
    }

    void expandPath(const QStringList& path)
    {
        expandPathIn(&view, path);
        openEditors();
        settleAndPaint(&view);
    }

    // Out of line, as are the feature tree's gestures, so that a profiler can
    // collect them by name.
    Q_NEVER_INLINE void search(const QString& text)
    {
        // The recursive filter finds only rows that exist: the whole tree is made first.
        if (!text.isEmpty())
            model.fetchAll();
        proxy.setFilterFixedString(text);
        view.expandAll();
        openEditors();
        settleAndPaint(&view);
    }

    //! One device poll; the changes arrive as queued signals, as on the feature tree's side.
    void pollTick()
    {
        pollCollection->poll(kPollInterval);
        settleAndPaint(&view);
    }

    void openEditors()
    {
        int budget = maxEditors - editorCount(&view);
        openEditorsOnVisibleValues(&view, QModelIndex(), budget);
    }

    int maxEditors;
    QSharedPointer<IParameterCollection> pollCollection;
    LazyStandardModel model;
    QSortFilterProxyModel proxy;
    QTreeView view;
    PaintWatch watch;
};

// ---- the feature tree widget ---------------------------------------------------

class OurTree
{
public:
    explicit OurTree(const Camera& camera)
        : widget(QString(), camera.device->baseInfo())
    {
        widget.setVisibility(GenApi::Guru);
        for (const QString& name : camera.nodeMaps)
            widget.addParameterCollection(camera.device->nodeMap(name), name, name, false);
        widget.resize(484, 600);
        widget.treeView()->viewport()->installEventFilter(&watch);
    }

    void showAndPaint()
    {
        widget.show();
        while (watch.paints == 0)
            QCoreApplication::processEvents();
        settleAndPaint(&widget);
    }

    void expandAll()
    {
        expandEveryCategory(widget.treeView(), QModelIndex());
        settleAndPaint(&widget);
        awaitEditors();
    }

    void expandPath(const QStringList& path)
    {
        expandPathIn(widget.treeView(), path);
        settleAndPaint(&widget);
        awaitEditors();
    }

    //! Types into the search line: textChanged goes to onFilterTextChanged.
    Q_NEVER_INLINE void type(const QString& text)
    {
        QTest::keyClicks(searchEdit(), text);
        settleAndPaint(&widget);
        awaitEditors();
    }

    Q_NEVER_INLINE void clearSearch()
    {
        searchEdit()->clear();
        settleAndPaint(&widget);
        awaitEditors();
    }

    //! The editors of the rows out of sight open in turns of the event loop
    //! after the first frame: the figures go on until every one is open.
    void awaitEditors()
    {
        auto* view = qobject_cast<FeatureTreeView*>(widget.treeView());
        if (!view || !view->hasEditorsToOpen())
            return;
        while (view->hasEditorsToOpen()) {
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
            QCoreApplication::processEvents();
        }
        settleAndPaint(&widget);
    }

    //! One tick of the model's poll timer; the changes arrive as queued
    //! signals from the simulated camera.
    void pollTick()
    {
        auto* proxy = qobject_cast<QSortFilterProxyModel*>(widget.treeView()->model());
        auto* model = proxy ? qobject_cast<FeatureTreeModel*>(proxy->sourceModel()) : nullptr;
        if (model)
            model->onTimerPoll();
        settleAndPaint(&widget);
    }

    SearchEdit* searchEdit() { return widget.findChild<SearchEdit*>(); }

    FeatureTreeWidget widget;
    PaintWatch watch;
};

// ---- output -------------------------------------------------------------------

QString ms(double value)
{
    return QString::number(value, 'f', value < 10 ? 2 : 1);
}

struct Figures
{
    double firstPaint = 0;
    double expand = 0;
    double firstFrame = 0;
    double searchKey = 0;
    double searchFrame = 0;
    double clearSearch = 0;
    int rows = 0;
    int editors = 0;
    int searchRows = 0;

    //! The fastest of each figure; the counts of the latest run.
    void keepFastest(const Figures& other)
    {
        firstPaint = qMin(firstPaint, other.firstPaint);
        expand = qMin(expand, other.expand);
        firstFrame = qMin(firstFrame, other.firstFrame);
        searchKey = qMin(searchKey, other.searchKey);
        searchFrame = qMin(searchFrame, other.searchFrame);
        clearSearch = qMin(clearSearch, other.clearSearch);
        rows = other.rows;
        editors = other.editors;
        searchRows = other.searchRows;
    }
};

//! What "expand" means for a camera: every category, or one path down to the largest.
struct Expansion
{
    bool everyCategory = true;
    QStringList path;
};

template <typename Tree> void expand(Tree& tree, const Expansion& expansion)
{
    if (expansion.everyCategory)
        tree.expandAll();
    else
        tree.expandPath(expansion.path);
}

Figures measureOurs(const Camera& camera, const Expansion& expansion)
{
    Figures figures;
    std::unique_ptr<OurTree> tree;
    figures.firstPaint = BenchmarkUtil::timeMs([&] {
        tree = std::make_unique<OurTree>(camera);
        tree->showAndPaint();
    });
    tree->watch.arm();
    figures.expand = BenchmarkUtil::timeMs([&] { expand(*tree, expansion); });
    figures.firstFrame = tree->watch.firstPaintMs();
    figures.rows = visibleRows(tree->widget.treeView(), QModelIndex());
    figures.editors = editorCount(tree->widget.treeView());
    tree->searchEdit()->setFocus();
    tree->watch.arm();
    figures.searchKey = BenchmarkUtil::timeMs([&] { tree->type(camera.searchKey); });
    figures.searchFrame = tree->watch.firstPaintMs();
    figures.searchRows = visibleRows(tree->widget.treeView(), QModelIndex());
    figures.clearSearch = BenchmarkUtil::timeMs([&] { tree->clearSearch(); });
    return figures;
}

Figures measurePlain(const Camera& camera, const Expansion& expansion, int editors)
{
    Figures figures;
    std::unique_ptr<PlainTree> tree;
    figures.firstPaint = BenchmarkUtil::timeMs([&] {
        tree = std::make_unique<PlainTree>(camera, editors);
        tree->showAndPaint();
    });
    tree->watch.arm();
    figures.expand = BenchmarkUtil::timeMs([&] { expand(*tree, expansion); });
    figures.firstFrame = tree->watch.firstPaintMs();
    figures.rows = visibleRows(&tree->view, QModelIndex());
    figures.editors = editorCount(&tree->view);
    tree->watch.arm();
    figures.searchKey = BenchmarkUtil::timeMs([&] { tree->search(camera.searchKey); });
    figures.searchFrame = tree->watch.firstPaintMs();
    figures.searchRows = visibleRows(&tree->view, QModelIndex());
    figures.clearSearch = BenchmarkUtil::timeMs([&] { tree->search(QString()); });
    return figures;
}

//! Both sides in turns, the side that goes first changing each round; the
//! fastest of each figure. The plain side opens as many editors as ours.
void measureInTurns(const Camera& camera, const Expansion& expansion, int rounds, Figures* ours, Figures* plain)
{
    for (int round = 0; round < rounds; ++round) {
        Figures our;
        Figures theirs;
        if (round % 2 == 0) {
            our = measureOurs(camera, expansion);
            theirs = measurePlain(camera, expansion, our.editors);
        } else {
            theirs = measurePlain(camera, expansion, ours->editors);
            our = measureOurs(camera, expansion);
        }
        if (round == 0) {
            *ours = our;
            *plain = theirs;
        } else {
            ours->keepFastest(our);
            plain->keepFastest(theirs);
        }
    }
}

void printRow(QTextStream& out, const char* label, double ours, double plain)
{
    out << qSetFieldWidth(34) << Qt::left << label << qSetFieldWidth(14) << Qt::right << ms(ours) << qSetFieldWidth(14)
        << ms(plain) << qSetFieldWidth(8) << QString::number(ours / plain, 'f', 2) << qSetFieldWidth(0) << Qt::left
        << '\n';
}

void printCamera(QTextStream& out, const Camera& camera, const Expansion& expansion, int rounds)
{
    // The simulation makes its parameter objects on first look-up: make
    // them all now, so that neither side is charged for them.
    {
        PlainTree warmUp(camera);
        warmUp.model.fetchAll();
    }
    Figures ours;
    Figures plain;
    measureInTurns(camera, expansion, rounds, &ours, &plain);
    out << "--- " << camera.label
        << (expansion.everyCategory
                   ? QString()
                   : QStringLiteral(", largest category \"%1\"").arg(expansion.path.join(QLatin1Char('/'))))
        << ": rows shown after expanding " << ours.rows << " / " << plain.rows << " plain, editors " << ours.editors
        << " / " << plain.editors << " plain; rows in the search \"" << camera.searchKey << "\" " << ours.searchRows
        << " / " << plain.searchRows << " plain; fastest of " << rounds << "\n";
    out << qSetFieldWidth(34) << Qt::left << "[ms]" << qSetFieldWidth(14) << Qt::right << "FeatureTree"
        << qSetFieldWidth(14) << "plain Qt" << qSetFieldWidth(8) << "ratio" << qSetFieldWidth(0) << Qt::left << '\n';
    printRow(out, "construct, add, first paint", ours.firstPaint, plain.firstPaint);
    printRow(out, expansion.everyCategory ? "expand every category" : "expand the largest category", ours.expand,
        plain.expand);
    printRow(out, "  first frame after expanding", ours.firstFrame, plain.firstFrame);
    printRow(out, "search keystroke", ours.searchKey, plain.searchKey);
    printRow(out, "  first frame after the keystroke", ours.searchFrame, plain.searchFrame);
    printRow(out, "clear the search", ours.clearSearch, plain.clearSearch);
    out.flush();
}

} // namespace

int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    // The favourites store keeps its list in the settings: keep them out of the user's.
    QTemporaryDir settingsDir;
    QSettings::setDefaultFormat(QSettings::IniFormat);
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, settingsDir.path());
    QCoreApplication::setOrganizationName(QStringLiteral("ZarvexBenchmarks"));
    QCoreApplication::setApplicationName(QStringLiteral("bench_featuretreewidget"));
    QTextStream out(stdout);

    // --search-only N: the feature tree on N synthetic features, up to the
    // search keystroke and its clearing, then the plain tree; for a profiler.
    const QStringList arguments = QCoreApplication::arguments();
    const int searchOnly = arguments.indexOf(QStringLiteral("--search-only"));
    if (searchOnly > 0 && searchOnly + 1 < arguments.size()) {
        const Camera camera = cameraNamed(arguments.at(searchOnly + 1));
        OurTree tree(camera);
        tree.showAndPaint();
        out << "expand every category [ms] " << ms(BenchmarkUtil::timeMs([&] { tree.expandAll(); })) << '\n';
        tree.searchEdit()->setFocus();
        out << "search keystroke [ms] " << ms(BenchmarkUtil::timeMs([&] { tree.type(camera.searchKey); })) << '\n';
        out << "clear the search [ms] " << ms(BenchmarkUtil::timeMs([&] { tree.clearSearch(); })) << '\n';
        // The plain tree after it, with as many editors, for a profile of both
        // (not with "--ours-only": at 100 000 features its keystroke takes half an hour).
        if (arguments.contains(QStringLiteral("--ours-only")))
            return 0;
        PlainTree plain(camera, editorCount(tree.widget.treeView()));
        plain.showAndPaint();
        out << "plain Qt: expand every category [ms] " << ms(BenchmarkUtil::timeMs([&] { plain.expandAll(); }));
        out << ", search keystroke [ms] " << ms(BenchmarkUtil::timeMs([&] { plain.search(camera.searchKey); }));
        out << ", clear the search [ms] " << ms(BenchmarkUtil::timeMs([&] { plain.search(QString()); })) << '\n';
        return 0;
    }

    // --screenshot N file: the feature tree on N synthetic features, every
    // category expanded and scrolled to the middle, saved as a PNG; to look
    // at what a person sees of a large tree.
    const int screenshot = arguments.indexOf(QStringLiteral("--screenshot"));
    if (screenshot > 0 && screenshot + 2 < arguments.size()) {
        const Camera camera = syntheticCamera(arguments.at(screenshot + 1).toInt(), -1, -1);
        OurTree tree(camera);
        tree.showAndPaint();
        tree.expandAll();
        // A search text after the file name: the picture shows its results.
        if (screenshot + 3 < arguments.size() && !arguments.at(screenshot + 3).startsWith(QLatin1String("--"))) {
            tree.searchEdit()->setFocus();
            tree.type(arguments.at(screenshot + 3));
        }
        QScrollBar* bar = tree.widget.treeView()->verticalScrollBar();
        bar->setValue(bar->maximum() / 2);
        settleAndPaint(&tree.widget);
        const bool saved = tree.widget.grab().save(arguments.at(screenshot + 2));
        out << (saved ? "saved " : "could not save ") << arguments.at(screenshot + 2) << '\n';
        return saved ? 0 : 1;
    }

    // --poll-only N: N poll ticks of the feature tree of the poll figure
    // below; for a profiler.
    const int pollOnly = arguments.indexOf(QStringLiteral("--poll-only"));
    if (pollOnly > 0 && pollOnly + 1 < arguments.size()) {
        const Camera polled = syntheticCamera(1600, 100, 10);
        OurTree tree(polled);
        tree.showAndPaint();
        tree.expandAll();
        const int ticks = arguments.at(pollOnly + 1).toInt();
        out << "poll ticks [ms] " << ms(BenchmarkUtil::timeMs([&] {
            for (int tick = 0; tick < ticks; ++tick)
                tree.pollTick();
        }) / qMax(1, ticks))
            << " each\n";
        return 0;
    }

    // --first-paint-only N: only constructing, adding and the first paint of
    // the feature tree on N synthetic features; for a profiler.
    const int firstPaintOnly = arguments.indexOf(QStringLiteral("--first-paint-only"));
    if (firstPaintOnly > 0 && firstPaintOnly + 1 < arguments.size()) {
        const Camera camera = cameraNamed(arguments.at(firstPaintOnly + 1));
        {
            PlainTree warmUp(camera);
            warmUp.model.fetchAll();
        }
        // Once before the measured run, as the fastest of the rounds in the
        // full benchmark is one that comes after the first.
        {
            OurTree warmUp(camera);
            warmUp.showAndPaint();
        }
        std::unique_ptr<OurTree> tree;
        out << "construct, add, first paint [ms] " << ms(BenchmarkUtil::timeMs([&] {
            tree = std::make_unique<OurTree>(camera);
            tree->showAndPaint();
        }));
        std::unique_ptr<PlainTree> plain;
        out << ", plain Qt " << ms(BenchmarkUtil::timeMs([&] {
            plain = std::make_unique<PlainTree>(camera);
            plain->showAndPaint();
        })) << '\n';
        return 0;
    }

    QList<Camera> cameras;
    cameras << defaultCamera() << syntheticCamera(1000, -1, -1) << syntheticCamera(10000, -1, -1);
    for (const Camera& camera : cameras)
        printCamera(out, camera, Expansion(), 3);
    if (!arguments.contains(QStringLiteral("--skip-100k"))) {
        const Camera largest = syntheticCamera(100000, -1, -1);
        printCamera(out, largest, Expansion { false, largestCategoryPath(largest) }, 1);
    }

    // One poll tick with about 1 000 editors open: 1 600 features, all shown
    // (not every kind has a persistent editor); 100 of them are polled, 10 of
    // those change at each poll. Each tree has a camera of its own, so that
    // neither receives the other's changes, and they tick in turns.
    const Camera polled = syntheticCamera(1600, 100, 10);
    const Camera polledPlain = syntheticCamera(1600, 100, 10);
    OurTree ourTree(polled);
    ourTree.showAndPaint();
    ourTree.expandAll();
    PlainTree plainTree(polledPlain, editorCount(ourTree.widget.treeView()));
    plainTree.showAndPaint();
    plainTree.expandAll();
    ourTree.pollTick(); // once each to warm up
    plainTree.pollTick();
    double ourTick = std::numeric_limits<double>::max();
    double plainTick = std::numeric_limits<double>::max();
    for (int turn = 0; turn < 5; ++turn) {
        ourTick = qMin(ourTick, BenchmarkUtil::timeMs([&] { ourTree.pollTick(); }));
        plainTick = qMin(plainTick, BenchmarkUtil::timeMs([&] { plainTree.pollTick(); }));
    }
    out << "--- poll tick, 10 of 100 polled values changed; editors open: " << editorCount(ourTree.widget.treeView())
        << " / " << editorCount(&plainTree.view) << " plain; fastest of 5\n";
    printRow(out, "poll tick to repaint", ourTick, plainTick);
    return 0;
}
