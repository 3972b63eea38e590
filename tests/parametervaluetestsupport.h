#pragma once

// Values that tests and benchmarks write to a camera to see a change: for any
// parameter, a value other than the present one that its range allows.

#include "parameters/parameterdata.h"

#include <QSharedPointer>
#include <QString>

namespace ValueTest {

//! A value other than the current one that the camera may take: another entry, the other limit, the other truth;
//! empty for a parameter with nothing else to take (an enumeration of one entry, a command).
inline QString otherValue(const QSharedPointer<const ParameterCollection::ParameterData>& data)
{
    using namespace ParameterCollection;
    if (const auto* e = dynamic_cast<const EnumParameterData*>(data.data())) {
        for (const QString& symbol : e->symbolicValues)
            if (symbol != data->valueText)
                return symbol;
        return QString();
    }
    if (const auto* i = dynamic_cast<const IntegerParameterData*>(data.data()))
        return QString::number(i->value == i->minimum ? i->maximum : i->minimum);
    if (const auto* f = dynamic_cast<const FloatParameterData*>(data.data()))
        return QString::number(f->value == f->minimum ? f->maximum : f->minimum, 'g', 17);
    if (const auto* b = dynamic_cast<const BooleanParameterData*>(data.data()))
        return b->value ? QStringLiteral("false") : QStringLiteral("true");
    if (data->type == TypeString)
        return data->valueText + QStringLiteral("x");
    return QString();
}

} // namespace ValueTest
