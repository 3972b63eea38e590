#pragma once

// What the value widget tests share: a shown, active window for real input,
// slider drags as a user makes them, and the spin box buttons' positions.

#include <QAbstractSpinBox>
#include <QApplication>
#include <QMouseEvent>
#include <QSlider>
#include <QStyle>
#include <QStyleOptionSlider>
#include <QStyleOptionSpinBox>
#include <QWheelEvent>
#include <QtTest>

namespace ValueWidgetTest {

//! Shows the top-level widget and makes it the active window, so that focus and keys work.
inline bool showActive(QWidget* window)
{
    window->show();
    QApplication::setActiveWindow(window);
    return QTest::qWaitForWindowActive(window);
}

inline void sendMouse(QWidget* widget, QEvent::Type type, const QPoint& pos, Qt::MouseButtons buttons)
{
    const Qt::MouseButton button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
    QMouseEvent event(type, pos, widget->mapToGlobal(pos), button, buttons, Qt::NoModifier);
    QApplication::sendEvent(widget, &event);
}

//! The centre of the slider's handle.
inline QPoint handleCentre(QSlider* slider)
{
    QStyleOptionSlider option;
    option.initFrom(slider);
    option.orientation = slider->orientation();
    option.minimum = slider->minimum();
    option.maximum = slider->maximum();
    option.sliderPosition = slider->sliderPosition();
    option.sliderValue = slider->value();
    option.subControls = QStyle::SC_SliderGroove | QStyle::SC_SliderHandle;
    return slider->style()->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderHandle, slider).center();
}

//! Gives the box the focus, selects its text and types text over it, as a user replacing the value does.
inline void retype(QAbstractSpinBox* box, const QString& text)
{
    box->setFocus();
    box->selectAll();
    QTest::keyClicks(box, text);
}

//! Presses the left button on the handle, moves it horizontally through each x of path and releases it at the last.
inline void dragHandle(QSlider* slider, const QVector<int>& path)
{
    QPoint pos = handleCentre(slider);
    sendMouse(slider, QEvent::MouseButtonPress, pos, Qt::LeftButton);
    for (int x : path) {
        pos.setX(x);
        sendMouse(slider, QEvent::MouseMove, pos, Qt::LeftButton);
    }
    sendMouse(slider, QEvent::MouseButtonRelease, pos, Qt::NoButton);
}

//! Where the spin box draws the given button (QStyle::SC_SpinBoxUp or SC_SpinBoxDown).
inline QPoint spinButtonCentre(QAbstractSpinBox* spinBox, QStyle::SubControl button)
{
    QStyleOptionSpinBox option;
    option.initFrom(spinBox);
    option.subControls
        = QStyle::SC_SpinBoxUp | QStyle::SC_SpinBoxDown | QStyle::SC_SpinBoxFrame | QStyle::SC_SpinBoxEditField;
    option.buttonSymbols = spinBox->buttonSymbols();
    option.frame = spinBox->hasFrame();
    option.stepEnabled = QAbstractSpinBox::StepUpEnabled | QAbstractSpinBox::StepDownEnabled;
    return spinBox->style()->subControlRect(QStyle::CC_SpinBox, &option, button, spinBox).center();
}

//! One notch of the mouse wheel over the widget, up for a positive notches count.
inline void wheel(QWidget* widget, int notches)
{
    const QPoint pos = widget->rect().center();
    QWheelEvent event(QPointF(pos), QPointF(widget->mapToGlobal(pos)), QPoint(), QPoint(0, 120 * notches), Qt::NoButton,
        Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(widget, &event);
}

} // namespace ValueWidgetTest
