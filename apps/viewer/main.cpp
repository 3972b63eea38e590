// zarvex-viewer: shows the simulated camera, or a real one through Aravis. Until the feature tree widget is
// in place, it prints each node map as an indented tree of names and values.

#include "nodemapprinter.h"

#include "simulateddevice.h"

#ifdef ZVC_WITH_ARAVIS
#include "aravisdevice.h"
#include "aravisnodemap.h"
#endif

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QTextStream>

int main(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    QCoreApplication::setOrganizationName(QStringLiteral("Zarvex"));
    QCoreApplication::setApplicationName(QStringLiteral("zarvex-viewer"));

    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("Shows the features of a simulated camera."));
    parser.addHelpOption();
    const QCommandLineOption transportOption(QStringLiteral("transport"),
        QStringLiteral("Transport-layer type: GEV, U3V, IIDC, CamEmu, ..."), QStringLiteral("type"),
        QStringLiteral("GEV"));
    const QCommandLineOption deviceOption(
        QStringLiteral("device"), QStringLiteral("A device description of your own (JSON)."), QStringLiteral("file"));
    const QCommandLineOption depthOption(QStringLiteral("depth"), QStringLiteral("Deepest level printed."),
        QStringLiteral("levels"), QStringLiteral("100"));
    const QCommandLineOption printOption(
        QStringLiteral("print"), QStringLiteral("Print the node maps as a tree (the only mode so far)."));
    const QCommandLineOption aravisOption(QStringLiteral("aravis"),
        QStringLiteral("Show a real camera through Aravis instead of the simulated one: the camera named by [id], "
                       "else the first one found."));
    parser.addOption(transportOption);
    parser.addOption(deviceOption);
    parser.addOption(depthOption);
    parser.addOption(printOption);
    parser.addOption(aravisOption);
    parser.addPositionalArgument(
        QStringLiteral("id"), QStringLiteral("Aravis id of the camera (with --aravis)."), QStringLiteral("[id]"));
    parser.process(app);

    QTextStream out(stdout);
    QTextStream err(stderr);

    bool depthOk = false;
    const int depth = parser.value(depthOption).toInt(&depthOk);
    NodeMapPrinter printer(out, depthOk && depth > 0 ? depth : 100);

    if (parser.isSet(aravisOption)) {
#ifdef ZVC_WITH_ARAVIS
        const QStringList ids = parser.positionalArguments();
        const QList<Aravis::DeviceInfo> cameras = Aravis::AravisDevice::listDevices();
        for (const Aravis::DeviceInfo& camera : cameras)
            out << "Found " << camera.id << " (" << camera.protocol << ", " << camera.address << ")\n";
        QString error;
        const auto camera = Aravis::AravisDevice::open(ids.value(0), &error);
        if (!camera) {
            err << "zarvex-viewer: " << error << '\n';
            return 1;
        }
        out << "Aravis camera " << camera->id() << ", transport layer " << camera->transportLayerType() << '\n';
        for (const QString& name : camera->nodeMapNames()) {
            const int count = printer.print(camera->nodeMap(name), name);
            out << "  (" << count << " features shown)\n";
        }
        return 0;
#else
        err << "zarvex-viewer: built without Aravis (install libaravis-dev and configure with ZVC_BUILD_ARAVIS=ON)\n";
        return 1;
#endif
    }

    QSharedPointer<Simulation::SimulatedDevice> device;
    if (parser.isSet(deviceOption)) {
        QString error;
        device
            = Simulation::SimulatedDevice::fromFile(parser.value(deviceOption), &error, parser.value(transportOption));
        if (!device) {
            err << "zarvex-viewer: " << error << '\n';
            return 1;
        }
    } else {
        device = Simulation::SimulatedDevice::createDefault(parser.value(transportOption));
    }

    out << "Simulated camera, transport layer " << device->transportLayerType() << '\n';
    for (const QString& name : device->nodeMapNames()) {
        const int count = printer.print(device->nodeMap(name), name);
        out << "  (" << count << " features shown)\n";
    }
    return 0;
}
