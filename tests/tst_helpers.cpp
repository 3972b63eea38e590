#include "featuretree/signalblocker.h"
#include "featuretree/trimtoint32.h"

#include <QtTest>

#include <limits>

class TestHelpers : public QObject
{
    Q_OBJECT

signals:
    void probe();

private slots:
    void trimToInt32_data();
    void trimToInt32();
    void signalBlockerBlocksAndRestores();
    void signalBlockerKeepsAnEarlierBlock();
    void signalBlockerNests();
    void signalBlockerAcceptsNull();
};

void TestHelpers::trimToInt32_data()
{
    QTest::addColumn<qint64>("input");
    QTest::addColumn<qint32>("expected");

    const qint64 int32Min = std::numeric_limits<qint32>::min();
    const qint64 int32Max = std::numeric_limits<qint32>::max();

    QTest::newRow("zero") << qint64(0) << qint32(0);
    QTest::newRow("small positive") << qint64(42) << qint32(42);
    QTest::newRow("small negative") << qint64(-42) << qint32(-42);
    QTest::newRow("int32 max") << int32Max << qint32(int32Max);
    QTest::newRow("int32 min") << int32Min << qint32(int32Min);
    QTest::newRow("one above max") << int32Max + 1 << qint32(int32Max);
    QTest::newRow("one below min") << int32Min - 1 << qint32(int32Min);
    QTest::newRow("2^32 does not wrap to 0") << (qint64(1) << 32) << qint32(int32Max);
    QTest::newRow("2^32 + 5 does not wrap to 5") << (qint64(1) << 32) + 5 << qint32(int32Max);
    QTest::newRow("-2^32 does not wrap to 0") << -(qint64(1) << 32) << qint32(int32Min);
    QTest::newRow("int64 max") << std::numeric_limits<qint64>::max() << qint32(int32Max);
    QTest::newRow("int64 min") << std::numeric_limits<qint64>::min() << qint32(int32Min);
}

void TestHelpers::trimToInt32()
{
    QFETCH(qint64, input);
    QFETCH(qint32, expected);
    QCOMPARE(::trimToInt32(static_cast<long>(input)), expected);
}

void TestHelpers::signalBlockerBlocksAndRestores()
{
    QSignalSpy spy(this, SIGNAL(probe()));
    QVERIFY(!signalsBlocked());
    {
        SignalBlocker blocker(this);
        QVERIFY(signalsBlocked());
        emit probe();
        QCOMPARE(spy.count(), 0);
    }
    QVERIFY(!signalsBlocked());
    emit probe();
    QCOMPARE(spy.count(), 1);
}

void TestHelpers::signalBlockerKeepsAnEarlierBlock()
{
    blockSignals(true);
    {
        SignalBlocker blocker(this);
        QVERIFY(signalsBlocked());
    }
    // The object was blocked before the guard and stays blocked after it.
    QVERIFY(signalsBlocked());
    blockSignals(false);
}

void TestHelpers::signalBlockerNests()
{
    {
        SignalBlocker outer(this);
        {
            SignalBlocker inner(this);
            QVERIFY(signalsBlocked());
        }
        QVERIFY2(signalsBlocked(), "the inner guard must not unblock what the outer one blocked");
    }
    QVERIFY(!signalsBlocked());
}

void TestHelpers::signalBlockerAcceptsNull()
{
    // A guard on nothing blocks nothing: signals of other objects and of the
    // application go on while it lives and after it, and a guard on a real
    // object beside it works as ever.
    QObject object;
    QSignalSpy renamed(&object, &QObject::objectNameChanged);
    {
        SignalBlocker blocker(nullptr);
        QVERIFY(!QCoreApplication::instance()->signalsBlocked());
        object.setObjectName(QStringLiteral("first"));
        QCOMPARE(renamed.count(), 1);
        {
            SignalBlocker real(&object);
            object.setObjectName(QStringLiteral("second"));
            QCOMPARE(renamed.count(), 1);
        }
        object.setObjectName(QStringLiteral("third"));
        QCOMPARE(renamed.count(), 2);
    }
    QVERIFY(!QCoreApplication::instance()->signalsBlocked());
    QVERIFY(!object.signalsBlocked());
}

QTEST_GUILESS_MAIN(TestHelpers)
#include "tst_helpers.moc"
