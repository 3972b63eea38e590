#include "editortestsupport.h"
#include "valuewidgettestsupport.h"

#include "featuretree/checkboxeditor.h"
#include "featuretree/enumeditor.h"
#include "featuretree/toolbuttoneditor.h"
#include "parameters/icommandparameter.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QtTest>

using namespace ParameterCollection;
using Simulation::FaultKind;
using Simulation::Operation;

namespace {

//! Lets the tests see the fields that the editors keep to themselves.
class OpenEnumEditor : public EnumEditor
{
public:
    QWidget* openPopup() const { return popup; }
};

class OpenToolButtonEditor : public ToolButtonEditor
{
public:
    QSharedPointer<ICommandParameter> currentCommand() const { return command; }
};

//! Counts the show and hide events of the object it watches.
class ShowHideCounter : public QObject
{
public:
    int shows = 0;
    int hides = 0;
    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() == QEvent::Show)
            ++shows;
        else if (event->type() == QEvent::Hide)
            ++hides;
        return false;
    }
};

QSharedPointer<BooleanParameterData> booleanSnapshot(bool value, bool writable)
{
    QSharedPointer<BooleanParameterData> data(new BooleanParameterData);
    data->type = TypeBoolean;
    data->readable = true;
    data->implemented = true;
    data->writable = writable;
    data->value = value;
    data->valueText = value ? QStringLiteral("1") : QStringLiteral("0");
    return data;
}

} // namespace

class TestSimpleEditors : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    // EnumEditor's list
    void enumBuildsItsListWhenFirstAsked();

    // CheckBoxEditor
    void checkBoxShowsAndCommitsTheValue();
    void checkBoxReadOnlyIsDisabledUntilWritable();
    void checkBoxIgnoresOtherKindsSilently_data();
    void checkBoxIgnoresOtherKindsSilently();
    void checkBoxClickedByTheUser();

    // EnumEditor
    void enumListsEntriesWithSymbolicValues();
    void enumValueMissingFromEntries();
    void enumNotReadableSelectsNothing();
    void enumSnapshotWhileListIsOpenIsDropped();
    void enumClosingTheListSwallowsItsHide();
    void enumListOpenedAndClosedByTheUser();
    void enumGivenOtherKindsEndsEmpty_data();
    void enumGivenOtherKindsEndsEmpty();
    void enumFollowsAccessChanges();

    // ToolButtonEditor
    void toolButtonConstruction();
    void toolButtonStaysDownWhileTheCommandRuns();
    void toolButtonClickCommitsOneAndRunsTheCommand();
    void toolButtonReleasingCommitsNothing();
    void toolButtonKeepsItsCommandOnAnotherKind_data();
    void toolButtonKeepsItsCommandOnAnotherKind();
    void toolButtonEditorDataWithoutCommand();

    // Faults of the camera
    void faultsOnEveryOperation_data();
    void faultsOnEveryOperation();
    void enumNameFailsWhileReporting_data();
    void enumNameFailsWhileReporting();
    void toolButtonPendingFails_data();
    void toolButtonPendingFails();
    void unpluggedDevice();
    void zombieParameter();

private:
    QSharedPointer<Simulation::SimulatedDevice> m_device;
};

void TestSimpleEditors::init()
{
    m_device = TreeTest::makeDevice(EditorTest::editorCameraJson());
    QVERIFY(m_device);
}

void TestSimpleEditors::cleanup()
{
    m_device.reset();
}

// ---- CheckBoxEditor ---------------------------------------------------------

void TestSimpleEditors::checkBoxShowsAndCommitsTheValue()
{
    CheckBoxEditor editor;
    editor.setEditorData(EditorTest::editorDataOf(m_device, QStringLiteral("Flag")));
    QVERIFY(editor.isChecked());
    QVERIFY(editor.isEnabled());
    QCOMPARE(editor.editorData(), QVariant(QStringLiteral("1")));

    m_device->nodeMap(QStringLiteral("@CameraDevice"))
        ->getParameter(QStringLiteral("Flag"))
        ->setValueFromString(QStringLiteral("0"));
    editor.setEditorData(EditorTest::editorDataOf(m_device, QStringLiteral("Flag")));
    QVERIFY(!editor.isChecked());
    QCOMPARE(editor.editorData(), QVariant(QStringLiteral("0")));
}

void TestSimpleEditors::checkBoxReadOnlyIsDisabledUntilWritable()
{
    CheckBoxEditor editor;
    editor.setEditorData(EditorTest::editorDataOf(m_device, QStringLiteral("FlagRO")));
    QVERIFY(editor.isChecked());
    QVERIFY(!editor.isEnabled());

    // A feature that turns read-only and back, on the device.
    const auto lock = m_device->nodeMap(QStringLiteral("@CameraDevice"))->getParameter(QStringLiteral("Lock"));
    lock->setValueFromString(QStringLiteral("1"));
    editor.setEditorData(EditorTest::editorDataOf(m_device, QStringLiteral("FlagLocked")));
    QVERIFY(editor.isChecked());
    QVERIFY(!editor.isEnabled());
    lock->setValueFromString(QStringLiteral("0"));
    editor.setEditorData(EditorTest::editorDataOf(m_device, QStringLiteral("FlagLocked")));
    QVERIFY(editor.isChecked());
    QVERIFY(editor.isEnabled());
}

void TestSimpleEditors::checkBoxIgnoresOtherKindsSilently_data()
{
    QTest::addColumn<QString>("feature");
    QTest::addColumn<bool>("nullSnapshot");
    QTest::newRow("enumeration") << QStringLiteral("Mode") << false;
    QTest::newRow("integer") << QStringLiteral("Count") << false;
    QTest::newRow("command") << QStringLiteral("Start") << false;
    QTest::newRow("null snapshot") << QStringLiteral("Flag") << true;
}

void TestSimpleEditors::checkBoxIgnoresOtherKindsSilently()
{
    QFETCH(QString, feature);
    QFETCH(bool, nullSnapshot);

    CheckBoxEditor editor;
    editor.setEditorData(EditorTest::editorDataOf(m_device, QStringLiteral("Flag")));
    QVERIFY(editor.isChecked());
    editor.setEnabled(false); // a state the wrong snapshot must not touch either

    AbstractItemEditor::EditorData data = EditorTest::editorDataOf(m_device, feature);
    if (nullSnapshot)
        data.data.reset();
    EditorTest::LogRecord log;
    editor.setEditorData(data);
    QVERIFY(editor.isChecked());
    QVERIFY(!editor.isEnabled());
    QCOMPARE(log.all(), QStringList());
}

void TestSimpleEditors::checkBoxClickedByTheUser()
{
    CheckBoxEditor editor;
    editor.setEditorData(EditorTest::editorDataOf(m_device, QStringLiteral("Flag")));
    editor.show();
    QVERIFY(QTest::qWaitForWindowExposed(&editor));
    QSignalSpy clicked(&editor, SIGNAL(clicked(bool)));
    QTest::mouseClick(&editor, Qt::LeftButton, Qt::NoModifier, editor.rect().center());
    QCOMPARE(clicked.count(), 1);
    QCOMPARE(editor.editorData(), QVariant(QStringLiteral("0")));
    QTest::keyClick(&editor, Qt::Key_Space);
    QCOMPARE(clicked.count(), 2);
    QCOMPARE(editor.editorData(), QVariant(QStringLiteral("1")));

    // A device update does not come back as a click.
    editor.setEditorData({ nullptr, booleanSnapshot(false, true) });
    QVERIFY(!editor.isChecked());
    QCOMPARE(clicked.count(), 2);
}

// ---- EnumEditor -------------------------------------------------------------

void TestSimpleEditors::enumBuildsItsListWhenFirstAsked()
{
    const QString styleSheet
        = QStringLiteral("margin-left:1px; margin-right:1px; margin-top:1px; margin-bottom:1px; padding-left: 4px;");
    EnumEditor editor;
    QCOMPARE(editor.styleSheet(), styleSheet);
    // Most editors of a large tree are never opened: the drop-down list
    // waits until something asks for it.
    QVERIFY(editor.findChildren<QAbstractItemView*>().isEmpty());
    QVERIFY(editor.findChildren<QFrame*>().isEmpty());

    // Built then, it has the delegate that a combo box of the same style
    // sheet has, and it opens and shows the entries.
    QComboBox plain;
    plain.setStyleSheet(styleSheet);
    QVERIFY(editor.itemDelegate());
    QCOMPARE(QByteArray(editor.itemDelegate()->metaObject()->className()),
        QByteArray(plain.itemDelegate()->metaObject()->className()));
    QCOMPARE(editor.findChildren<QAbstractItemView*>().size(), 1);
    editor.setEditorData(EditorTest::editorDataOf(m_device, QStringLiteral("Mode")));
    editor.show();
    QVERIFY(QTest::qWaitForWindowExposed(&editor));
    editor.showPopup();
    QVERIFY(editor.view()->isVisible());
    QCOMPARE(editor.view()->model()->rowCount(), editor.count());
    editor.hidePopup();

    // A style change after construction is the combo box's as ever.
    editor.setStyleSheet(styleSheet + QStringLiteral(" color: red;"));
    QCOMPARE(QByteArray(editor.itemDelegate()->metaObject()->className()),
        QByteArray(plain.itemDelegate()->metaObject()->className()));
}

void TestSimpleEditors::enumListsEntriesWithSymbolicValues()
{
    EnumEditor editor;
    QVERIFY(!editor.isEditable());
    QVERIFY(editor.styleSheet().contains(QLatin1String("padding-left: 4px;")));
    EditorTest::LogRecord log;
    editor.setEditorData(EditorTest::editorDataOf(m_device, QStringLiteral("Mode")));
    QCOMPARE(editor.count(), 2); // the entry that isn't implemented is not offered
    QCOMPARE(editor.itemText(0), QStringLiteral("Timed Mode"));
    QCOMPARE(editor.itemText(1), QStringLiteral("Trigger Width"));
    QCOMPARE(editor.itemData(1, Qt::UserRole), QVariant(QStringLiteral("Width")));
    QCOMPARE(editor.currentIndex(), 0);
    QCOMPARE(editor.editorData(), QVariant(QStringLiteral("Timed")));
    QVERIFY(editor.isEnabled());
    QCOMPARE(log.count(), 0);

    // The user picks the second entry with the keyboard: the symbolic value, not the text, commits.
    editor.show();
    QVERIFY(QTest::qWaitForWindowExposed(&editor));
    QSignalSpy activated(&editor, SIGNAL(activated(int)));
    QTest::keyClick(&editor, Qt::Key_Down);
    QCOMPARE(activated.count(), 1);
    QCOMPARE(editor.editorData(), QVariant(QStringLiteral("Width")));
}

void TestSimpleEditors::enumValueMissingFromEntries()
{
    EnumEditor editor;
    editor.show();
    QVERIFY(QTest::qWaitForWindowExposed(&editor));
    EditorTest::LogRecord log;
    QTest::ignoreMessage(
        QtDebugMsg, "setEditorData: ModeLegacy. No entry in the combo box matches the current value Legacy");
    editor.setEditorData(EditorTest::editorDataOf(m_device, QStringLiteral("ModeLegacy")));
    QCOMPARE(log.count(), 1);
    QCOMPARE(editor.currentIndex(), -1);
    QCOMPARE(editor.count(), 2);
    QCOMPARE(editor.currentText(), QString());
    QVERIFY(!editor.editorData().isValid());

    // Still usable: the user can choose an entry.
    QVERIFY(editor.isEnabled());
    QSignalSpy activated(&editor, SIGNAL(activated(int)));
    QTest::keyClick(&editor, Qt::Key_Down);
    QCOMPARE(activated.count(), 1);
    QCOMPARE(editor.editorData(), QVariant(QStringLiteral("Timed")));
}

void TestSimpleEditors::enumNotReadableSelectsNothing()
{
    EnumEditor editor;
    EditorTest::LogRecord log;
    const AbstractItemEditor::EditorData data = EditorTest::editorDataOf(m_device, QStringLiteral("ModeWO"));
    QVERIFY(!data.data->readable);
    editor.setEditorData(data);
    QCOMPARE(editor.count(), 2);
    QCOMPARE(editor.currentIndex(), -1);
    QVERIFY(editor.isEnabled());
    QCOMPARE(log.count(), 0);
}

void TestSimpleEditors::enumSnapshotWhileListIsOpenIsDropped()
{
    OpenEnumEditor editor;
    editor.setEditorData(EditorTest::editorDataOf(m_device, QStringLiteral("Mode")));
    editor.show();
    QVERIFY(QTest::qWaitForWindowExposed(&editor));
    QVERIFY(!editor.openPopup());

    editor.showPopup();
    QVERIFY(editor.openPopup());
    QCOMPARE(editor.openPopup(), QApplication::activePopupWidget());

    // The device changes the value and the access while the list is open.
    m_device->nodeMap(QStringLiteral("@CameraDevice"))
        ->getParameter(QStringLiteral("Mode"))
        ->setValueFromString(QStringLiteral("Width"));
    AbstractItemEditor::EditorData changed = EditorTest::editorDataOf(m_device, QStringLiteral("Mode"));
    QSharedPointer<EnumParameterData> readOnly(
        new EnumParameterData(*changed.data.dynamicCast<const EnumParameterData>()));
    readOnly->writable = false;
    readOnly->symbolicValues.append(QStringLiteral("Extra"));
    readOnly->displayTexts.append(QStringLiteral("Extra"));
    changed.data = readOnly;
    EditorTest::LogRecord log;
    editor.setEditorData(changed);
    QCOMPARE(editor.currentIndex(), 0);
    QCOMPARE(editor.count(), 2);
    QVERIFY(editor.isEnabled());
    QCOMPARE(log.count(), 0);

    editor.hidePopup();
    QVERIFY(!editor.openPopup());
    editor.setEditorData(changed);
    QCOMPARE(editor.count(), 3);
    QCOMPARE(editor.editorData(), QVariant(QStringLiteral("Width")));
    QVERIFY(!editor.isEnabled());
}

void TestSimpleEditors::enumClosingTheListSwallowsItsHide()
{
    OpenEnumEditor editor;
    editor.setEditorData(EditorTest::editorDataOf(m_device, QStringLiteral("Mode")));
    editor.show();
    QVERIFY(QTest::qWaitForWindowExposed(&editor));
    editor.showPopup();
    QWidget* popup = editor.openPopup();
    QVERIFY(popup);
    editor.hidePopup();
    QVERIFY(!editor.openPopup());

    // A watcher installed before the editor's own filter sees events after it.
    ShowHideCounter counter;
    popup->installEventFilter(&counter);
    editor.showPopup();
    QCOMPARE(editor.openPopup(), popup);
    QVERIFY(counter.shows >= 1);
    editor.hidePopup();
    QVERIFY(!editor.openPopup());
    QVERIFY(popup->isHidden());
    QCOMPARE(counter.hides, 0);

    // Once the filter is gone, further hide events pass again.
    popup->show();
    popup->hide();
    QCOMPARE(counter.hides, 1);
    QVERIFY(!editor.openPopup());
}

// The user opens the list with the mouse and closes it with Escape; a
// device update in between waits for the next one after the list is gone.
void TestSimpleEditors::enumListOpenedAndClosedByTheUser()
{
    OpenEnumEditor editor;
    const AbstractItemEditor::EditorData data = EditorTest::editorDataOf(m_device, QStringLiteral("Mode"));
    editor.setEditorData(data);
    QVERIFY(ValueWidgetTest::showActive(&editor));
    QTest::mouseClick(&editor, Qt::LeftButton, Qt::NoModifier, editor.rect().center());
    QTRY_VERIFY(editor.openPopup());
    QVERIFY(editor.openPopup()->isVisible());

    data.node->setValueFromString(QStringLiteral("Width"));
    editor.setEditorData(EditorTest::editorDataOf(m_device, QStringLiteral("Mode")));
    QCOMPARE(editor.editorData(), QVariant(QStringLiteral("Timed")));

    QWidget* list = QApplication::focusWidget();
    QVERIFY(list);
    QTest::keyClick(list, Qt::Key_Escape);
    QTRY_VERIFY(!editor.openPopup());
    editor.setEditorData(EditorTest::editorDataOf(m_device, QStringLiteral("Mode")));
    QCOMPARE(editor.editorData(), QVariant(QStringLiteral("Width")));
}

void TestSimpleEditors::enumGivenOtherKindsEndsEmpty_data()
{
    QTest::addColumn<QString>("feature");
    QTest::addColumn<bool>("nullSnapshot");
    QTest::newRow("boolean") << QStringLiteral("Flag") << false;
    QTest::newRow("integer") << QStringLiteral("Count") << false;
    QTest::newRow("null snapshot") << QStringLiteral("Mode") << true;
}

void TestSimpleEditors::enumGivenOtherKindsEndsEmpty()
{
    QFETCH(QString, feature);
    QFETCH(bool, nullSnapshot);
    EnumEditor editor;
    editor.setEditorData(EditorTest::editorDataOf(m_device, QStringLiteral("Mode")));
    QCOMPARE(editor.count(), 2);

    AbstractItemEditor::EditorData data = EditorTest::editorDataOf(m_device, feature);
    if (nullSnapshot)
        data.data.reset();
    EditorTest::LogRecord log;
    QTest::ignoreMessage(QtDebugMsg, "setEditorData is called with non-enumeration node????");
    editor.setEditorData(data);
    QCOMPARE(log.count(), 1);
    QCOMPARE(editor.count(), 0);
    QCOMPARE(editor.currentIndex(), -1);

    // And it takes the next right snapshot.
    editor.setEditorData(EditorTest::editorDataOf(m_device, QStringLiteral("Mode")));
    QCOMPARE(editor.count(), 2);
}

void TestSimpleEditors::enumFollowsAccessChanges()
{
    EnumEditor editor;
    AbstractItemEditor::EditorData data = EditorTest::editorDataOf(m_device, QStringLiteral("Mode"));
    QSharedPointer<EnumParameterData> readOnly(
        new EnumParameterData(*data.data.dynamicCast<const EnumParameterData>()));
    readOnly->writable = false;
    editor.setEditorData({ data.node, readOnly });
    QVERIFY(!editor.isEnabled());
    QCOMPARE(editor.currentIndex(), 0);
    editor.setEditorData(data);
    QVERIFY(editor.isEnabled());
}

// ---- ToolButtonEditor -------------------------------------------------------

void TestSimpleEditors::toolButtonConstruction()
{
    OpenToolButtonEditor editor;
    QCOMPARE(editor.text(), QStringLiteral("Execute"));
    QVERIFY(editor.isCheckable());
    QVERIFY(!editor.autoRaise());
    QCOMPARE(editor.focusPolicy(), Qt::StrongFocus);
    QCOMPARE(editor.contentsMargins(), QMargins(0, 0, 0, 0));
    QVERIFY(!editor.currentCommand());
}

void TestSimpleEditors::toolButtonStaysDownWhileTheCommandRuns()
{
    OpenToolButtonEditor editor;
    AbstractItemEditor::EditorData data = EditorTest::editorDataOf(m_device, QStringLiteral("Start"));
    editor.setEditorData(data);
    QVERIFY(!editor.isChecked());
    QCOMPARE(editor.currentCommand(), data.node.objectCast<ICommandParameter>());

    // Follow the command's own snapshots, as the tree item would.
    connect(data.node.data(), &IParameter::parameterDataChangedDecoupled, &editor,
        [&editor, &data](QSharedPointer<const ParameterData> snapshot) {
            editor.setEditorData({ data.node, snapshot });
        });
    data.node.objectCast<ICommandParameter>()->execute(true);
    QTRY_VERIFY(editor.isChecked());
    QTRY_VERIFY_WITH_TIMEOUT(!editor.isChecked(), 3000);
}

void TestSimpleEditors::toolButtonClickCommitsOneAndRunsTheCommand()
{
    ToolButtonEditor editor;
    AbstractItemEditor::EditorData data = EditorTest::editorDataOf(m_device, QStringLiteral("Start"));
    editor.setEditorData(data);
    editor.show();
    QVERIFY(QTest::qWaitForWindowExposed(&editor));
    QSignalSpy clicked(&editor, SIGNAL(clicked(bool)));
    QTest::mouseClick(&editor, Qt::LeftButton, Qt::NoModifier, editor.rect().center());
    QCOMPARE(clicked.count(), 1);
    QVERIFY(editor.isChecked());
    EditorTest::LogRecord log;
    QCOMPARE(editor.editorData(), QVariant(QStringLiteral("1")));
    QCOMPARE(log.count(), 0);
}

void TestSimpleEditors::toolButtonReleasingCommitsNothing()
{
    ToolButtonEditor editor;
    AbstractItemEditor::EditorData data = EditorTest::editorDataOf(m_device, QStringLiteral("Start"));
    editor.setEditorData(data);
    editor.show();
    QVERIFY(QTest::qWaitForWindowExposed(&editor));
    QTest::mouseClick(&editor, Qt::LeftButton, Qt::NoModifier, editor.rect().center());
    QTest::mouseClick(&editor, Qt::LeftButton, Qt::NoModifier, editor.rect().center());
    QVERIFY(!editor.isChecked());
    QVERIFY(!editor.editorData().isValid());
}

void TestSimpleEditors::toolButtonKeepsItsCommandOnAnotherKind_data()
{
    QTest::addColumn<QString>("feature");
    QTest::addColumn<bool>("nullSnapshot");
    QTest::newRow("boolean") << QStringLiteral("Flag") << false;
    QTest::newRow("enumeration") << QStringLiteral("Mode") << false;
    QTest::newRow("null snapshot") << QStringLiteral("Start") << true;
}

void TestSimpleEditors::toolButtonKeepsItsCommandOnAnotherKind()
{
    QFETCH(QString, feature);
    QFETCH(bool, nullSnapshot);
    OpenToolButtonEditor editor;
    AbstractItemEditor::EditorData start = EditorTest::editorDataOf(m_device, QStringLiteral("Start"));
    editor.setEditorData(start);
    editor.setChecked(true);
    editor.setEnabled(false);

    AbstractItemEditor::EditorData other = EditorTest::editorDataOf(m_device, feature);
    if (nullSnapshot)
        other.data.reset();
    EditorTest::LogRecord log;
    QTest::ignoreMessage(QtDebugMsg, "setEditorData is called with non-command node????");
    editor.setEditorData(other);
    QCOMPARE(log.count(), 1);
    QCOMPARE(editor.currentCommand(), start.node.objectCast<ICommandParameter>());
    QVERIFY(editor.isChecked());
    QVERIFY(!editor.isEnabled());

    // A command node with a snapshot of another kind is refused as well.
    QTest::ignoreMessage(QtDebugMsg, "setEditorData is called with non-command node????");
    editor.setEditorData({ start.node, booleanSnapshot(true, true) });
    QVERIFY(editor.isChecked());
}

void TestSimpleEditors::toolButtonEditorDataWithoutCommand()
{
    ToolButtonEditor editor;
    editor.setChecked(true);
    QTest::ignoreMessage(QtDebugMsg, "editorData is called with non-command node????");
    QCOMPARE(editor.editorData(), QVariant(QStringLiteral("1")));
}

// ---- faults -----------------------------------------------------------------

void TestSimpleEditors::faultsOnEveryOperation_data()
{
    QTest::addColumn<QString>("editorKind");
    QTest::addColumn<QString>("feature");
    QTest::addColumn<int>("kind");
    const QList<QPair<QString, QString>> editors = { { QStringLiteral("checkbox"), QStringLiteral("Flag") },
        { QStringLiteral("enum"), QStringLiteral("Mode") }, { QStringLiteral("button"), QStringLiteral("Start") } };
    for (const auto& editor : editors) {
        for (int kind : { int(FaultKind::GenICam), int(FaultKind::StdException), int(FaultKind::NonStdException) })
            QTest::newRow(qPrintable(QStringLiteral("%1 fault %2").arg(editor.first).arg(kind)))
                << editor.first << editor.second << kind;
    }
}

// The simple editors read only the snapshot to show a value: a parameter
// that throws on every operation leaves them working and silent.
void TestSimpleEditors::faultsOnEveryOperation()
{
    QFETCH(QString, editorKind);
    QFETCH(QString, feature);
    QFETCH(int, kind);

    const AbstractItemEditor::EditorData data = EditorTest::editorDataOf(m_device, feature);
    m_device->injectFault(QStringLiteral("@CameraDevice/") + feature, Operation::Any, FaultKind(kind));

    EditorTest::LogRecord log;
    if (editorKind == QLatin1String("checkbox")) {
        CheckBoxEditor editor;
        editor.setEditorData(data);
        QVERIFY(editor.isChecked());
        QCOMPARE(editor.editorData(), QVariant(QStringLiteral("1")));
    } else if (editorKind == QLatin1String("enum")) {
        EnumEditor editor;
        editor.setEditorData(data);
        QCOMPARE(editor.count(), 2);
        QCOMPARE(editor.editorData(), QVariant(QStringLiteral("Timed")));
    } else {
        ToolButtonEditor editor;
        editor.setEditorData(data);
        QVERIFY(!editor.isChecked());
        QVERIFY(editor.isEnabled());
        // editorData() is the one call that reaches the command.
        QTest::ignoreMessage(QtWarningMsg, "!! Failed to set button state");
        QTest::ignoreMessage(QtWarningMsg, EditorTest::secondLine("editorData", kind));
        QVERIFY(!editor.editorData().isValid());
        QCOMPARE(log.count(), 2);
        return;
    }
    QCOMPARE(log.count(), 0);
}

void TestSimpleEditors::enumNameFailsWhileReporting_data()
{
    QTest::addColumn<int>("kind");
    EditorTest::addFaultKindRows();
}

void TestSimpleEditors::enumNameFailsWhileReporting()
{
    QFETCH(int, kind);
    const AbstractItemEditor::EditorData data = EditorTest::editorDataOf(m_device, QStringLiteral("ModeLegacy"));
    m_device->injectFault(QStringLiteral("@CameraDevice/ModeLegacy"), Operation::GetName, FaultKind(kind));
    EnumEditor editor;
    EditorTest::LogRecord log;
    // The name for the report can't be had either; the report goes out without it.
    QTest::ignoreMessage(QtWarningMsg, "!! Failed to retrieve entries for enumeration ");
    QTest::ignoreMessage(QtWarningMsg, EditorTest::secondLine("setEditorData", kind));
    editor.setEditorData(data);
    QCOMPARE(log.count(), 2);
    QCOMPARE(editor.count(), 2);

    m_device->clearFaults();
    editor.setEditorData(EditorTest::editorDataOf(m_device, QStringLiteral("Mode")));
    QCOMPARE(editor.editorData(), QVariant(QStringLiteral("Timed")));
}

void TestSimpleEditors::toolButtonPendingFails_data()
{
    QTest::addColumn<int>("kind");
    EditorTest::addFaultKindRows();
}

void TestSimpleEditors::toolButtonPendingFails()
{
    QFETCH(int, kind);
    ToolButtonEditor editor;
    editor.setEditorData(EditorTest::editorDataOf(m_device, QStringLiteral("Start")));
    m_device->injectFault(QStringLiteral("@CameraDevice/Start"), Operation::SetCommandPending, FaultKind(kind));
    editor.setChecked(true);
    QTest::ignoreMessage(QtWarningMsg, "!! Failed to set button state");
    QTest::ignoreMessage(QtWarningMsg, EditorTest::secondLine("editorData", kind));
    QCOMPARE(editor.editorData(), QVariant(QStringLiteral("1")));
}

void TestSimpleEditors::unpluggedDevice()
{
    const AbstractItemEditor::EditorData flag = EditorTest::editorDataOf(m_device, QStringLiteral("Flag"));
    const AbstractItemEditor::EditorData mode = EditorTest::editorDataOf(m_device, QStringLiteral("ModeLegacy"));
    const AbstractItemEditor::EditorData start = EditorTest::editorDataOf(m_device, QStringLiteral("Start"));
    m_device->unplug();

    CheckBoxEditor checkBox;
    checkBox.setEditorData(flag);
    QVERIFY(checkBox.isChecked());

    // The name of an unplugged parameter is still known.
    EnumEditor enumEditor;
    QTest::ignoreMessage(
        QtDebugMsg, "setEditorData: ModeLegacy. No entry in the combo box matches the current value Legacy");
    enumEditor.setEditorData(mode);
    QCOMPARE(enumEditor.count(), 2);

    ToolButtonEditor button;
    button.setEditorData(start);
    button.setChecked(true);
    QTest::ignoreMessage(QtWarningMsg, "!! Failed to set button state");
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("^editorData : +Exception occurred:\\n")));
    QCOMPARE(button.editorData(), QVariant(QStringLiteral("1")));
}

void TestSimpleEditors::zombieParameter()
{
    // A name the node map doesn't hold: the parameter is a zombie without a snapshot.
    const auto zombie = m_device->nodeMap(QStringLiteral("@CameraDevice"))
                            ->getParameter(QStringLiteral("@CameraDevice/NoSuchFeature"));
    QVERIFY(zombie && zombie->isZombie());
    AbstractItemEditor::EditorData data { zombie, ParameterData::createPlaceholder() };

    EditorTest::LogRecord log;
    CheckBoxEditor checkBox;
    checkBox.setEditorData(data);
    QCOMPARE(log.count(), 0);

    EnumEditor enumEditor;
    QTest::ignoreMessage(QtDebugMsg, "setEditorData is called with non-enumeration node????");
    enumEditor.setEditorData(data);
    QCOMPARE(enumEditor.count(), 0);

    ToolButtonEditor button;
    QTest::ignoreMessage(QtDebugMsg, "setEditorData is called with non-command node????");
    button.setEditorData(data);
    QTest::ignoreMessage(QtDebugMsg, "editorData is called with non-command node????");
    QVERIFY(!button.editorData().isValid());
    QCOMPARE(log.count(), 3);
}

QTEST_MAIN(TestSimpleEditors)
#include "tst_simpleeditors.moc"
