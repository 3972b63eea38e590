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
    Q_PROPERTY(QString ipAddress READ ipAddress WRITE setIpAddress)
    Q_PROPERTY(QString subnetMask READ subnetMask WRITE setSubnetMask)
    Q_PROPERTY(QString defaultGateway READ defaultGateway WRITE setDefaultGateway)
    Q_PROPERTY(QString macAddress READ macAddress WRITE setMacAddress)
    Q_PROPERTY(bool showMacAddress READ showMacAddress WRITE setShowMacAddress)
    Q_PROPERTY(bool allowBroadcastAddress READ allowBroadcastAddress WRITE setAllowBroadcastAddress)
    Q_PROPERTY(bool allowMulticastAddress READ allowMulticastAddress WRITE setAllowMulticastAddress)
    Q_PROPERTY(bool allowExperiemntalPurposeAddress READ allowExperiemntalPurposeAddress WRITE
            setAllowExperiemntalPurposeAddress)

public:
    explicit IpAddressWidget(QWidget* parent = nullptr);
    ~IpAddressWidget() override;

    QString ipAddress() const;
    void setIpAddress(const QString& address);
    QString subnetMask() const;
    void setSubnetMask(const QString& mask);
    QString defaultGateway() const;
    void setDefaultGateway(const QString& gateway);
    QString macAddress() const;
    void setMacAddress(const QString& address);

    bool showMacAddress() const;
    //! Shows or hides the MAC row; OK is judged again on the next edit or showing.
    void setShowMacAddress(bool show);

    bool allowBroadcastAddress() const;
    void setAllowBroadcastAddress(bool allow);
    bool allowMulticastAddress() const;
    void setAllowMulticastAddress(bool allow);
    bool allowExperiemntalPurposeAddress() const;
    void setAllowExperiemntalPurposeAddress(bool allow);

    //! The sentence above the fields.
    QString headerText() const;
    void setHeaderText(const QString& text);

    //! The classful default mask: 255.0.0.0 for class A (and for an empty or
    //! unreadable text), 255.255.0.0 for B, 255.255.255.0 for C, and a null
    //! address for classes D and E, which have none.
    static QHostAddress subnetFromAddress(const QHostAddress& address);
    static QHostAddress subnetFromAddress(const QString& address);

public slots:
    void accept() override;

protected:
    void showEvent(QShowEvent* event) override;
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
