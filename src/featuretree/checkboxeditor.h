/*!
 * \file featuretree/checkboxeditor.h
 * CheckBoxEditor, the editor of boolean parameters.
 */
#pragma once

#include "abstractitemeditor.h"
#include "zarvexviewercomponents_export.h"

#include <QCheckBox>

/*!
 * The editor of Boolean parameters: a check box that shows the snapshot's
 * value. The delegate commits on clicked(bool); editorData() is "1" or "0".
 */
class ZVC_EXPORT CheckBoxEditor : public QCheckBox, public AbstractItemEditor
{
    Q_OBJECT

public:
    //! An unchecked box.
    explicit CheckBoxEditor(QWidget* parent = nullptr);
    ~CheckBoxEditor() override;

    //! A null snapshot or one of another kind is ignored without a word.
    //! Otherwise shows the snapshot's value, enabled while the parameter is writable.
    void setEditorData(AbstractItemEditor::EditorData data) override;
    //! "1" when checked, "0" when not.
    QVariant editorData() override;
};
