#include "devicestate.h"

#include "simulatedbooleanparameter.h"
#include "simulatedcategoryparameter.h"
#include "simulatedcommandparameter.h"
#include "simulatedenumparameter.h"
#include "simulatedfloatparameter.h"
#include "simulatedintegerparameter.h"
#include "simulatedstringparameter.h"
#include "simulatedzombieparameter.h"

#include "parameters/genericexception.h"
#include "parameters/invalidargumentexception.h"

#include <QMutexLocker>
#include <QTimer>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <limits>
#include <stdexcept>

namespace Simulation {

using namespace ParameterCollection;

namespace {

constexpr qint64 kInt64Min = std::numeric_limits<qint64>::min();
constexpr qint64 kInt64Max = std::numeric_limits<qint64>::max();
constexpr double kDoubleMax = std::numeric_limits<double>::max();

[[noreturn]] void throwGeneric(const QString& message)
{
    throw GenICam::GenericException(message.toUtf8().constData(), __FILE__, __LINE__);
}

[[noreturn]] void throwInvalid(const QString& message)
{
    throw GenICam::InvalidArgumentException(message.toUtf8().constData(), __FILE__, __LINE__);
}

// SplitMix64: small, fast and good enough for a random walk.
quint64 nextRandom(quint64* state)
{
    quint64 z = (*state += 0x9E3779B97F4A7C15ULL);
    z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9ULL;
    z = (z ^ (z >> 27)) * 0x94D049BB133111EBULL;
    return z ^ (z >> 31);
}

QString formatInteger(qint64 value, const QString& representation)
{
    if (representation == QLatin1String("HexNumber"))
        return QStringLiteral("0x") + QString::number(quint64(value), 16).toUpper();
    if (representation == QLatin1String("IPV4Address")) {
        const quint32 v = quint32(quint64(value) & 0xFFFFFFFFu);
        return QStringLiteral("%1.%2.%3.%4").arg(v >> 24).arg((v >> 16) & 0xFF).arg((v >> 8) & 0xFF).arg(v & 0xFF);
    }
    if (representation == QLatin1String("MACAddress")) {
        const quint64 v = quint64(value) & 0xFFFFFFFFFFFFULL;
        QStringList parts;
        for (int shift = 40; shift >= 0; shift -= 8)
            parts.append(QStringLiteral("%1").arg((v >> shift) & 0xFF, 2, 16, QLatin1Char('0')).toUpper());
        return parts.join(QLatin1Char(':'));
    }
    return QString::number(value);
}

bool parseInteger(const QString& input, const QString& representation, qint64* value)
{
    const QString text = input.trimmed();
    bool ok = false;
    if (text.startsWith(QLatin1String("0x"), Qt::CaseInsensitive)) {
        const quint64 v = QStringView(text).mid(2).toULongLong(&ok, 16);
        *value = qint64(v);
        return ok && text.size() > 2;
    }
    if (representation == QLatin1String("IPV4Address") && text.contains(QLatin1Char('.'))) {
        const QStringList parts = text.split(QLatin1Char('.'));
        if (parts.size() != 4)
            return false;
        quint64 v = 0;
        for (const QString& part : parts) {
            const uint byte = part.toUInt(&ok, 10);
            if (!ok || byte > 255 || part.isEmpty())
                return false;
            v = (v << 8) | byte;
        }
        *value = qint64(v);
        return true;
    }
    if (representation == QLatin1String("MACAddress") && text.contains(QLatin1Char(':'))) {
        const QStringList parts = text.split(QLatin1Char(':'));
        if (parts.size() != 6)
            return false;
        quint64 v = 0;
        for (const QString& part : parts) {
            const uint byte = part.toUInt(&ok, 16);
            if (!ok || part.size() > 2 || part.isEmpty())
                return false;
            v = (v << 8) | byte;
        }
        *value = qint64(v);
        return true;
    }
    *value = text.toLongLong(&ok, 10);
    return ok;
}

bool sameSnapshot(const ParameterData& a, const ParameterData& b)
{
    if (a.type != b.type || a.visibility != b.visibility || a.readable != b.readable || a.writable != b.writable
        || a.implemented != b.implemented || a.isPlaceholder != b.isPlaceholder || a.valueText != b.valueText
        || a.valueText.isNull() != b.valueText.isNull())
        return false;
    switch (a.type) {
    case TypeInteger: {
        const auto& x = static_cast<const IntegerParameterData&>(a);
        const auto& y = static_cast<const IntegerParameterData&>(b);
        return x.value == y.value && x.minimum == y.minimum && x.maximum == y.maximum && x.increment == y.increment
            && x.representation == y.representation;
    }
    case TypeFloat: {
        const auto& x = static_cast<const FloatParameterData&>(a);
        const auto& y = static_cast<const FloatParameterData&>(b);
        return x.value == y.value && x.minimum == y.minimum && x.maximum == y.maximum
            && x.hasIncrement == y.hasIncrement && x.increment == y.increment && x.precision == y.precision;
    }
    case TypeBoolean:
        return static_cast<const BooleanParameterData&>(a).value == static_cast<const BooleanParameterData&>(b).value;
    case TypeCommand:
        return static_cast<const CommandParameterData&>(a).done == static_cast<const CommandParameterData&>(b).done;
    case TypeEnumeration: {
        const auto& x = static_cast<const EnumParameterData&>(a);
        const auto& y = static_cast<const EnumParameterData&>(b);
        return x.intValue == y.intValue && x.symbolicValues == y.symbolicValues && x.displayTexts == y.displayTexts;
    }
    default:
        return true;
    }
}

int parameterType(FeatureKind kind)
{
    switch (kind) {
    case FeatureKind::Integer:
        return TypeInteger;
    case FeatureKind::Float:
        return TypeFloat;
    case FeatureKind::Boolean:
        return TypeBoolean;
    case FeatureKind::Command:
        return TypeCommand;
    case FeatureKind::String:
        return TypeString;
    case FeatureKind::Enumeration:
        return TypeEnumeration;
    case FeatureKind::Category:
        return TypeCategory;
    }
    return TypeUnknown;
}

// True while the dispatcher runs one of its own turns on this thread. The
// state may lose its last reference right there, and then must not delete the
// dispatcher under its own feet.
thread_local bool t_inDispatcherTurn = false;

struct DispatcherTurn
{
    DispatcherTurn()
        : m_previous(t_inDispatcherTurn)
    {
        t_inDispatcherTurn = true;
    }
    ~DispatcherTurn() { t_inDispatcherTurn = m_previous; }
    DispatcherTurn(const DispatcherTurn&) = delete;
    DispatcherTurn& operator=(const DispatcherTurn&) = delete;

private:
    bool m_previous;
};

bool sameBits(double a, double b)
{
    return std::memcmp(&a, &b, sizeof a) == 0;
}

// Whether b may stand for a: the same to sameSnapshot, and numbers the same
// to the bit, so that 0.0 doesn't stand for -0.0, nor a NaN for another.
bool identical(const ParameterData& a, const ParameterData& b)
{
    if (!sameSnapshot(a, b))
        return false;
    if (a.type != TypeFloat)
        return true;
    const auto& x = static_cast<const FloatParameterData&>(a);
    const auto& y = static_cast<const FloatParameterData&>(b);
    return sameBits(x.value, y.value) && sameBits(x.minimum, y.minimum) && sameBits(x.maximum, y.maximum)
        && sameBits(x.increment, y.increment);
}

// QString::number leaves room to spare: "1234.50" comes in a block for 19
// characters. A snapshot keeps its text as long as an item shows it, so the
// text gives the room back; shrinking an unshared block is done in place.
QString compact(QString text)
{
    text.squeeze();
    return text;
}

// The length and the last letter tell the property keys apart inline, so at
// most one full comparison, a call, is made per look-up; an item asks for five
// properties when it is made.
Q_ALWAYS_INLINE bool isKey(const QString& key, QLatin1String name)
{
    return key.size() == name.size() && key.back() == name.back() && key == name;
}

bool fitsIncrement(double value, double minimum, double increment)
{
    if (increment <= 0.0)
        return true;
    const double steps = (value - minimum) / increment;
    return std::fabs(steps - std::round(steps)) <= 1e-9 * std::max(1.0, std::fabs(steps));
}

} // namespace

// ============================================================ building

QSharedPointer<DeviceState> DeviceState::build(
    const DeviceDescription& description, const QString& tlType, QString* error)
{
    QSharedPointer<DeviceState> state(new DeviceState);
    state->m_description = description;
    state->m_tlType = tlType.isEmpty() ? description.transportLayerType : tlType;
    QSet<QString> mapNames;
    for (const NodeMapDescription& map : description.nodeMaps) {
        if (map.name.isEmpty()) {
            if (error)
                *error = QStringLiteral("node map #%1, field \"name\": missing").arg(state->m_maps.size() + 1);
            return {};
        }
        if (mapNames.contains(map.name)) {
            if (error)
                *error = QStringLiteral("node map \"%1\", field \"name\": duplicate node map name").arg(map.name);
            return {};
        }
        mapNames.insert(map.name);
        if (!state->buildNodeMap(map, error))
            return {};
    }
    state->m_ownerThread = QThread::currentThread();
    state->m_dispatcher = new QObject;
    return state;
}

DeviceState::~DeviceState()
{
    QObject* dispatcher = m_dispatcher;
    if (!dispatcher)
        return;
    QThread* thread = dispatcher->thread();
    const bool here = thread == QThread::currentThread();
    if (here && t_inDispatcherTurn)
        dispatcher->deleteLater();
    else if (!thread || here || !thread->isRunning())
        delete dispatcher;
    else
        dispatcher->deleteLater();
}

DeviceState::FeatureExtras& DeviceState::extras(NodeMapState& m, int feature)
{
    std::unique_ptr<FeatureExtras>& extras = m.features[size_t(feature)].extras;
    if (!extras)
        extras.reset(new FeatureExtras);
    return *extras;
}

void DeviceState::addDependency(NodeMapState& m, int on, int dependent)
{
    if (on < 0 || on == dependent)
        return;
    QVector<int>& dependents = extras(m, on).dependents;
    if (!dependents.contains(dependent))
        dependents.append(dependent);
}

bool DeviceState::bind(
    NodeMapState& m, int feature, const QString& field, const QString& text, BoundExpression* out, QString* error)
{
    const QString where
        = QStringLiteral("node map \"%1\", feature \"%2\", field \"%3\": ").arg(m.name, desc(m, feature).name, field);
    QString parseError;
    Expression expression = Expression::parse(text, &parseError);
    if (!expression.isValid()) {
        if (error)
            *error = where + QStringLiteral("cannot parse expression \"%1\": %2").arg(text, parseError);
        return false;
    }
    BoundExpression bound;
    bound.expression = expression;
    for (const QString& name : expression.names()) {
        const int index = m.byName.value(name, -1);
        if (index < 0) {
            if (error)
                *error = where + QStringLiteral("unknown feature \"%1\" in expression \"%2\"").arg(name, text);
            return false;
        }
        const FeatureKind kind = desc(m, index).kind;
        if (kind == FeatureKind::Command || kind == FeatureKind::Category) {
            if (error)
                *error = where
                    + QStringLiteral("feature \"%1\" in expression \"%2\" is a %3, which has no value")
                          .arg(name, text, featureKindName(kind));
            return false;
        }
        bound.features.append(index);
        addDependency(m, index, feature);
    }
    *out = bound;
    return true;
}

bool DeviceState::buildNodeMap(const NodeMapDescription& description, QString* error)
{
    std::unique_ptr<NodeMapState> owned(new NodeMapState);
    NodeMapState& m = *owned;
    m.name = description.name;
    m.prefix = description.name + QLatin1Char('/');
    m.description = description;
    const int count = description.features.size();
    m.features.resize(size_t(count));
    m.byName.reserve(count);
    auto fail = [&](int feature, const QString& field, const QString& problem) {
        if (error)
            *error = QStringLiteral("node map \"%1\", feature \"%2\", field \"%3\": %4")
                         .arg(m.name, feature >= 0 ? desc(m, feature).name : QStringLiteral("Root"), field, problem);
        return false;
    };

    for (int i = 0; i < count; ++i) {
        const FeatureDescription& d = description.features.at(i);
        if (d.name.isEmpty() || d.name.contains(QLatin1Char('/')))
            return fail(i, QStringLiteral("name"), QStringLiteral("\"%1\" is not a feature name").arg(d.name));
        if (!m.byName.insert(d.name, i))
            return fail(i, QStringLiteral("name"), QStringLiteral("duplicate name"));
        m.features[size_t(i)].excluded = !d.transportTypes.isEmpty() && !d.transportTypes.contains(m_tlType);
    }
    const int root = m.byName.value(QStringLiteral("Root"), -1);
    if (root < 0)
        return fail(-1, QStringLiteral("name"), QStringLiteral("the node map has no category Root"));
    if (desc(m, root).kind != FeatureKind::Category)
        return fail(root, QStringLiteral("type"), QStringLiteral("Root must be a Category"));

    // Expressions, selections and children: everything that names another feature.
    for (int i = 0; i < count; ++i) {
        const FeatureDescription& d = description.features.at(i);
        QVector<int>& children = m.features[size_t(i)].children;
        for (const QString& child : d.children) {
            const int index = m.byName.value(child);
            if (index < 0)
                return fail(i, QStringLiteral("children"), QStringLiteral("unknown feature \"%1\"").arg(child));
            if (d.kind == FeatureKind::Category)
                children.append(index);
        }
        const bool hasExpressions = !d.minimum.expression.isEmpty() || !d.maximum.expression.isEmpty()
            || !d.increment.expression.isEmpty() || !d.readableWhen.isEmpty() || !d.writableWhen.isEmpty()
            || !d.implementedWhen.isEmpty() || !d.selector.isEmpty() || d.poll.mode != PollDescription::Mode::None
            || !d.onExecute.isEmpty() || !d.value.expression.isEmpty();
        bool entryConditions = false;
        for (const EnumEntryDescription& entry : d.entries)
            entryConditions = entryConditions || !entry.implementedWhen.isEmpty();
        if (!hasExpressions && !entryConditions)
            continue;
        FeatureExtras& x = extras(m, i);
        auto bindIf = [&](const char* field, const QString& text, BoundExpression* out) {
            return text.isEmpty() || bind(m, i, QLatin1String(field), text, out, error);
        };
        if (!bindIf("min", d.minimum.expression, &x.minimum) || !bindIf("max", d.maximum.expression, &x.maximum)
            || !bindIf("inc", d.increment.expression, &x.increment)
            || !bindIf("readableWhen", d.readableWhen, &x.readableWhen)
            || !bindIf("writableWhen", d.writableWhen, &x.writableWhen)
            || !bindIf("implementedWhen", d.implementedWhen, &x.implementedWhen)
            || !bindIf("poll.when", d.poll.when, &x.pollWhen)
            || !bindIf("poll.perSecond", d.poll.mode == PollDescription::Mode::Rate ? d.poll.perSecond : QString(),
                &x.pollRate))
            return false;
        if (d.poll.mode == PollDescription::Mode::Rate && d.poll.perSecond.isEmpty())
            return fail(i, QStringLiteral("poll.perSecond"), QStringLiteral("missing"));
        if (!d.value.expression.isEmpty()
            && !bind(m, i, QStringLiteral("value"), d.value.expression, &x.formula, error))
            return false;
        if (entryConditions) {
            x.entryImplemented.resize(d.entries.size());
            for (int e = 0; e < d.entries.size(); ++e) {
                const QString field = QStringLiteral("entries[%1].implementedWhen").arg(e);
                if (!d.entries.at(e).implementedWhen.isEmpty()
                    && !bind(m, i, field, d.entries.at(e).implementedWhen, &x.entryImplemented[e], error))
                    return false;
            }
        }
        for (const auto& assignment : d.onExecute) {
            const QString field = QStringLiteral("onExecute.%1").arg(assignment.first);
            const int target = m.byName.value(assignment.first, -1);
            if (target < 0)
                return fail(i, field, QStringLiteral("unknown feature \"%1\"").arg(assignment.first));
            const FeatureKind kind = desc(m, target).kind;
            if (kind == FeatureKind::Command || kind == FeatureKind::Category)
                return fail(i, field,
                    QStringLiteral("cannot assign to \"%1\", a %2").arg(assignment.first, featureKindName(kind)));
            BoundExpression bound;
            if (!bind(m, i, field, assignment.second, &bound, error))
                return false;
            x.onExecute.append(qMakePair(target, bound));
        }
        if (!d.selector.isEmpty()) {
            const int selector = m.byName.value(d.selector, -1);
            if (selector < 0)
                return fail(i, QStringLiteral("selector"), QStringLiteral("unknown feature \"%1\"").arg(d.selector));
            const FeatureDescription& s = desc(m, selector);
            if (s.kind != FeatureKind::Enumeration)
                return fail(i, QStringLiteral("selector"),
                    QStringLiteral("\"%1\" is of kind %2, not an Enumeration")
                        .arg(d.selector, featureKindName(s.kind)));
            if (!s.selector.isEmpty())
                return fail(i, QStringLiteral("selector"),
                    QStringLiteral("\"%1\" is itself selected by \"%2\"").arg(d.selector, s.selector));
            x.selector = selector;
            addDependency(m, selector, i);
            for (const auto& pair : d.selectedValues) {
                bool known = false;
                for (const EnumEntryDescription& entry : s.entries)
                    known = known || entry.value == pair.first;
                if (!known)
                    return fail(i, QStringLiteral("selectedValues.%1").arg(pair.first),
                        QStringLiteral("\"%1\" is not an entry of \"%2\"").arg(pair.first, d.selector));
            }
        }
        if (d.poll.mode != PollDescription::Mode::None) {
            if (!m.features[size_t(i)].excluded)
                m.polled.append(i);
            x.random = d.poll.seed ? d.poll.seed : quint64(i + 1) * 0x2545F4914F6CDD1DULL;
        }
    }

    // Values given as they stand first, then those given by an expression, in description order.
    auto setConstant = [&](int i, const QVariant& constant, Scalar* out) {
        const FeatureDescription& d = description.features.at(i);
        switch (d.kind) {
        case FeatureKind::Integer:
            out->i = constant.toLongLong();
            break;
        case FeatureKind::Float:
            out->f = constant.toDouble();
            break;
        case FeatureKind::Boolean:
            out->i = constant.toBool() ? 1 : 0;
            break;
        case FeatureKind::String:
            out->s = constant.toString();
            break;
        case FeatureKind::Enumeration: {
            const QString symbolic = constant.toString();
            for (int e = 0; e < d.entries.size(); ++e)
                if (d.entries.at(e).value == symbolic)
                    out->i = e;
            break;
        }
        default:
            break;
        }
    };
    for (int i = 0; i < count; ++i) {
        const FeatureDescription& d = description.features.at(i);
        if (d.kind == FeatureKind::Enumeration && d.entries.isEmpty())
            return fail(i, QStringLiteral("entries"), QStringLiteral("an enumeration needs an entry"));
        Scalar& value = m.features[size_t(i)].value;
        if (d.value.constant.isValid()) {
            setConstant(i, d.value.constant, &value);
        } else if (d.value.expression.isEmpty() && (d.kind == FeatureKind::Integer || d.kind == FeatureKind::Float)) {
            // No value given: the minimum, if it is a plain number, else 0.
            if (d.minimum.constant.isValid()) {
                value.i = d.minimum.constant.toLongLong();
                value.f = d.minimum.constant.toDouble();
            }
        }
    }
    // Formulas may name each other in any order: evaluate them all until
    // nothing changes (bounded, so that a cycle can't hang the build).
    QVector<int> formulas;
    for (int i = 0; i < count; ++i) {
        const FeatureExtras* x = m.features[size_t(i)].extras.get();
        if (x && x->formula.isSet())
            formulas.append(i);
    }
    for (int pass = 0; pass <= formulas.size(); ++pass) {
        bool changed = false;
        for (int i : qAsConst(formulas))
            changed = storeValue(m, i, evaluate(m, m.features[size_t(i)].extras->formula)) || changed;
        if (!changed)
            break;
    }
    for (int i = 0; i < count; ++i) {
        FeatureExtras* x = m.features[size_t(i)].extras.get();
        if (!x || x->selector < 0)
            continue;
        const FeatureDescription& d = description.features.at(i);
        const FeatureDescription& s = desc(m, x->selector);
        x->selected.fill(m.features[size_t(i)].value, s.entries.size());
        for (const auto& pair : d.selectedValues) {
            for (int e = 0; e < s.entries.size(); ++e)
                if (s.entries.at(e).value == pair.first)
                    setConstant(i, pair.second, &x->selected[e]);
        }
    }
    m_maps.push_back(std::move(owned));
    return true;
}

// ============================================================ device hooks

QStringList DeviceState::nodeMapNames() const
{
    QStringList names;
    for (const auto& m : m_maps)
        names.append(m->name);
    return names;
}

void DeviceState::setPlugged(bool plugged)
{
    QMutexLocker lock(&m_mutex);
    m_plugged.store(plugged);
    if (!plugged)
        m_queue.clear();
}

void DeviceState::injectFault(const QString& target, Operation op, FaultKind kind, int times)
{
    QMutexLocker lock(&m_mutex);
    if (times == 0)
        return;
    m_faults[target].append(Fault { op, kind, times });
}

void DeviceState::clearFaults()
{
    QMutexLocker lock(&m_mutex);
    m_faults.clear();
}

void DeviceState::setNullSnapshot(const QString& fullName, bool on)
{
    QMutexLocker lock(&m_mutex);
    if (on)
        m_nullSnapshots.insert(fullName);
    else
        m_nullSnapshots.remove(fullName);
}

void DeviceState::setDeliveryThread(QThread* thread)
{
    QThread* target = thread ? thread : m_ownerThread;
    QObject* dispatcher = nullptr;
    {
        QMutexLocker lock(&m_mutex);
        dispatcher = m_dispatcher;
    }
    QThread* current = dispatcher->thread();
    if (current == target)
        return;
    if (current == QThread::currentThread()) {
        dispatcher->moveToThread(target);
    } else if (current && current->isRunning()) {
        // Only the thread an object lives in may push it elsewhere.
        QMetaObject::invokeMethod(
            dispatcher, [dispatcher, target] { dispatcher->moveToThread(target); }, Qt::BlockingQueuedConnection);
    } else {
        // Its thread is gone: start afresh with a new dispatcher.
        QObject* fresh = new QObject;
        fresh->moveToThread(target);
        QMutexLocker lock(&m_mutex);
        m_dispatcher = fresh;
        delete dispatcher;
        if (m_flushPosted) {
            m_flushPosted = false;
            scheduleFlushLocked();
        }
    }
}

qint64 DeviceState::clockMilliseconds() const
{
    QMutexLocker lock(&m_mutex);
    return m_clock;
}

bool DeviceState::changeOnDevice(const QString& fullName, const QVariant& value)
{
    QMutexLocker lock(&m_mutex);
    for (const auto& owned : m_maps) {
        NodeMapState& m = *owned;
        int feature = -1;
        bool alias = false;
        if (!fullName.startsWith(m.prefix) || !resolve(m, fullName, &feature, &alias))
            continue;
        const FeatureDescription& d = desc(m, feature);
        Scalar scalar;
        switch (d.kind) {
        case FeatureKind::Integer:
            scalar.i = value.toLongLong();
            break;
        case FeatureKind::Float:
            scalar.f = value.toDouble();
            if (alias)
                scalar.f = double(value.toLongLong());
            break;
        case FeatureKind::Boolean:
            scalar.i = value.toBool() ? 1 : 0;
            break;
        case FeatureKind::String:
            scalar.s = value.toString();
            break;
        case FeatureKind::Enumeration: {
            int index = -1;
            for (int e = 0; e < d.entries.size(); ++e)
                if (d.entries.at(e).value == value.toString())
                    index = e;
            if (index < 0)
                return false;
            scalar.i = index;
            break;
        }
        default:
            return false;
        }
        m.pendingDevice.insert(qMakePair(feature, selectedSlot(m, feature)), scalar);
        return true;
    }
    return false;
}

// ============================================================ helpers (lock held)

void DeviceState::checkFaultLocked(const QString& target, Operation op)
{
    if (m_faults.isEmpty())
        return;
    auto it = m_faults.find(target);
    if (it == m_faults.end())
        return;
    QVector<Fault>& faults = it.value();
    for (int i = 0; i < faults.size(); ++i) {
        Fault& fault = faults[i];
        if (fault.op != op && fault.op != Operation::Any)
            continue;
        const FaultKind kind = fault.kind;
        if (fault.times > 0 && --fault.times == 0) {
            faults.remove(i);
            if (faults.isEmpty())
                m_faults.erase(it);
        }
        const QString message = QStringLiteral("Injected fault on %1").arg(target);
        switch (kind) {
        case FaultKind::GenICam:
            throwGeneric(message);
        case FaultKind::StdException:
            throw std::runtime_error(message.toStdString());
        case FaultKind::NonStdException:
            throw int(42);
        }
    }
}

void DeviceState::requirePluggedLocked() const
{
    if (!m_plugged.load())
        throwGeneric(QStringLiteral("The device has been unplugged"));
}

FeatureKind DeviceState::kindOf(const FeatureRef& ref) const
{
    if (ref.alias)
        return FeatureKind::Integer;
    return m_maps[size_t(ref.map)]->description.features.at(ref.feature).kind;
}

void DeviceState::requireLive(const FeatureRef& ref, const QString& fullName) const
{
    requirePluggedLocked();
    if (ref.feature < 0)
        throwGeneric(QStringLiteral("%1 is not a feature of this device").arg(fullName));
    if (desc(*m_maps[size_t(ref.map)], ref.feature).zombie)
        throwGeneric(QStringLiteral("%1 is a zombie").arg(fullName));
}

int DeviceState::selectedSlot(NodeMapState& m, int feature)
{
    const FeatureExtras* x = m.features[size_t(feature)].extras.get();
    if (!x || x->selector < 0)
        return -1;
    const int slot = int(m.features[size_t(x->selector)].value.i);
    return (slot >= 0 && slot < x->selected.size()) ? slot : 0;
}

DeviceState::Scalar& DeviceState::valueRef(NodeMapState& m, int feature)
{
    const int slot = selectedSlot(m, feature);
    FeatureState& state = m.features[size_t(feature)];
    if (slot >= 0)
        return state.extras->selected[slot];
    return state.value;
}

ExpressionValue DeviceState::featureExpressionValue(NodeMapState& m, int feature)
{
    if (feature < 0 || m.features[size_t(feature)].excluded)
        return ExpressionValue();
    const FeatureDescription& d = desc(m, feature);
    const Scalar& value = valueRef(m, feature);
    switch (d.kind) {
    case FeatureKind::Integer:
    case FeatureKind::Boolean:
        return ExpressionValue::fromInteger(value.i);
    case FeatureKind::Float:
        return ExpressionValue::fromFloat(value.f);
    case FeatureKind::String:
        return ExpressionValue::fromText(value.s);
    case FeatureKind::Enumeration:
        return ExpressionValue::fromText(d.entries.value(int(value.i)).value);
    default:
        return ExpressionValue();
    }
}

ExpressionValue DeviceState::evaluate(NodeMapState& m, const BoundExpression& bound)
{
    return bound.expression.evaluate(
        [&](int nameIndex) { return featureExpressionValue(m, bound.features.value(nameIndex, -1)); });
}

bool DeviceState::condition(NodeMapState& m, const BoundExpression& bound)
{
    return !bound.isSet() || evaluate(m, bound).toBool();
}

DeviceState::Access DeviceState::accessOf(NodeMapState& m, int feature, bool alias)
{
    const FeatureDescription& d = desc(m, feature);
    int mode = d.access != GenApi::_UndefinedAccesMode ? d.access
                                                       : (d.kind == FeatureKind::Category ? GenApi::RO : GenApi::RW);
    auto imposed = m.imposed.constFind(key(feature, alias));
    if (imposed != m.imposed.constEnd() && imposed->access >= 0) {
        mode = imposed->access;
    } else if (alias) {
        auto own = m.imposed.constFind(key(feature, false));
        if (own != m.imposed.constEnd() && own->access >= 0)
            mode = own->access;
    }
    Access access;
    access.implemented = mode != GenApi::NI;
    access.readable = mode == GenApi::RO || mode == GenApi::RW;
    access.writable = mode == GenApi::WO || mode == GenApi::RW;
    if (const FeatureExtras* x = m.features[size_t(feature)].extras.get()) {
        if (access.implemented && !condition(m, x->implementedWhen))
            access.implemented = false;
        if (access.readable && !condition(m, x->readableWhen))
            access.readable = false;
        if (access.writable && !condition(m, x->writableWhen))
            access.writable = false;
    }
    if (!access.implemented)
        access.readable = access.writable = false;
    return access;
}

GenApi::EVisibility DeviceState::visibilityOf(NodeMapState& m, int feature, bool alias)
{
    auto imposed = m.imposed.constFind(key(feature, alias));
    if (imposed != m.imposed.constEnd() && imposed->visibility >= 0)
        return GenApi::EVisibility(imposed->visibility);
    if (alias) {
        auto own = m.imposed.constFind(key(feature, false));
        if (own != m.imposed.constEnd() && own->visibility >= 0)
            return GenApi::EVisibility(own->visibility);
    }
    return desc(m, feature).visibility;
}

void DeviceState::integerRange(
    NodeMapState& m, int feature, bool alias, qint64* minimum, qint64* maximum, qint64* increment)
{
    if (alias) {
        double fmin = 0, fmax = 0, finc = 0;
        bool hasInc = false;
        floatRange(m, feature, &fmin, &fmax, &hasInc, &finc);
        auto toInt = [](double v) {
            if (v >= 9.2e18)
                return kInt64Max;
            if (v <= -9.2e18)
                return kInt64Min;
            return qint64(v);
        };
        *minimum = toInt(std::ceil(fmin));
        *maximum = toInt(std::floor(fmax));
        *increment = 1;
        return;
    }
    const FeatureDescription& d = desc(m, feature);
    const FeatureExtras* x = m.features[size_t(feature)].extras.get();
    auto read = [&](const ValueSource& source, const BoundExpression* bound, qint64 fallback) {
        if (bound && bound->isSet())
            return evaluate(m, *bound).toInteger();
        return source.constant.isValid() ? source.constant.toLongLong() : fallback;
    };
    qint64 defaultMax = kInt64Max;
    qint64 defaultMin = kInt64Min;
    if (d.representation == QLatin1String("IPV4Address")) {
        defaultMin = 0;
        defaultMax = 0xFFFFFFFFLL;
    } else if (d.representation == QLatin1String("MACAddress")) {
        defaultMin = 0;
        defaultMax = 0xFFFFFFFFFFFFLL;
    }
    *minimum = read(d.minimum, x ? &x->minimum : nullptr, defaultMin);
    *maximum = read(d.maximum, x ? &x->maximum : nullptr, defaultMax);
    *increment = std::max<qint64>(1, read(d.increment, x ? &x->increment : nullptr, 1));
}

void DeviceState::floatRange(
    NodeMapState& m, int feature, double* minimum, double* maximum, bool* hasIncrement, double* increment)
{
    const FeatureDescription& d = desc(m, feature);
    const FeatureExtras* x = m.features[size_t(feature)].extras.get();
    auto read = [&](const ValueSource& source, const BoundExpression* bound, double fallback) {
        if (bound && bound->isSet())
            return evaluate(m, *bound).toDouble();
        return source.constant.isValid() ? source.constant.toDouble() : fallback;
    };
    *minimum = read(d.minimum, x ? &x->minimum : nullptr, -kDoubleMax);
    *maximum = read(d.maximum, x ? &x->maximum : nullptr, kDoubleMax);
    *hasIncrement = d.increment.isSet();
    *increment = *hasIncrement ? read(d.increment, x ? &x->increment : nullptr, 0.0) : 0.0;
    if (*increment <= 0.0) {
        *hasIncrement = false;
        *increment = 0.0;
    }
}

QVector<int> DeviceState::implementedEntries(NodeMapState& m, int feature)
{
    const FeatureDescription& d = desc(m, feature);
    const FeatureExtras* x = m.features[size_t(feature)].extras.get();
    QVector<int> entries;
    entries.reserve(d.entries.size());
    for (int e = 0; e < d.entries.size(); ++e) {
        if (x && e < x->entryImplemented.size() && !condition(m, x->entryImplemented.at(e)))
            continue;
        entries.append(e);
    }
    return entries;
}

QSharedPointer<const ParameterData> DeviceState::snapshot(NodeMapState& m, int feature, bool alias)
{
    const FeatureDescription& d = desc(m, feature);
    const FeatureKind kind = alias ? FeatureKind::Integer : d.kind;
    const Scalar& value = valueRef(m, feature);
    const QSharedPointer<const ParameterData>* last = lastSnapshot(m, feature, alias);
    // A number is formatted once while it stands: a parameter is read again
    // and again (its item reads it right after the look-up that queued the
    // first snapshot), and the text of the last snapshot serves each read,
    // shared rather than formatted and allocated anew.
    const ParameterData* before = last && (*last)->readable ? last->data() : nullptr;
    switch (kind) {
    case FeatureKind::Integer:
        return publish<IntegerParameterData>(m, feature, alias, kind, last, [&](IntegerParameterData& integer) {
            integerRange(m, feature, alias, &integer.minimum, &integer.maximum, &integer.increment);
            if (alias) {
                const double f = value.f;
                integer.value = f >= 9.2e18 ? kInt64Max : (f <= -9.2e18 ? kInt64Min : qRound64(f));
                integer.representation = QStringLiteral("PureNumber");
            } else {
                integer.value = value.i;
                integer.representation = d.representation.isEmpty() ? QStringLiteral("PureNumber") : d.representation;
            }
            const auto* previous
                = before && before->type == TypeInteger ? static_cast<const IntegerParameterData*>(before) : nullptr;
            if (previous && previous->value == integer.value && previous->representation == integer.representation)
                integer.valueText = previous->valueText;
            else
                integer.valueText = compact(formatInteger(integer.value, integer.representation));
        });
    case FeatureKind::Float:
        return publish<FloatParameterData>(m, feature, alias, kind, last, [&](FloatParameterData& real) {
            floatRange(m, feature, &real.minimum, &real.maximum, &real.hasIncrement, &real.increment);
            real.value = value.f;
            real.precision = d.precision;
            const auto* previous
                = before && before->type == TypeFloat ? static_cast<const FloatParameterData*>(before) : nullptr;
            if (previous && sameBits(previous->value, real.value) && previous->precision == real.precision)
                real.valueText = previous->valueText;
            else
                real.valueText = compact(QString::number(value.f, 'f', d.precision));
        });
    case FeatureKind::Boolean:
        return publish<BooleanParameterData>(m, feature, alias, kind, last, [&](BooleanParameterData& boolean) {
            boolean.value = value.i != 0;
            boolean.valueText = boolean.value ? QStringLiteral("1") : QStringLiteral("0");
        });
    case FeatureKind::Command:
        return publish<CommandParameterData>(m, feature, alias, kind, last, [&](CommandParameterData& command) {
            command.done = !m.features[size_t(feature)].running;
            command.valueText = QStringLiteral("");
        });
    case FeatureKind::String:
        return publish<ParameterData>(m, feature, alias, kind, last,
            [&](ParameterData& text) { text.valueText = value.s.isNull() ? QStringLiteral("") : value.s; });
    case FeatureKind::Enumeration:
        return publish<EnumParameterData>(m, feature, alias, kind, last, [&](EnumParameterData& enumeration) {
            const FeatureExtras* x = m.features[size_t(feature)].extras.get();
            if (!x || x->entryImplemented.isEmpty()) {
                // Every entry is implemented whatever the state: the lists never
                // change, so every snapshot shares one pair instead of copying it.
                const EnumTexts& texts = enumTexts(m, feature);
                enumeration.symbolicValues = texts.symbolicValues;
                enumeration.displayTexts = texts.displayTexts;
            } else {
                const QVector<int> entries = implementedEntries(m, feature);
                enumeration.symbolicValues.reserve(entries.size());
                enumeration.displayTexts.reserve(entries.size());
                for (int e : entries) {
                    const EnumEntryDescription& entry = d.entries.at(e);
                    enumeration.symbolicValues.append(entry.value);
                    enumeration.displayTexts.append(entry.displayName.isNull() ? entry.value : entry.displayName);
                }
            }
            const int current = int(value.i);
            if (current >= 0 && current < d.entries.size()) {
                enumeration.intValue = d.entries.at(current).numeric;
                enumeration.valueText = d.entries.at(current).value;
            }
        });
    case FeatureKind::Category:
        return publish<ParameterData>(
            m, feature, alias, kind, last, [](ParameterData& category) { category.valueText = QStringLiteral(""); });
    }
    return {};
}

void DeviceState::finish(ParameterData* data, NodeMapState& m, int feature, bool alias, FeatureKind kind)
{
    data->type = parameterType(kind);
    data->visibility = visibilityOf(m, feature, alias);
    const Access access = accessOf(m, feature, alias);
    data->implemented = access.implemented;
    data->readable = access.readable;
    data->writable = access.writable;
    data->isPlaceholder = false;
    if (!access.readable)
        data->valueText = QStringLiteral("");
}

template <class T, class Fill>
QSharedPointer<const ParameterData> DeviceState::publish(NodeMapState& m, int feature, bool alias, FeatureKind kind,
    const QSharedPointer<const ParameterData>* last, const Fill& fill)
{
    if (!last) {
        // Nothing to compare with: made in its block, one for the snapshot
        // and its reference count, where QSharedPointer(new T) takes two.
        QSharedPointer<T> data = QSharedPointer<T>::create();
        fill(*data);
        finish(data.data(), m, feature, alias, kind);
        return data;
    }
    T data;
    fill(data);
    finish(&data, m, feature, alias, kind);
    // Nothing has changed since the last snapshot queued: that one serves, and
    // whoever reads shares it rather than holding a block of its own. A tree
    // reads every parameter right after the look-up that took its first one.
    if (identical(data, **last))
        return *last;
    return QSharedPointer<T>::create(data);
}

const QSharedPointer<const ParameterData>* DeviceState::lastSnapshot(
    const NodeMapState& m, int feature, bool alias) const
{
    if (m.objects.isEmpty())
        return nullptr;
    auto it = m.objects.constFind(key(feature, alias));
    if (it == m.objects.constEnd() || !it->last)
        return nullptr;
    return &it->last;
}

const DeviceState::EnumTexts& DeviceState::enumTexts(NodeMapState& m, int feature)
{
    auto it = m.enumTexts.find(feature);
    if (it != m.enumTexts.end())
        return *it;
    const FeatureDescription& d = desc(m, feature);
    EnumTexts texts;
    texts.symbolicValues.reserve(d.entries.size());
    texts.displayTexts.reserve(d.entries.size());
    for (const EnumEntryDescription& entry : d.entries) {
        texts.symbolicValues.append(entry.value);
        texts.displayTexts.append(entry.displayName.isNull() ? entry.value : entry.displayName);
    }
    return *m.enumTexts.insert(feature, texts);
}

// ============================================================ changes and their signals

void DeviceState::valueChanged(NodeMapState& m, int feature)
{
    // The feature itself and everything whose expressions or selection name it,
    // directly or through others. Nothing else is looked at.
    QVector<int> reached { feature };
    QSet<int> seen { feature };
    for (int next = 0; next < reached.size(); ++next) {
        if (const FeatureExtras* x = m.features[size_t(reached.at(next))].extras.get()) {
            for (int dependent : x->dependents) {
                if (!seen.contains(dependent)) {
                    seen.insert(dependent);
                    reached.append(dependent);
                }
            }
        }
    }
    // Formulas downstream take their new values first, to a fixed point, so
    // that every snapshot queued below already shows them. The changed feature
    // itself keeps what was written to it.
    for (int pass = 0; pass <= reached.size(); ++pass) {
        bool changed = false;
        for (int f : qAsConst(reached)) {
            const FeatureExtras* x = m.features[size_t(f)].extras.get();
            if (f != feature && x && x->formula.isSet())
                changed = storeValue(m, f, evaluate(m, x->formula)) || changed;
        }
        if (!changed)
            break;
    }
    for (int f : qAsConst(reached)) {
        queueIfChanged(m, f, false);
        const FeatureDescription& d = desc(m, f);
        if (d.kind == FeatureKind::Float && d.alias)
            queueIfChanged(m, f, true);
    }
}

void DeviceState::propertiesChanged(NodeMapState& m, int feature, bool alias)
{
    queueIfChanged(m, feature, alias);
    const FeatureDescription& d = desc(m, feature);
    if (!alias && d.kind == FeatureKind::Float && d.alias)
        queueIfChanged(m, feature, true);
}

void DeviceState::queueIfChanged(NodeMapState& m, int feature, bool alias)
{
    if (m.objects.isEmpty())
        return;
    auto it = m.objects.find(key(feature, alias));
    if (it == m.objects.end())
        return;
    if (it->object.isNull()) {
        m.objects.erase(it);
        return;
    }
    if (!m_plugged.load())
        return;
    QSharedPointer<const ParameterData> data = snapshot(m, feature, alias);
    if (it->last && sameSnapshot(*data, *it->last))
        return;
    it->last = data;
    m_queue.append(PendingEmission { it->object, data });
    scheduleFlushLocked();
}

void DeviceState::scheduleFlushLocked()
{
    if (m_flushPosted || !m_dispatcher)
        return;
    m_flushPosted = true;
    QWeakPointer<DeviceState> weak = sharedFromThis();
    QMetaObject::invokeMethod(
        m_dispatcher,
        [weak] {
            DispatcherTurn turn;
            if (QSharedPointer<DeviceState> state = weak.toStrongRef())
                state->flush();
        },
        Qt::QueuedConnection);
}

void DeviceState::flush()
{
    QVector<PendingEmission> batch;
    {
        QMutexLocker lock(&m_mutex);
        batch.swap(m_queue);
        m_flushPosted = false;
    }
    // What slots change meanwhile is queued anew and delivered in a later turn.
    for (const PendingEmission& emission : qAsConst(batch)) {
        if (!m_plugged.load())
            return;
        if (QSharedPointer<IParameter> object = emission.object.toStrongRef())
            emit object->parameterDataChangedDecoupled(emission.data);
    }
}

void DeviceState::startCommandTimer(int map, int feature, int generation, int duration)
{
    QWeakPointer<DeviceState> weak = sharedFromThis();
    QObject* dispatcher = m_dispatcher;
    // The timer is a child of the dispatcher, so it lives, and moves, with it.
    QMetaObject::invokeMethod(
        dispatcher,
        [weak, dispatcher, map, feature, generation, duration] {
            auto* timer = new QTimer(dispatcher);
            timer->setSingleShot(true);
            QObject::connect(timer, &QTimer::timeout, timer, [weak, timer, map, feature, generation] {
                timer->deleteLater();
                DispatcherTurn turn;
                if (QSharedPointer<DeviceState> state = weak.toStrongRef())
                    state->commandFinished(map, feature, generation);
            });
            timer->start(duration);
        },
        Qt::QueuedConnection);
}

void DeviceState::commandFinished(int map, int feature, int generation)
{
    QMutexLocker lock(&m_mutex);
    NodeMapState& m = *m_maps[size_t(map)];
    FeatureState& state = m.features[size_t(feature)];
    if (state.runGeneration != generation || !state.running)
        return;
    state.running = false;
    valueChanged(m, feature);
}

// ============================================================ look-ups

bool DeviceState::resolve(const NodeMapState& m, const QString& name, int* feature, bool* alias) const
{
    QStringView rest(name);
    if (rest.startsWith(m.prefix))
        rest = rest.mid(m.prefix.size());
    else if (rest.startsWith(QLatin1Char('@')))
        return false;
    *alias = false;
    // The last letter first, inline: few names end in it.
    if (rest.endsWith(QLatin1Char('s')) && rest.endsWith(QLatin1String("/Alias"))) {
        *alias = true;
        rest.chop(6);
    }
    if (rest.contains(QLatin1Char('/')))
        return false;
    const int index = m.byName.value(rest);
    if (index < 0 || m.features[size_t(index)].excluded)
        return false;
    if (*alias) {
        const FeatureDescription& d = desc(m, index);
        if (d.kind != FeatureKind::Float || !d.alias)
            return false;
    }
    *feature = index;
    return true;
}

QSharedPointer<IParameter> DeviceState::getParameter(int map, const QString& name)
{
    QMutexLocker lock(&m_mutex);
    NodeMapState& m = *m_maps[size_t(map)];
    checkFaultLocked(m.name, Operation::GetParameter);
    requirePluggedLocked();
    int feature = -1;
    bool alias = false;
    if (!resolve(m, name, &feature, &alias)) {
        QString fullName = name;
        QString shortName = name;
        if (name.startsWith(QLatin1Char('@')) && name.contains(QLatin1Char('/')))
            shortName = name.mid(name.indexOf(QLatin1Char('/')) + 1);
        else
            fullName = m.prefix + name;
        FeatureRef ref { map, -1, false };
        return QSharedPointer<IParameter>(new SimulatedZombieParameter(sharedFromThis(), ref, fullName, shortName));
    }
    ObjectSlot& slot = m.objects[key(feature, alias)];
    if (QSharedPointer<IParameter> existing = slot.object.toStrongRef())
        return existing;

    const FeatureDescription& d = desc(m, feature);
    const FeatureRef ref { map, feature, alias };
    const QString shortName = alias ? d.name + QStringLiteral("/Alias") : d.name;
    const QString fullName = alias ? fullNameOf(m, feature) + QStringLiteral("/Alias") : fullNameOf(m, feature);
    QSharedPointer<DeviceState> self = sharedFromThis();
    IParameter* object = nullptr;
    switch (alias ? FeatureKind::Integer : d.kind) {
    case FeatureKind::Integer:
        object = new SimulatedIntegerParameter(self, ref, fullName, shortName);
        break;
    case FeatureKind::Float:
        object = new SimulatedFloatParameter(self, ref, fullName, shortName);
        break;
    case FeatureKind::Boolean:
        object = new SimulatedBooleanParameter(self, ref, fullName, shortName);
        break;
    case FeatureKind::Command:
        object = new SimulatedCommandParameter(self, ref, fullName, shortName);
        break;
    case FeatureKind::String:
        object = new SimulatedStringParameter(self, ref, fullName, shortName);
        break;
    case FeatureKind::Enumeration:
        object = new SimulatedEnumParameter(self, ref, fullName, shortName);
        break;
    case FeatureKind::Category:
        object = new SimulatedCategoryParameter(self, ref, fullName, shortName);
        break;
    }
    QSharedPointer<IParameter> result(object);
    slot.object = result;
    slot.last = snapshot(m, feature, alias);
    return result;
}

bool DeviceState::hasParameter(int map, const QString& name)
{
    QMutexLocker lock(&m_mutex);
    NodeMapState& m = *m_maps[size_t(map)];
    checkFaultLocked(m.name, Operation::HasParameter);
    int feature = -1;
    bool alias = false;
    return resolve(m, name, &feature, &alias);
}

QList<QString> DeviceState::getChildNames(int map, const QString& name, bool recursive, bool presentationOrder)
{
    QMutexLocker lock(&m_mutex);
    NodeMapState& m = *m_maps[size_t(map)];
    checkFaultLocked(m.name, Operation::GetChildNames);
    requirePluggedLocked();
    int feature = -1;
    bool alias = false;
    if (!resolve(m, name, &feature, &alias))
        throwGeneric(QStringLiteral("%1 is not a feature of node map %2").arg(name, m.name));
    QList<QString> names;
    if (alias)
        return names;
    if (recursive) {
        QSet<int> visited;
        collectChildren(m, feature, true, &visited, &names);
    } else {
        // One level visits nothing twice: no set to fill.
        collectChildren(m, feature, false, nullptr, &names);
    }
    if (!presentationOrder)
        std::sort(names.begin(), names.end());
    return names;
}

void DeviceState::collectChildren(
    NodeMapState& m, int category, bool recursive, QSet<int>* visited, QList<QString>* names)
{
    if (visited) {
        if (visited->contains(category))
            return;
        visited->insert(category);
    }
    if (desc(m, category).kind != FeatureKind::Category)
        return;
    const QVector<int>& children = m.features[size_t(category)].children;
    names->reserve(names->size() + children.size());
    for (int child : children) {
        if (m.features[size_t(child)].excluded)
            continue;
        names->append(fullNameOf(m, child));
        if (recursive)
            collectChildren(m, child, true, visited, names);
    }
}

const QString& DeviceState::fullNameOf(NodeMapState& m, int feature)
{
    QString& fullName = m.features[size_t(feature)].fullName;
    if (fullName.isNull())
        fullName = m.prefix + desc(m, feature).name;
    return fullName;
}

bool DeviceState::applyPending(NodeMapState& m, int feature, QVector<int>* changed)
{
    bool any = false;
    for (auto it = m.pendingDevice.begin(); it != m.pendingDevice.end();) {
        if (it.key().first != feature) {
            ++it;
            continue;
        }
        const int slot = it.key().second;
        FeatureState& state = m.features[size_t(feature)];
        Scalar& target = (slot >= 0 && state.extras && slot < state.extras->selected.size())
            ? state.extras->selected[slot]
            : state.value;
        if (target != it.value()) {
            target = it.value();
            any = true;
        }
        it = m.pendingDevice.erase(it);
    }
    if (any && changed)
        changed->append(feature);
    return any;
}

void DeviceState::refreshAll(int map)
{
    QMutexLocker lock(&m_mutex);
    NodeMapState& m = *m_maps[size_t(map)];
    checkFaultLocked(m.name, Operation::RefreshAll);
    requirePluggedLocked();
    QVector<int> changed;
    while (!m.pendingDevice.isEmpty())
        applyPending(m, m.pendingDevice.begin().key().first, &changed);
    // Every parameter handed out is read afresh; only a changed snapshot is signalled.
    const QList<int> keys = m.objects.keys();
    for (int k : keys)
        queueIfChanged(m, k / 2, (k % 2) != 0);
}

bool DeviceState::applyPollRule(NodeMapState& m, int feature, qint64 elapsed)
{
    const FeatureDescription& d = desc(m, feature);
    FeatureExtras& x = *m.features[size_t(feature)].extras;
    if (x.pollWhen.isSet() && !condition(m, x.pollWhen))
        return false;
    Scalar& value = valueRef(m, feature);
    const Scalar before = value;

    // Booleans, enumerations and strings follow a whole number as integers do:
    // odd is true, the number picks an entry, the text is the number.
    qint64 number = d.kind == FeatureKind::String ? value.s.toLongLong() : value.i;
    double real = value.f;
    switch (d.poll.mode) {
    case PollDescription::Mode::RandomWalk: {
        if (elapsed <= 0 || d.poll.step == 0.0)
            return false;
        const int direction = (nextRandom(&x.random) & 1) ? 1 : -1;
        if (d.kind == FeatureKind::Float) {
            double minimum, maximum, increment;
            bool hasIncrement;
            floatRange(m, feature, &minimum, &maximum, &hasIncrement, &increment);
            double next = real + direction * d.poll.step;
            if (next < minimum || next > maximum)
                next = real - direction * d.poll.step;
            real = qBound(minimum, next, maximum);
        } else {
            qint64 minimum = kInt64Min, maximum = kInt64Max, increment = 1;
            if (d.kind == FeatureKind::Integer)
                integerRange(m, feature, false, &minimum, &maximum, &increment);
            const qint64 step = std::max<qint64>(1, qint64(std::llround(std::fabs(d.poll.step))));
            qint64 next = number + direction * step;
            if (next < minimum || next > maximum)
                next = number - direction * step;
            number = qBound(minimum, next, maximum);
        }
        break;
    }
    case PollDescription::Mode::Clock: {
        const double t = double(m_clock) * d.poll.perMillisecond;
        real = t;
        number = qint64(std::floor(t));
        break;
    }
    case PollDescription::Mode::Rate: {
        const double increase = evaluate(m, x.pollRate).toDouble() * double(std::max<qint64>(0, elapsed)) / 1000.0;
        real += increase;
        x.carry += increase;
        const double whole = std::floor(x.carry);
        x.carry -= whole;
        number += qint64(whole);
        break;
    }
    case PollDescription::Mode::None:
        return false;
    }
    switch (d.kind) {
    case FeatureKind::Float:
        value.f = real;
        break;
    case FeatureKind::Integer:
        value.i = number;
        break;
    case FeatureKind::Boolean:
        value.i = (number % 2) != 0 ? 1 : 0;
        break;
    case FeatureKind::Enumeration: {
        const QVector<int> entries = implementedEntries(m, feature);
        if (!entries.isEmpty()) {
            const qint64 n = entries.size();
            value.i = entries.at(int(((number % n) + n) % n));
        }
        break;
    }
    case FeatureKind::String:
        value.s = QString::number(number);
        break;
    default:
        break;
    }
    return value != before;
}

void DeviceState::poll(int map, qint64 elapsedMilliseconds)
{
    QMutexLocker lock(&m_mutex);
    NodeMapState& m = *m_maps[size_t(map)];
    checkFaultLocked(m.name, Operation::Poll);
    requirePluggedLocked();
    const qint64 elapsed = std::max<qint64>(0, elapsedMilliseconds);
    m_clock += elapsed;
    QVector<int> changed;
    for (int feature : qAsConst(m.polled)) {
        if (!m.pendingDevice.isEmpty() && applyPending(m, feature, &changed))
            continue;
        if (applyPollRule(m, feature, elapsed))
            changed.append(feature);
    }
    for (int feature : qAsConst(changed))
        valueChanged(m, feature);
}

// ============================================================ parameter operations

void DeviceState::touch(const FeatureRef& ref, const QString& fullName, Operation op)
{
    Q_UNUSED(ref) // names answer even for zombies; only a fault can stop them
    QMutexLocker lock(&m_mutex);
    checkFaultLocked(fullName, op);
}

bool DeviceState::isZombie(const FeatureRef& ref, const QString& fullName)
{
    QMutexLocker lock(&m_mutex);
    checkFaultLocked(fullName, Operation::IsZombie);
    return !m_plugged.load() || ref.feature < 0 || desc(*m_maps[size_t(ref.map)], ref.feature).zombie;
}

bool DeviceState::isImposable(const FeatureRef& ref, const QString& fullName)
{
    QMutexLocker lock(&m_mutex);
    checkFaultLocked(fullName, Operation::IsImposable);
    return m_plugged.load() && ref.feature >= 0;
}

bool DeviceState::isWritable(const FeatureRef& ref, const QString& fullName)
{
    QMutexLocker lock(&m_mutex);
    checkFaultLocked(fullName, Operation::IsWritable);
    requireLive(ref, fullName);
    return accessOf(*m_maps[size_t(ref.map)], ref.feature, ref.alias).writable;
}

GenApi::EVisibility DeviceState::getVisibility(const FeatureRef& ref, const QString& fullName)
{
    QMutexLocker lock(&m_mutex);
    checkFaultLocked(fullName, Operation::GetVisibility);
    requireLive(ref, fullName);
    return visibilityOf(*m_maps[size_t(ref.map)], ref.feature, ref.alias);
}

int DeviceState::getType(const FeatureRef& ref, const QString& fullName)
{
    QMutexLocker lock(&m_mutex);
    checkFaultLocked(fullName, Operation::GetType);
    requireLive(ref, fullName);
    return parameterType(kindOf(ref));
}

void DeviceState::checkAdvancedAccess(const FeatureRef& ref, const QString& fullName)
{
    QMutexLocker lock(&m_mutex);
    checkFaultLocked(fullName, Operation::AdvancedAccess);
    // A described zombie still takes imposed properties, so it keeps its access.
    requirePluggedLocked();
    if (ref.feature < 0)
        throwGeneric(QStringLiteral("%1 is not a feature of this device").arg(fullName));
}

QSharedPointer<const ParameterData> DeviceState::getParameterData(const FeatureRef& ref, const QString& fullName)
{
    QMutexLocker lock(&m_mutex);
    checkFaultLocked(fullName, Operation::GetParameterData);
    requireLive(ref, fullName);
    if (!m_nullSnapshots.isEmpty() && m_nullSnapshots.contains(fullName))
        return {};
    return snapshot(*m_maps[size_t(ref.map)], ref.feature, ref.alias);
}

void DeviceState::writeInteger(NodeMapState& m, int feature, bool alias, qint64 value)
{
    const FeatureDescription& d = desc(m, feature);
    if (!accessOf(m, feature, alias).writable)
        throwGeneric(QStringLiteral("%1 is not writable").arg(m.prefix + d.name));
    qint64 minimum = 0, maximum = 0, increment = 1;
    integerRange(m, feature, alias, &minimum, &maximum, &increment);
    if (value < minimum || value > maximum)
        throwInvalid(QStringLiteral("%1: value %2 is out of range [%3, %4]")
                         .arg(m.prefix + d.name)
                         .arg(value)
                         .arg(minimum)
                         .arg(maximum));
    if (increment > 1 && ((value - minimum) % increment) != 0)
        throwInvalid(QStringLiteral("%1: value %2 doesn't fit the increment %3 from %4")
                         .arg(m.prefix + d.name)
                         .arg(value)
                         .arg(increment)
                         .arg(minimum));
    Scalar& target = valueRef(m, feature);
    if (alias) {
        if (target.f == double(value))
            return;
        target.f = double(value);
    } else {
        if (target.i == value)
            return;
        target.i = value;
    }
    valueChanged(m, feature);
}

void DeviceState::writeFloat(NodeMapState& m, int feature, double value)
{
    const FeatureDescription& d = desc(m, feature);
    if (!accessOf(m, feature, false).writable)
        throwGeneric(QStringLiteral("%1 is not writable").arg(m.prefix + d.name));
    double minimum = 0, maximum = 0, increment = 0;
    bool hasIncrement = false;
    floatRange(m, feature, &minimum, &maximum, &hasIncrement, &increment);
    if (std::isnan(value) || value < minimum || value > maximum)
        throwInvalid(QStringLiteral("%1: value %2 is out of range [%3, %4]")
                         .arg(m.prefix + d.name)
                         .arg(value)
                         .arg(minimum)
                         .arg(maximum));
    if (hasIncrement && !fitsIncrement(value, minimum, increment))
        throwInvalid(QStringLiteral("%1: value %2 doesn't fit the increment %3 from %4")
                         .arg(m.prefix + d.name)
                         .arg(value)
                         .arg(increment)
                         .arg(minimum));
    Scalar& target = valueRef(m, feature);
    if (target.f == value)
        return;
    target.f = value;
    valueChanged(m, feature);
}

void DeviceState::setValueFromString(const FeatureRef& ref, const QString& fullName, const QString& text)
{
    QMutexLocker lock(&m_mutex);
    checkFaultLocked(fullName, Operation::SetValueFromString);
    requireLive(ref, fullName);
    NodeMapState& m = *m_maps[size_t(ref.map)];
    const FeatureDescription& d = desc(m, ref.feature);
    const FeatureKind kind = kindOf(ref);
    if (kind == FeatureKind::Command || kind == FeatureKind::Category)
        throwGeneric(QStringLiteral("%1 is a %2 and has no value to write").arg(fullName, featureKindName(kind)));
    if (!accessOf(m, ref.feature, ref.alias).writable)
        throwGeneric(QStringLiteral("%1 is not writable").arg(fullName));
    switch (kind) {
    case FeatureKind::Integer: {
        qint64 value = 0;
        if (!parseInteger(text, ref.alias ? QString() : d.representation, &value))
            throwInvalid(QStringLiteral("%1: \"%2\" is not a whole number").arg(fullName, text));
        writeInteger(m, ref.feature, ref.alias, value);
        break;
    }
    case FeatureKind::Float: {
        bool ok = false;
        const double value = text.trimmed().toDouble(&ok);
        if (!ok)
            throwInvalid(QStringLiteral("%1: \"%2\" is not a number").arg(fullName, text));
        writeFloat(m, ref.feature, value);
        break;
    }
    case FeatureKind::Boolean: {
        const QString t = text.trimmed();
        qint64 value = 0;
        if (t == QLatin1String("1") || t.compare(QLatin1String("true"), Qt::CaseInsensitive) == 0)
            value = 1;
        else if (t == QLatin1String("0") || t.compare(QLatin1String("false"), Qt::CaseInsensitive) == 0)
            value = 0;
        else
            throwInvalid(QStringLiteral("%1: \"%2\" is not a truth value").arg(fullName, text));
        Scalar& target = valueRef(m, ref.feature);
        if (target.i != value) {
            target.i = value;
            valueChanged(m, ref.feature);
        }
        break;
    }
    case FeatureKind::String: {
        if (text.size() > d.maxLength)
            throwInvalid(QStringLiteral("%1: the text is longer than %2 characters").arg(fullName).arg(d.maxLength));
        Scalar& target = valueRef(m, ref.feature);
        if (target.s != text) {
            target.s = text;
            valueChanged(m, ref.feature);
        }
        break;
    }
    case FeatureKind::Enumeration: {
        int index = -1;
        for (int e : implementedEntries(m, ref.feature))
            if (d.entries.at(e).value == text)
                index = e;
        if (index < 0)
            throwGeneric(QStringLiteral("%1: \"%2\" is not an entry").arg(fullName, text));
        Scalar& target = valueRef(m, ref.feature);
        if (target.i != index) {
            target.i = index;
            valueChanged(m, ref.feature);
        }
        break;
    }
    default:
        break;
    }
}

void DeviceState::setInteger(const FeatureRef& ref, const QString& fullName, qint64 value)
{
    QMutexLocker lock(&m_mutex);
    checkFaultLocked(fullName, Operation::SetValue);
    requireLive(ref, fullName);
    writeInteger(*m_maps[size_t(ref.map)], ref.feature, ref.alias, value);
}

qint64 DeviceState::getInteger(const FeatureRef& ref, const QString& fullName, Operation which)
{
    QMutexLocker lock(&m_mutex);
    checkFaultLocked(fullName, which);
    requireLive(ref, fullName);
    NodeMapState& m = *m_maps[size_t(ref.map)];
    const Access access = accessOf(m, ref.feature, ref.alias);
    if (which == Operation::GetValue) {
        if (!access.readable)
            throwGeneric(QStringLiteral("%1 is not readable").arg(fullName));
        const Scalar& value = valueRef(m, ref.feature);
        return ref.alias ? qRound64(value.f) : value.i;
    }
    if (!access.implemented)
        throwGeneric(QStringLiteral("%1 is not implemented").arg(fullName));
    qint64 minimum = 0, maximum = 0, increment = 1;
    integerRange(m, ref.feature, ref.alias, &minimum, &maximum, &increment);
    return which == Operation::GetMinimum ? minimum : maximum;
}

void DeviceState::setFloat(const FeatureRef& ref, const QString& fullName, double value)
{
    QMutexLocker lock(&m_mutex);
    checkFaultLocked(fullName, Operation::SetValue);
    requireLive(ref, fullName);
    writeFloat(*m_maps[size_t(ref.map)], ref.feature, value);
}

double DeviceState::getFloat(const FeatureRef& ref, const QString& fullName, Operation which)
{
    QMutexLocker lock(&m_mutex);
    checkFaultLocked(fullName, which);
    requireLive(ref, fullName);
    NodeMapState& m = *m_maps[size_t(ref.map)];
    const Access access = accessOf(m, ref.feature, false);
    if (which == Operation::GetValue) {
        if (!access.readable)
            throwGeneric(QStringLiteral("%1 is not readable").arg(fullName));
        return valueRef(m, ref.feature).f;
    }
    if (!access.implemented)
        throwGeneric(QStringLiteral("%1 is not implemented").arg(fullName));
    double minimum = 0, maximum = 0, increment = 0;
    bool hasIncrement = false;
    floatRange(m, ref.feature, &minimum, &maximum, &hasIncrement, &increment);
    return which == Operation::GetMinimum ? minimum : maximum;
}

void DeviceState::setCommandPending(const FeatureRef& ref, const QString& fullName, bool pending)
{
    Q_UNUSED(pending) // only the user interface's bookkeeping; the device doesn't care
    QMutexLocker lock(&m_mutex);
    checkFaultLocked(fullName, Operation::SetCommandPending);
    requireLive(ref, fullName);
}

void DeviceState::execute(const FeatureRef& ref, const QString& fullName)
{
    QMutexLocker lock(&m_mutex);
    checkFaultLocked(fullName, Operation::Execute);
    requireLive(ref, fullName);
    NodeMapState& m = *m_maps[size_t(ref.map)];
    if (!accessOf(m, ref.feature, false).writable)
        throwGeneric(QStringLiteral("%1 is not writable").arg(fullName));
    FeatureState& state = m.features[size_t(ref.feature)];
    state.running = true;
    const int generation = ++state.runGeneration;
    valueChanged(m, ref.feature);
    if (const FeatureExtras* x = state.extras.get()) {
        const auto assignments = x->onExecute;
        for (const auto& assignment : assignments)
            assign(m, assignment.first, evaluate(m, assignment.second));
    }
    startCommandTimer(ref.map, ref.feature, generation, desc(m, ref.feature).duration);
}

bool DeviceState::storeValue(NodeMapState& m, int feature, const ExpressionValue& value)
{
    const FeatureDescription& d = desc(m, feature);
    Scalar& target = valueRef(m, feature);
    const Scalar before = target;
    switch (d.kind) {
    case FeatureKind::Integer:
        target.i = value.toInteger();
        break;
    case FeatureKind::Float:
        target.f = value.toDouble();
        break;
    case FeatureKind::Boolean:
        target.i = value.toBool() ? 1 : 0;
        break;
    case FeatureKind::String:
        target.s = value.toText();
        break;
    case FeatureKind::Enumeration:
        for (int e = 0; e < d.entries.size(); ++e)
            if (d.entries.at(e).value == value.toText())
                target.i = e;
        break;
    default:
        break;
    }
    return target != before;
}

void DeviceState::assign(NodeMapState& m, int feature, const ExpressionValue& value)
{
    if (storeValue(m, feature, value))
        valueChanged(m, feature);
}

QString DeviceState::getProperty(const FeatureRef& ref, const QString& fullName, const QString& property, bool* present)
{
    QMutexLocker lock(&m_mutex);
    checkFaultLocked(fullName, Operation::GetProperty);
    requirePluggedLocked();
    if (ref.feature < 0)
        throwGeneric(QStringLiteral("%1 is not a feature of this device").arg(fullName));
    NodeMapState& m = *m_maps[size_t(ref.map)];
    const FeatureDescription& d = desc(m, ref.feature);
    auto given = [&](const QString& text) {
        *present = !text.isNull();
        return text;
    };
    if (isKey(property, QLatin1String("DisplayName")))
        return given(d.displayName);
    if (isKey(property, QLatin1String("Description")))
        return given(d.description);
    if (isKey(property, QLatin1String("Tooltip")))
        return given(d.tooltip);
    if (isKey(property, QLatin1String("DocuURL")))
        return given(d.docuUrl);
    if (isKey(property, QLatin1String("Unit")))
        return given(d.unit);
    if (isKey(property, QLatin1String("Representation"))) {
        if (ref.alias)
            return given(QStringLiteral("PureNumber"));
        return given(d.representation.isEmpty() ? QString() : d.representation);
    }
    if (isKey(property, QLatin1String("Visibility")))
        return given(visibilityName(visibilityOf(m, ref.feature, ref.alias)));
    if (isKey(property, QLatin1String("AccessMode"))) {
        const Access a = accessOf(m, ref.feature, ref.alias);
        const GenApi::EAccessMode mode = !a.implemented ? GenApi::NI
            : !a.readable                               ? (a.writable ? GenApi::WO : GenApi::NA)
                                                        : (a.writable ? GenApi::RW : GenApi::RO);
        return given(accessModeName(mode));
    }
    if (isKey(property, QLatin1String("Name")))
        return given(ref.alias ? d.name + QStringLiteral("/Alias") : d.name);
    *present = false;
    return QString();
}

void DeviceState::setProperty(
    const FeatureRef& ref, const QString& fullName, const QString& property, const QString& value)
{
    QMutexLocker lock(&m_mutex);
    checkFaultLocked(fullName, Operation::SetProperty);
    requirePluggedLocked();
    if (ref.feature < 0)
        throwGeneric(QStringLiteral("%1 is not a feature of this device").arg(fullName));
    NodeMapState& m = *m_maps[size_t(ref.map)];
    if (property == QLatin1String("Visibility")) {
        GenApi::EVisibility visibility = GenApi::Beginner;
        if (!parseVisibility(value, &visibility))
            throwInvalid(QStringLiteral("%1: \"%2\" is not a visibility").arg(fullName, value));
        m.imposed[key(ref.feature, ref.alias)].visibility = visibility;
    } else if (property == QLatin1String("AccessMode")) {
        GenApi::EAccessMode access = GenApi::RW;
        if (!parseAccessMode(value, &access))
            throwInvalid(QStringLiteral("%1: \"%2\" is not an access mode").arg(fullName, value));
        m.imposed[key(ref.feature, ref.alias)].access = access;
    } else {
        throwInvalid(QStringLiteral("%1: the property \"%2\" can't be imposed").arg(fullName, property));
    }
    propertiesChanged(m, ref.feature, ref.alias);
}

} // namespace Simulation
