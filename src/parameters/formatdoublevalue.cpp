#include "formatdoublevalue.h"

QString formatDoubleValue(double value, int precision, QFlags<FormatValueFlag> flags, const QLocale& locale)
{
    QLocale plain(locale);
    plain.setNumberOptions(locale.numberOptions() | QLocale::OmitGroupSeparator);
    const int decimals = qBound(0, precision, 17);
    if (flags.testFlag(FormatLarge))
        return plain.toString(value, 'e', decimals);
    return plain.toString(value, 'f', decimals);
}
