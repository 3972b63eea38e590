/*!
 * \file featuretree/intslidereditor.h
 * IntSliderEditor, the slider editor of integer parameters.
 */
#pragma once

#include "abstractitemeditor.h"
#include "comboslider.h"
#include "zarvexviewercomponents_export.h"

/*!
 * The editor of integer parameters shown as "Linear" or "Logarithmic": a
 * spin box with a linear slider. The parameter's 64-bit numbers are
 * saturated to the 32-bit range of the widget, not scaled. The delegate
 * commits on valueChanged(int), which a device update never emits.
 */
class ZVC_EXPORT IntSliderEditor : public ComboSlider, public AbstractItemEditor
{
    Q_OBJECT

public:
    //! A ComboSlider with nothing set yet.
    explicit IntSliderEditor(QWidget* parent = nullptr);
    ~IntSliderEditor() override;

    /*!
     * Takes range, increment and value from the snapshot, saturated to 32
     * bits, and sets a page of a twentieth of the range or twice the
     * increment. Enabled while the parameter is writable. A snapshot that
     * isn't readable leaves the widget as it was.
     */
    void setEditorData(AbstractItemEditor::EditorData data) override;
    //! The slider's value, as an int.
    QVariant editorData() override;
};
