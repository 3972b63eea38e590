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
 */
class ZVC_EXPORT DoubleSpinBox : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(double minimum READ minimum WRITE setMinimum)
    Q_PROPERTY(double maximum READ maximum WRITE setMaximum)
    Q_PROPERTY(int decimals READ decimals WRITE setDecimals)
    Q_PROPERTY(double increment MEMBER increment WRITE setIncrement)
    Q_PROPERTY(int editBoxWidth MEMBER editBoxWidth WRITE setEditBoxWidth)

public:
    //! With representation "PureNumber" the box has no arrow buttons.
    explicit DoubleSpinBox(QWidget* parent = nullptr, const QString& representation = QString());
    ~DoubleSpinBox() override;

    double value() const;
    double minimum() const;
    double maximum() const;
    int decimals() const;

    void setEditBoxWidth(int width);

    //! True if any of the three differs from the limits and increment last set through setRange() and setIncrement().
    bool checkIfLimitsChanged(double min, double max, double increment);

    //! Shows the range, and the increment where it is visible at the present decimals, as tool tip.
    virtual void updateToolTip();

public slots:
    virtual void setValue(double value);
    virtual void setMinimum(double min);
    virtual void setMaximum(double max);
    virtual void setDecimals(int decimals);
    virtual void setIncrement(double increment);
    virtual void setRange(double min, double max);
    virtual void setPageStep();
    virtual void setRangeStepAndIncrement(double minRangeLimit, double maxRangeLimit, double increment);
    virtual void initControls(double minRangeLimit, double maxRangeLimit, double value, double increment);
    void onSpinBoxFocusEventTriggered(bool focus);
    void enableUpdate(bool enable);

protected:
    ZarvexQtDoubleSpinBox* spinBox; // child
    SpinBoxEventCatcher* eventCatcher; // owned, no parent: deleted by the destructor
    double increment = 0.0;
    double minRangeLimit = std::numeric_limits<double>::lowest();
    double maxRangeLimit = std::numeric_limits<double>::max();
    int editBoxWidth = 0;
    bool updateEnabled = false;
    bool hasFocus = false;
};
