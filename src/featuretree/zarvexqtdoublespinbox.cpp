#include "zarvexqtdoublespinbox.h"

#include "parameters/formatdoublevalue.h"
#include "valuewidgetsupport.h"

#include <QKeyEvent>

ZarvexQtDoubleSpinBox::ZarvexQtDoubleSpinBox(QWidget* parent)
    : QDoubleSpinBox(parent)
{
}

void ZarvexQtDoubleSpinBox::stepBy(int steps)
{
    emit stepTriggered(steps);
}

QString ZarvexQtDoubleSpinBox::textFromValue(double value) const
{
    return formatDoubleValue(value, decimals(), FormatFixed, locale());
}

void ZarvexQtDoubleSpinBox::keyPressEvent(QKeyEvent* event)
{
    QAbstractSpinBox::keyPressEvent(event);
    ValueWidgetSupport::finishKeyPress(event, [this](QKeyEvent* e) { QAbstractSpinBox::keyPressEvent(e); });
}
