// The feature tree model on synthetic node maps of 1 000 to 100 000 features,
// beside a QStandardItemModel that holds the same tree of names and values.
//
// For each size: adding the collection, filling the whole tree by walking
// rowCount, reading Qt::DisplayRole of both columns of every row, heap bytes
// per built row, and one poll tick on a node map with 1 000 polled features of
// which 10 change. Times are the fastest of three turns of both models.

#include "benchmarkutil.h"

#include "featuretree/featuretreemodel.h"
#include "parameters/iadvancedparameteraccess.h"
#include "simulateddevice.h"
#include "syntheticnodemapgenerator.h"

#include <QApplication>
#include <QSignalSpy>
#include <QStandardItemModel>
#include <QTextStream>

#include <algorithm>
#include <limits>

using namespace Simulation;
using namespace ParameterCollection;

using BenchmarkUtil::fillStandardModel;
using BenchmarkUtil::walkRowCount;

namespace {

const QString nodeMapName = QStringLiteral("@CameraDevice");

QSharedPointer<SimulatedDevice> makeDevice(int featureCount, int polled, int changing)
{
    SyntheticNodeMapGenerator::Options options;
    options.featureCount = featureCount;
    options.depth = 3;
    options.fanOut = 10;
    options.polledCount = polled;
    options.changingPolledCount = changing;
    return SimulatedDevice::fromDescription(SyntheticNodeMapGenerator(options).generateDevice());
}

int readDisplay(const QAbstractItemModel& model, const QModelIndex& parent)
{
    int characters = 0;
    const int rows = model.rowCount(parent);
    for (int row = 0; row < rows; ++row) {
        const QModelIndex name = model.index(row, 0, parent);
        characters += model.data(name, Qt::DisplayRole).toString().size();
        characters += model.data(model.index(row, 1, parent), Qt::DisplayRole).toString().size();
        characters += readDisplay(model, name);
    }
    return characters;
}

// The simulation makes its parameter objects on first look-up and frees them
// with their last user: make them all, to be kept for the whole measurement as
// a camera's parameter layer holds its own, so that neither model is charged
// for them.
QList<QSharedPointer<IParameter>> makeAllParameters(IParameterCollection& collection)
{
    QList<QSharedPointer<IParameter>> parameters;
    QStandardItemModel warmUp;
    auto* root = new QStandardItem;
    warmUp.appendRow(root);
    parameters.append(collection.getParameter(nodeMapName + QStringLiteral("/Root")));
    fillStandardModel(root, collection, nodeMapName + QStringLiteral("/Root"), &parameters);
    return parameters;
}

QString ms(double value)
{
    return QString::number(value, 'f', value < 10 ? 2 : 1);
}

} // namespace

int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    QTextStream out(stdout);

    // An optional feature count narrows the run, for profiling: "bench_featuretreemodel 100000".
    // "bench_featuretreemodel 100000 once" builds one tree and stops at its
    // peak, for a heap profiler to attribute the bytes of a row.
    const QStringList arguments = QCoreApplication::arguments();
    QList<int> counts = { 1000, 10000, 100000 };
    if (arguments.size() > 1)
        counts = { arguments.at(1).toInt() };
    if (arguments.size() > 2 && arguments.at(2) == QLatin1String("once")) {
        const QSharedPointer<SimulatedDevice> device = makeDevice(counts.first(), 0, 0);
        const QSharedPointer<IParameterCollection> collection = device->nodeMap(nodeMapName);
        const QList<QSharedPointer<IParameter>> parameters = makeAllParameters(*collection);
        const qint64 heapBefore = BenchmarkUtil::heapInUse();
        FeatureTreeModel model;
        model.addParameterCollection(collection, QStringLiteral("Camera"), nodeMapName, false);
        const int rows = walkRowCount(model, QModelIndex());
        out << rows << " rows, heap bytes per row " << (BenchmarkUtil::heapInUse() - heapBefore) / qMax(rows, 1)
            << '\n';
        return 0;
    }

    out << "                                      FeatureTreeModel   QStandardItemModel   ratio\n";
    for (const int count : qAsConst(counts)) {
        const QSharedPointer<SimulatedDevice> device = makeDevice(count, 0, 0);
        const QSharedPointer<IParameterCollection> collection = device->nodeMap(nodeMapName);

        const QList<QSharedPointer<IParameter>> parameters = makeAllParameters(*collection);

        // Both models are built and read in turns, three times over, and the
        // fastest of each figure is kept: on a shared machine a figure taken
        // once for each side, one after the other, compares two different
        // moments of the machine as much as the two models.
        double addMs = std::numeric_limits<double>::max();
        double fillMs = addMs;
        double readMs = addMs;
        double walkMs = addMs;
        double buildStandardMs = addMs;
        double walkStandardMs = addMs;
        double readStandardMs = addMs;
        qint64 heapModel = 0;
        qint64 heapModelAgain = 0;
        qint64 heapStandard = 0;
        int rows = 0;
        int standardRows = 0;
        for (int round = 0; round < 3; ++round) {
            // Feature tree model.
            const qint64 heapBefore = BenchmarkUtil::heapInUse();
            auto* model = new FeatureTreeModel;
            const double add = BenchmarkUtil::timeMs(
                [&] { model->addParameterCollection(collection, QStringLiteral("Camera"), nodeMapName, false); });
            const double fill = BenchmarkUtil::timeMs([&] { rows = walkRowCount(*model, QModelIndex()); });
            if (add + fill < addMs + fillMs) {
                addMs = add;
                fillMs = fill;
            }
            // The first turn is the one to count: the parameters keep the
            // connection tables of their first connection for life, so a tree
            // built again costs less (shown apart).
            (round == 0 ? heapModel : heapModelAgain) = BenchmarkUtil::heapInUse() - heapBefore;

            // The same tree in a standard item model, built eagerly.
            const qint64 heapBeforeStandard = BenchmarkUtil::heapInUse();
            auto* standard = new QStandardItemModel;
            buildStandardMs = std::min(buildStandardMs, BenchmarkUtil::timeMs([&] {
                auto* root = new QStandardItem(QStringLiteral("Camera"));
                standard->appendRow({ root, new QStandardItem });
                fillStandardModel(root, *collection, nodeMapName + QStringLiteral("/Root"));
            }));
            standardRows = walkRowCount(*standard, QModelIndex());
            if (round == 0)
                heapStandard = BenchmarkUtil::heapInUse() - heapBeforeStandard;

            for (int i = 0; i < 3; ++i) {
                readMs = std::min(readMs, BenchmarkUtil::timeMs([&] { readDisplay(*model, QModelIndex()); }));
                readStandardMs
                    = std::min(readStandardMs, BenchmarkUtil::timeMs([&] { readDisplay(*standard, QModelIndex()); }));
                walkMs = std::min(walkMs, BenchmarkUtil::timeMs([&] { walkRowCount(*model, QModelIndex()); }));
                walkStandardMs
                    = std::min(walkStandardMs, BenchmarkUtil::timeMs([&] { walkRowCount(*standard, QModelIndex()); }));
            }
            delete standard;
            delete model;
        }

        out << "--- " << count << " features, " << rows << " rows (standard model: " << standardRows << ")\n";
        out << "add collection (first level) [ms]      " << qSetFieldWidth(16) << ms(addMs) << qSetFieldWidth(0)
            << '\n';
        out << "fill whole tree by rowCount [ms]       " << qSetFieldWidth(16) << ms(addMs + fillMs)
            << qSetFieldWidth(21) << ms(buildStandardMs) << qSetFieldWidth(8)
            << QString::number((addMs + fillMs) / buildStandardMs, 'f', 2) << qSetFieldWidth(0) << '\n';
        out << "walk the filled tree [ms]              " << qSetFieldWidth(16) << ms(walkMs) << qSetFieldWidth(21)
            << ms(walkStandardMs) << qSetFieldWidth(8) << QString::number(walkMs / walkStandardMs, 'f', 2)
            << qSetFieldWidth(0) << '\n';
        out << "DisplayRole of both columns [ms]       " << qSetFieldWidth(16) << ms(readMs) << qSetFieldWidth(21)
            << ms(readStandardMs) << qSetFieldWidth(8) << QString::number(readMs / readStandardMs, 'f', 2)
            << qSetFieldWidth(0) << '\n';
        out << "heap bytes per row                     " << qSetFieldWidth(16) << heapModel / qMax(rows, 1)
            << qSetFieldWidth(21) << heapStandard / qMax(standardRows, 1) << qSetFieldWidth(8)
            << QString::number(double(heapModel) / qMax<qint64>(heapStandard, 1), 'f', 2) << qSetFieldWidth(0) << '\n';
        out << "heap bytes per row, tree built again   " << qSetFieldWidth(16) << heapModelAgain / qMax(rows, 1)
            << qSetFieldWidth(0) << '\n';
        out.flush();
    }

    // One poll tick: 1 000 polled features, 10 of which change.
    out << "--- poll tick, 1000 polled features of which 10 change\n";
    for (const int count : { 1000, 10000, 100000 }) {
        const QSharedPointer<SimulatedDevice> device = makeDevice(count, 1000, 10);
        FeatureTreeModel model;
        model.addParameterCollection(device->nodeMap(nodeMapName), QStringLiteral("Camera"), nodeMapName, false);
        walkRowCount(model, QModelIndex());
        QSignalSpy changed(&model, &QAbstractItemModel::dataChanged);
        const double tickMs = BenchmarkUtil::timeMs([&] {
            model.onTimerPoll();
            QCoreApplication::processEvents();
        });
        out << count << " features: tick " << ms(tickMs) << " ms, dataChanged signals " << changed.count()
            << (changed.count() == 20 ? " (as expected)" : " (EXPECTED 20)") << '\n';
    }
    return 0;
}
