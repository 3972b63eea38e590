/*!
 * \file featuretree/comboslider.h
 * ComboSlider, an integer spin box and slider showing one value.
 */
#pragma once

#include "zarvexviewercomponents_export.h"

#include <QWidget>

class QSlider;
class ZarvexQtSpinBox;

/*!
 * A spin box and a horizontal slider showing one integer on a grid that starts
 * at the minimum and has the single step as its pitch (a single step of 0
 * means no grid). Values snap down onto the grid. valueChanged() reports
 * changes made by the user only: the setters, the range setters included, are
 * for values that come from elsewhere and emit no valueChanged().
 *
 * The box is wide enough for twelve digits whatever the range; the tool tip
 * states the range and, unless it is 1, the increment. IntSliderEditor
 * derives from it.
 */
class ZVC_EXPORT ComboSlider : public QWidget
{
    Q_OBJECT
    //! The value shown, on the grid and within the range.
    Q_PROPERTY(int value READ value WRITE setValue NOTIFY valueChanged USER true)
    //! The lower end of the range and the start of the grid.
    Q_PROPERTY(int minimum READ minimum WRITE setMinimum)
    //! The upper end of the range.
    Q_PROPERTY(int maximum READ maximum WRITE setMaximum)
    //! The pitch of the grid; 0 means no grid.
    Q_PROPERTY(int singleStep READ singleStep WRITE setSingleStep)
    //! The step of Page Up and Page Down, in the box and on the slider.
    Q_PROPERTY(int pageStep READ pageStep WRITE setPageStep)
    //! The minimum width of the spin box.
    Q_PROPERTY(int editBoxWidth MEMBER editBoxWidth WRITE setEditBoxWidth)

public:
    //! A spin box and a slider side by side, with the slider's default range.
    explicit ComboSlider(QWidget* parent = nullptr);
    ~ComboSlider() override;

    //! The value shown.
    int value() const;
    //! The lower end of the range.
    int minimum() const;
    //! The upper end of the range.
    int maximum() const;
    //! The pitch of the grid.
    int singleStep() const;
    //! The step of Page Up and Page Down.
    int pageStep() const;

    //! value clamped to the range and snapped down onto the grid.
    int trimValue(int value) const;

    //! Shows the range, and the increment unless it is 1, as the widget's tool tip.
    virtual void updateToolTip();

public slots:
    //! Shows value, clamped and snapped down onto the grid; emits no valueChanged().
    virtual void setValue(int value);
    //! Sets the lower end of the range and emits rangeChanged(); a value it moves emits no valueChanged().
    virtual void setMinimum(int min);
    //! Sets the upper end of the range and emits rangeChanged(); a value it moves emits no valueChanged().
    virtual void setMaximum(int max);
    //! Sets the range and emits rangeChanged(); a value it moves emits no valueChanged().
    virtual void setRange(int min, int max);
    //! Sets the grid's pitch and the range together and emits rangeChanged(); a value it moves emits no valueChanged().
    virtual void setRangeAndStep(int min, int max, int singleStep);
    //! Sets the grid's pitch.
    virtual void setSingleStep(int singleStep);
    //! Sets the step of Page Up and Page Down.
    virtual void setPageStep(int pageStep);
    //! Sets the minimum width of the spin box.
    void setEditBoxWidth(int width);
    //! While disabled, valueChanged() is not emitted, not even for the user's changes.
    void enableUpdate(bool enable);

signals:
    //! The user changed the value, with the box or the slider; always a value on the grid.
    void valueChanged(int value);
    //! A range setter set the range to min and max.
    void rangeChanged(int min, int max);

protected slots:
    //! The user finished an edit in the box: snaps the value onto the grid and hands it to the slider.
    void onComboBoxEditingFinished();
    //! The slider moved: brings the box along and emits valueChanged() for a value on the grid.
    void onSliderValueChanged(int val);

protected:
    QSlider* slider; //!< the slider; a child
    ZarvexQtSpinBox* spinBox; //!< the spin box; a child
    int editBoxWidth = 0; //!< the minimum width of the spin box
    bool updateEnabled = true; //!< while false, valueChanged() is not emitted

private:
    //! Clears updateEnabled for a scope and sets it again afterwards if it was set before.
    class UpdateSuspender;
};
