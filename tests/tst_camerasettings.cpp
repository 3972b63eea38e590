// CameraSettings on the default simulated camera: save, change, restore and
// find every value back; onto a fresh camera, one of another transport layer
// and one of another model; a write the camera refuses, an unplug in the
// middle of a restore, compare and restore of picked differences; files that
// are malformed, truncated, hostile or too large, refused before any write.

#include "camerasettings/camerasettings.h"

#include "parameters/iadvancedparameteraccess.h"
#include "parameters/iparameter.h"
#include "parameters/parameterdata.h"
#include "parametervaluetestsupport.h"

#include "simulatedcamera.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSignalSpy>
#include <QTemporaryDir>

#include <QtTest>

#include <memory>

using namespace ParameterCollection;
using Simulation::SimulatedCamera;

namespace {

const QString cameraDevice = QStringLiteral("@CameraDevice");

void addNodeMaps(CameraSettings* settings, SimulatedCamera* camera)
{
    for (const Simulation::NodeMapEntry& map : camera->nodeMaps())
        settings->addParameterCollection(map.name, map.collection);
}

QSharedPointer<IParameter> parameter(SimulatedCamera* camera, const QString& nodeMap, const QString& name)
{
    return camera->nodeMap(nodeMap)->getParameter(nodeMap + QLatin1Char('/') + name);
}

QString valueOf(SimulatedCamera* camera, const QString& name, const QString& nodeMap = cameraDevice)
{
    return parameter(camera, nodeMap, name)->getParameterData()->valueText;
}

void write(SimulatedCamera* camera, const QString& name, const QString& value, const QString& nodeMap = cameraDevice)
{
    parameter(camera, nodeMap, name)->setValueFromString(value);
}

//! The value the document holds for the feature (under the selector entry, if given); null if none.
QString documentValue(const CameraSettings::Document& document, const QString& feature,
    const QString& entry = QString(), const QString& nodeMap = cameraDevice)
{
    for (const CameraSettings::Value& value : document.values)
        if (value.nodeMap == nodeMap && value.feature == feature && value.selectorEntry == entry)
            return value.value;
    return QString();
}

int selectedCount(const CameraSettings::Document& document, const QString& selector)
{
    int n = 0;
    for (const CameraSettings::Value& value : document.values)
        n += value.selector == selector ? 1 : 0;
    return n;
}

/*!
 * Changes every value of the document that the camera lets change, selected
 * ones under their selector entry; gives the number changed.
 */
int changeEverything(SimulatedCamera* camera, const CameraSettings::Document& document)
{
    int changed = 0;
    for (const CameraSettings::Value& value : document.values) {
        try {
            if (!value.selector.isEmpty())
                write(camera, value.selector, value.selectorEntry, value.nodeMap);
            const auto p = parameter(camera, value.nodeMap, value.feature);
            const auto data = p->getParameterData();
            if (!data->writable)
                continue;
            const QString other = ValueTest::otherValue(data);
            if (other.isEmpty())
                continue;
            p->setValueFromString(other);
            changed += p->getParameterData()->valueText != value.value ? 1 : 0;
        } catch (const std::exception&) {
        }
    }
    return changed;
}

//! The values of two documents that differ, as readable lines; empty when they hold the same.
QStringList differences(const CameraSettings::Document& a, const CameraSettings::Document& b)
{
    QStringList lines;
    QHash<QString, QString> inB;
    for (const CameraSettings::Value& value : b.values)
        inB.insert(value.nodeMap + value.displayName(), value.value);
    for (const CameraSettings::Value& value : a.values) {
        const QString key = value.nodeMap + value.displayName();
        if (!inB.contains(key))
            lines.append(key + QStringLiteral(" missing"));
        else if (inB.value(key) != value.value)
            lines.append(QStringLiteral("%1: %2 != %3").arg(key, value.value, inB.value(key)));
        inB.remove(key);
    }
    for (auto it = inB.constBegin(); it != inB.constEnd(); ++it)
        lines.append(it.key() + QStringLiteral(" extra"));
    return lines;
}

//! The summary and the lines of a report that are neither written nor already equal.
QByteArray problems(const CameraSettings::Report& report)
{
    QStringList lines;
    const QStringList all = report.toLines();
    for (int i = 0; i < all.size(); ++i)
        if (i == 0
            || (!all.at(i).contains(QStringLiteral(": written"))
                && !all.at(i).contains(QStringLiteral(": already equal"))))
            lines.append(all.at(i));
    return lines.join(QLatin1Char('\n')).toLocal8Bit();
}

QByteArray defaultCameraJson()
{
    QFile file(QStringLiteral(":/simulation/devices/default-camera.json"));
    if (!file.open(QIODevice::ReadOnly))
        return QByteArray();
    return file.readAll();
}

} // namespace

class TestCameraSettings : public QObject
{
    Q_OBJECT

private slots:
    void saveTakesWritableValuesAndEverySelectorEntry();
    void roundTripOnTheSameCamera();
    void roundTripOntoAFreshCamera();
    void restoreWaitsForWhatUnlocksAFeature();
    void refusedWriteIsReportedAndTheRestApplies();
    void unplugMidRestoreStops();
    void anotherTransportLayerRestoresWhatMatches();
    void anotherModelIsReported();
    void compareAndRestoreSelected();
    void jsonRoundTrip();
    void refusedFiles_data();
    void refusedFiles();
    void hugeFileIsRefused();
    void readFileOfAFileThatIsNotThere();
};

void TestCameraSettings::saveTakesWritableValuesAndEverySelectorEntry()
{
    auto camera = SimulatedCamera::createDefault();
    CameraSettings settings;
    addNodeMaps(&settings, camera.get());
    write(camera.get(), QStringLiteral("GainSelector"), QStringLiteral("DigitalAll"));
    QString error;
    const CameraSettings::Document document = settings.save(&error);
    QVERIFY2(error.isEmpty(), qPrintable(error));

    QCOMPARE(document.model, camera->model());
    QCOMPARE(document.vendor, camera->vendor());
    QCOMPARE(document.serialNumber, camera->serialNumber());
    QVERIFY(document.saved.isValid());
    QVERIFY(qAbs(document.saved.secsTo(QDateTime::currentDateTimeUtc())) < 60);

    // Writable values are there, read-only ones and commands are not.
    QCOMPARE(documentValue(document, QStringLiteral("Width")), valueOf(camera.get(), QStringLiteral("Width")));
    QVERIFY(documentValue(document, QStringLiteral("DeviceVendorName")).isNull());
    QVERIFY(documentValue(document, QStringLiteral("AcquisitionStart")).isNull());
    QVERIFY(documentValue(document, QStringLiteral("DeviceTemperature")).isNull());
    // Every node map is saved.
    QStringList maps;
    for (const CameraSettings::Value& value : document.values)
        if (!maps.contains(value.nodeMap))
            maps.append(value.nodeMap);
    QCOMPARE(maps, camera->nodeMapNames());

    // Selected features under every entry of their selector; the selector is set back.
    const auto gainSelector = parameter(camera.get(), cameraDevice, QStringLiteral("GainSelector"));
    const auto entries = gainSelector->getParameterData().dynamicCast<const EnumParameterData>()->symbolicValues;
    QVERIFY(entries.size() >= 2);
    QCOMPARE(selectedCount(document, QStringLiteral("GainSelector")), entries.size());
    QCOMPARE(valueOf(camera.get(), QStringLiteral("GainSelector")), QStringLiteral("DigitalAll"));
    QVERIFY(selectedCount(document, QStringLiteral("TriggerSelector")) >= 4 * 2);
    QVERIFY(selectedCount(document, QStringLiteral("LineSelector")) >= 3);
    // A selected feature is not saved on its own as well.
    for (const CameraSettings::Value& value : document.values)
        QVERIFY2(!(value.feature == QLatin1String("Gain") && value.selector.isEmpty()), "Gain saved unselected");
    // The simulated selector says what it selects; a plain feature says nothing.
    QCOMPARE(gainSelector->advancedAccess()->getProperty(QStringLiteral("SelectedFeatures")), QStringLiteral("Gain"));
    QCOMPARE(parameter(camera.get(), cameraDevice, QStringLiteral("Width"))
                 ->advancedAccess()
                 ->getProperty(QStringLiteral("SelectedFeatures"), QStringLiteral("none")),
        QStringLiteral("none"));
}

void TestCameraSettings::roundTripOnTheSameCamera()
{
    auto camera = SimulatedCamera::createDefault();
    CameraSettings settings;
    addNodeMaps(&settings, camera.get());
    // A state of its own first, with selected values under several entries.
    write(camera.get(), QStringLiteral("GainSelector"), QStringLiteral("AnalogAll"));
    write(camera.get(), QStringLiteral("Gain"), QStringLiteral("3.5"));
    write(camera.get(), QStringLiteral("LineSelector"), QStringLiteral("Line2"));
    write(camera.get(), QStringLiteral("LineMode"), QStringLiteral("Output"));
    write(camera.get(), QStringLiteral("LineSelector"), QStringLiteral("Line3"));
    write(camera.get(), QStringLiteral("LineInverter"), QStringLiteral("true"));
    write(camera.get(), QStringLiteral("TriggerSelector"), QStringLiteral("FrameStart"));
    write(camera.get(), QStringLiteral("TriggerMode"), QStringLiteral("On"));
    write(camera.get(), QStringLiteral("LineSelector"), QStringLiteral("Line0"));
    const CameraSettings::Document saved = settings.save();

    const int changed = changeEverything(camera.get(), saved);
    QVERIFY2(changed > 100, qPrintable(QString::number(changed)));
    QVERIFY(differences(saved, settings.save()).size() > 50);

    QSignalSpy finished(&settings, &CameraSettings::restoreFinished);
    const CameraSettings::Report report = settings.restore(saved);
    QCOMPARE(finished.count(), 1);
    QCOMPARE(finished.first().first().value<CameraSettings::Report>().entries.size(), report.entries.size());
    QVERIFY2(report.isComplete(), problems(report).constData());
    QVERIFY(report.count(CameraSettings::Written) >= changed / 2);
    QVERIFY(report.passes >= 2);
    QCOMPARE(report.entries.size(), saved.values.size());

    const QStringList left = differences(saved, settings.save());
    QVERIFY2(left.isEmpty(), qPrintable(left.join(QLatin1Char('\n'))));
    QVERIFY(settings.compare(saved).isEmpty());
    // The selectors stand where the file has them.
    QCOMPARE(valueOf(camera.get(), QStringLiteral("LineSelector")), QStringLiteral("Line0"));
    QCOMPARE(valueOf(camera.get(), QStringLiteral("GainSelector")), QStringLiteral("AnalogAll"));

    // Restored again, everything is already equal, in one pass.
    const CameraSettings::Report again = settings.restore(saved);
    QCOMPARE(again.count(CameraSettings::AlreadyEqual), saved.values.size());
    QCOMPARE(again.passes, 1);
}

void TestCameraSettings::roundTripOntoAFreshCamera()
{
    auto first = SimulatedCamera::createDefault();
    CameraSettings settings;
    addNodeMaps(&settings, first.get());
    const CameraSettings::Document original = settings.save();
    changeEverything(first.get(), original);
    const CameraSettings::Document changed = settings.save();
    QVERIFY(differences(original, changed).size() > 50);

    // Through the file's text, onto a camera that never saw the change.
    CameraSettings::Document fromFile;
    QString error;
    QVERIFY2(CameraSettings::fromJson(CameraSettings::toJson(changed), &fromFile, &error), qPrintable(error));
    auto fresh = SimulatedCamera::createDefault();
    CameraSettings onFresh;
    addNodeMaps(&onFresh, fresh.get());
    QVERIFY(!differences(changed, onFresh.save()).isEmpty());
    const CameraSettings::Report report = onFresh.restore(fromFile);
    QVERIFY2(report.isComplete(), problems(report).constData());
    QVERIFY(report.sameModel);
    const QStringList left = differences(changed, onFresh.save());
    QVERIFY2(left.isEmpty(), qPrintable(left.join(QLatin1Char('\n'))));
}

void TestCameraSettings::restoreWaitsForWhatUnlocksAFeature()
{
    auto camera = SimulatedCamera::createDefault();
    CameraSettings settings;
    addNodeMaps(&settings, camera.get());
    write(camera.get(), QStringLiteral("ExposureAuto"), QStringLiteral("Off"));
    write(camera.get(), QStringLiteral("ExposureTime"), QStringLiteral("12345"));
    const CameraSettings::Document saved = settings.save();
    const QString exposure = documentValue(saved, QStringLiteral("ExposureTime"));
    QVERIFY(!exposure.isNull());

    write(camera.get(), QStringLiteral("ExposureTime"), QStringLiteral("20000"));
    write(camera.get(), QStringLiteral("ExposureAuto"), QStringLiteral("Continuous"));
    QVERIFY(!parameter(camera.get(), cameraDevice, QStringLiteral("ExposureTime"))->isWritable());

    // Only the two values, the locked one first.
    QList<CameraSettings::Value> two;
    for (const CameraSettings::Value& value : saved.values)
        if (value.feature == QLatin1String("ExposureTime") || value.feature == QLatin1String("ExposureAuto"))
            two.append(value);
    QCOMPARE(two.size(), 2);
    if (two.first().feature != QLatin1String("ExposureTime"))
        std::swap(two[0], two[1]);
    const CameraSettings::Report report = settings.restoreSelected(saved, two);
    QVERIFY2(report.isComplete(), problems(report).constData());
    QVERIFY(report.passes >= 2);
    QCOMPARE(report.count(CameraSettings::Written), 2);
    QCOMPARE(valueOf(camera.get(), QStringLiteral("ExposureAuto")), QStringLiteral("Off"));
    QCOMPARE(valueOf(camera.get(), QStringLiteral("ExposureTime")), exposure);

    // What no pass unlocks stays locked, and says so.
    write(camera.get(), QStringLiteral("ExposureTime"), QStringLiteral("20000"));
    write(camera.get(), QStringLiteral("ExposureAuto"), QStringLiteral("Continuous"));
    const CameraSettings::Report locked = settings.restoreSelected(saved, { two.first() });
    QCOMPARE(locked.entries.size(), 1);
    QCOMPARE(locked.entries.first().outcome, CameraSettings::Locked);
    QVERIFY(!locked.isComplete());
}

void TestCameraSettings::refusedWriteIsReportedAndTheRestApplies()
{
    auto camera = SimulatedCamera::createDefault();
    CameraSettings settings;
    addNodeMaps(&settings, camera.get());
    const CameraSettings::Document saved = settings.save();
    changeEverything(camera.get(), saved);
    QVERIFY(valueOf(camera.get(), QStringLiteral("Width")) != documentValue(saved, QStringLiteral("Width")));

    camera->makeWritesFail(QStringLiteral("@CameraDevice/Width"));
    QSignalSpy finished(&settings, &CameraSettings::restoreFinished);
    const CameraSettings::Report report = settings.restore(saved);
    QCOMPARE(finished.count(), 1);
    QVERIFY(!report.stopped);
    QVERIFY(!report.isComplete());
    QCOMPARE(report.count(CameraSettings::Refused), 1);
    for (const CameraSettings::ReportEntry& entry : report.entries) {
        if (entry.value.feature == QLatin1String("Width")) {
            QCOMPARE(entry.outcome, CameraSettings::Refused);
            QVERIFY2(!entry.message.isEmpty(), "the camera's message");
        } else {
            QVERIFY2(entry.outcome == CameraSettings::Written || entry.outcome == CameraSettings::AlreadyEqual,
                qPrintable(entry.value.displayName()));
        }
    }
    QVERIFY(report.toLines().join(QLatin1Char('\n')).contains(QStringLiteral("Width")));
    // Everything but Width is back.
    camera->clearFaults();
    const QStringList left = differences(saved, settings.save());
    QCOMPARE(left.size(), 1);
    QVERIFY2(left.first().startsWith(QStringLiteral("@CameraDeviceWidth")), qPrintable(left.first()));
}

void TestCameraSettings::unplugMidRestoreStops()
{
    auto camera = SimulatedCamera::createDefault();
    CameraSettings settings;
    addNodeMaps(&settings, camera.get());
    const CameraSettings::Document saved = settings.save();
    changeEverything(camera.get(), saved);

    const int unplugAt = 40;
    connect(&settings, &CameraSettings::restoreProgress, this, [&](int pass, int done, int) {
        if (pass == 1 && done == unplugAt)
            camera->unplug();
    });
    QSignalSpy finished(&settings, &CameraSettings::restoreFinished);
    const CameraSettings::Report report = settings.restore(saved);
    QCOMPARE(finished.count(), 1);
    QVERIFY(report.stopped);
    QVERIFY(!report.stopReason.isEmpty());
    QCOMPARE(report.passes, 1);
    QVERIFY(!report.isComplete());
    QCOMPARE(report.entries.size(), saved.values.size());
    // What came before the unplug was tried, what came after was not reached.
    const int tried = report.entries.size() - report.count(CameraSettings::NotReached);
    QCOMPARE(tried, unplugAt + 1);
    QVERIFY(report.count(CameraSettings::Written) > 0);
    QVERIFY(report.toLines().join(QLatin1Char('\n')).contains(report.stopReason));

    // Nothing crashes on a camera that is gone.
    QVERIFY(settings.compare(saved).size() == saved.values.size());
    const CameraSettings::Report gone = settings.restore(saved);
    QCOMPARE(gone.count(CameraSettings::NotPresent), saved.values.size());
    camera->replug();
}

void TestCameraSettings::anotherTransportLayerRestoresWhatMatches()
{
    auto usb = SimulatedCamera::createDefault(QStringLiteral("U3V"));
    CameraSettings fromUsb;
    fromUsb.setCameraIdentity(usb->vendor(), usb->model(), usb->serialNumber(), usb->transportLayerType());
    addNodeMaps(&fromUsb, usb.get());
    const CameraSettings::Document saved = fromUsb.save();
    QCOMPARE(saved.transportLayerType, QStringLiteral("U3V"));
    QVERIFY(!documentValue(saved, QStringLiteral("DeviceLinkThroughputLimitMode")).isNull());

    auto gige = SimulatedCamera::createDefault(QStringLiteral("GEV"));
    CameraSettings onGige;
    addNodeMaps(&onGige, gige.get());
    const CameraSettings::Report report = onGige.restore(saved);
    QVERIFY(!report.stopped);
    QVERIFY(report.count(CameraSettings::NotPresent) >= 1);
    QCOMPARE(report.count(CameraSettings::Refused), 0);
    for (const CameraSettings::ReportEntry& entry : report.entries) {
        if (entry.value.feature == QLatin1String("DeviceLinkThroughputLimitMode")) {
            QCOMPARE(entry.outcome, CameraSettings::NotPresent);
            QVERIFY(!entry.message.isEmpty());
        }
    }
    qInfo().noquote() << "Restore of a U3V camera's file onto a GEV camera:\n"
                      << report.toLines().mid(0, 3).join(QLatin1Char('\n'));
    for (const QString& line : report.toLines())
        if (!line.contains(QStringLiteral(": already equal")) && !line.contains(QStringLiteral(": written")))
            qInfo().noquote() << line;
}

void TestCameraSettings::anotherModelIsReported()
{
    // Another model: its own name and no GainSelector entry "DigitalAll", no Gamma.
    QJsonObject root = QJsonDocument::fromJson(defaultCameraJson()).object();
    QVERIFY(!root.isEmpty());
    root.insert(QStringLiteral("model"), QStringLiteral("ZX-500m"));
    QJsonArray maps = root.value(QStringLiteral("nodeMaps")).toArray();
    QJsonObject map = maps.at(0).toObject();
    QJsonArray features = map.value(QStringLiteral("features")).toArray();
    for (int i = features.size() - 1; i >= 0; --i) {
        QJsonObject feature = features.at(i).toObject();
        const QString name = feature.value(QStringLiteral("name")).toString();
        if (name == QLatin1String("Gamma")) {
            features.removeAt(i);
        } else if (name == QLatin1String("DeviceModelName")) {
            feature.insert(QStringLiteral("value"), QStringLiteral("ZX-500m"));
            features.replace(i, feature);
        } else if (feature.value(QStringLiteral("children")).isArray()) {
            QJsonArray children = feature.value(QStringLiteral("children")).toArray();
            for (int c = children.size() - 1; c >= 0; --c)
                if (children.at(c).toString() == QLatin1String("Gamma"))
                    children.removeAt(c);
            feature.insert(QStringLiteral("children"), children);
            features.replace(i, feature);
        }
    }
    map.insert(QStringLiteral("features"), features);
    maps.replace(0, map);
    root.insert(QStringLiteral("nodeMaps"), maps);
    QString error;
    auto other = SimulatedCamera::fromJson(QJsonDocument(root).toJson(), &error);
    QVERIFY2(other, qPrintable(error));

    auto camera = SimulatedCamera::createDefault();
    CameraSettings settings;
    addNodeMaps(&settings, camera.get());
    write(camera.get(), QStringLiteral("GammaEnable"), QStringLiteral("true"));
    const CameraSettings::Document saved = settings.save();
    QVERIFY(!documentValue(saved, QStringLiteral("Gamma")).isNull());

    CameraSettings onOther;
    addNodeMaps(&onOther, other.get());
    QCOMPARE(onOther.model(), QStringLiteral("ZX-500m"));
    const CameraSettings::Report report = onOther.restore(saved);
    QVERIFY(!report.sameModel);
    QCOMPARE(report.fileModel, camera->model());
    QCOMPARE(report.cameraModel, QStringLiteral("ZX-500m"));
    QVERIFY(report.toLines().join(QLatin1Char('\n')).contains(QStringLiteral("ZX-500m")));
    bool gammaReported = false;
    for (const CameraSettings::ReportEntry& entry : report.entries) {
        if (entry.value.nodeMap == cameraDevice && entry.value.feature == QLatin1String("Gamma")) {
            QCOMPARE(entry.outcome, CameraSettings::NotPresent);
            gammaReported = true;
        }
    }
    QVERIFY(gammaReported);
    // What matches is applied all the same.
    QCOMPARE(valueOf(other.get(), QStringLiteral("GammaEnable")), valueOf(camera.get(), QStringLiteral("GammaEnable")));
    QCOMPARE(report.count(CameraSettings::Refused), 0);
}

void TestCameraSettings::compareAndRestoreSelected()
{
    auto camera = SimulatedCamera::createDefault();
    CameraSettings settings;
    addNodeMaps(&settings, camera.get());
    const CameraSettings::Document saved = settings.save();
    QVERIFY(settings.compare(saved).isEmpty());

    write(camera.get(), QStringLiteral("Width"), QStringLiteral("640"));
    write(camera.get(), QStringLiteral("GainSelector"), QStringLiteral("DigitalAll"));
    write(camera.get(), QStringLiteral("Gain"), QStringLiteral("2.5"));
    write(camera.get(), QStringLiteral("GainSelector"), QStringLiteral("All"));
    write(camera.get(), QStringLiteral("DeviceUserID"), QStringLiteral("line 4"));

    const QList<CameraSettings::Difference> found = settings.compare(saved);
    QCOMPARE(found.size(), 3);
    QStringList names;
    for (const CameraSettings::Difference& difference : found) {
        names.append(difference.file.displayName());
        QVERIFY(difference.presentOnCamera);
        QVERIFY(difference.cameraValue != difference.file.value);
    }
    QVERIFY2(names.contains(QStringLiteral("Width")), qPrintable(names.join(',')));
    QVERIFY2(names.contains(QStringLiteral("Gain [GainSelector=DigitalAll]")), qPrintable(names.join(',')));
    QVERIFY2(names.contains(QStringLiteral("DeviceUserID")), qPrintable(names.join(',')));
    // compare() leaves the selector where it was.
    QCOMPARE(valueOf(camera.get(), QStringLiteral("GainSelector")), QStringLiteral("All"));

    // Restore two of the three.
    QList<CameraSettings::Value> picked;
    for (const CameraSettings::Difference& difference : found)
        if (difference.file.feature != QLatin1String("DeviceUserID"))
            picked.append(difference.file);
    const CameraSettings::Report report = settings.restoreSelected(saved, picked);
    QCOMPARE(report.entries.size(), 2);
    QCOMPARE(report.count(CameraSettings::Written), 2);
    QCOMPARE(valueOf(camera.get(), QStringLiteral("Width")), documentValue(saved, QStringLiteral("Width")));
    QCOMPARE(valueOf(camera.get(), QStringLiteral("DeviceUserID")), QStringLiteral("line 4"));
    // The selector the values didn't name goes back to where it was.
    QCOMPARE(valueOf(camera.get(), QStringLiteral("GainSelector")), QStringLiteral("All"));
    const QList<CameraSettings::Difference> left = settings.compare(saved);
    QCOMPARE(left.size(), 1);
    QCOMPARE(left.first().file.feature, QStringLiteral("DeviceUserID"));
}

void TestCameraSettings::jsonRoundTrip()
{
    auto camera = SimulatedCamera::createDefault();
    CameraSettings settings;
    addNodeMaps(&settings, camera.get());
    const CameraSettings::Document saved = settings.save();
    const QByteArray json = CameraSettings::toJson(saved);
    CameraSettings::Document read;
    QString error;
    QVERIFY2(CameraSettings::fromJson(json, &read, &error), qPrintable(error));
    QCOMPARE(read.version, CameraSettings::FormatVersion);
    QCOMPARE(read.model, saved.model);
    QCOMPARE(read.serialNumber, saved.serialNumber);
    QCOMPARE(read.saved.toSecsSinceEpoch(), saved.saved.toSecsSinceEpoch());
    QCOMPARE(read.values.size(), saved.values.size());
    QVERIFY(differences(saved, read).isEmpty());
    QCOMPARE(CameraSettings::toJson(read), json);

    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("camera.json"));
    QVERIFY2(settings.saveToFile(path, &error), qPrintable(error));
    CameraSettings::Document fromDisk;
    QVERIFY2(CameraSettings::readFile(path, &fromDisk, &error), qPrintable(error));
    QVERIFY(differences(saved, fromDisk).isEmpty());
}

void TestCameraSettings::refusedFiles_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::addColumn<QString>("expected");

    auto camera = SimulatedCamera::createDefault();
    CameraSettings settings;
    addNodeMaps(&settings, camera.get());
    const QByteArray good = CameraSettings::toJson(settings.save());
    auto file = [](const QByteArray& features, const QByteArray& more = QByteArray()) {
        return QByteArray(R"({"format": "zarvex-camera-settings", "version": 1, "camera": {"model": "ZX-2000c"},)")
            + more + R"( "nodeMaps": [{"name": "@CameraDevice", "features": [)" + features + "]}]}";
    };

    QTest::newRow("empty") << QByteArray() << "empty";
    QTest::newRow("blank") << QByteArray(" \n\t ") << "empty";
    QTest::newRow("not JSON") << QByteArray("Width=640\n") << "not valid JSON";
    QTest::newRow("truncated") << good.left(good.size() / 2) << "truncated";
    QTest::newRow("last brace missing") << good.left(good.lastIndexOf('}')) << "truncated";
    QTest::newRow("array") << QByteArray("[1, 2]") << "not an object";
    QTest::newRow("other format") << QByteArray(R"({"format": "zarvex-simulated-device", "version": 1})") << "format";
    QTest::newRow("no format") << QByteArray(R"({"version": 1, "camera": {}, "nodeMaps": []})") << "format";
    QTest::newRow("newer version") << QByteArray(
        R"({"format": "zarvex-camera-settings", "version": 2, "camera": {}, "nodeMaps": []})")
                                   << "version 2";
    QTest::newRow("version as text") << QByteArray(
        R"({"format": "zarvex-camera-settings", "version": "1", "camera": {}, "nodeMaps": []})")
                                     << "version";
    QTest::newRow("version 1.5") << QByteArray(
        R"({"format": "zarvex-camera-settings", "version": 1.5, "camera": {}, "nodeMaps": []})")
                                 << "version";
    QTest::newRow("no camera") << QByteArray(R"({"format": "zarvex-camera-settings", "version": 1, "nodeMaps": []})")
                               << "camera";
    QTest::newRow("model a number") << QByteArray(
        R"({"format": "zarvex-camera-settings", "version": 1, "camera": {"model": 7}, "nodeMaps": []})")
                                    << "camera.model";
    QTest::newRow("bad date") << file(R"({"name": "Width", "value": "64"})", R"( "saved": "yesterday",)") << "saved";
    QTest::newRow("node maps an object") << QByteArray(
        R"({"format": "zarvex-camera-settings", "version": 1, "camera": {}, "nodeMaps": {}})")
                                         << "nodeMaps";
    QTest::newRow("value a number") << file(R"({"name": "Width", "value": 640})") << "must be a text";
    QTest::newRow("no value") << file(R"({"name": "Width"})") << "either";
    QTest::newRow("value and selector") << file(
        R"({"name": "Gain", "value": "1", "selector": "GainSelector", "values": []})")
                                        << "either";
    QTest::newRow("path as a name") << file(R"({"name": "../../etc/passwd", "value": "1"})") << "feature name";
    QTest::newRow("name with a slash") << file(R"({"name": "Width/Alias", "value": "1"})") << "feature name";
    QTest::newRow("empty name") << file(R"({"name": "", "value": "1"})") << "feature name";
    QTest::newRow("long name") << file("{\"name\": \"" + QByteArray(300, 'A') + "\", \"value\": \"1\"}")
                               << "feature name";
    QTest::newRow("NUL in a value") << file(R"({"name": "DeviceUserID", "value": "a\u0000b"})") << "NUL";
    QTest::newRow("huge value") << file(
        "{\"name\": \"DeviceUserID\", \"value\": \"" + QByteArray(CameraSettings::MaximumValueLength + 1, 'x') + "\"}")
                                << "at most";
    QTest::newRow("duplicate feature") << file(R"({"name": "Width", "value": "64"}, {"name": "Width", "value": "96"})")
                                       << "twice";
    QTest::newRow("duplicate entry") << file(
        R"({"name": "Gain", "selector": "GainSelector", "values": [{"entry": "AnalogAll", "value": "1"},)"
        R"( {"entry": "AnalogAll", "value": "2"}]})")
                                     << "twice";
    QTest::newRow("empty entry") << file(R"({"name": "Gain", "selector": "GainSelector", "values": [{"entry": "", )"
                                         R"("value": "1"}]})")
                                 << "empty";
    QTest::newRow("selector selects itself")
        << file(R"({"name": "Gain", "selector": "Gain", "values": []})") << "another feature";
    QTest::newRow("feature a string") << file(R"("Width")") << "must be an object";
    QTest::newRow("node map without @") << QByteArray(
        R"({"format": "zarvex-camera-settings", "version": 1, "camera": {}, )"
        R"("nodeMaps": [{"name": "CameraDevice", "features": []}]})")
                                        << "node map name";
    QTest::newRow("node map twice") << QByteArray(
        R"({"format": "zarvex-camera-settings", "version": 1, "camera": {}, )"
        R"("nodeMaps": [{"name": "@A", "features": []}, {"name": "@A", "features": []}]})")
                                    << "twice";
    QByteArray deep = "{\"format\": \"zarvex-camera-settings\", \"version\": 1, \"camera\": {}, \"nodeMaps\": ";
    deep += QByteArray(100000, '[') + QByteArray(100000, ']') + "}";
    QTest::newRow("deeply nested") << deep << "JSON";
    // A good value after a bad one: nothing of the file is taken.
    QTest::newRow("bad after good") << file(R"({"name": "Width", "value": "64"}, {"name": "Height", "value": ["64"]})")
                                    << "features[1]";
}

void TestCameraSettings::refusedFiles()
{
    QFETCH(QByteArray, json);
    QFETCH(QString, expected);
    CameraSettings::Document document;
    document.model = QStringLiteral("untouched");
    QString error;
    QVERIFY(!CameraSettings::fromJson(json, &document, &error));
    QVERIFY2(error.contains(expected, Qt::CaseInsensitive), qPrintable(error));
    QCOMPARE(document.model, QStringLiteral("untouched"));
    QVERIFY(document.values.isEmpty());

    // Through a file and a host that restores only what reads: the camera keeps its values.
    auto camera = SimulatedCamera::createDefault();
    CameraSettings settings;
    addNodeMaps(&settings, camera.get());
    const CameraSettings::Document before = settings.save();
    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("bad.json"));
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(json);
    file.close();
    CameraSettings::Document read;
    QVERIFY(!CameraSettings::readFile(path, &read, &error));
    QVERIFY(differences(before, settings.save()).isEmpty());
}

void TestCameraSettings::hugeFileIsRefused()
{
    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("huge.json"));
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    // A valid start and then far more than a settings file may hold.
    file.write(R"({"format": "zarvex-camera-settings", "version": 1, "camera": {}, "nodeMaps": [)");
    const QByteArray chunk(1024 * 1024, ' ');
    for (int i = 0; i < 17; ++i)
        file.write(chunk);
    file.write("]}");
    file.close();
    CameraSettings::Document document;
    QString error;
    QVERIFY(!CameraSettings::readFile(path, &document, &error));
    QVERIFY2(error.contains(QStringLiteral("larger")), qPrintable(error));
}

void TestCameraSettings::readFileOfAFileThatIsNotThere()
{
    CameraSettings::Document document;
    QString error;
    QVERIFY(!CameraSettings::readFile(QStringLiteral("/nonexistent/settings.json"), &document, &error));
    QVERIFY2(error.contains(QStringLiteral("/nonexistent/settings.json")), qPrintable(error));
}

QTEST_GUILESS_MAIN(TestCameraSettings)
#include "tst_camerasettings.moc"
