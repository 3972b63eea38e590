/*!
 * \file featuretree/twomodedoublecomboslider.h
 * TwoModeDoubleComboSlider, a DoubleComboSlider whose slider may run on a
 * logarithmic scale.
 */
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
    //! The logical value of the slider.
    Q_PROPERTY(int intValue READ intValue WRITE setIntValue)
    //! The lower end of the logical range.
    Q_PROPERTY(int intMinimum READ intMinimum WRITE setIntMinimum)
    //! The upper end of the logical range.
    Q_PROPERTY(int intMaximum READ intMaximum WRITE setIntMaximum)
    //! Linear or logarithmic.
    Q_PROPERTY(ETwoModeDoubleComboSliderMode mode READ mode WRITE setMode)

public:
    /*!
     * Any value other than ModeLogarithmic counts as linear. The underlying
     * type is fixed, so any int (from a QVariant, a setting, a property) is
     * a value of the type and is kept as given.
     */
    enum ETwoModeDoubleComboSliderMode : int { ModeLinear = 0, ModeLogarithmic = 1 };
    /*!
     * \var TwoModeDoubleComboSlider::ModeLinear
     * The slider shows the integer as it is.
     * \var TwoModeDoubleComboSlider::ModeLogarithmic
     * The slider runs from 0 to 100000 with an equal ratio of logical values per position.
     */
    Q_ENUM(ETwoModeDoubleComboSliderMode)

    //! A slider in the given mode.
    explicit TwoModeDoubleComboSlider(QWidget* parent = nullptr, ETwoModeDoubleComboSliderMode mode = ModeLinear);
    ~TwoModeDoubleComboSlider() override;

    //! The mode last stored.
    ETwoModeDoubleComboSliderMode mode() const;
    //! The logical value: in the logarithmic mode the value last set if the slider is still where it put it.
    int intValue();
    //! The lower end of the logical range; the slider's minimum in the linear mode.
    int intMinimum() const;
    //! The upper end of the logical range; the slider's maximum in the linear mode.
    int intMaximum() const;

    //! Slider position to logical value, clamped to the logical range (logarithmic mode).
    double transformLinear(double position);
    //! Logical value to slider position (logarithmic mode).
    double transformLogarithmic(double value);
    //! value snapped down onto the grid of intIncrement from the minimum: the slider's, or the logical one.
    int trimSliderValue(int value);

public slots:
    //! Sets the logical value; in the logarithmic mode it moves the slider to its position and is kept
    //! to be given back exactly.
    void setIntValue(int value) override;
    //! Sets the lower end of the logical range; in the logarithmic mode the slider's own range stays.
    void setIntMinimum(int min) override;
    //! Sets the upper end of the logical range; in the logarithmic mode the slider's own range stays.
    void setIntMaximum(int max) override;
    //! Sets the logical range; in the logarithmic mode the slider's own range stays. Emits rangeChanged().
    void setIntRange(int min, int max) override;
    //! Only stores the mode; the next initControls() lays the slider out for it.
    void setMode(ETwoModeDoubleComboSliderMode value);
    //! The first setup. In the logarithmic mode the slider gets positions 0 to 100000 and the logical
    //! range, and the value comes last, since its position depends on the range.
    void initControls(double minRangeLimit, double maxRangeLimit, int value, int minIntRangeLimit, int maxIntRangeLimit,
        int intIncrement) override;
    /*!
     * A step of the box. In the logarithmic mode each step is one percent of
     * the value, at least one unit: the slider moves to the new value and the
     * box shows it as a whole number.
     */
    void onSpinBoxStepTriggered(int val);

signals:
    //! The user finished an edit in the box.
    void editingFinished();
    //! The logical value after the slider moved, by the user or by setIntValue().
    void valueChanged(int value);

private slots:
    void onSpinBoxEditingFinished();
    void onSliderValueChanged(int val);

protected:
    //! The mode is ModeLogarithmic.
    bool isLogarithmic() const;
    //! Recomputes the mapping from the logical limits and reports them.
    void logicalRangeChanged();

    ETwoModeDoubleComboSliderMode sliderMode; //!< the present mode
    double minimumLog = 0.0; //!< log2 of logicalMinimum
    double maximumLog = 0.0; //!< log2 of logicalMaximum
    int logicalMinimum = 0; //!< the lower end of the logical range
    int logicalMaximum = 0; //!< the upper end of the logical range
    bool pendingValueValid = false; //!< pendingValue is to be given back as it was set
    int pendingValue = 0; //!< the logical value last set through setIntValue()
    //! The slider position that pendingValue was given; the value holds while the slider stays there.
    int pendingPosition = 0;
    int sliderMinimum = 0; //!< the slider's first position in the logarithmic mode
    int sliderMaximum = 100000; //!< the slider's last position in the logarithmic mode
    double logPerPosition = 0.0; //!< log2 units per slider position
};
