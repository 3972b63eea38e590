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
    Q_PROPERTY(bool allowLoopbackAddress READ allowLoopbackAddress WRITE setAllowLoopbackAddress)
    Q_PROPERTY(bool allowNullAddress READ allowNullAddress WRITE setAllowNullAddress)
    Q_PROPERTY(bool allowBroadcastAddress READ allowBroadcastAddress WRITE setAllowBroadcastAddress)
    Q_PROPERTY(bool allowMulticastAddress READ allowMulticastAddress WRITE setAllowMulticastAddress)
    Q_PROPERTY(bool allowExperimentalPurposeAddress READ allowExperimentalPurposeAddress WRITE
            setAllowExperimentalPurposeAddress)

public:
    //! netmaskEdit is not owned and may be null: then no subnet is checked.
    explicit QIpAddressWithNetmaskValidator(const QLineEdit* netmaskEdit, QObject* parent = nullptr);

    State validate(QString& input, int& pos) const override;

    bool allowLoopbackAddress() const;
    void setAllowLoopbackAddress(bool allow);
    bool allowNullAddress() const;
    void setAllowNullAddress(bool allow);
    bool allowBroadcastAddress() const;
    void setAllowBroadcastAddress(bool allow);
    bool allowMulticastAddress() const;
    void setAllowMulticastAddress(bool allow);
    bool allowExperimentalPurposeAddress() const;
    void setAllowExperimentalPurposeAddress(bool allow);

private:
    const QLineEdit* m_netmaskEdit;
    bool m_allowLoopbackAddress = false;
    bool m_allowNullAddress = false;
    bool m_allowBroadcastAddress = false;
    bool m_allowMulticastAddress = false;
    bool m_allowExperimentalPurposeAddress = false;
};
