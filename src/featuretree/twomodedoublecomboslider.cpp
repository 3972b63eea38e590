#include "twomodedoublecomboslider.h"

#include "valuewidgetsupport.h"
#include "zarvexqtdoublespinbox.h"

#include <QSlider>

#include <cmath>

using ValueWidgetSupport::truncateToInt;

TwoModeDoubleComboSlider::TwoModeDoubleComboSlider(QWidget* parent, ETwoModeDoubleComboSliderMode mode)
    : DoubleComboSlider(parent)
    , sliderMode(mode)
{
    connect(spinBox, SIGNAL(editingFinished()), this, SLOT(onSpinBoxEditingFinished()));
    connect(slider, SIGNAL(valueChanged(int)), this, SLOT(onSliderValueChanged(int)));
    // Steps are this class's to interpret, in either mode.
    disconnect(spinBox, SIGNAL(stepTriggered(int)), nullptr, nullptr);
    connect(spinBox, SIGNAL(stepTriggered(int)), this, SLOT(onSpinBoxStepTriggered(int)));
}

TwoModeDoubleComboSlider::~TwoModeDoubleComboSlider() = default;

bool TwoModeDoubleComboSlider::isLogarithmic() const
{
    return sliderMode == ModeLogarithmic;
}

TwoModeDoubleComboSlider::ETwoModeDoubleComboSliderMode TwoModeDoubleComboSlider::mode() const
{
    return sliderMode;
}

void TwoModeDoubleComboSlider::setMode(ETwoModeDoubleComboSliderMode value)
{
    sliderMode = value;
}

void TwoModeDoubleComboSlider::onSpinBoxEditingFinished()
{
    emit editingFinished();
}

// ---- the mapping ------------------------------------------------------------

// The slider keeps its positions; only the mapping onto them changes.
void TwoModeDoubleComboSlider::logicalRangeChanged()
{
    logPerPosition = (maximumLog - minimumLog) / double(sliderMaximum - sliderMinimum);
    emit rangeChanged(logicalMinimum, logicalMaximum);
    updateToolTip();
}

double TwoModeDoubleComboSlider::transformLogarithmic(double value)
{
    return (std::log2(value) - minimumLog) / logPerPosition + sliderMinimum;
}

double TwoModeDoubleComboSlider::transformLinear(double position)
{
    const double value = std::exp2(std::fma(position - sliderMinimum, logPerPosition, minimumLog));
    if (value < logicalMinimum)
        return logicalMinimum;
    if (value > logicalMaximum)
        return logicalMaximum;
    return value;
}

// ---- the integer half -------------------------------------------------------

void TwoModeDoubleComboSlider::setIntMinimum(int min)
{
    if (!isLogarithmic()) {
        DoubleComboSlider::setIntMinimum(min);
        return;
    }
    logicalMinimum = min;
    minimumLog = std::log2(min);
    logicalRangeChanged();
}

void TwoModeDoubleComboSlider::setIntMaximum(int max)
{
    if (!isLogarithmic()) {
        DoubleComboSlider::setIntMaximum(max);
        return;
    }
    logicalMaximum = max;
    maximumLog = std::log2(max);
    logicalRangeChanged();
}

void TwoModeDoubleComboSlider::setIntRange(int min, int max)
{
    if (!isLogarithmic()) {
        DoubleComboSlider::setIntRange(min, max);
        return;
    }
    logicalMinimum = min;
    minimumLog = std::log2(min);
    logicalMaximum = max;
    maximumLog = std::log2(max);
    logicalRangeChanged();
}

int TwoModeDoubleComboSlider::intMinimum() const
{
    return isLogarithmic() ? logicalMinimum : DoubleComboSlider::intMinimum();
}

int TwoModeDoubleComboSlider::intMaximum() const
{
    return isLogarithmic() ? logicalMaximum : DoubleComboSlider::intMaximum();
}

void TwoModeDoubleComboSlider::setIntValue(int value)
{
    if (!isLogarithmic()) {
        DoubleComboSlider::setIntValue(value);
        return;
    }
    // The position is bounded here as the slider would bound it, so that the
    // pending value is tied to where the slider actually ends up.
    const int position = qBound(slider->minimum(), truncateToInt(transformLogarithmic(value)), slider->maximum());
    pendingValueValid = true;
    pendingValue = value;
    pendingPosition = position;
    slider->setValue(position);
}

int TwoModeDoubleComboSlider::intValue()
{
    if (!isLogarithmic())
        return slider->value();
    if (pendingValueValid && slider->value() == pendingPosition)
        return pendingValue;
    pendingValueValid = false;
    return truncateToInt(transformLinear(slider->value()));
}

void TwoModeDoubleComboSlider::onSliderValueChanged(int val)
{
    if (!isLogarithmic()) {
        emit valueChanged(val);
        return;
    }
    if (pendingValueValid && val == pendingPosition) {
        emit valueChanged(pendingValue);
        return;
    }
    pendingValueValid = false;
    emit valueChanged(truncateToInt(transformLinear(val)));
}

int TwoModeDoubleComboSlider::trimSliderValue(int value)
{
    if (!isLogarithmic())
        return DoubleComboSlider::trimSliderValue(value);
    if (slider->singleStep() == 0 || intIncrement == 0)
        return value;
    // On logical values: the grid starts at the logical minimum.
    return int(qint64(value) - (qint64(value) - qint64(logicalMinimum)) % intIncrement);
}

void TwoModeDoubleComboSlider::initControls(
    double minRangeLimit, double maxRangeLimit, int value, int minIntRangeLimit, int maxIntRangeLimit, int intIncrement)
{
    if (!isLogarithmic()) {
        DoubleComboSlider::initControls(
            minRangeLimit, maxRangeLimit, value, minIntRangeLimit, maxIntRangeLimit, intIncrement);
        return;
    }
    setRange(minRangeLimit, maxRangeLimit);
    slider->setSingleStep(1);
    slider->setRange(sliderMinimum, sliderMaximum);
    setRangeStepAndIncrement(minIntRangeLimit, maxIntRangeLimit, intIncrement);
    // Last: the mapping needs the range.
    setIntValue(value);
}

void TwoModeDoubleComboSlider::onSpinBoxStepTriggered(int val)
{
    if (!isLogarithmic()) {
        DoubleComboSlider::onSpinBoxStepTriggered(val);
        return;
    }
    // One step is one percent of the value, and at least one unit.
    const double value = spinBox->value();
    double delta = value * 0.01 * val;
    if (std::fabs(delta) < 1.0)
        delta += delta >= 0 ? 1.0 : -1.0;
    const double target = value + delta + 0.5;

    pendingValueValid = false;
    slider->setValue(truncateToInt(transformLogarithmic(target)));
    setValue(delta >= 0 ? std::ceil(target) : std::floor(target));
    updateEnabled = true;
}
