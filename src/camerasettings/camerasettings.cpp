#include "camerasettings.h"

#include "messages/exceptionlogging.h"
#include "parameters/iadvancedparameteraccess.h"
#include "parameters/iparameter.h"
#include "parameters/parameterdata.h"

#include <QCoreApplication>
#include <QFile>
#include <QHash>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QJsonParseError>
#include <QLocale>
#include <QSaveFile>
#include <QSet>

#include <algorithm>
#include <cmath>
#include <exception>
#include <limits>

using ParameterCollection::IParameter;
using ParameterCollection::IParameterCollection;
using ParameterCollection::ParameterData;

const char* const CameraSettings::FormatName = "zarvex-camera-settings";

namespace {

using Parameter = QSharedPointer<IParameter>;
using Snapshot = QSharedPointer<const ParameterData>;

// More passes than any chain of unlocking flags needs; it bounds a camera
// whose features keep changing each other.
const int maximumPasses = 16;
const int maximumNameLength = 256;
const int maximumIdentityLength = 1024;
const int maximumEntryLength = 256;

//! The message of whatever the current exception is.
QString currentExceptionText()
{
    try {
        throw;
    } catch (const std::exception& e) {
        return QString::fromUtf8(e.what()).trimmed();
    } catch (...) {
        return QCoreApplication::translate("CameraSettings", "unspecified exception");
    }
}

bool isValueKind(int type)
{
    return type == ParameterCollection::TypeInteger || type == ParameterCollection::TypeBoolean
        || type == ParameterCollection::TypeFloat || type == ParameterCollection::TypeString
        || type == ParameterCollection::TypeEnumeration;
}

/*!
 * The text a value is saved as: the camera's own, except for a float whose
 * text, rounded for display, doesn't read back as its value; that one is
 * saved as the shortest text that does.
 */
QString savedText(const Snapshot& data)
{
    if (const auto* f = dynamic_cast<const ParameterCollection::FloatParameterData*>(data.data())) {
        bool ok = false;
        const double shown = QLocale::c().toDouble(data->valueText.trimmed(), &ok);
        if ((!ok || shown != f->value) && std::isfinite(f->value))
            return QString::number(f->value, 'g', QLocale::FloatingPointShortest);
    }
    return data->valueText;
}

//! An enumeration whose current value is none of its entries can't be written back.
bool isWritableBack(const Snapshot& data)
{
    if (const auto* e = dynamic_cast<const ParameterCollection::EnumParameterData*>(data.data()))
        return e->symbolicValues.contains(data->valueText);
    return true;
}

//! A present, live parameter or null.
Parameter lookup(const QSharedPointer<IParameterCollection>& collection, const QString& fullName)
{
    if (!collection)
        return {};
    try {
        Parameter parameter = collection->getParameter(fullName);
        if (!parameter || parameter->isZombie())
            return {};
        return parameter;
    } catch (...) {
        return {};
    }
}

Snapshot snapshotOf(const Parameter& parameter)
{
    if (!parameter)
        return {};
    try {
        return parameter->getParameterData();
    } catch (...) {
        return {};
    }
}

//! True when the device behind the parameter no longer answers.
bool isGone(const Parameter& parameter)
{
    try {
        return !parameter || parameter->isZombie();
    } catch (...) {
        return true;
    }
}

bool isFeatureName(const QString& name)
{
    if (name.isEmpty() || name.size() > maximumNameLength)
        return false;
    for (const QChar c : name) {
        const ushort u = c.unicode();
        const bool ok = (u >= 'a' && u <= 'z') || (u >= 'A' && u <= 'Z') || (u >= '0' && u <= '9') || u == '_'
            || u == '-' || u == '.' || u == ':';
        if (!ok)
            return false;
    }
    return true;
}

bool isNodeMapName(const QString& name)
{
    return name.size() > 1 && name.at(0) == QLatin1Char('@') && isFeatureName(name.mid(1));
}

bool hasNul(const QString& text)
{
    return text.contains(QChar(0));
}

//! Numbers compare by value, so that "5" and "5.0" or "0x10" and "16" are the same.
bool sameValue(const Snapshot& data, const QString& text)
{
    if (!data)
        return false;
    if (data->valueText == text)
        return true;
    const QString camera = data->valueText.trimmed();
    const QString file = text.trimmed();
    if (camera.compare(file, Qt::CaseInsensitive) == 0)
        return data->type == ParameterCollection::TypeBoolean;
    if (data->type == ParameterCollection::TypeInteger) {
        bool a = false, b = false;
        const auto* i = dynamic_cast<const ParameterCollection::IntegerParameterData*>(data.data());
        const qlonglong x = i ? (a = true, i->value) : camera.toLongLong(&a, 0);
        const qlonglong y = file.toLongLong(&b, 0);
        return a && b && x == y;
    }
    if (data->type == ParameterCollection::TypeFloat) {
        bool a = false, b = false;
        const auto* f = dynamic_cast<const ParameterCollection::FloatParameterData*>(data.data());
        // The snapshot's number, not its text, which may be rounded for display.
        const double x = f ? (a = true, f->value) : QLocale::c().toDouble(camera, &a);
        const double y = QLocale::c().toDouble(file, &b);
        if (!a || !b)
            return false;
        if (x == y)
            return true;
        return std::fabs(x - y) <= 1e-12 * std::max(std::fabs(x), std::fabs(y));
    }
    if (data->type == ParameterCollection::TypeBoolean) {
        auto truth = [](const QString& t, bool* ok) {
            *ok = true;
            if (t == QLatin1String("1") || t.compare(QLatin1String("true"), Qt::CaseInsensitive) == 0)
                return true;
            if (t == QLatin1String("0") || t.compare(QLatin1String("false"), Qt::CaseInsensitive) == 0)
                return false;
            *ok = false;
            return false;
        };
        bool a = false, b = false;
        const bool x = truth(camera, &a);
        const bool y = truth(file, &b);
        return a && b && x == y;
    }
    return false;
}

QStringList selectedFeaturesOf(const Parameter& parameter, const Snapshot& data)
{
    if (!parameter || !data
        || (data->type != ParameterCollection::TypeEnumeration && data->type != ParameterCollection::TypeInteger))
        return {};
    try {
        const auto access = parameter->advancedAccess();
        if (!access)
            return {};
        const QString text = access->getProperty(QStringLiteral("SelectedFeatures"));
        QStringList names;
        for (const QString& name : text.split(QLatin1Char(','))) {
            const QString trimmed = name.trimmed();
            if (!trimmed.isEmpty() && !names.contains(trimmed))
                names.append(trimmed);
        }
        return names;
    } catch (...) {
        return {};
    }
}

//! The entries a selector can be set to: an enumeration's symbolic values, an integer's range.
QStringList selectorEntries(const Snapshot& data)
{
    QStringList entries;
    if (const auto* e = dynamic_cast<const ParameterCollection::EnumParameterData*>(data.data())) {
        for (const QString& value : e->symbolicValues)
            entries.append(value);
    } else if (const auto* i = dynamic_cast<const ParameterCollection::IntegerParameterData*>(data.data())) {
        const qint64 step = std::max<qint64>(1, i->increment);
        for (qint64 v = i->minimum; v <= i->maximum && entries.size() < CameraSettings::MaximumSelectorEntries;
             v += step) {
            entries.append(QString::number(v));
            if (v > i->maximum - step)
                break;
        }
    }
    return entries;
}

bool writeText(const Parameter& parameter, const QString& text, QString* message)
{
    try {
        parameter->setValueFromString(text);
        return true;
    } catch (...) {
        *message = currentExceptionText();
        return false;
    }
}

} // namespace

struct CameraSettings::Private
{
    QList<QPair<QString, QSharedPointer<IParameterCollection>>> maps;
    QString vendor, model, serialNumber, transportLayerType;
    bool identityRead = false;

    QSharedPointer<IParameterCollection> collection(const QString& name) const
    {
        for (const auto& map : maps)
            if (map.first == name)
                return map.second;
        return {};
    }

    QString readText(const QString& shortName) const
    {
        for (const auto& map : maps) {
            const Snapshot data = snapshotOf(lookup(map.second, map.first + QLatin1Char('/') + shortName));
            if (data && data->implemented && data->readable && !data->valueText.isEmpty())
                return data->valueText;
        }
        return QString();
    }

    void readIdentity()
    {
        if (identityRead)
            return;
        identityRead = true;
        if (vendor.isEmpty())
            vendor = readText(QStringLiteral("DeviceVendorName"));
        if (model.isEmpty())
            model = readText(QStringLiteral("DeviceModelName"));
        if (serialNumber.isEmpty())
            serialNumber = readText(QStringLiteral("DeviceSerialNumber"));
    }

    //! The short names of a node map's features in presentation order, categories included.
    static QStringList walk(const QString& mapName, const QSharedPointer<IParameterCollection>& collection)
    {
        QStringList order;
        QSet<QString> visited;
        const QString prefix = mapName + QLatin1Char('/');
        QStringList pending { prefix + QStringLiteral("Root") };
        visited.insert(pending.first());
        while (!pending.isEmpty()) {
            const QString name = pending.takeFirst();
            if (name.startsWith(prefix))
                order.append(name.mid(prefix.size()));
            QList<QString> children;
            try {
                children = collection->getChildNames(name, false, true);
            } catch (...) {
                continue;
            }
            // Depth first, in presentation order: the children go in front of what is pending.
            QStringList fresh;
            for (const QString& child : qAsConst(children)) {
                if (!visited.contains(child)) {
                    visited.insert(child);
                    fresh.append(child);
                }
            }
            pending = fresh + pending;
        }
        return order;
    }

    Report run(CameraSettings* owner, const Document& document, const QList<Value>& values);
};

// ---- Value, Report ------------------------------------------------------

QString CameraSettings::Value::fullName() const
{
    return nodeMap + QLatin1Char('/') + feature;
}

QString CameraSettings::Value::displayName() const
{
    if (selector.isEmpty())
        return feature;
    return QStringLiteral("%1 [%2=%3]").arg(feature, selector, selectorEntry);
}

bool CameraSettings::Value::sameFeature(const Value& other) const
{
    return nodeMap == other.nodeMap && feature == other.feature && selector == other.selector
        && selectorEntry == other.selectorEntry;
}

bool CameraSettings::Value::operator==(const Value& other) const
{
    return sameFeature(other) && value == other.value;
}

int CameraSettings::Report::count(Outcome outcome) const
{
    int n = 0;
    for (const ReportEntry& entry : entries)
        n += entry.outcome == outcome ? 1 : 0;
    return n;
}

bool CameraSettings::Report::isComplete() const
{
    return !stopped && count(Written) + count(AlreadyEqual) == entries.size();
}

QStringList CameraSettings::Report::toLines() const
{
    QStringList lines;
    lines.append(CameraSettings::tr("%1 values: %2 written, %3 already equal, %4 refused, %5 not present, %6 locked, "
                                    "%7 not reached; %n pass(es).",
        nullptr, passes)
                     .arg(entries.size())
                     .arg(count(Written))
                     .arg(count(AlreadyEqual))
                     .arg(count(Refused))
                     .arg(count(NotPresent))
                     .arg(count(Locked))
                     .arg(count(NotReached)));
    if (!sameModel)
        lines.append(
            CameraSettings::tr("The file was saved from a %1; this camera is a %2.").arg(fileModel, cameraModel));
    if (stopped)
        lines.append(CameraSettings::tr("The restore stopped: %1").arg(stopReason));
    for (const ReportEntry& entry : entries) {
        QString line = QStringLiteral("%1/%2 = \"%3\": %4")
                           .arg(entry.value.nodeMap, entry.value.displayName(), entry.value.value,
                               CameraSettings::outcomeText(entry.outcome));
        if (!entry.message.isEmpty())
            line += QStringLiteral(" (%1)").arg(entry.message);
        lines.append(line);
    }
    return lines;
}

QString CameraSettings::outcomeText(Outcome outcome)
{
    switch (outcome) {
    case Written:
        return tr("written");
    case AlreadyEqual:
        return tr("already equal");
    case Refused:
        return tr("refused");
    case NotPresent:
        return tr("not present");
    case Locked:
        return tr("locked");
    case NotReached:
        return tr("not reached");
    }
    return tr("unknown");
}

// ---- CameraSettings -----------------------------------------------------

CameraSettings::CameraSettings(QObject* parent)
    : QObject(parent)
    , d(new Private)
{
    qRegisterMetaType<CameraSettings::Report>("CameraSettings::Report");
}

CameraSettings::~CameraSettings()
{
    delete d;
}

void CameraSettings::addParameterCollection(
    const QString& nodeMapName, const QSharedPointer<IParameterCollection>& collection)
{
    for (auto& map : d->maps) {
        if (map.first == nodeMapName) {
            map.second = collection;
            return;
        }
    }
    d->maps.append(qMakePair(nodeMapName, collection));
    d->identityRead = false;
}

void CameraSettings::clear()
{
    d->maps.clear();
    d->identityRead = false;
}

QStringList CameraSettings::nodeMapNames() const
{
    QStringList names;
    for (const auto& map : d->maps)
        names.append(map.first);
    return names;
}

void CameraSettings::setCameraIdentity(
    const QString& vendor, const QString& model, const QString& serialNumber, const QString& transportLayerType)
{
    d->vendor = vendor;
    d->model = model;
    d->serialNumber = serialNumber;
    d->transportLayerType = transportLayerType;
    d->identityRead = false;
}

QString CameraSettings::vendor() const
{
    d->readIdentity();
    return d->vendor;
}

QString CameraSettings::model() const
{
    d->readIdentity();
    return d->model;
}

QString CameraSettings::serialNumber() const
{
    d->readIdentity();
    return d->serialNumber;
}

CameraSettings::Document CameraSettings::save(QString* error)
{
    Document document;
    d->readIdentity();
    document.vendor = d->vendor;
    document.model = d->model;
    document.serialNumber = d->serialNumber;
    document.transportLayerType = d->transportLayerType;
    document.saved = QDateTime::currentDateTimeUtc();

    bool anyAnswered = false;
    for (const auto& map : qAsConst(d->maps)) {
        const QString prefix = map.first + QLatin1Char('/');
        const QStringList order = Private::walk(map.first, map.second);
        anyAnswered = anyAnswered || order.size() > 1;

        // Which features are selected, and by what; a feature selected twice keeps its first selector.
        QHash<QString, QStringList> selects;
        QSet<QString> selected;
        QHash<QString, Snapshot> snapshots;
        QHash<QString, Parameter> parameters;
        for (const QString& name : order) {
            const Parameter parameter = lookup(map.second, prefix + name);
            const Snapshot data = snapshotOf(parameter);
            if (!data)
                continue;
            parameters.insert(name, parameter);
            snapshots.insert(name, data);
            QStringList names = selectedFeaturesOf(parameter, data);
            names.erase(std::remove_if(names.begin(), names.end(),
                            [&](const QString& n) { return selected.contains(n) || n == name; }),
                names.end());
            if (names.isEmpty())
                continue;
            for (const QString& n : qAsConst(names))
                selected.insert(n);
            selects.insert(name, names);
        }

        auto saveable = [](const Snapshot& data) {
            return data && data->implemented && data->readable && data->writable && isValueKind(data->type)
                && isWritableBack(data);
        };

        for (const QString& name : order) {
            if (selected.contains(name) && !selects.contains(name))
                continue;
            const Snapshot data = snapshots.value(name);
            if (saveable(data))
                document.values.append(Value { map.first, name, QString(), QString(), savedText(data) });
            const QStringList targets = selects.value(name);
            if (targets.isEmpty() || !data || !data->implemented || !data->readable)
                continue;

            const Parameter selector = parameters.value(name);
            const QString original = data->valueText;
            const QStringList entries = data->writable ? selectorEntries(data) : QStringList { original };
            QString current = original;
            for (const QString& entry : entries) {
                if (entry != current) {
                    QString message;
                    if (!writeText(selector, entry, &message))
                        continue;
                    current = entry;
                }
                for (const QString& target : targets) {
                    const Snapshot t = snapshotOf(lookup(map.second, prefix + target));
                    if (saveable(t))
                        document.values.append(Value { map.first, target, name, entry, savedText(t) });
                }
            }
            if (current != original) {
                QString message;
                if (!writeText(selector, original, &message))
                    ZVC_LOGGER.warning("CameraSettings: could not set %s back to %s: %s", qPrintable(name),
                        qPrintable(original), qPrintable(message));
            }
        }
    }
    if (!anyAnswered && error)
        *error = d->maps.isEmpty() ? tr("There is no node map to save.") : tr("No node map answered.");
    return document;
}

CameraSettings::Report CameraSettings::restore(const Document& document)
{
    const Report report = d->run(this, document, document.values);
    emit restoreFinished(report);
    return report;
}

CameraSettings::Report CameraSettings::restoreSelected(const Document& document, const QList<Value>& values)
{
    const Report report = d->run(this, document, values);
    emit restoreFinished(report);
    return report;
}

CameraSettings::Report CameraSettings::Private::run(
    CameraSettings* owner, const Document& document, const QList<Value>& values)
{
    Report report;
    readIdentity();
    report.fileModel = document.model;
    report.cameraModel = model;
    report.sameModel = document.model.isEmpty() || model.isEmpty()
        || (document.model == model && (document.vendor.isEmpty() || vendor.isEmpty() || document.vendor == vendor));

    struct Item
    {
        int entry; // index into report.entries
        int map; // index into maps
        int position; // in the node map's presentation order
        bool isSelector; // a selector's own value, written at the end of each pass
        Parameter parameter;
        Parameter selector;
        bool done = false; // not present: nothing more to try
        bool written = false;
        bool initiallyEqual = false; // a selector's value the camera held before the restore switched it
    };

    QHash<QString, QHash<QString, int>> positions; // node map -> short name -> position
    QSet<QString> selectorNames; // full names of the selectors the values name
    for (const Value& value : values)
        if (!value.selector.isEmpty())
            selectorNames.insert(value.nodeMap + QLatin1Char('/') + value.selector);

    QVector<Item> items;
    for (const Value& value : values) {
        ReportEntry entry;
        entry.value = value;
        report.entries.append(entry);
        Item item { int(report.entries.size() - 1), -1, 0, false, {}, {} };
        for (int m = 0; m < maps.size(); ++m)
            if (maps.at(m).first == value.nodeMap)
                item.map = m;
        ReportEntry& e = report.entries.last();
        if (item.map < 0) {
            e.outcome = NotPresent;
            e.message = tr("this camera has no node map %1").arg(value.nodeMap);
            continue;
        }
        const auto& map = maps.at(item.map);
        if (!positions.contains(map.first)) {
            QHash<QString, int>& p = positions[map.first];
            const QStringList order = walk(map.first, map.second);
            for (int i = 0; i < order.size(); ++i)
                p.insert(order.at(i), i);
        }
        item.position = positions.value(map.first).value(value.feature, std::numeric_limits<int>::max());
        item.isSelector = value.selector.isEmpty() && selectorNames.contains(value.fullName());
        item.parameter = lookup(map.second, value.fullName());
        if (!item.parameter) {
            e.outcome = NotPresent;
            e.message = tr("this camera has no feature %1").arg(value.feature);
            continue;
        }
        if (!value.selector.isEmpty()) {
            item.selector = lookup(map.second, value.nodeMap + QLatin1Char('/') + value.selector);
            if (!item.selector) {
                e.outcome = NotPresent;
                e.message = tr("this camera has no selector %1").arg(value.selector);
                continue;
            }
        }
        if (item.isSelector)
            item.initiallyEqual = sameValue(snapshotOf(item.parameter), value.value);
        items.append(item);
    }
    // The node map's order; values the tree doesn't show keep the file's order after the others.
    std::stable_sort(items.begin(), items.end(), [](const Item& a, const Item& b) {
        if (a.isSelector != b.isSelector)
            return !a.isSelector;
        if (a.map != b.map)
            return a.map < b.map;
        return a.position < b.position;
    });

    // Selectors the restore switches and whose value the values don't give are set back at the end.
    QHash<QString, QPair<Parameter, QString>> selectorsBefore;
    for (const Item& item : qAsConst(items)) {
        if (!item.selector)
            continue;
        const QString name = report.entries.at(item.entry).value.nodeMap + QLatin1Char('/')
            + report.entries.at(item.entry).value.selector;
        if (!selectorsBefore.contains(name)) {
            const Snapshot data = snapshotOf(item.selector);
            selectorsBefore.insert(name, qMakePair(item.selector, data ? data->valueText : QString()));
        }
    }
    for (const Item& item : qAsConst(items))
        if (item.isSelector)
            selectorsBefore.remove(report.entries.at(item.entry).value.fullName());

    auto stop = [&](const QString& reason) {
        report.stopped = true;
        report.stopReason = reason;
    };

    for (int pass = 1; pass <= maximumPasses && !report.stopped; ++pass) {
        report.passes = pass;
        bool changed = false;
        int done = 0;
        for (Item& item : items) {
            emit owner->restoreProgress(pass, done++, items.size());
            if (item.done)
                continue;
            ReportEntry& e = report.entries[item.entry];
            const Value& value = e.value;
            e.pass = pass;
            e.message.clear();
            if (item.selector) {
                const Snapshot s = snapshotOf(item.selector);
                if (!s) {
                    if (isGone(item.selector)) {
                        e.outcome = Refused;
                        e.message = tr("the camera stopped answering");
                        stop(tr("the camera stopped answering while %1 was being restored").arg(value.displayName()));
                        break;
                    }
                    e.outcome = Refused;
                    e.message = tr("the selector %1 cannot be read").arg(value.selector);
                    continue;
                }
                if (!sameValue(s, value.selectorEntry)) {
                    const QStringList entries = selectorEntries(s);
                    if (dynamic_cast<const ParameterCollection::EnumParameterData*>(s.data())
                        && !entries.contains(value.selectorEntry)) {
                        e.outcome = NotPresent;
                        e.message = tr("the selector %1 has no entry %2").arg(value.selector, value.selectorEntry);
                        continue;
                    }
                    QString message;
                    if (!writeText(item.selector, value.selectorEntry, &message)) {
                        if (isGone(item.selector)) {
                            e.outcome = Refused;
                            e.message = message;
                            stop(message);
                            break;
                        }
                        e.outcome = Refused;
                        e.message = tr("%1 cannot be set to %2: %3").arg(value.selector, value.selectorEntry, message);
                        continue;
                    }
                }
            }
            const Snapshot before = snapshotOf(item.parameter);
            if (!before) {
                if (isGone(item.parameter)) {
                    e.outcome = Refused;
                    e.message = tr("the camera stopped answering");
                    stop(tr("the camera stopped answering while %1 was being restored").arg(value.displayName()));
                    break;
                }
                e.outcome = NotPresent;
                e.message = tr("the feature cannot be read");
                item.done = true;
                continue;
            }
            if (!before->implemented) {
                e.outcome = NotPresent;
                e.message = tr("not implemented on this camera");
                continue;
            }
            if (!isValueKind(before->type)) {
                e.outcome = NotPresent;
                e.message = tr("not a value on this camera");
                item.done = true;
                continue;
            }
            if (before->readable && sameValue(before, value.value)) {
                e.outcome = item.written && !item.initiallyEqual ? Written : AlreadyEqual;
                continue;
            }
            if (!before->writable) {
                e.outcome = Locked;
                e.message = tr("not writable now");
                continue;
            }
            QString message;
            if (!writeText(item.parameter, value.value, &message)) {
                e.outcome = Refused;
                e.message = message;
                if (isGone(item.parameter)) {
                    stop(message.isEmpty() ? tr("the camera stopped answering") : message);
                    break;
                }
                continue;
            }
            const Snapshot after = snapshotOf(item.parameter);
            // A selector's own value is written again at the end of every pass,
            // after the pass has switched it; only its first write is a change.
            const bool counts = !item.isSelector || (!item.written && !item.initiallyEqual);
            item.written = true;
            e.outcome = item.initiallyEqual && sameValue(after, value.value) ? AlreadyEqual : Written;
            if (counts && (!after || !before->readable || after->valueText != before->valueText))
                changed = true;
            if (after && after->readable && !sameValue(after, value.value))
                e.message = tr("the camera holds %1").arg(savedText(after));
        }
        // Selectors the values named but didn't give go back to where they were.
        if (!report.stopped) {
            for (auto it = selectorsBefore.constBegin(); it != selectorsBefore.constEnd(); ++it) {
                const Snapshot now = snapshotOf(it.value().first);
                if (now && now->valueText != it.value().second) {
                    QString message;
                    writeText(it.value().first, it.value().second, &message);
                }
            }
        }
        if (!changed)
            break;
    }
    return report;
}

QList<CameraSettings::Difference> CameraSettings::compare(const Document& document)
{
    QList<Difference> differences;
    QHash<QString, QPair<Parameter, QString>> selectorsBefore;
    for (const Value& value : document.values) {
        Difference difference;
        difference.file = value;
        const QSharedPointer<IParameterCollection> collection = d->collection(value.nodeMap);
        const Parameter parameter = lookup(collection, value.fullName());
        if (!parameter) {
            difference.presentOnCamera = false;
            differences.append(difference);
            continue;
        }
        if (!value.selector.isEmpty()) {
            const QString selectorName = value.nodeMap + QLatin1Char('/') + value.selector;
            const Parameter selector = lookup(collection, selectorName);
            const Snapshot s = snapshotOf(selector);
            if (!s || !s->implemented) {
                difference.presentOnCamera = false;
                differences.append(difference);
                continue;
            }
            if (!selectorsBefore.contains(selectorName))
                selectorsBefore.insert(selectorName, qMakePair(selector, s->valueText));
            QString message;
            if (!sameValue(s, value.selectorEntry) && !writeText(selector, value.selectorEntry, &message)) {
                difference.presentOnCamera = false;
                differences.append(difference);
                continue;
            }
        }
        const Snapshot data = snapshotOf(parameter);
        if (!data || !data->implemented || !isValueKind(data->type)) {
            difference.presentOnCamera = false;
            differences.append(difference);
            continue;
        }
        if (data->readable && sameValue(data, value.value))
            continue;
        difference.cameraValue = data->readable ? savedText(data) : QString();
        differences.append(difference);
    }
    for (auto it = selectorsBefore.constBegin(); it != selectorsBefore.constEnd(); ++it) {
        const Snapshot now = snapshotOf(it.value().first);
        if (now && now->valueText != it.value().second) {
            QString message;
            writeText(it.value().first, it.value().second, &message);
        }
    }
    return differences;
}

// ---- the file -----------------------------------------------------------

QByteArray CameraSettings::toJson(const Document& document)
{
    QJsonObject root;
    root.insert(QStringLiteral("format"), QString::fromLatin1(FormatName));
    root.insert(QStringLiteral("version"), FormatVersion);
    QJsonObject camera;
    camera.insert(QStringLiteral("vendor"), document.vendor);
    camera.insert(QStringLiteral("model"), document.model);
    camera.insert(QStringLiteral("serialNumber"), document.serialNumber);
    camera.insert(QStringLiteral("transportLayerType"), document.transportLayerType);
    root.insert(QStringLiteral("camera"), camera);
    if (document.saved.isValid())
        root.insert(QStringLiteral("saved"), document.saved.toUTC().toString(Qt::ISODate));

    // Node maps in the order of their first value; in each, a selected
    // feature's entries are gathered under the feature.
    QStringList mapOrder;
    QHash<QString, QJsonArray> features;
    QHash<QString, int> selectedIndex; // node map + feature + selector -> index in its array
    for (const Value& value : document.values) {
        if (!mapOrder.contains(value.nodeMap))
            mapOrder.append(value.nodeMap);
        QJsonArray& array = features[value.nodeMap];
        if (value.selector.isEmpty()) {
            QJsonObject feature;
            feature.insert(QStringLiteral("name"), value.feature);
            feature.insert(QStringLiteral("value"), value.value);
            array.append(feature);
            continue;
        }
        QJsonObject entry;
        entry.insert(QStringLiteral("entry"), value.selectorEntry);
        entry.insert(QStringLiteral("value"), value.value);
        const QString key = value.nodeMap + QLatin1Char('/') + value.feature + QLatin1Char('/') + value.selector;
        const int index = selectedIndex.value(key, -1);
        if (index < 0) {
            QJsonObject feature;
            feature.insert(QStringLiteral("name"), value.feature);
            feature.insert(QStringLiteral("selector"), value.selector);
            feature.insert(QStringLiteral("values"), QJsonArray { entry });
            selectedIndex.insert(key, array.size());
            array.append(feature);
        } else {
            QJsonObject feature = array.at(index).toObject();
            QJsonArray entries = feature.value(QStringLiteral("values")).toArray();
            entries.append(entry);
            feature.insert(QStringLiteral("values"), entries);
            array.replace(index, feature);
        }
    }
    QJsonArray maps;
    for (const QString& name : qAsConst(mapOrder)) {
        QJsonObject map;
        map.insert(QStringLiteral("name"), name);
        map.insert(QStringLiteral("features"), features.value(name));
        maps.append(map);
    }
    root.insert(QStringLiteral("nodeMaps"), maps);
    return QJsonDocument(root).toJson(QJsonDocument::Indented);
}

bool CameraSettings::fromJson(const QByteArray& json, Document* document, QString* error)
{
    auto fail = [error](const QString& text) {
        if (error)
            *error = text;
        return false;
    };
    if (json.size() > MaximumFileSize)
        return fail(tr("The file is larger than a settings file may be (%1 bytes at most).").arg(MaximumFileSize));
    if (json.trimmed().isEmpty())
        return fail(tr("The file is empty."));
    QJsonParseError parseError;
    const QJsonDocument parsed = QJsonDocument::fromJson(json, &parseError);
    if (parseError.error != QJsonParseError::NoError)
        return fail(tr("The file is not valid JSON: %1 at byte %2; it may be truncated or damaged.")
                        .arg(parseError.errorString())
                        .arg(parseError.offset));
    if (!parsed.isObject())
        return fail(tr("The file is not a camera settings file: its top level is not an object."));
    const QJsonObject root = parsed.object();
    if (root.value(QStringLiteral("format")).toString() != QLatin1String(FormatName))
        return fail(tr("The file is not a camera settings file: \"format\" is not \"%1\".")
                        .arg(QString::fromLatin1(FormatName)));
    const QJsonValue versionValue = root.value(QStringLiteral("version"));
    const double versionNumber = versionValue.toDouble(-1);
    if (!versionValue.isDouble() || versionNumber != std::floor(versionNumber) || versionNumber < 1
        || versionNumber > 1e6)
        return fail(tr("\"version\" must be a whole number from 1."));
    if (versionNumber > FormatVersion)
        return fail(tr("The file has format version %1; this library reads versions up to %2.")
                        .arg(qint64(versionNumber))
                        .arg(FormatVersion));

    Document result;
    result.version = int(versionNumber);

    const QJsonValue cameraValue = root.value(QStringLiteral("camera"));
    if (!cameraValue.isObject())
        return fail(tr("\"camera\" must be an object."));
    const QJsonObject camera = cameraValue.toObject();
    const struct
    {
        const char* key;
        QString* target;
    } identity[] = { { "vendor", &result.vendor }, { "model", &result.model }, { "serialNumber", &result.serialNumber },
        { "transportLayerType", &result.transportLayerType } };
    for (const auto& field : identity) {
        const QJsonValue v = camera.value(QLatin1String(field.key));
        if (v.isUndefined() || v.isNull())
            continue;
        if (!v.isString() || v.toString().size() > maximumIdentityLength || hasNul(v.toString()))
            return fail(tr("\"camera.%1\" must be a text of at most %2 characters.")
                            .arg(QLatin1String(field.key))
                            .arg(maximumIdentityLength));
        *field.target = v.toString();
    }
    const QJsonValue savedValue = root.value(QStringLiteral("saved"));
    if (!savedValue.isUndefined() && !savedValue.isNull()) {
        result.saved = QDateTime::fromString(savedValue.toString(), Qt::ISODate);
        if (!savedValue.isString() || !result.saved.isValid())
            return fail(tr("\"saved\" must be a date and time in ISO 8601 form."));
        result.saved = result.saved.toUTC();
    }

    const QJsonValue mapsValue = root.value(QStringLiteral("nodeMaps"));
    if (!mapsValue.isArray())
        return fail(tr("\"nodeMaps\" must be an array."));
    const QJsonArray maps = mapsValue.toArray();
    QSet<QString> mapNames;
    QSet<QString> seen; // node map/feature/selector/entry
    for (int m = 0; m < maps.size(); ++m) {
        const QString where = QStringLiteral("nodeMaps[%1]").arg(m);
        if (!maps.at(m).isObject())
            return fail(tr("%1 must be an object.").arg(where));
        const QJsonObject map = maps.at(m).toObject();
        const QString mapName = map.value(QStringLiteral("name")).toString();
        if (!isNodeMapName(mapName))
            return fail(tr("%1: \"name\" must be a node map name such as \"@CameraDevice\".").arg(where));
        if (mapNames.contains(mapName))
            return fail(tr("%1: the node map %2 is given twice.").arg(where, mapName));
        mapNames.insert(mapName);
        const QJsonValue featuresValue = map.value(QStringLiteral("features"));
        if (!featuresValue.isArray())
            return fail(tr("%1 (%2): \"features\" must be an array.").arg(where, mapName));
        const QJsonArray features = featuresValue.toArray();
        for (int f = 0; f < features.size(); ++f) {
            const QString at = QStringLiteral("%1.features[%2]").arg(where).arg(f);
            if (!features.at(f).isObject())
                return fail(tr("%1 must be an object.").arg(at));
            const QJsonObject feature = features.at(f).toObject();
            const QString name = feature.value(QStringLiteral("name")).toString();
            if (!isFeatureName(name))
                return fail(tr("%1: \"name\" must be a feature name of letters, digits and _ (at most %2).")
                                .arg(at)
                                .arg(maximumNameLength));
            const QString named = QStringLiteral("%1 (%2)").arg(at, name);
            auto checkText = [&](const QJsonValue& v, const QString& key, int maximum, QString* out) {
                if (!v.isString())
                    return fail(tr("%1: \"%2\" must be a text.").arg(named, key));
                const QString text = v.toString();
                if (text.size() > maximum || hasNul(text))
                    return fail(
                        tr("%1: \"%2\" must be at most %3 characters, without NUL.").arg(named, key).arg(maximum));
                *out = text;
                return true;
            };
            const bool hasValue = feature.contains(QStringLiteral("value"));
            const bool hasSelector = feature.contains(QStringLiteral("selector"));
            if (hasValue == hasSelector)
                return fail(tr("%1: a feature has either \"value\" or \"selector\" with \"values\".").arg(named));
            if (hasValue) {
                Value value { mapName, name, QString(), QString(), QString() };
                if (!checkText(feature.value(QStringLiteral("value")), QStringLiteral("value"), MaximumValueLength,
                        &value.value))
                    return false;
                const QString key = mapName + QLatin1Char('/') + name;
                if (seen.contains(key))
                    return fail(tr("%1: the feature is given twice.").arg(named));
                seen.insert(key);
                result.values.append(value);
            } else {
                const QString selector = feature.value(QStringLiteral("selector")).toString();
                if (!isFeatureName(selector) || selector == name)
                    return fail(tr("%1: \"selector\" must be the name of another feature.").arg(named));
                const QJsonValue entriesValue = feature.value(QStringLiteral("values"));
                if (!entriesValue.isArray())
                    return fail(tr("%1: \"values\" must be an array.").arg(named));
                const QJsonArray entries = entriesValue.toArray();
                for (int e = 0; e < entries.size(); ++e) {
                    if (!entries.at(e).isObject())
                        return fail(tr("%1: values[%2] must be an object.").arg(named).arg(e));
                    const QJsonObject entry = entries.at(e).toObject();
                    Value value { mapName, name, selector, QString(), QString() };
                    if (!checkText(entry.value(QStringLiteral("entry")), QStringLiteral("entry"), maximumEntryLength,
                            &value.selectorEntry)
                        || !checkText(entry.value(QStringLiteral("value")), QStringLiteral("value"), MaximumValueLength,
                            &value.value))
                        return false;
                    if (value.selectorEntry.trimmed().isEmpty())
                        return fail(tr("%1: values[%2] has an empty \"entry\".").arg(named).arg(e));
                    const QString key = mapName + QLatin1Char('/') + name + QLatin1Char('/') + selector
                        + QLatin1Char('=') + value.selectorEntry;
                    if (seen.contains(key))
                        return fail(tr("%1: the entry %2 is given twice.").arg(named, value.selectorEntry));
                    seen.insert(key);
                    result.values.append(value);
                }
            }
            if (result.values.size() > MaximumValueCount)
                return fail(tr("The file holds more than %1 values.").arg(MaximumValueCount));
        }
    }
    *document = result;
    return true;
}

bool CameraSettings::saveToFile(const QString& path, QString* error)
{
    QString saveError;
    const Document document = save(&saveError);
    if (!saveError.isEmpty()) {
        if (error)
            *error = saveError;
        return false;
    }
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(toJson(document)) < 0 || !file.commit()) {
        if (error)
            *error = tr("Cannot write %1: %2").arg(path, file.errorString());
        return false;
    }
    return true;
}

bool CameraSettings::readFile(const QString& path, Document* document, QString* error)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        if (error)
            *error = tr("Cannot read %1: %2").arg(path, file.errorString());
        return false;
    }
    const QByteArray content = file.read(qint64(MaximumFileSize) + 1);
    if (file.error() != QFileDevice::NoError) {
        if (error)
            *error = tr("Cannot read %1: %2").arg(path, file.errorString());
        return false;
    }
    return fromJson(content, document, error);
}
