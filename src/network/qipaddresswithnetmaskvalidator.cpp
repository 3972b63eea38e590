#include "qipaddresswithnetmaskvalidator.h"

#include "qipaddressvalidator.h"
#include "qipnetmaskvalidator.h"

#include <QHostAddress>
#include <QLineEdit>

QIpAddressWithNetmaskValidator::QIpAddressWithNetmaskValidator(const QLineEdit* netmaskEdit, QObject* parent)
    : QValidator(parent)
    , m_netmaskEdit(netmaskEdit)
{
}

QValidator::State QIpAddressWithNetmaskValidator::validate(QString& input, int& pos) const
{
    const State nullState = m_allowNullAddress ? Acceptable : Intermediate;
    if (input.trimmed().isEmpty())
        return nullState;

    QHostAddress address;
    if (!address.setAddress(input))
        return Intermediate;

    // Only an IPv4 text is a number here; an IPv6 text goes on to the form
    // check below, which refuses it.
    if (address.protocol() == QAbstractSocket::IPv4Protocol && address.toIPv4Address() == 0)
        return nullState;

    int addressPos = pos;
    const State formState = QIpAddressValidator().validate(input, addressPos);
    if (formState != Acceptable)
        return formState;
    if (address.protocol() != QAbstractSocket::IPv4Protocol)
        return Intermediate;

    const quint32 value = address.toIPv4Address();
    if ((value >> 24) == 127)
        return m_allowLoopbackAddress ? Acceptable : Intermediate;
    if (!m_allowMulticastAddress && (value >> 28) == 0xE)
        return Intermediate;
    if (!m_allowExperimentalPurposeAddress && (value >> 28) == 0xF)
        return Intermediate;
    if (!m_allowBroadcastAddress && value == 0xFFFFFFFFu)
        return Intermediate;

    if (!m_netmaskEdit)
        return Acceptable;

    QString maskText = m_netmaskEdit->text();
    int maskPos = 0;
    if (QIpNetmaskValidator().validate(maskText, maskPos) != Acceptable)
        return Intermediate;
    if (m_allowBroadcastAddress)
        return Acceptable;

    // A mask still in the slash form reads as 0 here, which makes the subnet
    // the whole address space; the dialog turns it into dotted form when the
    // field is left.
    const quint32 mask = QHostAddress(maskText).toIPv4Address();
    const quint32 network = value & mask;
    const quint32 broadcast = network | ~mask;
    if (value == network || value == broadcast)
        return Intermediate;
    return Acceptable;
}

bool QIpAddressWithNetmaskValidator::allowLoopbackAddress() const
{
    return m_allowLoopbackAddress;
}

void QIpAddressWithNetmaskValidator::setAllowLoopbackAddress(bool allow)
{
    m_allowLoopbackAddress = allow;
}

bool QIpAddressWithNetmaskValidator::allowNullAddress() const
{
    return m_allowNullAddress;
}

void QIpAddressWithNetmaskValidator::setAllowNullAddress(bool allow)
{
    m_allowNullAddress = allow;
}

bool QIpAddressWithNetmaskValidator::allowBroadcastAddress() const
{
    return m_allowBroadcastAddress;
}

void QIpAddressWithNetmaskValidator::setAllowBroadcastAddress(bool allow)
{
    m_allowBroadcastAddress = allow;
}

bool QIpAddressWithNetmaskValidator::allowMulticastAddress() const
{
    return m_allowMulticastAddress;
}

void QIpAddressWithNetmaskValidator::setAllowMulticastAddress(bool allow)
{
    m_allowMulticastAddress = allow;
}

bool QIpAddressWithNetmaskValidator::allowExperimentalPurposeAddress() const
{
    return m_allowExperimentalPurposeAddress;
}

void QIpAddressWithNetmaskValidator::setAllowExperimentalPurposeAddress(bool allow)
{
    m_allowExperimentalPurposeAddress = allow;
}
