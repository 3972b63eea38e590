/*!
 * \file featuretree/doublespinbox.h
 * DoubleSpinBox, a float spin box that keeps a feature's limits and increment.
 */
#pragma once

#include "zarvexviewercomponents_export.h"

#include <QWidget>

#include <limits>

class SpinBoxEventCatcher;
class ZarvexQtDoubleSpinBox;

/*!
 * A float spin box that keeps the limits and the increment of a float feature
 * beside it. The box does not step itself: its stepTriggered() signal tells
 * the owner (FloatEditor) to step by the increment. Nothing here emits a value
 * change; the setters are for values that come from the device.
 *
 * updateEnabled tells the owner whether a device update may reach the box:
 * it is cleared while the box has the focus and set again when it loses it.
 */
class ZVC_EXPORT DoubleSpinBox : public QWidget
{
    Q_OBJECT
    //! The box's lower limit.
    Q_PROPERTY(double minimum READ minimum WRITE setMinimum)
    //! The box's upper limit.
    Q_PROPERTY(double maximum READ maximum WRITE setMaximum)
    //! The decimals shown.
    Q_PROPERTY(int decimals READ decimals WRITE setDecimals)
    //! The feature's increment; 0 means none.
    Q_PROPERTY(double increment MEMBER increment WRITE setIncrement)
    //! The minimum width of the spin box.
    Q_PROPERTY(int editBoxWidth MEMBER editBoxWidth WRITE setEditBoxWidth)

public:
    //! With representation "PureNumber" the box has no arrow buttons.
    explicit DoubleSpinBox(QWidget* parent = nullptr, const QString& representation = QString());
    ~DoubleSpinBox() override;

    //! The box's value.
    double value() const;
    //! The box's lower limit.
    double minimum() const;
    //! The box's upper limit.
    double maximum() const;
    //! The decimals shown.
    int decimals() const;

    //! Sets the minimum width of the spin box.
    void setEditBoxWidth(int width);

    //! True if any of the three differs from the limits and increment last set through setRange() and setIncrement().
    bool checkIfLimitsChanged(double min, double max, double increment);

    //! Shows the range, and the increment where it is visible at the present decimals, as tool tip.
    virtual void updateToolTip();

public slots:
    //! Shows value, clamped by the box to its limits.
    virtual void setValue(double value);
    //! Sets the box's lower limit, without touching the limits kept for checkIfLimitsChanged().
    virtual void setMinimum(double min);
    //! Sets the box's upper limit, without touching the limits kept for checkIfLimitsChanged().
    virtual void setMaximum(double max);
    //! Sets the decimals shown.
    virtual void setDecimals(int decimals);
    //! Keeps the feature's increment; the box itself never steps.
    virtual void setIncrement(double increment);
    //! Sets and keeps both limits.
    virtual void setRange(double min, double max);
    //! Sets the page to a twentieth of the range, or to twice the increment if that is more.
    virtual void setPageStep();
    //! Range, increment and page together; an increment of 0 removes the arrow buttons for good.
    virtual void setRangeStepAndIncrement(double minRangeLimit, double maxRangeLimit, double increment);
    //! Sets the value, then range, increment and page; the new range clamps the value.
    virtual void initControls(double minRangeLimit, double maxRangeLimit, double value, double increment);
    //! The box gained or lost the focus: updates are held off while it has it.
    void onSpinBoxFocusEventTriggered(bool focus);
    //! Sets updateEnabled.
    void enableUpdate(bool enable);

protected:
    /*!
     * Starts from the range -limit..limit instead of the whole of double's,
     * for a derived editor that sets a feature's own range before the box
     * is seen. The spin box rounds both limits to its decimals through
     * their text: for +-DBL_MAX that is some 300 digits each way, and costs
     * more than the rest of the box's construction.
     */
    DoubleSpinBox(QWidget* parent, const QString& representation, double limit);

    ZarvexQtDoubleSpinBox* spinBox; //!< the spin box; a child
    SpinBoxEventCatcher* eventCatcher; //!< owned, no parent: deleted by the destructor
    double increment = 0.0; //!< the feature's increment; 0 means none
    double minRangeLimit = std::numeric_limits<double>::lowest(); //!< the lower limit as last set through setRange()
    double maxRangeLimit = std::numeric_limits<double>::max(); //!< the upper limit as last set through setRange()
    int editBoxWidth = 0; //!< the minimum width of the spin box
    bool updateEnabled = false; //!< a device update may reach the box (see FloatEditor)
    bool hasFocus = false; //!< the spin box has the keyboard focus
};
