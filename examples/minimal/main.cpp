#include <QApplication>
#include <QMessageBox>
#include <aravis/araviscamera.h>
#include <featuretree/featuretreewidget.h>
#include <messages/asyncerrorqueue.h>

int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    app.setOrganizationName(QStringLiteral("ZarvexExamples")); // favourites and settings go here
    QString error;
    auto camera = Aravis::AravisCamera::open(app.arguments().value(1), &error); // empty id: the first camera
    if (!camera) {
        QMessageBox::critical(nullptr, QStringLiteral("minimal"), error);
        return 1;
    }
    FeatureTreeWidget tree(camera->info().model, camera->baseInfo());
    for (const auto& nodeMap : camera->nodeMaps())
        tree.addParameterCollection(nodeMap.collection, nodeMap.rootName, nodeMap.name, false);
    tree.expandTree();
    tree.setPolling(true);
    QObject::connect(camera.get(), &Aravis::AravisCamera::lost, &tree, &FeatureTreeWidget::deviceIsClosed);
    QObject::connect(GetTheGlobalAsyncErrorQueue(), &AsyncErrorQueue::displayError, &tree,
        [&tree](AsyncErrorQueue::ErrorSeverity, const QString& text, const QString& details, QWidget*) {
            QMessageBox::warning(&tree, QStringLiteral("Camera"), text + QLatin1Char('\n') + details);
        });
    tree.resize(640, 800);
    tree.show();
    return app.exec();
}
