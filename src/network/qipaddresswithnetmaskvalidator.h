/*!
 * \file network/qipaddresswithnetmaskvalidator.h
 * QIpAddressWithNetmaskValidator, which judges what an IPv4 address may be
 * used as, within the subnet of a mask field.
 */
#pragma once

#include "zarvexviewercomponents_export.h"

#include <QValidator>

class QLineEdit;

/*!
 * Judges an IPv4 address for what it may be used as: by default no null,
 * loopback, broadcast, multicast or experimental address is Acceptable, and,
 * with a netmask line edit given, neither is the network or broadcast address
 * of the subnet that its current text describes. An address can't be
 * accepted while that mask is incomplete.
 *
 * Every such doubt is Intermediate, so the user may always type on; only what
 * the plain address check refuses outright is Invalid. The netmask's text is
 * read on each call. validate() changes neither the text nor the cursor
 * position.
 */
class ZVC_EXPORT QIpAddressWithNetmaskValidator : public QValidator
{
    Q_OBJECT
    //! 127.x.x.x is Acceptable; nothing further is then checked.
    Q_PROPERTY(bool allowLoopbackAddress READ allowLoopbackAddress WRITE setAllowLoopbackAddress)
    //! An empty text and 0.0.0.0 are Acceptable.
    Q_PROPERTY(bool allowNullAddress READ allowNullAddress WRITE setAllowNullAddress)
    //! 255.255.255.255 may pass, and the subnet's network and broadcast addresses are not checked.
    Q_PROPERTY(bool allowBroadcastAddress READ allowBroadcastAddress WRITE setAllowBroadcastAddress)
    //! Multicast addresses (224.0.0.0 to 239.255.255.255) may pass.
    Q_PROPERTY(bool allowMulticastAddress READ allowMulticastAddress WRITE setAllowMulticastAddress)
    //! Experimental addresses (240.0.0.0 and up) may pass.
    Q_PROPERTY(bool allowExperimentalPurposeAddress READ allowExperimentalPurposeAddress WRITE
            setAllowExperimentalPurposeAddress)

public:
    //! netmaskEdit is not owned and may be null: then no subnet is checked.
    explicit QIpAddressWithNetmaskValidator(const QLineEdit* netmaskEdit, QObject* parent = nullptr);

    //! Acceptable for an address that may be used as the flags and the mask say; see the class.
    State validate(QString& input, int& pos) const override;

    //! Whether loopback addresses are Acceptable; false at first.
    bool allowLoopbackAddress() const;
    //! Lets loopback addresses pass or not.
    void setAllowLoopbackAddress(bool allow);
    //! Whether the null address and an empty text are Acceptable; false at first.
    bool allowNullAddress() const;
    //! Lets the null address and an empty text pass or not.
    void setAllowNullAddress(bool allow);
    //! Whether broadcast addresses may pass; false at first.
    bool allowBroadcastAddress() const;
    //! Lets broadcast addresses pass or not.
    void setAllowBroadcastAddress(bool allow);
    //! Whether multicast addresses may pass; false at first.
    bool allowMulticastAddress() const;
    //! Lets multicast addresses pass or not.
    void setAllowMulticastAddress(bool allow);
    //! Whether experimental addresses may pass; false at first.
    bool allowExperimentalPurposeAddress() const;
    //! Lets experimental addresses pass or not.
    void setAllowExperimentalPurposeAddress(bool allow);

private:
    const QLineEdit* m_netmaskEdit;
    bool m_allowLoopbackAddress = false;
    bool m_allowNullAddress = false;
    bool m_allowBroadcastAddress = false;
    bool m_allowMulticastAddress = false;
    bool m_allowExperimentalPurposeAddress = false;
};
