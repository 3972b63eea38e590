#include "searchpattern.h"

#include <QSortFilterProxyModel>
#include <QVector>

#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
#include <QRegExp>
#endif

namespace {

// The search text folded to lower case, for the case-insensitive test below,
// kept with the text it was made from.
struct FoldedPattern
{
    QString source;
    QVector<ushort> folded;
    bool ascii = false;

    void set(const QString& pattern)
    {
        source = pattern;
        folded.resize(pattern.size());
        ascii = true;
        for (int i = 0; i < pattern.size(); ++i) {
            const ushort c = pattern.at(i).unicode();
            ascii = ascii && c < 0x80;
            folded[i] = (c >= 'A' && c <= 'Z') ? ushort(c + ('a' - 'A')) : c;
        }
    }
};

// QString::contains(pattern, Qt::CaseInsensitive) where pattern and text are
// ASCII, which feature names are: Qt's search folds every character through
// the Unicode tables and took more time than the rest of the filter per row.
// Gives -1 where it can't tell (text or pattern not ASCII, where Unicode
// folding may map other characters onto letters), 0 or 1 otherwise.
int containsAsciiIgnoringCase(const QString& text, const FoldedPattern& pattern)
{
    const int needleSize = int(pattern.folded.size());
    if (!pattern.ascii || needleSize == 0)
        return -1;
    const ushort* haystack = reinterpret_cast<const ushort*>(text.constData());
    const int size = int(text.size());
    for (int i = 0; i < size; ++i) {
        if (haystack[i] >= 0x80)
            return -1;
    }
    const ushort* needle = pattern.folded.constData();
    const auto fold = [](ushort c) { return (c >= 'A' && c <= 'Z') ? ushort(c + ('a' - 'A')) : c; };
    for (int start = 0; start + needleSize <= size; ++start) {
        int i = 0;
        while (i < needleSize && fold(haystack[start + i]) == needle[i])
            ++i;
        if (i == needleSize)
            return 1;
    }
    return 0;
}

bool isWordCharacter(QChar c)
{
    const ushort u = c.unicode();
    return (u >= 'a' && u <= 'z') || (u >= 'A' && u <= 'Z') || (u >= '0' && u <= '9') || u == '_';
}

} // namespace

SearchPattern SearchPattern::fixedString(const QString& text, Qt::CaseSensitivity sensitivity)
{
    SearchPattern pattern;
    pattern.m_text = text;
    pattern.m_source = text;
    pattern.m_sensitivity = sensitivity;
    pattern.m_fixed = true;
    return pattern;
}

SearchPattern SearchPattern::regularExpression(const QRegularExpression& expression)
{
    const Qt::CaseSensitivity sensitivity
        = expression.patternOptions().testFlag(QRegularExpression::CaseInsensitiveOption) ? Qt::CaseInsensitive
                                                                                          : Qt::CaseSensitive;
    // Other options (extended syntax, multi-line, ...) can change what even a
    // plain-looking pattern matches; such an expression stays one.
    const bool onlyCase = (expression.patternOptions() & ~QRegularExpression::CaseInsensitiveOption)
        == QRegularExpression::NoPatternOption;
    QString literal;
    if (onlyCase && unescape(expression.pattern(), &literal)) {
        SearchPattern pattern = fixedString(literal, sensitivity);
        pattern.m_source = expression.pattern();
        return pattern;
    }
    SearchPattern pattern;
    pattern.m_text = expression.pattern();
    pattern.m_source = expression.pattern();
    pattern.m_expression = expression;
    pattern.m_sensitivity = sensitivity;
    pattern.m_fixed = false;
    return pattern;
}

SearchPattern SearchPattern::ofProxy(const QSortFilterProxyModel& proxy, const SearchPattern& previous)
{
    // Where the two versions keep the filter apart. Qt 5's setFilterFixedString()
    // fills the QRegExp and leaves the QRegularExpression empty; Qt 6 has only
    // the latter.
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    const QRegExp old = proxy.filterRegExp();
    if (!old.isEmpty() || proxy.filterRegularExpression().pattern().isEmpty()) {
        const QString source = old.pattern();
        if (old.patternSyntax() == QRegExp::FixedString) {
            if (previous.m_fixed && previous.m_sensitivity == old.caseSensitivity() && previous.m_source == source)
                return previous;
            return fixedString(source, old.caseSensitivity());
        }
        QString expression = source;
        if (old.patternSyntax() == QRegExp::Wildcard || old.patternSyntax() == QRegExp::WildcardUnix)
            expression = QRegularExpression::wildcardToRegularExpression(source);
        else if (old.patternSyntax() == QRegExp::W3CXmlSchema11)
            expression = QStringLiteral("\\A(?:") + source + QStringLiteral(")\\z");
        return regularExpression(QRegularExpression(expression,
            old.caseSensitivity() == Qt::CaseInsensitive ? QRegularExpression::CaseInsensitiveOption
                                                         : QRegularExpression::NoPatternOption));
    }
#endif
    const QRegularExpression expression = proxy.filterRegularExpression();
    const Qt::CaseSensitivity sensitivity
        = expression.patternOptions().testFlag(QRegularExpression::CaseInsensitiveOption) ? Qt::CaseInsensitive
                                                                                          : Qt::CaseSensitive;
    if (previous.m_sensitivity == sensitivity && previous.m_source == expression.pattern()
        && (previous.m_fixed || previous.m_expression == expression))
        return previous;
    return regularExpression(expression);
}

bool SearchPattern::matches(const QString& text) const
{
    if (!m_fixed)
        return m_expression.match(text).hasMatch();
    if (m_sensitivity == Qt::CaseInsensitive) {
        // Folded once per search text (the texts are compared by identity).
        thread_local FoldedPattern folded;
        if (!m_text.isSharedWith(folded.source) || folded.source.isNull())
            folded.set(m_text);
        const int found = containsAsciiIgnoringCase(text, folded);
        if (found >= 0)
            return found == 1;
    }
    return text.contains(m_text, m_sensitivity);
}

bool SearchPattern::operator==(const SearchPattern& other) const
{
    return m_fixed == other.m_fixed && m_sensitivity == other.m_sensitivity && m_text == other.m_text
        && (m_fixed || m_expression == other.m_expression);
}

bool SearchPattern::unescape(const QString& pattern, QString* literal)
{
    // QRegularExpression::escape() leaves letters, digits and "_" of ASCII as
    // they are, writes a NUL as "\0" and puts a backslash before everything
    // else. Every character with a meaning of its own in a pattern is ASCII,
    // so a character beyond ASCII stands for itself either way.
    QString result;
    result.reserve(pattern.size());
    for (int i = 0; i < pattern.size(); ++i) {
        const QChar c = pattern.at(i);
        if (c == QLatin1Char('\\')) {
            if (++i == pattern.size())
                return false;
            const QChar escaped = pattern.at(i);
            if (escaped == QLatin1Char('0')) {
                // escape() writes "\0" for a NUL even before a digit, where
                // PCRE would read one octal number; the text meant is the NUL
                // and the digit, as Qt 5's fixed string keeps it.
                result.append(QChar(0));
            } else if (isWordCharacter(escaped))
                return false; // \d, \w, \b, ...: a class or an assertion, not a character
            else
                result.append(escaped);
        } else if (isWordCharacter(c) || c.unicode() >= 0x80) {
            result.append(c);
        } else {
            return false;
        }
    }
    *literal = result;
    return true;
}
