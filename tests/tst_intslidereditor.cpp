#include "editortestsupport.h"
#include "valuewidgettestsupport.h"

#include "featuretree/intslidereditor.h"
#include "featuretree/zarvexqtspinbox.h"
#include "parameters/iintegerparameter.h"

#include <QSlider>
#include <QSpinBox>
#include <QtTest>

#include <limits>

using namespace ParameterCollection;
using Simulation::FaultKind;
using Simulation::Operation;

namespace {

const qint64 Int32Min = std::numeric_limits<qint32>::min();
const qint64 Int32Max = std::numeric_limits<qint32>::max();

class OpenIntSliderEditor : public IntSliderEditor
{
public:
    QSlider* theSlider() const { return slider; }
    QSpinBox* theSpinBox() const { return spinBox; }
};

QSharedPointer<IntegerParameterData> integerSnapshot(
    qint64 minimum, qint64 maximum, qint64 value, qint64 increment, bool writable = true)
{
    QSharedPointer<IntegerParameterData> data(new IntegerParameterData);
    data->type = TypeInteger;
    data->readable = true;
    data->writable = writable;
    data->implemented = true;
    data->minimum = minimum;
    data->maximum = maximum;
    data->value = value;
    data->increment = increment;
    data->representation = QStringLiteral("Linear");
    data->valueText = QString::number(value);
    return data;
}

} // namespace

class TestIntSliderEditor : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void showsTheSnapshot();
    void rangeBeyond32BitsIsSaturated();
    void hugeIncrementDoesNotCrash();
    void pageStep_data();
    void pageStep();
    void minimumAboveMaximumStillReachesTheWidget();
    void sameSnapshotOnlyRedoesThePageStep();
    void notReadableKeepsTheFormerValue();
    void refusesOtherKinds_data();
    void refusesOtherKinds();
    void followsAccess();
    void deviceUpdatesNeverCommit();
    void userGesturesCommitGridValues();
    void nameFailsWhileReporting_data();
    void nameFailsWhileReporting();
    void faultsOnTheParameter_data();
    void faultsOnTheParameter();
    void unpluggedAndZombie();

private:
    QSharedPointer<Simulation::SimulatedDevice> m_device;
};

void TestIntSliderEditor::init()
{
    m_device = TreeTest::makeDevice(EditorTest::editorCameraJson());
    QVERIFY(m_device);
}

void TestIntSliderEditor::cleanup()
{
    m_device.reset();
}

void TestIntSliderEditor::showsTheSnapshot()
{
    OpenIntSliderEditor editor;
    EditorTest::LogRecord log;
    editor.setEditorData(EditorTest::editorDataOf(m_device, QStringLiteral("Count")));
    QCOMPARE(editor.minimum(), 0);
    QCOMPARE(editor.maximum(), 100);
    QCOMPARE(editor.value(), 7);
    QCOMPARE(editor.theSpinBox()->value(), 7);
    QCOMPARE(editor.singleStep(), 1);
    QCOMPARE(editor.editorData(), QVariant(7));
    QCOMPARE(editor.editorData().userType(), int(QMetaType::Int));
    QVERIFY(editor.isEnabled());
    QCOMPARE(log.count(), 0);
}

void TestIntSliderEditor::rangeBeyond32BitsIsSaturated()
{
    OpenIntSliderEditor editor;
    EditorTest::LogRecord log;
    const AbstractItemEditor::EditorData data = EditorTest::editorDataOf(m_device, QStringLiteral("Big"));
    QCOMPARE(data.data.dynamicCast<const IntegerParameterData>()->maximum, qint64(1) << 40);
    editor.setEditorData(data);
    QCOMPARE(editor.minimum(), 0);
    QCOMPARE(editor.maximum(), int(Int32Max));
    // 5000000000 is shown as the top of the int range, without a word: the check comes after saturation.
    QCOMPARE(editor.value(), int(Int32Max));
    QCOMPARE(log.count(), 0);
    QCOMPARE(editor.editorData(), QVariant(int(Int32Max)));

    // A commit writes what the editor holds.
    data.node->setValueFromString(editor.editorData().toString());
    QCOMPARE(data.node.dynamicCast<IIntegerParameter>()->getValue(), Int32Max);
}

void TestIntSliderEditor::hugeIncrementDoesNotCrash()
{
    OpenIntSliderEditor editor;
    const QSharedPointer<ParameterCollection::IParameter> node
        = EditorTest::editorDataOf(m_device, QStringLiteral("Count")).node;
    editor.setEditorData({ node, integerSnapshot(0, qint64(1) << 40, 0, qint64(1) << 33) });
    QCOMPARE(editor.singleStep(), int(Int32Max));
    // 2 * increment wraps to -2, so the twentieth of the range wins.
    QCOMPARE(editor.pageStep(), int(Int32Max / 20));
    QCOMPARE(editor.value(), 0);
}

void TestIntSliderEditor::pageStep_data()
{
    QTest::addColumn<qint64>("minimum");
    QTest::addColumn<qint64>("maximum");
    QTest::addColumn<qint64>("increment");
    QTest::addColumn<int>("pageStep");
    QTest::newRow("0..1000 by 1") << qint64(0) << qint64(1000) << qint64(1) << 50;
    QTest::newRow("0..1000 by 100") << qint64(0) << qint64(1000) << qint64(100) << 200;
    QTest::newRow("whole int span wraps to 1") << Int32Min << Int32Max << qint64(3) << 6;
    QTest::newRow("increment 0: 5 percent") << qint64(0) << qint64(1000) << qint64(0) << 50;
    QTest::newRow("negative range") << qint64(-1000) << qint64(-500) << qint64(1) << 25;
}

void TestIntSliderEditor::pageStep()
{
    QFETCH(qint64, minimum);
    QFETCH(qint64, maximum);
    QFETCH(qint64, increment);
    QFETCH(int, pageStep);
    OpenIntSliderEditor editor;
    const auto node = EditorTest::editorDataOf(m_device, QStringLiteral("Count")).node;
    editor.setEditorData({ node, integerSnapshot(minimum, maximum, minimum, increment) });
    QCOMPARE(editor.pageStep(), pageStep);
    QCOMPARE(editor.theSlider()->pageStep(), pageStep);
}

void TestIntSliderEditor::minimumAboveMaximumStillReachesTheWidget()
{
    OpenIntSliderEditor editor;
    const auto node = EditorTest::editorDataOf(m_device, QStringLiteral("Count")).node;
    editor.setEditorData({ node, integerSnapshot(0, 100, 50, 1) });
    EditorTest::LogRecord log;
    QTest::ignoreMessage(QtDebugMsg, "setEditorData: Feature Count: min value  60 > max value 40???");
    QTest::ignoreMessage(QtDebugMsg, "setEditorData: Feature Count: value 50 out of range??? min = 60, max = 40");
    editor.setEditorData({ node, integerSnapshot(60, 40, 50, 1) });
    QCOMPARE(log.count(), 2);
    // The slider takes the range as Qt does: the later maximum wins.
    QCOMPARE(editor.maximum(), 40);
    QCOMPARE(editor.minimum(), 40);

    // A value out of a proper range is reported and shown clamped by the widget.
    QTest::ignoreMessage(QtDebugMsg, "setEditorData: Feature Count: value 500 out of range??? min = 0, max = 100");
    editor.setEditorData({ node, integerSnapshot(0, 100, 500, 1) });
    QCOMPARE(editor.minimum(), 0);
    QCOMPARE(editor.value(), 100);
}

void TestIntSliderEditor::sameSnapshotOnlyRedoesThePageStep()
{
    OpenIntSliderEditor editor;
    const auto node = EditorTest::editorDataOf(m_device, QStringLiteral("Count")).node;
    const auto snapshot = integerSnapshot(0, 1000, 300, 10);
    editor.setEditorData({ node, snapshot });
    QCOMPARE(editor.value(), 300);
    editor.setPageStep(1);
    editor.setToolTip(QStringLiteral("marker"));
    QSignalSpy ranges(&editor, SIGNAL(rangeChanged(int, int)));
    QSignalSpy values(editor.theSlider(), SIGNAL(valueChanged(int)));
    editor.setEditorData({ node, snapshot });
    QCOMPARE(ranges.count(), 0);
    QCOMPARE(values.count(), 0);
    QCOMPARE(editor.pageStep(), 50);
}

void TestIntSliderEditor::notReadableKeepsTheFormerValue()
{
    OpenIntSliderEditor editor;
    editor.setEditorData(EditorTest::editorDataOf(m_device, QStringLiteral("Count")));
    const QString toolTip = editor.toolTip();
    QVERIFY(!toolTip.isEmpty());
    const AbstractItemEditor::EditorData hidden = EditorTest::editorDataOf(m_device, QStringLiteral("Hidden"));
    QVERIFY(!hidden.data->readable);
    EditorTest::LogRecord log;
    QTest::ignoreMessage(QtDebugMsg, "Non-readable slider: Hidden??????");
    editor.setEditorData(hidden);
    QCOMPARE(log.count(), 1);
    QCOMPARE(editor.value(), 7);
    QCOMPARE(editor.maximum(), 100);
    QCOMPARE(editor.toolTip(), toolTip);
}

void TestIntSliderEditor::refusesOtherKinds_data()
{
    QTest::addColumn<QString>("feature");
    QTest::addColumn<bool>("nullSnapshot");
    QTest::newRow("float") << QStringLiteral("Gain") << false;
    QTest::newRow("boolean") << QStringLiteral("Flag") << false;
    QTest::newRow("null snapshot") << QStringLiteral("Count") << true;
}

void TestIntSliderEditor::refusesOtherKinds()
{
    QFETCH(QString, feature);
    QFETCH(bool, nullSnapshot);
    OpenIntSliderEditor editor;
    editor.setEditorData(EditorTest::editorDataOf(m_device, QStringLiteral("Count")));
    AbstractItemEditor::EditorData data = EditorTest::editorDataOf(m_device, feature);
    if (nullSnapshot)
        data.data.reset();
    QTest::ignoreMessage(QtDebugMsg, "setEditorData is called with non-integer node????");
    editor.setEditorData(data);
    QCOMPARE(editor.value(), 7);
    QCOMPARE(editor.maximum(), 100);
}

void TestIntSliderEditor::followsAccess()
{
    OpenIntSliderEditor editor;
    const auto node = EditorTest::editorDataOf(m_device, QStringLiteral("Count")).node;
    editor.setEditorData({ node, integerSnapshot(0, 100, 5, 1, false) });
    QVERIFY(!editor.isEnabled());
    editor.setEditorData({ node, integerSnapshot(0, 100, 5, 1, true) });
    QVERIFY(editor.isEnabled());
}

void TestIntSliderEditor::deviceUpdatesNeverCommit()
{
    OpenIntSliderEditor editor;
    QSignalSpy commits(&editor, SIGNAL(valueChanged(int)));
    const auto node = EditorTest::editorDataOf(m_device, QStringLiteral("Count")).node;
    editor.setEditorData({ node, integerSnapshot(0, 100, 5, 1) });
    editor.setEditorData({ node, integerSnapshot(0, 100, 6, 1) });
    QTest::ignoreMessage(QtDebugMsg, "setEditorData: Feature Count: value 60 out of range??? min = 0, max = 50");
    editor.setEditorData({ node, integerSnapshot(0, 50, 60, 5) });
    QCOMPARE(commits.count(), 0);
}

void TestIntSliderEditor::userGesturesCommitGridValues()
{
    OpenIntSliderEditor editor;
    editor.resize(400, 30);
    AbstractItemEditor::EditorData data = EditorTest::editorDataOf(m_device, QStringLiteral("Count"));
    const auto node = data.node;
    editor.setEditorData({ node, integerSnapshot(0, 100, 0, 10) });
    QVERIFY(ValueWidgetTest::showActive(&editor));
    QSignalSpy commits(&editor, SIGNAL(valueChanged(int)));

    // Drag the handle to the right: every committed value lies on the grid.
    QSlider* slider = editor.theSlider();
    const QPoint start = ValueWidgetTest::handleCentre(slider);
    ValueWidgetTest::dragHandle(slider, { start.x() + 37, start.x() + 101, start.x() + 143 });
    QVERIFY(commits.count() > 0);
    for (const QList<QVariant>& commit : commits)
        QCOMPARE(commit.at(0).toInt() % 10, 0);
    QCOMPARE(editor.editorData(), QVariant(commits.last().at(0).toInt()));

    // Typing into the box and Return.
    commits.clear();
    QSpinBox* box = editor.theSpinBox();
    box->setFocus();
    box->selectAll();
    QTest::keyClicks(box, QStringLiteral("47"));
    QTest::keyClick(box, Qt::Key_Return);
    QCOMPARE(commits.count(), 1);
    QCOMPARE(editor.editorData(), QVariant(40));

    // The wheel over the box steps by the increment.
    commits.clear();
    ValueWidgetTest::wheel(box, 1);
    QCOMPARE(commits.count(), 1);
    QCOMPARE(editor.editorData(), QVariant(50));
}

void TestIntSliderEditor::nameFailsWhileReporting_data()
{
    QTest::addColumn<int>("kind");
    EditorTest::addFaultKindRows();
}

void TestIntSliderEditor::nameFailsWhileReporting()
{
    QFETCH(int, kind);
    OpenIntSliderEditor editor;
    const auto count = EditorTest::editorDataOf(m_device, QStringLiteral("Count"));
    editor.setEditorData(count);
    const auto hidden = EditorTest::editorDataOf(m_device, QStringLiteral("Hidden"));
    m_device->injectFault(QStringLiteral("@CameraDevice/Hidden"), Operation::GetName, FaultKind(kind));
    m_device->injectFault(QStringLiteral("@CameraDevice/Count"), Operation::GetName, FaultKind(kind));

    // Not readable: the name for the debug line can't be had.
    EditorTest::LogRecord log;
    QTest::ignoreMessage(QtWarningMsg, "Failed to retrieve a node's name");
    QTest::ignoreMessage(QtWarningMsg, EditorTest::secondLine("setEditorData", kind));
    editor.setEditorData(hidden);
    QCOMPARE(log.count(), 2);

    // A range to report, and no name for it: the update ends there, the widget as it was.
    QTest::ignoreMessage(QtWarningMsg, "Failed to update the integer value editor");
    QTest::ignoreMessage(QtWarningMsg, EditorTest::secondLine("setEditorData", kind));
    editor.setEditorData({ count.node, integerSnapshot(0, 10, 50, 1) });
    QCOMPARE(log.count(), 4);
    QCOMPARE(editor.maximum(), 100);
    QCOMPARE(editor.value(), 7);

    // Still alive: a proper snapshot needs no name.
    editor.setEditorData({ count.node, integerSnapshot(0, 10, 5, 1) });
    QCOMPARE(editor.maximum(), 10);
    QCOMPARE(editor.value(), 5);
}

void TestIntSliderEditor::faultsOnTheParameter_data()
{
    QTest::addColumn<int>("kind");
    EditorTest::addFaultKindRows();
}

// Everything shown comes from the snapshot: a parameter that throws on
// every call leaves a proper update untouched and silent.
void TestIntSliderEditor::faultsOnTheParameter()
{
    QFETCH(int, kind);
    const auto data = EditorTest::editorDataOf(m_device, QStringLiteral("Count"));
    m_device->injectFault(QStringLiteral("@CameraDevice/Count"), Operation::Any, FaultKind(kind));
    OpenIntSliderEditor editor;
    EditorTest::LogRecord log;
    editor.setEditorData(data);
    QCOMPARE(editor.value(), 7);
    QCOMPARE(log.count(), 0);
}

void TestIntSliderEditor::unpluggedAndZombie()
{
    const auto data = EditorTest::editorDataOf(m_device, QStringLiteral("Count"));
    const auto zombie
        = m_device->nodeMap(QStringLiteral("@CameraDevice"))->getParameter(QStringLiteral("@CameraDevice/Nothing"));
    m_device->unplug();
    OpenIntSliderEditor editor;
    editor.setEditorData(data);
    QCOMPARE(editor.value(), 7);
    // The zombie's name still answers.
    QTest::ignoreMessage(QtDebugMsg, "setEditorData: Feature Nothing: value 500 out of range??? min = 0, max = 10");
    editor.setEditorData({ zombie, integerSnapshot(0, 10, 500, 1) });
    QCOMPARE(editor.value(), 10);
    QTest::ignoreMessage(QtDebugMsg, "setEditorData is called with non-integer node????");
    editor.setEditorData({ zombie, ParameterData::createPlaceholder() });
    QCOMPARE(editor.value(), 10);
}

QTEST_MAIN(TestIntSliderEditor)
#include "tst_intslidereditor.moc"
