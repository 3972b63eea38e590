// The tree view: editors that follow access mode and level, rows hidden by
// level, the selection carried across a favourites rebuild by name, the
// message of an empty tree and the way selected rows are painted.

#include "featuretreewidgettestsupport.h"

#include "featuretree/favoritesdata.h"
#include "featuretree/featuretreemodel.h"
#include "featuretree/featuretreeproxymodel.h"

#include <QPointer>
#include <QStandardItemModel>
#include <QStyledItemDelegate>

using namespace TreeTest;

namespace {

// Records, for every painted cell, whether it reached the delegate as selected.
class RecordingDelegate : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;
    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override
    {
        painted.append(qMakePair(QPersistentModelIndex(index), bool(option.state & QStyle::State_Selected)));
        QStyledItemDelegate::paint(painter, option, index);
    }
    mutable QList<QPair<QPersistentModelIndex, bool>> painted;
};

} // namespace

class TestFeatureTreeView : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();

    void editorsOpenBelowExpandedParentsOnly();
    void accessNotAvailableClosesAndReopensTheEditor();
    void editorsTheViewClosesAreFreed();
    void rowsShownByARefilteringGetTheirEditors();
    void featureAboveTheLevelWhileCurrentIsHidden();
    void setVisibilityTwiceWithTheSameLevelDoesNothing();
    void noSearchResultsTextFollowsTheTopRowCount();
    void selectionComesBackByNameAfterAFavouritesRebuild();
    void goneFavouriteIsSkippedWithoutAMessage();
    void selectedRowIsPaintedAsUnselected();
    void viewOptionsMakeTheHighlightTransparent();
    void favouritesRootExpansionFollowsTheStore();
    void settingsPathGoesToTheStore();

private:
    void addCamera(FeatureTreeView& view)
    {
        IFeatureTreeModelExtension* extension = view.getFeatureExtension();
        extension->addParameterCollection(m_device->nodeMap(QStringLiteral("@CameraDevice")), QStringLiteral("Camera"),
            QStringLiteral("@CameraDevice"), false);
        static_cast<FeatureTreeProxyModel*>(view.model())->invalidate();
        extension->refreshSpecialItems();
    }
    QSharedPointer<Simulation::SimulatedDevice> m_device;
};

void TestFeatureTreeView::initTestCase()
{
    QStandardPaths::setTestModeEnabled(true);
    QCoreApplication::setOrganizationName(QStringLiteral("ZarvexTests"));
    QCoreApplication::setApplicationName(QStringLiteral("tst_featuretreeview"));
}

void TestFeatureTreeView::init()
{
    QSettings().remove(QStringLiteral("Favorites"));
    FavoritesData& store = FeatureTreeModel::m_favorites;
    while (store.countNodes() > 0)
        store.removeNode(0, nullptr);
    m_device = makeDevice(everyKindCamera());
    QVERIFY(m_device);
}

void TestFeatureTreeView::cleanup()
{
    m_device.reset();
}

void TestFeatureTreeView::editorsOpenBelowExpandedParentsOnly()
{
    FeatureTreeView view;
    addCamera(view);
    view.show();
    const QModelIndex flag = viewIndex(view, cameraFeature("Flag"), 1);
    QVERIFY(flag.isValid());
    QVERIFY(!view.indexWidget(flag));
    expandTo(view, flag);
    QVERIFY(view.indexWidget(flag));
    // A plain integer edits in a transient editor, opened by the user.
    QVERIFY(!view.indexWidget(viewIndex(view, cameraFeature("Offset"), 1)));
    // At Guru the Guru feature has its editor too.
    QVERIFY(view.indexWidget(viewIndex(view, cameraFeature("Secret"), 1)));
}

void TestFeatureTreeView::accessNotAvailableClosesAndReopensTheEditor()
{
    FeatureTreeView view;
    addCamera(view);
    view.show();
    const QPersistentModelIndex flag = viewIndex(view, cameraFeature("Flag"), 1);
    expandTo(view, flag);
    QVERIFY(view.indexWidget(flag));

    impose(m_device, "Flag", "AccessMode", "NA");
    deliver();
    QVERIFY(!view.indexWidget(flag));

    impose(m_device, "Flag", "AccessMode", "RW");
    deliver();
    QVERIFY(view.indexWidget(flag));

    // Not implemented takes it away as well; read-only keeps it.
    impose(m_device, "Flag", "AccessMode", "NI");
    deliver();
    QVERIFY(!view.indexWidget(flag));
    impose(m_device, "Flag", "AccessMode", "RO");
    deliver();
    QVERIFY(view.indexWidget(flag));
}

void TestFeatureTreeView::editorsTheViewClosesAreFreed()
{
    FeatureTreeView view;
    addCamera(view);
    view.show();
    const QPersistentModelIndex flag = viewIndex(view, cameraFeature("Flag"), 1);
    expandTo(view, flag);
    const QPointer<QWidget> editor = view.indexWidget(flag);
    QVERIFY(editor);
    const auto editorsOf
        = [&view] { return view.viewport()->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly).size(); };
    const int open = editorsOf();
    QVERIFY(open > 0);

    // A closed editor goes with the next turn of the event loop; a view that
    // only hid it would grow by a widget on every close, for as long as it lives.
    impose(m_device, "Flag", "AccessMode", "NA");
    deliver();
    QVERIFY(!view.indexWidget(flag));
    QVERIFY(editor.isNull());
    QCOMPARE(editorsOf(), open - 1);

    impose(m_device, "Flag", "AccessMode", "RW");
    deliver();
    QVERIFY(view.indexWidget(flag));
    QCOMPARE(editorsOf(), open);

    // Collapsing and expanding the branch, and bulk changes that close every
    // editor and open them again, called outside any event loop as a host may
    // call them, leave as many editors as before.
    const QPersistentModelIndex branch = flag.parent();
    auto* proxy = static_cast<FeatureTreeProxyModel*>(view.model());
    for (int i = 0; i < 5; ++i) {
        view.collapse(branch);
        deliver();
        view.expand(branch);
        deliver();
        view.beginBulkChange();
        proxy->invalidate();
        view.endBulkChange();
        deliver();
    }
    QVERIFY(view.indexWidget(flag));
    QCOMPARE(editorsOf(), open);
}

void TestFeatureTreeView::rowsShownByARefilteringGetTheirEditors()
{
    FeatureTreeView view;
    addCamera(view);
    auto* proxy = static_cast<FeatureTreeProxyModel*>(view.model());
    view.setVisibility(GenApi::Beginner);
    proxy->setVisibility(GenApi::Beginner);
    proxy->invalidate();
    view.show();
    const QModelIndex flag = viewIndex(view, cameraFeature("Flag"), 1);
    expandTo(view, flag);
    QVERIFY(view.indexWidget(flag));
    // The Guru feature is filtered out at Beginner.
    QVERIFY(!viewIndex(view, cameraFeature("Secret"), 1).isValid());

    // It comes down to Beginner: the proxy doesn't filter again on a change of
    // data, only when it is invalidated, and then the row comes with a layout change.
    impose(m_device, "Secret", "Visibility", "Beginner");
    deliver();
    QVERIFY(!viewIndex(view, cameraFeature("Secret"), 1).isValid());
    proxy->invalidate();
    const QModelIndex secret = viewIndex(view, cameraFeature("Secret"), 1);
    QVERIFY(secret.isValid());
    QVERIFY(!view.isRowHidden(secret.row(), secret.parent()));
    QVERIFY(view.indexWidget(secret));
}

void TestFeatureTreeView::featureAboveTheLevelWhileCurrentIsHidden()
{
    FeatureTreeView view;
    addCamera(view);
    view.setVisibility(GenApi::Beginner);
    view.show();
    const QPersistentModelIndex width = viewIndex(view, cameraFeature("Width"), 0);
    expandTo(view, width);
    QVERIFY(!view.isRowHidden(width.row(), width.parent()));
    // The Guru feature is out of sight at Beginner.
    const QModelIndex secret = viewIndex(view, cameraFeature("Secret"), 0);
    QVERIFY(view.isRowHidden(secret.row(), secret.parent()));

    view.setCurrentIndex(width);
    QSignalSpy current(&view, SIGNAL(onCurrentChanged(QModelIndex)));
    impose(m_device, "Width", "Visibility", "Guru");
    deliver();
    QVERIFY(view.isRowHidden(width.row(), width.parent()));
    QCOMPARE(current.count(), 1);
    QVERIFY(!current.at(0).at(0).toModelIndex().isValid());

    // Back at its level the row shows again, and nothing more is said.
    impose(m_device, "Width", "Visibility", "Beginner");
    deliver();
    QVERIFY(!view.isRowHidden(width.row(), width.parent()));
    QCOMPARE(current.count(), 1);
}

void TestFeatureTreeView::setVisibilityTwiceWithTheSameLevelDoesNothing()
{
    FeatureTreeView view;
    addCamera(view);
    QSignalSpy inserted(view.model(), SIGNAL(rowsInserted(QModelIndex, int, int)));
    QSignalSpy removed(view.model(), SIGNAL(rowsRemoved(QModelIndex, int, int)));
    QSignalSpy changed(view.model(), SIGNAL(dataChanged(QModelIndex, QModelIndex, QVector<int>)));

    view.setVisibility(GenApi::Expert);
    QCOMPARE(view.getVisibility(), GenApi::Expert);
    const int afterFirst = inserted.count() + removed.count() + changed.count();
    QVERIFY(afterFirst > 0);

    view.setVisibility(GenApi::Expert);
    QCOMPARE(inserted.count() + removed.count() + changed.count(), afterFirst);

    // Another level is effective again.
    view.setVisibility(GenApi::Guru);
    QVERIFY(inserted.count() + removed.count() + changed.count() > afterFirst);
}

void TestFeatureTreeView::noSearchResultsTextFollowsTheTopRowCount()
{
    QPalette palette;
    palette.setColor(QPalette::Active, QPalette::Text, QColor(255, 0, 0));
    const QColor red(255, 0, 0);
    auto messageShown = [&](FeatureTreeView& view) {
        // The message stands centred at the top; row texts start at the left.
        const QImage image = view.viewport()->grab().toImage();
        return countPixels(image.copy(110, 0, 80, 40), red) > 0;
    };

    FeatureTreeView view;
    view.setPalette(palette);
    view.resize(300, 200);
    view.show();
    QVERIFY(QTest::qWaitForWindowExposed(&view));
    auto* proxy = static_cast<FeatureTreeProxyModel*>(view.model());

    // A new view has no top row and no search is in force: the message shows.
    QCOMPARE(proxy->rowCount(), 0);
    QVERIFY(SearchPattern::ofProxy(*proxy).text().isEmpty());
    QVERIFY(messageShown(view));

    // With top rows it goes.
    addCamera(view);
    QVERIFY(proxy->rowCount() > 0);
    QVERIFY(!messageShown(view));

    // A search with results keeps top rows: still no message.
    proxy->setFilterFixedString(QStringLiteral("Gain"));
    QVERIFY(proxy->rowCount() > 0);
    QVERIFY(!messageShown(view));

    // A search without results leaves none.
    proxy->setFilterFixedString(QStringLiteral("NoSuchFeature"));
    QCOMPARE(proxy->rowCount(), 0);
    QVERIFY(messageShown(view));

    // And the empty text brings the rows and no message back.
    proxy->setFilterFixedString(QString());
    QVERIFY(proxy->rowCount() > 0);
    QVERIFY(!messageShown(view));
}

void TestFeatureTreeView::selectionComesBackByNameAfterAFavouritesRebuild()
{
    FeatureTreeView view;
    addCamera(view);
    IFeatureTreeModelExtension* extension = view.getFeatureExtension();
    auto parameter = [this](const char* name) {
        return m_device->nodeMap(QStringLiteral("@CameraDevice"))->getParameter(cameraFeature(name));
    };
    QVERIFY(extension->AddFavorite(parameter("Gain"), 100));
    QVERIFY(extension->AddFavorite(parameter("Flag"), 100));
    view.show();
    view.expand(extension->GetFavoritesRootIndex());

    const QModelIndex favoritesRoot = extension->GetFavoritesRootIndex();
    const QModelIndex flagFavourite = view.model()->index(1, 0, favoritesRoot);
    const QString flagName = flagFavourite.data(FeatureTreeItem::FullNameRole).toString();
    QVERIFY(!flagName.isEmpty());
    view.setCurrentIndex(flagFavourite);
    QVERIFY(view.selectionModel()->isSelected(flagFavourite));

    // A change of the store, here a third favourite, rebuilds the branch.
    QVERIFY(extension->AddFavorite(parameter("Mode"), 0));
    const QModelIndex current = view.currentIndex();
    QVERIFY(current.isValid());
    QCOMPARE(current.data(FeatureTreeItem::FullNameRole).toString(), flagName);
    QCOMPARE(current.parent(), extension->GetFavoritesRootIndex());
    QVERIFY(view.selectionModel()->isSelected(current));
}

void TestFeatureTreeView::goneFavouriteIsSkippedWithoutAMessage()
{
    FeatureTreeView view;
    addCamera(view);
    IFeatureTreeModelExtension* extension = view.getFeatureExtension();
    QVERIFY(extension->AddFavorite(
        m_device->nodeMap(QStringLiteral("@CameraDevice"))->getParameter(cameraFeature("Gain")), 100));
    view.show();
    view.expand(extension->GetFavoritesRootIndex());
    view.setCurrentIndex(view.model()->index(0, 0, extension->GetFavoritesRootIndex()));
    QVERIFY(view.currentIndex().isValid());
    const QString goneName = view.currentIndex().data(FeatureTreeItem::FullNameRole).toString();
    QVERIFY(!goneName.isEmpty());

    MessageCounter messages;
    // The store loses the favourite behind the view's back.
    QVERIFY(FeatureTreeModel::m_favorites.removeNode(0, nullptr));
    QCOMPARE(MessageCounter::count(), 0);
    // Nothing stands for the gone name now.
    QVERIFY(view.currentIndex().data(FeatureTreeItem::FullNameRole).toString() != goneName);
}

void TestFeatureTreeView::selectedRowIsPaintedAsUnselected()
{
    FeatureTreeView view;
    addCamera(view);
    auto* recorder = new RecordingDelegate(&view);
    view.setItemDelegate(recorder);
    view.resize(400, 300);
    view.show();
    QVERIFY(QTest::qWaitForWindowExposed(&view));
    const QModelIndex root = view.model()->index(view.model()->rowCount() - 1, 0);
    view.setCurrentIndex(root);
    view.selectionModel()->select(root, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    QVERIFY(view.selectionModel()->isSelected(root));

    QSignalSpy selectionChanged(view.selectionModel(), SIGNAL(selectionChanged(QItemSelection, QItemSelection)));
    recorder->painted.clear();
    view.viewport()->repaint();

    bool rowPainted = false;
    for (const auto& cell : qAsConst(recorder->painted)) {
        if (cell.first.row() == root.row() && cell.first.parent() == root.parent()) {
            rowPainted = true;
            QVERIFY(!cell.second);
        }
    }
    QVERIFY(rowPainted);
    QCOMPARE(selectionChanged.count(), 0);
    QVERIFY(view.selectionModel()->isSelected(root));
}

void TestFeatureTreeView::viewOptionsMakeTheHighlightTransparent()
{
    class Probe : public FeatureTreeView
    {
    public:
        QStyleOptionViewItem options() const
        {
            // The same palette reaches the rows through either version's hook.
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
            return viewOptions();
#else
            QStyleOptionViewItem options;
            initViewItemOption(&options);
            return options;
#endif
        }
    };
    Probe view;
    const QStyleOptionViewItem options = view.options();
    const QPalette& palette = options.palette;
    for (QPalette::ColorGroup group : { QPalette::Active, QPalette::Disabled, QPalette::Inactive })
        QCOMPARE(palette.color(group, QPalette::Highlight).alpha(), 0);
    QColor activeText = palette.color(QPalette::Active, QPalette::Text);
    QCOMPARE(palette.color(QPalette::Active, QPalette::HighlightedText).alpha(), 128);
    activeText.setAlpha(128);
    QCOMPARE(palette.color(QPalette::Active, QPalette::HighlightedText), activeText);
    QCOMPARE(palette.color(QPalette::Inactive, QPalette::HighlightedText),
        palette.color(QPalette::Inactive, QPalette::Text));
    // A disabled tree keeps its ordinary background.
    QCOMPARE(view.palette().brush(QPalette::Disabled, QPalette::Base),
        view.palette().brush(QPalette::Active, QPalette::Base));
}

void TestFeatureTreeView::favouritesRootExpansionFollowsTheStore()
{
    FeatureTreeModel::m_favorites.setExpanded(false);
    FeatureTreeView first;
    FeatureTreeView second;
    first.getFeatureExtension()->rebuildFavoriteItems();
    second.getFeatureExtension()->rebuildFavoriteItems();
    first.show();
    second.show();
    const QModelIndex firstRoot = first.getFeatureExtension()->GetFavoritesRootIndex();
    const QModelIndex secondRoot = second.getFeatureExtension()->GetFavoritesRootIndex();
    first.expand(firstRoot);
    QVERIFY(FeatureTreeModel::m_favorites.getExpanded());
    QVERIFY(second.isExpanded(secondRoot));
    first.collapse(firstRoot);
    QVERIFY(!FeatureTreeModel::m_favorites.getExpanded());
    QVERIFY(!second.isExpanded(secondRoot));
}

void TestFeatureTreeView::settingsPathGoesToTheStore()
{
    FeatureTreeView view;
    const QString before = view.getSettingsPath();
    view.setSettingsPath(QStringLiteral("OtherFavorites"));
    QCOMPARE(FeatureTreeModel::m_favorites.getSettingsPath(), QStringLiteral("OtherFavorites"));
    QCOMPARE(view.getSettingsPath(), QStringLiteral("OtherFavorites"));
    view.setSettingsPath(before);
}

QTEST_MAIN(TestFeatureTreeView)
#include "tst_featuretreeview.moc"
