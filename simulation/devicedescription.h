#pragma once

#include "parameters/genapienums.h"

#include <QByteArray>
#include <QHash>
#include <QPair>
#include <QString>
#include <QStringList>
#include <QVariant>
#include <QVector>

namespace Simulation {

enum class FeatureKind { Integer, Float, Boolean, Command, String, Enumeration, Category };

//! "Integer", "Float", ... as written in descriptions; empty for an unknown kind.
QString featureKindName(FeatureKind kind);

//! A number, a truth value or a text given as it stands, or an expression evaluated when needed.
struct ValueSource
{
    QString expression; //!< evaluated when not empty
    QVariant constant; //!< used otherwise; invalid when nothing was given

    bool isSet() const { return !expression.isEmpty() || constant.isValid(); }
    static ValueSource fromConstant(const QVariant& value);
    static ValueSource fromExpression(const QString& text);
};

//! How a feature changes by itself when its node map is polled.
struct PollDescription
{
    enum class Mode { None, RandomWalk, Clock, Rate };

    Mode mode = Mode::None;
    double step = 1.0; //!< randomWalk: size of one step
    quint64 seed = 0; //!< randomWalk
    double perMillisecond = 1.0; //!< clock: value = simulated time in ms * perMillisecond
    QString perSecond; //!< rate: expression, increase per second of simulated time
    QString when; //!< expression; while false the feature doesn't change
};

struct EnumEntryDescription
{
    QString value; //!< symbolic value
    QString displayName; //!< null: the symbolic value
    qint64 numeric = 0;
    QString implementedWhen; //!< expression, empty: always
};

//! One feature of a node map, as described. Null texts stand for fields that weren't given.
struct FeatureDescription
{
    QString name;
    FeatureKind kind = FeatureKind::Integer;

    QString displayName;
    QString description;
    QString tooltip;
    QString docuUrl;
    QString unit;

    GenApi::EVisibility visibility = GenApi::Beginner;
    //! _UndefinedAccesMode: the default, RW (RO for categories)
    GenApi::EAccessMode access = GenApi::_UndefinedAccesMode;
    QString readableWhen;
    QString writableWhen;
    QString implementedWhen;
    QStringList transportTypes; //!< empty: every transport layer
    bool zombie = false;

    ValueSource value;
    ValueSource minimum;
    ValueSource maximum;
    ValueSource increment;
    QString representation; //!< empty: not given (reads as "PureNumber")
    int precision = 2;
    bool alias = false;
    int maxLength = 64;

    QVector<EnumEntryDescription> entries;

    QString selector;
    QVector<QPair<QString, QVariant>> selectedValues; //!< entry of the selector -> initial value

    PollDescription poll;

    int duration = 50; //!< Command: milliseconds until done
    QVector<QPair<QString, QString>> onExecute; //!< Command: target feature -> expression

    QStringList children; //!< Category: short names in presentation order
};

struct NodeMapDescription
{
    QString name; //!< "@" and the node map's name
    QVector<FeatureDescription> features;
};

/*!
 * Where the camera's pictures come from: a node map and, for each quantity of
 * the picture, an expression over that node map's features ("Width",
 * "ExposureTime / 5000", ...). Quantities: acquiring, width, height, offsetX,
 * offsetY, pixelFormat, reverseX, reverseY, testPattern, frameRate,
 * brightness, sensorWidth, sensorHeight; each is optional.
 */
struct FrameSourceDescription
{
    QString nodeMap;
    QHash<QString, QString> expressions; //!< quantity -> expression text

    bool isSet() const { return !nodeMap.isEmpty(); }
    //! The quantities a frame source knows.
    static QStringList quantities();
};

struct DeviceDescription
{
    int version = 1;
    QString vendor;
    QString model;
    QString serialNumber;
    QString transportLayerType = QStringLiteral("GEV");
    QVector<NodeMapDescription> nodeMaps;
    FrameSourceDescription frameSource; //!< unset: the camera makes no pictures

    /*!
     * Reads a description from its JSON text. The document's form is checked
     * here (required fields, field types, known kinds and texts); names,
     * children and expressions are checked when a device is built from it.
     * On failure gives false and, if error is given, a text naming the node
     * map, the feature and the field.
     */
    static bool fromJson(const QByteArray& json, DeviceDescription* description, QString* error);
};

/*!
 * The short names of the features of the node map whose "selector" is the
 * feature at index selector, in the node map's order; features described for
 * other transport layers than tlType are left out.
 */
QStringList selectedFeatureNames(const NodeMapDescription& map, int selector, const QString& tlType);

//! "Beginner", "Expert", "Guru", "Invisible"; false for any other text.
bool parseVisibility(const QString& text, GenApi::EVisibility* visibility);
//! "NI", "NA", "WO", "RO", "RW"; false for any other text.
bool parseAccessMode(const QString& text, GenApi::EAccessMode* access);
QString visibilityName(GenApi::EVisibility visibility);
QString accessModeName(GenApi::EAccessMode access);
//! True for the seven integer and float representations.
bool isKnownRepresentation(const QString& text);

} // namespace Simulation
