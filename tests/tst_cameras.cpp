// The public camera classes that hosts link, used as a host uses them: the
// simulated camera (libZarvexSimulation) and, in builds with Aravis, a camera
// opened through libZarvexAravis on Aravis's fake GigE Vision camera, which
// runs in a process of its own. This test links only the installed libraries'
// public classes.

#include "simulatedcamera.h"
#ifdef ZVC_WITH_ARAVIS
#include "araviscamera.h"
#include "aravisframe.h"
#include "aravisstream.h"
#include "fakecameraprocesstestsupport.h"
#endif

#include "featuretree/featuretreemodel.h"
#include "featuretree/featuretreewidget.h"
#include "parameters/iparameter.h"
#include "parameters/iparametercollection.h"

#include <QAbstractProxyModel>
#include <QSignalSpy>
#include <QTreeView>
#include <QtTest>

using namespace ParameterCollection;

class TestCameras : public QObject
{
    Q_OBJECT

private slots:
    void defaultCameraHandsOverItsNodeMaps_data();
    void defaultCameraHandsOverItsNodeMaps();
    void refusedDescriptionSaysWhy();
    void describedCameraKeepsItsIdentity();
    void unplugAnnouncesTheLossFromTheEventLoop();
    void failingWritesAndChangesOnTheDevice();
    void treeShowsTheCameraAndTakesItsLoss();
    void aravisCameraOpensByIdAndIsLost();
    void aravisStreamOfTheCameraDeliversFrames();
};

void TestCameras::defaultCameraHandsOverItsNodeMaps_data()
{
    QTest::addColumn<QString>("type");
    for (const QString& type : Simulation::SimulatedCamera::defaultTransportLayerTypes())
        QTest::newRow(qPrintable(type)) << type;
}

void TestCameras::defaultCameraHandsOverItsNodeMaps()
{
    QFETCH(QString, type);
    auto camera = Simulation::SimulatedCamera::createDefault(type);
    QVERIFY(camera);
    QCOMPARE(camera->transportLayerType(), type);
    QCOMPARE(camera->baseInfo()->getTLType(), type);
    const QList<Simulation::NodeMapEntry> nodeMaps = camera->nodeMaps();
    QCOMPARE(nodeMaps.size(), camera->nodeMapNames().size());
    QCOMPARE(nodeMaps.size(), 5);
    for (int i = 0; i < nodeMaps.size(); ++i) {
        QCOMPARE(nodeMaps.at(i).name, camera->nodeMapNames().at(i));
        QVERIFY(nodeMaps.at(i).name.startsWith(QLatin1Char('@')));
        QCOMPARE(nodeMaps.at(i).rootName, nodeMaps.at(i).name.mid(1));
        QCOMPARE(nodeMaps.at(i).collection, camera->nodeMap(nodeMaps.at(i).name));
        QVERIFY(nodeMaps.at(i).collection);
    }
    QCOMPARE(nodeMaps.first().name, QStringLiteral("@CameraDevice"));
    QVERIFY(!camera->nodeMap(QStringLiteral("@NoSuchMap")));
    // The node maps hold the camera's state themselves.
    const auto map = camera->nodeMap(QStringLiteral("@CameraDevice"));
    camera.reset();
    QVERIFY(map->hasParameter(QStringLiteral("@CameraDevice/Width")));
}

void TestCameras::refusedDescriptionSaysWhy()
{
    QString error;
    QVERIFY(!Simulation::SimulatedCamera::fromJson("{ not json", &error));
    QVERIFY(!error.isEmpty());
    error.clear();
    QVERIFY(!Simulation::SimulatedCamera::fromFile(QStringLiteral("/no/such/camera.json"), &error));
    QVERIFY(error.contains(QStringLiteral("/no/such/camera.json")));
    QVERIFY(!Simulation::SimulatedCamera::fromJson("[]")); // no error text asked for
}

void TestCameras::describedCameraKeepsItsIdentity()
{
    const QByteArray json = R"({
        "format": "zarvex-simulated-device", "version": 1,
        "vendor": "Example", "model": "Tiny", "serialNumber": "T-1", "transportLayerType": "U3V",
        "nodeMaps": [ { "name": "@CameraDevice", "features": [
            { "name": "Root", "type": "Category", "children": ["Width"] },
            { "name": "Width", "type": "Integer", "value": 640, "min": 16, "max": 4096, "inc": 16 } ] } ] })";
    QString error;
    auto camera = Simulation::SimulatedCamera::fromJson(json, &error);
    QVERIFY2(camera, qPrintable(error));
    QCOMPARE(camera->vendor(), QStringLiteral("Example"));
    QCOMPARE(camera->model(), QStringLiteral("Tiny"));
    QCOMPARE(camera->serialNumber(), QStringLiteral("T-1"));
    QCOMPARE(camera->transportLayerType(), QStringLiteral("U3V"));
    QCOMPARE(camera->nodeMapNames(), QStringList { QStringLiteral("@CameraDevice") });
    auto asGigE = Simulation::SimulatedCamera::fromJson(json, &error, QStringLiteral("GEV"));
    QVERIFY(asGigE);
    QCOMPARE(asGigE->transportLayerType(), QStringLiteral("GEV"));
}

void TestCameras::unplugAnnouncesTheLossFromTheEventLoop()
{
    auto camera = Simulation::SimulatedCamera::createDefault();
    QSignalSpy lost(camera.get(), &Simulation::SimulatedCamera::lost);
    const auto width = camera->nodeMap(QStringLiteral("@CameraDevice"))->getParameter(QStringLiteral("Width"));
    QVERIFY(camera->isPlugged());
    camera->unplug();
    QVERIFY(!camera->isPlugged());
    QCOMPARE(lost.count(), 0); // not from inside the call
    QTRY_COMPARE(lost.count(), 1);
    QVERIFY(!lost.first().first().toString().isEmpty());
    QVERIFY(width->isZombie());
    // Every node map operation but hasParameter throws now.
    QVERIFY_EXCEPTION_THROWN(
        camera->nodeMap(QStringLiteral("@CameraDevice"))->getParameter(QStringLiteral("Width")), std::exception);
    camera->unplug(); // already gone: no second announcement
    QTest::qWait(20);
    QCOMPARE(lost.count(), 1);
    camera->replug();
    QVERIFY(camera->isPlugged());
    QVERIFY(!width->isZombie());
}

void TestCameras::failingWritesAndChangesOnTheDevice()
{
    auto camera = Simulation::SimulatedCamera::createDefault();
    const auto width = camera->nodeMap(QStringLiteral("@CameraDevice"))->getParameter(QStringLiteral("Width"));
    QVERIFY(width);
    camera->makeWritesFail(width->getFullName());
    QVERIFY_EXCEPTION_THROWN(width->setValueFromString(QStringLiteral("320")), std::exception);
    camera->clearFaults();
    width->setValueFromString(QStringLiteral("320"));
    QCOMPARE(width->getParameterData()->valueText, QStringLiteral("320"));
    QVERIFY(camera->changeOnDevice(width->getFullName(), 640));
    camera->nodeMap(QStringLiteral("@CameraDevice"))->refreshAll();
    QCOMPARE(width->getParameterData()->valueText, QStringLiteral("640"));
    QVERIFY(!camera->changeOnDevice(QStringLiteral("@CameraDevice/NoSuchFeature"), 1));
}

void TestCameras::treeShowsTheCameraAndTakesItsLoss()
{
    auto camera = Simulation::SimulatedCamera::createDefault();
    FeatureTreeWidget tree(QStringLiteral("Features"), camera->baseInfo());
    for (const auto& nodeMap : camera->nodeMaps())
        tree.addParameterCollection(nodeMap.collection, nodeMap.rootName, nodeMap.name, false);
    connect(camera.get(), &Simulation::SimulatedCamera::lost, &tree, &FeatureTreeWidget::deviceIsClosed);
    tree.setPolling(true);
    // One top-level row per node map, and the favourites.
    QCOMPARE(tree.treeView()->model()->rowCount(), camera->nodeMaps().size() + 1);
    auto* proxy = qobject_cast<QAbstractProxyModel*>(tree.treeView()->model());
    QVERIFY(proxy);
    auto* model = qobject_cast<FeatureTreeModel*>(proxy->sourceModel());
    QVERIFY(model);
    QVERIFY(model->isDeviceAlive());
    camera->unplug();
    QTRY_VERIFY(!model->isDeviceAlive());
    QTest::qWait(400); // polls on the lost camera
    camera.reset(); // the tree outlives the camera object
    QTest::qWait(400);
}

void TestCameras::aravisCameraOpensByIdAndIsLost()
{
#ifndef ZVC_WITH_ARAVIS
    QSKIP("built without Aravis");
#else
    // Aravis's fake camera in a process of its own, on the loopback interface.
    FakeCameraTestSupport::FakeCameraProcess fake(QStringLiteral("ZVCC%1").arg(QCoreApplication::applicationPid()));
    if (!fake.skipReason().isEmpty())
        QSKIP(qPrintable(fake.skipReason()));
    const QString id = fake.id();
    const QString serial = fake.serialNumber();

    QString error;
    QVERIFY(!Aravis::AravisCamera::open(QStringLiteral("no such camera"), &error));
    QVERIFY(!error.isEmpty());
    auto camera = Aravis::AravisCamera::open(id, &error);
    QVERIFY2(camera, qPrintable(error));
    QCOMPARE(camera->id(), id);
    QCOMPARE(camera->info().serialNumber, serial);
    QCOMPARE(camera->transportLayerType(), QStringLiteral("GEV"));
    QCOMPARE(camera->baseInfo()->getTLType(), QStringLiteral("GEV"));
    const QList<Aravis::NodeMapEntry> nodeMaps = camera->nodeMaps();
    QCOMPARE(nodeMaps.size(), 1);
    QCOMPARE(nodeMaps.first().name, QStringLiteral("@CameraDevice"));
    QCOMPARE(nodeMaps.first().rootName, QStringLiteral("CameraDevice"));
    const auto width = nodeMaps.first().collection->getParameter(QStringLiteral("Width"));
    QVERIFY(width && !width->isZombie());
    QVERIFY(!camera->isLost());

    // The camera goes away: the next poll finds out, and the camera says so once, from the event loop.
    QSignalSpy lost(camera.get(), &Aravis::AravisCamera::lost);
    fake.kill();
    QTRY_VERIFY_WITH_TIMEOUT(
        [&] {
            try {
                nodeMaps.first().collection->poll(300);
            } catch (...) {
            }
            return camera->isLost();
        }(),
        20000);
    QTRY_COMPARE(lost.count(), 1);
    QVERIFY(!lost.first().first().toString().isEmpty());
    QVERIFY(width->isZombie());
    QTest::qWait(50);
    QCOMPARE(lost.count(), 1);
#endif
}

// A host that has only the public camera streams its images through an
// AravisStream made from it; the stream and its frames outlive the camera object.
void TestCameras::aravisStreamOfTheCameraDeliversFrames()
{
#ifndef ZVC_WITH_ARAVIS
    QSKIP("built without Aravis");
#else
    FakeCameraTestSupport::FakeCameraProcess fake(QStringLiteral("ZVCS%1").arg(QCoreApplication::applicationPid()));
    if (!fake.skipReason().isEmpty())
        QSKIP(qPrintable(fake.skipReason()));
    QString error;
    auto camera = Aravis::AravisCamera::open(fake.id(), &error);
    QVERIFY2(camera, qPrintable(error));
    const auto map = camera->nodeMap(QStringLiteral("@CameraDevice"));
    QVERIFY(map);
    map->getParameter(QStringLiteral("Width"))->setValueFromString(QStringLiteral("320"));
    map->getParameter(QStringLiteral("Height"))->setValueFromString(QStringLiteral("240"));
    map->getParameter(QStringLiteral("PixelFormat"))->setValueFromString(QStringLiteral("Mono8"));

    auto stream = std::make_unique<Aravis::AravisStream>(*camera);
    Aravis::AravisFrame shown;
    int frames = 0;
    connect(stream.get(), &Aravis::AravisStream::frameReady, this, [&](const Aravis::AravisFrame& frame) {
        shown = frame;
        ++frames;
    });
    QSignalSpy stopped(stream.get(), &Aravis::AravisStream::stopped);
    QVERIFY(!stream->isRunning());
    QVERIFY2(stream->start(), qPrintable(stream->errorString()));
    QTRY_VERIFY_WITH_TIMEOUT(frames >= 3, 10000);
    QCOMPARE(shown.width(), 320);
    QCOMPARE(shown.height(), 240);
    QCOMPARE(shown.pixelFormat(), QStringLiteral("Mono8"));
    QVERIFY(shown.bytesPerLine() >= 320);
    QVERIFY(shown.size() >= qint64(shown.bytesPerLine()) * 240);
    QVERIFY(shown.frameId() > 0);

    // The camera object goes; the stream holds the device and keeps streaming.
    camera.reset();
    const int before = frames;
    QTRY_VERIFY_WITH_TIMEOUT(frames >= before + 3, 10000);
    stream->stop();
    QVERIFY(!stream->isRunning());
    const Aravis::AravisStream::Statistics counts = stream->statistics();
    QCOMPARE(counts.delivered, quint64(frames));
    QVERIFY(counts.completed >= counts.delivered);
    QCOMPARE(stopped.count(), 0);
    // The last frame stays whole after the stream is gone.
    const QByteArray copy(shown.data(), int(shown.size()));
    stream.reset();
    QCOMPARE(QByteArray(shown.data(), int(shown.size())), copy);
#endif
}

QTEST_MAIN(TestCameras)
#include "tst_cameras.moc"
