// libFuzzer target over the camera settings file reader. Any bytes must be
// refused with an error text, or read into a document that writes back to
// the same values and reads again unchanged. A small accepted document is
// also compared with and restored onto a fresh default simulated camera,
// which must give one report entry per value, each with an outcome. At start
// the default camera's own file is saved, read and restored once.

#include "camerasettings/camerasettings.h"

#include "simulateddevice.h"
#include "simulatednodemap.h"

#include <QCoreApplication>

#include <cstddef>
#include <cstdint>
#include <cstdlib>

namespace {

QCoreApplication* application = nullptr;

//! Documents up to this many values go onto a camera as well.
const int maximumRestored = 32;

bool sameValues(const CameraSettings::Document& a, const CameraSettings::Document& b)
{
    if (a.values.size() != b.values.size())
        return false;
    // toJson gathers a selected feature's entries under the feature, so the
    // order may change; each value must be found once.
    QHash<QString, QString> inB;
    for (const CameraSettings::Value& value : b.values)
        inB.insert(value.nodeMap + QLatin1Char('/') + value.displayName(), value.value);
    for (const CameraSettings::Value& value : a.values) {
        const QString key = value.nodeMap + QLatin1Char('/') + value.displayName();
        if (!inB.contains(key) || inB.value(key) != value.value)
            return false;
    }
    return true;
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv)
{
    application = new QCoreApplication(*argc, *argv);
    // Once, under the sanitizers: the default camera's own file reads, and
    // restores onto the camera it came from as already equal.
    const QSharedPointer<Simulation::SimulatedDevice> device = Simulation::SimulatedDevice::createDefault();
    CameraSettings settings;
    for (const QString& name : device->nodeMapNames())
        settings.addParameterCollection(name, device->nodeMap(name));
    const CameraSettings::Document saved = settings.save();
    CameraSettings::Document read;
    if (saved.values.isEmpty() || !CameraSettings::fromJson(CameraSettings::toJson(saved), &read)
        || !sameValues(saved, read))
        std::abort();
    const CameraSettings::Report report = settings.restore(read);
    if (report.count(CameraSettings::AlreadyEqual) != read.values.size())
        std::abort();
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const QByteArray json(reinterpret_cast<const char*>(data), int(size));
    CameraSettings::Document document;
    QString error;
    if (!CameraSettings::fromJson(json, &document, &error)) {
        if (error.isEmpty() || !document.values.isEmpty())
            std::abort();
        return 0;
    }
    if (!error.isEmpty())
        std::abort();

    // Written and read again, the document holds the same.
    CameraSettings::Document again;
    if (!CameraSettings::fromJson(CameraSettings::toJson(document), &again, &error))
        std::abort();
    if (!sameValues(document, again) || again.model != document.model || again.vendor != document.vendor
        || again.serialNumber != document.serialNumber || again.version != CameraSettings::FormatVersion)
        std::abort();

    if (document.values.size() > maximumRestored)
        return 0;
    const QSharedPointer<Simulation::SimulatedDevice> device = Simulation::SimulatedDevice::createDefault();
    CameraSettings settings;
    for (const QString& name : device->nodeMapNames())
        settings.addParameterCollection(name, device->nodeMap(name));
    const QList<CameraSettings::Difference> differences = settings.compare(document);
    if (differences.size() > document.values.size())
        std::abort();
    const CameraSettings::Report report = settings.restore(document);
    if (report.entries.size() != document.values.size() || report.stopped)
        std::abort();
    for (const CameraSettings::ReportEntry& entry : report.entries)
        if (entry.outcome == CameraSettings::NotReached)
            std::abort();
    return 0;
}
