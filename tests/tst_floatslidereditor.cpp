#include "editortestsupport.h"
#include "valuewidgettestsupport.h"

#include "featuretree/floatslidereditor.h"
#include "featuretree/zarvexqtdoublespinbox.h"
#include "parameters/iadvancedparameteraccess.h"

#include <QSlider>
#include <QtTest>

#include <cmath>

using namespace ParameterCollection;
using Simulation::FaultKind;
using Simulation::Operation;

namespace {

class OpenFloatSliderEditor : public FloatSliderEditor
{
public:
    explicit OpenFloatSliderEditor(QSharedPointer<IParameterCollection> collection)
        : FloatSliderEditor(std::move(collection))
    {
    }
    ZarvexQtDoubleSpinBox* box() const { return spinBox; }
    QSlider* theSlider() const { return slider; }
    bool isInitialized() const { return initialized; }
    bool gateOpen() const { return updateEnabled; }
    bool isAliasConnected() const { return aliasConnected; }
    int increment() const { return intIncrement; }
    double logMinimum() const { return minimumLog; }
    void aliasChanged(QSharedPointer<const ParameterData> data) { onAliasParameterDataChanged(data); }
    void sliderMoved(int value) { onSliderValueChanged(value); }

    int valueSets = 0;
    void setValue(double value) override
    {
        ++valueSets;
        FloatSliderEditor::setValue(value);
    }
};

/*!
 * An integer parameter that passes every call on to a simulated one, keeps
 * the values written with setValue() and can show a snapshot of its own.
 */
class RecordingInteger : public IIntegerParameter
{
public:
    explicit RecordingInteger(QSharedPointer<IIntegerParameter> inner)
        : m_inner(std::move(inner))
    {
        connect(m_inner.data(), &IParameter::parameterDataChangedDecoupled, this,
            &IParameter::parameterDataChangedDecoupled);
    }
    QList<qint64> writes;
    QSharedPointer<const ParameterData> snapshot; //!< shown instead of the inner one when set

    void setValueFromString(QString value) override { m_inner->setValueFromString(value); }
    bool isZombie() const override { return m_inner->isZombie(); }
    bool isWritable() const override { return m_inner->isWritable(); }
    bool isImposable() const override { return m_inner->isImposable(); }
    GenApi::EVisibility getVisibility() const override { return m_inner->getVisibility(); }
    int getType() const override { return m_inner->getType(); }
    QString getFullName() const override { return m_inner->getFullName(); }
    QString getName() const override { return m_inner->getName(); }
    QSharedPointer<IAdvancedParameterAccess> advancedAccess() const override { return m_inner->advancedAccess(); }
    QSharedPointer<const ParameterData> getParameterData() const override
    {
        return snapshot ? snapshot : m_inner->getParameterData();
    }
    void setValue(qint64 value, bool verify) override
    {
        QVERIFY(verify);
        writes << value;
        m_inner->setValue(value, verify);
    }
    qint64 getValue() const override { return m_inner->getValue(); }
    qint64 getMinimum() const override { return m_inner->getMinimum(); }
    qint64 getMaximum() const override { return m_inner->getMaximum(); }

private:
    QSharedPointer<IIntegerParameter> m_inner;
};

//! A collection that answers from a simulated node map, except for the names given a parameter of their own.
class SubstitutingCollection : public IParameterCollection
{
public:
    explicit SubstitutingCollection(QSharedPointer<IParameterCollection> inner)
        : m_inner(std::move(inner))
    {
    }
    QHash<QString, QSharedPointer<IParameter>> substitutes;

    QSharedPointer<IParameter> getParameter(QString fullName) override
    {
        return substitutes.contains(fullName) ? substitutes.value(fullName) : m_inner->getParameter(fullName);
    }
    bool hasParameter(QString fullName) const override
    {
        return substitutes.contains(fullName) || m_inner->hasParameter(fullName);
    }
    QList<QString> getChildNames(QString fullName, bool recursive, bool presentationOrder) const override
    {
        return m_inner->getChildNames(fullName, recursive, presentationOrder);
    }
    void refreshAll() override { m_inner->refreshAll(); }
    void poll(qint64 elapsedMilliseconds) override { m_inner->poll(elapsedMilliseconds); }

private:
    QSharedPointer<IParameterCollection> m_inner;
};

template <typename Data> QSharedPointer<Data> copyOf(const QSharedPointer<const ParameterData>& data)
{
    return QSharedPointer<Data>(new Data(*data.dynamicCast<const Data>()));
}

} // namespace

class TestFloatSliderEditor : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void initialisesFromFloatAndAlias();
    void modeByNameAndRepresentation_data();
    void modeByNameAndRepresentation();
    void exposureTimeInLinearRepresentation();
    void aliasThatIsAFloat();
    void aliasIncrementZeroIsRefused();
    void logarithmicAliasFromZero();
    void typingWhileTheDeviceChanges();
    void readOnlyWhileFocused();
    void tinyDifferencesAreNotWritten();
    void sliderAtTheAliasPositionWritesNothing();
    void sliderDragWritesTheAlias();
    void logarithmicEchoWritesNothing_data();
    void logarithmicEchoWritesNothing();
    void editingFinishedClampsAndCommits();
    void rangeErrors_data();
    void rangeErrors();
    void refusesOtherKinds();
    void notReadable_data();
    void notReadable();
    void sliderWriteFaults_data();
    void sliderWriteFaults();
    void lookupFaultsRetryLater_data();
    void lookupFaultsRetryLater();
    void unpluggedDevice();

private:
    AbstractItemEditor::EditorData dataOf(const QString& feature) const
    {
        return EditorTest::editorDataOf(m_device, feature);
    }
    QSharedPointer<IParameterCollection> nodeMap() const { return m_device->nodeMap(QStringLiteral("@CameraDevice")); }

    QSharedPointer<Simulation::SimulatedDevice> m_device;
};

void TestFloatSliderEditor::init()
{
    m_device = TreeTest::makeDevice(EditorTest::editorCameraJson());
    QVERIFY(m_device);
}

void TestFloatSliderEditor::cleanup()
{
    m_device.reset();
}

void TestFloatSliderEditor::initialisesFromFloatAndAlias()
{
    OpenFloatSliderEditor editor(nodeMap());
    EditorTest::LogRecord log;
    editor.setEditorData(dataOf(QStringLiteral("ExposureTime")));
    QCOMPARE(log.all(), QStringList());
    QVERIFY(editor.isInitialized());
    QVERIFY(editor.isAliasConnected());
    QCOMPARE(editor.mode(), TwoModeDoubleComboSlider::ModeLogarithmic);
    QCOMPARE(editor.box()->value(), 5000.0);
    QCOMPARE(editor.decimals(), 1);
    QCOMPARE(editor.intMinimum(), 20);
    QCOMPARE(editor.intMaximum(), 1000000);
    QCOMPARE(editor.intValue(), 5000);
    QCOMPARE(editor.increment(), 1);
    QCOMPARE(editor.editorData(), QVariant(5000.0));
    // No float increment: the short tool tip, on all three.
    QVERIFY(editor.toolTip().startsWith(QLatin1String("Range: ")));
    QVERIFY(!editor.toolTip().contains(QLatin1String("Increment")));
    QCOMPARE(editor.theSlider()->toolTip(), editor.toolTip());
    QCOMPARE(editor.box()->toolTip(), editor.toolTip());

    // The float's own increment is shown, not the alias's.
    OpenFloatSliderEditor linear(nodeMap());
    linear.setEditorData(dataOf(QStringLiteral("ExposureDelay")));
    QVERIFY(linear.toolTip().contains(QLatin1String("(Increment: ")));
    QVERIFY(linear.toolTip().contains(QLatin1String("0")));
    QCOMPARE(linear.intValue(), 100);
}

void TestFloatSliderEditor::modeByNameAndRepresentation_data()
{
    QTest::addColumn<QString>("feature");
    QTest::addColumn<int>("mode");
    QTest::newRow("ExposureTime, Logarithmic")
        << QStringLiteral("ExposureTime") << int(TwoModeDoubleComboSlider::ModeLogarithmic);
    QTest::newRow("GainLog, Logarithmic") << QStringLiteral("GainLog") << int(TwoModeDoubleComboSlider::ModeLinear);
    QTest::newRow("ExposureDelay, Linear")
        << QStringLiteral("ExposureDelay") << int(TwoModeDoubleComboSlider::ModeLinear);
}

void TestFloatSliderEditor::modeByNameAndRepresentation()
{
    QFETCH(QString, feature);
    QFETCH(int, mode);
    OpenFloatSliderEditor editor(nodeMap());
    editor.setEditorData(dataOf(feature));
    QVERIFY(editor.isInitialized());
    QCOMPARE(int(editor.mode()), mode);
    // In the linear mode the slider's own range is the alias's.
    if (mode == TwoModeDoubleComboSlider::ModeLinear)
        QCOMPARE(editor.theSlider()->maximum(), editor.intMaximum());
    else
        QCOMPARE(editor.theSlider()->maximum(), 100000);
}

void TestFloatSliderEditor::exposureTimeInLinearRepresentation()
{
    const auto device = TreeTest::makeDevice(TreeTest::cameraJson(R"(
        { "name": "Root", "type": "Category", "children": ["ExposureTime"] },
        { "name": "ExposureTime", "type": "Float", "representation": "Linear", "alias": true, "precision": 1,
          "value": 5000.0, "min": 20.0, "max": 1000000.0 })"));
    QVERIFY(device);
    OpenFloatSliderEditor editor(device->nodeMap(QStringLiteral("@CameraDevice")));
    editor.setEditorData(EditorTest::editorDataOf(device, QStringLiteral("ExposureTime")));
    QVERIFY(editor.isInitialized());
    QCOMPARE(editor.mode(), TwoModeDoubleComboSlider::ModeLinear);
    QCOMPARE(editor.theSlider()->maximum(), 1000000);
    QCOMPARE(editor.theSlider()->value(), 5000);
}

void TestFloatSliderEditor::aliasThatIsAFloat()
{
    QSharedPointer<SubstitutingCollection> collection(new SubstitutingCollection(nodeMap()));
    collection->substitutes.insert(QStringLiteral("@CameraDevice/Gain/Alias"), dataOf(QStringLiteral("Level")).node);
    OpenFloatSliderEditor editor(collection);
    EditorTest::LogRecord log;
    QTest::ignoreMessage(QtDebugMsg, "Alias node is not of type integer.");
    QTest::ignoreMessage(QtWarningMsg, "Gain: Failed to update the float value editor comboBox!");
    QTest::ignoreMessage(QtWarningMsg,
        EditorTest::exceptionLine("setEditorData", QStringLiteral("Could not retrieve an alias node on pNode")));
    editor.setEditorData(dataOf(QStringLiteral("Gain")));
    QCOMPARE(log.count(), 3);
    QVERIFY(!editor.isInitialized());

    // The next snapshot tries again, and succeeds once the alias is there.
    collection->substitutes.insert(
        QStringLiteral("@CameraDevice/Gain/Alias"), dataOf(QStringLiteral("ExposureDelay/Alias")).node);
    editor.setEditorData(dataOf(QStringLiteral("Gain")));
    QVERIFY(editor.isInitialized());
    QCOMPARE(editor.box()->value(), 1.5);
}

void TestFloatSliderEditor::aliasIncrementZeroIsRefused()
{
    const auto aliasNode = dataOf(QStringLiteral("ExposureDelay/Alias")).node.dynamicCast<IIntegerParameter>();
    QSharedPointer<RecordingInteger> alias(new RecordingInteger(aliasNode));
    auto zero = copyOf<IntegerParameterData>(aliasNode->getParameterData());
    zero->increment = 0;
    alias->snapshot = zero;
    QSharedPointer<SubstitutingCollection> collection(new SubstitutingCollection(nodeMap()));
    collection->substitutes.insert(QStringLiteral("@CameraDevice/ExposureDelay/Alias"), alias);

    OpenFloatSliderEditor editor(collection);
    const int decimalsBefore = editor.decimals();
    QTest::ignoreMessage(QtWarningMsg, "ExposureDelay: Failed to update the float value editor comboBox!");
    QTest::ignoreMessage(
        QtWarningMsg, EditorTest::exceptionLine("setEditorData", QStringLiteral("The alias increment cannot be")));
    editor.setEditorData(dataOf(QStringLiteral("ExposureDelay")));
    // initControls ran before the refusal: both ranges are in place, the rest of the update is not.
    QVERIFY(editor.isInitialized());
    QCOMPARE(editor.maximum(), 1000.0);
    QCOMPARE(editor.intMaximum(), 1000);
    QCOMPARE(editor.decimals(), decimalsBefore);

    // The alias's next snapshot brings a proper increment; the float's next update then goes through.
    alias->snapshot.reset();
    editor.aliasChanged(aliasNode->getParameterData());
    editor.setEditorData(dataOf(QStringLiteral("ExposureDelay")));
    QCOMPARE(editor.decimals(), 1);
    auto narrower = copyOf<IntegerParameterData>(aliasNode->getParameterData());
    narrower->increment = 0;
    narrower->maximum = 500;
    QTest::ignoreMessage(QtWarningMsg, "ExposureDelay: Failed to update the float value editor slider!");
    QTest::ignoreMessage(QtWarningMsg,
        EditorTest::exceptionLine("onAliasParameterDataChanged", QStringLiteral("The alias increment cannot be")));
    editor.aliasChanged(narrower);
    QCOMPARE(editor.intMaximum(), 1000);
    QCOMPARE(editor.increment(), 1);
}

void TestFloatSliderEditor::logarithmicAliasFromZero()
{
    OpenFloatSliderEditor editor(nodeMap());
    editor.setEditorData(dataOf(QStringLiteral("ExposureFromZero")));
    QVERIFY(editor.isInitialized());
    QCOMPARE(editor.mode(), TwoModeDoubleComboSlider::ModeLogarithmic);
    QCOMPARE(editor.intMinimum(), 0);
    QVERIFY(std::isinf(editor.logMinimum()) && editor.logMinimum() < 0);
    // Still alive and following the device.
    const auto node = dataOf(QStringLiteral("ExposureFromZero")).node.dynamicCast<IFloatParameter>();
    node->setValue(20.0);
    editor.setEditorData(dataOf(QStringLiteral("ExposureFromZero")));
    QCOMPARE(editor.box()->value(), 20.0);
}

// The user types in the box while the device changes the value: the box
// keeps what the user typed, the slider follows the device.
void TestFloatSliderEditor::typingWhileTheDeviceChanges()
{
    const auto data = dataOf(QStringLiteral("ExposureDelay"));
    OpenFloatSliderEditor editor(nodeMap());
    editor.resize(400, 30);
    editor.setEditorData(data);
    EditorTest::follow(&editor, data.node);
    QVERIFY(ValueWidgetTest::showActive(&editor));
    editor.box()->setFocus();
    QTRY_VERIFY(editor.box()->hasFocus());
    editor.box()->selectAll();
    QTest::keyClicks(editor.box(), QStringLiteral("250"));

    data.node.dynamicCast<IFloatParameter>()->setValue(700.0);
    EditorTest::settle();
    QCOMPARE(editor.box()->text(), QStringLiteral("250"));
    QCOMPARE(editor.theSlider()->value(), 700);
    QCOMPARE(editor.intValue(), 700);
}

void TestFloatSliderEditor::readOnlyWhileFocused()
{
    const auto data = dataOf(QStringLiteral("ExposureDelay"));
    OpenFloatSliderEditor editor(nodeMap());
    editor.setEditorData(data);
    QVERIFY(ValueWidgetTest::showActive(&editor));
    editor.box()->setFocus();
    QTRY_VERIFY(editor.box()->hasFocus());
    QVERIFY(editor.isEnabled());
    auto readOnly = copyOf<FloatParameterData>(data.data);
    readOnly->writable = false;
    readOnly->value = 300.0;
    editor.setEditorData({ data.node, readOnly });
    QVERIFY(!editor.isEnabled());
    QCOMPARE(editor.box()->value(), 100.0);
}

void TestFloatSliderEditor::tinyDifferencesAreNotWritten()
{
    const auto data = dataOf(QStringLiteral("ExposureDelay"));
    OpenFloatSliderEditor editor(nodeMap());
    editor.setEditorData(data);
    editor.valueSets = 0;
    auto close = copyOf<FloatParameterData>(data.data);
    close->value = 100.0 + 1e-15;
    editor.setEditorData({ data.node, close });
    QCOMPARE(editor.valueSets, 0);
    close->value = 100.0 + 1e-13;
    editor.setEditorData({ data.node, close });
    QCOMPARE(editor.valueSets, 1);
}

void TestFloatSliderEditor::sliderAtTheAliasPositionWritesNothing()
{
    const auto aliasNode = dataOf(QStringLiteral("ExposureDelay/Alias")).node.dynamicCast<IIntegerParameter>();
    QSharedPointer<RecordingInteger> alias(new RecordingInteger(aliasNode));
    QSharedPointer<SubstitutingCollection> collection(new SubstitutingCollection(nodeMap()));
    collection->substitutes.insert(QStringLiteral("@CameraDevice/ExposureDelay/Alias"), alias);
    OpenFloatSliderEditor editor(collection);
    editor.setEditorData(dataOf(QStringLiteral("ExposureDelay")));
    QSignalSpy commits(&editor, SIGNAL(boxValueChanged()));

    editor.sliderMoved(100);
    QCOMPARE(alias->writes, QList<qint64>());
    QVERIFY(!editor.gateOpen());
    editor.sliderMoved(321);
    QCOMPARE(alias->writes, QList<qint64>({ 321 }));
    QVERIFY(editor.gateOpen());
    QCOMPARE(commits.count(), 0); // straight to the device, not through the delegate
}

void TestFloatSliderEditor::sliderDragWritesTheAlias()
{
    const auto data = dataOf(QStringLiteral("ExposureDelay"));
    OpenFloatSliderEditor editor(nodeMap());
    editor.resize(500, 30);
    editor.setEditorData(data);
    EditorTest::follow(&editor, data.node);
    QVERIFY(ValueWidgetTest::showActive(&editor));
    QSlider* slider = editor.theSlider();
    const QPoint start = ValueWidgetTest::handleCentre(slider);
    ValueWidgetTest::dragHandle(slider, { start.x() + 40, start.x() + 80 });
    const int position = slider->value();
    QVERIFY(position > 100);
    EditorTest::settle();
    // The device took the alias, and the float came back to the box.
    QCOMPARE(dataOf(QStringLiteral("ExposureDelay/Alias")).node.dynamicCast<IIntegerParameter>()->getValue(),
        qint64(position));
    QCOMPARE(editor.box()->value(), double(position));
    QCOMPARE(slider->value(), position);
}

void TestFloatSliderEditor::logarithmicEchoWritesNothing_data()
{
    QTest::addColumn<QList<int>>("values");
    QTest::newRow("a few") << QList<int>({ 20, 21, 33, 999, 5000, 123457, 999999, 1000000 });
    QList<int> sweep;
    for (int value = 20; value <= 1000000; value = value * 3 / 2 + 1)
        sweep << value;
    QTest::newRow("the whole range") << sweep;
}

// Every alias value set on the logarithmic slider comes back exactly, so the
// slider's echo of an update from the device writes nothing back.
void TestFloatSliderEditor::logarithmicEchoWritesNothing()
{
    QFETCH(QList<int>, values);
    const auto aliasNode = dataOf(QStringLiteral("ExposureTime/Alias")).node.dynamicCast<IIntegerParameter>();
    QSharedPointer<RecordingInteger> alias(new RecordingInteger(aliasNode));
    QSharedPointer<SubstitutingCollection> collection(new SubstitutingCollection(nodeMap()));
    collection->substitutes.insert(QStringLiteral("@CameraDevice/ExposureTime/Alias"), alias);
    OpenFloatSliderEditor editor(collection);
    editor.setEditorData(dataOf(QStringLiteral("ExposureTime")));
    QCOMPARE(editor.mode(), TwoModeDoubleComboSlider::ModeLogarithmic);

    for (int value : values) {
        aliasNode->setValue(value, true); // the device, by itself
        EditorTest::settle();
        QCOMPARE(editor.intValue(), value);
    }
    QCOMPARE(alias->writes, QList<qint64>());
}

void TestFloatSliderEditor::editingFinishedClampsAndCommits()
{
    const auto data = dataOf(QStringLiteral("ExposureDelay"));
    OpenFloatSliderEditor editor(nodeMap());
    editor.setEditorData(data);
    // The device narrows the range before the editor hears of it.
    dataOf(QStringLiteral("ExposureLimit")).node.dynamicCast<IFloatParameter>()->setValue(500.0);
    QVERIFY(ValueWidgetTest::showActive(&editor));
    editor.box()->setFocus();
    QTRY_VERIFY(editor.box()->hasFocus());
    QVERIFY(!editor.gateOpen());
    editor.box()->selectAll();
    QTest::keyClicks(editor.box(), QStringLiteral("900"));
    QSignalSpy commits(&editor, SIGNAL(boxValueChanged()));
    QTest::keyClick(editor.box(), Qt::Key_Return);
    QCOMPARE(commits.count(), 1);
    QVERIFY(editor.gateOpen());
    QCOMPARE(editor.box()->value(), 500.0);
    QCOMPARE(editor.editorData(), QVariant(500.0));
}

void TestFloatSliderEditor::rangeErrors_data()
{
    QTest::addColumn<double>("minimum");
    QTest::addColumn<double>("maximum");
    QTest::addColumn<double>("value");
    QTest::addColumn<QString>("message");
    QTest::newRow("minimum above maximum")
        << 10.0 << 5.0 << 7.0 << QStringLiteral("The minimum value is larger than the maximum value!");
    QTest::newRow("value out of range") << 0.0 << 5.0 << 7.0
                                        << QStringLiteral("The minimum allowed value is larger than the to be set "
                                                          "node value or the maximum allowed value is smaller");
}

void TestFloatSliderEditor::rangeErrors()
{
    QFETCH(double, minimum);
    QFETCH(double, maximum);
    QFETCH(double, value);
    QFETCH(QString, message);
    const auto data = dataOf(QStringLiteral("ExposureDelay"));
    OpenFloatSliderEditor editor(nodeMap());
    editor.setEditorData(data);
    auto bad = copyOf<FloatParameterData>(data.data);
    bad->minimum = minimum;
    bad->maximum = maximum;
    bad->value = value;
    EditorTest::LogRecord log;
    QTest::ignoreMessage(QtWarningMsg, "ExposureDelay: Failed to update the float value editor comboBox!");
    QTest::ignoreMessage(QtWarningMsg, EditorTest::exceptionLine("setEditorData", message));
    editor.setEditorData({ data.node, bad });
    QCOMPARE(log.count(), 2);
    QCOMPARE(editor.box()->value(), 100.0);
    QCOMPARE(editor.maximum(), 1000.0);

    // The alias's path refuses the same.
    auto badAlias = copyOf<IntegerParameterData>(dataOf(QStringLiteral("ExposureDelay/Alias")).data);
    badAlias->minimum = qint64(minimum);
    badAlias->maximum = qint64(maximum);
    badAlias->value = qint64(value);
    QTest::ignoreMessage(QtWarningMsg, "ExposureDelay: Failed to update the float value editor slider!");
    QTest::ignoreMessage(QtWarningMsg, EditorTest::exceptionLine("onAliasParameterDataChanged", message));
    editor.aliasChanged(badAlias);
    QCOMPARE(editor.intMaximum(), 1000);
    QCOMPARE(editor.intValue(), 100);
}

void TestFloatSliderEditor::refusesOtherKinds()
{
    OpenFloatSliderEditor editor(nodeMap());
    editor.setEditorData(dataOf(QStringLiteral("ExposureDelay")));
    QTest::ignoreMessage(QtDebugMsg, "setEditorData is called with non-float node????");
    editor.setEditorData(dataOf(QStringLiteral("Count")));
    QTest::ignoreMessage(QtDebugMsg, "setEditorData is called with non-float node????");
    editor.setEditorData({ dataOf(QStringLiteral("ExposureDelay")).node, nullptr });
    QTest::ignoreMessage(QtDebugMsg, "setEditorData is called with non-float node????");
    editor.setEditorData({ dataOf(QStringLiteral("Count")).node, dataOf(QStringLiteral("ExposureDelay")).data });
    QCOMPARE(editor.box()->value(), 100.0);
    // A null alias snapshot is ignored.
    editor.aliasChanged(nullptr);
    QCOMPARE(editor.intValue(), 100);
}

void TestFloatSliderEditor::notReadable_data()
{
    QTest::addColumn<int>("kind");
    EditorTest::addFaultKindRows();
}

void TestFloatSliderEditor::notReadable()
{
    QFETCH(int, kind);
    OpenFloatSliderEditor editor(nodeMap());
    editor.setEditorData(dataOf(QStringLiteral("ExposureDelay")));
    QTest::ignoreMessage(QtDebugMsg, "Non-readable comboBox: HiddenFloat??????");
    editor.setEditorData(dataOf(QStringLiteral("HiddenFloat")));
    QCOMPARE(editor.box()->value(), 100.0);

    m_device->injectFault(QStringLiteral("@CameraDevice/HiddenFloat"), Operation::GetName, FaultKind(kind));
    QTest::ignoreMessage(QtWarningMsg, "Failed to retrieve a node's name");
    QTest::ignoreMessage(QtWarningMsg, EditorTest::secondLine("setEditorData", kind));
    editor.setEditorData(dataOf(QStringLiteral("HiddenFloat")));
    QCOMPARE(editor.box()->value(), 100.0);
}

void TestFloatSliderEditor::sliderWriteFaults_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<int>("operation");
    EditorTest::addFaultRows(
        { { QStringLiteral("getValue"), Operation::GetValue }, { QStringLiteral("setValue"), Operation::SetValue } });
}

void TestFloatSliderEditor::sliderWriteFaults()
{
    QFETCH(int, kind);
    QFETCH(int, operation);
    OpenFloatSliderEditor editor(nodeMap());
    editor.setEditorData(dataOf(QStringLiteral("ExposureDelay")));
    m_device->injectFault(
        QStringLiteral("@CameraDevice/ExposureDelay/Alias"), Operation(operation), FaultKind(kind), 1);
    EditorTest::LogRecord log;
    QTest::ignoreMessage(
        QtWarningMsg, "ExposureDelay: Failed to set the alias nodes value on slider value changed signal!");
    QTest::ignoreMessage(QtWarningMsg, EditorTest::secondLine("onSliderValueChanged", kind));
    editor.setIntValue(400); // as a user's move would
    QCOMPARE(log.count(), 2);
    QCOMPARE(editor.theSlider()->value(), 400); // the slider keeps the user's position
    editor.setIntValue(410);
    QCOMPARE(dataOf(QStringLiteral("ExposureDelay/Alias")).node.dynamicCast<IIntegerParameter>()->getValue(), 410);
}

void TestFloatSliderEditor::lookupFaultsRetryLater_data()
{
    QTest::addColumn<QString>("target");
    QTest::addColumn<int>("operation");
    QTest::addColumn<int>("kind");
    const int kinds[] = { int(FaultKind::GenICam), int(FaultKind::StdException), int(FaultKind::NonStdException) };
    const QList<QPair<QString, int>> targets = { { QStringLiteral("@CameraDevice"), int(Operation::GetParameter) },
        { QStringLiteral("@CameraDevice/ExposureTime"), int(Operation::GetName) },
        { QStringLiteral("@CameraDevice/ExposureTime"), int(Operation::GetFullName) },
        { QStringLiteral("@CameraDevice/ExposureTime"), int(Operation::GetMaximum) },
        { QStringLiteral("@CameraDevice/ExposureTime"), int(Operation::AdvancedAccess) },
        { QStringLiteral("@CameraDevice/ExposureTime"), int(Operation::GetProperty) },
        { QStringLiteral("@CameraDevice/ExposureTime"), int(Operation::GetMinimum) },
        { QStringLiteral("@CameraDevice/ExposureTime/Alias"), int(Operation::GetParameterData) } };
    for (const auto& target : targets)
        for (int kind : kinds)
            QTest::newRow(qPrintable(QStringLiteral("%1 op %2 kind %3").arg(target.first).arg(target.second).arg(kind)))
                << target.first << target.second << kind;
}

// A failure while the editor finds its alias leaves it uninitialised, with
// both lines logged; the next snapshot tries again.
void TestFloatSliderEditor::lookupFaultsRetryLater()
{
    QFETCH(QString, target);
    QFETCH(int, operation);
    QFETCH(int, kind);
    const auto data = dataOf(QStringLiteral("ExposureTime"));
    m_device->injectFault(target, Operation(operation), FaultKind(kind), 1);
    OpenFloatSliderEditor editor(nodeMap());
    EditorTest::LogRecord log;
    QTest::ignoreMessage(QtWarningMsg, "ExposureTime: Failed to update the float value editor comboBox!");
    QTest::ignoreMessage(QtWarningMsg, EditorTest::secondLine("setEditorData", kind));
    editor.setEditorData(data);
    QCOMPARE(log.count(), 2);
    QVERIFY(!editor.isInitialized());

    editor.setEditorData(data);
    QVERIFY(editor.isInitialized());
    QCOMPARE(editor.box()->value(), 5000.0);
    QCOMPARE(editor.intValue(), 5000);
}

void TestFloatSliderEditor::unpluggedDevice()
{
    const auto data = dataOf(QStringLiteral("ExposureDelay"));
    OpenFloatSliderEditor editor(nodeMap());
    editor.setEditorData(data);
    m_device->unplug();
    auto next = copyOf<FloatParameterData>(data.data);
    next->value = 200.0;
    EditorTest::LogRecord log;
    // value() asks for the live limits, which are gone.
    QTest::ignoreMessage(QtWarningMsg, "ExposureDelay: Failed to assert the range limits!");
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("^adjustRangeLimits : +Exception")));
    editor.setEditorData({ data.node, next });
    QCOMPARE(editor.box()->value(), 200.0);

    QTest::ignoreMessage(
        QtWarningMsg, "ExposureDelay: Failed to set the alias nodes value on slider value changed signal!");
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("^onSliderValueChanged : +Exception")));
    editor.setIntValue(300);
    QCOMPARE(editor.theSlider()->value(), 300);

    // A new editor on the unplugged device can't find its alias and says so.
    OpenFloatSliderEditor late(nodeMap());
    QTest::ignoreMessage(QtWarningMsg, "ExposureDelay: Failed to update the float value editor comboBox!");
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("^setEditorData : +Exception")));
    late.setEditorData(data);
    QVERIFY(!late.isInitialized());
}

QTEST_MAIN(TestFloatSliderEditor)
#include "tst_floatslidereditor.moc"
