#include "checkboxeditor.h"

#include "editorsupport.h"

using namespace ParameterCollection;

CheckBoxEditor::CheckBoxEditor(QWidget* parent)
    : QCheckBox(parent)
{
}

CheckBoxEditor::~CheckBoxEditor() = default;

void CheckBoxEditor::setEditorData(AbstractItemEditor::EditorData data)
{
    // Silent on purpose: the delegate hands every editor whatever the item
    // holds, and a check box has nothing useful to say about other kinds.
    if (!data.data || data.data->type != TypeBoolean)
        return;
    const auto* boolean = dynamic_cast<const BooleanParameterData*>(data.data.data());
    if (!boolean)
        return;
    try {
        setChecked(boolean->value);
        EditorSupport::keepEnabledInStep(this, boolean->writable);
    } catch (...) {
        EditorSupport::logFailure("setEditorData", "!! Failed to initialize checkbox data for node %s", data.node);
    }
}

QVariant CheckBoxEditor::editorData()
{
    return isChecked() ? QStringLiteral("1") : QStringLiteral("0");
}
