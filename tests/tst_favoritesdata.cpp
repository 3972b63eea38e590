#include "featuretree/favoritesdata.h"

#include <QtTest>

#include <QFile>
#include <QSettings>
#include <QStandardPaths>
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
#include <QTextCodec>
#endif

#include <limits>

#include <sys/stat.h>

using Item = FavoritesData::FavoritesDataItem;

namespace {

const char* const storeGroup = "Favorites";
const char* const otherGroup = "FavoritesElsewhere";

Item fav(const QString& name, const QString& nodeMapName = QStringLiteral("@CameraDevice"),
    const QString& displayName = QString())
{
    return Item { name, displayName.isNull() ? name + QStringLiteral("Shown") : displayName, nodeMapName };
}

QStringList names(const FavoritesData& store)
{
    QStringList result;
    for (int i = 0; i < store.countNodes(); ++i)
        result << store.nodeAt(i)->name;
    return result;
}

void fill(FavoritesData& store, const QStringList& featureNames)
{
    for (const QString& name : featureNames)
        QVERIFY(store.appendNode(fav(name)));
}

// Writes a group by hand, as a file from another run or a damaged one would hold it.
void writeGroup(const QString& group, const QVariantMap& values)
{
    QSettings settings;
    settings.beginGroup(group);
    for (auto it = values.cbegin(); it != values.cend(); ++it)
        settings.setValue(it.key(), it.value());
    settings.endGroup();
    settings.sync();
}

QStringList sortedChildKeys(const QString& group)
{
    QSettings settings;
    settings.beginGroup(group);
    QStringList keys = settings.childKeys();
    keys.sort();
    return keys;
}

QVariant storedValue(const QString& group, const QString& key)
{
    QSettings settings;
    settings.beginGroup(group);
    return settings.value(key);
}

// The lines of one section of the settings file, as written to disk.
QStringList fileSection(const QString& group)
{
    QSettings settings;
    settings.sync();
    QFile file(settings.fileName());
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
        return {};
    QStringList lines;
    bool inside = false;
    const QString header = QLatin1Char('[') + group + QLatin1Char(']');
    for (const QString& line : QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'))) {
        if (line.startsWith(QLatin1Char('[')))
            inside = line == header;
        else if (inside && !line.isEmpty())
            lines << line;
    }
    lines.sort();
    return lines;
}

} // namespace

// A view as the store expects it: the two slots, counting what arrives.
class TestView : public QObject
{
    Q_OBJECT

public:
    int updatedCount = 0;
    QList<bool> expandedValues;

public slots:
    void onFavoriteDataUpdated() { ++updatedCount; }
    void onFavoriteDataExpanded(bool expanded) { expandedValues << expanded; }
};

class ViewWithoutSlots : public QObject
{
    Q_OBJECT
};

class ViewWithUpdatedOnly : public QObject
{
    Q_OBJECT

public:
    int updatedCount = 0;

public slots:
    void onFavoriteDataUpdated() { ++updatedCount; }
};

class ViewWithExpandedOnly : public QObject
{
    Q_OBJECT

public:
    QList<bool> expandedValues;

public slots:
    void onFavoriteDataExpanded(bool expanded) { expandedValues << expanded; }
};

class TestFavoritesData : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanupTestCase();

    // start values and accessors
    void startValues();
    void sameFavoriteIgnoresDisplayName();
    void isValidIndexAndNodeAt();
    void writableNodeAtChangesTheList();

    // changing the list
    void insertNode_data();
    void insertNode();
    void insertNodeRefusesEmptyName();
    void insertNodeAllowsEmptyNodeMapAndDisplayName();
    void insertNodeRefusesDuplicate();
    void sameNameInTwoNodeMapsIsTwoFavorites();
    void appendNodeAddsAtTheEndWithTheSameChecks();
    void removeNode_data();
    void removeNode();
    void removeNodeCopiesTheItem();
    void moveNode_data();
    void moveNode();

    // flags and signals
    void viewAllChangesAreAnnounced();
    void expandedIsEmittedAtOnceAndNeverDeferred();
    void deferralYieldsOneSignalForManyChanges();
    void deferralWithoutChangeYieldsNothing();
    void deferralFlagIsStillSetDuringTheDeferredEmission();
    void changeInsideTheDeferredEmissionIsNotAnnounced();
    void endingADeferralThatIsNotActiveDoesNothing();
    void emitDataUpdatedSignalHonoursTheDeferral();

    // views
    void registerConnectsBothSlots();
    void registerTwiceIsRefused();
    void registerRefusesNull();
    void registerRefusesViewWithoutSlots();
    void registerStopsAtTheFirstFailure();
    void registerKeepsTheFirstConnectionWhenTheSecondFails();
    void deregisterDisconnectsAndSaves();
    void deregisterLeavesOtherViewsConnected();
    void deregisterUnknownViewFailsButStillSaves();
    void deregisterWithoutSettingsPathWritesNothing();

    // loading
    void loadWithoutSettingsGivesTheDefaults();
    void loadWithEmptyGroupTouchesNothing();
    void loadDoesNotEmitExpanded();
    void loadReadsEntriesInOrder();
    void loadReadsFlagsAsIntegersOrBooleans_data();
    void loadReadsFlagsAsIntegersOrBooleans();
    void loadIgnoresTheVersion_data();
    void loadIgnoresTheVersion();
    void loadEntries_data();
    void loadEntries();
    void loadPassesOverMissingKeys();
    void loadWithoutNumberOfEntriesReadsNoEntries();
    void loadWithHugeNumberOfEntriesIsQuick();
    void loadDropsDuplicates();
    void loadDoesNotClearTheList();
    void loadAnnouncesEachEntryAndItself();
    void loadCutsTheNameAtNul();
    void loadPassesTheNameThroughTheLocalEncoding();
    void initOnceLoadsOnlyOnce();
    void setSettingsPathLoadsNothing();

    // saving
    void saveWithEmptyGroupWritesNothing();
    void saveWritesTheExactLayout();
    void saveWritesFlagsAsIntegers();
    void saveEmitsNothing();
    void saveRemovesTheTailOfAShortenedList();
    void saveOfAnEmptyListRemovesAllEntries();
    void saveKeepsPassedOverPositions();
    void saveOfWhatIsStoredLeavesTheFileAlone_data();
    void saveOfWhatIsStoredLeavesTheFileAlone();
    void emptyDisplayNameDoesNotSurviveARestart();
    void starInANameDoesNotSurviveARestart_data();
    void starInANameDoesNotSurviveARestart();
    void favoritesSurviveARestart();
};

void TestFavoritesData::initTestCase()
{
    QStandardPaths::setTestModeEnabled(true);
    QCoreApplication::setOrganizationName(QStringLiteral("ZarvexTests"));
    QCoreApplication::setApplicationName(QStringLiteral("tst_favoritesdata"));
    QSettings::setDefaultFormat(QSettings::IniFormat);

    QSettings settings;
    QCOMPARE(settings.format(), QSettings::IniFormat);
    QVERIFY2(settings.isWritable(), qPrintable(settings.fileName()));
    QVERIFY2(settings.fileName().contains(QLatin1String("tst_favoritesdata")), qPrintable(settings.fileName()));
}

void TestFavoritesData::init()
{
    // The organisation and application names belong to this test alone, so
    // everything under them is ours to throw away.
    QSettings settings;
    settings.remove(QLatin1String(storeGroup));
    settings.remove(QLatin1String(otherGroup));
    settings.clear();
    settings.sync();
    QVERIFY(settings.allKeys().isEmpty());
}

void TestFavoritesData::cleanupTestCase()
{
    QSettings settings;
    settings.clear();
    settings.sync();
    QFile::remove(settings.fileName());
}

// ---- start values and accessors -------------------------------------------

void TestFavoritesData::startValues()
{
    const FavoritesData store;
    QCOMPARE(store.countNodes(), 0);
    QCOMPARE(store.getViewAllFavorites(), true);
    QCOMPARE(store.getExpanded(), false);
    QCOMPARE(store.getDeferDataUpdatedSignals(), false);
    QVERIFY(store.getSettingsPath().isEmpty());
    QVERIFY(!store.isValidIndex(0));
    QVERIFY(!store.nodeAt(0));

    QObject owner;
    auto* owned = new FavoritesData(&owner);
    QCOMPARE(owned->parent(), &owner);
}

void TestFavoritesData::sameFavoriteIgnoresDisplayName()
{
    FavoritesData store;
    QVERIFY(store.appendNode(fav("Width", "@CameraDevice", "Width")));
    QVERIFY(store.appendNode(fav("Height", "@CameraDevice", "Height")));
    QCOMPARE(store.indexOfNode(fav("Height", "@CameraDevice", "Something else")), 1);
    QCOMPARE(store.indexOfNode(fav("Height", "@CameraDevice", "")), 1);
    QCOMPARE(store.indexOfNode(fav("Height", "@StreamGrabber0", "Height")), -1);
    QCOMPARE(store.indexOfNode(fav("height", "@CameraDevice", "Height")), -1); // exact comparison
    QCOMPARE(store.indexOfNode(fav("Height", "@cameradevice", "Height")), -1);
    QCOMPARE(store.indexOfNode(fav("Gain")), -1);
}

void TestFavoritesData::isValidIndexAndNodeAt()
{
    FavoritesData store;
    fill(store, { "A", "B", "C" });
    const FavoritesData& constStore = store;

    QVERIFY(!store.isValidIndex(-1));
    QVERIFY(store.isValidIndex(0));
    QVERIFY(store.isValidIndex(2));
    QVERIFY(!store.isValidIndex(3));
    QVERIFY(!store.isValidIndex(std::numeric_limits<int>::min()));

    QVERIFY(!constStore.nodeAt(-1));
    QVERIFY(!constStore.nodeAt(3));
    QVERIFY(!store.nodeAt(-1));
    QVERIFY(!store.nodeAt(3));
    QCOMPARE(constStore.nodeAt(1)->name, QStringLiteral("B"));
    QCOMPARE(constStore.nodeAt(1)->displayName, QStringLiteral("BShown"));
    QCOMPARE(constStore.nodeAt(1)->nodeMapName, QStringLiteral("@CameraDevice"));
    QCOMPARE(store.nodeAt(2)->name, QStringLiteral("C"));
}

void TestFavoritesData::writableNodeAtChangesTheList()
{
    FavoritesData store;
    fill(store, { "A", "B" });
    QSignalSpy updated(&store, SIGNAL(dataUpdated()));

    FavoritesData::FavoritesDataItem* item = store.nodeAt(1);
    QVERIFY(item);
    item->displayName = QStringLiteral("Renamed");
    QCOMPARE(static_cast<const FavoritesData&>(store).nodeAt(1)->displayName, QStringLiteral("Renamed"));
    QCOMPARE(updated.count(), 0); // a write through the pointer is not an operation of the store
}

// ---- changing the list ---------------------------------------------------------

void TestFavoritesData::insertNode_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<bool>("result");
    QTest::addColumn<QStringList>("expected");

    const QStringList unchanged { "A", "B", "C" };
    QTest::newRow("0 puts it first") << 0 << true << QStringList { "X", "A", "B", "C" };
    QTest::newRow("1") << 1 << true << QStringList { "A", "X", "B", "C" };
    QTest::newRow("2") << 2 << true << QStringList { "A", "B", "X", "C" };
    QTest::newRow("3, the length, appends") << 3 << true << QStringList { "A", "B", "C", "X" };
    QTest::newRow("-1 goes before the last") << -1 << true << QStringList { "A", "B", "X", "C" };
    QTest::newRow("-2") << -2 << true << QStringList { "A", "X", "B", "C" };
    QTest::newRow("-3 puts it first") << -3 << true << QStringList { "X", "A", "B", "C" };
    QTest::newRow("4 is beyond the end") << 4 << false << unchanged;
    QTest::newRow("-4 is before the start") << -4 << false << unchanged;
    QTest::newRow("int max") << std::numeric_limits<int>::max() << false << unchanged;
    QTest::newRow("int min") << std::numeric_limits<int>::min() << false << unchanged;
}

void TestFavoritesData::insertNode()
{
    QFETCH(int, index);
    QFETCH(bool, result);
    QFETCH(QStringList, expected);

    FavoritesData store;
    fill(store, { "A", "B", "C" });
    QSignalSpy updated(&store, SIGNAL(dataUpdated()));

    QCOMPARE(store.insertNode(index, fav("X")), result);
    QCOMPARE(names(store), expected);
    QCOMPARE(updated.count(), result ? 1 : 0);
}

void TestFavoritesData::insertNodeRefusesEmptyName()
{
    FavoritesData store;
    QSignalSpy updated(&store, SIGNAL(dataUpdated()));
    QVERIFY(!store.insertNode(0, Item { QString(), "Shown", "@CameraDevice" }));
    QVERIFY(!store.insertNode(0, Item { QLatin1String(""), "Shown", "@CameraDevice" }));
    QVERIFY(!store.appendNode(Item { QString(), "Shown", "@CameraDevice" }));
    QCOMPARE(store.countNodes(), 0);
    QCOMPARE(updated.count(), 0);
}

void TestFavoritesData::insertNodeAllowsEmptyNodeMapAndDisplayName()
{
    FavoritesData store;
    QVERIFY(store.insertNode(0, Item { "A", QString(), "@CameraDevice" }));
    QVERIFY(store.insertNode(1, Item { "B", "Shown", QString() }));
    QVERIFY(store.insertNode(2, Item { "C", QString(), QString() }));
    QCOMPARE(names(store), QStringList({ "A", "B", "C" }));
}

void TestFavoritesData::insertNodeRefusesDuplicate()
{
    FavoritesData store;
    fill(store, { "A", "B" });
    QSignalSpy updated(&store, SIGNAL(dataUpdated()));

    QVERIFY(!store.insertNode(0, fav("B")));
    QVERIFY(!store.insertNode(2, fav("A", "@CameraDevice", "Another display name")));
    QCOMPARE(names(store), QStringList({ "A", "B" }));
    QCOMPARE(store.nodeAt(0)->displayName, QStringLiteral("AShown"));
    QCOMPARE(updated.count(), 0);
}

void TestFavoritesData::sameNameInTwoNodeMapsIsTwoFavorites()
{
    FavoritesData store;
    QVERIFY(store.appendNode(fav("Width", "@CameraDevice", "Width")));
    QVERIFY(store.appendNode(fav("Width", "@StreamGrabber0", "Width")));
    QCOMPARE(store.countNodes(), 2);
    QCOMPARE(store.indexOfNode(fav("Width", "@CameraDevice")), 0);
    QCOMPARE(store.indexOfNode(fav("Width", "@StreamGrabber0")), 1);

    QVERIFY(!store.appendNode(fav("Width", "@CameraDevice", "Image Width")));
    QVERIFY(!store.insertNode(0, fav("Width", "@StreamGrabber0", "Image Width")));
    QCOMPARE(store.countNodes(), 2);
}

void TestFavoritesData::appendNodeAddsAtTheEndWithTheSameChecks()
{
    FavoritesData store;
    QSignalSpy updated(&store, SIGNAL(dataUpdated()));
    QVERIFY(store.appendNode(fav("A")));
    QVERIFY(store.appendNode(fav("B")));
    QCOMPARE(names(store), QStringList({ "A", "B" }));
    QCOMPARE(updated.count(), 2);

    QVERIFY(!store.appendNode(fav("A", "@CameraDevice", "Other")));
    QVERIFY(!store.appendNode(Item { QString(), "Shown", "@CameraDevice" }));
    QCOMPARE(names(store), QStringList({ "A", "B" }));
    QCOMPARE(updated.count(), 2);
}

void TestFavoritesData::removeNode_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<bool>("result");
    QTest::addColumn<QStringList>("expected");

    QTest::newRow("first") << 0 << true << QStringList { "B", "C" };
    QTest::newRow("middle") << 1 << true << QStringList { "A", "C" };
    QTest::newRow("last") << 2 << true << QStringList { "A", "B" };
    QTest::newRow("length") << 3 << false << QStringList { "A", "B", "C" };
    QTest::newRow("-1 does not count from the end") << -1 << false << QStringList { "A", "B", "C" };
}

void TestFavoritesData::removeNode()
{
    QFETCH(int, index);
    QFETCH(bool, result);
    QFETCH(QStringList, expected);

    FavoritesData store;
    fill(store, { "A", "B", "C" });
    QSignalSpy updated(&store, SIGNAL(dataUpdated()));

    QCOMPARE(store.removeNode(index, nullptr), result);
    QCOMPARE(names(store), expected);
    QCOMPARE(updated.count(), result ? 1 : 0);
}

void TestFavoritesData::removeNodeCopiesTheItem()
{
    FavoritesData store;
    QVERIFY(store.appendNode(Item { "Gain", "Gain (dB)", "@CameraDevice" }));
    QVERIFY(store.appendNode(fav("B")));

    Item removed { "untouched", "untouched", "untouched" };
    QVERIFY(!store.removeNode(2, &removed));
    QCOMPARE(removed.name, QStringLiteral("untouched"));

    QVERIFY(store.removeNode(0, &removed));
    QCOMPARE(removed.name, QStringLiteral("Gain"));
    QCOMPARE(removed.displayName, QStringLiteral("Gain (dB)"));
    QCOMPARE(removed.nodeMapName, QStringLiteral("@CameraDevice"));
    QCOMPARE(names(store), QStringList({ "B" }));
}

void TestFavoritesData::moveNode_data()
{
    QTest::addColumn<int>("from");
    QTest::addColumn<int>("to");
    QTest::addColumn<bool>("result");
    QTest::addColumn<QStringList>("expected");
    QTest::addColumn<int>("signalCount");

    const QStringList unchanged { "A", "B", "C" };
    QTest::newRow("0 before 2") << 0 << 2 << true << QStringList { "B", "A", "C" } << 1;
    QTest::newRow("2 before 0") << 2 << 0 << true << QStringList { "C", "A", "B" } << 1;
    QTest::newRow("0 before 3, to the end") << 0 << 3 << true << QStringList { "B", "C", "A" } << 1;
    QTest::newRow("1 before 3") << 1 << 3 << true << QStringList { "A", "C", "B" } << 1;
    QTest::newRow("1 before 0") << 1 << 0 << true << QStringList { "B", "A", "C" } << 1;
    QTest::newRow("2 before 1") << 2 << 1 << true << QStringList { "A", "C", "B" } << 1;
    QTest::newRow("equal from and to are announced") << 1 << 1 << true << unchanged << 1;
    QTest::newRow("before the next is its own place") << 0 << 1 << true << unchanged << 1;
    QTest::newRow("0 before 5 loses the item") << 0 << 5 << false << QStringList { "B", "C" } << 0;
    QTest::newRow("2 before 4 loses the item") << 2 << 4 << false << QStringList { "A", "B" } << 0;
    QTest::newRow("from the length") << 3 << 0 << false << unchanged << 0;
    QTest::newRow("negative from") << -1 << 0 << false << unchanged << 0;
    QTest::newRow("negative to counts from the end of the shortened list")
        << 2 << -1 << true << QStringList { "A", "C", "B" } << 1;
    QTest::newRow("negative to before the start loses the item") << 0 << -3 << false << QStringList { "B", "C" } << 0;
}

void TestFavoritesData::moveNode()
{
    QFETCH(int, from);
    QFETCH(int, to);
    QFETCH(bool, result);
    QFETCH(QStringList, expected);
    QFETCH(int, signalCount);

    FavoritesData store;
    fill(store, { "A", "B", "C" });
    QSignalSpy updated(&store, SIGNAL(dataUpdated()));

    QCOMPARE(store.moveNode(from, to), result);
    QCOMPARE(names(store), expected);
    QCOMPARE(updated.count(), signalCount);
}

// ---- flags and signals ---------------------------------------------------------

void TestFavoritesData::viewAllChangesAreAnnounced()
{
    FavoritesData store;
    QSignalSpy updated(&store, SIGNAL(dataUpdated()));
    QSignalSpy expanded(&store, SIGNAL(expanded(bool)));

    store.setViewAllFavorites(true); // unchanged
    QCOMPARE(updated.count(), 0);

    store.setViewAllFavorites(false);
    QCOMPARE(store.getViewAllFavorites(), false);
    QCOMPARE(updated.count(), 1);
    store.setViewAllFavorites(false);
    QCOMPARE(updated.count(), 1);

    store.setDeferDataUpdatedSignals(true);
    store.setViewAllFavorites(true);
    QCOMPARE(store.getViewAllFavorites(), true);
    QCOMPARE(updated.count(), 1);
    store.setDeferDataUpdatedSignals(false);
    QCOMPARE(updated.count(), 2);
    QCOMPARE(expanded.count(), 0);
}

void TestFavoritesData::expandedIsEmittedAtOnceAndNeverDeferred()
{
    FavoritesData store;
    QSignalSpy updated(&store, SIGNAL(dataUpdated()));
    QSignalSpy expanded(&store, SIGNAL(expanded(bool)));

    store.setExpanded(false); // unchanged
    QCOMPARE(expanded.count(), 0);

    store.setExpanded(true);
    QCOMPARE(store.getExpanded(), true);
    QCOMPARE(expanded.count(), 1);
    QCOMPARE(expanded.at(0).at(0).toBool(), true);

    store.setDeferDataUpdatedSignals(true);
    store.setExpanded(false);
    QCOMPARE(expanded.count(), 2);
    QCOMPARE(expanded.at(1).at(0).toBool(), false);
    store.setDeferDataUpdatedSignals(false);

    QCOMPARE(expanded.count(), 2);
    QCOMPARE(updated.count(), 0); // the expansion is no change of the list
}

void TestFavoritesData::deferralYieldsOneSignalForManyChanges()
{
    FavoritesData store;
    QSignalSpy updated(&store, SIGNAL(dataUpdated()));

    store.setDeferDataUpdatedSignals(true);
    QVERIFY(store.getDeferDataUpdatedSignals());
    QVERIFY(store.insertNode(0, fav("A")));
    QVERIFY(store.insertNode(0, fav("B")));
    QVERIFY(store.insertNode(-1, fav("C")));
    QVERIFY(store.insertNode(3, fav("D")));
    QCOMPARE(updated.count(), 0);

    store.setDeferDataUpdatedSignals(false);
    QCOMPARE(updated.count(), 1);
    QVERIFY(!store.getDeferDataUpdatedSignals());
    QCOMPARE(names(store), QStringList({ "B", "C", "A", "D" }));

    // A further change is announced at once again.
    QVERIFY(store.removeNode(0, nullptr));
    QCOMPARE(updated.count(), 2);
}

void TestFavoritesData::deferralWithoutChangeYieldsNothing()
{
    FavoritesData store;
    fill(store, { "A" });
    QSignalSpy updated(&store, SIGNAL(dataUpdated()));

    store.setDeferDataUpdatedSignals(true);
    QVERIFY(!store.insertNode(0, fav("A"))); // refused: no change
    QVERIFY(!store.removeNode(5, nullptr));
    store.setViewAllFavorites(true); // unchanged
    store.setDeferDataUpdatedSignals(false);
    QCOMPARE(updated.count(), 0);
    QVERIFY(!store.getDeferDataUpdatedSignals());
}

void TestFavoritesData::deferralFlagIsStillSetDuringTheDeferredEmission()
{
    FavoritesData store;
    QList<bool> flagSeen;
    connect(&store, &FavoritesData::dataUpdated, this,
        [&store, &flagSeen] { flagSeen << store.getDeferDataUpdatedSignals(); });

    QVERIFY(store.appendNode(fav("A")));
    QCOMPARE(flagSeen, QList<bool>({ false })); // an ordinary emission

    store.setDeferDataUpdatedSignals(true);
    QVERIFY(store.moveNode(0, 0));
    store.setDeferDataUpdatedSignals(false);
    QCOMPARE(flagSeen, QList<bool>({ false, true }));
    QVERIFY(!store.getDeferDataUpdatedSignals());
}

void TestFavoritesData::changeInsideTheDeferredEmissionIsNotAnnounced()
{
    // A slot that changes the list while the held-back signal goes out is
    // still inside the deferral, and what it marks pending is cleared after
    // the emission: no second emission starts, now or later.
    FavoritesData store;
    QSignalSpy updated(&store, SIGNAL(dataUpdated()));
    bool changeMade = false;
    connect(&store, &FavoritesData::dataUpdated, this, [&store, &changeMade] {
        if (!changeMade) {
            changeMade = true;
            QVERIFY(store.appendNode(fav("FromSlot")));
        }
    });

    store.setDeferDataUpdatedSignals(true);
    QVERIFY(store.appendNode(fav("A")));
    store.setDeferDataUpdatedSignals(false);
    QVERIFY(changeMade);
    QCOMPARE(names(store), QStringList({ "A", "FromSlot" }));
    QCOMPARE(updated.count(), 1);

    store.setDeferDataUpdatedSignals(true);
    store.setDeferDataUpdatedSignals(false);
    QCOMPARE(updated.count(), 1); // nothing left pending
}

void TestFavoritesData::endingADeferralThatIsNotActiveDoesNothing()
{
    FavoritesData store;
    QSignalSpy updated(&store, SIGNAL(dataUpdated()));
    store.setDeferDataUpdatedSignals(false);
    QCOMPARE(updated.count(), 0);
    QVERIFY(!store.getDeferDataUpdatedSignals());

    // Switching it on twice needs one switch-off.
    store.setDeferDataUpdatedSignals(true);
    QVERIFY(store.appendNode(fav("A")));
    store.setDeferDataUpdatedSignals(true);
    QCOMPARE(updated.count(), 0);
    store.setDeferDataUpdatedSignals(false);
    QCOMPARE(updated.count(), 1);
}

void TestFavoritesData::emitDataUpdatedSignalHonoursTheDeferral()
{
    FavoritesData store;
    QSignalSpy updated(&store, SIGNAL(dataUpdated()));
    store.emitDataUpdatedSignal();
    QCOMPARE(updated.count(), 1);

    store.setDeferDataUpdatedSignals(true);
    store.emitDataUpdatedSignal();
    store.emitDataUpdatedSignal();
    QCOMPARE(updated.count(), 1);
    store.setDeferDataUpdatedSignals(false);
    QCOMPARE(updated.count(), 2);
}

// ---- views ---------------------------------------------------------------------

void TestFavoritesData::registerConnectsBothSlots()
{
    FavoritesData store;
    TestView view;
    QVERIFY(store.Register(&view));

    QVERIFY(store.appendNode(fav("A")));
    QCOMPARE(view.updatedCount, 1);
    store.setViewAllFavorites(false);
    QCOMPARE(view.updatedCount, 2);

    store.setExpanded(true);
    store.setExpanded(false);
    QCOMPARE(view.expandedValues, QList<bool>({ true, false }));
    QCOMPARE(view.updatedCount, 2);
}

void TestFavoritesData::registerTwiceIsRefused()
{
    FavoritesData store;
    TestView view;
    QVERIFY(store.Register(&view));
    QVERIFY(!store.Register(&view));

    QVERIFY(store.appendNode(fav("A")));
    store.setExpanded(true);
    QCOMPARE(view.updatedCount, 1);
    QCOMPARE(view.expandedValues, QList<bool>({ true }));
}

void TestFavoritesData::registerRefusesNull()
{
    FavoritesData store;
    QVERIFY(!store.Register(nullptr));
}

void TestFavoritesData::registerRefusesViewWithoutSlots()
{
    FavoritesData store;
    ViewWithoutSlots view;
    QTest::ignoreMessage(
        QtWarningMsg, QRegularExpression(QStringLiteral("No such slot .*onFavoriteDataUpdated\\(\\)")));
    QVERIFY(!store.Register(&view));
}

void TestFavoritesData::registerStopsAtTheFirstFailure()
{
    // The first connection fails, so the second, which would work, is not tried.
    FavoritesData store;
    ViewWithExpandedOnly view;
    QTest::ignoreMessage(
        QtWarningMsg, QRegularExpression(QStringLiteral("No such slot .*onFavoriteDataUpdated\\(\\)")));
    QVERIFY(!store.Register(&view));

    store.setExpanded(true);
    QVERIFY(view.expandedValues.isEmpty());
}

void TestFavoritesData::registerKeepsTheFirstConnectionWhenTheSecondFails()
{
    FavoritesData store;
    ViewWithUpdatedOnly view;
    QTest::ignoreMessage(
        QtWarningMsg, QRegularExpression(QStringLiteral("No such slot .*onFavoriteDataExpanded\\(bool\\)")));
    QVERIFY(!store.Register(&view));

    // Nothing is undone: the slot that exists stays connected.
    QVERIFY(store.appendNode(fav("A")));
    QCOMPARE(view.updatedCount, 1);
}

void TestFavoritesData::deregisterDisconnectsAndSaves()
{
    FavoritesData store;
    store.setSettingsPath(QLatin1String(storeGroup));
    TestView view;
    QVERIFY(store.Register(&view));
    fill(store, { "A", "B" });
    QCOMPARE(view.updatedCount, 2);
    QVERIFY(sortedChildKeys(QLatin1String(storeGroup)).isEmpty()); // a change alone saves nothing

    QVERIFY(store.Deregister(&view));
    QCOMPARE(storedValue(QLatin1String(storeGroup), QStringLiteral("NumberOfEntries")).toInt(), 2);
    QCOMPARE(storedValue(QLatin1String(storeGroup), QStringLiteral("1")).toString(),
        QStringLiteral("B*BShown*@CameraDevice"));

    QVERIFY(store.appendNode(fav("C")));
    store.setExpanded(true);
    QCOMPARE(view.updatedCount, 2);
    QVERIFY(view.expandedValues.isEmpty());

    // Gone already: nothing left to disconnect. The save is made all the same.
    QVERIFY(!store.Deregister(&view));
    QCOMPARE(storedValue(QLatin1String(storeGroup), QStringLiteral("NumberOfEntries")).toInt(), 3);

    // Registered again after a deregistration, it works as before.
    QVERIFY(store.Register(&view));
    QVERIFY(store.removeNode(0, nullptr));
    QCOMPARE(view.updatedCount, 3);
}

void TestFavoritesData::deregisterLeavesOtherViewsConnected()
{
    FavoritesData store;
    TestView first;
    TestView second;
    QVERIFY(store.Register(&first));
    QVERIFY(store.Register(&second));

    QVERIFY(store.Deregister(&first));
    QVERIFY(store.appendNode(fav("A")));
    store.setExpanded(true);
    QCOMPARE(first.updatedCount, 0);
    QCOMPARE(second.updatedCount, 1);
    QVERIFY(first.expandedValues.isEmpty());
    QCOMPARE(second.expandedValues, QList<bool>({ true }));
}

void TestFavoritesData::deregisterUnknownViewFailsButStillSaves()
{
    FavoritesData store;
    store.setSettingsPath(QLatin1String(storeGroup));
    fill(store, { "A" });

    TestView stranger;
    QVERIFY(!store.Deregister(&stranger));
    QCOMPARE(storedValue(QLatin1String(storeGroup), QStringLiteral("0")).toString(),
        QStringLiteral("A*AShown*@CameraDevice"));

    init();
    QVERIFY(!store.Deregister(nullptr));
    QCOMPARE(storedValue(QLatin1String(storeGroup), QStringLiteral("0")).toString(),
        QStringLiteral("A*AShown*@CameraDevice"));
}

void TestFavoritesData::deregisterWithoutSettingsPathWritesNothing()
{
    FavoritesData store;
    TestView view;
    QVERIFY(store.Register(&view));
    fill(store, { "A" });

    QVERIFY(store.Deregister(&view)); // the failed save does not count
    QVERIFY(QSettings().allKeys().isEmpty());
    QVERIFY(store.appendNode(fav("B")));
    QCOMPARE(view.updatedCount, 1);
}

// ---- loading -------------------------------------------------------------------

void TestFavoritesData::loadWithoutSettingsGivesTheDefaults()
{
    FavoritesData store;
    QSignalSpy updated(&store, SIGNAL(dataUpdated()));
    QVERIFY(store.LoadFavorites(QLatin1String(storeGroup)));
    QCOMPARE(store.countNodes(), 0);
    QCOMPARE(store.getViewAllFavorites(), false);
    QCOMPARE(store.getExpanded(), true);
    QCOMPARE(updated.count(), 1);
    QVERIFY(QSettings().allKeys().isEmpty()); // a load writes nothing
}

void TestFavoritesData::loadWithEmptyGroupTouchesNothing()
{
    writeGroup(QString(), { { QStringLiteral("NumberOfEntries"), 1 }, { QStringLiteral("0"), "Gain*Gain*@X" } });

    FavoritesData store;
    fill(store, { "A" });
    QSignalSpy updated(&store, SIGNAL(dataUpdated()));
    QSignalSpy expanded(&store, SIGNAL(expanded(bool)));

    QVERIFY(!store.LoadFavorites(QString()));
    QVERIFY(!store.LoadFavorites(QLatin1String("")));
    QCOMPARE(names(store), QStringList({ "A" }));
    QCOMPARE(store.getViewAllFavorites(), true);
    QCOMPARE(store.getExpanded(), false);
    QCOMPARE(updated.count(), 0);
    QCOMPARE(expanded.count(), 0);
}

void TestFavoritesData::loadDoesNotEmitExpanded()
{
    writeGroup(QLatin1String(storeGroup), { { QStringLiteral("Expanded"), 1 } });
    FavoritesData store;
    QSignalSpy expanded(&store, SIGNAL(expanded(bool)));
    QVERIFY(store.LoadFavorites(QLatin1String(storeGroup)));
    QCOMPARE(store.getExpanded(), true);
    QCOMPARE(expanded.count(), 0);
}

void TestFavoritesData::loadReadsEntriesInOrder()
{
    writeGroup(QLatin1String(storeGroup),
        {
            { QStringLiteral("Version"), 3 },
            { QStringLiteral("NumberOfEntries"), 3 },
            { QStringLiteral("0"), "Width*Image Width*@CameraDevice" },
            { QStringLiteral("1"), "Gain*Gain (dB)*@CameraDevice" },
            { QStringLiteral("2"), "MaxNumBuffer*Max Num Buffer*@StreamGrabber0" },
            { QStringLiteral("ViewAll"), 1 },
            { QStringLiteral("Expanded"), 0 },
        });

    FavoritesData store;
    QVERIFY(store.LoadFavorites(QLatin1String(storeGroup)));
    QCOMPARE(names(store), QStringList({ "Width", "Gain", "MaxNumBuffer" }));
    QCOMPARE(store.nodeAt(0)->displayName, QStringLiteral("Image Width"));
    QCOMPARE(store.nodeAt(1)->displayName, QStringLiteral("Gain (dB)"));
    QCOMPARE(store.nodeAt(2)->nodeMapName, QStringLiteral("@StreamGrabber0"));
    QCOMPARE(store.getViewAllFavorites(), true);
    QCOMPARE(store.getExpanded(), false);
    QVERIFY(store.getSettingsPath().isEmpty()); // only InitOnce remembers the group
}

void TestFavoritesData::loadReadsFlagsAsIntegersOrBooleans_data()
{
    QTest::addColumn<QVariant>("viewAll");
    QTest::addColumn<QVariant>("expanded");

    QTest::newRow("integers 1 and 0") << QVariant(1) << QVariant(0);
    QTest::newRow("integers 0 and 1") << QVariant(0) << QVariant(1);
    QTest::newRow("booleans true and false") << QVariant(true) << QVariant(false);
    QTest::newRow("booleans false and true") << QVariant(false) << QVariant(true);
}

void TestFavoritesData::loadReadsFlagsAsIntegersOrBooleans()
{
    QFETCH(QVariant, viewAll);
    QFETCH(QVariant, expanded);
    writeGroup(QLatin1String(storeGroup),
        { { QStringLiteral("ViewAll"), viewAll }, { QStringLiteral("Expanded"), expanded } });

    FavoritesData store;
    QVERIFY(store.LoadFavorites(QLatin1String(storeGroup)));
    QCOMPARE(store.getViewAllFavorites(), viewAll.toBool());
    QCOMPARE(store.getExpanded(), expanded.toBool());
}

void TestFavoritesData::loadIgnoresTheVersion_data()
{
    QTest::addColumn<QVariant>("version");
    QTest::newRow("missing") << QVariant();
    QTest::newRow("1") << QVariant(1);
    QTest::newRow("2") << QVariant(2);
    QTest::newRow("3") << QVariant(3);
    QTest::newRow("99") << QVariant(99);
    QTest::newRow("text") << QVariant(QStringLiteral("nonsense"));
}

void TestFavoritesData::loadIgnoresTheVersion()
{
    QFETCH(QVariant, version);
    QVariantMap values { { QStringLiteral("NumberOfEntries"), 1 }, { QStringLiteral("0"), "Gain*Gain*@CameraDevice" } };
    if (version.isValid())
        values.insert(QStringLiteral("Version"), version);
    writeGroup(QLatin1String(storeGroup), values);

    FavoritesData store;
    QVERIFY(store.LoadFavorites(QLatin1String(storeGroup)));
    QCOMPARE(names(store), QStringList({ "Gain" }));
}

void TestFavoritesData::loadEntries_data()
{
    QTest::addColumn<QString>("entry");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("displayName");
    QTest::addColumn<QString>("nodeMapName");

    // An empty name means that the entry is dropped.
    QTest::newRow("ordinary") << "Width*Width*@CameraDevice"
                              << "Width"
                              << "Width"
                              << "@CameraDevice";
    QTest::newRow("no @ in the node map") << "Width*Width*CameraDevice"
                                          << "Width"
                                          << "Width"
                                          << "CameraDevice";
    QTest::newRow("empty text") << ""
                                << ""
                                << ""
                                << "";
    QTest::newRow("no star") << "Width"
                             << ""
                             << ""
                             << "";
    QTest::newRow("one star") << "Width*@CameraDevice"
                              << ""
                              << ""
                              << "";
    QTest::newRow("empty display name: two parts") << "Width**@CameraDevice"
                                                   << ""
                                                   << ""
                                                   << "";
    QTest::newRow("empty name: two parts") << "*Width*@CameraDevice"
                                           << ""
                                           << ""
                                           << "";
    QTest::newRow("stars only") << "***"
                                << ""
                                << ""
                                << "";
    QTest::newRow("star in the display name: four parts") << "Width*Wid*th*@CameraDevice"
                                                          << ""
                                                          << ""
                                                          << "";
    QTest::newRow("star in the name: four parts") << "Wi*dth*Width*@CameraDevice"
                                                  << ""
                                                  << ""
                                                  << "";
    QTest::newRow("leading star is dropped") << "*Width*Shown*@CameraDevice"
                                             << "Width"
                                             << "Shown"
                                             << "@CameraDevice";
    QTest::newRow("trailing star is dropped") << "Width*Shown*@CameraDevice*"
                                              << "Width"
                                              << "Shown"
                                              << "@CameraDevice";
    QTest::newRow("doubled star is one separator") << "Width**Shown*@CameraDevice"
                                                   << "Width"
                                                   << "Shown"
                                                   << "@CameraDevice";
    QTest::newRow("spaces are kept") << "Width* Image Width *@CameraDevice"
                                     << "Width"
                                     << " Image Width "
                                     << "@CameraDevice";
}

void TestFavoritesData::loadEntries()
{
    QFETCH(QString, entry);
    QFETCH(QString, name);
    QFETCH(QString, displayName);
    QFETCH(QString, nodeMapName);

    writeGroup(QLatin1String(storeGroup),
        {
            { QStringLiteral("NumberOfEntries"), 3 },
            { QStringLiteral("0"), "Before*Before*@CameraDevice" },
            { QStringLiteral("1"), entry },
            { QStringLiteral("2"), "After*After*@CameraDevice" },
        });

    FavoritesData store;
    QVERIFY(store.LoadFavorites(QLatin1String(storeGroup)));
    if (name.isEmpty()) {
        QCOMPARE(names(store), QStringList({ "Before", "After" }));
        return;
    }
    QCOMPARE(names(store), QStringList({ "Before", name, "After" }));
    QCOMPARE(store.nodeAt(1)->displayName, displayName);
    QCOMPARE(store.nodeAt(1)->nodeMapName, nodeMapName);
}

void TestFavoritesData::loadPassesOverMissingKeys()
{
    writeGroup(QLatin1String(storeGroup),
        {
            { QStringLiteral("NumberOfEntries"), 10 },
            { QStringLiteral("0"), "A*A*@CameraDevice" },
            { QStringLiteral("3"), "B*B*@CameraDevice" },
            { QStringLiteral("9"), "C*C*@CameraDevice" },
            { QStringLiteral("10"), "BeyondTheCount*X*@CameraDevice" },
            { QStringLiteral("05"), "NotADecimalKey*X*@CameraDevice" },
            { QStringLiteral("+6"), "NotADecimalKey*X*@CameraDevice" },
            { QStringLiteral("-1"), "Negative*X*@CameraDevice" },
        });

    FavoritesData store;
    QVERIFY(store.LoadFavorites(QLatin1String(storeGroup)));
    QCOMPARE(names(store), QStringList({ "A", "B", "C" }));
}

void TestFavoritesData::loadWithoutNumberOfEntriesReadsNoEntries()
{
    writeGroup(QLatin1String(storeGroup),
        { { QStringLiteral("0"), "A*A*@CameraDevice" }, { QStringLiteral("1"), "B*B*@CameraDevice" } });
    FavoritesData store;
    QVERIFY(store.LoadFavorites(QLatin1String(storeGroup)));
    QCOMPARE(store.countNodes(), 0);

    writeGroup(QLatin1String(storeGroup), { { QStringLiteral("NumberOfEntries"), -5 } });
    QVERIFY(store.LoadFavorites(QLatin1String(storeGroup)));
    QCOMPARE(store.countNodes(), 0);

    writeGroup(QLatin1String(storeGroup), { { QStringLiteral("NumberOfEntries"), 1 } });
    QVERIFY(store.LoadFavorites(QLatin1String(storeGroup)));
    QCOMPARE(names(store), QStringList({ "A" }));
}

void TestFavoritesData::loadWithHugeNumberOfEntriesIsQuick()
{
    writeGroup(QLatin1String(storeGroup),
        {
            { QStringLiteral("NumberOfEntries"), std::numeric_limits<int>::max() },
            { QStringLiteral("0"), "A*A*@CameraDevice" },
            { QStringLiteral("2147483646"), "Z*Z*@CameraDevice" },
        });
    QElapsedTimer timer;
    timer.start();
    FavoritesData store;
    QVERIFY(store.LoadFavorites(QLatin1String(storeGroup)));
    QCOMPARE(names(store), QStringList({ "A", "Z" }));
    QVERIFY2(timer.elapsed() < 5000, "a damaged count must not cost a walk over every position");
}

void TestFavoritesData::loadDropsDuplicates()
{
    writeGroup(QLatin1String(storeGroup),
        {
            { QStringLiteral("NumberOfEntries"), 4 },
            { QStringLiteral("0"), "Width*First*@CameraDevice" },
            { QStringLiteral("1"), "Width*Second*@CameraDevice" },
            { QStringLiteral("2"), "Width*Grabber*@StreamGrabber0" },
            { QStringLiteral("3"), "Width*First*@CameraDevice" },
        });

    FavoritesData store;
    QVERIFY(store.LoadFavorites(QLatin1String(storeGroup)));
    QCOMPARE(store.countNodes(), 2);
    QCOMPARE(store.nodeAt(0)->displayName, QStringLiteral("First"));
    QCOMPARE(store.nodeAt(1)->nodeMapName, QStringLiteral("@StreamGrabber0"));

    // The next save writes only what the list holds.
    QVERIFY(store.SaveFavorites(QLatin1String(storeGroup)));
    QCOMPARE(sortedChildKeys(QLatin1String(storeGroup)),
        QStringList({ "0", "1", "Expanded", "NumberOfEntries", "Version", "ViewAll" }));
}

void TestFavoritesData::loadDoesNotClearTheList()
{
    writeGroup(QLatin1String(storeGroup),
        {
            { QStringLiteral("NumberOfEntries"), 2 },
            { QStringLiteral("0"), "A*A*@CameraDevice" },
            { QStringLiteral("1"), "Kept*FromSettings*@CameraDevice" },
        });

    FavoritesData store;
    QVERIFY(store.appendNode(fav("Kept", "@CameraDevice", "InMemory")));
    QSignalSpy updated(&store, SIGNAL(dataUpdated()));

    QVERIFY(store.LoadFavorites(QLatin1String(storeGroup)));
    QCOMPARE(names(store), QStringList({ "Kept", "A" }));
    QCOMPARE(store.nodeAt(0)->displayName, QStringLiteral("InMemory"));
    QCOMPARE(updated.count(), 2); // the one entry added, and the load

    // A second load adds nothing that is already there, and is announced all the same.
    QVERIFY(store.LoadFavorites(QLatin1String(storeGroup)));
    QCOMPARE(names(store), QStringList({ "Kept", "A" }));
    QCOMPARE(updated.count(), 3);
}

void TestFavoritesData::loadAnnouncesEachEntryAndItself()
{
    writeGroup(QLatin1String(storeGroup),
        {
            { QStringLiteral("NumberOfEntries"), 4 },
            { QStringLiteral("0"), "A*A*@CameraDevice" },
            { QStringLiteral("1"), "B*B*@CameraDevice" },
            { QStringLiteral("2"), "A*Again*@CameraDevice" },
            { QStringLiteral("3"), "Damaged" },
        });

    FavoritesData store;
    QSignalSpy updated(&store, SIGNAL(dataUpdated()));
    QVERIFY(store.LoadFavorites(QLatin1String(storeGroup)));
    QCOMPARE(updated.count(), 3); // A, B, and the end of the load

    // Inside a deferral the whole load is one signal.
    FavoritesData deferred;
    QSignalSpy deferredUpdated(&deferred, SIGNAL(dataUpdated()));
    deferred.setDeferDataUpdatedSignals(true);
    QVERIFY(deferred.LoadFavorites(QLatin1String(storeGroup)));
    QCOMPARE(deferredUpdated.count(), 0);
    deferred.setDeferDataUpdatedSignals(false);
    QCOMPARE(deferredUpdated.count(), 1);
    QCOMPARE(names(deferred), QStringList({ "A", "B" }));
}

void TestFavoritesData::loadCutsTheNameAtNul()
{
    const QString entry = QStringLiteral("Wid") + QChar(0) + QStringLiteral("th*Shown") + QChar(0)
        + QStringLiteral("Text*@CameraDevice");
    writeGroup(QLatin1String(storeGroup), { { QStringLiteral("NumberOfEntries"), 1 }, { QStringLiteral("0"), entry } });
    QCOMPARE(storedValue(QLatin1String(storeGroup), QStringLiteral("0")).toString(), entry);

    FavoritesData store;
    QVERIFY(store.LoadFavorites(QLatin1String(storeGroup)));
    QCOMPARE(store.countNodes(), 1);
    QCOMPARE(store.nodeAt(0)->name, QStringLiteral("Wid"));
    // Only the name is cut.
    QCOMPARE(store.nodeAt(0)->displayName, QStringLiteral("Shown") + QChar(0) + QStringLiteral("Text"));
}

void TestFavoritesData::loadPassesTheNameThroughTheLocalEncoding()
{
    const QString umlauts = QString::fromUtf8("Gr\xc3\xb6\xc3\x9f"
                                              "e");
    writeGroup(QLatin1String(storeGroup),
        { { QStringLiteral("NumberOfEntries"), 1 },
            { QStringLiteral("0"),
                QString(umlauts + QLatin1Char('*') + umlauts + QStringLiteral("*@CameraDevice")) } });

    auto load = [] {
        FavoritesData store;
        store.LoadFavorites(QLatin1String(storeGroup));
        return store.countNodes() == 1 ? *store.nodeAt(0) : Item();
    };
    // Qt 6 takes the local 8-bit encoding of Linux to be UTF-8 whatever the
    // locale says; Qt 5 follows the locale, and both of its common cases are
    // tried.
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    QTextCodec* const previous = QTextCodec::codecForLocale();
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
    const Item viaUtf8 = load();
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("ISO-8859-1"));
    const Item viaLatin1 = load();
    QTextCodec::setCodecForLocale(previous);
    QCOMPARE(viaLatin1.name, umlauts);
    QCOMPARE(viaLatin1.displayName, umlauts);
#else
    const Item viaUtf8 = load();
#endif

    // The name comes back as the local bytes read as Latin-1; the display
    // name is taken as it is.
    QCOMPARE(viaUtf8.name, QString::fromLatin1(umlauts.toUtf8()));
    QCOMPARE(viaUtf8.displayName, umlauts);
}

void TestFavoritesData::initOnceLoadsOnlyOnce()
{
    writeGroup(QLatin1String(storeGroup),
        { { QStringLiteral("NumberOfEntries"), 1 }, { QStringLiteral("0"), "A*A*@CameraDevice" } });
    writeGroup(QLatin1String(otherGroup),
        { { QStringLiteral("NumberOfEntries"), 1 }, { QStringLiteral("0"), "B*B*@CameraDevice" },
            { QStringLiteral("ViewAll"), 1 } });

    FavoritesData store;
    QSignalSpy updated(&store, SIGNAL(dataUpdated()));
    store.InitOnce(QLatin1String(storeGroup));
    QCOMPARE(store.getSettingsPath(), QLatin1String(storeGroup));
    QCOMPARE(names(store), QStringList({ "A" }));
    QCOMPARE(store.getViewAllFavorites(), false);
    QCOMPARE(updated.count(), 2);

    store.InitOnce(QLatin1String(otherGroup));
    QCOMPARE(store.getSettingsPath(), QLatin1String(storeGroup));
    QCOMPARE(names(store), QStringList({ "A" }));
    QCOMPARE(store.getViewAllFavorites(), false);
    QCOMPARE(updated.count(), 2);

    // An empty path still counts as the one call.
    FavoritesData unnamed;
    unnamed.InitOnce(QString());
    unnamed.InitOnce(QLatin1String(storeGroup));
    QVERIFY(unnamed.getSettingsPath().isEmpty());
    QCOMPARE(unnamed.countNodes(), 0);
    QCOMPARE(unnamed.getViewAllFavorites(), true);
}

void TestFavoritesData::setSettingsPathLoadsNothing()
{
    writeGroup(QLatin1String(storeGroup),
        { { QStringLiteral("NumberOfEntries"), 1 }, { QStringLiteral("0"), "A*A*@CameraDevice" } });

    FavoritesData store;
    store.InitOnce(QLatin1String(storeGroup));
    QSignalSpy updated(&store, SIGNAL(dataUpdated()));
    store.setSettingsPath(QLatin1String(otherGroup));
    QCOMPARE(store.getSettingsPath(), QLatin1String(otherGroup));
    QCOMPARE(names(store), QStringList({ "A" }));
    QCOMPARE(updated.count(), 0);

    // Later saves go to the new group.
    TestView view;
    QVERIFY(store.Register(&view));
    QVERIFY(store.Deregister(&view));
    QCOMPARE(
        storedValue(QLatin1String(otherGroup), QStringLiteral("0")).toString(), QStringLiteral("A*A*@CameraDevice"));
}

// ---- saving --------------------------------------------------------------------

void TestFavoritesData::saveWithEmptyGroupWritesNothing()
{
    FavoritesData store;
    fill(store, { "A" });
    QVERIFY(!store.SaveFavorites(QString()));
    QVERIFY(!store.SaveFavorites(QLatin1String("")));
    QVERIFY(QSettings().allKeys().isEmpty());
}

void TestFavoritesData::saveWritesTheExactLayout()
{
    FavoritesData store;
    QVERIFY(store.appendNode(Item { "Width", "ImageWidth", "@CameraDevice" }));
    QVERIFY(store.appendNode(Item { "Gain", "Gain (dB)", "@CameraDevice" }));
    QVERIFY(store.appendNode(Item { "Width", "GrabberWidth", "@StreamGrabber0" }));
    store.setViewAllFavorites(false);
    store.setExpanded(true);

    QVERIFY(store.SaveFavorites(QLatin1String(storeGroup)));

    const QString group = QLatin1String(storeGroup);
    QCOMPARE(
        sortedChildKeys(group), QStringList({ "0", "1", "2", "Expanded", "NumberOfEntries", "Version", "ViewAll" }));
    QVERIFY(QSettings().childGroups() == QStringList { group });
    QCOMPARE(storedValue(group, QStringLiteral("Version")).toInt(), 3);
    QCOMPARE(storedValue(group, QStringLiteral("NumberOfEntries")).toInt(), 3);
    QCOMPARE(storedValue(group, QStringLiteral("0")).toString(), QStringLiteral("Width*ImageWidth*@CameraDevice"));
    QCOMPARE(storedValue(group, QStringLiteral("1")).toString(), QStringLiteral("Gain*Gain (dB)*@CameraDevice"));
    QCOMPARE(storedValue(group, QStringLiteral("2")).toString(), QStringLiteral("Width*GrabberWidth*@StreamGrabber0"));

    // On disk: integers, not booleans or strings.
    QCOMPARE(fileSection(group),
        QStringList({ "0=Width*ImageWidth*@CameraDevice", "1=Gain*Gain (dB)*@CameraDevice",
            "2=Width*GrabberWidth*@StreamGrabber0", "Expanded=1", "NumberOfEntries=3", "Version=3", "ViewAll=0" }));
}

void TestFavoritesData::saveWritesFlagsAsIntegers()
{
    FavoritesData store; // view all true, not expanded
    QVERIFY(store.SaveFavorites(QLatin1String(storeGroup)));
    const QString group = QLatin1String(storeGroup);

    QSettings settings;
    settings.beginGroup(group);
    QCOMPARE(settings.value(QStringLiteral("ViewAll")), QVariant(1));
    QCOMPARE(settings.value(QStringLiteral("Expanded")), QVariant(0));
    QCOMPARE(settings.value(QStringLiteral("Version")), QVariant(3));
    QCOMPARE(settings.value(QStringLiteral("NumberOfEntries")), QVariant(0));
    settings.endGroup();
    QCOMPARE(fileSection(group), QStringList({ "Expanded=0", "NumberOfEntries=0", "Version=3", "ViewAll=1" }));
}

void TestFavoritesData::saveEmitsNothing()
{
    FavoritesData store;
    fill(store, { "A" });
    QSignalSpy updated(&store, SIGNAL(dataUpdated()));
    QSignalSpy expanded(&store, SIGNAL(expanded(bool)));
    QVERIFY(store.SaveFavorites(QLatin1String(storeGroup)));
    QCOMPARE(updated.count(), 0);
    QCOMPARE(expanded.count(), 0);
}

void TestFavoritesData::saveRemovesTheTailOfAShortenedList()
{
    FavoritesData five;
    fill(five, { "A", "B", "C", "D", "E" });
    QVERIFY(five.SaveFavorites(QLatin1String(storeGroup)));
    QCOMPARE(sortedChildKeys(QLatin1String(storeGroup)),
        QStringList({ "0", "1", "2", "3", "4", "Expanded", "NumberOfEntries", "Version", "ViewAll" }));

    // A key beyond the old count is not the store's and stays.
    writeGroup(QLatin1String(storeGroup), { { QStringLiteral("7"), "Stray*Stray*@CameraDevice" } });

    FavoritesData three;
    fill(three, { "X", "Y", "Z" });
    QVERIFY(three.SaveFavorites(QLatin1String(storeGroup)));
    QCOMPARE(sortedChildKeys(QLatin1String(storeGroup)),
        QStringList({ "0", "1", "2", "7", "Expanded", "NumberOfEntries", "Version", "ViewAll" }));
    QCOMPARE(storedValue(QLatin1String(storeGroup), QStringLiteral("NumberOfEntries")).toInt(), 3);
    QCOMPARE(storedValue(QLatin1String(storeGroup), QStringLiteral("2")).toString(),
        QStringLiteral("Z*ZShown*@CameraDevice"));

    FavoritesData reloaded;
    QVERIFY(reloaded.LoadFavorites(QLatin1String(storeGroup)));
    QCOMPARE(names(reloaded), QStringList({ "X", "Y", "Z" }));
}

void TestFavoritesData::saveOfAnEmptyListRemovesAllEntries()
{
    FavoritesData two;
    fill(two, { "A", "B" });
    QVERIFY(two.SaveFavorites(QLatin1String(storeGroup)));

    FavoritesData none;
    QVERIFY(none.SaveFavorites(QLatin1String(storeGroup)));
    QCOMPARE(sortedChildKeys(QLatin1String(storeGroup)),
        QStringList({ "Expanded", "NumberOfEntries", "Version", "ViewAll" }));
    QCOMPARE(storedValue(QLatin1String(storeGroup), QStringLiteral("NumberOfEntries")).toInt(), 0);
}

void TestFavoritesData::saveOfWhatIsStoredLeavesTheFileAlone_data()
{
    // Every view that goes and every model that dies saves the list. When
    // nothing changed, the file must not be replaced (and flushed) again.
    QTest::addColumn<QVariantMap>("before");
    QTest::addColumn<bool>("rewritten");
    QTest::newRow("the same list") << QVariantMap() << false;
    QTest::newRow("another entry") << QVariantMap { { QStringLiteral("1"), "X*XShown*@CameraDevice" } } << true;
    QTest::newRow("another count") << QVariantMap { { QStringLiteral("NumberOfEntries"), 1 } } << true;
    QTest::newRow("another flag") << QVariantMap { { QStringLiteral("Expanded"), 1 } } << true;
    QTest::newRow("a flag spelled as a boolean") << QVariantMap { { QStringLiteral("ViewAll"), "true" } } << true;
    QTest::newRow("an older version") << QVariantMap { { QStringLiteral("Version"), 2 } } << true;
}

void TestFavoritesData::saveOfWhatIsStoredLeavesTheFileAlone()
{
    QFETCH(QVariantMap, before);
    QFETCH(bool, rewritten);
    FavoritesData store; // view all true, not expanded
    fill(store, { "A", "B" });
    QVERIFY(store.SaveFavorites(QLatin1String(storeGroup)));
    if (!before.isEmpty())
        writeGroup(QLatin1String(storeGroup), before);

    const QByteArray path = QFile::encodeName(QSettings().fileName());
    struct stat statBefore;
    QCOMPARE(::stat(path.constData(), &statBefore), 0);
    QVERIFY(store.SaveFavorites(QLatin1String(storeGroup)));
    struct stat statAfter;
    QCOMPARE(::stat(path.constData(), &statAfter), 0);
    // A rewrite replaces the file with a new one: another inode.
    QCOMPARE(statAfter.st_ino != statBefore.st_ino, rewritten);
    QCOMPARE(fileSection(QLatin1String(storeGroup)),
        QStringList({ "0=A*AShown*@CameraDevice", "1=B*BShown*@CameraDevice", "Expanded=0", "NumberOfEntries=2",
            "Version=3", "ViewAll=1" }));
}

void TestFavoritesData::saveKeepsPassedOverPositions()
{
    FavoritesData old;
    fill(old, { "A", "B", "C" });
    QVERIFY(old.SaveFavorites(QLatin1String(storeGroup)));

    FavoritesData store;
    QVERIFY(store.appendNode(fav("X")));
    QVERIFY(store.appendNode(Item { "NoNodeMap", "Shown", QString() }));
    QVERIFY(store.appendNode(fav("Z")));
    QVERIFY(store.appendNode(Item { "AlsoNoNodeMap", "Shown", QString() }));
    QVERIFY(store.SaveFavorites(QLatin1String(storeGroup)));

    // Position 1 keeps what it held; position 3 had nothing and gets nothing;
    // the count includes both.
    QCOMPARE(sortedChildKeys(QLatin1String(storeGroup)),
        QStringList({ "0", "1", "2", "Expanded", "NumberOfEntries", "Version", "ViewAll" }));
    QCOMPARE(storedValue(QLatin1String(storeGroup), QStringLiteral("NumberOfEntries")).toInt(), 4);
    QCOMPARE(storedValue(QLatin1String(storeGroup), QStringLiteral("0")).toString(),
        QStringLiteral("X*XShown*@CameraDevice"));
    QCOMPARE(storedValue(QLatin1String(storeGroup), QStringLiteral("1")).toString(),
        QStringLiteral("B*BShown*@CameraDevice"));
    QCOMPARE(storedValue(QLatin1String(storeGroup), QStringLiteral("2")).toString(),
        QStringLiteral("Z*ZShown*@CameraDevice"));

    FavoritesData reloaded;
    QVERIFY(reloaded.LoadFavorites(QLatin1String(storeGroup)));
    QCOMPARE(names(reloaded), QStringList({ "X", "B", "Z" }));
}

void TestFavoritesData::emptyDisplayNameDoesNotSurviveARestart()
{
    FavoritesData first;
    QVERIFY(first.appendNode(Item { "Width", QString(), "@CameraDevice" }));
    QVERIFY(first.appendNode(fav("Gain")));
    QVERIFY(first.SaveFavorites(QLatin1String(storeGroup)));
    QCOMPARE(
        storedValue(QLatin1String(storeGroup), QStringLiteral("0")).toString(), QStringLiteral("Width**@CameraDevice"));

    FavoritesData second;
    QVERIFY(second.LoadFavorites(QLatin1String(storeGroup)));
    QCOMPARE(names(second), QStringList({ "Gain" }));

    // and is gone from the settings after the next save
    QVERIFY(second.SaveFavorites(QLatin1String(storeGroup)));
    QCOMPARE(storedValue(QLatin1String(storeGroup), QStringLiteral("0")).toString(),
        QStringLiteral("Gain*GainShown*@CameraDevice"));
    QCOMPARE(sortedChildKeys(QLatin1String(storeGroup)),
        QStringList({ "0", "Expanded", "NumberOfEntries", "Version", "ViewAll" }));
}

void TestFavoritesData::starInANameDoesNotSurviveARestart_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("displayName");
    QTest::addColumn<QString>("written");

    QTest::newRow("star in the display name") << "Gain"
                                              << "Gain*2"
                                              << "Gain*Gain*2*@CameraDevice";
    QTest::newRow("star in the name") << "Ga*in"
                                      << "Gain"
                                      << "Ga*in*Gain*@CameraDevice";
}

void TestFavoritesData::starInANameDoesNotSurviveARestart()
{
    QFETCH(QString, name);
    QFETCH(QString, displayName);
    QFETCH(QString, written);

    FavoritesData first;
    QVERIFY(first.appendNode(Item { name, displayName, "@CameraDevice" }));
    QVERIFY(first.appendNode(fav("Width")));
    QVERIFY(first.SaveFavorites(QLatin1String(storeGroup)));
    QCOMPARE(storedValue(QLatin1String(storeGroup), QStringLiteral("0")).toString(), written);

    FavoritesData second;
    QVERIFY(second.LoadFavorites(QLatin1String(storeGroup)));
    QCOMPARE(names(second), QStringList({ "Width" }));
}

void TestFavoritesData::favoritesSurviveARestart()
{
    {
        FavoritesData firstRun;
        firstRun.InitOnce(QLatin1String(storeGroup));
        QCOMPARE(firstRun.getViewAllFavorites(), false);
        QCOMPARE(firstRun.getExpanded(), true);

        QVERIFY(firstRun.appendNode(Item { "Width", "Image Width", "@CameraDevice" }));
        QVERIFY(firstRun.appendNode(Item { "Width", "Grabber Width", "@StreamGrabber0" }));
        QVERIFY(firstRun.appendNode(Item { "ExposureTime", "Exposure Time (us)", "@CameraDevice" }));
        QVERIFY(firstRun.moveNode(2, 0));
        firstRun.setViewAllFavorites(true);
        firstRun.setExpanded(false);

        TestView view;
        QVERIFY(firstRun.Register(&view));
        QVERIFY(firstRun.Deregister(&view)); // what a closing view does
    }
    {
        FavoritesData secondRun;
        secondRun.InitOnce(QLatin1String(storeGroup));
        QCOMPARE(names(secondRun), QStringList({ "ExposureTime", "Width", "Width" }));
        QCOMPARE(secondRun.nodeAt(0)->displayName, QStringLiteral("Exposure Time (us)"));
        QCOMPARE(secondRun.nodeAt(1)->nodeMapName, QStringLiteral("@CameraDevice"));
        QCOMPARE(secondRun.nodeAt(2)->displayName, QStringLiteral("Grabber Width"));
        QCOMPARE(secondRun.nodeAt(2)->nodeMapName, QStringLiteral("@StreamGrabber0"));
        QCOMPARE(secondRun.getViewAllFavorites(), true);
        QCOMPARE(secondRun.getExpanded(), false);

        QVERIFY(secondRun.removeNode(1, nullptr));
        secondRun.setViewAllFavorites(false);
        secondRun.setExpanded(true);
        QVERIFY(secondRun.SaveFavorites(secondRun.getSettingsPath()));
    }
    {
        FavoritesData thirdRun;
        thirdRun.InitOnce(QLatin1String(storeGroup));
        QCOMPARE(names(thirdRun), QStringList({ "ExposureTime", "Width" }));
        QCOMPARE(thirdRun.nodeAt(1)->nodeMapName, QStringLiteral("@StreamGrabber0"));
        QCOMPARE(thirdRun.getViewAllFavorites(), false);
        QCOMPARE(thirdRun.getExpanded(), true);
        QCOMPARE(sortedChildKeys(QLatin1String(storeGroup)),
            QStringList({ "0", "1", "Expanded", "NumberOfEntries", "Version", "ViewAll" }));
    }
}

QTEST_GUILESS_MAIN(TestFavoritesData)

#include "tst_favoritesdata.moc"
