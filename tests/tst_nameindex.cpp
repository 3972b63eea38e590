// The simulated camera's index of feature names: look-ups by a view of a
// longer text, growth, duplicates and names that are not there.

#include "nameindex.h"

#include <QHash>
#include <QtTest>

using Simulation::NameIndex;

class TestNameIndex : public QObject
{
    Q_OBJECT

private slots:
    void emptyIndexFindsNothing();
    void growsAndKeepsEveryName_data();
    void growsAndKeepsEveryName();
    void aNameIsAddedOnce();
    void aNegativeValueIsRefused();
    void looksUpPartOfALongerText();
    void namesThatDifferInTheirLastDigits();
};

void TestNameIndex::emptyIndexFindsNothing()
{
    NameIndex index;
    QCOMPARE(index.size(), 0);
    QCOMPARE(index.value(u"Width"), -1);
    QCOMPARE(index.value(u"Width", 7), 7);
    QVERIFY(!index.contains(u""));
    index.reserve(100);
    QCOMPARE(index.value(u"Width"), -1);
    QCOMPARE(index.size(), 0);
}

void TestNameIndex::growsAndKeepsEveryName_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<int>("reserved");
    QTest::newRow("one") << 1 << 0;
    QTest::newRow("just past the first size") << 9 << 0;
    QTest::newRow("many, grown one by one") << 5000 << 0;
    QTest::newRow("many, reserved") << 5000 << 5000;
    QTest::newRow("reserved too little") << 3000 << 10;
}

void TestNameIndex::growsAndKeepsEveryName()
{
    QFETCH(int, count);
    QFETCH(int, reserved);
    NameIndex index;
    if (reserved)
        index.reserve(reserved);
    for (int i = 0; i < count; ++i) {
        QVERIFY(index.insert(QStringLiteral("Feature%1").arg(i), i * 3));
        QCOMPARE(index.size(), i + 1);
    }
    for (int i = 0; i < count; ++i)
        QCOMPARE(index.value(QStringLiteral("Feature%1").arg(i)), i * 3);
    QCOMPARE(index.value(QStringLiteral("Feature%1").arg(count)), -1);
    QCOMPARE(index.value(u"Feature"), -1);
    QCOMPARE(index.value(u"feature0"), -1);
}

void TestNameIndex::aNameIsAddedOnce()
{
    NameIndex index;
    QVERIFY(index.insert(QStringLiteral("Gain"), 4));
    QVERIFY(!index.insert(QStringLiteral("Gain"), 9));
    QCOMPARE(index.size(), 1);
    QCOMPARE(index.value(u"Gain"), 4);
    // Value 0 is a value like any other.
    QVERIFY(index.insert(QStringLiteral("Zero"), 0));
    QCOMPARE(index.value(u"Zero"), 0);
    QVERIFY(index.contains(u"Zero"));
    // The empty name is a name too.
    QVERIFY(index.insert(QString(), 5));
    QCOMPARE(index.value(u""), 5);
    QCOMPARE(index.size(), 3);
}

void TestNameIndex::aNegativeValueIsRefused()
{
    NameIndex index;
    QVERIFY(!index.insert(QStringLiteral("Gain"), -1));
    QCOMPARE(index.size(), 0);
    QVERIFY(!index.contains(u"Gain"));
    QVERIFY(index.insert(QStringLiteral("Gain"), 1));
    QCOMPARE(index.value(u"Gain"), 1);
}

void TestNameIndex::looksUpPartOfALongerText()
{
    NameIndex index;
    index.insert(QStringLiteral("Width"), 1);
    index.insert(QStringLiteral("WidthMax"), 2);
    const QString fullName = QStringLiteral("@CameraDevice/WidthMax");
    const QStringView rest = QStringView(fullName).mid(fullName.indexOf(QLatin1Char('/')) + 1);
    QCOMPARE(index.value(rest), 2);
    QCOMPARE(index.value(rest.left(5)), 1);
    QCOMPARE(index.value(rest.left(4)), -1);
    QCOMPARE(index.value(QStringView(fullName)), -1);
}

void TestNameIndex::namesThatDifferInTheirLastDigits()
{
    // Names of one pattern hash close together; the index must still tell
    // every one apart, and find each in a table kept half full.
    NameIndex index;
    QHash<QString, int> reference;
    for (int i = 0; i < 2000; ++i) {
        const QString name = QStringLiteral("Category%1/Feature%2").arg(i / 100).arg(i % 100, 3, 10, QLatin1Char('0'));
        QVERIFY(index.insert(name, i));
        reference.insert(name, i);
    }
    for (auto it = reference.cbegin(); it != reference.cend(); ++it)
        QCOMPARE(index.value(it.key()), it.value());
    QCOMPARE(index.size(), reference.size());
}

QTEST_MAIN(TestNameIndex)
#include "tst_nameindex.moc"
