/*!
 * \file featuretree/searchpattern.h
 * SearchPattern, the search filter of a proxy model read the same way on Qt 5 and Qt 6.
 */
#pragma once

#include "zarvexviewercomponents_export.h"

#include <QRegularExpression>
#include <QString>

class QSortFilterProxyModel;

/*!
 * The filter of a QSortFilterProxyModel as the feature tree's search reads it:
 * a plain text to find, or else a regular expression.
 *
 * The widget sets its search with setFilterFixedString(). Qt 5 keeps that as
 * a QRegExp of syntax FixedString; Qt 6 as a QRegularExpression made of the
 * escaped text. Both come back here as the same fixed text, which is found by
 * a plain substring search instead of the regular expression machinery: the
 * search runs for every row of the tree on every keystroke. Any other filter a
 * host sets is matched as the regular expression it is.
 */
class ZVC_AUTOTEST_EXPORT SearchPattern
{
public:
    //! The empty fixed text, which every text contains.
    SearchPattern() = default;

    //! A plain text to find.
    static SearchPattern fixedString(const QString& text, Qt::CaseSensitivity sensitivity);
    //! A regular expression; one that only escapes a plain text is kept as that text.
    static SearchPattern regularExpression(const QRegularExpression& expression);
    //! The proxy's filter as it stands. previous is given back when the filter is
    //! still the one it was made from, which saves the work of reading it again.
    static SearchPattern ofProxy(const QSortFilterProxyModel& proxy, const SearchPattern& previous);
    //! The proxy's filter as it stands.
    static SearchPattern ofProxy(const QSortFilterProxyModel& proxy) { return ofProxy(proxy, SearchPattern()); }

    //! The text is found in text (or the expression matches somewhere in it).
    bool matches(const QString& text) const;

    //! The filter is a plain text, found by a substring search.
    bool isFixedString() const { return m_fixed; }
    //! The fixed text, or the expression's pattern.
    const QString& text() const { return m_text; }
    //! Whether upper and lower case are told apart.
    Qt::CaseSensitivity caseSensitivity() const { return m_sensitivity; }

    //! The same kind, text, case sensitivity and, for an expression, the same options.
    bool operator==(const SearchPattern& other) const;
    //! Not operator==().
    bool operator!=(const SearchPattern& other) const { return !(*this == other); }

    //! Reverses QRegularExpression::escape(): true, with the plain text in
    //! literal, if pattern matches nothing but one plain text.
    static bool unescape(const QString& pattern, QString* literal);

private:
    QString m_text;
    // The filter's own pattern text, to tell whether the proxy's filter changed.
    QString m_source;
    QRegularExpression m_expression;
    Qt::CaseSensitivity m_sensitivity = Qt::CaseSensitive;
    bool m_fixed = true;
};
