/*!
 * \file featuretree/toolbuttoneditor.h
 * ToolButtonEditor, the editor of commands.
 */
#pragma once

#include "abstractitemeditor.h"
#include "parameters/icommandparameter.h"
#include "zarvexviewercomponents_export.h"

#include <QToolButton>

/*!
 * The editor of commands: a checkable "Execute" button that stays down for
 * as long as the command runs. The delegate commits on clicked(bool); a
 * click that pushes the button down commits "1", which runs the command.
 */
class ZVC_EXPORT ToolButtonEditor : public QToolButton, public AbstractItemEditor
{
    Q_OBJECT

public:
    //! A checkable button labelled "Execute".
    explicit ToolButtonEditor(QWidget* parent = nullptr);
    ~ToolButtonEditor() override;

    //! Keeps the command and holds the button down while the snapshot says it isn't done;
    //! enabled while the command is writable. A parameter of another kind changes nothing.
    void setEditorData(AbstractItemEditor::EditorData data) override;
    /*!
     * Clears the command's pending state, whatever the button shows, and gives
     * "1" for a pushed button, an invalid QVariant otherwise.
     */
    QVariant editorData() override;

protected:
    //! The command of the last accepted snapshot; null until then.
    QSharedPointer<ParameterCollection::ICommandParameter> command;
};
