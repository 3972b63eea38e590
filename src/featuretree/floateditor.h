/*!
 * \file featuretree/floateditor.h
 * FloatEditor, the spin box editor of float parameters.
 */
#pragma once

#include "abstractitemeditor.h"
#include "doublespinbox.h"
#include "parameters/ifloatparameter.h"
#include "zarvexviewercomponents_export.h"

/*!
 * The editor of float parameters without an alias. Steps (arrows, wheel,
 * cursor and page keys) go straight to the device by the parameter's
 * increment; typed values are clamped to the parameter's live limits and
 * committed through boxValueChanged(). While the box has the focus, device
 * updates are held off, except the one that answers the user's own edit or
 * step.
 */
class ZVC_EXPORT FloatEditor : public DoubleSpinBox, public AbstractItemEditor
{
    Q_OBJECT

public:
    //! An editor with no arrow buttons for the representation "PureNumber".
    explicit FloatEditor(QWidget* parent = nullptr, QString representation = QString());
    ~FloatEditor() override;

    /*!
     * Takes limits, increment, decimals and value from the snapshot, subject
     * to the focus rule of the class. A snapshot whose limits don't hold its
     * value changes nothing but is logged. Enabled while the parameter is
     * writable.
     */
    void setEditorData(AbstractItemEditor::EditorData data) override;
    //! value(), as a double.
    QVariant editorData() override;

    //! The box's value clamped to the parameter's live limits.
    double value();

    //! The range and increment with no decimals, in a notation chosen by the size of the limits.
    void updateToolTip() override;

signals:
    //! The user finished an edit; the delegate commits editorData().
    void boxValueChanged();

public slots:
    //! The user finished an edit: lets the answering update through and emits boxValueChanged().
    void onSpinBoxEditingFinished();
    /*!
     * Writes the live value plus steps times the increment (a page for plus
     * or minus 10) to the device, clamped to the live limits. Does nothing
     * for a parameter without an increment.
     */
    void onSpinBoxStepTriggered(int steps);

protected:
    //! value clamped to the parameter's live limits; value itself if they can't be read.
    double adjustRangeLimits(double value);
    //! Takes the parameter as a float; throws GenICam::InvalidArgumentException if it isn't one.
    bool initMemberVariables(QSharedPointer<ParameterCollection::IParameter> node);

    QSharedPointer<ParameterCollection::IFloatParameter> floatNode; //!< the parameter of the last snapshot
    bool initialized = false; //!< the controls had their first setup
};
