#include "featuretree/valuewidgetsupport.h"
#include "parameters/genericexception.h"

#include <QLabel>
#include <QtTest>

#include <limits>
#include <stdexcept>

class TestValueWidgetSupport : public QObject
{
    Q_OBJECT

private slots:
    void toolTipIsSetOnEveryTarget();
    void failedToolTipKeepsTheFormerOne_data();
    void failedToolTipKeepsTheFormerOne();
    void truncateToInt_data();
    void truncateToInt();
};

void TestValueWidgetSupport::toolTipIsSetOnEveryTarget()
{
    QLabel a;
    QLabel b;
    ValueWidgetSupport::setRangeToolTip([]() { return QStringLiteral("Range: 1..2"); }, { &a, &b });
    QCOMPARE(a.toolTip(), QStringLiteral("Range: 1..2"));
    QCOMPARE(b.toolTip(), QStringLiteral("Range: 1..2"));
}

void TestValueWidgetSupport::failedToolTipKeepsTheFormerOne_data()
{
    QTest::addColumn<bool>("genicam");
    QTest::newRow("GenICam exception") << true;
    QTest::newRow("std::exception") << false;
}

void TestValueWidgetSupport::failedToolTipKeepsTheFormerOne()
{
    QFETCH(bool, genicam);
    QLabel a;
    QLabel b;
    a.setToolTip(QStringLiteral("before a"));
    b.setToolTip(QStringLiteral("before b"));
    QTest::ignoreMessage(QtDebugMsg, "Error creating tooltip text! Err='no text today'");
    ValueWidgetSupport::setRangeToolTip(
        [genicam]() -> QString {
            if (genicam)
                throw GenICam::GenericException("no text today", "featuretree/test", 1);
            throw std::runtime_error("no text today");
        },
        { &a, &b });
    QCOMPARE(a.toolTip(), QStringLiteral("before a"));
    QCOMPARE(b.toolTip(), QStringLiteral("before b"));
}

void TestValueWidgetSupport::truncateToInt_data()
{
    QTest::addColumn<double>("input");
    QTest::addColumn<int>("expected");
    const int lowest = std::numeric_limits<int>::min();
    const int highest = std::numeric_limits<int>::max();
    QTest::newRow("towards zero, positive") << 2.9 << 2;
    QTest::newRow("towards zero, negative") << -2.9 << -2;
    QTest::newRow("whole") << 50000.0 << 50000;
    QTest::newRow("NaN") << std::numeric_limits<double>::quiet_NaN() << 0;
    QTest::newRow("+inf") << std::numeric_limits<double>::infinity() << highest;
    QTest::newRow("-inf") << -std::numeric_limits<double>::infinity() << lowest;
    QTest::newRow("above int") << 1e12 << highest;
    QTest::newRow("below int") << -1e12 << lowest;
    QTest::newRow("int max") << double(highest) << highest;
    QTest::newRow("int min") << double(lowest) << lowest;
}

void TestValueWidgetSupport::truncateToInt()
{
    QFETCH(double, input);
    QFETCH(int, expected);
    QCOMPARE(ValueWidgetSupport::truncateToInt(input), expected);
}

QTEST_MAIN(TestValueWidgetSupport)
#include "tst_valuewidgetsupport.moc"
