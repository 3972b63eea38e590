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
    explicit IntSliderEditor(QWidget* parent = nullptr);
    ~IntSliderEditor() override;

    void setEditorData(AbstractItemEditor::EditorData data) override;
    //! The slider's value, as an int.
    QVariant editorData() override;
};
