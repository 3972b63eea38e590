#include "featuretree/ifeaturetreecontrolservice.h"
#include "featuretree/ifeaturetreestatusservice.h"

#include <QtTest>

#include <QMetaMethod>

Q_DECLARE_METATYPE(GenApi::EVisibility)
Q_DECLARE_METATYPE(QSharedPointer<ParameterCollection::IParameter>)

namespace {

using Plugin::FeatureTree::IFeatureTreeControlService;
using Plugin::FeatureTree::IFeatureTreeStatusService;

//! A host's implementation of a service, telling when it is destroyed.
template <typename Service> class HostService : public Service
{
public:
    explicit HostService(bool* destroyed = nullptr)
        : m_destroyed(destroyed)
    {
    }
    ~HostService() override
    {
        if (m_destroyed)
            *m_destroyed = true;
    }

private:
    bool* m_destroyed;
};

//! The status service needs nothing but its signals.
using StatusService = HostService<IFeatureTreeStatusService>;

//! The control service forwards to its tree; here it keeps a log.
class ControlService : public HostService<IFeatureTreeControlService>
{
public:
    using HostService::HostService;

    void setVisibility(GenApi::EVisibility visibility) override
    {
        calls << QStringLiteral("setVisibility %1").arg(visibility);
    }
    void setPolling(bool enable) override { calls << QStringLiteral("setPolling %1").arg(enable); }
    void Refresh() override { calls << QStringLiteral("Refresh"); }
    void deviceIsClosed() override { calls << QStringLiteral("deviceIsClosed"); }

    QStringList calls;
};

//! Stands for the feature tree widget: signals of the same signatures.
class TreeSignals : public QObject
{
    Q_OBJECT

signals:
    void visibilityChanged(GenApi::EVisibility);
    void onCurrentChanged(QSharedPointer<ParameterCollection::IParameter>);
    void onNewText(QString str);
};

QStringList ownSignals(const QMetaObject* meta)
{
    QStringList result;
    for (int i = meta->methodOffset(); i < meta->methodCount(); ++i) {
        const QMetaMethod method = meta->method(i);
        if (method.methodType() == QMetaMethod::Signal)
            result << QString::fromLatin1(method.methodSignature());
    }
    return result;
}

} // namespace

class TestFeatureTreeServices : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void classNames();
    void bothDeriveFromIService();
    void statusSignalsInOrder();
    void controlHasNoSignals();
    void hostConnectsTheWidgetSignals();
    void controlOperationsDispatch();
    void destroyedThroughTheBase();
};

void TestFeatureTreeServices::initTestCase()
{
    qRegisterMetaType<GenApi::EVisibility>("GenApi::EVisibility");
    qRegisterMetaType<QSharedPointer<ParameterCollection::IParameter>>(
        "QSharedPointer<ParameterCollection::IParameter>");
}

void TestFeatureTreeServices::classNames()
{
    QCOMPARE(QByteArray(IFeatureTreeStatusService::staticMetaObject.className()),
        QByteArray("Plugin::FeatureTree::IFeatureTreeStatusService"));
    QCOMPARE(QByteArray(IFeatureTreeControlService::staticMetaObject.className()),
        QByteArray("Plugin::FeatureTree::IFeatureTreeControlService"));

    StatusService status;
    ControlService control;
    QVERIFY(status.inherits("Plugin::FeatureTree::IFeatureTreeStatusService"));
    QVERIFY(control.inherits("Plugin::FeatureTree::IFeatureTreeControlService"));
    QVERIFY(!status.inherits("Plugin::FeatureTree::IFeatureTreeControlService"));
}

void TestFeatureTreeServices::bothDeriveFromIService()
{
    QCOMPARE(IFeatureTreeStatusService::staticMetaObject.superClass(), &Core::Service::IService::staticMetaObject);
    QCOMPARE(IFeatureTreeControlService::staticMetaObject.superClass(), &Core::Service::IService::staticMetaObject);

    StatusService status;
    QObject* asObject = &status;
    QVERIFY(qobject_cast<Core::Service::IService*>(asObject));
    QVERIFY(qobject_cast<IFeatureTreeStatusService*>(asObject));
    QVERIFY(!qobject_cast<IFeatureTreeControlService*>(asObject));
}

void TestFeatureTreeServices::statusSignalsInOrder()
{
    QCOMPARE(ownSignals(&IFeatureTreeStatusService::staticMetaObject),
        (QStringList { QStringLiteral("visibilityChanged(GenApi::EVisibility)"),
            QStringLiteral("currentChanged(QSharedPointer<ParameterCollection::IParameter>)"),
            QStringLiteral("newText(QString)") }));
    // Nothing but the signals: no slots or invokables of its own.
    const QMetaObject& meta = IFeatureTreeStatusService::staticMetaObject;
    QCOMPARE(meta.methodCount() - meta.methodOffset(), 3);
}

void TestFeatureTreeServices::controlHasNoSignals()
{
    const QMetaObject& meta = IFeatureTreeControlService::staticMetaObject;
    QVERIFY(ownSignals(&meta).isEmpty());
    QCOMPARE(meta.methodCount(), Core::Service::IService::staticMetaObject.methodCount());
}

void TestFeatureTreeServices::hostConnectsTheWidgetSignals()
{
    // A host wires the tree's signals to the service in the string form the
    // library uses; each one arrives with its argument.
    TreeSignals tree;
    StatusService status;
    QVERIFY(connect(&tree, SIGNAL(visibilityChanged(GenApi::EVisibility)), &status,
        SIGNAL(visibilityChanged(GenApi::EVisibility))));
    QVERIFY(connect(&tree, SIGNAL(onCurrentChanged(QSharedPointer<ParameterCollection::IParameter>)), &status,
        SIGNAL(currentChanged(QSharedPointer<ParameterCollection::IParameter>))));
    QVERIFY(connect(&tree, SIGNAL(onNewText(QString)), &status, SIGNAL(newText(QString))));

    QSignalSpy visibility(&status, SIGNAL(visibilityChanged(GenApi::EVisibility)));
    QSignalSpy current(&status, SIGNAL(currentChanged(QSharedPointer<ParameterCollection::IParameter>)));
    QSignalSpy text(&status, SIGNAL(newText(QString)));

    emit tree.visibilityChanged(GenApi::Guru);
    emit tree.onNewText(QStringLiteral("Image Format Control"));
    emit tree.onCurrentChanged(QSharedPointer<ParameterCollection::IParameter>());

    QCOMPARE(visibility.count(), 1);
    QCOMPARE(visibility.first().first().value<GenApi::EVisibility>(), GenApi::Guru);
    QCOMPARE(text.count(), 1);
    QCOMPARE(text.first().first().toString(), QStringLiteral("Image Format Control"));
    QCOMPARE(current.count(), 1);
    QVERIFY(current.first().first().value<QSharedPointer<ParameterCollection::IParameter>>().isNull());
}

void TestFeatureTreeServices::controlOperationsDispatch()
{
    ControlService service;
    IFeatureTreeControlService& control = service;
    control.setVisibility(GenApi::Expert);
    control.setPolling(true);
    control.Refresh();
    control.deviceIsClosed();
    QCOMPARE(service.calls,
        (QStringList { QStringLiteral("setVisibility 1"), QStringLiteral("setPolling 1"), QStringLiteral("Refresh"),
            QStringLiteral("deviceIsClosed") }));
}

void TestFeatureTreeServices::destroyedThroughTheBase()
{
    bool statusGone = false;
    bool controlGone = false;
    Core::Service::IService* status = new StatusService(&statusGone);
    Core::Service::IService* control = new ControlService(&controlGone);
    delete status;
    delete control;
    QVERIFY(statusGone);
    QVERIFY(controlGone);

    // Owned as a QObject child, it goes with its parent.
    bool childGone = false;
    {
        QObject parent;
        auto* child = new StatusService(&childGone);
        child->setParent(&parent);
    }
    QVERIFY(childGone);
}

QTEST_MAIN(TestFeatureTreeServices)
#include "tst_featuretreeservices.moc"
