#pragma once

#include "genapienums.h"
#include "zarvexviewercomponents_export.h"

#include <QMetaType>
#include <QSharedPointer>
#include <QString>
#include <QVector>

namespace ParameterCollection {

//! Kinds of parameter, as returned by IParameter::getType() and stored in ParameterData::type.
enum ParameterType {
    TypeUnknown = 0, //!< only in the placeholder snapshot
    TypeInteger = 1,
    TypeBoolean = 2,
    TypeFloat = 3,
    TypeCommand = 4,
    TypeString = 5,
    TypeEnumeration = 6,
    TypeCategory = 7
};

/*!
 * A snapshot of one parameter. Immutable once published and always handed
 * around as QSharedPointer<const ParameterData>. A snapshot of a given kind is
 * one of the derived records below; read it through the base, then by kind.
 */
class ZVC_EXPORT ParameterData
{
public:
    ParameterData() = default;
    ParameterData(const ParameterData&) = default;
    ParameterData& operator=(const ParameterData&) = default;
    virtual ~ParameterData();

    qint32 type = TypeUnknown;
    qint32 visibility = GenApi::_UndefinedVisibility;
    bool readable = false;
    bool writable = false;
    bool implemented = false;
    bool isPlaceholder = false; //!< true only in the placeholder snapshot
    QString valueText; //!< meaningful when readable

    //! The snapshot an item uses where a parameter can't be read: kind 0,
    //! visibility 99, nothing readable, writable or implemented, null text.
    static QSharedPointer<const ParameterData> createPlaceholder();

    //! Access mode of a snapshot; a null snapshot is not implemented.
    static GenApi::EAccessMode accessModeOf(const QSharedPointer<const ParameterData>& data);
    GenApi::EAccessMode accessMode() const;
};

class ZVC_EXPORT IntegerParameterData : public ParameterData
{
public:
    ~IntegerParameterData() override;

    qint64 value = 0;
    qint64 minimum = 0;
    qint64 maximum = 0;
    qint64 increment = 1;
    //! "Linear", "Logarithmic", "Boolean", "PureNumber", "HexNumber", "IPV4Address" or "MACAddress"
    QString representation;
};

class ZVC_EXPORT FloatParameterData : public ParameterData
{
public:
    ~FloatParameterData() override;

    double value = 0.0;
    double minimum = 0.0;
    double maximum = 0.0;
    bool hasIncrement = false;
    double increment = 0.0;
    qint64 precision = 0; //!< decimals for display
};

class ZVC_EXPORT BooleanParameterData : public ParameterData
{
public:
    ~BooleanParameterData() override;

    bool value = false;
};

class ZVC_EXPORT CommandParameterData : public ParameterData
{
public:
    ~CommandParameterData() override;

    bool done = true; //!< true when the command isn't running
};

class ZVC_EXPORT EnumParameterData : public ParameterData
{
public:
    ~EnumParameterData() override;

    qint64 intValue = 0; //!< the numeric value of the current entry
    QVector<QString> symbolicValues;
    QVector<QString> displayTexts; //!< parallel to symbolicValues
};

} // namespace ParameterCollection

Q_DECLARE_METATYPE(QSharedPointer<const ParameterCollection::ParameterData>)
