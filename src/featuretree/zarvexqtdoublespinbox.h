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
    explicit ZarvexQtDoubleSpinBox(QWidget* parent = nullptr);

    void stepBy(int steps) override;
    QString textFromValue(double value) const override;

    //! Size of one page, written by the owner's setPageStep().
    double pageStep = 0.0;

signals:
    void stepTriggered(int steps);

protected:
    void keyPressEvent(QKeyEvent* event) override;
};
