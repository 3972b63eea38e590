#include "comboslider.h"

#include "sliderspanguard.h"
#include "valuewidgetsupport.h"
#include "zarvexqtspinbox.h"

#include <QSlider>

class ComboSlider::UpdateSuspender
{
public:
    explicit UpdateSuspender(bool& flag)
        : m_flag(flag)
        , m_wasSet(flag)
    {
        m_flag = false;
    }
    ~UpdateSuspender()
    {
        if (m_wasSet)
            m_flag = true;
    }
    UpdateSuspender(const UpdateSuspender&) = delete;
    UpdateSuspender& operator=(const UpdateSuspender&) = delete;

private:
    bool& m_flag;
    bool m_wasSet;
};

ComboSlider::ComboSlider(QWidget* parent)
    : QWidget(parent)
    , slider(new QSlider(Qt::Horizontal))
    , spinBox(new ZarvexQtSpinBox)
{
    new SliderSpanGuard(slider); // owned by the slider: ranges 2^31 wide would crash Qt's painting
    setEditBoxWidth(ValueWidgetSupport::layOutSpinBoxAndSlider(this, spinBox, slider));

    connect(slider, SIGNAL(valueChanged(int)), this, SLOT(onSliderValueChanged(int)));
    connect(spinBox, SIGNAL(editingFinished()), this, SLOT(onComboBoxEditingFinished()));

    updateToolTip();
}

ComboSlider::~ComboSlider() = default;

int ComboSlider::value() const
{
    return slider->value();
}
int ComboSlider::minimum() const
{
    return slider->minimum();
}
int ComboSlider::maximum() const
{
    return slider->maximum();
}
int ComboSlider::singleStep() const
{
    return slider->singleStep();
}
int ComboSlider::pageStep() const
{
    return slider->pageStep();
}

void ComboSlider::setEditBoxWidth(int width)
{
    editBoxWidth = width;
    spinBox->setMinimumWidth(width);
}

void ComboSlider::enableUpdate(bool enable)
{
    updateEnabled = enable;
}

int ComboSlider::trimValue(int value) const
{
    if (value < slider->minimum())
        value = slider->minimum();
    if (value > slider->maximum())
        value = slider->maximum();
    const int step = spinBox->singleStep();
    if (step == 0)
        return value;
    // The distance from the minimum is taken in 64 bits: across the whole int
    // range it does not fit in 32, and a wrapped distance would snap upwards.
    const qint64 offset = qint64(value) - qint64(spinBox->minimum());
    return int(qint64(value) - offset % step);
}

void ComboSlider::setValue(int value)
{
    UpdateSuspender suspender(updateEnabled);
    slider->setValue(trimValue(value));
}

void ComboSlider::onSliderValueChanged(int val)
{
    const int trimmed = trimValue(val);
    if (spinBox->value() != trimmed)
        spinBox->setValue(trimmed);
    if (val != trimmed) {
        // Re-enters with a value on the grid; that pass reports it.
        slider->setValue(trimmed);
        return;
    }
    if (updateEnabled)
        emit valueChanged(val);
}

void ComboSlider::onComboBoxEditingFinished()
{
    const int typed = spinBox->value();
    const int trimmed = trimValue(typed);
    if (trimmed != typed)
        spinBox->setValue(trimmed);
    slider->setValue(trimmed);
}

void ComboSlider::setMinimum(int min)
{
    UpdateSuspender suspender(updateEnabled);
    slider->setMinimum(min);
    spinBox->setMinimum(min);
    emit rangeChanged(min, spinBox->maximum());
    updateToolTip();
}

void ComboSlider::setMaximum(int max)
{
    UpdateSuspender suspender(updateEnabled);
    slider->setMaximum(max);
    spinBox->setMaximum(max);
    emit rangeChanged(spinBox->minimum(), max);
    updateToolTip();
}

void ComboSlider::setRange(int min, int max)
{
    UpdateSuspender suspender(updateEnabled);
    slider->setMinimum(min);
    spinBox->setMinimum(min);
    slider->setMaximum(max);
    spinBox->setMaximum(max);
    emit rangeChanged(min, max);
    updateToolTip();
}

void ComboSlider::setRangeAndStep(int min, int max, int singleStep)
{
    UpdateSuspender suspender(updateEnabled);
    spinBox->setSingleStep(singleStep);
    spinBox->setMinimum(min);
    spinBox->setMaximum(max);
    slider->setSingleStep(singleStep);
    slider->setMinimum(min);
    slider->setMaximum(max);
    emit rangeChanged(min, max);
    updateToolTip();
}

void ComboSlider::setSingleStep(int singleStep)
{
    slider->setSingleStep(singleStep);
    spinBox->setSingleStep(singleStep);
    updateToolTip();
}

void ComboSlider::setPageStep(int pageStep)
{
    slider->setPageStep(pageStep);
    spinBox->pageStep = pageStep;
    updateToolTip();
}

void ComboSlider::updateToolTip()
{
    ValueWidgetSupport::setRangeToolTip(
        [this]() {
            if (spinBox->singleStep() == 1)
                return tr("Range: %1..%2").arg(spinBox->minimum()).arg(spinBox->maximum());
            return tr("Range: %1..%2 (Increment: %3)")
                .arg(spinBox->minimum())
                .arg(spinBox->maximum())
                .arg(spinBox->singleStep());
        },
        { this });
}
