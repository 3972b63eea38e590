// A host application as the README shows it: the feature tree widget, the
// node maps of the host's camera, and the library's error queue shown by the
// host. The camera layer belongs to the host; this check has none, so the
// widget gets no node maps and shows its favourites branch alone.

#include <featuretree/featuretreewidget.h>
#include <messages/asyncerrorqueue.h>
#include <parameters/ibaseinfo.h>
#include <parameters/iparametercollection.h>

#include <QApplication>
#include <QMessageBox>
#include <QTreeView>

#include <cstdio>

// --- as in the README ---
using NodeMaps = QList<QPair<QString, QSharedPointer<ParameterCollection::IParameterCollection>>>;

FeatureTreeWidget* showCamera(
    QSharedPointer<Plugin::CameraPool::IBaseInfo> camera, const NodeMaps& nodeMaps, QWidget* window)
{
    auto* tree = new FeatureTreeWidget(QStringLiteral("Features"), camera, window);
    tree->setVisibility(GenApi::Expert); // user level
    for (const auto& nodeMap : nodeMaps) // "@CameraDevice", "@DeviceTransportLayer", ...
        tree->addParameterCollection(nodeMap.second, nodeMap.first, nodeMap.first, false);
    tree->setPolling(true); // values follow the device every 300 ms
    return tree;
}

void showErrorsIn(QWidget* window)
{
    QObject::connect(GetTheGlobalAsyncErrorQueue(), &AsyncErrorQueue::displayError, window,
        [window](AsyncErrorQueue::ErrorSeverity, const QString& text, const QString& details, QWidget*) {
            QMessageBox::warning(window, QStringLiteral("Camera"), text + QLatin1Char('\n') + details);
        });
}
// --- end ---

int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    QApplication::setOrganizationName(QStringLiteral("ZarvexInstallCheck"));
    QApplication::setApplicationName(QStringLiteral("consumer"));

    QWidget window;
    showErrorsIn(&window);
    FeatureTreeWidget* tree = showCamera(nullptr, NodeMaps(), &window);
    window.show();
    app.processEvents();

    const bool built = tree->treeView() && tree->getFeatureExtension() != nullptr;
    const bool favourites = tree->treeView()->model()->rowCount() >= 1;
    const bool level = tree->visibility() == GenApi::Expert && tree->getPolling();
    tree->setPolling(false);
    std::printf("%d %d %d\n", built, favourites, level);
    return (built && favourites && level) ? 0 : 1;
}
