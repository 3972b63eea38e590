// Images from Aravis's fake GigE Vision camera on the loopback interface,
// through AravisStream: frames reach the thread of the widgets whole and
// described, buffers come back when the receiver lets go of its frames, the
// camera going away mid-stream stops the stream cleanly, and at 640 x 480
// Mono8, 30 frames a second, at least 95 % of the frames arrive complete.
// ZVC_STREAM_SECONDS sets how long that run streams (3 s by default).
// Skipped, with the reason, where the fake camera can't start.

#include "arvglib.h"

#include "aravisdevice.h"
#include "aravisframe.h"
#include "aravisnodemap.h"
#include "aravisstream.h"
#include "fakecameratestsupport.h"

#include <QElapsedTimer>
#include <QFile>
#include <QTimer>
#include <QtTest>

#include <memory>

namespace {

//! A receiver as an image pane is one: it keeps the frame it shows until the next comes.
class Pane : public QObject
{
public:
    Aravis::AravisFrame shown;
    QList<Aravis::AravisFrame> kept; //!< frames held on purpose, when holding
    bool holding = false;
    int frames = 0;
    quint64 firstId = 0;
    quint64 lastId = 0;
    bool idsRise = true;
    QString wrong; //!< the first frame that didn't look as it should

    int expectedWidth = 0;
    int expectedHeight = 0;

    void show(const Aravis::AravisFrame& frame)
    {
        if (frames == 0)
            firstId = frame.frameId();
        else if (frame.frameId() <= lastId)
            idsRise = false;
        lastId = frame.frameId();
        ++frames;
        if (wrong.isEmpty()
            && (frame.isNull() || frame.width() != expectedWidth || frame.height() != expectedHeight
                || frame.pixelFormat() != QLatin1String("Mono8") || frame.bytesPerLine() < expectedWidth
                || frame.size() < qint64(frame.bytesPerLine()) * expectedHeight
                || frame.bytes().size() != int(frame.size())))
            wrong = QStringLiteral("frame %1: %2 x %3, %4, %5 bytes of %6 a line")
                        .arg(frame.frameId())
                        .arg(frame.width())
                        .arg(frame.height())
                        .arg(frame.pixelFormat())
                        .arg(frame.size())
                        .arg(frame.bytesPerLine());
        if (holding)
            kept.append(frame);
        shown = frame;
    }
};

} // namespace

class TestAravisStream : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase();
    void init();
    void cleanup();
    void framesOfTheFormatAsked();
    void completeFramesAt30PerSecond();
    void buffersComeBackWhenFramesGo();
    void stopAndStartAgain();
    void cameraGoesAwayMidStream();
    void pixelFormatNames_data();
    void pixelFormatNames();

private:
    void setFormat(int width, int height, double framesPerSecond);

    std::unique_ptr<Aravis::FakeGigECamera> m_camera;
    QSharedPointer<Aravis::AravisDevice> m_device;
    int m_serial = 0;
};

void TestAravisStream::initTestCase()
{
    FakeCameraTestSupport::loopbackBusyReason(); // before any camera of ours answers
}

void TestAravisStream::cleanupTestCase()
{
    arv_shutdown();
}

void TestAravisStream::init()
{
    // Each test on a camera of its own: one that a test stopped doesn't come back.
    if (QByteArray(QTest::currentTestFunction()) == "pixelFormatNames")
        return;
    const QString serial = QStringLiteral("ZVS%1N%2").arg(QCoreApplication::applicationPid()).arg(++m_serial);
    FakeCameraTestSupport::FakeCamera fake = FakeCameraTestSupport::startFakeCamera(serial);
    if (!fake.skipReason.isEmpty())
        SKIP_WITHOUT_CAMERA(qPrintable(fake.skipReason));
    m_camera = std::move(fake.camera);
    const QString id = fake.deviceId;
    QString error;
    m_device = Aravis::AravisDevice::open(id, &error);
    QVERIFY2(m_device, qPrintable(error));
}

void TestAravisStream::cleanup()
{
    m_device.reset();
    m_camera.reset();
}

void TestAravisStream::setFormat(int width, int height, double framesPerSecond)
{
    ArvDevice* arv = m_device->arvDevice();
    GError* error = nullptr;
    arv_device_set_integer_feature_value(arv, "Width", width, &error);
    QVERIFY2(!error, error ? error->message : "");
    arv_device_set_integer_feature_value(arv, "Height", height, &error);
    QVERIFY2(!error, error ? error->message : "");
    arv_device_set_string_feature_value(arv, "PixelFormat", "Mono8", &error);
    QVERIFY2(!error, error ? error->message : "");
    arv_device_set_float_feature_value(arv, "AcquisitionFrameRate", framesPerSecond, &error);
    QVERIFY2(!error, error ? error->message : "");
}

void TestAravisStream::framesOfTheFormatAsked()
{
    setFormat(320, 240, 30);
    Aravis::AravisStream stream(m_device);
    Pane pane;
    pane.expectedWidth = 320;
    pane.expectedHeight = 240;
    connect(&stream, &Aravis::AravisStream::frameReady, &pane,
        [&pane](const Aravis::AravisFrame& frame) { pane.show(frame); });
    QVERIFY(!stream.isRunning());
    QVERIFY2(stream.start(), qPrintable(stream.errorString()));
    QVERIFY(stream.isRunning());
    // The packet size was agreed: on loopback far beyond an Ethernet frame.
    QVERIFY2(stream.packetSize() > 1500, qPrintable(QString::number(stream.packetSize())));
    QTRY_VERIFY_WITH_TIMEOUT(pane.frames >= 5, 10000);
    QVERIFY2(pane.wrong.isEmpty(), qPrintable(pane.wrong));
    QVERIFY(pane.idsRise);
    stream.stop();
    QVERIFY(!stream.isRunning());
    const Aravis::AravisStream::Statistics counts = stream.statistics();
    QVERIFY(counts.completed >= quint64(pane.frames));
    QCOMPARE(counts.delivered, quint64(pane.frames));
    // The frame shown outlives the stream's run, whole.
    QCOMPARE(pane.shown.width(), 320);
    QCOMPARE(pane.shown.bytes().size(), int(pane.shown.size()));
    stream.stop(); // twice is harmless
}

void TestAravisStream::completeFramesAt30PerSecond()
{
    const int seconds = qMax(1, qEnvironmentVariableIntValue("ZVC_STREAM_SECONDS"));
    const int runSeconds = qEnvironmentVariableIsSet("ZVC_STREAM_SECONDS") ? seconds : 3;
    setFormat(640, 480, 30);
    Aravis::AravisStream stream(m_device);
    Pane pane;
    pane.expectedWidth = 640;
    pane.expectedHeight = 480;
    connect(&stream, &Aravis::AravisStream::frameReady, &pane,
        [&pane](const Aravis::AravisFrame& frame) { pane.show(frame); });
    // How long the event loop is ever away while frames arrive.
    QElapsedTimer sinceTick;
    qint64 longestGap = 0;
    QTimer tick;
    tick.setInterval(5);
    connect(&tick, &QTimer::timeout, this, [&] { longestGap = qMax(longestGap, sinceTick.restart()); });
    QVERIFY2(stream.start(), qPrintable(stream.errorString()));
    QElapsedTimer clock;
    clock.start();
    sinceTick.start();
    tick.start();
    QTest::qWait(runSeconds * 1000);
    tick.stop();
    const double elapsed = clock.nsecsElapsed() / 1e9;
    stream.stop();
    const Aravis::AravisStream::Statistics counts = stream.statistics();
    QVERIFY2(pane.wrong.isEmpty(), qPrintable(pane.wrong));
    QString socketLimit;
    QFile rmem(QStringLiteral("/proc/sys/net/core/rmem_max"));
    if (rmem.open(QIODevice::ReadOnly))
        socketLimit = QString::fromLatin1(rmem.readAll().trimmed());
    qInfo("640 x 480 Mono8 at 30/s for %.1f s: %llu frames received, %llu complete (%.1f %%), %llu incomplete, "
          "%llu without a buffer; %llu shown (%.1f/s), %llu dropped while one was on its way; packets of %d bytes, "
          "rmem_max %s; event loop away %lld ms at most",
        elapsed, counts.received(), counts.completed, 100.0 * counts.completedShare(), counts.failed, counts.underruns,
        counts.delivered, counts.delivered / elapsed, counts.dropped, stream.packetSize(), qPrintable(socketLimit),
        longestGap);
    // The fake camera keeps its own pace on a busy machine; what arrives must arrive whole.
    QVERIFY2(counts.received() >= quint64(runSeconds * 30 / 3),
        qPrintable(QStringLiteral("only %1 frames in %2 s").arg(counts.received()).arg(elapsed)));
    QVERIFY2(counts.completedShare() >= 0.95, qPrintable(QString::number(100.0 * counts.completedShare())));
    QCOMPARE(counts.delivered, quint64(pane.frames));
}

void TestAravisStream::buffersComeBackWhenFramesGo()
{
    setFormat(320, 240, 30);
    Aravis::AravisStream stream(m_device);
    Pane pane;
    pane.expectedWidth = 320;
    pane.expectedHeight = 240;
    pane.holding = true;
    connect(&stream, &Aravis::AravisStream::frameReady, &pane,
        [&pane](const Aravis::AravisFrame& frame) { pane.show(frame); });
    // Three buffers, and a receiver that keeps every frame: after three the camera has nowhere to write.
    QVERIFY2(stream.start(3), qPrintable(stream.errorString()));
    QTRY_COMPARE_WITH_TIMEOUT(pane.kept.size(), 3, 10000);
    QTRY_VERIFY_WITH_TIMEOUT(stream.statistics().underruns >= 3, 10000);
    QTest::qWait(300);
    QCOMPARE(pane.frames, 3);
    // Letting go of them gives the buffers back, and frames flow again.
    pane.holding = false;
    pane.kept.clear();
    pane.shown.release();
    QVERIFY(pane.shown.isNull());
    QTRY_VERIFY_WITH_TIMEOUT(pane.frames >= 6, 10000);
    stream.stop();
}

void TestAravisStream::stopAndStartAgain()
{
    setFormat(320, 240, 30);
    Aravis::AravisStream stream(m_device);
    Pane pane;
    pane.expectedWidth = 320;
    pane.expectedHeight = 240;
    connect(&stream, &Aravis::AravisStream::frameReady, &pane,
        [&pane](const Aravis::AravisFrame& frame) { pane.show(frame); });
    QSignalSpy stopped(&stream, &Aravis::AravisStream::stopped);
    for (int run = 0; run < 2; ++run) {
        const int before = pane.frames;
        QVERIFY2(stream.start(), qPrintable(stream.errorString()));
        QTRY_VERIFY_WITH_TIMEOUT(pane.frames >= before + 3, 10000);
        stream.stop();
        // The counts are those of the run just ended.
        QVERIFY(stream.statistics().delivered <= quint64(pane.frames - before));
    }
    QTest::qWait(200);
    const int afterStop = pane.frames;
    QTest::qWait(300);
    QCOMPARE(pane.frames, afterStop); // nothing arrives once stopped
    QCOMPARE(stopped.count(), 0); // stop() itself says nothing
}

void TestAravisStream::cameraGoesAwayMidStream()
{
    setFormat(320, 240, 30);
    auto stream = std::make_unique<Aravis::AravisStream>(m_device);
    Pane pane;
    pane.expectedWidth = 320;
    pane.expectedHeight = 240;
    connect(stream.get(), &Aravis::AravisStream::frameReady, &pane,
        [&pane](const Aravis::AravisFrame& frame) { pane.show(frame); });
    QSignalSpy stopped(stream.get(), &Aravis::AravisStream::stopped);
    QVERIFY2(stream->start(), qPrintable(stream->errorString()));
    QTRY_VERIFY_WITH_TIMEOUT(pane.frames >= 3, 10000);
    const Aravis::AravisFrame held = pane.shown;
    const QByteArray copy(held.data(), int(held.size()));

    m_camera->stop();
    QTRY_COMPARE_WITH_TIMEOUT(stopped.count(), 1, 30000);
    QVERIFY(!stream->isRunning());
    QVERIFY(!stopped.first().first().toString().isEmpty());
    QCOMPARE(stream->errorString(), stopped.first().first().toString());
    // Starting again on a camera that is gone fails at once, with a reason.
    QElapsedTimer clock;
    clock.start();
    QVERIFY(!stream->start());
    QVERIFY(!stream->errorString().isEmpty());
    QVERIFY2(clock.elapsed() < 1000, qPrintable(QString::number(clock.elapsed())));
    // The frame held is intact after the stream is gone.
    stream.reset();
    QCOMPARE(QByteArray(held.data(), int(held.size())), copy);
}

void TestAravisStream::pixelFormatNames_data()
{
    QTest::addColumn<quint32>("code");
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("bits");
    QTest::newRow("Mono8") << 0x01080001u << "Mono8" << 8;
    QTest::newRow("Mono12") << 0x01100005u << "Mono12" << 16;
    QTest::newRow("RGB8") << 0x02180014u << "RGB8" << 24;
    QTest::newRow("BayerRG8") << 0x01080009u << "BayerRG8" << 8;
    QTest::newRow("unknown") << 0x0123ABCDu << "0x0123ABCD" << 0;
}

void TestAravisStream::pixelFormatNames()
{
    QFETCH(quint32, code);
    QFETCH(QString, name);
    QFETCH(int, bits);
    QCOMPARE(Aravis::AravisFrame::pixelFormatName(code), name);
    QCOMPARE(Aravis::AravisFrame::bitsPerPixel(code), bits);
    const Aravis::AravisFrame null;
    QVERIFY(null.isNull());
    QVERIFY(null.bytes().isEmpty());
}

// A run in which something was skipped and nothing failed exits with this
// code, which CTest reports as not run; any failure is a failure.
int main(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    QTEST_SET_MAIN_SOURCE_PATH
    TestAravisStream test;
    const int failures = QTest::qExec(&test, argc, argv);
    return FakeCameraTestSupport::exitCode(failures);
}

#include "tst_aravisstream.moc"
