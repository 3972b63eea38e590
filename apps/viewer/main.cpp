// zarvex-viewer: shows the simulated camera. Until the feature tree widget is
// in place, it prints each node map as an indented tree of names and values.

#include "nodemapprinter.h"

#include "simulateddevice.h"

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
    parser.addOption(transportOption);
    parser.addOption(deviceOption);
    parser.addOption(depthOption);
    parser.process(app);

    QTextStream out(stdout);
    QTextStream err(stderr);

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

    bool depthOk = false;
    const int depth = parser.value(depthOption).toInt(&depthOk);
    NodeMapPrinter printer(out, depthOk && depth > 0 ? depth : 100);
    out << "Simulated camera, transport layer " << device->transportLayerType() << '\n';
    for (const QString& name : device->nodeMapNames()) {
        const int count = printer.print(device->nodeMap(name), name);
        out << "  (" << count << " features shown)\n";
    }
    return 0;
}
