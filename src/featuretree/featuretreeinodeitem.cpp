#include "featuretreeinodeitem.h"

#include "featuretreehighlighter.h"
#include "featuretreemodel.h"
#include "ifeaturetreemodelextension.h"
#include "messages/exceptionlogging.h"
#include "nodemapname.h"
#include "parameters/iadvancedparameteraccess.h"
#include "parameters/icommandparameter.h"
#include "parameters/ifloatparameter.h"
#include "parameters/iintegerparameter.h"

#include <QCoreApplication>
#include <QMetaMethod>
#include <QUuid>

using namespace ParameterCollection;

namespace {

// GetNodemapName() for an item's full name. The answer depends only on the
// text before the first "/" after the leading character, and the rows of one
// node map are built in long runs: the last answer is kept with that prefix,
// which spares the split of every full name into parts.
QString translationContextOf(const QString& fullName)
{
    thread_local QString lastPrefix;
    thread_local QString lastContext;
    const int slash = fullName.indexOf(QLatin1Char('/'), 1);
    const QStringView prefix = slash >= 0 ? QStringView(fullName).left(slash) : QStringView(fullName);
    if (slash < 0 || lastPrefix.isNull() || prefix != QStringView(lastPrefix)) {
        lastContext = GetNodemapName(fullName);
        lastPrefix = slash >= 0 ? prefix.toString() : QString();
    }
    return lastContext;
}

QString representationOf(const IAdvancedParameterAccess* access)
{
    return access ? access->getProperty(QStringLiteral("Representation")) : QString();
}

// The editor type rule for a live node; representation() gives its
// "Representation", asked only of numbers.
template <typename Representation> int editorTypeOfKind(const IParameter& node, Representation representation)
{
    const auto isSliderRepresentation
        = [](const QString& text) { return text == QLatin1String("Linear") || text == QLatin1String("Logarithmic"); };
    switch (node.getType()) {
    case TypeInteger:
        return isSliderRepresentation(representation()) ? FeatureTreeItem::EditorIntSlider : FeatureTreeItem::EditorInt;
    case TypeFloat:
        return isSliderRepresentation(representation()) ? FeatureTreeItem::EditorFloatSlider
                                                        : FeatureTreeItem::EditorFloat;
    case TypeEnumeration:
        return FeatureTreeItem::EditorEnum;
    case TypeBoolean:
        return FeatureTreeItem::EditorBool;
    case TypeString:
        return FeatureTreeItem::EditorString;
    case TypeCommand:
        return FeatureTreeItem::EditorCommand;
    default:
        return FeatureTreeItem::EditorNone;
    }
}

// The method indexes of the parameter's change signal and of the item's slot,
// looked up once.
//
// Items connect by these indexes (QMetaObject's index-based connect) rather
// than by member-function pointers, by QMetaMethod or by signature strings.
// The string form parses and normalises two signatures for each of the
// 100 000 items of the largest trees; the QMetaMethod form builds and compares
// both signatures on every call, a quarter of the time to build a row; the
// pointer form gives each connection a slot object of its own, 48 heap bytes
// a row. The index form has none of these costs: the checks the other forms
// make are made once, here.
int parameterChangedSignalIndex()
{
    static const int index = QMetaMethod::fromSignal(&IParameter::parameterDataChangedDecoupled).methodIndex();
    return index;
}

int itemChangedSlotIndex()
{
    static const int index = [] {
        const QMetaObject& meta = FeatureTreeINodeItem::staticMetaObject;
        const int slot = meta.indexOfSlot(QMetaObject::normalizedSignature(
            "onParameterDataChanged(QSharedPointer<const ParameterCollection::ParameterData>)"));
        Q_ASSERT(slot >= 0);
        Q_ASSERT(QMetaObject::checkConnectArgs(
            QMetaMethod::fromSignal(&IParameter::parameterDataChangedDecoupled), meta.method(slot)));
        return slot;
    }();
    return index;
}

} // namespace

FeatureTreeINodeItem::FeatureTreeINodeItem(QSharedPointer<IParameterCollection> collection,
    QSharedPointer<IParameter> node, const QString& displayedName, IFeatureTreeModelExtension* extension,
    const QString& fullName, FeatureTreeItem* parent, bool textAsUtf8)
    : FeatureTreeItem(displayedName, extension, fullName, parent)
    , m_textAsUtf8(textAsUtf8)
    , m_node(std::move(node))
    , m_context(contextFor(parent, std::move(collection)))
{
    initInternal();
}

FeatureTreeINodeItem::FeatureTreeINodeItem(QSharedPointer<IParameterCollection> collection,
    QSharedPointer<IParameter> node, IFeatureTreeModelExtension* extension, const QString& fullName,
    FeatureTreeItem* parent, bool textAsUtf8)
    : FeatureTreeItem(QString(), extension, fullName, parent)
    , m_textAsUtf8(textAsUtf8)
    , m_node(std::move(node))
    , m_context(contextFor(parent, std::move(collection)))
{
    QString displayName;
    initInternal(&displayName);
    try {
        if (m_node && !m_node->isZombie())
            subscribe();
    } catch (...) {
        // A zombie test that throws leaves the item unsubscribed, showing what it cached.
        ExceptionLogging::logCurrentException("FeatureTreeINodeItem", QStringLiteral("Failed to subscribe to a node"));
    }
    setDisplayedName(displayName);
}

FeatureTreeINodeItem::~FeatureTreeINodeItem()
{
    if (m_notifiesModel && !m_childrenFetched && m_node)
        --static_cast<FeatureTreeModel*>(m_extension)->m_unfetchedCategories;
    unsubscribe();
    clearChildren();
}

void FeatureTreeINodeItem::subscribe()
{
    // The item is the receiver, so Qt drops the connection, and any change
    // still queued for the item from the parameter layer's own thread, when
    // the item goes.
    QMetaObject::connect(
        m_node.data(), parameterChangedSignalIndex(), this, itemChangedSlotIndex(), Qt::AutoConnection);
    m_subscribed = true;
}

void FeatureTreeINodeItem::unsubscribe()
{
    if (!m_subscribed)
        return;
    m_subscribed = false;
    QMetaObject::disconnect(m_node.data(), parameterChangedSignalIndex(), this, itemChangedSlotIndex());
}

void FeatureTreeINodeItem::initInternal(QString* displayName)
{
    m_childrenFetched = true;
    if (!m_node) {
        m_editorType = EditorInvalid;
        takeSnapshot(ParameterData::createPlaceholder());
        m_name = QStringLiteral("Unknown");
        if (displayName)
            *displayName = m_name;
        return;
    }

    // Kept for the editor type's "Representation" below: asking the node for
    // its advanced access again made a second access object per number feature.
    QSharedPointer<IAdvancedParameterAccess> access;
    bool accessKnown = false;
    try {
        access = m_node->advancedAccess();
        accessKnown = true;
        if (access) {
            m_unitOrTitle = access->getProperty(QStringLiteral("Unit"), QString());
            m_unitLength = -m_unitOrTitle.size();
            m_descriptionText = access->getProperty(QStringLiteral("Description"), QString());
            m_toolTipText = access->getProperty(QStringLiteral("Tooltip"), QString());
            m_docuUrl = access->getProperty(QStringLiteral("DocuURL"), QString());
            const QString shownName = access->getProperty(QStringLiteral("DisplayName"), QStringLiteral("<unknown>"));
            if (displayName)
                *displayName = shownName;
            m_name = m_node->getName();
        }
    } catch (...) {
        ExceptionLogging::logCurrentException(
            "initInternal", QStringLiteral("Exception fired when caching parameter properties"));
    }

    try {
        QSharedPointer<const ParameterData> data = m_node->getParameterData();
        takeSnapshot(data ? data : ParameterData::createPlaceholder());
        m_childrenFetched = (m_parameterData->type != TypeCategory);
        if (!accessKnown)
            m_editorType = editorType(m_node);
        else if (m_node->isZombie())
            m_editorType = EditorInvalid;
        else
            m_editorType = editorTypeOfKind(*m_node, [&access] { return representationOf(access.data()); });
    } catch (...) {
        ExceptionLogging::logCurrentException(
            "initInternal", QStringLiteral("Exception fired when caching parameter data"));
    }
    if (!m_parameterData)
        takeSnapshot(ParameterData::createPlaceholder());
}

void FeatureTreeINodeItem::takeSnapshot(QSharedPointer<const ParameterData> data)
{
    m_parameterData = std::move(data);
    m_valueText = QString();
    if (!m_parameterData || !m_node) {
        m_shownValue = ShownValue::Nothing;
        return;
    }
    const ParameterData& shown = *m_parameterData;
    if (shown.type == TypeCategory || shown.type == TypeBoolean) {
        m_shownValue = ShownValue::Empty;
    } else if (!shown.implemented) {
        m_shownValue = ShownValue::NotImplemented;
    } else if (shown.readable) {
        m_shownValue = ShownValue::Value;
        m_valueText = shown.valueText;
    } else {
        m_shownValue = shown.writable ? ShownValue::NotReadable : ShownValue::NotAvailable;
    }
}

void FeatureTreeINodeItem::clearChildren()
{
    FeatureTreeItem::clearChildren();
}

int FeatureTreeINodeItem::childCount()
{
    if (!m_childrenFetched && m_node
        && !(m_notifiesModel && static_cast<FeatureTreeModel*>(m_extension)->m_fillHolds > 0)) {
        // Set first: the model's own row calls during the fill must not fill again,
        // and a fill that failed is not tried again.
        m_childrenFetched = true;
        if (m_notifiesModel)
            --static_cast<FeatureTreeModel*>(m_extension)->m_unfetchedCategories;
        if (IFeatureTreeModelExtension* extension = getExtension())
            extension->addChildren(this);
    }
    return m_children.count();
}

QVariant FeatureTreeINodeItem::data(int column, int role) const
{
    if (!answersRoles())
        return QVariant();
    try {
        // Read only where a role needs it: the display roles come from the
        // item alone (see takeSnapshot()).
        const auto kind = [this] { return m_parameterData->type; };
        if (column == 0) {
            switch (role) {
            case Qt::DisplayRole:
                return displayText();
            case Qt::ToolTipRole:
                return toolTip();
            case Qt::ForegroundRole:
                return GetForegroundRole();
            case NodeNameRole:
                return m_name;
            case NodeToolTipRole:
                return m_toolTipText;
            case NodeDescriptionRole:
                return m_descriptionText;
            case NodeDocuUrlRole:
                return m_docuUrl;
            case IsCategoryRole:
                return kind() == TypeCategory;
            case VisibilityRole:
                return getVisibility();
            case ItemIdRole:
                return QUuid::createUuid().toString();
            case IsFullRowRole:
                return kind() == TypeCategory;
            case IsSpecialNodeRole:
                return m_specialNode;
            case ShowMeRole:
                return ShowMe(GenApi::Guru);
            case FullNameRole:
                return m_fullName;
            default:
                return FeatureTreeItem::data(column, role);
            }
        }
        if (column == 1) {
            switch (role) {
            case Qt::DisplayRole:
                return valueDisplayText();
            case Qt::EditRole:
                if (kind() == TypeCategory || kind() == TypeBoolean)
                    return QVariant();
                return m_parameterData->readable ? QVariant(m_parameterData->valueText) : QVariant();
            case Qt::ForegroundRole:
                return GetForegroundRole();
            default:
                break;
            }
        }
        return FeatureTreeItem::data(column, role);
    } catch (...) {
        ExceptionLogging::logCurrentException("data", QStringLiteral("Exception fired when trying to access a node"));
        return QStringLiteral("<error!>");
    }
}

const QString& FeatureTreeINodeItem::displayText() const
{
    if (m_unitLength == 0)
        return m_displayedName;
    // Painting and every search pass ask for this text: build it once per
    // displayed name instead of on every request. The base class tells when
    // the displayed name was set, so that the check reads no text; the unit
    // never changes, and stands at the end of the title built before.
    if (m_unitLength < 0 || m_displayedNameChanged) {
        const int length = qAbs(m_unitLength);
        const QString unit
            = m_unitLength < 0 ? m_unitOrTitle : m_unitOrTitle.mid(m_unitOrTitle.size() - 1 - length, length);
        m_unitOrTitle = QStringLiteral("%1 [%2]").arg(m_displayedName, unit);
        m_unitLength = length;
        m_displayedNameChanged = false;
    }
    return m_unitOrTitle;
}

QVariant FeatureTreeINodeItem::valueDisplayText() const
{
    // Translated here, not when the snapshot is taken, so that a change of
    // language reaches rows that don't change.
    switch (m_shownValue) {
    case ShownValue::Empty:
        return QString(QLatin1String(""));
    case ShownValue::NotImplemented:
        return tr("<not implemented>");
    case ShownValue::Value:
        return m_valueText;
    case ShownValue::NotReadable:
        return tr("<not readable>");
    case ShownValue::NotAvailable:
        return tr("<not available>");
    case ShownValue::Nothing:
        break;
    }
    return QVariant();
}

QVariant FeatureTreeINodeItem::toolTip() const
{
    try {
        const QByteArray key = QStringLiteral("%1_Tooltip").arg(m_name).toLatin1();
        const QByteArray context = translationContext().toLatin1();
        const QString translated = QCoreApplication::translate(context.constData(), key.constData());
        const QString text = (translated.toLatin1() == key) ? m_toolTipText : translated;

        QString html;
        if (m_name.contains(QLatin1String("Root")) || m_parameterData->type == TypeCategory)
            html = QStringLiteral("<nobr><b>%1</b></nobr>").arg(m_displayedName);
        else
            html = QStringLiteral("<nobr><b>%1 (%2)</b></nobr>").arg(m_displayedName, m_name);
        FeatureTreeHighlighter* const shown = highlighter();
        if (shown && m_parameterData->type != TypeCategory)
            html = shown->highlightText(html);
        if (!text.isEmpty())
            html += QStringLiteral("<br><nobr>%1</nobr>").arg(text);
        return html;
    } catch (...) {
        ExceptionLogging::logCurrentException("data", QStringLiteral("Failed to get node's tooltip"));
        return QVariant();
    }
}

void FeatureTreeINodeItem::setData(int column, const QVariant& value, int role)
{
    if (column != 1 || role != Qt::EditRole || !m_node || m_node->isZombie() || !m_node->isWritable())
        return;
    if (m_editorType == EditorCommand) {
        if (ICommandParameter* command = qobject_cast<ICommandParameter*>(m_node.data())) {
            command->execute(true);
            command->setCommandPending(true);
        }
        return;
    }
    // The parameter layer takes text as a byte string carried in a QString:
    // non-ASCII text arrives as its encoded bytes, one character per byte.
    QByteArray bytes = m_textAsUtf8 ? value.toString().toUtf8() : value.toString().toLatin1();
    const int zero = bytes.indexOf('\0');
    if (zero >= 0)
        bytes.truncate(zero);
    m_node->setValueFromString(QString::fromLatin1(bytes));
}

int FeatureTreeINodeItem::row() const
{
    return FeatureTreeItem::row();
}

FeatureTreeItem* FeatureTreeINodeItem::parent()
{
    return FeatureTreeItem::parent();
}

IFeatureTreeModelExtension* FeatureTreeINodeItem::getExtension()
{
    return FeatureTreeItem::getExtension();
}

const IFeatureTreeModelExtension* FeatureTreeINodeItem::getExtension() const
{
    return FeatureTreeItem::getExtension();
}

int FeatureTreeINodeItem::editorType() const
{
    return m_editorType;
}

bool FeatureTreeINodeItem::hasChildren() const
{
    return m_parameterData && m_parameterData->type == TypeCategory;
}

bool FeatureTreeINodeItem::ShowMe(GenApi::EVisibility visibility) const
{
    if (visibility == GenApi::Invisible)
        return true;
    try {
        if (!m_parameterData || !m_parameterData->implemented)
            return false;
        return getVisibility() <= visibility;
    } catch (...) {
        ExceptionLogging::logCurrentException(
            "ShowMe", QStringLiteral("Exception fired when trying to determine whether item is visible"));
        return false;
    }
}

GenApi::EAccessMode FeatureTreeINodeItem::getAccessMode() const
{
    return ParameterData::accessModeOf(m_parameterData);
}

GenApi::EVisibility FeatureTreeINodeItem::getVisibility() const
{
    return m_parameterData ? static_cast<GenApi::EVisibility>(m_parameterData->visibility)
                           : GenApi::_UndefinedVisibility;
}

Qt::ItemFlags FeatureTreeINodeItem::flags(int column) const
{
    Qt::ItemFlags result = FeatureTreeItem::flags(column);
    if (!m_parameterData)
        return Qt::NoItemFlags;
    const bool writable = m_parameterData->writable;
    const bool isCategory = m_parameterData->type == TypeCategory;
    if (column == 0) {
        if (writable || isCategory)
            result |= Qt::ItemIsEnabled;
        if (m_parameterData->readable) {
            if (isCategory)
                result &= ~Qt::ItemIsDragEnabled;
            else
                result |= Qt::ItemIsDragEnabled;
        }
    } else if (column == 1 && writable) {
        result |= Qt::ItemIsEditable | Qt::ItemIsEnabled;
    }
    return result;
}

QVariant FeatureTreeINodeItem::GetForegroundRole() const
{
    const bool isCategory = m_parameterData && m_parameterData->type == TypeCategory;
    if (!isEditable() && !isCategory)
        return FeatureTreeItem::GetForegroundRole();
    return QVariant();
}

bool FeatureTreeINodeItem::isEditable() const
{
    if (!m_parameterData || m_editorType == EditorNone || m_editorType == EditorInvalid)
        return false;
    return m_parameterData->writable;
}

int FeatureTreeINodeItem::editorType(QSharedPointer<IParameter> node)
{
    if (!node || node->isZombie())
        return EditorInvalid;
    return editorTypeOfKind(*node, [&node] { return representationOf(node->advancedAccess().data()); });
}

int FeatureTreeINodeItem::editorType(const FeatureTreeINodeItem* item)
{
    return item ? editorType(item->node()) : static_cast<int>(EditorInvalid);
}

QSharedPointer<IParameter> FeatureTreeINodeItem::node() const
{
    return m_node;
}

QSharedPointer<const ParameterData> FeatureTreeINodeItem::getParameterData() const
{
    return m_parameterData;
}

QSharedPointer<IParameterCollection> FeatureTreeINodeItem::collection() const
{
    return m_context->collection;
}

QExplicitlySharedDataPointer<FeatureTreeINodeItem::Context> FeatureTreeINodeItem::contextFor(
    FeatureTreeItem* parent, QSharedPointer<IParameterCollection> collection)
{
    if (const auto* item = dynamic_cast<const FeatureTreeINodeItem*>(parent)) {
        if (item->m_context->collection == collection)
            return item->m_context;
    }
    QExplicitlySharedDataPointer<Context> context(new Context);
    context->collection = std::move(collection);
    return context;
}

QString FeatureTreeINodeItem::translationContext() const
{
    // The full name never changes, so neither does its node map's context:
    // derived when asked (for tool tips) instead of held by every item.
    return translationContextOf(m_fullName);
}

void FeatureTreeINodeItem::setHighlighter(FeatureTreeHighlighter* highlighter)
{
    m_highlighterSet = true;
    if (m_context->highlighter == highlighter)
        return;
    m_context.detach();
    m_context->highlighter = highlighter;
}

void FeatureTreeINodeItem::onParameterDataChanged(QSharedPointer<const ParameterData> data)
{
    const IFeatureTreeModelExtension* extension = getExtension();
    if (!extension || !extension->getGenICamCallbackEnable())
        return;
    if (!data)
        return;
    try {
        // A camera's range can move under a value: write the nearest limit back and
        // wait for the snapshot that write brings, instead of showing an invalid one.
        if (data->writable && (data->type == TypeInteger || data->type == TypeFloat)) {
            if (data->type == TypeInteger) {
                IIntegerParameter* integer = qobject_cast<IIntegerParameter*>(m_node.data());
                const auto values = data.dynamicCast<const IntegerParameterData>();
                if (integer && values) {
                    if (values->value < values->minimum) {
                        integer->setValue(values->minimum, true);
                        return;
                    }
                    if (values->value > values->maximum) {
                        integer->setValue(values->maximum, true);
                        return;
                    }
                }
            } else {
                IFloatParameter* floating = qobject_cast<IFloatParameter*>(m_node.data());
                const auto values = data.dynamicCast<const FloatParameterData>();
                if (floating && values) {
                    if (values->value < values->minimum) {
                        floating->setValue(values->minimum);
                        return;
                    }
                    if (values->value > values->maximum) {
                        floating->setValue(values->maximum);
                        return;
                    }
                }
            }
        }
    } catch (...) {
        ExceptionLogging::logCurrentException(
            "onParameterDataChanged", QStringLiteral("Failed to adjust a node: %1").arg(m_name));
        return;
    }
    takeSnapshot(std::move(data));
    const int itemRow = row();
    // The model that built the item learns first, as a connection made when the
    // item was built would, and not while the item's signals are blocked.
    if (m_notifiesModel && !signalsBlocked())
        static_cast<FeatureTreeModel*>(m_extension)->onNodeUpdated(itemRow, this);
    emit nodeUpdated(itemRow, this);
}

// The layout above is chosen for a 192-byte heap block per item; a field added
// without care would cost every row of the largest trees another 16 bytes.
// Qt 6's strings and lists carry their size and data pointer beside the
// shared block, 24 bytes instead of 8; the item holds nine of them with its
// base class's, and the bound grows by that much there.
static_assert(sizeof(void*) != 8 || sizeof(FeatureTreeINodeItem) <= 184 + 9 * (sizeof(QString) - sizeof(void*)),
    "FeatureTreeINodeItem outgrew its heap block; see the comment on its fields");
