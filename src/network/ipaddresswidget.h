/*!
 * \file network/ipaddresswidget.h
 * IpAddressWidget, the dialog that asks for a camera's IP configuration.
 */
#pragma once

#include "zarvexviewercomponents_export.h"

#include <QDialog>
#include <QHostAddress>
#include <QString>

class QIpAddressWithNetmaskValidator;
class QShowEvent;
class Ui_IpAddressWidgetClass;

/*!
 * Asks for a camera's IP configuration: address, subnet mask and default
 * gateway, and optionally a MAC address.
 *
 * The fields never block typing on the way to a value, but OK stays off until
 * the whole set is coherent: a usable unicast address that is neither the
 * network nor the broadcast address of its subnet, a complete mask, a gateway
 * in form (or none) and, when shown, a complete MAC address or none. Leaving
 * the address field fills an empty mask with the address's classful default
 * and an empty gateway with 0.0.0.0, unless the user has typed in that field
 * since the dialog was last shown. An accepted dialog always has a gateway
 * text.
 *
 * The allow... flags are kept for the getters and handed on to the address
 * field's validator when that field carries one that takes them; the address
 * judged for OK always refuses broadcast and multicast addresses.
 */
class ZVC_EXPORT IpAddressWidget : public QDialog
{
    Q_OBJECT
    //! The text of the address field.
    Q_PROPERTY(QString ipAddress READ ipAddress WRITE setIpAddress)
    //! The text of the subnet mask field.
    Q_PROPERTY(QString subnetMask READ subnetMask WRITE setSubnetMask)
    //! The text of the default gateway field.
    Q_PROPERTY(QString defaultGateway READ defaultGateway WRITE setDefaultGateway)
    //! The text of the MAC address field.
    Q_PROPERTY(QString macAddress READ macAddress WRITE setMacAddress)
    //! Whether the MAC address row is shown; off at first.
    Q_PROPERTY(bool showMacAddress READ showMacAddress WRITE setShowMacAddress)
    //! Kept for the getter and handed on to the address field's validator, where it has one that takes it.
    Q_PROPERTY(bool allowBroadcastAddress READ allowBroadcastAddress WRITE setAllowBroadcastAddress)
    //! Kept for the getter and handed on to the address field's validator, where it has one that takes it.
    Q_PROPERTY(bool allowMulticastAddress READ allowMulticastAddress WRITE setAllowMulticastAddress)
    //! Kept for the getter and handed on to the address field's validator, where it has one that takes it.
    Q_PROPERTY(bool allowExperiemntalPurposeAddress READ allowExperiemntalPurposeAddress WRITE
            setAllowExperiemntalPurposeAddress)

public:
    //! An empty dialog titled "IP Address", with OK and Cancel, the MAC row hidden.
    explicit IpAddressWidget(QWidget* parent = nullptr);
    ~IpAddressWidget() override;

    //! The text of the address field.
    QString ipAddress() const;
    //! Sets the address field and judges OK again.
    void setIpAddress(const QString& address);
    //! The text of the subnet mask field.
    QString subnetMask() const;
    //! Sets the subnet mask field and judges OK again.
    void setSubnetMask(const QString& mask);
    //! The text of the default gateway field.
    QString defaultGateway() const;
    //! Sets the default gateway field and judges OK again.
    void setDefaultGateway(const QString& gateway);
    //! The text of the MAC address field.
    QString macAddress() const;
    //! Sets the MAC address field and judges OK again.
    void setMacAddress(const QString& address);

    //! Whether the MAC address row is shown.
    bool showMacAddress() const;
    //! Shows or hides the MAC row; OK is judged again on the next edit or showing.
    void setShowMacAddress(bool show);

    //! The flag as last set; false at first.
    bool allowBroadcastAddress() const;
    //! Keeps the flag (see the class).
    void setAllowBroadcastAddress(bool allow);
    //! The flag as last set; false at first.
    bool allowMulticastAddress() const;
    //! Keeps the flag (see the class).
    void setAllowMulticastAddress(bool allow);
    //! The flag as last set; false at first.
    bool allowExperiemntalPurposeAddress() const;
    //! Keeps the flag (see the class).
    void setAllowExperiemntalPurposeAddress(bool allow);

    //! The sentence above the fields.
    QString headerText() const;
    //! Sets the sentence above the fields; "Please specify an IP address." at first.
    void setHeaderText(const QString& text);

    //! The classful default mask: 255.0.0.0 for class A (and for an empty or
    //! unreadable text), 255.255.0.0 for B, 255.255.255.0 for C, and a null
    //! address for classes D and E, which have none.
    static QHostAddress subnetFromAddress(const QHostAddress& address);
    //! The same for an address given as text.
    static QHostAddress subnetFromAddress(const QString& address);

public slots:
    //! Fills an empty gateway with 0.0.0.0, then accepts.
    void accept() override;

protected:
    //! Makes the mask and gateway suggestions active again and judges OK.
    void showEvent(QShowEvent* event) override;
    //! Leaving the address field suggests mask and gateway; leaving the mask field turns "/24" into a dotted mask.
    bool eventFilter(QObject* watched, QEvent* event) override;

private slots:
    void on_editIpAddress_editingFinished();
    void on_editNetmask_editingFinished();
    void on_editIpAddress_textEdited();
    void on_editMacAddress_textEdited();
    void on_editNetmask_textEdited();
    void on_editDefaultGateway_textEdited();

private:
    void enableButtons();
    QIpAddressWithNetmaskValidator* addressFieldValidator() const;

    Ui_IpAddressWidgetClass* ui;
    bool m_netmaskEdited = false;
    bool m_gatewayEdited = false;
    bool m_allowBroadcastAddress = false;
    bool m_allowMulticastAddress = false;
    bool m_allowExperiemntalPurposeAddress = false;
    bool m_showMacAddress = false;
    QIpAddressWithNetmaskValidator* m_addressCheck = nullptr;
};
