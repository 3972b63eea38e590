/*!
 * \file parameters/parameterdata.h
 * ParameterData, the immutable snapshot of one parameter, with its derived
 * records per kind and the kind numbers (ParameterType).
 */
#pragma once

#include "genapienums.h"
#include "zarvexviewercomponents_export.h"

#include <QMetaType>
#include <QSharedPointer>
#include <QString>
#include <QVector>

/*!
 * The parameter contract: what the library asks of a camera's parameters and
 * node maps. A host implements IParameterCollection and IParameter with its
 * kinds over its camera layer; the library only ever calls them and never
 * creates or deletes a parameter.
 */
namespace ParameterCollection {

//! Kinds of parameter, as returned by IParameter::getType() and stored in ParameterData::type.
enum ParameterType : int {
    TypeUnknown = 0, //!< only in the placeholder snapshot
    TypeInteger = 1, //!< an integer; the object is also an IIntegerParameter, its snapshot an IntegerParameterData
    TypeBoolean = 2, //!< a boolean; the object is also an IBooleanParameter, its snapshot a BooleanParameterData
    TypeFloat = 3, //!< a float; the object is also an IFloatParameter, its snapshot a FloatParameterData
    TypeCommand = 4, //!< a command; the object is also an ICommandParameter, its snapshot a CommandParameterData
    TypeString = 5, //!< a string; no interface or snapshot record beyond the base
    TypeEnumeration = 6, //!< an enumeration; the object is also an IEnumParameter, its snapshot an EnumParameterData
    TypeCategory = 7 //!< a category, whose children getChildNames() lists
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
    //! Copies every field.
    ParameterData(const ParameterData&) = default;
    //! Copies every field.
    ParameterData& operator=(const ParameterData&) = default;
    virtual ~ParameterData();

    qint32 type = TypeUnknown; //!< the kind, one of ParameterType
    qint32 visibility = GenApi::_UndefinedVisibility; //!< a GenApi::EVisibility
    bool readable = false; //!< the value may be read
    bool writable = false; //!< the value may be written
    bool implemented = false; //!< the feature exists on this device
    bool isPlaceholder = false; //!< true only in the placeholder snapshot
    QString valueText; //!< meaningful when readable

    //! The snapshot an item uses where a parameter can't be read: kind 0,
    //! visibility 99, nothing readable, writable or implemented, null text.
    static QSharedPointer<const ParameterData> createPlaceholder();

    //! Access mode of a snapshot; a null snapshot is not implemented.
    static GenApi::EAccessMode accessModeOf(const QSharedPointer<const ParameterData>& data);
    /*!
     * Access mode of this snapshot: NI when not implemented; when not
     * readable WO if writable, else NA; when readable RW if writable, else RO.
     */
    GenApi::EAccessMode accessMode() const;
};

//! The snapshot of an integer (kind 1).
class ZVC_EXPORT IntegerParameterData : public ParameterData
{
public:
    ~IntegerParameterData() override;

    qint64 value = 0; //!< the value
    qint64 minimum = 0; //!< the smallest value allowed
    qint64 maximum = 0; //!< the largest value allowed
    qint64 increment = 1; //!< the step between allowed values
    //! "Linear", "Logarithmic", "Boolean", "PureNumber", "HexNumber", "IPV4Address" or "MACAddress"
    QString representation;
};

//! The snapshot of a float (kind 3).
class ZVC_EXPORT FloatParameterData : public ParameterData
{
public:
    ~FloatParameterData() override;

    double value = 0.0; //!< the value
    double minimum = 0.0; //!< the smallest value allowed
    double maximum = 0.0; //!< the largest value allowed
    bool hasIncrement = false; //!< the feature has an increment; otherwise increment means nothing
    double increment = 0.0; //!< the step between allowed values, where hasIncrement
    qint64 precision = 0; //!< decimals for display
};

//! The snapshot of a boolean (kind 2).
class ZVC_EXPORT BooleanParameterData : public ParameterData
{
public:
    ~BooleanParameterData() override;

    bool value = false; //!< the value
};

//! The snapshot of a command (kind 4).
class ZVC_EXPORT CommandParameterData : public ParameterData
{
public:
    ~CommandParameterData() override;

    bool done = true; //!< true when the command isn't running
};

//! The snapshot of an enumeration (kind 6).
class ZVC_EXPORT EnumParameterData : public ParameterData
{
public:
    ~EnumParameterData() override;

    qint64 intValue = 0; //!< the numeric value of the current entry
    QVector<QString> symbolicValues; //!< the entries' symbolic values, in list order; valueText holds the current one's
    QVector<QString> displayTexts; //!< parallel to symbolicValues
};

} // namespace ParameterCollection

Q_DECLARE_METATYPE(QSharedPointer<const ParameterCollection::ParameterData>)
