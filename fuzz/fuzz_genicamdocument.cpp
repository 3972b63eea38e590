// libFuzzer target over a camera's GenICam document, as the Aravis backend
// meets it: the bytes are loaded into the in-memory sparse device (the
// document's index, Aravis's own node map over it) and must be refused with
// an error text or give a node map whose every feature can be looked up,
// read, ranged, asked for its properties, written, refreshed and polled
// without a sanitizer report, a hang or a blow-up of memory. Every name a
// category lists must give that parameter back, alive.
//
// With ZVC_FUZZ_WRITE_ARAVIS_SEED set to a file name, the start writes Aravis's
// own fake camera's document there, as a seed, and the run goes on as usual.

#include "arvglib.h"

#include "aravisdevice.h"
#include "aravisnodemap.h"

#include "parameters/iadvancedparameteraccess.h"
#include "parameters/icommandparameter.h"
#include "parameters/ifloatparameter.h"
#include "parameters/iintegerparameter.h"
#include "parameters/iparameter.h"
#include "parameters/parameterdata.h"

#include <QCoreApplication>
#include <QFile>
#include <QSet>

#include <cstddef>
#include <cstdint>
#include <cstdlib>

namespace {

QCoreApplication* application = nullptr;

//! Features visited per document, and of those written: enough to reach every
//! kind in a small document, few enough that a large one costs little more than its parse.
const int maximumFeatures = 2000;
const int maximumWrites = 64;

void writeAravisFakeCameraDocument(const char* fileName)
{
    ArvFakeCamera* camera = arv_fake_camera_new("ZVCFUZZ");
    if (!camera)
        return;
    size_t size = 0;
    const char* xml = arv_fake_camera_get_genicam_xml(camera, &size);
    QFile file(QString::fromLocal8Bit(fileName));
    if (xml && size > 0 && file.open(QIODevice::WriteOnly))
        file.write(xml, qint64(size));
    g_object_unref(camera);
}

void readEverything(const QSharedPointer<ParameterCollection::IParameter>& parameter)
{
    try {
        parameter->getParameterData();
        parameter->getVisibility();
        parameter->isWritable();
    } catch (...) {
    }
    try {
        if (const auto access = parameter->advancedAccess()) {
            for (const char* key : { "DisplayName", "Description", "Tooltip", "Unit", "Representation", "DocuURL",
                     "Visibility", "AccessMode" })
                access->getProperty(QString::fromLatin1(key), QStringLiteral("<unknown>"));
        }
    } catch (...) {
    }
    try {
        if (auto* integer = qobject_cast<ParameterCollection::IIntegerParameter*>(parameter.data())) {
            integer->getMinimum();
            integer->getMaximum();
            integer->getValue();
        } else if (auto* floating = qobject_cast<ParameterCollection::IFloatParameter*>(parameter.data())) {
            floating->getMinimum();
            floating->getMaximum();
            floating->getValue();
        }
    } catch (...) {
    }
}

void writeSomething(const QSharedPointer<ParameterCollection::IParameter>& parameter)
{
    // The current value back (what an editor commits unchanged), then a value of its own.
    try {
        const auto data = parameter->getParameterData();
        if (data && data->readable)
            parameter->setValueFromString(data->valueText);
    } catch (...) {
    }
    try {
        if (auto* command = qobject_cast<ParameterCollection::ICommandParameter*>(parameter.data()))
            command->execute(true);
        else
            parameter->setValueFromString(QStringLiteral("1"));
    } catch (...) {
    }
    // Imposed properties, as the node map filters impose them.
    try {
        if (const auto access = parameter->advancedAccess()) {
            access->setProperty(QStringLiteral("AccessMode"), QStringLiteral("RO"));
            access->setProperty(QStringLiteral("Visibility"), QStringLiteral("Guru"));
        }
        parameter->getParameterData();
    } catch (...) {
    }
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv)
{
    application = new QCoreApplication(*argc, *argv);
    // Opening a document with unusable nodes warns once; for each input that
    // would flood the log and slow the run.
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
    if (const char* seed = std::getenv("ZVC_FUZZ_WRITE_ARAVIS_SEED"))
        writeAravisFakeCameraDocument(seed);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const QByteArray xml(reinterpret_cast<const char*>(data), int(size));
    {
        QString error;
        const QSharedPointer<Aravis::AravisDevice> device = Aravis::AravisDevice::fromGenICamXml(xml, &error);
        if (!device) {
            if (error.isEmpty())
                std::abort();
            return 0;
        }
        const QSharedPointer<Aravis::AravisNodeMap> map = device->nodeMap(QStringLiteral("@CameraDevice"));
        if (!map)
            std::abort();
        // One level at a time, as the tree asks; each feature once.
        QSet<QString> seen;
        QList<QString> pending { QStringLiteral("@CameraDevice/Root") };
        int features = 0;
        while (!pending.isEmpty() && features < maximumFeatures) {
            const QString name = pending.takeFirst();
            QList<QString> children;
            try {
                children = map->getChildNames(name, false, true);
            } catch (...) {
                continue;
            }
            for (const QString& child : qAsConst(children)) {
                if (seen.contains(child) || features >= maximumFeatures)
                    continue;
                seen.insert(child);
                ++features;
                if (!map->hasParameter(child))
                    std::abort();
                const QSharedPointer<ParameterCollection::IParameter> parameter = map->getParameter(child);
                if (!parameter || parameter->isZombie() || parameter->getFullName() != child)
                    std::abort();
                readEverything(parameter);
                if (features <= maximumWrites)
                    writeSomething(parameter);
                pending.append(child);
            }
        }
        // The whole subtree at once, as a host may ask for it.
        try {
            map->getChildNames(QStringLiteral("@CameraDevice/Root"), true, true);
        } catch (...) {
        }
        try {
            map->refreshAll();
        } catch (...) {
        }
        try {
            map->poll(300);
        } catch (...) {
        }
        // A name the document doesn't hold is a zombie, and so is its alias form.
        if (!map->getParameter(QStringLiteral("@CameraDevice/NoSuchFeature/Alias"))->isZombie())
            std::abort();
        // There is no event loop: deliver the change signals the node map
        // queued, which hold its data, so that nothing is left over.
        QCoreApplication::sendPostedEvents();
    }
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    return 0;
}
