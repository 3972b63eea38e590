// The shipped default simulated camera: it loads on every transport-layer
// type, its node maps form complete trees, it offers every kind and
// representation the library has to display, the names the shipped node map
// filters act on are there, and its main dependencies behave like a camera's.

#include "simulateddevice.h"

#include "parameters/genericexception.h"
#include "parameters/iadvancedparameteraccess.h"
#include "parameters/ibaseinfo.h"
#include "parameters/icommandparameter.h"
#include "parameters/iparameter.h"
#include "parameters/iparametercollection.h"
#include "parameters/parameterdata.h"

#include <QFile>
#include <QMap>
#include <QSet>
#include <QXmlStreamReader>
#include <QtTest>

using namespace ParameterCollection;
using Simulation::SimulatedDevice;

namespace {

const char* const kNodeMaps[]
    = { "@CameraDevice", "@DeviceTransportLayer", "@StreamGrabber0", "@EventGrabber", "@ImageFormatConverter" };

const char* const kTransportTypes[] = { "GEV", "U3V", "IIDC", "CamEmu", "ZCON" };

const char* const kFilterPrefix = ":/zarvexviewercomponents/Resources/";

// What a walk over one node map's tree found.
struct TreeSummary
{
    int features = 0; //!< every node reached from Root, Root included
    int maxCategoryDepth = 0; //!< Root is depth 0
    int emptyCategories = 0;
    QSet<int> kinds;
    QSet<QString> integerRepresentations;
    QSet<int> visibilities;
    QSet<int> accessModes;
    QSet<qint64> floatPrecisions;
    int floatsWithIncrement = 0;
    int floatsWithoutIncrement = 0;
    int enumerationsWithDisplayNames = 0; //!< some display text differs from its symbolic value
    int withDisplayName = 0;
    int withDescription = 0;
    int withTooltip = 0;
    int withDocuUrl = 0;
    QSet<QString> units;
};

QSharedPointer<IParameterCollection> collection(const QSharedPointer<SimulatedDevice>& device, const char* name)
{
    return device->nodeMap(QLatin1String(name));
}

// Walks the tree below "<map>/Root" as the feature tree does. Every child has
// to resolve to a live parameter of a known kind whose snapshot agrees with it.
bool walkTree(const QSharedPointer<IParameterCollection>& map, const QString& mapName, TreeSummary* summary)
{
    struct Item
    {
        QString name;
        int depth;
    };
    QVector<Item> pending { { mapName + QStringLiteral("/Root"), 0 } };
    QSet<QString> seen;
    while (!pending.isEmpty()) {
        const Item item = pending.takeFirst();
        if (seen.contains(item.name)) {
            qWarning("%s is reached twice", qPrintable(item.name));
            return false;
        }
        seen.insert(item.name);
        if (!map->hasParameter(item.name)) {
            qWarning("%s is listed but not held", qPrintable(item.name));
            return false;
        }
        const QSharedPointer<IParameter> parameter = map->getParameter(item.name);
        if (!parameter || parameter->isZombie()) {
            qWarning("%s does not resolve to a live parameter", qPrintable(item.name));
            return false;
        }
        if (parameter->getFullName() != item.name) {
            qWarning("%s reports the full name %s", qPrintable(item.name), qPrintable(parameter->getFullName()));
            return false;
        }
        const int type = parameter->getType();
        if (type < TypeInteger || type > TypeCategory) {
            qWarning("%s has the unknown kind %d", qPrintable(item.name), type);
            return false;
        }
        const QSharedPointer<const ParameterData> data = parameter->getParameterData();
        if (!data || data->type != type || data->isPlaceholder) {
            qWarning("%s has no proper snapshot", qPrintable(item.name));
            return false;
        }
        ++summary->features;
        summary->kinds.insert(type);
        summary->visibilities.insert(data->visibility);
        summary->accessModes.insert(data->accessMode());

        if (const QSharedPointer<IAdvancedParameterAccess> access = parameter->advancedAccess()) {
            summary->withDisplayName += access->getProperty(QStringLiteral("DisplayName")).isEmpty() ? 0 : 1;
            summary->withDescription += access->getProperty(QStringLiteral("Description")).isEmpty() ? 0 : 1;
            summary->withTooltip += access->getProperty(QStringLiteral("Tooltip")).isEmpty() ? 0 : 1;
            summary->withDocuUrl += access->getProperty(QStringLiteral("DocuURL")).isEmpty() ? 0 : 1;
            const QString unit = access->getProperty(QStringLiteral("Unit"));
            if (!unit.isEmpty())
                summary->units.insert(unit);
        }

        switch (type) {
        case TypeInteger:
            summary->integerRepresentations.insert(static_cast<const IntegerParameterData&>(*data).representation);
            break;
        case TypeFloat: {
            const auto& f = static_cast<const FloatParameterData&>(*data);
            summary->floatPrecisions.insert(f.precision);
            if (f.hasIncrement)
                ++summary->floatsWithIncrement;
            else
                ++summary->floatsWithoutIncrement;
            break;
        }
        case TypeEnumeration: {
            const auto& e = static_cast<const EnumParameterData&>(*data);
            if (e.symbolicValues.isEmpty() || e.symbolicValues.size() != e.displayTexts.size()) {
                qWarning("%s has no proper entries", qPrintable(item.name));
                return false;
            }
            if (e.displayTexts != e.symbolicValues)
                ++summary->enumerationsWithDisplayNames;
            break;
        }
        case TypeCategory: {
            summary->maxCategoryDepth = qMax(summary->maxCategoryDepth, item.depth);
            const QList<QString> children = map->getChildNames(item.name, false, true);
            if (children.isEmpty())
                ++summary->emptyCategories;
            for (const QString& child : children)
                pending.append({ child, item.depth + 1 });
            break;
        }
        default:
            break;
        }
    }
    return true;
}

// The filter file the library picks for a transport type and node map: the
// first one of "<type>_<stem>_Filter.xml", "<stem>_Filter.xml" and
// "Default_Filter.xml" that the library's resources hold.
QString filterFileFor(const QString& tlType, const QString& nodeMapName)
{
    QString stem = nodeMapName;
    while (stem.startsWith(QLatin1Char('@')))
        stem.remove(0, 1);
    while (!stem.isEmpty() && stem.at(stem.size() - 1).isDigit())
        stem.chop(1);
    if (!stem.isEmpty())
        stem += QLatin1Char('_');
    QStringList candidates { tlType + QLatin1Char('_') + stem + QStringLiteral("Filter.xml") };
    if (!stem.isEmpty())
        candidates << stem + QStringLiteral("Filter.xml");
    candidates << QStringLiteral("Default_Filter.xml");
    for (const QString& candidate : qAsConst(candidates)) {
        if (QFile::exists(QLatin1String(kFilterPrefix) + candidate))
            return candidate;
    }
    return QString();
}

// The feature names a filter file lists, in its order.
QStringList namesInFilter(const QString& fileName, QString* error)
{
    QFile file(QLatin1String(kFilterPrefix) + fileName);
    if (!file.open(QIODevice::ReadOnly)) {
        *error = QStringLiteral("cannot open ") + file.fileName();
        return {};
    }
    QStringList names;
    QXmlStreamReader xml(&file);
    int depth = 0;
    bool haveName = false;
    while (!xml.atEnd()) {
        xml.readNext();
        if (xml.isStartElement()) {
            ++depth;
            if (depth == 2)
                haveName = false;
            if (depth >= 3 && !haveName && xml.name() == QLatin1String("Name")) {
                names << xml.readElementText().trimmed();
                haveName = true;
                --depth;
            }
        } else if (xml.isEndElement()) {
            --depth;
        }
    }
    if (xml.hasError())
        *error = fileName + QStringLiteral(": ") + xml.errorString();
    return names;
}

QSharedPointer<const ParameterData> snapshotOf(const QSharedPointer<IParameterCollection>& map, const QString& name)
{
    const QSharedPointer<IParameter> parameter = map->getParameter(name);
    return parameter ? parameter->getParameterData() : QSharedPointer<const ParameterData>();
}

qint64 integerMaximum(const QSharedPointer<IParameterCollection>& map, const QString& name)
{
    const auto data = snapshotOf(map, name);
    return data && data->type == TypeInteger ? static_cast<const IntegerParameterData&>(*data).maximum : -1;
}

QString valueText(const QSharedPointer<IParameterCollection>& map, const QString& name)
{
    const auto data = snapshotOf(map, name);
    return data ? data->valueText : QString();
}

void write(const QSharedPointer<IParameterCollection>& map, const QString& name, const QString& value)
{
    map->getParameter(name)->setValueFromString(value);
}

} // namespace

class tst_DefaultCamera : public QObject
{
    Q_OBJECT

private:
    void addTransportRows()
    {
        QTest::addColumn<QString>("tlType");
        for (const char* tl : kTransportTypes)
            QTest::newRow(tl) << QString::fromLatin1(tl);
    }

    QSharedPointer<SimulatedDevice> load(const QString& tlType)
    {
        QSharedPointer<SimulatedDevice> device = SimulatedDevice::createDefault(tlType);
        if (!device)
            qWarning("the default camera did not load for %s", qPrintable(tlType));
        return device;
    }

private slots:
    void loadsWithFiveNodeMaps_data() { addTransportRows(); }
    void loadsWithFiveNodeMaps()
    {
        QFETCH(QString, tlType);
        const QSharedPointer<SimulatedDevice> device = load(tlType);
        QVERIFY(device);
        QCOMPARE(device->transportLayerType(), tlType);
        QVERIFY(device->baseInfo());
        QCOMPARE(device->baseInfo()->getTLType(), tlType);
        for (const char* name : kNodeMaps) {
            QVERIFY2(device->nodeMapNames().contains(QLatin1String(name)), name);
            QVERIFY2(collection(device, name), name);
            QVERIFY2(collection(device, name)->hasParameter(QLatin1String(name) + QStringLiteral("/Root")), name);
        }
    }

    // The file in the source tree is the one compiled into the library.
    void sourceFileLoads()
    {
        const QString path = QFINDTESTDATA("../simulation/devices/default-camera.json");
        QVERIFY(!path.isEmpty());
        QString error;
        const QSharedPointer<SimulatedDevice> device = SimulatedDevice::fromFile(path, &error, QStringLiteral("U3V"));
        QVERIFY2(device, qPrintable(error));
        QFile source(path);
        QFile compiled(QStringLiteral(":/simulation/devices/default-camera.json"));
        QVERIFY(source.open(QIODevice::ReadOnly));
        QVERIFY(compiled.open(QIODevice::ReadOnly));
        QCOMPARE(compiled.readAll(), source.readAll());
    }

    void treesAreComplete_data() { addTransportRows(); }
    void treesAreComplete()
    {
        QFETCH(QString, tlType);
        const QSharedPointer<SimulatedDevice> device = load(tlType);
        QVERIFY(device);
        int total = 0;
        for (const char* name : kNodeMaps) {
            TreeSummary summary;
            QVERIFY2(walkTree(collection(device, name), QLatin1String(name), &summary), name);
            qInfo("%-6s %-22s %4d features, categories %d deep", qPrintable(tlType), name, summary.features,
                summary.maxCategoryDepth);
            total += summary.features;
            QVERIFY2(summary.features >= 12, name);
        }
        qInfo("%-6s %-22s %4d features", qPrintable(tlType), "all node maps", total);

        TreeSummary camera;
        QVERIFY(walkTree(collection(device, "@CameraDevice"), QStringLiteral("@CameraDevice"), &camera));
        QVERIFY2(camera.features >= 300, qPrintable(QString::number(camera.features)));
        QVERIFY(camera.maxCategoryDepth >= 3);
        QVERIFY(camera.emptyCategories >= 1);
    }

    void offersEveryKindAndRepresentation_data() { addTransportRows(); }
    void offersEveryKindAndRepresentation()
    {
        QFETCH(QString, tlType);
        const QSharedPointer<SimulatedDevice> device = load(tlType);
        QVERIFY(device);
        TreeSummary all;
        for (const char* name : kNodeMaps)
            QVERIFY2(walkTree(collection(device, name), QLatin1String(name), &all), name);

        for (int kind = TypeInteger; kind <= TypeCategory; ++kind)
            QVERIFY2(all.kinds.contains(kind), qPrintable(QString::number(kind)));

        QStringList representations { QStringLiteral("Linear"), QStringLiteral("Logarithmic"),
            QStringLiteral("Boolean"), QStringLiteral("PureNumber"), QStringLiteral("HexNumber") };
        // Network addresses exist on a GigE Vision camera only.
        if (tlType == QLatin1String("GEV"))
            representations << QStringLiteral("IPV4Address") << QStringLiteral("MACAddress");
        for (const QString& representation : qAsConst(representations))
            QVERIFY2(all.integerRepresentations.contains(representation), qPrintable(representation));

        for (int visibility : { GenApi::Beginner, GenApi::Expert, GenApi::Guru, GenApi::Invisible })
            QVERIFY2(all.visibilities.contains(visibility), qPrintable(QString::number(visibility)));
        QList<int> accessModes { GenApi::NI, GenApi::NA, GenApi::RO, GenApi::RW };
        if (tlType == QLatin1String("GEV"))
            accessModes << GenApi::WO;
        for (int access : qAsConst(accessModes))
            QVERIFY2(all.accessModes.contains(access), qPrintable(QString::number(access)));

        QVERIFY(all.floatsWithIncrement > 0);
        QVERIFY(all.floatsWithoutIncrement > 0);
        QVERIFY(all.floatPrecisions.size() >= 4);
        QVERIFY(all.enumerationsWithDisplayNames > 0);
        QVERIFY(all.units.size() >= 8);
        QVERIFY(all.withDisplayName > 300);
        QVERIFY(all.withDescription > 300);
        QVERIFY(all.withTooltip >= 10);
        QVERIFY(all.withDocuUrl >= 50);

        // A Float shown on a logarithmic slider, with an integer alias.
        const auto camera = collection(device, "@CameraDevice");
        const auto exposure = camera->getParameter(QStringLiteral("@CameraDevice/ExposureTime"));
        QVERIFY(exposure && !exposure->isZombie());
        QCOMPARE(exposure->getType(), int(TypeFloat));
        QCOMPARE(
            exposure->advancedAccess()->getProperty(QStringLiteral("Representation")), QStringLiteral("Logarithmic"));
        QCOMPARE(exposure->advancedAccess()->getProperty(QStringLiteral("Unit")), QStringLiteral("us"));
        const auto alias = camera->getParameter(QStringLiteral("@CameraDevice/ExposureTime/Alias"));
        QVERIFY(alias && !alias->isZombie());
        QCOMPARE(alias->getType(), int(TypeInteger));
    }

    void zombies_data() { addTransportRows(); }
    void zombies()
    {
        QFETCH(QString, tlType);
        const QSharedPointer<SimulatedDevice> device = load(tlType);
        QVERIFY(device);
        const auto camera = collection(device, "@CameraDevice");
        const auto described = camera->getParameter(QStringLiteral("SequenceEnable"));
        QVERIFY(described);
        QVERIFY(described->isZombie());
        QVERIFY(described->isImposable());
        const auto unknown = camera->getParameter(QStringLiteral("NoSuchFeature"));
        if (unknown) {
            QVERIFY(unknown->isZombie());
            QVERIFY(!unknown->isImposable());
        }
    }

    // Every name in the filter that applies to a node map is a live feature
    // of it, so that each filter item has something to act on. The only
    // exceptions are the GigE Vision features of Default_Filter.xml, which a
    // camera on another transport layer doesn't have.
    void filteredNamesExist_data()
    {
        QTest::addColumn<QString>("tlType");
        QTest::addColumn<QString>("nodeMap");
        for (const char* tl : kTransportTypes) {
            for (const char* map : kNodeMaps) {
                // Default_Filter.xml is written for the camera's own node map; on
                // the others it finds nothing to act on, as intended.
                const QString file = filterFileFor(QLatin1String(tl), QLatin1String(map));
                if (file == QLatin1String("Default_Filter.xml") && qstrcmp(map, "@CameraDevice") != 0)
                    continue;
                QTest::addRow("%s %s", tl, map) << QString::fromLatin1(tl) << QString::fromLatin1(map);
            }
        }
    }
    void filteredNamesExist()
    {
        QFETCH(QString, tlType);
        QFETCH(QString, nodeMap);
        const QString file = filterFileFor(tlType, nodeMap);
        QVERIFY2(!file.isEmpty(), "the library's filter resources are missing");
        QString error;
        const QStringList names = namesInFilter(file, &error);
        QVERIFY2(error.isEmpty(), qPrintable(error));
        QVERIFY(!names.isEmpty());

        const QSharedPointer<SimulatedDevice> device = load(tlType);
        QVERIFY(device);
        const QSharedPointer<IParameterCollection> map = device->nodeMap(nodeMap);
        QVERIFY(map);
        QStringList missing;
        for (const QString& name : names) {
            if (tlType != QLatin1String("GEV") && name.startsWith(QLatin1String("Gev")))
                continue;
            const QSharedPointer<IParameter> parameter = map->getParameter(name);
            if (!parameter || parameter->isZombie())
                missing << name;
        }
        QVERIFY2(missing.isEmpty(), qPrintable(file + QStringLiteral(" names what is missing: ") + missing.join(' ')));
    }

    void roiFollowsOffsets()
    {
        const QSharedPointer<SimulatedDevice> device = load(QStringLiteral("GEV"));
        QVERIFY(device);
        const auto camera = collection(device, "@CameraDevice");
        const QString width = QStringLiteral("@CameraDevice/Width");
        const QString offsetX = QStringLiteral("@CameraDevice/OffsetX");
        const QString height = QStringLiteral("Height");
        const QString offsetY = QStringLiteral("OffsetY");
        QCOMPARE(integerMaximum(camera, width), qint64(1920));
        QCOMPARE(integerMaximum(camera, offsetX), qint64(0));

        write(camera, width, QStringLiteral("1280"));
        QCOMPARE(integerMaximum(camera, offsetX), qint64(640));
        write(camera, offsetX, QStringLiteral("64"));
        QCOMPARE(valueText(camera, offsetX), QStringLiteral("64"));
        QCOMPARE(integerMaximum(camera, width), qint64(1856));
        QCOMPARE(integerMaximum(camera, offsetX), qint64(640));

        write(camera, height, QStringLiteral("600"));
        write(camera, offsetY, QStringLiteral("100"));
        QCOMPARE(integerMaximum(camera, height), qint64(1100));
        QCOMPARE(integerMaximum(camera, offsetY), qint64(600));

        // A width past the new maximum is refused.
        QVERIFY_EXCEPTION_THROWN(write(camera, width, QStringLiteral("1920")), GenICam::GenericException);

        // Binning halves the sensor as the region of interest sees it.
        write(camera, width, QStringLiteral("640"));
        write(camera, offsetX, QStringLiteral("0"));
        write(camera, QStringLiteral("BinningHorizontal"), QStringLiteral("2"));
        QCOMPARE(integerMaximum(camera, width), qint64(960));
        QCOMPARE(integerMaximum(camera, offsetX), qint64(320));

        // The centring switches make the offsets read-only.
        QVERIFY(camera->getParameter(offsetX)->isWritable());
        write(camera, QStringLiteral("CenterX"), QStringLiteral("true"));
        QVERIFY(!camera->getParameter(offsetX)->isWritable());
    }

    void exposureIsReadOnlyUnderAutoExposure_data() { addTransportRows(); }
    void exposureIsReadOnlyUnderAutoExposure()
    {
        QFETCH(QString, tlType);
        const QSharedPointer<SimulatedDevice> device = load(tlType);
        QVERIFY(device);
        const auto camera = collection(device, "@CameraDevice");
        const auto exposure = camera->getParameter(QStringLiteral("ExposureTime"));
        const auto alias = camera->getParameter(QStringLiteral("ExposureTime/Alias"));
        QVERIFY(exposure->isWritable());
        QVERIFY(alias->isWritable());
        write(camera, QStringLiteral("ExposureTime"), QStringLiteral("12000.0"));
        QCOMPARE(valueText(camera, QStringLiteral("ExposureTime/Alias")), QStringLiteral("12000"));

        write(camera, QStringLiteral("ExposureAuto"), QStringLiteral("Continuous"));
        QVERIFY(!exposure->isWritable());
        QVERIFY(!alias->isWritable());
        const auto data = exposure->getParameterData();
        QVERIFY(data->readable);
        QVERIFY(!data->writable);
        QCOMPARE(data->accessMode(), GenApi::RO);
        QVERIFY_EXCEPTION_THROWN(
            write(camera, QStringLiteral("ExposureTime"), QStringLiteral("8000.0")), GenICam::GenericException);

        write(camera, QStringLiteral("ExposureAuto"), QStringLiteral("Off"));
        QVERIFY(exposure->isWritable());

        // Gain likewise under GainAuto, the balance ratios under BalanceWhiteAuto.
        write(camera, QStringLiteral("GainAuto"), QStringLiteral("Once"));
        QVERIFY(!camera->getParameter(QStringLiteral("Gain"))->isWritable());
        write(camera, QStringLiteral("BalanceWhiteAuto"), QStringLiteral("Continuous"));
        QVERIFY(!camera->getParameter(QStringLiteral("BalanceRatio"))->isWritable());
    }

    void selectedFeaturesFollowTheirSelector()
    {
        const QSharedPointer<SimulatedDevice> device = load(QStringLiteral("U3V"));
        QVERIFY(device);
        const auto camera = collection(device, "@CameraDevice");

        QCOMPARE(valueText(camera, QStringLiteral("GainSelector")), QStringLiteral("All"));
        const QString all = valueText(camera, QStringLiteral("Gain"));
        write(camera, QStringLiteral("GainSelector"), QStringLiteral("AnalogAll"));
        const QString analog = valueText(camera, QStringLiteral("Gain"));
        QVERIFY2(analog != all, qPrintable(analog));
        write(camera, QStringLiteral("Gain"), QStringLiteral("6.5"));
        write(camera, QStringLiteral("GainSelector"), QStringLiteral("All"));
        QCOMPARE(valueText(camera, QStringLiteral("Gain")), all);
        write(camera, QStringLiteral("GainSelector"), QStringLiteral("AnalogAll"));
        QCOMPARE(valueText(camera, QStringLiteral("Gain")), QStringLiteral("6.50"));
        write(camera, QStringLiteral("GainSelector"), QStringLiteral("DigitalAll"));
        const auto digital = snapshotOf(camera, QStringLiteral("Gain"));
        QCOMPARE(static_cast<const FloatParameterData&>(*digital).maximum, 12.0);

        // One trigger switched on leaves the others off.
        write(camera, QStringLiteral("TriggerSelector"), QStringLiteral("FrameStart"));
        write(camera, QStringLiteral("TriggerMode"), QStringLiteral("On"));
        QCOMPARE(valueText(camera, QStringLiteral("TriggerSource")), QStringLiteral("Software"));
        QVERIFY(camera->getParameter(QStringLiteral("TriggerSoftware"))->isWritable());
        write(camera, QStringLiteral("TriggerSelector"), QStringLiteral("AcquisitionStart"));
        QCOMPARE(valueText(camera, QStringLiteral("TriggerMode")), QStringLiteral("Off"));
        QVERIFY(!camera->getParameter(QStringLiteral("TriggerSoftware"))->isWritable());
        write(camera, QStringLiteral("TriggerSelector"), QStringLiteral("FrameStart"));
        QCOMPARE(valueText(camera, QStringLiteral("TriggerMode")), QStringLiteral("On"));

        // Only the GPIO lines change direction; outputs take a source.
        write(camera, QStringLiteral("LineSelector"), QStringLiteral("Line1"));
        QCOMPARE(valueText(camera, QStringLiteral("LineMode")), QStringLiteral("Output"));
        QVERIFY(!camera->getParameter(QStringLiteral("LineMode"))->isWritable());
        QVERIFY(camera->getParameter(QStringLiteral("LineSource"))->isWritable());
        write(camera, QStringLiteral("LineSelector"), QStringLiteral("Line2"));
        QVERIFY(camera->getParameter(QStringLiteral("LineMode"))->isWritable());
        QVERIFY(!camera->getParameter(QStringLiteral("LineSource"))->isWritable());

        // Entries that exist only with the legacy switch.
        const auto before = snapshotOf(camera, QStringLiteral("PixelFormat"));
        QVERIFY(
            !static_cast<const EnumParameterData&>(*before).symbolicValues.contains(QStringLiteral("Mono12Packed")));
        write(camera, QStringLiteral("PixelFormatLegacy"), QStringLiteral("1"));
        const auto after = snapshotOf(camera, QStringLiteral("PixelFormat"));
        QVERIFY(static_cast<const EnumParameterData&>(*after).symbolicValues.contains(QStringLiteral("Mono12Packed")));
    }

    // Features computed from others follow them.
    void computedValuesFollowTheirInputs()
    {
        const QSharedPointer<SimulatedDevice> device = load(QStringLiteral("GEV"));
        QVERIFY(device);
        const auto camera = collection(device, "@CameraDevice");
        QCOMPARE(valueText(camera, QStringLiteral("PixelFormat")), QStringLiteral("BayerRG8"));
        QCOMPARE(valueText(camera, QStringLiteral("PayloadSize")), QStringLiteral("2304000"));
        // 2304000 bytes a frame at 150 MB/s: the link, not the sensor, limits the rate.
        QCOMPARE(valueText(camera, QStringLiteral("ResultingFrameRate")), QStringLiteral("65.10"));
        QCOMPARE(valueText(camera, QStringLiteral("DeviceLinkCurrentThroughput")), QStringLiteral("150000000"));
        write(camera, QStringLiteral("Width"), QStringLiteral("640"));
        // PayloadSize is a formula of Width, Height and PixelFormat: it follows them,
        // and the frame rate follows PayloadSize, until the sensor's readout limits it.
        QCOMPARE(valueText(camera, QStringLiteral("PayloadSize")), QStringLiteral("768000"));
        QCOMPARE(valueText(camera, QStringLiteral("ResultingFrameRate")), QStringLiteral("163.40"));
        write(camera, QStringLiteral("PixelFormat"), QStringLiteral("RGB8"));
        QCOMPARE(valueText(camera, QStringLiteral("PayloadSize")), QStringLiteral("2304000"));
        QCOMPARE(valueText(camera, QStringLiteral("PixelDynamicRangeMax")), QStringLiteral("255"));
        write(camera, QStringLiteral("PixelFormat"), QStringLiteral("Mono12"));
        QCOMPARE(valueText(camera, QStringLiteral("PixelDynamicRangeMax")), QStringLiteral("4095"));

        // Readout of 1200 lines limits the frame rate until the exposure is longer.
        QCOMPARE(valueText(camera, QStringLiteral("SensorReadoutTime")), QStringLiteral("6120.0"));
        write(camera, QStringLiteral("ExposureTime"), QStringLiteral("20000.0"));
        QCOMPARE(valueText(camera, QStringLiteral("ResultingFrameRate")), QStringLiteral("50.00"));
        write(camera, QStringLiteral("AcquisitionFrameRateEnable"), QStringLiteral("true"));
        write(camera, QStringLiteral("AcquisitionFrameRate"), QStringLiteral("25"));
        QCOMPARE(valueText(camera, QStringLiteral("ResultingFrameRate")), QStringLiteral("25.00"));

        write(camera, QStringLiteral("BinningHorizontal"), QStringLiteral("2"));
        QCOMPARE(valueText(camera, QStringLiteral("WidthMax")), QStringLiteral("960"));
    }

    void pollingMovesLiveValues_data() { addTransportRows(); }
    void pollingMovesLiveValues()
    {
        QFETCH(QString, tlType);
        const QSharedPointer<SimulatedDevice> device = load(tlType);
        QVERIFY(device);
        const auto camera = collection(device, "@CameraDevice");
        const QStringList live { QStringLiteral("DeviceTemperature"), QStringLiteral("Timestamp"),
            QStringLiteral("LineStatusAll"), QStringLiteral("LineStatus") };
        QMap<QString, QString> before;
        for (const QString& name : live)
            before.insert(name, valueText(camera, name));
        const QString frames = valueText(camera, QStringLiteral("AcquisitionFrameCounter"));

        camera->poll(300);
        for (const QString& name : live)
            QVERIFY2(valueText(camera, name) != before.value(name), qPrintable(name));
        // No frames while the camera doesn't acquire.
        QCOMPARE(valueText(camera, QStringLiteral("AcquisitionFrameCounter")), frames);

        const auto start = camera->getParameter(QStringLiteral("AcquisitionStart")).dynamicCast<ICommandParameter>();
        QVERIFY(start);
        start->execute(false);
        QCOMPARE(valueText(camera, QStringLiteral("AcquisitionStatus")), QStringLiteral("1"));
        camera->poll(1000);
        const qint64 counted = valueText(camera, QStringLiteral("AcquisitionFrameCounter")).toLongLong();
        const double rate = valueText(camera, QStringLiteral("ResultingFrameRate")).toDouble();
        QVERIFY2(counted > 0 && qAbs(counted - rate) <= 1.0, qPrintable(QString::number(counted)));

        // The timestamp latch copies the running clock.
        camera->getParameter(QStringLiteral("TimestampLatch")).dynamicCast<ICommandParameter>()->execute(false);
        QCOMPARE(
            valueText(camera, QStringLiteral("TimestampLatchValue")), valueText(camera, QStringLiteral("Timestamp")));

        // The stream grabber counts buffers on its own.
        const auto stream = collection(device, "@StreamGrabber0");
        const QString buffers = valueText(stream, QStringLiteral("Statistic_Total_Buffer_Count"));
        stream->poll(1000);
        QVERIFY(valueText(stream, QStringLiteral("Statistic_Total_Buffer_Count")) != buffers);
    }
};

QTEST_GUILESS_MAIN(tst_DefaultCamera)
#include "tst_defaultcamera.moc"
