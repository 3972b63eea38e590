#include "arvglib.h"

#include "nodemapstate.h"

#include "aravisparameters.h"

#include "parameters/genericexception.h"
#include "parameters/invalidargumentexception.h"

#include <QHostAddress>
#include <QLocale>
#include <QMetaObject>

#include <algorithm>
#include <cmath>
#include <limits>
#include <type_traits>

using namespace ParameterCollection;

namespace Aravis {

namespace {

QString representationText(ArvGcRepresentation representation)
{
    switch (representation) {
    case ARV_GC_REPRESENTATION_LINEAR:
        return QStringLiteral("Linear");
    case ARV_GC_REPRESENTATION_LOGARITHMIC:
        return QStringLiteral("Logarithmic");
    case ARV_GC_REPRESENTATION_BOOLEAN:
        return QStringLiteral("Boolean");
    case ARV_GC_REPRESENTATION_HEX_NUMBER:
        return QStringLiteral("HexNumber");
    case ARV_GC_REPRESENTATION_IPV4_ADDRESS:
        return QStringLiteral("IPV4Address");
    case ARV_GC_REPRESENTATION_MAC_ADDRESS:
        return QStringLiteral("MACAddress");
    default:
        return QStringLiteral("PureNumber");
    }
}

GenApi::EVisibility visibilityFromAravis(ArvGcVisibility visibility)
{
    switch (visibility) {
    case ARV_GC_VISIBILITY_INVISIBLE:
        return GenApi::Invisible;
    case ARV_GC_VISIBILITY_GURU:
        return GenApi::Guru;
    case ARV_GC_VISIBILITY_EXPERT:
        return GenApi::Expert;
    default: // GenICam's default is Beginner
        return GenApi::Beginner;
    }
}

const char* const visibilityNames[] = { "Beginner", "Expert", "Guru", "Invisible" };
const char* const accessNames[] = { "NI", "NA", "WO", "RO", "RW" };

QString integerText(qint64 value, const QString& representation)
{
    if (representation == QLatin1String("HexNumber"))
        return QStringLiteral("0x") + QString::number(quint64(value), 16).toUpper();
    if (representation == QLatin1String("IPV4Address"))
        return QHostAddress(quint32(value)).toString();
    if (representation == QLatin1String("MACAddress")) {
        QStringList parts;
        for (int shift = 40; shift >= 0; shift -= 8)
            parts << QStringLiteral("%1").arg((quint64(value) >> shift) & 0xFF, 2, 16, QLatin1Char('0')).toUpper();
        return parts.join(QLatin1Char(':'));
    }
    return QString::number(value);
}

// Reads what integerText writes, and plain decimal or 0x-hexadecimal for any representation.
bool parseInteger(const QString& text, const QString& representation, qint64* value)
{
    const QString trimmed = text.trimmed();
    bool ok = false;
    if (representation == QLatin1String("IPV4Address") && trimmed.count(QLatin1Char('.')) == 3) {
        QHostAddress address;
        if (!address.setAddress(trimmed) || address.protocol() != QAbstractSocket::IPv4Protocol)
            return false;
        *value = address.toIPv4Address();
        return true;
    }
    if (representation == QLatin1String("MACAddress") && trimmed.count(QLatin1Char(':')) == 5) {
        const quint64 mac = QString(trimmed).remove(QLatin1Char(':')).toULongLong(&ok, 16);
        *value = qint64(mac);
        return ok;
    }
    if (trimmed.startsWith(QLatin1String("0x"), Qt::CaseInsensitive)) {
        *value = qint64(trimmed.mid(2).toULongLong(&ok, 16));
        return ok;
    }
    *value = trimmed.toLongLong(&ok);
    return ok;
}

bool sameSnapshot(const ParameterData* a, const ParameterData* b)
{
    if (!a || !b)
        return a == b;
    if (a->type != b->type || a->visibility != b->visibility || a->readable != b->readable || a->writable != b->writable
        || a->implemented != b->implemented || a->valueText != b->valueText)
        return false;
    if (auto x = dynamic_cast<const IntegerParameterData*>(a)) {
        auto y = static_cast<const IntegerParameterData*>(b);
        return x->value == y->value && x->minimum == y->minimum && x->maximum == y->maximum
            && x->increment == y->increment && x->representation == y->representation;
    }
    if (auto x = dynamic_cast<const FloatParameterData*>(a)) {
        auto y = static_cast<const FloatParameterData*>(b);
        return x->value == y->value && x->minimum == y->minimum && x->maximum == y->maximum
            && x->hasIncrement == y->hasIncrement && x->increment == y->increment && x->precision == y->precision;
    }
    if (auto x = dynamic_cast<const BooleanParameterData*>(a))
        return x->value == static_cast<const BooleanParameterData*>(b)->value;
    if (auto x = dynamic_cast<const CommandParameterData*>(a))
        return x->done == static_cast<const CommandParameterData*>(b)->done;
    if (auto x = dynamic_cast<const EnumParameterData*>(a)) {
        auto y = static_cast<const EnumParameterData*>(b);
        return x->intValue == y->intValue && x->symbolicValues == y->symbolicValues
            && x->displayTexts == y->displayTexts;
    }
    return true;
}

[[noreturn]] void throwGeneric(const QString& text)
{
    throw GenICam::GenericException(text.toUtf8().constData(), __FILE__, __LINE__);
}

[[noreturn]] void throwInvalidArgument(const QString& text)
{
    throw GenICam::InvalidArgumentException(text.toUtf8().constData(), __FILE__, __LINE__);
}

// A range that the document doesn't give (a SwissKnife has no Min) is the whole range of the type.
template <typename T, typename D> T rangeOrDefault(T value, GError** error, D fallback)
{
    if (*error && (*error)->domain == ARV_GC_ERROR && (*error)->code == ARV_GC_ERROR_PROPERTY_NOT_DEFINED) {
        g_clear_error(error);
        return T(fallback);
    }
    return value;
}

// Integer and float nodes through one interface; a range the document doesn't give is the type's whole range.
template <typename T> struct Numeric;

template <> struct Numeric<qint64>
{
    static qint64 value(void* node, GError** error) { return arv_gc_integer_get_value(ARV_GC_INTEGER(node), error); }
    static qint64 minimum(void* node, GError** error)
    {
        return rangeOrDefault(
            arv_gc_integer_get_min(ARV_GC_INTEGER(node), error), error, std::numeric_limits<qint64>::min());
    }
    static qint64 maximum(void* node, GError** error)
    {
        return rangeOrDefault(
            arv_gc_integer_get_max(ARV_GC_INTEGER(node), error), error, std::numeric_limits<qint64>::max());
    }
    static qint64 increment(void* node, GError** error)
    {
        return rangeOrDefault(arv_gc_integer_get_inc(ARV_GC_INTEGER(node), error), error, qint64(1));
    }
    static void set(void* node, qint64 value, GError** error)
    {
        arv_gc_integer_set_value(ARV_GC_INTEGER(node), value, error);
    }
};

template <> struct Numeric<double>
{
    static double value(void* node, GError** error) { return arv_gc_float_get_value(ARV_GC_FLOAT(node), error); }
    static double minimum(void* node, GError** error)
    {
        return rangeOrDefault(
            arv_gc_float_get_min(ARV_GC_FLOAT(node), error), error, -std::numeric_limits<double>::max());
    }
    static double maximum(void* node, GError** error)
    {
        return rangeOrDefault(
            arv_gc_float_get_max(ARV_GC_FLOAT(node), error), error, std::numeric_limits<double>::max());
    }
    static double increment(void* node, GError** error)
    {
        return rangeOrDefault(arv_gc_float_get_inc(ARV_GC_FLOAT(node), error), error, 0.0);
    }
    static void set(void* node, double value, GError** error)
    {
        arv_gc_float_set_value(ARV_GC_FLOAT(node), value, error);
    }
};

void onControlLost(ArvDevice*, gpointer state)
{
    static_cast<NodeMapState*>(state)->noteControlLost();
}

} // namespace

NodeMapState::NodeMapState(_ArvDevice* device, const QString& nodeMapName, const QByteArray& xml)
    : m_device(device)
    , m_nodeMapName(nodeMapName)
    , m_index(xml)
{
    g_object_ref(m_device);
    m_controlLostHandler = g_signal_connect(m_device, "control-lost", G_CALLBACK(onControlLost), this);
    // Aravis checks neither range nor access by default; a real device deserves both.
    ArvGc* genicam = arv_device_get_genicam(m_device);
    if (genicam) {
        arv_gc_set_range_check_policy(genicam, ARV_RANGE_CHECK_POLICY_ENABLE);
        arv_gc_set_access_check_policy(genicam, ARV_ACCESS_CHECK_POLICY_ENABLE);
    }
}

NodeMapState::~NodeMapState()
{
    if (m_controlLostHandler)
        g_signal_handler_disconnect(m_device, m_controlLostHandler);
    g_object_unref(m_device);
}

void NodeMapState::noteControlLost()
{
    m_controlLost = true;
    // The state's own thread turns the flag into the lost state and its signal.
    QMetaObject::invokeMethod(
        this, [this] { isLost(); }, Qt::QueuedConnection);
}

bool NodeMapState::isLost() const
{
    if (!m_lost && m_controlLost.load())
        markLost(QStringLiteral("the device stopped answering its heartbeat"));
    return m_lost;
}

void NodeMapState::markLost(const QString& reason) const
{
    if (m_lost)
        return;
    m_lost = true;
    m_lostReason = reason;
    // Never from inside the call that found it out: a host that deletes its
    // tree on the signal must not do so under the tree's own poll.
    auto* self = const_cast<NodeMapState*>(this);
    QMetaObject::invokeMethod(
        self, [self] { emit self->lost(self->m_lostReason); }, Qt::QueuedConnection);
}

// ---- look-ups ----------------------------------------------------------------

int NodeMapState::kindOfNode(const QString& name) const
{
    if (!m_index.contains(name) || !m_index.problem(name).isEmpty())
        return TypeUnknown;
    ArvGcNode* node = arv_gc_get_node(arv_device_get_genicam(m_device), name.toUtf8().constData());
    if (!node || !ARV_IS_GC_FEATURE_NODE(node))
        return TypeUnknown;
    const QString element = m_index.node(name).element;
    static const QHash<QString, int> kinds
        = { { QStringLiteral("Category"), TypeCategory }, { QStringLiteral("Integer"), TypeInteger },
              { QStringLiteral("IntReg"), TypeInteger }, { QStringLiteral("MaskedIntReg"), TypeInteger },
              { QStringLiteral("IntConverter"), TypeInteger }, { QStringLiteral("IntSwissKnife"), TypeInteger },
              { QStringLiteral("StructEntry"), TypeInteger }, { QStringLiteral("Float"), TypeFloat },
              { QStringLiteral("FloatReg"), TypeFloat }, { QStringLiteral("Converter"), TypeFloat },
              { QStringLiteral("SwissKnife"), TypeFloat }, { QStringLiteral("Boolean"), TypeBoolean },
              { QStringLiteral("Command"), TypeCommand }, { QStringLiteral("Enumeration"), TypeEnumeration },
              { QStringLiteral("String"), TypeString }, { QStringLiteral("StringReg"), TypeString } };
    const int kind = kinds.value(element, TypeUnknown);
    // Trust the element only where Aravis built the node to match it.
    switch (kind) {
    case TypeCategory:
        return ARV_IS_GC_CATEGORY(node) ? kind : TypeUnknown;
    case TypeInteger:
        return ARV_IS_GC_INTEGER(node) ? kind : TypeUnknown;
    case TypeFloat:
        return ARV_IS_GC_FLOAT(node) ? kind : TypeUnknown;
    case TypeBoolean:
        return ARV_IS_GC_BOOLEAN(node) ? kind : TypeUnknown;
    case TypeCommand:
        return ARV_IS_GC_COMMAND(node) ? kind : TypeUnknown;
    case TypeEnumeration:
        return ARV_IS_GC_ENUMERATION(node) ? kind : TypeUnknown;
    case TypeString:
        return ARV_IS_GC_STRING(node) ? kind : TypeUnknown;
    default:
        return TypeUnknown;
    }
}

int NodeMapState::entryFor(const QString& name) const
{
    QString shortName = name;
    if (name.startsWith(QLatin1Char('@'))) {
        const int slash = name.indexOf(QLatin1Char('/'));
        if (slash < 0 || name.left(slash) != m_nodeMapName)
            return -1;
        shortName = name.mid(slash + 1);
    }
    const QString fullName = m_nodeMapName + QLatin1Char('/') + shortName;
    const auto known = m_byFullName.constFind(fullName);
    if (known != m_byFullName.constEnd())
        return *known;

    Entry entry;
    entry.fullName = fullName;
    entry.shortName = shortName;
    static const QString aliasSuffix = QStringLiteral("/Alias");
    if (shortName.endsWith(aliasSuffix)) {
        const QString base = shortName.left(shortName.size() - aliasSuffix.size());
        const QString alias = m_index.node(base).alias;
        if (kindOfNode(base) != TypeFloat || alias.isEmpty() || kindOfNode(alias) != TypeInteger)
            return -1;
        entry.node = alias.toUtf8();
        entry.kind = TypeInteger;
    } else {
        entry.kind = kindOfNode(shortName);
        if (entry.kind == TypeUnknown)
            return -1;
        entry.node = shortName.toUtf8();
    }
    m_entries.push_back(entry);
    const int index = int(m_entries.size()) - 1;
    m_byFullName.insert(fullName, index);
    m_byNode[QString::fromUtf8(entry.node)].append(index);
    return index;
}

QSharedPointer<IParameter> NodeMapState::parameter(const QString& name)
{
    const int index = isLost() ? -1 : entryFor(name);
    if (index < 0) {
        // A zombie keeps the name it was asked by, completed with this node map where it had none.
        const QString fullName = name.startsWith(QLatin1Char('@')) ? name : m_nodeMapName + QLatin1Char('/') + name;
        const QString shortName = fullName.mid(fullName.indexOf(QLatin1Char('/')) + 1);
        return QSharedPointer<IParameter>(new AravisStringParameter(sharedFromThis(), -1, fullName, shortName));
    }
    Entry& entry = m_entries[index];
    if (QSharedPointer<IParameter> existing = entry.object.toStrongRef())
        return existing;
    QSharedPointer<IParameter> made;
    switch (entry.kind) {
    case TypeInteger:
        made.reset(new AravisIntegerParameter(sharedFromThis(), index, entry.fullName, entry.shortName));
        break;
    case TypeFloat:
        made.reset(new AravisFloatParameter(sharedFromThis(), index, entry.fullName, entry.shortName));
        break;
    case TypeBoolean:
        made.reset(new AravisBooleanParameter(sharedFromThis(), index, entry.fullName, entry.shortName));
        break;
    case TypeCommand:
        made.reset(new AravisCommandParameter(sharedFromThis(), index, entry.fullName, entry.shortName));
        break;
    case TypeEnumeration:
        made.reset(new AravisEnumParameter(sharedFromThis(), index, entry.fullName, entry.shortName));
        break;
    default: // strings and categories
        made.reset(new AravisStringParameter(sharedFromThis(), index, entry.fullName, entry.shortName));
        break;
    }
    entry.object = made;
    return made;
}

bool NodeMapState::hasParameter(const QString& name) const
{
    return !isLost() && entryFor(name) >= 0;
}

QList<QString> NodeMapState::childNames(const QString& name, bool recursive, bool presentationOrder) const
{
    if (isLost())
        throwGeneric(QStringLiteral("%1: the device is gone (%2)").arg(name, m_lostReason));
    const int index = entryFor(name);
    if (index < 0)
        throwGeneric(QStringLiteral("%1: no such feature in %2").arg(name, m_nodeMapName));
    QList<QString> names;
    if (m_entries.at(index).kind != TypeCategory)
        return names;
    // The whole subtree depth first, without recursion: categories may nest
    // thousands deep, and a document that lists one category in two others at
    // every level makes a tree that doubles with each level.
    QVector<QPair<QStringList, int>> path { { m_index.node(QString::fromUtf8(m_entries.at(index).node)).features, 0 } };
    while (!path.isEmpty()) {
        if (path.last().second >= path.last().first.size()) {
            path.removeLast();
            continue;
        }
        const QString child = path.last().first.at(path.last().second++);
        const QString fullName = m_nodeMapName + QLatin1Char('/') + child;
        // Features that Aravis doesn't offer as one of the kinds are left out of the tree.
        const int childIndex = entryFor(fullName);
        if (childIndex < 0)
            continue;
        if (names.size() >= maximumListing)
            throwGeneric(QStringLiteral("%1: too many features below it (more than %2)").arg(name).arg(maximumListing));
        names.append(fullName);
        if (recursive && m_entries.at(childIndex).kind == TypeCategory)
            path.append({ m_index.node(child).features, 0 });
    }
    if (!presentationOrder)
        std::sort(names.begin(), names.end());
    return names;
}

// ---- the parameters' operations ----------------------------------------------

void NodeMapState::throwZombie(const QString& fullName) const
{
    if (m_lost)
        throwGeneric(QStringLiteral("%1: the device is gone (%2)").arg(fullName, m_lostReason));
    const QString problem = m_index.problem(fullName.mid(fullName.indexOf(QLatin1Char('/')) + 1));
    if (!problem.isEmpty())
        throwGeneric(QStringLiteral("%1: left out of %2, %3").arg(fullName, m_nodeMapName, problem));
    throwGeneric(QStringLiteral("%1: no such feature in %2").arg(fullName, m_nodeMapName));
}

const NodeMapState::Entry& NodeMapState::live(int index, const QString& fullName) const
{
    if (index < 0 || isLost())
        throwZombie(fullName);
    return m_entries.at(index);
}

void* NodeMapState::arvNode(const Entry& entry) const
{
    ArvGcNode* node = arv_gc_get_node(arv_device_get_genicam(m_device), entry.node.constData());
    if (!node)
        throwGeneric(QStringLiteral("%1: Aravis holds no node %2").arg(entry.fullName, QString::fromUtf8(entry.node)));
    return node;
}

void NodeMapState::checkError(void* gerror, const Entry& entry) const
{
    GError* error = static_cast<GError*>(gerror);
    if (!error)
        return;
    const QString message = QString::fromUtf8(error->message);
    const bool lost = error->domain == ARV_DEVICE_ERROR
        && (error->code == ARV_DEVICE_ERROR_TIMEOUT || error->code == ARV_DEVICE_ERROR_NOT_CONNECTED
            || error->code == ARV_DEVICE_ERROR_TRANSFER_ERROR);
    g_error_free(error);
    if (lost)
        markLost(message);
    throwGeneric(entry.shortName + QStringLiteral(": ") + message);
}

bool NodeMapState::isZombie(int index) const
{
    return index < 0 || isLost();
}

bool NodeMapState::isImposable(int index) const
{
    return !isZombie(index);
}

GenApi::EVisibility NodeMapState::visibilityOf(const Entry& entry) const
{
    if (entry.imposedVisibility)
        return *entry.imposedVisibility;
    return visibilityFromAravis(arv_gc_feature_node_get_visibility(ARV_GC_FEATURE_NODE(arvNode(entry))));
}

GenApi::EVisibility NodeMapState::visibility(int index) const
{
    return visibilityOf(live(index, QString()));
}

int NodeMapState::type(int index) const
{
    return live(index, QString()).kind;
}

NodeMapState::Access NodeMapState::access(const Entry& entry) const
{
    auto* node = ARV_GC_FEATURE_NODE(arvNode(entry));
    GError* error = nullptr;
    Access result;
    result.implemented = arv_gc_feature_node_is_implemented(node, &error);
    checkError(error, entry);
    bool available = false;
    bool locked = false;
    if (result.implemented) {
        available = arv_gc_feature_node_is_available(node, &error);
        checkError(error, entry);
        locked = arv_gc_feature_node_is_locked(node, &error);
        checkError(error, entry);
    }
    const ArvGcAccessMode mode = arv_gc_feature_node_get_actual_access_mode(node);
    const bool usable = result.implemented && available;
    if (entry.kind == TypeCategory) {
        result.readable = usable;
    } else {
        result.readable = usable && mode != ARV_GC_ACCESS_MODE_WO;
        result.writable = usable && !locked && (mode == ARV_GC_ACCESS_MODE_RW || mode == ARV_GC_ACCESS_MODE_WO);
    }
    // An imposed access mode narrows what the device allows; it can't grant more.
    if (entry.imposedAccess) {
        switch (*entry.imposedAccess) {
        case GenApi::NI:
            result = Access();
            break;
        case GenApi::NA:
            result.readable = result.writable = false;
            break;
        case GenApi::WO:
            result.readable = false;
            break;
        case GenApi::RO:
            result.writable = false;
            break;
        default:
            break;
        }
    }
    return result;
}

QSharedPointer<const ParameterData> NodeMapState::readSnapshot(const Entry& entry) const
{
    const Access state = access(entry);
    GError* error = nullptr;
    ArvGcNode* node = static_cast<ArvGcNode*>(arvNode(entry));
    QSharedPointer<ParameterData> data;
    switch (entry.kind) {
    case TypeInteger: {
        QSharedPointer<IntegerParameterData> integer(new IntegerParameterData);
        ArvGcInteger* gcInteger = ARV_GC_INTEGER(node);
        integer->representation = representationText(arv_gc_integer_get_representation(gcInteger));
        if (state.implemented) {
            integer->minimum = Numeric<qint64>::minimum(node, &error);
            checkError(error, entry);
            integer->maximum = Numeric<qint64>::maximum(node, &error);
            checkError(error, entry);
            integer->increment = Numeric<qint64>::increment(node, &error);
            checkError(error, entry);
        }
        if (state.readable) {
            integer->value = arv_gc_integer_get_value(gcInteger, &error);
            checkError(error, entry);
            integer->valueText = integerText(integer->value, integer->representation);
        }
        data = integer;
        break;
    }
    case TypeFloat: {
        QSharedPointer<FloatParameterData> floating(new FloatParameterData);
        ArvGcFloat* gcFloat = ARV_GC_FLOAT(node);
        floating->precision = arv_gc_float_get_display_precision(gcFloat);
        if (state.implemented) {
            floating->minimum = Numeric<double>::minimum(node, &error);
            checkError(error, entry);
            floating->maximum = Numeric<double>::maximum(node, &error);
            checkError(error, entry);
            floating->hasIncrement = m_index.node(QString::fromUtf8(entry.node)).hasIncrement;
            if (floating->hasIncrement) {
                floating->increment = Numeric<double>::increment(node, &error);
                checkError(error, entry);
            }
        }
        if (state.readable) {
            floating->value = arv_gc_float_get_value(gcFloat, &error);
            checkError(error, entry);
            floating->valueText = QString::number(
                floating->value, 'f', int(qBound(qint64(0), qint64(floating->precision), qint64(17))));
        }
        data = floating;
        break;
    }
    case TypeBoolean: {
        QSharedPointer<BooleanParameterData> boolean(new BooleanParameterData);
        if (state.readable) {
            gboolean value = FALSE;
            arv_gc_boolean_get_value_gi(ARV_GC_BOOLEAN(node), &value, &error);
            checkError(error, entry);
            boolean->value = value;
            boolean->valueText = boolean->value ? QStringLiteral("1") : QStringLiteral("0");
        }
        data = boolean;
        break;
    }
    case TypeCommand:
        // Aravis writes a command synchronously and has no notion of one still running.
        data.reset(new CommandParameterData);
        data->valueText = QStringLiteral("");
        break;
    case TypeEnumeration: {
        QSharedPointer<EnumParameterData> enumeration(new EnumParameterData);
        ArvGcEnumeration* gcEnum = ARV_GC_ENUMERATION(node);
        // Aravis keeps the entries in reverse; the document's order is the one to show.
        const QStringList order = m_index.node(QString::fromUtf8(entry.node)).entries;
        QHash<QString, int> positions;
        positions.reserve(order.size());
        for (int i = order.size() - 1; i >= 0; --i)
            positions.insert(order.at(i), i);
        QVector<QPair<int, ArvGcFeatureNode*>> entries;
        for (const GSList* item = arv_gc_enumeration_get_entries(gcEnum); item; item = item->next) {
            auto* entryNode = ARV_GC_FEATURE_NODE(item->data);
            const int position = positions.value(QString::fromUtf8(arv_gc_feature_node_get_name(entryNode)), -1);
            entries.append({ position < 0 ? order.size() : position, entryNode });
        }
        std::stable_sort(
            entries.begin(), entries.end(), [](const auto& a, const auto& b) { return a.first < b.first; });
        for (const auto& item : qAsConst(entries)) {
            const bool implemented = arv_gc_feature_node_is_implemented(item.second, &error);
            checkError(error, entry);
            const bool available = implemented && arv_gc_feature_node_is_available(item.second, &error);
            checkError(error, entry);
            if (!available)
                continue;
            const QString symbolic = QString::fromUtf8(arv_gc_feature_node_get_name(item.second));
            const char* display = arv_gc_feature_node_get_display_name(item.second);
            enumeration->symbolicValues.append(symbolic);
            enumeration->displayTexts.append(display && *display ? QString::fromUtf8(display) : symbolic);
        }
        if (state.readable) {
            const char* value = arv_gc_enumeration_get_string_value(gcEnum, &error);
            checkError(error, entry);
            enumeration->valueText = QString::fromUtf8(value);
            enumeration->intValue = arv_gc_enumeration_get_int_value(gcEnum, &error);
            checkError(error, entry);
        }
        data = enumeration;
        break;
    }
    case TypeString: {
        data.reset(new ParameterData);
        if (state.readable) {
            const char* value = arv_gc_string_get_value(ARV_GC_STRING(node), &error);
            checkError(error, entry);
            data->valueText = QString::fromUtf8(value);
        }
        break;
    }
    default:
        data.reset(new ParameterData);
        data->valueText = QStringLiteral("");
        break;
    }
    data->type = entry.kind;
    data->visibility = visibilityOf(entry);
    data->implemented = state.implemented;
    data->readable = state.readable;
    data->writable = state.writable;
    if (!state.readable)
        data->valueText.clear();
    return data;
}

QSharedPointer<const ParameterData> NodeMapState::snapshot(int index)
{
    const QSharedPointer<const ParameterData> data = readSnapshot(live(index, QString()));
    noticeSnapshot(index, data);
    return data;
}

bool NodeMapState::isWritable(int index) const
{
    return access(live(index, QString())).writable;
}

void NodeMapState::checkWritable(const Entry& entry) const
{
    if (!access(entry).writable)
        throwInvalidArgument(QStringLiteral("%1: the feature is not writable").arg(entry.shortName));
}

void NodeMapState::setValueFromString(int index, const QString& fullName, const QString& text)
{
    const Entry& entry = live(index, fullName);
    switch (entry.kind) {
    case TypeInteger: {
        qint64 value = 0;
        const QString representation
            = representationText(arv_gc_integer_get_representation(ARV_GC_INTEGER(arvNode(entry))));
        if (!parseInteger(text, representation, &value))
            throwInvalidArgument(QStringLiteral("%1: \"%2\" is not an integer").arg(entry.shortName, text));
        setInteger(index, fullName, value);
        return;
    }
    case TypeFloat: {
        bool ok = false;
        double value = text.trimmed().toDouble(&ok);
        if (!ok)
            value = QLocale().toDouble(text.trimmed(), &ok);
        if (!ok || !std::isfinite(value))
            throwInvalidArgument(QStringLiteral("%1: \"%2\" is not a number").arg(entry.shortName, text));
        setFloat(index, fullName, value);
        return;
    }
    case TypeCommand:
        execute(index, fullName);
        return;
    case TypeCategory:
        throwInvalidArgument(QStringLiteral("%1: a category has no value").arg(entry.shortName));
    default:
        break;
    }
    checkWritable(entry);
    GError* error = nullptr;
    const QString trimmed = text.trimmed();
    auto* node = arvNode(entry);
    if (entry.kind == TypeBoolean) {
        bool value = false;
        if (trimmed == QLatin1String("1") || trimmed.compare(QLatin1String("true"), Qt::CaseInsensitive) == 0)
            value = true;
        else if (trimmed != QLatin1String("0") && trimmed.compare(QLatin1String("false"), Qt::CaseInsensitive) != 0)
            throwInvalidArgument(QStringLiteral("%1: \"%2\" is not a Boolean").arg(entry.shortName, text));
        arv_gc_boolean_set_value(ARV_GC_BOOLEAN(node), value, &error);
    } else if (entry.kind == TypeEnumeration) {
        const auto current = readSnapshot(entry).staticCast<const EnumParameterData>();
        if (!current->symbolicValues.contains(trimmed))
            throwGeneric(QStringLiteral("%1: \"%2\" is not an available entry").arg(entry.shortName, text));
        arv_gc_enumeration_set_string_value(ARV_GC_ENUMERATION(node), trimmed.toUtf8().constData(), &error);
    } else {
        arv_gc_string_set_value(ARV_GC_STRING(node), text.toUtf8().constData(), &error);
    }
    checkError(error, entry);
    afterWrite(index);
}

template <typename T> T NodeMapState::numericValue(int index, const QString& fullName, int which)
{
    const Entry& entry = live(index, fullName);
    void* node = arvNode(entry);
    GError* error = nullptr;
    const T value = which == Minimum ? Numeric<T>::minimum(node, &error)
        : which == Maximum           ? Numeric<T>::maximum(node, &error)
                                     : Numeric<T>::value(node, &error);
    checkError(error, entry);
    return value;
}

template <typename T> void NodeMapState::setNumeric(int index, const QString& fullName, T value)
{
    const Entry& entry = live(index, fullName);
    checkWritable(entry);
    void* node = arvNode(entry);
    GError* error = nullptr;
    const T minimum = Numeric<T>::minimum(node, &error);
    checkError(error, entry);
    const T maximum = Numeric<T>::maximum(node, &error);
    checkError(error, entry);
    if (!(value >= minimum && value <= maximum)) // NaN too
        throwInvalidArgument(
            QStringLiteral("%1: %2 is outside %3 to %4").arg(entry.shortName).arg(value).arg(minimum).arg(maximum));
    if (std::is_integral<T>::value) {
        const T increment = Numeric<T>::increment(node, &error);
        checkError(error, entry);
        if (increment > 1 && (quint64(value) - quint64(minimum)) % quint64(increment) != 0)
            throwInvalidArgument(QStringLiteral("%1: %2 is not %3 plus a multiple of %4")
                                     .arg(entry.shortName)
                                     .arg(value)
                                     .arg(minimum)
                                     .arg(increment));
    }
    Numeric<T>::set(node, value, &error);
    checkError(error, entry);
    afterWrite(index);
}

qint64 NodeMapState::integerValue(int index, const QString& fullName, int which)
{
    return numericValue<qint64>(index, fullName, which);
}

void NodeMapState::setInteger(int index, const QString& fullName, qint64 value)
{
    setNumeric<qint64>(index, fullName, value);
}

double NodeMapState::floatValue(int index, const QString& fullName, int which)
{
    return numericValue<double>(index, fullName, which);
}

void NodeMapState::setFloat(int index, const QString& fullName, double value)
{
    setNumeric<double>(index, fullName, value);
}

void NodeMapState::execute(int index, const QString& fullName)
{
    const Entry& entry = live(index, fullName);
    if (entry.kind != TypeCommand)
        throwGeneric(QStringLiteral("%1: not a command").arg(entry.shortName));
    checkWritable(entry);
    GError* error = nullptr;
    arv_gc_command_execute(ARV_GC_COMMAND(arvNode(entry)), &error);
    checkError(error, entry);
    afterWrite(index);
}

void NodeMapState::checkAdvancedAccess(int index, const QString& fullName) const
{
    live(index, fullName);
}

QString NodeMapState::property(
    int index, const QString& fullName, const QString& key, const QString& defaultValue) const
{
    const Entry& entry = live(index, fullName);
    auto* node = static_cast<ArvGcNode*>(arvNode(entry));
    auto text
        = [&defaultValue](const char* value) { return value && *value ? QString::fromUtf8(value) : defaultValue; };
    if (key == QLatin1String("DisplayName")) {
        // A GenICam node without a display name of its own is shown by its name,
        // as every GenICam viewer does; only a node that isn't there gives the default.
        const char* displayName = arv_gc_feature_node_get_display_name(ARV_GC_FEATURE_NODE(node));
        return text(displayName && *displayName ? displayName : entry.node.constData());
    }
    if (key == QLatin1String("Description"))
        return text(arv_gc_feature_node_get_description(ARV_GC_FEATURE_NODE(node)));
    if (key == QLatin1String("Tooltip"))
        return text(arv_gc_feature_node_get_tooltip(ARV_GC_FEATURE_NODE(node)));
    if (key == QLatin1String("DocuURL")) {
        const QString url = m_index.node(QString::fromUtf8(entry.node)).docuUrl;
        return url.isEmpty() ? defaultValue : url;
    }
    if (key == QLatin1String("Unit")) {
        if (entry.kind == TypeInteger)
            return text(arv_gc_integer_get_unit(ARV_GC_INTEGER(node)));
        if (entry.kind == TypeFloat)
            return text(arv_gc_float_get_unit(ARV_GC_FLOAT(node)));
        return defaultValue;
    }
    if (key == QLatin1String("Representation")) {
        if (entry.kind == TypeInteger)
            return representationText(arv_gc_integer_get_representation(ARV_GC_INTEGER(node)));
        if (entry.kind == TypeFloat)
            return representationText(arv_gc_float_get_representation(ARV_GC_FLOAT(node)));
        return defaultValue;
    }
    if (key == QLatin1String("Visibility"))
        return QString::fromLatin1(visibilityNames[qBound(0, int(visibilityOf(entry)), 3)]);
    if (key == QLatin1String("AccessMode")) {
        const Access state = access(entry);
        ParameterData data;
        data.implemented = state.implemented;
        data.readable = state.readable;
        data.writable = state.writable;
        return QString::fromLatin1(accessNames[int(data.accessMode())]);
    }
    if (key == QLatin1String("Name"))
        return entry.shortName;
    if (key == QLatin1String("SelectedFeatures")) {
        // Aravis gathers each node's pSelected: the features this one selects.
        if (!ARV_IS_GC_SELECTOR(node) || !arv_gc_selector_is_selector(ARV_GC_SELECTOR(node)))
            return defaultValue;
        QStringList names;
        for (const GSList* it = arv_gc_selector_get_selected_features(ARV_GC_SELECTOR(node)); it; it = it->next) {
            if (!it->data || !ARV_IS_GC_FEATURE_NODE(it->data))
                continue;
            const char* name = arv_gc_feature_node_get_name(ARV_GC_FEATURE_NODE(it->data));
            if (name && *name)
                names.append(QString::fromUtf8(name));
        }
        return names.isEmpty() ? defaultValue : names.join(QLatin1Char(','));
    }
    return defaultValue;
}

void NodeMapState::setProperty(int index, const QString& fullName, const QString& key, const QString& value)
{
    live(index, fullName);
    Entry& entry = m_entries[index];
    if (key == QLatin1String("Visibility")) {
        for (int i = 0; i < 4; ++i) {
            if (value == QLatin1String(visibilityNames[i])) {
                entry.imposedVisibility = GenApi::EVisibility(i);
                refresh(index);
                return;
            }
        }
    } else if (key == QLatin1String("AccessMode")) {
        for (int i = 0; i < 5; ++i) {
            if (value == QLatin1String(accessNames[i])) {
                entry.imposedAccess = GenApi::EAccessMode(i);
                refresh(index);
                return;
            }
        }
    } else {
        throwInvalidArgument(QStringLiteral("%1: the property %2 can't be imposed").arg(entry.shortName, key));
    }
    throwInvalidArgument(QStringLiteral("%1: \"%2\" is no value of %3").arg(entry.shortName, value, key));
}

// ---- change signals ------------------------------------------------------------

void NodeMapState::noticeSnapshot(int index, const QSharedPointer<const ParameterData>& data)
{
    Entry& entry = m_entries[index];
    const bool first = !entry.lastSeen;
    if (!first && sameSnapshot(entry.lastSeen.data(), data.data()))
        return;
    entry.lastSeen = data;
    if (!first)
        m_pending.append({ index, data });
    scheduleFlush();
}

void NodeMapState::refresh(int index)
{
    noticeSnapshot(index, readSnapshot(m_entries.at(index)));
}

void NodeMapState::afterWrite(int index)
{
    const QSet<QString> affected = m_index.affectedByWrite(QString::fromUtf8(m_entries.at(index).node));
    refresh(index);
    // The entries of the affected nodes, in the order they were made, as every
    // feature held would be visited: a node map of 100 000 features is not
    // walked for each write.
    QVector<int> dependents;
    for (const QString& node : affected)
        for (const int i : m_byNode.value(node))
            if (i != index && m_entries.at(i).object)
                dependents.append(i);
    std::sort(dependents.begin(), dependents.end());
    for (const int i : qAsConst(dependents)) {
        try {
            refresh(i);
        } catch (const std::exception&) {
            if (m_lost)
                throw;
            // A dependent that can't be read now keeps its last snapshot; the next poll tries again.
        }
    }
}

void NodeMapState::refreshLive()
{
    if (isLost())
        throwGeneric(QStringLiteral("%1: the device is gone (%2)").arg(m_nodeMapName, m_lostReason));
    QString firstFailure;
    for (int i = 0; i < int(m_entries.size()); ++i) {
        if (!m_entries.at(i).object)
            continue;
        try {
            refresh(i);
        } catch (const std::exception& e) {
            if (m_lost)
                throw;
            if (firstFailure.isEmpty())
                firstFailure = QString::fromUtf8(e.what());
        }
    }
    if (!firstFailure.isEmpty())
        throwGeneric(firstFailure);
}

void NodeMapState::scheduleFlush()
{
    if (m_flushScheduled || m_pending.isEmpty())
        return;
    m_flushScheduled = true;
    QMetaObject::invokeMethod(this, "flush", Qt::QueuedConnection);
}

void NodeMapState::flush()
{
    m_flushScheduled = false;
    const auto pending = std::exchange(m_pending, {});
    // Keeps this state alive while a slot drops the last parameter or the node map.
    const QSharedPointer<NodeMapState> self = sharedFromThis();
    for (const auto& item : pending) {
        if (m_lost)
            return;
        if (QSharedPointer<IParameter> object = m_entries.at(item.first).object.toStrongRef())
            emit object->parameterDataChangedDecoupled(item.second);
    }
}

} // namespace Aravis
