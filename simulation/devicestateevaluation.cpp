#include "devicestate.h"
#include "devicestatesupport.h"

#include <QMutexLocker>

#include <algorithm>
#include <cmath>

namespace Simulation {

using namespace ParameterCollection;
using namespace DeviceStateSupport;

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

ExpressionValue DeviceState::evaluateExpression(const QString& mapName, const Expression& expression)
{
    QMutexLocker lock(&m_mutex);
    NodeMapState* map = nullptr;
    for (const auto& m : m_maps) {
        if (m->name == mapName)
            map = m.get();
    }
    if (!map)
        return ExpressionValue();
    return expression.evaluate([this, map, &expression](int index) {
        return featureExpressionValue(*map, map->byName.value(expression.names().at(index), -1));
    });
}

} // namespace Simulation
