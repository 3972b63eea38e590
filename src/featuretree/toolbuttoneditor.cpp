#include "toolbuttoneditor.h"

#include "editorsupport.h"
#include "messages/exceptionlogging.h"

using namespace ParameterCollection;

ToolButtonEditor::ToolButtonEditor(QWidget* parent)
    : QToolButton(parent)
{
    setAutoRaise(false);
    setText(tr("Execute"));
    setCheckable(true);
    setFocusPolicy(Qt::StrongFocus);
    setContentsMargins(0, 0, 0, 0);
}

ToolButtonEditor::~ToolButtonEditor() = default;

void ToolButtonEditor::setEditorData(AbstractItemEditor::EditorData data)
{
    try {
        const QSharedPointer<ICommandParameter> cast = data.node.objectCast<ICommandParameter>();
        const auto* state = dynamic_cast<const CommandParameterData*>(data.data.data());
        if (!cast || !data.data || data.data->type != TypeCommand || !state) {
            ZVC_LOGGER.debug("%s is called with non-command node????", "setEditorData");
            return;
        }
        command = cast;
        // Down while the command runs; up again once a snapshot reports it done.
        setChecked(!state->done);
        EditorSupport::keepEnabledInStep(this, state->writable);
    } catch (...) {
        EditorSupport::logFailure("setEditorData", "!! Failed to initialize button data for node %s", data.node);
    }
}

QVariant ToolButtonEditor::editorData()
{
    const bool checked = isChecked();
    if (!command) {
        ZVC_LOGGER.debug("%s is called with non-command node????", "editorData");
    } else {
        try {
            command->setCommandPending(false);
        } catch (...) {
            ExceptionLogging::logCurrentException("editorData", QStringLiteral("!! Failed to set button state"));
        }
    }
    return checked ? QVariant(QStringLiteral("1")) : QVariant();
}
