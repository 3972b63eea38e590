#include "doublespinbox.h"

#include "parameters/formatdoublevalue.h"
#include "spinboxeventcatcher.h"
#include "valuewidgetsupport.h"
#include "zarvexqtdoublespinbox.h"

#include <QHBoxLayout>

DoubleSpinBox::DoubleSpinBox(QWidget* parent, const QString& representation)
    : DoubleSpinBox(parent, representation, std::numeric_limits<double>::max())
{
}

DoubleSpinBox::DoubleSpinBox(QWidget* parent, const QString& representation, double limit)
    : QWidget(parent)
    , spinBox(new ZarvexQtDoubleSpinBox)
    , eventCatcher(new SpinBoxEventCatcher)
{
    auto* layout = new QHBoxLayout;
    layout->setContentsMargins(0, 0, 0, 0);
    setContentsMargins(1, 0, 1, 0);

    // (-DBL_MAX is double's lowest value.)
    minRangeLimit = -limit;
    maxRangeLimit = limit;
    spinBox->setRange(minRangeLimit, maxRangeLimit);
    spinBox->setAccelerated(true);
    if (representation == QLatin1String("PureNumber"))
        spinBox->setButtonSymbols(QAbstractSpinBox::NoButtons);
    spinBox->installEventFilter(eventCatcher);

    layout->addWidget(spinBox);
    setLayout(layout);
    connect(eventCatcher, SIGNAL(focusEvent(bool)), this, SLOT(onSpinBoxFocusEventTriggered(bool)));
}

// The catcher goes first, so that no focus report reaches this widget while
// QWidget's destructor takes the spin box down.
DoubleSpinBox::~DoubleSpinBox()
{
    delete eventCatcher;
    eventCatcher = nullptr;
}

double DoubleSpinBox::value() const
{
    return spinBox->value();
}
double DoubleSpinBox::minimum() const
{
    return spinBox->minimum();
}
double DoubleSpinBox::maximum() const
{
    return spinBox->maximum();
}
int DoubleSpinBox::decimals() const
{
    return spinBox->decimals();
}

void DoubleSpinBox::setEditBoxWidth(int width)
{
    editBoxWidth = width;
    spinBox->setMinimumWidth(width);
}

void DoubleSpinBox::onSpinBoxFocusEventTriggered(bool focus)
{
    hasFocus = focus;
    updateEnabled = !focus;
}

void DoubleSpinBox::enableUpdate(bool enable)
{
    updateEnabled = enable;
}

void DoubleSpinBox::setValue(double value)
{
    spinBox->setValue(value);
}

void DoubleSpinBox::setRange(double min, double max)
{
    minRangeLimit = min;
    maxRangeLimit = max;
    spinBox->setRange(min, max);
    updateToolTip();
}

// Unlike setRange(), these leave the stored limits alone: those are the
// feature's, as the editor last compared them.
void DoubleSpinBox::setMinimum(double min)
{
    spinBox->setMinimum(min);
    updateToolTip();
}

void DoubleSpinBox::setMaximum(double max)
{
    spinBox->setMaximum(max);
    updateToolTip();
}

void DoubleSpinBox::setDecimals(int decimals)
{
    spinBox->setDecimals(decimals);
    updateToolTip();
}

void DoubleSpinBox::setIncrement(double increment)
{
    this->increment = increment;
}

void DoubleSpinBox::setPageStep()
{
    const double twentieth = (maxRangeLimit - minRangeLimit) / 20;
    spinBox->pageStep = 2 * increment > twentieth ? 2 * increment : twentieth;
}

void DoubleSpinBox::setRangeStepAndIncrement(double minRangeLimit, double maxRangeLimit, double increment)
{
    setRange(minRangeLimit, maxRangeLimit);
    setIncrement(increment);
    setPageStep();
    // A feature without increment cannot be stepped; the buttons stay off
    // from then on.
    if (increment == 0.0)
        spinBox->setButtonSymbols(QAbstractSpinBox::NoButtons);
}

void DoubleSpinBox::initControls(double minRangeLimit, double maxRangeLimit, double value, double increment)
{
    setValue(value);
    setRangeStepAndIncrement(minRangeLimit, maxRangeLimit, increment);
}

bool DoubleSpinBox::checkIfLimitsChanged(double min, double max, double increment)
{
    return min != minRangeLimit || max != maxRangeLimit || increment != this->increment;
}

void DoubleSpinBox::updateToolTip()
{
    ValueWidgetSupport::setRangeToolTip(
        [this]() {
            const int places = spinBox->decimals();
            const QString min = formatDoubleValue(spinBox->minimum(), places, FormatFixed, locale());
            const QString max = formatDoubleValue(spinBox->maximum(), places, FormatFixed, locale());
            const QString step = formatDoubleValue(increment, places, FormatFixed, locale());
            // An increment too fine for the decimals shown reads back as 0
            // and is left out.
            if (step.toDouble() == 0.0)
                return tr("Range: %1..%2").arg(min, max);
            return tr("Range: %1..%2 (Increment: %3)").arg(min, max, step);
        },
        { spinBox, this });
}
