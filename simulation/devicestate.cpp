#include "devicestate.h"
#include "devicestatesupport.h"

#include <QMutexLocker>

namespace Simulation {

using namespace ParameterCollection;
using namespace DeviceStateSupport;

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
    if (description.frameSource.isSet() && !state->checkFrameSource(description.frameSource, error))
        return {};
    state->m_ownerThread = QThread::currentThread();
    state->m_dispatcher = new QObject;
    return state;
}

bool DeviceState::checkFrameSource(const FrameSourceDescription& frameSource, QString* error) const
{
    const NodeMapState* map = nullptr;
    for (const auto& m : m_maps) {
        if (m->name == frameSource.nodeMap)
            map = m.get();
    }
    if (!map) {
        if (error)
            *error
                = QStringLiteral("frame source, field \"nodeMap\": unknown node map \"%1\"").arg(frameSource.nodeMap);
        return false;
    }
    for (auto it = frameSource.expressions.constBegin(); it != frameSource.expressions.constEnd(); ++it) {
        const QString where = QStringLiteral("frame source, field \"%1\": ").arg(it.key());
        QString parseError;
        const Expression expression = Expression::parse(it.value(), &parseError);
        if (!expression.isValid()) {
            if (error)
                *error = where + QStringLiteral("cannot parse expression \"%1\": %2").arg(it.value(), parseError);
            return false;
        }
        for (const QString& name : expression.names()) {
            const int index = map->byName.value(name, -1);
            if (index < 0) {
                if (error)
                    *error
                        = where + QStringLiteral("unknown feature \"%1\" in expression \"%2\"").arg(name, it.value());
                return false;
            }
        }
    }
    return true;
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

} // namespace Simulation
