// The feature tree widget on a large synthetic camera: after every gesture
// that moves many rows at once (expanding, a search, clearing it, a level
// change during it) each visible value row below an expanded parent has its
// persistent editor, placed on its row, and no other row has one.

#include "featuretreewidgettestsupport.h"

#include "featuretree/SearchEdit.h"
#include "featuretree/abstractitemeditor.h"
#include "featuretree/favoritesdata.h"
#include "featuretree/featuretreeinodeitem.h"
#include "featuretree/featuretreemodel.h"
#include "featuretree/featuretreeview.h"
#include "featuretree/featuretreewidget.h"
#include "syntheticnodemapgenerator.h"

#include <QAbstractSpinBox>
#include <QApplication>
#include <QLineEdit>
#include <QPaintEvent>
#include <QPointer>
#include <QScrollBar>
#include <QSortFilterProxyModel>
#include <QTreeView>

#include <functional>
#include <memory>

using namespace TreeTest;

namespace {

struct EditorCensus
{
    int withEditor = 0;
    //! Rows that should have an editor and have none, and the other way round.
    QStringList missing;
    QStringList extra;

    //! What is wrong, empty if nothing: rows missing an editor, rows with
    //! one they should not have, fewer than `atLeast` editors in all.
    QString faults(int atLeast = 0) const
    {
        QStringList found;
        if (!missing.isEmpty())
            found << QStringLiteral("missing: ") + missing.join(QLatin1Char(','));
        if (!extra.isEmpty())
            found << QStringLiteral("extra: ") + extra.join(QLatin1Char(','));
        if (withEditor < atLeast)
            found << QStringLiteral("%1 editors, fewer than %2").arg(withEditor).arg(atLeast);
        return found.join(QLatin1String("; "));
    }
};

//! Whether the value cell is one that the view keeps an editor open on.
bool wantsEditor(FeatureTreeView& view, const QModelIndex& value)
{
    FeatureTreeItem* item = view.getFeatureExtension()->getFeatureTreeItem(value);
    return item && item->usePersistentEditor() && item->ShowMe(view.getVisibility())
        && item->getAccessMode() > GenApi::NA;
}

//! Walks every row the proxy has built; `shown` tells whether the rows below `parent` are on screen.
void takeCensus(FeatureTreeView& view, const QModelIndex& parent, bool shown, EditorCensus& census)
{
    QAbstractItemModel* model = view.model();
    const int rows = model->rowCount(parent);
    for (int row = 0; row < rows; ++row) {
        const QModelIndex name = model->index(row, 0, parent);
        const QModelIndex value = model->index(row, 1, parent);
        const bool rowShown = shown && !view.isRowHidden(row, parent);
        const bool has = view.indexWidget(value) != nullptr;
        // The current row may keep its editor wherever it is.
        const bool isCurrent = view.currentIndex().isValid() && view.currentIndex().row() == row
            && view.currentIndex().parent() == parent;
        const bool wants = rowShown && wantsEditor(view, value);
        const QString fullName = name.data(FeatureTreeItem::FullNameRole).toString();
        if (has)
            ++census.withEditor;
        if (wants && !has)
            census.missing << fullName;
        else if (has && !wants && !isCurrent)
            census.extra << fullName;
        // Only look below what has been expanded: a collapsed branch is not filled.
        if (view.isExpanded(name))
            takeCensus(view, name, rowShown, census);
    }
}

EditorCensus census(FeatureTreeView& view)
{
    EditorCensus result;
    takeCensus(view, QModelIndex(), true, result);
    return result;
}

//! The first expanded category, depth first, with a value row that has its editor; and that value cell.
QModelIndex firstCategoryWithEditor(FeatureTreeView& view, QModelIndex* value)
{
    QAbstractItemModel* model = view.model();
    QModelIndex category;
    std::function<void(const QModelIndex&)> find = [&](const QModelIndex& parent) {
        for (int row = 0; row < model->rowCount(parent) && !category.isValid(); ++row) {
            const QModelIndex cell = model->index(row, 1, parent);
            if (parent.isValid() && view.indexWidget(cell) && wantsEditor(view, cell)) {
                category = parent;
                *value = cell;
            } else if (view.isExpanded(cell.sibling(row, 0))) {
                find(cell.sibling(row, 0));
            }
        }
    };
    find(QModelIndex());
    return category;
}

} // namespace

class TestFeatureTreeWidgetLarge : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();

    void editorsAfterExpandingEveryCategory();
    void editorsAfterSearchGestures_data();
    void editorsAfterSearchGestures();
    void editorsFollowTheirRowsAfterAnExpansionAbove();
    void currentRowKeepsItsEditorThroughASearch();
    void budgetDecidesWhetherEditorsAreClosed_data();
    void budgetDecidesWhetherEditorsAreClosed();
    void editorsKeptAsideGoOnceEveryEditorIsOpen();
    void anEditorKeptAsideServesOnlyItsOwnParameter();
    void bulkChangesNestAndOpenEditorsAtTheOuterEnd();
    void editorsClosedInABulkChangeComeBackWhenTheirBranchIsShownAgain();
    void unmatchedEndOfBulkChangeIsRefused();
    void editorsOutOfSightWaitHiddenUntilScrolledTo();
    void focusedEditorStaysShownOutOfSight();
    void aChangedValueRepaintsItsRowOnly();
    void expandingOpensEditorsInSightBeforeTheFirstPaint();
    void searchOpensEditorsInSightBeforeItsRepaint();
    void changesWhileEditorsWait_data();
    void changesWhileEditorsWait();
    void rowsInSightOpenFirstWhereverTheViewIs();
    void collapsedCategoriesBuildNoFeatureToKnowTheyShow();

private:
    static SearchEdit* searchLine(FeatureTreeWidget& widget) { return widget.findChild<SearchEdit*>("filterEdit"); }
    static FeatureTreeView* view(FeatureTreeWidget& widget) { return static_cast<FeatureTreeView*>(widget.treeView()); }
    //! A shown widget on the synthetic camera with every category expanded (unless
    //! told otherwise) and the events handled, its waiting editors opened too.
    void makeWidget(std::unique_ptr<FeatureTreeWidget>& widget, bool expand = true);

    QSharedPointer<Simulation::SimulatedDevice> m_device;
};

void TestFeatureTreeWidgetLarge::initTestCase()
{
    QStandardPaths::setTestModeEnabled(true);
    QCoreApplication::setOrganizationName(QStringLiteral("ZarvexTests"));
    QCoreApplication::setApplicationName(QStringLiteral("tst_featuretreewidgetlarge"));
    qRegisterMetaType<GenApi::EVisibility>("GenApi::EVisibility");
}

void TestFeatureTreeWidgetLarge::init()
{
    QSettings().remove(QStringLiteral("Favorites"));
    FavoritesData& store = FeatureTreeModel::m_favorites;
    while (store.countNodes() > 0)
        store.removeNode(0, nullptr);
    store.setViewAllFavorites(true);
    store.setExpanded(true);
    Simulation::SyntheticNodeMapGenerator::Options options;
    options.featureCount = 600;
    options.depth = 2;
    options.fanOut = 5;
    m_device
        = Simulation::SimulatedDevice::fromDescription(Simulation::SyntheticNodeMapGenerator(options).generateDevice());
    QVERIFY(m_device);
}

void TestFeatureTreeWidgetLarge::cleanup()
{
    m_device.reset();
}

void TestFeatureTreeWidgetLarge::makeWidget(std::unique_ptr<FeatureTreeWidget>& widget, bool expand)
{
    widget = std::make_unique<FeatureTreeWidget>(QString(), m_device->baseInfo());
    widget->setVisibility(GenApi::Guru);
    for (const QString& name : m_device->nodeMapNames())
        widget->addParameterCollection(m_device->nodeMap(name), name, name, false);
    widget->resize(480, 600);
    widget->show();
    QVERIFY(QTest::qWaitForWindowExposed(widget.get()));
    if (expand)
        expandEveryCategory(widget->treeView(), QModelIndex());
    QCoreApplication::processEvents();
    QVERIFY(letEditorsOpen());
}

void TestFeatureTreeWidgetLarge::editorsAfterExpandingEveryCategory()
{
    std::unique_ptr<FeatureTreeWidget> widget;
    makeWidget(widget);
    // Most of the 600 features have an editor: the camera is large, not empty.
    const QString faults = census(*view(*widget)).faults(301);
    QVERIFY2(faults.isEmpty(), qPrintable(faults));
}

void TestFeatureTreeWidgetLarge::editorsAfterSearchGestures_data()
{
    QTest::addColumn<QStringList>("texts");
    QTest::addColumn<int>("levelDuringSearch");
    QTest::addColumn<bool>("expectEditors");
    QTest::addColumn<qint64>("budget");

    // Each gesture with the editors closed at the first row range, and with
    // a budget under which a tree of this size keeps them.
    for (const qint64 budget : { qint64(0), qint64(100000000) }) {
        const QByteArray suffix = budget == 0 ? QByteArray(", editors closed") : QByteArray(", editors kept");

        QTest::newRow(QByteArray("one letter" + suffix).constData())
            << QStringList { QStringLiteral("7") } << -1 << true << budget;
        QTest::newRow(QByteArray("two letters" + suffix).constData())
            << QStringList { QStringLiteral("7"), QStringLiteral("77") } << -1 << true << budget;
        QTest::newRow(QByteArray("letter, then cleared" + suffix).constData())
            << QStringList { QStringLiteral("7"), QString() } << -1 << true << budget;
        QTest::newRow(QByteArray("two letters, one taken back, cleared" + suffix).constData())
            << QStringList { QStringLiteral("1"), QStringLiteral("12"), QStringLiteral("1"), QString() } << -1 << true
            << budget;
        QTest::newRow(QByteArray("no match, then cleared" + suffix).constData())
            << QStringList { QStringLiteral("zzz"), QString() } << -1 << true << budget;
        QTest::newRow(QByteArray("no match" + suffix).constData())
            << QStringList { QStringLiteral("zzz") } << -1 << false << budget;
        QTest::newRow(QByteArray("level to Beginner during the search" + suffix).constData())
            << QStringList { QStringLiteral("3") } << 0 << true << budget;
        QTest::newRow(QByteArray("level to Expert during the search, then cleared" + suffix).constData())
            << QStringList { QStringLiteral("3"), QString() } << 1 << true << budget;
    }
}

void TestFeatureTreeWidgetLarge::editorsAfterSearchGestures()
{
    QFETCH(QStringList, texts);
    QFETCH(int, levelDuringSearch);
    QFETCH(bool, expectEditors);
    QFETCH(qint64, budget);

    std::unique_ptr<FeatureTreeWidget> widget;
    makeWidget(widget);
    FeatureTreeView* tree = view(*widget);
    tree->setBulkEditorBudget(budget);
    tree->setCurrentIndex(QModelIndex());
    for (int i = 0; i < texts.size(); ++i) {
        searchLine(*widget)->setText(texts.at(i));
        if (i == 0 && levelDuringSearch >= 0)
            QMetaObject::invokeMethod(widget.get(), "onVisibilityChanged", Q_ARG(int, levelDuringSearch));
        QCoreApplication::processEvents();
        // The editors of the rows out of sight open in turns of the event loop.
        QVERIFY(letEditorsOpen());
        const QString faults = census(*tree).faults();
        QVERIFY2(faults.isEmpty(), qPrintable(QStringLiteral("after \"%1\": %2").arg(texts.at(i), faults)));
        QVERIFY(!tree->isInBulkChange());
    }
    QCOMPARE(census(*tree).withEditor > 0, expectEditors);
}

void TestFeatureTreeWidgetLarge::editorsFollowTheirRowsAfterAnExpansionAbove()
{
    std::unique_ptr<FeatureTreeWidget> widget;
    makeWidget(widget);
    FeatureTreeView* tree = view(*widget);
    QAbstractItemModel* model = tree->model();

    // Collapse and expand again the first category with editors: the rows
    // below it move up and down, and their editors must move with them.
    QModelIndex firstValue;
    const QModelIndex category = firstCategoryWithEditor(*tree, &firstValue);
    QVERIFY(category.isValid());

    int checked = 0;
    std::function<void(const QModelIndex&)> visit = [&](const QModelIndex& parent) {
        for (int row = 0; row < model->rowCount(parent); ++row) {
            const QModelIndex value = model->index(row, 1, parent);
            QWidget* editor = tree->indexWidget(value);
            const QRect cell = tree->visualRect(value);
            if (editor && cell.intersects(tree->viewport()->rect())) {
                QVERIFY2(editor->isVisible(), qPrintable(value.sibling(row, 0).data().toString()));
                QVERIFY2(cell.contains(editor->geometry().center()),
                    qPrintable(QStringLiteral("%1: editor at %2, row at %3")
                                   .arg(value.sibling(row, 0).data().toString())
                                   .arg(editor->geometry().center().y())
                                   .arg(cell.center().y())));
                ++checked;
            }
            if (tree->isExpanded(value.sibling(row, 0)))
                visit(value.sibling(row, 0));
        }
    };
    for (const bool expand : { false, true }) {
        tree->setExpanded(category, expand);
        QCoreApplication::processEvents();
        checked = 0;
        visit(QModelIndex());
        QVERIFY2(checked > 5, qPrintable(QString::number(checked)));
    }
}

void TestFeatureTreeWidgetLarge::currentRowKeepsItsEditorThroughASearch()
{
    std::unique_ptr<FeatureTreeWidget> widget;
    makeWidget(widget);
    FeatureTreeView* tree = view(*widget);
    tree->setBulkEditorBudget(0);
    // A feature whose name holds the search text, so that its row stays.
    const QModelIndex value
        = viewIndex(*tree, QStringLiteral("@CameraDevice/") + Simulation::SyntheticNodeMapGenerator::featureName(7), 1);
    QVERIFY(value.isValid());
    QPointer<QWidget> editor = tree->indexWidget(value);
    QVERIFY(editor);
    tree->setCurrentIndex(value.sibling(value.row(), 0));
    const QString text = value.sibling(value.row(), 0).data().toString();
    QVERIFY(!text.isEmpty());
    searchLine(*widget)->setText(text);
    QCoreApplication::processEvents();
    const QModelIndex after
        = viewIndex(*tree, QStringLiteral("@CameraDevice/") + Simulation::SyntheticNodeMapGenerator::featureName(7), 1);
    QVERIFY(after.isValid());
    QVERIFY(editor);
    QCOMPARE(tree->indexWidget(after), editor.data());
}

void TestFeatureTreeWidgetLarge::budgetDecidesWhetherEditorsAreClosed_data()
{
    QTest::addColumn<qint64>("budget");
    QTest::addColumn<bool>("closed");
    QTest::newRow("no budget: closed at the first range") << qint64(0) << true;
    QTest::newRow("a budget of one visit: closed at the second range") << qint64(1) << true;
    QTest::newRow("the default budget: closed at the first range") << FeatureTreeView().bulkEditorBudget() << true;
    QTest::newRow("a large budget: a tree this size keeps its editors") << qint64(100000000) << false;
}

void TestFeatureTreeWidgetLarge::budgetDecidesWhetherEditorsAreClosed()
{
    QFETCH(qint64, budget);
    QFETCH(bool, closed);
    std::unique_ptr<FeatureTreeWidget> widget;
    makeWidget(widget);
    FeatureTreeView* tree = view(*widget);
    tree->setBulkEditorBudget(budget);
    QCOMPARE(tree->bulkEditorBudget(), budget);
    tree->setCurrentIndex(QModelIndex());
    const QString fullName = QStringLiteral("@CameraDevice/") + Simulation::SyntheticNodeMapGenerator::featureName(7);
    const QPersistentModelIndex cell = viewIndex(*tree, fullName, 1);
    QPointer<QWidget> before = tree->indexWidget(cell);
    QVERIFY(before);
    // The row stays through the search; whether its editor was closed shows
    // while the proxy removes the other rows (the view hears of each range first).
    bool sawItClosed = false;
    const QMetaObject::Connection watch = connect(tree->model(), &QAbstractItemModel::rowsAboutToBeRemoved, tree,
        [&] { sawItClosed = sawItClosed || (cell.isValid() && !tree->indexWidget(cell)); });
    searchLine(*widget)->setText(QStringLiteral("7"));
    disconnect(watch);
    QCOMPARE(sawItClosed, closed);
    QCoreApplication::processEvents();
    QVERIFY(letEditorsOpen());
    // Closed or not, the row has the same editor again: a closed one was kept
    // aside for it, not destroyed and made anew.
    QVERIFY(before);
    QCOMPARE(tree->indexWidget(viewIndex(*tree, fullName, 1)), before.data());
}

void TestFeatureTreeWidgetLarge::editorsKeptAsideGoOnceEveryEditorIsOpen()
{
    std::unique_ptr<FeatureTreeWidget> widget;
    makeWidget(widget);
    FeatureTreeView* tree = view(*widget);
    tree->setBulkEditorBudget(0);
    tree->setCurrentIndex(QModelIndex());
    // Every editor of the viewport, to find those that no row has any more.
    const auto editorsOf = [tree] {
        QSet<QWidget*> editors;
        for (QWidget* child : tree->viewport()->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly)) {
            if (dynamic_cast<AbstractItemEditor*>(child))
                editors.insert(child);
        }
        return editors;
    };
    const int before = editorsOf().size();
    QVERIFY(before > 100);
    QList<QPointer<QWidget>> all;
    for (QWidget* editor : editorsOf())
        all << editor;

    searchLine(*widget)->setText(QStringLiteral("7"));
    QCoreApplication::processEvents();
    QVERIFY(letEditorsOpen());
    // The rows that went took their editors with them: once every row has its
    // editor, nothing kept aside is left over, shown or hidden.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    const EditorCensus found = census(*tree);
    QVERIFY2(found.faults().isEmpty(), qPrintable(found.faults()));
    const QSet<QWidget*> after = editorsOf();
    QCOMPARE(after.size(), found.withEditor);
    QVERIFY(after.size() < before);
    int destroyed = 0;
    int reused = 0;
    for (const QPointer<QWidget>& editor : all) {
        if (!editor)
            ++destroyed;
        else if (after.contains(editor))
            ++reused;
    }
    QCOMPARE(destroyed + reused, before);
    QVERIFY2(reused > 0, "no row had its editor back");

    // Clearing the search brings the other rows back, with new editors where
    // the old ones went; again nothing is left over.
    searchLine(*widget)->clear();
    QCoreApplication::processEvents();
    QVERIFY(letEditorsOpen());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    const EditorCensus cleared = census(*tree);
    QVERIFY2(cleared.faults().isEmpty(), qPrintable(cleared.faults()));
    QCOMPARE(editorsOf().size(), cleared.withEditor);
}

void TestFeatureTreeWidgetLarge::anEditorKeptAsideServesOnlyItsOwnParameter()
{
    // An editor given back after a search that closed hundreds of them sits
    // in the row of the feature it was made for, never in another one.
    std::unique_ptr<FeatureTreeWidget> widget;
    makeWidget(widget);
    FeatureTreeView* tree = view(*widget);
    tree->setBulkEditorBudget(0);
    tree->setCurrentIndex(QModelIndex());
    struct Owner
    {
        QPointer<QWidget> editor;
        QString fullName;
    };
    // The feature of every editor ever seen; a pointer that went null was
    // destroyed, and another editor may have its address now.
    QHash<QWidget*, Owner> owners;
    const auto check = [&](const QString& text) {
        int given = 0;
        std::function<void(const QModelIndex&)> visit = [&](const QModelIndex& parent) {
            QAbstractItemModel* model = tree->model();
            for (int row = 0; row < model->rowCount(parent); ++row) {
                const QModelIndex value = model->index(row, 1, parent);
                const QString fullName = value.sibling(row, 0).data(FeatureTreeItem::FullNameRole).toString();
                if (QWidget* editor = tree->indexWidget(value)) {
                    const Owner owner = owners.value(editor);
                    if (owner.editor == editor) {
                        ++given;
                        if (owner.fullName != fullName)
                            QFAIL(qPrintable(QStringLiteral("after \"%1\" the editor of %2 is in the row of %3")
                                                 .arg(text, owner.fullName, fullName)));
                    }
                    owners.insert(editor, Owner { editor, fullName });
                }
                if (tree->isExpanded(value.sibling(row, 0)))
                    visit(value.sibling(row, 0));
            }
        };
        visit(QModelIndex());
        return given;
    };
    check(QStringLiteral("(before)"));
    for (const QString& text :
        { QStringLiteral("7"), QStringLiteral("77"), QStringLiteral("7"), QStringLiteral("17") }) {
        searchLine(*widget)->setText(text);
        QCoreApplication::processEvents();
        QVERIFY(letEditorsOpen());
        // Each text keeps some rows of the one before; at least those have their editors back.
        const int given = check(text);
        QVERIFY2(given > 0, qPrintable(text));
    }
}

void TestFeatureTreeWidgetLarge::bulkChangesNestAndOpenEditorsAtTheOuterEnd()
{
    std::unique_ptr<FeatureTreeWidget> widget;
    makeWidget(widget);
    FeatureTreeView* tree = view(*widget);
    QModelIndex firstValue;
    const QModelIndex category = firstCategoryWithEditor(*tree, &firstValue);
    QVERIFY(category.isValid());
    tree->collapse(category);

    // A collapsed branch keeps its editors; take this one away by hand.
    tree->closePersistentEditor(firstValue);
    QVERIFY(!tree->indexWidget(firstValue));

    tree->beginBulkChange();
    tree->beginBulkChange();
    QVERIFY(tree->isInBulkChange());
    tree->expand(category);
    QVERIFY(!tree->indexWidget(firstValue));
    // The inner end opens nothing yet.
    tree->endBulkChange();
    QVERIFY(tree->isInBulkChange());
    QVERIFY(!tree->indexWidget(firstValue));
    tree->endBulkChange();
    QVERIFY(!tree->isInBulkChange());
    QVERIFY(tree->indexWidget(firstValue));
    const EditorCensus result = census(*tree);
    QCOMPARE(result.missing, QStringList());
}

void TestFeatureTreeWidgetLarge::editorsClosedInABulkChangeComeBackWhenTheirBranchIsShownAgain()
{
    std::unique_ptr<FeatureTreeWidget> widget;
    makeWidget(widget);
    FeatureTreeView* tree = view(*widget);
    tree->setBulkEditorBudget(0);
    QVERIFY(QMetaObject::invokeMethod(widget.get(), "onVisibilityChanged", Q_ARG(int, 0)));
    QCoreApplication::processEvents();
    QModelIndex firstValue;
    const QModelIndex category = firstCategoryWithEditor(*tree, &firstValue);
    QVERIFY(category.isValid());
    QVERIFY(category.parent().isValid());
    const QString fullName = firstValue.sibling(firstValue.row(), 0).data(FeatureTreeItem::FullNameRole).toString();

    // The category stays expanded below its collapsed parent. A level change
    // closes every editor and opens those of the rows on screen again: the
    // category's rows are not among them.
    tree->collapse(category.parent());
    QVERIFY(QMetaObject::invokeMethod(widget.get(), "onVisibilityChanged", Q_ARG(int, 1)));
    QCoreApplication::processEvents();
    const QModelIndex value = viewIndex(*tree, fullName, 1);
    QVERIFY(value.isValid());
    QVERIFY(!tree->isExpanded(value.parent().parent()));
    QVERIFY(tree->isExpanded(value.parent()));

    // Expanding the parent shows them again, each with its editor.
    tree->expand(value.parent().parent());
    QCoreApplication::processEvents();
    QVERIFY(tree->indexWidget(viewIndex(*tree, fullName, 1)));
    // Those out of sight open in later turns of the event loop.
    QVERIFY(letEditorsOpen());
    const QString faults = census(*tree).faults();
    QVERIFY2(faults.isEmpty(), qPrintable(faults));
}

void TestFeatureTreeWidgetLarge::unmatchedEndOfBulkChangeIsRefused()
{
    FeatureTreeView tree;
    QTest::ignoreMessage(QtDebugMsg, "endBulkChange: no bulk change to end");
    tree.endBulkChange();
    QVERIFY(!tree.isInBulkChange());
    tree.beginBulkChange();
    QVERIFY(tree.isInBulkChange());
    tree.endBulkChange();
    QVERIFY(!tree.isInBulkChange());
}

namespace {

//! The value cells below expanded parents that have an editor, split by whether their row is in sight.
void editorsBySight(FeatureTreeView& view, QList<QWidget*>* inSight, QList<QWidget*>* outOfSight)
{
    QAbstractItemModel* model = view.model();
    std::function<void(const QModelIndex&)> visit = [&](const QModelIndex& parent) {
        for (int row = 0; row < model->rowCount(parent); ++row) {
            const QModelIndex value = model->index(row, 1, parent);
            if (QWidget* editor = view.indexWidget(value)) {
                if (view.visualRect(value).intersects(view.viewport()->rect()))
                    inSight->append(editor);
                else
                    outOfSight->append(editor);
            }
            if (view.isExpanded(value.sibling(row, 0)))
                visit(value.sibling(row, 0));
        }
    };
    visit(QModelIndex());
}

} // namespace

void TestFeatureTreeWidgetLarge::editorsOutOfSightWaitHiddenUntilScrolledTo()
{
    // Every row keeps its editor, but only those in sight are shown: shown
    // sibling editors make each repaint look at all the others.
    std::unique_ptr<FeatureTreeWidget> widget;
    makeWidget(widget);
    FeatureTreeView* tree = view(*widget);
    QVERIFY(census(*tree).missing.isEmpty());

    QList<QWidget*> inSight;
    QList<QWidget*> outOfSight;
    editorsBySight(*tree, &inSight, &outOfSight);
    QVERIFY2(inSight.size() > 5, qPrintable(QString::number(inSight.size())));
    QVERIFY2(outOfSight.size() > inSight.size(), qPrintable(QString::number(outOfSight.size())));
    for (QWidget* editor : qAsConst(inSight))
        QVERIFY(editor->isVisible());
    for (QWidget* editor : qAsConst(outOfSight))
        QVERIFY(editor->isHidden());

    // Scrolling brings the editors of the rows that come into sight out at
    // once, on their rows, before anything else happens.
    for (const int position : { tree->verticalScrollBar()->maximum() / 2, tree->verticalScrollBar()->maximum() }) {
        tree->verticalScrollBar()->setValue(position);
        QAbstractItemModel* model = tree->model();
        int checked = 0;
        std::function<void(const QModelIndex&)> visit = [&](const QModelIndex& parent) {
            for (int row = 0; row < model->rowCount(parent); ++row) {
                const QModelIndex value = model->index(row, 1, parent);
                QWidget* editor = tree->indexWidget(value);
                const QRect cell = tree->visualRect(value);
                if (editor && cell.intersects(tree->viewport()->rect())) {
                    const QString name = value.sibling(row, 0).data().toString();
                    QVERIFY2(editor->isVisible(), qPrintable(name));
                    QVERIFY2(cell.contains(editor->geometry().center()), qPrintable(name));
                    ++checked;
                }
                if (tree->isExpanded(value.sibling(row, 0)))
                    visit(value.sibling(row, 0));
            }
        };
        visit(QModelIndex());
        QVERIFY2(checked > 5, qPrintable(QString::number(checked)));
    }
    // And the census is unchanged once the events are handled.
    QCoreApplication::processEvents();
    const QString faults = census(*tree).faults();
    QVERIFY2(faults.isEmpty(), qPrintable(faults));
}

void TestFeatureTreeWidgetLarge::focusedEditorStaysShownOutOfSight()
{
    std::unique_ptr<FeatureTreeWidget> widget;
    makeWidget(widget);
    FeatureTreeView* tree = view(*widget);
    QList<QWidget*> inSight;
    QList<QWidget*> outOfSight;
    editorsBySight(*tree, &inSight, &outOfSight);
    QVERIFY(!inSight.isEmpty());
    // An editor that takes the focus: a spin box or a line edit, enabled.
    QWidget* editor = nullptr;
    QWidget* focusTarget = nullptr;
    for (QWidget* candidate : qAsConst(inSight)) {
        for (QWidget* child : candidate->findChildren<QWidget*>()) {
            if ((qobject_cast<QAbstractSpinBox*>(child) || qobject_cast<QLineEdit*>(child)) && child->isEnabled()
                && child->focusPolicy() != Qt::NoFocus) {
                editor = candidate;
                focusTarget = child;
                break;
            }
        }
        if (editor)
            break;
    }
    QVERIFY(editor);
    widget->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(widget.get()));
    focusTarget->setFocus();
    QTRY_VERIFY(editor->isAncestorOf(QApplication::focusWidget()) || editor == QApplication::focusWidget());

    // Scrolled far away and placed again: the editor being typed into stays
    // shown and keeps the focus; the other editors of its old sight hide.
    tree->verticalScrollBar()->setValue(tree->verticalScrollBar()->maximum());
    tree->resize(tree->width(), tree->height() - 1);
    QCoreApplication::processEvents();
    QVERIFY(!editor->geometry().intersects(tree->viewport()->rect()));
    QVERIFY(editor->isVisible());
    QVERIFY(editor->isAncestorOf(QApplication::focusWidget()) || editor == QApplication::focusWidget());
    int hidden = 0;
    for (QWidget* other : qAsConst(inSight))
        hidden += other != editor && other->isHidden() ? 1 : 0;
    QCOMPARE(hidden, inSight.size() - 1);
}

namespace {

//! Collects the regions of the paint events of a widget.
class PaintRecorder : public QObject
{
public:
    QRegion painted;
    int paints = 0;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::Paint) {
            painted += static_cast<QPaintEvent*>(event)->region();
            ++paints;
        }
        return QObject::eventFilter(watched, event);
    }
};

} // namespace

void TestFeatureTreeWidgetLarge::aChangedValueRepaintsItsRowOnly()
{
    // A polled value changes many times a second; its row is repainted, not
    // the whole tree with every editor in sight.
    std::unique_ptr<FeatureTreeWidget> widget;
    makeWidget(widget);
    FeatureTreeView* tree = view(*widget);
    QList<QWidget*> inSight;
    QList<QWidget*> outOfSight;
    editorsBySight(*tree, &inSight, &outOfSight);
    QVERIFY(!inSight.isEmpty());
    const QModelIndex value = tree->indexAt(inSight.last()->geometry().center()).siblingAtColumn(1);
    QVERIFY(value.isValid());
    QVERIFY(!tree->isFirstColumnSpanned(value.row(), value.parent()));
    auto* proxy = qobject_cast<QSortFilterProxyModel*>(tree->model());
    QVERIFY(proxy);
    const QModelIndex source = proxy->mapToSource(value);

    PaintRecorder recorder;
    tree->viewport()->installEventFilter(&recorder);
    QCoreApplication::processEvents();
    recorder.painted = QRegion();
    recorder.paints = 0;
    emit proxy->sourceModel()->dataChanged(source, source);
    QTRY_VERIFY(recorder.paints > 0);
    const QRect row = tree->visualRect(value).united(tree->visualRect(value.siblingAtColumn(0)));
    QVERIFY2(row.contains(recorder.painted.boundingRect()),
        qPrintable(QStringLiteral("painted %1,%2 %3x%4; the row is %5,%6 %7x%8")
                       .arg(recorder.painted.boundingRect().x())
                       .arg(recorder.painted.boundingRect().y())
                       .arg(recorder.painted.boundingRect().width())
                       .arg(recorder.painted.boundingRect().height())
                       .arg(row.x())
                       .arg(row.y())
                       .arg(row.width())
                       .arg(row.height())));
}

namespace {

//! Watches a view's paints; at the first one it notes the rows in sight
//! that should have an editor and have none.
class FirstPaintCheck : public QObject
{
public:
    explicit FirstPaintCheck(FeatureTreeView& view)
        : m_view(view)
    {
        view.viewport()->installEventFilter(this);
    }

    int paints = 0;
    int rowsInSight = 0;
    int editorsInSight = 0;
    QStringList missingInSight;

protected:
    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() != QEvent::Paint || paints++ > 0)
            return false;
        const QRect sight = m_view.viewport()->rect();
        for (QModelIndex name = m_view.indexAt(QPoint(0, 0)); name.isValid(); name = m_view.indexBelow(name)) {
            if (m_view.visualRect(name).top() > sight.bottom())
                break;
            ++rowsInSight;
            const QModelIndex value = name.sibling(name.row(), 1);
            if (m_view.indexWidget(value))
                ++editorsInSight;
            else if (wantsEditor(m_view, value))
                missingInSight << name.data(FeatureTreeItem::FullNameRole).toString();
        }
        return false;
    }

private:
    FeatureTreeView& m_view;
};

} // namespace

void TestFeatureTreeWidgetLarge::expandingOpensEditorsInSightBeforeTheFirstPaint()
{
    std::unique_ptr<FeatureTreeWidget> widget;
    makeWidget(widget, false);
    FeatureTreeView* tree = view(*widget);
    FirstPaintCheck check(*tree);

    // Expanding every category opens editors for a few milliseconds only:
    // the rest wait for the event loop, where those of the rows in sight
    // open first.
    expandEveryCategory(tree, QModelIndex());
    QVERIFY(tree->hasEditorsToOpen());
    const EditorCensus waiting = census(*tree);
    QVERIFY2(!waiting.missing.isEmpty(), qPrintable(QString::number(waiting.withEditor)));
    QCOMPARE(waiting.extra, QStringList());
    QCOMPARE(check.paints, 0);

    // The first frame shows every row in sight with its editor.
    QTRY_VERIFY(check.paints > 0);
    QVERIFY2(check.rowsInSight > 10, qPrintable(QString::number(check.rowsInSight)));
    QVERIFY2(check.editorsInSight > 5, qPrintable(QString::number(check.editorsInSight)));
    QCOMPARE(check.missingInSight, QStringList());

    // Once the events are processed every row has its editor, exactly as if
    // they had all opened at once.
    QVERIFY(letEditorsOpen());
    const QString faults = census(*tree).faults(301);
    QVERIFY2(faults.isEmpty(), qPrintable(faults));
}

void TestFeatureTreeWidgetLarge::searchOpensEditorsInSightBeforeItsRepaint()
{
    std::unique_ptr<FeatureTreeWidget> widget;
    makeWidget(widget);
    FeatureTreeView* tree = view(*widget);
    FirstPaintCheck check(*tree);

    // The widget repaints the results within the keystroke; the rows in
    // sight have their editors by then, some others may wait for the event
    // loop.
    QTest::keyClicks(searchLine(*widget), QStringLiteral("7"));
    QVERIFY(check.paints > 0);
    QVERIFY2(check.rowsInSight > 10, qPrintable(QString::number(check.rowsInSight)));
    QVERIFY2(check.editorsInSight > 5, qPrintable(QString::number(check.editorsInSight)));
    QCOMPARE(check.missingInSight, QStringList());

    QVERIFY(letEditorsOpen());
    const QString faults = census(*tree).faults(51);
    QVERIFY2(faults.isEmpty(), qPrintable(faults));
}

void TestFeatureTreeWidgetLarge::changesWhileEditorsWait_data()
{
    QTest::addColumn<QString>("change");
    QTest::newRow("all opened at once") << QStringLiteral("all opened at once");
    QTest::newRow("level") << QStringLiteral("level");
    QTest::newRow("search") << QStringLiteral("search");
    QTest::newRow("search cleared") << QStringLiteral("search cleared");
    QTest::newRow("collapse all") << QStringLiteral("collapse all");
    QTest::newRow("collapse and expand again") << QStringLiteral("collapse and expand again");
    QTest::newRow("model reset") << QStringLiteral("model reset");
    QTest::newRow("widget destroyed") << QStringLiteral("widget destroyed");
}

void TestFeatureTreeWidgetLarge::changesWhileEditorsWait()
{
    QFETCH(QString, change);
    std::unique_ptr<FeatureTreeWidget> widget;
    makeWidget(widget, false);
    FeatureTreeView* tree = view(*widget);
    expandEveryCategory(tree, QModelIndex());
    // One turn of the event loop: the rows in sight and a first slice.
    QCoreApplication::processEvents();
    QVERIFY(tree->hasEditorsToOpen());

    if (change == QLatin1String("all opened at once")) {
        // A host that cannot wait for the event loop opens them all now.
        tree->openWaitingEditors();
        QVERIFY(!tree->hasEditorsToOpen());
        const EditorCensus now = census(*tree);
        QCOMPARE(now.missing, QStringList());
        QCOMPARE(now.extra, QStringList());
    } else if (change == QLatin1String("level")) {
        widget->setVisibility(GenApi::Beginner);
    } else if (change == QLatin1String("search")) {
        QTest::keyClicks(searchLine(*widget), QStringLiteral("7"));
    } else if (change == QLatin1String("search cleared")) {
        QTest::keyClicks(searchLine(*widget), QStringLiteral("7"));
        QCoreApplication::processEvents();
        searchLine(*widget)->clear();
    } else if (change == QLatin1String("collapse all")) {
        tree->collapseAll();
    } else if (change == QLatin1String("collapse and expand again")) {
        tree->collapseAll();
        QCoreApplication::processEvents();
        expandEveryCategory(tree, QModelIndex());
    } else if (change == QLatin1String("model reset")) {
        // The proxy lets go of the model and takes it up again empty; then
        // the camera comes back and every category is expanded anew.
        widget->clear();
        QCOMPARE(census(*tree).withEditor, 0);
        QCoreApplication::processEvents();
        for (const QString& name : m_device->nodeMapNames())
            widget->addParameterCollection(m_device->nodeMap(name), name, name, false);
        expandEveryCategory(tree, QModelIndex());
    } else if (change == QLatin1String("widget destroyed")) {
        QPointer<FeatureTreeView> guard(tree);
        widget.reset();
        QVERIFY(guard.isNull());
        // The slice it had asked for never comes to a view that is gone.
        for (int i = 0; i < 5; ++i)
            QCoreApplication::processEvents();
        QVERIFY(letEditorsOpen());
        return;
    }

    QVERIFY(letEditorsOpen());
    QVERIFY(!tree->hasEditorsToOpen());
    const QString faults = census(*tree).faults();
    QVERIFY2(faults.isEmpty(), qPrintable(faults));
}

//! How many features (items without children) the model has built so far.
int builtFeatures(const FeatureTreeItem* item)
{
    int count = 0;
    for (int row = 0; row < item->builtChildCount(); ++row) {
        const FeatureTreeItem* child = item->child(row);
        if (qobject_cast<const FeatureTreeINodeItem*>(child) && !child->hasChildren())
            ++count;
        count += builtFeatures(child);
    }
    return count;
}

void TestFeatureTreeWidgetLarge::collapsedCategoriesBuildNoFeatureToKnowTheyShow()
{
    std::unique_ptr<FeatureTreeWidget> widget;
    makeWidget(widget, false);
    FeatureTreeView* tree = view(*widget);
    auto* proxy = qobject_cast<QSortFilterProxyModel*>(tree->model());
    QVERIFY(proxy);
    auto* model = qobject_cast<FeatureTreeModel*>(proxy->sourceModel());
    QVERIFY(model);

    // Asked anew after each change: a change of level drops the proxy's indexes.
    const auto nodeMapRow = [proxy] {
        for (int row = 0; row < proxy->rowCount(); ++row) {
            const QModelIndex index = proxy->index(row, 0);
            if (index.data(FeatureTreeItem::FullNameRole).toString().endsWith(QLatin1String("*Root")))
                return index;
        }
        return QModelIndex();
    };

    // Shown and painted, every category collapsed: the rows of the first
    // levels show, and whether each category has something to show was
    // found without building one of the 600 features below them.
    QVERIFY(nodeMapRow().isValid());
    QCOMPARE(proxy->rowCount(nodeMapRow()), 5);
    QCOMPARE(proxy->rowCount(proxy->index(0, 0, nodeMapRow())), 5);
    QCOMPARE(builtFeatures(model->rootItem()), 0);

    // A new level judges the categories again, still from the parameters.
    widget->setVisibility(GenApi::Beginner);
    QCoreApplication::processEvents();
    QCOMPARE(proxy->rowCount(nodeMapRow()), 5);
    QCOMPARE(builtFeatures(model->rootItem()), 0);

    // Expanding a category shows its categories, each judged the same way;
    // expanding one of those builds its own features and no others.
    const QPersistentModelIndex first = proxy->index(0, 0, nodeMapRow());
    tree->expand(first);
    QCoreApplication::processEvents();
    QCOMPARE(proxy->rowCount(first), 5);
    // Whether each of those has rows to show is known without filling it.
    for (int row = 0; row < 5; ++row) {
        QVERIFY(proxy->hasChildren(proxy->index(row, 0, first)));
        QCOMPARE(proxy->columnCount(proxy->index(row, 0, first)), 2);
    }
    QCOMPARE(builtFeatures(model->rootItem()), 0);
    // Its rows come with the expansion's own layout, not as an insertion in
    // the middle of it.
    const QPersistentModelIndex second = proxy->index(0, 0, first);
    QSignalSpy inserted(proxy, &QAbstractItemModel::rowsInserted);
    tree->expand(second);
    QCOMPARE(inserted.count(), 0);
    QVERIFY(letEditorsOpen());
    QVERIFY(proxy->rowCount(second) > 0);
    QCOMPARE(builtFeatures(model->rootItem()), 600 / 25);
}

void TestFeatureTreeWidgetLarge::rowsInSightOpenFirstWhereverTheViewIs()
{
    // Far down the tree, the rows that a higher level brings into sight get
    // their editors before the next paint, ahead of the many rows above them
    // that wait for later slices.
    std::unique_ptr<FeatureTreeWidget> widget;
    makeWidget(widget, false);
    FeatureTreeView* tree = view(*widget);
    widget->setVisibility(GenApi::Beginner);
    expandEveryCategory(tree, QModelIndex());
    QVERIFY(letEditorsOpen());
    tree->verticalScrollBar()->setValue(tree->verticalScrollBar()->maximum() * 3 / 4);
    QCoreApplication::processEvents();
    const int before = census(*tree).withEditor;

    FirstPaintCheck check(*tree);
    widget->setVisibility(GenApi::Guru);
    QVERIFY(tree->verticalScrollBar()->value() > 0);
    QVERIFY(tree->hasEditorsToOpen());
    QTRY_VERIFY(check.paints > 0);
    QVERIFY2(check.rowsInSight > 10, qPrintable(QString::number(check.rowsInSight)));
    QCOMPARE(check.missingInSight, QStringList());
    QVERIFY(letEditorsOpen());
    const QString faults = census(*tree).faults(before + 1);
    QVERIFY2(faults.isEmpty(), qPrintable(faults));
}

QTEST_MAIN(TestFeatureTreeWidgetLarge)
#include "tst_featuretreewidgetlarge.moc"
