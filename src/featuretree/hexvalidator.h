#pragma once

#include "zarvexviewercomponents_export.h"

#include <QIntValidator>

/*!
 * An integer validator that also takes hexadecimal input with the exact
 * prefix "0x". A hexadecimal number is held to the decimal limits once
 * converted; an upper-case prefix is read as decimal and so refused.
 */
class ZVC_EXPORT HexValidator : public QIntValidator
{
    Q_OBJECT

public:
    HexValidator(int minimum, int maximum, QObject* parent = nullptr);
    ~HexValidator() override;

    QValidator::State validate(QString& input, int& pos) const override;
};
