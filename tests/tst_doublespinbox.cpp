#include "featuretree/doublespinbox.h"
#include "featuretree/spinboxeventcatcher.h"
#include "featuretree/zarvexqtdoublespinbox.h"
#include "valuewidgettestsupport.h"

#include <QDialog>
#include <QDialogButtonBox>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>
#include <QtTest>

#include <cmath>
#include <limits>

using namespace ValueWidgetTest;

// Opens the widget's parts to the test.
class DoubleSpinBoxProbe : public DoubleSpinBox
{
public:
    using DoubleSpinBox::DoubleSpinBox;
    ZarvexQtDoubleSpinBox* theSpinBox() const { return spinBox; }
    double pageStep() const { return spinBox->pageStep; }
    double theIncrement() const { return increment; }
    double minLimit() const { return minRangeLimit; }
    double maxLimit() const { return maxRangeLimit; }
    bool isUpdateEnabled() const { return updateEnabled; }
    bool boxHasFocus() const { return hasFocus; }
};

// A dialog around one double spin box and a line edit to move the focus to.
struct Window
{
    QDialog dialog;
    DoubleSpinBoxProbe* box;
    QLineEdit* other;

    explicit Window(const QString& representation = QString())
    {
        auto* layout = new QVBoxLayout(&dialog);
        box = new DoubleSpinBoxProbe(nullptr, representation);
        other = new QLineEdit;
        auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
        buttons->button(QDialogButtonBox::Ok)->setDefault(true);
        QObject::connect(buttons, SIGNAL(accepted()), &dialog, SLOT(accept()));
        QObject::connect(buttons, SIGNAL(rejected()), &dialog, SLOT(reject()));
        layout->addWidget(box);
        layout->addWidget(other);
        layout->addWidget(buttons);
        dialog.resize(300, 120);
    }

    //! Sets range, value and increment, then shows the dialog active.
    bool showWith(double minimum, double maximum, double value, double increment)
    {
        box->initControls(minimum, maximum, value, increment);
        return showActive(&dialog);
    }
};

class TestDoubleSpinBox : public QObject
{
    Q_OBJECT

private slots:
    void initialState();
    void pureNumberHasNoButtons_data();
    void pureNumberHasNoButtons();
    void wheelOnlyReportsSteps();
    void keysOnlyReportSteps_data();
    void keysOnlyReportSteps();
    void heldButtonRepeatsSteps();
    void buttonsStayOffAfterIncrementZero();
    void initControlsClampsTheValue_data();
    void initControlsClampsTheValue();
    void pageStep_data();
    void pageStep();
    void pageStepBeforeAnyRangeIsInfinite();
    void toolTip_data();
    void toolTip();
    void setMinimumAndMaximumKeepTheStoredLimits();
    void checkIfLimitsChanged();
    void settersEmitNoValueChange();
    void focusDrivesUpdateEnabled();
    void escapeUndoesTheEditAndStaysInside();
    void returnStaysInside();
    void textHasNoGroupSeparators();
    void properties();
    void eventCatcherFiltersNothing();
};

void TestDoubleSpinBox::initialState()
{
    DoubleSpinBoxProbe box;
    QCOMPARE(box.minLimit(), std::numeric_limits<double>::lowest());
    QCOMPARE(box.maxLimit(), std::numeric_limits<double>::max());
    QCOMPARE(box.theSpinBox()->minimum(), std::numeric_limits<double>::lowest());
    QCOMPARE(box.theSpinBox()->maximum(), std::numeric_limits<double>::max());
    QCOMPARE(box.theIncrement(), 0.0);
    QCOMPARE(box.property("editBoxWidth").toInt(), 0);
    QVERIFY(!box.isUpdateEnabled());
    QVERIFY(!box.boxHasFocus());
    QVERIFY(box.theSpinBox()->isAccelerated());
    QCOMPARE(box.contentsMargins(), QMargins(1, 0, 1, 0));
    QCOMPARE(box.layout()->contentsMargins(), QMargins(0, 0, 0, 0));
    // The box is of a sensible width although its range is the whole double range.
    QVERIFY(box.theSpinBox()->sizeHint().width() < 400);
}

void TestDoubleSpinBox::pureNumberHasNoButtons_data()
{
    QTest::addColumn<QString>("representation");
    QTest::addColumn<bool>("buttons");
    QTest::newRow("PureNumber") << "PureNumber" << false;
    QTest::newRow("Linear") << "Linear" << true;
    QTest::newRow("Logarithmic") << "Logarithmic" << true;
    QTest::newRow("empty") << "" << true;
    QTest::newRow("case matters") << "purenumber" << true;
}

void TestDoubleSpinBox::pureNumberHasNoButtons()
{
    QFETCH(QString, representation);
    QFETCH(bool, buttons);
    DoubleSpinBoxProbe box(nullptr, representation);
    QCOMPARE(box.theSpinBox()->buttonSymbols() != QAbstractSpinBox::NoButtons, buttons);
}

void TestDoubleSpinBox::wheelOnlyReportsSteps()
{
    Window window;
    QVERIFY(window.showWith(0, 100, 50, 1));
    QSignalSpy steps(window.box->theSpinBox(), SIGNAL(stepTriggered(int)));
    QSignalSpy values(window.box->theSpinBox(), SIGNAL(valueChanged(double)));

    window.box->theSpinBox()->setFocus();
    wheel(window.box->theSpinBox(), 1);
    wheel(window.box->theSpinBox(), -1);
    QCOMPARE(steps.count(), 2);
    QCOMPARE(steps.at(0).at(0).toInt(), 1);
    QCOMPARE(steps.at(1).at(0).toInt(), -1);
    QCOMPARE(window.box->value(), 50.0);
    QCOMPARE(values.count(), 0);
}

void TestDoubleSpinBox::keysOnlyReportSteps_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("expected");
    QTest::newRow("Up") << int(Qt::Key_Up) << 1;
    QTest::newRow("Down") << int(Qt::Key_Down) << -1;
    QTest::newRow("Page Up") << int(Qt::Key_PageUp) << 10;
    QTest::newRow("Page Down") << int(Qt::Key_PageDown) << -10;
}

void TestDoubleSpinBox::keysOnlyReportSteps()
{
    QFETCH(int, key);
    QFETCH(int, expected);
    Window window;
    QVERIFY(window.showWith(0, 100, 50, 1));
    QSignalSpy steps(window.box->theSpinBox(), SIGNAL(stepTriggered(int)));

    window.box->theSpinBox()->setFocus();
    QTest::keyClick(window.box->theSpinBox(), Qt::Key(key));
    QCOMPARE(steps.count(), 1);
    QCOMPARE(steps.at(0).at(0).toInt(), expected);
    QCOMPARE(window.box->value(), 50.0);
    QCOMPARE(window.box->theSpinBox()->text(), QStringLiteral("50.00"));
}

void TestDoubleSpinBox::heldButtonRepeatsSteps()
{
    Window window;
    QVERIFY(window.showWith(0, 100, 50, 1));
    QSignalSpy steps(window.box->theSpinBox(), SIGNAL(stepTriggered(int)));

    ZarvexQtDoubleSpinBox* spin = window.box->theSpinBox();
    const QPoint up = spinButtonCentre(spin, QStyle::SC_SpinBoxUp);
    QTest::mousePress(spin, Qt::LeftButton, Qt::NoModifier, up);
    QTRY_VERIFY_WITH_TIMEOUT(steps.count() >= 3, 3000);
    QTest::mouseRelease(spin, Qt::LeftButton, Qt::NoModifier, up);
    for (const QList<QVariant>& step : steps)
        QVERIFY(step.at(0).toInt() >= 1);
    QCOMPARE(window.box->value(), 50.0);
}

void TestDoubleSpinBox::buttonsStayOffAfterIncrementZero()
{
    DoubleSpinBoxProbe box(nullptr, QStringLiteral("Linear"));
    box.setRangeStepAndIncrement(0, 10, 0.5);
    QCOMPARE(box.theSpinBox()->buttonSymbols(), QAbstractSpinBox::UpDownArrows);
    box.setIncrement(0.0); // storing alone changes nothing
    QCOMPARE(box.theSpinBox()->buttonSymbols(), QAbstractSpinBox::UpDownArrows);
    box.setRangeStepAndIncrement(0, 10, 0.0);
    QCOMPARE(box.theSpinBox()->buttonSymbols(), QAbstractSpinBox::NoButtons);
    box.setRangeStepAndIncrement(0, 10, 1.0);
    QCOMPARE(box.theSpinBox()->buttonSymbols(), QAbstractSpinBox::NoButtons);
    box.initControls(0, 20, 5, 2.0);
    QCOMPARE(box.theSpinBox()->buttonSymbols(), QAbstractSpinBox::NoButtons);
}

void TestDoubleSpinBox::initControlsClampsTheValue_data()
{
    QTest::addColumn<double>("formerMin");
    QTest::addColumn<double>("formerMax");
    QTest::addColumn<double>("min");
    QTest::addColumn<double>("max");
    QTest::addColumn<double>("value");
    QTest::addColumn<double>("expected");

    const double lowest = std::numeric_limits<double>::lowest();
    const double highest = std::numeric_limits<double>::max();
    QTest::newRow("fresh box, above the new range") << lowest << highest << 0.0 << 10.0 << 50.0 << 10.0;
    QTest::newRow("fresh box, below the new range") << lowest << highest << 0.0 << 10.0 << -5.0 << 0.0;
    QTest::newRow("former range tighter above") << 0.0 << 20.0 << 0.0 << 100.0 << 50.0 << 20.0;
    QTest::newRow("former range tighter below") << 40.0 << 60.0 << 0.0 << 100.0 << 10.0 << 40.0;
    QTest::newRow("inside both") << 0.0 << 20.0 << 0.0 << 100.0 << 15.0 << 15.0;
}

void TestDoubleSpinBox::initControlsClampsTheValue()
{
    QFETCH(double, formerMin);
    QFETCH(double, formerMax);
    QFETCH(double, min);
    QFETCH(double, max);
    QFETCH(double, value);
    QFETCH(double, expected);

    DoubleSpinBoxProbe box;
    box.setRange(formerMin, formerMax);
    box.initControls(min, max, value, 1.0);
    QCOMPARE(box.value(), expected);
    QCOMPARE(box.minimum(), min);
    QCOMPARE(box.maximum(), max);
}

void TestDoubleSpinBox::pageStep_data()
{
    QTest::addColumn<double>("min");
    QTest::addColumn<double>("max");
    QTest::addColumn<double>("increment");
    QTest::addColumn<double>("expected");

    QTest::newRow("0..100 by 1") << 0.0 << 100.0 << 1.0 << 5.0;
    QTest::newRow("0..100 by 10") << 0.0 << 100.0 << 10.0 << 20.0;
    QTest::newRow("0..100 by 2.5 ties") << 0.0 << 100.0 << 2.5 << 5.0;
    QTest::newRow("no increment") << -50.0 << 50.0 << 0.0 << 5.0;
}

void TestDoubleSpinBox::pageStep()
{
    QFETCH(double, min);
    QFETCH(double, max);
    QFETCH(double, increment);
    QFETCH(double, expected);

    DoubleSpinBoxProbe box;
    box.setRangeStepAndIncrement(min, max, increment);
    QCOMPARE(box.pageStep(), expected);

    // The same through the separate setters.
    DoubleSpinBoxProbe other;
    other.setRange(min, max);
    other.setIncrement(increment);
    other.setPageStep();
    QCOMPARE(other.pageStep(), expected);
}

void TestDoubleSpinBox::pageStepBeforeAnyRangeIsInfinite()
{
    DoubleSpinBoxProbe box;
    box.setIncrement(1.0);
    box.setPageStep();
    QVERIFY(std::isinf(box.pageStep()));
    QVERIFY(box.pageStep() > 0);

    // setMinimum and setMaximum do not feed the page: it stays infinite.
    box.setMinimum(0);
    box.setMaximum(100);
    box.setPageStep();
    QVERIFY(std::isinf(box.pageStep()));
}

void TestDoubleSpinBox::toolTip_data()
{
    QTest::addColumn<double>("min");
    QTest::addColumn<double>("max");
    QTest::addColumn<double>("increment");
    QTest::addColumn<int>("decimals");
    QTest::addColumn<QString>("expected");

    QTest::newRow("0.001 at 2 decimals is not shown") << 0.0 << 10.0 << 0.001 << 2 << "Range: 0.00..10.00";
    QTest::newRow("0.001 at 3 decimals is shown")
        << 0.0 << 10.0 << 0.001 << 3 << "Range: 0.000..10.000 (Increment: 0.001)";
    QTest::newRow("0.01 at 2 decimals") << 0.0 << 10.0 << 0.01 << 2 << "Range: 0.00..10.00 (Increment: 0.01)";
    QTest::newRow("no increment") << -1.5 << 1.5 << 0.0 << 1 << "Range: -1.5..1.5";
    QTest::newRow("no group separators") << 0.0 << 123456.0 << 1000.0 << 0 << "Range: 0..123456 (Increment: 1000)";
}

void TestDoubleSpinBox::toolTip()
{
    QFETCH(double, min);
    QFETCH(double, max);
    QFETCH(double, increment);
    QFETCH(int, decimals);
    QFETCH(QString, expected);

    DoubleSpinBoxProbe box;
    box.setDecimals(decimals);
    box.setRangeStepAndIncrement(min, max, increment);
    box.updateToolTip(); // the range setter drew it before the increment arrived
    QCOMPARE(box.toolTip(), expected);
    QCOMPARE(box.theSpinBox()->toolTip(), expected);
}

void TestDoubleSpinBox::setMinimumAndMaximumKeepTheStoredLimits()
{
    DoubleSpinBoxProbe box;
    box.setRangeStepAndIncrement(0, 100, 1);
    box.setMinimum(10);
    box.setMaximum(90);
    QCOMPARE(box.minimum(), 10.0);
    QCOMPARE(box.maximum(), 90.0);
    QCOMPARE(box.minLimit(), 0.0);
    QCOMPARE(box.maxLimit(), 100.0);
    QVERIFY(!box.checkIfLimitsChanged(0, 100, 1));
    QCOMPARE(box.toolTip(), QStringLiteral("Range: 10.00..90.00 (Increment: 1.00)"));
}

void TestDoubleSpinBox::checkIfLimitsChanged()
{
    DoubleSpinBoxProbe box;
    box.setRangeStepAndIncrement(0, 100, 0.5);
    QVERIFY(!box.checkIfLimitsChanged(0, 100, 0.5));
    QVERIFY(box.checkIfLimitsChanged(1, 100, 0.5));
    QVERIFY(box.checkIfLimitsChanged(0, 99, 0.5));
    QVERIFY(box.checkIfLimitsChanged(0, 100, 0.25));
    const double nan = std::numeric_limits<double>::quiet_NaN();
    QVERIFY(box.checkIfLimitsChanged(nan, 100, 0.5));
    box.setRangeStepAndIncrement(0, 100, nan);
    QVERIFY(box.checkIfLimitsChanged(0, 100, nan)); // a NaN always counts as changed
}

void TestDoubleSpinBox::settersEmitNoValueChange()
{
    DoubleSpinBoxProbe box;
    QSignalSpy steps(box.theSpinBox(), SIGNAL(stepTriggered(int)));
    QSignalSpy finished(box.theSpinBox(), SIGNAL(editingFinished()));
    box.initControls(0, 10, 5, 1);
    box.setValue(7);
    box.setRange(0, 5);
    box.setMinimum(1);
    box.setMaximum(3);
    box.setDecimals(4);
    QCOMPARE(box.value(), 3.0);
    QCOMPARE(steps.count(), 0);
    QCOMPARE(finished.count(), 0);
}

void TestDoubleSpinBox::focusDrivesUpdateEnabled()
{
    Window window;
    QVERIFY(showActive(&window.dialog));
    DoubleSpinBoxProbe& box = *window.box;

    window.other->setFocus();
    box.enableUpdate(true);
    QVERIFY(box.isUpdateEnabled());

    box.theSpinBox()->setFocus();
    QVERIFY(box.boxHasFocus());
    QVERIFY(!box.isUpdateEnabled());
    box.enableUpdate(true);
    QVERIFY(box.isUpdateEnabled());

    window.other->setFocus();
    QVERIFY(!box.boxHasFocus());
    QVERIFY(box.isUpdateEnabled());

    // Clicking into the box is a focus change as well.
    QTest::mouseClick(box.theSpinBox(), Qt::LeftButton, Qt::NoModifier, QPoint(10, box.theSpinBox()->height() / 2));
    QVERIFY(box.boxHasFocus());
    QVERIFY(!box.isUpdateEnabled());
}

void TestDoubleSpinBox::escapeUndoesTheEditAndStaysInside()
{
    Window window;
    QVERIFY(window.showWith(0, 100, 42.5, 0.5));
    QSignalSpy rejected(&window.dialog, SIGNAL(rejected()));
    ZarvexQtDoubleSpinBox* spin = window.box->theSpinBox();

    retype(spin, QStringLiteral("77.25"));
    QCOMPARE(spin->text(), QStringLiteral("77.25"));
    QTest::keyClick(spin, Qt::Key_Escape);
    QCOMPARE(spin->text(), QStringLiteral("42.50"));
    QCOMPARE(rejected.count(), 0);
    QVERIFY(window.dialog.isVisible());
    QVERIFY(spin->hasFocus());
}

void TestDoubleSpinBox::returnStaysInside()
{
    Window window;
    QVERIFY(window.showWith(0, 100, 42.5, 0.5));
    QSignalSpy accepted(&window.dialog, SIGNAL(accepted()));
    ZarvexQtDoubleSpinBox* spin = window.box->theSpinBox();
    QSignalSpy finished(spin, SIGNAL(editingFinished()));

    retype(spin, QStringLiteral("12.5"));
    QTest::keyClick(spin, Qt::Key_Return);
    QCOMPARE(finished.count(), 1);
    QCOMPARE(window.box->value(), 12.5);
    QTest::keyClick(spin, Qt::Key_Enter);
    QCOMPARE(accepted.count(), 0);
    QVERIFY(window.dialog.isVisible());
}

void TestDoubleSpinBox::textHasNoGroupSeparators()
{
    DoubleSpinBoxProbe box;
    box.setValue(1234567.891);
    QCOMPARE(box.theSpinBox()->text(), QStringLiteral("1234567.89"));
    box.setDecimals(0);
    QCOMPARE(box.theSpinBox()->text(), QStringLiteral("1234568"));
}

void TestDoubleSpinBox::properties()
{
    DoubleSpinBoxProbe box;
    QVERIFY(box.setProperty("minimum", -2.5));
    QVERIFY(box.setProperty("maximum", 7.5));
    QVERIFY(box.setProperty("decimals", 3));
    QVERIFY(box.setProperty("increment", 0.25));
    QVERIFY(box.setProperty("editBoxWidth", 120));
    QCOMPARE(box.property("minimum").toDouble(), -2.5);
    QCOMPARE(box.property("maximum").toDouble(), 7.5);
    QCOMPARE(box.property("decimals").toInt(), 3);
    QCOMPARE(box.property("increment").toDouble(), 0.25);
    QCOMPARE(box.theIncrement(), 0.25);
    QCOMPARE(box.property("editBoxWidth").toInt(), 120);
    QCOMPARE(box.theSpinBox()->minimumWidth(), 120);
}

void TestDoubleSpinBox::eventCatcherFiltersNothing()
{
    SpinBoxEventCatcher catcher;
    QLineEdit edit;
    edit.installEventFilter(&catcher);
    QSignalSpy spy(&catcher, SIGNAL(focusEvent(bool)));
    QFocusEvent in(QEvent::FocusIn);
    QFocusEvent out(QEvent::FocusOut);
    QVERIFY(!catcher.eventFilter(&edit, &in));
    QVERIFY(!catcher.eventFilter(&edit, &out));
    QEvent other(QEvent::Resize);
    QVERIFY(!catcher.eventFilter(&edit, &other));
    QCOMPARE(spy.count(), 2);
    QCOMPARE(spy.at(0).at(0).toBool(), true);
    QCOMPARE(spy.at(1).at(0).toBool(), false);
}

QTEST_MAIN(TestDoubleSpinBox)
#include "tst_doublespinbox.moc"
