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
 */
class ZVC_EXPORT ComboSlider : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(int value READ value WRITE setValue NOTIFY valueChanged USER true)
    Q_PROPERTY(int minimum READ minimum WRITE setMinimum)
    Q_PROPERTY(int maximum READ maximum WRITE setMaximum)
    Q_PROPERTY(int singleStep READ singleStep WRITE setSingleStep)
    Q_PROPERTY(int pageStep READ pageStep WRITE setPageStep)
    Q_PROPERTY(int editBoxWidth MEMBER editBoxWidth WRITE setEditBoxWidth)

public:
    explicit ComboSlider(QWidget* parent = nullptr);
    ~ComboSlider() override;

    int value() const;
    int minimum() const;
    int maximum() const;
    int singleStep() const;
    int pageStep() const;

    //! value clamped to the range and snapped down onto the grid.
    int trimValue(int value) const;

    //! Shows the range, and the increment unless it is 1, as the widget's tool tip.
    virtual void updateToolTip();

public slots:
    virtual void setValue(int value);
    virtual void setMinimum(int min);
    virtual void setMaximum(int max);
    virtual void setRange(int min, int max);
    virtual void setRangeAndStep(int min, int max, int singleStep);
    virtual void setSingleStep(int singleStep);
    virtual void setPageStep(int pageStep);
    void setEditBoxWidth(int width);
    //! While disabled, valueChanged() is not emitted, not even for the user's changes.
    void enableUpdate(bool enable);

signals:
    void valueChanged(int value);
    void rangeChanged(int min, int max);

protected slots:
    void onComboBoxEditingFinished();
    void onSliderValueChanged(int val);

protected:
    QSlider* slider; // child
    ZarvexQtSpinBox* spinBox; // child
    int editBoxWidth = 0;
    bool updateEnabled = true;

private:
    //! Clears updateEnabled for a scope and sets it again afterwards if it was set before.
    class UpdateSuspender;
};
