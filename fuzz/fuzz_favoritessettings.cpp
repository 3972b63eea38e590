// libFuzzer target over FavoritesData::LoadFavorites: the bytes are the
// application's settings file, as a damaged or forged one could be. Every
// input must load without a sanitizer report and leave a list without an
// empty name and without two equal favourites; what was loaded must save and
// load back to the same number of favourites.

#include "favouritescheck.h"
#include "featuretree/favoritesdata.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QSettings>
#include <QTemporaryDir>

#include <cstddef>
#include <cstdint>
#include <cstdlib>

namespace {

QCoreApplication* application = nullptr;
QTemporaryDir* directory = nullptr;
quint64 counter = 0;

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

    int loaded = 0;
    {
        FavoritesData store;
        store.LoadFavorites(QStringLiteral("Favorites"));
        abortOnDamagedFavourites(store);
        loaded = store.countNodes();
        store.SaveFavorites(QStringLiteral("Saved"));
    }
    {
        FavoritesData again;
        again.LoadFavorites(QStringLiteral("Saved"));
        abortOnDamagedFavourites(again);
        if (again.countNodes() != loaded)
            std::abort();
    }
    QFile::remove(path);
    return 0;
}
