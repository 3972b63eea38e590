// Searching the feature tree: the filter proxy on synthetic node maps of
// 10 000 and 100 000 features, beside a plain QSortFilterProxyModel with
// recursive filtering and a case-insensitive fixed-string filter over the
// same source model.
//
// The plain proxy filters on the feature's name (NodeNameRole), as ours does
// among other things: on the display text alone it would find nothing for
// "feature0" and longer, since the synthetic features are named
// "Feature000012" but shown as "Feature 12". A ratio is only printed when
// both proxies show the same number of rows; where they don't (the user
// levels below Guru, which the plain proxy doesn't know of) the line says so
// instead of comparing different work.
//
// A keystroke is timed as the view lives it: the new filter text, then a walk
// of every row the proxy shows, as an expanded tree asks for them. Each text
// after the first is timed three times for each proxy in turns, and the
// fastest is shown.

#include "benchmarkutil.h"

#include "featuretree/featuretreeitem.h"
#include "featuretree/featuretreemodel.h"
#include "featuretree/featuretreeproxymodel.h"
#include "simulateddevice.h"
#include "syntheticnodemapgenerator.h"

#include <QApplication>
#include <QSortFilterProxyModel>
#include <QTextStream>

#include <algorithm>

using namespace Simulation;

namespace {

const QString nodeMapName = QStringLiteral("@CameraDevice");

int walk(const QAbstractItemModel& model, const QModelIndex& parent)
{
    const int rows = model.rowCount(parent);
    int total = rows;
    for (int row = 0; row < rows; ++row)
        total += walk(model, model.index(row, 0, parent));
    return total;
}

double keystroke(QSortFilterProxyModel& proxy, const QString& text, int* rows)
{
    return BenchmarkUtil::timeMs([&] {
        proxy.setFilterFixedString(text);
        *rows = walk(proxy, QModelIndex());
    });
}

QString ms(double value)
{
    return QString::number(value, 'f', value < 10 ? 2 : 1);
}

const char* levelName(GenApi::EVisibility level)
{
    switch (level) {
    case GenApi::Beginner:
        return "Beginner";
    case GenApi::Expert:
        return "Expert";
    case GenApi::Guru:
        return "Guru";
    default:
        return "Invisible";
    }
}

} // namespace

int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    QTextStream out(stdout);
    const QStringList texts
        = { QStringLiteral("f"), QStringLiteral("fe"), QStringLiteral("fea"), QStringLiteral("feat"),
              QStringLiteral("featu"), QStringLiteral("featur"), QStringLiteral("feature"), QStringLiteral("feature0"),
              QStringLiteral("feature00"), QStringLiteral("feature001"), QStringLiteral("feature0012"), QString() };

    // Optional arguments narrow the run, for profiling: a feature count and a
    // level name, as in "bench_featuretreeproxymodel 100000 Guru".
    const QStringList arguments = QCoreApplication::arguments();
    QList<int> counts = { 10000, 100000 };
    if (arguments.size() > 1)
        counts = { arguments.at(1).toInt() };
    const QString onlyLevel = arguments.size() > 2 ? arguments.at(2) : QString();

    for (const int count : counts) {
        SyntheticNodeMapGenerator::Options options;
        options.featureCount = count;
        options.depth = 3;
        options.fanOut = 10;
        const QSharedPointer<SimulatedDevice> device
            = SimulatedDevice::fromDescription(SyntheticNodeMapGenerator(options).generateDevice());

        for (const GenApi::EVisibility level : { GenApi::Beginner, GenApi::Expert, GenApi::Guru, GenApi::Invisible }) {
            if (!onlyLevel.isEmpty() && onlyLevel != QLatin1String(levelName(level)))
                continue;
            FeatureTreeModel model;
            FeatureTreeProxyModel proxy;
            proxy.setSourceModel(&model);
            proxy.setFilterCaseSensitivity(Qt::CaseInsensitive);
            proxy.setVisibility(level);
            proxy.addParameterCollection(device->nodeMap(nodeMapName), QStringLiteral("Camera"), nodeMapName, false);
            // A collapsed view: only the top level is asked for; the model is
            // filled as far as the level filter needs to find a shown feature.
            const double firstViewMs = BenchmarkUtil::timeMs([&] {
                proxy.invalidate();
                for (int row = 0; row < proxy.rowCount(); ++row)
                    proxy.rowCount(proxy.index(row, 0));
            });

            QSortFilterProxyModel plain;
            plain.setRecursiveFilteringEnabled(true);
            plain.setFilterCaseSensitivity(Qt::CaseInsensitive);
            plain.setFilterKeyColumn(0);
            plain.setFilterRole(FeatureTreeItem::NodeNameRole);

            out << "--- " << count << " features, level " << levelName(level) << ", collapsed view " << ms(firstViewMs)
                << " ms\n";
            out << "text           proxy [ms]  rows   hits (hidden)   plain [ms]  rows   ratio\n";
            for (int i = 0; i < texts.count(); ++i) {
                const QString& text = texts.at(i);
                int rows = 0;
                int plainRows = 0;
                double ours = keystroke(proxy, text, &rows);
                // The plain proxy joins once the first text has filled the model,
                // so that neither pays the fill on the keystrokes compared.
                if (i == 0) {
                    plain.setSourceModel(&model);
                    walk(plain, QModelIndex());
                }
                double theirs = keystroke(plain, text, &plainRows);
                // The proxies take turns, and each keystroke after the first is
                // typed three times (from the text before it), keeping the
                // fastest: on a shared machine one timing of each, one after
                // the other, compares two moments of the machine as well.
                for (int turn = 1; i > 0 && turn < 3; ++turn) {
                    for (QSortFilterProxyModel* each : { static_cast<QSortFilterProxyModel*>(&proxy), &plain }) {
                        int ignored = 0;
                        keystroke(*each, texts.at(i - 1), &ignored);
                    }
                    ours = std::min(ours, keystroke(proxy, text, &rows));
                    theirs = std::min(theirs, keystroke(plain, text, &plainRows));
                }
                const QString label = text.isEmpty() ? QStringLiteral("(cleared)")
                    : i == 0                         ? text + QStringLiteral(" (fills)")
                                                     : text;
                out << label.leftJustified(14) << qSetFieldWidth(11) << ms(ours) << qSetFieldWidth(7) << rows
                    << qSetFieldWidth(0) << "  " << QString::number(proxy.getVisibleMatchCount()).rightJustified(6)
                    << " (" << QString::number(proxy.getInvisibleMatchCount()).rightJustified(5) << ")"
                    << qSetFieldWidth(12) << ms(theirs) << qSetFieldWidth(7) << plainRows << qSetFieldWidth(0);
                if (rows == plainRows)
                    out << qSetFieldWidth(8) << QString::number(ours / qMax(theirs, 0.001), 'f', 2) << qSetFieldWidth(0)
                        << '\n';
                else
                    out << "  NO RATIO: the proxies show different rows (" << rows << " vs " << plainRows << ")\n";
                out.flush();
            }
            plain.setSourceModel(nullptr);
        }
    }
    return 0;
}
