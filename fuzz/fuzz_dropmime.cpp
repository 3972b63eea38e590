// libFuzzer target over FeatureTreeModel::dropMimeData with an
// "application/x-fti" payload. The model holds the default simulated camera.
// The first byte chooses the drop row; then each pair of bytes either stands
// for an address of an item of the built tree (first byte odd: the second
// picks the item) or adds raw bytes to the payload, so that real items, stale
// and forged addresses and torn records come mixed. Any payload must be
// handled without a sanitizer report and leave the favourites without an
// empty name and without two equal entries.

#include "favouritescheck.h"
#include "featuretree/favoritesdata.h"
#include "featuretree/featuretreeitem.h"
#include "featuretree/featuretreemodel.h"
#include "simulateddevice.h"

#include <QApplication>
#include <QDataStream>
#include <QIODevice>
#include <QMimeData>

#include <cstddef>
#include <cstdint>
#include <cstdlib>

namespace {

QApplication* application = nullptr;
QSharedPointer<Simulation::SimulatedDevice> device;
FeatureTreeModel* model = nullptr;
QVector<qint64> addresses;

void collect(const QModelIndex& parent)
{
    for (int row = 0; row < model->rowCount(parent); ++row) {
        const QModelIndex index = model->index(row, 0, parent);
        addresses << static_cast<qint64>(reinterpret_cast<quintptr>(index.internalPointer()));
        collect(index);
    }
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    application = new QApplication(*argc, *argv);
    QCoreApplication::setOrganizationName(QStringLiteral("ZarvexFuzz"));
    QCoreApplication::setApplicationName(QStringLiteral("fuzz_dropmime"));
    device = Simulation::SimulatedDevice::createDefault(QStringLiteral("GEV"));
    model = new FeatureTreeModel;
    model->addParameterCollection(device->nodeMap(QStringLiteral("@CameraDevice")), QStringLiteral("Camera"),
        QStringLiteral("@CameraDevice"), false);
    collect(QModelIndex());
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    if (size == 0)
        return 0;
    FavoritesData& store = FeatureTreeModel::m_favorites;
    while (store.countNodes() > 0)
        store.removeNode(0, nullptr);

    const int row = int(data[0]) - 2; // -2 .. 253
    QByteArray payload;
    QDataStream stream(&payload, QIODevice::WriteOnly);
    int written = 0;
    for (size_t i = 1; i + 1 < size; i += 2) {
        // Raw bytes go through the stream too, at its position, so that a torn
        // or forged record can stand anywhere, with records after it.
        if (data[i] & 1) {
            stream << addresses.value(data[i + 1] % addresses.size());
            written += int(sizeof(qint64));
        } else {
            stream.writeRawData(reinterpret_cast<const char*>(data + i + 1), 1);
            written += 1;
        }
    }
    // Every record and byte the input asked for is in the payload.
    if (payload.size() != written)
        std::abort();
    QMimeData mime;
    mime.setData(QStringLiteral("application/x-fti"), payload);
    model->dropMimeData(&mime, Qt::MoveAction, row, 0, QModelIndex());
    // Twice: the second drop moves what the first added.
    model->dropMimeData(&mime, Qt::CopyAction, row / 2, 0, model->GetFavoritesRootIndex());

    abortOnDamagedFavourites(store);
    QCoreApplication::sendPostedEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    return 0;
}
