// The image path of the viewer: converting and painting one frame, for each
// pixel format at 640 x 480 and 2048 x 2048, and a simulated camera streaming
// 640 x 480 Mono8 at 30 frames a second into the image pane while a feature
// tree polls 1 000 features beside it.
//
//   convert  PixelConverter::toImage alone (fastest of 20)
//   paint    a new frame set on the image pane and painted, conversion included (fastest of 20)
//   stream   frames shown / frames sent over 10 s; poll tick: the tree's poll of
//            1 000 features, mean and longest; longest stall of the event loop
//
// Options: --seconds N (stream duration, default 10).

#include "benchmarkutil.h"

#include "imagepane.h"
#include "pixelconverter.h"

#include "featuretree/featuretreemodel.h"
#include "featuretree/featuretreewidget.h"
#include "simulateddevice.h"
#include "simulatedframesource.h"
#include "syntheticnodemapgenerator.h"

#include "parameters/icommandparameter.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QSortFilterProxyModel>
#include <QTextStream>
#include <QTimer>
#include <QTreeView>

#include <algorithm>

using namespace Simulation;

namespace {

void set(const QSharedPointer<SimulatedDevice>& device, const QString& name, const QString& value)
{
    device->nodeMap(QStringLiteral("@CameraDevice"))
        ->getParameter(QStringLiteral("@CameraDevice/") + name)
        ->setValueFromString(value);
}

void execute(const QSharedPointer<SimulatedDevice>& device, const QString& name)
{
    auto parameter
        = device->nodeMap(QStringLiteral("@CameraDevice"))->getParameter(QStringLiteral("@CameraDevice/") + name);
    qobject_cast<ParameterCollection::ICommandParameter*>(parameter.data())->execute(true);
}

QString ms(double value)
{
    return QString::number(value, 'f', value < 10 ? 3 : 1);
}

} // namespace

int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    QTextStream out(stdout);
    int seconds = 10;
    const QStringList arguments = app.arguments();
    const int at = arguments.indexOf(QStringLiteral("--seconds"));
    if (at > 0 && at + 1 < arguments.size())
        seconds = qMax(1, arguments.at(at + 1).toInt());

    ImagePane pane;
    pane.resize(800, 600);
    pane.show();
    QCoreApplication::processEvents();

    out << "Converting and painting one frame into an 800 x 600 pane (fit), milliseconds, fastest of 20\n";
    out << QStringLiteral("%1 %2 %3 %4\n")
               .arg(QStringLiteral("format"), -10)
               .arg(QStringLiteral("size"), -11)
               .arg(QStringLiteral("convert"), 9)
               .arg(QStringLiteral("paint"), 9);
    const QStringList formats = { QStringLiteral("Mono8"), QStringLiteral("Mono10"), QStringLiteral("Mono12"),
        QStringLiteral("Mono16"), QStringLiteral("RGB8"), QStringLiteral("BGR8"), QStringLiteral("BayerRG8"),
        QStringLiteral("BayerGR8"), QStringLiteral("BayerGB8"), QStringLiteral("BayerBG8") };
    for (const QSize size : { QSize(640, 480), QSize(2048, 2048) }) {
        for (const QString& format : formats) {
            SimulatedFrameSource::Settings settings;
            settings.width = size.width();
            settings.height = size.height();
            settings.pixelFormat = format;
            settings.sensorWidth = size.width();
            settings.sensorHeight = size.height();
            const SimulatedFrame frame = SimulatedFrameSource::render(settings, 1);
            const double convert = BenchmarkUtil::fastestMs(20, [&frame] {
                const QImage image = PixelConverter::toImage(frame.data, frame.width, frame.height, frame.pixelFormat);
                Q_UNUSED(image)
            });
            quint64 id = 0;
            const double paint = BenchmarkUtil::fastestMs(20, [&] {
                pane.setFrame(frame.data, frame.width, frame.height, frame.pixelFormat, ++id);
                pane.repaint();
            });
            out << QStringLiteral("%1 %2 %3 %4\n")
                       .arg(format, -10)
                       .arg(QStringLiteral("%1x%2").arg(size.width()).arg(size.height()), -11)
                       .arg(ms(convert), 9)
                       .arg(ms(paint), 9);
            out.flush();
        }
    }

    // Streaming: the default camera at 640 x 480 Mono8, 30 frames a second,
    // beside a tree of a camera with 1 000 polled features, 100 of which
    // change at each poll.
    const auto camera = SimulatedDevice::createDefault();
    set(camera, QStringLiteral("Width"), QStringLiteral("640"));
    set(camera, QStringLiteral("Height"), QStringLiteral("480"));
    set(camera, QStringLiteral("PixelFormat"), QStringLiteral("Mono8"));
    set(camera, QStringLiteral("AcquisitionFrameRateEnable"), QStringLiteral("1"));
    set(camera, QStringLiteral("AcquisitionFrameRate"), QStringLiteral("30"));
    SyntheticNodeMapGenerator::Options options;
    options.featureCount = 1000;
    options.depth = 1;
    options.fanOut = 10;
    options.polledCount = 1000;
    options.changingPolledCount = 100;
    const auto polled = SimulatedDevice::fromDescription(SyntheticNodeMapGenerator(options).generateDevice());
    FeatureTreeWidget tree(QStringLiteral("bench"), polled->baseInfo());
    for (const QString& name : polled->nodeMapNames())
        tree.addParameterCollection(polled->nodeMap(name), name.mid(1), name, false);
    tree.resize(500, 800);
    tree.show();
    tree.expandRootNodes();
    tree.treeView()->expandAll();
    QCoreApplication::processEvents();
    // The tree's own timer is replaced by one that times each tick.
    tree.setPolling(false);
    auto* proxy = qobject_cast<QSortFilterProxyModel*>(tree.treeView()->model());
    auto* model = proxy ? qobject_cast<FeatureTreeModel*>(proxy->sourceModel()) : nullptr;

    SimulatedFrameSource source(camera);
    QObject::connect(&source, &SimulatedFrameSource::frameReady, &pane, [&pane](const SimulatedFrame& frame) {
        pane.setFrame(frame.data, frame.width, frame.height, frame.pixelFormat, frame.frameId);
    });
    QVector<double> ticks;
    QTimer poll;
    poll.setInterval(300);
    QObject::connect(&poll, &QTimer::timeout, [&ticks, model] {
        QElapsedTimer clock;
        clock.start();
        if (model)
            model->onTimerPoll();
        ticks.append(clock.nsecsElapsed() / 1e6);
    });
    // The longest the event loop went without turning, seen by a 1 ms timer.
    double longestStall = 0.0;
    QElapsedTimer loop;
    QTimer probe;
    probe.setTimerType(Qt::PreciseTimer);
    probe.setInterval(1);
    QObject::connect(&probe, &QTimer::timeout, [&loop, &longestStall] {
        longestStall = std::max(longestStall, loop.nsecsElapsed() / 1e6);
        loop.restart();
    });

    pane.resetStatistics();
    execute(camera, QStringLiteral("AcquisitionStart"));
    poll.start();
    loop.start();
    probe.start();
    QElapsedTimer run;
    run.start();
    while (run.elapsed() < seconds * 1000)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 50);
    probe.stop();
    poll.stop();
    execute(camera, QStringLiteral("AcquisitionStop"));
    QCoreApplication::processEvents();

    const ImagePane::Statistics statistics = pane.statistics();
    const quint64 sent = source.framesSent();
    double mean = 0.0;
    for (double t : ticks)
        mean += t;
    mean = ticks.isEmpty() ? 0.0 : mean / ticks.size();
    const double longestTick = ticks.isEmpty() ? 0.0 : *std::max_element(ticks.begin(), ticks.end());
    out << "\nStreaming 640 x 480 Mono8 at 30 frames a second for " << seconds
        << " s, a tree polling 1 000 features beside it\n";
    out << "  frames sent " << sent << ", received " << statistics.received << ", shown " << statistics.shown
        << ", dropped " << statistics.dropped << ": "
        << QString::number(100.0 * statistics.shown / qMax<quint64>(sent, 1), 'f', 1) << " % shown, "
        << QString::number(sent / double(seconds), 'f', 1) << " frames a second\n";
    out << "  poll tick (" << ticks.size() << " ticks): mean " << ms(mean) << " ms, longest " << ms(longestTick)
        << " ms; longest event-loop stall " << ms(longestStall) << " ms\n";
    return 0;
}
