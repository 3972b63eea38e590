// Real cameras through Aravis: Aravis's fake GigE Vision camera on the
// loopback interface (with Aravis's own document and with ours) and a
// vendor-style document in the in-memory sparse device.
//
// For each: opening, filling the whole feature tree (FeatureTreeModel beside
// a QStandardItemModel filled from the same node map, both cold and the
// fastest of three), and one poll of every
// feature the tree holds beside reading the same features' values straight
// from Aravis.

#include "arvglib.h"

#include "benchmarkutil.h"

#include "aravisdevice.h"
#include "aravisnodemap.h"
#include "fakegigecamera.h"

#include "featuretree/featuretreemodel.h"
#include "parameters/iadvancedparameteraccess.h"

#include <QApplication>
#include <QFile>
#include <QStandardItemModel>
#include <QTextStream>

#include <algorithm>
#include <limits>

using namespace ParameterCollection;

using BenchmarkUtil::fillStandardModel;
using BenchmarkUtil::walkRowCount;

namespace {

const QString nodeMapName = QStringLiteral("@CameraDevice");

QString ms(double value)
{
    return QString::number(value, 'f', value < 10 ? 3 : 1);
}

QString ratio(double a, double b)
{
    return b > 0 ? QString::number(a / b, 'f', 2) : QStringLiteral("-");
}

void measure(QTextStream& out, const QString& title, const QSharedPointer<Aravis::AravisDevice>& device, double openMs,
    double plainOpenMs)
{
    const QSharedPointer<Aravis::AravisNodeMap> map = device->nodeMap(nodeMapName);
    out << "--- " << title << '\n';
    if (openMs >= 0)
        out << "open [ms]                        " << qSetFieldWidth(16) << ms(openMs) << qSetFieldWidth(21)
            << ms(plainOpenMs) << qSetFieldWidth(8) << ratio(openMs, plainOpenMs) << qSetFieldWidth(0)
            << "   (plain: arv_open_device)\n";

    // Both fills start cold, with no parameter object of the node map alive
    // (the node map keeps none itself), and each is the fastest of three, in
    // turns. Whatever a fill leaves alive is dropped before the next one; the
    // last tree stays for the poll below.
    const QString root = nodeMapName + QStringLiteral("/Root");
    const QList<QString> everything = map->getChildNames(root, true, true);
    QList<QWeakPointer<IParameter>> made;
    const auto requireCold = [&](const char* fill) {
        for (const QWeakPointer<IParameter>& parameter : qAsConst(made))
            if (!parameter.isNull())
                qFatal("%s: a parameter object of the last fill is still alive, the fill would not start cold", fill);
        made.clear();
    };
    const auto noteAlive = [&] {
        // A parameter nothing holds is made afresh here and gone at once; one the fill kept is what comes back.
        for (const QString& name : everything)
            made.append(map->getParameter(name).toWeakRef());
    };
    FeatureTreeModel* model = nullptr;
    QStandardItemModel standard;
    int rows = 0;
    double fillMs = std::numeric_limits<double>::max();
    double standardMs = std::numeric_limits<double>::max();
    for (int run = 0; run < 3; ++run) {
        delete model;
        model = nullptr;
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        standard.clear();
        requireCold("plain fill");
        standardMs = std::min(standardMs, BenchmarkUtil::timeMs([&] {
            auto* top = new QStandardItem(QStringLiteral("Camera"));
            standard.appendRow({ top, new QStandardItem });
            fillStandardModel(top, *map, root);
        }));
        noteAlive();
        requireCold("our fill");
        model = new FeatureTreeModel;
        fillMs = std::min(fillMs, BenchmarkUtil::timeMs([&] {
            model->addParameterCollection(map, QStringLiteral("Camera"), nodeMapName, false);
            rows = walkRowCount(*model, QModelIndex());
        }));
        noteAlive();
    }
    out << "fill whole tree, " << rows << " rows [ms]     " << qSetFieldWidth(16) << ms(fillMs) << qSetFieldWidth(21)
        << ms(standardMs) << qSetFieldWidth(8) << ratio(fillMs, standardMs) << qSetFieldWidth(0)
        << "   (plain: QStandardItemModel)\n";

    // Every feature the tree holds, read again; beside it the same values straight from Aravis.
    const QList<QString> names = map->getChildNames(nodeMapName + QStringLiteral("/Root"), true, true);
    ArvGc* genicam = arv_device_get_genicam(device->arvDevice());
    const double pollMs = BenchmarkUtil::fastestMs(5, [&] { map->poll(300); });
    const double plainMs = BenchmarkUtil::fastestMs(5, [&] {
        for (const QString& name : names) {
            ArvGcNode* node = arv_gc_get_node(genicam, name.mid(nodeMapName.size() + 1).toUtf8().constData());
            if (!node || ARV_IS_GC_CATEGORY(node) || ARV_IS_GC_COMMAND(node))
                continue;
            GError* error = nullptr;
            arv_gc_feature_node_get_value_as_string(ARV_GC_FEATURE_NODE(node), &error);
            g_clear_error(&error);
        }
    });
    out << "one poll, " << names.size() << " features [ms]     " << qSetFieldWidth(16) << ms(pollMs)
        << qSetFieldWidth(21) << ms(plainMs) << qSetFieldWidth(8) << ratio(pollMs, plainMs) << qSetFieldWidth(0)
        << "   (plain: value as string from Aravis)\n";
    out.flush();
    delete model;
}

void fakeCamera(QTextStream& out, const QString& title, const QString& genicamFile, const QString& serial)
{
    Aravis::FakeGigECamera camera(serial, QStringLiteral("lo"), genicamFile);
    if (!camera.isRunning()) {
        out << "--- " << title << ": skipped, " << camera.errorString() << '\n';
        return;
    }
    QString id;
    const double discoveryMs = BenchmarkUtil::timeMs([&] { id = camera.findDeviceId(); });
    if (id.isEmpty()) {
        out << "--- " << title << ": skipped, the fake camera is not found on lo\n";
        return;
    }
    out << "--- " << title << ": discovery (arv_update_device_list) " << ms(discoveryMs) << " ms\n";
    // The plain open first: a camera has one controller at a time, and a second
    // open while ours holds it waits for Aravis's time-out.
    const double plainOpenMs = BenchmarkUtil::timeMs([&] {
        ArvDevice* plain = arv_open_device(id.toUtf8().constData(), nullptr);
        if (plain)
            g_object_unref(plain);
    });
    QSharedPointer<Aravis::AravisDevice> device;
    const double openMs = BenchmarkUtil::timeMs([&] { device = Aravis::AravisDevice::open(id); });
    if (!device) {
        out << "    could not open " << id << '\n';
        return;
    }
    measure(out, title, device, openMs, plainOpenMs);
}

} // namespace

int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    QTextStream out(stdout);
    out << "                                  ZarvexAravis/model        plain alternative   ratio\n";
    const QString data = QStringLiteral(ZVC_ARAVIS_TEST_DATA);
    fakeCamera(
        out, QStringLiteral("fake GigE Vision camera, Aravis's document"), QString(), QStringLiteral("ZVCBENCHA"));
    fakeCamera(out, QStringLiteral("fake GigE Vision camera, our document"), data + "/zx-fake-gige-camera.xml",
        QStringLiteral("ZVCBENCHZ"));

    QFile file(data + QStringLiteral("/zx-vendor-camera.xml"));
    if (file.open(QIODevice::ReadOnly)) {
        const QByteArray xml = file.readAll();
        QSharedPointer<Aravis::AravisDevice> device;
        const double openMs = BenchmarkUtil::timeMs([&] { device = Aravis::AravisDevice::fromGenICamXml(xml); });
        if (device)
            measure(out, QStringLiteral("vendor-style document in the sparse device (open: load and index)"), device,
                openMs, 0);
    }
    arv_shutdown();
    return 0;
}
