#include "network/ipaddresswidget.h"
#include "network/qipaddressvalidator.h"
#include "network/qipaddresswithnetmaskvalidator.h"
#include "network/qipnetmaskvalidator.h"
#include "network/qmacaddressvalidator.h"

#include <QDialogButtonBox>
#include <QFrame>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSpacerItem>
#include <QTranslator>
#include <QVBoxLayout>
#include <QtTest>

namespace {

// Answers every lookup with a marked text and remembers the contexts asked.
class RecordingTranslator : public QTranslator
{
public:
    QString translate(const char* context, const char* sourceText, const char* = nullptr, int = -1) const override
    {
        lookups.insert(QString::fromLatin1(context) + QLatin1Char('|') + QString::fromUtf8(sourceText));
        return QStringLiteral("T:") + QString::fromUtf8(sourceText);
    }
    bool isEmpty() const override { return false; }
    mutable QSet<QString> lookups;
};

// The dialog's parts, found by their form names.
struct Form
{
    explicit Form(IpAddressWidget* dialog)
        : mac(dialog->findChild<QLineEdit*>(QStringLiteral("editMacAddress")))
        , address(dialog->findChild<QLineEdit*>(QStringLiteral("editIpAddress")))
        , mask(dialog->findChild<QLineEdit*>(QStringLiteral("editNetmask")))
        , gateway(dialog->findChild<QLineEdit*>(QStringLiteral("editDefaultGateway")))
        , buttons(dialog->findChild<QDialogButtonBox*>(QStringLiteral("buttonBox")))
        , ok(buttons ? buttons->button(QDialogButtonBox::Ok) : nullptr)
    {
    }
    bool complete() const { return mac && address && mask && gateway && buttons && ok; }
    bool okOn() const { return ok->isEnabled() && ok->isDefault(); }
    bool okOff() const { return !ok->isEnabled() && !ok->isDefault(); }

    QLineEdit* mac;
    QLineEdit* address;
    QLineEdit* mask;
    QLineEdit* gateway;
    QDialogButtonBox* buttons;
    QPushButton* ok;
};

} // namespace

class TestIpAddressWidget : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void form();
    void formTextsAreTranslatedInTheFormContext();
    void tabOrder();
    void properties();
    void subnetFromAddress_data();
    void subnetFromAddress();

    void typedAddressFillsMaskAndGateway_data();
    void typedAddressFillsMaskAndGateway();
    void leavingAnEmptyAddressFillsTheClassAMask();
    void goingToTheBackgroundFillsNothing();
    void emptiedMaskStaysEmptyUntilShownAgain();
    void emptiedGatewayStaysEmptyUntilShownAgain();
    void textFromTheSettersIsNeverOverwritten();
    void loopbackPassesTheFieldButLeavesOkOff();
    void okFollowsEveryKeystroke();
    void networkAddressLeavesOkOff();
    void wrongGatewayLeavesOkOff();
    void hiddenMacFieldIsIgnored();
    void emptyMacFieldIsAcceptable();
    void slashMaskIsDottedOnLeaving();
    void slashMaskFromTheSetterIsDottedOnLeaving();
    void slash31BecomesAnIncoherentMask();
    void allowFlagsAreKeptButChangeNothing();
    void acceptFillsAnEmptyGateway();
    void acceptedDialogGivesItsValues();

private:
    // Shows the dialog, makes it the active window and puts the focus on `edit`.
    void showAndFocus(QLineEdit* edit);
    // Puts the focus on `edit` and types `text` after what it holds.
    void typeInto(QLineEdit* edit, const QString& text);
    // Puts the focus on `edit`, selects all and types `text` over it.
    void typeOver(QLineEdit* edit, const QString& text);
    // Moves the focus on with the Tab key.
    void leave(QLineEdit* edit);

    IpAddressWidget* m_dialog = nullptr;
};

void TestIpAddressWidget::init()
{
    m_dialog = new IpAddressWidget;
}

void TestIpAddressWidget::cleanup()
{
    delete m_dialog;
    m_dialog = nullptr;
}

void TestIpAddressWidget::showAndFocus(QLineEdit* edit)
{
    if (!m_dialog->isVisible()) {
        m_dialog->show();
        QApplication::setActiveWindow(m_dialog);
        QVERIFY(QTest::qWaitForWindowActive(m_dialog));
    }
    edit->setFocus(Qt::TabFocusReason);
    QTRY_VERIFY(edit->hasFocus());
}

void TestIpAddressWidget::typeInto(QLineEdit* edit, const QString& text)
{
    showAndFocus(edit);
    QTest::keyClick(edit, Qt::Key_End);
    QTest::keyClicks(edit, text);
}

void TestIpAddressWidget::typeOver(QLineEdit* edit, const QString& text)
{
    showAndFocus(edit);
    QTest::keyClick(edit, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(edit, text);
}

void TestIpAddressWidget::leave(QLineEdit* edit)
{
    QVERIFY(edit->hasFocus());
    QTest::keyClick(edit, Qt::Key_Tab);
    QVERIFY(!edit->hasFocus());
}

void TestIpAddressWidget::form()
{
    IpAddressWidget& dialog = *m_dialog;
    Form f(&dialog);
    QVERIFY(f.complete());

    QCOMPARE(dialog.objectName(), QStringLiteral("IpAddressWidgetClass"));
    QCOMPARE(dialog.size(), QSize(295, 240));
    QCOMPARE(dialog.windowTitle(), QStringLiteral("IP Address"));
    QVERIFY(dialog.windowFlags() & Qt::WindowCloseButtonHint);
    QVERIFY(!(dialog.windowFlags() & Qt::WindowContextHelpButtonHint));
    QCOMPARE(dialog.windowFlags() & Qt::WindowType_Mask, Qt::Dialog);

    auto* vbox = qobject_cast<QVBoxLayout*>(dialog.layout());
    QVERIFY(vbox);
    QCOMPARE(vbox->objectName(), QStringLiteral("vboxLayout"));
    QCOMPARE(vbox->spacing(), 10);
    QCOMPARE(vbox->contentsMargins(), QMargins(11, 11, 11, 11));
    QCOMPARE(vbox->count(), 4);
    auto* header = dialog.findChild<QLabel*>(QStringLiteral("labelHeader"));
    auto* grid = dialog.findChild<QGridLayout*>(QStringLiteral("gridLayout"));
    auto* line = dialog.findChild<QFrame*>(QStringLiteral("line"));
    QVERIFY(header && grid && line);
    QCOMPARE(vbox->itemAt(0)->widget(), header);
    QCOMPARE(vbox->itemAt(1)->layout(), grid);
    QCOMPARE(vbox->itemAt(2)->widget(), line);
    QCOMPARE(vbox->itemAt(3)->widget(), f.buttons);
    QCOMPARE(vbox->stretch(0), 1);
    QCOMPARE(vbox->stretch(1), 1);
    QCOMPARE(vbox->stretch(2), 1);
    QCOMPARE(vbox->stretch(3), 0);

    QCOMPARE(header->text(), QStringLiteral("Please specify an IP address."));
    QCOMPARE(dialog.headerText(), header->text());
    QCOMPARE(header->alignment(), Qt::AlignLeading | Qt::AlignLeft | Qt::AlignTop);
    QVERIFY(header->wordWrap());

    QCOMPARE(grid->spacing(), 6);
    QCOMPARE(grid->contentsMargins(), QMargins(0, 0, 0, 0));
    const struct
    {
        const char* label;
        const char* text;
        QLineEdit* edit;
        int maxLength;
    } rows[] = { { "labelMacAddress", "&MAC Address:", f.mac, 17 }, { "labelIpAddress", "IP &Address:", f.address, 16 },
        { "labelNetmask", "&Subnet Mask:", f.mask, 16 },
        { "labelDefaultGateway", "Default &Gateway:", f.gateway, 16 } };
    for (int row = 0; row < 4; ++row) {
        auto* label = dialog.findChild<QLabel*>(QLatin1String(rows[row].label));
        QVERIFY2(label, rows[row].label);
        QCOMPARE(label->text(), QString::fromUtf8(rows[row].text));
        QCOMPARE(label->buddy(), rows[row].edit);
        QCOMPARE(grid->itemAtPosition(row, 0)->widget(), label);
        QCOMPARE(grid->itemAtPosition(row, 1)->widget(), rows[row].edit);
        QCOMPARE(rows[row].edit->maxLength(), rows[row].maxLength);
        QVERIFY(rows[row].edit->text().isEmpty());
        // Set in this order: the minimum of 110, then the maximum of 100.
        QCOMPARE(rows[row].edit->minimumWidth(), 110);
        QCOMPARE(rows[row].edit->maximumWidth(), 100);
    }
    QSpacerItem* spacer = grid->itemAtPosition(0, 2)->spacerItem();
    QVERIFY(spacer);
    QCOMPARE(spacer->sizeHint(), QSize(40, 20));
    QVERIFY(spacer->expandingDirections() & Qt::Horizontal);

    QCOMPARE(line->frameShape(), QFrame::HLine);
    QCOMPARE(line->frameShadow(), QFrame::Sunken);
    QCOMPARE(f.buttons->standardButtons(), QDialogButtonBox::Ok | QDialogButtonBox::Cancel);

    // The validators, all children of the dialog.
    QVERIFY(qobject_cast<const QMacAddressValidator*>(f.mac->validator()));
    QVERIFY(qobject_cast<const QIpAddressValidator*>(f.address->validator()));
    QVERIFY(qobject_cast<const QIpNetmaskValidator*>(f.mask->validator()));
    auto* gatewayValidator = qobject_cast<const QIpAddressWithNetmaskValidator*>(f.gateway->validator());
    QVERIFY(gatewayValidator);
    QVERIFY(gatewayValidator->allowNullAddress());
    for (QLineEdit* edit : { f.mac, f.address, f.mask, f.gateway })
        QCOMPARE(edit->validator()->parent(), &dialog);

    // The MAC row starts hidden, as the property says.
    QVERIFY(!dialog.showMacAddress());
    QVERIFY(f.mac->isHidden());
    QVERIFY(dialog.findChild<QLabel*>(QStringLiteral("labelMacAddress"))->isHidden());
}

void TestIpAddressWidget::formTextsAreTranslatedInTheFormContext()
{
    RecordingTranslator translator;
    QVERIFY(QCoreApplication::installTranslator(&translator));
    IpAddressWidget dialog;
    QCoreApplication::removeTranslator(&translator);

    for (const char* text : { "IP Address", "Please specify an IP address.",
             "&MAC Address:", "IP &Address:", "&Subnet Mask:", "Default &Gateway:" })
        QVERIFY2(translator.lookups.contains(QStringLiteral("IpAddressWidgetClass|") + QString::fromUtf8(text)), text);
    QCOMPARE(dialog.windowTitle(), QStringLiteral("T:IP Address"));
    QCOMPARE(dialog.headerText(), QStringLiteral("T:Please specify an IP address."));
}

void TestIpAddressWidget::tabOrder()
{
    Form f(m_dialog);
    m_dialog->setShowMacAddress(true);
    showAndFocus(f.mac);
    QTest::keyClick(f.mac, Qt::Key_Tab);
    QVERIFY(f.address->hasFocus());
    QTest::keyClick(f.address, Qt::Key_Tab);
    QVERIFY(f.mask->hasFocus());
    QTest::keyClick(f.mask, Qt::Key_Tab);
    QVERIFY(f.gateway->hasFocus());
}

void TestIpAddressWidget::properties()
{
    IpAddressWidget& dialog = *m_dialog;
    Form f(&dialog);

    const struct
    {
        const char* name;
        QLineEdit* edit;
        QString value;
    } texts[] = { { "ipAddress", f.address, QStringLiteral("192.168.1.10") },
        { "subnetMask", f.mask, QStringLiteral("255.255.255.0") },
        { "defaultGateway", f.gateway, QStringLiteral("192.168.1.1") },
        { "macAddress", f.mac, QStringLiteral("00:11:22:33:44:55") } };
    for (const auto& text : texts) {
        QVERIFY2(dialog.setProperty(text.name, text.value), text.name);
        QCOMPARE(text.edit->text(), text.value);
        QCOMPARE(dialog.property(text.name).toString(), text.value);
    }
    QCOMPARE(dialog.ipAddress(), QStringLiteral("192.168.1.10"));
    QCOMPARE(dialog.subnetMask(), QStringLiteral("255.255.255.0"));
    QCOMPARE(dialog.defaultGateway(), QStringLiteral("192.168.1.1"));
    QCOMPARE(dialog.macAddress(), QStringLiteral("00:11:22:33:44:55"));
    // Each setter judged the set again: it is coherent now.
    QVERIFY(f.okOn());

    for (const char* name :
        { "showMacAddress", "allowBroadcastAddress", "allowMulticastAddress", "allowExperiemntalPurposeAddress" }) {
        QCOMPARE(dialog.property(name), QVariant(false));
        QVERIFY2(dialog.setProperty(name, true), name);
        QCOMPARE(dialog.property(name), QVariant(true));
    }
    QVERIFY(dialog.showMacAddress());
    QVERIFY(dialog.allowBroadcastAddress());
    QVERIFY(dialog.allowMulticastAddress());
    QVERIFY(dialog.allowExperiemntalPurposeAddress());
    QVERIFY(!f.mac->isHidden());

    dialog.setHeaderText(QStringLiteral("Address of camera 7"));
    QCOMPARE(dialog.headerText(), QStringLiteral("Address of camera 7"));
    QCOMPARE(dialog.findChild<QLabel*>(QStringLiteral("labelHeader"))->text(), QStringLiteral("Address of camera 7"));
}

void TestIpAddressWidget::subnetFromAddress_data()
{
    QTest::addColumn<QString>("address");
    QTest::addColumn<QString>("mask"); // empty: a null address

    QTest::newRow("empty") << ""
                           << "255.0.0.0";
    QTest::newRow("unreadable") << "no address"
                                << "255.0.0.0";
    QTest::newRow("partial") << "192.168."
                             << "255.0.0.0";
    QTest::newRow("0.0.0.0") << "0.0.0.0"
                             << "255.0.0.0";
    QTest::newRow("10.0.0.1") << "10.0.0.1"
                              << "255.0.0.0";
    QTest::newRow("127.0.0.1") << "127.0.0.1"
                               << "255.0.0.0";
    QTest::newRow("127.255.255.255") << "127.255.255.255"
                                     << "255.0.0.0";
    QTest::newRow("128.0.0.0") << "128.0.0.0"
                               << "255.255.0.0";
    QTest::newRow("172.16.0.1") << "172.16.0.1"
                                << "255.255.0.0";
    QTest::newRow("191.255.255.255") << "191.255.255.255"
                                     << "255.255.0.0";
    QTest::newRow("192.0.0.0") << "192.0.0.0"
                               << "255.255.255.0";
    QTest::newRow("192.168.1.10") << "192.168.1.10"
                                  << "255.255.255.0";
    QTest::newRow("223.255.255.255") << "223.255.255.255"
                                     << "255.255.255.0";
    QTest::newRow("224.0.0.1") << "224.0.0.1"
                               << "";
    QTest::newRow("240.0.0.1") << "240.0.0.1"
                               << "";
    QTest::newRow("255.255.255.255") << "255.255.255.255"
                                     << "";
}

void TestIpAddressWidget::subnetFromAddress()
{
    QFETCH(QString, address);
    QFETCH(QString, mask);

    const QHostAddress fromText = IpAddressWidget::subnetFromAddress(address);
    const QHostAddress fromAddress = IpAddressWidget::subnetFromAddress(QHostAddress(address));
    if (mask.isEmpty()) {
        QVERIFY(fromText.isNull());
        QVERIFY(fromAddress.isNull());
    } else {
        QCOMPARE(fromText.toString(), mask);
        QCOMPARE(fromAddress.toString(), mask);
    }
}

void TestIpAddressWidget::typedAddressFillsMaskAndGateway_data()
{
    QTest::addColumn<QString>("address");
    QTest::addColumn<QString>("mask");
    QTest::addColumn<bool>("okOn");

    QTest::newRow("192.168.1.10") << "192.168.1.10"
                                  << "255.255.255.0" << true;
    QTest::newRow("10.0.0.1") << "10.0.0.1"
                              << "255.0.0.0" << true;
    QTest::newRow("172.16.0.1") << "172.16.0.1"
                                << "255.255.0.0" << true;
    QTest::newRow("224.0.0.1: no mask") << "224.0.0.1"
                                        << "" << false;
    QTest::newRow("240.0.0.1: no mask") << "240.0.0.1"
                                        << "" << false;
    QTest::newRow("127.0.0.1") << "127.0.0.1"
                               << "255.0.0.0" << false;
    QTest::newRow("10.0.0.0 is its network") << "10.0.0.0"
                                             << "255.0.0.0" << false;
    QTest::newRow("unfinished 192.168.1") << "192.168.1"
                                          << "255.255.255.0" << false;
}

void TestIpAddressWidget::typedAddressFillsMaskAndGateway()
{
    QFETCH(QString, address);
    QFETCH(QString, mask);
    QFETCH(bool, okOn);

    Form f(m_dialog);
    typeInto(f.address, address);
    QCOMPARE(f.address->text(), address);
    QVERIFY(f.okOff());
    QVERIFY(f.mask->text().isEmpty());
    QVERIFY(f.gateway->text().isEmpty());

    leave(f.address);
    QVERIFY(f.mask->hasFocus());
    QCOMPARE(f.mask->text(), mask);
    QCOMPARE(f.gateway->text(), QStringLiteral("0.0.0.0"));
    QCOMPARE(f.okOn(), okOn);
    QCOMPARE(f.okOff(), !okOn);
}

void TestIpAddressWidget::leavingAnEmptyAddressFillsTheClassAMask()
{
    Form f(m_dialog);
    showAndFocus(f.address);
    leave(f.address);
    QCOMPARE(f.mask->text(), QStringLiteral("255.0.0.0"));
    QCOMPARE(f.gateway->text(), QStringLiteral("0.0.0.0"));
    QVERIFY(f.okOff());
}

void TestIpAddressWidget::goingToTheBackgroundFillsNothing()
{
    Form f(m_dialog);
    showAndFocus(f.address);
    QWidget other;
    other.show();
    QApplication::setActiveWindow(&other);
    QVERIFY(QTest::qWaitForWindowActive(&other));
    QVERIFY(!f.address->hasFocus());
    QVERIFY(f.mask->text().isEmpty());
    QVERIFY(f.gateway->text().isEmpty());

    // Back in the dialog, leaving the field does fill them.
    QApplication::setActiveWindow(m_dialog);
    QVERIFY(QTest::qWaitForWindowActive(m_dialog));
    QTRY_VERIFY(f.address->hasFocus());
    leave(f.address);
    QCOMPARE(f.mask->text(), QStringLiteral("255.0.0.0"));
}

void TestIpAddressWidget::emptiedMaskStaysEmptyUntilShownAgain()
{
    Form f(m_dialog);
    typeInto(f.address, QStringLiteral("192.168.1.10"));
    leave(f.address);
    QCOMPARE(f.mask->text(), QStringLiteral("255.255.255.0"));
    QVERIFY(f.okOn());

    // The user empties the mask on purpose.
    QTest::keyClick(f.mask, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(f.mask, Qt::Key_Backspace);
    QVERIFY(f.mask->text().isEmpty());
    QVERIFY(f.okOff());

    // Back to the address, change it, leave: the mask stays empty.
    typeInto(f.address, QStringLiteral("1"));
    QCOMPARE(f.address->text(), QStringLiteral("192.168.1.101"));
    leave(f.address);
    QVERIFY(f.mask->text().isEmpty());
    QVERIFY(f.okOff());

    // Shown again, the filling is active again.
    m_dialog->hide();
    showAndFocus(f.address);
    leave(f.address);
    QCOMPARE(f.mask->text(), QStringLiteral("255.255.255.0"));
    QVERIFY(f.okOn());
}

void TestIpAddressWidget::emptiedGatewayStaysEmptyUntilShownAgain()
{
    Form f(m_dialog);
    typeInto(f.address, QStringLiteral("192.168.1.10"));
    leave(f.address);
    QCOMPARE(f.gateway->text(), QStringLiteral("0.0.0.0"));

    // The user empties the gateway, changes the address and leaves it again.
    typeOver(f.gateway, QStringLiteral("1"));
    QTest::keyClick(f.gateway, Qt::Key_Backspace);
    QVERIFY(f.gateway->text().isEmpty());
    typeInto(f.address, QStringLiteral("1"));
    leave(f.address);
    QCOMPARE(f.mask->text(), QStringLiteral("255.255.255.0"));
    QVERIFY(f.gateway->text().isEmpty());
    // No gateway is a coherent set: accept() writes the null gateway.
    QVERIFY(f.okOn());

    m_dialog->hide();
    showAndFocus(f.address);
    leave(f.address);
    QCOMPARE(f.gateway->text(), QStringLiteral("0.0.0.0"));
}

void TestIpAddressWidget::textFromTheSettersIsNeverOverwritten()
{
    Form f(m_dialog);
    m_dialog->setSubnetMask(QStringLiteral("255.255.0.0"));
    m_dialog->setDefaultGateway(QStringLiteral("192.168.0.1"));
    typeInto(f.address, QStringLiteral("192.168.1.10"));
    leave(f.address);
    QCOMPARE(f.mask->text(), QStringLiteral("255.255.0.0"));
    QCOMPARE(f.gateway->text(), QStringLiteral("192.168.0.1"));
    QVERIFY(f.okOn());
}

void TestIpAddressWidget::loopbackPassesTheFieldButLeavesOkOff()
{
    Form f(m_dialog);
    m_dialog->setSubnetMask(QStringLiteral("255.0.0.0"));
    m_dialog->setDefaultGateway(QStringLiteral("0.0.0.0"));
    typeInto(f.address, QStringLiteral("127.0.0.1"));
    QCOMPARE(f.address->text(), QStringLiteral("127.0.0.1"));
    QVERIFY(f.address->hasAcceptableInput());
    QVERIFY(f.okOff());

    // One keystroke away from loopback, the set is coherent.
    QTest::keyClick(f.address, Qt::Key_Home);
    QTest::keyClick(f.address, Qt::Key_Delete);
    QCOMPARE(f.address->text(), QStringLiteral("27.0.0.1"));
    QVERIFY(f.okOn());
    QTest::keyClick(f.address, Qt::Key_1);
    QCOMPARE(f.address->text(), QStringLiteral("127.0.0.1"));
    QVERIFY(f.okOff());
}

void TestIpAddressWidget::okFollowsEveryKeystroke()
{
    Form f(m_dialog);
    m_dialog->setSubnetMask(QStringLiteral("255.255.255.0"));
    m_dialog->setDefaultGateway(QStringLiteral("192.168.1.1"));
    showAndFocus(f.address);
    const QString address = QStringLiteral("192.168.1.20");
    for (int i = 0; i < address.size(); ++i) {
        QTest::keyClick(f.address, address.at(i).toLatin1());
        // Complete from "192.168.1.2" on; "192.168.1." is not.
        QCOMPARE(f.okOn(), i >= address.size() - 2);
    }
    QTest::keyClick(f.address, Qt::Key_Backspace);
    QTest::keyClick(f.address, Qt::Key_Backspace);
    QCOMPARE(f.address->text(), QStringLiteral("192.168.1."));
    QVERIFY(f.okOff());

    // The mask and the gateway fields are judged as they are typed, too.
    QTest::keyClick(f.address, Qt::Key_5);
    QVERIFY(f.okOn());
    typeInto(f.mask, QStringLiteral("0"));
    QCOMPARE(f.mask->text(), QStringLiteral("255.255.255.00"));
    QVERIFY(f.okOn());
    QTest::keyClick(f.mask, Qt::Key_Backspace);
    QTest::keyClick(f.mask, Qt::Key_Backspace);
    QCOMPARE(f.mask->text(), QStringLiteral("255.255.255."));
    QVERIFY(f.okOff());
    QTest::keyClick(f.mask, Qt::Key_0);
    QVERIFY(f.okOn());
    typeInto(f.gateway, QStringLiteral("."));
    QVERIFY(f.okOff());
}

void TestIpAddressWidget::networkAddressLeavesOkOff()
{
    Form f(m_dialog);
    typeInto(f.address, QStringLiteral("192.168.1.0"));
    leave(f.address);
    QCOMPARE(f.mask->text(), QStringLiteral("255.255.255.0"));
    QVERIFY(f.okOff());

    // The same address under a wider mask is a host address.
    QTest::keyClick(f.mask, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(f.mask, QStringLiteral("255.255.0.0"));
    QVERIFY(f.okOn());
}

void TestIpAddressWidget::wrongGatewayLeavesOkOff()
{
    Form f(m_dialog);
    m_dialog->setSubnetMask(QStringLiteral("255.255.255.0"));
    typeInto(f.address, QStringLiteral("192.168.1.10"));
    typeOver(f.gateway, QStringLiteral("192.168.1.255"));
    QCOMPARE(f.gateway->text(), QStringLiteral("192.168.1.255"));
    QVERIFY(f.okOff());
    QTest::keyClick(f.gateway, Qt::Key_Backspace);
    QTest::keyClick(f.gateway, Qt::Key_4);
    QCOMPARE(f.gateway->text(), QStringLiteral("192.168.1.254"));
    QVERIFY(f.okOn());
}

void TestIpAddressWidget::hiddenMacFieldIsIgnored()
{
    Form f(m_dialog);
    m_dialog->setMacAddress(QStringLiteral("00:11"));
    m_dialog->setSubnetMask(QStringLiteral("255.255.255.0"));
    typeInto(f.address, QStringLiteral("192.168.1.10"));
    QVERIFY(f.okOn());

    // Showing the row doesn't judge again by itself; the next keystroke does.
    m_dialog->setShowMacAddress(true);
    QVERIFY(f.okOn());
    QTest::keyClick(f.address, Qt::Key_Backspace);
    QTest::keyClick(f.address, Qt::Key_0);
    QVERIFY(f.okOff());

    typeInto(f.mac, QStringLiteral(":22:33:44:55"));
    QCOMPARE(f.mac->text(), QStringLiteral("00:11:22:33:44:55"));
    QVERIFY(f.okOn());
    QTest::keyClick(f.mac, Qt::Key_Backspace);
    QVERIFY(f.okOff());

    // Hidden again, it is ignored once the set is judged again.
    m_dialog->setShowMacAddress(false);
    m_dialog->setDefaultGateway(QString());
    QVERIFY(f.okOn());
}

void TestIpAddressWidget::emptyMacFieldIsAcceptable()
{
    Form f(m_dialog);
    m_dialog->setShowMacAddress(true);
    m_dialog->setSubnetMask(QStringLiteral("255.255.255.0"));
    typeInto(f.address, QStringLiteral("192.168.1.10"));
    QVERIFY(f.mac->text().isEmpty());
    QVERIFY(f.okOn());
}

void TestIpAddressWidget::slashMaskIsDottedOnLeaving()
{
    Form f(m_dialog);
    typeInto(f.address, QStringLiteral("172.16.0.1"));
    typeOver(f.mask, QStringLiteral("/16"));
    QCOMPARE(f.mask->text(), QStringLiteral("/16"));
    QVERIFY(f.mask->hasAcceptableInput());
    QVERIFY(f.okOn());
    leave(f.mask);
    QCOMPARE(f.mask->text(), QStringLiteral("255.255.0.0"));
    QVERIFY(f.okOn());
}

void TestIpAddressWidget::slashMaskFromTheSetterIsDottedOnLeaving()
{
    Form f(m_dialog);
    m_dialog->setIpAddress(QStringLiteral("192.168.1.0"));
    m_dialog->setSubnetMask(QStringLiteral("/24"));
    // In slash form the subnet isn't known yet, so the network address passes.
    QVERIFY(f.okOn());
    showAndFocus(f.mask);
    leave(f.mask);
    QCOMPARE(f.mask->text(), QStringLiteral("255.255.255.0"));
    QVERIFY(f.okOff());
}

void TestIpAddressWidget::slash31BecomesAnIncoherentMask()
{
    // /31 is a complete length, but its dotted form is no usable mask.
    Form f(m_dialog);
    typeInto(f.address, QStringLiteral("10.0.0.1"));
    typeOver(f.mask, QStringLiteral("/31"));
    QVERIFY(f.okOn());
    leave(f.mask);
    QCOMPARE(f.mask->text(), QStringLiteral("255.255.255.254"));
    QVERIFY(f.okOff());
}

void TestIpAddressWidget::allowFlagsAreKeptButChangeNothing()
{
    Form f(m_dialog);
    m_dialog->setAllowBroadcastAddress(true);
    m_dialog->setAllowMulticastAddress(true);
    m_dialog->setAllowExperiemntalPurposeAddress(true);
    QVERIFY(m_dialog->allowBroadcastAddress());
    QVERIFY(m_dialog->allowMulticastAddress());
    QVERIFY(m_dialog->allowExperiemntalPurposeAddress());

    // The address field's validator only checks the form and takes no flags.
    QVERIFY(!qobject_cast<const QIpAddressWithNetmaskValidator*>(f.address->validator()));

    // What OK is judged by still refuses these addresses.
    m_dialog->setSubnetMask(QStringLiteral("255.255.255.0"));
    for (const QString& address :
        { QStringLiteral("224.0.0.1"), QStringLiteral("240.0.0.1"), QStringLiteral("255.255.255.255"),
            QStringLiteral("192.168.1.255"), QStringLiteral("0.0.0.0"), QStringLiteral("127.0.0.1"), QString() }) {
        m_dialog->setIpAddress(address);
        QVERIFY2(f.okOff(), qPrintable(address));
    }
    m_dialog->setIpAddress(QStringLiteral("192.168.1.10"));
    QVERIFY(f.okOn());
}

void TestIpAddressWidget::acceptFillsAnEmptyGateway()
{
    Form f(m_dialog);
    m_dialog->setIpAddress(QStringLiteral("192.168.1.10"));
    m_dialog->setSubnetMask(QStringLiteral("255.255.255.0"));
    showAndFocus(f.address);
    QVERIFY(f.gateway->text().isEmpty());
    QVERIFY(f.okOn());

    QSignalSpy accepted(m_dialog, SIGNAL(accepted()));
    QTest::mouseClick(f.ok, Qt::LeftButton);
    QCOMPARE(accepted.count(), 1);
    QCOMPARE(m_dialog->result(), int(QDialog::Accepted));
    QCOMPARE(m_dialog->defaultGateway(), QStringLiteral("0.0.0.0"));
    QVERIFY(!m_dialog->isVisible());
}

void TestIpAddressWidget::acceptedDialogGivesItsValues()
{
    Form f(m_dialog);
    m_dialog->setShowMacAddress(true);
    typeInto(f.mac, QStringLiteral("00-1a-2B-3c-4D-5e"));
    leave(f.mac);
    QVERIFY(f.address->hasFocus());
    QTest::keyClicks(f.address, QStringLiteral("10.1.2.3"));
    leave(f.address);
    QVERIFY(f.mask->hasFocus());
    QCOMPARE(f.mask->text(), QStringLiteral("255.0.0.0"));
    QTest::keyClick(f.mask, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(f.mask, QStringLiteral("/8"));
    leave(f.mask);
    QVERIFY(f.gateway->hasFocus());
    QTest::keyClick(f.gateway, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(f.gateway, QStringLiteral("10.0.0.1"));
    QVERIFY(f.okOn());

    // Return presses the default button.
    QSignalSpy finished(m_dialog, SIGNAL(finished(int)));
    QTest::keyClick(f.gateway, Qt::Key_Return);
    QCOMPARE(finished.count(), 1);
    QCOMPARE(finished.at(0).at(0).toInt(), int(QDialog::Accepted));
    QCOMPARE(m_dialog->macAddress(), QStringLiteral("00-1a-2B-3c-4D-5e"));
    QCOMPARE(m_dialog->ipAddress(), QStringLiteral("10.1.2.3"));
    QCOMPARE(m_dialog->subnetMask(), QStringLiteral("255.0.0.0"));
    QCOMPARE(m_dialog->defaultGateway(), QStringLiteral("10.0.0.1"));
}

QTEST_MAIN(TestIpAddressWidget)
#include "tst_ipaddresswidget.moc"
