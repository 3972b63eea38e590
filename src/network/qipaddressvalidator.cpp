#include "qipaddressvalidator.h"

#include <QHostAddress>
#include <QStringList>

QIpAddressValidator::QIpAddressValidator(QObject* parent)
    : QValidator(parent)
{
}

QValidator::State QIpAddressValidator::validate(QString& input, int& /*pos*/) const
{
    const int dots = input.count(QLatin1Char('.'));
    if (dots > 3)
        return Invalid;
    if (dots < 3)
        return Intermediate;

    const QStringList parts = input.split(QLatin1Char('.'), Qt::KeepEmptyParts);
    for (const QString& part : parts) {
        if (part.trimmed().isEmpty())
            return Intermediate;
    }

    QHostAddress address;
    if (!address.setAddress(input) || address.protocol() != QAbstractSocket::IPv4Protocol)
        return Invalid;

    // 0.0.0.x: the three high bytes are still zero.
    if (address.toIPv4Address() < 256)
        return Intermediate;
    return Acceptable;
}
