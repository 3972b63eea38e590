/*!
 * \file featuretree/zarvexqtspinbox.h
 * ZarvexQtSpinBox, the integer spin box of ComboSlider.
 */
#pragma once

#include "zarvexviewercomponents_export.h"

#include <QSpinBox>

/*!
 * The integer spin box of ComboSlider. Page Up and Page Down step by a
 * settable number of single steps, Escape undoes the edit in progress, Return
 * stays inside the box, and every step reports editingFinished() at once so
 * that the slider beside the box follows without waiting for focus to leave.
 */
class ZVC_EXPORT ZarvexQtSpinBox : public QSpinBox
{
    Q_OBJECT

public:
    //! A spin box with a page of 10 single steps.
    explicit ZarvexQtSpinBox(QWidget* parent = nullptr);

    //! Steps as QSpinBox does, by a page after a page key, then emits editingFinished().
    void stepBy(int steps) override;
    //! As QSpinBox's, but -2147483648 too is shown without group separators unless they are asked for.
    QString textFromValue(int value) const override;

    //! Single steps taken by one Page Up or Page Down; the owner writes it.
    int pageStep = 10;
    //! Set by a page key, so that the step it causes becomes a page step.
    bool pageKeyPressed = false;

protected:
    //! Marks page keys, turns Escape into undo of the edit, and keeps Return and Enter from travelling on.
    void keyPressEvent(QKeyEvent* event) override;
};
