// The contract classes on their own: snapshots, access modes, narrowing,
// the snapshot meta-type across threads, the exceptions, formatDoubleValue.
// The simulated camera's conformance to the contract is tst_simulation.

#include "parameters/formatdoublevalue.h"
#include "parameters/genericexception.h"
#include "parameters/iadvancedparameteraccess.h"
#include "parameters/ibaseinfo.h"
#include "parameters/ibooleanparameter.h"
#include "parameters/icommandparameter.h"
#include "parameters/ienumparameter.h"
#include "parameters/ifloatparameter.h"
#include "parameters/iintegerparameter.h"
#include "parameters/invalidargumentexception.h"
#include "parameters/iparametercollection.h"
#include "parameters/iservice.h"

#include <QtTest>

#include <cmath>
#include <limits>

using namespace ParameterCollection;

namespace {

// Minimal parameters of each kind: enough to exercise the interfaces' own meta-objects.
template <class Interface, int Kind> class Minimal : public Interface
{
public:
    void setValueFromString(QString) override { }
    bool isZombie() const override { return false; }
    bool isWritable() const override { return true; }
    bool isImposable() const override { return false; }
    GenApi::EVisibility getVisibility() const override { return GenApi::Beginner; }
    int getType() const override { return Kind; }
    QString getFullName() const override { return QStringLiteral("@Test/X"); }
    QString getName() const override { return QStringLiteral("X"); }
    QSharedPointer<IAdvancedParameterAccess> advancedAccess() const override { return {}; }
    QSharedPointer<const ParameterData> getParameterData() const override { return {}; }
    void emitChange(QSharedPointer<const ParameterData> data) { emit this->parameterDataChangedDecoupled(data); }
};

class MinimalInteger : public Minimal<IIntegerParameter, TypeInteger>
{
public:
    void setValue(qint64, bool) override { }
    qint64 getValue() const override { return 0; }
    qint64 getMinimum() const override { return 0; }
    qint64 getMaximum() const override { return 0; }
};

class MinimalFloat : public Minimal<IFloatParameter, TypeFloat>
{
public:
    void setValue(double) override { }
    double getValue() const override { return 0; }
    double getMinimum() const override { return 0; }
    double getMaximum() const override { return 0; }
};

class MinimalCommand : public Minimal<ICommandParameter, TypeCommand>
{
public:
    void setCommandPending(bool) override { }
    void execute(bool) override { }
};

using MinimalBoolean = Minimal<IBooleanParameter, TypeBoolean>;
using MinimalEnum = Minimal<IEnumParameter, TypeEnumeration>;
using MinimalString = Minimal<IParameter, TypeString>;

class SnapshotReceiver : public QObject
{
    Q_OBJECT
public:
    QList<QSharedPointer<const ParameterData>> received;
    QThread* thread = nullptr;
public slots:
    void onChanged(QSharedPointer<const ParameterCollection::ParameterData> data)
    {
        received.append(data);
        thread = QThread::currentThread();
    }
};

QSharedPointer<const ParameterData> snapshot(bool implemented, bool readable, bool writable)
{
    QSharedPointer<ParameterData> data(new ParameterData);
    data->implemented = implemented;
    data->readable = readable;
    data->writable = writable;
    return data;
}

} // namespace

class TestParameterContract : public QObject
{
    Q_OBJECT

private slots:
    void kindNumbers();
    void enumerationValues();
    void placeholderSnapshot();
    void accessModeOfSnapshot_data();
    void accessModeOfSnapshot();
    void accessModeOfNullSnapshot();
    void derivedRecordsReadThroughTheBase();
    void narrowing();
    void snapshotTravelsThroughQueuedConnections();
    void genericException();
    void invalidArgumentException();
    void transportLayerTypes_data();
    void transportLayerTypes();
    void serviceIsAQObject();
    void formatDoubleValue_data();
    void formatDoubleValue();
};

void TestParameterContract::kindNumbers()
{
    QCOMPARE(int(TypeUnknown), 0);
    QCOMPARE(int(TypeInteger), 1);
    QCOMPARE(int(TypeBoolean), 2);
    QCOMPARE(int(TypeFloat), 3);
    QCOMPARE(int(TypeCommand), 4);
    QCOMPARE(int(TypeString), 5);
    QCOMPARE(int(TypeEnumeration), 6);
    QCOMPARE(int(TypeCategory), 7);
}

void TestParameterContract::enumerationValues()
{
    QCOMPARE(int(GenApi::Beginner), 0);
    QCOMPARE(int(GenApi::Expert), 1);
    QCOMPARE(int(GenApi::Guru), 2);
    QCOMPARE(int(GenApi::Invisible), 3);
    QCOMPARE(int(GenApi::_UndefinedVisibility), 99);
    QCOMPARE(int(GenApi::NI), 0);
    QCOMPARE(int(GenApi::NA), 1);
    QCOMPARE(int(GenApi::WO), 2);
    QCOMPARE(int(GenApi::RO), 3);
    QCOMPARE(int(GenApi::RW), 4);
}

void TestParameterContract::placeholderSnapshot()
{
    const QSharedPointer<const ParameterData> placeholder = ParameterData::createPlaceholder();
    QVERIFY(placeholder);
    QCOMPARE(placeholder->type, qint32(0));
    QCOMPARE(placeholder->visibility, qint32(99));
    QVERIFY(!placeholder->readable);
    QVERIFY(!placeholder->writable);
    QVERIFY(!placeholder->implemented);
    QVERIFY(placeholder->isPlaceholder);
    QVERIFY(placeholder->valueText.isNull());
    QCOMPARE(placeholder->accessMode(), GenApi::NI);
    // Each call builds a snapshot of its own.
    QVERIFY(ParameterData::createPlaceholder() != placeholder);
    // An ordinary snapshot is not a placeholder.
    QVERIFY(!ParameterData().isPlaceholder);
}

void TestParameterContract::accessModeOfSnapshot_data()
{
    QTest::addColumn<bool>("implemented");
    QTest::addColumn<bool>("readable");
    QTest::addColumn<bool>("writable");
    QTest::addColumn<int>("mode");

    QTest::newRow("not implemented") << false << false << false << int(GenApi::NI);
    QTest::newRow("not implemented beats readable and writable") << false << true << true << int(GenApi::NI);
    QTest::newRow("implemented, nothing") << true << false << false << int(GenApi::NA);
    QTest::newRow("implemented, writable only") << true << false << true << int(GenApi::WO);
    QTest::newRow("implemented, readable only") << true << true << false << int(GenApi::RO);
    QTest::newRow("implemented, readable and writable") << true << true << true << int(GenApi::RW);
}

void TestParameterContract::accessModeOfSnapshot()
{
    QFETCH(bool, implemented);
    QFETCH(bool, readable);
    QFETCH(bool, writable);
    QFETCH(int, mode);
    const auto data = snapshot(implemented, readable, writable);
    QCOMPARE(int(data->accessMode()), mode);
    QCOMPARE(int(ParameterData::accessModeOf(data)), mode);
}

void TestParameterContract::accessModeOfNullSnapshot()
{
    QCOMPARE(ParameterData::accessModeOf(QSharedPointer<const ParameterData>()), GenApi::NI);
}

void TestParameterContract::derivedRecordsReadThroughTheBase()
{
    QSharedPointer<IntegerParameterData> integer(new IntegerParameterData);
    integer->type = TypeInteger;
    integer->value = (qint64(1) << 40);
    integer->representation = QStringLiteral("HexNumber");
    QSharedPointer<const ParameterData> base = integer;
    QCOMPARE(base->type, qint32(TypeInteger));
    auto asInteger = base.dynamicCast<const IntegerParameterData>();
    QVERIFY(asInteger);
    QCOMPARE(asInteger->value, qint64(1) << 40);
    QCOMPARE(asInteger->representation, QString("HexNumber"));
    QVERIFY(!base.dynamicCast<const FloatParameterData>());

    QSharedPointer<const ParameterData> enumeration(new EnumParameterData);
    QVERIFY(enumeration.dynamicCast<const EnumParameterData>());
    QVERIFY(!enumeration.dynamicCast<const CommandParameterData>());

    // Defaults of the records.
    QCOMPARE(FloatParameterData().hasIncrement, false);
    QCOMPARE(CommandParameterData().done, true);
}

void TestParameterContract::narrowing()
{
    MinimalInteger integer;
    MinimalFloat floating;
    MinimalBoolean boolean;
    MinimalCommand command;
    MinimalEnum enumeration;
    MinimalString string;
    const QList<IParameter*> all = { &integer, &floating, &boolean, &command, &enumeration, &string };

    const QList<const QMetaObject*> kinds = { &IIntegerParameter::staticMetaObject, &IFloatParameter::staticMetaObject,
        &IBooleanParameter::staticMetaObject, &ICommandParameter::staticMetaObject, &IEnumParameter::staticMetaObject };
    for (int p = 0; p < all.count(); ++p) {
        IParameter* parameter = all.at(p);
        QVERIFY(IParameter::staticMetaObject.cast(parameter) == parameter);
        for (int k = 0; k < kinds.count(); ++k) {
            const bool match = (p == k);
            QCOMPARE(kinds.at(k)->cast(parameter) != nullptr, match);
        }
    }
    QCOMPARE(qobject_cast<IIntegerParameter*>(static_cast<IParameter*>(&integer)), &integer);
    QCOMPARE(qobject_cast<IFloatParameter*>(static_cast<IParameter*>(&integer)), nullptr);
    QCOMPARE(dynamic_cast<IFloatParameter*>(static_cast<IParameter*>(&floating)), &floating);
    QCOMPARE(dynamic_cast<IIntegerParameter*>(static_cast<IParameter*>(&floating)), nullptr);
    QCOMPARE(dynamic_cast<ICommandParameter*>(static_cast<IParameter*>(&command)), &command);
    QCOMPARE(dynamic_cast<IEnumParameter*>(static_cast<IParameter*>(&boolean)), nullptr);
    QCOMPARE(dynamic_cast<IBooleanParameter*>(static_cast<IParameter*>(&boolean)), &boolean);
    QCOMPARE(qobject_cast<IEnumParameter*>(static_cast<IParameter*>(&enumeration)), &enumeration);
    QCOMPARE(qobject_cast<IEnumParameter*>(static_cast<IParameter*>(&string)), nullptr);
    QCOMPARE(qobject_cast<IIntegerParameter*>(static_cast<QObject*>(nullptr)), nullptr);
}

void TestParameterContract::snapshotTravelsThroughQueuedConnections()
{
    // Registered by name, as the string form of connect() looks it up.
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    QVERIFY(QMetaType::type("QSharedPointer<const ParameterCollection::ParameterData>") != QMetaType::UnknownType);
#else
    QVERIFY(QMetaType::fromName("QSharedPointer<const ParameterCollection::ParameterData>").isValid());
#endif

    MinimalInteger parameter;
    SnapshotReceiver receiver;
    // The string form, as the library connects.
    QVERIFY(QObject::connect(&parameter,
        SIGNAL(parameterDataChangedDecoupled(QSharedPointer<const ParameterCollection::ParameterData>)), &receiver,
        SLOT(onChanged(QSharedPointer<const ParameterCollection::ParameterData>))));

    QThread worker;
    worker.start();
    QSharedPointer<IntegerParameterData> data(new IntegerParameterData);
    data->type = TypeInteger;
    data->value = 77;
    bool invoked = QMetaObject::invokeMethod(
        &parameter, [&parameter, data] { parameter.emitChange(data); }, Qt::DirectConnection);
    QVERIFY(invoked);
    QCOMPARE(receiver.received.count(), 1); // same thread: direct

    // From another thread: the automatic connection queues to the receiver's thread.
    QObject context;
    context.moveToThread(&worker);
    QMetaObject::invokeMethod(
        &context, [&parameter, data] { parameter.emitChange(data); }, Qt::BlockingQueuedConnection);
    QCOMPARE(receiver.received.count(), 1);
    QTRY_COMPARE(receiver.received.count(), 2);
    QCOMPARE(receiver.thread, QThread::currentThread());
    QCOMPARE(receiver.received.at(1).data(), data.data());
    QCOMPARE(receiver.received.at(1).dynamicCast<const IntegerParameterData>()->value, qint64(77));
    worker.quit();
    worker.wait();
}

void TestParameterContract::genericException()
{
    const GenICam::GenericException e("Node not writable", "node.cpp", 42);
    const std::exception& asStd = e;
    QCOMPARE(QString::fromLatin1(asStd.what()), QString("Node not writable"));
    QCOMPARE(QString::fromLatin1(e.GetDescription()), QString("Node not writable"));
    QCOMPARE(QString::fromLatin1(e.GetSourceFileName()), QString("node.cpp"));
    QCOMPARE(e.GetSourceLine(), 42u);

    const GenICam::GenericException empty(nullptr, nullptr, -1);
    QCOMPARE(QString::fromLatin1(empty.what()), QString());
    QCOMPARE(empty.GetSourceLine(), 0u);

    bool caught = false;
    try {
        throw GenICam::GenericException("x", __FILE__, __LINE__);
    } catch (const std::exception& caughtException) {
        caught = QString::fromLatin1(caughtException.what()) == QLatin1String("x");
    }
    QVERIFY(caught);
}

void TestParameterContract::invalidArgumentException()
{
    bool caughtAsGeneric = false;
    try {
        throw GenICam::InvalidArgumentException("Minimum is greater than maximum", "floateditor.cpp", 120);
    } catch (const GenICam::GenericException& e) {
        caughtAsGeneric = true;
        QCOMPARE(QString::fromLatin1(e.what()), QString("Minimum is greater than maximum"));
        QCOMPARE(e.GetSourceLine(), 120u);
    }
    QVERIFY(caughtAsGeneric);
}

void TestParameterContract::transportLayerTypes_data()
{
    QTest::addColumn<QString>("constant");
    QTest::addColumn<QString>("text");
    using namespace Plugin::CameraPool;
    QTest::newRow("GigE") << QString::fromLatin1(TLTypeGigE) << "GEV";
    QTest::newRow("USB") << QString::fromLatin1(TLTypeUSB) << "U3V";
    QTest::newRow("1394") << QString::fromLatin1(TLType1394) << "IIDC";
    QTest::newRow("ZCON") << QString::fromLatin1(TLTypeZCON) << "ZCON";
    QTest::newRow("CL") << QString::fromLatin1(TLTypeCL) << "CL";
    QTest::newRow("CamEmu") << QString::fromLatin1(TLTypeCamEmu) << "CamEmu";
    QTest::newRow("IPCam") << QString::fromLatin1(TLTypeIPCam) << "IPCam";
    QTest::newRow("CXP") << QString::fromLatin1(TLTypeCXP) << "CXP";
    QTest::newRow("Custom") << QString::fromLatin1(TLTypeCustom) << "Custom";
}

void TestParameterContract::transportLayerTypes()
{
    QFETCH(QString, constant);
    QFETCH(QString, text);
    QCOMPARE(constant, text);
}

void TestParameterContract::serviceIsAQObject()
{
    struct Service : Core::Service::IService
    {
    } service;
    QVERIFY(service.metaObject()->inherits(&Core::Service::IService::staticMetaObject));
    QCOMPARE(
        QString::fromLatin1(Core::Service::IService::staticMetaObject.className()), QString("Core::Service::IService"));
}

void TestParameterContract::formatDoubleValue_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<int>("precision");
    QTest::addColumn<int>("flags");
    QTest::addColumn<QString>("localeName");
    QTest::addColumn<QString>("expected");

    QTest::newRow("fixed, two decimals") << 1234.5 << 2 << 1 << "C"
                                         << "1234.50";
    QTest::newRow("fixed, no group separator in en_US") << 1234567.75 << 1 << 1 << "en_US"
                                                        << "1234567.8";
    QTest::newRow("fixed, German decimal comma") << 3.25 << 2 << 1 << "de_DE"
                                                 << "3,25";
    QTest::newRow("fixed, zero decimals") << 1000000000.0 << 0 << 1 << "C"
                                          << "1000000000";
    QTest::newRow("fixed, negative") << -0.125 << 3 << 1 << "C"
                                     << "-0.125";
    QTest::newRow("fixed, negative precision counts as zero") << 2.4 << -3 << 1 << "C"
                                                              << "2";
    QTest::newRow("large, zero decimals") << 12000000000.0 << 0 << 2 << "C"
                                          << "1e+10";
    QTest::newRow("large, two decimals") << 12345000000.0 << 2 << 2 << "C"
                                         << "1.23e+10";
    QTest::newRow("large wins over fixed") << 12345000000.0 << 1 << 3 << "C"
                                           << "1.2e+10";
    QTest::newRow("no flag is fixed") << 1.5 << 1 << 0 << "C"
                                      << "1.5";
}

void TestParameterContract::formatDoubleValue()
{
    QFETCH(double, value);
    QFETCH(int, precision);
    QFETCH(int, flags);
    QFETCH(QString, localeName);
    QFETCH(QString, expected);
    const QString text
        = ::formatDoubleValue(value, precision, QFlags<FormatValueFlag>(FormatValueFlag(flags)), QLocale(localeName));
    QCOMPARE(text, expected);
    // What flag 1 writes, the same locale reads back.
    if (flags == 1) {
        bool ok = false;
        QLocale(localeName).toDouble(text, &ok);
        QVERIFY(ok);
    }
}

QTEST_GUILESS_MAIN(TestParameterContract)
#include "tst_parametercontract.moc"
