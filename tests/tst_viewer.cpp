// The viewer's main window driven as a user drives it: it opens the default
// simulated camera on each transport type without a warning, follows the
// camera list, the level, the search line and an edit in the tree, opens and
// cancels the IP configuration dialog, and changes language. The screenshot
// mode of the application writes a picture of the window.

#include "viewercamera.h"
#include "viewermainwindow.h"

#include "featuretree/featuretreewidget.h"
#include "featuretree/ifeaturetreemodelextension.h"
#include "network/ipaddresswidget.h"
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
#include <QProcess>
#include <QSettings>
#include <QTemporaryDir>
#include <QTimer>
#include <QTreeView>
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
    if (!line)
        return false;
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

QTEST_MAIN(TestViewer)
#include "tst_viewer.moc"
