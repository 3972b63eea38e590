#pragma once

#include <QString>
#include <QStringList>
#include <QTranslator>

/*!
 * The viewer's languages: for each, the library's catalogue, which translates
 * the feature tree, and the viewer's own, which translates its menus, panes
 * and messages. install() puts both in place of those installed before.
 */
class ViewerTranslations
{
public:
    ViewerTranslations();
    ~ViewerTranslations();

    ViewerTranslations(const ViewerTranslations&) = delete;
    ViewerTranslations& operator=(const ViewerTranslations&) = delete;

    //! The language codes of the catalogues, "en" first.
    static QStringList languages();
    //! The resource path of the library's compiled catalogue for the code.
    static QString libraryCatalogue(const QString& code);
    //! The resource path of the viewer's compiled catalogue for the code.
    static QString viewerCatalogue(const QString& code);

    //! Loads and installs both catalogues of the code; false, with nothing changed, if one cannot be loaded.
    bool install(const QString& code);
    //! Removes the catalogues this object installed.
    void remove();
    //! The code installed last, empty if none.
    QString language() const { return m_language; }

private:
    QTranslator m_library;
    QTranslator m_viewer;
    QString m_language;
    bool m_installed = false;
};
