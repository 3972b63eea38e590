#include "featuretree/comboslider.h"
#include "featuretree/sliderspanguard.h"
#include "featuretree/zarvexqtspinbox.h"
#include "valuewidgettestsupport.h"

#include <QDialog>
#include <QDialogButtonBox>
#include <QLineEdit>
#include <QPushButton>
#include <QSlider>
#include <QVBoxLayout>
#include <QtTest>

#include <limits>

using namespace ValueWidgetTest;

// Opens the widget's parts to the test.
class ComboSliderProbe : public ComboSlider
{
public:
    using ComboSlider::ComboSlider;
    QSlider* theSlider() const { return slider; }
    ZarvexQtSpinBox* theSpinBox() const { return spinBox; }
    bool isUpdateEnabled() const { return updateEnabled; }
};

// A dialog around one combo slider and a line edit to move the focus to.
struct Window
{
    QDialog dialog;
    ComboSliderProbe* combo;
    QLineEdit* other;
    QPushButton* okButton;

    Window()
    {
        auto* layout = new QVBoxLayout(&dialog);
        combo = new ComboSliderProbe;
        other = new QLineEdit;
        auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
        okButton = buttons->button(QDialogButtonBox::Ok);
        okButton->setDefault(true);
        QObject::connect(buttons, SIGNAL(accepted()), &dialog, SLOT(accept()));
        QObject::connect(buttons, SIGNAL(rejected()), &dialog, SLOT(reject()));
        layout->addWidget(combo);
        layout->addWidget(other);
        layout->addWidget(buttons);
        dialog.resize(400, 120);
    }

    //! Sets range, step and value, then shows the dialog active.
    bool showWith(int minimum, int maximum, int step, int value)
    {
        combo->setRangeAndStep(minimum, maximum, step);
        combo->setValue(value);
        return showActive(&dialog);
    }
};

class TestComboSlider : public QObject
{
    Q_OBJECT

private slots:
    void initialState();
    void setValueSnapsDownOntoTheGrid_data();
    void setValueSnapsDownOntoTheGrid();
    void setValueEmitsNothing();
    void highestReachableValueLiesOnTheGrid();
    void stepZeroMeansNoGrid();
    void dragEmitsOnlyGridValues_data();
    void dragEmitsOnlyGridValues();
    void typedValueIsSnappedWhenLeavingTheBox();
    void finishingAnEditWithoutChangeEmitsNothing();
    void escapeUndoesTheEditAndStaysInside();
    void returnCommitsAndStaysInside();
    void pageKeyThenMouseStep();
    void pageKeysUsePageStepBothWays();
    void wheelStepReachesTheSliderAtOnce();
    void sliderKeysAndWheelEmitOnlyGridValues();
    void enableUpdateSilencesUserChanges();
    void rangeSettersEmitRangeAndNoValue_data();
    void rangeSettersEmitRangeAndNoValue();
    void rangeSetterOrderOfWrites();
    void toolTip_data();
    void toolTip();
    void propertiesReadTheSlider();
    void wholeIntRangeSnapsDown();
    void survivesRangesQtCannotPaint_data();
    void survivesRangesQtCannotPaint();
};

void TestComboSlider::initialState()
{
    ComboSliderProbe combo;
    QCOMPARE(combo.theSlider()->orientation(), Qt::Horizontal);
    QCOMPARE(combo.theSpinBox()->pageStep, 10);
    QCOMPARE(combo.theSpinBox()->pageKeyPressed, false);
    QVERIFY(combo.isUpdateEnabled());
    QCOMPARE(combo.theSpinBox()->sizePolicy().horizontalPolicy(), QSizePolicy::Fixed);
    QCOMPARE(combo.theSlider()->sizePolicy().horizontalStretch(), 10);
    QCOMPARE(combo.theSlider()->sizePolicy().verticalPolicy(), QSizePolicy::Fixed);
    QCOMPARE(combo.layout()->contentsMargins(), QMargins(0, 1, 0, 1));
    QCOMPARE(combo.layout()->indexOf(combo.theSpinBox()), 0);
    QCOMPARE(combo.layout()->indexOf(combo.theSlider()), 1);

    // The edit box has room for twelve digits whatever the range.
    const int width = combo.property("editBoxWidth").toInt();
    QCOMPARE(combo.theSpinBox()->minimumWidth(), width);
    QVERIFY(width > combo.theSpinBox()->fontMetrics().horizontalAdvance(QStringLiteral("999999999999")));
    combo.setEditBoxWidth(200);
    QCOMPARE(combo.property("editBoxWidth").toInt(), 200);
    QCOMPARE(combo.theSpinBox()->minimumWidth(), 200);
    QVERIFY(combo.setProperty("editBoxWidth", 150));
    QCOMPARE(combo.theSpinBox()->minimumWidth(), 150);
}

void TestComboSlider::setValueSnapsDownOntoTheGrid_data()
{
    QTest::addColumn<int>("minimum");
    QTest::addColumn<int>("maximum");
    QTest::addColumn<int>("step");
    QTest::addColumn<int>("input");
    QTest::addColumn<int>("expected");

    QTest::newRow("7 on a grid of 5 from 0") << 0 << 100 << 5 << 7 << 5;
    QTest::newRow("-3 below 0 clamps to 0") << 0 << 100 << 5 << -3 << 0;
    QTest::newRow("on the grid stays") << 0 << 100 << 5 << 10 << 10;
    QTest::newRow("just below a grid value") << 0 << 100 << 5 << 14 << 10;
    QTest::newRow("above maximum clamps, then snaps") << 1 << 10 << 4 << 50 << 9;
    QTest::newRow("grid starts at the minimum") << 3 << 100 << 10 << 27 << 23;
    QTest::newRow("negative minimum") << -10 << 10 << 3 << 0 << -1;
    QTest::newRow("negative values snap down") << -10 << 10 << 3 << -6 << -7;
}

void TestComboSlider::setValueSnapsDownOntoTheGrid()
{
    QFETCH(int, minimum);
    QFETCH(int, maximum);
    QFETCH(int, step);
    QFETCH(int, input);
    QFETCH(int, expected);

    ComboSliderProbe combo;
    combo.setRangeAndStep(minimum, maximum, step);
    combo.setValue(input);
    QCOMPARE(combo.value(), expected);
    QCOMPARE(combo.theSlider()->value(), expected);
    QCOMPARE(combo.theSpinBox()->value(), expected);
    QCOMPARE(combo.theSpinBox()->text(), QString::number(expected));
    QCOMPARE(combo.trimValue(input), expected);
}

void TestComboSlider::setValueEmitsNothing()
{
    ComboSliderProbe combo;
    combo.setRangeAndStep(0, 100, 5);
    QSignalSpy spy(&combo, SIGNAL(valueChanged(int)));
    combo.setValue(40);
    combo.setValue(7);
    combo.setValue(1000);
    QVERIFY(combo.setProperty("value", 20));
    QCOMPARE(combo.value(), 20);
    QCOMPARE(spy.count(), 0);
    QVERIFY(combo.isUpdateEnabled());
}

void TestComboSlider::highestReachableValueLiesOnTheGrid()
{
    Window window;
    ComboSliderProbe& combo = *window.combo;
    combo.setRangeAndStep(1, 10, 4);
    QVERIFY(showActive(&window.dialog));
    QSignalSpy spy(&combo, SIGNAL(valueChanged(int)));

    combo.setValue(10);
    QCOMPARE(combo.value(), 9);

    // Stepping up from 1 by keys: 5, 9, and then 9 again instead of 10.
    combo.setValue(1);
    combo.theSpinBox()->setFocus();
    QTest::keyClick(combo.theSpinBox(), Qt::Key_Up);
    QTest::keyClick(combo.theSpinBox(), Qt::Key_Up);
    QTest::keyClick(combo.theSpinBox(), Qt::Key_Up);
    QCOMPARE(combo.value(), 9);
    QCOMPARE(combo.theSpinBox()->value(), 9);

    // The slider's end also gives 9.
    combo.theSlider()->triggerAction(QAbstractSlider::SliderToMaximum);
    QCOMPARE(combo.value(), 9);
    for (const QList<QVariant>& emitted : spy)
        QVERIFY2(emitted.at(0).toInt() != 10, "10 is off the grid and was emitted");
    QVERIFY(!spy.isEmpty());
    QCOMPARE(spy.last().at(0).toInt(), 9);
}

void TestComboSlider::stepZeroMeansNoGrid()
{
    ComboSliderProbe combo;
    combo.setRangeAndStep(-5, 10, 0);
    for (int v = -5; v <= 10; ++v) {
        combo.setValue(v);
        QCOMPARE(combo.value(), v);
        QCOMPARE(combo.theSpinBox()->value(), v);
    }
    QCOMPARE(combo.toolTip(), QStringLiteral("Range: -5..10 (Increment: 0)"));
}

void TestComboSlider::dragEmitsOnlyGridValues_data()
{
    QTest::addColumn<int>("minimum");
    QTest::addColumn<int>("maximum");
    QTest::addColumn<int>("step");

    QTest::newRow("0..100 by 10") << 0 << 100 << 10;
    QTest::newRow("3..200 by 7") << 3 << 200 << 7;
    QTest::newRow("-50..50 by 6") << -50 << 50 << 6;
}

void TestComboSlider::dragEmitsOnlyGridValues()
{
    QFETCH(int, minimum);
    QFETCH(int, maximum);
    QFETCH(int, step);

    Window window;
    ComboSliderProbe& combo = *window.combo;
    QVERIFY(window.showWith(minimum, maximum, step, minimum));

    // A plain slider of the same geometry and range takes the same gesture and
    // tells which raw value the pointer ended on.
    QSlider plain(Qt::Horizontal);
    plain.setRange(minimum, maximum);
    plain.setValue(minimum);
    plain.setGeometry(combo.theSlider()->geometry());
    plain.show();

    const int width = combo.theSlider()->width();
    int endX = -1;
    for (int x = width / 3; x < width; ++x) {
        plain.setValue(minimum);
        dragHandle(&plain, { x });
        if ((plain.value() - minimum) % step != 0) {
            endX = x;
            break;
        }
    }
    QVERIFY2(endX > 0, "no pointer position ends between two grid values");
    const int raw = plain.value();
    const int expected = raw - (raw - minimum) % step;

    QSignalSpy spy(&combo, SIGNAL(valueChanged(int)));
    QVector<int> path;
    for (int x = handleCentre(combo.theSlider()).x() + 1; x <= endX; ++x)
        path << x;
    dragHandle(combo.theSlider(), path);

    QVERIFY(spy.count() > 1);
    for (const QList<QVariant>& emitted : spy)
        QCOMPARE((emitted.at(0).toInt() - minimum) % step, 0);
    QCOMPARE(spy.last().at(0).toInt(), expected);
    QCOMPARE(combo.value(), expected);
    QCOMPARE(combo.theSpinBox()->value(), expected);
}

void TestComboSlider::typedValueIsSnappedWhenLeavingTheBox()
{
    Window window;
    ComboSliderProbe& combo = *window.combo;
    QVERIFY(window.showWith(0, 100, 5, 50));
    QSignalSpy spy(&combo, SIGNAL(valueChanged(int)));

    combo.theSpinBox()->setFocus();
    QVERIFY(combo.theSpinBox()->hasFocus());
    retype(combo.theSpinBox(), QStringLiteral("37"));
    QCOMPARE(combo.theSpinBox()->text(), QStringLiteral("37"));
    QCOMPARE(spy.count(), 0); // typing alone commits nothing

    window.other->setFocus();
    QCOMPARE(combo.theSpinBox()->text(), QStringLiteral("35"));
    QCOMPARE(combo.value(), 35);
    QCOMPARE(spy.count(), 1);
    QCOMPARE(spy.at(0).at(0).toInt(), 35);
}

void TestComboSlider::finishingAnEditWithoutChangeEmitsNothing()
{
    Window window;
    ComboSliderProbe& combo = *window.combo;
    QVERIFY(window.showWith(0, 100, 5, 50));
    QSignalSpy spy(&combo, SIGNAL(valueChanged(int)));

    combo.theSpinBox()->setFocus();
    window.other->setFocus();
    retype(combo.theSpinBox(), QStringLiteral("52")); // snaps back onto 50
    window.other->setFocus();
    QCOMPARE(combo.theSpinBox()->text(), QStringLiteral("50"));
    QCOMPARE(spy.count(), 0);
}

void TestComboSlider::escapeUndoesTheEditAndStaysInside()
{
    Window window;
    ComboSliderProbe& combo = *window.combo;
    QVERIFY(window.showWith(0, 100, 1, 42));
    QSignalSpy rejected(&window.dialog, SIGNAL(rejected()));
    QSignalSpy spy(&combo, SIGNAL(valueChanged(int)));

    retype(combo.theSpinBox(), QStringLiteral("77"));
    QCOMPARE(combo.theSpinBox()->text(), QStringLiteral("77"));

    QTest::keyClick(combo.theSpinBox(), Qt::Key_Escape);
    QCOMPARE(combo.theSpinBox()->text(), QStringLiteral("42"));
    QCOMPARE(rejected.count(), 0);
    QVERIFY(window.dialog.isVisible());
    QVERIFY(combo.theSpinBox()->hasFocus());

    window.other->setFocus();
    QCOMPARE(combo.value(), 42);
    QCOMPARE(spy.count(), 0);
}

void TestComboSlider::returnCommitsAndStaysInside()
{
    Window window;
    ComboSliderProbe& combo = *window.combo;
    QVERIFY(window.showWith(0, 100, 1, 42));
    QSignalSpy accepted(&window.dialog, SIGNAL(accepted()));
    QSignalSpy spy(&combo, SIGNAL(valueChanged(int)));

    retype(combo.theSpinBox(), QStringLiteral("64"));
    QTest::keyClick(combo.theSpinBox(), Qt::Key_Return);
    QCOMPARE(spy.count(), 1);
    QCOMPARE(spy.at(0).at(0).toInt(), 64);
    QCOMPARE(combo.theSlider()->value(), 64);
    QTest::keyClick(combo.theSpinBox(), Qt::Key_Enter);
    QCOMPARE(accepted.count(), 0);
    QVERIFY(window.dialog.isVisible());
    QVERIFY(combo.theSpinBox()->hasFocus());
}

void TestComboSlider::pageKeyThenMouseStep()
{
    Window window;
    ComboSliderProbe& combo = *window.combo;
    combo.setRangeAndStep(0, 1000, 5);
    combo.setPageStep(4);
    combo.setValue(100);
    QVERIFY(showActive(&window.dialog));
    QSignalSpy spy(&combo, SIGNAL(valueChanged(int)));

    combo.theSpinBox()->setFocus();
    QTest::keyClick(combo.theSpinBox(), Qt::Key_PageUp);
    QCOMPARE(combo.value(), 120); // four single steps of 5
    QVERIFY(!combo.theSpinBox()->pageKeyPressed);

    QTest::mouseClick(
        combo.theSpinBox(), Qt::LeftButton, Qt::NoModifier, spinButtonCentre(combo.theSpinBox(), QStyle::SC_SpinBoxUp));
    QCOMPARE(combo.value(), 125);

    QCOMPARE(spy.count(), 2);
    QCOMPARE(spy.at(0).at(0).toInt(), 120);
    QCOMPARE(spy.at(1).at(0).toInt(), 125);
}

void TestComboSlider::pageKeysUsePageStepBothWays()
{
    Window window;
    ComboSliderProbe& combo = *window.combo;
    combo.setRangeAndStep(0, 1000, 1);
    combo.setPageStep(25);
    QCOMPARE(combo.pageStep(), 25);
    QCOMPARE(combo.theSlider()->pageStep(), 25);
    combo.setValue(500);
    QVERIFY(showActive(&window.dialog));

    combo.theSpinBox()->setFocus();
    QTest::keyClick(combo.theSpinBox(), Qt::Key_PageDown);
    QCOMPARE(combo.value(), 475);
    QTest::keyClick(combo.theSpinBox(), Qt::Key_PageDown);
    QCOMPARE(combo.value(), 450);
    QTest::keyClick(combo.theSpinBox(), Qt::Key_PageUp);
    QCOMPARE(combo.value(), 475);
    QTest::keyClick(combo.theSpinBox(), Qt::Key_Down);
    QCOMPARE(combo.value(), 474);
}

void TestComboSlider::wheelStepReachesTheSliderAtOnce()
{
    Window window;
    ComboSliderProbe& combo = *window.combo;
    QVERIFY(window.showWith(0, 100, 2, 50));
    QSignalSpy spy(&combo, SIGNAL(valueChanged(int)));

    combo.theSpinBox()->setFocus();
    wheel(combo.theSpinBox(), 1);
    QCOMPARE(combo.theSlider()->value(), 52);
    QCOMPARE(spy.count(), 1);
    wheel(combo.theSpinBox(), -2);
    QCOMPARE(combo.theSlider()->value(), 48);
    QCOMPARE(spy.last().at(0).toInt(), 48);
}

void TestComboSlider::sliderKeysAndWheelEmitOnlyGridValues()
{
    Window window;
    ComboSliderProbe& combo = *window.combo;
    QVERIFY(window.showWith(0, 100, 5, 35));
    combo.setPageStep(7); // a page that leaves the grid
    QSignalSpy spy(&combo, SIGNAL(valueChanged(int)));

    combo.theSlider()->setFocus();
    QTest::keyClick(combo.theSlider(), Qt::Key_PageUp); // 42, snapped to 40
    QCOMPARE(combo.value(), 40);
    QCOMPARE(combo.theSpinBox()->value(), 40);
    QTest::keyClick(combo.theSlider(), Qt::Key_Right); // one single step
    QCOMPARE(combo.value(), 45);
    wheel(combo.theSlider(), -1); // three single steps, bounded by the page: 38, snapped to 35
    QCOMPARE(combo.value(), 35);

    QCOMPARE(spy.count(), 3);
    QCOMPARE(spy.at(0).at(0).toInt(), 40);
    QCOMPARE(spy.at(1).at(0).toInt(), 45);
    QCOMPARE(spy.at(2).at(0).toInt(), 35);
}

void TestComboSlider::enableUpdateSilencesUserChanges()
{
    Window window;
    ComboSliderProbe& combo = *window.combo;
    QVERIFY(window.showWith(0, 100, 1, 50));
    QSignalSpy spy(&combo, SIGNAL(valueChanged(int)));
    combo.theSpinBox()->setFocus();

    combo.enableUpdate(false);
    QTest::keyClick(combo.theSpinBox(), Qt::Key_Up);
    QCOMPARE(combo.value(), 51);
    combo.theSlider()->triggerAction(QAbstractSlider::SliderSingleStepAdd);
    QCOMPARE(combo.value(), 52);
    QCOMPARE(spy.count(), 0);

    // A range setter restores only what was there before: still silent.
    combo.setRange(0, 200);
    combo.setMinimum(1);
    combo.setMaximum(150);
    combo.setRangeAndStep(0, 150, 1);
    QVERIFY(!combo.isUpdateEnabled());
    QTest::keyClick(combo.theSpinBox(), Qt::Key_Up);
    QCOMPARE(combo.value(), 53);
    QCOMPARE(spy.count(), 0);

    combo.enableUpdate(true);
    QTest::keyClick(combo.theSpinBox(), Qt::Key_Up);
    QCOMPARE(spy.count(), 1);
    QCOMPARE(spy.at(0).at(0).toInt(), 54);
}

void TestComboSlider::rangeSettersEmitRangeAndNoValue_data()
{
    QTest::addColumn<QString>("setter");
    QTest::addColumn<int>("expectedValue");
    QTest::addColumn<int>("expectedMin");
    QTest::addColumn<int>("expectedMax");

    // Before each: range 0..100, step 1, value 50.
    QTest::newRow("setMinimum clamps up") << "setMinimum" << 60 << 60 << 100;
    QTest::newRow("setMaximum clamps down") << "setMaximum" << 20 << 0 << 20;
    QTest::newRow("setRange clamps") << "setRange" << 70 << 70 << 90;
    QTest::newRow("setRangeAndStep clamps and snaps") << "setRangeAndStep" << 30 << 10 << 30;
}

void TestComboSlider::rangeSettersEmitRangeAndNoValue()
{
    QFETCH(QString, setter);
    QFETCH(int, expectedValue);
    QFETCH(int, expectedMin);
    QFETCH(int, expectedMax);

    ComboSliderProbe combo;
    combo.setRange(0, 100);
    combo.setValue(50);
    QSignalSpy values(&combo, SIGNAL(valueChanged(int)));
    QSignalSpy ranges(&combo, SIGNAL(rangeChanged(int, int)));

    if (setter == QLatin1String("setMinimum"))
        combo.setMinimum(60);
    else if (setter == QLatin1String("setMaximum"))
        combo.setMaximum(20);
    else if (setter == QLatin1String("setRange"))
        combo.setRange(70, 90);
    else
        combo.setRangeAndStep(10, 30, 20); // grid 10, 30: 30 is on it

    QCOMPARE(values.count(), 0);
    QCOMPARE(ranges.count(), 1);
    QCOMPARE(ranges.at(0).at(0).toInt(), expectedMin);
    QCOMPARE(ranges.at(0).at(1).toInt(), expectedMax);
    QCOMPARE(combo.minimum(), expectedMin);
    QCOMPARE(combo.maximum(), expectedMax);
    QCOMPARE(combo.theSpinBox()->minimum(), expectedMin);
    QCOMPARE(combo.theSpinBox()->maximum(), expectedMax);
    QCOMPARE(combo.value(), expectedValue);
    QCOMPARE(combo.theSpinBox()->value(), expectedValue);
    QVERIFY(combo.isUpdateEnabled());
}

void TestComboSlider::rangeSetterOrderOfWrites()
{
    // setRangeAndStep writes the step before the range, so a value clamped by
    // the new range already lands on the new grid.
    ComboSliderProbe combo;
    combo.setRange(0, 100);
    combo.setValue(99);
    combo.setRangeAndStep(0, 50, 20);
    QCOMPARE(combo.value(), 40);
    QCOMPARE(combo.singleStep(), 20);
    QCOMPARE(combo.theSpinBox()->singleStep(), 20);

    // setSingleStep does not re-snap the present value.
    combo.setSingleStep(15);
    QCOMPARE(combo.value(), 40);
    QCOMPARE(combo.toolTip(), QStringLiteral("Range: 0..50 (Increment: 15)"));
}

void TestComboSlider::toolTip_data()
{
    QTest::addColumn<int>("minimum");
    QTest::addColumn<int>("maximum");
    QTest::addColumn<int>("step");
    QTest::addColumn<QString>("expected");

    QTest::newRow("step 1 shows no increment") << 0 << 99 << 1 << "Range: 0..99";
    QTest::newRow("step 5") << 0 << 100 << 5 << "Range: 0..100 (Increment: 5)";
    QTest::newRow("negative") << -20 << -4 << 2 << "Range: -20..-4 (Increment: 2)";
    QTest::newRow("whole int range") << std::numeric_limits<int>::min() << std::numeric_limits<int>::max() << 1
                                     << "Range: -2147483648..2147483647";
}

void TestComboSlider::toolTip()
{
    QFETCH(int, minimum);
    QFETCH(int, maximum);
    QFETCH(int, step);
    QFETCH(QString, expected);

    ComboSliderProbe combo;
    QCOMPARE(combo.toolTip(), QStringLiteral("Range: 0..99"));
    combo.setRangeAndStep(minimum, maximum, step);
    QCOMPARE(combo.toolTip(), expected);

    ComboSliderProbe other;
    other.setRange(minimum, maximum);
    other.setSingleStep(step);
    QCOMPARE(other.toolTip(), expected);
}

void TestComboSlider::propertiesReadTheSlider()
{
    ComboSliderProbe combo;
    QVERIFY(combo.setProperty("minimum", -10));
    QVERIFY(combo.setProperty("maximum", 10));
    QVERIFY(combo.setProperty("singleStep", 2));
    QVERIFY(combo.setProperty("pageStep", 6));
    QVERIFY(combo.setProperty("value", 5));
    QCOMPARE(combo.property("minimum").toInt(), -10);
    QCOMPARE(combo.property("maximum").toInt(), 10);
    QCOMPARE(combo.property("singleStep").toInt(), 2);
    QCOMPARE(combo.property("pageStep").toInt(), 6);
    QCOMPARE(combo.property("value").toInt(), 4);
    QCOMPARE(combo.theSpinBox()->pageStep, 6);
}

void TestComboSlider::wholeIntRangeSnapsDown()
{
    const int lowest = std::numeric_limits<int>::min();
    const int highest = std::numeric_limits<int>::max();
    ComboSliderProbe combo;
    combo.setRangeAndStep(lowest, highest, 2);
    combo.setValue(1);
    QCOMPARE(combo.value(), 0);
    combo.setValue(highest);
    QCOMPARE(combo.value(), highest - 1);
    combo.setValue(lowest + 3);
    QCOMPARE(combo.value(), lowest + 2);

    // Every value of the range reads without group separators, the lowest one included.
    combo.setValue(lowest);
    QCOMPARE(combo.theSpinBox()->text(), QStringLiteral("-2147483648"));
    combo.setValue(highest);
    QCOMPARE(combo.theSpinBox()->text(), QStringLiteral("2147483646"));
    combo.theSpinBox()->setGroupSeparatorShown(true);
    QCOMPARE(combo.theSpinBox()->text(), QStringLiteral("2,147,483,646"));
}

void TestComboSlider::survivesRangesQtCannotPaint_data()
{
    QTest::addColumn<int>("minimum");
    QTest::addColumn<int>("maximum");
    QTest::addColumn<bool>("guarded");

    const int lowest = std::numeric_limits<int>::min();
    const int highest = std::numeric_limits<int>::max();
    QTest::newRow("-2^31..0") << lowest << 0 << true;
    QTest::newRow("-1..2^31-1") << -1 << highest << true;
    QTest::newRow("-2^30..2^30") << -(1 << 30) << (1 << 30) << true;
    QTest::newRow("whole int range") << lowest << highest << false;
    QTest::newRow("-2^31..1") << lowest << 1 << false;
    QTest::newRow("0..100") << 0 << 100 << false;
}

void TestComboSlider::survivesRangesQtCannotPaint()
{
    QFETCH(int, minimum);
    QFETCH(int, maximum);
    QFETCH(bool, guarded);

    Window window;
    ComboSliderProbe& combo = *window.combo;
    QVERIFY(window.showWith(minimum, maximum, 1, minimum));
    auto* guard = combo.theSlider()->findChild<SliderSpanGuard*>();
    QVERIFY(guard);
    QCOMPARE(guard->isGuarding(), guarded);

    // Painting, hovering and dragging all go through the slider's geometry.
    QVERIFY(!window.dialog.grab().isNull());
    QSignalSpy spy(&combo, SIGNAL(valueChanged(int)));
    const int start = handleCentre(combo.theSlider()).x();
    dragHandle(combo.theSlider(), { start + 10, start + 40, start + 80 });
    QVERIFY(combo.value() > minimum);
    QVERIFY(!spy.isEmpty());
    QCOMPARE(spy.last().at(0).toInt(), combo.value());
    QVERIFY(!window.dialog.grab().isNull());

    // With an ordinary range the slider is back on the application's style.
    combo.setRange(0, 100);
    QVERIFY(!guard->isGuarding());
    QCOMPARE(combo.theSlider()->style(), QApplication::style());
    QVERIFY(!window.dialog.grab().isNull());
}

QTEST_MAIN(TestComboSlider)
#include "tst_comboslider.moc"
