#include "featuretree/twomodedoublecomboslider.h"
#include "featuretree/zarvexqtdoublespinbox.h"
#include "valuewidgettestsupport.h"

#include <QLineEdit>
#include <QSlider>
#include <QVBoxLayout>
#include <QtTest>

#include <cmath>
#include <limits>

using namespace ValueWidgetTest;

using Mode = TwoModeDoubleComboSlider::ETwoModeDoubleComboSliderMode;

// Opens the widget's parts to the test.
class TwoModeProbe : public TwoModeDoubleComboSlider
{
public:
    using TwoModeDoubleComboSlider::TwoModeDoubleComboSlider;
    QSlider* theSlider() const { return slider; }
    ZarvexQtDoubleSpinBox* theSpinBox() const { return spinBox; }
    double theLogPerPosition() const { return logPerPosition; }
    bool isUpdateEnabled() const { return updateEnabled; }
};

// A window around one slider and a line edit to move the focus to.
struct Window
{
    QWidget window;
    TwoModeProbe* combo;
    QLineEdit* other;

    explicit Window(Mode mode)
    {
        auto* layout = new QVBoxLayout(&window);
        combo = new TwoModeProbe(nullptr, mode);
        other = new QLineEdit;
        layout->addWidget(combo);
        layout->addWidget(other);
        window.resize(400, 80);
    }
};

class TestTwoModeDoubleComboSlider : public QObject
{
    Q_OBJECT

private slots:
    void initialState();
    void positionsOfARangeOf1To1024();
    void aSetValueComesBackExactly();
    void everyValueComesBackExactly_data();
    void everyValueComesBackExactly();
    void theTopPositionStaysInsideTheRange();
    void aSetThatDoesNotMoveTheSliderEmitsNothing();
    void userMovesEmitMappedValues();
    void logarithmicSteps_data();
    void logarithmicSteps();
    void linearStepsAreTheBase();
    void setModeAloneReLaysNothing();
    void logarithmicRangeSetters();
    void logarithmicPageStep_data();
    void logarithmicPageStep();
    void trimSliderValueOnLogicalValues();
    void linearModeIsTheBase();
    void editingFinishedIsForwarded();
    void propertiesUseTheMode();
    void anyModeValueOtherThanOneIsLinear_data();
    void anyModeValueOtherThanOneIsLinear();
};

void TestTwoModeDoubleComboSlider::initialState()
{
    TwoModeProbe linear;
    QCOMPARE(linear.mode(), TwoModeDoubleComboSlider::ModeLinear);
    TwoModeProbe logarithmic(nullptr, TwoModeDoubleComboSlider::ModeLogarithmic);
    QCOMPARE(logarithmic.mode(), TwoModeDoubleComboSlider::ModeLogarithmic);
    QCOMPARE(logarithmic.intMinimum(), 0);
    QCOMPARE(logarithmic.intMaximum(), 0);
    QCOMPARE(logarithmic.theLogPerPosition(), 0.0);
    // Until initControls the slider keeps the base's range.
    QCOMPARE(logarithmic.theSlider()->minimum(), std::numeric_limits<int>::min());
}

void TestTwoModeDoubleComboSlider::positionsOfARangeOf1To1024()
{
    TwoModeProbe combo(nullptr, TwoModeDoubleComboSlider::ModeLogarithmic);
    combo.initControls(1.0, 1024.0, 1, 1, 1024, 1);
    QCOMPARE(combo.theSlider()->minimum(), 0);
    QCOMPARE(combo.theSlider()->maximum(), 100000);
    QCOMPARE(combo.theLogPerPosition(), 0.0001);
    QCOMPARE(combo.transformLogarithmic(32), 50000.0);
    QCOMPARE(combo.transformLinear(50000), 32.0);

    combo.setIntValue(32);
    QCOMPARE(combo.theSlider()->value(), 50000);
    QCOMPARE(combo.transformLinear(0), 1.0);
    QCOMPARE(combo.transformLinear(100000), 1024.0);
    QCOMPARE(combo.transformLinear(10000), 2.0);
}

void TestTwoModeDoubleComboSlider::aSetValueComesBackExactly()
{
    TwoModeProbe combo(nullptr, TwoModeDoubleComboSlider::ModeLogarithmic);
    combo.initControls(1.0, 1e6, 1, 1, 1000000, 1);
    QSignalSpy spy(&combo, SIGNAL(valueChanged(int)));

    combo.setIntValue(1000);
    QVERIFY(combo.theSlider()->value() > 0);
    QCOMPARE(combo.intValue(), 1000);
    QCOMPARE(combo.intValue(), 1000); // and not just once
    QCOMPARE(combo.property("intValue").toInt(), 1000);
    QCOMPARE(spy.count(), 1);
    QCOMPARE(spy.at(0).at(0).toInt(), 1000);

    // A value whose position alone does not give it back.
    int lost = 0;
    for (int value = 1001; value < 1000000 && lost == 0; ++value) {
        if (int(combo.transformLinear(int(combo.transformLogarithmic(value)))) != value)
            lost = value;
    }
    QVERIFY(lost != 0);
    combo.setIntValue(lost);
    QCOMPARE(combo.intValue(), lost);
    QCOMPARE(spy.last().at(0).toInt(), lost);
}

void TestTwoModeDoubleComboSlider::everyValueComesBackExactly_data()
{
    QTest::addColumn<int>("minimum");
    QTest::addColumn<int>("maximum");
    QTest::addColumn<int>("stride");

    QTest::newRow("1..1024") << 1 << 1024 << 1;
    QTest::newRow("0..1000, 0 as minimum") << 0 << 1000 << 1;
    QTest::newRow("0..100000, 0 as minimum") << 0 << 100000 << 7;
    QTest::newRow("5..5000") << 5 << 5000 << 1;
    QTest::newRow("1..1000000") << 1 << 1000000 << 37;
    QTest::newRow("10..10000000") << 10 << 10000000 << 499;
    QTest::newRow("1..int max") << 1 << std::numeric_limits<int>::max() << 104729;
    QTest::newRow("narrow 1000..1010") << 1000 << 1010 << 1;
}

void TestTwoModeDoubleComboSlider::everyValueComesBackExactly()
{
    QFETCH(int, minimum);
    QFETCH(int, maximum);
    QFETCH(int, stride);

    TwoModeProbe combo(nullptr, TwoModeDoubleComboSlider::ModeLogarithmic);
    combo.initControls(0.0, 1e10, minimum, minimum, maximum, 1);
    QSignalSpy spy(&combo, SIGNAL(valueChanged(int)));

    auto check = [&](int value) {
        const int emittedBefore = spy.count();
        const int positionBefore = combo.theSlider()->value();
        combo.setIntValue(value);
        if (combo.intValue() != value)
            return false;
        // When the slider moved, its signal carried the value that was set.
        if (combo.theSlider()->value() != positionBefore)
            return spy.count() == emittedBefore + 1 && spy.last().at(0).toInt() == value;
        return spy.count() == emittedBefore;
    };
    qint64 checked = 0;
    for (qint64 value = minimum; value <= maximum; value += stride) {
        if (!check(int(value)))
            QFAIL(qPrintable(QStringLiteral("%1 did not come back").arg(value)));
        ++checked;
    }
    if (!check(maximum))
        QFAIL("the maximum did not come back");
    if (!check(minimum))
        QFAIL("the minimum did not come back");
    QVERIFY(checked > 10);
}

void TestTwoModeDoubleComboSlider::theTopPositionStaysInsideTheRange()
{
    const QVector<int> minima { 1, 2, 3, 7, 10, 99, 1000 };
    const QVector<int> maxima { 1023, 1025, 3000, 99999, 1000000, 12345679, 2000000000,
        std::numeric_limits<int>::max() };
    int overshoots = 0;
    for (int minimum : minima) {
        for (int maximum : maxima) {
            TwoModeProbe combo(nullptr, TwoModeDoubleComboSlider::ModeLogarithmic);
            combo.initControls(0.0, 1.0, minimum, minimum, maximum, 1);
            const double top = combo.transformLinear(100000);
            QVERIFY2(top <= maximum, qPrintable(QStringLiteral("%1..%2 gives %3").arg(minimum).arg(maximum).arg(top)));
            combo.theSlider()->setValue(100000);
            QVERIFY(combo.intValue() <= maximum);
            QVERIFY(combo.intValue() >= maximum - 1);
            // Count where the unclamped mapping lands above the maximum, so that the clamp is exercised.
            const double unclamped = std::exp2(std::fma(100000.0, combo.theLogPerPosition(), std::log2(minimum)));
            if (unclamped > maximum)
                ++overshoots;
        }
    }
    QVERIFY(overshoots > 0);
}

void TestTwoModeDoubleComboSlider::aSetThatDoesNotMoveTheSliderEmitsNothing()
{
    TwoModeProbe combo(nullptr, TwoModeDoubleComboSlider::ModeLogarithmic);
    combo.initControls(0.0, 1e10, 1, 1, std::numeric_limits<int>::max(), 1);
    combo.setIntValue(1000000000);
    const int position = combo.theSlider()->value();
    QSignalSpy spy(&combo, SIGNAL(valueChanged(int)));
    combo.setIntValue(1000000001);
    QCOMPARE(combo.theSlider()->value(), position); // one position spans thousands of values here
    QCOMPARE(spy.count(), 0);
    QCOMPARE(combo.intValue(), 1000000001);
}

void TestTwoModeDoubleComboSlider::userMovesEmitMappedValues()
{
    Window window(TwoModeDoubleComboSlider::ModeLogarithmic);
    TwoModeProbe& combo = *window.combo;
    combo.initControls(1.0, 1024.0, 32, 1, 1024, 1);
    QVERIFY(showActive(&window.window));
    QSignalSpy spy(&combo, SIGNAL(valueChanged(int)));

    const int start = handleCentre(combo.theSlider()).x();
    dragHandle(combo.theSlider(), { start + 15, start + 40 });
    QVERIFY(spy.count() >= 1);
    const int position = combo.theSlider()->value();
    QVERIFY(position > 50000);
    const int expected = int(combo.transformLinear(position));
    QCOMPARE(spy.last().at(0).toInt(), expected);
    QCOMPARE(combo.intValue(), expected);

    // The set value is gone once the user moved the slider: back at 32's
    // position, the mapping speaks.
    combo.setIntValue(33);
    combo.theSlider()->triggerAction(QAbstractSlider::SliderSingleStepAdd);
    QCOMPARE(spy.last().at(0).toInt(), int(combo.transformLinear(combo.theSlider()->value())));
    combo.theSlider()->triggerAction(QAbstractSlider::SliderSingleStepSub);
    QCOMPARE(combo.intValue(), int(combo.transformLinear(combo.theSlider()->value())));
}

void TestTwoModeDoubleComboSlider::logarithmicSteps_data()
{
    QTest::addColumn<double>("start");
    QTest::addColumn<int>("key");
    QTest::addColumn<double>("target");
    QTest::addColumn<double>("shown");

    QTest::newRow("up from 10") << 10.0 << int(Qt::Key_Up) << 11.6 << 12.0;
    QTest::newRow("down from 10") << 10.0 << int(Qt::Key_Down) << 9.4 << 9.0;
    QTest::newRow("up from 1000") << 1000.0 << int(Qt::Key_Up) << 1010.5 << 1011.0;
    QTest::newRow("down from 1000") << 1000.0 << int(Qt::Key_Down) << 990.5 << 990.0;
    QTest::newRow("page up from 1000 is ten percent") << 1000.0 << int(Qt::Key_PageUp) << 1100.5 << 1101.0;
    QTest::newRow("page down from 1000") << 1000.0 << int(Qt::Key_PageDown) << 900.5 << 900.0;
}

void TestTwoModeDoubleComboSlider::logarithmicSteps()
{
    QFETCH(double, start);
    QFETCH(int, key);
    QFETCH(double, target);
    QFETCH(double, shown);

    Window window(TwoModeDoubleComboSlider::ModeLogarithmic);
    TwoModeProbe& combo = *window.combo;
    combo.initControls(1.0, 1e6, int(start), 1, 1000000, 1);
    combo.setValue(start);
    QVERIFY(showActive(&window.window));
    combo.theSpinBox()->setFocus();
    QVERIFY(!combo.isUpdateEnabled());
    QSignalSpy spy(&combo, SIGNAL(valueChanged(int)));

    QTest::keyClick(combo.theSpinBox(), Qt::Key(key));
    QCOMPARE(combo.value(), shown);
    QCOMPARE(combo.theSpinBox()->text(), QString::number(shown, 'f', 2));
    QCOMPARE(combo.theSlider()->value(), int(combo.transformLogarithmic(target)));
    QVERIFY(combo.isUpdateEnabled());
    QCOMPARE(spy.count(), 1);
    QCOMPARE(spy.at(0).at(0).toInt(), int(combo.transformLinear(combo.theSlider()->value())));
}

void TestTwoModeDoubleComboSlider::linearStepsAreTheBase()
{
    Window window(TwoModeDoubleComboSlider::ModeLinear);
    TwoModeProbe& combo = *window.combo;
    combo.initControls(0.0, 100.0, 500, 0, 1000, 5);
    combo.setValue(50.0);
    QVERIFY(showActive(&window.window));
    QSignalSpy spy(&combo, SIGNAL(valueChanged(int)));

    combo.theSpinBox()->setFocus();
    QTest::keyClick(combo.theSpinBox(), Qt::Key_Up);
    QCOMPARE(combo.intValue(), 505);
    QTest::keyClick(combo.theSpinBox(), Qt::Key_PageDown);
    QCOMPARE(combo.intValue(), 455);
    QCOMPARE(combo.value(), 50.0);
    QCOMPARE(spy.count(), 2);
    QCOMPARE(spy.at(0).at(0).toInt(), 505);
    QCOMPARE(spy.at(1).at(0).toInt(), 455);
}

void TestTwoModeDoubleComboSlider::setModeAloneReLaysNothing()
{
    TwoModeProbe combo;
    combo.initControls(0.0, 10.0, 300, 0, 1000, 1);
    QSignalSpy spy(&combo, SIGNAL(valueChanged(int)));
    combo.setMode(TwoModeDoubleComboSlider::ModeLogarithmic);
    QCOMPARE(combo.mode(), TwoModeDoubleComboSlider::ModeLogarithmic);
    QCOMPARE(combo.theSlider()->minimum(), 0);
    QCOMPARE(combo.theSlider()->maximum(), 1000);
    QCOMPARE(combo.theSlider()->value(), 300);
    QCOMPARE(spy.count(), 0);

    combo.initControls(0.0, 10.0, 300, 1, 1000, 1);
    QCOMPARE(combo.theSlider()->maximum(), 100000);
    QCOMPARE(combo.intMinimum(), 1);
    QCOMPARE(combo.intMaximum(), 1000);
    QCOMPARE(combo.intValue(), 300);

    combo.setMode(TwoModeDoubleComboSlider::ModeLinear);
    QCOMPARE(combo.theSlider()->maximum(), 100000);
    QCOMPARE(combo.intMaximum(), 100000);
    combo.initControls(0.0, 10.0, 300, 0, 1000, 1);
    QCOMPARE(combo.theSlider()->maximum(), 1000);
    QCOMPARE(combo.intValue(), 300);
}

void TestTwoModeDoubleComboSlider::logarithmicRangeSetters()
{
    TwoModeProbe combo(nullptr, TwoModeDoubleComboSlider::ModeLogarithmic);
    combo.initControls(0.0, 10.0, 1, 1, 1024, 1);
    QSignalSpy spy(&combo, SIGNAL(rangeChanged(int, int)));
    QSignalSpy values(&combo, SIGNAL(valueChanged(int)));
    const int position = combo.theSlider()->value();

    combo.setIntMaximum(4096);
    QCOMPARE(combo.theLogPerPosition(), 12.0 / 100000);
    combo.setIntMinimum(4);
    QCOMPARE(combo.theLogPerPosition(), 10.0 / 100000);
    combo.setIntRange(2, 2048);
    QCOMPARE(combo.intMinimum(), 2);
    QCOMPARE(combo.intMaximum(), 2048);
    QCOMPARE(combo.transformLinear(0), 2.0);
    QCOMPARE(combo.transformLinear(100000), 2048.0);

    QCOMPARE(spy.count(), 3);
    QCOMPARE(spy.at(0), (QList<QVariant> { 1, 4096 }));
    QCOMPARE(spy.at(1), (QList<QVariant> { 4, 4096 }));
    QCOMPARE(spy.at(2), (QList<QVariant> { 2, 2048 }));
    // The slider is not touched.
    QCOMPARE(combo.theSlider()->minimum(), 0);
    QCOMPARE(combo.theSlider()->maximum(), 100000);
    QCOMPARE(combo.theSlider()->value(), position);
    // Nor does the float half report anything as an integer value.
    combo.setValue(5.0);
    combo.setRange(1.0, 2.0);
    QCOMPARE(values.count(), 0);
}

void TestTwoModeDoubleComboSlider::logarithmicPageStep_data()
{
    QTest::addColumn<int>("increment");
    QTest::addColumn<int>("expected");
    QTest::newRow("by 1") << 1 << 5000;
    QTest::newRow("by 3000: two increments") << 3000 << 6000;
    QTest::newRow("by 7: trimmed from position 0") << 7 << 4998;
}

void TestTwoModeDoubleComboSlider::logarithmicPageStep()
{
    QFETCH(int, increment);
    QFETCH(int, expected);
    TwoModeProbe combo(nullptr, TwoModeDoubleComboSlider::ModeLogarithmic);
    combo.initControls(0.0, 10.0, 10, 10, 100000000, increment);
    QCOMPARE(combo.theSlider()->singleStep(), 1);
    QCOMPARE(combo.theSlider()->pageStep(), expected);
}

void TestTwoModeDoubleComboSlider::trimSliderValueOnLogicalValues()
{
    TwoModeProbe combo(nullptr, TwoModeDoubleComboSlider::ModeLogarithmic);
    combo.initControls(0.0, 10.0, 10, 3, 10000, 10);
    QCOMPARE(combo.trimSliderValue(57), 53);
    QCOMPARE(combo.trimSliderValue(53), 53);
    combo.setIntIncrement(0);
    QCOMPARE(combo.trimSliderValue(57), 57);

    TwoModeProbe linear;
    linear.initControls(0.0, 10.0, 10, 3, 10000, 10);
    QCOMPARE(linear.trimSliderValue(57), 53);
    linear.setIntRange(5, 10000);
    QCOMPARE(linear.trimSliderValue(57), 55);
}

void TestTwoModeDoubleComboSlider::linearModeIsTheBase()
{
    TwoModeProbe combo;
    combo.initControls(0.0, 10.0, 40, -100, 100, 2);
    QSignalSpy spy(&combo, SIGNAL(valueChanged(int)));
    QCOMPARE(combo.intMinimum(), -100);
    QCOMPARE(combo.intMaximum(), 100);
    QCOMPARE(combo.theSlider()->singleStep(), 2);
    combo.setIntValue(-7);
    QCOMPARE(combo.intValue(), -7);
    QCOMPARE(combo.theSlider()->value(), -7);
    QCOMPARE(spy.count(), 1);
    QCOMPARE(spy.at(0).at(0).toInt(), -7);
    combo.setIntMaximum(50);
    combo.setIntMinimum(-50);
    QCOMPARE(combo.theSlider()->minimum(), -50);
    QCOMPARE(combo.theSlider()->maximum(), 50);
}

void TestTwoModeDoubleComboSlider::editingFinishedIsForwarded()
{
    Window window(TwoModeDoubleComboSlider::ModeLinear);
    TwoModeProbe& combo = *window.combo;
    combo.initControls(0.0, 100.0, 0, 0, 100, 1);
    QVERIFY(showActive(&window.window));
    QSignalSpy spy(&combo, SIGNAL(editingFinished()));

    retype(combo.theSpinBox(), QStringLiteral("12.5"));
    QTest::keyClick(combo.theSpinBox(), Qt::Key_Return);
    QCOMPARE(spy.count(), 1);
    QCOMPARE(combo.value(), 12.5);
    window.other->setFocus();
    QCOMPARE(spy.count(), 2); // leaving the box finishes again, as QAbstractSpinBox does
}

void TestTwoModeDoubleComboSlider::propertiesUseTheMode()
{
    TwoModeProbe combo(nullptr, TwoModeDoubleComboSlider::ModeLogarithmic);
    combo.initControls(0.0, 10.0, 1, 1, 1024, 1);
    QVERIFY(combo.setProperty("intValue", 777));
    QCOMPARE(combo.property("intValue").toInt(), 777);
    QCOMPARE(combo.property("intMinimum").toInt(), 1);
    QCOMPARE(combo.property("intMaximum").toInt(), 1024);
    QCOMPARE(combo.property("mode").value<Mode>(), TwoModeDoubleComboSlider::ModeLogarithmic);
    QVERIFY(combo.setProperty("mode", QVariant::fromValue(TwoModeDoubleComboSlider::ModeLinear)));
    QCOMPARE(combo.mode(), TwoModeDoubleComboSlider::ModeLinear);
}

void TestTwoModeDoubleComboSlider::anyModeValueOtherThanOneIsLinear_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<bool>("logarithmic");
    QTest::newRow("0, linear") << 0 << false;
    QTest::newRow("1, logarithmic") << 1 << true;
    QTest::newRow("2") << 2 << false;
    QTest::newRow("-1") << -1 << false;
    QTest::newRow("99") << 99 << false;
    QTest::newRow("INT_MAX") << std::numeric_limits<int>::max() << false;
    QTest::newRow("INT_MIN") << std::numeric_limits<int>::min() << false;
}

// A host keeps the mode as an int (a QVariant, a setting, a Designer
// property). Any int is a value of the mode and comes back unchanged; only 1
// is logarithmic, in the constructor, in setMode() and through the property.
void TestTwoModeDoubleComboSlider::anyModeValueOtherThanOneIsLinear()
{
    QFETCH(int, mode);
    QFETCH(bool, logarithmic);
    const int sliderTop = logarithmic ? 100000 : 1024;

    TwoModeProbe constructed(nullptr, static_cast<Mode>(mode));
    QCOMPARE(int(constructed.mode()), mode);
    constructed.initControls(1.0, 1024.0, 1, 1, 1024, 1);
    QCOMPARE(constructed.theSlider()->maximum(), sliderTop);
    constructed.setIntValue(32);
    QCOMPARE(constructed.intValue(), 32);

    TwoModeProbe set;
    set.setMode(static_cast<Mode>(mode));
    QCOMPARE(int(set.mode()), mode);
    set.initControls(1.0, 1024.0, 1, 1, 1024, 1);
    QCOMPARE(set.theSlider()->maximum(), sliderTop);

    TwoModeProbe property;
    QVERIFY(property.setProperty("mode", mode));
    QCOMPARE(property.property("mode").toInt(), mode);
    property.initControls(1.0, 1024.0, 1, 1, 1024, 1);
    QCOMPARE(property.theSlider()->maximum(), sliderTop);
}

QTEST_MAIN(TestTwoModeDoubleComboSlider)
#include "tst_twomodedoublecomboslider.moc"
