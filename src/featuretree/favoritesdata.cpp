#include "favoritesdata.h"

#include "settingswrite.h"

#include <QByteArray>
#include <QSettings>
#include <QStringList>
#include <QVector>

#include <algorithm>

namespace {

const int currentFormatVersion = 3;

QString versionKey()
{
    return QStringLiteral("Version");
}

QString numberOfEntriesKey()
{
    return QStringLiteral("NumberOfEntries");
}

QString viewAllKey()
{
    return QStringLiteral("ViewAll");
}

QString expandedKey()
{
    return QStringLiteral("Expanded");
}

QString entryKey(int position)
{
    return QString::number(position);
}

bool isSameFavorite(const FavoritesData::FavoritesDataItem& a, const FavoritesData::FavoritesDataItem& b)
{
    return a.name == b.name && a.nodeMapName == b.nodeMapName;
}

// The entry positions from `first` up to `end` - 1 that have a key in the
// current group, in ascending order. Only the spelling that entryKey() makes
// counts, so "07" or "+7" is not position 7.
//
// A walk over the keys that exist gives the same result as asking for every
// position in the range, but its cost does not depend on the stored count:
// a damaged file claiming two billion entries must not freeze the GUI thread.
QVector<int> storedEntryPositions(const QSettings& settings, int first, int end)
{
    QVector<int> positions;
    const QStringList keys = settings.childKeys();
    for (const QString& key : keys) {
        bool ok = false;
        const int position = key.toInt(&ok);
        if (ok && position >= first && position < end && key == entryKey(position))
            positions.append(position);
    }
    std::sort(positions.begin(), positions.end());
    return positions;
}

// The model decodes names from its items' full names in the same way, so a
// loaded name and a decoded one compare equal. Feature names are plain ASCII,
// for which the round trip changes nothing.
QString normalizedName(const QString& name)
{
    QByteArray bytes = name.toLocal8Bit();
    // Cut here rather than rely on QString::fromLatin1(QByteArray), which
    // stops at a NUL in Qt 5 but no longer does in Qt 6.
    const int nul = bytes.indexOf('\0');
    if (nul >= 0)
        bytes.truncate(nul);
    return QString::fromLatin1(bytes);
}

} // namespace

FavoritesData::FavoritesData(QObject* parent)
    : QObject(parent)
    , m_initialized(false)
    , m_viewAll(true)
    , m_expanded(false)
    , m_deferDataUpdatedSignals(false)
    , m_dataUpdatedPending(false)
{
}

void FavoritesData::InitOnce(const QString& settingsPath)
{
    if (m_initialized)
        return;
    m_settingsPath = settingsPath;
    LoadFavorites(settingsPath);
    m_initialized = true;
}

bool FavoritesData::Register(QObject* view)
{
    // A null view would only make Qt complain; the result is the same.
    if (!view)
        return false;
    // Unique connections: a view registered twice would otherwise rebuild its
    // branch twice for every change. The second Register is refused instead.
    if (!connect(this, SIGNAL(dataUpdated()), view, SLOT(onFavoriteDataUpdated()), Qt::UniqueConnection))
        return false;
    // Should this one fail, the first stays connected: the view can still
    // follow the list, and the false result tells the caller what is missing.
    return connect(this, SIGNAL(expanded(bool)), view, SLOT(onFavoriteDataExpanded(bool)), Qt::UniqueConnection);
}

bool FavoritesData::Deregister(QObject* view)
{
    // A view that goes is the moment to keep the list; that does not depend
    // on whether the view was registered at all.
    SaveFavorites(m_settingsPath);
    if (!view)
        return false;
    if (!disconnect(this, nullptr, view, SLOT(onFavoriteDataUpdated())))
        return false;
    return disconnect(this, nullptr, view, SLOT(onFavoriteDataExpanded(bool)));
}

bool FavoritesData::LoadFavorites(const QString& group)
{
    if (group.isEmpty())
        return false;

    QSettings settings;
    settings.beginGroup(group);
    // Every stored version is read in the same way; the number is only kept for later formats.
    settings.value(versionKey(), 1);
    const int numberOfEntries = settings.value(numberOfEntriesKey(), 0).toInt();

    const QVector<int> positions = storedEntryPositions(settings, 0, numberOfEntries);
    for (int position : positions) {
        const QString text = settings.value(entryKey(position)).toString();
        if (text.isEmpty())
            continue;
        const QStringList parts = text.split(QLatin1Char('*'), Qt::SkipEmptyParts, Qt::CaseSensitive);
        if (parts.count() != 3)
            continue; // damaged; the next save no longer writes it
        FavoritesDataItem item;
        item.name = normalizedName(parts.at(0));
        item.displayName = parts.at(1);
        item.nodeMapName = parts.at(2);
        insertNode(m_items.count(), item); // a duplicate is refused and thereby dropped
    }

    // Straight into the fields: a load is not a user's change of the expansion.
    m_viewAll = settings.value(viewAllKey(), false).toBool();
    m_expanded = settings.value(expandedKey(), true).toBool();
    settings.endGroup();

    emitDataUpdatedSignal();
    return true;
}

bool FavoritesData::SaveFavorites(const QString& group)
{
    if (group.isEmpty())
        return false;

    QSettings settings;
    settings.beginGroup(group);
    setIfDifferent(settings, versionKey(), currentFormatVersion);
    const int oldNumberOfEntries = settings.value(numberOfEntriesKey(), 0).toInt();
    const int numberOfEntries = m_items.count();
    setIfDifferent(settings, numberOfEntriesKey(), numberOfEntries);

    for (int position = 0; position < numberOfEntries; ++position) {
        const FavoritesDataItem& item = m_items.at(position);
        // Such an entry could not be loaded again. Its key keeps what it held.
        if (item.nodeMapName.isEmpty() || item.name.isEmpty())
            continue;
        setIfDifferent(settings, entryKey(position),
            QStringLiteral("%1*%2*%3").arg(item.name, item.displayName, item.nodeMapName));
    }

    // A shortened list leaves no tail behind.
    const QVector<int> tail = storedEntryPositions(settings, numberOfEntries, oldNumberOfEntries);
    for (int position : tail)
        settings.remove(entryKey(position));

    setIfDifferent(settings, viewAllKey(), m_viewAll ? 1 : 0);
    setIfDifferent(settings, expandedKey(), m_expanded ? 1 : 0);
    settings.endGroup();
    return true;
}

const FavoritesData::FavoritesDataItem* FavoritesData::nodeAt(int index) const
{
    if (!isValidIndex(index))
        return nullptr;
    return &m_items.at(index);
}

FavoritesData::FavoritesDataItem* FavoritesData::nodeAt(int index)
{
    if (!isValidIndex(index))
        return nullptr;
    return &m_items[index]; // detaches, so no other copy of the list sees the write
}

int FavoritesData::indexOfNode(const FavoritesDataItem& item) const
{
    for (int i = 0; i < m_items.count(); ++i) {
        if (isSameFavorite(m_items.at(i), item))
            return i;
    }
    return -1;
}

bool FavoritesData::insertNode(int index, const FavoritesDataItem& item)
{
    if (index < 0)
        index += m_items.count();
    if (index < 0 || index > m_items.count())
        return false;
    if (item.name.isEmpty())
        return false;
    if (indexOfNode(item) >= 0)
        return false;
    m_items.insert(index, item);
    emitDataUpdatedSignal();
    return true;
}

bool FavoritesData::appendNode(const FavoritesDataItem& item)
{
    return insertNode(m_items.count(), item);
}

bool FavoritesData::removeNode(int index, FavoritesDataItem* removed)
{
    if (!removeNodeImpl(index, removed))
        return false;
    emitDataUpdatedSignal();
    return true;
}

bool FavoritesData::removeNodeImpl(int index, FavoritesDataItem* removed)
{
    if (!isValidIndex(index))
        return false;
    if (removed)
        *removed = m_items.at(index);
    m_items.removeAt(index);
    return true;
}

bool FavoritesData::moveNode(int from, int to)
{
    // `to` is the position before which the item is to stand, counted before
    // the move; taking the item out moves the later ones up by one.
    if (from < to)
        --to;
    FavoritesDataItem item;
    if (!removeNodeImpl(from, &item))
        return false;
    // Callers stay in range. Should the insertion fail anyway, the item is not
    // put back: the favourite is lost, and unannounced, so views show it until
    // the next change.
    return insertNode(to, item);
}

void FavoritesData::setViewAllFavorites(bool viewAll)
{
    if (m_viewAll == viewAll)
        return;
    m_viewAll = viewAll;
    emitDataUpdatedSignal();
}

void FavoritesData::setExpanded(bool expanded)
{
    if (m_expanded == expanded)
        return;
    m_expanded = expanded;
    emit this->expanded(expanded); // never deferred: it changes no row
}

void FavoritesData::setDeferDataUpdatedSignals(bool defer)
{
    if (!defer && m_deferDataUpdatedSignals && m_dataUpdatedPending) {
        // The flag stays set while the held-back signal goes out, so that a
        // slot that changes the list again cannot start a second emission
        // inside this one.
        emit dataUpdated();
        m_dataUpdatedPending = false;
        m_deferDataUpdatedSignals = false;
        return;
    }
    m_deferDataUpdatedSignals = defer;
}

void FavoritesData::emitDataUpdatedSignal()
{
    if (m_deferDataUpdatedSignals)
        m_dataUpdatedPending = true;
    else
        emit dataUpdated();
}
