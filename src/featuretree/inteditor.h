/*!
 * \file featuretree/inteditor.h
 * IntEditor, the text editor of integer parameters.
 */
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
    //! A frameless line edit.
    explicit IntEditor(QWidget* parent = nullptr);
    ~IntEditor() override;

    /*!
     * Shows the snapshot's value text, or "<not readable>". The tool tip
     * gives the range in decimal, or in hexadecimal for "HexNumber"; for
     * "IPV4Address", "MACAddress" and "Boolean" it is empty and any validator
     * is removed. A representation of another name changes nothing.
     */
    void setEditorData(AbstractItemEditor::EditorData data) override;
    //! The text in the box, unchecked.
    QVariant editorData() override;
};
