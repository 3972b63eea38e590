#include "featuretreehighlighter.h"

#include "settingswrite.h"

#include <QSettings>

namespace {
const char* const defaultHighlightColor = "#ffff50";
}

FeatureTreeHighlighter::FeatureTreeHighlighter()
{
    const QString key = QStringLiteral("HighlightColor");
    QSettings settings;
    settings.beginGroup(QStringLiteral("FeatureTree"));
    const QVariant stored = settings.value(key);
    m_highlightColor.setNamedColor(stored.isValid() ? stored.toString() : QLatin1String(defaultHighlightColor));
    if (!m_highlightColor.isValid())
        m_highlightColor.setNamedColor(QLatin1String(defaultHighlightColor));
    // Written back, so that after the first run the key is there to be edited;
    // not again when it holds that text, as every view makes a highlighter.
    setIfDifferent(settings, key, m_highlightColor.name());
    settings.endGroup();
}

void FeatureTreeHighlighter::setTextToHighlight(QString const& text)
{
    m_textToHighlight = text;
}

int FeatureTreeHighlighter::getTextToHighlightLength() const
{
    return m_textToHighlight.length();
}

QColor FeatureTreeHighlighter::getHighlightColor() const
{
    return m_highlightColor;
}

QVector<QPair<int, int>> FeatureTreeHighlighter::getIndiceesToHighlight(QString const& text) const
{
    QVector<QPair<int, int>> ranges;
    if (m_textToHighlight.isEmpty())
        return ranges;
    const int length = m_textToHighlight.length();
    int from = 0;
    while (from <= text.length()) {
        const int start = text.indexOf(m_textToHighlight, from, Qt::CaseInsensitive);
        if (start < 0)
            break;
        ranges.append(qMakePair(start, start + length));
        from = start + length;
    }
    return ranges;
}

QString FeatureTreeHighlighter::highlightText(QString const& text) const
{
    if (m_textToHighlight.isEmpty())
        return text;
    const QString open = QStringLiteral("<span style='background-color: ") + m_highlightColor.name()
        + QStringLiteral("; font-weight:bold'>");
    const QString close = QStringLiteral("</span>");
    const int length = m_textToHighlight.length();
    QString result = text;
    int position = result.indexOf(m_textToHighlight, 0, Qt::CaseInsensitive);
    while (position >= 0) {
        // The marks just put in are behind the search position and are never searched.
        const QString replacement = open + result.mid(position, length) + close;
        result.replace(position, length, replacement);
        position = result.indexOf(m_textToHighlight, position + replacement.length(), Qt::CaseInsensitive);
    }
    return result;
}
