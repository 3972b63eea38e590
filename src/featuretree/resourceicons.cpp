#include "resourceicons.h"

#include <QCoreApplication>
#include <QPointer>

ResourceIcons::ResourceIcons(QObject* application)
    : QObject(application)
{
}

QIcon ResourceIcons::icon(const QString& path)
{
    static QPointer<ResourceIcons> icons;
    if (!icons) {
        QCoreApplication* application = QCoreApplication::instance();
        if (!application)
            return QIcon(path);
        icons = new ResourceIcons(application);
    }
    auto found = icons->m_icons.constFind(path);
    if (found == icons->m_icons.constEnd())
        found = icons->m_icons.insert(path, QIcon(path));
    return *found;
}
