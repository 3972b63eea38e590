// The parameter contract over Aravis, on a vendor-style GenICam document of
// our own loaded into the in-memory sparse device: every kind, document
// order, selectors, pAlias, formulas, change signals after writes, imposed
// properties, zombies, Aravis errors and a device that goes away.

#include "arvglib.h"

#include "aravisdevice.h"

#include "aravisnodemap.h"
#include "camerasettings/camerasettings.h"
#include "sparsememorydevice.h"

#include "featuretreetestsupport.h"

#include "parameters/genericexception.h"
#include "parameters/iadvancedparameteraccess.h"
#include "parameters/ibooleanparameter.h"
#include "parameters/icommandparameter.h"
#include "parameters/ienumparameter.h"
#include "parameters/ifloatparameter.h"
#include "parameters/iintegerparameter.h"
#include "parameters/invalidargumentexception.h"

#include <QtTest>

using namespace ParameterCollection;
using Aravis::AravisDevice;

namespace {

using Snapshot = QSharedPointer<const ParameterData>;

QByteArray vendorXml()
{
    QFile file(QStringLiteral(ZVC_ARAVIS_TEST_DATA "/zx-vendor-camera.xml"));
    if (!file.open(QIODevice::ReadOnly))
        return QByteArray();
    return file.readAll();
}

void writeRegister(ArvDevice* device, guint64 address, guint32 value)
{
    const guint32 raw = GUINT32_TO_BE(value);
    QVERIFY(arv_device_write_memory(device, address, sizeof raw, const_cast<guint32*>(&raw), nullptr));
}

void writeDouble(ArvDevice* device, guint64 address, double value)
{
    guint64 bits = 0;
    memcpy(&bits, &value, sizeof bits);
    bits = GUINT64_TO_BE(bits);
    QVERIFY(arv_device_write_memory(device, address, sizeof bits, &bits, nullptr));
}

//! The vendor camera with the registers a powered-up camera would hold.
QSharedPointer<AravisDevice> vendorCamera()
{
    QString error;
    QSharedPointer<AravisDevice> device = AravisDevice::fromGenICamXml(vendorXml(), &error);
    if (!device) {
        qWarning("vendor camera refused: %s", qPrintable(error));
        return device;
    }
    ArvDevice* arv = device->arvDevice();
    const char vendor[] = "Zarvex";
    arv_device_write_memory(arv, 0x20000, sizeof vendor, const_cast<char*>(vendor), nullptr);
    writeRegister(arv, 0x20080, 650); // 25.0 C
    writeRegister(arv, 0x20100, 0xC0A8010A); // 192.168.1.10
    writeRegister(arv, 0x1A0000, 640); // Width
    writeRegister(arv, 0x1A0010, 17301505); // Mono8
    writeRegister(arv, 0x2B0100, 120); // GainRaw, All
    writeRegister(arv, 0x2B0104, 60); // GainRaw, Red
    writeRegister(arv, 0x2B0108, 30); // GainRaw, Blue
    writeDouble(arv, 0x2B0200, 12.5); // BlackLevel
    writeDouble(arv, 0x3C0000, 10000.0); // ExposureTime
    return device;
}

template <class Data> QSharedPointer<const Data> snapshotOf(IParameterCollection& map, const QString& name)
{
    const QSharedPointer<IParameter> parameter = map.getParameter(name);
    return parameter ? parameter->getParameterData().dynamicCast<const Data>() : QSharedPointer<const Data>();
}

QSignalSpy* spyOn(const QSharedPointer<IParameter>& parameter)
{
    return new QSignalSpy(parameter.data(),
        SIGNAL(parameterDataChangedDecoupled(QSharedPointer<const ParameterCollection::ParameterData>)));
}

// Lets queued emissions out.
void settle()
{
    for (int i = 0; i < 3; ++i)
        QCoreApplication::processEvents();
}

template <class Exception, class Call> QString thrownText(Call call)
{
    try {
        call();
    } catch (const Exception& e) {
        return QString::fromUtf8(e.what());
    } catch (...) {
        return QStringLiteral("<other exception>");
    }
    return QString();
}

} // namespace

class TestAravisNodeMap : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void cleanupTestCase();

    void refusesWhatIsNoGenICamDocument_data();
    void refusesWhatIsNoGenICamDocument();
    void oneNodeMapAndItsBaseInfo();
    void walksTheWholeDocument();
    void kinds_data();
    void kinds();
    void categoriesInDocumentOrder();
    void enumerationEntriesInDocumentOrder();
    void integerSnapshot();
    void representationsAsText_data();
    void representationsAsText();
    void floatIncrementOnlyWhereGiven();
    void swissKnifeFormulas();
    void properties_data();
    void properties();
    void aliasOfAFloat();
    void selectorChangesTheSelectedFeature();
    void selectorNamesWhatItSelects();
    void writeEmitsOnceForTheNodeAndItsDependents();
    void emissionIsDecoupledAndToleratesWritingSlots();
    void writesRefused_data();
    void writesRefused();
    void booleanStringAndCommand();
    void imposedVisibilityAndAccessMode();
    void imposingRefusesUnknownTexts();
    void zombies();
    void sameObjectForEveryLookUp();
    void aravisErrorsBecomeGenICamExceptions();
    void lostDeviceTurnsEverythingIntoZombies();
    void treeModelShowsTheVendorCamera();

private:
    QSharedPointer<AravisDevice> m_device;
    QSharedPointer<Aravis::AravisNodeMap> m_map;
};

void TestAravisNodeMap::init()
{
    m_device = vendorCamera();
    QVERIFY(m_device);
    m_map = m_device->nodeMap(QStringLiteral("@CameraDevice"));
    QVERIFY(m_map);
}

void TestAravisNodeMap::cleanup()
{
    m_map.reset();
    m_device.reset();
}

void TestAravisNodeMap::cleanupTestCase()
{
    arv_shutdown();
}

void TestAravisNodeMap::refusesWhatIsNoGenICamDocument_data()
{
    QTest::addColumn<QByteArray>("xml");
    QTest::addColumn<QString>("reason");
    QTest::newRow("empty") << QByteArray() << "empty GenICam document";
    QTest::newRow("not XML") << QByteArray("<RegisterDescription><Category Name=\"Root\">") << "does not parse";
    QTest::newRow("no Root") << QByteArray("<RegisterDescription><Integer Name=\"Width\"><Value>1</Value></Integer>"
                                           "</RegisterDescription>")
                             << "no Root category";
}

void TestAravisNodeMap::refusesWhatIsNoGenICamDocument()
{
    QFETCH(QByteArray, xml);
    QFETCH(QString, reason);
    QString error;
    QVERIFY(!AravisDevice::fromGenICamXml(xml, &error));
    QVERIFY2(error.contains(reason), qPrintable(error));
}

void TestAravisNodeMap::oneNodeMapAndItsBaseInfo()
{
    QCOMPARE(m_device->nodeMapNames(), QStringList { "@CameraDevice" });
    QVERIFY(!m_device->nodeMap(QStringLiteral("@TransportLayer")));
    QCOMPARE(m_map->name(), QString("@CameraDevice"));
    QVERIFY(m_device->baseInfo());
    QCOMPARE(m_device->baseInfo()->getTLType(), QString("Custom"));
    QCOMPARE(AravisDevice::fromGenICamXml(vendorXml(), nullptr, "GEV")->baseInfo()->getTLType(), QString("GEV"));
    QCOMPARE(Aravis::transportLayerTypeOf("GigEVision"), QString("GEV"));
    QCOMPARE(Aravis::transportLayerTypeOf("USB3Vision"), QString("U3V"));
}

void TestAravisNodeMap::walksTheWholeDocument()
{
    const QList<QString> all = m_map->getChildNames(QStringLiteral("@CameraDevice/Root"), true, true);
    const QList<QString> expected = { "DeviceControl", "DeviceVendorName", "DeviceUserID", "DeviceTemperature",
        "DeviceIPAddress", "DeviceReset", "ImageFormatControl", "SensorWidth", "Width", "OffsetX", "PixelFormat",
        "ReverseX", "AnalogControl", "GainSelector", "Gain", "BlackLevel", "AcquisitionControl", "ExposureTime",
        "AcquisitionFrameRate", "UserSetControl" };
    QList<QString> expectedFull;
    for (const QString& name : expected)
        expectedFull << "@CameraDevice/" + name;
    // RawBlock, a plain Register, is none of the kinds and stays out of the tree.
    QCOMPARE(all, expectedFull);
    for (const QString& name : all) {
        const QSharedPointer<IParameter> parameter = m_map->getParameter(name);
        QVERIFY2(parameter && !parameter->isZombie(), qPrintable(name));
        QCOMPARE(parameter->getFullName(), name);
        const Snapshot data = parameter->getParameterData();
        QVERIFY2(data, qPrintable(name));
        QCOMPARE(data->type, qint32(parameter->getType()));
        QVERIFY2(data->implemented, qPrintable(name));
        if (data->type != TypeCommand)
            QVERIFY2(data->readable, qPrintable(name));
        QVERIFY(!parameter->advancedAccess()->getProperty("DisplayName", "<unknown>").isEmpty());
    }
    QVERIFY(!m_map->hasParameter(QStringLiteral("RawBlock")));
    QVERIFY(m_map->getParameter(QStringLiteral("RawBlock"))->isZombie());
    // Sorted instead of in the document's order.
    QList<QString> sorted = m_map->getChildNames(QStringLiteral("@CameraDevice/Root"), false, false);
    QCOMPARE(sorted.first(), QString("@CameraDevice/AcquisitionControl"));
    // A feature is no category: no children; an unknown name throws.
    QVERIFY(m_map->getChildNames(QStringLiteral("@CameraDevice/Width"), false, true).isEmpty());
    QVERIFY(!thrownText<GenICam::GenericException>([this] {
        m_map->getChildNames("@CameraDevice/Nope", false, true);
    }).isEmpty());
}

void TestAravisNodeMap::kinds_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("kind");
    QTest::addColumn<QString>("interfaceName");
    QTest::newRow("IntReg") << "DeviceIPAddress" << int(TypeInteger) << "ParameterCollection::IIntegerParameter";
    QTest::newRow("Integer") << "Width" << int(TypeInteger) << "ParameterCollection::IIntegerParameter";
    QTest::newRow("IntSwissKnife") << "WidthMax" << int(TypeInteger) << "ParameterCollection::IIntegerParameter";
    QTest::newRow("Float") << "ExposureTime" << int(TypeFloat) << "ParameterCollection::IFloatParameter";
    QTest::newRow("Converter") << "Gain" << int(TypeFloat) << "ParameterCollection::IFloatParameter";
    QTest::newRow("SwissKnife") << "DeviceTemperature" << int(TypeFloat) << "ParameterCollection::IFloatParameter";
    QTest::newRow("FloatReg") << "BlackLevelReg" << int(TypeFloat) << "ParameterCollection::IFloatParameter";
    QTest::newRow("Boolean") << "ReverseX" << int(TypeBoolean) << "ParameterCollection::IBooleanParameter";
    QTest::newRow("Command") << "DeviceReset" << int(TypeCommand) << "ParameterCollection::ICommandParameter";
    QTest::newRow("StringReg") << "DeviceUserID" << int(TypeString) << "ParameterCollection::IParameter";
    QTest::newRow("Enumeration") << "PixelFormat" << int(TypeEnumeration) << "ParameterCollection::IEnumParameter";
    QTest::newRow("Category") << "AnalogControl" << int(TypeCategory) << "ParameterCollection::IParameter";
}

void TestAravisNodeMap::kinds()
{
    QFETCH(QString, name);
    QFETCH(int, kind);
    QFETCH(QString, interfaceName);
    const QSharedPointer<IParameter> parameter = m_map->getParameter(name);
    QVERIFY(parameter && !parameter->isZombie());
    QCOMPARE(parameter->getType(), kind);
    QCOMPARE(parameter->getParameterData()->type, qint32(kind));
    QCOMPARE(QString::fromLatin1(parameter->metaObject()->className()), interfaceName);
    QCOMPARE(IIntegerParameter::staticMetaObject.cast(parameter.data()) != nullptr, kind == TypeInteger);
    QCOMPARE(IFloatParameter::staticMetaObject.cast(parameter.data()) != nullptr, kind == TypeFloat);
    QCOMPARE(dynamic_cast<IBooleanParameter*>(parameter.data()) != nullptr, kind == TypeBoolean);
    QCOMPARE(dynamic_cast<ICommandParameter*>(parameter.data()) != nullptr, kind == TypeCommand);
    QCOMPARE(qobject_cast<IEnumParameter*>(parameter.data()) != nullptr, kind == TypeEnumeration);
}

void TestAravisNodeMap::categoriesInDocumentOrder()
{
    QCOMPARE(m_map->getChildNames(QStringLiteral("@CameraDevice/Root"), false, true),
        (QList<QString> { "@CameraDevice/DeviceControl", "@CameraDevice/ImageFormatControl",
            "@CameraDevice/AnalogControl", "@CameraDevice/AcquisitionControl", "@CameraDevice/UserSetControl" }));
    // A category without features has no children, flat or recursive.
    QVERIFY(m_map->getChildNames(QStringLiteral("@CameraDevice/UserSetControl"), false, true).isEmpty());
    QVERIFY(m_map->getChildNames(QStringLiteral("@CameraDevice/UserSetControl"), true, false).isEmpty());
    QCOMPARE(m_map->getChildNames(QStringLiteral("AnalogControl"), false, true),
        (QList<QString> { "@CameraDevice/GainSelector", "@CameraDevice/Gain", "@CameraDevice/BlackLevel" }));
}

void TestAravisNodeMap::enumerationEntriesInDocumentOrder()
{
    // The document says Mono8, Mono12, Mono16 (never implemented), BayerRG8, RGB8:
    // neither alphabetical nor reversed.
    const auto pixelFormat = snapshotOf<EnumParameterData>(*m_map, "PixelFormat");
    QVERIFY(pixelFormat);
    QCOMPARE(pixelFormat->symbolicValues, (QVector<QString> { "Mono8", "Mono12", "BayerRG8", "RGB8" }));
    QCOMPARE(pixelFormat->displayTexts, (QVector<QString> { "Mono 8", "Mono 12", "Bayer RG 8", "RGB 8" }));
    QCOMPARE(pixelFormat->valueText, QString("Mono8"));
    QCOMPARE(pixelFormat->intValue, qint64(17301505));
    // Entries without a display name show their symbolic value.
    QCOMPARE(snapshotOf<EnumParameterData>(*m_map, "GainSelector")->displayTexts,
        (QVector<QString> { "All", "Red", "Blue" }));
}

void TestAravisNodeMap::integerSnapshot()
{
    const auto width = snapshotOf<IntegerParameterData>(*m_map, "Width");
    QVERIFY(width);
    QCOMPARE(width->value, qint64(640));
    QCOMPARE(width->valueText, QString("640"));
    QCOMPARE(width->minimum, qint64(16));
    QCOMPARE(width->maximum, qint64(2048)); // SensorWidth - OffsetX
    QCOMPARE(width->increment, qint64(16));
    QCOMPARE(width->representation, QString("Linear"));
    QVERIFY(width->readable && width->writable && width->implemented);
    QCOMPARE(width->visibility, qint32(GenApi::Beginner));
    auto integer = m_map->getParameter("Width").dynamicCast<IIntegerParameter>();
    QCOMPARE(integer->getValue(), qint64(640));
    QCOMPARE(integer->getMinimum(), qint64(16));
    QCOMPARE(integer->getMaximum(), qint64(2048));
    const auto sensor = snapshotOf<IntegerParameterData>(*m_map, "SensorWidth");
    QVERIFY(sensor->readable && !sensor->writable);
    QCOMPARE(sensor->visibility, qint32(GenApi::Expert));
}

void TestAravisNodeMap::representationsAsText_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("representation");
    QTest::addColumn<QString>("valueText");
    QTest::newRow("IPv4") << "DeviceIPAddress"
                          << "IPV4Address"
                          << "192.168.1.10";
    QTest::newRow("no representation") << "GainRaw"
                                       << "PureNumber"
                                       << "120";
    QTest::newRow("logarithmic float") << "ExposureTime"
                                       << "Logarithmic"
                                       << "10000";
    QTest::newRow("logarithmic converter") << "Gain"
                                           << "Logarithmic"
                                           << "12.0";
    QTest::newRow("precision 1") << "BlackLevel"
                                 << "PureNumber"
                                 << "12.5";
}

void TestAravisNodeMap::representationsAsText()
{
    QFETCH(QString, name);
    QFETCH(QString, representation);
    QFETCH(QString, valueText);
    const QSharedPointer<IParameter> parameter = m_map->getParameter(name);
    QCOMPARE(parameter->advancedAccess()->getProperty("Representation"), representation);
    QCOMPARE(parameter->getParameterData()->valueText, valueText);
    if (auto integer = parameter->getParameterData().dynamicCast<const IntegerParameterData>())
        QCOMPARE(integer->representation, representation);
    // What the value text shows is what a write takes back.
    parameter->setValueFromString(valueText);
    QCOMPARE(parameter->getParameterData()->valueText, valueText);
}

void TestAravisNodeMap::floatIncrementOnlyWhereGiven()
{
    const auto blackLevel = snapshotOf<FloatParameterData>(*m_map, "BlackLevel");
    QVERIFY(blackLevel->hasIncrement);
    QCOMPARE(blackLevel->increment, 0.5);
    QCOMPARE(blackLevel->precision, qint64(1));
    QCOMPARE(blackLevel->minimum, 0.0);
    QCOMPARE(blackLevel->maximum, 100.0);
    const auto exposure = snapshotOf<FloatParameterData>(*m_map, "ExposureTime");
    QVERIFY(!exposure->hasIncrement);
    QCOMPARE(exposure->precision, qint64(0));
    QCOMPARE(exposure->minimum, 10.0);
    QCOMPARE(exposure->maximum, 1000000.0);
}

void TestAravisNodeMap::swissKnifeFormulas()
{
    const auto temperature = snapshotOf<FloatParameterData>(*m_map, "DeviceTemperature");
    QCOMPARE(temperature->value, 25.0);
    QCOMPARE(temperature->valueText, QString("25.0"));
    QVERIFY(temperature->readable && !temperature->writable);
    QCOMPARE(m_map->getParameter("DeviceTemperature")->advancedAccess()->getProperty("Unit"), QString("C"));
    QCOMPARE(snapshotOf<FloatParameterData>(*m_map, "AcquisitionFrameRate")->value, 100.0);
    // The frame rate follows the exposure time it is computed from.
    QSharedPointer<IParameter> rate = m_map->getParameter("AcquisitionFrameRate");
    QScopedPointer<QSignalSpy> spy(spyOn(rate));
    m_map->getParameter("ExposureTime").dynamicCast<IFloatParameter>()->setValue(20000.0);
    settle();
    QCOMPARE(spy->count(), 1);
    QCOMPARE(spy->at(0).at(0).value<Snapshot>().dynamicCast<const FloatParameterData>()->value, 50.0);
}

void TestAravisNodeMap::properties_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("expected");
    QTest::newRow("display name") << "ImageFormatControl"
                                  << "DisplayName"
                                  << "Image Format Control";
    QTest::newRow("display name missing is the name") << "GainSelectorReg"
                                                      << "DisplayName"
                                                      << "GainSelectorReg";
    QTest::newRow("tool tip") << "Width"
                              << "Tooltip"
                              << "Width of the image.";
    QTest::newRow("tool tip missing") << "PixelFormat"
                                      << "Tooltip"
                                      << "<default>";
    QTest::newRow("description") << "DeviceUserID"
                                 << "Description"
                                 << "Kept by the camera across power cycles.";
    QTest::newRow("docu URL") << "Width"
                              << "DocuURL"
                              << "https://example.invalid/zx/width";
    QTest::newRow("docu URL missing") << "OffsetX"
                                      << "DocuURL"
                                      << "<default>";
    QTest::newRow("unit") << "Gain"
                          << "Unit"
                          << "dB";
    QTest::newRow("unit of a string") << "DeviceUserID"
                                      << "Unit"
                                      << "<default>";
    QTest::newRow("visibility") << "DeviceIPAddress"
                                << "Visibility"
                                << "Guru";
    QTest::newRow("access mode") << "SensorWidth"
                                 << "AccessMode"
                                 << "RO";
    QTest::newRow("access mode of a command") << "DeviceReset"
                                              << "AccessMode"
                                              << "WO";
    QTest::newRow("name") << "Width"
                          << "Name"
                          << "Width";
    QTest::newRow("unknown key") << "Width"
                                 << "Colour"
                                 << "<default>";
}

void TestAravisNodeMap::properties()
{
    QFETCH(QString, name);
    QFETCH(QString, key);
    QFETCH(QString, expected);
    const auto access = m_map->getParameter(name)->advancedAccess();
    QVERIFY(access);
    QCOMPARE(access->getProperty(key, "<default>"), expected);
    QCOMPARE(access->getProperty(key), expected == "<default>" ? QString() : expected);
}

void TestAravisNodeMap::aliasOfAFloat()
{
    QVERIFY(m_map->hasParameter(QStringLiteral("@CameraDevice/Gain/Alias")));
    QVERIFY(!m_map->hasParameter(QStringLiteral("@CameraDevice/ExposureTime/Alias")));
    QVERIFY(!m_map->hasParameter(QStringLiteral("@CameraDevice/Width/Alias")));
    QVERIFY(m_map->getParameter(QStringLiteral("@CameraDevice/ExposureTime/Alias"))->isZombie());
    const QSharedPointer<IParameter> alias = m_map->getParameter(QStringLiteral("@CameraDevice/Gain/Alias"));
    QVERIFY(alias && !alias->isZombie());
    QCOMPARE(alias->getType(), int(TypeInteger));
    QCOMPARE(alias->getFullName(), QString("@CameraDevice/Gain/Alias"));
    QCOMPARE(alias->getName(), QString("Gain/Alias"));
    const auto data = alias->getParameterData().dynamicCast<const IntegerParameterData>();
    QCOMPARE(data->value, qint64(120));
    QCOMPARE(data->maximum, qint64(480));

    // Writing the alias moves the float, and each says so once.
    const QSharedPointer<IParameter> gain = m_map->getParameter(QStringLiteral("Gain"));
    QCOMPARE(gain->getParameterData()->valueText, QString("12.0"));
    QScopedPointer<QSignalSpy> gainSpy(spyOn(gain));
    QScopedPointer<QSignalSpy> aliasSpy(spyOn(alias));
    alias.dynamicCast<IIntegerParameter>()->setValue(250, true);
    settle();
    QCOMPARE(aliasSpy->count(), 1);
    QCOMPARE(gainSpy->count(), 1);
    QCOMPARE(gainSpy->at(0).at(0).value<Snapshot>()->valueText, QString("25.0"));
    // And the other way round.
    gain.dynamicCast<IFloatParameter>()->setValue(4.0);
    settle();
    QCOMPARE(aliasSpy->count(), 2);
    QCOMPARE(aliasSpy->at(1).at(0).value<Snapshot>().dynamicCast<const IntegerParameterData>()->value, qint64(40));
}

void TestAravisNodeMap::selectorChangesTheSelectedFeature()
{
    const QSharedPointer<IParameter> gain = m_map->getParameter(QStringLiteral("Gain"));
    QCOMPARE(gain->getParameterData()->valueText, QString("12.0"));
    QScopedPointer<QSignalSpy> spy(spyOn(gain));
    m_map->getParameter(QStringLiteral("GainSelector"))->setValueFromString(QStringLiteral("Red"));
    settle();
    QCOMPARE(spy->count(), 1);
    QCOMPARE(spy->at(0).at(0).value<Snapshot>()->valueText, QString("6.0"));
    // A write goes to the selected slot only.
    gain.dynamicCast<IFloatParameter>()->setValue(7.5);
    m_map->getParameter(QStringLiteral("GainSelector"))->setValueFromString(QStringLiteral("All"));
    QCOMPARE(gain->getParameterData()->valueText, QString("12.0"));
    m_map->getParameter(QStringLiteral("GainSelector"))->setValueFromString(QStringLiteral("Red"));
    QCOMPARE(gain->getParameterData()->valueText, QString("7.5"));
}

void TestAravisNodeMap::selectorNamesWhatItSelects()
{
    // pSelected of the document, through Aravis.
    const auto selector = m_map->getParameter(QStringLiteral("GainSelector"));
    QCOMPARE(selector->advancedAccess()->getProperty(QStringLiteral("SelectedFeatures")), QString("Gain,GainRaw"));
    QCOMPARE(m_map->getParameter(QStringLiteral("Gain"))
                 ->advancedAccess()
                 ->getProperty(QStringLiteral("SelectedFeatures"), QStringLiteral("none")),
        QString("none"));

    // Settings saved under every entry, and restored after a change under one of them.
    CameraSettings settings;
    settings.addParameterCollection(QStringLiteral("@CameraDevice"), m_map);
    const CameraSettings::Document saved = settings.save();
    QStringList entries;
    for (const CameraSettings::Value& value : saved.values)
        if (value.feature == QLatin1String("Gain") && value.selector == QLatin1String("GainSelector"))
            entries.append(value.selectorEntry);
    QVERIFY2(entries.size() >= 2 && entries.contains(QStringLiteral("Red")), qPrintable(entries.join(',')));
    QCOMPARE(selector->getParameterData()->valueText, QString("All"));
    selector->setValueFromString(QStringLiteral("Red"));
    m_map->getParameter(QStringLiteral("Gain"))->setValueFromString(QStringLiteral("9.5"));
    selector->setValueFromString(QStringLiteral("All"));
    // Gain under Red differs, and GainRaw under Red, which it is computed from.
    const QList<CameraSettings::Difference> differences = settings.compare(saved);
    QVERIFY(!differences.isEmpty());
    for (const CameraSettings::Difference& difference : differences)
        QCOMPARE(difference.file.selectorEntry, QString("Red"));
    const CameraSettings::Report report = settings.restore(saved);
    QVERIFY2(report.isComplete(), qPrintable(report.toLines().join(QLatin1Char('\n'))));
    QVERIFY(settings.compare(saved).isEmpty());
    QCOMPARE(selector->getParameterData()->valueText, QString("All"));
}

void TestAravisNodeMap::writeEmitsOnceForTheNodeAndItsDependents()
{
    const QSharedPointer<IParameter> width = m_map->getParameter(QStringLiteral("Width"));
    const QSharedPointer<IParameter> offset = m_map->getParameter(QStringLiteral("OffsetX"));
    const QSharedPointer<IParameter> pixelFormat = m_map->getParameter(QStringLiteral("PixelFormat"));
    width->getParameterData();
    offset->getParameterData();
    pixelFormat->getParameterData();
    QScopedPointer<QSignalSpy> widthSpy(spyOn(width));
    QScopedPointer<QSignalSpy> offsetSpy(spyOn(offset));
    QScopedPointer<QSignalSpy> pixelSpy(spyOn(pixelFormat));
    offset.dynamicCast<IIntegerParameter>()->setValue(256, true);
    settle();
    QCOMPARE(offsetSpy->count(), 1);
    QCOMPARE(offsetSpy->at(0).at(0).value<Snapshot>()->valueText, QString("256"));
    // Width's maximum is SensorWidth - OffsetX.
    QCOMPARE(widthSpy->count(), 1);
    QCOMPARE(widthSpy->at(0).at(0).value<Snapshot>().dynamicCast<const IntegerParameterData>()->maximum, qint64(1792));
    QCOMPARE(pixelSpy->count(), 0);
    // Writing the same value again changes nothing and emits nothing.
    offset.dynamicCast<IIntegerParameter>()->setValue(256, true);
    settle();
    QCOMPARE(offsetSpy->count(), 1);
    QCOMPARE(widthSpy->count(), 1);
    // A change on the device that nobody wrote through us shows at the next poll.
    writeRegister(m_device->arvDevice(), 0x1A0010, 35127316); // RGB8
    QCOMPARE(pixelSpy->count(), 0);
    m_map->poll(300);
    settle();
    QCOMPARE(pixelSpy->count(), 1);
    QCOMPARE(pixelSpy->at(0).at(0).value<Snapshot>()->valueText, QString("RGB8"));
    m_map->refreshAll();
    settle();
    QCOMPARE(pixelSpy->count(), 1);
}

void TestAravisNodeMap::emissionIsDecoupledAndToleratesWritingSlots()
{
    const QSharedPointer<IParameter> width = m_map->getParameter(QStringLiteral("Width"));
    width->getParameterData();
    QList<QString> seen;
    QObject context;
    // A slot that writes back into the parameter it heard from, as the tree's clamping does.
    QObject::connect(width.data(), &IParameter::parameterDataChangedDecoupled, &context,
        [&seen, width](QSharedPointer<const ParameterCollection::ParameterData> data) {
            seen << data->valueText;
            if (data->valueText == QLatin1String("1024"))
                width->setValueFromString(QStringLiteral("512"));
        });
    width->setValueFromString(QStringLiteral("1024"));
    QVERIFY(seen.isEmpty()); // never inside the call that caused it
    settle();
    QCOMPARE(seen, (QList<QString> { "1024", "512" }));
    QCOMPARE(arv_device_get_integer_feature_value(m_device->arvDevice(), "Width", nullptr), gint64(512));
}

void TestAravisNodeMap::writesRefused_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("invalidArgument");
    QTest::newRow("above maximum") << "Width"
                                   << "4096" << true;
    QTest::newRow("below minimum") << "Width"
                                   << "0" << true;
    QTest::newRow("off the increment") << "Width"
                                       << "650" << true;
    QTest::newRow("not a number") << "Width"
                                  << "wide" << true;
    QTest::newRow("float above maximum") << "ExposureTime"
                                         << "2000000" << true;
    QTest::newRow("float not a number") << "ExposureTime"
                                        << "long" << true;
    QTest::newRow("read-only") << "SensorWidth"
                               << "1024" << true;
    QTest::newRow("formula") << "DeviceTemperature"
                             << "20" << true;
    QTest::newRow("unknown entry") << "PixelFormat"
                                   << "Mono99" << false;
    QTest::newRow("entry not implemented") << "PixelFormat"
                                           << "Mono16" << false;
    QTest::newRow("not a Boolean") << "ReverseX"
                                   << "maybe" << true;
    QTest::newRow("category") << "Root"
                              << "1" << true;
}

void TestAravisNodeMap::writesRefused()
{
    QFETCH(QString, name);
    QFETCH(QString, text);
    QFETCH(bool, invalidArgument);
    const QSharedPointer<IParameter> parameter = m_map->getParameter(name);
    const QString before = parameter->getParameterData()->valueText;
    QScopedPointer<QSignalSpy> spy(spyOn(parameter));
    const QString message = invalidArgument
        ? thrownText<GenICam::InvalidArgumentException>([&] { parameter->setValueFromString(text); })
        : thrownText<GenICam::GenericException>([&] { parameter->setValueFromString(text); });
    QVERIFY2(message.startsWith(parameter->getName() + ": "), qPrintable(message));
    QCOMPARE(parameter->getParameterData()->valueText, before);
    settle();
    QCOMPARE(spy->count(), 0);
}

void TestAravisNodeMap::booleanStringAndCommand()
{
    const QSharedPointer<IParameter> reverse = m_map->getParameter(QStringLiteral("ReverseX"));
    QCOMPARE(reverse->getParameterData()->valueText, QString("0"));
    reverse->setValueFromString(QStringLiteral("true"));
    QVERIFY(reverse->getParameterData().dynamicCast<const BooleanParameterData>()->value);
    QCOMPARE(reverse->getParameterData()->valueText, QString("1"));
    reverse->setValueFromString(QStringLiteral("0"));
    QVERIFY(!arv_device_get_boolean_feature_value(m_device->arvDevice(), "ReverseX", nullptr));

    QCOMPARE(snapshotOf<ParameterData>(*m_map, "DeviceVendorName")->valueText, QString("Zarvex"));
    const QSharedPointer<IParameter> userId = m_map->getParameter(QStringLiteral("DeviceUserID"));
    userId->setValueFromString(QStringLiteral("line 3"));
    QCOMPARE(userId->getParameterData()->valueText, QString("line 3"));
    QCOMPARE(QString::fromUtf8(arv_device_get_string_feature_value(m_device->arvDevice(), "DeviceUserID", nullptr)),
        QString("line 3"));

    const auto reset = m_map->getParameter(QStringLiteral("DeviceReset")).dynamicCast<ICommandParameter>();
    const auto data = reset->getParameterData().dynamicCast<const CommandParameterData>();
    QVERIFY(data && data->done && data->writable && !data->readable);
    reset->execute(true);
    reset->setCommandPending(true);
    guint32 raw = 0;
    arv_device_read_memory(m_device->arvDevice(), 0x20200, 4, &raw, nullptr);
    QCOMPARE(GUINT32_FROM_BE(raw), guint32(1));
    QVERIFY(reset->getParameterData().dynamicCast<const CommandParameterData>()->done);
}

void TestAravisNodeMap::imposedVisibilityAndAccessMode()
{
    const QSharedPointer<IParameter> width = m_map->getParameter(QStringLiteral("Width"));
    width->getParameterData();
    QScopedPointer<QSignalSpy> spy(spyOn(width));
    width->advancedAccess()->setProperty(QStringLiteral("Visibility"), QStringLiteral("Guru"));
    QCOMPARE(width->getVisibility(), GenApi::Guru);
    QCOMPARE(width->getParameterData()->visibility, qint32(GenApi::Guru));
    QCOMPARE(width->advancedAccess()->getProperty("Visibility"), QString("Guru"));
    width->advancedAccess()->setProperty(QStringLiteral("AccessMode"), QStringLiteral("RO"));
    QVERIFY(!width->isWritable());
    QCOMPARE(width->getParameterData()->accessMode(), GenApi::RO);
    QVERIFY(!thrownText<GenICam::InvalidArgumentException>([&] { width->setValueFromString("320"); }).isEmpty());
    settle();
    QCOMPARE(spy->count(), 2); // one per imposed property
    width->advancedAccess()->setProperty(QStringLiteral("AccessMode"), QStringLiteral("NI"));
    QCOMPARE(width->getParameterData()->accessMode(), GenApi::NI);
    // An imposed mode can't grant what the device refuses.
    const QSharedPointer<IParameter> sensor = m_map->getParameter(QStringLiteral("SensorWidth"));
    sensor->advancedAccess()->setProperty(QStringLiteral("AccessMode"), QStringLiteral("RW"));
    QVERIFY(!sensor->isWritable());
}

void TestAravisNodeMap::imposingRefusesUnknownTexts()
{
    const auto access = m_map->getParameter(QStringLiteral("Width"))->advancedAccess();
    QVERIFY(!thrownText<GenICam::InvalidArgumentException>([&] {
        access->setProperty("Visibility", "Everybody");
    }).isEmpty());
    QVERIFY(!thrownText<GenICam::InvalidArgumentException>([&] { access->setProperty("AccessMode", "XX"); }).isEmpty());
    QVERIFY(!thrownText<GenICam::InvalidArgumentException>([&] { access->setProperty("Unit", "mm"); }).isEmpty());
    QCOMPARE(access->getProperty("Visibility"), QString("Beginner"));
}

void TestAravisNodeMap::zombies()
{
    for (const QString& name :
        { QStringLiteral("Nope"), QStringLiteral("@CameraDevice/Nope"), QStringLiteral("@TransportLayer/Width"),
            QStringLiteral("Width/Alias"), QStringLiteral("@CameraDevice") }) {
        const QSharedPointer<IParameter> zombie = m_map->getParameter(name);
        QVERIFY(zombie);
        QVERIFY(zombie->isZombie());
        QVERIFY(!zombie->isImposable());
        QVERIFY(!m_map->hasParameter(name));
        QVERIFY(zombie->getFullName().endsWith(name.mid(name.lastIndexOf('/') + 1)));
        QVERIFY(!zombie->getName().isEmpty());
        QVERIFY(!thrownText<GenICam::GenericException>([&] { zombie->getParameterData(); }).isEmpty());
        QVERIFY(!thrownText<GenICam::GenericException>([&] { zombie->getType(); }).isEmpty());
        QVERIFY(!thrownText<GenICam::GenericException>([&] { zombie->isWritable(); }).isEmpty());
        QVERIFY(!thrownText<GenICam::GenericException>([&] { zombie->advancedAccess(); }).isEmpty());
        QVERIFY(!thrownText<GenICam::GenericException>([&] { zombie->setValueFromString("1"); }).isEmpty());
    }
    QCOMPARE(
        m_map->getParameter(QStringLiteral("@TransportLayer/Width"))->getFullName(), QString("@TransportLayer/Width"));
    QCOMPARE(m_map->getParameter(QStringLiteral("Nope"))->getFullName(), QString("@CameraDevice/Nope"));
    // A full name without "/" is all node map part: a zombie that keeps it whole.
    QCOMPARE(m_map->getParameter(QStringLiteral("@CameraDevice"))->getFullName(), QString("@CameraDevice"));
}

void TestAravisNodeMap::sameObjectForEveryLookUp()
{
    const QSharedPointer<IParameter> byShort = m_map->getParameter(QStringLiteral("Width"));
    const QSharedPointer<IParameter> byFull = m_map->getParameter(QStringLiteral("@CameraDevice/Width"));
    QCOMPARE(byShort.data(), byFull.data());
    // The node map and parameters keep the device alive.
    m_device.reset();
    QCOMPARE(byShort->getParameterData()->valueText, QString("640"));
}

void TestAravisNodeMap::aravisErrorsBecomeGenICamExceptions()
{
    // A register the camera refuses: Aravis reports a GError.
    Aravis::refuseSparseMemoryAddress(m_device->arvDevice(), 0x4D0000);
    const QSharedPointer<IParameter> broken = m_map->getParameter(QStringLiteral("DiagnosticsReg"));
    QVERIFY(broken && !broken->isZombie());
    const QString message = thrownText<GenICam::GenericException>([&] { broken->getParameterData(); });
    QVERIFY2(message.startsWith(QStringLiteral("DiagnosticsReg: "))
            && message.contains(QStringLiteral("invalid address 0x4d0000")),
        qPrintable(message));
    QCOMPARE(
        thrownText<GenICam::GenericException>([&] { broken.dynamicCast<IIntegerParameter>()->getValue(); }), message);
    // Not a lost device: everything else still works, and a poll still
    // delivers the other features' changes before it reports the failure.
    QVERIFY(!broken->isZombie());
    const QSharedPointer<IParameter> width = m_map->getParameter(QStringLiteral("Width"));
    QCOMPARE(width->getParameterData()->valueText, QString("640"));
    QScopedPointer<QSignalSpy> spy(spyOn(width));
    writeRegister(m_device->arvDevice(), 0x1A0000, 800);
    QCOMPARE(thrownText<GenICam::GenericException>([this] { m_map->poll(300); }), message);
    settle();
    QCOMPARE(spy->count(), 1);
    QCOMPARE(spy->at(0).at(0).value<Snapshot>()->valueText, QString("800"));
    QVERIFY(!m_map->isLost());
}

void TestAravisNodeMap::lostDeviceTurnsEverythingIntoZombies()
{
    const QSharedPointer<IParameter> width = m_map->getParameter(QStringLiteral("Width"));
    width->getParameterData();
    QScopedPointer<QSignalSpy> spy(spyOn(width));
    Aravis::setSparseMemoryDeviceUnplugged(m_device->arvDevice(), true);
    const QString message = thrownText<GenICam::GenericException>([this] { m_map->poll(300); });
    QVERIFY2(message.contains(QStringLiteral("device unplugged")), qPrintable(message));
    QVERIFY(m_map->isLost());
    QVERIFY(width->isZombie());
    QVERIFY(m_map->getParameter(QStringLiteral("Width"))->isZombie());
    QVERIFY(!m_map->hasParameter(QStringLiteral("Width")));
    QVERIFY(!thrownText<GenICam::GenericException>([&] { width->getParameterData(); }).isEmpty());
    QVERIFY(!thrownText<GenICam::GenericException>([this] { m_map->poll(300); }).isEmpty());
    QVERIFY(!thrownText<GenICam::GenericException>([this] { m_map->getChildNames("Root", false, true); }).isEmpty());
    // Coming back doesn't bring the node map back: the host opens the camera again.
    Aravis::setSparseMemoryDeviceUnplugged(m_device->arvDevice(), false);
    QVERIFY(width->isZombie());
    settle();
    QCOMPARE(spy->count(), 0);
}

void TestAravisNodeMap::treeModelShowsTheVendorCamera()
{
    FeatureTreeModel model;
    TreeTest::ModelCheck check(&model, { TreeTest::Excuse::ChildrenInEveryColumn, TreeTest::Excuse::RootFlags });
    model.addParameterCollection(m_map, QStringLiteral("Camera"), QStringLiteral("@CameraDevice"), false);
    const QModelIndex gain = model.findItemByFullName(QStringLiteral("@CameraDevice/Gain"), nullptr, 0);
    QVERIFY(gain.isValid());
    QCOMPARE(gain.siblingAtColumn(1).data().toString().left(4), QString("12.0"));
    QVERIFY(model.setData(gain.siblingAtColumn(1), QStringLiteral("20.5"), Qt::EditRole));
    QCOMPARE(arv_device_get_integer_feature_value(m_device->arvDevice(), "GainRaw", nullptr), gint64(205));
    QTRY_VERIFY(gain.siblingAtColumn(1).data().toString().startsWith(QStringLiteral("20.5")));
    const QModelIndex empty = model.findItemByFullName(QStringLiteral("@CameraDevice/UserSetControl"), nullptr, 0);
    QVERIFY(empty.isValid());
    QCOMPARE(model.rowCount(empty), 0);
    const QStringList reports = check.unexcused();
    QVERIFY2(reports.isEmpty(), qPrintable(reports.join(QLatin1Char('\n'))));
}

QTEST_MAIN(TestAravisNodeMap)
#include "tst_aravisnodemap.moc"
