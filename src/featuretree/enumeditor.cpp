#include "enumeditor.h"

#include "editorsupport.h"
#include "messages/exceptionlogging.h"

#include <QApplication>
#include <QEvent>
#include <QIcon>

using namespace ParameterCollection;

namespace {
// The editor whose constructor is setting its style sheet (GUI thread only).
const EnumEditor* styledInConstructor = nullptr;
} // namespace

EnumEditor::EnumEditor(QWidget* parent)
    : QComboBox(parent)
{
    setEditable(false);
    // QComboBox answers a style change by choosing its list's delegate, and
    // asking for the delegate builds the whole drop-down list (a frame, a list
    // view, scrollers): a fifth of the time that expanding a large tree took,
    // for lists that are mostly never opened. Nothing of the combo box is
    // measured or built yet at this point, and the list, when it is built,
    // chooses its delegate for the style of that time; so this one style
    // change goes to QWidget alone.
    styledInConstructor = this;
    setStyleSheet(
        QStringLiteral("margin-left:1px; margin-right:1px; margin-top:1px; margin-bottom:1px; padding-left: 4px;"));
    styledInConstructor = nullptr;
}

void EnumEditor::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::StyleChange && styledInConstructor == this) {
        QWidget::changeEvent(event);
        return;
    }
    QComboBox::changeEvent(event);
}

EnumEditor::~EnumEditor()
{
    if (popup)
        popup->removeEventFilter(this);
}

void EnumEditor::setEditorData(AbstractItemEditor::EditorData data)
{
    // The user is choosing: nothing may change under the open list.
    if (popup)
        return;
    try {
        clear();
        const auto* enumeration = dynamic_cast<const EnumParameterData*>(data.data.data());
        if (!data.data || data.data->type != TypeEnumeration || !enumeration) {
            ZVC_LOGGER.debug("%s is called with non-enumeration node????", "setEditorData");
            return;
        }
        const int entries = qMin(enumeration->symbolicValues.size(), enumeration->displayTexts.size());
        for (int i = 0; i < entries; ++i)
            insertItem(count(), QIcon(), enumeration->displayTexts.at(i), enumeration->symbolicValues.at(i));
        if (!enumeration->readable) {
            setCurrentIndex(-1);
        } else {
            const int found = findData(enumeration->valueText, Qt::UserRole, Qt::MatchExactly | Qt::MatchCaseSensitive);
            if (found >= 0) {
                setCurrentIndex(found);
            } else {
                const QString name = data.node ? data.node->getName() : QString();
                ZVC_LOGGER.debug().noquote().nospace()
                    << "setEditorData"
                    << ": " << name << ". No entry in the combo box matches the current value "
                    << enumeration->valueText;
                setCurrentIndex(-1);
            }
        }
        EditorSupport::keepEnabledInStep(this, enumeration->writable);
    } catch (...) {
        EditorSupport::logFailure("setEditorData", "!! Failed to retrieve entries for enumeration %s", data.node);
    }
}

QVariant EnumEditor::editorData()
{
    return currentData(Qt::UserRole);
}

void EnumEditor::showPopup()
{
    QComboBox::showPopup();
    if (popup)
        popup->removeEventFilter(this);
    popup = QApplication::activePopupWidget();
    if (popup)
        popup->installEventFilter(this);
}

bool EnumEditor::eventFilter(QObject* watched, QEvent* event)
{
    if (popup && watched == popup && event->type() == QEvent::Hide) {
        popup->removeEventFilter(this);
        popup = nullptr;
        return true;
    }
    return QComboBox::eventFilter(watched, event);
}
