#include "featuretree/doublecomboslider.h"
#include "featuretree/zarvexqtdoublespinbox.h"
#include "valuewidgettestsupport.h"

#include <QLineEdit>
#include <QSlider>
#include <QVBoxLayout>
#include <QtTest>

#include <limits>

using namespace ValueWidgetTest;

// Opens the widget's parts to the test.
class DoubleComboSliderProbe : public DoubleComboSlider
{
public:
    using DoubleComboSlider::DoubleComboSlider;
    QSlider* theSlider() const { return slider; }
    ZarvexQtDoubleSpinBox* theSpinBox() const { return spinBox; }
    bool isUpdateEnabled() const { return updateEnabled; }
    bool boxHasFocus() const { return hasFocus; }
    double minLimit() const { return minRangeLimit; }
    double maxLimit() const { return maxRangeLimit; }
};

// A window around one combo slider and a line edit to move the focus to.
struct Window
{
    QWidget window;
    DoubleComboSliderProbe* combo;
    QLineEdit* other;

    Window()
    {
        auto* layout = new QVBoxLayout(&window);
        combo = new DoubleComboSliderProbe;
        other = new QLineEdit;
        layout->addWidget(combo);
        layout->addWidget(other);
        window.resize(400, 80);
    }

    //! Box 0..100 at 50, slider 0..1000 at 500 with the increment; shown active with the focus in the box.
    bool focusBoxAt50(int increment)
    {
        combo->initControls(0.0, 100.0, 500, 0, 1000, increment);
        combo->setValue(50.0);
        if (!showActive(&window))
            return false;
        combo->theSpinBox()->setFocus();
        return combo->theSpinBox()->hasFocus();
    }
};

class TestDoubleComboSlider : public QObject
{
    Q_OBJECT

private slots:
    void initialState();
    void pageStep_data();
    void pageStep();
    void cursorKeysStepByTheIncrement_data();
    void cursorKeysStepByTheIncrement();
    void wheelMovesOnlyTheSlider();
    void draggingTheSliderLeavesTheBox();
    void setMinimumShowsTheFormerMinimum();
    void toolTipFollowsDecimals();
    void initControlsClampsTheValueToTheFormerRange_data();
    void initControlsClampsTheValueToTheFormerRange();
    void sliderSingleStepIsSetByInitControlsOnly();
    void rangeChangedCarriesTheIntegerRange();
    void floatSettersKeepTheLimits();
    void checkIfLimitsChanged();
    void trimSliderValue_data();
    void trimSliderValue();
    void focusAndStepsDriveUpdateEnabled();
    void properties();
    void survivesRangesQtCannotPaint();
};

void TestDoubleComboSlider::initialState()
{
    DoubleComboSliderProbe combo;
    QCOMPARE(combo.theSlider()->minimum(), std::numeric_limits<int>::min());
    QCOMPARE(combo.theSlider()->maximum(), std::numeric_limits<int>::max());
    QCOMPARE(combo.theSlider()->orientation(), Qt::Horizontal);
    QCOMPARE(combo.property("intIncrement").toInt(), 0);
    QCOMPARE(combo.minLimit(), 0.0);
    QCOMPARE(combo.maxLimit(), 0.0);
    QVERIFY(!combo.isUpdateEnabled());
    QVERIFY(!combo.boxHasFocus());
    QVERIFY(combo.theSpinBox()->isAccelerated());
    QCOMPARE(combo.layout()->contentsMargins(), QMargins(0, 1, 0, 1));
    QCOMPARE(combo.layout()->indexOf(combo.theSpinBox()), 0);
    QCOMPARE(combo.layout()->indexOf(combo.theSlider()), 1);
    QCOMPARE(combo.theSpinBox()->sizePolicy().horizontalPolicy(), QSizePolicy::Fixed);
    QCOMPARE(combo.theSlider()->sizePolicy().horizontalStretch(), 10);
    const int width = combo.property("editBoxWidth").toInt();
    QVERIFY(width > combo.theSpinBox()->fontMetrics().horizontalAdvance(QStringLiteral("999999999999")));
    QCOMPARE(combo.theSpinBox()->minimumWidth(), width);
}

void TestDoubleComboSlider::pageStep_data()
{
    QTest::addColumn<int>("minimum");
    QTest::addColumn<int>("maximum");
    QTest::addColumn<int>("increment");
    QTest::addColumn<int>("expected");

    const int lowest = std::numeric_limits<int>::min();
    const int highest = std::numeric_limits<int>::max();
    QTest::newRow("0..1000 by 7: 50 trimmed to 49") << 0 << 1000 << 7 << 49;
    QTest::newRow("0..1000 without increment") << 0 << 1000 << 0 << 50;
    QTest::newRow("two increments are larger") << 0 << 100 << 30 << 60;
    QTest::newRow("grid starts at the minimum") << 3 << 1003 << 7 << 45;
    QTest::newRow("whole int span by 1") << lowest << highest << 1 << 2;
    QTest::newRow("whole int span by 8") << lowest << highest << 8 << 16;
    QTest::newRow("whole int span without increment") << lowest << highest << 0 << 0;
    QTest::newRow("span wrapping to -2, page trimmed from the odd minimum") << lowest + 1 << highest << 5 << 8;
    QTest::newRow("0..int max by 8") << 0 << highest << 8 << 107374176;
}

void TestDoubleComboSlider::pageStep()
{
    QFETCH(int, minimum);
    QFETCH(int, maximum);
    QFETCH(int, increment);
    QFETCH(int, expected);

    DoubleComboSliderProbe combo;
    combo.setRangeStepAndIncrement(minimum, maximum, increment);
    QCOMPARE(combo.theSlider()->pageStep(), expected);

    DoubleComboSliderProbe other;
    other.initControls(0.0, 10.0, 0, minimum, maximum, increment);
    QCOMPARE(other.theSlider()->pageStep(), expected);
}

void TestDoubleComboSlider::cursorKeysStepByTheIncrement_data()
{
    QTest::addColumn<int>("increment");
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("expected");

    // Slider 0..1000 at 500; its page is 50 for increments up to 25.
    QTest::newRow("no increment, Up") << 0 << int(Qt::Key_Up) << 500;
    QTest::newRow("no increment, Down") << 0 << int(Qt::Key_Down) << 500;
    QTest::newRow("no increment, Page Up") << 0 << int(Qt::Key_PageUp) << 550;
    QTest::newRow("no increment, Page Down") << 0 << int(Qt::Key_PageDown) << 450;
    QTest::newRow("by 5, Up") << 5 << int(Qt::Key_Up) << 505;
    QTest::newRow("by 5, Down") << 5 << int(Qt::Key_Down) << 495;
    QTest::newRow("by 5, Page Up") << 5 << int(Qt::Key_PageUp) << 550;
    QTest::newRow("by 40, Page Down") << 40 << int(Qt::Key_PageDown) << 420;
}

void TestDoubleComboSlider::cursorKeysStepByTheIncrement()
{
    QFETCH(int, increment);
    QFETCH(int, key);
    QFETCH(int, expected);

    Window window;
    DoubleComboSliderProbe& combo = *window.combo;
    QVERIFY(window.focusBoxAt50(increment));
    QTest::keyClick(combo.theSpinBox(), Qt::Key(key));
    QCOMPARE(combo.intValue(), expected);
    QCOMPARE(combo.value(), 50.0); // the box is left to the derived class
}

void TestDoubleComboSlider::wheelMovesOnlyTheSlider()
{
    Window window;
    DoubleComboSliderProbe& combo = *window.combo;
    QVERIFY(window.focusBoxAt50(3));
    wheel(combo.theSpinBox(), 1);
    QCOMPARE(combo.intValue(), 503);
    wheel(combo.theSpinBox(), -2);
    QCOMPARE(combo.intValue(), 497);
    QCOMPARE(combo.value(), 50.0);
}

void TestDoubleComboSlider::draggingTheSliderLeavesTheBox()
{
    Window window;
    DoubleComboSliderProbe& combo = *window.combo;
    combo.initControls(0.0, 100.0, 0, 0, 100, 1);
    combo.setValue(12.5);
    QVERIFY(showActive(&window.window));
    QSignalSpy boxValues(combo.theSpinBox(), SIGNAL(valueChanged(double)));

    const int start = handleCentre(combo.theSlider()).x();
    dragHandle(combo.theSlider(), { start + 20, start + 60 });
    QVERIFY(combo.intValue() > 0);
    QCOMPARE(combo.value(), 12.5);
    QCOMPARE(boxValues.count(), 0);
}

void TestDoubleComboSlider::setMinimumShowsTheFormerMinimum()
{
    DoubleComboSliderProbe combo;
    combo.setRange(0.0, 100.0);
    QCOMPARE(combo.toolTip(), QStringLiteral("Range: 0.00..100.00"));

    combo.setMinimum(10.0);
    QCOMPARE(combo.minimum(), 10.0);
    QCOMPARE(combo.toolTip(), QStringLiteral("Range: 0.00..100.00"));
    QCOMPARE(combo.theSlider()->toolTip(), QStringLiteral("Range: 0.00..100.00"));

    combo.setMaximum(90.0);
    QCOMPARE(combo.toolTip(), QStringLiteral("Range: 10.00..90.00"));
    QCOMPARE(combo.theSlider()->toolTip(), QStringLiteral("Range: 10.00..90.00"));
    QCOMPARE(combo.theSpinBox()->toolTip(), QStringLiteral("Range: 10.00..90.00"));
}

void TestDoubleComboSlider::toolTipFollowsDecimals()
{
    DoubleComboSliderProbe combo;
    combo.setRange(-1.5, 2500.25);
    combo.setDecimals(1);
    QCOMPARE(combo.toolTip(), QStringLiteral("Range: -1.5..2500.3"));
    combo.setDecimals(3);
    QCOMPARE(combo.toolTip(), QStringLiteral("Range: -1.500..2500.250"));
    // The integer range does not appear in it.
    combo.setIntRange(0, 7);
    QCOMPARE(combo.toolTip(), QStringLiteral("Range: -1.500..2500.250"));
}

void TestDoubleComboSlider::initControlsClampsTheValueToTheFormerRange_data()
{
    QTest::addColumn<int>("formerMin");
    QTest::addColumn<int>("formerMax");
    QTest::addColumn<int>("value");
    QTest::addColumn<int>("expected");

    QTest::newRow("above the former range") << 0 << 100 << 500 << 100;
    QTest::newRow("below the former range") << 600 << 900 << 500 << 600;
    QTest::newRow("inside the former range") << 0 << 1000 << 500 << 500;
}

void TestDoubleComboSlider::initControlsClampsTheValueToTheFormerRange()
{
    QFETCH(int, formerMin);
    QFETCH(int, formerMax);
    QFETCH(int, value);
    QFETCH(int, expected);

    DoubleComboSliderProbe combo;
    combo.setIntRange(formerMin, formerMax);
    combo.initControls(0.0, 10.0, value, 0, 1000, 1);
    QCOMPARE(combo.intMinimum(), 0);
    QCOMPARE(combo.intMaximum(), 1000);
    QCOMPARE(combo.intValue(), expected);
}

void TestDoubleComboSlider::sliderSingleStepIsSetByInitControlsOnly()
{
    DoubleComboSliderProbe combo;
    combo.initControls(0.0, 10.0, 0, 0, 1000, 4);
    QCOMPARE(combo.theSlider()->singleStep(), 4);
    combo.setIntIncrement(9);
    combo.setRangeStepAndIncrement(0, 1000, 11);
    QCOMPARE(combo.property("intIncrement").toInt(), 11);
    QCOMPARE(combo.theSlider()->singleStep(), 4);
}

void TestDoubleComboSlider::rangeChangedCarriesTheIntegerRange()
{
    DoubleComboSliderProbe combo;
    QSignalSpy spy(&combo, SIGNAL(rangeChanged(int, int)));
    combo.setIntRange(-5, 5);
    combo.setIntMinimum(-3);
    combo.setIntMaximum(8);
    combo.setRange(0.0, 1.0);
    combo.setMinimum(0.5);
    combo.setMaximum(0.75);
    combo.setRangeStepAndIncrement(0.0, 2.0, 1);
    QCOMPARE(spy.count(), 3);
    QCOMPARE(spy.at(0), (QList<QVariant> { -5, 5 }));
    QCOMPARE(spy.at(1), (QList<QVariant> { -3, 5 }));
    QCOMPARE(spy.at(2), (QList<QVariant> { -3, 8 }));
    QCOMPARE(combo.intMinimum(), -3);
    QCOMPARE(combo.intMaximum(), 8);
}

void TestDoubleComboSlider::floatSettersKeepTheLimits()
{
    DoubleComboSliderProbe combo;
    combo.setRangeStepAndIncrement(1.0, 9.0, 2);
    QCOMPARE(combo.minLimit(), 1.0);
    QCOMPARE(combo.maxLimit(), 9.0);
    QCOMPARE(combo.property("intIncrement").toInt(), 2);
    combo.setMinimum(2.0);
    combo.setMaximum(8.0);
    QCOMPARE(combo.minLimit(), 2.0);
    QCOMPARE(combo.maxLimit(), 8.0);
    combo.setValue(20.0);
    QCOMPARE(combo.value(), 8.0);
}

void TestDoubleComboSlider::checkIfLimitsChanged()
{
    DoubleComboSliderProbe combo;
    combo.initControls(1.5, 9.5, 0, -10, 10, 2);
    QVERIFY(!combo.checkIfLimitsChanged(1.5, 9.5, 2));
    QVERIFY(combo.checkIfLimitsChanged(1.0, 9.5, 2));
    QVERIFY(combo.checkIfLimitsChanged(1.5, 9.0, 2));
    QVERIFY(combo.checkIfLimitsChanged(1.5, 9.5, 3));
    QVERIFY(!combo.checkIfLimitsChanged(-10, 10, 2));
    QVERIFY(combo.checkIfLimitsChanged(-9, 10, 2));
    QVERIFY(combo.checkIfLimitsChanged(-10, 11, 2));
    QVERIFY(combo.checkIfLimitsChanged(-10, 10, 1));
}

void TestDoubleComboSlider::trimSliderValue_data()
{
    QTest::addColumn<int>("minimum");
    QTest::addColumn<int>("increment");
    QTest::addColumn<int>("singleStep");
    QTest::addColumn<int>("input");
    QTest::addColumn<int>("expected");

    QTest::newRow("grid of 7 from 0") << 0 << 7 << 1 << 50 << 49;
    QTest::newRow("grid of 7 from 3") << 3 << 7 << 1 << 50 << 45;
    QTest::newRow("on the grid") << 3 << 7 << 1 << 45 << 45;
    QTest::newRow("no increment") << 0 << 0 << 1 << 50 << 50;
    QTest::newRow("slider single step 0") << 0 << 7 << 0 << 50 << 50;
}

void TestDoubleComboSlider::trimSliderValue()
{
    QFETCH(int, minimum);
    QFETCH(int, increment);
    QFETCH(int, singleStep);
    QFETCH(int, input);
    QFETCH(int, expected);

    DoubleComboSliderProbe combo;
    combo.setIntRange(minimum, 1000);
    combo.setIntIncrement(increment);
    combo.theSlider()->setSingleStep(singleStep);
    QCOMPARE(combo.trimSliderValue(input), expected);
}

void TestDoubleComboSlider::focusAndStepsDriveUpdateEnabled()
{
    Window window;
    DoubleComboSliderProbe& combo = *window.combo;
    QVERIFY(window.focusBoxAt50(1));
    QVERIFY(combo.boxHasFocus());
    QVERIFY(!combo.isUpdateEnabled());
    QTest::keyClick(combo.theSpinBox(), Qt::Key_Up);
    QVERIFY(combo.isUpdateEnabled());
    combo.enableUpdate(false);
    QVERIFY(!combo.isUpdateEnabled());

    window.other->setFocus();
    QVERIFY(!combo.boxHasFocus());
    QVERIFY(combo.isUpdateEnabled());
}

void TestDoubleComboSlider::properties()
{
    DoubleComboSliderProbe combo;
    QVERIFY(combo.setProperty("minimum", -2.0));
    QVERIFY(combo.setProperty("maximum", 4.0));
    QVERIFY(combo.setProperty("decimals", 1));
    QVERIFY(combo.setProperty("value", 3.25));
    QVERIFY(combo.setProperty("intMinimum", -20));
    QVERIFY(combo.setProperty("intMaximum", 20));
    QVERIFY(combo.setProperty("intValue", 30));
    QVERIFY(combo.setProperty("intIncrement", 4));
    QVERIFY(combo.setProperty("editBoxWidth", 111));
    QCOMPARE(combo.property("minimum").toDouble(), -2.0);
    QCOMPARE(combo.property("maximum").toDouble(), 4.0);
    QCOMPARE(combo.property("decimals").toInt(), 1);
    QCOMPARE(combo.property("value").toDouble(), 3.3); // rounded to the decimals shown
    QCOMPARE(combo.property("intMinimum").toInt(), -20);
    QCOMPARE(combo.property("intMaximum").toInt(), 20);
    QCOMPARE(combo.property("intValue").toInt(), 20);
    QCOMPARE(combo.property("intIncrement").toInt(), 4);
    QCOMPARE(combo.property("editBoxWidth").toInt(), 111);
    QCOMPARE(combo.theSpinBox()->minimumWidth(), 111);
}

void TestDoubleComboSlider::survivesRangesQtCannotPaint()
{
    Window window;
    DoubleComboSliderProbe& combo = *window.combo;
    combo.initControls(0.0, 1.0, 0, std::numeric_limits<int>::min(), 0, 1);
    combo.setIntValue(std::numeric_limits<int>::min());
    QVERIFY(showActive(&window.window));
    QVERIFY(!window.window.grab().isNull());
    const int start = handleCentre(combo.theSlider()).x();
    dragHandle(combo.theSlider(), { start + 30, start + 60 });
    QVERIFY(combo.intValue() > std::numeric_limits<int>::min());

    combo.setIntMinimum(-1);
    combo.setIntMaximum(std::numeric_limits<int>::max());
    QVERIFY(!window.window.grab().isNull());
}

QTEST_MAIN(TestDoubleComboSlider)
#include "tst_doublecomboslider.moc"
