// libFuzzer target over the four address validators and the IP address
// dialog's judgement of a whole set.
//
// The input is split at line feeds into up to four texts: address, mask,
// gateway and MAC address. The first byte, taken off before the split, holds
// the flags of the address-with-netmask validator (bits 0 to 4: loopback,
// null, broadcast, multicast, experimental), whether that validator goes
// without a mask edit (bit 5) and whether the dialog shows its MAC row
// (bit 6).
//
// Besides "no crash, no hang", each call checks what the validators promise:
// validate() never changes its text, and leaves the cursor alone, except
// that the MAC validator moves it onto the first character that is neither
// a digit nor a separator. Each Acceptable answer is checked against the
// rule it stands for, fixup() gives either its input or a dotted mask, and
// the dialog's OK button is on exactly when its four fields make a coherent
// set.

#include "network/ipaddresswidget.h"
#include "network/qipaddressvalidator.h"
#include "network/qipaddresswithnetmaskvalidator.h"
#include "network/qipnetmaskvalidator.h"
#include "network/qmacaddressvalidator.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QHostAddress>
#include <QLineEdit>
#include <QPushButton>

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

namespace {

QApplication* application = nullptr;
IpAddressWidget* dialog = nullptr;
QLineEdit* netmaskEdit = nullptr;

void silence(QtMsgType, const QMessageLogContext&, const QString&) { }

[[noreturn]] void fail(const char* what, const QString& text)
{
    std::fprintf(stderr, "fuzz_validators: %s for \"%s\"\n", what, text.toUtf8().constData());
    std::abort();
}

bool isHexDigit(QChar c)
{
    const ushort u = c.unicode();
    return (u >= '0' && u <= '9') || (u >= 'a' && u <= 'f') || (u >= 'A' && u <= 'F');
}

// Runs validate() on a copy and checks that text and cursor stay as they were.
QValidator::State judge(const QValidator& validator, const QString& text, const char* name)
{
    QString copy = text;
    const int startPos = text.size() / 2;
    int pos = startPos;
    const QValidator::State state = validator.validate(copy, pos);
    if (copy != text)
        fail(name, text);
    if (pos != startPos) {
        // Only the MAC validator may move the cursor, onto a refused character.
        const auto* mac = qobject_cast<const QMacAddressValidator*>(&validator);
        if (!mac || state != QValidator::Invalid || pos < 0 || pos >= text.size() || isHexDigit(text.at(pos))
            || mac->allowedSeperators().contains(text.at(pos)))
            fail("cursor moved", text);
    }
    return state;
}

void checkAddress(const QString& text)
{
    QIpAddressValidator validator;
    if (judge(validator, text, "address validator changed its input") != QValidator::Acceptable)
        return;
    QHostAddress address;
    if (!address.setAddress(text) || address.protocol() != QAbstractSocket::IPv4Protocol
        || address.toIPv4Address() < 256)
        fail("address accepted against the rules", text);
}

void checkNetmask(const QString& text)
{
    QIpNetmaskValidator validator;
    if (judge(validator, text, "netmask validator changed its input") == QValidator::Acceptable) {
        const QString simplified = text.simplified();
        if (simplified.startsWith(QLatin1Char('/'))) {
            bool ok = false;
            const int length = QStringView(simplified).mid(1).toInt(&ok);
            if (!ok || length < 0 || length > 32)
                fail("slash mask accepted against the rules", text);
        } else {
            const quint32 mask = QHostAddress(simplified).toIPv4Address();
            const quint32 hostBits = ~mask;
            if ((hostBits & (hostBits + 1)) != 0 || mask == 0 || hostBits <= 1)
                fail("dotted mask accepted against the rules", text);
        }
    }

    QString fixed = text;
    validator.fixup(fixed);
    if (fixed != text) {
        // Only a short slash form is rewritten, and only into a dotted mask.
        const QString trimmed = text.trimmed();
        if (!trimmed.startsWith(QLatin1Char('/')) || trimmed.size() > 3)
            fail("fixup rewrote a text it should leave", text);
        QHostAddress address;
        if (!address.setAddress(fixed) || address.toString() != fixed)
            fail("fixup gave no dotted address", text);
        const quint32 hostBits = ~address.toIPv4Address();
        if ((hostBits & (hostBits + 1)) != 0)
            fail("fixup gave a mask with a gap", text);
    }
}

void checkAddressWithNetmask(const QString& text, const QString& maskText, int flags)
{
    QLineEdit& maskEdit = *netmaskEdit;
    maskEdit.setText(maskText);
    QIpAddressWithNetmaskValidator validator(flags & 32 ? nullptr : &maskEdit);
    validator.setAllowLoopbackAddress(flags & 1);
    validator.setAllowNullAddress(flags & 2);
    validator.setAllowBroadcastAddress(flags & 4);
    validator.setAllowMulticastAddress(flags & 8);
    validator.setAllowExperimentalPurposeAddress(flags & 16);
    const QValidator::State state = judge(validator, text, "address-with-netmask validator changed its input");
    if (maskEdit.text() != maskText)
        fail("the mask edit changed", maskText);
    if (state != QValidator::Acceptable || text.trimmed().isEmpty())
        return;

    QHostAddress address;
    if (!address.setAddress(text))
        fail("unreadable address accepted", text);
    const quint32 value = address.toIPv4Address();
    if (value == 0) {
        if (!(flags & 2))
            fail("null address accepted", text);
        return;
    }
    if ((value >> 24) == 127) {
        if (!(flags & 1))
            fail("loopback accepted", text);
        return;
    }
    if (((value >> 28) == 0xE && !(flags & 8)) || ((value >> 28) == 0xF && !(flags & 16))
        || (value == 0xFFFFFFFFu && !(flags & 4)))
        fail("multicast, experimental or broadcast accepted", text);
}

void checkMac(const QString& text)
{
    QMacAddressValidator validator;
    const QValidator::State state = judge(validator, text, "MAC validator changed its input");
    int digits = 0;
    bool stray = false;
    for (QChar c : text) {
        if (isHexDigit(c))
            ++digits;
        else if (!validator.allowedSeperators().contains(c))
            stray = true;
    }
    const QValidator::State expected = text.isEmpty() ? QValidator::Acceptable
        : stray                                       ? QValidator::Invalid
        : digits < 12                                 ? QValidator::Intermediate
        : digits == 12                                ? QValidator::Acceptable
                                                      : QValidator::Invalid;
    if (state != expected)
        fail("MAC judged against the rules", text);
}

// The OK button must be on exactly when the four fields, as the dialog holds
// them (cut to their maximum lengths), make a coherent set.
void checkDialog(const QString& address, const QString& mask, const QString& gateway, const QString& mac, bool showMac)
{
    dialog->setShowMacAddress(showMac);
    dialog->setMacAddress(mac);
    dialog->setSubnetMask(mask);
    dialog->setDefaultGateway(gateway);
    dialog->setIpAddress(address);

    auto* netmaskEdit = dialog->findChild<QLineEdit*>(QStringLiteral("editNetmask"));
    QMacAddressValidator macValidator;
    QIpNetmaskValidator netmaskValidator;
    QIpAddressWithNetmaskValidator gatewayValidator(netmaskEdit);
    gatewayValidator.setAllowNullAddress(true);
    QIpAddressWithNetmaskValidator addressCheck(netmaskEdit);

    const bool coherent = (!showMac || judge(macValidator, dialog->macAddress(), "MAC") == QValidator::Acceptable)
        && judge(netmaskValidator, dialog->subnetMask(), "mask") == QValidator::Acceptable
        && judge(gatewayValidator, dialog->defaultGateway(), "gateway") == QValidator::Acceptable
        && judge(addressCheck, dialog->ipAddress(), "address") == QValidator::Acceptable;
    QPushButton* ok = dialog->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok);
    if (ok->isEnabled() != coherent || ok->isDefault() != coherent)
        fail("OK button disagrees with the set", address + QLatin1Char('|') + mask + QLatin1Char('|') + gateway);

    // The classful suggestion is a mask the field accepts, or none at all.
    const QHostAddress suggestion = IpAddressWidget::subnetFromAddress(address);
    if (!suggestion.isNull() && judge(netmaskValidator, suggestion.toString(), "suggestion") != QValidator::Acceptable)
        fail("suggested mask refused", address);
}

} // namespace

// The dialog needs a QApplication, whose fonts and offscreen screens are
// never freed by fontconfig and the platform plugin; only those leaks are
// passed over at exit.
extern "C" const char* __lsan_default_suppressions()
{
    return "leak:libfontconfig.so\nleak:libqoffscreen.so\n";
}

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv)
{
    qInstallMessageHandler(silence);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    application = new QApplication(*argc, *argv);
    dialog = new IpAddressWidget;
    // No maximum length: the validator is to see every text.
    netmaskEdit = new QLineEdit;
    netmaskEdit->setMaxLength(1 << 20);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    if (size == 0 || size > 4096)
        return 0;
    const int flags = data[0];
    const QString text = QString::fromUtf8(reinterpret_cast<const char*>(data + 1), int(size - 1));
    const QStringList fields = text.split(QLatin1Char('\n'));
    const QString address = fields.value(0);
    const QString mask = fields.value(1);
    const QString gateway = fields.value(2);
    const QString mac = fields.value(3);

    for (const QString& field : fields) {
        checkAddress(field);
        checkNetmask(field);
        checkMac(field);
    }
    checkAddressWithNetmask(address, mask, flags & 63);
    checkAddressWithNetmask(gateway, mask, flags & 63);
    checkDialog(address, mask, gateway, mac, flags & 64);
    // One turn of the event loop, as a running application has between two
    // keystrokes: what the widgets posted is handled and Qt's timers fire,
    // so nothing piles up that an application would have cleared.
    QCoreApplication::processEvents();
    return 0;
}
