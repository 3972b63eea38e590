/*!
 * \file network/qmacaddressvalidator.h
 * QMacAddressValidator, which judges a MAC address as it is typed.
 */
#pragma once

#include "zarvexviewercomponents_export.h"

#include <QString>
#include <QValidator>

/*!
 * Judges a MAC address: twelve hexadecimal digits, in either case, with any
 * number of separators from allowedSeperators() anywhere between them, in
 * any mix. An empty text is Acceptable, so the field may stay empty.
 *
 * A character that is neither a digit nor a separator is Invalid, and pos is
 * then moved onto it; a thirteenth digit is Invalid too, with pos left alone.
 * The text is never changed.
 */
class ZVC_EXPORT QMacAddressValidator : public QValidator
{
    Q_OBJECT
    //! The characters allowed between the digits.
    Q_PROPERTY(QString allowedSeperators READ allowedSeperators WRITE setAllowedSeperators)

public:
    //! A validator allowing space, colon and hyphen as separators.
    explicit QMacAddressValidator(QObject* parent = nullptr);

    //! Acceptable for twelve digits or an empty text, Intermediate for fewer, Invalid otherwise; see the class.
    State validate(QString& input, int& pos) const override;

    //! The characters allowed between the digits; space, colon and hyphen at first.
    QString allowedSeperators() const;
    //! Sets the characters allowed between the digits.
    void setAllowedSeperators(QString seperators);

private:
    QString m_allowedSeperators;
};
