// The pictures of the simulated camera: each follows the camera's own
// features (size, offsets, pixel format, mirroring, test pattern, frame rate,
// brightness after ExposureTime and Gain), frames flow only while the camera
// acquires, and the features that shape the payload are locked meanwhile.

#include "simulateddevice.h"
#include "simulatedframesource.h"

#include "parameters/icommandparameter.h"
#include "parameters/parameterdata.h"

#include <QSignalSpy>
#include <QtTest>

using namespace Simulation;
using namespace ParameterCollection;

namespace {

const QString kCamera = QStringLiteral("@CameraDevice");

QSharedPointer<IParameter> feature(const QSharedPointer<SimulatedDevice>& device, const QString& name)
{
    return device->nodeMap(kCamera)->getParameter(kCamera + QLatin1Char('/') + name);
}

void set(const QSharedPointer<SimulatedDevice>& device, const QString& name, const QString& value)
{
    feature(device, name)->setValueFromString(value);
}

void execute(const QSharedPointer<SimulatedDevice>& device, const QString& name)
{
    qobject_cast<ICommandParameter*>(feature(device, name).data())->execute(true);
}

double mean(const SimulatedFrame& frame)
{
    qint64 sum = 0;
    for (const char byte : frame.data)
        sum += quint8(byte);
    return frame.data.isEmpty() ? 0.0 : double(sum) / frame.data.size();
}

//! A small Mono8 frame of the default camera as it is set now.
SimulatedFrame renderNow(const SimulatedFrameSource& source, quint64 frameId = 1)
{
    return SimulatedFrameSource::render(source.settings(), frameId);
}

} // namespace

class TestSimulatedFrames : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void defaultCameraMakesPictures();
    void frameFollowsSizeAndPixelFormat_data();
    void frameFollowsSizeAndPixelFormat();
    void reverseXAndYMirrorThePicture();
    void offsetsMoveTheRegion();
    void testPatterns_data();
    void testPatterns();
    void brightnessFollowsExposureAndGain_data();
    void brightnessFollowsExposureAndGain();
    void framesFlowOnlyWhileAcquiring();
    void frameRateIsKept();
    void acquisitionLocksThePayloadFeatures_data();
    void acquisitionLocksThePayloadFeatures();
    void lockIsAnnouncedToTheParameter();
    void unpluggedCameraSendsNothing();
    void descriptionOfTheFrameSourceIsChecked_data();
    void descriptionOfTheFrameSourceIsChecked();

private:
    QSharedPointer<SimulatedDevice> m_device;
};

void TestSimulatedFrames::init()
{
    m_device = SimulatedDevice::createDefault(QStringLiteral("GEV"));
    QVERIFY(m_device);
    set(m_device, QStringLiteral("Width"), QStringLiteral("64"));
    set(m_device, QStringLiteral("Height"), QStringLiteral("32"));
    set(m_device, QStringLiteral("PixelFormat"), QStringLiteral("Mono8"));
}

void TestSimulatedFrames::defaultCameraMakesPictures()
{
    const auto camera = SimulatedDevice::createDefault();
    SimulatedFrameSource source(camera);
    QVERIFY(source.isValid());
    QSignalSpy frames(&source, &SimulatedFrameSource::frameReady);
    QTest::qWait(100);
    QCOMPARE(frames.count(), 0);
    execute(camera, QStringLiteral("AcquisitionStart"));
    QVERIFY(frames.wait(2000));
    const auto frame = frames.first().first().value<SimulatedFrame>();
    QCOMPARE(frame.width, 1920);
    QCOMPARE(frame.height, 1200);
    QCOMPARE(frame.pixelFormat, QStringLiteral("BayerRG8"));
    QCOMPARE(frame.data.size(), 1920 * 1200);
    QCOMPARE(frame.frameId, quint64(1));
    // Without a frame rate of its own the camera keeps to 30 frames a second.
    QCOMPARE(source.settings().frameRate, 30.0);
}

void TestSimulatedFrames::frameFollowsSizeAndPixelFormat_data()
{
    QTest::addColumn<QString>("format");
    QTest::addColumn<int>("bytesPerPixel");
    QTest::newRow("Mono8") << QStringLiteral("Mono8") << 1;
    QTest::newRow("Mono10") << QStringLiteral("Mono10") << 2;
    QTest::newRow("Mono12") << QStringLiteral("Mono12") << 2;
    QTest::newRow("Mono16") << QStringLiteral("Mono16") << 2;
    QTest::newRow("RGB8") << QStringLiteral("RGB8") << 3;
    QTest::newRow("BGR8") << QStringLiteral("BGR8") << 3;
    QTest::newRow("BayerRG8") << QStringLiteral("BayerRG8") << 1;
    QTest::newRow("Mono10p, not drawn") << QStringLiteral("Mono10p") << 0;
}

void TestSimulatedFrames::frameFollowsSizeAndPixelFormat()
{
    QFETCH(QString, format);
    QFETCH(int, bytesPerPixel);
    set(m_device, QStringLiteral("Width"), QStringLiteral("136"));
    set(m_device, QStringLiteral("Height"), QStringLiteral("40"));
    set(m_device, QStringLiteral("PixelFormat"), format);
    SimulatedFrameSource source(m_device);
    QVERIFY(source.isValid());
    QSignalSpy frames(&source, &SimulatedFrameSource::frameReady);
    execute(m_device, QStringLiteral("AcquisitionStart"));
    QVERIFY(frames.wait(2000));
    const auto frame = frames.first().first().value<SimulatedFrame>();
    QCOMPARE(frame.width, 136);
    QCOMPARE(frame.height, 40);
    QCOMPARE(frame.pixelFormat, format);
    QCOMPARE(frame.data.size(), 136 * 40 * bytesPerPixel);
    QCOMPARE(SimulatedFrameSource::canRender(format), bytesPerPixel > 0);
    if (format == QLatin1String("Mono16") || format == QLatin1String("Mono10")) {
        // White fills the container's significant bits.
        set(m_device, QStringLiteral("TestPattern"), QStringLiteral("White"));
        const SimulatedFrame white = renderNow(source);
        const quint16 value = qFromLittleEndian<quint16>(white.data.constData());
        QCOMPARE(int(value), format == QLatin1String("Mono16") ? 0xFFFF : 0x3FF);
    }
}

void TestSimulatedFrames::reverseXAndYMirrorThePicture()
{
    SimulatedFrameSource source(m_device);
    const SimulatedFrame plain = renderNow(source, 7);
    set(m_device, QStringLiteral("ReverseX"), QStringLiteral("1"));
    QVERIFY(source.settings().reverseX);
    const SimulatedFrame mirrored = renderNow(source, 7);
    QVERIFY(plain.data != mirrored.data);
    for (int y = 0; y < plain.height; ++y) {
        for (int x = 0; x < plain.width; ++x)
            QCOMPARE(mirrored.data.at(y * 64 + x), plain.data.at(y * 64 + 63 - x));
    }
    set(m_device, QStringLiteral("ReverseX"), QStringLiteral("0"));
    set(m_device, QStringLiteral("ReverseY"), QStringLiteral("1"));
    const SimulatedFrame flipped = renderNow(source, 7);
    for (int y = 0; y < plain.height; ++y)
        QCOMPARE(flipped.data.mid(y * 64, 64), plain.data.mid((31 - y) * 64, 64));
}

void TestSimulatedFrames::offsetsMoveTheRegion()
{
    SimulatedFrameSource source(m_device);
    const SimulatedFrame origin = renderNow(source, 3);
    set(m_device, QStringLiteral("OffsetX"), QStringLiteral("16"));
    set(m_device, QStringLiteral("OffsetY"), QStringLiteral("8"));
    QCOMPARE(source.settings().offsetX, 16);
    const SimulatedFrame moved = renderNow(source, 3);
    // What stood at (16, 8) now stands at the origin.
    for (int y = 0; y < 24; ++y)
        QCOMPARE(moved.data.mid(y * 64, 48), origin.data.mid((y + 8) * 64 + 16, 48));
}

void TestSimulatedFrames::testPatterns_data()
{
    QTest::addColumn<QString>("pattern");
    QTest::addColumn<int>("first");
    QTest::addColumn<int>("last");
    QTest::newRow("Black") << QStringLiteral("Black") << 0 << 0;
    QTest::newRow("White") << QStringLiteral("White") << 255 << 255;
    QTest::newRow("GreyHorizontalRamp") << QStringLiteral("GreyHorizontalRamp") << 0 << 255;
    QTest::newRow("FrameCounter") << QStringLiteral("FrameCounter") << 42 << 42;
}

void TestSimulatedFrames::testPatterns()
{
    QFETCH(QString, pattern);
    QFETCH(int, first);
    QFETCH(int, last);
    set(m_device, QStringLiteral("TestPattern"), pattern);
    // A test pattern is not a picture of light: gain doesn't change it.
    set(m_device, QStringLiteral("Gain"), QStringLiteral("12"));
    SimulatedFrameSource source(m_device);
    QCOMPARE(source.settings().testPattern, pattern);
    const SimulatedFrame frame = renderNow(source, 42);
    QCOMPARE(int(quint8(frame.data.at(0))), first);
    QCOMPARE(int(quint8(frame.data.at(63))), last);
}

void TestSimulatedFrames::brightnessFollowsExposureAndGain_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("higher");
    QTest::newRow("Gain") << QStringLiteral("Gain") << QStringLiteral("6");
    QTest::newRow("ExposureTime") << QStringLiteral("ExposureTime") << QStringLiteral("8000");
}

void TestSimulatedFrames::brightnessFollowsExposureAndGain()
{
    QFETCH(QString, name);
    QFETCH(QString, higher);
    SimulatedFrameSource source(m_device);
    const double before = mean(renderNow(source));
    const double brightnessBefore = source.settings().brightness;
    set(m_device, name, higher);
    QVERIFY(source.settings().brightness > brightnessBefore);
    const double after = mean(renderNow(source));
    QVERIFY2(after > before * 1.3, qPrintable(QStringLiteral("%1 -> %2").arg(before).arg(after)));
}

void TestSimulatedFrames::framesFlowOnlyWhileAcquiring()
{
    SimulatedFrameSource source(m_device);
    QSignalSpy frames(&source, &SimulatedFrameSource::frameReady);
    QSignalSpy acquisition(&source, &SimulatedFrameSource::acquisitionChanged);
    QTest::qWait(150);
    QCOMPARE(frames.count(), 0);
    execute(m_device, QStringLiteral("AcquisitionStart"));
    QTRY_VERIFY(frames.count() >= 3);
    QCOMPARE(acquisition.count(), 1);
    QCOMPARE(acquisition.first().first().toBool(), true);
    // Ids count up without a gap.
    for (int i = 0; i < frames.count(); ++i)
        QCOMPARE(frames.at(i).first().value<SimulatedFrame>().frameId, quint64(i + 1));
    execute(m_device, QStringLiteral("AcquisitionStop"));
    QTRY_COMPARE(acquisition.count(), 2);
    const int stoppedAt = frames.count();
    QTest::qWait(150);
    QCOMPARE(frames.count(), stoppedAt);
    QCOMPARE(source.framesSent(), quint64(stoppedAt));
}

void TestSimulatedFrames::frameRateIsKept()
{
    set(m_device, QStringLiteral("AcquisitionFrameRateEnable"), QStringLiteral("1"));
    set(m_device, QStringLiteral("AcquisitionFrameRate"), QStringLiteral("20"));
    SimulatedFrameSource source(m_device);
    QCOMPARE(source.settings().frameRate, 20.0);
    QSignalSpy frames(&source, &SimulatedFrameSource::frameReady);
    execute(m_device, QStringLiteral("AcquisitionStart"));
    QVERIFY(frames.wait(1000));
    const int first = frames.count();
    QElapsedTimer clock;
    clock.start();
    QTest::qWait(1000);
    const double rate = (frames.count() - first) * 1000.0 / clock.elapsed();
    // A busy machine may fall short, but the source never runs ahead.
    QVERIFY2(rate > 10.0 && rate < 22.0, qPrintable(QString::number(rate)));
}

void TestSimulatedFrames::acquisitionLocksThePayloadFeatures_data()
{
    QTest::addColumn<QString>("name");
    for (const char* name :
        { "Width", "Height", "OffsetX", "OffsetY", "PixelFormat", "BinningHorizontal", "BinningVertical" })
        QTest::newRow(name) << QString::fromLatin1(name);
}

void TestSimulatedFrames::acquisitionLocksThePayloadFeatures()
{
    QFETCH(QString, name);
    const auto parameter = feature(m_device, name);
    const auto locked = feature(m_device, QStringLiteral("TLParamsLocked"));
    QVERIFY(parameter->isWritable());
    QCOMPARE(locked->getParameterData()->valueText, QStringLiteral("0"));
    execute(m_device, QStringLiteral("AcquisitionStart"));
    QCOMPARE(locked->getParameterData()->valueText, QStringLiteral("1"));
    QVERIFY(!parameter->isWritable());
    QVERIFY(!parameter->getParameterData()->writable);
    QVERIFY(parameter->getParameterData()->readable);
    bool refused = false;
    try {
        parameter->setValueFromString(parameter->getParameterData()->valueText);
    } catch (const std::exception&) {
        refused = true;
    }
    QVERIFY(refused);
    // Gain is not part of the payload's shape and stays writable.
    QVERIFY(feature(m_device, QStringLiteral("Gain"))->isWritable());
    execute(m_device, QStringLiteral("AcquisitionStop"));
    QCOMPARE(locked->getParameterData()->valueText, QStringLiteral("0"));
    QVERIFY(parameter->isWritable());
}

void TestSimulatedFrames::lockIsAnnouncedToTheParameter()
{
    const auto width = feature(m_device, QStringLiteral("Width"));
    QSignalSpy changes(width.data(), &IParameter::parameterDataChangedDecoupled);
    QVERIFY(changes.isValid());
    execute(m_device, QStringLiteral("AcquisitionStart"));
    QTRY_COMPARE(changes.count(), 1);
    QVERIFY(!changes.last().first().value<QSharedPointer<const ParameterData>>()->writable);
    execute(m_device, QStringLiteral("AcquisitionStop"));
    QTRY_COMPARE(changes.count(), 2);
    QVERIFY(changes.last().first().value<QSharedPointer<const ParameterData>>()->writable);
}

void TestSimulatedFrames::unpluggedCameraSendsNothing()
{
    SimulatedFrameSource source(m_device);
    QSignalSpy frames(&source, &SimulatedFrameSource::frameReady);
    execute(m_device, QStringLiteral("AcquisitionStart"));
    QVERIFY(frames.wait(2000));
    m_device->unplug();
    QTest::qWait(60);
    const int count = frames.count();
    QTest::qWait(150);
    QCOMPARE(frames.count(), count);
    m_device->replug();
    QVERIFY(frames.wait(2000));
}

void TestSimulatedFrames::descriptionOfTheFrameSourceIsChecked_data()
{
    QTest::addColumn<QString>("frameSource");
    QTest::addColumn<QString>("error");
    QTest::newRow("unknown node map") << QStringLiteral(R"({"nodeMap": "@Nothing", "width": "Width"})")
                                      << QStringLiteral("unknown node map \"@Nothing\"");
    QTest::newRow("unknown feature") << QStringLiteral(R"({"nodeMap": "@CameraDevice", "width": "Breadth"})")
                                     << QStringLiteral("unknown feature \"Breadth\"");
    QTest::newRow("bad expression") << QStringLiteral(R"({"nodeMap": "@CameraDevice", "width": "Width +"})")
                                    << QStringLiteral("cannot parse expression");
    QTest::newRow("unknown quantity") << QStringLiteral(R"({"nodeMap": "@CameraDevice", "colour": "1"})")
                                      << QStringLiteral("unknown quantity");
    QTest::newRow("no node map") << QStringLiteral(R"({"width": "Width"})") << QStringLiteral("missing");
    QTest::newRow("fine") << QStringLiteral(R"({"nodeMap": "@CameraDevice", "width": "Width * 2"})") << QString();
}

void TestSimulatedFrames::descriptionOfTheFrameSourceIsChecked()
{
    QFETCH(QString, frameSource);
    QFETCH(QString, error);
    const QByteArray json = QStringLiteral(R"({"format": "zarvex-simulated-device", "version": 1,
        "frameSource": %1,
        "nodeMaps": [{"name": "@CameraDevice", "features": [
            {"name": "Root", "type": "Category", "children": ["Width"]},
            {"name": "Width", "type": "Integer", "value": 32, "min": 8, "max": 64}]}]})")
                                .arg(frameSource)
                                .toUtf8();
    QString reason;
    const auto device = SimulatedDevice::fromJson(json, &reason);
    if (error.isEmpty()) {
        QVERIFY2(device, qPrintable(reason));
        SimulatedFrameSource source(device);
        QVERIFY(source.isValid());
        QCOMPARE(source.settings().width, 64);
        QCOMPARE(source.settings().pixelFormat, QStringLiteral("Mono8"));
    } else {
        QVERIFY(!device);
        QVERIFY2(reason.contains(error), qPrintable(reason));
        QVERIFY2(reason.contains(QLatin1String("frame")), qPrintable(reason));
    }
}

QTEST_MAIN(TestSimulatedFrames)
#include "tst_simulatedframes.moc"
