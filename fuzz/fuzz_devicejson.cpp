// libFuzzer target over the JSON device description of the simulated camera.
// Any bytes must be refused with an error text or give a device whose every
// node map can be walked, read, refreshed and polled without a sanitizer
// report.

#include "simulateddevice.h"

#include "parameters/iparameter.h"
#include "parameters/iparametercollection.h"

#include <QCoreApplication>

#include <cstddef>
#include <cstdint>
#include <cstdlib>

namespace {

QCoreApplication* application = nullptr;

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
        try {
            const QList<QString> features = map->getChildNames(name + QStringLiteral("/Root"), true, true);
            for (const QString& feature : features) {
                const QSharedPointer<ParameterCollection::IParameter> parameter = map->getParameter(feature);
                if (parameter) {
                    parameter->getParameterData();
                    parameter->setValueFromString(QStringLiteral("1"));
                }
            }
            map->refreshAll();
            map->poll(1000);
        } catch (...) {
            // A described feature may refuse a value; that is no fault of the parser.
        }
    }
    // There is no event loop: deliver the change signals the device queued,
    // which hold its data, so that nothing is left over from this input.
    QCoreApplication::sendPostedEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    return 0;
}
