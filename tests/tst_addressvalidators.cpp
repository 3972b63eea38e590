#include "network/qipaddressvalidator.h"
#include "network/qipaddresswithnetmaskvalidator.h"
#include "network/qipnetmaskvalidator.h"
#include "network/qmacaddressvalidator.h"

#include <QHostAddress>
#include <QLineEdit>
#include <QtTest>

Q_DECLARE_METATYPE(QValidator::State)

namespace {

const QValidator::State I = QValidator::Invalid;
const QValidator::State M = QValidator::Intermediate;
const QValidator::State A = QValidator::Acceptable;

// Flags of the address-with-netmask validator, as a table column.
enum Allow { None = 0, Loopback = 1, Null = 2, Broadcast = 4, Multicast = 8, Experimental = 16 };

// The dotted mask with `ones` leading one bits.
QString dottedMask(int ones)
{
    const quint32 mask = ones == 0 ? 0u : quint32(0xFFFFFFFFu << (32 - ones));
    return QHostAddress(mask).toString();
}

// Runs validate() and checks that neither the text nor the cursor moved.
QValidator::State judge(const QValidator& validator, const QString& input)
{
    QString text = input;
    int pos = text.size();
    const QValidator::State state = validator.validate(text, pos);
    if (text != input)
        qWarning("validate changed the text \"%s\" to \"%s\"", qPrintable(input), qPrintable(text));
    if (pos != input.size())
        qWarning("validate moved the cursor of \"%s\" to %d", qPrintable(input), pos);
    return text == input && pos == input.size() ? state : QValidator::State(-1);
}

} // namespace

class TestAddressValidators : public QObject
{
    Q_OBJECT

private slots:
    void address_data();
    void address();
    void addressAtEveryKeystroke_data();
    void addressAtEveryKeystroke();
    void addressTypedIntoLineEdit();

    void netmask_data();
    void netmask();
    void netmaskFixup_data();
    void netmaskFixup();
    void netmaskTypedIntoLineEdit_data();
    void netmaskTypedIntoLineEdit();

    void addressWithNetmask_data();
    void addressWithNetmask();
    void addressWithNetmaskReadsTheMaskEachTime();
    void addressWithNetmaskProperties();

    void mac_data();
    void mac();
    void macSeparatorsCanBeChanged_data();
    void macSeparatorsCanBeChanged();
    void macTypedIntoLineEdit();
};

// ---- QIpAddressValidator ------------------------------------------------

void TestAddressValidators::address_data()
{
    QTest::addColumn<QString>("input");
    QTest::addColumn<QValidator::State>("expected");

    // Partial and complete input.
    QTest::newRow("192.168.0") << "192.168.0" << M;
    QTest::newRow("192.168.0.") << "192.168.0." << M;
    QTest::newRow("192.168.0.1.2") << "192.168.0.1.2" << I;
    QTest::newRow("192.168.0.1") << "192.168.0.1" << A;
    QTest::newRow("0.0.0.7 (below 256)") << "0.0.0.7" << M;
    QTest::newRow("empty") << "" << M;
    QTest::newRow("one part") << "192" << M;
    QTest::newRow("letters before the third dot") << "abc" << M;
    QTest::newRow("empty middle part") << "192..0.1" << M;
    QTest::newRow("leading dot") << ".168.0.1" << M;
    QTest::newRow("three dots only") << "..." << M;

    // Every class of address: the form is all this validator judges.
    QTest::newRow("null 0.0.0.0") << "0.0.0.0" << M;
    QTest::newRow("0.0.0.255") << "0.0.0.255" << M;
    QTest::newRow("0.0.1.0 (256)") << "0.0.1.0" << A;
    QTest::newRow("loopback") << "127.0.0.1" << A;
    QTest::newRow("broadcast") << "255.255.255.255" << A;
    QTest::newRow("multicast") << "224.0.0.1" << A;
    QTest::newRow("experimental") << "240.0.0.1" << A;
    QTest::newRow("class A") << "10.1.2.3" << A;
    QTest::newRow("class B") << "172.16.0.1" << A;
    QTest::newRow("class C") << "192.168.1.1" << A;

    // White space: QHostAddress reads around it, an empty part stays a doubt.
    QTest::newRow("spaces around") << " 192.168.0.1 " << A;
    QTest::newRow("space after") << "192.168.0.1 " << A;
    QTest::newRow("space inside a part") << "192. 168.0.1" << A;
    QTest::newRow("blank part") << "192.168. .1" << M;
    QTest::newRow("space between digits") << "1.2.3.4 5" << I;
    QTest::newRow("tab part") << "1.2.\t.4" << M;

    // Leading zeros, read as QHostAddress reads them (010 is octal 8).
    QTest::newRow("leading zeros") << "192.168.000.001" << A;
    QTest::newRow("octal part") << "010.0.0.1" << A;
    QTest::newRow("not octal") << "08.1.1.1" << I;
    QTest::newRow("hexadecimal part") << "0x10.0.0.1" << A;

    // Values above 255.
    QTest::newRow("300.1.1.1") << "300.1.1.1" << I;
    QTest::newRow("256 first") << "256.0.0.1" << I;
    QTest::newRow("256 last") << "1.2.3.256" << I;
    QTest::newRow("huge part") << "1.2.3.99999999999" << I;
    QTest::newRow("negative part") << "1.2.3.-4" << I;

    // Too many dots.
    QTest::newRow("trailing fourth dot") << "1.2.3.4." << I;
    QTest::newRow("five parts") << "1.2.3.4.5" << I;
    QTest::newRow("four dots only") << "...." << I;

    // Letters in four complete parts.
    QTest::newRow("a.b.c.d") << "a.b.c.d" << I;
    QTest::newRow("exponent") << "1e1.0.0.1" << I;
    QTest::newRow("arabic digit") << QString::fromUtf8("\u0661.2.3.4") << I;

    // IPv6 text: a doubt while there are too few dots, refused with three.
    QTest::newRow("::1") << "::1" << M;
    QTest::newRow("fe80::1") << "fe80::1" << M;
    QTest::newRow("mapped IPv4") << "::ffff:1.2.3.4" << I;
    QTest::newRow("IPv6 with IPv4 tail") << "2001:db8::1.2.3.4" << I;
}

void TestAddressValidators::address()
{
    QFETCH(QString, input);
    QFETCH(QValidator::State, expected);
    QIpAddressValidator validator;
    QCOMPARE(judge(validator, input), expected);
}

void TestAddressValidators::addressAtEveryKeystroke_data()
{
    QTest::addColumn<QString>("input");
    QTest::addColumn<QValidator::State>("expected");

    // Every prefix is a doubt until the first digit after the third dot.
    for (const QString& address :
        { QStringLiteral("192.168.100.254"), QStringLiteral("10.0.0.1"), QStringLiteral("255.255.255.255") }) {
        const int thirdDot = address.lastIndexOf(QLatin1Char('.'));
        for (int length = 0; length <= address.size(); ++length) {
            const QString prefix = address.left(length);
            QTest::addRow("%s", qPrintable(prefix.isEmpty() ? QStringLiteral("(empty) of ") + address : prefix))
                << prefix << (length > thirdDot + 1 ? A : M);
        }
    }
}

void TestAddressValidators::addressAtEveryKeystroke()
{
    address();
}

void TestAddressValidators::addressTypedIntoLineEdit()
{
    QLineEdit edit;
    QIpAddressValidator validator;
    edit.setValidator(&validator);

    QTest::keyClicks(&edit, QStringLiteral("192.168.100.254"));
    QCOMPARE(edit.text(), QStringLiteral("192.168.100.254"));
    QVERIFY(edit.hasAcceptableInput());

    // A fifth part can't be started: the dot is refused, the digit lands.
    edit.clear();
    QTest::keyClicks(&edit, QStringLiteral("192.168.0.1.2"));
    QCOMPARE(edit.text(), QStringLiteral("192.168.0.12"));

    // A part above 255 is refused once all four parts stand.
    edit.clear();
    QTest::keyClicks(&edit, QStringLiteral("1.2.3.25"));
    QTest::keyClick(&edit, Qt::Key_9);
    QCOMPARE(edit.text(), QStringLiteral("1.2.3.25"));
}

// ---- QIpNetmaskValidator ------------------------------------------------

void TestAddressValidators::netmask_data()
{
    QTest::addColumn<QString>("input");
    QTest::addColumn<QValidator::State>("expected");

    QTest::newRow("255.255.0.0") << "255.255.0.0" << A;
    QTest::newRow("255.0.255.0") << "255.0.255.0" << M;
    QTest::newRow("/24") << "/24" << A;
    QTest::newRow("/33") << "/33" << M;
    QTest::newRow("/") << "/" << M;
    QTest::newRow("0.0.0.0") << "0.0.0.0" << M;

    // Every prefix length in both notations: the slash form takes 0 to 32,
    // the dotted form 1 to 30.
    for (int ones = 0; ones <= 32; ++ones) {
        QTest::addRow("/%d", ones) << QStringLiteral("/%1").arg(ones) << A;
        QTest::addRow("dotted /%d", ones) << dottedMask(ones) << (ones >= 1 && ones <= 30 ? A : M);
    }

    // Gaps in the ones.
    QTest::newRow("255.255.255.253") << "255.255.255.253" << M;
    QTest::newRow("254.255.255.0") << "254.255.255.0" << M;
    QTest::newRow("0.255.255.255") << "0.255.255.255" << M;
    QTest::newRow("128.0.0.1") << "128.0.0.1" << M;
    QTest::newRow("255.255.0.255") << "255.255.0.255" << M;
    QTest::newRow("170.170.170.170") << "170.170.170.170" << M;
    QTest::newRow("0.0.0.255 (below 256)") << "0.0.0.255" << M;

    // Slash form that isn't a length from 0 to 32.
    QTest::newRow("/-1") << "/-1" << M;
    QTest::newRow("/abc") << "/abc" << M;
    QTest::newRow("/2 4") << "/2 4" << M;
    QTest::newRow("/123") << "/123" << M;
    QTest::newRow("/24/") << "/24/" << M;

    // White space is simplified first.
    QTest::newRow(" /24 ") << " /24 " << A;
    QTest::newRow("/ 24") << "/ 24" << A;
    QTest::newRow(" 255.255.255.0 ") << " 255.255.255.0 " << A;
    QTest::newRow("leading zeros") << "255.255.255.000" << A;

    // What the address check says about the form.
    QTest::newRow("empty") << "" << M;
    QTest::newRow("255.255.0") << "255.255.0" << M;
    QTest::newRow("255.255.0.0.0") << "255.255.0.0.0" << I;
    QTest::newRow("256.0.0.0") << "256.0.0.0" << I;
    QTest::newRow("IPv6") << "ffff:ffff::" << M;
    QTest::newRow("mapped IPv6") << "::ffff:255.255.0.0" << I;
}

void TestAddressValidators::netmask()
{
    QFETCH(QString, input);
    QFETCH(QValidator::State, expected);
    QIpNetmaskValidator validator;
    QCOMPARE(judge(validator, input), expected);
}

void TestAddressValidators::netmaskFixup_data()
{
    QTest::addColumn<QString>("input");
    QTest::addColumn<QString>("expected");

    QTest::newRow("/24") << "/24"
                         << "255.255.255.0";
    QTest::newRow("/") << "/"
                       << "0.0.0.0";
    QTest::newRow("/123") << "/123"
                          << "/123";
    QTest::newRow("/33") << "/33"
                         << "/33";
    for (int ones = 0; ones <= 32; ++ones)
        QTest::addRow("/%d", ones) << QStringLiteral("/%1").arg(ones) << dottedMask(ones);
    QTest::newRow("/32") << "/32"
                         << "255.255.255.255";
    QTest::newRow("trimmed") << " /8 "
                             << "255.0.0.0";
    QTest::newRow("/-1") << "/-1"
                         << "/-1";
    QTest::newRow("not a number counts as 0") << "/ab"
                                              << "0.0.0.0";
    QTest::newRow("/ 24 is too long") << "/ 24"
                                      << "/ 24";
    QTest::newRow("dotted mask") << "255.255.0.0"
                                 << "255.255.0.0";
    QTest::newRow("length without slash") << "24"
                                          << "24";
    QTest::newRow("empty") << ""
                           << "";
}

void TestAddressValidators::netmaskFixup()
{
    QFETCH(QString, input);
    QFETCH(QString, expected);
    QIpNetmaskValidator validator;
    QString text = input;
    validator.fixup(text);
    QCOMPARE(text, expected);
}

void TestAddressValidators::netmaskTypedIntoLineEdit_data()
{
    QTest::addColumn<QString>("keys");
    QTest::addColumn<bool>("acceptable");

    QTest::newRow("dotted") << "255.255.255.0" << true;
    QTest::newRow("slash") << "/24" << true;
    QTest::newRow("/31") << "/31" << true;
    QTest::newRow("gap") << "255.0.255.0" << false;
}

void TestAddressValidators::netmaskTypedIntoLineEdit()
{
    QFETCH(QString, keys);
    QFETCH(bool, acceptable);
    QLineEdit edit;
    QIpNetmaskValidator validator;
    edit.setValidator(&validator);
    // No keystroke on the way is refused.
    QTest::keyClicks(&edit, keys);
    QCOMPARE(edit.text(), keys);
    QCOMPARE(edit.hasAcceptableInput(), acceptable);
}

// ---- QIpAddressWithNetmaskValidator -------------------------------------

void TestAddressValidators::addressWithNetmask_data()
{
    QTest::addColumn<QString>("input");
    QTest::addColumn<bool>("withMaskEdit");
    QTest::addColumn<QString>("mask");
    QTest::addColumn<int>("allow");
    QTest::addColumn<QValidator::State>("expected");

    const QString c24 = QStringLiteral("255.255.255.0");

    // Empty and null.
    QTest::newRow("empty, null refused") << "" << false << "" << int(None) << M;
    QTest::newRow("empty, null allowed") << "" << false << "" << int(Null) << A;
    QTest::newRow("blank, null allowed") << "   " << true << "" << int(Null) << A;
    QTest::newRow("0.0.0.0, null refused") << "0.0.0.0" << true << c24 << int(None) << M;
    QTest::newRow("0.0.0.0, null allowed") << "0.0.0.0" << true << "" << int(Null) << A;
    QTest::newRow("0 reads as null") << "0" << false << "" << int(Null) << A;

    // Text QHostAddress can't read is a doubt, never refused.
    QTest::newRow("letters") << "abc" << false << "" << int(None) << M;
    QTest::newRow("300.1.1.1") << "300.1.1.1" << false << "" << int(None) << M;
    QTest::newRow("too many dots") << "1.2.3.4.5" << false << "" << int(None) << M;
    QTest::newRow("partial") << "192.168." << false << "" << int(None) << M;
    // Readable but not in the form of four parts.
    QTest::newRow("three parts") << "1.2.3" << false << "" << int(None) << M;
    QTest::newRow("0.0.0.7") << "0.0.0.7" << false << "" << int(None) << M;
    QTest::newRow("::1") << "::1" << false << "" << int(None) << M;
    QTest::newRow("::, null allowed") << "::" << false << "" << int(Null) << M;
    QTest::newRow("mapped IPv4") << "::ffff:1.2.3.4" << false << "" << int(None) << I;

    // Loopback decides alone.
    QTest::newRow("127.0.0.1 refused, no mask edit") << "127.0.0.1" << false << "" << int(None) << M;
    QTest::newRow("127.0.0.1 refused, mask 255.0.0.0")
        << "127.0.0.1" << true << "255.0.0.0" << int(Broadcast | Multicast | Experimental | Null) << M;
    QTest::newRow("127.255.255.255 refused") << "127.255.255.255" << false << "" << int(Broadcast) << M;
    QTest::newRow("127.0.0.1 allowed, empty mask") << "127.0.0.1" << true << "" << int(Loopback) << A;
    QTest::newRow("127.0.0.0 allowed, network of its mask") << "127.0.0.0" << true << "255.0.0.0" << int(Loopback) << A;
    QTest::newRow("126.255.255.254 is not loopback") << "126.255.255.254" << false << "" << int(None) << A;
    QTest::newRow("128.0.0.1 is not loopback") << "128.0.0.1" << false << "" << int(None) << A;

    // Multicast and experimental.
    QTest::newRow("224.0.0.1 refused") << "224.0.0.1" << false << "" << int(None) << M;
    QTest::newRow("239.255.255.254 refused") << "239.255.255.254" << false << "" << int(None) << M;
    QTest::newRow("224.0.0.1 allowed") << "224.0.0.1" << false << "" << int(Multicast) << A;
    QTest::newRow("223.255.255.254 is unicast") << "223.255.255.254" << false << "" << int(None) << A;
    QTest::newRow("240.0.0.1 refused") << "240.0.0.1" << false << "" << int(None) << M;
    QTest::newRow("240.0.0.1 allowed") << "240.0.0.1" << false << "" << int(Experimental) << A;
    QTest::newRow("240.0.0.1, multicast allowed") << "240.0.0.1" << false << "" << int(Multicast) << M;

    // Broadcast 255.255.255.255.
    QTest::newRow("broadcast, nothing allowed") << "255.255.255.255" << false << "" << int(None) << M;
    QTest::newRow("broadcast, experimental allowed") << "255.255.255.255" << false << "" << int(Experimental) << M;
    QTest::newRow("broadcast, broadcast allowed") << "255.255.255.255" << false << "" << int(Broadcast) << M;
    QTest::newRow("broadcast, both allowed") << "255.255.255.255" << false << "" << int(Broadcast | Experimental) << A;

    // Without a mask edit there is no subnet to check.
    QTest::newRow("network address, no mask edit") << "192.168.1.0" << false << "" << int(None) << A;

    // Under 255.255.255.0.
    QTest::newRow("192.168.1.0 network") << "192.168.1.0" << true << c24 << int(None) << M;
    QTest::newRow("192.168.1.255 broadcast") << "192.168.1.255" << true << c24 << int(None) << M;
    QTest::newRow("192.168.1.1") << "192.168.1.1" << true << c24 << int(None) << A;
    QTest::newRow("192.168.1.254") << "192.168.1.254" << true << c24 << int(None) << A;
    QTest::newRow("network, broadcast allowed") << "192.168.1.0" << true << c24 << int(Broadcast) << A;
    QTest::newRow("subnet broadcast, broadcast allowed") << "192.168.1.255" << true << c24 << int(Broadcast) << A;
    QTest::newRow("mask with spaces") << "192.168.1.0" << true << " 255.255.255.0 " << int(None) << M;

    // Other subnets.
    QTest::newRow("/16 network") << "172.16.0.0" << true << "255.255.0.0" << int(None) << M;
    QTest::newRow("/16 broadcast") << "172.16.255.255" << true << "255.255.0.0" << int(None) << M;
    QTest::newRow("/16 x.x.1.0") << "172.16.1.0" << true << "255.255.0.0" << int(None) << A;
    QTest::newRow("/16 x.x.0.255") << "172.16.0.255" << true << "255.255.0.0" << int(None) << A;
    QTest::newRow("/30 network") << "10.0.0.0" << true << "255.255.255.252" << int(None) << M;
    QTest::newRow("/30 first host") << "10.0.0.1" << true << "255.255.255.252" << int(None) << A;
    QTest::newRow("/30 second host") << "10.0.0.2" << true << "255.255.255.252" << int(None) << A;
    QTest::newRow("/30 broadcast") << "10.0.0.3" << true << "255.255.255.252" << int(None) << M;

    // The slash form parses to 0 here: the subnet check passes everything.
    QTest::newRow("/24, network") << "192.168.1.0" << true << "/24" << int(None) << A;
    QTest::newRow("/24, broadcast") << "192.168.1.255" << true << "/24" << int(None) << A;

    // An incomplete or wrong mask keeps every address a doubt.
    QTest::newRow("empty mask") << "192.168.1.1" << true << "" << int(None) << M;
    QTest::newRow("partial mask") << "192.168.1.1" << true << "255.255." << int(None) << M;
    QTest::newRow("gap in mask") << "192.168.1.1" << true << "255.0.255.0" << int(None) << M;
    QTest::newRow("all-ones mask") << "192.168.1.1" << true << "255.255.255.255" << int(None) << M;
    QTest::newRow("/33") << "192.168.1.1" << true << "/33" << int(None) << M;
    QTest::newRow("refused mask text") << "192.168.1.1" << true << "256.0.0.0" << int(None) << M;
    QTest::newRow("incomplete mask, broadcast allowed") << "192.168.1.1" << true << "" << int(Broadcast) << M;
}

void TestAddressValidators::addressWithNetmask()
{
    QFETCH(QString, input);
    QFETCH(bool, withMaskEdit);
    QFETCH(QString, mask);
    QFETCH(int, allow);
    QFETCH(QValidator::State, expected);

    QLineEdit maskEdit;
    maskEdit.setText(mask);
    QIpAddressWithNetmaskValidator validator(withMaskEdit ? &maskEdit : nullptr);
    validator.setAllowLoopbackAddress(allow & Loopback);
    validator.setAllowNullAddress(allow & Null);
    validator.setAllowBroadcastAddress(allow & Broadcast);
    validator.setAllowMulticastAddress(allow & Multicast);
    validator.setAllowExperimentalPurposeAddress(allow & Experimental);
    QCOMPARE(judge(validator, input), expected);
    QCOMPARE(maskEdit.text(), mask);
}

void TestAddressValidators::addressWithNetmaskReadsTheMaskEachTime()
{
    QLineEdit maskEdit;
    QIpAddressWithNetmaskValidator validator(&maskEdit);
    const QString address = QStringLiteral("192.168.1.0");

    QCOMPARE(judge(validator, address), M);
    maskEdit.setText(QStringLiteral("255.255.0.0"));
    QCOMPARE(judge(validator, address), A);
    maskEdit.setText(QStringLiteral("255.255.255.0"));
    QCOMPARE(judge(validator, address), M);
    maskEdit.setText(QStringLiteral("/24"));
    QCOMPARE(judge(validator, address), A);
}

void TestAddressValidators::addressWithNetmaskProperties()
{
    QIpAddressWithNetmaskValidator validator(nullptr);
    const char* names[] = { "allowLoopbackAddress", "allowNullAddress", "allowBroadcastAddress",
        "allowMulticastAddress", "allowExperimentalPurposeAddress" };
    for (const char* name : names) {
        QVariant value = validator.property(name);
        QVERIFY2(value.isValid(), name);
        QCOMPARE(value.toBool(), false);
    }
    // Each setter stores its own flag and no other.
    for (const char* name : names) {
        QVERIFY(validator.setProperty(name, true));
        for (const char* other : names)
            QCOMPARE(validator.property(other).toBool(), qstrcmp(name, other) == 0);
        QVERIFY(validator.setProperty(name, false));
    }
    validator.setAllowLoopbackAddress(true);
    QVERIFY(validator.allowLoopbackAddress());
    validator.setAllowNullAddress(true);
    QVERIFY(validator.allowNullAddress());
    validator.setAllowBroadcastAddress(true);
    QVERIFY(validator.allowBroadcastAddress());
    validator.setAllowMulticastAddress(true);
    QVERIFY(validator.allowMulticastAddress());
    validator.setAllowExperimentalPurposeAddress(true);
    QVERIFY(validator.allowExperimentalPurposeAddress());
}

// ---- QMacAddressValidator -----------------------------------------------

void TestAddressValidators::mac_data()
{
    QTest::addColumn<QString>("input");
    QTest::addColumn<QValidator::State>("expected");
    QTest::addColumn<int>("expectedPos"); // -1: the cursor stays

    QTest::newRow("empty") << "" << A << -1;
    QTest::newRow("colons") << "00:11:22:33:44:55" << A << -1;
    QTest::newRow("hyphens") << "00-11-22-33-44-55" << A << -1;
    QTest::newRow("no separator") << "001122334455" << A << -1;
    QTest::newRow("mixed separators") << "00 11:22-33 44 55" << A << -1;
    QTest::newRow("lower case") << "aa:bb:cc:dd:ee:ff" << A << -1;
    QTest::newRow("upper case") << "AA:BB:CC:DD:EE:FF" << A << -1;
    QTest::newRow("mixed case") << "aA-Bb-cC-Dd-eE-Ff" << A << -1;
    QTest::newRow("separators anywhere") << ":::0011::22334455---" << A << -1;
    QTest::newRow("odd grouping") << "0 011223 34455" << A << -1;

    QTest::newRow("eleven digits") << "00:11:22:33:44:5" << M << -1;
    QTest::newRow("one digit") << "0" << M << -1;
    QTest::newRow("separators only") << ": - :" << M << -1;

    QTest::newRow("thirteen digits") << "00:11:22:33:44:556" << I << -1;
    QTest::newRow("thirteen, no separator") << "0011223344556" << I << -1;

    QTest::newRow("dot") << "00.11" << I << 2;
    QTest::newRow("g first") << "g0:11:22:33:44:55" << I << 0;
    QTest::newRow("g last") << "00:11:22:33:44:5g" << I << 16;
    QTest::newRow("underscore") << "00_11" << I << 2;
    QTest::newRow("tab") << "00\t11" << I << 2;
    QTest::newRow("full-width digit") << QString::fromUtf8("0\uFF101") << I << 1;
    QTest::newRow("arabic digit") << QString::fromUtf8("00:\u0661") << I << 3;
    // The first bad character decides, even past the thirteenth digit.
    QTest::newRow("bad after too many") << "0011223344556x" << I << 13;
}

void TestAddressValidators::mac()
{
    QFETCH(QString, input);
    QFETCH(QValidator::State, expected);
    QFETCH(int, expectedPos);

    QMacAddressValidator validator;
    QCOMPARE(validator.allowedSeperators(), QStringLiteral(" :-"));
    QString text = input;
    const int startPos = 1000;
    int pos = startPos;
    QCOMPARE(validator.validate(text, pos), expected);
    QCOMPARE(text, input);
    QCOMPARE(pos, expectedPos == -1 ? startPos : expectedPos);
}

void TestAddressValidators::macSeparatorsCanBeChanged_data()
{
    QTest::addColumn<QString>("separators");
    QTest::addColumn<QString>("input");
    QTest::addColumn<QValidator::State>("expected");
    QTest::addColumn<int>("expectedPos");

    QTest::newRow("dot allowed") << "."
                                 << "0011.2233.4455" << A << -1;
    QTest::newRow("dot allowed, colon refused") << "."
                                                << "00:11" << I << 2;
    QTest::newRow("none allowed") << ""
                                  << "001122334455" << A << -1;
    QTest::newRow("none allowed, space refused") << ""
                                                 << "00 11" << I << 2;
}

void TestAddressValidators::macSeparatorsCanBeChanged()
{
    QFETCH(QString, separators);
    QFETCH(QString, input);
    QFETCH(QValidator::State, expected);
    QFETCH(int, expectedPos);

    QMacAddressValidator validator;
    QVERIFY(validator.setProperty("allowedSeperators", separators));
    QCOMPARE(validator.allowedSeperators(), separators);
    QString text = input;
    int pos = 0;
    QCOMPARE(validator.validate(text, pos), expected);
    QCOMPARE(pos, expectedPos == -1 ? 0 : expectedPos);
}

void TestAddressValidators::macTypedIntoLineEdit()
{
    QLineEdit edit;
    QMacAddressValidator validator;
    edit.setValidator(&validator);

    QTest::keyClicks(&edit, QStringLiteral("00:1A:2b-33 44:55"));
    QCOMPARE(edit.text(), QStringLiteral("00:1A:2b-33 44:55"));
    QVERIFY(edit.hasAcceptableInput());

    // A thirteenth digit and a stray character are both refused.
    QTest::keyClick(&edit, Qt::Key_6);
    QTest::keyClick(&edit, Qt::Key_Period);
    QCOMPARE(edit.text(), QStringLiteral("00:1A:2b-33 44:55"));
}

QTEST_MAIN(TestAddressValidators)
#include "tst_addressvalidators.moc"
