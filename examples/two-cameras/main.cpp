// Two cameras side by side, as a host with several cameras shows them: a
// tree for each, one list of favourites for all. A feature made a favourite
// in one tree (Ctrl+D, or the context menu) shows in the other's favourites
// too, wherever that camera has it: favourites are kept by node map and
// feature name, process-wide, in the default QSettings.
//
// Two simulated cameras stand in for real ones here, a GigE Vision and a
// USB3 Vision camera; a host with real cameras opens each with
// Aravis::AravisCamera::open(id) and shows it the same way.
#include <QApplication>
#include <QMessageBox>
#include <QSettings>
#include <QSplitter>
#include <featuretree/featuretreewidget.h>
#include <messages/asyncerrorqueue.h>
#include <simulation/simulatedcamera.h>

#include <memory>
#include <vector>

namespace {

const int kTreeStateVersion = 1;

FeatureTreeWidget* showCamera(Simulation::SimulatedCamera& camera, const QString& title, QWidget* parent)
{
    auto* tree = new FeatureTreeWidget(title, camera.baseInfo(), parent);
    // Each tree keeps its own column widths, under its own key.
    tree->setObjectName(title);
    tree->restoreState(QSettings().value(title + QLatin1String("/state")).toByteArray(), kTreeStateVersion);
    for (const auto& nodeMap : camera.nodeMaps())
        tree->addParameterCollection(nodeMap.collection, nodeMap.rootName, nodeMap.name, false);
    tree->expandRootNodes();
    tree->setPolling(true);
    QObject::connect(&camera, &Simulation::SimulatedCamera::lost, tree, &FeatureTreeWidget::deviceIsClosed);
    return tree;
}

} // namespace

int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    app.setOrganizationName(QStringLiteral("ZarvexExamples"));
    app.setApplicationName(QStringLiteral("two-cameras"));

    std::vector<std::unique_ptr<Simulation::SimulatedCamera>> cameras;
    cameras.push_back(Simulation::SimulatedCamera::createDefault(QStringLiteral("GEV")));
    cameras.push_back(Simulation::SimulatedCamera::createDefault(QStringLiteral("U3V")));

    QSplitter window;
    window.setWindowTitle(QStringLiteral("Two cameras"));
    std::vector<FeatureTreeWidget*> trees;
    for (const auto& camera : cameras) {
        const QString title = QStringLiteral("%1 camera").arg(camera->transportLayerType());
        trees.push_back(showCamera(*camera, title, &window));
        window.addWidget(trees.back());
    }

    QObject::connect(GetTheGlobalAsyncErrorQueue(), &AsyncErrorQueue::displayError, &window,
        [&window](AsyncErrorQueue::ErrorSeverity, const QString& text, const QString& details, QWidget*) {
            QMessageBox::warning(&window, QStringLiteral("Camera"), text + QLatin1Char('\n') + details);
        });
    QObject::connect(&app, &QApplication::aboutToQuit, [&trees] {
        for (FeatureTreeWidget* tree : trees)
            QSettings().setValue(tree->objectName() + QLatin1String("/state"), tree->saveState(kTreeStateVersion));
    });

    window.resize(1200, 800);
    window.show();
    return app.exec();
}
