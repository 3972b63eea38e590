// A camera that nobody here wrote: Aravis's own fake GigE Vision camera,
// answering on the loopback interface, opened through libZarvexAravis and
// shown in FeatureTreeModel and in FeatureTreeWidget. Skipped, with the reason, where the fake camera
// can't start; it never passes without having run.

#include "arvglib.h"

#include "aravisdevice.h"
#include "aravisnodemap.h"
#include "fakecameratestsupport.h"

#include "featuretreewidgettestsupport.h"

#include "camerasettings/camerasettings.h"
#include "featuretree/featuretreeinodeitem.h"
#include "featuretree/featuretreewidget.h"
#include "featuretree/ifeaturetreemodelextension.h"
#include "featuretree/nodemapfilter.h"
#include "parameters/iparametercollection.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QTreeView>

#include <QtTest>
#include <functional>

using namespace ParameterCollection;

class TestAravisFakeCamera : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase();
    void openFillWritePollAndLose_data();
    void openFillWritePollAndLose();
    void editInTheWidgetAndLose();
    void settingsRoundTrip_data();
    void settingsRoundTrip();
};

namespace {

//! Fills every category of the tree (they fill when asked for their rows) and gives every row's column-0 index.
QList<QModelIndex> fillWholeTree(const QAbstractItemModel& model, const QModelIndex& parent)
{
    QList<QModelIndex> all;
    const int rows = model.rowCount(parent);
    for (int row = 0; row < rows; ++row) {
        const QModelIndex index = model.index(row, 0, parent);
        all.append(index);
        all += fillWholeTree(model, index);
    }
    return all;
}

QModelIndex valueIndex(const FeatureTreeModel& model, const QString& fullName)
{
    return model.findItemByFullName(fullName, nullptr, 1);
}

} // namespace

void TestAravisFakeCamera::initTestCase()
{
    FakeCameraTestSupport::loopbackBusyReason(); // before any camera of ours answers
}

void TestAravisFakeCamera::cleanupTestCase()
{
    arv_shutdown();
}

void TestAravisFakeCamera::openFillWritePollAndLose_data()
{
    QTest::addColumn<QString>("genicamFile");
    QTest::addColumn<QString>("gain");
    QTest::addColumn<QString>("exposureTime");
    // Aravis 0.8's own document calls its gain GainRaw (an integer outside
    // every category) and its exposure time ExposureTimeAbs.
    QTest::newRow("Aravis's document") << QString() << "GainRaw"
                                       << "ExposureTimeAbs";
    // Ours names them as the standard does, over the fake camera's registers.
    QTest::newRow("our document") << QStringLiteral(ZVC_ARAVIS_TEST_DATA "/zx-fake-gige-camera.xml") << "Gain"
                                  << "ExposureTime";
}

void TestAravisFakeCamera::openFillWritePollAndLose()
{
    QFETCH(QString, genicamFile);
    QFETCH(QString, gain);
    QFETCH(QString, exposureTime);
    const QString serial = QStringLiteral("ZVC%1%2")
                               .arg(QCoreApplication::applicationPid())
                               .arg(QTest::currentDataTag()[0] == 'A' ? 'A' : 'Z');
    // Mostly Aravis's look-up that finds the camera; starting it adds little.
    QElapsedTimer discovery;
    discovery.start();
    FakeCameraTestSupport::FakeCamera fake = FakeCameraTestSupport::startFakeCamera(serial, genicamFile);
    const qint64 discoveryMs = discovery.elapsed();
    if (!fake.skipReason.isEmpty())
        SKIP_WITHOUT_CAMERA(qPrintable(fake.skipReason));
    Aravis::FakeGigECamera& camera = *fake.camera;
    const QString deviceId = fake.deviceId;

    QElapsedTimer clock;
    clock.start();
    QString error;
    QSharedPointer<Aravis::AravisDevice> device = Aravis::AravisDevice::open(deviceId, &error);
    QVERIFY2(device, qPrintable(error));
    const qint64 openMs = clock.elapsed();
    QCOMPARE(device->transportLayerType(), QString("GEV"));
    QSharedPointer<Aravis::AravisNodeMap> map = device->nodeMap(QStringLiteral("@CameraDevice"));
    QVERIFY(map);

    // The shipped filters impose on a real camera as on the simulated one: a
    // GigE Vision camera's own node map gets the default filter.
    QVERIFY(NodeMapFilter::applyFilter(map, device->baseInfo(), QStringLiteral("@CameraDevice")));
    QCOMPARE(map->getParameter(QStringLiteral("AcquisitionStart"))->getVisibility(), GenApi::Invisible);
    QCOMPARE(map->getParameter(QStringLiteral("AcquisitionStart"))->getParameterData()->visibility,
        qint32(GenApi::Invisible));

    FeatureTreeModel model;
    TreeTest::ModelCheck check(&model, { TreeTest::Excuse::ChildrenInEveryColumn, TreeTest::Excuse::RootFlags });
    TreeTest::ErrorQueueWatch errors;
    clock.restart();
    model.addParameterCollection(map, QStringLiteral("Camera"), QStringLiteral("@CameraDevice"), false);
    const QList<QModelIndex> rows = fillWholeTree(model, QModelIndex());
    const double fillMs = clock.nsecsElapsed() / 1e6;

    // Every feature of the tree reads: a kind, a snapshot, and a value text where readable.
    int features = 0;
    for (const QModelIndex& index : rows) {
        auto* item = qobject_cast<FeatureTreeINodeItem*>(TreeTest::itemAt(index));
        if (!item)
            continue;
        const auto data = item->getParameterData();
        QVERIFY2(data && !data->isPlaceholder, qPrintable(index.data(FeatureTreeItem::FullNameRole).toString()));
        QVERIFY(data->type >= TypeInteger && data->type <= TypeCategory);
        if (data->readable && data->type != TypeCategory && data->type != TypeCommand && data->type != TypeString)
            QVERIFY2(!index.siblingAtColumn(1).data().toString().isEmpty(),
                qPrintable(index.data(FeatureTreeItem::FullNameRole).toString()));
        ++features;
    }
    QVERIFY2(features >= 15, qPrintable(QString::number(features)));
    for (const QString& name : { QStringLiteral("Width"), exposureTime })
        QVERIFY2(valueIndex(model, "@CameraDevice/" + name).isValid(), qPrintable(name));

    // Writes through the model reach the camera: read back through Aravis directly.
    ArvDevice* arv = device->arvDevice();
    const gint64 width = arv_device_get_integer_feature_value(arv, "Width", nullptr);
    const gint64 newWidth = width == 320 ? 256 : 320;
    QVERIFY(model.setData(valueIndex(model, "@CameraDevice/Width"), QString::number(newWidth), Qt::EditRole));
    QCOMPARE(arv_device_get_integer_feature_value(arv, "Width", nullptr), newWidth);
    const QByteArray gainName = gain.toLatin1();
    const QModelIndex gainIndex = valueIndex(model, "@CameraDevice/" + gain);
    const QSharedPointer<IParameter> gainParameter = map->getParameter(gain);
    QVERIFY(gainParameter && !gainParameter->isZombie());
    if (gainParameter->getType() == TypeFloat) {
        // In the tree: written as the user's editor would.
        QVERIFY(gainIndex.isValid());
        QVERIFY(model.setData(gainIndex, QStringLiteral("4"), Qt::EditRole));
        QCOMPARE(arv_device_get_float_feature_value(arv, gainName.constData(), nullptr), 4.0);
    } else {
        // In no category, so not in the tree: written through its parameter.
        gainParameter->setValueFromString(QStringLiteral("4"));
        QCOMPARE(arv_device_get_integer_feature_value(arv, gainName.constData(), nullptr), gint64(4));
    }
    QCOMPARE(gainParameter->getParameterData()->valueText.left(1), QString("4"));
    const QByteArray exposureName = exposureTime.toLatin1();
    QVERIFY(model.setData(valueIndex(model, "@CameraDevice/" + exposureTime), QStringLiteral("12345"), Qt::EditRole));
    QCOMPARE(arv_device_get_float_feature_value(arv, exposureName.constData(), nullptr), 12345.0);
    // The tree hears of each through the decoupled signal.
    QTRY_COMPARE(valueIndex(model, "@CameraDevice/Width").data().toString(), QString::number(newWidth));
    QTRY_VERIFY(valueIndex(model, "@CameraDevice/" + exposureTime).data().toString().startsWith("12345"));

    // A change made on the camera behind the tree's back shows at a poll.
    clock.restart();
    map->poll(300);
    const double pollMs = clock.nsecsElapsed() / 1e6;
    arv_device_set_integer_feature_value(arv, "Width", 512, nullptr);
    model.EnablePolling(true);
    QTRY_COMPARE_WITH_TIMEOUT(valueIndex(model, "@CameraDevice/Width").data().toString(), QString("512"), 3000);

    // The camera goes away in the middle of polling: the tree keeps its last values.
    QMap<QString, QString> before;
    for (const QModelIndex& index : rows)
        before.insert(index.data(FeatureTreeItem::FullNameRole).toString(), index.siblingAtColumn(1).data().toString());
    camera.stop();
    QTRY_VERIFY_WITH_TIMEOUT(map->isLost(), 20000);
    QTest::qWait(700); // more ticks on the lost device
    model.EnablePolling(false);
    for (const QModelIndex& index : rows) {
        const QString name = index.data(FeatureTreeItem::FullNameRole).toString();
        QCOMPARE(index.siblingAtColumn(1).data().toString(), before.value(name));
    }
    QVERIFY(map->getParameter(QStringLiteral("Width"))->isZombie());
    // A write to the lost camera reaches nothing: the item leaves a zombie
    // alone (the model still answers true, as it does for any write it passes
    // on), and the tree keeps the last value. Once the host has said that the
    // device is closed, the model refuses the write itself.
    const QModelIndex lostWidth = valueIndex(model, "@CameraDevice/Width");
    model.setData(lostWidth, QStringLiteral("256"), Qt::EditRole);
    QCOMPARE(lostWidth.data().toString(), QStringLiteral("512"));
    model.SetDeviceAlive(false);
    QVERIFY(!model.setData(lostWidth, QStringLiteral("256"), Qt::EditRole));
    QCOMPARE(lostWidth.data().toString(), QStringLiteral("512"));

    const QStringList reports = check.unexcused();
    QVERIFY2(reports.isEmpty(), qPrintable(reports.join(QLatin1Char('\n'))));
    // The figures for the record; speed is never asserted here.
    qInfo("fake camera, %s: discovery %lld ms, open %lld ms, whole tree (%d features) %.2f ms, one poll %.2f ms",
        QTest::currentDataTag(), discoveryMs, openMs, features, fillMs, pollMs);
}

// The whole widget on the fake camera, as a viewer shows it: every category
// expanded with its editors, a value written through the view's model, and the
// camera lost while polling runs.
void TestAravisFakeCamera::editInTheWidgetAndLose()
{
    const QString serial = QStringLiteral("ZVC%1W").arg(QCoreApplication::applicationPid());
    FakeCameraTestSupport::FakeCamera fake = FakeCameraTestSupport::startFakeCamera(serial);
    if (!fake.skipReason.isEmpty())
        SKIP_WITHOUT_CAMERA(qPrintable(fake.skipReason));
    Aravis::FakeGigECamera& camera = *fake.camera;
    const QString deviceId = fake.deviceId;
    QString error;
    QSharedPointer<Aravis::AravisDevice> device = Aravis::AravisDevice::open(deviceId, &error);
    QVERIFY2(device, qPrintable(error));
    QSharedPointer<Aravis::AravisNodeMap> map = device->nodeMap(QStringLiteral("@CameraDevice"));
    QVERIFY(map);

    FeatureTreeWidget widget(QStringLiteral("fake camera"), device->baseInfo());
    widget.setVisibility(GenApi::Guru);
    widget.addParameterCollection(map, QStringLiteral("@CameraDevice"), QStringLiteral("@CameraDevice"), false);
    widget.resize(600, 800);
    widget.show();
    QVERIFY(QTest::qWaitForWindowExposed(&widget));
    QTreeView* view = widget.treeView();
    // One category at a time, as a user opens them: each expansion opens the editors below it.
    TreeTest::expandEveryCategory(view, QModelIndex());
    QCoreApplication::processEvents();
    // The editors of the rows out of sight open in later turns of the event loop.
    QVERIFY(TreeTest::letEditorsOpen());

    IFeatureTreeModelExtension* extension = widget.getFeatureExtension();
    QVERIFY(extension);
    const QModelIndex width = extension->findItemByFullName(QStringLiteral("@CameraDevice/Width"), nullptr, 1);
    QVERIFY(width.isValid());
    // Every category of the camera shows a name, its own where the document gives none.
    QCOMPARE(width.parent().data().toString(), QString("ImageFormatControl"));
    // Width, in the camera's own representation, is edited by a line edit that opens
    // on a double click; its neighbours with sliders or lists have theirs open.
    int editors = 0;
    for (int row = 0; row < view->model()->rowCount(width.parent()); ++row)
        editors += view->indexWidget(width.siblingAtRow(row)) ? 1 : 0;
    QVERIFY(editors > 0);

    ArvDevice* arv = device->arvDevice();
    const gint64 newWidth = arv_device_get_integer_feature_value(arv, "Width", nullptr) == 256 ? 320 : 256;
    QVERIFY(view->model()->setData(width, QString::number(newWidth), Qt::EditRole));
    QCOMPARE(arv_device_get_integer_feature_value(arv, "Width", nullptr), newWidth);
    QTRY_COMPARE(width.data().toString(), QString::number(newWidth));

    widget.setPolling(true);
    camera.stop();
    QTRY_VERIFY_WITH_TIMEOUT(map->isLost(), 20000);
    QTest::qWait(700); // more ticks on the lost device
    widget.deviceIsClosed();
    QCOMPARE(width.data().toString(), QString::number(newWidth));
    view->collapseAll();
    TreeTest::expandEveryCategory(view, QModelIndex());
    QCoreApplication::processEvents();
    QCOMPARE(width.data().toString(), QString::number(newWidth));
}

// A run in which something was skipped and nothing failed exits with this
// code, which CTest reports as not run (SKIP_RETURN_CODE); one failure or
// more exits with their count, as QtTest's own main does, and is a failure
// whatever else was skipped.
void TestAravisFakeCamera::settingsRoundTrip_data()
{
    QTest::addColumn<QString>("genicamFile");
    QTest::newRow("Aravis's document") << QString();
    QTest::newRow("our document") << QStringLiteral(ZVC_ARAVIS_TEST_DATA "/zx-fake-gige-camera.xml");
}

void TestAravisFakeCamera::settingsRoundTrip()
{
    QFETCH(QString, genicamFile);
    const QString serial = QStringLiteral("ZVS%1%2")
                               .arg(QCoreApplication::applicationPid())
                               .arg(QTest::currentDataTag()[0] == 'A' ? 'A' : 'Z');
    FakeCameraTestSupport::FakeCamera fake = FakeCameraTestSupport::startFakeCamera(serial, genicamFile);
    if (!fake.skipReason.isEmpty())
        SKIP_WITHOUT_CAMERA(qPrintable(fake.skipReason));
    const QString deviceId = fake.deviceId;
    QString error;
    QSharedPointer<Aravis::AravisDevice> device = Aravis::AravisDevice::open(deviceId, &error);
    QVERIFY2(device, qPrintable(error));
    QSharedPointer<Aravis::AravisNodeMap> map = device->nodeMap(QStringLiteral("@CameraDevice"));
    QVERIFY(map);

    CameraSettings settings;
    settings.addParameterCollection(QStringLiteral("@CameraDevice"), map);
    // The fake camera's documents name no pSelected: a camera without
    // selectors, whose values are all saved as they stand.
    const CameraSettings::Document saved = settings.save(&error);
    QVERIFY2(error.isEmpty(), qPrintable(error));
    QCOMPARE(saved.model, QStringLiteral("Fake"));
    for (const CameraSettings::Value& value : saved.values)
        QVERIFY2(value.selector.isEmpty(), qPrintable(value.displayName()));
    QVERIFY2(saved.values.size() >= 5, qPrintable(QString::number(saved.values.size())));

    // Change what the file holds: plain values and TriggerMode under every trigger entry.
    int changed = 0;
    for (const CameraSettings::Value& value : saved.values) {
        const auto parameter = map->getParameter(value.fullName());
        try {
            const auto data = parameter->getParameterData();
            QString other;
            if (const auto* e = dynamic_cast<const EnumParameterData*>(data.data())) {
                for (const QString& symbol : e->symbolicValues)
                    if (symbol != data->valueText && other.isEmpty())
                        other = symbol;
            } else if (const auto* i = dynamic_cast<const IntegerParameterData*>(data.data())) {
                other = QString::number(i->value == i->minimum ? i->minimum + i->increment : i->minimum);
            } else if (const auto* f = dynamic_cast<const FloatParameterData*>(data.data())) {
                other = QString::number(f->value == f->minimum ? (f->minimum + f->maximum) / 2 : f->minimum);
            }
            if (other.isEmpty())
                continue;
            parameter->setValueFromString(other);
            changed += parameter->getParameterData()->valueText != value.value ? 1 : 0;
        } catch (const std::exception&) {
        }
    }
    QVERIFY2(changed >= 3, qPrintable(QString::number(changed)));
    QVERIFY(!settings.compare(saved).isEmpty());

    const CameraSettings::Report report = settings.restore(saved);
    QVERIFY2(report.isComplete(), qPrintable(report.toLines().join(QLatin1Char('\n'))));
    // A write may bring others back with it (a binning its width), so fewer writes than changes.
    QVERIFY(report.count(CameraSettings::Written) >= 2);
    const QList<CameraSettings::Difference> left = settings.compare(saved);
    QStringList names;
    for (const CameraSettings::Difference& difference : left)
        names.append(difference.file.displayName() + QLatin1Char('=') + difference.cameraValue);
    QVERIFY2(left.isEmpty(), qPrintable(names.join(QLatin1Char(' '))));
    const CameraSettings::Document again = settings.save();
    QCOMPARE(again.values.size(), saved.values.size());
    for (int i = 0; i < saved.values.size(); ++i)
        QVERIFY2(again.values.at(i) == saved.values.at(i), qPrintable(saved.values.at(i).displayName()));
}

int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    app.setAttribute(Qt::AA_Use96Dpi, true);
    QTEST_SET_MAIN_SOURCE_PATH
    TestAravisFakeCamera test;
    const int failures = QTest::qExec(&test, argc, argv);
    return FakeCameraTestSupport::exitCode(failures);
}
#include "tst_aravisfakecamera.moc"
