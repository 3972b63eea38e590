// The feature tree as a user meets it, on the default simulated camera (all
// its node maps) and on synthetic node maps of 1 000 and 10 000 features.
//
// The plain Qt alternative: a QTreeView over a QSortFilterProxyModel
// (recursive, case-insensitive, for the search) over a QStandardItemModel
// holding the same rows (name and value text), with a persistent editor
// opened by openPersistentEditor on every visible writable value.
//
// Measured, each to the end of the repaint it causes:
//   first paint     construct, add all node maps, show, first paint
//   expand all      expand every category; the editors open on every visible value
//   search key      one keystroke in the search, with expand and repaint
//   clear search    back to the empty search
//   poll tick       10 changed values while about 1 000 editors are open
//
// Run from a Release build on the offscreen platform:
//   QT_QPA_PLATFORM=offscreen build-bench/benchmarks/bench_featuretreewidget
// With "--search-only 10000" it builds only the feature tree on that many
// synthetic features and times expanding, the search keystroke and clearing
// the search, for a profiler.

#include "benchmarkutil.h"

#include "featuretree/SearchEdit.h"
#include "featuretree/featuretreemodel.h"
#include "featuretree/featuretreewidget.h"
#include "parameters/iadvancedparameteraccess.h"
#include "parameters/iparametercollection.h"
#include "simulateddevice.h"
#include "syntheticnodemapgenerator.h"

#include <QApplication>
#include <QHeaderView>
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

//! Paint events of a viewport, to know that a paint has happened.
class PaintWatch : public QObject
{
public:
    int paints = 0;

protected:
    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() == QEvent::Paint)
            ++paints;
        return false;
    }
};

//! Lets queued work run and paints the window now.
void settleAndPaint(QWidget* window)
{
    QCoreApplication::processEvents();
    window->repaint();
    QCoreApplication::processEvents();
}

int editorCount(const QAbstractItemView* view)
{
    int count = 0;
    for (QObject* child : view->viewport()->children()) {
        auto* widget = qobject_cast<QWidget*>(child);
        if (widget && widget->isVisibleTo(view->viewport()))
            ++count;
    }
    return count;
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

// ---- the plain side -----------------------------------------------------------

const int WritableRole = Qt::UserRole + 1;

//! The same names and value texts as standard items, writable values marked.
void fillStandardModel(QStandardItem* parent, IParameterCollection& collection, const QString& fullName)
{
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
        valueItem->setData(!isCategory && data->writable, WritableRole);
        valueItem->setEditable(!isCategory && data->writable);
        parent->appendRow({ nameItem, valueItem });
        if (isCategory)
            fillStandardModel(nameItem, collection, child);
    }
}

//! Opens editors on visible writable values until `budget` editors are open.
void openEditorsOnVisibleValues(QTreeView* view, const QModelIndex& parent, int& budget)
{
    const QAbstractItemModel* model = view->model();
    for (int row = 0; row < model->rowCount(parent) && budget > 0; ++row) {
        const QModelIndex value = model->index(row, 1, parent);
        if (value.data(WritableRole).toBool() && !view->indexWidget(value)) {
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
    {
        proxy.setSourceModel(&model);
        proxy.setRecursiveFilteringEnabled(true);
        proxy.setFilterCaseSensitivity(Qt::CaseInsensitive);
        proxy.setFilterKeyColumn(0);
        model.setHorizontalHeaderLabels({ QStringLiteral("Feature"), QStringLiteral("Value") });
        for (const QString& name : camera.nodeMaps) {
            const QSharedPointer<IParameterCollection> collection = camera.device->nodeMap(name);
            auto* root = new QStandardItem(name);
            root->setEditable(false);
            auto* rootValue = new QStandardItem;
            rootValue->setEditable(false);
            model.appendRow({ root, rootValue });
            fillStandardModel(root, *collection, name + QStringLiteral("/Root"));
        }
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

    void search(const QString& text)
    {
        proxy.setFilterFixedString(text);
        view.expandAll();
        openEditors();
        settleAndPaint(&view);
    }

    //! Writes a new value text into the first `count` writable values.
    void changeValues(int count, int round)
    {
        int changed = 0;
        std::function<void(const QModelIndex&)> visit = [&](const QModelIndex& parent) {
            for (int row = 0; row < model.rowCount(parent) && changed < count; ++row) {
                const QModelIndex value = model.index(row, 1, parent);
                if (value.data(WritableRole).toBool()) {
                    model.setData(value, QString::number(1000 * round + changed));
                    ++changed;
                }
                visit(model.index(row, 0, parent));
            }
        };
        visit(QModelIndex());
        settleAndPaint(&view);
    }

    void openEditors()
    {
        int budget = maxEditors - editorCount(&view);
        openEditorsOnVisibleValues(&view, QModelIndex(), budget);
    }

    int maxEditors;
    QStandardItemModel model;
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
    }

    //! Types into the search line: textChanged goes to onFilterTextChanged.
    void type(const QString& text)
    {
        QTest::keyClicks(searchEdit(), text);
        settleAndPaint(&widget);
    }

    void clearSearch()
    {
        searchEdit()->clear();
        settleAndPaint(&widget);
    }

    void pollTick()
    {
        auto* proxy = qobject_cast<QSortFilterProxyModel*>(widget.treeView()->model());
        auto* model = proxy ? qobject_cast<FeatureTreeModel*>(proxy->sourceModel()) : nullptr;
        if (model)
            model->onTimerPoll();
        // The changes arrive as queued signals from the simulated camera.
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
    double expandAll = 0;
    double searchKey = 0;
    double clearSearch = 0;
    int rows = 0;
    int editors = 0;
    int searchRows = 0;
};

Figures measureOurs(const Camera& camera)
{
    Figures figures;
    std::unique_ptr<OurTree> tree;
    figures.firstPaint = BenchmarkUtil::timeMs([&] {
        tree = std::make_unique<OurTree>(camera);
        tree->showAndPaint();
    });
    figures.expandAll = BenchmarkUtil::timeMs([&] { tree->expandAll(); });
    figures.rows = visibleRows(tree->widget.treeView(), QModelIndex());
    figures.editors = editorCount(tree->widget.treeView());
    tree->searchEdit()->setFocus();
    figures.searchKey = BenchmarkUtil::timeMs([&] { tree->type(camera.searchKey); });
    figures.searchRows = visibleRows(tree->widget.treeView(), QModelIndex());
    figures.clearSearch = BenchmarkUtil::timeMs([&] { tree->clearSearch(); });
    return figures;
}

double measureOurPollTick(const Camera& camera, int* editors)
{
    OurTree tree(camera);
    tree.showAndPaint();
    tree.expandAll();
    *editors = editorCount(tree.widget.treeView());
    tree.pollTick(); // once to warm up
    return BenchmarkUtil::fastestMs(5, [&] { tree.pollTick(); });
}

Figures measurePlain(const Camera& camera, int editors)
{
    Figures figures;
    std::unique_ptr<PlainTree> tree;
    figures.firstPaint = BenchmarkUtil::timeMs([&] {
        tree = std::make_unique<PlainTree>(camera, editors);
        tree->showAndPaint();
    });
    figures.expandAll = BenchmarkUtil::timeMs([&] { tree->expandAll(); });
    figures.rows = visibleRows(&tree->view, QModelIndex());
    figures.editors = editorCount(&tree->view);
    figures.searchKey = BenchmarkUtil::timeMs([&] { tree->search(camera.searchKey); });
    figures.searchRows = visibleRows(&tree->view, QModelIndex());
    figures.clearSearch = BenchmarkUtil::timeMs([&] { tree->search(QString()); });
    return figures;
}

double measurePlainPollTick(const Camera& camera, int* editors)
{
    PlainTree tree(camera, *editors);
    tree.showAndPaint();
    tree.expandAll();
    *editors = editorCount(&tree.view);
    tree.changeValues(10, 1); // once to warm up
    return BenchmarkUtil::fastestMs(5, [&, round = 2]() mutable { tree.changeValues(10, round++); });
}

void printRow(QTextStream& out, const char* label, double ours, double plain, bool haveOurs)
{
    out << qSetFieldWidth(34) << Qt::left << label << qSetFieldWidth(14) << Qt::right
        << (haveOurs ? ms(ours) : QStringLiteral("-")) << qSetFieldWidth(14) << ms(plain) << qSetFieldWidth(8)
        << (haveOurs ? QString::number(ours / plain, 'f', 2) : QStringLiteral("-")) << qSetFieldWidth(0) << Qt::left
        << '\n';
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
    const bool haveOurs = true;

    // --search-only N: only the feature tree on N synthetic features, up to
    // the search keystroke and its clearing; for a profiler.
    const QStringList arguments = QCoreApplication::arguments();
    const int searchOnly = arguments.indexOf(QStringLiteral("--search-only"));
    if (searchOnly > 0 && searchOnly + 1 < arguments.size()) {
        const Camera camera = syntheticCamera(arguments.at(searchOnly + 1).toInt(), -1, -1);
        PlainTree warmUp(camera);
        OurTree tree(camera);
        tree.showAndPaint();
        out << "expand every category [ms] " << ms(BenchmarkUtil::timeMs([&] { tree.expandAll(); })) << '\n';
        tree.searchEdit()->setFocus();
        out << "search keystroke [ms] " << ms(BenchmarkUtil::timeMs([&] { tree.type(camera.searchKey); })) << '\n';
        out << "clear the search [ms] " << ms(BenchmarkUtil::timeMs([&] { tree.clearSearch(); })) << '\n';
        return 0;
    }

    QList<Camera> cameras;
    cameras << defaultCamera() << syntheticCamera(1000, -1, -1) << syntheticCamera(10000, -1, -1);
    for (const Camera& camera : cameras) {
        // The simulation makes its parameter objects on first look-up: make
        // them all now, so that neither side is charged for them.
        PlainTree warmUp(camera);

        const Figures ours = measureOurs(camera);
        const Figures plain = measurePlain(camera, ours.editors);
        out << "--- " << camera.label << ": rows shown after expanding " << ours.rows << " / " << plain.rows
            << " plain, editors " << ours.editors << " / " << plain.editors << " plain; rows in the search \""
            << camera.searchKey << "\" " << ours.searchRows << " / " << plain.searchRows << " plain\n";
        out << qSetFieldWidth(34) << Qt::left << "[ms]" << qSetFieldWidth(14) << Qt::right << "FeatureTree"
            << qSetFieldWidth(14) << "plain Qt" << qSetFieldWidth(8) << "ratio" << qSetFieldWidth(0) << Qt::left
            << '\n';
        printRow(out, "construct, add, first paint", ours.firstPaint, plain.firstPaint, haveOurs);
        printRow(out, "expand every category", ours.expandAll, plain.expandAll, haveOurs);
        printRow(out, "search keystroke", ours.searchKey, plain.searchKey, haveOurs);
        printRow(out, "clear the search", ours.clearSearch, plain.clearSearch, haveOurs);
        out.flush();
    }

    // One poll tick with about 1 000 editors open: 1 600 features, all shown
    // (not every kind has a persistent editor); 100 of them are polled, 10 of
    // those change.
    const Camera polled = syntheticCamera(1600, 100, 10);
    int ourEditors = 0;
    const double ourTick = measureOurPollTick(polled, &ourEditors);
    int plainEditors = ourEditors;
    const double plainTick = measurePlainPollTick(polled, &plainEditors);
    out << "--- poll tick, 10 changed values; editors open: " << ourEditors << " / " << plainEditors << " plain\n";
    printRow(out, "poll tick to repaint", ourTick, plainTick, haveOurs);
    return 0;
}
