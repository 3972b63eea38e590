// The favourites branch of the feature tree: zombies and live items, the
// help and search lines, adding, removing and moving, drag and drop (also of
// payloads that didn't come from this tree), and favourites across a restart.

#include "featuretreetestsupport.h"

#include "featuretree/favoritesdata.h"
#include "featuretree/featuretreefavoritesitem.h"
#include "featuretree/featuretreeinodeitem.h"
#include "featuretree/featuretreemodel.h"

#include <QDataStream>
#include <QMimeData>
#include <QRandomGenerator>
#include <QSettings>
#include <QStandardPaths>
#include <QtTest>

#include <functional>
#include <limits>

using namespace TreeTest;
using Favorite = FavoritesData::FavoritesDataItem;

namespace {

const char* const mimeType = "application/x-fti";

// Two node maps with a like-named feature, "Width".
const QByteArray favoritesCamera = deviceJson(R"(
    { "name": "@CameraDevice", "features": [
        { "name": "Root", "type": "Category", "children": ["Image", "Gain", "Exposure", "Offset"] },
        { "name": "Image", "type": "Category", "children": ["Width", "Height"] },
        { "name": "Width", "type": "Integer", "displayName": "Image Width", "value": 640, "min": 16, "max": 1920 },
        { "name": "Height", "type": "Integer", "displayName": "Image Height", "value": 480, "min": 16, "max": 1200 },
        { "name": "Gain", "type": "Float", "displayName": "Gain", "value": 1, "min": 0, "max": 24 },
        { "name": "Exposure", "type": "Float", "displayName": "Exposure Time", "value": 100, "min": 10, "max": 1000 },
        { "name": "Offset", "type": "Integer", "displayName": "Offset X", "value": 0, "min": 0, "max": 100 }
    ] },
    { "name": "@StreamGrabber0", "features": [
        { "name": "Root", "type": "Category", "children": ["Width", "MaxNumBuffer"] },
        { "name": "Width", "type": "Integer", "displayName": "Buffer Width", "value": 64, "min": 1, "max": 100 },
        { "name": "MaxNumBuffer", "type": "Integer", "displayName": "Buffers", "value": 16, "min": 1, "max": 64 }
    ] }
)");

const QString camera = QStringLiteral("@CameraDevice");
const QString grabber = QStringLiteral("@StreamGrabber0");

Favorite favorite(const QString& name, const QString& nodeMap = camera)
{
    return Favorite { name, name + QStringLiteral(" shown"), nodeMap };
}

FavoritesData& store()
{
    return FeatureTreeModel::m_favorites;
}

void setStore(const QList<Favorite>& favorites)
{
    while (store().countNodes() > 0)
        store().removeNode(0, nullptr);
    for (const Favorite& f : favorites)
        QVERIFY(store().appendNode(f));
}

QStringList storeNames()
{
    QStringList names;
    for (int i = 0; i < store().countNodes(); ++i)
        names << store().nodeAt(i)->name;
    return names;
}

QModelIndex favoritesRoot(FeatureTreeModel& model)
{
    return model.GetFavoritesRootIndex();
}

//! The full names of the favourites root's children, in row order.
QStringList favoriteRows(FeatureTreeModel& model)
{
    QStringList rows;
    const QModelIndex root = favoritesRoot(model);
    for (int row = 0; row < model.rowCount(root); ++row)
        rows << model.index(row, 0, root).data(FeatureTreeItem::FullNameRole).toString();
    return rows;
}

//! A payload of raw numbers, as forged bytes would be.
QMimeData* payload(const QList<qint64>& addresses, const QByteArray& tail = QByteArray())
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    for (qint64 address : addresses)
        stream << address;
    bytes += tail;
    auto* data = new QMimeData;
    data->setData(QLatin1String(mimeType), bytes);
    return data;
}

qint64 addressOf(const QModelIndex& index)
{
    return static_cast<qint64>(reinterpret_cast<quintptr>(index.internalPointer()));
}

//! Every item of the model's built tree, without fetching.
QSet<qint64> builtAddresses(const FeatureTreeModel& model)
{
    QSet<qint64> result;
    std::function<void(const FeatureTreeItem*)> walk = [&](const FeatureTreeItem* item) {
        result.insert(static_cast<qint64>(reinterpret_cast<quintptr>(item)));
        for (int i = 0; i < item->builtChildCount(); ++i)
            walk(item->child(i));
    };
    walk(model.rootItem());
    return result;
}

} // namespace

// Stands in for a view: rebuilds the branch on every change of the store.
class ViewStandIn : public QObject
{
    Q_OBJECT

public:
    explicit ViewStandIn(FeatureTreeModel* model)
        : m_model(model)
    {
        store().Register(this);
    }
    ~ViewStandIn() override { store().Deregister(this); }

    int updates = 0;

public slots:
    void onFavoriteDataUpdated()
    {
        ++updates;
        m_model->rebuildFavoriteItems();
    }
    void onFavoriteDataExpanded(bool) { }

private:
    FeatureTreeModel* m_model;
};

class TestFeatureTreeFavorites : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();

    // the branch
    void rebuildMakesSearchLineAndFavoritesRoot();
    void searchHelpRowIsAnnouncedUnderTheInvisibleRoot();
    void favoritesRootIsCreatedOnce();
    void emptyStoreShowsTheHelpItem();
    void unavailableFavoriteStaysAZombie_data();
    void unavailableFavoriteStaysAZombie();
    void rootToolTip_data();
    void rootToolTip();
    void withoutCollectionsTheToolTipIsUnset();
    void likeNamedFeaturesBindToTheirOwnNodeMap();
    void secondCollectionOfTheSameNameDoesNotRebind();
    void zombieGoesLiveWhenItsCollectionArrives();
    void nodeMapNameWithoutAtCannotBeFound();
    void favoritesIndexDecoding_data();
    void favoritesIndexDecoding();
    void isFavoriteTreeItemAndRoot();

    // operations
    void addFavorite();
    void removeAndMoveFavorites();
    void canAddAsFavorite();
    void canAddAsFavoriteIsFalseWhenTheDeviceFailsToTellTheKind_data();
    void canAddAsFavoriteIsFalseWhenTheDeviceFailsToTellTheKind();
    void helpItemIsNotDraggableAndNotRemovable();

    // drag and drop
    void mimeDataCarriesItemAddresses();
    void dropMovesWithinTheList_data();
    void dropMovesWithinTheList();
    void dropAddsFromTheMainTree();
    void dropOntoTheFavoritesRootUsesTheTopLevelRowCount();
    void dropOfAFavoriteFeatureChangesNothing();
    void dropWithoutThePayloadOrIgnored();
    void forgedPayloadIsNeverDereferenced();
    void staleDragAfterRebuildIsIgnored();
    void staleDragAfterClearIsIgnored();
    void itemOfAnotherModelIsIgnored();
    void truncatedPayloadStopsAtTheCut();

    // the model tester and persistence
    void modelTesterWhileRebuildingDroppingAndClearing();
    void favoritesSurviveARestart();

private:
    QSharedPointer<Simulation::SimulatedDevice> m_device;
};

void TestFeatureTreeFavorites::initTestCase()
{
    // Favourites are saved when a model goes: only into this test's own settings.
    QStandardPaths::setTestModeEnabled(true);
    QCoreApplication::setOrganizationName(QStringLiteral("ZarvexTests"));
    QCoreApplication::setApplicationName(QStringLiteral("tst_featuretreefavorites"));
    QVERIFY2(
        QSettings().fileName().contains(QLatin1String("tst_featuretreefavorites")), qPrintable(QSettings().fileName()));
}

void TestFeatureTreeFavorites::init()
{
    QSettings settings;
    settings.remove(QStringLiteral("Favorites"));
    settings.remove(QStringLiteral("FeatureTree"));
    settings.sync();
    store().setSettingsPath(QString());
    store().setDeferDataUpdatedSignals(false);
    setStore({});
    store().setViewAllFavorites(true);
    m_device = makeDevice(favoritesCamera);
    QVERIFY(m_device);
}

void TestFeatureTreeFavorites::cleanup()
{
    m_device.reset();
    setStore({});
}

void TestFeatureTreeFavorites::rebuildMakesSearchLineAndFavoritesRoot()
{
    FeatureTreeModel model;
    model.rebuildFavoriteItems();
    QCOMPARE(model.rowCount(QModelIndex()), 2);

    const QModelIndex search = model.index(0, 0);
    QCOMPARE(itemAt(search), model.getSearchHelpItem());
    QCOMPARE(search.data(FeatureTreeItem::FullNameRole).toString(), QStringLiteral("Search"));
    QCOMPARE(search.data().toString(),
        QStringLiteral("<HTML><B>X search results found (Y of them visible at higher user level)</B>"));
    QCOMPARE(search.data(FeatureTreeItem::VisibilityRole).toInt(), int(GenApi::Invisible));
    QCOMPARE(search.data(FeatureTreeItem::IsFullRowRole).toBool(), true);
    QCOMPARE(search.data(FeatureTreeItem::IsSpecialNodeRole).toBool(), true);

    const QModelIndex root = model.index(1, 0);
    QCOMPARE(root, model.GetFavoritesRootIndex());
    QVERIFY(qobject_cast<FeatureTreeFavoritesItem*>(itemAt(root)));
    QCOMPARE(root.data().toString(), QStringLiteral("Favorites"));
    QCOMPARE(root.data(FeatureTreeItem::FullNameRole).toString(), QStringLiteral("FavoritesTopLevel"));
    QCOMPARE(root.data(FeatureTreeItem::IsFullRowRole).toBool(), true);
    QCOMPARE(root.data(FeatureTreeItem::IsSpecialNodeRole).toBool(), true);
    QCOMPARE(root.data(FeatureTreeItem::VisibilityRole).toInt(), int(GenApi::Beginner));
    QVERIFY(itemAt(root)->GetDescription().startsWith(QLatin1String("<h3>Favorites</h3><b>This node contains")));
    QVERIFY(model.flags(root) & Qt::ItemIsDropEnabled);

    // Node maps come below the two.
    model.addParameterCollection(m_device->nodeMap(camera), QStringLiteral("Camera"), camera, false);
    QCOMPARE(model.rowCount(QModelIndex()), 3);
    QCOMPARE(model.index(2, 0).data().toString(), QStringLiteral("Camera"));
}

void TestFeatureTreeFavorites::searchHelpRowIsAnnouncedUnderTheInvisibleRoot()
{
    FeatureTreeModel model;
    model.addParameterCollection(m_device->nodeMap(camera), QStringLiteral("Camera"), camera, false);
    QSignalSpy aboutToInsert(&model, SIGNAL(rowsAboutToBeInserted(QModelIndex, int, int)));
    QSignalSpy inserted(&model, SIGNAL(rowsInserted(QModelIndex, int, int)));
    model.rebuildFavoriteItems();

    // The only top-level insertion: announced as row 1, under the invisible root.
    QList<QList<QVariant>> topLevel;
    for (const QList<QVariant>& signal : qAsConst(inserted)) {
        if (!signal.at(0).value<QModelIndex>().isValid())
            topLevel << signal;
    }
    QCOMPARE(topLevel.count(), 1);
    QCOMPARE(topLevel.first().at(1).toInt(), 1);
    QCOMPARE(topLevel.first().at(2).toInt(), 1);
    // No insertion is announced under any real row for it.
    for (const QList<QVariant>& signal : qAsConst(aboutToInsert)) {
        const QModelIndex parent = signal.at(0).value<QModelIndex>();
        QVERIFY2(!parent.isValid() || itemAt(parent) != model.rootItem(),
            "an insertion was announced below an index that stands for the invisible root");
    }
    // ... and placed at row 0.
    QCOMPARE(model.index(0, 0).data(FeatureTreeItem::FullNameRole).toString(), QStringLiteral("Search"));

    // It is made once.
    FeatureTreeItem* search = model.getSearchHelpItem();
    inserted.clear();
    model.rebuildFavoriteItems();
    QCOMPARE(model.getSearchHelpItem(), search);
    for (const QList<QVariant>& signal : qAsConst(inserted))
        QVERIFY(signal.at(0).value<QModelIndex>().isValid());
    QCOMPARE(model.rowCount(QModelIndex()), 3);
}

void TestFeatureTreeFavorites::favoritesRootIsCreatedOnce()
{
    FeatureTreeModel model;
    QSignalSpy changed(&model, SIGNAL(dataChanged(QModelIndex, QModelIndex, QVector<int>)));
    model.CreateFavoritesRoot();
    QCOMPARE(model.rowCount(QModelIndex()), 1);
    // The invisible root's index, then the favourites root's.
    QCOMPARE(changed.count(), 2);
    QVERIFY(!changed.at(0).at(0).value<QModelIndex>().isValid());
    QCOMPARE(changed.at(1).at(0).value<QModelIndex>(), model.GetFavoritesRootIndex());
    FeatureTreeItem* root = itemAt(model.GetFavoritesRootIndex());
    QVERIFY(model.IsFavoriteTreeRoot(root));

    changed.clear();
    model.CreateFavoritesRoot();
    QCOMPARE(model.rowCount(QModelIndex()), 1);
    QCOMPARE(itemAt(model.GetFavoritesRootIndex()), root);
    QCOMPARE(changed.count(), 0);
}

void TestFeatureTreeFavorites::emptyStoreShowsTheHelpItem()
{
    FeatureTreeModel model;
    model.CreateFavoritesRoot();
    const QModelIndex root = model.GetFavoritesRootIndex();
    QSignalSpy inserted(&model, SIGNAL(rowsInserted(QModelIndex, int, int)));
    QSignalSpy changed(&model, SIGNAL(dataChanged(QModelIndex, QModelIndex, QVector<int>)));
    model.rebuildFavoriteItems();

    QCOMPARE(model.rowCount(root), 1);
    const QModelIndex help = model.index(0, 0, root);
    QCOMPARE(help.data(FeatureTreeItem::FullNameRole).toString(), QStringLiteral("Dummy"));
    QCOMPARE(help.data().toString(), QStringLiteral("Add favorites by right-clicking a feature below."));
    QCOMPARE(help.data(Qt::ToolTipRole).toString(),
        QStringLiteral("To add a feature, right-click the feature and choose 'Add to Favorites' from the "
                       "context menu. You can also use drag and drop to add features to your favorites."));
    QCOMPARE(help.data(FeatureTreeItem::VisibilityRole).toInt(), int(GenApi::Beginner));
    QCOMPARE(help.data(FeatureTreeItem::IsFullRowRole).toBool(), true);
    QCOMPARE(help.data(FeatureTreeItem::IsSpecialNodeRole).toBool(), true);
    QCOMPARE(model.flags(help), Qt::ItemFlags());
    QCOMPARE(model.flags(help.siblingAtColumn(1)), Qt::ItemFlags());

    // Appended without a row insertion, announced by a change of its own index.
    for (const QList<QVariant>& signal : qAsConst(inserted))
        QVERIFY(signal.at(0).value<QModelIndex>() != root);
    bool announced = false;
    for (const QList<QVariant>& signal : qAsConst(changed))
        announced = announced || signal.at(0).value<QModelIndex>() == help;
    QVERIFY(announced);
    // It isn't an unavailable favourite.
    QVERIFY(itemAt(root)->GetToolTip().isEmpty());
}

void TestFeatureTreeFavorites::unavailableFavoriteStaysAZombie_data()
{
    QTest::addColumn<bool>("viewAll");
    QTest::addColumn<int>("visibility");
    QTest::newRow("view all") << true << int(GenApi::Beginner);
    QTest::newRow("available only") << false << int(GenApi::Invisible);
}

void TestFeatureTreeFavorites::unavailableFavoriteStaysAZombie()
{
    QFETCH(bool, viewAll);
    QFETCH(int, visibility);
    setStore(
        { favorite(QStringLiteral("Width")), favorite(QStringLiteral("Missing")), favorite(QStringLiteral("Gain")) });
    store().setViewAllFavorites(viewAll);
    store().setSettingsPath(QStringLiteral("Favorites"));
    {
        FeatureTreeModel model;
        QCOMPARE(model.GetViewAllFavorites(), viewAll);
        model.addParameterCollection(m_device->nodeMap(camera), QStringLiteral("Camera"), camera, false);
        model.rebuildFavoriteItems();

        QCOMPARE(favoriteRows(model),
            QStringList({ QStringLiteral("Fav*CameraDevice*Width"), QStringLiteral("Fav*CameraDevice*Missing"),
                QStringLiteral("Fav*CameraDevice*Gain") }));
        const QModelIndex root = favoritesRoot(model);
        QVERIFY(qobject_cast<FeatureTreeINodeItem*>(itemAt(model.index(0, 0, root))));
        QVERIFY(qobject_cast<FeatureTreeINodeItem*>(itemAt(model.index(2, 0, root))));

        const QModelIndex zombie = model.index(1, 0, root);
        QVERIFY(!qobject_cast<FeatureTreeINodeItem*>(itemAt(zombie)));
        QCOMPARE(zombie.data().toString(), QStringLiteral("Missing shown"));
        QCOMPARE(zombie.data(FeatureTreeItem::VisibilityRole).toInt(), visibility);
        QCOMPARE(itemAt(zombie)->editorType(), int(FeatureTreeItem::EditorNone));
        QVERIFY(!(model.flags(zombie.siblingAtColumn(1)) & Qt::ItemIsEditable));
        QVERIFY(!zombie.siblingAtColumn(1).data().isValid());
        QCOMPARE(itemAt(root)->GetToolTip(), QStringLiteral("3 Favorites (1 is unavailable for the current camera)"));
        // In the store, in its place.
        QCOMPARE(
            storeNames(), QStringList({ QStringLiteral("Width"), QStringLiteral("Missing"), QStringLiteral("Gain") }));
    }
    // ... and in the settings, which the model wrote when it went.
    QSettings settings;
    settings.beginGroup(QStringLiteral("Favorites"));
    QCOMPARE(settings.value(QStringLiteral("NumberOfEntries")).toInt(), 3);
    QCOMPARE(settings.value(QStringLiteral("1")).toString(), QStringLiteral("Missing*Missing shown*@CameraDevice"));
}

void TestFeatureTreeFavorites::rootToolTip_data()
{
    QTest::addColumn<QStringList>("names");
    QTest::addColumn<QString>("toolTip");
    const QString m = QStringLiteral("Missing");
    const QString n = QStringLiteral("Nowhere");
    const QString w = QStringLiteral("Width");
    const QString h = QStringLiteral("Height");
    const QString g = QStringLiteral("Gain");
    const QString e = QStringLiteral("Exposure");
    QTest::newRow("five, one unavailable")
        << QStringList { w, h, m, g, e } << "5 Favorites (1 is unavailable for the current camera)";
    QTest::newRow("one, unavailable") << QStringList { m } << "1 Favorite (1 is unavailable for the current camera)";
    QTest::newRow("three, two unavailable")
        << QStringList { m, w, n } << "3 Favorites (2 are unavailable for the current camera)";
    QTest::newRow("two, both unavailable")
        << QStringList { m, n } << "2 Favorites (2 are unavailable for the current camera)";
    QTest::newRow("one, available") << QStringList { w } << "1 Favorite";
    QTest::newRow("two, available") << QStringList { w, g } << "2 Favorites";
}

void TestFeatureTreeFavorites::rootToolTip()
{
    QFETCH(QStringList, names);
    QFETCH(QString, toolTip);
    QList<Favorite> favorites;
    for (const QString& name : qAsConst(names))
        favorites << favorite(name);
    setStore(favorites);
    // Hidden zombies count all the same.
    store().setViewAllFavorites(false);
    FeatureTreeModel model;
    model.addParameterCollection(m_device->nodeMap(camera), QStringLiteral("Camera"), camera, false);
    model.rebuildFavoriteItems();
    QCOMPARE(favoritesRoot(model).data(Qt::ToolTipRole).toString(), toolTip);
}

void TestFeatureTreeFavorites::withoutCollectionsTheToolTipIsUnset()
{
    setStore({ favorite(QStringLiteral("Width")), favorite(QStringLiteral("Missing")) });
    FeatureTreeModel model;
    model.rebuildFavoriteItems();
    const QModelIndex root = favoritesRoot(model);
    QCOMPARE(model.rowCount(root), 2);
    for (int row = 0; row < 2; ++row)
        QVERIFY(!qobject_cast<FeatureTreeINodeItem*>(itemAt(model.index(row, 0, root))));
    QVERIFY(itemAt(root)->GetToolTip().isEmpty());
}

void TestFeatureTreeFavorites::likeNamedFeaturesBindToTheirOwnNodeMap()
{
    setStore({ favorite(QStringLiteral("Width"), grabber), favorite(QStringLiteral("Width"), camera) });
    FeatureTreeModel model;
    model.rebuildFavoriteItems();
    const QModelIndex root = favoritesRoot(model);

    // The camera alone satisfies only its own favourite.
    model.addParameterCollection(m_device->nodeMap(camera), QStringLiteral("Camera"), camera, false);
    QVERIFY(!qobject_cast<FeatureTreeINodeItem*>(itemAt(model.index(0, 0, root))));
    auto* cameraWidth = qobject_cast<FeatureTreeINodeItem*>(itemAt(model.index(1, 0, root)));
    QVERIFY(cameraWidth);
    QCOMPARE(cameraWidth->node()->getFullName(), QStringLiteral("@CameraDevice/Width"));

    model.addParameterCollection(m_device->nodeMap(grabber), QStringLiteral("Grabber"), grabber, false);
    auto* grabberWidth = qobject_cast<FeatureTreeINodeItem*>(itemAt(model.index(0, 0, root)));
    QVERIFY(grabberWidth);
    QCOMPARE(grabberWidth->node()->getFullName(), QStringLiteral("@StreamGrabber0/Width"));
    QCOMPARE(grabberWidth->getFullName(), QStringLiteral("Fav*StreamGrabber0*Width"));
    QCOMPARE(
        grabberWidth->collection(), m_device->nodeMap(grabber).staticCast<ParameterCollection::IParameterCollection>());
    QCOMPARE(itemAt(model.index(1, 0, root)), cameraWidth);
    QCOMPARE(model.index(0, 1, root).data().toString(), QStringLiteral("64"));
    QCOMPARE(model.index(1, 1, root).data().toString(), QStringLiteral("640"));
    QCOMPARE(itemAt(root)->GetToolTip(), QStringLiteral("2 Favorites"));
}

void TestFeatureTreeFavorites::secondCollectionOfTheSameNameDoesNotRebind()
{
    auto other = makeDevice(favoritesCamera);
    QVERIFY(other);
    setStore({ favorite(QStringLiteral("Width")) });
    FeatureTreeModel model;
    model.rebuildFavoriteItems();
    model.addParameterCollection(m_device->nodeMap(camera), QStringLiteral("First"), camera, false);
    const QModelIndex root = favoritesRoot(model);
    auto* bound = qobject_cast<FeatureTreeINodeItem*>(itemAt(model.index(0, 0, root)));
    QVERIFY(bound);
    QSignalSpy removed(&model, SIGNAL(rowsRemoved(QModelIndex, int, int)));
    model.addParameterCollection(other->nodeMap(camera), QStringLiteral("Second"), camera, false);
    QCOMPARE(removed.count(), 0);
    QCOMPARE(itemAt(model.index(0, 0, root)), bound);
    QCOMPARE(bound->collection(), m_device->nodeMap(camera).staticCast<ParameterCollection::IParameterCollection>());
    QCOMPARE(bound->data(0, FeatureTreeItem::IsFullRowRole).toBool(), false);
}

void TestFeatureTreeFavorites::zombieGoesLiveWhenItsCollectionArrives()
{
    setStore({ favorite(QStringLiteral("Offset")), favorite(QStringLiteral("Gain")) });
    FeatureTreeModel model;
    model.rebuildFavoriteItems();
    const QModelIndex root = favoritesRoot(model);
    QSignalSpy removed(&model, SIGNAL(rowsRemoved(QModelIndex, int, int)));
    QSignalSpy inserted(&model, SIGNAL(rowsInserted(QModelIndex, int, int)));
    QSignalSpy changed(&model, SIGNAL(dataChanged(QModelIndex, QModelIndex, QVector<int>)));
    model.addParameterCollection(m_device->nodeMap(camera), QStringLiteral("Camera"), camera, false);

    // Each zombie is replaced in its row: removed, then the live item inserted.
    QList<int> replacedRows;
    for (const QList<QVariant>& signal : qAsConst(removed)) {
        QCOMPARE(signal.at(0).value<QModelIndex>(), root);
        QCOMPARE(signal.at(1).toInt(), signal.at(2).toInt());
        replacedRows << signal.at(1).toInt();
    }
    QCOMPARE(replacedRows, QList<int>({ 0, 1 }));
    int favoriteInsertions = 0;
    for (const QList<QVariant>& signal : qAsConst(inserted))
        favoriteInsertions += signal.at(0).value<QModelIndex>() == root ? 1 : 0;
    QCOMPARE(favoriteInsertions, 2);
    // The first row of the branch is announced as changed, whichever row was replaced.
    int firstRowChanges = 0;
    for (const QList<QVariant>& signal : qAsConst(changed))
        firstRowChanges += signal.at(0).value<QModelIndex>() == model.index(0, 0, root) ? 1 : 0;
    QVERIFY(firstRowChanges >= 2);

    // Live favourites follow the device like the main tree.
    auto* gain = qobject_cast<FeatureTreeINodeItem*>(itemAt(model.index(1, 0, root)));
    QVERIFY(gain);
    QCOMPARE(gain->getFullName(), QStringLiteral("Fav*CameraDevice*Gain"));
    QCOMPARE(gain->getDisplayedName(), QStringLiteral("Gain"));
    QVERIFY(model.setData(model.index(1, 1, root), QStringLiteral("2.50"), Qt::EditRole));
    QTRY_COMPARE(model.index(1, 1, root).data().toString(), QStringLiteral("2.50"));
    const QModelIndex mainGain = model.findItemByFullName(QStringLiteral("@CameraDevice/Gain"), nullptr, 1);
    QTRY_COMPARE(mainGain.data().toString(), QStringLiteral("2.50"));
}

void TestFeatureTreeFavorites::nodeMapNameWithoutAtCannotBeFound()
{
    setStore({ favorite(QStringLiteral("Width"), QStringLiteral("CameraDevice")), favorite(QStringLiteral("Gain")) });
    FeatureTreeModel model;
    model.addParameterCollection(m_device->nodeMap(camera), QStringLiteral("Camera"), camera, false);
    model.rebuildFavoriteItems();
    const QModelIndex root = favoritesRoot(model);
    const QModelIndex width = model.index(0, 0, root);
    QCOMPARE(width.data(FeatureTreeItem::FullNameRole).toString(), QStringLiteral("Fav*CameraDevice*Width"));
    // Not bound, since its node map name isn't the collection's.
    QVERIFY(!qobject_cast<FeatureTreeINodeItem*>(itemAt(width)));
    // Decoded with an "@" added, it isn't found.
    QCOMPARE(model.getFavoritesIndexFromModelIndex(width), -1);
    QVERIFY(!model.RemoveFavorite(width));
    QVERIFY(!model.MoveFavorite(width, false));
    QVERIFY(!model.CanMoveFavorite(width, false));
    QCOMPARE(store().countNodes(), 2);
    QCOMPARE(model.getFavoritesIndexFromModelIndex(model.index(1, 0, root)), 1);
}

void TestFeatureTreeFavorites::favoritesIndexDecoding_data()
{
    QTest::addColumn<QString>("fullName");
    QTest::addColumn<int>("position");
    QTest::newRow("favourite form") << "Fav*CameraDevice*Gain" << 1;
    QTest::newRow("two parts") << "StreamGrabber0*Width" << 2;
    QTest::newRow("three parts without Fav") << "CameraDevice*Width*Extra" << 0;
    QTest::newRow("three parts, other first word") << "NAFav*CameraDevice*Gain" << -1;
    QTest::newRow("no star") << "CameraDevice" << -1;
    QTest::newRow("node map root") << "@CameraDevice*Root" << -1;
    QTest::newRow("main tree feature") << "@CameraDevice/Gain" << -1;
    QTest::newRow("help item") << "Dummy" << -1;
}

void TestFeatureTreeFavorites::favoritesIndexDecoding()
{
    QFETCH(QString, fullName);
    QFETCH(int, position);
    setStore({ favorite(QStringLiteral("Width")), favorite(QStringLiteral("Gain")),
        favorite(QStringLiteral("Width"), grabber) });
    FeatureTreeModel model;
    FeatureTreeItem item(QStringLiteral("x"), &model, fullName, nullptr);
    QCOMPARE(model.getFavoritesIndexFromFeatureTreeItem(&item), position);
    QCOMPARE(model.getFavoritesIndexFromModelIndex(QModelIndex()), -1);
}

void TestFeatureTreeFavorites::isFavoriteTreeItemAndRoot()
{
    setStore({ favorite(QStringLiteral("Width")) });
    FeatureTreeModel model;
    QVERIFY(!model.IsFavoriteTreeRoot(nullptr));
    QVERIFY(!model.IsFavoriteTreeItem(nullptr));
    model.addParameterCollection(m_device->nodeMap(camera), QStringLiteral("Camera"), camera, false);
    FeatureTreeItem* mainWidth = itemAt(model.findItemByFullName(QStringLiteral("@CameraDevice/Width"), nullptr, 0));
    QVERIFY(mainWidth);
    QVERIFY(!model.IsFavoriteTreeItem(mainWidth));
    model.rebuildFavoriteItems();
    const QModelIndex root = favoritesRoot(model);
    QVERIFY(model.IsFavoriteTreeRoot(itemAt(root)));
    QVERIFY(!model.IsFavoriteTreeItem(itemAt(root)));
    QVERIFY(model.IsFavoriteTreeItem(itemAt(model.index(0, 0, root))));
    QVERIFY(!model.IsFavoriteTreeRoot(itemAt(model.index(0, 0, root))));
    QVERIFY(!model.IsFavoriteTreeItem(model.getSearchHelpItem()));
    // Deeper than a direct child isn't a favourite row.
    FeatureTreeItem deeper(QStringLiteral("deeper"), &model, QStringLiteral("deeper"), itemAt(model.index(0, 0, root)));
    QVERIFY(!model.IsFavoriteTreeItem(&deeper));
}

void TestFeatureTreeFavorites::addFavorite()
{
    FeatureTreeModel model;
    ViewStandIn view(&model);
    model.addParameterCollection(m_device->nodeMap(camera), QStringLiteral("Camera"), camera, false);
    model.addParameterCollection(m_device->nodeMap(grabber), QStringLiteral("Grabber"), grabber, false);
    model.rebuildFavoriteItems();
    const auto parameter = [this](const QString& nodeMap, const QString& name) {
        return m_device->nodeMap(nodeMap)->getParameter(nodeMap + QStringLiteral("/") + name);
    };

    QVERIFY(!model.AddFavorite(QSharedPointer<ParameterCollection::IParameter>(), 0));
    QVERIFY(!model.AddFavorite(parameter(camera, QStringLiteral("Missing")), 0));
    QVERIFY(!model.AddFavorite(parameter(camera, QStringLiteral("Width")), -1));
    QCOMPARE(store().countNodes(), 0);
    QCOMPARE(view.updates, 0);

    QVERIFY(model.AddFavorite(parameter(camera, QStringLiteral("Width")), 0));
    QCOMPARE(view.updates, 1);
    QVERIFY(model.AddFavorite(parameter(camera, QStringLiteral("Gain")), 5)); // beyond the end: appended
    QVERIFY(model.AddFavorite(parameter(camera, QStringLiteral("Height")), 1));
    QVERIFY(model.AddFavorite(parameter(grabber, QStringLiteral("Width")), 0));
    QVERIFY(!model.AddFavorite(parameter(camera, QStringLiteral("Width")), 0)); // already one
    QCOMPARE(storeNames(),
        QStringList(
            { QStringLiteral("Width"), QStringLiteral("Width"), QStringLiteral("Height"), QStringLiteral("Gain") }));
    const Favorite* first = store().nodeAt(0);
    QCOMPARE(first->nodeMapName, grabber);
    QCOMPARE(first->displayName, QStringLiteral("Buffer Width"));
    QCOMPARE(store().nodeAt(1)->nodeMapName, camera);
    QCOMPARE(store().nodeAt(1)->displayName, QStringLiteral("Image Width"));

    // The views rebuilt the branch: all live.
    QCOMPARE(favoriteRows(model),
        QStringList({ QStringLiteral("Fav*StreamGrabber0*Width"), QStringLiteral("Fav*CameraDevice*Width"),
            QStringLiteral("Fav*CameraDevice*Height"), QStringLiteral("Fav*CameraDevice*Gain") }));
    const QModelIndex root = favoritesRoot(model);
    for (int row = 0; row < 4; ++row)
        QVERIFY(qobject_cast<FeatureTreeINodeItem*>(itemAt(model.index(row, 0, root))));
}

void TestFeatureTreeFavorites::removeAndMoveFavorites()
{
    setStore({ favorite(QStringLiteral("Width")), favorite(QStringLiteral("Height")), favorite(QStringLiteral("Gain")),
        favorite(QStringLiteral("Missing")) });
    FeatureTreeModel model;
    ViewStandIn view(&model);
    model.addParameterCollection(m_device->nodeMap(camera), QStringLiteral("Camera"), camera, false);
    model.rebuildFavoriteItems();
    const QModelIndex root = favoritesRoot(model);
    const auto row = [&model, &root](int r) { return model.index(r, 0, root); };

    QVERIFY(!model.CanMoveFavorite(row(0), true));
    QVERIFY(model.CanMoveFavorite(row(0), false));
    QVERIFY(model.CanMoveFavorite(row(3), true));
    QVERIFY(!model.CanMoveFavorite(row(3), false));
    QVERIFY(!model.CanMoveFavorite(QModelIndex(), true));
    QVERIFY(!model.CanMoveFavorite(root, true));

    QVERIFY(model.MoveFavorite(row(0), false));
    QCOMPARE(storeNames(),
        QStringList(
            { QStringLiteral("Height"), QStringLiteral("Width"), QStringLiteral("Gain"), QStringLiteral("Missing") }));
    QVERIFY(model.MoveFavorite(favoritesRoot(model).model()->index(3, 0, favoritesRoot(model)), true));
    QCOMPARE(storeNames(),
        QStringList(
            { QStringLiteral("Height"), QStringLiteral("Width"), QStringLiteral("Missing"), QStringLiteral("Gain") }));
    // A zombie row works like any other.
    QVERIFY(model.RemoveFavorite(model.index(2, 0, favoritesRoot(model))));
    QCOMPARE(storeNames(), QStringList({ QStringLiteral("Height"), QStringLiteral("Width"), QStringLiteral("Gain") }));
    QVERIFY(!model.RemoveFavorite(QModelIndex()));
    QVERIFY(!model.RemoveFavorite(favoritesRoot(model)));
    QVERIFY(!model.RemoveFavorite(model.findItemByFullName(QStringLiteral("@CameraDevice/Gain"), nullptr, 0)));
    QCOMPARE(favoriteRows(model),
        QStringList({ QStringLiteral("Fav*CameraDevice*Height"), QStringLiteral("Fav*CameraDevice*Width"),
            QStringLiteral("Fav*CameraDevice*Gain") }));
}

void TestFeatureTreeFavorites::canAddAsFavoriteIsFalseWhenTheDeviceFailsToTellTheKind_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<QString>("cause");
    QTest::newRow("GenICam exception") << int(Simulation::FaultKind::GenICam)
                                       << QStringLiteral("^CanAddAsFavorite :  Exception occurred:");
    QTest::newRow("std exception") << int(Simulation::FaultKind::StdException)
                                   << QStringLiteral("^CanAddAsFavorite :  Exception occurred:");
    QTest::newRow("not a std exception") << int(Simulation::FaultKind::NonStdException)
                                         << QStringLiteral("^CanAddAsFavorite: Unspecified exception occurred\\.$");
}

void TestFeatureTreeFavorites::canAddAsFavoriteIsFalseWhenTheDeviceFailsToTellTheKind()
{
    QFETCH(int, kind);
    QFETCH(QString, cause);
    setStore({});
    FeatureTreeModel model;
    model.addParameterCollection(m_device->nodeMap(camera), QStringLiteral("Camera"), camera, false);
    const QModelIndex gain = model.findItemByFullName(QStringLiteral("@CameraDevice/Gain"), nullptr, 0);
    QVERIFY(model.CanAddAsFavorite(gain));

    // Asked as the current row changes; the exception must not reach the view.
    m_device->injectFault(
        QStringLiteral("@CameraDevice/Gain"), Simulation::Operation::GetType, Simulation::FaultKind(kind), 1);
    QTest::ignoreMessage(QtWarningMsg, "Failed to read the kind of the node @CameraDevice/Gain");
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(cause));
    bool can = true;
    try {
        can = model.CanAddAsFavorite(gain);
    } catch (...) {
        QFAIL("an exception escaped");
    }
    QVERIFY(!can);
    QVERIFY(model.CanAddAsFavorite(gain));
    m_device->clearFaults();
}

void TestFeatureTreeFavorites::canAddAsFavorite()
{
    setStore({ favorite(QStringLiteral("Width")), favorite(QStringLiteral("Missing")) });
    FeatureTreeModel model;
    model.addParameterCollection(m_device->nodeMap(camera), QStringLiteral("Camera"), camera, false);
    model.rebuildFavoriteItems();
    const auto main = [&model](const QString& name) {
        return model.findItemByFullName(QStringLiteral("@CameraDevice/") + name, nullptr, 0);
    };
    QVERIFY(model.CanAddAsFavorite(main(QStringLiteral("Gain"))));
    // Already a favourite: the tree allows it, the store refuses the duplicate.
    QVERIFY(model.CanAddAsFavorite(main(QStringLiteral("Width"))));
    QVERIFY(!model.CanAddAsFavorite(main(QStringLiteral("Image"))));
    QVERIFY(!model.CanAddAsFavorite(model.findItemByFullName(QStringLiteral("@CameraDevice*Root"), nullptr, 0)));
    QVERIFY(!model.CanAddAsFavorite(QModelIndex()));
    const QModelIndex root = favoritesRoot(model);
    QVERIFY(!model.CanAddAsFavorite(root));
    QVERIFY(!model.CanAddAsFavorite(model.index(0, 0, root))); // live favourite row
    QVERIFY(!model.CanAddAsFavorite(model.index(1, 0, root))); // zombie row
    QVERIFY(!model.CanAddAsFavorite(model.index(0, 0))); // search line
}

void TestFeatureTreeFavorites::helpItemIsNotDraggableAndNotRemovable()
{
    FeatureTreeModel model;
    ViewStandIn view(&model);
    model.rebuildFavoriteItems();
    const QModelIndex help = model.index(0, 0, favoritesRoot(model));
    QCOMPARE(help.data(FeatureTreeItem::FullNameRole).toString(), QStringLiteral("Dummy"));
    QVERIFY(!(model.flags(help) & Qt::ItemIsDragEnabled));
    QVERIFY(!model.RemoveFavorite(help));
    QVERIFY(!model.MoveFavorite(help, true));
    QCOMPARE(view.updates, 0);
    QCOMPARE(model.rowCount(favoritesRoot(model)), 1);
}

void TestFeatureTreeFavorites::mimeDataCarriesItemAddresses()
{
    FeatureTreeModel model;
    model.addParameterCollection(m_device->nodeMap(camera), QStringLiteral("Camera"), camera, false);
    const QModelIndex width = model.findItemByFullName(QStringLiteral("@CameraDevice/Width"), nullptr, 0);
    const QModelIndex gain = model.findItemByFullName(QStringLiteral("@CameraDevice/Gain"), nullptr, 0);
    std::unique_ptr<QMimeData> data(model.mimeData({ gain, QModelIndex(), width }));
    QVERIFY(data);
    QVERIFY(data->hasFormat(QLatin1String(mimeType)));
    // The base class's own format travels too.
    QVERIFY(data->hasFormat(QStringLiteral("application/x-qabstractitemmodeldatalist")));
    QDataStream stream(data->data(QLatin1String(mimeType)));
    QList<qint64> addresses;
    while (!stream.atEnd()) {
        qint64 address = 0;
        stream >> address;
        addresses << address;
    }
    QCOMPARE(addresses, QList<qint64>({ addressOf(gain), addressOf(width) }));
}

void TestFeatureTreeFavorites::dropMovesWithinTheList_data()
{
    QTest::addColumn<QList<int>>("dragged");
    QTest::addColumn<int>("row");
    QTest::addColumn<QStringList>("result");
    QTest::newRow("A and B to the end") << QList<int> { 0, 1 } << 4 << QStringList { "C", "D", "B", "A" };
    QTest::newRow("C and D to the top") << QList<int> { 2, 3 } << 0 << QStringList { "C", "D", "A", "B" };
    QTest::newRow("B and D before B") << QList<int> { 1, 3 } << 1 << QStringList { "A", "B", "D", "C" };
    QTest::newRow("D to the top") << QList<int> { 3 } << 0 << QStringList { "D", "A", "B", "C" };
}

void TestFeatureTreeFavorites::dropMovesWithinTheList()
{
    QFETCH(QList<int>, dragged);
    QFETCH(int, row);
    QFETCH(QStringList, result);
    setStore({ favorite(QStringLiteral("A")), favorite(QStringLiteral("B")), favorite(QStringLiteral("C")),
        favorite(QStringLiteral("D")) });
    FeatureTreeModel model;
    ViewStandIn view(&model);
    model.rebuildFavoriteItems();
    QModelIndexList indexes;
    for (int r : qAsConst(dragged))
        indexes << model.index(r, 0, favoritesRoot(model));
    std::unique_ptr<QMimeData> data(model.mimeData(indexes));
    QVERIFY(model.dropMimeData(data.get(), Qt::MoveAction, row, 0, favoritesRoot(model)));
    QCOMPARE(storeNames(), result);
    // One drop, one rebuild.
    QCOMPARE(view.updates, 1);
    QCOMPARE(model.rowCount(favoritesRoot(model)), 4);
    QCOMPARE(model.index(0, 0, favoritesRoot(model)).data().toString(), result.first() + QStringLiteral(" shown"));
}

void TestFeatureTreeFavorites::dropAddsFromTheMainTree()
{
    setStore({ favorite(QStringLiteral("Width")), favorite(QStringLiteral("Height")) });
    FeatureTreeModel model;
    ViewStandIn view(&model);
    model.addParameterCollection(m_device->nodeMap(camera), QStringLiteral("Camera"), camera, false);
    model.rebuildFavoriteItems();
    const QModelIndex gain = model.findItemByFullName(QStringLiteral("@CameraDevice/Gain"), nullptr, 0);
    const QModelIndex exposure = model.findItemByFullName(QStringLiteral("@CameraDevice/Exposure"), nullptr, 0);
    std::unique_ptr<QMimeData> data(model.mimeData({ gain, exposure }));
    QVERIFY(model.dropMimeData(data.get(), Qt::MoveAction, 1, 0, favoritesRoot(model)));
    QCOMPARE(storeNames(),
        QStringList(
            { QStringLiteral("Width"), QStringLiteral("Gain"), QStringLiteral("Exposure"), QStringLiteral("Height") }));
    QCOMPARE(view.updates, 1);
    QCOMPARE(favoriteRows(model).at(1), QStringLiteral("Fav*CameraDevice*Gain"));
    QVERIFY(qobject_cast<FeatureTreeINodeItem*>(itemAt(model.index(1, 0, favoritesRoot(model)))));
}

void TestFeatureTreeFavorites::dropOntoTheFavoritesRootUsesTheTopLevelRowCount()
{
    setStore({ favorite(QStringLiteral("A")), favorite(QStringLiteral("B")), favorite(QStringLiteral("C")),
        favorite(QStringLiteral("D")), favorite(QStringLiteral("E")) });
    FeatureTreeModel model;
    ViewStandIn view(&model);
    model.addParameterCollection(m_device->nodeMap(camera), QStringLiteral("Camera"), camera, false);
    model.rebuildFavoriteItems();
    // Search line, favourites root, camera: the target is 3.
    QCOMPARE(model.rowCount(QModelIndex()), 3);
    const QModelIndex gain = model.findItemByFullName(QStringLiteral("@CameraDevice/Gain"), nullptr, 0);
    std::unique_ptr<QMimeData> data(model.mimeData({ gain }));
    QVERIFY(model.dropMimeData(data.get(), Qt::MoveAction, -1, -1, favoritesRoot(model)));
    QCOMPARE(storeNames(),
        QStringList({ QStringLiteral("A"), QStringLiteral("B"), QStringLiteral("C"), QStringLiteral("Gain"),
            QStringLiteral("D"), QStringLiteral("E") }));

    // A shorter list gets the new feature at its end.
    setStore({ favorite(QStringLiteral("A")) });
    const QModelIndex width = model.findItemByFullName(QStringLiteral("@CameraDevice/Width"), nullptr, 0);
    data.reset(model.mimeData({ width }));
    QVERIFY(model.dropMimeData(data.get(), Qt::MoveAction, -1, -1, favoritesRoot(model)));
    QCOMPARE(storeNames(), QStringList({ QStringLiteral("A"), QStringLiteral("Width") }));

    // A favourite moved beyond the end of the list is lost by the store.
    data.reset(model.mimeData({ model.index(0, 0, favoritesRoot(model)) }));
    QVERIFY(model.dropMimeData(data.get(), Qt::MoveAction, -1, -1, favoritesRoot(model)));
    QCOMPARE(storeNames(), QStringList({ QStringLiteral("Width") }));
}

void TestFeatureTreeFavorites::dropOfAFavoriteFeatureChangesNothing()
{
    setStore({ favorite(QStringLiteral("Width")), favorite(QStringLiteral("Gain")) });
    FeatureTreeModel model;
    ViewStandIn view(&model);
    model.addParameterCollection(m_device->nodeMap(camera), QStringLiteral("Camera"), camera, false);
    model.rebuildFavoriteItems();
    const QModelIndex gain = model.findItemByFullName(QStringLiteral("@CameraDevice/Gain"), nullptr, 0);
    std::unique_ptr<QMimeData> data(model.mimeData({ gain }));
    QVERIFY(model.dropMimeData(data.get(), Qt::MoveAction, 0, 0, favoritesRoot(model)));
    QCOMPARE(storeNames(), QStringList({ QStringLiteral("Width"), QStringLiteral("Gain") }));
    QCOMPARE(view.updates, 0);
}

void TestFeatureTreeFavorites::dropWithoutThePayloadOrIgnored()
{
    setStore({ favorite(QStringLiteral("A")), favorite(QStringLiteral("B")) });
    FeatureTreeModel model;
    model.rebuildFavoriteItems();
    std::unique_ptr<QMimeData> data(model.mimeData({ model.index(0, 0, favoritesRoot(model)) }));
    QVERIFY(model.dropMimeData(data.get(), Qt::IgnoreAction, 2, 0, favoritesRoot(model)));
    QCOMPARE(storeNames(), QStringList({ QStringLiteral("A"), QStringLiteral("B") }));
    QMimeData text;
    text.setText(QStringLiteral("Width"));
    QVERIFY(!model.dropMimeData(&text, Qt::MoveAction, 2, 0, favoritesRoot(model)));
    QCOMPARE(storeNames(), QStringList({ QStringLiteral("A"), QStringLiteral("B") }));
}

void TestFeatureTreeFavorites::forgedPayloadIsNeverDereferenced()
{
    setStore({ favorite(QStringLiteral("Width")), favorite(QStringLiteral("Gain")) });
    FeatureTreeModel model;
    ViewStandIn view(&model);
    model.addParameterCollection(m_device->nodeMap(camera), QStringLiteral("Camera"), camera, false);
    model.rebuildFavoriteItems();
    const QSet<qint64> built = builtAddresses(model);

    // Garbage numbers, addresses near real items, an item built outside the
    // tree, a stack address, and numbers that are no address at all.
    QList<qint64> forged { 1, -1, 0, 0x10, std::numeric_limits<qint64>::max(), std::numeric_limits<qint64>::min() };
    const qint64 real = addressOf(model.findItemByFullName(QStringLiteral("@CameraDevice/Height"), nullptr, 0));
    forged << real + 8 << real - 16 << real + 1;
    FeatureTreeINodeItem outside(m_device->nodeMap(camera),
        m_device->nodeMap(camera)->getParameter(QStringLiteral("@CameraDevice/Offset")), &model,
        QStringLiteral("@CameraDevice/Offset"), model.rootItem(), false);
    forged << static_cast<qint64>(reinterpret_cast<quintptr>(&outside));
    int onTheStack = 0;
    forged << static_cast<qint64>(reinterpret_cast<quintptr>(&onTheStack));
    QRandomGenerator random(20240611);
    for (int i = 0; i < 200; ++i) {
        const qint64 candidate = static_cast<qint64>(random.generate64());
        if (!built.contains(candidate))
            forged << candidate;
    }
    for (qint64 address : qAsConst(forged))
        QVERIFY(address == 0 || !built.contains(address));

    std::unique_ptr<QMimeData> data(payload(forged));
    QVERIFY(model.dropMimeData(data.get(), Qt::MoveAction, 0, 0, favoritesRoot(model)));
    QVERIFY(model.dropMimeData(data.get(), Qt::MoveAction, -1, 0, favoritesRoot(model)));
    QCOMPARE(storeNames(), QStringList({ QStringLiteral("Width"), QStringLiteral("Gain") }));
    QCOMPARE(view.updates, 0);
}

void TestFeatureTreeFavorites::staleDragAfterRebuildIsIgnored()
{
    setStore(
        { favorite(QStringLiteral("Width")), favorite(QStringLiteral("Gain")), favorite(QStringLiteral("Height")) });
    FeatureTreeModel model;
    ViewStandIn view(&model);
    model.addParameterCollection(m_device->nodeMap(camera), QStringLiteral("Camera"), camera, false);
    model.rebuildFavoriteItems();
    const QModelIndex root = favoritesRoot(model);
    // A drag of the last two favourite rows, made before the branch is rebuilt.
    std::unique_ptr<QMimeData> data(model.mimeData({ model.index(1, 0, root), model.index(2, 0, root) }));
    QList<qint64> stale { addressOf(model.index(1, 0, root)), addressOf(model.index(2, 0, root)) };

    model.rebuildFavoriteItems(); // every favourite row is freed and made anew
    const QSet<qint64> built = builtAddresses(model);
    bool reused = false;
    for (qint64 address : qAsConst(stale))
        reused = reused || built.contains(address);

    QVERIFY(model.dropMimeData(data.get(), Qt::MoveAction, 0, 0, favoritesRoot(model)));
    if (reused) {
        // The allocator gave a freed address to a new row of this tree: that
        // row is a real item now, and the drop may use it, but nothing is lost.
        QStringList names = storeNames();
        names.sort();
        QCOMPARE(names, QStringList({ QStringLiteral("Gain"), QStringLiteral("Height"), QStringLiteral("Width") }));
    } else {
        QCOMPARE(
            storeNames(), QStringList({ QStringLiteral("Width"), QStringLiteral("Gain"), QStringLiteral("Height") }));
        QCOMPARE(view.updates, 0);
    }
}

void TestFeatureTreeFavorites::staleDragAfterClearIsIgnored()
{
    setStore({ favorite(QStringLiteral("Width")) });
    FeatureTreeModel model;
    ViewStandIn view(&model);
    model.addParameterCollection(m_device->nodeMap(camera), QStringLiteral("Camera"), camera, false);
    model.rebuildFavoriteItems();
    const QModelIndex gain = model.findItemByFullName(QStringLiteral("@CameraDevice/Gain"), nullptr, 0);
    const QModelIndex favoriteRow = model.index(0, 0, favoritesRoot(model));
    std::unique_ptr<QMimeData> data(model.mimeData({ gain, favoriteRow }));

    model.clear();
    QCOMPARE(model.rowCount(QModelIndex()), 0);
    QVERIFY(model.dropMimeData(data.get(), Qt::MoveAction, 0, 0, QModelIndex()));
    QCOMPARE(storeNames(), QStringList({ QStringLiteral("Width") }));
    QCOMPARE(view.updates, 0);

    // The branch comes back on the next rebuild, with new items.
    model.rebuildFavoriteItems();
    QCOMPARE(model.rowCount(QModelIndex()), 2);
    QCOMPARE(model.rowCount(favoritesRoot(model)), 1);
}

void TestFeatureTreeFavorites::itemOfAnotherModelIsIgnored()
{
    setStore({ favorite(QStringLiteral("Width")) });
    FeatureTreeModel model;
    ViewStandIn view(&model);
    model.addParameterCollection(m_device->nodeMap(camera), QStringLiteral("Camera"), camera, false);
    model.rebuildFavoriteItems();

    FeatureTreeModel other;
    other.addParameterCollection(m_device->nodeMap(camera), QStringLiteral("Camera"), camera, false);
    other.rebuildFavoriteItems();
    const QModelIndex otherGain = other.findItemByFullName(QStringLiteral("@CameraDevice/Gain"), nullptr, 0);
    const QModelIndex otherFavorite = other.index(0, 0, other.GetFavoritesRootIndex());
    QVERIFY(otherGain.isValid());
    std::unique_ptr<QMimeData> data(other.mimeData({ otherGain, otherFavorite }));

    // Real, live items, but not of this tree: the drop doesn't look at them.
    QVERIFY(model.dropMimeData(data.get(), Qt::MoveAction, 0, 0, favoritesRoot(model)));
    QCOMPARE(storeNames(), QStringList({ QStringLiteral("Width") }));
    QCOMPARE(view.updates, 0);
    // The other model takes its own payload.
    QVERIFY(other.dropMimeData(data.get(), Qt::MoveAction, 0, 0, other.GetFavoritesRootIndex()));
    QCOMPARE(storeNames(), QStringList({ QStringLiteral("Gain"), QStringLiteral("Width") }));
}

void TestFeatureTreeFavorites::truncatedPayloadStopsAtTheCut()
{
    setStore({ favorite(QStringLiteral("Width")) });
    FeatureTreeModel model;
    ViewStandIn view(&model);
    model.addParameterCollection(m_device->nodeMap(camera), QStringLiteral("Camera"), camera, false);
    model.rebuildFavoriteItems();
    const QModelIndex gain = model.findItemByFullName(QStringLiteral("@CameraDevice/Gain"), nullptr, 0);
    const qint64 height = addressOf(model.findItemByFullName(QStringLiteral("@CameraDevice/Height"), nullptr, 0));

    // A whole entry, then half of another: the half is never completed into an address.
    QByteArray half;
    {
        QDataStream stream(&half, QIODevice::WriteOnly);
        stream << height;
    }
    std::unique_ptr<QMimeData> data(payload({ addressOf(gain) }, half.left(4)));
    QVERIFY(model.dropMimeData(data.get(), Qt::MoveAction, 0, 0, favoritesRoot(model)));
    QCOMPARE(storeNames(), QStringList({ QStringLiteral("Gain"), QStringLiteral("Width") }));

    // Less than one entry, and nothing at all.
    data.reset(payload({}, half.left(7)));
    QVERIFY(model.dropMimeData(data.get(), Qt::MoveAction, 0, 0, favoritesRoot(model)));
    data.reset(payload({}));
    QVERIFY(model.dropMimeData(data.get(), Qt::MoveAction, 0, 0, favoritesRoot(model)));
    QCOMPARE(storeNames(), QStringList({ QStringLiteral("Gain"), QStringLiteral("Width") }));
}

void TestFeatureTreeFavorites::modelTesterWhileRebuildingDroppingAndClearing()
{
    setStore(
        { favorite(QStringLiteral("Width")), favorite(QStringLiteral("Missing")), favorite(QStringLiteral("Gain")) });
    FeatureTreeModel model;
    ModelCheck check(
        &model, { Excuse::RootDataChanged, Excuse::SearchHelpRow, Excuse::ChildrenInEveryColumn, Excuse::RootFlags });
    ViewStandIn view(&model);
    model.rebuildFavoriteItems();
    VERIFY_MODEL_CHECK(check);
    model.addParameterCollection(m_device->nodeMap(camera), QStringLiteral("Camera"), camera, false);
    VERIFY_MODEL_CHECK(check);
    model.addParameterCollection(m_device->nodeMap(grabber), QStringLiteral("Grabber"), grabber, false);
    VERIFY_MODEL_CHECK(check);

    // Drops move rows and add features; the views rebuild.
    const QModelIndex root = favoritesRoot(model);
    std::unique_ptr<QMimeData> data(model.mimeData({ model.index(0, 0, root) }));
    QVERIFY(model.dropMimeData(data.get(), Qt::MoveAction, 3, 0, root));
    data.reset(model.mimeData({ model.findItemByFullName(QStringLiteral("@StreamGrabber0/Width"), nullptr, 0) }));
    QVERIFY(model.dropMimeData(data.get(), Qt::MoveAction, 0, 0, favoritesRoot(model)));
    QCOMPARE(view.updates, 2);
    VERIFY_MODEL_CHECK(check);

    store().setViewAllFavorites(false);
    QVERIFY(model.RemoveFavorite(model.index(0, 0, favoritesRoot(model))));
    setStore({});
    VERIFY_MODEL_CHECK(check);

    model.clear();
    model.rebuildFavoriteItems();
    model.addParameterCollection(m_device->nodeMap(camera), QStringLiteral("Again"), camera, false);
    QCOMPARE(model.rowCount(QModelIndex()), 3);
    VERIFY_MODEL_CHECK(check);
}

void TestFeatureTreeFavorites::favoritesSurviveARestart()
{
    // First run: the first view of the process loads from "Favorites" (empty now).
    store().InitOnce(QStringLiteral("Favorites"));
    QCOMPARE(store().getSettingsPath(), QStringLiteral("Favorites"));
    QCOMPARE(store().countNodes(), 0);
    store().setViewAllFavorites(true);
    {
        FeatureTreeModel model;
        model.addParameterCollection(m_device->nodeMap(camera), QStringLiteral("Camera"), camera, false);
        model.addParameterCollection(m_device->nodeMap(grabber), QStringLiteral("Grabber"), grabber, false);
        model.rebuildFavoriteItems();
        const auto add = [&model](const QString& fullName) {
            const QModelIndex index = model.findItemByFullName(fullName, nullptr, 0);
            QVERIFY(model.CanAddAsFavorite(index));
            QVERIFY(model.AddFavorite(qobject_cast<FeatureTreeINodeItem*>(itemAt(index))->node(), 99));
        };
        add(QStringLiteral("@CameraDevice/Gain"));
        add(QStringLiteral("@StreamGrabber0/Width"));
        add(QStringLiteral("@CameraDevice/Width"));
        QVERIFY(store().appendNode(favorite(QStringLiteral("NotOnThisCamera"))));
        // Nothing is written while the model lives.
        QVERIFY(!QSettings().contains(QStringLiteral("Favorites/NumberOfEntries")));
    }
    {
        QSettings settings;
        settings.beginGroup(QStringLiteral("Favorites"));
        QCOMPARE(settings.value(QStringLiteral("Version")).toInt(), 3);
        QCOMPARE(settings.value(QStringLiteral("NumberOfEntries")).toInt(), 4);
        QCOMPARE(settings.value(QStringLiteral("0")).toString(), QStringLiteral("Gain*Gain*@CameraDevice"));
        QCOMPARE(settings.value(QStringLiteral("1")).toString(), QStringLiteral("Width*Buffer Width*@StreamGrabber0"));
        QCOMPARE(settings.value(QStringLiteral("2")).toString(), QStringLiteral("Width*Image Width*@CameraDevice"));
    }

    // Second run: an empty store loads what the first saved.
    setStore({});
    QVERIFY(store().LoadFavorites(QStringLiteral("Favorites")));
    QCOMPARE(storeNames(),
        QStringList({ QStringLiteral("Gain"), QStringLiteral("Width"), QStringLiteral("Width"),
            QStringLiteral("NotOnThisCamera") }));
    auto camera2 = makeDevice(favoritesCamera);
    QVERIFY(camera2);
    FeatureTreeModel model;
    model.rebuildFavoriteItems();
    model.addParameterCollection(camera2->nodeMap(camera), QStringLiteral("Camera"), camera, false);
    model.addParameterCollection(camera2->nodeMap(grabber), QStringLiteral("Grabber"), grabber, false);
    const QModelIndex root = favoritesRoot(model);
    QCOMPARE(favoriteRows(model),
        QStringList({ QStringLiteral("Fav*CameraDevice*Gain"), QStringLiteral("Fav*StreamGrabber0*Width"),
            QStringLiteral("Fav*CameraDevice*Width"), QStringLiteral("Fav*CameraDevice*NotOnThisCamera") }));
    for (int row = 0; row < 3; ++row)
        QVERIFY(qobject_cast<FeatureTreeINodeItem*>(itemAt(model.index(row, 0, root))));
    QCOMPARE(model.index(1, 1, root).data().toString(), QStringLiteral("64"));
    QCOMPARE(itemAt(root)->GetToolTip(), QStringLiteral("4 Favorites (1 is unavailable for the current camera)"));
    store().setSettingsPath(QString());
}

QTEST_MAIN(TestFeatureTreeFavorites)
#include "tst_featuretreefavorites.moc"
