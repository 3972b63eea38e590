#include "devicestate.h"
#include "devicestatesupport.h"

#include <QMutexLocker>

#include <algorithm>
#include <cmath>

namespace Simulation {

using namespace ParameterCollection;
using namespace DeviceStateSupport;

namespace {

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
