#include "devicestate.h"
#include "devicestatesupport.h"

#include <QMutexLocker>

#include <algorithm>
#include <cmath>

namespace Simulation {

using namespace ParameterCollection;
using namespace DeviceStateSupport;

namespace {

// SplitMix64: small, fast and good enough for a random walk.
quint64 nextRandom(quint64* state)
{
    quint64 z = (*state += 0x9E3779B97F4A7C15ULL);
    z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9ULL;
    z = (z ^ (z >> 27)) * 0x94D049BB133111EBULL;
    return z ^ (z >> 31);
}

} // namespace

// ============================================================ pending values and polling

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

} // namespace Simulation
