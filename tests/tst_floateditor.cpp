#include "editortestsupport.h"
#include "valuewidgettestsupport.h"

#include "featuretree/floateditor.h"
#include "featuretree/zarvexqtdoublespinbox.h"
#include "parameters/formatdoublevalue.h"
#include "parameters/ifloatparameter.h"

#include <QLineEdit>
#include <QVBoxLayout>
#include <QtTest>

#include <limits>

using namespace ParameterCollection;
using Simulation::FaultKind;
using Simulation::Operation;

namespace {

class OpenFloatEditor : public FloatEditor
{
public:
    explicit OpenFloatEditor(const QString& representation = QString())
        : FloatEditor(nullptr, representation)
    {
    }
    ZarvexQtDoubleSpinBox* box() const { return spinBox; }
    bool isInitialized() const { return initialized; }
    bool gateOpen() const { return updateEnabled; }
    double incrementField() const { return increment; }
};

/*!
 * A float parameter that passes every call on to a simulated one and keeps
 * the values written with setValue(), so that a test sees each write, also
 * one that leaves the device as it was.
 */
class RecordingFloat : public IFloatParameter
{
public:
    explicit RecordingFloat(QSharedPointer<IFloatParameter> inner)
        : m_inner(std::move(inner))
    {
        connect(m_inner.data(), &IParameter::parameterDataChangedDecoupled, this,
            &IParameter::parameterDataChangedDecoupled);
    }
    QList<double> writes;

    void setValueFromString(QString value) override { m_inner->setValueFromString(value); }
    bool isZombie() const override { return m_inner->isZombie(); }
    bool isWritable() const override { return m_inner->isWritable(); }
    bool isImposable() const override { return m_inner->isImposable(); }
    GenApi::EVisibility getVisibility() const override { return m_inner->getVisibility(); }
    int getType() const override { return m_inner->getType(); }
    QString getFullName() const override { return m_inner->getFullName(); }
    QString getName() const override { return m_inner->getName(); }
    QSharedPointer<IAdvancedParameterAccess> advancedAccess() const override { return m_inner->advancedAccess(); }
    QSharedPointer<const ParameterData> getParameterData() const override { return m_inner->getParameterData(); }
    void setValue(double value) override
    {
        writes << value;
        m_inner->setValue(value);
    }
    double getValue() const override { return m_inner->getValue(); }
    double getMinimum() const override { return m_inner->getMinimum(); }
    double getMaximum() const override { return m_inner->getMaximum(); }

private:
    QSharedPointer<IFloatParameter> m_inner;
};

QSharedPointer<FloatParameterData> floatSnapshot(double minimum, double maximum, double value, double increment)
{
    QSharedPointer<FloatParameterData> data(new FloatParameterData);
    data->type = TypeFloat;
    data->readable = true;
    data->writable = true;
    data->implemented = true;
    data->minimum = minimum;
    data->maximum = maximum;
    data->value = value;
    data->hasIncrement = increment != 0.0;
    data->increment = increment;
    data->precision = 2;
    data->valueText = QString::number(value, 'f', 2);
    return data;
}

} // namespace

class TestFloatEditor : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void showsTheSnapshot();
    void valuesOfAnySizeAreShownExactly_data();
    void valuesOfAnySizeAreShownExactly();
    void toolTip_data();
    void toolTip();
    void noIncrementNoStepping();
    void steppingAtTheMaximumWritesItAgain();
    void pageUpAndArrows();
    void tenStepsAreAPage_data();
    void tenStepsAreAPage();
    void wheelStepsTheDevice();
    void focusGateWhileTyping();
    void focusGateAfterLeavingTheBox();
    void minimumAboveMaximumChangesNothing();
    void firstPassOutOfRangeInitialisesFirst();
    void typedValueClampedToLiveLimits();
    void liveLimitsUnreadable_data();
    void liveLimitsUnreadable();
    void refusesOtherKinds_data();
    void refusesOtherKinds();
    void notReadable_data();
    void notReadable();
    void stepFaults_data();
    void stepFaults();
    void unpluggedDevice();
    void turnsReadOnly();

private:
    QSharedPointer<Simulation::SimulatedDevice> m_device;
};

void TestFloatEditor::init()
{
    m_device = TreeTest::makeDevice(EditorTest::editorCameraJson());
    QVERIFY(m_device);
}

void TestFloatEditor::cleanup()
{
    m_device.reset();
}

void TestFloatEditor::showsTheSnapshot()
{
    OpenFloatEditor editor;
    EditorTest::LogRecord log;
    editor.setEditorData(EditorTest::editorDataOf(m_device, QStringLiteral("Gain")));
    QVERIFY(editor.isInitialized());
    QCOMPARE(editor.box()->value(), 1.5);
    QCOMPARE(editor.minimum(), 0.0);
    QCOMPARE(editor.maximum(), 24.0);
    QCOMPARE(editor.decimals(), 2);
    QCOMPARE(editor.incrementField(), 0.5);
    QCOMPARE(editor.editorData(), QVariant(1.5));
    QCOMPARE(editor.editorData().userType(), int(QMetaType::Double));
    QCOMPARE(log.count(), 0);
}

// The editor's box starts from a narrower range than double's, which is
// cheaper to build; a feature's value or limits beyond it must still come
// through exactly once the snapshot is shown.
void TestFloatEditor::valuesOfAnySizeAreShownExactly_data()
{
    QTest::addColumn<double>("minimum");
    QTest::addColumn<double>("maximum");
    QTest::addColumn<double>("value");
    const double lowest = std::numeric_limits<double>::lowest();
    const double highest = std::numeric_limits<double>::max();
    QTest::newRow("small") << 0.0 << 24.0 << 1.5;
    QTest::newRow("far above the first range") << -1e30 << 1e30 << 1e25;
    QTest::newRow("far below it") << -1e30 << 1e30 << -3e22;
    QTest::newRow("at its edge") << -1e30 << 1e30 << 1e21;
    QTest::newRow("the largest double") << lowest << highest << highest;
    QTest::newRow("the lowest double") << lowest << highest << lowest;
}

void TestFloatEditor::valuesOfAnySizeAreShownExactly()
{
    QFETCH(double, minimum);
    QFETCH(double, maximum);
    QFETCH(double, value);
    // The node only stands for a feature: the snapshot brings limits and value.
    const QSharedPointer<FloatParameterData> snapshot = floatSnapshot(minimum, maximum, value, 0.0);
    OpenFloatEditor editor;
    EditorTest::LogRecord log;
    editor.setEditorData({ EditorTest::editorDataOf(m_device, QStringLiteral("Gain")).node, snapshot });
    QVERIFY(editor.isInitialized());
    QCOMPARE(editor.box()->minimum(), minimum);
    QCOMPARE(editor.box()->maximum(), maximum);
    QCOMPARE(editor.box()->value(), value);
    QCOMPARE(log.count(), 0);
}

void TestFloatEditor::toolTip_data()
{
    QTest::addColumn<QString>("feature");
    QTest::addColumn<QString>("toolTip");
    QTest::newRow("increment 1") << QStringLiteral("Level") << QStringLiteral("Range: 0..100 (Increment: 1)");
    QTest::newRow("no increment") << QStringLiteral("Ratio") << QStringLiteral("Range: 0..10");
    // Above 1e9 the large notation, for the increment too, which then reads back as non-zero.
    QTest::newRow("large limits") << QStringLiteral("Distance")
                                  << QStringLiteral("Range: %1..%2 (Increment: %3)")
                                         .arg(formatDoubleValue(-1e12, 0, FormatLarge, QLocale()),
                                             formatDoubleValue(1e12, 0, FormatLarge, QLocale()),
                                             formatDoubleValue(0.5, 0, FormatLarge, QLocale()));
}

void TestFloatEditor::toolTip()
{
    QFETCH(QString, feature);
    QFETCH(QString, toolTip);
    OpenFloatEditor editor;
    editor.setEditorData(EditorTest::editorDataOf(m_device, feature));
    QCOMPARE(editor.toolTip(), toolTip);
    QCOMPARE(editor.box()->toolTip(), toolTip);
}

void TestFloatEditor::noIncrementNoStepping()
{
    OpenFloatEditor editor;
    const auto data = EditorTest::editorDataOf(m_device, QStringLiteral("Ratio"));
    editor.setEditorData(data);
    QCOMPARE(editor.box()->buttonSymbols(), QAbstractSpinBox::NoButtons);
    QVERIFY(ValueWidgetTest::showActive(&editor));
    editor.box()->setFocus();
    EditorTest::LogRecord log;
    for (Qt::Key key : { Qt::Key_Up, Qt::Key_Down, Qt::Key_PageUp, Qt::Key_PageDown })
        QTest::keyClick(editor.box(), key);
    ValueWidgetTest::wheel(editor.box(), 3);
    EditorTest::settle();
    QCOMPARE(data.node.dynamicCast<IFloatParameter>()->getValue(), 2.5);
    QCOMPARE(editor.box()->value(), 2.5);
    QCOMPARE(log.count(), 0);
}

void TestFloatEditor::steppingAtTheMaximumWritesItAgain()
{
    const auto data = EditorTest::editorDataOf(m_device, QStringLiteral("Level"));
    const auto level = data.node.dynamicCast<IFloatParameter>();
    level->setValue(99.0);
    QSharedPointer<RecordingFloat> recording(new RecordingFloat(level));
    OpenFloatEditor editor;
    editor.setEditorData({ recording, recording->getParameterData() });
    // The device reaches the maximum before the box hears of it, so the box still offers a step up.
    level->setValue(100.0);
    QVERIFY(ValueWidgetTest::showActive(&editor));
    editor.box()->setFocus();
    EditorTest::LogRecord log;
    QTest::keyClick(editor.box(), Qt::Key_Up);
    QTest::keyClick(editor.box(), Qt::Key_PageUp);
    QCOMPARE(recording->writes, QList<double>({ 100.0, 100.0 }));
    QCOMPARE(log.count(), 0);
}

void TestFloatEditor::pageUpAndArrows()
{
    const auto data = EditorTest::editorDataOf(m_device, QStringLiteral("Level"));
    const auto level = data.node.dynamicCast<IFloatParameter>();
    level->setValue(0.0);
    OpenFloatEditor editor;
    editor.setEditorData(EditorTest::editorDataOf(m_device, QStringLiteral("Level")));
    EditorTest::follow(&editor, data.node);
    QVERIFY(ValueWidgetTest::showActive(&editor));
    editor.box()->setFocus();
    QTRY_VERIFY(editor.box()->hasFocus());

    QTest::keyClick(editor.box(), Qt::Key_PageUp);
    EditorTest::settle();
    QCOMPARE(level->getValue(), 5.0);
    QCOMPARE(editor.box()->value(), 5.0);
    for (int i = 0; i < 4; ++i) {
        QTest::keyClick(editor.box(), Qt::Key_Up);
        EditorTest::settle();
    }
    QCOMPARE(level->getValue(), 9.0);
    QCOMPARE(editor.box()->value(), 9.0);
    QTest::keyClick(editor.box(), Qt::Key_PageDown);
    EditorTest::settle();
    QCOMPARE(level->getValue(), 4.0);
    QCOMPARE(editor.box()->value(), 4.0);
}

void TestFloatEditor::tenStepsAreAPage_data()
{
    QTest::addColumn<int>("steps");
    QTest::addColumn<double>("expected");
    QTest::newRow("9 steps") << 9 << 59.0;
    QTest::newRow("10 steps: a page") << 10 << 55.0;
    QTest::newRow("11 steps") << 11 << 61.0;
    QTest::newRow("-10 steps: a page down") << -10 << 45.0;
}

void TestFloatEditor::tenStepsAreAPage()
{
    QFETCH(int, steps);
    QFETCH(double, expected);
    const auto data = EditorTest::editorDataOf(m_device, QStringLiteral("Level"));
    OpenFloatEditor editor;
    editor.setEditorData(data);
    // What an accelerated auto-repeat asks for, through the box's own stepping.
    editor.box()->stepBy(steps);
    QCOMPARE(data.node.dynamicCast<IFloatParameter>()->getValue(), expected);
    QCOMPARE(editor.box()->value(), 50.0); // the box waits for the device's answer
    QVERIFY(editor.gateOpen());
}

void TestFloatEditor::wheelStepsTheDevice()
{
    const auto data = EditorTest::editorDataOf(m_device, QStringLiteral("Gain"));
    OpenFloatEditor editor;
    editor.setEditorData(data);
    EditorTest::follow(&editor, data.node);
    QVERIFY(ValueWidgetTest::showActive(&editor));
    editor.box()->setFocus();
    QSignalSpy commits(&editor, SIGNAL(boxValueChanged()));
    ValueWidgetTest::wheel(editor.box(), 1);
    EditorTest::settle();
    QCOMPARE(data.node.dynamicCast<IFloatParameter>()->getValue(), 2.0);
    QCOMPARE(editor.box()->value(), 2.0);
    QCOMPARE(commits.count(), 0); // a step goes to the device, not through the delegate
}

// The user types while the device changes the value: the box keeps what the
// user typed; Return commits it and lets the next device update through.
void TestFloatEditor::focusGateWhileTyping()
{
    const auto data = EditorTest::editorDataOf(m_device, QStringLiteral("Gain"));
    const auto gain = data.node.dynamicCast<IFloatParameter>();
    OpenFloatEditor editor;
    editor.setEditorData(data);
    EditorTest::follow(&editor, data.node);
    QVERIFY(ValueWidgetTest::showActive(&editor));
    QTest::mouseClick(editor.box()->findChild<QLineEdit*>(), Qt::LeftButton);
    editor.box()->setFocus();
    QTRY_VERIFY(editor.box()->hasFocus());
    editor.box()->selectAll();
    QTest::keyClicks(editor.box(), QStringLiteral("7"));
    QCOMPARE(editor.box()->text(), QStringLiteral("7"));

    gain->setValue(3.0); // the device, meanwhile
    EditorTest::settle();
    QCOMPARE(editor.box()->text(), QStringLiteral("7"));

    QSignalSpy commits(&editor, SIGNAL(boxValueChanged()));
    QTest::keyClick(editor.box(), Qt::Key_Return);
    QCOMPARE(commits.count(), 1);
    QCOMPARE(editor.editorData(), QVariant(7.0));
    QVERIFY(editor.box()->hasFocus()); // Return stays inside

    // The same update, now let through once.
    gain->setValue(4.0);
    EditorTest::settle();
    QCOMPARE(editor.box()->value(), 4.0);
    // And the gate is closed again behind it.
    gain->setValue(5.0);
    EditorTest::settle();
    QCOMPARE(editor.box()->value(), 4.0);
}

void TestFloatEditor::focusGateAfterLeavingTheBox()
{
    const auto data = EditorTest::editorDataOf(m_device, QStringLiteral("Gain"));
    const auto gain = data.node.dynamicCast<IFloatParameter>();
    QWidget window;
    auto* layout = new QVBoxLayout(&window);
    auto* editor = new OpenFloatEditor;
    auto* other = new QLineEdit;
    layout->addWidget(editor);
    layout->addWidget(other);
    editor->setEditorData(data);
    EditorTest::follow(editor, data.node);
    QVERIFY(ValueWidgetTest::showActive(&window));
    editor->box()->setFocus();
    QTRY_VERIFY(editor->box()->hasFocus());
    gain->setValue(3.0);
    EditorTest::settle();
    QCOMPARE(editor->box()->value(), 1.5);

    other->setFocus();
    QTRY_VERIFY(other->hasFocus());
    gain->setValue(6.0);
    EditorTest::settle();
    QCOMPARE(editor->box()->value(), 6.0);
    gain->setValue(6.5);
    EditorTest::settle();
    QCOMPARE(editor->box()->value(), 6.5);
}

void TestFloatEditor::minimumAboveMaximumChangesNothing()
{
    OpenFloatEditor editor;
    const auto node = EditorTest::editorDataOf(m_device, QStringLiteral("Gain")).node;
    EditorTest::LogRecord log;
    QTest::ignoreMessage(QtWarningMsg, "Failed to retrieve a node's name");
    QTest::ignoreMessage(QtWarningMsg,
        QRegularExpression(QStringLiteral(
            "^setEditorData : +Exception occurred:\\n +The minimum value is larger than the maximum value!")));
    editor.setEditorData({ node, floatSnapshot(10.0, 5.0, 7.0, 1.0) });
    QCOMPARE(log.count(), 2);
    QVERIFY(editor.isInitialized());

    // A later snapshot with the same fault leaves the box as it was.
    editor.setEditorData({ node, floatSnapshot(0.0, 20.0, 7.0, 1.0) });
    QCOMPARE(editor.box()->value(), 7.0);
    QTest::ignoreMessage(QtWarningMsg, "Failed to retrieve a node's name");
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("^setEditorData : +Exception occurred:")));
    editor.setEditorData({ node, floatSnapshot(30.0, 25.0, 27.0, 2.0) });
    QCOMPARE(editor.box()->value(), 7.0);
    QCOMPARE(editor.maximum(), 20.0);
    QCOMPARE(editor.incrementField(), 1.0);
}

void TestFloatEditor::firstPassOutOfRangeInitialisesFirst()
{
    OpenFloatEditor editor;
    const auto node = EditorTest::editorDataOf(m_device, QStringLiteral("Gain")).node;
    QTest::ignoreMessage(QtWarningMsg, "Failed to retrieve a node's name");
    QTest::ignoreMessage(QtWarningMsg,
        QRegularExpression(QStringLiteral("^setEditorData : +Exception occurred:\\n +The minimum value is larger than "
                                          "the to be set node value or the maximum value is smaller")));
    editor.setEditorData({ node, floatSnapshot(0.0, 20.0, 30.0, 2.0) });
    QVERIFY(editor.isInitialized());
    QCOMPARE(editor.minimum(), 0.0);
    QCOMPARE(editor.maximum(), 20.0);
    QCOMPARE(editor.incrementField(), 2.0);
    QCOMPARE(editor.box()->value(), 20.0); // clamped by the box
}

void TestFloatEditor::typedValueClampedToLiveLimits()
{
    const auto data = EditorTest::editorDataOf(m_device, QStringLiteral("Gain"));
    OpenFloatEditor editor;
    editor.setEditorData(data);
    QCOMPARE(editor.maximum(), 24.0);
    // The device lowers the limit; the editor hasn't seen it yet.
    m_device->nodeMap(QStringLiteral("@CameraDevice"))
        ->getParameter(QStringLiteral("GainLimit"))
        .dynamicCast<IFloatParameter>()
        ->setValue(12.0);
    QVERIFY(ValueWidgetTest::showActive(&editor));
    editor.box()->setFocus();
    editor.box()->selectAll();
    QTest::keyClicks(editor.box(), QStringLiteral("20"));
    QTest::keyClick(editor.box(), Qt::Key_Return);
    QCOMPARE(editor.box()->value(), 20.0);
    QCOMPARE(editor.editorData(), QVariant(12.0));
}

void TestFloatEditor::liveLimitsUnreadable_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<int>("operation");
    EditorTest::addFaultRows(
        { { QStringLiteral("minimum"), Operation::GetMinimum }, { QStringLiteral("maximum"), Operation::GetMaximum } });
}

void TestFloatEditor::liveLimitsUnreadable()
{
    QFETCH(int, kind);
    QFETCH(int, operation);
    const auto data = EditorTest::editorDataOf(m_device, QStringLiteral("Gain"));
    OpenFloatEditor editor;
    editor.setEditorData(data);
    editor.box()->setValue(30.0); // beyond the limits, as far as the box allows: 24
    m_device->injectFault(QStringLiteral("@CameraDevice/Gain"), Operation(operation), FaultKind(kind));
    EditorTest::LogRecord log;
    QTest::ignoreMessage(QtWarningMsg, "Gain: Failed to assert the range limits!");
    QTest::ignoreMessage(QtWarningMsg, EditorTest::secondLine("adjustRangeLimits", kind));
    QCOMPARE(editor.editorData(), QVariant(24.0));
    QCOMPARE(log.count(), 2);
}

void TestFloatEditor::refusesOtherKinds_data()
{
    QTest::addColumn<QString>("nodeFeature");
    QTest::addColumn<QString>("dataFeature");
    QTest::addColumn<bool>("nullSnapshot");
    QTest::newRow("integer") << QStringLiteral("Count") << QStringLiteral("Count") << false;
    QTest::newRow("float node, integer snapshot") << QStringLiteral("Gain") << QStringLiteral("Count") << false;
    QTest::newRow("integer node, float snapshot") << QStringLiteral("Count") << QStringLiteral("Gain") << false;
    QTest::newRow("null snapshot") << QStringLiteral("Gain") << QStringLiteral("Gain") << true;
}

void TestFloatEditor::refusesOtherKinds()
{
    QFETCH(QString, nodeFeature);
    QFETCH(QString, dataFeature);
    QFETCH(bool, nullSnapshot);
    OpenFloatEditor editor;
    editor.setEditorData(EditorTest::editorDataOf(m_device, QStringLiteral("Gain")));
    AbstractItemEditor::EditorData data { EditorTest::editorDataOf(m_device, nodeFeature).node,
        EditorTest::editorDataOf(m_device, dataFeature).data };
    if (nullSnapshot)
        data.data.reset();
    QTest::ignoreMessage(QtDebugMsg, "setEditorData is called with non-float node");
    editor.setEditorData(data);
    QCOMPARE(editor.box()->value(), 1.5);
    QCOMPARE(editor.maximum(), 24.0);
}

void TestFloatEditor::notReadable_data()
{
    QTest::addColumn<int>("kind");
    EditorTest::addFaultKindRows();
}

void TestFloatEditor::notReadable()
{
    QFETCH(int, kind);
    OpenFloatEditor editor;
    editor.setEditorData(EditorTest::editorDataOf(m_device, QStringLiteral("Gain")));
    QTest::ignoreMessage(QtDebugMsg, "Non-readable comboBox: HiddenFloat");
    editor.setEditorData(EditorTest::editorDataOf(m_device, QStringLiteral("HiddenFloat")));
    QCOMPARE(editor.box()->value(), 1.5);

    // The name for that line can't be had: the outer handler reports it.
    m_device->injectFault(QStringLiteral("@CameraDevice/HiddenFloat"), Operation::GetName, FaultKind(kind));
    EditorTest::LogRecord log;
    QTest::ignoreMessage(QtWarningMsg, "Failed to retrieve a node's name");
    QTest::ignoreMessage(QtWarningMsg, EditorTest::secondLine("setEditorData", kind));
    editor.setEditorData(EditorTest::editorDataOf(m_device, QStringLiteral("HiddenFloat")));
    QCOMPARE(log.count(), 2);
    QCOMPARE(editor.box()->value(), 1.5);
}

void TestFloatEditor::stepFaults_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<int>("operation");
    EditorTest::addFaultRows(
        { { QStringLiteral("getValue"), Operation::GetValue }, { QStringLiteral("setValue"), Operation::SetValue } });
}

void TestFloatEditor::stepFaults()
{
    QFETCH(int, kind);
    QFETCH(int, operation);
    const auto data = EditorTest::editorDataOf(m_device, QStringLiteral("Gain"));
    OpenFloatEditor editor;
    editor.setEditorData(data);
    QVERIFY(ValueWidgetTest::showActive(&editor));
    editor.box()->setFocus();
    m_device->injectFault(QStringLiteral("@CameraDevice/Gain"), Operation(operation), FaultKind(kind), 1);
    EditorTest::LogRecord log;
    QTest::ignoreMessage(
        QtWarningMsg, "Gain: Failed to set the value for the float node on a spin box step triggered event!");
    QTest::ignoreMessage(QtWarningMsg, EditorTest::secondLine("onSpinBoxStepTriggered", kind));
    QTest::keyClick(editor.box(), Qt::Key_Up);
    QCOMPARE(log.count(), 2);
    QCOMPARE(editor.box()->value(), 1.5);
    QCOMPARE(editor.gateOpen(), operation == int(Operation::SetValue));

    // The next step works.
    QTest::keyClick(editor.box(), Qt::Key_Up);
    QCOMPARE(data.node.dynamicCast<IFloatParameter>()->getValue(), 2.0);
}

void TestFloatEditor::unpluggedDevice()
{
    const auto data = EditorTest::editorDataOf(m_device, QStringLiteral("Gain"));
    OpenFloatEditor editor;
    editor.setEditorData(data);
    m_device->unplug();
    // The snapshot still shows; the live parameter throws on every call, the
    // limits that value() asks for included.
    QTest::ignoreMessage(QtWarningMsg, "Gain: Failed to assert the range limits!");
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("^adjustRangeLimits : +Exception")));
    editor.setEditorData(data);
    QCOMPARE(editor.box()->value(), 1.5);
    QTest::ignoreMessage(
        QtWarningMsg, "Gain: Failed to set the value for the float node on a spin box step triggered event!");
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("^onSpinBoxStepTriggered : +Exception")));
    editor.box()->stepBy(1);
    QTest::ignoreMessage(QtWarningMsg, "Gain: Failed to assert the range limits!");
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("^adjustRangeLimits : +Exception")));
    QCOMPARE(editor.editorData(), QVariant(1.5));
}

void TestFloatEditor::turnsReadOnly()
{
    OpenFloatEditor editor;
    const auto node = EditorTest::editorDataOf(m_device, QStringLiteral("Gain")).node;
    auto snapshot = floatSnapshot(0.0, 10.0, 1.0, 1.0);
    editor.setEditorData({ node, snapshot });
    QVERIFY(editor.isEnabled());
    snapshot = floatSnapshot(0.0, 10.0, 2.0, 1.0);
    snapshot->writable = false;
    editor.setEditorData({ node, snapshot });
    QVERIFY(!editor.isEnabled());
    QCOMPARE(editor.box()->value(), 2.0);
}

QTEST_MAIN(TestFloatEditor)
#include "tst_floateditor.moc"
