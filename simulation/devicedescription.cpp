#include "devicedescription.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QJsonParseError>
#include <QJsonValue>

#include <cmath>

namespace Simulation {

QString featureKindName(FeatureKind kind)
{
    switch (kind) {
    case FeatureKind::Integer:
        return QStringLiteral("Integer");
    case FeatureKind::Float:
        return QStringLiteral("Float");
    case FeatureKind::Boolean:
        return QStringLiteral("Boolean");
    case FeatureKind::Command:
        return QStringLiteral("Command");
    case FeatureKind::String:
        return QStringLiteral("String");
    case FeatureKind::Enumeration:
        return QStringLiteral("Enumeration");
    case FeatureKind::Category:
        return QStringLiteral("Category");
    }
    return QString();
}

ValueSource ValueSource::fromConstant(const QVariant& value)
{
    ValueSource source;
    source.constant = value;
    return source;
}

ValueSource ValueSource::fromExpression(const QString& text)
{
    ValueSource source;
    source.expression = text;
    return source;
}

bool parseVisibility(const QString& text, GenApi::EVisibility* visibility)
{
    static const struct
    {
        const char* text;
        GenApi::EVisibility value;
    } table[] = { { "Beginner", GenApi::Beginner }, { "Expert", GenApi::Expert }, { "Guru", GenApi::Guru },
        { "Invisible", GenApi::Invisible } };
    for (const auto& row : table) {
        if (text == QLatin1String(row.text)) {
            *visibility = row.value;
            return true;
        }
    }
    return false;
}

bool parseAccessMode(const QString& text, GenApi::EAccessMode* access)
{
    static const struct
    {
        const char* text;
        GenApi::EAccessMode value;
    } table[] = { { "NI", GenApi::NI }, { "NA", GenApi::NA }, { "WO", GenApi::WO }, { "RO", GenApi::RO },
        { "RW", GenApi::RW } };
    for (const auto& row : table) {
        if (text == QLatin1String(row.text)) {
            *access = row.value;
            return true;
        }
    }
    return false;
}

QString visibilityName(GenApi::EVisibility visibility)
{
    switch (visibility) {
    case GenApi::Beginner:
        return QStringLiteral("Beginner");
    case GenApi::Expert:
        return QStringLiteral("Expert");
    case GenApi::Guru:
        return QStringLiteral("Guru");
    case GenApi::Invisible:
        return QStringLiteral("Invisible");
    default:
        return QString();
    }
}

QString accessModeName(GenApi::EAccessMode access)
{
    switch (access) {
    case GenApi::NI:
        return QStringLiteral("NI");
    case GenApi::NA:
        return QStringLiteral("NA");
    case GenApi::WO:
        return QStringLiteral("WO");
    case GenApi::RO:
        return QStringLiteral("RO");
    case GenApi::RW:
        return QStringLiteral("RW");
    default:
        return QString();
    }
}

bool isKnownRepresentation(const QString& text)
{
    static const char* const known[]
        = { "Linear", "Logarithmic", "Boolean", "PureNumber", "HexNumber", "IPV4Address", "MACAddress" };
    for (const char* k : known)
        if (text == QLatin1String(k))
            return true;
    return false;
}

namespace {

// Collects the place of a problem, so that every error text names the node
// map, the feature and the field it is about.
class Reader
{
public:
    QString error;

    bool failAt(const QString& where, const QString& field, const QString& problem)
    {
        if (error.isEmpty()) {
            QString text = where;
            if (!field.isEmpty())
                text += (text.isEmpty() ? QString() : QStringLiteral(", ")) + QStringLiteral("field \"%1\"").arg(field);
            error = (text.isEmpty() ? QString() : text + QStringLiteral(": ")) + problem;
        }
        return false;
    }

    static QString typeName(const QJsonValue& value)
    {
        switch (value.type()) {
        case QJsonValue::Null:
            return QStringLiteral("null");
        case QJsonValue::Bool:
            return QStringLiteral("a truth value");
        case QJsonValue::Double:
            return QStringLiteral("a number");
        case QJsonValue::String:
            return QStringLiteral("a text");
        case QJsonValue::Array:
            return QStringLiteral("a list");
        case QJsonValue::Object:
            return QStringLiteral("an object");
        case QJsonValue::Undefined:
            break;
        }
        return QStringLiteral("nothing");
    }

    bool wrongType(const QString& where, const QString& field, const QJsonValue& value, const char* expected)
    {
        return failAt(
            where, field, QStringLiteral("expected %1, found %2").arg(QLatin1String(expected), typeName(value)));
    }

    // Reads an optional text field; a present field must be a text.
    bool optionalText(const QJsonObject& object, const char* key, const QString& where, QString* out)
    {
        const QJsonValue value = object.value(QLatin1String(key));
        if (value.isUndefined())
            return true;
        if (!value.isString())
            return wrongType(where, QLatin1String(key), value, "a text");
        *out = value.toString();
        if (out->isNull())
            *out = QStringLiteral("");
        return true;
    }

    bool optionalInt(const QJsonObject& object, const char* key, const QString& where, int minimum, int* out)
    {
        const QJsonValue value = object.value(QLatin1String(key));
        if (value.isUndefined())
            return true;
        if (!value.isDouble())
            return wrongType(where, QLatin1String(key), value, "a number");
        const double number = value.toDouble();
        if (number != std::floor(number) || number < minimum || number > 2147483647.0)
            return failAt(where, QLatin1String(key),
                QStringLiteral("expected a whole number of at least %1, found %2").arg(minimum).arg(number));
        *out = int(number);
        return true;
    }

    bool optionalBool(const QJsonObject& object, const char* key, const QString& where, bool* out)
    {
        const QJsonValue value = object.value(QLatin1String(key));
        if (value.isUndefined())
            return true;
        if (!value.isBool())
            return wrongType(where, QLatin1String(key), value, "true or false");
        *out = value.toBool();
        return true;
    }

    // A number or an expression.
    bool numberOrExpression(const QJsonValue& value, const QString& where, const QString& field, ValueSource* out)
    {
        if (value.isUndefined())
            return true;
        if (value.isDouble()) {
            const double number = value.toDouble();
            if (number == std::floor(number) && std::fabs(number) < 9.0e15)
                *out = ValueSource::fromConstant(QVariant(qint64(number)));
            else
                *out = ValueSource::fromConstant(QVariant(number));
            return true;
        }
        if (value.isString()) {
            if (value.toString().trimmed().isEmpty())
                return failAt(where, field, QStringLiteral("empty expression"));
            *out = ValueSource::fromExpression(value.toString());
            return true;
        }
        return wrongType(where, field, value, "a number or an expression");
    }

    bool readValue(
        const QJsonValue& value, FeatureKind kind, const QString& where, const QString& field, ValueSource* out)
    {
        if (value.isUndefined())
            return true;
        switch (kind) {
        case FeatureKind::Integer:
        case FeatureKind::Float:
            return numberOrExpression(value, where, field, out);
        case FeatureKind::Boolean:
            if (value.isBool()) {
                *out = ValueSource::fromConstant(QVariant(value.toBool()));
                return true;
            }
            if (value.isDouble() && (value.toDouble() == 0.0 || value.toDouble() == 1.0)) {
                *out = ValueSource::fromConstant(QVariant(value.toDouble() != 0.0));
                return true;
            }
            if (value.isString() && !value.toString().trimmed().isEmpty()) {
                *out = ValueSource::fromExpression(value.toString());
                return true;
            }
            return wrongType(where, field, value, "true, false or an expression");
        case FeatureKind::String:
        case FeatureKind::Enumeration:
            if (value.isString()) {
                *out = ValueSource::fromConstant(QVariant(value.toString()));
                return true;
            }
            return wrongType(where, field, value, "a text");
        case FeatureKind::Command:
        case FeatureKind::Category:
            return failAt(where, field, QStringLiteral("a %1 has no value").arg(featureKindName(kind)));
        }
        return true;
    }

    bool readPoll(const QJsonValue& value, const QString& where, PollDescription* poll)
    {
        const QString field = QStringLiteral("poll");
        if (!value.isObject())
            return wrongType(where, field, value, "an object");
        const QJsonObject object = value.toObject();
        const QJsonValue mode = object.value(QLatin1String("mode"));
        if (!mode.isString())
            return failAt(where, QStringLiteral("poll.mode"),
                mode.isUndefined() ? QStringLiteral("missing")
                                   : QStringLiteral("expected a text, found %1").arg(typeName(mode)));
        const QString modeText = mode.toString();
        if (modeText == QLatin1String("randomWalk")) {
            poll->mode = PollDescription::Mode::RandomWalk;
            const QJsonValue step = object.value(QLatin1String("step"));
            if (!step.isUndefined()) {
                if (!step.isDouble())
                    return wrongType(where, QStringLiteral("poll.step"), step, "a number");
                poll->step = step.toDouble();
            }
            const QJsonValue seed = object.value(QLatin1String("seed"));
            if (!seed.isUndefined()) {
                if (!seed.isDouble() || seed.toDouble() < 0)
                    return wrongType(where, QStringLiteral("poll.seed"), seed, "a number of at least 0");
                poll->seed = quint64(seed.toDouble());
            }
        } else if (modeText == QLatin1String("clock")) {
            poll->mode = PollDescription::Mode::Clock;
            const QJsonValue per = object.value(QLatin1String("perMillisecond"));
            if (!per.isUndefined()) {
                if (!per.isDouble())
                    return wrongType(where, QStringLiteral("poll.perMillisecond"), per, "a number");
                poll->perMillisecond = per.toDouble();
            }
        } else if (modeText == QLatin1String("rate")) {
            poll->mode = PollDescription::Mode::Rate;
            const QJsonValue per = object.value(QLatin1String("perSecond"));
            if (per.isDouble())
                poll->perSecond = QString::number(per.toDouble(), 'g', 17);
            else if (per.isString() && !per.toString().trimmed().isEmpty())
                poll->perSecond = per.toString();
            else if (per.isUndefined())
                return failAt(where, QStringLiteral("poll.perSecond"), QStringLiteral("missing"));
            else
                return wrongType(where, QStringLiteral("poll.perSecond"), per, "a number or an expression");
        } else {
            return failAt(where, QStringLiteral("poll.mode"),
                QStringLiteral("unknown mode \"%1\" (randomWalk, clock or rate)").arg(modeText));
        }
        const QJsonValue when = object.value(QLatin1String("when"));
        if (!when.isUndefined()) {
            if (!when.isString() || when.toString().trimmed().isEmpty())
                return wrongType(where, QStringLiteral("poll.when"), when, "an expression");
            poll->when = when.toString();
        }
        return true;
    }

    bool readFeature(const QJsonValue& json, const QString& nodeMapWhere, int index, FeatureDescription* feature)
    {
        const QString anonymous = QStringLiteral("%1, feature #%2").arg(nodeMapWhere).arg(index + 1);
        if (!json.isObject())
            return wrongType(anonymous, QString(), json, "an object");
        const QJsonObject object = json.toObject();

        const QJsonValue name = object.value(QLatin1String("name"));
        if (name.isUndefined())
            return failAt(anonymous, QStringLiteral("name"), QStringLiteral("missing"));
        if (!name.isString())
            return wrongType(anonymous, QStringLiteral("name"), name, "a text");
        feature->name = name.toString();
        if (feature->name.isEmpty() || feature->name.contains(QLatin1Char('/')))
            return failAt(
                anonymous, QStringLiteral("name"), QStringLiteral("\"%1\" is not a feature name").arg(feature->name));
        const QString where = QStringLiteral("%1, feature \"%2\"").arg(nodeMapWhere, feature->name);

        const QJsonValue type = object.value(QLatin1String("type"));
        if (type.isUndefined())
            return failAt(where, QStringLiteral("type"), QStringLiteral("missing"));
        if (!type.isString())
            return wrongType(where, QStringLiteral("type"), type, "a text");
        static const FeatureKind kinds[] = { FeatureKind::Integer, FeatureKind::Float, FeatureKind::Boolean,
            FeatureKind::Command, FeatureKind::String, FeatureKind::Enumeration, FeatureKind::Category };
        bool known = false;
        for (FeatureKind kind : kinds) {
            if (type.toString() == featureKindName(kind)) {
                feature->kind = kind;
                known = true;
            }
        }
        if (!known)
            return failAt(where, QStringLiteral("type"), QStringLiteral("unknown kind \"%1\"").arg(type.toString()));
        const FeatureKind kind = feature->kind;
        const bool numeric = kind == FeatureKind::Integer || kind == FeatureKind::Float;

        if (!optionalText(object, "displayName", where, &feature->displayName)
            || !optionalText(object, "description", where, &feature->description)
            || !optionalText(object, "tooltip", where, &feature->tooltip)
            || !optionalText(object, "docuUrl", where, &feature->docuUrl)
            || !optionalText(object, "unit", where, &feature->unit))
            return false;

        QString text;
        if (!optionalText(object, "visibility", where, &text))
            return false;
        if (!text.isNull() && !parseVisibility(text, &feature->visibility))
            return failAt(where, QStringLiteral("visibility"),
                QStringLiteral("unknown visibility \"%1\" (Beginner, Expert, Guru or Invisible)").arg(text));
        text = QString();
        if (!optionalText(object, "access", where, &text))
            return false;
        if (!text.isNull() && !parseAccessMode(text, &feature->access))
            return failAt(where, QStringLiteral("access"),
                QStringLiteral("unknown access \"%1\" (RW, RO, WO, NA or NI)").arg(text));

        if (!optionalText(object, "readableWhen", where, &feature->readableWhen)
            || !optionalText(object, "writableWhen", where, &feature->writableWhen)
            || !optionalText(object, "implementedWhen", where, &feature->implementedWhen))
            return false;

        const QJsonValue transports = object.value(QLatin1String("transportTypes"));
        if (!transports.isUndefined()) {
            if (!transports.isArray())
                return wrongType(where, QStringLiteral("transportTypes"), transports, "a list of texts");
            for (const QJsonValue& t : transports.toArray()) {
                if (!t.isString())
                    return wrongType(where, QStringLiteral("transportTypes"), t, "a text");
                feature->transportTypes.append(t.toString());
            }
        }
        if (!optionalBool(object, "zombie", where, &feature->zombie))
            return false;

        auto onlyFor = [&](const char* key, bool allowed, const char* kindsText) {
            if (!allowed && object.contains(QLatin1String(key)))
                return failAt(where, QLatin1String(key),
                    QStringLiteral("not allowed for a %1 (only %2)")
                        .arg(featureKindName(kind), QLatin1String(kindsText)));
            return true;
        };
        if (!onlyFor("value", kind != FeatureKind::Command && kind != FeatureKind::Category,
                "Integer, Float, Boolean, String, Enumeration")
            || !onlyFor("min", numeric, "Integer, Float") || !onlyFor("max", numeric, "Integer, Float")
            || !onlyFor("inc", numeric, "Integer, Float") || !onlyFor("representation", numeric, "Integer, Float")
            || !onlyFor("precision", kind == FeatureKind::Float, "Float")
            || !onlyFor("alias", kind == FeatureKind::Float, "Float")
            || !onlyFor("maxLength", kind == FeatureKind::String, "String")
            || !onlyFor("entries", kind == FeatureKind::Enumeration, "Enumeration")
            || !onlyFor("selector", numeric || kind == FeatureKind::Boolean || kind == FeatureKind::Enumeration,
                "Integer, Float, Boolean, Enumeration")
            || !onlyFor("selectedValues", numeric || kind == FeatureKind::Boolean || kind == FeatureKind::Enumeration,
                "Integer, Float, Boolean, Enumeration")
            || !onlyFor("poll", kind != FeatureKind::Command && kind != FeatureKind::Category,
                "Integer, Float, Boolean, String, Enumeration")
            || !onlyFor("duration", kind == FeatureKind::Command, "Command")
            || !onlyFor("onExecute", kind == FeatureKind::Command, "Command")
            || !onlyFor("children", kind == FeatureKind::Category, "Category"))
            return false;

        if (!readValue(object.value(QLatin1String("value")), kind, where, QStringLiteral("value"), &feature->value))
            return false;
        if (numeric) {
            if (!numberOrExpression(object.value(QLatin1String("min")), where, QStringLiteral("min"), &feature->minimum)
                || !numberOrExpression(
                    object.value(QLatin1String("max")), where, QStringLiteral("max"), &feature->maximum)
                || !numberOrExpression(
                    object.value(QLatin1String("inc")), where, QStringLiteral("inc"), &feature->increment))
                return false;
            if (!optionalText(object, "representation", where, &feature->representation))
                return false;
            if (!feature->representation.isNull() && !isKnownRepresentation(feature->representation))
                return failAt(where, QStringLiteral("representation"),
                    QStringLiteral("unknown representation \"%1\"").arg(feature->representation));
        }
        if (!optionalInt(object, "precision", where, 0, &feature->precision)
            || !optionalBool(object, "alias", where, &feature->alias)
            || !optionalInt(object, "maxLength", where, 0, &feature->maxLength)
            || !optionalInt(object, "duration", where, 0, &feature->duration))
            return false;

        if (kind == FeatureKind::Enumeration) {
            const QJsonValue entries = object.value(QLatin1String("entries"));
            if (entries.isUndefined())
                return failAt(where, QStringLiteral("entries"), QStringLiteral("missing"));
            if (!entries.isArray())
                return wrongType(where, QStringLiteral("entries"), entries, "a list");
            int i = 0;
            for (const QJsonValue& e : entries.toArray()) {
                const QString field = QStringLiteral("entries[%1]").arg(i);
                if (!e.isObject())
                    return wrongType(where, field, e, "an object");
                const QJsonObject entryObject = e.toObject();
                EnumEntryDescription entry;
                entry.numeric = i;
                const QJsonValue v = entryObject.value(QLatin1String("value"));
                if (!v.isString() || v.toString().isEmpty())
                    return failAt(where, field + QStringLiteral(".value"),
                        v.isUndefined() ? QStringLiteral("missing")
                                        : QStringLiteral("expected a symbolic value, found %1").arg(typeName(v)));
                entry.value = v.toString();
                for (const EnumEntryDescription& other : qAsConst(feature->entries))
                    if (other.value == entry.value)
                        return failAt(where, field + QStringLiteral(".value"),
                            QStringLiteral("duplicate entry \"%1\"").arg(entry.value));
                if (!optionalText(entryObject, "displayName", where, &entry.displayName)
                    || !optionalText(entryObject, "implementedWhen", where, &entry.implementedWhen))
                    return false;
                const QJsonValue numericValue = entryObject.value(QLatin1String("numeric"));
                if (!numericValue.isUndefined()) {
                    if (!numericValue.isDouble() || numericValue.toDouble() != std::floor(numericValue.toDouble()))
                        return wrongType(where, field + QStringLiteral(".numeric"), numericValue, "a whole number");
                    entry.numeric = qint64(numericValue.toDouble());
                }
                feature->entries.append(entry);
                ++i;
            }
            if (feature->entries.isEmpty())
                return failAt(where, QStringLiteral("entries"), QStringLiteral("an enumeration needs an entry"));
            if (feature->value.isSet()) {
                bool found = false;
                for (const EnumEntryDescription& entry : qAsConst(feature->entries))
                    found = found || entry.value == feature->value.constant.toString();
                if (!found)
                    return failAt(where, QStringLiteral("value"),
                        QStringLiteral("\"%1\" is not an entry").arg(feature->value.constant.toString()));
            }
        }

        if (!optionalText(object, "selector", where, &feature->selector))
            return false;
        const QJsonValue selected = object.value(QLatin1String("selectedValues"));
        if (!selected.isUndefined()) {
            if (!selected.isObject())
                return wrongType(where, QStringLiteral("selectedValues"), selected, "an object");
            if (feature->selector.isEmpty())
                return failAt(where, QStringLiteral("selectedValues"), QStringLiteral("given without a selector"));
            const QJsonObject map = selected.toObject();
            for (auto it = map.begin(); it != map.end(); ++it) {
                const QString field = QStringLiteral("selectedValues.%1").arg(it.key());
                ValueSource source;
                if (!readValue(it.value(), kind, where, field, &source))
                    return false;
                if (!source.expression.isEmpty())
                    return failAt(where, field, QStringLiteral("expected a value, not an expression"));
                feature->selectedValues.append(qMakePair(it.key(), source.constant));
            }
        }

        const QJsonValue poll = object.value(QLatin1String("poll"));
        if (!poll.isUndefined() && !readPoll(poll, where, &feature->poll))
            return false;

        const QJsonValue onExecute = object.value(QLatin1String("onExecute"));
        if (!onExecute.isUndefined()) {
            if (!onExecute.isObject())
                return wrongType(where, QStringLiteral("onExecute"), onExecute, "an object");
            const QJsonObject map = onExecute.toObject();
            for (auto it = map.begin(); it != map.end(); ++it) {
                const QString field = QStringLiteral("onExecute.%1").arg(it.key());
                QString expression;
                if (it.value().isDouble())
                    expression = QString::number(it.value().toDouble(), 'g', 17);
                else if (it.value().isBool())
                    expression = it.value().toBool() ? QStringLiteral("1") : QStringLiteral("0");
                else if (it.value().isString() && !it.value().toString().trimmed().isEmpty())
                    expression = it.value().toString();
                else
                    return wrongType(where, field, it.value(), "a number or an expression");
                feature->onExecute.append(qMakePair(it.key(), expression));
            }
        }

        const QJsonValue children = object.value(QLatin1String("children"));
        if (!children.isUndefined()) {
            if (!children.isArray())
                return wrongType(where, QStringLiteral("children"), children, "a list of names");
            for (const QJsonValue& child : children.toArray()) {
                if (!child.isString())
                    return wrongType(where, QStringLiteral("children"), child, "a name");
                feature->children.append(child.toString());
            }
        }
        return true;
    }

    bool readNodeMap(const QJsonValue& json, int index, NodeMapDescription* nodeMap)
    {
        const QString anonymous = QStringLiteral("node map #%1").arg(index + 1);
        if (!json.isObject())
            return wrongType(anonymous, QString(), json, "an object");
        const QJsonObject object = json.toObject();
        const QJsonValue name = object.value(QLatin1String("name"));
        if (name.isUndefined())
            return failAt(anonymous, QStringLiteral("name"), QStringLiteral("missing"));
        if (!name.isString() || name.toString().isEmpty())
            return wrongType(anonymous, QStringLiteral("name"), name, "a node map name");
        nodeMap->name = name.toString();
        if (nodeMap->name.contains(QLatin1Char('/')))
            return failAt(
                anonymous, QStringLiteral("name"), QStringLiteral("\"%1\" contains \"/\"").arg(nodeMap->name));
        const QString where = QStringLiteral("node map \"%1\"").arg(nodeMap->name);
        const QJsonValue features = object.value(QLatin1String("features"));
        if (features.isUndefined())
            return failAt(where, QStringLiteral("features"), QStringLiteral("missing"));
        if (!features.isArray())
            return wrongType(where, QStringLiteral("features"), features, "a list");
        const QJsonArray array = features.toArray();
        nodeMap->features.reserve(array.size());
        for (int i = 0; i < array.size(); ++i) {
            FeatureDescription feature;
            if (!readFeature(array.at(i), where, i, &feature))
                return false;
            nodeMap->features.append(std::move(feature));
        }
        return true;
    }
};

} // namespace

QStringList FrameSourceDescription::quantities()
{
    return { QStringLiteral("acquiring"), QStringLiteral("width"), QStringLiteral("height"), QStringLiteral("offsetX"),
        QStringLiteral("offsetY"), QStringLiteral("pixelFormat"), QStringLiteral("reverseX"),
        QStringLiteral("reverseY"), QStringLiteral("testPattern"), QStringLiteral("frameRate"),
        QStringLiteral("brightness"), QStringLiteral("sensorWidth"), QStringLiteral("sensorHeight") };
}

bool DeviceDescription::fromJson(const QByteArray& json, DeviceDescription* description, QString* error)
{
    Reader reader;
    DeviceDescription result;
    auto finish = [&](bool ok) {
        if (!ok && error)
            *error = reader.error;
        if (ok && description)
            *description = std::move(result);
        return ok;
    };

    QJsonParseError parseError;
    const QJsonDocument document = QJsonDocument::fromJson(json, &parseError);
    if (parseError.error != QJsonParseError::NoError)
        return finish(reader.failAt(QString(), QString(),
            QStringLiteral("not a JSON document: %1 at offset %2")
                .arg(parseError.errorString())
                .arg(parseError.offset)));
    if (!document.isObject())
        return finish(reader.failAt(QString(), QString(), QStringLiteral("the document is not a JSON object")));
    const QJsonObject top = document.object();

    const QJsonValue format = top.value(QLatin1String("format"));
    if (format.isUndefined())
        return finish(reader.failAt(QString(), QStringLiteral("format"), QStringLiteral("missing")));
    if (format.toString() != QLatin1String("zarvex-simulated-device"))
        return finish(reader.failAt(QString(), QStringLiteral("format"),
            QStringLiteral("expected \"zarvex-simulated-device\", found %1")
                .arg(format.isString() ? QStringLiteral("\"%1\"").arg(format.toString()) : Reader::typeName(format))));
    const QJsonValue version = top.value(QLatin1String("version"));
    if (version.isUndefined())
        return finish(reader.failAt(QString(), QStringLiteral("version"), QStringLiteral("missing")));
    if (!version.isDouble() || version.toDouble() != 1.0)
        return finish(reader.failAt(QString(), QStringLiteral("version"),
            QStringLiteral("unsupported version %1 (1 is understood)")
                .arg(version.isDouble() ? QString::number(version.toDouble()) : Reader::typeName(version))));
    result.version = 1;

    if (!reader.optionalText(top, "vendor", QString(), &result.vendor)
        || !reader.optionalText(top, "model", QString(), &result.model)
        || !reader.optionalText(top, "serialNumber", QString(), &result.serialNumber))
        return finish(false);
    QString transport;
    if (!reader.optionalText(top, "transportLayerType", QString(), &transport))
        return finish(false);
    if (!transport.isEmpty())
        result.transportLayerType = transport;

    const QJsonValue nodeMaps = top.value(QLatin1String("nodeMaps"));
    if (nodeMaps.isUndefined())
        return finish(reader.failAt(QString(), QStringLiteral("nodeMaps"), QStringLiteral("missing")));
    if (!nodeMaps.isArray())
        return finish(reader.wrongType(QString(), QStringLiteral("nodeMaps"), nodeMaps, "a list"));
    const QJsonArray maps = nodeMaps.toArray();
    for (int i = 0; i < maps.size(); ++i) {
        NodeMapDescription nodeMap;
        if (!reader.readNodeMap(maps.at(i), i, &nodeMap))
            return finish(false);
        result.nodeMaps.append(std::move(nodeMap));
    }

    const QJsonValue frameSource = top.value(QLatin1String("frameSource"));
    if (!frameSource.isUndefined()) {
        if (!frameSource.isObject())
            return finish(reader.wrongType(QString(), QStringLiteral("frameSource"), frameSource, "an object"));
        const QJsonObject object = frameSource.toObject();
        const QStringList quantities = FrameSourceDescription::quantities();
        for (auto it = object.begin(); it != object.end(); ++it) {
            const QString field = QStringLiteral("frameSource.") + it.key();
            if (it.key() != QLatin1String("nodeMap") && !quantities.contains(it.key()))
                return finish(reader.failAt(QString(), field, QStringLiteral("unknown quantity")));
            QString text;
            if (it.value().isString())
                text = it.value().toString();
            else if (it.value().isDouble())
                text = QString::number(it.value().toDouble(), 'g', 17);
            else if (it.value().isBool())
                text = it.value().toBool() ? QStringLiteral("1") : QStringLiteral("0");
            else
                return finish(reader.wrongType(QString(), field, it.value(), "a text or a number"));
            if (it.key() == QLatin1String("nodeMap"))
                result.frameSource.nodeMap = text;
            else
                result.frameSource.expressions.insert(it.key(), text);
        }
        if (result.frameSource.nodeMap.isEmpty())
            return finish(reader.failAt(QString(), QStringLiteral("frameSource.nodeMap"), QStringLiteral("missing")));
    }
    return finish(true);
}

QStringList selectedFeatureNames(const NodeMapDescription& map, int selector, const QString& tlType)
{
    QStringList names;
    if (selector < 0 || selector >= map.features.size())
        return names;
    const FeatureDescription& s = map.features.at(selector);
    if (s.kind != FeatureKind::Enumeration && s.kind != FeatureKind::Integer)
        return names;
    for (const FeatureDescription& feature : map.features) {
        if (feature.selector.isEmpty() || feature.selector != s.name)
            continue;
        if (!feature.transportTypes.isEmpty() && !feature.transportTypes.contains(tlType))
            continue;
        names.append(feature.name);
    }
    return names;
}

} // namespace Simulation
