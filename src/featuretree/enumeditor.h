/*!
 * \file featuretree/enumeditor.h
 * EnumEditor, the editor of enumerations.
 */
#pragma once

#include "abstractitemeditor.h"
#include "zarvexviewercomponents_export.h"

#include <QComboBox>
#include <QPointer>

/*!
 * The editor of enumerations: a combo box listing the snapshot's entries by
 * display text, with the symbolic value as each entry's Qt::UserRole data.
 * The delegate commits on activated(int); editorData() is the symbolic value.
 *
 * While the user has the list open, new snapshots are dropped whole, so that
 * the entries don't move under the mouse.
 */
class ZVC_EXPORT EnumEditor : public QComboBox, public AbstractItemEditor
{
    Q_OBJECT

public:
    //! An empty, non-editable combo box.
    explicit EnumEditor(QWidget* parent = nullptr);
    ~EnumEditor() override;

    /*!
     * Lists the snapshot's entries and selects the current one; none where
     * the parameter isn't readable or its value isn't among the entries.
     * Enabled while the parameter is writable. A snapshot of another kind
     * leaves the box empty.
     */
    void setEditorData(AbstractItemEditor::EditorData data) override;
    //! The symbolic value of the current entry, not its display text.
    QVariant editorData() override;

    //! Opens the list and watches it, so that updates wait until it closes.
    void showPopup() override;
    //! Notices the list closing; every other event goes to the base class.
    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    //! The base class's handling, but for the style sheet set by the constructor (see there).
    void changeEvent(QEvent* event) override;

    //! The open drop-down list; null except while it is shown.
    QPointer<QWidget> popup;
};
