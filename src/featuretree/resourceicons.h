/*!
 * \file featuretree/resourceicons.h
 * ResourceIcons, the icons of the library's resources, decoded once.
 */
#pragma once

#include <QHash>
#include <QIcon>
#include <QObject>
#include <QString>

/*!
 * The library's own icons, decoded once for all the widgets that show them.
 *
 * A QIcon made from a file decodes that file, and its "@2x" twin, when it is
 * made. A viewer makes a new feature tree for every camera it opens, and the
 * tree's search line and actions showed the same few pictures each time.
 * Here each is decoded the first time it is asked for; later widgets share
 * it (QIcon is implicitly shared). The resources never change while the
 * process runs.
 *
 * The icons live as long as the application object: they go with it, before
 * the GUI they were made for. Without an application object nothing is kept.
 * For the GUI thread only, as widgets are.
 */
class ResourceIcons : public QObject
{
public:
    //! The icon of the file at path, as QIcon(path) would make it.
    static QIcon icon(const QString& path);

private:
    explicit ResourceIcons(QObject* application);

    QHash<QString, QIcon> m_icons;
};
