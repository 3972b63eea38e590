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
    Q_PROPERTY(double value READ value WRITE setValue)
    Q_PROPERTY(double minimum READ minimum WRITE setMinimum)
    Q_PROPERTY(double maximum READ maximum WRITE setMaximum)
    Q_PROPERTY(int decimals READ decimals WRITE setDecimals)
    Q_PROPERTY(int intValue READ intValue WRITE setIntValue)
    Q_PROPERTY(int intMinimum READ intMinimum WRITE setIntMinimum)
    Q_PROPERTY(int intMaximum READ intMaximum WRITE setIntMaximum)
    Q_PROPERTY(int intIncrement MEMBER intIncrement WRITE setIntIncrement)
    Q_PROPERTY(int editBoxWidth MEMBER editBoxWidth WRITE setEditBoxWidth)

public:
    explicit DoubleComboSlider(QWidget* parent = nullptr);
    ~DoubleComboSlider() override;

    double value() const;
    double minimum() const;
    double maximum() const;
    int decimals() const;
    int intValue() const;
    int intMinimum() const;
    int intMaximum() const;

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
    virtual void setValue(double value);
    virtual void setIntValue(int value);
    virtual void setMinimum(double min);
    virtual void setIntMinimum(int min);
    virtual void setMaximum(double max);
    virtual void setIntMaximum(int max);
    virtual void setDecimals(int decimals);
    virtual void setRange(double min, double max);
    virtual void setIntRange(int min, int max);
    virtual void setIntIncrement(int increment);
    virtual void setPageStep();
    virtual void setRangeStepAndIncrement(double minRangeLimit, double maxRangeLimit, int intIncrement);
    virtual void setRangeStepAndIncrement(int minIntRangeLimit, int maxIntRangeLimit, int intIncrement);
    virtual void initControls(double minRangeLimit, double maxRangeLimit, int value, int minIntRangeLimit,
        int maxIntRangeLimit, int intIncrement);
    void onSpinBoxStepTriggered(int steps);
    void onSpinBoxFocusEventTriggered(bool focus);
    void enableUpdate(bool enable);

signals:
    void rangeChanged(int min, int max);

protected:
    QSlider* slider; // child
    ZarvexQtDoubleSpinBox* spinBox; // child
    SpinBoxEventCatcher* eventCatcher; // owned, no parent: deleted by the destructor
    int editBoxWidth = 0;
    int intIncrement = 0;
    double minRangeLimit = 0.0;
    double maxRangeLimit = 0.0;
    bool hasFocus = false;
    bool updateEnabled = false;
};
