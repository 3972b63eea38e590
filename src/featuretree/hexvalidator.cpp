#include "hexvalidator.h"

HexValidator::HexValidator(int minimum, int maximum, QObject* parent)
    : QIntValidator(minimum, maximum, parent)
{
}

HexValidator::~HexValidator() = default;

QValidator::State HexValidator::validate(QString& input, int& pos) const
{
    if (input.isEmpty())
        return QValidator::Intermediate;
    if (input.trimmed() == QLatin1String("0x"))
        return QValidator::Intermediate;
    const int base = input.startsWith(QLatin1String("0x")) ? 16 : 10;
    bool ok = false;
    const int number = input.toInt(&ok, base);
    if (!ok)
        return QValidator::Invalid;
    // The base class judges the decimal form; the user's text stays as typed.
    QString decimal = QString::number(number);
    return QIntValidator::validate(decimal, pos);
}
