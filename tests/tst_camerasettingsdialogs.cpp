// The viewer's camera settings dialogs: the report of a restore as a list the
// user can read, filter and copy; the differences between a file and the
// camera in a table whose checked rows are what gets written; and the File
// menu's three entries. With ZVC_SCREENSHOT_DIR set, each dialog is also
// saved there as a picture.

#include "camerasettingscommands.h"
#include "camerasettingscomparedialog.h"
#include "camerasettingsreportdialog.h"
#include "viewercamera.h"
#include "viewermainwindow.h"

#include "camerasettings/camerasettings.h"
#include "parameters/iparameter.h"
#include "parameters/parameterdata.h"

#include "simulatedcamera.h"

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QDialogButtonBox>
#include <QListWidget>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QTableWidget>

#include <QtTest>

namespace {

void write(ViewerCamera* camera, const QString& name, const QString& value)
{
    camera->nodeMap(QStringLiteral("@CameraDevice"))
        ->getParameter(QStringLiteral("@CameraDevice/") + name)
        ->setValueFromString(value);
}

QString valueOf(ViewerCamera* camera, const QString& name)
{
    return camera->nodeMap(QStringLiteral("@CameraDevice"))
        ->getParameter(QStringLiteral("@CameraDevice/") + name)
        ->getParameterData()
        ->valueText;
}

void screenshot(QWidget* widget, const QString& name)
{
    const QString dir = qEnvironmentVariable("ZVC_SCREENSHOT_DIR");
    if (dir.isEmpty())
        return;
    widget->show();
    QVERIFY(QTest::qWaitForWindowExposed(widget));
    QTest::qWait(100);
    QVERIFY(widget->grab().save(dir + QLatin1Char('/') + name + QStringLiteral(".png")));
}

} // namespace

class TestCameraSettingsDialogs : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void reportListsEveryValueAndCopies();
    void reportOfAStoppedRestore();
    void compareTableAppliesTheCheckedRows();
    void compareOfAFileThatMatches();
    void fileMenuHasTheThreeEntries();

private:
    QSharedPointer<ViewerCamera> m_camera;
};

void TestCameraSettingsDialogs::init()
{
    m_camera.reset(new ViewerCamera(Simulation::SimulatedCamera::createDefault()));
}

void TestCameraSettingsDialogs::cleanup()
{
    m_camera.reset();
}

void TestCameraSettingsDialogs::reportListsEveryValueAndCopies()
{
    // A file of another transport layer's camera, restored onto this one, with one refused write.
    ViewerCamera usb(Simulation::SimulatedCamera::createDefault(QStringLiteral("U3V")));
    const CameraSettings::Document document = CameraSettingsCommands::settingsFor(&usb)->save();
    QCOMPARE(document.transportLayerType, QStringLiteral("U3V"));
    write(m_camera.data(), QStringLiteral("Width"), QStringLiteral("640"));
    write(m_camera.data(), QStringLiteral("DeviceUserID"), QStringLiteral("bench 2"));
    m_camera->simulation()->makeWritesFail(QStringLiteral("@CameraDevice/DeviceUserID"));
    const CameraSettings::Report report = CameraSettingsCommands::settingsFor(m_camera.data())->restore(document);
    QCOMPARE(report.count(CameraSettings::Refused), 1);
    QVERIFY(report.count(CameraSettings::NotPresent) > 0);

    CameraSettingsReportDialog dialog;
    dialog.setReport(report, QStringLiteral("/tmp/u3v-camera.json"));
    QVERIFY2(dialog.summary().startsWith(QStringLiteral("u3v-camera.json: ")), qPrintable(dialog.summary()));
    QVERIFY2(dialog.summary().contains(QString::number(report.entries.size())), qPrintable(dialog.summary()));
    QStringList lines = dialog.shownLines();
    QCOMPARE(lines, report.toLines());
    QVERIFY(lines.filter(QStringLiteral("DeviceUserID")).first().contains(QStringLiteral("refused")));
    QVERIFY(lines.filter(QStringLiteral("Width")).first().contains(QStringLiteral("written")));

    // Only what was not restored: the summary line and the refused and absent values.
    auto* problemsOnly = dialog.findChild<QCheckBox*>(QStringLiteral("problemsOnlyCheck"));
    QVERIFY(problemsOnly);
    problemsOnly->setChecked(true);
    lines = dialog.shownLines();
    QCOMPARE(lines.size(), 1 + report.count(CameraSettings::Refused) + report.count(CameraSettings::NotPresent));
    QVERIFY(lines.filter(QStringLiteral(": written")).isEmpty());
    screenshot(&dialog, QStringLiteral("camera-settings-report"));

    // Copy: everything shown, or the selected lines.
    auto* copy = dialog.findChild<QPushButton*>(QStringLiteral("copyButton"));
    QVERIFY(copy);
    QApplication::clipboard()->clear();
    copy->click();
    QCOMPARE(QApplication::clipboard()->text(), lines.join(QLatin1Char('\n')) + QLatin1Char('\n'));
    auto* list = dialog.findChild<QListWidget*>(QStringLiteral("reportList"));
    list->item(1)->setSelected(true);
    copy->click();
    QCOMPARE(QApplication::clipboard()->text(), lines.at(1) + QLatin1Char('\n'));
}

void TestCameraSettingsDialogs::reportOfAStoppedRestore()
{
    CameraSettings::Report report;
    report.stopped = true;
    report.stopReason = QStringLiteral("The device has been unplugged");
    report.passes = 1;
    CameraSettings::ReportEntry entry;
    entry.value = CameraSettings::Value { QStringLiteral("@CameraDevice"), QStringLiteral("Width"), QString(),
        QString(), QStringLiteral("640") };
    report.entries.append(entry);
    CameraSettingsReportDialog dialog;
    dialog.setReport(report);
    QVERIFY2(dialog.summary().contains(report.stopReason), qPrintable(dialog.summary()));
    QVERIFY(dialog.shownLines().last().contains(QStringLiteral("not reached")));
}

void TestCameraSettingsDialogs::compareTableAppliesTheCheckedRows()
{
    const std::unique_ptr<CameraSettings> settings = CameraSettingsCommands::settingsFor(m_camera.data());
    const CameraSettings::Document saved = settings->save();
    write(m_camera.data(), QStringLiteral("Width"), QStringLiteral("640"));
    write(m_camera.data(), QStringLiteral("GainSelector"), QStringLiteral("AnalogAll"));
    write(m_camera.data(), QStringLiteral("Gain"), QStringLiteral("7"));
    write(m_camera.data(), QStringLiteral("GainSelector"), QStringLiteral("All"));
    write(m_camera.data(), QStringLiteral("DeviceUserID"), QStringLiteral("bench 2"));
    CameraSettings::Document withAbsent = saved;
    withAbsent.values.append(CameraSettings::Value {
        QStringLiteral("@CameraDevice"), QStringLiteral("NoSuchFeature"), QString(), QString(), QStringLiteral("1") });

    CameraSettingsCompareDialog dialog;
    dialog.setDifferences(settings->compare(withAbsent), QStringLiteral("/tmp/line-3.json"));
    QCOMPARE(dialog.rowCount(), 4);
    auto* table = dialog.findChild<QTableWidget*>(QStringLiteral("differenceTable"));
    QVERIFY(table);
    QCOMPARE(table->columnCount(), 4);
    int gainRow = -1, absentRow = -1, userRow = -1;
    for (int row = 0; row < table->rowCount(); ++row) {
        const QString feature = table->item(row, 0)->text();
        if (feature == QLatin1String("Gain"))
            gainRow = row;
        if (feature == QLatin1String("NoSuchFeature"))
            absentRow = row;
        if (feature == QLatin1String("DeviceUserID"))
            userRow = row;
    }
    QVERIFY(gainRow >= 0 && absentRow >= 0 && userRow >= 0);
    QCOMPARE(table->item(gainRow, 1)->text(), QStringLiteral("GainSelector = AnalogAll"));
    QCOMPARE(table->item(gainRow, 2)->text(), QStringLiteral("7.00"));
    QCOMPARE(table->item(userRow, 2)->text(), QStringLiteral("bench 2"));
    // What the camera hasn't got can't be checked.
    QCOMPARE(table->item(absentRow, 0)->checkState(), Qt::Unchecked);
    QVERIFY(!(table->item(absentRow, 0)->flags() & Qt::ItemIsUserCheckable));
    QCOMPARE(dialog.checkedValues().size(), 3);
    screenshot(&dialog, QStringLiteral("camera-settings-compare"));

    auto* apply = dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok);
    dialog.findChild<QPushButton*>(QStringLiteral("checkNoneButton"))->click();
    QVERIFY(dialog.checkedValues().isEmpty());
    QVERIFY(!apply->isEnabled());
    dialog.findChild<QPushButton*>(QStringLiteral("checkAllButton"))->click();
    QCOMPARE(dialog.checkedValues().size(), 3);
    dialog.setChecked(userRow, false);
    QVERIFY(apply->isEnabled());

    const CameraSettings::Report report = settings->restoreSelected(saved, dialog.checkedValues());
    QCOMPARE(report.count(CameraSettings::Written), 2);
    QCOMPARE(valueOf(m_camera.data(), QStringLiteral("Width")), QStringLiteral("1920"));
    QCOMPARE(valueOf(m_camera.data(), QStringLiteral("DeviceUserID")), QStringLiteral("bench 2"));
    QCOMPARE(valueOf(m_camera.data(), QStringLiteral("GainSelector")), QStringLiteral("All"));
    QCOMPARE(settings->compare(saved).size(), 1);
}

void TestCameraSettingsDialogs::compareOfAFileThatMatches()
{
    const std::unique_ptr<CameraSettings> settings = CameraSettingsCommands::settingsFor(m_camera.data());
    CameraSettingsCompareDialog dialog;
    dialog.setDifferences(settings->compare(settings->save()), QStringLiteral("same.json"));
    QCOMPARE(dialog.rowCount(), 0);
    QVERIFY(!dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok)->isEnabled());
}

void TestCameraSettingsDialogs::fileMenuHasTheThreeEntries()
{
    ViewerMainWindow window;
    QMenu* file = window.menuBar()->findChild<QMenu*>(QStringLiteral("menuFile"));
    QVERIFY(file);
    QStringList names;
    for (QAction* action : file->actions())
        names.append(action->objectName());
    const int save = names.indexOf(QStringLiteral("actionSaveCameraSettings"));
    QVERIFY2(save >= 0, qPrintable(names.join(',')));
    QCOMPARE(names.mid(save, 3),
        (QStringList { QStringLiteral("actionSaveCameraSettings"), QStringLiteral("actionLoadCameraSettings"),
            QStringLiteral("actionCompareCameraSettings") }));
    QCOMPARE(file->actions().at(save)->text(), QStringLiteral("&Save Camera Settings..."));
}

QTEST_MAIN(TestCameraSettingsDialogs)
#include "tst_camerasettingsdialogs.moc"
