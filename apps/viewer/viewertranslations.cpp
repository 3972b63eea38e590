#include "viewertranslations.h"

#include <QCoreApplication>

// The viewer's catalogues live in a static library, whose resources the linker
// keeps only when something names them. Outside any namespace, as
// Q_INIT_RESOURCE asks.
static void initViewerResources()
{
    static const bool done = [] {
        Q_INIT_RESOURCE(zarvex_viewer_translations);
        return true;
    }();
    Q_UNUSED(done)
}

ViewerTranslations::ViewerTranslations()
{
    initViewerResources();
}

ViewerTranslations::~ViewerTranslations()
{
    remove();
}

QStringList ViewerTranslations::languages()
{
    return { QStringLiteral("en"), QStringLiteral("ja"), QStringLiteral("ko"), QStringLiteral("zh") };
}

QString ViewerTranslations::libraryCatalogue(const QString& code)
{
    return QStringLiteral(":/translation/ZarvexViewerComponents_%1.qm").arg(code);
}

QString ViewerTranslations::viewerCatalogue(const QString& code)
{
    initViewerResources();
    return QStringLiteral(":/translation/zarvex-viewer_%1.qm").arg(code);
}

bool ViewerTranslations::install(const QString& code)
{
    if (!languages().contains(code)) {
        qDebug("zarvex-viewer: there is no catalogue for the language %s", qPrintable(code));
        return false;
    }
    QTranslator library;
    QTranslator viewer;
    if (!library.load(libraryCatalogue(code))) {
        qWarning("zarvex-viewer: the catalogue %s cannot be loaded", qPrintable(libraryCatalogue(code)));
        return false;
    }
    if (!viewer.load(viewerCatalogue(code))) {
        qWarning("zarvex-viewer: the catalogue %s cannot be loaded", qPrintable(viewerCatalogue(code)));
        return false;
    }
    remove();
    // Loaded again into the members: a QTranslator cannot be moved.
    if (!m_library.load(libraryCatalogue(code)) || !m_viewer.load(viewerCatalogue(code)))
        return false;
    QCoreApplication::installTranslator(&m_library);
    QCoreApplication::installTranslator(&m_viewer);
    m_installed = true;
    m_language = code;
    return true;
}

void ViewerTranslations::remove()
{
    if (!m_installed)
        return;
    QCoreApplication::removeTranslator(&m_viewer);
    QCoreApplication::removeTranslator(&m_library);
    m_installed = false;
}
