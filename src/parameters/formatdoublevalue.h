/*!
 * \file parameters/formatdoublevalue.h
 * formatDoubleValue(), the number formatting of the float widgets' boxes and
 * tool tips.
 */
#pragma once

#include "zarvexviewercomponents_export.h"

#include <QFlags>
#include <QLocale>
#include <QString>

//! Notation of formatDoubleValue.
enum FormatValueFlag {
    FormatFixed = 0x1, //!< ordinary values: fixed point with the given decimals
    FormatLarge = 0x2 //!< very large values: exponent notation with the given decimals
};
//! A combination of FormatValueFlag values.
Q_DECLARE_FLAGS(FormatValueFlags, FormatValueFlag)
Q_DECLARE_OPERATORS_FOR_FLAGS(FormatValueFlags)

/*!
 * Renders value as text in locale, without group separators so that the text
 * reads back. FormatLarge wins over FormatFixed; no flag means FormatFixed.
 * A negative precision counts as 0. NaN and infinities are rendered as the
 * locale renders them.
 */
ZVC_EXPORT QString formatDoubleValue(double value, int precision, QFlags<FormatValueFlag> flags, const QLocale& locale);
