#include "zarvexqtspinbox.h"

#include "valuewidgetsupport.h"

#include <QKeyEvent>

ZarvexQtSpinBox::ZarvexQtSpinBox(QWidget* parent)
    : QSpinBox(parent)
{
}

void ZarvexQtSpinBox::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_PageUp || event->key() == Qt::Key_PageDown)
        pageKeyPressed = true;
    QAbstractSpinBox::keyPressEvent(event);
    ValueWidgetSupport::finishKeyPress(event, [this](QKeyEvent* e) { QAbstractSpinBox::keyPressEvent(e); });
}

void ZarvexQtSpinBox::stepBy(int steps)
{
    if (pageKeyPressed) {
        // The base class asks for ten single steps per page key; a page here
        // is whatever the owner set.
        pageKeyPressed = false;
        steps = steps >= 0 ? pageStep : -pageStep;
    }
    QAbstractSpinBox::stepBy(steps);
    emit editingFinished();
}

QString ZarvexQtSpinBox::textFromValue(int value) const
{
    // QSpinBox leaves the separators in the lowest int, whose absolute value
    // it cannot take; the text then no longer fits the box.
    QString text = QSpinBox::textFromValue(value);
    if (!isGroupSeparatorShown())
        text.remove(locale().groupSeparator());
    return text;
}
