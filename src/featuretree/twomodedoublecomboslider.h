#pragma once

#include "doublecomboslider.h"

/*!
 * A DoubleComboSlider whose integer half runs in one of two modes. In the
 * linear mode the slider shows the integer as it is. In the logarithmic mode
 * a logical integer range (an exposure time in microseconds, say) is laid
 * out on slider positions 0 to 100000 with an equal ratio per position, and a
 * step of the spin box is one percent of its value.
 *
 * A logical value set through setIntValue() comes back exactly, from
 * intValue() and in valueChanged(), for as long as the slider stays at the
 * position that value was given; the round trip through a position alone
 * would not return it.
 */
class ZVC_EXPORT TwoModeDoubleComboSlider : public DoubleComboSlider
{
    Q_OBJECT
    Q_PROPERTY(int intValue READ intValue WRITE setIntValue)
    Q_PROPERTY(int intMinimum READ intMinimum WRITE setIntMinimum)
    Q_PROPERTY(int intMaximum READ intMaximum WRITE setIntMaximum)
    Q_PROPERTY(ETwoModeDoubleComboSliderMode mode READ mode WRITE setMode)

public:
    //! Any value other than ModeLogarithmic counts as linear.
    enum ETwoModeDoubleComboSliderMode { ModeLinear = 0, ModeLogarithmic = 1 };
    Q_ENUM(ETwoModeDoubleComboSliderMode)

    explicit TwoModeDoubleComboSlider(QWidget* parent = nullptr, ETwoModeDoubleComboSliderMode mode = ModeLinear);
    ~TwoModeDoubleComboSlider() override;

    ETwoModeDoubleComboSliderMode mode() const;
    //! The logical value: in the logarithmic mode the value last set if the slider is still where it put it.
    int intValue();
    int intMinimum() const;
    int intMaximum() const;

    //! Slider position to logical value, clamped to the logical range (logarithmic mode).
    double transformLinear(double position);
    //! Logical value to slider position (logarithmic mode).
    double transformLogarithmic(double value);
    //! value snapped down onto the grid of intIncrement from the minimum: the slider's, or the logical one.
    int trimSliderValue(int value);

public slots:
    void setIntValue(int value) override;
    void setIntMinimum(int min) override;
    void setIntMaximum(int max) override;
    void setIntRange(int min, int max) override;
    //! Only stores the mode; the next initControls() lays the slider out for it.
    void setMode(ETwoModeDoubleComboSliderMode value);
    void initControls(double minRangeLimit, double maxRangeLimit, int value, int minIntRangeLimit, int maxIntRangeLimit,
        int intIncrement) override;
    void onSpinBoxStepTriggered(int val);

signals:
    void editingFinished();
    //! The logical value after the slider moved, by the user or by setIntValue().
    void valueChanged(int value);

private slots:
    void onSpinBoxEditingFinished();
    void onSliderValueChanged(int val);

protected:
    bool isLogarithmic() const;
    //! Recomputes the mapping from the logical limits and reports them.
    void logicalRangeChanged();

    ETwoModeDoubleComboSliderMode sliderMode;
    double minimumLog = 0.0;
    double maximumLog = 0.0;
    int logicalMinimum = 0;
    int logicalMaximum = 0;
    bool pendingValueValid = false;
    int pendingValue = 0;
    //! The slider position that pendingValue was given; the value holds while the slider stays there.
    int pendingPosition = 0;
    int sliderMinimum = 0;
    int sliderMaximum = 100000;
    double logPerPosition = 0.0;
};
