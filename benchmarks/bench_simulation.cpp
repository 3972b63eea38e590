// How long the simulated camera takes to come into being: the synthetic
// generator, a device built from its description, and the shipped default
// camera loaded from JSON. Then what a tree asks of it for every feature: a
// look-up by full name once the parameter exists, a snapshot, the properties
// an item reads, and the children of every category.

#include "benchmarkutil.h"

#include "simulateddevice.h"
#include "syntheticnodemapgenerator.h"

#include "parameters/iadvancedparameteraccess.h"

#include <QCoreApplication>
#include <QTextStream>

using namespace Simulation;

namespace {

// Every feature as a tree reaches it: the children of each category, a
// look-up by full name, a snapshot, and the five properties an item reads.
// The parameters are held, as a tree holds them, so a look-up finds the
// object and a snapshot has one taken before it; the fastest of three rounds.
void treeReads(QTextStream& out, const DeviceDescription& description, int categories)
{
    const QSharedPointer<SimulatedDevice> device = SimulatedDevice::fromDescription(description);
    const auto nodeMap = device->nodeMap(QStringLiteral("@CameraDevice"));
    QStringList fullNames;
    const double childrenMs = BenchmarkUtil::fastestMs(
        3, [&] { fullNames = nodeMap->getChildNames(QStringLiteral("@CameraDevice/Root"), true, true); });
    QVector<QSharedPointer<ParameterCollection::IParameter>> parameters;
    for (const QString& name : qAsConst(fullNames))
        parameters.append(nodeMap->getParameter(name));
    const double lookUpMs = BenchmarkUtil::fastestMs(3, [&] {
        for (const QString& name : qAsConst(fullNames))
            nodeMap->getParameter(name);
    });
    const double snapshotMs = BenchmarkUtil::fastestMs(3, [&] {
        for (const auto& parameter : qAsConst(parameters))
            parameter->getParameterData();
    });
    const QStringList keys = { QStringLiteral("Unit"), QStringLiteral("Description"), QStringLiteral("Tooltip"),
        QStringLiteral("DocuURL"), QStringLiteral("DisplayName") };
    const double propertiesMs = BenchmarkUtil::fastestMs(3, [&] {
        for (const auto& parameter : qAsConst(parameters)) {
            const auto access = parameter->advancedAccess();
            for (const QString& key : keys)
                access->getProperty(key, QString());
        }
    });
    out << fullNames.size() << " features in " << categories << " categories, each once [ms]: children, recursively "
        << QString::number(childrenMs, 'f', 1) << "; look-up of a held parameter " << QString::number(lookUpMs, 'f', 1)
        << "; snapshot " << QString::number(snapshotMs, 'f', 1) << "; five properties "
        << QString::number(propertiesMs, 'f', 1) << '\n';
}

} // namespace

int main(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    QTextStream out(stdout);
    out << "features  categories  generate [ms]  build device [ms]  first look-up of every feature [ms]\n";
    for (int count : { 1000, 10000, 100000 }) {
        SyntheticNodeMapGenerator::Options options;
        options.featureCount = count;
        options.depth = 3;
        options.fanOut = 10;
        const SyntheticNodeMapGenerator generator(options);
        DeviceDescription description;
        const double generateMs = BenchmarkUtil::fastestMs(3, [&] { description = generator.generateDevice(); });
        QSharedPointer<SimulatedDevice> device;
        const double buildMs = BenchmarkUtil::fastestMs(3, [&] {
            device.reset();
            device = SimulatedDevice::fromDescription(description);
        });
        const auto nodeMap = device->nodeMap(QStringLiteral("@CameraDevice"));
        const double lookUpMs = BenchmarkUtil::timeMs([&] {
            for (int i = 0; i < count; ++i)
                nodeMap->getParameter(SyntheticNodeMapGenerator::featureName(i));
        });
        out << qSetFieldWidth(8) << count << qSetFieldWidth(12) << generator.categoryCount() << qSetFieldWidth(15)
            << QString::number(generateMs, 'f', 1) << qSetFieldWidth(19) << QString::number(buildMs, 'f', 1)
            << qSetFieldWidth(37) << QString::number(lookUpMs, 'f', 1) << qSetFieldWidth(0) << '\n';
        if (count == 100000)
            treeReads(out, description, generator.categoryCount());
    }

    for (const char* tl : { "GEV", "U3V" }) {
        QSharedPointer<SimulatedDevice> camera;
        const double ms = BenchmarkUtil::fastestMs(5, [&] { camera = SimulatedDevice::createDefault(tl); });
        out << "default camera (" << tl << ") from JSON: " << QString::number(ms, 'f', 1) << " ms\n";
    }
    return 0;
}
