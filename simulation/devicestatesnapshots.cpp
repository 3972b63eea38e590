#include "devicestate.h"
#include "devicestatesupport.h"

#include <cmath>
#include <cstring>

namespace Simulation {

using namespace ParameterCollection;
using namespace DeviceStateSupport;

namespace {

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

} // namespace

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

} // namespace Simulation
