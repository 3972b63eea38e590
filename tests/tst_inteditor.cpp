#include "editortestsupport.h"

#include "featuretree/hexvalidator.h"
#include "featuretree/inteditor.h"
#include "parameters/iintegerparameter.h"

#include <QIntValidator>
#include <QtTest>

using namespace ParameterCollection;
using Simulation::FaultKind;
using Simulation::Operation;

class TestIntEditor : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void construction();
    void showsTheDeviceText_data();
    void showsTheDeviceText();
    void notReadableShowsPlaceholder();
    void valueBeyond32BitsIsShownWhole();
    void hexToolTipWithNegativeMinimum();
    void addressLikeRepresentationsClearTheValidator_data();
    void addressLikeRepresentationsClearTheValidator();
    void unknownRepresentationLeavesTheBoxAlone();
    void refusesOtherKinds_data();
    void refusesOtherKinds();
    void typedValuesReachTheDeviceWhole_data();
    void typedValuesReachTheDeviceWhole();
    void faultsLeaveItWorking_data();
    void faultsLeaveItWorking();
    void unpluggedAndZombie();

    void hexValidator_data();
    void hexValidator();
    void hexValidatorKeepsInputAndRange();

private:
    QSharedPointer<Simulation::SimulatedDevice> m_device;
};

void TestIntEditor::init()
{
    m_device = TreeTest::makeDevice(EditorTest::editorCameraJson());
    QVERIFY(m_device);
}

void TestIntEditor::cleanup()
{
    m_device.reset();
}

void TestIntEditor::construction()
{
    IntEditor editor;
    QVERIFY(!editor.hasFrame());
    QCOMPARE(editor.contentsMargins(), QMargins(1, 0, 1, 0));
    QVERIFY(!editor.validator());
}

void TestIntEditor::showsTheDeviceText_data()
{
    QTest::addColumn<QString>("feature");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("toolTip");
    QTest::newRow("pure number") << QStringLiteral("Count") << QStringLiteral("7") << QStringLiteral("Range: 0..100");
    QTest::newRow("linear, 64-bit") << QStringLiteral("Big") << QStringLiteral("5000000000")
                                    << QStringLiteral("Range: 0..2147483647");
    QTest::newRow("hex") << QStringLiteral("Hex") << QStringLiteral("0xFF")
                         << QStringLiteral("Range: 0xffffffffffffffff..0xff");
    QTest::newRow("IPv4") << QStringLiteral("Address") << QStringLiteral("192.168.1.1") << QString();
    QTest::newRow("MAC") << QStringLiteral("Mac") << QStringLiteral("12:34:56:78:9A:BC") << QString();
    QTest::newRow("boolean") << QStringLiteral("BoolInt") << QStringLiteral("1") << QString();
}

void TestIntEditor::showsTheDeviceText()
{
    QFETCH(QString, feature);
    QFETCH(QString, text);
    QFETCH(QString, toolTip);
    IntEditor editor;
    editor.setToolTip(QStringLiteral("old"));
    EditorTest::LogRecord log;
    editor.setEditorData(EditorTest::editorDataOf(m_device, feature));
    QCOMPARE(editor.text(), text);
    QCOMPARE(editor.toolTip(), toolTip);
    QCOMPARE(editor.editorData(), QVariant(text));
    QCOMPARE(editor.editorData().userType(), int(QMetaType::QString));
    QCOMPARE(log.count(), 0);
}

void TestIntEditor::notReadableShowsPlaceholder()
{
    IntEditor editor;
    editor.setToolTip(QStringLiteral("old"));
    const AbstractItemEditor::EditorData data = EditorTest::editorDataOf(m_device, QStringLiteral("Hidden"));
    QVERIFY(!data.data->readable);
    editor.setEditorData(data);
    QCOMPARE(editor.text(), QStringLiteral("<not readable>"));
    QCOMPARE(editor.toolTip(), QString());
    // Committed as it stands; the device refuses it.
    QCOMPARE(editor.editorData(), QVariant(QStringLiteral("<not readable>")));
    QVERIFY_EXCEPTION_THROWN(data.node->setValueFromString(editor.editorData().toString()), std::exception);
}

void TestIntEditor::valueBeyond32BitsIsShownWhole()
{
    IntEditor editor;
    const AbstractItemEditor::EditorData data = EditorTest::editorDataOf(m_device, QStringLiteral("Big"));
    const auto integer = data.data.dynamicCast<const IntegerParameterData>();
    QVERIFY(integer->value > std::numeric_limits<qint32>::max());
    QVERIFY(integer->maximum > std::numeric_limits<qint32>::max());
    editor.setEditorData(data);
    QCOMPARE(editor.text(), QStringLiteral("5000000000"));
    QVERIFY(editor.toolTip().endsWith(QLatin1String("..2147483647")));
}

void TestIntEditor::hexToolTipWithNegativeMinimum()
{
    IntEditor editor;
    editor.setEditorData(EditorTest::editorDataOf(m_device, QStringLiteral("Hex")));
    QVERIFY(
        editor.toolTip().startsWith(QLatin1String("Range: 0x") + QString(16, QLatin1Char('f')) + QLatin1String("..")));
}

void TestIntEditor::addressLikeRepresentationsClearTheValidator_data()
{
    QTest::addColumn<QString>("feature");
    QTest::addColumn<bool>("cleared");
    QTest::newRow("IPv4") << QStringLiteral("Address") << true;
    QTest::newRow("MAC") << QStringLiteral("Mac") << true;
    QTest::newRow("boolean") << QStringLiteral("BoolInt") << true;
    QTest::newRow("pure number keeps it") << QStringLiteral("Count") << false;
    QTest::newRow("hex keeps it") << QStringLiteral("Hex") << false;
}

void TestIntEditor::addressLikeRepresentationsClearTheValidator()
{
    QFETCH(QString, feature);
    QFETCH(bool, cleared);
    IntEditor editor;
    QIntValidator validator(0, 10);
    editor.setValidator(&validator);
    editor.setEditorData(EditorTest::editorDataOf(m_device, feature));
    QCOMPARE(editor.validator() == nullptr, cleared);
    if (cleared)
        QCOMPARE(editor.toolTip(), QString());
}

void TestIntEditor::unknownRepresentationLeavesTheBoxAlone()
{
    IntEditor editor;
    editor.setEditorData(EditorTest::editorDataOf(m_device, QStringLiteral("Count")));
    AbstractItemEditor::EditorData data = EditorTest::editorDataOf(m_device, QStringLiteral("Count"));
    QSharedPointer<IntegerParameterData> odd(
        new IntegerParameterData(*data.data.dynamicCast<const IntegerParameterData>()));
    odd->representation = QStringLiteral("linear"); // the comparison is case-sensitive
    odd->value = 9;
    odd->valueText = QStringLiteral("9");
    data.data = odd;
    EditorTest::LogRecord log;
    QTest::ignoreMessage(QtDebugMsg, "setEditorData unexpected representation.");
    editor.setEditorData(data);
    QCOMPARE(log.count(), 1);
    QCOMPARE(editor.text(), QStringLiteral("7"));
    QCOMPARE(editor.toolTip(), QStringLiteral("Range: 0..100"));
}

void TestIntEditor::refusesOtherKinds_data()
{
    QTest::addColumn<QString>("nodeFeature");
    QTest::addColumn<QString>("dataFeature");
    QTest::addColumn<bool>("nullSnapshot");
    QTest::newRow("float") << QStringLiteral("Gain") << QStringLiteral("Gain") << false;
    QTest::newRow("boolean") << QStringLiteral("Flag") << QStringLiteral("Flag") << false;
    QTest::newRow("integer node, boolean snapshot") << QStringLiteral("Count") << QStringLiteral("Flag") << false;
    QTest::newRow("boolean node, integer snapshot") << QStringLiteral("Flag") << QStringLiteral("Count") << false;
    QTest::newRow("null snapshot") << QStringLiteral("Count") << QStringLiteral("Count") << true;
}

void TestIntEditor::refusesOtherKinds()
{
    QFETCH(QString, nodeFeature);
    QFETCH(QString, dataFeature);
    QFETCH(bool, nullSnapshot);
    IntEditor editor;
    editor.setEditorData(EditorTest::editorDataOf(m_device, QStringLiteral("Count")));
    AbstractItemEditor::EditorData data { EditorTest::editorDataOf(m_device, nodeFeature).node,
        EditorTest::editorDataOf(m_device, dataFeature).data };
    if (nullSnapshot)
        data.data.reset();
    QTest::ignoreMessage(QtDebugMsg, "setEditorData is called with non-integer node????");
    editor.setEditorData(data);
    QCOMPARE(editor.text(), QStringLiteral("7"));
    QCOMPARE(editor.toolTip(), QStringLiteral("Range: 0..100"));
}

void TestIntEditor::typedValuesReachTheDeviceWhole_data()
{
    QTest::addColumn<QString>("feature");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("shown");
    QTest::newRow("beyond 2^32") << QStringLiteral("Big") << QStringLiteral("1099511627776")
                                 << QStringLiteral("1099511627776");
    QTest::newRow("hex") << QStringLiteral("Hex") << QStringLiteral("0x1F") << QStringLiteral("0x1F");
    QTest::newRow("IPv4") << QStringLiteral("Address") << QStringLiteral("10.0.0.254") << QStringLiteral("10.0.0.254");
    QTest::newRow("MAC") << QStringLiteral("Mac") << QStringLiteral("00:1B:2C:3D:4E:5F")
                         << QStringLiteral("00:1B:2C:3D:4E:5F");
}

// The user types into the box; what the delegate commits is written to the
// device as text, and the device's next snapshot shows the same value.
void TestIntEditor::typedValuesReachTheDeviceWhole()
{
    QFETCH(QString, feature);
    QFETCH(QString, typed);
    QFETCH(QString, shown);
    IntEditor editor;
    AbstractItemEditor::EditorData data = EditorTest::editorDataOf(m_device, feature);
    editor.setEditorData(data);
    editor.show();
    QVERIFY(QTest::qWaitForWindowExposed(&editor));
    editor.setFocus();
    editor.selectAll();
    QTest::keyClick(&editor, Qt::Key_Backspace);
    QTest::keyClicks(&editor, typed);
    QSignalSpy returned(&editor, SIGNAL(returnPressed()));
    QTest::keyClick(&editor, Qt::Key_Return);
    QCOMPARE(returned.count(), 1);
    QCOMPARE(editor.editorData(), QVariant(typed));

    data.node->setValueFromString(editor.editorData().toString());
    editor.setEditorData(EditorTest::editorDataOf(m_device, feature));
    QCOMPARE(editor.text(), shown);
}

void TestIntEditor::faultsLeaveItWorking_data()
{
    QTest::addColumn<int>("kind");
    EditorTest::addFaultKindRows();
}

// Only the snapshot is read: a parameter that throws on every call changes nothing.
void TestIntEditor::faultsLeaveItWorking()
{
    QFETCH(int, kind);
    const AbstractItemEditor::EditorData data = EditorTest::editorDataOf(m_device, QStringLiteral("Big"));
    m_device->injectFault(QStringLiteral("@CameraDevice/Big"), Operation::Any, FaultKind(kind));
    IntEditor editor;
    EditorTest::LogRecord log;
    editor.setEditorData(data);
    QCOMPARE(editor.text(), QStringLiteral("5000000000"));
    QCOMPARE(log.count(), 0);
}

void TestIntEditor::unpluggedAndZombie()
{
    const AbstractItemEditor::EditorData data = EditorTest::editorDataOf(m_device, QStringLiteral("Hex"));
    m_device->unplug();
    IntEditor editor;
    editor.setEditorData(data);
    QCOMPARE(editor.text(), QStringLiteral("0xFF"));

    m_device->replug();
    const auto zombie = m_device->nodeMap(QStringLiteral("@CameraDevice"))->getParameter(QStringLiteral("Nothing"));
    QVERIFY(zombie && zombie->isZombie());
    QTest::ignoreMessage(QtDebugMsg, "setEditorData is called with non-integer node????");
    editor.setEditorData({ zombie, ParameterData::createPlaceholder() });
    QCOMPARE(editor.text(), QStringLiteral("0xFF"));
}

void TestIntEditor::hexValidator_data()
{
    QTest::addColumn<QString>("input");
    QTest::addColumn<int>("state");
    QTest::newRow("empty") << QString() << int(QValidator::Intermediate);
    QTest::newRow("bare prefix") << QStringLiteral("0x") << int(QValidator::Intermediate);
    QTest::newRow("bare prefix with blanks") << QStringLiteral(" 0x ") << int(QValidator::Intermediate);
    QTest::newRow("0x10") << QStringLiteral("0x10") << int(QValidator::Acceptable);
    QTest::newRow("16") << QStringLiteral("16") << int(QValidator::Acceptable);
    QTest::newRow("0xff") << QStringLiteral("0xff") << int(QValidator::Acceptable);
    QTest::newRow("0xZZ") << QStringLiteral("0xZZ") << int(QValidator::Invalid);
    QTest::newRow("upper-case prefix") << QStringLiteral("0X10") << int(QValidator::Invalid);
    QTest::newRow("letters in decimal") << QStringLiteral("1f") << int(QValidator::Invalid);
    // Above the limits the base class's rules hold, on the decimal form: as
    // many digits as the limit may still be corrected, more may not.
    QTest::newRow("0x100 just above the limit") << QStringLiteral("0x100") << int(QValidator::Intermediate);
    QTest::newRow("300 just above the limit") << QStringLiteral("300") << int(QValidator::Intermediate);
    QTest::newRow("0x1000 far above the limit") << QStringLiteral("0x1000") << int(QValidator::Invalid);
    QTest::newRow("4096 far above the limit") << QStringLiteral("4096") << int(QValidator::Invalid);
}

void TestIntEditor::hexValidator()
{
    QFETCH(QString, input);
    QFETCH(int, state);
    HexValidator validator(0, 255, nullptr);
    int pos = input.size();
    QCOMPARE(int(validator.validate(input, pos)), state);
}

void TestIntEditor::hexValidatorKeepsInputAndRange()
{
    HexValidator validator(0, 255, nullptr);
    QCOMPARE(validator.bottom(), 0);
    QCOMPARE(validator.top(), 255);
    QString input = QStringLiteral("0x1f");
    int pos = 4;
    QCOMPARE(validator.validate(input, pos), QValidator::Acceptable);
    QCOMPARE(input, QStringLiteral("0x1f"));

    // In a line edit: typing an upper-case prefix is refused at the "X".
    QLineEdit edit;
    edit.setValidator(&validator);
    QTest::keyClicks(&edit, QStringLiteral("0X1"));
    QCOMPARE(edit.text(), QStringLiteral("01"));
    edit.clear();
    QTest::keyClicks(&edit, QStringLiteral("0x1f"));
    QCOMPARE(edit.text(), QStringLiteral("0x1f"));
}

QTEST_MAIN(TestIntEditor)
#include "tst_inteditor.moc"
