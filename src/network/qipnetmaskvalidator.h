/*!
 * \file network/qipnetmaskvalidator.h
 * QIpNetmaskValidator, which judges a subnet mask, dotted or as a prefix length.
 */
#pragma once

#include "zarvexviewercomponents_export.h"

#include <QValidator>

/*!
 * Judges a subnet mask, either dotted ("255.255.255.0") or as a prefix
 * length after a slash ("/24").
 *
 * A dotted mask is Acceptable when its bits are a run of 1 to 30 ones
 * followed only by zeros; a gap in the ones, 255.255.255.254 and
 * 255.255.255.255 are Intermediate. The slash form is Acceptable for every
 * length from 0 to 32, so /31 and /32 pass while their dotted forms don't.
 *
 * fixup() turns the slash form into the dotted one; validate() changes
 * neither the text nor the cursor position.
 */
class ZVC_EXPORT QIpNetmaskValidator : public QValidator
{
    Q_OBJECT

public:
    //! A validator with nothing to set.
    explicit QIpNetmaskValidator(QObject* parent = nullptr);

    //! Acceptable for a usable mask in either form; see the class for what is Intermediate.
    State validate(QString& input, int& pos) const override;
    //! Turns the slash form of at most three characters into the dotted mask ("/24" into
    //! "255.255.255.0"; a slash without a number counts as "/0"); leaves any other text alone.
    void fixup(QString& input) const override;
};
