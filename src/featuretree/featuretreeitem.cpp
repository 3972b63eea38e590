#include "featuretreeitem.h"

#include <QApplication>
#include <QBrush>
#include <QFontMetricsF>
#include <QPalette>
#include <QSet>
#include <QSize>

namespace {
// Every item alive now, by address: findShallow() may be handed an address
// from outside (a drag's data, a stale index) and must not follow it before
// it knows that an item lives there. Items are made and deleted in the GUI
// thread only. Never freed, so that items deleted during static destruction
// still find it.
QSet<const FeatureTreeItem*>& liveItems()
{
    static auto* items = new QSet<const FeatureTreeItem*>;
    return *items;
}
} // namespace

FeatureTreeItem::FeatureTreeItem(const QString& displayedName, IFeatureTreeModelExtension* extension,
    const QString& fullName, FeatureTreeItem* parent)
    : m_displayedName(displayedName)
    , m_fullName(fullName)
    , m_parent(parent)
    , m_extension(extension)
{
    liveItems().insert(this);
}

FeatureTreeItem::~FeatureTreeItem()
{
    qDeleteAll(m_children);
    m_children.clear();
    liveItems().remove(this);
}

void FeatureTreeItem::clearChildren()
{
    // Take the list first: a child's destructor must never see itself among its parent's children.
    const QList<FeatureTreeItem*> children = std::move(m_children);
    m_children.clear();
    qDeleteAll(children);
}

int FeatureTreeItem::childCount()
{
    return m_children.count();
}

QVariant FeatureTreeItem::data(int column, int role) const
{
    if (column == 0) {
        switch (role) {
        case Qt::ForegroundRole:
            return GetForegroundRole();
        case Qt::SizeHintRole:
            return QSize(0, static_cast<int>(QFontMetricsF(QApplication::font()).height() + 10));
        case Qt::DisplayRole:
            return m_displayedName;
        default:
            break;
        }
    } else if (column == 1) {
        switch (role) {
        case Qt::EditRole:
        case Qt::DisplayRole:
            return QVariant();
        case Qt::ForegroundRole:
            return GetForegroundRole();
        default:
            break;
        }
    }
    return commonData(role);
}

QVariant FeatureTreeItem::commonData(int role) const
{
    switch (role) {
    case NodeNameRole:
    case FullNameRole:
        return m_fullName;
    case IsCategoryRole:
        return false;
    case VisibilityRole:
        return getVisibility();
    case ItemIdRole:
        return static_cast<unsigned int>(qHash(m_fullName, 0));
    case IsFullRowRole:
        return m_fullRow;
    case IsSpecialNodeRole:
        return m_specialNode;
    case ShowMeRole:
        return ShowMe(GenApi::Guru);
    case Qt::ToolTipRole:
        return GetToolTip();
    default:
        return QVariant();
    }
}

void FeatureTreeItem::setData(int, const QVariant&, int) { }

int FeatureTreeItem::row() const
{
    if (!m_parent)
        return 0;
    const QList<FeatureTreeItem*>& siblings = m_parent->m_children;
    if (m_rowHint >= 0 && m_rowHint < siblings.count() && siblings.at(m_rowHint) == this)
        return m_rowHint;
    m_rowHint = siblings.indexOf(const_cast<FeatureTreeItem*>(this));
    return m_rowHint;
}

FeatureTreeItem* FeatureTreeItem::parent()
{
    return m_parent;
}

const FeatureTreeItem* FeatureTreeItem::parent() const
{
    return m_parent;
}

IFeatureTreeModelExtension* FeatureTreeItem::getExtension()
{
    return m_extension;
}

const IFeatureTreeModelExtension* FeatureTreeItem::getExtension() const
{
    return m_extension;
}

int FeatureTreeItem::editorType() const
{
    return m_editorType;
}

bool FeatureTreeItem::hasChildren() const
{
    return !m_children.isEmpty();
}

bool FeatureTreeItem::ShowMe(GenApi::EVisibility visibility) const
{
    return m_visibility <= static_cast<qint32>(visibility);
}

GenApi::EAccessMode FeatureTreeItem::getAccessMode() const
{
    return GenApi::NA;
}

GenApi::EVisibility FeatureTreeItem::getVisibility() const
{
    return static_cast<GenApi::EVisibility>(m_visibility);
}

void FeatureTreeItem::setVisibility(GenApi::EVisibility visibility)
{
    m_visibility = visibility;
}

Qt::ItemFlags FeatureTreeItem::flags(int column) const
{
    // "Dummy" is the help line of an empty favourites list: nothing can be done with it.
    if (m_fullName == QLatin1String("Dummy"))
        return Qt::NoItemFlags;
    if (column == 0)
        return Qt::ItemIsSelectable | Qt::ItemIsDragEnabled | Qt::ItemIsEnabled;
    if (column == 1) {
        const GenApi::EAccessMode mode = getAccessMode();
        if (usePersistentEditor() || mode == GenApi::NI || mode == GenApi::WO)
            return Qt::ItemIsEditable | Qt::ItemIsEnabled;
    }
    return Qt::ItemIsEnabled;
}

QVariant FeatureTreeItem::GetForegroundRole() const
{
    // Made once, on first use, and never refreshed.
    static const QBrush disabledText = QPalette().brush(QPalette::Disabled, QPalette::Text);
    return disabledText;
}

bool FeatureTreeItem::usePersistentEditor() const
{
    switch (editorType()) {
    case EditorInt:
    case EditorString:
    case 8:
    case EditorNone:
        return false;
    default:
        return true;
    }
}

bool FeatureTreeItem::isEditable() const
{
    return false;
}

int FeatureTreeItem::editorType(const FeatureTreeItem* item)
{
    return item ? EditorNone : EditorInvalid;
}

int FeatureTreeItem::editorType(const QModelIndex& index)
{
    if (index.row() < 0 || index.column() < 0)
        return editorType(static_cast<const FeatureTreeItem*>(index.internalPointer()));
    // An index with a model can't be trusted to carry an item of this tree
    // (it may be a proxy's), so the static form never looks behind it.
    return EditorInvalid;
}

void FeatureTreeItem::appendChild(FeatureTreeItem* child)
{
    m_children.append(child);
}

void FeatureTreeItem::insertChild(FeatureTreeItem* child, int row)
{
    m_children.insert(row, child);
}

FeatureTreeItem* FeatureTreeItem::child(int row) const
{
    if (row < 0 || row >= m_children.count())
        return nullptr;
    return m_children.at(row);
}

FeatureTreeItem* FeatureTreeItem::removeChild(int row)
{
    if (row < 0 || row >= m_children.count())
        return nullptr;
    return m_children.takeAt(row);
}

QString FeatureTreeItem::getDisplayedName() const
{
    return m_displayedName;
}

void FeatureTreeItem::setDisplayedName(QString name)
{
    m_displayedName = std::move(name);
    m_displayedNameChanged = true;
}

QString FeatureTreeItem::getFullName() const
{
    return m_fullName;
}

FeatureTreeItem::Texts& FeatureTreeItem::texts()
{
    if (!m_texts)
        m_texts.reset(new Texts);
    return *m_texts;
}

bool FeatureTreeItem::HasDescription() const
{
    return m_texts && !m_texts->description.isEmpty();
}

void FeatureTreeItem::SetDescription(QString description)
{
    texts().description = std::move(description);
}

QString FeatureTreeItem::GetDescription() const
{
    return m_texts ? m_texts->description : QString();
}

void FeatureTreeItem::SetToolTip(const QString& toolTip)
{
    Texts& all = texts();
    all.toolTip = toolTip;
    all.hasToolTip = true;
}

QString FeatureTreeItem::GetToolTip() const
{
    return m_texts && m_texts->hasToolTip ? m_texts->toolTip : QString(QLatin1String(""));
}

void FeatureTreeItem::SetIsFullRowItem(bool fullRow)
{
    m_fullRow = fullRow;
}

void FeatureTreeItem::SetIsSpecialNode(bool special)
{
    m_specialNode = special;
}

bool FeatureTreeItem::findShallow(const FeatureTreeItem* item) const
{
    // Upwards from the item, each step checked against the parent's list of
    // children: the same answer as a search of every built descendant, at
    // the cost of the item's depth instead of the size of the tree. The
    // view asks this for every editor it opens.
    if (!item || !liveItems().contains(item))
        return false;
    const FeatureTreeItem* at = item;
    while (at != this) {
        const FeatureTreeItem* parent = at->m_parent;
        if (!parent || !liveItems().contains(parent) || parent->child(at->row()) != at)
            return false;
        at = parent;
    }
    return true;
}

FeatureTreeItem* FeatureTreeItem::findByFullNameShallow(const QString& fullName)
{
    if (m_fullName == fullName)
        return this;
    for (FeatureTreeItem* child : qAsConst(m_children)) {
        if (FeatureTreeItem* found = child->findByFullNameShallow(fullName))
            return found;
    }
    return nullptr;
}

FeatureTreeItem* FeatureTreeItem::findByRoleShallow(int role, const QVariant& value)
{
    if (data(0, role) == value)
        return this;
    for (FeatureTreeItem* child : qAsConst(m_children)) {
        if (FeatureTreeItem* found = child->findByRoleShallow(role, value))
            return found;
    }
    return nullptr;
}
