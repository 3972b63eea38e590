// libFuzzer target over the JSON device description of the simulated camera.
// Any bytes must be refused with an error text or give a device whose every
// node map can be walked, read, refreshed and polled without a sanitizer
// report; every name a node map lists must give that parameter back.

#include "simulateddevice.h"

#include "parameters/iparameter.h"
#include "parameters/iparametercollection.h"

#include <QCoreApplication>

#include <cstddef>
#include <cstdint>
#include <cstdlib>

namespace {

QCoreApplication* application = nullptr;

//! Features written per node map.
const int maximumWrites = 64;

} // namespace

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv)
{
    application = new QCoreApplication(*argc, *argv);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const QByteArray json(reinterpret_cast<const char*>(data), int(size));
    QString error;
    const QSharedPointer<Simulation::SimulatedDevice> device = Simulation::SimulatedDevice::fromJson(json, &error);
    if (!device) {
        if (error.isEmpty())
            std::abort();
        return 0;
    }
    for (const QString& name : device->nodeMapNames()) {
        const QSharedPointer<Simulation::SimulatedNodeMap> map = device->nodeMap(name);
        if (!map)
            std::abort();
        QList<QString> features;
        try {
            features = map->getChildNames(name + QStringLiteral("/Root"), true, true);
        } catch (...) {
            continue; // a node map without a root category
        }
        // Each refused write throws, and a throw costs milliseconds under the
        // sanitizers: of a description of hundreds of features only the first
        // few dozen of each node map are written, so that the largest seed
        // takes little longer than its parse. Every feature is resolved and read.
        int writes = 0;
        for (const QString& feature : features) {
            // Every name listed is a parameter of this node map, under that name.
            if (!map->hasParameter(feature))
                std::abort();
            const QSharedPointer<ParameterCollection::IParameter> parameter = map->getParameter(feature);
            if (!parameter || parameter->isZombie() || parameter->getFullName() != feature)
                std::abort();
            // Each feature on its own: one that refuses a value is no fault of
            // the parser, and must not keep the others from being tried.
            try {
                parameter->getParameterData();
            } catch (...) {
            }
            if (writes++ < maximumWrites) {
                try {
                    parameter->setValueFromString(QStringLiteral("1"));
                } catch (...) {
                }
            }
        }
        try {
            map->refreshAll();
        } catch (...) {
        }
        try {
            map->poll(1000);
        } catch (...) {
        }
    }
    // There is no event loop: deliver the change signals the device queued,
    // which hold its data, so that nothing is left over from this input.
    QCoreApplication::sendPostedEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    return 0;
}
