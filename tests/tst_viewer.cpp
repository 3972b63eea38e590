// The viewer's main window driven as a user drives it: it opens the default
// simulated camera on each transport type without a warning, follows the
// camera list, the level, the search line and an edit in the tree, opens and
// cancels the IP configuration dialog, and changes language. The screenshot
// mode of the application writes a picture of the window.

#include "featurepane.h"
#include "imagepane.h"
#include "pixelconverter.h"
#include "viewercamera.h"
#include "viewermainwindow.h"

#include "featuretree/featuretreewidget.h"
#include "featuretree/ifeaturetreemodelextension.h"
#include "network/ipaddresswidget.h"
#include "parameters/ifloatparameter.h"
#include "parameters/iintegerparameter.h"
#include "parameters/iparametercollection.h"
#include "simulatedcamera.h"

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMainWindow>
#include <QMap>
#include <QMenu>
#include <QMessageBox>
#include <QPointer>
#include <QProcess>
#include <QScrollBar>
#include <QSettings>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTimer>
#include <QTreeView>
#include <QWheelEvent>
#include <QtTest>

namespace {

//! Warnings and worse logged while a test runs; the message handler fills it.
QStringList g_warnings;
QtMessageHandler g_previousHandler = nullptr;

//! The offscreen platform says this of every top-level window it shows; it is not the viewer's.
const char* const kOffscreenPlatformNote = "This plugin does not support propagateSizeHints()";

void failOnWarnings(QtMsgType type, const QMessageLogContext& context, const QString& message)
{
    if (type != QtDebugMsg && type != QtInfoMsg && message != QLatin1String(kOffscreenPlatformNote))
        g_warnings.append(message);
    g_previousHandler(type, context, message);
}

void expandTo(QTreeView* view, const QModelIndex& index)
{
    QList<QModelIndex> chain;
    for (QModelIndex parent = index.parent(); parent.isValid(); parent = parent.parent())
        chain.prepend(parent);
    for (const QModelIndex& parent : chain)
        view->expand(parent.sibling(parent.row(), 0));
}

//! Opens the value cell of the feature with F2, types the text over its value and commits it with Return.
bool typeIntoTree(FeatureTreeWidget* tree, const QString& fullName, const QString& text)
{
    const QModelIndex cell = tree->getFeatureExtension()->findItemByFullName(fullName, nullptr, 1);
    if (!cell.isValid())
        return false;
    expandTo(tree->treeView(), cell);
    tree->treeView()->scrollTo(cell);
    tree->treeView()->setFocus();
    tree->treeView()->setCurrentIndex(cell);
    QTest::keyClick(tree->treeView(), Qt::Key_F2);
    auto* line = qobject_cast<QLineEdit*>(QApplication::focusWidget());
    // A number's editor stays open in its cell, a spin box with its line inside.
    if (!line && tree->treeView()->indexWidget(cell))
        line = tree->treeView()->indexWidget(cell)->findChild<QLineEdit*>();
    if (!line)
        return false;
    line->setFocus();
    line->selectAll();
    QTest::keyClicks(line, text);
    QTest::keyClick(line, Qt::Key_Return);
    return true;
}

//! Counts the paint events a widget receives.
class PaintCounter : public QObject
{
public:
    explicit PaintCounter(QWidget* widget) { widget->installEventFilter(this); }
    int count = 0;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::Paint)
            ++count;
        return QObject::eventFilter(watched, event);
    }
};

} // namespace

class TestViewer : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();

    void startsOnEachTransportType_data();
    void startsOnEachTransportType();
    void selectingACameraOpensIt();
    void levelComboChangesTheTreesLevel();
    void searchShowsMatchCountsInTheStatusBar();
    void valueEditedInTheTreeReachesTheCamera();
    void ipDialogIsFilledFromTheCameraAndCancelled();
    void pollingMenuEntryAndCheckBoxStayInStep();
    void failedWriteIsShownWithItsDetails();
    void languageMenuRetranslatesTheTree();
    void everyTextOfTheWindowChangesLanguage_data();
    void everyTextOfTheWindowChangesLanguage();
    void settingsKeepTheLastCameraAndLevel();
    void screenshotModeWritesThePictureOfTheWindow();
    void screenshotModeFailsClearlyWithoutACamera();
    void helpAndVersionNeedNoDisplay_data();
    void helpAndVersionNeedNoDisplay();

    void pixelConverterMakesImages_data();
    void pixelConverterMakesImages();
    void pixelConverterRefusesWhatItCannotShow();
    void acquisitionShowsFramesAndCountsThem();
    void keyboardStartsAndStopsTheAcquisition();
    void payloadFeaturesAreLockedInTheTreeWhileAcquiring();
    void editInProgressOutlivesTheLockOfAnAcquisition();
    void wheelZoomsAroundTheCursor();
    void fitAndActualSize();
    void pixelUnderTheCursorIsInTheStatusBar();
    void featurePaneFollowsAnEditInTheTree();
    void ctrlFFromAnywhereGoesToTheSearchLine_data();
    void ctrlFFromAnywhereGoesToTheSearchLine();
    void tabReachesEveryControl();

private:
    std::unique_ptr<ViewerMainWindow> m_window;
};

void TestViewer::initTestCase()
{
    QCoreApplication::setOrganizationName(QStringLiteral("ZarvexTest"));
    QCoreApplication::setApplicationName(QStringLiteral("tst_viewer"));
    qRegisterMetaType<GenApi::EVisibility>("GenApi::EVisibility");
    g_previousHandler = qInstallMessageHandler(failOnWarnings);
}

void TestViewer::init()
{
    QSettings().clear();
    g_warnings.clear();
    m_window.reset(new ViewerMainWindow);
    m_window->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
}

void TestViewer::cleanup()
{
    m_window.reset();
    QVERIFY2(g_warnings.isEmpty(), qPrintable(g_warnings.join(QLatin1Char('\n'))));
}

void TestViewer::startsOnEachTransportType_data()
{
    QTest::addColumn<int>("row");
    const QStringList types = ViewerMainWindow::simulatedTransportTypes();
    for (int row = 0; row < types.size(); ++row)
        QTest::newRow(qPrintable(types[row])) << row;
}

void TestViewer::startsOnEachTransportType()
{
    QFETCH(int, row);
    QVERIFY(m_window->openCamera(row));
    QCOMPARE(m_window->currentCameraRow(), row);
    QVERIFY(m_window->featureTree());
    QCOMPARE(m_window->camera()->transportLayerType(), ViewerMainWindow::simulatedTransportTypes().at(row));
    // The favourites root and one root for each node map of the camera.
    QCOMPARE(m_window->featureTree()->treeView()->model()->rowCount(), m_window->camera()->nodeMapNames().size() + 1);
    // The tree paints without a warning.
    QWidget* viewport = m_window->featureTree()->treeView()->viewport();
    PaintCounter paints(viewport);
    viewport->update();
    QTRY_VERIFY(paints.count > 0);
}

void TestViewer::selectingACameraOpensIt()
{
    QListWidget* list = m_window->cameraList();
    QVERIFY(m_window->openCamera(0));
    QListWidgetItem* item = list->item(1);
    QTest::mouseClick(list->viewport(), Qt::LeftButton, Qt::NoModifier, list->visualItemRect(item).center());
    QCOMPARE(m_window->currentCameraRow(), 1);
    QCOMPARE(m_window->camera()->transportLayerType(), QStringLiteral("U3V"));
    // Keyboard too: Up goes back to the first camera.
    list->setFocus();
    QTest::keyClick(list, Qt::Key_Up);
    QCOMPARE(m_window->currentCameraRow(), 0);
    QCOMPARE(m_window->camera()->transportLayerType(), QStringLiteral("GEV"));
}

void TestViewer::levelComboChangesTheTreesLevel()
{
    QVERIFY(m_window->openCamera(0));
    auto* combo = m_window->findChild<QComboBox*>(QStringLiteral("levelCombo"));
    QVERIFY(combo);
    QCOMPARE(m_window->featureTree()->visibility(), GenApi::Beginner);
    QSignalSpy spy(m_window->featureTree(), &FeatureTreeWidget::visibilityChanged);
    combo->setFocus();
    QTest::keyClick(combo, Qt::Key_Down);
    QCOMPARE(spy.count(), 1);
    QCOMPARE(m_window->featureTree()->visibility(), GenApi::Expert);
    QTest::keyClick(combo, Qt::Key_Down);
    QCOMPARE(m_window->featureTree()->visibility(), GenApi::Guru);
}

void TestViewer::searchShowsMatchCountsInTheStatusBar()
{
    QVERIFY(m_window->openCamera(0));
    auto* search = m_window->featureTree()->findChild<QLineEdit*>(QStringLiteral("filterEdit"));
    QVERIFY(search);
    QVERIFY(m_window->statusText().isEmpty());
    QSignalSpy spy(m_window->featureTree(), &FeatureTreeWidget::filterMatchesChanged);
    search->setFocus();
    QTest::keyClicks(search, QStringLiteral("ExposureTime"));
    QVERIFY(spy.count() > 0);
    const int total = spy.last().at(0).toInt();
    QVERIFY(total > 0);
    QVERIFY2(m_window->statusText().contains(QString::number(total)), qPrintable(m_window->statusText()));
    search->clear();
    QTRY_VERIFY(m_window->statusText().isEmpty());
}

void TestViewer::valueEditedInTheTreeReachesTheCamera()
{
    QVERIFY(m_window->openCamera(0));
    FeatureTreeWidget* tree = m_window->featureTree();
    const QString fullName = QStringLiteral("@CameraDevice/DeviceUserID");
    QVERIFY(typeIntoTree(tree, fullName, QStringLiteral("Line 4")));
    auto map = m_window->camera()->nodeMap(QStringLiteral("@CameraDevice"));
    QTRY_COMPARE(map->getParameter(fullName)->getParameterData()->valueText, QStringLiteral("Line 4"));
    // The current-feature pane follows the tree.
    auto* pane = m_window->findChild<QWidget*>(QStringLiteral("featurePane"));
    QVERIFY(pane);
    QTRY_COMPARE(pane->findChild<QLabel*>(QStringLiteral("name"))->text(), QStringLiteral("DeviceUserID"));
}

void TestViewer::ipDialogIsFilledFromTheCameraAndCancelled()
{
    QVERIFY(m_window->openCamera(0));
    auto* action = m_window->findChild<QAction*>(QStringLiteral("actionIpConfiguration"));
    QVERIFY(action && action->isEnabled());
    QString address;
    QString mask;
    QString gateway;
    bool seen = false;
    QTimer::singleShot(0, this, [&] {
        auto* dialog = qobject_cast<IpAddressWidget*>(QApplication::activeModalWidget());
        if (!dialog)
            return;
        seen = true;
        address = dialog->ipAddress();
        mask = dialog->subnetMask();
        gateway = dialog->defaultGateway();
        QTest::keyClick(dialog, Qt::Key_Escape);
    });
    action->trigger();
    QVERIFY(seen);
    QVERIFY(!QApplication::activeModalWidget());
    // 3232238122, 4294967040 and 3232238081 in the camera.
    QCOMPARE(address, QStringLiteral("192.168.10.42"));
    QCOMPARE(mask, QStringLiteral("255.255.255.0"));
    QCOMPARE(gateway, QStringLiteral("192.168.10.1"));
    auto map = m_window->camera()->nodeMap(QStringLiteral("@CameraDevice"));
    QCOMPARE(map->getParameter(QStringLiteral("@CameraDevice/GevCurrentIPAddress"))->getParameterData()->valueText,
        QStringLiteral("192.168.10.42"));
}

void TestViewer::pollingMenuEntryAndCheckBoxStayInStep()
{
    QVERIFY(m_window->openCamera(0));
    auto* action = m_window->findChild<QAction*>(QStringLiteral("actionPolling"));
    auto* box = m_window->featureTree()->findChild<QCheckBox*>(QStringLiteral("checkBoxPolling"));
    QVERIFY(action && box);
    QVERIFY(!action->isChecked() && !box->isChecked());
    // The menu's shortcut turns polling on in the widget ...
    QTest::keySequence(m_window.get(), action->shortcut());
    QVERIFY(m_window->featureTree()->getPolling());
    QVERIFY(box->isChecked());
    // ... and the widget's own check box turns the menu entry off.
    QTest::mouseClick(box, Qt::LeftButton, Qt::NoModifier, QPoint(4, box->height() / 2));
    QVERIFY(!m_window->featureTree()->getPolling());
    QVERIFY(!action->isChecked());
}

void TestViewer::failedWriteIsShownWithItsDetails()
{
    QVERIFY(m_window->openCamera(0));
    FeatureTreeWidget* tree = m_window->featureTree();
    const QString fullName = QStringLiteral("@CameraDevice/DeviceUserID");
    QVERIFY(m_window->selectFeature(fullName));
    m_window->findChild<QAction*>(QStringLiteral("actionFault"))->trigger();

    QVERIFY(typeIntoTree(tree, fullName, QStringLiteral("refused")));

    QMessageBox* box = nullptr;
    QTRY_VERIFY((box = m_window->findChild<QMessageBox*>(QStringLiteral("errorBox"))) != nullptr);
    QVERIFY(!box->text().isEmpty());
    QVERIFY2(!box->detailedText().isEmpty(), qPrintable(box->text()));
    QCOMPARE(box->icon(), QMessageBox::Critical);
    box->close();
    auto map = m_window->camera()->nodeMap(QStringLiteral("@CameraDevice"));
    QVERIFY(map->getParameter(fullName)->getParameterData()->valueText != QStringLiteral("refused"));
    // The failed write is logged on purpose: the model's two-line pattern, nothing else.
    for (const QString& warning : qAsConst(g_warnings))
        QVERIFY2(warning.contains(QLatin1String("xception")) || warning.contains(QLatin1String("Failed to set")),
            qPrintable(warning));
    g_warnings.clear();
}

void TestViewer::languageMenuRetranslatesTheTree()
{
    QVERIFY(m_window->openCamera(0));
    QAbstractItemModel* model = m_window->featureTree()->treeView()->model();
    QCOMPARE(model->headerData(0, Qt::Horizontal).toString(), QStringLiteral("Feature"));

    const struct
    {
        const char* action;
        const char* code;
        const char* feature;
    } languages[] = { { "actionJapanese", "ja", "機能" }, { "actionKorean", "ko", "기능" },
        { "actionChinese", "zh", "功能" }, { "actionEnglish", "en", "Feature" } };
    for (const auto& language : languages) {
        auto* action = m_window->findChild<QAction*>(QLatin1String(language.action));
        QVERIFY(action);
        action->trigger();
        QCOMPARE(m_window->language(), QLatin1String(language.code));
        QVERIFY(action->isChecked());
        QCOMPARE(model->headerData(0, Qt::Horizontal).toString(), QString::fromUtf8(language.feature));
    }
    // The window's own menus follow as well.
    auto* tools = m_window->findChild<QMenu*>(QStringLiteral("menuTools"));
    QVERIFY(tools);
    QCOMPARE(tools->title(), QStringLiteral("&Tools"));
}

namespace {

//! The texts a user reads in the window: menu titles, actions, labels, the camera list and the level combo.
QMap<QString, QString> windowTexts(const QMainWindow* window)
{
    QMap<QString, QString> texts;
    for (const QMenu* menu : window->findChildren<QMenu*>()) {
        if (!menu->objectName().isEmpty())
            texts.insert(menu->objectName(), menu->title());
    }
    // The tree's own actions are the library's, translated by its catalogue when they are shown.
    const QObject* tree = window->findChild<QObject*>(QStringLiteral("featureTree"));
    for (const QAction* action : window->findChildren<QAction*>()) {
        bool inTree = false;
        for (const QObject* o = action; o && !inTree; o = o->parent())
            inTree = o == tree;
        if (!inTree && !action->objectName().isEmpty() && !action->text().isEmpty())
            texts.insert(action->objectName(), action->text());
    }
    // The captions of the camera list, the level and the feature pane's fields.
    for (const QLabel* label : window->findChildren<QLabel*>()) {
        if (label->buddy() && !label->text().isEmpty())
            texts.insert(label->buddy()->objectName() + QLatin1String(" caption"), label->text());
    }
    // The feature pane's fields that the viewer names itself.
    for (const char* field : { "type", "access", "visibility" }) {
        if (const auto* label = window->findChild<QLabel*>(QLatin1String(field)))
            texts.insert(QLatin1String(field), label->text());
    }
    if (const auto* cameras = window->findChild<QListWidget*>(QStringLiteral("cameraList"))) {
        for (int row = 0; row < cameras->count(); ++row)
            texts.insert(QStringLiteral("camera %1").arg(row), cameras->item(row)->text());
    }
    if (const auto* combo = window->findChild<QComboBox*>(QStringLiteral("levelCombo"))) {
        for (int row = 0; row < combo->count(); ++row)
            texts.insert(QStringLiteral("level %1").arg(row), combo->itemText(row));
    }
    texts.insert(QStringLiteral("window title"), window->windowTitle());
    return texts;
}

} // namespace

void TestViewer::everyTextOfTheWindowChangesLanguage_data()
{
    QTest::addColumn<QString>("code");
    QTest::newRow("ja") << QStringLiteral("ja");
    QTest::newRow("ko") << QStringLiteral("ko");
    QTest::newRow("zh") << QStringLiteral("zh");
}

void TestViewer::everyTextOfTheWindowChangesLanguage()
{
    QFETCH(QString, code);
    QVERIFY(m_window->openCamera(0));
    QVERIFY(m_window->selectFeature(QStringLiteral("@CameraDevice/Gain")));
    const QMap<QString, QString> english = windowTexts(m_window.get());
    QVERIFY(english.size() > 40);
    QVERIFY(m_window->setLanguage(code));
    QCoreApplication::sendPostedEvents(nullptr, QEvent::LanguageChange);
    const QMap<QString, QString> translated = windowTexts(m_window.get());
    QStringList unchanged;
    for (auto it = english.constBegin(); it != english.constEnd(); ++it) {
        if (translated.value(it.key()) == it.value())
            unchanged.append(it.key() + QLatin1String(": ") + it.value());
    }
    QVERIFY2(unchanged.isEmpty(), qPrintable(unchanged.join(QLatin1Char('\n'))));
    // The camera list makes room for its longest name in this language too.
    QListWidget* list = m_window->cameraList();
    QTRY_VERIFY2(list->viewport()->width() >= list->sizeHintForColumn(0),
        qPrintable(QStringLiteral("%1 < %2").arg(list->viewport()->width()).arg(list->sizeHintForColumn(0))));
    QVERIFY(!list->horizontalScrollBar()->isVisible());
    QVERIFY(m_window->setLanguage(QStringLiteral("en")));
    QCoreApplication::sendPostedEvents(nullptr, QEvent::LanguageChange);
    QCOMPARE(windowTexts(m_window.get()), english);
}

void TestViewer::settingsKeepTheLastCameraAndLevel()
{
    QVERIFY(m_window->openCamera(2));
    auto* combo = m_window->findChild<QComboBox*>(QStringLiteral("levelCombo"));
    combo->setFocus();
    QTest::keyClick(combo, Qt::Key_Down);
    m_window->close();
    m_window.reset(new ViewerMainWindow);
    m_window->restoreSettings();
    QCOMPARE(m_window->currentCameraRow(), 2);
    QCOMPARE(m_window->featureTree()->visibility(), GenApi::Expert);
}

void TestViewer::screenshotModeWritesThePictureOfTheWindow()
{
    QTemporaryDir directory;
    QVERIFY(directory.isValid());
    const QString file = directory.filePath(QStringLiteral("viewer.png"));
    QProcess viewer;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("XDG_CONFIG_HOME"), directory.path());
    viewer.setProcessEnvironment(environment);
    viewer.start(QStringLiteral(ZVC_VIEWER_EXECUTABLE), { QStringLiteral("--screenshot"), file });
    QVERIFY(viewer.waitForFinished(60000));
    QCOMPARE(viewer.exitCode(), 0);
    QImage image(file);
    QVERIFY(!image.isNull());
    // The window as the form lays it out, which is what the screenshot mode shows.
    QCOMPARE(image.size(), m_window->size() * m_window->devicePixelRatioF());
    QSet<QRgb> colours;
    for (int y = 0; y < image.height(); y += 7) {
        for (int x = 0; x < image.width(); x += 7)
            colours.insert(image.pixel(x, y));
    }
    QVERIFY2(colours.size() > 20, qPrintable(QString::number(colours.size())));
}

void TestViewer::screenshotModeFailsClearlyWithoutACamera()
{
    // A described camera that cannot be read: no camera opens, and the viewer says so.
    QTemporaryDir directory;
    QVERIFY(directory.isValid());
    QProcess viewer;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("XDG_CONFIG_HOME"), directory.path());
    viewer.setProcessEnvironment(environment);
    viewer.start(QStringLiteral(ZVC_VIEWER_EXECUTABLE),
        { QStringLiteral("--aravis"), QStringLiteral("no-such-camera-anywhere"), QStringLiteral("--timeout"),
            QStringLiteral("20"), QStringLiteral("--screenshot"), directory.filePath(QStringLiteral("none.png")) });
    QVERIFY(viewer.waitForFinished(60000));
    QCOMPARE(viewer.exitCode(), 1);
    const QString error = QString::fromUtf8(viewer.readAllStandardError());
    QVERIFY2(error.contains(QLatin1String("zarvex-viewer: ")), qPrintable(error));
    QVERIFY2(error.contains(QLatin1String("no-such-camera-anywhere")) || error.contains(QLatin1String("Aravis")),
        qPrintable(error));
    QVERIFY(!QFile::exists(directory.filePath(QStringLiteral("none.png"))));
}

void TestViewer::helpAndVersionNeedNoDisplay_data()
{
    QTest::addColumn<QString>("option");
    QTest::addColumn<QString>("expected");
    QTest::newRow("help") << QStringLiteral("--help") << QStringLiteral("--screenshot");
    QTest::newRow("version") << QStringLiteral("--version") << QStringLiteral("zarvex-viewer 6.");
}

void TestViewer::helpAndVersionNeedNoDisplay()
{
    QFETCH(QString, option);
    QFETCH(QString, expected);
    QProcess viewer;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.remove(QStringLiteral("DISPLAY"));
    environment.remove(QStringLiteral("WAYLAND_DISPLAY"));
    environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("xcb"));
    viewer.setProcessEnvironment(environment);
    viewer.start(QStringLiteral(ZVC_VIEWER_EXECUTABLE), { option });
    QVERIFY(viewer.waitForFinished(30000));
    const QString output = QString::fromUtf8(viewer.readAllStandardOutput());
    QCOMPARE(viewer.exitStatus(), QProcess::NormalExit);
    QCOMPARE(viewer.exitCode(), 0);
    QVERIFY2(output.contains(expected), qPrintable(output));
}

void TestViewer::pixelConverterMakesImages_data()
{
    QTest::addColumn<QString>("format");
    QTest::addColumn<QByteArray>("data");
    QTest::addColumn<bool>("shared");
    QTest::addColumn<QRgb>("first");
    QTest::addColumn<QString>("text");
    // 2 x 2 pixels each.
    QTest::newRow("Mono8") << QStringLiteral("Mono8") << QByteArray("\x10\x20\x30\x40", 4) << true
                           << qRgb(0x10, 0x10, 0x10) << QStringLiteral("16");
    QTest::newRow("Mono16") << QStringLiteral("Mono16") << QByteArray("\x00\x80\x00\x00\x00\x00\x00\x00", 8) << true
                            << qRgb(0x80, 0x80, 0x80) << QStringLiteral("32768");
    QTest::newRow("Mono10") << QStringLiteral("Mono10") << QByteArray("\xFF\x03\x00\x00\x00\x00\x00\x00", 8) << false
                            << qRgb(0xFF, 0xFF, 0xFF) << QStringLiteral("1023");
    QTest::newRow("Mono12") << QStringLiteral("Mono12") << QByteArray("\x00\x08\x00\x00\x00\x00\x00\x00", 8) << false
                            << qRgb(0x80, 0x80, 0x80) << QStringLiteral("2048");
    QTest::newRow("RGB8") << QStringLiteral("RGB8") << QByteArray("\xC8\x10\x20\0\0\0\0\0\0\0\0\0", 12) << true
                          << qRgb(0xC8, 0x10, 0x20) << QStringLiteral("200, 16, 32");
    QTest::newRow("BGR8") << QStringLiteral("BGR8") << QByteArray("\x20\x10\xC8\0\0\0\0\0\0\0\0\0", 12) << true
                          << qRgb(0xC8, 0x10, 0x20) << QStringLiteral("200, 16, 32");
    // One cell: red 200, greens 100 and 50, blue 10, in the place each pattern gives them.
    QTest::newRow("BayerRG8") << QStringLiteral("BayerRG8") << QByteArray("\xC8\x64\x32\x0A", 4) << false
                              << qRgb(200, 75, 10) << QStringLiteral("R 200");
    QTest::newRow("BayerGR8") << QStringLiteral("BayerGR8") << QByteArray("\x64\xC8\x0A\x32", 4) << false
                              << qRgb(200, 75, 10) << QStringLiteral("G 100");
    QTest::newRow("BayerGB8") << QStringLiteral("BayerGB8") << QByteArray("\x64\x0A\xC8\x32", 4) << false
                              << qRgb(200, 75, 10) << QStringLiteral("G 100");
    QTest::newRow("BayerBG8") << QStringLiteral("BayerBG8") << QByteArray("\x0A\x64\x32\xC8", 4) << false
                              << qRgb(200, 75, 10) << QStringLiteral("B 10");
}

void TestViewer::pixelConverterMakesImages()
{
    QFETCH(QString, format);
    QFETCH(QByteArray, data);
    QFETCH(bool, shared);
    QFETCH(QRgb, first);
    QFETCH(QString, text);
    QString error;
    const QImage image = PixelConverter::toImage(data, 2, 2, format, &error);
    QVERIFY2(!image.isNull(), qPrintable(error));
    QCOMPARE(image.size(), QSize(2, 2));
    QCOMPARE(image.constBits() == reinterpret_cast<const uchar*>(data.constData()), shared);
    QCOMPARE(image.pixel(0, 0), first);
    QCOMPARE(PixelConverter::pixelText(data, 2, 2, format, 0, 0), text);
    QCOMPARE(PixelConverter::pixelText(data, 2, 2, format, 2, 0), QString());
}

void TestViewer::pixelConverterRefusesWhatItCannotShow()
{
    QString error;
    QVERIFY(PixelConverter::toImage(QByteArray(16, 0), 2, 2, QStringLiteral("Mono10p"), &error).isNull());
    QVERIFY2(error.contains(QLatin1String("Mono10p")), qPrintable(error));
    error.clear();
    QVERIFY(PixelConverter::toImage(QByteArray(3, 0), 2, 2, QStringLiteral("Mono8"), &error).isNull());
    QVERIFY(!error.isEmpty());
    // A frame outlives the images made from it, and the other way round.
    QImage image;
    {
        QByteArray data(4, '\x7F');
        image = PixelConverter::toImage(data, 2, 2, QStringLiteral("Mono8"));
    }
    QCOMPARE(qGray(image.pixel(1, 1)), 0x7F);
}

namespace {

bool setCameraValue(ViewerMainWindow* window, const QString& name, const QString& value)
{
    const auto map = window->camera()->nodeMap(QStringLiteral("@CameraDevice"));
    try {
        map->getParameter(QStringLiteral("@CameraDevice/") + name)->setValueFromString(value);
        return true;
    } catch (...) {
        return false;
    }
}

} // namespace

void TestViewer::acquisitionShowsFramesAndCountsThem()
{
    QVERIFY(m_window->openCamera(0));
    QVERIFY(setCameraValue(m_window.get(), QStringLiteral("Width"), QStringLiteral("640")));
    QVERIFY(setCameraValue(m_window.get(), QStringLiteral("Height"), QStringLiteral("480")));
    QVERIFY(setCameraValue(m_window.get(), QStringLiteral("PixelFormat"), QStringLiteral("Mono8")));
    auto* start = m_window->findChild<QAction*>(QStringLiteral("actionStartAcquisition"));
    auto* stop = m_window->findChild<QAction*>(QStringLiteral("actionStopAcquisition"));
    QVERIFY(start->isEnabled());
    QVERIFY(!stop->isEnabled());
    QSignalSpy painted(m_window.get(), &ViewerMainWindow::framePainted);
    start->trigger();
    QVERIFY(m_window->isAcquiring());
    QVERIFY(!start->isEnabled());
    QVERIFY(stop->isEnabled());
    QVERIFY(painted.wait(3000));
    QCOMPARE(m_window->imagePane()->currentImage().size(), QSize(640, 480));
    const QRgb pixel = m_window->imagePane()->currentImage().pixel(320, 240);
    QVERIFY(qRed(pixel) == qGreen(pixel) && qGreen(pixel) == qBlue(pixel));
    QTRY_VERIFY(m_window->imagePane()->statistics().received >= 5);
    QTRY_VERIFY(m_window->frameStatisticsText().contains(QLatin1String("fps")));
    QVERIFY2(m_window->frameStatisticsText().contains(QLatin1String(" frames")),
        qPrintable(m_window->frameStatisticsText()));
    QVERIFY(m_window->imagePane()->statistics().framesPerSecond > 5.0);
    stop->trigger();
    QVERIFY(!m_window->isAcquiring());
    QVERIFY(start->isEnabled());
    const quint64 received = m_window->imagePane()->statistics().received;
    QTest::qWait(200);
    QVERIFY(m_window->imagePane()->statistics().received <= received + 1);
}

void TestViewer::keyboardStartsAndStopsTheAcquisition()
{
    QVERIFY(m_window->openCamera(0));
    m_window->cameraList()->setFocus();
    QTest::keyClick(m_window->cameraList(), Qt::Key_F7);
    QVERIFY(m_window->isAcquiring());
    QSignalSpy painted(m_window.get(), &ViewerMainWindow::framePainted);
    QVERIFY(painted.wait(3000));
    QTest::keyClick(m_window->cameraList(), Qt::Key_F8);
    QVERIFY(!m_window->isAcquiring());
}

void TestViewer::payloadFeaturesAreLockedInTheTreeWhileAcquiring()
{
    QVERIFY(m_window->openCamera(0));
    FeatureTreeWidget* tree = m_window->featureTree();
    const QModelIndex width
        = tree->getFeatureExtension()->findItemByFullName(QStringLiteral("@CameraDevice/Width"), nullptr, 1);
    QVERIFY(width.isValid());
    expandTo(tree->treeView(), width);
    tree->treeView()->scrollTo(width);
    // Width's editor stays open in its cell; it is enabled while Width may be written.
    QTRY_VERIFY(tree->treeView()->indexWidget(width));
    QPointer<QWidget> editor = tree->treeView()->indexWidget(width);
    const QVariant writableColour = width.data(Qt::ForegroundRole);
    QVERIFY(editor->isEnabled());
    PaintCounter paints(editor);
    QVERIFY(m_window->startAcquisition());
    QTRY_VERIFY(!editor->isEnabled());
    QVERIFY(width.data(Qt::ForegroundRole) != writableColour);
    // The same editor, not a new one: nothing flickers and nothing typed is lost.
    QCOMPARE(tree->treeView()->indexWidget(width), editor.data());
    // Gain, which doesn't shape the payload, stays writable.
    QVERIFY(m_window->camera()
                ->nodeMap(QStringLiteral("@CameraDevice"))
                ->getParameter(QStringLiteral("@CameraDevice/Gain"))
                ->isWritable());
    QVERIFY(m_window->stopAcquisition());
    QTRY_VERIFY(editor && editor->isEnabled());
    QCOMPARE(tree->treeView()->indexWidget(width), editor.data());
    QCOMPARE(width.data(Qt::ForegroundRole), writableColour);
    QVERIFY(paints.count < 50);
}

// The lock that an acquisition brings changes the access of several features
// at once; an edit under way in the tree on a feature it doesn't lock, typed
// and not yet committed, goes on in the same editor, its text intact, and
// commits afterwards as usual.
void TestViewer::editInProgressOutlivesTheLockOfAnAcquisition()
{
    QVERIFY(m_window->openCamera(0));
    FeatureTreeWidget* tree = m_window->featureTree();
    QTreeView* view = tree->treeView();
    const auto map = m_window->camera()->nodeMap(QStringLiteral("@CameraDevice"));
    const auto gain
        = map->getParameter(QStringLiteral("@CameraDevice/Gain")).dynamicCast<ParameterCollection::IFloatParameter>();
    const auto locked = map->getParameter(QStringLiteral("@CameraDevice/TLParamsLocked"))
                            .dynamicCast<ParameterCollection::IIntegerParameter>();
    QVERIFY(gain && locked);
    QCOMPARE(locked->getValue(), 0);
    const double gainBefore = gain->getValue();
    const QModelIndex width
        = tree->getFeatureExtension()->findItemByFullName(QStringLiteral("@CameraDevice/Width"), nullptr, 1);
    QVERIFY(width.isValid());
    const QVariant writableColour = width.data(Qt::ForegroundRole);

    const QModelIndex cell
        = tree->getFeatureExtension()->findItemByFullName(QStringLiteral("@CameraDevice/Gain"), nullptr, 1);
    QVERIFY(cell.isValid());
    expandTo(view, cell);
    view->scrollTo(cell);
    QApplication::setActiveWindow(m_window.get());
    view->setFocus();
    view->setCurrentIndex(cell);
    QTest::keyClick(view, Qt::Key_F2);
    auto* line = qobject_cast<QLineEdit*>(QApplication::focusWidget());
    if (!line && view->indexWidget(cell))
        line = view->indexWidget(cell)->findChild<QLineEdit*>();
    QVERIFY(line);
    const QPointer<QLineEdit> editor = line;
    const QPointer<QWidget> cellWidget = view->indexWidget(cell);
    editor->setFocus();
    editor->selectAll();
    QTest::keyClicks(editor, QStringLiteral("7.25"));
    const QString typed = editor->text();
    QVERIFY2(typed.contains(QLatin1String("7.25")), qPrintable(typed));

    QVERIFY(m_window->startAcquisition());
    QCOMPARE(locked->getValue(), 1);
    // The tree shows the lock: Width turns read-only.
    QTRY_VERIFY(width.data(Qt::ForegroundRole) != writableColour);
    // Frames arrive and the tree follows the camera meanwhile; the edit stays as typed.
    QSignalSpy painted(m_window.get(), &ViewerMainWindow::framePainted);
    QVERIFY(painted.wait(3000));
    QTest::qWait(300);
    QVERIFY2(editor, "the editor was destroyed");
    QCOMPARE(view->indexWidget(cell), cellWidget.data());
    QCOMPARE(editor->text(), typed);
    QVERIFY(editor->isEnabled());
    QVERIFY(editor->hasFocus());
    QCOMPARE(gain->getValue(), gainBefore); // nothing written before the commit

    // The edit commits as any other, while the lock holds.
    QTest::keyClick(editor, Qt::Key_Return);
    QTRY_COMPARE(gain->getValue(), 7.25);
    QVERIFY(m_window->stopAcquisition());
    QCOMPARE(locked->getValue(), 0);
    QTRY_COMPARE(width.data(Qt::ForegroundRole), writableColour);
}

void TestViewer::wheelZoomsAroundTheCursor()
{
    ImagePane* pane = m_window->imagePane();
    QByteArray data(320 * 240, '\0');
    for (int i = 0; i < data.size(); ++i)
        data[i] = char(i % 251);
    pane->setFrame(data, 320, 240, QStringLiteral("Mono8"), 1);
    pane->showActualSize();
    QVERIFY(!pane->isFitting());
    QCOMPARE(pane->zoom(), 1.0);
    const QPoint cursor(pane->width() / 3, pane->height() / 3);
    const QPoint before = pane->framePixelAt(cursor);
    QWheelEvent wheel(QPointF(cursor), QPointF(pane->mapToGlobal(cursor)), QPoint(), QPoint(0, 120), Qt::NoButton,
        Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(pane, &wheel);
    QVERIFY(pane->zoom() > 1.0);
    // The frame point under the cursor is kept, but at 100 % a whole-numbered
    // cursor position can lie exactly on the edge between two frame pixels;
    // the new origin, figured in floating point, may put it on either side.
    QVERIFY((pane->framePixelAt(cursor) - before).manhattanLength() <= 1);
    QWheelEvent back(QPointF(cursor), QPointF(pane->mapToGlobal(cursor)), QPoint(), QPoint(0, -240), Qt::NoButton,
        Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(pane, &back);
    QVERIFY(pane->zoom() < 1.0);
    QVERIFY((pane->framePixelAt(cursor) - before).manhattanLength() <= 1);
}

void TestViewer::fitAndActualSize()
{
    ImagePane* pane = m_window->imagePane();
    pane->setFrame(QByteArray(4000 * 100, '\x40'), 4000, 100, QStringLiteral("Mono8"), 1);
    auto* fit = m_window->findChild<QAction*>(QStringLiteral("actionZoomFit"));
    auto* actual = m_window->findChild<QAction*>(QStringLiteral("actionZoomActual"));
    QVERIFY(pane->isFitting());
    QVERIFY(fit->isChecked());
    QCOMPARE(pane->zoom(), double(pane->width()) / 4000);
    actual->trigger();
    QCOMPARE(pane->zoom(), 1.0);
    QVERIFY(!fit->isChecked());
    fit->trigger();
    QVERIFY(pane->isFitting());
    QVERIFY(fit->isChecked());
    // The keys of the pane itself.
    pane->setFocus();
    QTest::keyClick(pane, Qt::Key_1);
    QCOMPARE(pane->zoom(), 1.0);
    QTest::keyClick(pane, Qt::Key_Plus);
    QCOMPARE(pane->zoom(), 1.25);
    QTest::keyClick(pane, Qt::Key_0);
    QVERIFY(pane->isFitting());
}

void TestViewer::pixelUnderTheCursorIsInTheStatusBar()
{
    ImagePane* pane = m_window->imagePane();
    QByteArray data(64 * 48, '\0');
    data[5 * 64 + 10] = char(200);
    pane->setFrame(data, 64, 48, QStringLiteral("Mono8"), 1);
    pane->showActualSize();
    QPoint point;
    for (int y = 0; y < pane->height() && point.isNull(); ++y) {
        for (int x = 0; x < pane->width(); ++x) {
            if (pane->framePixelAt(QPoint(x, y)) == QPoint(10, 5)) {
                point = QPoint(x, y);
                break;
            }
        }
    }
    QVERIFY(!point.isNull());
    QTest::mouseMove(pane, point);
    QTRY_COMPARE(m_window->pixelText(), QStringLiteral("x 10, y 5: 200"));
    QTest::mouseMove(pane, QPoint(1, 1));
    QTRY_COMPARE(m_window->pixelText(), QString());
}

void TestViewer::featurePaneFollowsAnEditInTheTree()
{
    QVERIFY(m_window->openCamera(0));
    QVERIFY(m_window->selectFeature(QStringLiteral("@CameraDevice/Width")));
    auto* pane = m_window->findChild<FeaturePane*>(QStringLiteral("featurePane"));
    QVERIFY(pane);
    QTRY_COMPARE(pane->fieldText(QStringLiteral("value")), QStringLiteral("1920"));
    QVERIFY(typeIntoTree(m_window->featureTree(), QStringLiteral("@CameraDevice/Width"), QStringLiteral("640")));
    QTRY_COMPARE(pane->fieldText(QStringLiteral("value")), QStringLiteral("640"));
    // Range and access follow too: OffsetX's maximum grows, and the lock of an acquisition shows.
    QTRY_COMPARE(pane->fieldText(QStringLiteral("access")), QStringLiteral("Read and write"));
    QVERIFY(m_window->startAcquisition());
    QTRY_COMPARE(pane->fieldText(QStringLiteral("access")), QStringLiteral("Read only"));
    QVERIFY(m_window->stopAcquisition());
    QTRY_COMPARE(pane->fieldText(QStringLiteral("access")), QStringLiteral("Read and write"));
}

void TestViewer::ctrlFFromAnywhereGoesToTheSearchLine_data()
{
    QTest::addColumn<QString>("from");
    QTest::newRow("camera list") << QStringLiteral("cameraList");
    QTest::newRow("level combo") << QStringLiteral("levelCombo");
    QTest::newRow("image pane") << QStringLiteral("imagePane");
}

void TestViewer::ctrlFFromAnywhereGoesToTheSearchLine()
{
    QFETCH(QString, from);
    QVERIFY(m_window->openCamera(0));
    QApplication::setActiveWindow(m_window.get());
    auto* start = m_window->findChild<QWidget*>(from);
    QVERIFY(start);
    start->setFocus();
    QTRY_COMPARE(QApplication::focusWidget(), start);
    QTest::keyClick(start, Qt::Key_F, Qt::ControlModifier);
    auto* line = qobject_cast<QLineEdit*>(QApplication::focusWidget());
    QVERIFY(line);
    QVERIFY(m_window->featureTree()->isAncestorOf(line));
    QTest::keyClicks(line, QStringLiteral("Gain"));
    QTRY_VERIFY(!m_window->statusText().isEmpty());
}

void TestViewer::tabReachesEveryControl()
{
    QVERIFY(m_window->openCamera(0));
    QApplication::setActiveWindow(m_window.get());
    m_window->cameraList()->setFocus();
    QTRY_COMPARE(QApplication::focusWidget(), m_window->cameraList());
    QSet<QString> reached;
    for (int i = 0; i < 40; ++i) {
        QWidget* focus = QApplication::focusWidget();
        QVERIFY(focus);
        reached.insert(focus->objectName());
        QTest::keyClick(focus, Qt::Key_Tab);
    }
    for (const char* name : { "cameraList", "levelCombo", "imagePane", "filterEdit", "treeView" })
        QVERIFY2(
            reached.contains(QLatin1String(name)), qPrintable(QStringList(reached.values()).join(QLatin1Char(' '))));
}

QTEST_MAIN(TestViewer)
#include "tst_viewer.moc"
