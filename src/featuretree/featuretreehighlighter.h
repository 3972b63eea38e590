/*!
 * \file featuretree/featuretreehighlighter.h
 * FeatureTreeHighlighter, the search text of a feature tree and the marks it
 * puts on names and tool tips.
 */
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
 *
 * The colour defaults to a light yellow, and is written back to the settings
 * in its hexadecimal form, so that the key exists after the first run for a
 * user to change. Each FeatureTreeView holds one highlighter. Not a QObject.
 */
class ZVC_EXPORT FeatureTreeHighlighter
{
public:
    //! Reads the colour from the settings, falling back to the default for a value that names no colour.
    FeatureTreeHighlighter();

    //! The search text to mark from now on; an empty text marks nothing.
    void setTextToHighlight(QString const& text);
    //! The length of the search text, in characters.
    int getTextToHighlightLength() const;
    //! The colour of the marks.
    QColor getHighlightColor() const;
    //! (start, end) of every match, end one past the last character; matches don't overlap.
    QVector<QPair<int, int>> getIndiceesToHighlight(QString const& text) const;
    //! text with every match wrapped in a coloured, bold span; the matched characters keep their case.
    QString highlightText(QString const& text) const;

private:
    QString m_textToHighlight;
    QColor m_highlightColor;
};
