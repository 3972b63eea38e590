// How long the simulated camera takes to come into being: the synthetic
// generator, a device built from its description, and the shipped default
// camera loaded from JSON.

#include "benchmarkutil.h"

#include "simulateddevice.h"
#include "syntheticnodemapgenerator.h"

#include <QCoreApplication>
#include <QTextStream>

using namespace Simulation;

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
    }

    for (const char* tl : { "GEV", "U3V" }) {
        QSharedPointer<SimulatedDevice> camera;
        const double ms = BenchmarkUtil::fastestMs(5, [&] { camera = SimulatedDevice::createDefault(tl); });
        out << "default camera (" << tl << ") from JSON: " << QString::number(ms, 'f', 1) << " ms\n";
    }
    return 0;
}
