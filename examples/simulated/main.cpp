// The simulated default camera in a FeatureTreeWidget, as a host's own tests
// and demonstrations use it: no camera needed. The favourites and the column
// widths are kept in QSettings between runs; a button pulls the camera's plug
// and puts it back, to show how the window takes a lost camera.
//
//   simulated                 the default camera, as a GigE Vision camera
//   simulated U3V             ... as a USB3 Vision camera (GEV, U3V, CXP, CamEmu)
//   simulated my-camera.json  a camera of your own description
#include <QApplication>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QSettings>
#include <QVBoxLayout>
#include <featuretree/featuretreewidget.h>
#include <messages/asyncerrorqueue.h>
#include <simulation/simulatedcamera.h>

namespace {

// The layout of the blob that saveState() gives; a host bumps it when it changes what it keeps.
const int kTreeStateVersion = 1;

// A tree over the camera's node maps, with the column widths of the last run.
FeatureTreeWidget* showCamera(Simulation::SimulatedCamera& camera, QWidget* parent)
{
    auto* tree = new FeatureTreeWidget(QStringLiteral("Features"), camera.baseInfo(), parent);
    tree->restoreState(QSettings().value(QStringLiteral("tree/state")).toByteArray(), kTreeStateVersion);
    for (const auto& nodeMap : camera.nodeMaps())
        tree->addParameterCollection(nodeMap.collection, nodeMap.rootName, nodeMap.name, false);
    tree->expandRootNodes();
    tree->setPolling(true);
    // A lost camera: the tree keeps its last values and stops asking the device.
    QObject::connect(&camera, &Simulation::SimulatedCamera::lost, tree, &FeatureTreeWidget::deviceIsClosed);
    return tree;
}

void saveColumnWidths(FeatureTreeWidget* tree)
{
    QSettings().setValue(QStringLiteral("tree/state"), tree->saveState(kTreeStateVersion));
}

} // namespace

int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    // The tree keeps the favourites in the default QSettings (group "Favorites"), shared by every tree.
    app.setOrganizationName(QStringLiteral("ZarvexExamples"));
    app.setApplicationName(QStringLiteral("simulated"));

    const QString argument = app.arguments().value(1);
    QString error;
    std::unique_ptr<Simulation::SimulatedCamera> camera = argument.endsWith(QLatin1String(".json"))
        ? Simulation::SimulatedCamera::fromFile(argument, &error)
        : Simulation::SimulatedCamera::createDefault(argument.isEmpty() ? QStringLiteral("GEV") : argument);
    if (!camera) {
        QMessageBox::critical(nullptr, QStringLiteral("simulated"), error);
        return 1;
    }

    QWidget window;
    window.setWindowTitle(QStringLiteral("Simulated %1 camera").arg(camera->transportLayerType()));
    auto* layout = new QVBoxLayout(&window);
    QPointer<FeatureTreeWidget> tree = showCamera(*camera, &window);
    auto* plug = new QPushButton(QStringLiteral("Unplug the camera"), &window);
    layout->addWidget(tree);
    layout->addWidget(plug);

    QObject::connect(GetTheGlobalAsyncErrorQueue(), &AsyncErrorQueue::displayError, &window,
        [&window](AsyncErrorQueue::ErrorSeverity, const QString& text, const QString& details, QWidget*) {
            QMessageBox::warning(&window, QStringLiteral("Camera"), text + QLatin1Char('\n') + details);
        });
    QObject::connect(plug, &QPushButton::clicked, &window, [&] {
        if (camera->isPlugged()) {
            camera->unplug();
            plug->setText(QStringLiteral("Plug the camera in again"));
            return;
        }
        // A camera that comes back is opened again: a new tree over its node maps.
        camera->replug();
        saveColumnWidths(tree);
        delete tree;
        tree = showCamera(*camera, &window);
        layout->insertWidget(0, tree);
        plug->setText(QStringLiteral("Unplug the camera"));
    });
    QObject::connect(&app, &QApplication::aboutToQuit, [&tree] { saveColumnWidths(tree); });

    window.resize(640, 800);
    window.show();
    return app.exec();
}
