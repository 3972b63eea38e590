#include "parameterdata.h"

#include <QCoreApplication>

namespace ParameterCollection {

ParameterData::~ParameterData() = default;
IntegerParameterData::~IntegerParameterData() = default;
FloatParameterData::~FloatParameterData() = default;
BooleanParameterData::~BooleanParameterData() = default;
CommandParameterData::~CommandParameterData() = default;
EnumParameterData::~EnumParameterData() = default;

QSharedPointer<const ParameterData> ParameterData::createPlaceholder()
{
    QSharedPointer<ParameterData> data(new ParameterData);
    data->type = TypeUnknown;
    data->visibility = GenApi::_UndefinedVisibility;
    data->readable = false;
    data->writable = false;
    data->implemented = false;
    data->isPlaceholder = true;
    data->valueText = QString();
    return data;
}

GenApi::EAccessMode ParameterData::accessModeOf(const QSharedPointer<const ParameterData>& data)
{
    return data ? data->accessMode() : GenApi::NI;
}

GenApi::EAccessMode ParameterData::accessMode() const
{
    if (!implemented)
        return GenApi::NI;
    if (!readable)
        return writable ? GenApi::WO : GenApi::NA;
    return writable ? GenApi::RW : GenApi::RO;
}

namespace {

// Snapshots cross threads in queued signals; the type has to be known to the
// meta-type system under the exact name the signal signature spells.
void registerParameterDataMetaType()
{
    qRegisterMetaType<QSharedPointer<const ParameterData>>();
    qRegisterMetaType<QSharedPointer<const ParameterData>>("QSharedPointer<const ParameterCollection::ParameterData>");
}

} // namespace

Q_CONSTRUCTOR_FUNCTION(registerParameterDataMetaType)

} // namespace ParameterCollection
