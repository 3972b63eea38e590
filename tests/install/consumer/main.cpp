#include <featuretree/featuretreemodel.h>
#include <featuretree/featuretreeproxymodel.h>
#include <featuretree/nodemapname.h>
#include <messages/asyncerrorqueue.h>
#include <parameters/iparametercollection.h>

#include <QCoreApplication>
#include <cstdio>

int main(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    const QString context = GetNodemapName(QStringLiteral("@CameraDevice/Width"));
    const bool queue = GetTheGlobalAsyncErrorQueue() != nullptr;
    const bool metaObject = ParameterCollection::IParameterCollection::staticMetaObject.className() != nullptr;

    // The model and its search proxy, as the README shows them.
    FeatureTreeModel model;
    FeatureTreeProxyModel proxy;
    proxy.setSourceModel(&model);
    proxy.setFilterCaseSensitivity(Qt::CaseInsensitive);
    proxy.setVisibility(GenApi::Expert);
    model.rebuildFavoriteItems();
    proxy.invalidate();
    const bool tree = model.rowCount() == 2 && proxy.GetFavorites() == &FeatureTreeModel::m_favorites;

    std::printf("%s %d %d %d\n", qPrintable(context), queue, metaObject, tree);
    return (context == QLatin1String("CameraDevice") && queue && metaObject && tree) ? 0 : 1;
}
