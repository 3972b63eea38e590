#include "devicedescription.h"
#include "expression.h"
#include "simulateddevice.h"
#include "simulatednodemap.h"
#include "syntheticnodemapgenerator.h"

#include "parameters/genericexception.h"
#include "parameters/iadvancedparameteraccess.h"
#include "parameters/ibooleanparameter.h"
#include "parameters/icommandparameter.h"
#include "parameters/ienumparameter.h"
#include "parameters/ifloatparameter.h"
#include "parameters/iintegerparameter.h"
#include "parameters/invalidargumentexception.h"
#include "parameters/parameterdata.h"

#include <QElapsedTimer>
#include <QFile>
#include <QSignalSpy>
#include <QTest>
#include <QThread>

#include <atomic>
#include <functional>
#include <stdexcept>

using namespace ParameterCollection;
using Simulation::FaultKind;
using Simulation::Operation;
using Simulation::SimulatedDevice;
using Simulation::SimulatedNodeMap;
using DataPtr = QSharedPointer<const ParameterData>;

Q_DECLARE_METATYPE(Simulation::Operation)
Q_DECLARE_METATYPE(Simulation::FaultKind)

namespace {

// Quotes of the JSON text are written as ` here, to keep the literal readable.
const char* const kCamera
    = "\n"
      "{\n"
      "  `format`: `zarvex-simulated-device`,\n"
      "  `version`: 1,\n"
      "  `vendor`: `Zarvex`,\n"
      "  `model`: `ZX-Test`,\n"
      "  `serialNumber`: `42`,\n"
      "  `transportLayerType`: `GEV`,\n"
      "  `nodeMaps`: [\n"
      "    {\n"
      "      `name`: `@CameraDevice`,\n"
      "      `features`: [\n"
      "        { `name`: `Root`, `type`: `Category`,\n"
      "          `children`: [`ImageFormat`, `Acquisition`, `Analog`, `Device`, `Empty`, `Network`] },\n"
      "        { `name`: `ImageFormat`, `type`: `Category`, `displayName`: `Image Format`,\n"
      "          `children`: [`SensorWidth`, `Width`, `OffsetX`, `PixelFormat`] },\n"
      "        { `name`: `SensorWidth`, `type`: `Integer`, `access`: `RO`, `value`: 1920 },\n"
      "        { `name`: `Width`, `type`: `Integer`, `representation`: `Linear`, `unit`: `px`,\n"
      "          `displayName`: `Image Width`, `description`: `Width of the image`, `tooltip`: `Width tip`,\n"
      "          `docuUrl`: `https://zarvex.example/Width`,\n"
      "          `value`: 1920, `min`: 16, `max`: `SensorWidth - OffsetX`, `inc`: 16 },\n"
      "        { `name`: `OffsetX`, `type`: `Integer`, `value`: 0, `min`: 0, `max`: `SensorWidth - Width`, `inc`: 16 "
      "},\n"
      "        { `name`: `PixelFormat`, `type`: `Enumeration`, `value`: `Mono8`, `entries`: [\n"
      "            { `value`: `Mono8`, `displayName`: `Mono 8`, `numeric`: 17301505 },\n"
      "            { `value`: `Mono12`, `numeric`: 17825797 },\n"
      "            { `value`: `RGB8`, `displayName`: `RGB 8`, `numeric`: 35127316, `implementedWhen`: `ColorSensor` } "
      "] },\n"
      "        { `name`: `ColorSensor`, `type`: `Boolean`, `access`: `RO`, `value`: false },\n"
      "        { `name`: `Acquisition`, `type`: `Category`,\n"
      "          `children`: [`AcquisitionMode`, `ExposureAuto`, `ExposureTime`, `AcquisitionStart`, `FrameCounter`,\n"
      "                       `DeviceTemperature`, `Timestamp`] },\n"
      "        { `name`: `AcquisitionMode`, `type`: `Enumeration`, `value`: `Continuous`,\n"
      "          `entries`: [ { `value`: `SingleFrame` }, { `value`: `Continuous` } ] },\n"
      "        { `name`: `ExposureAuto`, `type`: `Enumeration`, `value`: `Off`,\n"
      "          `entries`: [ { `value`: `Off` }, { `value`: `Continuous` } ] },\n"
      "        { `name`: `ExposureTime`, `type`: `Float`, `value`: 10000, `min`: 10.5, `max`: 1000000, `precision`: "
      "1,\n"
      "          `unit`: `us`, `writableWhen`: `ExposureAuto == 'Off'`, `alias`: true },\n"
      "        { `name`: `AcquisitionStart`, `type`: `Command`, `duration`: 40, `onExecute`: { `FrameCounter`: `0` } "
      "},\n"
      "        { `name`: `FrameCounter`, `type`: `Integer`, `access`: `RO`, `value`: 7, `min`: 0, `max`: 1000000000,\n"
      "          `poll`: { `mode`: `rate`, `perSecond`: `AcquisitionFrameRate` } },\n"
      "        { `name`: `AcquisitionFrameRate`, `type`: `Float`, `value`: 20, `min`: 1, `max`: 100, `inc`: 0.5 },\n"
      "        { `name`: `DeviceTemperature`, `type`: `Float`, `access`: `RO`, `value`: 40, `min`: 0, `max`: 100,\n"
      "          `poll`: { `mode`: `randomWalk`, `step`: 0.5, `seed`: 7 } },\n"
      "        { `name`: `Timestamp`, `type`: `Integer`, `access`: `RO`, `value`: 0, `min`: 0,\n"
      "          `poll`: { `mode`: `clock`, `perMillisecond`: 1000 } },\n"
      "        { `name`: `Analog`, `type`: `Category`, `children`: [`GainSelector`, `Gain`, `GammaEnable`, "
      "`DeviceUserID`] },\n"
      "        { `name`: `GainSelector`, `type`: `Enumeration`, `value`: `All`,\n"
      "          `entries`: [ { `value`: `All` }, { `value`: `Red` }, { `value`: `Blue` } ] },\n"
      "        { `name`: `Gain`, `type`: `Float`, `value`: 0, `min`: 0, `max`: 24, `selector`: `GainSelector`,\n"
      "          `selectedValues`: { `All`: 1.5, `Red`: 2.5 } },\n"
      "        { `name`: `GammaEnable`, `type`: `Boolean`, `value`: true, `visibility`: `Expert` },\n"
      "        { `name`: `DeviceUserID`, `type`: `String`, `value`: `cam`, `maxLength`: 8 },\n"
      "        { `name`: `Device`, `type`: `Category`,\n"
      "          `children`: [`DeviceVendorName`, `GevMACAddress`, `GevCurrentIPAddress`, `HexValue`, `Hidden`, "
      "`OnlyUsb`,\n"
      "                       `NotAvailable`, `WriteOnly`] },\n"
      "        { `name`: `DeviceVendorName`, `type`: `String`, `access`: `RO`, `value`: `Zarvex` },\n"
      "        { `name`: `GevMACAddress`, `type`: `Integer`, `representation`: `MACAddress`, `value`: 207552162765 },\n"
      "        { `name`: `GevCurrentIPAddress`, `type`: `Integer`, `representation`: `IPV4Address`, `value`: "
      "3232235786 },\n"
      "        { `name`: `HexValue`, `type`: `Integer`, `representation`: `HexNumber`, `value`: 255, `min`: 0, `max`: "
      "65535 },\n"
      "        { `name`: `Hidden`, `type`: `Integer`, `visibility`: `Invisible`, `value`: 1 },\n"
      "        { `name`: `OnlyUsb`, `type`: `Integer`, `transportTypes`: [`U3V`], `value`: 3 },\n"
      "        { `name`: `NotAvailable`, `type`: `Integer`, `access`: `NA`, `value`: 3 },\n"
      "        { `name`: `WriteOnly`, `type`: `Integer`, `access`: `WO`, `value`: 3 },\n"
      "        { `name`: `Empty`, `type`: `Category`, `children`: [] },\n"
      "        { `name`: `Network`, `type`: `Category`, `children`: [`LostFeature`] },\n"
      "        { `name`: `LostFeature`, `type`: `Integer`, `zombie`: true, `value`: 1 }\n"
      "      ]\n"
      "    },\n"
      "    {\n"
      "      `name`: `@TransportLayer`,\n"
      "      `features`: [\n"
      "        { `name`: `Root`, `type`: `Category`, `children`: [`GevVersion`] },\n"
      "        { `name`: `GevVersion`, `type`: `Integer`, `access`: `RO`, `value`: 2 }\n"
      "      ]\n"
      "    }\n"
      "  ]\n"
      "}\n"
      "";

const QString kMap = QStringLiteral("@CameraDevice");

QByteArray json(QByteArray text)
{
    return text.replace('`', '"');
}

QString full(const char* shortName)
{
    return kMap + QLatin1Char('/') + QLatin1String(shortName);
}

// What a call threw: "none", "invalid", "generic", "std", "int" or "other".
QString thrownBy(const std::function<void()>& call)
{
    try {
        call();
    } catch (const GenICam::InvalidArgumentException&) {
        return QStringLiteral("invalid");
    } catch (const GenICam::GenericException&) {
        return QStringLiteral("generic");
    } catch (const std::exception&) {
        return QStringLiteral("std");
    } catch (int) {
        return QStringLiteral("int");
    } catch (...) {
        return QStringLiteral("other");
    }
    return QStringLiteral("none");
}

// Calls one operation of the contract on a parameter, by the name of the Operation.
void callOperation(const QSharedPointer<IParameter>& p, Operation op)
{
    switch (op) {
    case Operation::SetValueFromString:
        p->setValueFromString(QStringLiteral("32"));
        break;
    case Operation::IsZombie:
        p->isZombie();
        break;
    case Operation::IsWritable:
        p->isWritable();
        break;
    case Operation::IsImposable:
        p->isImposable();
        break;
    case Operation::GetVisibility:
        p->getVisibility();
        break;
    case Operation::GetType:
        p->getType();
        break;
    case Operation::GetFullName:
        p->getFullName();
        break;
    case Operation::GetName:
        p->getName();
        break;
    case Operation::AdvancedAccess:
        p->advancedAccess();
        break;
    case Operation::GetParameterData:
        p->getParameterData();
        break;
    case Operation::SetValue:
        if (auto* i = qobject_cast<IIntegerParameter*>(p.data()))
            i->setValue(32, true);
        else if (auto* f = qobject_cast<IFloatParameter*>(p.data()))
            f->setValue(20.0);
        break;
    case Operation::GetValue:
        if (auto* i = qobject_cast<IIntegerParameter*>(p.data()))
            i->getValue();
        else if (auto* f = qobject_cast<IFloatParameter*>(p.data()))
            f->getValue();
        break;
    case Operation::GetMinimum:
        if (auto* i = qobject_cast<IIntegerParameter*>(p.data()))
            i->getMinimum();
        else if (auto* f = qobject_cast<IFloatParameter*>(p.data()))
            f->getMinimum();
        break;
    case Operation::GetMaximum:
        if (auto* i = qobject_cast<IIntegerParameter*>(p.data()))
            i->getMaximum();
        else if (auto* f = qobject_cast<IFloatParameter*>(p.data()))
            f->getMaximum();
        break;
    case Operation::SetCommandPending:
        qobject_cast<ICommandParameter*>(p.data())->setCommandPending(true);
        break;
    case Operation::Execute:
        qobject_cast<ICommandParameter*>(p.data())->execute(true);
        break;
    case Operation::GetProperty:
        p->advancedAccess()->getProperty(QStringLiteral("Unit"), QString());
        break;
    case Operation::SetProperty:
        p->advancedAccess()->setProperty(QStringLiteral("Visibility"), QStringLiteral("Expert"));
        break;
    default:
        break;
    }
}

void callCollectionOperation(const QSharedPointer<SimulatedNodeMap>& map, Operation op)
{
    switch (op) {
    case Operation::GetParameter:
        map->getParameter(full("Width"));
        break;
    case Operation::HasParameter:
        map->hasParameter(full("Width"));
        break;
    case Operation::GetChildNames:
        map->getChildNames(full("Root"), false, true);
        break;
    case Operation::RefreshAll:
        map->refreshAll();
        break;
    case Operation::Poll:
        map->poll(300);
        break;
    default:
        break;
    }
}

// Resident memory of the process, where the system tells it; 0 elsewhere.
qint64 residentKilobytes()
{
    QFile file(QStringLiteral("/proc/self/statm"));
    if (!file.open(QIODevice::ReadOnly))
        return 0;
    const QList<QByteArray> fields = file.readAll().split(' ');
    return fields.size() > 1 ? fields.at(1).toLongLong() * 4 : 0;
}

// Records snapshots delivered to a receiver on the thread it lives in.
class Receiver : public QObject
{
    Q_OBJECT

public:
    QList<DataPtr> received;
    QList<QThread*> threads;

public slots:
    void onChanged(QSharedPointer<const ParameterCollection::ParameterData> data)
    {
        received.append(data);
        threads.append(QThread::currentThread());
    }
};

} // namespace

class TestSimulation : public QObject
{
    Q_OBJECT

private:
    QSharedPointer<SimulatedDevice> m_device;
    QSharedPointer<SimulatedNodeMap> m_map;

    QSharedPointer<IParameter> param(const char* shortName) { return m_map->getParameter(full(shortName)); }

    template <class T> T* as(const char* shortName)
    {
        QSharedPointer<IParameter> p = param(shortName);
        m_keep.append(p);
        return qobject_cast<T*>(p.data());
    }
    QList<QSharedPointer<IParameter>> m_keep;

    static qint64 intValue(const DataPtr& data) { return data.dynamicCast<const IntegerParameterData>()->value; }
    static double floatValue(const DataPtr& data) { return data.dynamicCast<const FloatParameterData>()->value; }

private slots:
    void init()
    {
        QString error;
        m_device = SimulatedDevice::fromJson(json(kCamera), &error);
        QVERIFY2(m_device, qPrintable(error));
        m_map = m_device->nodeMap(kMap);
        QVERIFY(m_map);
    }

    void cleanup()
    {
        m_keep.clear();
        m_map.clear();
        m_device.clear();
    }

    // ---------------------------------------------------------------- device

    void deviceBasics()
    {
        QCOMPARE(m_device->nodeMapNames(), QStringList({ kMap, QStringLiteral("@TransportLayer") }));
        QVERIFY(m_device->nodeMap(QStringLiteral("@TransportLayer")));
        QVERIFY(!m_device->nodeMap(QStringLiteral("@Nothing")));
        QCOMPARE(m_device->transportLayerType(), QStringLiteral("GEV"));
        QCOMPARE(m_device->baseInfo()->getTLType(), QStringLiteral("GEV"));
        QCOMPARE(m_device->clockMilliseconds(), qint64(0));

        QString error;
        auto usb = SimulatedDevice::fromJson(json(kCamera), &error, QStringLiteral("U3V"));
        QVERIFY(usb);
        QCOMPARE(usb->baseInfo()->getTLType(), QStringLiteral("U3V"));
        // Features are selected by transport type.
        QVERIFY(!m_map->hasParameter(full("OnlyUsb")));
        QVERIFY(usb->nodeMap(kMap)->hasParameter(full("OnlyUsb")));
        QVERIFY(!m_map->getChildNames(full("Device"), false, true).contains(full("OnlyUsb")));
        QVERIFY(usb->nodeMap(kMap)->getChildNames(full("Device"), false, true).contains(full("OnlyUsb")));
    }

    void nodeMapOutlivesDevice()
    {
        QSharedPointer<IParameter> width = param("Width");
        m_device.clear();
        auto* integer = qobject_cast<IIntegerParameter*>(width.data());
        QVERIFY(integer);
        integer->setValue(1600, true);
        QCOMPARE(integer->getValue(), qint64(1600));
        QCOMPARE(m_map->getParameter(full("Width")), width);
    }

    // ---------------------------------------------------------------- kinds and narrowing

    void narrowing_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<int>("type");
        QTest::newRow("integer") << "Width" << int(TypeInteger);
        QTest::newRow("float") << "ExposureTime" << int(TypeFloat);
        QTest::newRow("alias") << "ExposureTime/Alias" << int(TypeInteger);
        QTest::newRow("boolean") << "GammaEnable" << int(TypeBoolean);
        QTest::newRow("command") << "AcquisitionStart" << int(TypeCommand);
        QTest::newRow("string") << "DeviceUserID" << int(TypeString);
        QTest::newRow("enumeration") << "PixelFormat" << int(TypeEnumeration);
        QTest::newRow("category") << "Root" << int(TypeCategory);
    }

    void narrowing()
    {
        QFETCH(QString, name);
        QFETCH(int, type);
        QSharedPointer<IParameter> p = m_map->getParameter(kMap + QLatin1Char('/') + name);
        QVERIFY(p);
        QVERIFY(!p->isZombie());
        QCOMPARE(p->getType(), type);
        QCOMPARE(p->getParameterData()->type, type);
        IParameter* raw = p.data();

        QCOMPARE(qobject_cast<IIntegerParameter*>(raw) != nullptr, type == TypeInteger);
        QCOMPARE(qobject_cast<IFloatParameter*>(raw) != nullptr, type == TypeFloat);
        QCOMPARE(qobject_cast<IBooleanParameter*>(raw) != nullptr, type == TypeBoolean);
        QCOMPARE(qobject_cast<ICommandParameter*>(raw) != nullptr, type == TypeCommand);
        QCOMPARE(qobject_cast<IEnumParameter*>(raw) != nullptr, type == TypeEnumeration);

        QCOMPARE(IIntegerParameter::staticMetaObject.cast(raw) != nullptr, type == TypeInteger);
        QCOMPARE(IFloatParameter::staticMetaObject.cast(raw) != nullptr, type == TypeFloat);
        QCOMPARE(IBooleanParameter::staticMetaObject.cast(raw) != nullptr, type == TypeBoolean);
        QCOMPARE(ICommandParameter::staticMetaObject.cast(raw) != nullptr, type == TypeCommand);
        QCOMPARE(IEnumParameter::staticMetaObject.cast(raw) != nullptr, type == TypeEnumeration);
        QVERIFY(IParameter::staticMetaObject.cast(raw));

        QCOMPARE(dynamic_cast<IIntegerParameter*>(raw) != nullptr, type == TypeInteger);
        QCOMPARE(dynamic_cast<IFloatParameter*>(raw) != nullptr, type == TypeFloat);
        QCOMPARE(dynamic_cast<IBooleanParameter*>(raw) != nullptr, type == TypeBoolean);
        QCOMPARE(dynamic_cast<ICommandParameter*>(raw) != nullptr, type == TypeCommand);
        QCOMPARE(dynamic_cast<IEnumParameter*>(raw) != nullptr, type == TypeEnumeration);

        // Snapshots are the derived record of their kind.
        const DataPtr data = p->getParameterData();
        QCOMPARE(dynamic_cast<const IntegerParameterData*>(data.data()) != nullptr, type == TypeInteger);
        QCOMPARE(dynamic_cast<const FloatParameterData*>(data.data()) != nullptr, type == TypeFloat);
        QCOMPARE(dynamic_cast<const BooleanParameterData*>(data.data()) != nullptr, type == TypeBoolean);
        QCOMPARE(dynamic_cast<const CommandParameterData*>(data.data()) != nullptr, type == TypeCommand);
        QCOMPARE(dynamic_cast<const EnumParameterData*>(data.data()) != nullptr, type == TypeEnumeration);
        QVERIFY(!data->isPlaceholder);
    }

    // ---------------------------------------------------------------- operations per kind
    void everyOperationOnEveryKind_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("written");
        QTest::addColumn<bool>("writable");
        QTest::newRow("integer") << "Width"
                                 << "800" << true;
        QTest::newRow("float") << "ExposureTime"
                               << "250.5" << true;
        QTest::newRow("alias") << "ExposureTime/Alias"
                               << "300" << true;
        QTest::newRow("boolean") << "GammaEnable"
                                 << "0" << true;
        QTest::newRow("string") << "DeviceUserID"
                                << "right" << true;
        QTest::newRow("enumeration") << "AcquisitionMode"
                                     << "SingleFrame" << true;
        QTest::newRow("command") << "AcquisitionStart"
                                 << "" << true;
        QTest::newRow("category") << "Analog"
                                  << "" << false;
    }

    void everyOperationOnEveryKind()
    {
        QFETCH(QString, name);
        QFETCH(QString, written);
        QFETCH(bool, writable);
        QSharedPointer<IParameter> p = m_map->getParameter(name);
        QVERIFY(!p->isZombie());
        QVERIFY(p->isImposable());
        QCOMPARE(p->isWritable(), writable);
        const GenApi::EVisibility described = name == QLatin1String("GammaEnable") ? GenApi::Expert : GenApi::Beginner;
        QCOMPARE(p->getVisibility(), described);
        QCOMPARE(p->getName(), name);
        QCOMPARE(p->getFullName(), kMap + QLatin1Char('/') + name);
        QSharedPointer<IAdvancedParameterAccess> access = p->advancedAccess();
        QVERIFY(access);
        QCOMPARE(access->getProperty(QStringLiteral("Visibility")), Simulation::visibilityName(described));
        const DataPtr data = p->getParameterData();
        QVERIFY(data);
        QCOMPARE(int(data->type), p->getType());
        QCOMPARE(data->writable, writable);
        if (!written.isEmpty()) {
            QSignalSpy spy(p.data(), &IParameter::parameterDataChangedDecoupled);
            p->setValueFromString(written);
            QCOMPARE(p->getParameterData()->valueText.left(written.size()), written);
            QVERIFY(spy.wait(1000));
            QCOMPARE(spy.count(), 1);
        }
        if (auto* command = qobject_cast<ICommandParameter*>(p.data())) {
            command->setCommandPending(true);
            command->execute(true);
            QVERIFY(!p->getParameterData().dynamicCast<const CommandParameterData>()->done);
            QTRY_VERIFY(p->getParameterData().dynamicCast<const CommandParameterData>()->done);
        }
        access->setProperty(QStringLiteral("Visibility"), QStringLiteral("Guru"));
        QCOMPARE(p->getVisibility(), GenApi::Guru);
        QCOMPARE(p->getParameterData()->visibility, qint32(GenApi::Guru));
    }

    void integerOperations()
    {
        auto* width = as<IIntegerParameter>("Width");
        QVERIFY(width);
        QCOMPARE(width->getName(), QStringLiteral("Width"));
        QCOMPARE(width->getFullName(), full("Width"));
        QCOMPARE(width->getValue(), qint64(1920));
        QCOMPARE(width->getMinimum(), qint64(16));
        QCOMPARE(width->getMaximum(), qint64(1920));
        QVERIFY(width->isWritable());
        QVERIFY(width->isImposable());
        QCOMPARE(width->getVisibility(), GenApi::Beginner);
        width->setValue(1600, true);
        QCOMPARE(width->getValue(), qint64(1600));
        width->setValueFromString(QStringLiteral("800"));
        QCOMPARE(width->getValue(), qint64(800));
        QCOMPARE(thrownBy([&] { width->setValue(1930, true); }), QStringLiteral("invalid"));
        QCOMPARE(thrownBy([&] { width->setValue(0, true); }), QStringLiteral("invalid"));
        QCOMPARE(thrownBy([&] { width->setValue(801, true); }), QStringLiteral("invalid"));
        QCOMPARE(width->getValue(), qint64(800));

        auto* sensor = as<IIntegerParameter>("SensorWidth");
        QVERIFY(!sensor->isWritable());
        QCOMPARE(thrownBy([&] { sensor->setValue(100, true); }), QStringLiteral("generic"));
        QCOMPARE(thrownBy([&] { sensor->setValueFromString(QStringLiteral("100")); }), QStringLiteral("generic"));

        auto* notAvailable = as<IIntegerParameter>("NotAvailable");
        QCOMPARE(thrownBy([&] { notAvailable->getValue(); }), QStringLiteral("generic"));
        auto* writeOnly = as<IIntegerParameter>("WriteOnly");
        writeOnly->setValue(5, true);
        QCOMPARE(thrownBy([&] { writeOnly->getValue(); }), QStringLiteral("generic"));
    }

    void floatOperations()
    {
        auto* exposure = as<IFloatParameter>("ExposureTime");
        QVERIFY(exposure);
        QCOMPARE(exposure->getValue(), 10000.0);
        QCOMPARE(exposure->getMinimum(), 10.5);
        QCOMPARE(exposure->getMaximum(), 1000000.0);
        exposure->setValue(123.25);
        QCOMPARE(exposure->getValue(), 123.25);
        QCOMPARE(thrownBy([&] { exposure->setValue(10.0); }), QStringLiteral("invalid"));
        QCOMPARE(thrownBy([&] { exposure->setValue(2e6); }), QStringLiteral("invalid"));

        auto* rate = as<IFloatParameter>("AcquisitionFrameRate");
        rate->setValue(30.5);
        QCOMPARE(thrownBy([&] { rate->setValue(30.2); }), QStringLiteral("invalid"));
        const auto data = rate->getParameterData().dynamicCast<const FloatParameterData>();
        QVERIFY(data->hasIncrement);
        QCOMPARE(data->increment, 0.5);
        QVERIFY(!exposure->getParameterData().dynamicCast<const FloatParameterData>()->hasIncrement);
    }

    void floatAlias()
    {
        QVERIFY(m_map->hasParameter(full("ExposureTime/Alias")));
        QVERIFY(!m_map->hasParameter(full("Gain/Alias")));
        QVERIFY(m_map->getParameter(full("Gain/Alias"))->isZombie());
        auto* exposure = as<IFloatParameter>("ExposureTime");
        auto* alias = as<IIntegerParameter>("ExposureTime/Alias");
        QVERIFY(alias);
        QCOMPARE(alias->getFullName(), full("ExposureTime/Alias"));
        QCOMPARE(alias->getMinimum(), qint64(11)); // rounded inwards
        QCOMPARE(alias->getMaximum(), qint64(1000000));
        QCOMPARE(alias->getParameterData().dynamicCast<const IntegerParameterData>()->increment, qint64(1));
        QSignalSpy spy(alias, &IParameter::parameterDataChangedDecoupled);
        exposure->setValue(2000.6);
        QCOMPARE(alias->getValue(), qint64(2001));
        alias->setValue(500, true);
        QCOMPARE(exposure->getValue(), 500.0);
        QCOMPARE(alias->getValue(), qint64(500));
        QCOMPARE(thrownBy([&] { alias->setValue(10, true); }), QStringLiteral("invalid"));
        // The two changes above arrive, the refused write sends nothing.
        QTRY_COMPARE(spy.count(), 2);
        QCOMPARE(intValue(spy.at(0).at(0).value<DataPtr>()), qint64(2001));
        QCOMPARE(intValue(spy.at(1).at(0).value<DataPtr>()), qint64(500));

        // Writing the float signals the alias too.
        spy.clear();
        exposure->setValue(700.0);
        QTRY_COMPARE(spy.count(), 1);
        QCOMPARE(intValue(spy.at(0).at(0).value<DataPtr>()), qint64(700));
    }

    void booleanStringEnumCommandCategory()
    {
        QSharedPointer<IParameter> gamma = param("GammaEnable");
        gamma->setValueFromString(QStringLiteral("false"));
        QCOMPARE(gamma->getParameterData().dynamicCast<const BooleanParameterData>()->value, false);
        gamma->setValueFromString(QStringLiteral("1"));
        QCOMPARE(gamma->getParameterData()->valueText, QStringLiteral("1"));

        QSharedPointer<IParameter> user = param("DeviceUserID");
        user->setValueFromString(QStringLiteral("left"));
        QCOMPARE(user->getParameterData()->valueText, QStringLiteral("left"));
        QCOMPARE(
            thrownBy([&] { user->setValueFromString(QStringLiteral("far too long")); }), QStringLiteral("invalid"));

        QSharedPointer<IParameter> mode = param("AcquisitionMode");
        mode->setValueFromString(QStringLiteral("SingleFrame"));
        QCOMPARE(mode->getParameterData()->valueText, QStringLiteral("SingleFrame"));
        QCOMPARE(thrownBy([&] { mode->setValueFromString(QStringLiteral("Burst")); }), QStringLiteral("generic"));

        auto* start = as<ICommandParameter>("AcquisitionStart");
        start->setCommandPending(true);
        start->setCommandPending(false);
        QCOMPARE(thrownBy([&] { start->setValueFromString(QStringLiteral("1")); }), QStringLiteral("generic"));

        QSharedPointer<IParameter> root = param("Root");
        QVERIFY(!root->isWritable());
        QCOMPARE(root->getParameterData()->accessMode(), GenApi::RO);
        QCOMPARE(thrownBy([&] { root->setValueFromString(QStringLiteral("1")); }), QStringLiteral("generic"));
    }

    void valueTexts_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("text");
        QTest::newRow("decimal") << "Width"
                                 << "1920";
        QTest::newRow("hex") << "HexValue"
                             << "0xFF";
        QTest::newRow("ipv4") << "GevCurrentIPAddress"
                              << "192.168.1.10";
        QTest::newRow("mac") << "GevMACAddress"
                             << "00:30:53:12:AB:CD";
        QTest::newRow("float") << "ExposureTime"
                               << "10000.0";
        QTest::newRow("float precision 2") << "Gain"
                                           << "1.50";
        QTest::newRow("boolean") << "GammaEnable"
                                 << "1";
        QTest::newRow("enumeration") << "PixelFormat"
                                     << "Mono8";
        QTest::newRow("string") << "DeviceUserID"
                                << "cam";
        QTest::newRow("command") << "AcquisitionStart"
                                 << "";
        QTest::newRow("category") << "ImageFormat"
                                  << "";
    }

    void valueTexts()
    {
        QFETCH(QString, name);
        QFETCH(QString, text);
        QCOMPARE(m_map->getParameter(name)->getParameterData()->valueText, text);
    }

    void writeTexts_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("input");
        QTest::addColumn<QString>("shown");
        QTest::newRow("decimal") << "Width"
                                 << "1600"
                                 << "1600";
        QTest::newRow("hex upper") << "HexValue"
                                   << "0x1F"
                                   << "0x1F";
        QTest::newRow("hex lower") << "HexValue"
                                   << "0xab"
                                   << "0xAB";
        QTest::newRow("hex by decimal") << "HexValue"
                                        << "4096"
                                        << "0x1000";
        QTest::newRow("ipv4") << "GevCurrentIPAddress"
                              << "10.0.0.1"
                              << "10.0.0.1";
        QTest::newRow("ipv4 by decimal") << "GevCurrentIPAddress"
                                         << "16777343"
                                         << "1.0.0.127";
        QTest::newRow("mac") << "GevMACAddress"
                             << "00:11:22:aa:bb:cc"
                             << "00:11:22:AA:BB:CC";
        QTest::newRow("float") << "ExposureTime"
                               << "12.34"
                               << "12.3";
        QTest::newRow("float precision 2") << "Gain"
                                           << "3.14159"
                                           << "3.14";
        QTest::newRow("boolean true") << "GammaEnable"
                                      << "true"
                                      << "1";
        QTest::newRow("boolean 0") << "GammaEnable"
                                   << "0"
                                   << "0";
        QTest::newRow("boolean False") << "GammaEnable"
                                       << "False"
                                       << "0";
        QTest::newRow("enumeration") << "PixelFormat"
                                     << "Mono12"
                                     << "Mono12";
        QTest::newRow("string") << "DeviceUserID"
                                << "abc"
                                << "abc";
    }

    void writeTexts()
    {
        QFETCH(QString, name);
        QFETCH(QString, input);
        QFETCH(QString, shown);
        QSharedPointer<IParameter> p = m_map->getParameter(name);
        p->setValueFromString(input);
        QCOMPARE(p->getParameterData()->valueText, shown);
        // What the snapshot shows reads back.
        p->setValueFromString(shown);
        QCOMPARE(p->getParameterData()->valueText, shown);
    }

    void badWrites_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("input");
        QTest::addColumn<QString>("thrown");
        QTest::newRow("not a number") << "Width"
                                      << "wide"
                                      << "invalid";
        QTest::newRow("above range") << "Width"
                                     << "1936"
                                     << "invalid";
        QTest::newRow("below range") << "Width"
                                     << "0"
                                     << "invalid";
        QTest::newRow("off increment") << "Width"
                                       << "1601"
                                       << "invalid";
        QTest::newRow("bad hex") << "HexValue"
                                 << "0xZZ"
                                 << "invalid";
        QTest::newRow("hex above range") << "HexValue"
                                         << "0x10000"
                                         << "invalid";
        QTest::newRow("bad ipv4") << "GevCurrentIPAddress"
                                  << "1.2.3.400"
                                  << "invalid";
        QTest::newRow("short ipv4") << "GevCurrentIPAddress"
                                    << "1.2.3"
                                    << "invalid";
        QTest::newRow("bad mac") << "GevMACAddress"
                                 << "00:11:22"
                                 << "invalid";
        QTest::newRow("bad float") << "ExposureTime"
                                   << "1,5e"
                                   << "invalid";
        QTest::newRow("float range") << "ExposureTime"
                                     << "5"
                                     << "invalid";
        QTest::newRow("bad boolean") << "GammaEnable"
                                     << "yes"
                                     << "invalid";
        QTest::newRow("unknown entry") << "PixelFormat"
                                       << "Mono16"
                                       << "generic";
        QTest::newRow("entry not implemented") << "PixelFormat"
                                               << "RGB8"
                                               << "generic";
        QTest::newRow("read-only") << "SensorWidth"
                                   << "1920"
                                   << "generic";
        QTest::newRow("read-only string") << "DeviceVendorName"
                                          << "x"
                                          << "generic";
        QTest::newRow("not available") << "NotAvailable"
                                       << "3"
                                       << "generic";
    }

    void badWrites()
    {
        QFETCH(QString, name);
        QFETCH(QString, input);
        QFETCH(QString, thrown);
        QSharedPointer<IParameter> p = m_map->getParameter(name);
        const QString before = p->getParameterData()->valueText;
        QCOMPARE(thrownBy([&] { p->setValueFromString(input); }), thrown);
        QCOMPARE(p->getParameterData()->valueText, before);
    }

    // ---------------------------------------------------------------- snapshots

    void snapshotFields()
    {
        const auto width = param("Width")->getParameterData().dynamicCast<const IntegerParameterData>();
        QCOMPARE(width->type, qint32(TypeInteger));
        QCOMPARE(width->visibility, qint32(GenApi::Beginner));
        QVERIFY(width->readable && width->writable && width->implemented);
        QCOMPARE(width->value, qint64(1920));
        QCOMPARE(width->minimum, qint64(16));
        QCOMPARE(width->maximum, qint64(1920));
        QCOMPARE(width->increment, qint64(16));
        QCOMPARE(width->representation, QStringLiteral("Linear"));
        QCOMPARE(param("Hidden")->getParameterData().dynamicCast<const IntegerParameterData>()->representation,
            QStringLiteral("PureNumber"));

        const auto exposure = param("ExposureTime")->getParameterData().dynamicCast<const FloatParameterData>();
        QCOMPARE(exposure->value, 10000.0);
        QCOMPARE(exposure->minimum, 10.5);
        QCOMPARE(exposure->maximum, 1000000.0);
        QCOMPARE(exposure->precision, qint64(1));

        const auto gamma = param("GammaEnable")->getParameterData().dynamicCast<const BooleanParameterData>();
        QCOMPARE(gamma->value, true);
        QCOMPARE(gamma->visibility, qint32(GenApi::Expert));

        const auto start = param("AcquisitionStart")->getParameterData().dynamicCast<const CommandParameterData>();
        QCOMPARE(start->done, true);

        const auto pixel = param("PixelFormat")->getParameterData().dynamicCast<const EnumParameterData>();
        QCOMPARE(pixel->intValue, qint64(17301505));
        QCOMPARE(pixel->symbolicValues, QVector<QString>({ "Mono8", "Mono12" }));
        QCOMPARE(pixel->displayTexts, QVector<QString>({ "Mono 8", "Mono12" }));

        const DataPtr user = param("DeviceUserID")->getParameterData();
        QCOMPARE(user->type, qint32(TypeString));
        QCOMPARE(user->valueText, QStringLiteral("cam"));

        const DataPtr category = param("Empty")->getParameterData();
        QCOMPARE(category->type, qint32(TypeCategory));
        QCOMPARE(category->accessMode(), GenApi::RO);
        QCOMPARE(param("Hidden")->getParameterData()->visibility, qint32(GenApi::Invisible));
    }

    void accessModes_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<int>("mode");
        QTest::newRow("RW") << "Width" << int(GenApi::RW);
        QTest::newRow("RO") << "SensorWidth" << int(GenApi::RO);
        QTest::newRow("WO") << "WriteOnly" << int(GenApi::WO);
        QTest::newRow("NA") << "NotAvailable" << int(GenApi::NA);
        QTest::newRow("category") << "Root" << int(GenApi::RO);
    }

    void accessModes()
    {
        QFETCH(QString, name);
        QFETCH(int, mode);
        QSharedPointer<IParameter> p = m_map->getParameter(name);
        const DataPtr data = p->getParameterData();
        QCOMPARE(int(data->accessMode()), mode);
        QCOMPARE(p->isWritable(), data->writable);
        QCOMPARE(p->advancedAccess()->getProperty(QStringLiteral("AccessMode")),
            Simulation::accessModeName(GenApi::EAccessMode(mode)));
        // The fields follow the access rule.
        QCOMPARE(data->implemented, mode != GenApi::NI);
        QCOMPARE(data->readable, mode == GenApi::RO || mode == GenApi::RW);
        QCOMPARE(data->writable, mode == GenApi::WO || mode == GenApi::RW);
    }

    void notImplementedByImposing()
    {
        QSharedPointer<IParameter> p = param("Width");
        p->advancedAccess()->setProperty(QStringLiteral("AccessMode"), QStringLiteral("NI"));
        const DataPtr data = p->getParameterData();
        QVERIFY(!data->implemented && !data->readable && !data->writable);
        QCOMPARE(data->accessMode(), GenApi::NI);
    }

    void nullSnapshot()
    {
        QSharedPointer<IParameter> p = param("Width");
        QVERIFY(p->getParameterData());
        m_device->setNullSnapshot(full("Width"), true);
        QVERIFY(p->getParameterData().isNull());
        QCOMPARE(ParameterData::accessModeOf(p->getParameterData()), GenApi::NI);
        QVERIFY(param("OffsetX")->getParameterData());
        m_device->setNullSnapshot(full("Width"), false);
        QVERIFY(p->getParameterData());
    }

    // ---------------------------------------------------------------- names and children

    void childNames()
    {
        QCOMPARE(m_map->getChildNames(full("Root"), false, true),
            QList<QString>({ full("ImageFormat"), full("Acquisition"), full("Analog"), full("Device"), full("Empty"),
                full("Network") }));
        QCOMPARE(m_map->getChildNames(full("ImageFormat"), false, true),
            QList<QString>({ full("SensorWidth"), full("Width"), full("OffsetX"), full("PixelFormat") }));
        QCOMPARE(m_map->getChildNames(QStringLiteral("ImageFormat"), false, true).size(), 4);
        QVERIFY(m_map->getChildNames(full("Empty"), false, true).isEmpty());
        QVERIFY(m_map->getChildNames(full("Width"), false, true).isEmpty());
        QCOMPARE(thrownBy([&] { m_map->getChildNames(full("Nothing"), false, true); }), QStringLiteral("generic"));

        const QList<QString> all = m_map->getChildNames(full("Root"), true, true);
        QVERIFY(all.contains(full("LostFeature")));
        QVERIFY(all.indexOf(full("ImageFormat")) < all.indexOf(full("Width")));
        QVERIFY(all.indexOf(full("Width")) < all.indexOf(full("Acquisition")));
        QList<QString> sorted = m_map->getChildNames(full("ImageFormat"), false, false);
        QCOMPARE(sorted, QList<QString>({ full("OffsetX"), full("PixelFormat"), full("SensorWidth"), full("Width") }));

        auto transport = m_device->nodeMap(QStringLiteral("@TransportLayer"));
        QCOMPARE(transport->getChildNames(QStringLiteral("@TransportLayer/Root"), false, true),
            QList<QString>({ QStringLiteral("@TransportLayer/GevVersion") }));
    }

    void lookups()
    {
        QSharedPointer<IParameter> byFull = m_map->getParameter(full("Width"));
        QSharedPointer<IParameter> byShort = m_map->getParameter(QStringLiteral("Width"));
        QVERIFY(byFull);
        QCOMPARE(byShort, byFull);
        QCOMPARE(m_map->getParameter(full("Width")), byFull);
        QCOMPARE(byShort->getFullName(), full("Width"));
        // A feature that no category lists still exists.
        QVERIFY(m_map->hasParameter(QStringLiteral("AcquisitionFrameRate")));
        QVERIFY(!m_map->getParameter(QStringLiteral("AcquisitionFrameRate"))->isZombie());
        // Another node map's names are not ours.
        QVERIFY(!m_map->hasParameter(QStringLiteral("@TransportLayer/GevVersion")));
        QVERIFY(m_map->hasParameter(full("Width")));
        QVERIFY(m_map->hasParameter(QStringLiteral("Width")));
        QVERIFY(!m_map->hasParameter(full("Nothing")));
    }

    void unknownNameIsZombie_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("fullName");
        QTest::addColumn<QString>("shortName");
        QTest::newRow("full") << full("Nothing") << full("Nothing") << "Nothing";
        QTest::newRow("short") << "Nothing" << full("Nothing") << "Nothing";
        QTest::newRow("other map") << "@TransportLayer/GevVersion"
                                   << "@TransportLayer/GevVersion"
                                   << "GevVersion";
        QTest::newRow("bad alias") << full("Width/Alias") << full("Width/Alias") << "Width/Alias";
    }

    void unknownNameIsZombie()
    {
        QFETCH(QString, name);
        QFETCH(QString, fullName);
        QFETCH(QString, shortName);
        QSharedPointer<IParameter> zombie = m_map->getParameter(name);
        QVERIFY(zombie);
        QVERIFY(zombie->isZombie());
        QVERIFY(!zombie->isImposable());
        QCOMPARE(zombie->getName(), shortName);
        QCOMPARE(zombie->getFullName(), fullName);
        QCOMPARE(thrownBy([&] { zombie->setValueFromString(QStringLiteral("1")); }), QStringLiteral("generic"));
        QCOMPARE(thrownBy([&] { zombie->isWritable(); }), QStringLiteral("generic"));
        QCOMPARE(thrownBy([&] { zombie->getVisibility(); }), QStringLiteral("generic"));
        QCOMPARE(thrownBy([&] { zombie->getType(); }), QStringLiteral("generic"));
        QCOMPARE(thrownBy([&] { zombie->advancedAccess(); }), QStringLiteral("generic"));
        QCOMPARE(thrownBy([&] { zombie->getParameterData(); }), QStringLiteral("generic"));
        QVERIFY(!qobject_cast<IIntegerParameter*>(zombie.data()));
    }

    void describedZombie()
    {
        QSharedPointer<IParameter> lost = param("LostFeature");
        QVERIFY(lost->isZombie());
        QVERIFY(lost->isImposable());
        QCOMPARE(lost->getName(), QStringLiteral("LostFeature"));
        QCOMPARE(lost, param("LostFeature"));
        QCOMPARE(thrownBy([&] { lost->getParameterData(); }), QStringLiteral("generic"));
        QCOMPARE(thrownBy([&] { lost->isWritable(); }), QStringLiteral("generic"));
        QCOMPARE(thrownBy([&] { lost->setValueFromString(QStringLiteral("2")); }), QStringLiteral("generic"));
        QCOMPARE(
            thrownBy([&] { qobject_cast<IIntegerParameter*>(lost.data())->getValue(); }), QStringLiteral("generic"));
        // Imposing works all the same.
        lost->advancedAccess()->setProperty(QStringLiteral("Visibility"), QStringLiteral("Guru"));
        QCOMPARE(lost->advancedAccess()->getProperty(QStringLiteral("Visibility")), QStringLiteral("Guru"));
    }

    // ---------------------------------------------------------------- properties

    void properties_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("key");
        QTest::addColumn<QString>("expected");
        QTest::newRow("display name") << "Width"
                                      << "DisplayName"
                                      << "Image Width";
        QTest::newRow("display name missing") << "OffsetX"
                                              << "DisplayName"
                                              << "<unknown>";
        QTest::newRow("description") << "Width"
                                     << "Description"
                                     << "Width of the image";
        QTest::newRow("tooltip") << "Width"
                                 << "Tooltip"
                                 << "Width tip";
        QTest::newRow("docu url") << "Width"
                                  << "DocuURL"
                                  << "https://zarvex.example/Width";
        QTest::newRow("unit") << "Width"
                              << "Unit"
                              << "px";
        QTest::newRow("unit missing") << "OffsetX"
                                      << "Unit"
                                      << "<unknown>";
        QTest::newRow("representation") << "HexValue"
                                        << "Representation"
                                        << "HexNumber";
        QTest::newRow("visibility") << "GammaEnable"
                                    << "Visibility"
                                    << "Expert";
        QTest::newRow("unknown key") << "Width"
                                     << "Colour"
                                     << "<unknown>";
    }

    void properties()
    {
        QFETCH(QString, name);
        QFETCH(QString, key);
        QFETCH(QString, expected);
        QSharedPointer<IAdvancedParameterAccess> access = m_map->getParameter(name)->advancedAccess();
        QVERIFY(access);
        QCOMPARE(access->getProperty(key, QStringLiteral("<unknown>")), expected);
        QCOMPARE(access->getProperty(key), expected == QLatin1String("<unknown>") ? QString() : expected);
    }

    void imposedProperties()
    {
        QSharedPointer<IParameter> width = param("Width");
        QSignalSpy spy(width.data(), &IParameter::parameterDataChangedDecoupled);
        width->advancedAccess()->setProperty(QStringLiteral("Visibility"), QStringLiteral("Guru"));
        width->advancedAccess()->setProperty(QStringLiteral("AccessMode"), QStringLiteral("RO"));
        QCOMPARE(width->getVisibility(), GenApi::Guru);
        QVERIFY(!width->isWritable());
        const DataPtr data = width->getParameterData();
        QCOMPARE(data->visibility, qint32(GenApi::Guru));
        QCOMPARE(data->accessMode(), GenApi::RO);
        QCOMPARE(thrownBy([&] { width->setValueFromString(QStringLiteral("800")); }), QStringLiteral("generic"));
        QTRY_COMPARE(spy.count(), 2);
        QCOMPARE(spy.last().at(0).value<DataPtr>()->accessMode(), GenApi::RO);
        QCOMPARE(spy.last().at(0).value<DataPtr>()->visibility, qint32(GenApi::Guru));

        // The imposed access replaces the described one.
        QSharedPointer<IParameter> sensor = param("SensorWidth");
        sensor->advancedAccess()->setProperty(QStringLiteral("AccessMode"), QStringLiteral("RW"));
        QVERIFY(sensor->isWritable());
        // Imposing the same again changes nothing and signals nothing.
        spy.clear();
        width->advancedAccess()->setProperty(QStringLiteral("Visibility"), QStringLiteral("Guru"));
        QTest::qWait(20);
        QCOMPARE(spy.count(), 0);
    }

    void imposedRefusals_data()
    {
        QTest::addColumn<QString>("key");
        QTest::addColumn<QString>("value");
        QTest::newRow("visibility text") << "Visibility"
                                         << "Novice";
        QTest::newRow("visibility case") << "Visibility"
                                         << "expert";
        QTest::newRow("access text") << "AccessMode"
                                     << "RX";
        QTest::newRow("access empty") << "AccessMode"
                                      << "";
        QTest::newRow("other key") << "Unit"
                                   << "mm";
        QTest::newRow("empty key") << ""
                                   << "RO";
    }

    void imposedRefusals()
    {
        QFETCH(QString, key);
        QFETCH(QString, value);
        QSharedPointer<IParameter> width = param("Width");
        QCOMPARE(thrownBy([&] { width->advancedAccess()->setProperty(key, value); }), QStringLiteral("invalid"));
        QCOMPARE(width->getParameterData()->accessMode(), GenApi::RW);
        QCOMPARE(width->getVisibility(), GenApi::Beginner);
    }

    // ---------------------------------------------------------------- decoupled signals

    void decoupledDelivery()
    {
        auto* width = as<IIntegerParameter>("Width");
        std::atomic<int> direct { 0 };
        connect(
            width, &IParameter::parameterDataChangedDecoupled, this, [&](const DataPtr&) { ++direct; },
            Qt::DirectConnection);
        QSignalSpy spy(width, &IParameter::parameterDataChangedDecoupled);
        width->setValue(1600, true);
        QCOMPARE(direct.load(), 0); // nothing inside the call
        QCOMPARE(spy.count(), 0);
        QVERIFY(spy.wait(1000));
        QCOMPARE(direct.load(), 1);
        QCOMPARE(spy.count(), 1);
        const DataPtr data = spy.at(0).at(0).value<DataPtr>();
        QCOMPARE(intValue(data), qint64(1600));
        QCOMPARE(data->valueText, QStringLiteral("1600"));

        // Two writes, two snapshots, in order.
        spy.clear();
        width->setValue(800, true);
        width->setValue(640, true);
        QCOMPARE(spy.count(), 0);
        QTRY_COMPARE(spy.count(), 2);
        QCOMPARE(intValue(spy.at(0).at(0).value<DataPtr>()), qint64(800));
        QCOMPARE(intValue(spy.at(1).at(0).value<DataPtr>()), qint64(640));

        // An unchanged snapshot emits nothing.
        spy.clear();
        width->setValue(640, true);
        width->setValueFromString(QStringLiteral("640"));
        QTest::qWait(30);
        QCOMPARE(spy.count(), 0);

        // Back and forth within one turn: two changes, both delivered.
        width->setValue(320, true);
        width->setValue(640, true);
        QTRY_COMPARE(spy.count(), 2);
    }

    void slotWritesBack()
    {
        // The range moves under the value; a slot clamps it by writing back, as the tree's items do.
        auto* width = as<IIntegerParameter>("Width");
        QList<qint64> seen;
        connect(width, &IParameter::parameterDataChangedDecoupled, this, [&](const DataPtr& data) {
            const auto integer = data.dynamicCast<const IntegerParameterData>();
            seen.append(integer->value);
            if (integer->writable && integer->value > integer->maximum)
                width->setValue(integer->maximum, true);
        });
        QVERIFY(m_device->changeOnDevice(full("SensorWidth"), 1280));
        m_map->refreshAll();
        QTRY_COMPARE(seen.size(), 2);
        QCOMPARE(seen.at(0), qint64(1920));
        QCOMPARE(seen.at(1), qint64(1280));
        QCOMPARE(width->getValue(), qint64(1280));
        QCOMPARE(width->getMaximum(), qint64(1280));
        QTest::qWait(30);
        QCOMPARE(seen.size(), 2);
    }

    void workerThreadDelivery()
    {
        QThread worker;
        worker.start();
        m_device->setDeliveryThread(&worker);

        auto* width = as<IIntegerParameter>("Width");
        Receiver receiver; // lives in this (the GUI) thread
        std::atomic<QThread*> emittingThread { nullptr };
        connect(width, &IParameter::parameterDataChangedDecoupled, &receiver, &Receiver::onChanged);
        connect(
            width, &IParameter::parameterDataChangedDecoupled, width,
            [&](const DataPtr&) { emittingThread = QThread::currentThread(); }, Qt::DirectConnection);

        width->setValue(1024, true);
        QTRY_COMPARE(receiver.received.size(), 1);
        QCOMPARE(emittingThread.load(), &worker);
        QCOMPARE(receiver.threads.at(0), QThread::currentThread());
        QCOMPARE(intValue(receiver.received.at(0)), qint64(1024));

        // Changes made from the worker thread reach the GUI thread just as well.
        QSharedPointer<IParameter> keep = param("Width");
        QObject context;
        context.moveToThread(&worker);
        QMetaObject::invokeMethod(
            &context, [keep] { qobject_cast<IIntegerParameter*>(keep.data())->setValue(512, true); },
            Qt::BlockingQueuedConnection);
        QTRY_COMPARE(receiver.received.size(), 2);
        QCOMPARE(intValue(receiver.received.at(1)), qint64(512));
        QCOMPARE(receiver.threads.at(1), QThread::currentThread());

        m_device->setDeliveryThread(nullptr);
        width->setValue(256, true);
        QTRY_COMPARE(receiver.received.size(), 3);
        QCOMPARE(emittingThread.load(), QThread::currentThread());
        QMetaObject::invokeMethod(
            &context, [&context] { context.moveToThread(QCoreApplication::instance()->thread()); },
            Qt::BlockingQueuedConnection);
        worker.quit();
        worker.wait();
    }

    void droppedWhileQueued()
    {
        // Everything is dropped while a change is still queued: nothing is delivered, nothing breaks.
        QSharedPointer<IParameter> width = param("Width");
        bool delivered = false;
        connect(width.data(), &IParameter::parameterDataChangedDecoupled, this, [&] { delivered = true; });
        qobject_cast<IIntegerParameter*>(width.data())->setValue(800, true);
        width.clear();
        cleanup();
        QTest::qWait(20);
        QVERIFY(!delivered);
    }

    void lastReferenceDroppedInSlot()
    {
        QSharedPointer<IParameter> width = param("Width");
        int calls = 0;
        connect(width.data(), &IParameter::parameterDataChangedDecoupled, this, [&] {
            ++calls;
            width.clear();
            cleanup();
        });
        qobject_cast<IIntegerParameter*>(width.data())->setValue(800, true);
        qobject_cast<IIntegerParameter*>(m_map->getParameter(full("OffsetX")).data())->setValue(16, true);
        QTRY_COMPARE(calls, 1);
        QTest::qWait(20);
        QCOMPARE(calls, 1);
    }

    // ---------------------------------------------------------------- faults

    void parameterFaults_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<Operation>("op");
        QTest::addColumn<FaultKind>("kind");
        QTest::addColumn<QString>("thrown");
        const struct
        {
            const char* name;
            Operation op;
        } ops[] = { { "Width", Operation::SetValueFromString }, { "Width", Operation::IsZombie },
            { "Width", Operation::IsWritable }, { "Width", Operation::IsImposable },
            { "Width", Operation::GetVisibility }, { "Width", Operation::GetType }, { "Width", Operation::GetFullName },
            { "Width", Operation::GetName }, { "Width", Operation::AdvancedAccess },
            { "Width", Operation::GetParameterData }, { "Width", Operation::SetValue },
            { "Width", Operation::GetValue }, { "Width", Operation::GetMinimum }, { "Width", Operation::GetMaximum },
            { "ExposureTime", Operation::SetValue }, { "ExposureTime", Operation::GetValue },
            { "ExposureTime", Operation::GetMinimum }, { "ExposureTime", Operation::GetMaximum },
            { "AcquisitionStart", Operation::SetCommandPending }, { "AcquisitionStart", Operation::Execute },
            { "Width", Operation::GetProperty }, { "Width", Operation::SetProperty } };
        const struct
        {
            FaultKind kind;
            const char* thrown;
        } kinds[] = { { FaultKind::GenICam, "generic" }, { FaultKind::StdException, "std" },
            { FaultKind::NonStdException, "int" } };
        for (const auto& o : ops) {
            for (const auto& k : kinds) {
                QTest::addRow("%s %d %s", o.name, int(o.op), k.thrown)
                    << QString::fromLatin1(o.name) << o.op << k.kind << QString::fromLatin1(k.thrown);
            }
        }
    }

    void parameterFaults()
    {
        QFETCH(QString, name);
        QFETCH(Operation, op);
        QFETCH(FaultKind, kind);
        QFETCH(QString, thrown);
        QSharedPointer<IParameter> p = m_map->getParameter(name);
        QCOMPARE(thrownBy([&] { callOperation(p, op); }), QStringLiteral("none"));
        m_device->injectFault(kMap + QLatin1Char('/') + name, op, kind, 2);
        QCOMPARE(thrownBy([&] { callOperation(p, op); }), thrown);
        QCOMPARE(thrownBy([&] { callOperation(p, op); }), thrown);
        QCOMPARE(thrownBy([&] { callOperation(p, op); }), QStringLiteral("none")); // used up
        // Other operations and other parameters are not hit.
        m_device->injectFault(kMap + QLatin1Char('/') + name, op, kind);
        if (op != Operation::GetName)
            QCOMPARE(thrownBy([&] { p->getName(); }), QStringLiteral("none"));
        QCOMPARE(thrownBy([&] { callOperation(param("OffsetX"), Operation::GetType); }), QStringLiteral("none"));
        for (int i = 0; i < 3; ++i)
            QCOMPARE(thrownBy([&] { callOperation(p, op); }), thrown); // until cleared
        m_device->clearFaults();
        QCOMPARE(thrownBy([&] { callOperation(p, op); }), QStringLiteral("none"));
    }

    void anyOperationFault()
    {
        QSharedPointer<IParameter> p = param("Width");
        m_device->injectFault(full("Width"), Operation::Any, FaultKind::GenICam);
        QCOMPARE(thrownBy([&] { p->getName(); }), QStringLiteral("generic"));
        QCOMPARE(thrownBy([&] { p->isZombie(); }), QStringLiteral("generic"));
        QCOMPARE(thrownBy([&] { p->getParameterData(); }), QStringLiteral("generic"));
        m_device->clearFaults();
        QCOMPARE(thrownBy([&] { p->getParameterData(); }), QStringLiteral("none"));
    }

    void collectionFaults_data()
    {
        QTest::addColumn<Operation>("op");
        QTest::addColumn<FaultKind>("kind");
        QTest::addColumn<QString>("thrown");
        const Operation ops[] = { Operation::GetParameter, Operation::HasParameter, Operation::GetChildNames,
            Operation::RefreshAll, Operation::Poll, Operation::Any };
        const struct
        {
            FaultKind kind;
            const char* thrown;
        } kinds[] = { { FaultKind::GenICam, "generic" }, { FaultKind::StdException, "std" },
            { FaultKind::NonStdException, "int" } };
        for (Operation op : ops)
            for (const auto& k : kinds)
                QTest::addRow("%d %s", int(op), k.thrown) << op << k.kind << QString::fromLatin1(k.thrown);
    }

    void collectionFaults()
    {
        QFETCH(Operation, op);
        QFETCH(FaultKind, kind);
        QFETCH(QString, thrown);
        const Operation called = op == Operation::Any ? Operation::GetChildNames : op;
        m_device->injectFault(kMap, op, kind, 1);
        QCOMPARE(thrownBy([&] { callCollectionOperation(m_map, called); }), thrown);
        QCOMPARE(thrownBy([&] { callCollectionOperation(m_map, called); }), QStringLiteral("none"));
        // A fault on one node map leaves the other alone.
        m_device->injectFault(kMap, op, kind);
        auto transport = m_device->nodeMap(QStringLiteral("@TransportLayer"));
        QCOMPARE(
            thrownBy([&] { transport->getChildNames(QStringLiteral("Root"), false, true); }), QStringLiteral("none"));
        QCOMPARE(thrownBy([&] { transport->poll(300); }), QStringLiteral("none"));
    }

    // ---------------------------------------------------------------- unplugging

    void unplugged()
    {
        QSharedPointer<IParameter> width = param("Width");
        auto* integer = qobject_cast<IIntegerParameter*>(width.data());
        QSignalSpy spy(width.data(), &IParameter::parameterDataChangedDecoupled);
        integer->setValue(1600, true); // queued, and then the device goes
        m_device->unplug();
        QVERIFY(!m_device->isPlugged());
        QVERIFY(width->isZombie());
        QVERIFY(!width->isImposable());
        QCOMPARE(width->getName(), QStringLiteral("Width"));
        QCOMPARE(width->getFullName(), full("Width"));
        QCOMPARE(thrownBy([&] { width->getParameterData(); }), QStringLiteral("generic"));
        QCOMPARE(thrownBy([&] { width->isWritable(); }), QStringLiteral("generic"));
        QCOMPARE(thrownBy([&] { integer->setValue(800, true); }), QStringLiteral("generic"));
        QCOMPARE(thrownBy([&] { width->advancedAccess(); }), QStringLiteral("generic"));
        QCOMPARE(thrownBy([&] { m_map->getParameter(full("Width")); }), QStringLiteral("generic"));
        QCOMPARE(thrownBy([&] { m_map->getChildNames(full("Root"), false, true); }), QStringLiteral("generic"));
        QCOMPARE(thrownBy([&] { m_map->refreshAll(); }), QStringLiteral("generic"));
        QCOMPARE(thrownBy([&] { m_map->poll(300); }), QStringLiteral("generic"));
        QVERIFY(m_map->hasParameter(full("Width")));
        QTest::qWait(50);
        QCOMPARE(spy.count(), 0);

        m_device->replug();
        QVERIFY(!width->isZombie());
        QCOMPARE(m_map->getParameter(full("Width")), width);
        QCOMPARE(integer->getValue(), qint64(1600));
        integer->setValue(800, true);
        QTRY_COMPARE(spy.count(), 1);
        QCOMPARE(intValue(spy.at(0).at(0).value<DataPtr>()), qint64(800));
    }

    // ---------------------------------------------------------------- dependencies

    void rangeMovesUnderValue()
    {
        auto* width = as<IIntegerParameter>("Width");
        auto* offset = as<IIntegerParameter>("OffsetX");
        QSignalSpy widthSpy(width, &IParameter::parameterDataChangedDecoupled);
        QSignalSpy offsetSpy(offset, &IParameter::parameterDataChangedDecoupled);
        QSignalSpy pixelSpy(param("PixelFormat").data(), &IParameter::parameterDataChangedDecoupled);
        width->setValue(1600, true);
        QTRY_COMPARE(offsetSpy.count(), 1);
        QCOMPARE(
            offsetSpy.at(0).at(0).value<DataPtr>().dynamicCast<const IntegerParameterData>()->maximum, qint64(320));
        QCOMPARE(widthSpy.count(), 1);
        offset->setValue(320, true);
        QTRY_COMPARE(widthSpy.count(), 2);
        const auto data = widthSpy.at(1).at(0).value<DataPtr>().dynamicCast<const IntegerParameterData>();
        QCOMPARE(data->value, qint64(1600));
        QCOMPARE(data->maximum, qint64(1600));
        QCOMPARE(pixelSpy.count(), 0); // not a dependent
    }

    void accessFollowsExpression()
    {
        QSharedPointer<IParameter> exposure = param("ExposureTime");
        QSharedPointer<IParameter> alias = param("ExposureTime/Alias");
        QSignalSpy spy(exposure.data(), &IParameter::parameterDataChangedDecoupled);
        QSignalSpy aliasSpy(alias.data(), &IParameter::parameterDataChangedDecoupled);
        QVERIFY(exposure->isWritable());
        param("ExposureAuto")->setValueFromString(QStringLiteral("Continuous"));
        QVERIFY(!exposure->isWritable());
        QVERIFY(!alias->isWritable());
        QCOMPARE(exposure->getParameterData()->accessMode(), GenApi::RO);
        QCOMPARE(thrownBy([&] { exposure->setValueFromString(QStringLiteral("100")); }), QStringLiteral("generic"));
        QTRY_COMPARE(spy.count(), 1);
        QCOMPARE(spy.at(0).at(0).value<DataPtr>()->accessMode(), GenApi::RO);
        QTRY_COMPARE(aliasSpy.count(), 1);
        param("ExposureAuto")->setValueFromString(QStringLiteral("Off"));
        QTRY_COMPARE(spy.count(), 2);
        QCOMPARE(spy.at(1).at(0).value<DataPtr>()->accessMode(), GenApi::RW);
    }

    void enumEntriesFollowExpression()
    {
        QSharedPointer<IParameter> pixel = param("PixelFormat");
        QSignalSpy spy(pixel.data(), &IParameter::parameterDataChangedDecoupled);
        QVERIFY(m_device->changeOnDevice(full("ColorSensor"), true));
        m_map->refreshAll();
        QTRY_COMPARE(spy.count(), 1);
        QCOMPARE(spy.at(0).at(0).value<DataPtr>().dynamicCast<const EnumParameterData>()->symbolicValues.size(), 3);
        pixel->setValueFromString(QStringLiteral("RGB8"));
        QCOMPARE(pixel->getParameterData().dynamicCast<const EnumParameterData>()->intValue, qint64(35127316));
    }

    void selector()
    {
        QSharedPointer<IParameter> selector = param("GainSelector");
        auto* gain = as<IFloatParameter>("Gain");
        QSignalSpy spy(gain, &IParameter::parameterDataChangedDecoupled);
        QCOMPARE(gain->getValue(), 1.5);
        selector->setValueFromString(QStringLiteral("Red"));
        QCOMPARE(gain->getValue(), 2.5);
        QTRY_COMPARE(spy.count(), 1);
        QCOMPARE(floatValue(spy.at(0).at(0).value<DataPtr>()), 2.5);
        selector->setValueFromString(QStringLiteral("Blue"));
        QCOMPARE(gain->getValue(), 0.0); // no selected value given: the feature's value
        gain->setValue(7.0);
        selector->setValueFromString(QStringLiteral("Red"));
        QCOMPARE(gain->getValue(), 2.5);
        selector->setValueFromString(QStringLiteral("Blue"));
        QCOMPARE(gain->getValue(), 7.0);
        QTRY_COMPARE(spy.count(), 5);
        QCOMPARE(floatValue(spy.at(4).at(0).value<DataPtr>()), 7.0);
    }

    void formulasFollowWhatTheyName()
    {
        // Listed against the order of evaluation, and D names both B and C.
        const QByteArray description
            = json("{`format`:`zarvex-simulated-device`,`version`:1,`nodeMaps`:[{`name`:`@Cam`,`features`:["
                   "{`name`:`Root`,`type`:`Category`,`children`:[`A`,`B`,`C`,`D`]},"
                   "{`name`:`D`,`type`:`Integer`,`access`:`RO`,`value`:`B + C`,`max`:1000},"
                   "{`name`:`C`,`type`:`Integer`,`access`:`RO`,`value`:`B * 2`,`max`:1000},"
                   "{`name`:`B`,`type`:`Integer`,`value`:`A + 1`,`max`:1000},"
                   "{`name`:`A`,`type`:`Integer`,`value`:1,`max`:100}]}]}");
        QString error;
        const QSharedPointer<SimulatedDevice> device = SimulatedDevice::fromJson(description, &error);
        QVERIFY2(device, qPrintable(error));
        const QSharedPointer<SimulatedNodeMap> map = device->nodeMap(QStringLiteral("@Cam"));
        const auto value = [&map](const char* name) {
            return map->getParameter(QLatin1String(name)).dynamicCast<IIntegerParameter>()->getValue();
        };
        QCOMPARE(value("B"), qint64(2));
        QCOMPARE(value("C"), qint64(4));
        QCOMPARE(value("D"), qint64(6));

        const QSharedPointer<IParameter> a = map->getParameter(QStringLiteral("A"));
        const QSharedPointer<IParameter> b = map->getParameter(QStringLiteral("B"));
        const QSharedPointer<IParameter> c = map->getParameter(QStringLiteral("C"));
        const QSharedPointer<IParameter> d = map->getParameter(QStringLiteral("D"));
        QSignalSpy bSpy(b.data(), &IParameter::parameterDataChangedDecoupled);
        QSignalSpy cSpy(c.data(), &IParameter::parameterDataChangedDecoupled);
        QSignalSpy dSpy(d.data(), &IParameter::parameterDataChangedDecoupled);
        a->setValueFromString(QStringLiteral("10"));
        QCOMPARE(value("B"), qint64(11));
        QCOMPARE(value("C"), qint64(22));
        QCOMPARE(value("D"), qint64(33));
        QTRY_COMPARE(dSpy.count(), 1);
        // Each formula emits once, already with its final value.
        QCOMPARE(bSpy.count(), 1);
        QCOMPARE(cSpy.count(), 1);
        QCOMPARE(intValue(dSpy.at(0).at(0).value<DataPtr>()), qint64(33));

        // A writable formula keeps what is written to it until what it names changes.
        b->setValueFromString(QStringLiteral("50"));
        QCOMPARE(value("B"), qint64(50));
        QCOMPARE(value("C"), qint64(100));
        a->setValueFromString(QStringLiteral("20"));
        QCOMPARE(value("B"), qint64(21));
        QCOMPARE(value("D"), qint64(63));
    }

    // ---------------------------------------------------------------- polling and refreshing

    void pollChangesOnlyPolledFeatures()
    {
        QSharedPointer<IParameter> temperature = param("DeviceTemperature");
        QSharedPointer<IParameter> timestamp = param("Timestamp");
        QSharedPointer<IParameter> frames = param("FrameCounter");
        QSharedPointer<IParameter> width = param("Width");
        QSignalSpy temperatureSpy(temperature.data(), &IParameter::parameterDataChangedDecoupled);
        QSignalSpy timestampSpy(timestamp.data(), &IParameter::parameterDataChangedDecoupled);
        QSignalSpy framesSpy(frames.data(), &IParameter::parameterDataChangedDecoupled);
        QSignalSpy widthSpy(width.data(), &IParameter::parameterDataChangedDecoupled);

        QTest::qWait(50); // time alone changes nothing
        QCOMPARE(temperatureSpy.count() + timestampSpy.count() + framesSpy.count(), 0);

        m_map->poll(300);
        QCOMPARE(temperatureSpy.count(), 0); // not inside poll
        QCOMPARE(m_device->clockMilliseconds(), qint64(300));
        QTRY_COMPARE(timestampSpy.count(), 1);
        QTRY_COMPARE(framesSpy.count(), 1);
        QTRY_COMPARE(temperatureSpy.count(), 1);
        QCOMPARE(intValue(timestampSpy.at(0).at(0).value<DataPtr>()), qint64(300000));
        QCOMPARE(intValue(framesSpy.at(0).at(0).value<DataPtr>()), qint64(7 + 6)); // 20 per second for 0.3 s
        const double t1 = floatValue(temperatureSpy.at(0).at(0).value<DataPtr>());
        QVERIFY(qAbs(t1 - 40.0) == 0.5);

        m_map->poll(300);
        QTRY_COMPARE(timestampSpy.count(), 2);
        QCOMPARE(intValue(timestampSpy.at(1).at(0).value<DataPtr>()), qint64(600000));
        QTRY_COMPARE(temperatureSpy.count(), 2);
        QCOMPARE(widthSpy.count(), 0);

        // Another device with the same description walks the same way.
        QString error;
        auto twin = SimulatedDevice::fromJson(json(kCamera), &error);
        auto twinMap = twin->nodeMap(kMap);
        QSharedPointer<IParameter> twinTemperature = twinMap->getParameter(QStringLiteral("DeviceTemperature"));
        twinMap->poll(300);
        QCOMPARE(floatValue(twinTemperature->getParameterData()), t1);

        // The other node map isn't touched by this one's poll.
        auto transport = m_device->nodeMap(QStringLiteral("@TransportLayer"));
        QSignalSpy versionSpy(
            transport->getParameter(QStringLiteral("GevVersion")).data(), &IParameter::parameterDataChangedDecoupled);
        m_map->poll(300);
        QTest::qWait(20);
        QCOMPARE(versionSpy.count(), 0);
    }

    void pollWithoutTimeChangesNothing()
    {
        QSharedPointer<IParameter> temperature = param("DeviceTemperature");
        QSignalSpy spy(temperature.data(), &IParameter::parameterDataChangedDecoupled);
        m_map->poll(0);
        QTest::qWait(20);
        QCOMPARE(spy.count(), 0);
    }

    void changeOnDevice()
    {
        auto* width = as<IIntegerParameter>("Width");
        auto* temperature = as<IFloatParameter>("DeviceTemperature");
        QSignalSpy widthSpy(width, &IParameter::parameterDataChangedDecoupled);
        QSignalSpy temperatureSpy(temperature, &IParameter::parameterDataChangedDecoupled);
        QVERIFY(m_device->changeOnDevice(full("Width"), 640));
        QVERIFY(m_device->changeOnDevice(full("DeviceTemperature"), 55.0));
        QVERIFY(!m_device->changeOnDevice(full("Nothing"), 1));
        QVERIFY(!m_device->changeOnDevice(full("PixelFormat"), QStringLiteral("Mono16")));
        QCOMPARE(width->getValue(), qint64(1920));
        QCOMPARE(temperature->getValue(), 40.0);

        m_map->poll(300); // the polled feature sees it, the other doesn't
        QCOMPARE(temperature->getValue(), 55.0);
        QCOMPARE(width->getValue(), qint64(1920));
        QTRY_COMPARE(temperatureSpy.count(), 1);
        QCOMPARE(floatValue(temperatureSpy.at(0).at(0).value<DataPtr>()), 55.0);
        QTest::qWait(20);
        QCOMPARE(widthSpy.count(), 0);

        m_map->refreshAll();
        QCOMPARE(width->getValue(), qint64(640));
        QTRY_COMPARE(widthSpy.count(), 1);
        QCOMPARE(intValue(widthSpy.at(0).at(0).value<DataPtr>()), qint64(640));
    }

    void refreshAllSignalsOnlyChanges()
    {
        QSharedPointer<IParameter> width = param("Width");
        QSharedPointer<IParameter> offset = param("OffsetX");
        QSharedPointer<IParameter> gamma = param("GammaEnable");
        QSignalSpy widthSpy(width.data(), &IParameter::parameterDataChangedDecoupled);
        QSignalSpy offsetSpy(offset.data(), &IParameter::parameterDataChangedDecoupled);
        QSignalSpy gammaSpy(gamma.data(), &IParameter::parameterDataChangedDecoupled);
        m_map->refreshAll();
        QTest::qWait(20);
        QCOMPARE(widthSpy.count() + offsetSpy.count() + gammaSpy.count(), 0);

        QVERIFY(m_device->changeOnDevice(full("GammaEnable"), false));
        m_map->refreshAll();
        QCOMPARE(gammaSpy.count(), 0);
        QTRY_COMPARE(gammaSpy.count(), 1);
        QCOMPARE(gammaSpy.at(0).at(0).value<DataPtr>()->valueText, QStringLiteral("0"));
        QCOMPARE(widthSpy.count(), 0);
    }

    void commandDoneAfterDuration()
    {
        auto* start = as<ICommandParameter>("AcquisitionStart");
        auto* frames = as<IIntegerParameter>("FrameCounter");
        QSignalSpy spy(start, &IParameter::parameterDataChangedDecoupled);
        QSignalSpy framesSpy(frames, &IParameter::parameterDataChangedDecoupled);
        QElapsedTimer clock;
        clock.start();
        start->execute(true);
        start->setCommandPending(true);
        QCOMPARE(start->getParameterData().dynamicCast<const CommandParameterData>()->done, false);
        QCOMPARE(frames->getValue(), qint64(0)); // onExecute
        QCOMPARE(spy.count(), 0);
        QTRY_COMPARE(spy.count(), 1);
        QCOMPARE(spy.at(0).at(0).value<DataPtr>().dynamicCast<const CommandParameterData>()->done, false);
        QTRY_COMPARE(spy.count(), 2);
        QVERIFY(clock.elapsed() >= 35);
        QCOMPARE(spy.at(1).at(0).value<DataPtr>().dynamicCast<const CommandParameterData>()->done, true);
        QCOMPARE(start->getParameterData().dynamicCast<const CommandParameterData>()->done, true);
        QTRY_COMPARE(framesSpy.count(), 1);
        QCOMPARE(intValue(framesSpy.at(0).at(0).value<DataPtr>()), qint64(0));
    }

    // ---------------------------------------------------------------- loading

    void loaderRefusals_data()
    {
        QTest::addColumn<QByteArray>("json");
        QTest::addColumn<QString>("error");
        auto doc = [](const char* features) {
            return json(QByteArray("{`format`:`zarvex-simulated-device`,`version`:1,`nodeMaps`:[{`name`:`@Cam`,"
                                   "`features`:[{`name`:`Root`,`type`:`Category`,`children`:[`A`]},")
                + features + "]}]}");
        };
        QTest::newRow("not json") << json("{ nope") << "not a JSON document";
        QTest::newRow("not an object") << json("[1, 2]") << "the document is not a JSON object";
        QTest::newRow("no format") << json("{`version`:1,`nodeMaps`:[]}") << "field \"format\": missing";
        QTest::newRow("wrong format") << json("{`format`:`other`,`version`:1,`nodeMaps`:[]}")
                                      << "field \"format\": expected \"zarvex-simulated-device\", found \"other\"";
        QTest::newRow("no version") << json("{`format`:`zarvex-simulated-device`,`nodeMaps`:[]}")
                                    << "field \"version\": missing";
        QTest::newRow("version 2") << json("{`format`:`zarvex-simulated-device`,`version`:2,`nodeMaps`:[]}")
                                   << "field \"version\": unsupported version 2";
        QTest::newRow("no node maps") << json("{`format`:`zarvex-simulated-device`,`version`:1}")
                                      << "field \"nodeMaps\": missing";
        QTest::newRow("node map without name")
            << json("{`format`:`zarvex-simulated-device`,`version`:1,`nodeMaps`:[{`features`:[]}]}")
            << "node map #1, field \"name\": missing";
        QTest::newRow("node map without features")
            << json("{`format`:`zarvex-simulated-device`,`version`:1,`nodeMaps`:[{`name`:`@Cam`}]}")
            << "node map \"@Cam\", field \"features\": missing";
        QTest::newRow("no Root")
            << json("{`format`:`zarvex-simulated-device`,`version`:1,`nodeMaps`:[{`name`:`@Cam`,"
                    "`features`:[{`name`:`A`,`type`:`Integer`}]}]}")
            << "node map \"@Cam\", feature \"Root\", field \"name\": the node map has no category Root";
        QTest::newRow("feature without name")
            << doc("{`type`:`Integer`}") << "node map \"@Cam\", feature #2, field \"name\": missing";
        QTest::newRow("feature without type")
            << doc("{`name`:`A`}") << "node map \"@Cam\", feature \"A\", field \"type\": missing";
        QTest::newRow("unknown kind") << doc("{`name`:`A`,`type`:`Integr`}")
                                      << "node map \"@Cam\", feature \"A\", field \"type\": unknown kind \"Integr\"";
        QTest::newRow("duplicate") << doc("{`name`:`A`,`type`:`Integer`},{`name`:`A`,`type`:`Float`}")
                                   << "node map \"@Cam\", feature \"A\", field \"name\": duplicate name";
        QTest::newRow("unknown child") << doc("{`name`:`A`,`type`:`Category`,`children`:[`B`]}")
                                       << "node map \"@Cam\", feature \"A\", field \"children\": unknown feature \"B\"";
        QTest::newRow("bad expression") << doc("{`name`:`A`,`type`:`Integer`,`max`:`3 +`}")
                                        << "node map \"@Cam\", feature \"A\", field \"max\": cannot parse expression "
                                           "\"3 +\"";
        QTest::newRow("unbalanced") << doc("{`name`:`A`,`type`:`Integer`,`writableWhen`:`(1 == 1`}")
                                    << "feature \"A\", field \"writableWhen\": cannot parse expression";
        QTest::newRow("unknown name in expression")
            << doc("{`name`:`A`,`type`:`Integer`,`min`:`Foo - 1`}")
            << "node map \"@Cam\", feature \"A\", field \"min\": unknown feature \"Foo\" in expression \"Foo - 1\"";
        QTest::newRow("bad visibility") << doc("{`name`:`A`,`type`:`Integer`,`visibility`:`Novice`}")
                                        << "feature \"A\", field \"visibility\": unknown visibility \"Novice\"";
        QTest::newRow("bad access") << doc("{`name`:`A`,`type`:`Integer`,`access`:`XX`}")
                                    << "feature \"A\", field \"access\": unknown access \"XX\"";
        QTest::newRow("bad representation") << doc("{`name`:`A`,`type`:`Integer`,`representation`:`Hex`}")
                                            << "feature \"A\", field \"representation\": unknown representation";
        QTest::newRow("value of wrong type") << doc("{`name`:`A`,`type`:`Boolean`,`value`:`yes no`}")
                                             << "feature \"A\", field \"value\": cannot parse expression";
        QTest::newRow("enum without entries")
            << doc("{`name`:`A`,`type`:`Enumeration`}") << "feature \"A\", field \"entries\": missing";
        QTest::newRow("enum value unknown")
            << doc("{`name`:`A`,`type`:`Enumeration`,`value`:`X`,`entries`:[{`value`:`Y`}]}")
            << "feature \"A\", field \"value\": \"X\" is not an entry";
        QTest::newRow("unknown selector") << doc("{`name`:`A`,`type`:`Integer`,`selector`:`S`}")
                                          << "feature \"A\", field \"selector\": unknown feature \"S\"";
        QTest::newRow("selector not an enumeration")
            << doc("{`name`:`A`,`type`:`Integer`,`selector`:`B`},{`name`:`B`,`type`:`Integer`}")
            << "feature \"A\", field \"selector\": \"B\" is of kind Integer, not an Enumeration";
        QTest::newRow("selected value unknown")
            << doc("{`name`:`A`,`type`:`Integer`,`selector`:`B`,`selectedValues`:{`Z`:1}},"
                   "{`name`:`B`,`type`:`Enumeration`,`entries`:[{`value`:`Y`}]}")
            << "feature \"A\", field \"selectedValues.Z\": \"Z\" is not an entry of \"B\"";
        QTest::newRow("poll mode") << doc("{`name`:`A`,`type`:`Integer`,`poll`:{`mode`:`sometimes`}}")
                                   << "feature \"A\", field \"poll.mode\": unknown mode \"sometimes\"";
        QTest::newRow("onExecute target") << doc("{`name`:`A`,`type`:`Command`,`onExecute`:{`Q`:`1`}}")
                                          << "feature \"A\", field \"onExecute.Q\": unknown feature \"Q\"";
        QTest::newRow("field of another kind") << doc("{`name`:`A`,`type`:`Boolean`,`min`:0}")
                                               << "feature \"A\", field \"min\": not allowed for a Boolean";
        QTest::newRow("children not a list") << doc("{`name`:`A`,`type`:`Category`,`children`:`B`}")
                                             << "feature \"A\", field \"children\": expected a list of names";
    }

    void loaderRefusals()
    {
        QFETCH(QByteArray, json);
        QFETCH(QString, error);
        QString message;
        QVERIFY(!SimulatedDevice::fromJson(json, &message));
        QVERIFY2(message.contains(error), qPrintable(message));
    }

    void loaderFromFile()
    {
        QString error;
        QVERIFY(!SimulatedDevice::fromFile(QStringLiteral("/nonexistent/camera.json"), &error));
        QVERIFY(error.contains(QStringLiteral("/nonexistent/camera.json")));
    }

    void defaultCamera_data()
    {
        QTest::addColumn<QString>("tlType");
        QTest::newRow("GEV") << "GEV";
        QTest::newRow("U3V") << "U3V";
    }

    void defaultCamera()
    {
        QFETCH(QString, tlType);
        QSharedPointer<SimulatedDevice> camera = SimulatedDevice::createDefault(tlType);
        QVERIFY(camera);
        QCOMPARE(camera->baseInfo()->getTLType(), tlType);
        QVERIFY(!camera->nodeMapNames().isEmpty());
        QCOMPARE(camera->nodeMapNames().first(), kMap);
        auto map = camera->nodeMap(kMap);
        QSharedPointer<IParameter> root = map->getParameter(full("Root"));
        QVERIFY(!root->isZombie());
        QVERIFY(!map->getChildNames(full("Root"), false, true).isEmpty());
        // Every listed feature can be looked up and read without a throw.
        const QList<QString> all = map->getChildNames(full("Root"), true, true);
        for (const QString& name : all) {
            QSharedPointer<IParameter> p = map->getParameter(name);
            QVERIFY2(p, qPrintable(name));
            if (p->isZombie())
                continue;
            QVERIFY2(p->getParameterData(), qPrintable(name));
        }
        map->poll(300);
        map->refreshAll();
    }

    // ---------------------------------------------------------------- expressions

    void expressions_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("result");
        QTest::newRow("arithmetic") << "1 + 2 * 3 - 4 / 2"
                                    << "5";
        QTest::newRow("modulo") << "17 % 5"
                                << "2";
        QTest::newRow("float") << "1.5 * 2"
                               << "3";
        QTest::newRow("parentheses") << "(1 + 2) * 3"
                                     << "9";
        QTest::newRow("unary") << "-3 + +4"
                               << "1";
        QTest::newRow("compare") << "3 <= 3 && 2 < 3 && 4 >= 1 && 5 > 4 && 1 != 2 && 2 == 2"
                                 << "1";
        QTest::newRow("not") << "!0 && !(1 == 2)"
                             << "1";
        QTest::newRow("or") << "0 || 0"
                            << "0";
        QTest::newRow("conditional") << "1 > 2 ? 10 : 1 < 2 ? 20 : 30"
                                     << "20";
        QTest::newRow("min max") << "min(3, 7) + max(3, 7)"
                                 << "10";
        QTest::newRow("text") << "'Off' == 'Off'"
                              << "1";
        QTest::newRow("text vs number") << "'1' == 1"
                                        << "0";
        QTest::newRow("hex") << "0x10 + 1"
                             << "17";
        QTest::newRow("division by zero") << "5 / 0"
                                          << "0";
    }

    void expressions()
    {
        QFETCH(QString, text);
        QFETCH(QString, result);
        QString error;
        const Simulation::Expression e = Simulation::Expression::parse(text, &error);
        QVERIFY2(e.isValid(), qPrintable(error));
        QCOMPARE(e.evaluate({}).toText(), result);
    }

    void expressionNames()
    {
        const Simulation::Expression e = Simulation::Expression::parse(QStringLiteral("A + B * A > max(C, 1)"));
        QCOMPARE(e.names(), QStringList({ "A", "B", "C" }));
        const int values[] = { 2, 3, 4 };
        QCOMPARE(e.evaluate([&](int i) { return Simulation::ExpressionValue::fromInteger(values[i]); }).toInteger(),
            qint64(1));
        QVERIFY(!Simulation::Expression::parse(QStringLiteral("1 +")).isValid());
        QVERIFY(!Simulation::Expression::parse(QStringLiteral("'open")).isValid());
        QVERIFY(!Simulation::Expression::parse(QStringLiteral("")).isValid());
        QVERIFY(!Simulation::Expression::parse(QStringLiteral("1 2")).isValid());
    }

    // ---------------------------------------------------------------- synthetic node maps

    void generator_data()
    {
        QTest::addColumn<int>("features");
        QTest::addColumn<int>("depth");
        QTest::addColumn<int>("fanOut");
        QTest::addColumn<int>("categories");
        QTest::newRow("1000") << 1000 << 2 << 10 << 111;
        QTest::newRow("1000 flat") << 1000 << 0 << 10 << 1;
        QTest::newRow("100000") << 100000 << 3 << 10 << 1111;
    }

    void generator()
    {
        QFETCH(int, features);
        QFETCH(int, depth);
        QFETCH(int, fanOut);
        QFETCH(int, categories);
        Simulation::SyntheticNodeMapGenerator::Options options;
        options.featureCount = features;
        options.depth = depth;
        options.fanOut = fanOut;
        options.polledShare = 0.01;
        options.seed = 5;
        const Simulation::SyntheticNodeMapGenerator generator(options);
        QCOMPARE(generator.categoryCount(), categories);

        QElapsedTimer timer;
        timer.start();
        const Simulation::DeviceDescription description = generator.generateDevice();
        const qint64 generated = timer.elapsed();
        QString error;
        auto device = SimulatedDevice::fromDescription(description, QString(), &error);
        const qint64 built = timer.elapsed() - generated;
        QVERIFY2(device, qPrintable(error));
        qInfo("%d features: generated in %lld ms, device built in %lld ms", features, generated, built);
        QVERIFY(built < 2000);

        const Simulation::NodeMapDescription& map = description.nodeMaps.at(0);
        QCOMPARE(map.features.size(), features + categories);
        int counts[7] = {};
        int polled = 0;
        for (const auto& f : map.features) {
            ++counts[int(f.kind)];
            polled += f.poll.mode != Simulation::PollDescription::Mode::None;
        }
        QCOMPARE(counts[int(Simulation::FeatureKind::Category)], categories);
        for (int k = 0; k < 6; ++k)
            QVERIFY2(counts[k] > features / 50, qPrintable(QString::number(k)));
        QCOMPARE(polled, features / 100);

        // The shape: depth levels of fanOut categories, all features reachable from Root.
        auto nodeMap = device->nodeMap(QStringLiteral("@CameraDevice"));
        const QList<QString> first = nodeMap->getChildNames(QStringLiteral("@CameraDevice/Root"), false, true);
        QCOMPARE(first.size(), depth == 0 ? features : fanOut);
        const QList<QString> all = nodeMap->getChildNames(QStringLiteral("@CameraDevice/Root"), true, true);
        QCOMPARE(all.size(), features + categories - 1);

        // Same seed, same description.
        const Simulation::DeviceDescription again = generator.generateDevice();
        for (int i = 0; i < map.features.size(); i += 97) {
            QCOMPARE(again.nodeMaps.at(0).features.at(i).name, map.features.at(i).name);
            QCOMPARE(int(again.nodeMaps.at(0).features.at(i).kind), int(map.features.at(i).kind));
        }
    }

    void generatorChangingPolled()
    {
        Simulation::SyntheticNodeMapGenerator::Options options;
        options.featureCount = 20000;
        options.polledCount = 1000;
        options.changingPolledCount = 10;
        const Simulation::SyntheticNodeMapGenerator generator(options);
        QCOMPARE(generator.polledCount(), 1000);
        auto device = SimulatedDevice::fromDescription(generator.generateDevice());
        QVERIFY(device);
        auto map = device->nodeMap(QStringLiteral("@CameraDevice"));

        QList<QSharedPointer<IParameter>> polled;
        QList<QSharedPointer<QSignalSpy>> spies;
        for (const auto& f : device->description().nodeMaps.at(0).features) {
            if (f.poll.mode == Simulation::PollDescription::Mode::None)
                continue;
            polled.append(map->getParameter(f.name));
            spies.append(
                QSharedPointer<QSignalSpy>::create(polled.last().data(), &IParameter::parameterDataChangedDecoupled));
        }
        QCOMPARE(polled.size(), 1000);
        for (int tick = 1; tick <= 3; ++tick) {
            map->poll(300);
            QCoreApplication::processEvents();
            QCoreApplication::processEvents();
            int signalled = 0;
            int total = 0;
            for (const auto& spy : spies) {
                signalled += spy->count() > 0 ? 1 : 0;
                total += spy->count();
            }
            QCOMPARE(signalled, 10);
            QCOMPARE(total, 10 * tick);
        }
    }

    void largeNodeMapIsQuick()
    {
        Simulation::SyntheticNodeMapGenerator::Options options;
        options.featureCount = 100000;
        options.depth = 3;
        options.fanOut = 10;
        options.polledCount = 1000;
        options.changingPolledCount = 10;
        const qint64 start = residentKilobytes();
        const Simulation::DeviceDescription description
            = Simulation::SyntheticNodeMapGenerator(options).generateDevice();
        const qint64 before = residentKilobytes();
        const qint64 described = before - start;
        QElapsedTimer timer;
        timer.start();
        auto device = SimulatedDevice::fromDescription(description);
        const qint64 built = timer.elapsed();
        const qint64 grown = residentKilobytes() - before;
        QVERIFY(device);
        auto map = device->nodeMap(QStringLiteral("@CameraDevice"));
        timer.restart();
        for (int i = 0; i < 100000; i += 10)
            QVERIFY(map->getParameter(Simulation::SyntheticNodeMapGenerator::featureName(i)));
        const qint64 lookedUp = timer.elapsed();
        timer.restart();
        for (int i = 0; i < 100; ++i)
            map->poll(300);
        const qint64 polled = timer.elapsed();
        qInfo("100000 features: description %lld kB, built in %lld ms (state %lld kB more), 10000 look-ups in %lld "
              "ms, 100 polls in %lld ms",
            described, built, grown, lookedUp, polled);
        QVERIFY(built < 2000);
        QVERIFY(polled < 2000);
    }
};

QTEST_GUILESS_MAIN(TestSimulation)
#include "tst_simulation.moc"
