/*!
 * \file network/qipaddressvalidator.h
 * QIpAddressValidator, which judges a dotted IPv4 address as it is typed.
 */
#pragma once

#include "zarvexviewercomponents_export.h"

#include <QValidator>

/*!
 * Judges a dotted IPv4 address while it is typed.
 *
 * Only what can never become an address is Invalid: a fourth dot, or four
 * complete parts that don't read as an IPv4 address (such as 300.1.1.1).
 * Everything on the way to an address is Intermediate, and so is an address
 * below 256 (0.0.0.x), which no device is given.
 *
 * validate() changes neither the text nor the cursor position.
 */
class ZVC_EXPORT QIpAddressValidator : public QValidator
{
    Q_OBJECT

public:
    //! A validator with nothing to set.
    explicit QIpAddressValidator(QObject* parent = nullptr);

    //! Invalid, Intermediate or Acceptable, as the class tells.
    State validate(QString& input, int& pos) const override;
};
