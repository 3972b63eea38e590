#pragma once

// What the files of DeviceState share: the limits, the exceptions it throws
// and the comparison of snapshots.

#include "devicedescription.h"

#include "parameters/genericexception.h"
#include "parameters/invalidargumentexception.h"
#include "parameters/iparameter.h"
#include "parameters/parameterdata.h"

#include <QString>

#include <limits>

namespace Simulation {
namespace DeviceStateSupport {

using namespace ParameterCollection;

constexpr qint64 kInt64Min = std::numeric_limits<qint64>::min();
constexpr qint64 kInt64Max = std::numeric_limits<qint64>::max();
constexpr double kDoubleMax = std::numeric_limits<double>::max();

[[noreturn]] inline void throwGeneric(const QString& message)
{
    throw GenICam::GenericException(message.toUtf8().constData(), __FILE__, __LINE__);
}

[[noreturn]] inline void throwInvalid(const QString& message)
{
    throw GenICam::InvalidArgumentException(message.toUtf8().constData(), __FILE__, __LINE__);
}

inline bool sameSnapshot(const ParameterData& a, const ParameterData& b)
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

inline int parameterType(FeatureKind kind)
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

} // namespace DeviceStateSupport
} // namespace Simulation
