#include "doublecomboslider.h"

#include "parameters/formatdoublevalue.h"
#include "sliderspanguard.h"
#include "spinboxeventcatcher.h"
#include "valuewidgetsupport.h"
#include "zarvexqtdoublespinbox.h"

#include <QSlider>

#include <limits>

namespace {

//! (value - origin) mod increment, truncating, with the difference taken in 64 bits so that it cannot overflow.
int remainderFrom(int value, int origin, int increment)
{
    return int((qint64(value) - qint64(origin)) % increment);
}

} // namespace

DoubleComboSlider::DoubleComboSlider(QWidget* parent)
    : QWidget(parent)
    , slider(new QSlider(Qt::Horizontal))
    , spinBox(new ZarvexQtDoubleSpinBox)
    , eventCatcher(new SpinBoxEventCatcher)
{
    spinBox->setAccelerated(true);
    spinBox->installEventFilter(eventCatcher);
    new SliderSpanGuard(slider); // owned by the slider: ranges 2^31 wide would crash Qt's painting
    slider->setRange(std::numeric_limits<int>::min(), std::numeric_limits<int>::max());
    setEditBoxWidth(ValueWidgetSupport::layOutSpinBoxAndSlider(this, spinBox, slider));

    connect(spinBox, SIGNAL(stepTriggered(int)), this, SLOT(onSpinBoxStepTriggered(int)));
    connect(eventCatcher, SIGNAL(focusEvent(bool)), this, SLOT(onSpinBoxFocusEventTriggered(bool)));
}

// The catcher goes first, so that no focus report reaches this widget while
// QWidget's destructor takes the spin box down.
DoubleComboSlider::~DoubleComboSlider()
{
    delete eventCatcher;
    eventCatcher = nullptr;
}

double DoubleComboSlider::value() const
{
    return spinBox->value();
}
double DoubleComboSlider::minimum() const
{
    return spinBox->minimum();
}
double DoubleComboSlider::maximum() const
{
    return spinBox->maximum();
}
int DoubleComboSlider::decimals() const
{
    return spinBox->decimals();
}
int DoubleComboSlider::intValue() const
{
    return slider->value();
}
int DoubleComboSlider::intMinimum() const
{
    return slider->minimum();
}
int DoubleComboSlider::intMaximum() const
{
    return slider->maximum();
}

void DoubleComboSlider::setEditBoxWidth(int width)
{
    editBoxWidth = width;
    spinBox->setMinimumWidth(width);
}

void DoubleComboSlider::onSpinBoxFocusEventTriggered(bool focus)
{
    hasFocus = focus;
    updateEnabled = !focus;
}

void DoubleComboSlider::enableUpdate(bool enable)
{
    updateEnabled = enable;
}

// ---- the float half ---------------------------------------------------------

void DoubleComboSlider::setValue(double value)
{
    spinBox->setValue(value);
}

void DoubleComboSlider::setRange(double min, double max)
{
    minRangeLimit = min;
    maxRangeLimit = max;
    spinBox->setRange(min, max);
    updateToolTip();
}

// The tool tip is drawn before the box takes the new minimum, so it still
// shows the former one until the next update; setMaximum() has no such lag.
void DoubleComboSlider::setMinimum(double min)
{
    minRangeLimit = min;
    updateToolTip();
    spinBox->setMinimum(min);
}

void DoubleComboSlider::setMaximum(double max)
{
    maxRangeLimit = max;
    spinBox->setMaximum(max);
    updateToolTip();
}

void DoubleComboSlider::setDecimals(int decimals)
{
    spinBox->setDecimals(decimals);
    updateToolTip();
}

// ---- the integer half -------------------------------------------------------

void DoubleComboSlider::setIntValue(int value)
{
    slider->setValue(value);
}

void DoubleComboSlider::setIntIncrement(int increment)
{
    intIncrement = increment;
}

void DoubleComboSlider::setIntRange(int min, int max)
{
    slider->setRange(min, max);
    updateToolTip();
    emit rangeChanged(min, max);
}

void DoubleComboSlider::setIntMinimum(int min)
{
    slider->setMinimum(min);
    updateToolTip();
    emit rangeChanged(min, slider->maximum());
}

void DoubleComboSlider::setIntMaximum(int max)
{
    slider->setMaximum(max);
    updateToolTip();
    emit rangeChanged(slider->minimum(), max);
}

int DoubleComboSlider::trimSliderValue(int value)
{
    if (slider->singleStep() == 0 || intIncrement == 0)
        return value;
    return value - remainderFrom(value, slider->minimum(), intIncrement);
}

void DoubleComboSlider::setPageStep()
{
    // The width of the range wraps in 32 bits as it always has: the whole int
    // span gives -1, and with it a page of two increments.
    const qint32 span = qint32(quint32(slider->maximum()) - quint32(slider->minimum()));
    const qint64 twentieth = qAbs(qint64(span)) / 20;
    const qint64 twoIncrements = 2 * qint64(intIncrement);
    const qint64 page = qMax(twentieth, twoIncrements);
    // Trimmed against the grid from the minimum although a page is a distance.
    slider->setPageStep(trimSliderValue(
        int(qBound(qint64(std::numeric_limits<int>::min()), page, qint64(std::numeric_limits<int>::max())))));
    updateToolTip();
}

void DoubleComboSlider::setRangeStepAndIncrement(double minRangeLimit, double maxRangeLimit, int intIncrement)
{
    setRange(minRangeLimit, maxRangeLimit);
    setIntIncrement(intIncrement);
    setPageStep();
}

void DoubleComboSlider::setRangeStepAndIncrement(int minIntRangeLimit, int maxIntRangeLimit, int intIncrement)
{
    setIntRange(minIntRangeLimit, maxIntRangeLimit);
    setIntIncrement(intIncrement);
    setPageStep();
}

void DoubleComboSlider::initControls(
    double minRangeLimit, double maxRangeLimit, int value, int minIntRangeLimit, int maxIntRangeLimit, int intIncrement)
{
    setRange(minRangeLimit, maxRangeLimit);
    // The slider's single step is set here only.
    slider->setSingleStep(intIncrement);
    // The value goes in before the integer range, which may clamp it.
    setIntValue(value);
    setRangeStepAndIncrement(minIntRangeLimit, maxIntRangeLimit, intIncrement);
}

bool DoubleComboSlider::checkIfLimitsChanged(double min, double max, int increment)
{
    return min != minRangeLimit || max != maxRangeLimit || increment != intIncrement;
}

bool DoubleComboSlider::checkIfLimitsChanged(int min, int max, int increment)
{
    return min != slider->minimum() || max != slider->maximum() || increment != intIncrement;
}

void DoubleComboSlider::onSpinBoxStepTriggered(int steps)
{
    const qint64 value = slider->value();
    const qint64 page = slider->pageStep();
    updateEnabled = true;
    qint64 target;
    if (steps == 10)
        target = value + page;
    else if (steps == -10)
        target = value - page;
    else
        target = value + qint64(steps) * intIncrement;
    // The slider clamps to its range; this only keeps the sum from overflowing on the way.
    slider->setValue(
        int(qBound(qint64(std::numeric_limits<int>::min()), target, qint64(std::numeric_limits<int>::max()))));
}

void DoubleComboSlider::updateToolTip()
{
    ValueWidgetSupport::setRangeToolTip(
        [this]() {
            const int places = spinBox->decimals();
            return tr("Range: %1..%2")
                .arg(formatDoubleValue(spinBox->minimum(), places, FormatFixed, locale()),
                    formatDoubleValue(spinBox->maximum(), places, FormatFixed, locale()));
        },
        { slider, spinBox, this });
}
