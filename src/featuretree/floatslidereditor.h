#pragma once

#include "abstractitemeditor.h"
#include "parameters/ifloatparameter.h"
#include "parameters/iintegerparameter.h"
#include "parameters/iparametercollection.h"
#include "twomodedoublecomboslider.h"
#include "zarvexviewercomponents_export.h"

/*!
 * The editor of float parameters that have an integer alias ("<full
 * name>/Alias"). The spin box shows and commits the float; the slider shows
 * the alias and, when moved, writes the alias straight to the device.
 * Exposure features in logarithmic representation get a logarithmic slider.
 *
 * The box holds still while the user types in it; the slider follows the
 * device all the time.
 */
class ZVC_EXPORT FloatSliderEditor : public TwoModeDoubleComboSlider, public AbstractItemEditor
{
    Q_OBJECT

public:
    FloatSliderEditor(QSharedPointer<ParameterCollection::IParameterCollection> collection, QWidget* parent = nullptr);
    ~FloatSliderEditor() override;

    void setEditorData(AbstractItemEditor::EditorData data) override;
    //! value(), as a double.
    QVariant editorData() override;

    //! The box's value clamped to the parameter's live limits.
    double value();

    //! The range and the float's own increment, in a notation chosen by the size of the limits.
    void updateToolTip() override;

signals:
    //! The user finished an edit in the box; the delegate commits editorData().
    void boxValueChanged();

protected slots:
    void onSpinBoxEditingFinished();
    void onSliderValueChanged(int val);
    void onAliasParameterDataChanged(QSharedPointer<const ParameterCollection::ParameterData> ptrParameter);

protected:
    double adjustRangeLimits(double value);
    bool initMemberVariables(QSharedPointer<ParameterCollection::IParameter> node);

    bool initialized = false;
    bool aliasConnected = false;
    QSharedPointer<ParameterCollection::IParameter> node;
    QSharedPointer<ParameterCollection::IFloatParameter> floatNode;
    QSharedPointer<ParameterCollection::IIntegerParameter> aliasNode;
    QSharedPointer<ParameterCollection::IParameterCollection> collection;
    QSharedPointer<const ParameterCollection::ParameterData> aliasData;
    QSharedPointer<const ParameterCollection::ParameterData> floatData;
};
