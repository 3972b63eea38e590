// Camera settings on a synthetic node map of 10 000 value features: how long a
// save takes (with selectors switched through their entries), the file
// written and read, a restore that finds everything already equal, and a
// restore after every value was changed, in which a block of features stays
// locked until a flag further down the node map is written: the number of
// passes each restore needed.

#include "benchmarkutil.h"
#include "parametervaluetestsupport.h"

#include "camerasettings/camerasettings.h"
#include "simulateddevice.h"
#include "syntheticnodemapgenerator.h"

#include "parameters/iparameter.h"
#include "parameters/parameterdata.h"

#include <QCoreApplication>
#include <QTextStream>

using namespace Simulation;
using namespace ParameterCollection;

namespace {

const QString prefix = QStringLiteral("@CameraDevice/");

} // namespace

int main(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    QTextStream out(stdout);

    SyntheticNodeMapGenerator::Options options;
    options.featureCount = 10000;
    options.depth = 3;
    options.fanOut = 10;
    options.polledCount = 0;
    const SyntheticNodeMapGenerator generator(options);
    DeviceDescription description = generator.generateDevice();
    NodeMapDescription& map = description.nodeMaps[0];

    // Selectors: every 500th enumeration selects the next five integers and
    // floats after it. A lock: the first 200 integers are writable only while
    // the last boolean of the node map is true.
    int selectors = 0, selected = 0;
    QString lastBoolean;
    for (const FeatureDescription& f : map.features)
        if (f.kind == FeatureKind::Boolean && f.writableWhen.isEmpty() && f.implementedWhen.isEmpty()
            && (f.access == GenApi::RW || f.access == GenApi::_UndefinedAccesMode))
            lastBoolean = f.name;
    int enumerations = 0, locked = 0;
    for (int i = 0; i < map.features.size(); ++i) {
        FeatureDescription& f = map.features[i];
        if (f.kind == FeatureKind::Integer && locked < 200 && f.name != lastBoolean && f.maximum.expression.isEmpty()) {
            f.writableWhen = lastBoolean;
            ++locked;
        }
        if (f.kind != FeatureKind::Enumeration || enumerations++ % 500 != 0)
            continue;
        ++selectors;
        int taken = 0;
        for (int j = i + 1; j < map.features.size() && taken < 5; ++j) {
            FeatureDescription& t = map.features[j];
            if ((t.kind == FeatureKind::Integer || t.kind == FeatureKind::Float) && t.selector.isEmpty()
                && t.writableWhen.isEmpty() && t.maximum.expression.isEmpty() && t.minimum.expression.isEmpty()) {
                t.selector = f.name;
                ++taken;
            }
        }
        selected += taken;
    }

    QString error;
    const QSharedPointer<SimulatedDevice> device = SimulatedDevice::fromDescription(description, QString(), &error);
    if (!device) {
        out << "the device description is refused: " << error << '\n';
        return 1;
    }
    const auto nodeMap = device->nodeMap(QStringLiteral("@CameraDevice"));
    nodeMap->getParameter(prefix + lastBoolean)->setValueFromString(QStringLiteral("true"));
    CameraSettings settings;
    settings.addParameterCollection(QStringLiteral("@CameraDevice"), nodeMap);

    CameraSettings::Document saved;
    const double saveMs = BenchmarkUtil::fastestMs(3, [&] { saved = settings.save(); });
    QByteArray json;
    const double writeMs = BenchmarkUtil::fastestMs(3, [&] { json = CameraSettings::toJson(saved); });
    CameraSettings::Document read;
    const double readMs = BenchmarkUtil::fastestMs(3, [&] { CameraSettings::fromJson(json, &read, &error); });
    int selectedValues = 0;
    for (const CameraSettings::Value& value : saved.values)
        selectedValues += value.selector.isEmpty() ? 0 : 1;

    out << options.featureCount << " value features, " << selectors << " selectors of " << selected << " features, "
        << locked << " features locked by " << lastBoolean << "\n";
    out << "save: " << saved.values.size() << " values (" << selectedValues << " under a selector entry) in "
        << QString::number(saveMs, 'f', 1) << " ms; file " << json.size() / 1024 << " KiB, written in "
        << QString::number(writeMs, 'f', 1) << " ms, read and checked in " << QString::number(readMs, 'f', 1)
        << " ms\n";

    CameraSettings::Report equal;
    const double equalMs = BenchmarkUtil::fastestMs(3, [&] { equal = settings.restore(read); });
    out << "restore, all already equal: " << QString::number(equalMs, 'f', 1) << " ms, " << equal.passes
        << " pass(es), " << equal.count(CameraSettings::AlreadyEqual) << " already equal\n";

    QList<CameraSettings::Difference> differences;
    const double compareMs = BenchmarkUtil::timeMs([&] { differences = settings.compare(read); });
    out << "compare, nothing changed: " << QString::number(compareMs, 'f', 1) << " ms, " << differences.size()
        << " differences\n";

    // Every value changed, then the lock closed.
    int changed = 0;
    for (const CameraSettings::Value& value : saved.values) {
        try {
            if (!value.selector.isEmpty())
                nodeMap->getParameter(prefix + value.selector)->setValueFromString(value.selectorEntry);
            const auto parameter = nodeMap->getParameter(value.fullName());
            const auto data = parameter->getParameterData();
            if (value.feature == lastBoolean || !data->writable)
                continue;
            const QString other = ValueTest::otherValue(data);
            if (other.isEmpty())
                continue;
            parameter->setValueFromString(other);
            ++changed;
        } catch (const std::exception&) {
        }
    }
    nodeMap->getParameter(prefix + lastBoolean)->setValueFromString(QStringLiteral("false"));
    const double compareChangedMs = BenchmarkUtil::timeMs([&] { differences = settings.compare(read); });
    CameraSettings::Report report;
    const double restoreMs = BenchmarkUtil::timeMs([&] { report = settings.restore(read); });
    out << "compare, " << changed << " values changed: " << QString::number(compareChangedMs, 'f', 1) << " ms, "
        << differences.size() << " differences\n";
    out << "restore after the change: " << QString::number(restoreMs, 'f', 1) << " ms, " << report.passes << " passes, "
        << report.count(CameraSettings::Written) << " written, " << report.count(CameraSettings::AlreadyEqual)
        << " already equal, " << report.count(CameraSettings::Refused) << " refused, "
        << report.count(CameraSettings::Locked) << " locked\n";
    const int left = settings.compare(read).size();
    out << "differences left after the restore: " << left << '\n';
    return left == 0 && report.isComplete() ? 0 : 1;
}
