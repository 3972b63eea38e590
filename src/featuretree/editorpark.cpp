#include "editorpark.h"

namespace {
const char* const parkName = "zvc_editor_park";
}

EditorPark::EditorPark(QObject* delegate)
    : QObject(delegate)
{
    setObjectName(QLatin1String(parkName));
}

EditorPark* EditorPark::of(QObject* delegate, bool create)
{
    if (!delegate)
        return nullptr;
    auto* park = delegate->findChild<EditorPark*>(QLatin1String(parkName), Qt::FindDirectChildrenOnly);
    if (!park && create)
        park = new EditorPark(delegate);
    return park;
}

bool EditorPark::park(QWidget* editor, const QSharedPointer<ParameterCollection::IParameter>& node, int editorType)
{
    if (!m_open || !editor || !node || m_editors.contains(node.data()))
        return false;
    editor->hide();
    m_editors.insert(node.data(), Parked { editor, node.toWeakRef(), editorType });
    return true;
}

QWidget* EditorPark::take(const QSharedPointer<ParameterCollection::IParameter>& node, int editorType, QWidget* parent)
{
    if (!node)
        return nullptr;
    const auto found = m_editors.find(node.data());
    if (found == m_editors.end())
        return nullptr;
    const Parked parked = found.value();
    if (parked.editorType != editorType || parked.node.toStrongRef() != node || !parked.editor
        || parked.editor->parentWidget() != parent)
        return nullptr;
    m_editors.erase(found);
    return parked.editor;
}

void EditorPark::release()
{
    const QHash<const ParameterCollection::IParameter*, Parked> parked = std::move(m_editors);
    m_editors.clear();
    for (const Parked& entry : parked) {
        if (entry.editor)
            entry.editor->deleteLater();
    }
}
