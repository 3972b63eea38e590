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
    std::printf("%s %d %d\n", qPrintable(context), queue, metaObject);
    return (context == QLatin1String("CameraDevice") && queue && metaObject) ? 0 : 1;
}
