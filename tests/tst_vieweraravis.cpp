// The viewer's window on a camera that nobody here wrote: Aravis's fake GigE
// Vision camera, in a process of its own on the loopback interface, opened as
// `zarvex-viewer --aravis` opens it. Start from the keyboard shows its
// picture at the camera's size and counts the frames in the status bar; Stop
// ends the stream; a camera that goes away mid-stream ends the acquisition
// with a message. Skipped, with the reason, where the fake camera can't start;
// such a run is reported as skipped, never as passed.

#include "fakecameraprocesstestsupport.h"

#include "imagepane.h"
#include "viewercamera.h"
#include "viewermainwindow.h"

#include "featuretree/featuretreewidget.h"
#include "parameters/iparameter.h"
#include "parameters/iparametercollection.h"

#include <QAction>
#include <QElapsedTimer>
#include <QListWidget>
#include <QRegularExpression>
#include <QSettings>
#include <QSignalSpy>
#include <QStatusBar>
#include <QtTest>

#include <memory>

namespace {

//! The "n frames, f fps, l lost" of the status bar, as numbers; false when it doesn't read so.
bool readCounts(const QString& text, quint64* frames, double* framesPerSecond, quint64* lost)
{
    const QRegularExpression pattern(QStringLiteral("^(\\d+) frames, (\\d+\\.\\d) fps, (\\d+) lost$"));
    const QRegularExpressionMatch match = pattern.match(text);
    if (!match.hasMatch())
        return false;
    *frames = match.captured(1).toULongLong();
    *framesPerSecond = match.captured(2).toDouble();
    *lost = match.captured(3).toULongLong();
    return true;
}

} // namespace

class TestViewerAravis : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void startShowsThePictureAndF8StopsIt_data();
    void startShowsThePictureAndF8StopsIt();
    void cameraLostMidStreamEndsTheAcquisition();

private:
    //! Opens the fake camera in the window; false, with a skip or a failure recorded, when it can't.
    bool openFakeCamera(const QString& serialSuffix);
    void setCameraValue(const QString& name, const QString& value);

    std::unique_ptr<FakeCameraTestSupport::FakeCameraProcess> m_fake;
    std::unique_ptr<ViewerMainWindow> m_window;
};

void TestViewerAravis::initTestCase()
{
    QCoreApplication::setOrganizationName(QStringLiteral("ZarvexTest"));
    QCoreApplication::setApplicationName(QStringLiteral("tst_vieweraravis"));
}

void TestViewerAravis::init()
{
    QSettings().clear();
    m_window.reset(new ViewerMainWindow);
    m_window->resize(1200, 800);
    m_window->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
}

void TestViewerAravis::cleanup()
{
    m_window.reset();
    m_fake.reset();
}

bool TestViewerAravis::openFakeCamera(const QString& serialSuffix)
{
    m_fake = std::make_unique<FakeCameraTestSupport::FakeCameraProcess>(
        QStringLiteral("ZVV%1%2").arg(QCoreApplication::applicationPid()).arg(serialSuffix));
    if (!m_fake->skipReason().isEmpty()) {
        ++FakeCameraTestSupport::skippedWithoutCamera();
        QTest::qSkip(qPrintable(m_fake->skipReason()), __FILE__, __LINE__);
        return false;
    }
    QSignalSpy opened(m_window.get(), &ViewerMainWindow::aravisCameraOpened);
    m_window->openAravisCamera(m_fake->id());
    if (!opened.wait(20000)) {
        QTest::qFail("the window did not open the fake camera within 20 s", __FILE__, __LINE__);
        return false;
    }
    if (!opened.first().first().toBool()) {
        QTest::qFail(qPrintable(opened.first().at(1).toString()), __FILE__, __LINE__);
        return false;
    }
    return true;
}

void TestViewerAravis::setCameraValue(const QString& name, const QString& value)
{
    const auto map = m_window->camera()->nodeMap(QStringLiteral("@CameraDevice"));
    QVERIFY(map);
    const auto parameter = map->getParameter(name);
    QVERIFY2(parameter, qPrintable(name));
    try {
        parameter->setValueFromString(value);
    } catch (const std::exception& e) {
        QFAIL(qPrintable(QStringLiteral("%1 = %2: %3").arg(name, value, QString::fromUtf8(e.what()))));
    }
}

void TestViewerAravis::startShowsThePictureAndF8StopsIt_data()
{
    QTest::addColumn<int>("width");
    QTest::addColumn<int>("height");
    QTest::newRow("640 x 480") << 640 << 480;
    QTest::newRow("320 x 200") << 320 << 200;
}

void TestViewerAravis::startShowsThePictureAndF8StopsIt()
{
    QFETCH(int, width);
    QFETCH(int, height);
    if (!openFakeCamera(QString::number(width)))
        return;
    ViewerCamera* camera = m_window->camera();
    QVERIFY(camera);
    QVERIFY(camera->hasImages());
    QVERIFY(camera->hasStream());
    for (const auto& [name, value] : { std::make_pair(QStringLiteral("Width"), QString::number(width)),
             std::make_pair(QStringLiteral("Height"), QString::number(height)),
             std::make_pair(QStringLiteral("PixelFormat"), QStringLiteral("Mono8")) }) {
        setCameraValue(name, value);
        if (QTest::currentTestFailed())
            return;
    }

    auto* start = m_window->findChild<QAction*>(QStringLiteral("actionStartAcquisition"));
    auto* stop = m_window->findChild<QAction*>(QStringLiteral("actionStopAcquisition"));
    QVERIFY(start->isEnabled());
    QVERIFY(!stop->isEnabled());
    QSignalSpy painted(m_window.get(), &ViewerMainWindow::framePainted);
    QApplication::setActiveWindow(m_window.get());
    m_window->cameraList()->setFocus();
    QTest::keyClick(m_window->cameraList(), Qt::Key_F7);
    QVERIFY(m_window->isAcquiring());
    QVERIFY(camera->isStreaming());
    QVERIFY(!start->isEnabled());
    QVERIFY(stop->isEnabled());
    QVERIFY(painted.wait(10000));
    QCOMPARE(m_window->imagePane()->currentImage().size(), QSize(width, height));
    // Aravis's fake camera paints a grey ramp that moves.
    const QRgb pixel = m_window->imagePane()->currentImage().pixel(width / 2, height / 2);
    QVERIFY(qRed(pixel) == qGreen(pixel) && qGreen(pixel) == qBlue(pixel));

    // The status bar counts what the stream received: frames, their rate, the lost.
    quint64 frames = 0;
    double framesPerSecond = 0.0;
    quint64 lost = 0;
    QTRY_VERIFY_WITH_TIMEOUT(readCounts(m_window->frameStatisticsText(), &frames, &framesPerSecond, &lost)
            && frames >= 10 && framesPerSecond > 0.0,
        15000);
    QVERIFY2(lost <= frames / 10, qPrintable(m_window->frameStatisticsText()));

    QTest::keyClick(m_window->cameraList(), Qt::Key_F8);
    QVERIFY(!m_window->isAcquiring());
    QVERIFY(!camera->isStreaming());
    QVERIFY(start->isEnabled());
    QVERIFY(!stop->isEnabled());
    const QString stopped = m_window->frameStatisticsText();
    QVERIFY2(readCounts(stopped, &frames, &framesPerSecond, &lost), qPrintable(stopped));
    QCOMPARE(framesPerSecond, 0.0);
    const int paintedAtStop = painted.count();
    QTest::qWait(300);
    QVERIFY(painted.count() <= paintedAtStop + 1);
    QCOMPARE(m_window->frameStatisticsText(), stopped);
    // The picture of the last frame stays.
    QCOMPARE(m_window->imagePane()->currentImage().size(), QSize(width, height));

    // And it starts again.
    QTest::keyClick(m_window->cameraList(), Qt::Key_F7);
    QVERIFY(m_window->isAcquiring());
    const int before = painted.count();
    QTRY_VERIFY_WITH_TIMEOUT(painted.count() > before, 10000);
    QVERIFY(m_window->stopAcquisition());
}

void TestViewerAravis::cameraLostMidStreamEndsTheAcquisition()
{
    if (!openFakeCamera(QStringLiteral("L")))
        return;
    setCameraValue(QStringLiteral("Width"), QStringLiteral("320"));
    setCameraValue(QStringLiteral("Height"), QStringLiteral("240"));
    if (QTest::currentTestFailed())
        return;
    QSignalSpy painted(m_window.get(), &ViewerMainWindow::framePainted);
    QVERIFY(m_window->startAcquisition());
    QVERIFY(painted.wait(10000));

    m_fake->kill();
    // The heartbeat, or the tree's next poll, finds the camera gone.
    QTRY_VERIFY_WITH_TIMEOUT(!m_window->isAcquiring(), 30000);
    QVERIFY(!m_window->camera()->isStreaming());
    QVERIFY2(m_window->statusBar()->currentMessage().startsWith(QLatin1String("The camera is gone: ")),
        qPrintable(m_window->statusBar()->currentMessage()));
    auto* stop = m_window->findChild<QAction*>(QStringLiteral("actionStopAcquisition"));
    auto* start = m_window->findChild<QAction*>(QStringLiteral("actionStartAcquisition"));
    QVERIFY(!stop->isEnabled());
    QVERIFY(!start->isEnabled()); // nothing to start on a camera that is gone
    // The last picture stays, and nothing more arrives.
    QCOMPARE(m_window->imagePane()->currentImage().size(), QSize(320, 240));
    const int paintedAtLoss = painted.count();
    QTest::qWait(300);
    QCOMPARE(painted.count(), paintedAtLoss);
    // Closing the window on the lost camera is quick and quiet.
    QElapsedTimer clock;
    clock.start();
    m_window.reset();
    QVERIFY2(clock.elapsed() < 3000, qPrintable(QString::number(clock.elapsed())));
}

int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    QTEST_SET_MAIN_SOURCE_PATH
    TestViewerAravis test;
    const int failures = QTest::qExec(&test, argc, argv);
    return FakeCameraTestSupport::exitCode(failures);
}

#include "tst_vieweraravis.moc"
