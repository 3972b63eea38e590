/*!
 * \file featuretree/hexvalidator.h
 * HexValidator, an integer validator that takes hexadecimal input too.
 */
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
    //! A validator of the decimal range minimum to maximum.
    HexValidator(int minimum, int maximum, QObject* parent = nullptr);
    ~HexValidator() override;

    /*!
     * Intermediate for an empty text and a bare "0x"; Invalid for a text that
     * doesn't read as a number; otherwise QIntValidator's judgement of the
     * number in decimal. Changes neither the text nor pos.
     */
    QValidator::State validate(QString& input, int& pos) const override;
};
