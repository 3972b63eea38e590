#include "qmacaddressvalidator.h"

namespace {

// ASCII only: QChar's own digit test would let other scripts' digits through.
bool isHexDigit(QChar c)
{
    const ushort u = c.unicode();
    return (u >= '0' && u <= '9') || (u >= 'a' && u <= 'f') || (u >= 'A' && u <= 'F');
}

} // namespace

QMacAddressValidator::QMacAddressValidator(QObject* parent)
    : QValidator(parent)
    , m_allowedSeperators(QStringLiteral(" :-"))
{
}

QValidator::State QMacAddressValidator::validate(QString& input, int& pos) const
{
    if (input.isEmpty())
        return Acceptable;

    int digits = 0;
    for (int i = 0; i < input.size(); ++i) {
        const QChar c = input.at(i);
        if (isHexDigit(c))
            ++digits;
        else if (!m_allowedSeperators.contains(c)) {
            pos = i;
            return Invalid;
        }
    }

    if (digits < 12)
        return Intermediate;
    return digits == 12 ? Acceptable : Invalid;
}

QString QMacAddressValidator::allowedSeperators() const
{
    return m_allowedSeperators;
}

void QMacAddressValidator::setAllowedSeperators(QString seperators)
{
    m_allowedSeperators = seperators;
}
