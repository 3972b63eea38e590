#pragma once

#include "zarvexviewercomponents_export.h"

#include <QColor>
#include <QPair>
#include <QString>
#include <QVector>

/*!
 * The present search text and the colour of its marks. Finds the matches in
 * a text, case-insensitively, as ranges for painting and as rich text for
 * tool tips. The colour comes from the settings ("FeatureTree/HighlightColor")
 * once, at construction.
 */
class ZVC_EXPORT FeatureTreeHighlighter
{
public:
    FeatureTreeHighlighter();

    void setTextToHighlight(QString const& text);
    int getTextToHighlightLength() const;
    QColor getHighlightColor() const;
    //! (start, end) of every match, end one past the last character; matches don't overlap.
    QVector<QPair<int, int>> getIndiceesToHighlight(QString const& text) const;
    //! text with every match wrapped in a coloured, bold span; the matched characters keep their case.
    QString highlightText(QString const& text) const;

private:
    QString m_textToHighlight;
    QColor m_highlightColor;
};
