/*!
 * \file featuretree/doublecomboslider.h
 * DoubleComboSlider, a float spin box beside an integer slider.
 */
#pragma once

#include "zarvexviewercomponents_export.h"

#include <QWidget>

class QSlider;
class SpinBoxEventCatcher;
class ZarvexQtDoubleSpinBox;

/*!
 * A float spin box beside an integer slider with a range of its own, for a
 * float feature that has an integer alias: the box shows the float, the
 * slider moves the alias. The two halves are not coupled here; a derived
 * class keeps them in step. Steps of the box move the slider by the integer
 * increment, or by a page for Page Up and Page Down. Nothing here emits a
 * value change; the setters are for values that come from the device.
 */
class ZVC_EXPORT DoubleComboSlider : public QWidget
{
    Q_OBJECT
    //! The float shown in the box.
    Q_PROPERTY(double value READ value WRITE setValue)
    //! The box's lower limit.
    Q_PROPERTY(double minimum READ minimum WRITE setMinimum)
    //! The box's upper limit.
    Q_PROPERTY(double maximum READ maximum WRITE setMaximum)
    //! The decimals shown in the box.
    Q_PROPERTY(int decimals READ decimals WRITE setDecimals)
    //! The slider's value.
    Q_PROPERTY(int intValue READ intValue WRITE setIntValue)
    //! The slider's lower end.
    Q_PROPERTY(int intMinimum READ intMinimum WRITE setIntMinimum)
    //! The slider's upper end.
    Q_PROPERTY(int intMaximum READ intMaximum WRITE setIntMaximum)
    //! The slider's grid and the step of the box's arrows; 0 means none.
    Q_PROPERTY(int intIncrement MEMBER intIncrement WRITE setIntIncrement)
    //! The minimum width of the spin box.
    Q_PROPERTY(int editBoxWidth MEMBER editBoxWidth WRITE setEditBoxWidth)

public:
    //! A spin box and a slider spanning the whole int range, not coupled.
    explicit DoubleComboSlider(QWidget* parent = nullptr);
    ~DoubleComboSlider() override;

    //! The float shown in the box.
    double value() const;
    //! The box's lower limit.
    double minimum() const;
    //! The box's upper limit.
    double maximum() const;
    //! The decimals shown in the box.
    int decimals() const;
    //! The slider's value.
    int intValue() const;
    //! The slider's lower end.
    int intMinimum() const;
    //! The slider's upper end.
    int intMaximum() const;

    //! Sets the minimum width of the spin box.
    void setEditBoxWidth(int width);
    //! value snapped down onto the grid of intIncrement that starts at the slider's minimum.
    int trimSliderValue(int value);
    //! True if any differs from the float limits last set through setRange() and the increment.
    bool checkIfLimitsChanged(double min, double max, int increment);
    //! True if any differs from the slider's range and the increment.
    bool checkIfLimitsChanged(int min, int max, int increment);

    //! Shows the float range as tool tip.
    virtual void updateToolTip();

public slots:
    //! Shows value in the box.
    virtual void setValue(double value);
    //! Moves the slider to value.
    virtual void setIntValue(int value);
    //! Sets and keeps the box's lower limit; the tool tip still shows the former one until its next update.
    virtual void setMinimum(double min);
    //! Sets the slider's lower end and emits rangeChanged().
    virtual void setIntMinimum(int min);
    //! Sets and keeps the box's upper limit.
    virtual void setMaximum(double max);
    //! Sets the slider's upper end and emits rangeChanged().
    virtual void setIntMaximum(int max);
    //! Sets the decimals shown in the box.
    virtual void setDecimals(int decimals);
    //! Sets and keeps both limits of the box.
    virtual void setRange(double min, double max);
    //! Sets the slider's range and emits rangeChanged().
    virtual void setIntRange(int min, int max);
    //! Keeps the slider's grid; the slider's own single step is set by initControls() only.
    virtual void setIntIncrement(int increment);
    //! Sets the slider's page to a twentieth of its range, or to twice the increment if that is more,
    //! snapped down onto the grid.
    virtual void setPageStep();
    //! The box's limits, the increment and the page together.
    virtual void setRangeStepAndIncrement(double minRangeLimit, double maxRangeLimit, int intIncrement);
    //! The slider's range, the increment and the page together.
    virtual void setRangeStepAndIncrement(int minIntRangeLimit, int maxIntRangeLimit, int intIncrement);
    //! The first setup: the box's limits, the slider's single step, the slider's value (before its range,
    //! which may clamp it), then its range, increment and page.
    virtual void initControls(double minRangeLimit, double maxRangeLimit, int value, int minIntRangeLimit,
        int maxIntRangeLimit, int intIncrement);
    //! A step of the box moves the slider: by the increment per step, or by a page for plus or minus 10.
    //! The box's number is left to the derived class.
    void onSpinBoxStepTriggered(int steps);
    //! The box gained or lost the focus: updates are held off while it has it.
    void onSpinBoxFocusEventTriggered(bool focus);
    //! Sets updateEnabled.
    void enableUpdate(bool enable);

signals:
    //! The slider's range is now min to max.
    void rangeChanged(int min, int max);

protected:
    QSlider* slider; //!< the slider; a child
    ZarvexQtDoubleSpinBox* spinBox; //!< the spin box; a child
    SpinBoxEventCatcher* eventCatcher; //!< owned, no parent: deleted by the destructor
    int editBoxWidth = 0; //!< the minimum width of the spin box
    int intIncrement = 0; //!< the slider's grid; 0 means none
    double minRangeLimit = 0.0; //!< the box's lower limit as last set
    double maxRangeLimit = 0.0; //!< the box's upper limit as last set
    bool hasFocus = false; //!< the spin box has the keyboard focus
    bool updateEnabled = false; //!< a device update may reach the box (see FloatSliderEditor)
};
