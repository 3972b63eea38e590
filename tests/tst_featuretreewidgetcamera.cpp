// The feature tree widget on the shipped default camera, end to end: every
// kind of feature edited through its in-place editor, the editors following
// the device, a feature losing and regaining its editor, the camera
// unplugged while polling, a whole search, and the favourites through their
// actions, a drop and a new widget. The model tester watches the view's
// proxy throughout.

#include "featuretreewidgettestsupport.h"

#include <QAbstractButton>
#include <QApplication>

#include "featuretree/SearchEdit.h"
#include "featuretree/checkboxeditor.h"
#include "featuretree/enumeditor.h"
#include "featuretree/favoritesdata.h"
#include "featuretree/featuretreeproxymodel.h"
#include "featuretree/featuretreewidget.h"
#include "featuretree/floateditor.h"
#include "featuretree/intslidereditor.h"
#include "featuretree/toolbuttoneditor.h"
#include "parameters/icommandparameter.h"

#include <QAction>
#include <QDoubleSpinBox>
#include <QElapsedTimer>
#include <QLineEdit>
#include <QMimeData>
#include <QPushButton>
#include <QSlider>

using namespace TreeTest;

namespace {

const char* const kNodeMaps[]
    = { "@CameraDevice", "@DeviceTransportLayer", "@StreamGrabber0", "@EventGrabber", "@ImageFormatConverter" };

} // namespace

class TestFeatureTreeWidgetCamera : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();

    void everyKindIsEditedThroughItsEditor();
    void editorsFollowTheDevice();
    void featureLosesAndRegainsItsEditor();
    void unplugWhilePollingKeepsTheLastValues();
    void searchCountsAndComesBack();
    void favouritesByActionsAndDropOutliveTheWidget();
    void levelChangeOnAnUnpluggedCameraIsKept();
    void resetOnAnUnpluggedCameraLeavesNoWaitCursor();
    void rowsExpandedWhileUnpluggedGetTheirEditorsAtARefresh();
    void secondWidgetOnAnUnpluggedCameraIsBuilt();
    void movingTheLastFavouriteDownKeepsIt();
    void clearLeavesNoFreedItemBehindTheViews();

private:
    void build()
    {
        m_widget.reset(new FeatureTreeWidget(QStringLiteral("camera"), m_device->baseInfo()));
        for (const char* name : kNodeMaps)
            m_widget->addParameterCollection(
                m_device->nodeMap(QLatin1String(name)), QLatin1String(name), QLatin1String(name), false);
        // Every category is filled before the tester comes: it walks the whole
        // tree on every signal, and would otherwise fill categories from inside
        // the proxy's handling of the model's signals. From here on it stays.
        auto* proxy = static_cast<FeatureTreeProxyModel*>(m_widget->treeView()->model());
        fill(proxy->sourceModel(), QModelIndex());
        proxy->invalidate();
        m_reports.reset(new ModelTesterReports);
        m_viewLike.reset(new ViewLikeProxy);
        m_viewLike->setSourceModel(proxy);
        m_tester.reset(
            new QAbstractItemModelTester(m_viewLike.get(), QAbstractItemModelTester::FailureReportingMode::Warning));
        m_widget->resize(600, 800);
        m_widget->show();
        QVERIFY(QTest::qWaitForWindowActive(m_widget.get()));
    }
    QModelIndex find(const char* name, int column)
    {
        const QModelIndex index
            = m_widget->getFeatureExtension()->findItemByFullName(cameraFeature(name), nullptr, column);
        if (index.isValid()) {
            expandTo(*m_widget->treeView(), index);
            m_widget->treeView()->scrollTo(index);
        }
        return index;
    }
    template <typename Editor> Editor* editorOf(const char* name)
    {
        return qobject_cast<Editor*>(m_widget->treeView()->indexWidget(find(name, 1)));
    }
    QSharedPointer<ParameterCollection::IParameter> parameter(const char* name)
    {
        return m_device->nodeMap(QStringLiteral("@CameraDevice"))->getParameter(cameraFeature(name));
    }
    QString deviceValue(const char* name)
    {
        m_device->nodeMap(QStringLiteral("@CameraDevice"))->refreshAll();
        return parameter(name)->getParameterData()->valueText;
    }

    static void fill(QAbstractItemModel* model, const QModelIndex& parent)
    {
        for (int row = 0; row < model->rowCount(parent); ++row)
            fill(model, model->index(row, 0, parent));
    }
    //! Tester reports other than the flags of the empty area, which is enabled like the rows.
    QStringList testerReports()
    {
        return ModelTesterReports::unexcused([](const QString& report) {
            return report.contains(QLatin1String("FAIL! flags == Qt::ItemIsDropEnabled || flags == 0"));
        });
    }
    void detachTester()
    {
        m_tester.reset();
        m_viewLike.reset();
        m_reports.reset();
    }

    QSharedPointer<Simulation::SimulatedDevice> m_device;
    std::unique_ptr<FeatureTreeWidget> m_widget;
    std::unique_ptr<ModelTesterReports> m_reports;
    std::unique_ptr<ViewLikeProxy> m_viewLike;
    std::unique_ptr<QAbstractItemModelTester> m_tester;
};

void TestFeatureTreeWidgetCamera::initTestCase()
{
    QStandardPaths::setTestModeEnabled(true);
    QCoreApplication::setOrganizationName(QStringLiteral("ZarvexTests"));
    QCoreApplication::setApplicationName(QStringLiteral("tst_featuretreewidgetcamera"));
}

void TestFeatureTreeWidgetCamera::init()
{
    QSettings().remove(QStringLiteral("Favorites"));
    FavoritesData& store = FeatureTreeModel::m_favorites;
    while (store.countNodes() > 0)
        store.removeNode(0, nullptr);
    m_device = Simulation::SimulatedDevice::createDefault(QStringLiteral("GEV"));
    QVERIFY(m_device);
    build();
}

void TestFeatureTreeWidgetCamera::cleanup()
{
    if (m_reports) {
        const QStringList reports = testerReports();
        QVERIFY2(reports.isEmpty(), qPrintable(reports.join(QLatin1Char('\n'))));
    }
    detachTester();
    m_widget.reset();
    m_device.reset();
}

void TestFeatureTreeWidgetCamera::everyKindIsEditedThroughItsEditor()
{
    // Boolean: a click on the check box.
    auto* reverse = editorOf<CheckBoxEditor>("ReverseX");
    QVERIFY(reverse);
    const QString reverseBefore = deviceValue("ReverseX");
    QTest::mouseClick(reverse, Qt::LeftButton, Qt::NoModifier, QPoint(6, reverse->height() / 2));
    deliver();
    QVERIFY(deviceValue("ReverseX") != reverseBefore);

    // Enumeration: the arrow key on the combo box picks the next entry.
    auto* mode = editorOf<EnumEditor>("GainAuto");
    QVERIFY(mode);
    QVERIFY(mode->count() > 1);
    const QString modeBefore = deviceValue("GainAuto");
    mode->setFocus();
    QTest::keyClick(mode, mode->currentIndex() + 1 < mode->count() ? Qt::Key_Down : Qt::Key_Up);
    deliver();
    QVERIFY2(deviceValue("GainAuto") != modeBefore, qPrintable(modeBefore));

    // Command: a click executes it.
    auto* software = editorOf<ToolButtonEditor>("TimestampReset");
    QVERIFY(software);
    QSignalSpy executed(parameter("TimestampReset").data(),
        SIGNAL(parameterDataChangedDecoupled(QSharedPointer<const ParameterCollection::ParameterData>)));
    QTest::mouseClick(software, Qt::LeftButton);
    deliver();
    QVERIFY(QTest::qWaitFor([&] { return executed.count() > 0; }));

    // Linear integer: the slider's page step.
    auto* width = editorOf<IntSliderEditor>("Width");
    QVERIFY(width);
    auto* slider = width->findChild<QSlider*>();
    QVERIFY(slider);
    const QString widthBefore = deviceValue("Width");
    slider->setFocus();
    QTest::keyClick(slider, Qt::Key_PageDown);
    deliver();
    QVERIFY2(deviceValue("Width") != widthBefore, qPrintable(widthBefore));

    // Float: the arrow key steps the box.
    auto* frameRate = editorOf<QWidget>("TriggerDelay");
    QVERIFY(qobject_cast<FloatEditor*>(frameRate));
    auto* box = frameRate->findChild<QDoubleSpinBox*>();
    QVERIFY(box);
    const QString delayBefore = deviceValue("TriggerDelay");
    box->setFocus();
    QTest::keyClick(box, Qt::Key_Up);
    deliver();
    QVERIFY2(deviceValue("TriggerDelay") != delayBefore, qPrintable(delayBefore));

    // Plain integer and string: the transient line edit, opened by a click, committed by Return.
    for (const char* name : { "AcquisitionBurstFrameCount", "DeviceUserID" }) {
        const QModelIndex cell = find(name, 1);
        QVERIFY(cell.isValid());
        QVERIFY(!m_widget->treeView()->indexWidget(cell));
        m_widget->treeView()->setFocus();
        m_widget->treeView()->setCurrentIndex(cell);
        QTest::keyClick(m_widget->treeView(), Qt::Key_F2);
        auto* line = qobject_cast<QLineEdit*>(QApplication::focusWidget());
        QVERIFY2(line, name);
        line->selectAll();
        QTest::keyClicks(line, QStringLiteral("42"));
        QTest::keyClick(line, Qt::Key_Return);
        deliver();
        QCOMPARE(deviceValue(name), QStringLiteral("42"));
    }
}

void TestFeatureTreeWidgetCamera::editorsFollowTheDevice()
{
    auto* reverse = editorOf<CheckBoxEditor>("ReverseX");
    auto* mode = editorOf<EnumEditor>("GainAuto");
    auto* width = editorOf<IntSliderEditor>("Width");
    QVERIFY(reverse && mode && width);
    const bool checked = reverse->isChecked();
    const int widthValue = width->findChild<QSlider*>()->value();
    const QString otherMode = mode->itemText(mode->currentIndex() == 0 ? 1 : 0);

    QVERIFY(m_device->changeOnDevice(cameraFeature("ReverseX"), !checked));
    QVERIFY(m_device->changeOnDevice(cameraFeature("Width"), widthValue - 16));
    QVERIFY(m_device->changeOnDevice(cameraFeature("GainAuto"), otherMode));
    // The refresh button reads everything again.
    QTest::mouseClick(m_widget->findChild<QPushButton*>("resetButton"), Qt::LeftButton);
    deliver();
    QCOMPARE(reverse->isChecked(), !checked);
    QCOMPARE(width->findChild<QSlider*>()->value(), widthValue - 16);
    QCOMPARE(mode->currentText(), otherMode);
}

void TestFeatureTreeWidgetCamera::featureLosesAndRegainsItsEditor()
{
    const QPersistentModelIndex cell = find("ReverseX", 1);
    QVERIFY(m_widget->treeView()->indexWidget(cell));
    impose(m_device, "ReverseX", "AccessMode", "NA");
    deliver();
    QVERIFY(!m_widget->treeView()->indexWidget(cell));
    impose(m_device, "ReverseX", "AccessMode", "RW");
    deliver();
    QVERIFY(qobject_cast<CheckBoxEditor*>(m_widget->treeView()->indexWidget(cell)));
}

void TestFeatureTreeWidgetCamera::unplugWhilePollingKeepsTheLastValues()
{
    const QModelIndex width = find("Width", 1);
    const QModelIndex temperature = find("DeviceTemperature", 1);
    const QString widthText = width.data().toString();
    QVERIFY(!widthText.isEmpty());
    ErrorQueueWatch errors;
    m_widget->setPolling(true);
    // DeviceTemperature is polled (Width is not): its last polled value is
    // what must stay. A tick has run and the tree shows what it read.
    QTRY_VERIFY_WITH_TIMEOUT(m_device->clockMilliseconds() >= 300
            && temperature.data().toString() == parameter("DeviceTemperature")->getParameterData()->valueText,
        5000);
    // No tick runs between this read and the unplug.
    const QString temperatureText = temperature.data().toString();
    QVERIFY(!temperatureText.isEmpty());
    MessageCounter warnings(QtWarningMsg);
    QElapsedTimer sinceUnplug;
    sinceUnplug.start();
    m_device->unplug();
    // Two ticks fail, two lines each.
    QTRY_VERIFY_WITH_TIMEOUT(MessageCounter::count() >= 4, 5000);
    const qint64 elapsed = sinceUnplug.elapsed();
    const int logged = MessageCounter::count();
    const int reported = errors.settle();
    QCOMPARE(width.data().toString(), widthText);
    QCOMPARE(temperature.data().toString(), temperatureText);
    // Nothing for the user to click away: the failed ticks are only logged,
    // two lines each, at most one tick every 300 ms.
    QVERIFY2(reported <= 1, qPrintable(QString::number(reported)));
    QVERIFY2(
        logged <= 2 * (elapsed / 300 + 1), qPrintable(QStringLiteral("%1 lines in %2 ms").arg(logged).arg(elapsed)));
    // The host tells that the device is gone: polling ends and the log goes quiet.
    m_widget->deviceIsClosed();
    const int afterClose = MessageCounter::count();
    QTest::qWait(700);
    QCOMPARE(MessageCounter::count(), afterClose);
    m_widget->treeView()->viewport()->repaint();
    QCOMPARE(width.data().toString(), widthText);
    QCOMPARE(errors.settle(), reported);
    m_widget->setPolling(false);
}

void TestFeatureTreeWidgetCamera::searchCountsAndComesBack()
{
    QTreeView* tree = m_widget->treeView();
    tree->collapseAll();
    const QModelIndex favorites = m_widget->getFeatureExtension()->GetFavoritesRootIndex();
    tree->expand(favorites);
    const QModelIndex width = find("Width", 0); // expands its categories
    int expandedBefore = 0;
    std::function<void(const QModelIndex&)> countExpanded = [&](const QModelIndex& parent) {
        for (int row = 0; row < tree->model()->rowCount(parent); ++row) {
            const QModelIndex child = tree->model()->index(row, 0, parent);
            if (tree->isExpanded(child)) {
                ++expandedBefore;
                countExpanded(child);
            }
        }
    };
    countExpanded(QModelIndex());
    QVERIFY(expandedBefore >= 3);
    tree->setCurrentIndex(favorites);

    QSignalSpy matches(m_widget.get(), SIGNAL(filterMatchesChanged(int, int)));
    auto* line = m_widget->findChild<SearchEdit*>("filterEdit");
    line->setFocus();
    QTest::keyClicks(line, QStringLiteral("Gain"));
    QCOMPARE(matches.count(), 4);
    const int total = matches.last().at(0).toInt();
    const int hidden = matches.last().at(1).toInt();
    QVERIFY(total > hidden);
    QVERIFY(find("Gain", 0).isValid());
    QVERIFY(!find("Width", 0).isValid());

    line->clear();
    QCOMPARE(matches.last().at(0).toInt(), 0);
    const int expected = expandedBefore;
    expandedBefore = 0;
    countExpanded(QModelIndex());
    QCOMPARE(expandedBefore, expected);
    QCOMPARE(tree->currentIndex(), m_widget->getFeatureExtension()->GetFavoritesRootIndex());
    Q_UNUSED(width)
}

void TestFeatureTreeWidgetCamera::favouritesByActionsAndDropOutliveTheWidget()
{
    QTreeView* tree = m_widget->treeView();
    FavoritesData& store = FeatureTreeModel::m_favorites;
    auto addByKey = [&](const char* name) {
        tree->setFocus();
        tree->setCurrentIndex(find(name, 0));
        QTest::keyClick(tree, Qt::Key_D, Qt::ControlModifier);
    };
    addByKey("Gain");
    addByKey("ExposureTime");
    addByKey("Width");
    QCOMPARE(store.countNodes(), 3);

    // Ctrl+Down moves the first one down.
    const QModelIndex favorites = m_widget->getFeatureExtension()->GetFavoritesRootIndex();
    tree->expand(favorites);
    tree->setCurrentIndex(tree->model()->index(0, 0, favorites));
    QTest::keyClick(tree, Qt::Key_Down, Qt::ControlModifier);
    QCOMPARE(store.nodeAt(1)->name, QStringLiteral("Gain"));

    // Delete removes the current one.
    tree->setCurrentIndex(tree->model()->index(2, 0, m_widget->getFeatureExtension()->GetFavoritesRootIndex()));
    QTest::keyClick(tree, Qt::Key_Delete);
    QCOMPARE(store.countNodes(), 2);

    // A drop onto the favourites root, as the view hands it on.
    const QModelIndex reverse = find("ReverseX", 0);
    std::unique_ptr<QMimeData> mime(tree->model()->mimeData({ reverse }));
    QVERIFY(mime);
    QVERIFY(tree->model()->dropMimeData(
        mime.get(), Qt::CopyAction, -1, 0, m_widget->getFeatureExtension()->GetFavoritesRootIndex()));
    QCOMPARE(store.countNodes(), 3);
    QStringList names;
    for (int i = 0; i < store.countNodes(); ++i)
        names << store.nodeAt(i)->name;

    // A new widget finds them, and so does the settings file.
    QVERIFY(testerReports().isEmpty());
    detachTester();
    m_widget.reset();
    FavoritesData loaded;
    QVERIFY(loaded.LoadFavorites(QStringLiteral("Favorites")));
    QCOMPARE(loaded.countNodes(), 3);
    for (int i = 0; i < 3; ++i)
        QCOMPARE(loaded.nodeAt(i)->name, names.at(i));
    build();
    const QModelIndex newFavorites = m_widget->getFeatureExtension()->GetFavoritesRootIndex();
    QCOMPARE(m_widget->treeView()->model()->rowCount(newFavorites), 3);
    for (int i = 0; i < 3; ++i)
        QCOMPARE(
            m_widget->treeView()->model()->index(i, 0, newFavorites).data(FeatureTreeItem::NodeNameRole).toString(),
            names.at(i));
}

// The view refreshes the camera on a change of level; an unplugged camera
// refuses that, and the level must be taken all the same, with a log line
// instead of an exception out of the widget.
void TestFeatureTreeWidgetCamera::levelChangeOnAnUnpluggedCameraIsKept()
{
    m_device->unplug();
    QSignalSpy levels(m_widget.get(), &FeatureTreeWidget::visibilityChanged);
    try {
        QMetaObject::invokeMethod(m_widget.get(), "onVisibilityChanged", Q_ARG(int, 1));
    } catch (...) {
        QFAIL("an exception left the change of level");
    }
    QCOMPARE(m_widget->visibility(), GenApi::Expert);
    QCOMPARE(levels.count(), 1);
    m_device->replug();
}

// The reset button refreshes the camera under a wait cursor; a camera that
// refuses must leave neither an exception nor the cursor behind.
void TestFeatureTreeWidgetCamera::resetOnAnUnpluggedCameraLeavesNoWaitCursor()
{
    auto* reset = m_widget->findChild<QAbstractButton*>(QStringLiteral("resetButton"));
    QVERIFY(reset);
    m_device->unplug();
    try {
        QMetaObject::invokeMethod(m_widget.get(), "on_resetButton_clicked");
    } catch (...) {
        QFAIL("an exception left the reset button");
    }
    QVERIFY(!QGuiApplication::overrideCursor());
    m_device->replug();
}

// The delegate makes no editor for a parameter gone with its device, so the
// rows a user expands while the camera is away have none. The camera coming
// back changes no value that would tell the view: the refresh a host makes
// then (the reset button) gives them their editors.
void TestFeatureTreeWidgetCamera::rowsExpandedWhileUnpluggedGetTheirEditorsAtARefresh()
{
    QTreeView* view = m_widget->treeView();
    const QPersistentModelIndex reverseX
        = m_widget->getFeatureExtension()->findItemByFullName(cameraFeature("ReverseX"), nullptr, 1);
    const QPersistentModelIndex pixelFormat
        = m_widget->getFeatureExtension()->findItemByFullName(cameraFeature("PixelFormat"), nullptr, 1);
    QVERIFY(reverseX.isValid());
    QVERIFY(pixelFormat.isValid());
    QVERIFY(!view->isExpanded(reverseX.parent()));
    QVERIFY(!view->indexWidget(reverseX));
    QVERIFY(!view->indexWidget(pixelFormat));

    m_device->unplug();
    expandTo(*view, reverseX);
    expandTo(*view, pixelFormat);
    QVERIFY(TreeTest::letEditorsOpen());
    QVERIFY(!view->indexWidget(reverseX));
    QVERIFY(!view->indexWidget(pixelFormat));

    m_device->replug();
    m_widget->Refresh();
    QVERIFY(TreeTest::letEditorsOpen());
    QVERIFY(qobject_cast<CheckBoxEditor*>(view->indexWidget(reverseX)));
    QVERIFY(qobject_cast<EnumEditor*>(view->indexWidget(pixelFormat)));
    QVERIFY(!QGuiApplication::overrideCursor());
}

// The node map filter lets a refusal of the collection through; adding an
// unplugged camera's node map to a new widget must still build the widget.
void TestFeatureTreeWidgetCamera::secondWidgetOnAnUnpluggedCameraIsBuilt()
{
    m_device->unplug();
    FeatureTreeWidget second(QStringLiteral("second"), m_device->baseInfo());
    try {
        second.addParameterCollection(m_device->nodeMap(QStringLiteral("@CameraDevice")),
            QStringLiteral("@CameraDevice"), QStringLiteral("@CameraDevice"), false);
    } catch (...) {
        QFAIL("an exception left addParameterCollection");
    }
    QVERIFY(second.getFeatureExtension());
    m_device->replug();
}

// The move actions may still be enabled from an earlier current row; moving
// the last favourite down (or the first up) must leave the list as it is.
void TestFeatureTreeWidgetCamera::movingTheLastFavouriteDownKeepsIt()
{
    FavoritesData& store = FeatureTreeModel::m_favorites;
    m_widget->treeView()->setCurrentIndex(find("Width", 0));
    m_widget->findChild<QAction*>(QStringLiteral("actionAddToFavourites"))->trigger();
    QCOMPARE(store.countNodes(), 1);
    const QModelIndex favourite
        = m_widget->treeView()->model()->index(0, 0, m_widget->getFeatureExtension()->GetFavoritesRootIndex());
    QVERIFY(favourite.isValid());
    m_widget->treeView()->setCurrentIndex(favourite);
    auto* down = m_widget->findChild<QAction*>(QStringLiteral("actionMoveFavouriteDown"));
    auto* up = m_widget->findChild<QAction*>(QStringLiteral("actionMoveFavouriteUp"));
    down->setEnabled(true); // as left over from a row that could move
    up->setEnabled(true);
    down->trigger();
    up->trigger();
    QCOMPARE(store.countNodes(), 1);
    QCOMPARE(store.nodeAt(0)->name, QStringLiteral("Width"));
}

// clear() frees every item of the model; nothing above it may keep their
// addresses. A failed re-adding of an unplugged camera, a filter pass and a
// repaint afterwards must find an empty tree, and re-adding after the replug
// must show the camera again with its editors.
void TestFeatureTreeWidgetCamera::clearLeavesNoFreedItemBehindTheViews()
{
    m_widget->setVisibility(GenApi::Guru);
    QVERIFY(find("Gain", 1).isValid());
    QVERIFY(m_widget->treeView()->indexWidget(find("Gain", 1)));
    QSignalSpy reset(m_widget->treeView()->model(), SIGNAL(modelReset()));

    m_widget->deviceIsClosed();
    m_widget->clear();
    QVERIFY(reset.count() > 0);
    auto* proxy = static_cast<FeatureTreeProxyModel*>(m_widget->treeView()->model());
    QCOMPARE(proxy->rowCount(QModelIndex()), 0);
    QVERIFY(proxy->sourceModel());

    m_device->unplug();
    m_widget->addParameterCollection(m_device->nodeMap(QStringLiteral("@CameraDevice")),
        QStringLiteral("@CameraDevice"), QStringLiteral("@CameraDevice"), false);
    proxy->invalidate();
    m_widget->repaint();
    QCoreApplication::processEvents();

    m_device->replug();
    m_widget->clear();
    for (const char* name : kNodeMaps)
        m_widget->addParameterCollection(
            m_device->nodeMap(QLatin1String(name)), QLatin1String(name), QLatin1String(name), false);
    m_widget->Refresh();
    QCoreApplication::processEvents();
    const QModelIndex gain = find("Gain", 1);
    QVERIFY(gain.isValid());
    QVERIFY(m_widget->treeView()->indexWidget(gain));
}

QTEST_MAIN(TestFeatureTreeWidgetCamera)
#include "tst_featuretreewidgetcamera.moc"
