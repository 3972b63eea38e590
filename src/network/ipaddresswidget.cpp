#include "ipaddresswidget.h"

#include "qipaddressvalidator.h"
#include "qipaddresswithnetmaskvalidator.h"
#include "qipnetmaskvalidator.h"
#include "qmacaddressvalidator.h"
#include "ui_ipaddresswidget.h"

#include <QFocusEvent>
#include <QPushButton>

IpAddressWidget::IpAddressWidget(QWidget* parent)
    : QDialog(parent)
    , ui(new Ui_IpAddressWidgetClass)
{
    ui->setupUi(this);
    // No "?" button: the dialog has no help to offer.
    setWindowFlags(Qt::Dialog | Qt::WindowCloseButtonHint);

    ui->editMacAddress->setValidator(new QMacAddressValidator(this));
    ui->editIpAddress->setValidator(new QIpAddressValidator(this));
    ui->editNetmask->setValidator(new QIpNetmaskValidator(this));
    auto* gatewayValidator = new QIpAddressWithNetmaskValidator(ui->editNetmask, this);
    gatewayValidator->setAllowNullAddress(true);
    ui->editDefaultGateway->setValidator(gatewayValidator);

    // The address field's own validator judges only the form, so that any
    // address can be typed; this one decides whether it may be committed.
    m_addressCheck = new QIpAddressWithNetmaskValidator(ui->editNetmask, this);
    m_addressCheck->setAllowBroadcastAddress(m_allowBroadcastAddress);
    m_addressCheck->setAllowMulticastAddress(m_allowMulticastAddress);

    connect(ui->buttonBox, SIGNAL(accepted()), this, SLOT(accept()));
    connect(ui->buttonBox, SIGNAL(rejected()), this, SLOT(reject()));

    // QLineEdit announces editingFinished only for acceptable text, and some
    // Qt builds only when the text was edited since; the mask and gateway are
    // suggested on every leaving of the field, also of an empty, unfinished
    // or untouched address. Filling twice changes nothing the second time.
    // Likewise a mask in slash form is put in dotted form on every leaving.
    ui->editIpAddress->installEventFilter(this);
    ui->editNetmask->installEventFilter(this);

    setShowMacAddress(m_showMacAddress);
}

IpAddressWidget::~IpAddressWidget()
{
    delete ui;
}

QString IpAddressWidget::ipAddress() const
{
    return ui->editIpAddress->text();
}

void IpAddressWidget::setIpAddress(const QString& address)
{
    ui->editIpAddress->setText(address);
    enableButtons();
}

QString IpAddressWidget::subnetMask() const
{
    return ui->editNetmask->text();
}

void IpAddressWidget::setSubnetMask(const QString& mask)
{
    ui->editNetmask->setText(mask);
    enableButtons();
}

QString IpAddressWidget::defaultGateway() const
{
    return ui->editDefaultGateway->text();
}

void IpAddressWidget::setDefaultGateway(const QString& gateway)
{
    ui->editDefaultGateway->setText(gateway);
    enableButtons();
}

QString IpAddressWidget::macAddress() const
{
    return ui->editMacAddress->text();
}

void IpAddressWidget::setMacAddress(const QString& address)
{
    ui->editMacAddress->setText(address);
    enableButtons();
}

bool IpAddressWidget::showMacAddress() const
{
    return m_showMacAddress;
}

void IpAddressWidget::setShowMacAddress(bool show)
{
    m_showMacAddress = show;
    ui->editMacAddress->setVisible(show);
    ui->labelMacAddress->setVisible(show);
}

bool IpAddressWidget::allowBroadcastAddress() const
{
    return m_allowBroadcastAddress;
}

void IpAddressWidget::setAllowBroadcastAddress(bool allow)
{
    m_allowBroadcastAddress = allow;
    if (QIpAddressWithNetmaskValidator* validator = addressFieldValidator())
        validator->setAllowBroadcastAddress(allow);
}

bool IpAddressWidget::allowMulticastAddress() const
{
    return m_allowMulticastAddress;
}

void IpAddressWidget::setAllowMulticastAddress(bool allow)
{
    m_allowMulticastAddress = allow;
    if (QIpAddressWithNetmaskValidator* validator = addressFieldValidator())
        validator->setAllowMulticastAddress(allow);
}

bool IpAddressWidget::allowExperiemntalPurposeAddress() const
{
    return m_allowExperiemntalPurposeAddress;
}

void IpAddressWidget::setAllowExperiemntalPurposeAddress(bool allow)
{
    m_allowExperiemntalPurposeAddress = allow;
    if (QIpAddressWithNetmaskValidator* validator = addressFieldValidator())
        validator->setAllowExperimentalPurposeAddress(allow);
}

QString IpAddressWidget::headerText() const
{
    return ui->labelHeader->text();
}

void IpAddressWidget::setHeaderText(const QString& text)
{
    ui->labelHeader->setText(text);
}

QHostAddress IpAddressWidget::subnetFromAddress(const QHostAddress& address)
{
    const quint32 value = address.toIPv4Address();
    if ((value & 0x80000000u) == 0)
        return QHostAddress(QStringLiteral("255.0.0.0"));
    if ((value & 0xC0000000u) == 0x80000000u)
        return QHostAddress(QStringLiteral("255.255.0.0"));
    if ((value & 0xE0000000u) == 0xC0000000u)
        return QHostAddress(QStringLiteral("255.255.255.0"));
    return QHostAddress();
}

QHostAddress IpAddressWidget::subnetFromAddress(const QString& address)
{
    // An empty or unreadable text stays a null address, whose value is 0.
    return subnetFromAddress(QHostAddress(address));
}

void IpAddressWidget::accept()
{
    if (ui->editDefaultGateway->text().isEmpty())
        ui->editDefaultGateway->setText(QStringLiteral("0.0.0.0"));
    QDialog::accept();
}

void IpAddressWidget::showEvent(QShowEvent* event)
{
    // Each showing starts with the automatic filling active again.
    m_netmaskEdited = false;
    m_gatewayEdited = false;
    enableButtons();
    QDialog::showEvent(event);
}

bool IpAddressWidget::eventFilter(QObject* watched, QEvent* event)
{
    // The user leaving the field, not a context menu opening or the window
    // going to the background.
    if (event->type() == QEvent::FocusOut) {
        const Qt::FocusReason reason = static_cast<QFocusEvent*>(event)->reason();
        const bool left = reason != Qt::PopupFocusReason && reason != Qt::ActiveWindowFocusReason;
        if (left && watched == ui->editIpAddress)
            on_editIpAddress_editingFinished();
        else if (left && watched == ui->editNetmask)
            on_editNetmask_editingFinished();
    }
    return QDialog::eventFilter(watched, event);
}

void IpAddressWidget::on_editIpAddress_editingFinished()
{
    const QHostAddress mask = subnetFromAddress(ui->editIpAddress->text());
    bool changed = false;
    if (!mask.isNull() && !m_netmaskEdited && ui->editNetmask->text().isEmpty()) {
        ui->editNetmask->setText(mask.toString());
        changed = true;
    }
    if (!m_gatewayEdited && ui->editDefaultGateway->text().isEmpty()) {
        ui->editDefaultGateway->setText(QStringLiteral("0.0.0.0"));
        changed = true;
    }
    if (changed)
        enableButtons();
}

void IpAddressWidget::on_editNetmask_editingFinished()
{
    const auto* validator = qobject_cast<const QIpNetmaskValidator*>(ui->editNetmask->validator());
    if (!validator)
        return;
    QString text = ui->editNetmask->text();
    validator->fixup(text);
    if (text != ui->editNetmask->text()) {
        ui->editNetmask->setText(text);
        enableButtons();
    }
}

void IpAddressWidget::on_editIpAddress_textEdited()
{
    enableButtons();
}

void IpAddressWidget::on_editMacAddress_textEdited()
{
    enableButtons();
}

void IpAddressWidget::on_editNetmask_textEdited()
{
    m_netmaskEdited = true;
    enableButtons();
}

void IpAddressWidget::on_editDefaultGateway_textEdited()
{
    m_gatewayEdited = true;
    enableButtons();
}

void IpAddressWidget::enableButtons()
{
    bool coherent = (!m_showMacAddress || ui->editMacAddress->hasAcceptableInput())
        && ui->editNetmask->hasAcceptableInput() && ui->editDefaultGateway->hasAcceptableInput();
    if (coherent) {
        QString address = ui->editIpAddress->text();
        int pos = 0;
        coherent = m_addressCheck->validate(address, pos) == QValidator::Acceptable;
    }
    QPushButton* ok = ui->buttonBox->button(QDialogButtonBox::Ok);
    ok->setEnabled(coherent);
    ok->setDefault(coherent);
}

QIpAddressWithNetmaskValidator* IpAddressWidget::addressFieldValidator() const
{
    // The address field carries only the form check, so this finds nothing
    // unless a validator that takes the flags has been put on the field.
    return qobject_cast<QIpAddressWithNetmaskValidator*>(const_cast<QValidator*>(ui->editIpAddress->validator()));
}
