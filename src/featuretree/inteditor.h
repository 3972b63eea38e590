#pragma once

#include "abstractitemeditor.h"
#include "zarvexviewercomponents_export.h"

#include <QLineEdit>

/*!
 * The plain text editor of integer parameters that have no slider. It shows
 * the device's own text of the value and hands back whatever text the user
 * leaves, so that 64-bit values, hexadecimal numbers and IPv4 and MAC
 * addresses pass through whole; the parameter parses the text when it is
 * written. The tool tip states the range, saturated to 32 bits.
 */
class ZVC_EXPORT IntEditor : public QLineEdit, public AbstractItemEditor
{
    Q_OBJECT

public:
    explicit IntEditor(QWidget* parent = nullptr);
    ~IntEditor() override;

    void setEditorData(AbstractItemEditor::EditorData data) override;
    //! The text in the box, unchecked.
    QVariant editorData() override;
};
