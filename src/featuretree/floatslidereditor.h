/*!
 * \file featuretree/floatslidereditor.h
 * FloatSliderEditor, the editor of float parameters that have an integer alias.
 */
#pragma once

#include "abstractitemeditor.h"
#include "parameters/ifloatparameter.h"
#include "parameters/iintegerparameter.h"
#include "parameters/iparametercollection.h"
#include "twomodedoublecomboslider.h"
#include "zarvexviewercomponents_export.h"

/*!
 * The editor of float parameters that have an integer alias ("<full
 * name>/Alias"). The alias must be an integer parameter with an increment
 * other than 0. The spin box shows and commits the float; the slider shows
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
    //! An editor that looks the alias up in collection.
    FloatSliderEditor(QSharedPointer<ParameterCollection::IParameterCollection> collection, QWidget* parent = nullptr);
    ~FloatSliderEditor() override;

    /*!
     * Takes the float's limits, decimals and value into the box, subject to
     * the focus rule of the class. The first snapshot also finds the alias,
     * picks the slider's mode and sets the slider up; that is tried again
     * with each snapshot until it succeeds. Enabled while the parameter is
     * writable.
     */
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
    //! The user finished an edit: clamps the box to the live limits and emits boxValueChanged().
    void onSpinBoxEditingFinished();
    //! The slider moved to the alias value val: writes it to the alias, unless the alias holds it already.
    void onSliderValueChanged(int val);
    //! A new snapshot of the alias: the slider's range, increment and position follow it, focus or not.
    void onAliasParameterDataChanged(QSharedPointer<const ParameterCollection::ParameterData> ptrParameter);

protected:
    //! value clamped to the float's live limits; value itself if they can't be read.
    double adjustRangeLimits(double value);
    /*!
     * Takes the parameter as a float, finds its alias and subscribes to it,
     * and chooses the slider's mode: logarithmic for a feature whose name
     * contains "Exposure" and whose representation is "Logarithmic", linear
     * otherwise. Throws GenICam::InvalidArgumentException for a parameter
     * that isn't a float, a missing alias or limits the wrong way round.
     */
    bool initMemberVariables(QSharedPointer<ParameterCollection::IParameter> node);

    bool initialized = false; //!< the alias was found and the controls had their first setup
    bool aliasConnected = false; //!< the alias's change signal is connected
    QSharedPointer<ParameterCollection::IParameter> node; //!< the float parameter as handed in
    QSharedPointer<ParameterCollection::IFloatParameter> floatNode; //!< the same, as a float
    QSharedPointer<ParameterCollection::IIntegerParameter> aliasNode; //!< the alias
    QSharedPointer<ParameterCollection::IParameterCollection> collection; //!< where the alias is looked up
    QSharedPointer<const ParameterCollection::ParameterData> aliasData; //!< the alias's last snapshot
    QSharedPointer<const ParameterCollection::ParameterData> floatData; //!< the float's last snapshot
};
