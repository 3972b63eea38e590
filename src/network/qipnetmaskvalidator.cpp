#include "qipnetmaskvalidator.h"

#include "qipaddressvalidator.h"

#include <QHostAddress>

namespace {

// The mask with `ones` leading one bits, for 0 to 32 ones.
quint32 maskOfLength(int ones)
{
    // Shifting a 32-bit value by 32 is undefined; work in 64 bits.
    return quint32((quint64(0xFFFFFFFFu) << (32 - ones)) & 0xFFFFFFFFu);
}

} // namespace

QIpNetmaskValidator::QIpNetmaskValidator(QObject* parent)
    : QValidator(parent)
{
}

QValidator::State QIpNetmaskValidator::validate(QString& input, int& pos) const
{
    QString text = input.simplified();
    if (text.startsWith(QLatin1Char('/'))) {
        bool ok = false;
        const int length = QStringView(text).mid(1).toInt(&ok);
        return ok && length >= 0 && length <= 32 ? Acceptable : Intermediate;
    }

    int addressPos = pos;
    const State addressState = QIpAddressValidator().validate(text, addressPos);
    if (addressState != Acceptable)
        return addressState;

    QHostAddress address;
    if (!address.setAddress(text))
        return Invalid;

    // A run of ones from the top, then zeros only: the inverted mask plus one
    // is then a power of two (or zero for an all-ones mask).
    const quint32 mask = address.toIPv4Address();
    const quint32 hostBits = ~mask;
    if ((hostBits & (hostBits + 1)) != 0)
        return Intermediate;
    int ones = 0;
    for (quint32 bits = mask; bits & 0x80000000u; bits <<= 1)
        ++ones;
    return ones >= 1 && ones <= 30 ? Acceptable : Intermediate;
}

void QIpNetmaskValidator::fixup(QString& input) const
{
    // The judgement decides nothing here; it is asked so that a subclass's
    // validate() sees every text that passes through fixup().
    int pos = 0;
    validate(input, pos);

    const QString text = input.trimmed();
    if (!text.startsWith(QLatin1Char('/')) || text.size() > 3)
        return;

    // What doesn't read as a number counts as 0: a lone "/" becomes 0.0.0.0.
    const int length = QStringView(text).mid(1).toInt();
    if (length < 0 || length > 32)
        return;
    input = QHostAddress(maskOfLength(length)).toString();
}
