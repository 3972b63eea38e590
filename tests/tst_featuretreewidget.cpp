// The feature tree widget: its form, actions and shortcuts, the double Esc,
// the search with its counts and help line, the context menu and the
// favourites actions, the clipboard dump and the memory of expansion and
// current row across a search.

#include "featuretreewidgettestsupport.h"

#include "featuretree/SearchEdit.h"
#include "featuretree/favoritesdata.h"
#include "featuretree/featuretreeproxymodel.h"
#include "featuretree/featuretreewidget.h"

#include <QAction>
#include <QCheckBox>
#include <QClipboard>
#include <QHeaderView>
#include <QMenu>
#include <QPushButton>
#include <QShortcut>

#include <limits>

Q_DECLARE_METATYPE(GenApi::EVisibility)

using namespace TreeTest;

namespace {

// Counts the font changes that reach a widget.
class FontChangeCounter : public QObject
{
public:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::FontChange)
            ++count;
        return QObject::eventFilter(watched, event);
    }
    int count = 0;
};

// A chain of nested categories, Level1 to Level<depth>, with one integer at the bottom.
QByteArray deepCamera(int depth)
{
    QByteArray features = R"({ "name": "Root", "type": "Category", "children": ["Level1"] })";
    for (int level = 1; level <= depth; ++level) {
        const QByteArray child = level < depth ? "Level" + QByteArray::number(level + 1) : QByteArray("Bottom");
        features += R"(, { "name": "Level)" + QByteArray::number(level) + R"(", "displayName": "Level)"
            + QByteArray::number(level) + R"(", "type": "Category", "children": [")" + child + R"("] })";
    }
    features += R"(, { "name": "Bottom", "displayName": "Bottom", "type": "Integer", "value": 5, "min": 0, "max": 9 })";
    return cameraJson(features);
}

} // namespace

class TestFeatureTreeWidget : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();

    // The frame
    void formHasItsObjectsAndTexts();
    void actionsAndShortcuts();
    void constructorLevelAndFlagChangeNothing();
    void pollingFollowsCheckBoxActionAndSetter();
    void viewAllFavoritesCheckBoxWithoutHostChangesNothing();
    void visibilityIndexOutsideTheLevelsDoesNothing_data();
    void visibilityIndexOutsideTheLevelsDoesNothing();
    void visibilityIndexSetsTheLevel();
    void anyLevelIsKeptAsGiven_data();
    void anyLevelIsKeptAsGiven();
    void firstEscArmsSecondClears();
    void otherKeyDisarmsEsc();
    void escFlagIsSharedBetweenWidgets();
    void fontChangeReachesPersistentEditors();
    void searchLineFocusedEmitsNoParameterButActionsFollow();
    void currentItemsAndHitTest();
    void currentRowGoingAboveTheLevelEmitsNoParameter();
    void addParameterCollectionRestoresFavouritesExpansion();
    void saveStateKeepsColumnWidths();

    // Search, menu, favourites
    void searchSavesAndRestoresOnce();
    void helpRowShowsOnlyForHiddenMatches();
    void levelChangeDuringSearchRecounts();
    void filterMatchesOnEveryChange();
    void deepMatchesUnderCollapsedCategoriesAreCounted_data();
    void deepMatchesUnderCollapsedCategoriesAreCounted();
    void menuFollowsTheCurrentRow();
    void favouriteActionsAddMoveRemove();
    void removingTheLastFavouriteSelectsTheRowAbove();

    // Clipboard
    void emptyTreeEmptiesTheClipboard();
    void dumpFollowsTheSearch();
    void dumpHoldsCollapsedAndHiddenRows();
    void dumpColumnsLineUpAndDeepRowsAreNotPadded();
    void longNameStandsBeforeTheTab();

    // Expansion and selection memory
    void expandedRowInCollapsedBranchIsNotSaved();
    void plainItemIsFoundAgainParameterItemIsNot();
    void nothingExpandedCollapsesEverything();
    void expandRootNodesExpandsTheTopLevelOnly();

private:
    void addCamera(FeatureTreeWidget& widget, const QString& rootName = QStringLiteral("Camera"))
    {
        widget.addParameterCollection(
            m_device->nodeMap(QStringLiteral("@CameraDevice")), rootName, QStringLiteral("@CameraDevice"), false);
    }
    QSharedPointer<ParameterCollection::IParameter> parameter(const char* name)
    {
        return m_device->nodeMap(QStringLiteral("@CameraDevice"))->getParameter(cameraFeature(name));
    }
    static FeatureTreeView* view(FeatureTreeWidget& widget) { return static_cast<FeatureTreeView*>(widget.treeView()); }
    static FeatureTreeProxyModel* proxy(FeatureTreeWidget& widget)
    {
        return static_cast<FeatureTreeProxyModel*>(widget.treeView()->model());
    }
    static SearchEdit* searchLine(FeatureTreeWidget& widget) { return widget.findChild<SearchEdit*>("filterEdit"); }
    static QAction* action(FeatureTreeWidget& widget, const char* name)
    {
        return widget.findChild<QAction*>(QLatin1String(name));
    }
    static QModelIndex index(FeatureTreeWidget& widget, const char* name, int column = 0)
    {
        return widget.getFeatureExtension()->findItemByFullName(cameraFeature(name), nullptr, column);
    }
    static void disarmEsc(FeatureTreeWidget& widget) { QTest::keyClick(&widget, Qt::Key_A); }
    static QString clipboardText() { return QGuiApplication::clipboard()->text(); }

    QSharedPointer<Simulation::SimulatedDevice> m_device;
};

void TestFeatureTreeWidget::initTestCase()
{
    QStandardPaths::setTestModeEnabled(true);
    QCoreApplication::setOrganizationName(QStringLiteral("ZarvexTests"));
    QCoreApplication::setApplicationName(QStringLiteral("tst_featuretreewidget"));
    qRegisterMetaType<GenApi::EVisibility>("GenApi::EVisibility");
    qRegisterMetaType<QSharedPointer<ParameterCollection::IParameter>>(
        "QSharedPointer<ParameterCollection::IParameter>");
    qRegisterMetaType<QSharedPointer<QMenu>>("QSharedPointer<QMenu>");
}

void TestFeatureTreeWidget::init()
{
    QSettings().remove(QStringLiteral("Favorites"));
    FavoritesData& store = FeatureTreeModel::m_favorites;
    while (store.countNodes() > 0)
        store.removeNode(0, nullptr);
    store.setViewAllFavorites(true);
    store.setExpanded(true);
    m_device = makeDevice(everyKindCamera());
    QVERIFY(m_device);
}

void TestFeatureTreeWidget::cleanup()
{
    m_device.reset();
}

// ---- the frame ------------------------------------------------------------

void TestFeatureTreeWidget::formHasItsObjectsAndTexts()
{
    FeatureTreeWidget widget;
    QCOMPARE(widget.objectName(), QStringLiteral("FeatureTreeWidgetClass"));
    QCOMPARE(widget.windowTitle(), QStringLiteral("FeatureTreeWidget"));
    QCOMPARE(widget.sizeHint(), QSize(400, 500));
    QVERIFY(searchLine(widget));
    QCOMPARE(widget.findChild<FeatureTreeView*>("treeView"), view(widget));
    auto* viewAll = widget.findChild<QCheckBox*>("checkBoxViewAllFavorites");
    auto* polling = widget.findChild<QCheckBox*>("checkBoxPolling");
    auto* reset = widget.findChild<QPushButton*>("resetButton");
    QVERIFY(viewAll && polling && reset);
    QCOMPARE(viewAll->text(), QStringLiteral("Show Unavailable Favorites"));
    QVERIFY(viewAll->isChecked());
    QCOMPARE(polling->text(), QStringLiteral("P&olling"));
    QVERIFY(!polling->isChecked());
    QCOMPARE(reset->toolTip(), QStringLiteral("Refresh"));
    QCOMPARE(reset->statusTip(), QStringLiteral("Refreshes the  feature tree"));
    QVERIFY(reset->text().isEmpty());
    QCOMPARE(reset->minimumSize(), QSize(32, 32));
    QCOMPARE(reset->maximumSize(), QSize(32, 32));
    QCOMPARE(reset->shortcut(), QKeySequence(Qt::Key_F5));
    QVERIFY(!reset->icon().isNull());
    QCOMPARE(widget.treeView()->header()->sectionSize(0), 200);
    QCOMPARE(widget.treeView()->selectionBehavior(), QAbstractItemView::SelectRows);
    QCOMPARE(widget.treeView()->selectionMode(), QAbstractItemView::SingleSelection);
    QCOMPARE(widget.treeView()->editTriggers(), QAbstractItemView::AllEditTriggers);
    QVERIFY(widget.treeView()->dragEnabled());
    QVERIFY(widget.treeView()->uniformRowHeights());
    QCOMPARE(searchLine(widget)->shadowDisplayString(),
        QStringLiteral("Search (%1)").arg(QKeySequence(Qt::CTRL | Qt::Key_F).toString(QKeySequence::NativeText)));
}

void TestFeatureTreeWidget::actionsAndShortcuts()
{
    FeatureTreeWidget widget;
    struct Expected
    {
        const char* name;
        QKeySequence keys;
        const char* text;
    };
    const Expected expected[] = {
        { "actionAddToFavourites", QKeySequence(QStringLiteral("Ctrl+D")), "Add to Favorites" },
        { "actionMoveFavouriteUp", QKeySequence(QStringLiteral("Ctrl+Up")), "Move Up" },
        { "actionMoveFavouriteDown", QKeySequence(QStringLiteral("Ctrl+Down")), "Move Down" },
        { "actionRemoveFavourite", QKeySequence(QKeySequence::Delete), "Remove" },
    };
    QCOMPARE(widget.actions().count(), 4);
    for (int i = 0; i < 4; ++i) {
        QAction* a = action(widget, expected[i].name);
        QVERIFY2(a, expected[i].name);
        QCOMPARE(widget.actions().at(i), a);
        QCOMPARE(a->shortcut(), expected[i].keys);
        QCOMPARE(a->shortcutContext(), Qt::WidgetWithChildrenShortcut);
        QCOMPARE(a->iconText(), QLatin1String(expected[i].text));
        QVERIFY(!a->icon().isNull());
        QVERIFY(!a->isEnabled());
        QVERIFY(a->isVisible());
    }
    QAction* polling = action(widget, "actionTogglePolling");
    QVERIFY(polling);
    QVERIFY(polling->isCheckable());
    QVERIFY(polling->isEnabled());
    QCOMPARE(polling->text(), QStringLiteral("Polling"));
    QVERIFY(!widget.actions().contains(polling));

    // The four shortcuts.
    const QList<QShortcut*> shortcuts = widget.findChildren<QShortcut*>();
    QCOMPARE(shortcuts.count(), 4);
    widget.show();
    QVERIFY(QTest::qWaitForWindowActive(&widget));
    widget.treeView()->setFocus();
    QTest::keyClick(widget.treeView(), Qt::Key_F3);
    QVERIFY(searchLine(widget)->hasFocus());
    widget.treeView()->setFocus();
    QTest::keyClick(widget.treeView(), Qt::Key_F, Qt::ControlModifier);
    QVERIFY(searchLine(widget)->hasFocus());

    addCamera(widget);
    widget.treeView()->setFocus();
    QTest::keyClick(widget.treeView(), Qt::Key_Plus, Qt::ControlModifier | Qt::AltModifier | Qt::ShiftModifier);
    QVERIFY(widget.treeView()->isExpanded(index(widget, "Gain").parent()));
    QTest::keyClick(widget.treeView(), Qt::Key_Minus, Qt::ControlModifier | Qt::AltModifier | Qt::ShiftModifier);
    QVERIFY(!widget.treeView()->isExpanded(index(widget, "Gain").parent()));
}

void TestFeatureTreeWidget::constructorLevelAndFlagChangeNothing()
{
    FeatureTreeWidget beginner(QStringLiteral("a"), m_device->baseInfo(), nullptr, GenApi::Beginner, false);
    FeatureTreeWidget guru(QStringLiteral("b"), m_device->baseInfo(), nullptr, GenApi::Guru, true);
    QCOMPARE(beginner.visibility(), GenApi::Guru);
    QCOMPARE(guru.visibility(), GenApi::Guru);
    QCOMPARE(beginner.getPolling(), guru.getPolling());
    QVERIFY(!beginner.getPolling());
    addCamera(beginner);
    addCamera(guru);
    beginner.expandTree();
    guru.expandTree();
    const QModelIndex secretBeginner = index(beginner, "Secret");
    const QModelIndex secretGuru = index(guru, "Secret");
    QVERIFY(secretBeginner.isValid() && secretGuru.isValid());
    QCOMPARE(beginner.treeView()->isRowHidden(secretBeginner.row(), secretBeginner.parent()),
        guru.treeView()->isRowHidden(secretGuru.row(), secretGuru.parent()));
    QCOMPARE(proxy(beginner)->rowCount(), proxy(guru)->rowCount());
}

void TestFeatureTreeWidget::pollingFollowsCheckBoxActionAndSetter()
{
    FeatureTreeWidget widget;
    widget.show();
    QSignalSpy changed(&widget, SIGNAL(pollingStateChanged(bool)));
    auto* box = widget.findChild<QCheckBox*>("checkBoxPolling");
    QTest::mouseClick(box, Qt::LeftButton, Qt::NoModifier, QPoint(5, box->height() / 2));
    QCOMPARE(changed.count(), 1);
    QCOMPARE(changed.at(0).at(0).toBool(), true);
    QVERIFY(widget.getPolling());
    QVERIFY(action(widget, "actionTogglePolling")->isChecked());

    action(widget, "actionTogglePolling")->trigger();
    QCOMPARE(changed.count(), 2);
    QVERIFY(!widget.getPolling());
    QVERIFY(!box->isChecked());

    widget.setPolling(true);
    QVERIFY(box->isChecked());
    QVERIFY(widget.getPolling());
    QCOMPARE(changed.count(), 2);
    widget.setPollingVisible(false);
    QVERIFY(box->isHidden());
    widget.setPolling(false);
}

void TestFeatureTreeWidget::viewAllFavoritesCheckBoxWithoutHostChangesNothing()
{
    FeatureTreeWidget widget;
    widget.show();
    QSignalSpy changed(&widget, SIGNAL(viewAllFavoritesStateChanged(bool)));
    auto* box = widget.findChild<QCheckBox*>("checkBoxViewAllFavorites");
    const bool before = widget.getViewAllFavorites();
    QTest::mouseClick(box, Qt::LeftButton, Qt::NoModifier, QPoint(5, box->height() / 2));
    QCOMPARE(changed.count(), 1);
    QCOMPARE(changed.at(0).at(0).toBool(), box->isChecked());
    QCOMPARE(box->isChecked(), !before);
    QCOMPARE(widget.getViewAllFavorites(), before);

    // A host that answers brings model and box together.
    widget.setViewAllFavorites(box->isChecked());
    QCOMPARE(widget.getViewAllFavorites(), box->isChecked());
    widget.setViewAllFavoritesVisible(false);
    QVERIFY(box->isHidden());
    widget.setViewAllFavorites(true);
}

void TestFeatureTreeWidget::visibilityIndexOutsideTheLevelsDoesNothing_data()
{
    QTest::addColumn<int>("level");
    QTest::newRow("4") << 4;
    QTest::newRow("-1") << -1;
    QTest::newRow("99") << 99;
}

void TestFeatureTreeWidget::visibilityIndexOutsideTheLevelsDoesNothing()
{
    QFETCH(int, level);
    FeatureTreeWidget widget;
    addCamera(widget);
    widget.setVisibility(GenApi::Expert);
    QSignalSpy visibility(&widget, SIGNAL(visibilityChanged(GenApi::EVisibility)));
    QSignalSpy matches(&widget, SIGNAL(filterMatchesChanged(int, int)));
    QVERIFY(QMetaObject::invokeMethod(&widget, "onVisibilityChanged", Q_ARG(int, level)));
    QCOMPARE(visibility.count(), 0);
    QCOMPARE(matches.count(), 0);
    QCOMPARE(widget.visibility(), GenApi::Expert);
}

void TestFeatureTreeWidget::visibilityIndexSetsTheLevel()
{
    FeatureTreeWidget widget;
    addCamera(widget);
    QSignalSpy visibility(&widget, SIGNAL(visibilityChanged(GenApi::EVisibility)));
    QVERIFY(QMetaObject::invokeMethod(&widget, "onVisibilityChanged", Q_ARG(int, 0)));
    QCOMPARE(visibility.count(), 1);
    QCOMPARE(visibility.at(0).at(0).value<GenApi::EVisibility>(), GenApi::Beginner);
    QCOMPARE(widget.visibility(), GenApi::Beginner);
    QCOMPARE(widget.getFeatureExtension()->getVisibility(), GenApi::Beginner);
    // setVisibility itself emits nothing.
    widget.setVisibility(GenApi::Guru);
    QCOMPARE(visibility.count(), 1);
    QCOMPARE(widget.visibility(), GenApi::Guru);
}

void TestFeatureTreeWidget::anyLevelIsKeptAsGiven_data()
{
    QTest::addColumn<int>("level");
    QTest::newRow("4") << 4;
    QTest::newRow("-1") << -1;
    QTest::newRow("99") << 99;
    QTest::newRow("INT_MIN") << std::numeric_limits<int>::min();
    QTest::newRow("INT_MAX") << std::numeric_limits<int>::max();
}

// setVisibility() takes any int a host holds for a level; it is kept and
// rows are judged against it like against a named one.
void TestFeatureTreeWidget::anyLevelIsKeptAsGiven()
{
    QFETCH(int, level);
    FeatureTreeWidget widget;
    addCamera(widget);
    widget.setVisibility(static_cast<GenApi::EVisibility>(level));
    QCOMPARE(int(widget.visibility()), level);
    QCOMPARE(int(widget.getFeatureExtension()->getVisibility()), level);
    QCoreApplication::processEvents();
    widget.setVisibility(GenApi::Beginner);
    QCOMPARE(widget.visibility(), GenApi::Beginner);
}

void TestFeatureTreeWidget::firstEscArmsSecondClears()
{
    FeatureTreeWidget widget;
    disarmEsc(widget);
    searchLine(widget)->setText(QStringLiteral("gain"));
    QTest::keyClick(&widget, Qt::Key_Escape);
    QCOMPARE(searchLine(widget)->text(), QStringLiteral("gain"));
    QTest::keyClick(&widget, Qt::Key_Escape);
    QVERIFY(searchLine(widget)->text().isEmpty());

    // On an empty line the second Esc clears as well, and a third only arms again.
    QSignalSpy changed(searchLine(widget), SIGNAL(textChanged(QString)));
    QTest::keyClick(&widget, Qt::Key_Escape);
    QTest::keyClick(&widget, Qt::Key_Escape);
    QVERIFY(searchLine(widget)->text().isEmpty());
    searchLine(widget)->setText(QStringLiteral("x"));
    QTest::keyClick(&widget, Qt::Key_Escape);
    QCOMPARE(searchLine(widget)->text(), QStringLiteral("x"));
    disarmEsc(widget);
}

void TestFeatureTreeWidget::otherKeyDisarmsEsc()
{
    FeatureTreeWidget widget;
    disarmEsc(widget);
    searchLine(widget)->setText(QStringLiteral("gain"));
    QTest::keyClick(&widget, Qt::Key_Escape);
    QTest::keyClick(&widget, Qt::Key_Down);
    QTest::keyClick(&widget, Qt::Key_Escape);
    QCOMPARE(searchLine(widget)->text(), QStringLiteral("gain"));
    QTest::keyClick(&widget, Qt::Key_Escape);
    QVERIFY(searchLine(widget)->text().isEmpty());
}

void TestFeatureTreeWidget::escFlagIsSharedBetweenWidgets()
{
    FeatureTreeWidget first;
    FeatureTreeWidget second;
    disarmEsc(first);
    second.findChild<SearchEdit*>("filterEdit")->setText(QStringLiteral("gain"));
    first.findChild<SearchEdit*>("filterEdit")->setText(QStringLiteral("flag"));
    QTest::keyClick(&first, Qt::Key_Escape);
    QTest::keyClick(&second, Qt::Key_Escape);
    QVERIFY(searchLine(second)->text().isEmpty());
    QCOMPARE(searchLine(first)->text(), QStringLiteral("flag"));
}

void TestFeatureTreeWidget::fontChangeReachesPersistentEditors()
{
    FeatureTreeWidget widget;
    addCamera(widget);
    widget.show();
    const QModelIndex flag = index(widget, "Flag", 1);
    expandTo(*widget.treeView(), flag);
    QWidget* editor = widget.treeView()->indexWidget(flag);
    QVERIFY(editor);
    // The editor's own point size keeps Qt's propagation from reaching it.
    QFont own = editor->font();
    own.setPointSize(21);
    editor->setFont(own);
    FontChangeCounter counter;
    editor->installEventFilter(&counter);
    QFont bigger = widget.font();
    bigger.setPointSize(bigger.pointSize() + 3);
    widget.setFont(bigger);
    QVERIFY(counter.count >= 1);
    editor->removeEventFilter(&counter);
}

void TestFeatureTreeWidget::searchLineFocusedEmitsNoParameterButActionsFollow()
{
    FeatureTreeWidget widget;
    addCamera(widget);
    widget.show();
    QVERIFY(QTest::qWaitForWindowActive(&widget));
    widget.expandTree();
    QSignalSpy parameterSignal(&widget, SIGNAL(onCurrentChanged(QSharedPointer<ParameterCollection::IParameter>)));

    searchLine(widget)->setFocus();
    QVERIFY(searchLine(widget)->hasFocus());
    widget.treeView()->setCurrentIndex(index(widget, "Gain"));
    QCOMPARE(parameterSignal.count(), 0);
    QVERIFY(action(widget, "actionAddToFavourites")->isEnabled());
    QVERIFY(!action(widget, "actionRemoveFavourite")->isEnabled());

    // With the focus in the tree the parameter goes out.
    widget.treeView()->setFocus();
    QTest::keyClick(widget.treeView(), Qt::Key_Down);
    QCOMPARE(parameterSignal.count(), 1);
    QCOMPARE(
        parameterSignal.at(0).at(0).value<QSharedPointer<ParameterCollection::IParameter>>(), parameter("Exposure"));

    // A row without parameter but with a description gives its text, focus or not.
    QSignalSpy text(&widget, SIGNAL(onNewText(QString)));
    searchLine(widget)->setFocus();
    widget.treeView()->setCurrentIndex(widget.getFeatureExtension()->GetFavoritesRootIndex());
    QCOMPARE(text.count(), 1);
    QVERIFY(text.at(0).at(0).toString().contains(QStringLiteral("Favorites")));
    QVERIFY(!action(widget, "actionAddToFavourites")->isEnabled());
}

void TestFeatureTreeWidget::currentItemsAndHitTest()
{
    FeatureTreeWidget widget;
    addCamera(widget);
    widget.resize(500, 400);
    widget.show();
    QVERIFY(QTest::qWaitForWindowExposed(&widget));
    QVERIFY(!widget.GetCurrentItem());
    QVERIFY(!widget.GetCurrentNode());
    QVERIFY(!widget.IsCurrentFavorite());
    widget.expandTree();
    const QModelIndex gain = index(widget, "Gain");
    widget.treeView()->setCurrentIndex(gain);
    QCOMPARE(widget.GetCurrentIndex(), gain);
    QVERIFY(widget.GetCurrentItem());
    QCOMPARE(widget.GetCurrentNode(), parameter("Gain"));
    QVERIFY(!widget.IsCurrentFavorite());

    const QRect rect = widget.treeView()->visualRect(gain);
    QVERIFY(widget.IsOnCurrentItem(widget.treeView()->viewport()->mapToGlobal(rect.center())));
    const QRect other = widget.treeView()->visualRect(index(widget, "Width"));
    QVERIFY(!widget.IsOnCurrentItem(widget.treeView()->viewport()->mapToGlobal(other.center())));
}

void TestFeatureTreeWidget::currentRowGoingAboveTheLevelEmitsNoParameter()
{
    FeatureTreeWidget widget;
    addCamera(widget);
    widget.setVisibility(GenApi::Beginner);
    widget.show();
    widget.expandTree();
    widget.treeView()->setCurrentIndex(index(widget, "Width"));
    QVERIFY(action(widget, "actionAddToFavourites")->isEnabled());
    QSignalSpy parameterSignal(&widget, SIGNAL(onCurrentChanged(QSharedPointer<ParameterCollection::IParameter>)));
    QSignalSpy viewSignal(widget.treeView(), SIGNAL(onCurrentChanged(QModelIndex)));

    impose(m_device, "Width", "Visibility", "Guru");
    deliver();
    QCOMPARE(viewSignal.count(), 1);
    QVERIFY(!viewSignal.at(0).at(0).toModelIndex().isValid());
    QCOMPARE(parameterSignal.count(), 0);
    // The actions follow the invalid index.
    QVERIFY(!action(widget, "actionAddToFavourites")->isEnabled());
}

void TestFeatureTreeWidget::addParameterCollectionRestoresFavouritesExpansion()
{
    FeatureTreeModel::m_favorites.setExpanded(false);
    FeatureTreeWidget widget;
    addCamera(widget);
    QVERIFY(!widget.treeView()->isExpanded(widget.getFeatureExtension()->GetFavoritesRootIndex()));
    FeatureTreeWidget other;
    FeatureTreeModel::m_favorites.setExpanded(true);
    other.addParameterCollection(m_device->nodeMap(QStringLiteral("@CameraDevice")), QStringLiteral("Camera"),
        QStringLiteral("@CameraDevice"), false);
    QVERIFY(other.treeView()->isExpanded(other.getFeatureExtension()->GetFavoritesRootIndex()));
}

void TestFeatureTreeWidget::saveStateKeepsColumnWidths()
{
    QByteArray state;
    {
        FeatureTreeWidget widget;
        widget.treeView()->header()->resizeSection(0, 260);
        state = widget.saveState(7);
        QCOMPARE(state.size(), 16);
    }
    FeatureTreeWidget widget;
    QCOMPARE(widget.treeView()->header()->sectionSize(0), 200);
    QVERIFY(!widget.restoreState(state, 8));
    QVERIFY(widget.restoreState(state, 7));
    QCOMPARE(widget.treeView()->header()->sectionSize(0), 260);
}

// ---- search, menu and favourites -------------------------------------------

void TestFeatureTreeWidget::searchSavesAndRestoresOnce()
{
    FeatureTreeWidget widget;
    addCamera(widget);
    widget.show();
    QVERIFY(QTest::qWaitForWindowActive(&widget));
    QVERIFY(widget.getFeatureExtension()->AddFavorite(parameter("Gain"), 100));
    const QModelIndex favorites = widget.getFeatureExtension()->GetFavoritesRootIndex();
    widget.treeView()->expand(favorites);
    widget.treeView()->setCurrentIndex(favorites);

    searchLine(widget)->setFocus();
    QTest::keyClick(searchLine(widget), Qt::Key_G);
    // Collapsed while searching: a second save would keep this state.
    const QModelIndex searchedFavorites = widget.getFeatureExtension()->GetFavoritesRootIndex();
    QVERIFY(searchedFavorites.isValid());
    widget.treeView()->collapse(searchedFavorites);
    widget.treeView()->setCurrentIndex(index(widget, "Gain"));
    QTest::keyClick(searchLine(widget), Qt::Key_A);
    QCOMPARE(searchLine(widget)->text(), QStringLiteral("ga"));

    QTest::keyClick(searchLine(widget), Qt::Key_Backspace);
    QTest::keyClick(searchLine(widget), Qt::Key_Backspace);
    QVERIFY(searchLine(widget)->text().isEmpty());
    const QModelIndex restored = widget.getFeatureExtension()->GetFavoritesRootIndex();
    QVERIFY(widget.treeView()->isExpanded(restored));
    QCOMPARE(widget.treeView()->currentIndex(), restored);
}

void TestFeatureTreeWidget::helpRowShowsOnlyForHiddenMatches()
{
    FeatureTreeWidget widget;
    addCamera(widget);
    widget.setVisibility(GenApi::Beginner);
    QSignalSpy matches(&widget, SIGNAL(filterMatchesChanged(int, int)));
    FeatureTreeItem* help = widget.getFeatureExtension()->getSearchHelpItem();
    QVERIFY(help);

    searchLine(widget)->setText(QStringLiteral("Gain"));
    QCOMPARE(matches.last().at(0).toInt(), 1);
    QCOMPARE(matches.last().at(1).toInt(), 0);
    QCOMPARE(help->getVisibility(), GenApi::Invisible);
    QVERIFY(!help->ShowMe(GenApi::Guru));

    searchLine(widget)->setText(QStringLiteral("Secret"));
    QCOMPARE(matches.last().at(0).toInt(), 1);
    QCOMPARE(matches.last().at(1).toInt(), 1);
    QCOMPARE(help->getVisibility(), GenApi::Beginner);
    QCOMPARE(help->getDisplayedName(),
        QStringLiteral("<HTML><B>1 search results (1 of them visible at higher user level)</B>"));
    QCOMPARE(help->GetToolTip(), QStringLiteral("<B>1 search results (1 of them visible at higher user level)</B>"));
    const QModelIndex helpIndex = widget.getFeatureExtension()->findItem(help, nullptr, 0);
    QVERIFY(helpIndex.isValid());
    QVERIFY(!widget.treeView()->isRowHidden(helpIndex.row(), helpIndex.parent()));

    searchLine(widget)->clear();
    QCOMPARE(help->getVisibility(), GenApi::Invisible);
    QVERIFY(help->getDisplayedName().isEmpty());
}

void TestFeatureTreeWidget::levelChangeDuringSearchRecounts()
{
    FeatureTreeWidget widget;
    addCamera(widget);
    widget.setVisibility(GenApi::Beginner);
    QSignalSpy matches(&widget, SIGNAL(filterMatchesChanged(int, int)));
    searchLine(widget)->setText(QStringLiteral("Secret"));
    QCOMPARE(matches.last().at(1).toInt(), 1);
    matches.clear();
    QVERIFY(QMetaObject::invokeMethod(&widget, "onVisibilityChanged", Q_ARG(int, 2)));
    QVERIFY(matches.count() >= 1);
    QCOMPARE(matches.last().at(0).toInt(), 1);
    QCOMPARE(matches.last().at(1).toInt(), 0);
}

void TestFeatureTreeWidget::deepMatchesUnderCollapsedCategoriesAreCounted_data()
{
    QTest::addColumn<int>("level");
    QTest::addColumn<bool>("shown");
    const char* levels[] = { "Beginner", "Expert", "Guru", "Invisible" };
    for (int level = 0; level < 4; ++level) {
        QTest::addRow("%s, hidden widget", levels[level]) << level << false;
        QTest::addRow("%s, shown widget", levels[level]) << level << true;
    }
}

void TestFeatureTreeWidget::deepMatchesUnderCollapsedCategoriesAreCounted()
{
    QFETCH(int, level);
    QFETCH(bool, shown);
    // Matches four to six levels below the root, several under one category
    // and some of them Expert, Guru or Invisible; the widget expands two
    // levels, so most of them lie under collapsed categories. The second node
    // map holds one of the names again, which counts once.
    struct Match
    {
        const char* name;
        int visibility;
    };
    const Match matches[] = { { "MatchOne", 0 }, { "MatchTwo", 0 }, { "MatchExpert", 1 }, { "MatchGuru", 2 },
        { "MatchThree", 0 }, { "MatchInvisible", 3 }, { "MatchExpertTwo", 1 } };
    const QByteArray camera = R"({ "name": "@CameraDevice", "features": [
        { "name": "Root", "type": "Category", "children": ["Top", "Other"] },
        { "name": "Top", "type": "Category", "children": ["Second"] },
        { "name": "Second", "type": "Category", "children": ["Third"] },
        { "name": "Third", "type": "Category", "children": ["Fourth"] },
        { "name": "Fourth", "type": "Category", "children": ["MatchOne", "MatchTwo", "MatchExpert", "Fifth"] },
        { "name": "Fifth", "type": "Category", "children": ["MatchGuru", "MatchThree", "Sixth"] },
        { "name": "Sixth", "type": "Category", "children": ["MatchInvisible", "MatchExpertTwo"] },
        { "name": "Other", "type": "Category", "children": ["Plain"] },
        { "name": "Plain", "type": "Integer", "value": 1, "min": 0, "max": 9 },
        { "name": "MatchOne", "type": "Integer", "value": 1, "min": 0, "max": 9 },
        { "name": "MatchTwo", "type": "Integer", "value": 1, "min": 0, "max": 9 },
        { "name": "MatchExpert", "type": "Integer", "visibility": "Expert", "value": 1, "min": 0, "max": 9 },
        { "name": "MatchGuru", "type": "Integer", "visibility": "Guru", "value": 1, "min": 0, "max": 9 },
        { "name": "MatchThree", "type": "Integer", "value": 1, "min": 0, "max": 9 },
        { "name": "MatchInvisible", "type": "Integer", "visibility": "Invisible", "value": 1, "min": 0, "max": 9 },
        { "name": "MatchExpertTwo", "type": "Integer", "visibility": "Expert", "value": 1, "min": 0, "max": 9 }
    ] })";
    const QByteArray other = R"({ "name": "@Other", "features": [
        { "name": "Root", "type": "Category", "children": ["A"] },
        { "name": "A", "type": "Category", "children": ["B"] },
        { "name": "B", "type": "Category", "children": ["C"] },
        { "name": "C", "type": "Category", "children": ["MatchOne"] },
        { "name": "MatchOne", "type": "Integer", "value": 1, "min": 0, "max": 9 }
    ] })";
    const QSharedPointer<Simulation::SimulatedDevice> device = makeDevice(deviceJson(camera + ", " + other));
    QVERIFY(device);

    // What the result line must say: every feature that matches, each name
    // once; those that the level withholds (up to Guru) apart.
    int expectedShown = 0;
    int expectedHidden = 0;
    for (const Match& match : matches) {
        if (match.visibility <= level)
            ++expectedShown;
        else if (match.visibility <= 2)
            ++expectedHidden;
    }

    FeatureTreeWidget widget;
    widget.addParameterCollection(device->nodeMap(QStringLiteral("@CameraDevice")), QStringLiteral("Camera"),
        QStringLiteral("@CameraDevice"), false);
    widget.addParameterCollection(
        device->nodeMap(QStringLiteral("@Other")), QStringLiteral("Other"), QStringLiteral("@Other"), false);
    widget.setVisibility(GenApi::EVisibility(level));
    if (shown) {
        widget.resize(500, 700);
        widget.show();
        QVERIFY(QTest::qWaitForWindowExposed(&widget));
    }
    QSignalSpy counts(&widget, SIGNAL(filterMatchesChanged(int, int)));
    searchLine(widget)->setText(QStringLiteral("match"));
    QCOMPARE(counts.count(), 1);
    QCOMPARE(counts.last().at(0).toInt(), expectedShown + expectedHidden);
    QCOMPARE(counts.last().at(1).toInt(), expectedHidden);
    QCOMPARE(proxy(widget)->getVisibleMatchCount(), expectedShown);

    // The case the counts once missed: a match that shows at this level lies
    // under a category that the search left collapsed.
    const QModelIndex fifth
        = widget.getFeatureExtension()->findItemByFullName(QStringLiteral("@CameraDevice/Fifth"), nullptr, 0);
    QVERIFY(fifth.isValid());
    QVERIFY(!widget.treeView()->isExpanded(fifth));

    // Typing on, and a level changed during the search, count in full too.
    searchLine(widget)->setText(QStringLiteral("matchExpert"));
    int expertShown = 0;
    int expertHidden = 0;
    for (const Match& match : matches) {
        if (!QByteArray(match.name).startsWith("MatchExpert"))
            continue;
        if (match.visibility <= level)
            ++expertShown;
        else
            ++expertHidden;
    }
    QCOMPARE(counts.last().at(0).toInt(), expertShown + expertHidden);
    QCOMPARE(counts.last().at(1).toInt(), expertHidden);
    QVERIFY(QMetaObject::invokeMethod(&widget, "onVisibilityChanged", Q_ARG(int, 2)));
    QCOMPARE(counts.last().at(0).toInt(), expertShown + expertHidden);
    QCOMPARE(counts.last().at(1).toInt(), 0);
}

void TestFeatureTreeWidget::filterMatchesOnEveryChange()
{
    FeatureTreeWidget widget;
    addCamera(widget);
    widget.show();
    QVERIFY(QTest::qWaitForWindowActive(&widget));
    QSignalSpy matches(&widget, SIGNAL(filterMatchesChanged(int, int)));
    searchLine(widget)->setFocus();
    QTest::keyClicks(searchLine(widget), QStringLiteral("gai"));
    QCOMPARE(matches.count(), 3);
    QCOMPARE(matches.last().at(0).toInt(), 1);
    QTest::keyClick(searchLine(widget), Qt::Key_X);
    QCOMPARE(matches.count(), 4);
    QCOMPARE(matches.last().at(0).toInt(), 0);
    searchLine(widget)->clear();
    QCOMPARE(matches.count(), 5);
    QCOMPARE(matches.last().at(0).toInt(), 0);
    QCOMPARE(matches.last().at(1).toInt(), 0);
}

void TestFeatureTreeWidget::menuFollowsTheCurrentRow()
{
    FeatureTreeWidget widget;
    addCamera(widget);
    widget.resize(500, 400);
    widget.show();
    QVERIFY(QTest::qWaitForWindowExposed(&widget));
    QList<QAction*> entries;
    QList<bool> separators;
    QPoint given;
    int menus = 0;
    connect(
        &widget, &FeatureTreeWidget::contextMenuRequested, this, [&](const QPoint& point, QSharedPointer<QMenu> menu) {
            ++menus;
            given = point;
            entries = menu->actions();
            separators.clear();
            for (QAction* entry : qAsConst(entries))
                separators << entry->isSeparator();
        });
    auto request = [&](const QPoint& point) {
        QContextMenuEvent event(QContextMenuEvent::Mouse, point, widget.mapToGlobal(point));
        QApplication::sendEvent(&widget, &event);
    };

    request(QPoint(10, 10));
    QCOMPARE(menus, 0);

    widget.expandTree();
    widget.treeView()->setCurrentIndex(index(widget, "Gain"));
    request(QPoint(3, 3)); // far from the current row
    QCOMPARE(menus, 1);
    QCOMPARE(given, QPoint(3, 3));
    QCOMPARE(entries, QList<QAction*>() << action(widget, "actionAddToFavourites"));

    QVERIFY(widget.getFeatureExtension()->AddFavorite(parameter("Gain"), 100));
    const QModelIndex favourite
        = widget.treeView()->model()->index(0, 0, widget.getFeatureExtension()->GetFavoritesRootIndex());
    widget.treeView()->setCurrentIndex(favourite);
    QVERIFY(widget.IsCurrentFavorite());
    request(QPoint(200, 300));
    QCOMPARE(menus, 2);
    QCOMPARE(entries.count(), 4);
    QCOMPARE(entries.at(0), action(widget, "actionMoveFavouriteUp"));
    QCOMPARE(entries.at(1), action(widget, "actionMoveFavouriteDown"));
    QCOMPARE(separators, QList<bool>({ false, false, true, false }));
    QCOMPARE(entries.at(3), action(widget, "actionRemoveFavourite"));
}

void TestFeatureTreeWidget::favouriteActionsAddMoveRemove()
{
    FeatureTreeWidget widget;
    addCamera(widget);
    widget.show();
    QVERIFY(QTest::qWaitForWindowActive(&widget));
    widget.expandTree();
    FavoritesData& store = FeatureTreeModel::m_favorites;

    // Ctrl+D on the current row adds it at the end.
    for (const char* name : { "Gain", "Flag" }) {
        widget.treeView()->setFocus();
        widget.treeView()->setCurrentIndex(index(widget, name));
        QVERIFY(action(widget, "actionAddToFavourites")->isEnabled());
        QTest::keyClick(widget.treeView(), Qt::Key_D, Qt::ControlModifier);
    }
    QCOMPARE(store.countNodes(), 2);
    QCOMPARE(store.nodeAt(0)->name, QStringLiteral("Gain"));
    QCOMPARE(store.nodeAt(1)->name, QStringLiteral("Flag"));

    // Ctrl+Up on the second favourite moves it up.
    const QModelIndex favorites = widget.getFeatureExtension()->GetFavoritesRootIndex();
    widget.treeView()->setCurrentIndex(widget.treeView()->model()->index(1, 0, favorites));
    QVERIFY(widget.IsCurrentFavorite());
    QVERIFY(action(widget, "actionMoveFavouriteUp")->isEnabled());
    QVERIFY(!action(widget, "actionMoveFavouriteDown")->isEnabled());
    QTest::keyClick(widget.treeView(), Qt::Key_Up, Qt::ControlModifier);
    QCOMPARE(store.nodeAt(0)->name, QStringLiteral("Flag"));
    // The selection followed the favourite by name.
    QCOMPARE(widget.GetCurrentNode(), parameter("Flag"));

    QTest::keyClick(widget.treeView(), Qt::Key_Down, Qt::ControlModifier);
    QCOMPARE(store.nodeAt(0)->name, QStringLiteral("Gain"));

    // Delete removes the current favourite; the neighbour below becomes current.
    widget.treeView()->setCurrentIndex(widget.treeView()->model()->index(0, 0, favorites));
    QTest::keyClick(widget.treeView(), Qt::Key_Delete);
    QCOMPARE(store.countNodes(), 1);
    QCOMPARE(store.nodeAt(0)->name, QStringLiteral("Flag"));
    QVERIFY(widget.GetCurrentIndex().isValid());
}

void TestFeatureTreeWidget::removingTheLastFavouriteSelectsTheRowAbove()
{
    // Favourites without any node map: nothing stands below the last one.
    FavoritesData& store = FeatureTreeModel::m_favorites;
    store.appendNode({ QStringLiteral("Gain"), QStringLiteral("Gain"), QStringLiteral("@CameraDevice") });
    store.appendNode({ QStringLiteral("Flag"), QStringLiteral("Flag"), QStringLiteral("@CameraDevice") });
    FeatureTreeWidget widget;
    widget.show();
    const QModelIndex favorites = widget.getFeatureExtension()->GetFavoritesRootIndex();
    widget.treeView()->expand(favorites);
    QCOMPARE(widget.treeView()->model()->rowCount(favorites), 2);
    const QModelIndex last = widget.treeView()->model()->index(1, 0, favorites);
    QVERIFY(!widget.treeView()->indexBelow(last).isValid());
    widget.treeView()->setCurrentIndex(last);
    action(widget, "actionRemoveFavourite")->trigger();
    QCOMPARE(store.countNodes(), 1);
    const QModelIndex current = widget.GetCurrentIndex();
    QVERIFY(current.isValid());
    QCOMPARE(current.data(Qt::DisplayRole).toString(), QStringLiteral("Gain"));
}

// ---- clipboard -------------------------------------------------------------

void TestFeatureTreeWidget::emptyTreeEmptiesTheClipboard()
{
    FeatureTreeWidget widget;
    addCamera(widget);
    searchLine(widget)->setText(QStringLiteral("NoSuchFeatureAnywhere"));
    QCOMPARE(widget.treeView()->model()->rowCount(), 0);
    QGuiApplication::clipboard()->setText(QStringLiteral("something before"));
    widget.copyToClipboard();
    QCOMPARE(clipboardText(), QString());
}

void TestFeatureTreeWidget::dumpFollowsTheSearch()
{
    FeatureTreeWidget widget;
    addCamera(widget);
    searchLine(widget)->setText(QStringLiteral("Gain"));
    widget.copyToClipboard();
    const QStringList lines = clipboardText().split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    QStringList names;
    for (const QString& line : lines)
        names << line.section(QLatin1Char('\t'), 0, 0).trimmed();
    QVERIFY2(names.contains(QStringLiteral("Camera")), qPrintable(clipboardText()));
    QVERIFY(names.contains(QStringLiteral("Controls")));
    QVERIFY(names.contains(QStringLiteral("Gain")));
    QVERIFY(!names.contains(QStringLiteral("Flag")));
    QVERIFY(!names.contains(QStringLiteral("Width")));
}

void TestFeatureTreeWidget::dumpHoldsCollapsedAndHiddenRows()
{
    FeatureTreeWidget widget;
    addCamera(widget);
    // The view hides what its level rejects; the proxy, still at Guru, keeps the row.
    view(widget)->setVisibility(GenApi::Beginner);
    widget.expandTree();
    const QModelIndex secret = index(widget, "Secret");
    QVERIFY(widget.treeView()->isRowHidden(secret.row(), secret.parent()));
    widget.treeView()->collapseAll();
    widget.copyToClipboard();
    const QString text = clipboardText();
    QVERIFY(text.contains(QStringLiteral("    Gain")));
    QVERIFY(text.contains(QStringLiteral("    Secret")));
    // Each line holds the value after the tab.
    const QString widthLine = text.split(QLatin1Char('\n')).filter(QStringLiteral("    Width ")).value(0);
    QCOMPARE(widthLine.section(QLatin1Char('\t'), 1), QStringLiteral("64"));
}

void TestFeatureTreeWidget::dumpColumnsLineUpAndDeepRowsAreNotPadded()
{
    m_device = makeDevice(deepCamera(22));
    QVERIFY(m_device);
    FeatureTreeWidget widget;
    addCamera(widget);
    widget.copyToClipboard();
    const QStringList lines = clipboardText().split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    QMap<QString, QString> byName;
    for (const QString& line : lines)
        byName.insert(line.section(QLatin1Char('\t'), 0, 0).trimmed(), line);

    // Depth 0: the node map root, name padded to 40.
    QCOMPARE(byName.value(QStringLiteral("Camera")), QStringLiteral("Camera").leftJustified(40) + QLatin1Char('\t'));
    // Depth 1 to 19: the tab stands at column 40 for every name that fits, later for one that doesn't.
    for (int level = 1; level <= 19; ++level) {
        const QString name = QStringLiteral("Level%1").arg(level);
        if (name.size() <= 2 * (20 - level)) // a name that fits
            QCOMPARE(byName.value(name).indexOf(QLatin1Char('\t')), 40);
        QCOMPARE(
            byName.value(name), QString(2 * level, QLatin1Char(' ')) + name.leftJustified(2 * (20 - level)) + '\t');
    }
    // Depth 20 and deeper: no padding after the indentation.
    QCOMPARE(byName.value(QStringLiteral("Level20")), QString(40, QLatin1Char(' ')) + QStringLiteral("Level20\t"));
    QCOMPARE(byName.value(QStringLiteral("Level21")), QString(42, QLatin1Char(' ')) + QStringLiteral("Level21\t"));
    QCOMPARE(byName.value(QStringLiteral("Bottom")), QString(46, QLatin1Char(' ')) + QStringLiteral("Bottom\t5"));
    // Pre-order: each parent directly before its child.
    QVERIFY(lines.indexOf(byName.value(QStringLiteral("Level5"))) + 1
        == lines.indexOf(byName.value(QStringLiteral("Level6"))));
}

void TestFeatureTreeWidget::longNameStandsBeforeTheTab()
{
    FeatureTreeWidget widget;
    const QString longName = QStringLiteral("A node map with a name of forty-five chars.");
    QVERIFY(longName.size() >= 40);
    addCamera(widget, longName);
    widget.copyToClipboard();
    QVERIFY2(
        clipboardText().split(QLatin1Char('\n')).contains(longName + QLatin1Char('\t')), qPrintable(clipboardText()));
}

// ---- expansion and selection memory ----------------------------------------

void TestFeatureTreeWidget::expandedRowInCollapsedBranchIsNotSaved()
{
    FeatureTreeWidget widget;
    addCamera(widget);
    FeatureTreeModel::m_favorites.setExpanded(false);
    QTreeView* tree = widget.treeView();
    const QModelIndex controls = index(widget, "Gain").parent();
    const QModelIndex camera = controls.parent();
    tree->expand(camera);
    tree->expand(controls);
    tree->collapse(camera);
    QVERIFY(tree->isExpanded(controls));
    widget.saveExpandedStatus();
    widget.restoreExpandedStatus();
    // Had the category been saved, its key would have expanded the first parameter row met, the node map.
    QVERIFY(!tree->isExpanded(camera));
    QVERIFY(!tree->isExpanded(controls));
}

void TestFeatureTreeWidget::plainItemIsFoundAgainParameterItemIsNot()
{
    FeatureTreeWidget widget;
    addCamera(widget);
    QTreeView* tree = widget.treeView();
    const QModelIndex favorites = widget.getFeatureExtension()->GetFavoritesRootIndex();
    tree->setCurrentIndex(favorites);
    widget.saveSelectionStatus();
    tree->setCurrentIndex(index(widget, "Gain"));
    widget.restoreSelectionStatus();
    QCOMPARE(tree->currentIndex(), favorites);

    tree->setCurrentIndex(index(widget, "Gain"));
    widget.saveSelectionStatus();
    widget.restoreSelectionStatus();
    QVERIFY(!tree->currentIndex().isValid());
}

void TestFeatureTreeWidget::nothingExpandedCollapsesEverything()
{
    FeatureTreeWidget widget;
    addCamera(widget);
    QTreeView* tree = widget.treeView();
    tree->collapseAll();
    widget.saveExpandedStatus();
    widget.expandTree();
    const QModelIndex controls = index(widget, "Gain").parent();
    QVERIFY(tree->isExpanded(controls));
    widget.restoreExpandedStatus();
    QVERIFY(!tree->isExpanded(controls));
    QVERIFY(!tree->isExpanded(controls.parent()));
    QVERIFY(!tree->isExpanded(widget.getFeatureExtension()->GetFavoritesRootIndex()));
}

void TestFeatureTreeWidget::expandRootNodesExpandsTheTopLevelOnly()
{
    FeatureTreeWidget widget;
    addCamera(widget);
    QTreeView* tree = widget.treeView();
    tree->collapseAll();
    widget.expandRootNodes();
    const QModelIndex controls = index(widget, "Gain").parent();
    QVERIFY(tree->isExpanded(controls.parent()));
    QVERIFY(!tree->isExpanded(controls));
}

QTEST_MAIN(TestFeatureTreeWidget)
#include "tst_featuretreewidget.moc"
