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
    explicit EnumEditor(QWidget* parent = nullptr);
    ~EnumEditor() override;

    void setEditorData(AbstractItemEditor::EditorData data) override;
    QVariant editorData() override;

    void showPopup() override;
    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    //! The open drop-down list; null except while it is shown.
    QPointer<QWidget> popup;
};
