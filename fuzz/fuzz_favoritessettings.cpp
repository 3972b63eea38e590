// libFuzzer target over FavoritesData::LoadFavorites: the bytes are the
// application's settings file, as a damaged or forged one could be. Every
// input must load without a sanitizer report and leave a list without an
// empty name and without two equal favourites; what was loaded must save and
// load back to the same favourites, names and node maps, in the same order
// (a name read anew as a load reads it).

#include "favouritescheck.h"
#include "featuretree/favoritesdata.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QSettings>
#include <QStringList>
#include <QTemporaryDir>

#include <cstddef>
#include <cstdint>
#include <cstdlib>

namespace {

QCoreApplication* application = nullptr;
QTemporaryDir* directory = nullptr;
quint64 counter = 0;

//! A name as a load gives it back: through the local 8-bit encoding, cut at a NUL, read as Latin-1. A name
//! outside ASCII thereby changes at each load; names of features never are.
QString reloadedName(const QString& name)
{
    QByteArray bytes = name.toLocal8Bit();
    const int nul = bytes.indexOf('\0');
    if (nul >= 0)
        bytes.truncate(nul);
    return QString::fromLatin1(bytes);
}

//! Each favourite as its node map's name and its own, in the list's order; with reload, as the next load
//! should give it.
QStringList favourites(const FavoritesData& store, bool reload = false)
{
    QStringList list;
    for (int i = 0; i < store.countNodes(); ++i) {
        const FavoritesData::FavoritesDataItem* item = store.nodeAt(i);
        list << item->nodeMapName + QLatin1Char('\n') + (reload ? reloadedName(item->name) : item->name);
    }
    return list;
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv)
{
    application = new QCoreApplication(*argc, *argv);
    directory = new QTemporaryDir;
    QCoreApplication::setOrganizationName(QStringLiteral("ZarvexFuzz"));
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, directory->path());
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    // A file of its own for every input: QSettings caches files by path and
    // could otherwise miss a rewrite within the same second.
    const QString application = QStringLiteral("settings%1").arg(++counter);
    QCoreApplication::setApplicationName(application);
    const QString path = directory->path() + QStringLiteral("/ZarvexFuzz/") + application + QStringLiteral(".conf");
    QDir().mkpath(directory->path() + QStringLiteral("/ZarvexFuzz"));
    {
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly))
            std::abort();
        file.write(reinterpret_cast<const char*>(data), qint64(size));
    }

    QStringList loaded;
    {
        FavoritesData store;
        store.LoadFavorites(QStringLiteral("Favorites"));
        abortOnDamagedFavourites(store);
        loaded = favourites(store, true);
        store.SaveFavorites(QStringLiteral("Saved"));
    }
    {
        FavoritesData again;
        again.LoadFavorites(QStringLiteral("Saved"));
        abortOnDamagedFavourites(again);
        if (favourites(again) != loaded)
            std::abort();
    }
    QFile::remove(path);
    return 0;
}
