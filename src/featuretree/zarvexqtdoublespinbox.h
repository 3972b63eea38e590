/*!
 * \file featuretree/zarvexqtdoublespinbox.h
 * ZarvexQtDoubleSpinBox, the float spin box that reports steps instead of taking them.
 */
#pragma once

#include "zarvexviewercomponents_export.h"

#include <QDoubleSpinBox>

/*!
 * The float spin box of DoubleSpinBox and DoubleComboSlider. It never steps
 * itself: arrows, wheel and cursor keys only report stepTriggered(), with
 * Page Up and Page Down as plus and minus 10, and the owner decides what a
 * step means for its feature. Escape undoes the edit in progress and Return
 * stays inside the box. Values are shown without group separators.
 */
class ZVC_EXPORT ZarvexQtDoubleSpinBox : public QDoubleSpinBox
{
    Q_OBJECT

public:
    //! A spin box whose page is set by its owner.
    explicit ZarvexQtDoubleSpinBox(QWidget* parent = nullptr);

    //! Emits stepTriggered(steps) and leaves the value alone.
    void stepBy(int steps) override;
    //! The value in fixed notation at the box's decimals, in the box's locale (formatDoubleValue()).
    QString textFromValue(double value) const override;

    //! Size of one page, written by the owner's setPageStep().
    double pageStep = 0.0;

signals:
    //! The user asked for steps: by arrows, wheel or cursor keys, or plus or minus 10 for a page key.
    void stepTriggered(int steps);

protected:
    //! Turns Escape into undo of the edit and keeps Return and Enter from travelling on.
    void keyPressEvent(QKeyEvent* event) override;
};
