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
    explicit FloatEditor(QWidget* parent = nullptr, QString representation = QString());
    ~FloatEditor() override;

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
    void onSpinBoxEditingFinished();
    void onSpinBoxStepTriggered(int steps);

protected:
    double adjustRangeLimits(double value);
    bool initMemberVariables(QSharedPointer<ParameterCollection::IParameter> node);

    QSharedPointer<ParameterCollection::IFloatParameter> floatNode;
    bool initialized = false;
};
