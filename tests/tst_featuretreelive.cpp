// Live updates: the poll timer, snapshots reaching the items, range
// correction, device loss and changes delivered from another thread.

#include "featuretreetestsupport.h"

#include "featuretree/featuretreeinodeitem.h"
#include "featuretree/featuretreemodel.h"
#include "featuretree/signalblocker.h"
#include "parameters/iintegerparameter.h"

#include <QElapsedTimer>
#include <QSettings>
#include <QStandardPaths>
#include <QThread>
#include <QtTest>

using namespace TreeTest;
using ParameterCollection::FloatParameterData;
using ParameterCollection::IntegerParameterData;
using ParameterCollection::ParameterData;
using Simulation::FaultKind;
using Simulation::Operation;

namespace {

// Level follows the device only through polls; its own rule never fires.
// Value's range follows Floor and Limit.
const QByteArray liveCamera = cameraJson(R"(
    { "name": "Root", "type": "Category", "children": ["Live"] },
    { "name": "Live", "type": "Category", "children": ["Level", "Floor", "Limit", "Value", "Ratio", "Fixed"] },
    { "name": "Level", "type": "Integer", "value": 5, "min": 0, "max": 1000,
      "poll": { "mode": "randomWalk", "step": 1, "seed": 1, "when": "0" } },
    { "name": "Floor", "type": "Integer", "value": 0, "min": 0, "max": 1000,
      "poll": { "mode": "randomWalk", "step": 1, "seed": 1, "when": "0" } },
    { "name": "Limit", "type": "Integer", "value": 100, "min": 0, "max": 1000,
      "poll": { "mode": "randomWalk", "step": 1, "seed": 1, "when": "0" } },
    { "name": "Value", "type": "Integer", "value": 80, "min": "Floor", "max": "Limit" },
    { "name": "Ratio", "type": "Float", "value": 5.0, "min": 0.0, "max": 10.0 },
    { "name": "Fixed", "type": "Integer", "access": "RO", "value": 80, "min": 0, "max": 100 }
)");

const char* const dataChangedSignal = SIGNAL(dataChanged(QModelIndex, QModelIndex, QVector<int>));

//! A readable, implemented Beginner snapshot of a numeric parameter.
template <typename Data, typename Value>
QSharedPointer<Data> numericSnapshot(
    ParameterCollection::ParameterType type, Value value, Value minimum, Value maximum, bool writable)
{
    auto data = QSharedPointer<Data>::create();
    data->type = type;
    data->visibility = GenApi::Beginner;
    data->readable = true;
    data->writable = writable;
    data->implemented = true;
    data->value = value;
    data->minimum = minimum;
    data->maximum = maximum;
    data->valueText = QString::number(value);
    return data;
}

QSharedPointer<IntegerParameterData> integerSnapshot(qint64 value, qint64 minimum, qint64 maximum, bool writable)
{
    return numericSnapshot<IntegerParameterData>(ParameterCollection::TypeInteger, value, minimum, maximum, writable);
}

// The polls a node map has seen: the device's clock moves only by poll(elapsed).
qint64 polledMilliseconds(const QSharedPointer<Simulation::SimulatedDevice>& device)
{
    return device->clockMilliseconds();
}

} // namespace

class TestFeatureTreeLive : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();

    // the timer
    void enablePollingTwiceStartsTheTimerOnce();
    void onlyTheFirstNodeMapIsPolled();
    void pollingOffLetsAnArmedTickFireOnce();
    void tickWithDeviceGoneStopsTheTimer();
    void throwingPollKeepsPolling();
    void tickWithoutNodeMapsRearms();
    void monitorModeRefreshesInsteadOfPolling();

    // snapshots reaching items
    void snapshotsAgainstTheRange_data();
    void snapshotsAgainstTheRange();
    void floatAboveMaximumWritesMaximum();
    void snapshotsAreDroppedWhileCallbacksAreDisabled();
    void nodeUpdatedWithDeviceGoneEmitsNothing();
    void nodeUpdatedEmitsBothColumns();
    void refreshSpecialItemsTouchesFullRowItemsToTheThirdLevel();

    // on the simulated camera
    void deviceChangeReachesBothColumnsThroughThePoll();
    void rangeMovingUnderTheValueWritesItBack();
    void unpluggedDeviceStopsPollingAndKeepsTheValues();
    void changesFromAWorkerThreadArriveOnTheGuiThread();

    // one connection per parameter, shared by its items
    void changeReachesTreeItemThenFavouriteTwin();
    void queuedChangeForDeletedItemsReachesNothing_data();
    void queuedChangeForDeletedItemsReachesNothing();
    void lastItemGoneLeavesNoConnection();
    void blockedItemNotifiesNothing();
    void twoModelsEachGetTheirOwnUpdates();

private:
    FeatureTreeINodeItem* addAndFind(
        FeatureTreeModel& model, const QSharedPointer<Simulation::SimulatedDevice>& device, const QString& fullName)
    {
        model.addParameterCollection(device->nodeMap(QStringLiteral("@CameraDevice")), QStringLiteral("Camera"),
            QStringLiteral("@CameraDevice"), false);
        return qobject_cast<FeatureTreeINodeItem*>(itemAt(model.findItemByFullName(fullName, nullptr, 0)));
    }
    //! An item of its own for the feature, outside any tree, with the model as its extension.
    std::unique_ptr<FeatureTreeINodeItem> looseItem(FeatureTreeModel& model, const QString& name)
    {
        return std::make_unique<FeatureTreeINodeItem>(m_device->nodeMap(QStringLiteral("@CameraDevice")),
            m_device->nodeMap(QStringLiteral("@CameraDevice"))->getParameter(QStringLiteral("@CameraDevice/") + name),
            &model, QStringLiteral("@CameraDevice/") + name, nullptr, false);
    }

    //! Every parameter item of the model that stands for the parameter, in walk order.
    static QList<FeatureTreeINodeItem*> itemsOf(
        FeatureTreeModel& model, const ParameterCollection::IParameter* parameter, const QModelIndex& parent = {})
    {
        QList<FeatureTreeINodeItem*> found;
        for (int row = 0; row < model.rowCount(parent); ++row) {
            const QModelIndex index = model.index(row, 0, parent);
            auto* item = qobject_cast<FeatureTreeINodeItem*>(itemAt(index));
            if (item && item->node().data() == parameter)
                found << item;
            found += itemsOf(model, parameter, index);
        }
        return found;
    }

    QSharedPointer<ParameterCollection::IParameter> ratioParameter() const
    {
        return m_device->nodeMap(QStringLiteral("@CameraDevice"))->getParameter(QStringLiteral("@CameraDevice/Ratio"));
    }

    QSharedPointer<Simulation::SimulatedDevice> m_device;
};

namespace {
const char* const changedSignal
    = SIGNAL(parameterDataChangedDecoupled(QSharedPointer<const ParameterCollection::ParameterData>));

void clearFavourites()
{
    while (FeatureTreeModel::m_favorites.countNodes() > 0)
        FeatureTreeModel::m_favorites.removeNode(0, nullptr);
}

QSharedPointer<FloatParameterData> floatSnapshot(double value)
{
    return numericSnapshot<FloatParameterData>(ParameterCollection::TypeFloat, value, 0.0, 10.0, true);
}
} // namespace

void TestFeatureTreeLive::initTestCase()
{
    QStandardPaths::setTestModeEnabled(true);
    QCoreApplication::setOrganizationName(QStringLiteral("ZarvexTests"));
    QCoreApplication::setApplicationName(QStringLiteral("tst_featuretreelive"));
    qRegisterMetaType<FeatureTreeINodeItem*>();
}

void TestFeatureTreeLive::init()
{
    QSettings().remove(QStringLiteral("Favorites"));
    m_device = makeDevice(liveCamera);
    QVERIFY(m_device);
}

void TestFeatureTreeLive::cleanup()
{
    m_device.reset();
}

void TestFeatureTreeLive::enablePollingTwiceStartsTheTimerOnce()
{
    FeatureTreeModel model;
    addAndFind(model, m_device, QStringLiteral("@CameraDevice/Level"));
    // Two timers started with the model's: one asks for polling again half
    // way to the first tick, the other looks just after that tick is due
    // (beyond the 5 % a coarse timer may be late). A loaded machine delays
    // all three alike, and Qt fires timers that are due in the order of their
    // deadlines, so no wall clock is read. A second start that rearmed the
    // timer would push the first tick to 450 ms; one that started a second
    // timer would poll twice.
    QTimer again;
    again.setSingleShot(true);
    again.setTimerType(Qt::PreciseTimer);
    connect(&again, &QTimer::timeout, &model, [&model] { model.EnablePolling(true); });
    qint64 polledWhenDue = -1;
    QTimer due;
    due.setSingleShot(true);
    due.setTimerType(Qt::PreciseTimer);
    connect(&due, &QTimer::timeout, this, [this, &polledWhenDue] { polledWhenDue = polledMilliseconds(m_device); });
    model.EnablePolling(true);
    again.start(150);
    due.start(330);
    QVERIFY(model.GetPolling());
    QTRY_VERIFY_WITH_TIMEOUT(polledWhenDue >= 0, 5000);
    QCOMPARE(polledWhenDue, qint64(300));
    model.EnablePolling(false);
}

void TestFeatureTreeLive::onlyTheFirstNodeMapIsPolled()
{
    auto second = makeDevice(liveCamera);
    QVERIFY(second);
    FeatureTreeModel model;
    model.addParameterCollection(m_device->nodeMap(QStringLiteral("@CameraDevice")), QStringLiteral("First"),
        QStringLiteral("@CameraDevice"), false);
    model.addParameterCollection(second->nodeMap(QStringLiteral("@CameraDevice")), QStringLiteral("Second"),
        QStringLiteral("@CameraDevice"), false);
    model.EnablePolling(true);
    QTRY_VERIFY_WITH_TIMEOUT(polledMilliseconds(m_device) >= 600, 3000);
    // Each poll receives the interval.
    QCOMPARE(polledMilliseconds(m_device) % 300, qint64(0));
    QCOMPARE(polledMilliseconds(second), qint64(0));
    model.EnablePolling(false);
}

void TestFeatureTreeLive::pollingOffLetsAnArmedTickFireOnce()
{
    FeatureTreeModel model;
    addAndFind(model, m_device, QStringLiteral("@CameraDevice/Level"));
    model.EnablePolling(true);
    model.EnablePolling(false);
    QVERIFY(!model.GetPolling());
    QTRY_COMPARE_WITH_TIMEOUT(polledMilliseconds(m_device), qint64(300), 2000);
    QTest::qWait(700);
    QCOMPARE(polledMilliseconds(m_device), qint64(300));
}

void TestFeatureTreeLive::tickWithDeviceGoneStopsTheTimer()
{
    FeatureTreeModel model;
    addAndFind(model, m_device, QStringLiteral("@CameraDevice/Level"));
    model.SetDeviceAlive(false);
    model.EnablePolling(true);
    QTest::qWait(450);
    QCOMPARE(polledMilliseconds(m_device), qint64(0));
    QVERIFY(model.GetPolling());

    // Coming back doesn't restart the timer: the tick that found the device gone was the last.
    model.SetDeviceAlive(true);
    QTest::qWait(700);
    QCOMPARE(polledMilliseconds(m_device), qint64(0));
    QVERIFY(model.GetPolling());

    // Only switching polling off and on again does.
    model.EnablePolling(false);
    model.EnablePolling(true);
    QTRY_VERIFY_WITH_TIMEOUT(polledMilliseconds(m_device) > 0, 2000);
    model.EnablePolling(false);
}

void TestFeatureTreeLive::throwingPollKeepsPolling()
{
    FeatureTreeModel model;
    addAndFind(model, m_device, QStringLiteral("@CameraDevice/Level"));
    m_device->injectFault(QStringLiteral("@CameraDevice"), Operation::Poll, FaultKind::StdException, 1);
    QTest::ignoreMessage(QtWarningMsg, "Failed to run feature polling.");
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("^onTimerPoll : +Exception occurred:\\n")));
    model.EnablePolling(true);
    // The failed tick didn't move the clock; the next one polls.
    QTRY_COMPARE_WITH_TIMEOUT(polledMilliseconds(m_device), qint64(300), 3000);
    QVERIFY(model.GetPolling());
    model.EnablePolling(false);
}

void TestFeatureTreeLive::tickWithoutNodeMapsRearms()
{
    FeatureTreeModel model;
    model.EnablePolling(true);
    QTest::qWait(700);
    // The timer kept going with nothing to poll: a node map added now gets polled.
    model.addParameterCollection(m_device->nodeMap(QStringLiteral("@CameraDevice")), QStringLiteral("Camera"),
        QStringLiteral("@CameraDevice"), false);
    QCOMPARE(polledMilliseconds(m_device), qint64(0));
    QTRY_VERIFY_WITH_TIMEOUT(polledMilliseconds(m_device) > 0, 2000);
    model.EnablePolling(false);
}

void TestFeatureTreeLive::monitorModeRefreshesInsteadOfPolling()
{
    FeatureTreeModel model;
    FeatureTreeINodeItem* ratio = addAndFind(model, m_device, QStringLiteral("@CameraDevice/Ratio"));
    QVERIFY(ratio);
    QVERIFY(m_device->changeOnDevice(QStringLiteral("@CameraDevice/Ratio"), 7.5));
    model.setMonitorMode(true);
    model.EnablePolling(true);
    // Ratio isn't polled: only a full re-read finds the change.
    QTRY_COMPARE_WITH_TIMEOUT(ratio->data(1, Qt::DisplayRole).toString(), QStringLiteral("7.50"), 2000);
    QCOMPARE(polledMilliseconds(m_device), qint64(0));
    model.EnablePolling(false);
}

void TestFeatureTreeLive::snapshotsAgainstTheRange_data()
{
    QTest::addColumn<qint64>("value");
    QTest::addColumn<bool>("writable");
    QTest::addColumn<bool>("accepted");
    QTest::addColumn<QString>("written");

    // The parameter's range is 0 to 100 and its value 80 ("Value" with Floor 0 and Limit 100).
    QTest::newRow("above maximum, writable") << qint64(150) << true << false << "100";
    QTest::newRow("below minimum, writable") << qint64(-5) << true << false << "0";
    QTest::newRow("above maximum, not writable") << qint64(150) << false << true << "80";
    QTest::newRow("equal to maximum") << qint64(100) << true << true << "80";
    QTest::newRow("equal to minimum") << qint64(0) << true << true << "80";
    QTest::newRow("inside") << qint64(50) << true << true << "80";
}

void TestFeatureTreeLive::snapshotsAgainstTheRange()
{
    QFETCH(qint64, value);
    QFETCH(bool, writable);
    QFETCH(bool, accepted);
    QFETCH(QString, written);

    FeatureTreeModel model;
    const auto item = looseItem(model, QStringLiteral("Value"));
    const QSharedPointer<const ParameterData> before = item->getParameterData();
    QSignalSpy updated(item.get(), SIGNAL(nodeUpdated(int, FeatureTreeINodeItem*)));
    const auto snapshot = integerSnapshot(value, 0, 100, writable);
    item->onParameterDataChanged(snapshot);

    QCOMPARE(item->node()->getParameterData()->valueText, written);
    if (accepted) {
        QCOMPARE(item->getParameterData(), snapshot.staticCast<const ParameterData>());
        QCOMPARE(updated.count(), 1);
        QCOMPARE(updated.at(0).at(0).toInt(), item->row());
        QCOMPARE(updated.at(0).at(1).value<FeatureTreeINodeItem*>(), item.get());
        QCOMPARE(item->data(1, Qt::DisplayRole).toString(), QString::number(value));
    } else {
        // The limit was written; the item waits for the snapshot that write brings.
        QCOMPARE(item->getParameterData(), before);
        QCOMPARE(updated.count(), 0);
        QCOMPARE(item->data(1, Qt::DisplayRole).toString(), QStringLiteral("80"));
        QTRY_COMPARE(item->data(1, Qt::DisplayRole).toString(), written);
        QCOMPARE(updated.count(), 1);
    }
}

void TestFeatureTreeLive::floatAboveMaximumWritesMaximum()
{
    FeatureTreeModel model;
    const auto item = looseItem(model, QStringLiteral("Ratio"));
    QSignalSpy updated(item.get(), SIGNAL(nodeUpdated(int, FeatureTreeINodeItem*)));
    const QSharedPointer<const ParameterData> before = item->getParameterData();
    auto snapshot = QSharedPointer<FloatParameterData>::create();
    snapshot->type = ParameterCollection::TypeFloat;
    snapshot->readable = snapshot->writable = snapshot->implemented = true;
    snapshot->value = 12.5;
    snapshot->minimum = 0.0;
    snapshot->maximum = 10.0;
    snapshot->valueText = QStringLiteral("12.50");
    item->onParameterDataChanged(snapshot);
    QCOMPARE(item->getParameterData(), before);
    QCOMPARE(updated.count(), 0);
    QCOMPARE(item->node()->getParameterData()->valueText, QStringLiteral("10.00"));
}

void TestFeatureTreeLive::snapshotsAreDroppedWhileCallbacksAreDisabled()
{
    FeatureTreeModel model;
    FeatureTreeINodeItem* ratio = addAndFind(model, m_device, QStringLiteral("@CameraDevice/Ratio"));
    QVERIFY(ratio);
    QSignalSpy changed(&model, dataChangedSignal);
    model.setGenICamCallbacksEnable(false);
    QVERIFY(!model.getGenICamCallbackEnable());
    ratio->node()->setValueFromString(QStringLiteral("6.00"));
    QTest::qWait(100);
    QCOMPARE(changed.count(), 0);
    QCOMPARE(ratio->data(1, Qt::DisplayRole).toString(), QStringLiteral("5.00"));

    // Nothing is re-read when they come back; the next change is shown.
    model.setGenICamCallbacksEnable(true);
    QTest::qWait(100);
    QCOMPARE(ratio->data(1, Qt::DisplayRole).toString(), QStringLiteral("5.00"));
    ratio->node()->setValueFromString(QStringLiteral("7.00"));
    QTRY_COMPARE(ratio->data(1, Qt::DisplayRole).toString(), QStringLiteral("7.00"));
    QCOMPARE(changed.count(), 2);
}

void TestFeatureTreeLive::nodeUpdatedWithDeviceGoneEmitsNothing()
{
    FeatureTreeModel model;
    FeatureTreeINodeItem* ratio = addAndFind(model, m_device, QStringLiteral("@CameraDevice/Ratio"));
    QVERIFY(ratio);
    QSignalSpy changed(&model, dataChangedSignal);
    QSignalSpy updated(ratio, SIGNAL(nodeUpdated(int, FeatureTreeINodeItem*)));
    model.SetDeviceAlive(false);
    ratio->node()->setValueFromString(QStringLiteral("6.00"));
    QTRY_COMPARE(updated.count(), 1);
    // The item stored the snapshot; the model told nobody.
    QCOMPARE(ratio->data(1, Qt::DisplayRole).toString(), QStringLiteral("6.00"));
    QCOMPARE(changed.count(), 0);
}

void TestFeatureTreeLive::nodeUpdatedEmitsBothColumns()
{
    FeatureTreeModel model;
    FeatureTreeINodeItem* ratio = addAndFind(model, m_device, QStringLiteral("@CameraDevice/Ratio"));
    QVERIFY(ratio);
    QSignalSpy changed(&model, dataChangedSignal);
    model.onNodeUpdated(ratio->row(), ratio);
    QCOMPARE(changed.count(), 2);
    for (int column = 0; column < 2; ++column) {
        const QModelIndex index = changed.at(column).at(0).value<QModelIndex>();
        QCOMPARE(changed.at(column).at(1).value<QModelIndex>(), index);
        QCOMPARE(index.column(), column);
        QCOMPARE(index.row(), ratio->row());
        QCOMPARE(itemAt(index), ratio);
        QVERIFY(changed.at(column).at(2).value<QVector<int>>().isEmpty());
    }
}

void TestFeatureTreeLive::refreshSpecialItemsTouchesFullRowItemsToTheThirdLevel()
{
    // Four levels of categories below the node map's root.
    auto device = makeDevice(cameraJson(R"(
        { "name": "Root", "type": "Category", "children": ["A", "Top"] },
        { "name": "A", "type": "Category", "children": ["B", "InA"] },
        { "name": "B", "type": "Category", "children": ["C"] },
        { "name": "C", "type": "Category", "children": ["InC"] },
        { "name": "InA", "type": "Integer", "value": 1, "min": 0, "max": 9 },
        { "name": "InC", "type": "Integer", "value": 1, "min": 0, "max": 9 },
        { "name": "Top", "type": "Integer", "value": 1, "min": 0, "max": 9 }
    )"));
    QVERIFY(device);
    FeatureTreeModel model;
    QSignalSpy changed(&model, dataChangedSignal);
    model.addParameterCollection(device->nodeMap(QStringLiteral("@CameraDevice")), QStringLiteral("Camera"),
        QStringLiteral("@CameraDevice"), false);
    // The walk filled the node map's first two levels (A, then B and InA); B's children wait.
    const QModelIndex b = model.findItemByFullName(QStringLiteral("@CameraDevice/B"), nullptr, 0);
    QVERIFY(b.isValid());
    QCOMPARE(itemAt(b)->builtChildCount(), 0);
    QVERIFY(!model.findItemByFullName(QStringLiteral("@CameraDevice/C"), nullptr, 0).isValid());

    changed.clear();
    model.refreshSpecialItems();
    QStringList touched;
    for (const QList<QVariant>& signal : qAsConst(changed)) {
        const QModelIndex index = signal.at(0).value<QModelIndex>();
        QCOMPARE(signal.at(1).value<QModelIndex>(), index);
        QCOMPARE(index.column(), 0);
        QVERIFY(signal.at(2).value<QVector<int>>().isEmpty());
        touched << index.data(FeatureTreeItem::FullNameRole).toString();
    }
    // Level 1 is the node map's item, level 2 its categories, level 3 theirs;
    // features are never full-row items. B's children are still not built.
    QCOMPARE(itemAt(b)->builtChildCount(), 0);
    QCOMPARE(touched,
        QStringList({ QStringLiteral("@CameraDevice*Root"), QStringLiteral("@CameraDevice/A"),
            QStringLiteral("@CameraDevice/B") }));
}

void TestFeatureTreeLive::deviceChangeReachesBothColumnsThroughThePoll()
{
    auto device = Simulation::SimulatedDevice::createDefault(QStringLiteral("GEV"));
    QVERIFY(device);
    FeatureTreeModel model;
    ModelCheck check(&model, { Excuse::ChildrenInEveryColumn, Excuse::RootFlags });
    for (const QString& name : device->nodeMapNames())
        model.addParameterCollection(device->nodeMap(name), name, name, false);
    auto* temperature = qobject_cast<FeatureTreeINodeItem*>(
        itemAt(model.findItemByFullName(QStringLiteral("@CameraDevice/DeviceTemperature"), nullptr, 0)));
    QVERIFY(temperature);
    const auto initial = temperature->getParameterData().dynamicCast<const ParameterCollection::FloatParameterData>();
    QVERIFY(initial);
    const QString expected = QString::number(55.0, 'f', int(initial->precision));

    // What each dataChanged of the temperature's row said, at the moment it came.
    QList<QPair<int, QString>> seen;
    connect(&model, &QAbstractItemModel::dataChanged, this,
        [&seen, temperature](const QModelIndex& topLeft, const QModelIndex& bottomRight, const QVector<int>& roles) {
            if (itemAt(topLeft) == temperature) {
                QCOMPARE(bottomRight, topLeft);
                QVERIFY(roles.isEmpty());
                seen.append({ topLeft.column(), topLeft.siblingAtColumn(1).data().toString() });
            }
        });
    QVERIFY(device->changeOnDevice(QStringLiteral("@CameraDevice/DeviceTemperature"), 55.0));
    model.EnablePolling(true);
    QTRY_VERIFY_WITH_TIMEOUT(seen.count() >= 2, 3000);
    model.EnablePolling(false);
    QCOMPARE(seen.at(0), qMakePair(0, expected));
    QCOMPARE(seen.at(1), qMakePair(1, expected));
    VERIFY_MODEL_CHECK(check);
}

void TestFeatureTreeLive::rangeMovingUnderTheValueWritesItBack()
{
    FeatureTreeModel model;
    ModelCheck check(&model, { Excuse::ChildrenInEveryColumn, Excuse::RootFlags });
    FeatureTreeINodeItem* value = addAndFind(model, m_device, QStringLiteral("@CameraDevice/Value"));
    QVERIFY(value);
    QCOMPARE(value->data(1, Qt::DisplayRole).toString(), QStringLiteral("80"));

    // Every text the value's row showed when the model announced it.
    QStringList shown;
    connect(&model, &QAbstractItemModel::dataChanged, this,
        [&shown, value](const QModelIndex& topLeft, const QModelIndex&, const QVector<int>&) {
            if (itemAt(topLeft) == value && topLeft.column() == 1)
                shown << topLeft.data().toString();
        });

    // The camera lowers the limit by itself; the poll finds it.
    QVERIFY(m_device->changeOnDevice(QStringLiteral("@CameraDevice/Limit"), 50));
    model.EnablePolling(true);
    QTRY_COMPARE_WITH_TIMEOUT(value->data(1, Qt::DisplayRole).toString(), QStringLiteral("50"), 3000);
    QCOMPARE(value->node()->getParameterData()->valueText, QStringLiteral("50"));
    // The out-of-range snapshot (80 above 50) never reached the view.
    QCOMPARE(shown, QStringList { QStringLiteral("50") });

    // And the floor moving above it, while the limit makes room again.
    QVERIFY(m_device->changeOnDevice(QStringLiteral("@CameraDevice/Limit"), 100));
    QVERIFY(m_device->changeOnDevice(QStringLiteral("@CameraDevice/Floor"), 60));
    QTRY_COMPARE_WITH_TIMEOUT(value->data(1, Qt::DisplayRole).toString(), QStringLiteral("60"), 3000);
    model.EnablePolling(false);
    QCOMPARE(shown, QStringList({ QStringLiteral("50"), QStringLiteral("60") }));
    VERIFY_MODEL_CHECK(check);
}

void TestFeatureTreeLive::unpluggedDeviceStopsPollingAndKeepsTheValues()
{
    auto device = Simulation::SimulatedDevice::createDefault(QStringLiteral("GEV"));
    QVERIFY(device);
    FeatureTreeModel model;
    for (const QString& name : device->nodeMapNames())
        model.addParameterCollection(device->nodeMap(name), name, name, false);
    const QModelIndex temperatureIndex
        = model.findItemByFullName(QStringLiteral("@CameraDevice/DeviceTemperature"), nullptr, 1);
    QVERIFY(temperatureIndex.isValid());
    model.EnablePolling(true);
    QTRY_VERIFY_WITH_TIMEOUT(device->clockMilliseconds() >= 300, 2000);

    QSignalSpy changed(&model, dataChangedSignal);
    ErrorQueueWatch errors;
    model.SetDeviceAlive(false);
    device->unplug();
    const QString lastShown = temperatureIndex.data().toString();
    const qint64 clockAtLoss = device->clockMilliseconds();
    QTest::qWait(800);
    QVERIFY(model.GetPolling());
    QCOMPARE(temperatureIndex.data().toString(), lastShown);
    QVERIFY(!temperatureIndex.data().toString().isEmpty());
    QCOMPARE(changed.count(), 0);
    QVERIFY(!model.setData(temperatureIndex, QStringLiteral("1"), Qt::EditRole));
    QCOMPARE(errors.settle(), 0);

    // Plugged in again, the device would answer polls: none comes, the timer is stopped.
    device->replug();
    QTest::qWait(800);
    QCOMPARE(device->clockMilliseconds(), clockAtLoss);
    QCOMPARE(changed.count(), 0);
}

void TestFeatureTreeLive::changesFromAWorkerThreadArriveOnTheGuiThread()
{
    QThread worker;
    worker.start();
    m_device->setDeliveryThread(&worker);

    FeatureTreeModel model;
    ModelCheck check(&model, { Excuse::ChildrenInEveryColumn, Excuse::RootFlags });
    FeatureTreeINodeItem* ratio = addAndFind(model, m_device, QStringLiteral("@CameraDevice/Ratio"));
    QVERIFY(ratio);

    QThread* const guiThread = QThread::currentThread();
    QList<QThread*> signalThreads;
    QList<QThread*> updateThreads;
    const auto parameter = ratio->node();
    connect(
        parameter.data(), &ParameterCollection::IParameter::parameterDataChangedDecoupled, this,
        [&signalThreads](QSharedPointer<const ParameterData>) { signalThreads << QThread::currentThread(); },
        Qt::DirectConnection);
    connect(
        &model, &QAbstractItemModel::dataChanged, this,
        [&updateThreads](
            const QModelIndex&, const QModelIndex&, const QVector<int>&) { updateThreads << QThread::currentThread(); },
        Qt::DirectConnection);

    parameter->setValueFromString(QStringLiteral("3.25"));
    QTRY_COMPARE(updateThreads.count(), 2);
    QCOMPARE(ratio->data(1, Qt::DisplayRole).toString(), QStringLiteral("3.25"));
    QCOMPARE(signalThreads.count(), 1);
    QCOMPARE(signalThreads.first(), &worker);
    QCOMPARE(updateThreads, (QList<QThread*> { guiThread, guiThread }));
    QCOMPARE(ratio->thread(), guiThread);

    m_device->setDeliveryThread(nullptr);
    worker.quit();
    QVERIFY(worker.wait(5000));
    VERIFY_MODEL_CHECK(check);
}

// ---- one connection per parameter ------------------------------------------

void TestFeatureTreeLive::changeReachesTreeItemThenFavouriteTwin()
{
    clearFavourites();
    FeatureTreeModel model;
    // Building the favourites branch and its search line draws the reports the model makes on purpose.
    ModelCheck check(
        &model, { Excuse::ChildrenInEveryColumn, Excuse::RootFlags, Excuse::RootDataChanged, Excuse::SearchHelpRow });
    model.rebuildFavoriteItems();
    FeatureTreeINodeItem* tree = addAndFind(model, m_device, QStringLiteral("@CameraDevice/Ratio"));
    QVERIFY(tree);
    const auto parameter = ratioParameter();
    QVERIFY(model.AddFavorite(parameter, 0));
    // The views rebuild the branch when the store changes.
    model.rebuildFavoriteItems();
    const QList<FeatureTreeINodeItem*> items = itemsOf(model, parameter.data());
    QCOMPARE(items.count(), 2);
    FeatureTreeINodeItem* twin = items.first() == tree ? items.last() : items.first();
    QVERIFY(twin != tree);

    QList<FeatureTreeINodeItem*> order;
    QList<double> seen;
    for (FeatureTreeINodeItem* item : { tree, twin }) {
        connect(item, &FeatureTreeINodeItem::nodeUpdated, this, [&order, &seen](int, FeatureTreeINodeItem* updated) {
            order << updated;
            seen << updated->data(1, Qt::DisplayRole).toString().toDouble();
        });
    }
    QSignalSpy changed(&model, dataChangedSignal);
    parameter->setValueFromString(QStringLiteral("7.5"));
    QTRY_COMPARE(order.count(), 2);
    QCOMPARE(order, (QList<FeatureTreeINodeItem*> { tree, twin }));
    QCOMPARE(seen, (QList<double> { 7.5, 7.5 }));
    QSet<const void*> rows;
    for (const QList<QVariant>& arguments : changed)
        rows.insert(arguments.at(0).toModelIndex().internalPointer());
    QVERIFY(rows.contains(tree));
    QVERIFY(rows.contains(twin));
    VERIFY_MODEL_CHECK(check);
    clearFavourites();
}

void TestFeatureTreeLive::queuedChangeForDeletedItemsReachesNothing_data()
{
    QTest::addColumn<QString>("what");
    QTest::newRow("the favourite removed") << QStringLiteral("favourite");
    QTest::newRow("the model cleared") << QStringLiteral("clear");
    QTest::newRow("the model deleted") << QStringLiteral("delete");
}

void TestFeatureTreeLive::queuedChangeForDeletedItemsReachesNothing()
{
    QFETCH(QString, what);
    clearFavourites();
    const auto parameter = ratioParameter();
    const int before = ReceiverCount::of(parameter.data(), changedSignal);
    auto model = std::make_unique<FeatureTreeModel>();
    model->rebuildFavoriteItems();
    FeatureTreeINodeItem* tree = addAndFind(*model, m_device, QStringLiteral("@CameraDevice/Ratio"));
    QVERIFY(tree);
    QVERIFY(model->AddFavorite(parameter, 0));
    // The views rebuild the branch when the store changes.
    model->rebuildFavoriteItems();
    QCOMPARE(itemsOf(*model, parameter.data()).count(), 2);
    int treeUpdates = 0;
    connect(tree, &FeatureTreeINodeItem::nodeUpdated, this, [&treeUpdates] { ++treeUpdates; });
    int changes = 0;
    connect(model.get(), &QAbstractItemModel::dataChanged, this, [&changes] { ++changes; });

    // Emitted on another thread: delivery waits for the next turn of this thread's loop.
    std::unique_ptr<QThread> emitter(
        QThread::create([parameter] { emit parameter->parameterDataChangedDecoupled(floatSnapshot(2.5)); }));
    emitter->start();
    QVERIFY(emitter->wait(5000));
    QCOMPARE(treeUpdates, 0); // queued, not yet delivered

    if (what == QLatin1String("favourite")) {
        const QModelIndex favourites = model->GetFavoritesRootIndex();
        QVERIFY(model->RemoveFavorite(model->index(model->rowCount(favourites) - 1, 0, favourites)));
        model->rebuildFavoriteItems();
        QCOMPARE(itemsOf(*model, parameter.data()), QList<FeatureTreeINodeItem*> { tree });
    } else if (what == QLatin1String("clear")) {
        model->clear();
        QCOMPARE(itemsOf(*model, parameter.data()).count(), 0);
    } else {
        model.reset();
    }
    changes = 0; // what the rebuild announced
    QCoreApplication::processEvents();
    QCoreApplication::processEvents();
    if (what == QLatin1String("favourite")) {
        // The tree item still has it, the favourite's row is gone and gets nothing.
        QCOMPARE(treeUpdates, 1);
        QCOMPARE(tree->data(1, Qt::DisplayRole).toString().toDouble(), 2.5);
        QCOMPARE(changes, 2);
        QCOMPARE(ReceiverCount::of(parameter.data(), changedSignal), before + 1);
    } else {
        QCOMPARE(changes, 0);
        QCOMPARE(ReceiverCount::of(parameter.data(), changedSignal), before);
    }
    clearFavourites();
}

void TestFeatureTreeLive::lastItemGoneLeavesNoConnection()
{
    clearFavourites();
    const auto parameter = ratioParameter();
    const int before = ReceiverCount::of(parameter.data(), changedSignal);
    {
        FeatureTreeModel model;
        model.rebuildFavoriteItems();
        QVERIFY(addAndFind(model, m_device, QStringLiteral("@CameraDevice/Ratio")));
        QCOMPARE(ReceiverCount::of(parameter.data(), changedSignal), before + 1);
        // A favourite twin is an item of its own, with a connection of its own.
        QVERIFY(model.AddFavorite(parameter, 0));
        // The views rebuild the branch when the store changes.
        model.rebuildFavoriteItems();
        QCOMPARE(itemsOf(model, parameter.data()).count(), 2);
        QCOMPARE(ReceiverCount::of(parameter.data(), changedSignal), before + 2);
        model.clear();
        QCOMPARE(ReceiverCount::of(parameter.data(), changedSignal), before);
    }
    QCOMPARE(ReceiverCount::of(parameter.data(), changedSignal), before);

    // Subscribing again works.
    FeatureTreeModel model;
    ModelCheck check(&model, { Excuse::ChildrenInEveryColumn, Excuse::RootFlags });
    FeatureTreeINodeItem* again = addAndFind(model, m_device, QStringLiteral("@CameraDevice/Ratio"));
    QVERIFY(again);
    QCOMPARE(ReceiverCount::of(parameter.data(), changedSignal), before + 1);
    QSignalSpy changed(&model, dataChangedSignal);
    parameter->setValueFromString(QStringLiteral("4.5"));
    QTRY_COMPARE(changed.count(), 2);
    QCOMPARE(again->data(1, Qt::DisplayRole).toString().toDouble(), 4.5);
    VERIFY_MODEL_CHECK(check);
    clearFavourites();
}

void TestFeatureTreeLive::blockedItemNotifiesNothing()
{
    FeatureTreeModel model;
    FeatureTreeINodeItem* ratio = addAndFind(model, m_device, QStringLiteral("@CameraDevice/Ratio"));
    QVERIFY(ratio);
    QSignalSpy changed(&model, dataChangedSignal);
    QSignalSpy updated(ratio, &FeatureTreeINodeItem::nodeUpdated);
    {
        SignalBlocker blocker(ratio);
        emit ratio->node()->parameterDataChangedDecoupled(floatSnapshot(6.0));
        QCoreApplication::processEvents();
    }
    QCOMPARE(changed.count(), 0);
    QCOMPARE(updated.count(), 0);
    // Unblocked, the next change is told again.
    emit ratio->node()->parameterDataChangedDecoupled(floatSnapshot(6.5));
    QCOMPARE(updated.count(), 1);
    QCOMPARE(changed.count(), 2);
}

void TestFeatureTreeLive::twoModelsEachGetTheirOwnUpdates()
{
    FeatureTreeModel first;
    FeatureTreeModel second;
    ModelCheck firstCheck(&first, { Excuse::ChildrenInEveryColumn, Excuse::RootFlags });
    ModelCheck secondCheck(&second, { Excuse::ChildrenInEveryColumn, Excuse::RootFlags });
    FeatureTreeINodeItem* a = addAndFind(first, m_device, QStringLiteral("@CameraDevice/Ratio"));
    FeatureTreeINodeItem* b = addAndFind(second, m_device, QStringLiteral("@CameraDevice/Ratio"));
    QVERIFY(a && b && a != b);
    QSignalSpy firstChanged(&first, dataChangedSignal);
    QSignalSpy secondChanged(&second, dataChangedSignal);
    ratioParameter()->setValueFromString(QStringLiteral("1.5"));
    QTRY_COMPARE(firstChanged.count(), 2);
    QTRY_COMPARE(secondChanged.count(), 2);
    for (const QList<QVariant>& arguments : firstChanged) {
        QCOMPARE(arguments.at(0).toModelIndex().model(), &first);
        QCOMPARE(arguments.at(0).toModelIndex().internalPointer(), static_cast<void*>(a));
    }
    for (const QList<QVariant>& arguments : secondChanged) {
        QCOMPARE(arguments.at(0).toModelIndex().model(), &second);
        QCOMPARE(arguments.at(0).toModelIndex().internalPointer(), static_cast<void*>(b));
    }
    QCOMPARE(a->data(1, Qt::DisplayRole).toString().toDouble(), 1.5);
    QCOMPARE(b->data(1, Qt::DisplayRole).toString().toDouble(), 1.5);
    VERIFY_MODEL_CHECK(firstCheck);
    VERIFY_MODEL_CHECK(secondCheck);
}

QTEST_MAIN(TestFeatureTreeLive)
#include "tst_featuretreelive.moc"
