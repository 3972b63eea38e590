/*!
 * \file featuretree/featuretreeview.h
 * FeatureTreeView, the tree view of the feature tree.
 */
#pragma once

#include "featuretreehighlighter.h"
#include "parameters/genapienums.h"
#include "zarvexviewercomponents_export.h"

#include <QElapsedTimer>
#include <QHash>
#include <QPersistentModelIndex>
#include <QSet>
#include <QTreeView>

#include <deque>
#include <functional>

class FeatureTreeItem;
class IFeatureTreeModelExtension;

/*!
 * The tree view of the feature tree. It makes its own model, search proxy and
 * delegate, keeps one persistent editor open on every value cell that may
 * have one below an expanded parent, hides the rows that the present user
 * level rejects, and carries the selection across a rebuild of the
 * favourites by full name.
 *
 * The view registers with the process-wide favourites store, which calls
 * back onFavoriteDataUpdated() and onFavoriteDataExpanded().
 *
 * The view's model is always the proxy. While the proxy offers no row at
 * all, the view says "No search results found.". Selected rows are painted
 * without the selection colour.
 */
class ZVC_EXPORT FeatureTreeView : public QTreeView
{
    Q_OBJECT

public:
    /*!
     * A view at the Guru level with its own model, proxy and delegate,
     * registered with the favourites store, which is loaded from the
     * settings group "Favorites" by the first view of the process.
     */
    explicit FeatureTreeView(QWidget* parent = nullptr);
    //! Deregisters from the favourites store, which saves them, then deletes model and proxy.
    ~FeatureTreeView() override;

    //! Not copyable.
    FeatureTreeView(const FeatureTreeView&) = delete;
    //! Not copyable.
    FeatureTreeView& operator=(const FeatureTreeView&) = delete;

    //! The view's model as the extension; null when the view has no model.
    IFeatureTreeModelExtension* getFeatureExtension();
    //! The view's model as the extension; null when the view has no model.
    const IFeatureTreeModelExtension* getFeatureExtension() const;

    //! The view's own highlighter, shared by pointer with the proxy and the delegate.
    FeatureTreeHighlighter* getHightlighter();

    //! Where the favourites are kept; forwarded to the store.
    void setSettingsPath(QString const& path);
    //! The settings group the favourites are saved to; empty without a model.
    QString getSettingsPath() const;

    //! The user level that rows are shown for.
    GenApi::EVisibility getVisibility() const { return m_visibility; }

    /*!
     * Opens a persistent editor on a value cell, if the item still belongs to
     * the tree, wants one, is visible at the view's level and is accessible.
     * This is the only way the view opens persistent editors.
     */
    void openPersistentEditor(QModelIndex const& index);
    //! Opens the editors of the direct children of an expanded parent.
    void openPersistentEditorsForChildren(QModelIndex const& parent);
    //! Brings hidden rows and editors below an expanded parent up to date with the level.
    void updateRows(QModelIndex const& parent);

    /*!
     * Brackets a change that may move many rows at once, such as a new search
     * text. Until the matching endBulkChange() no editor opens. Each row
     * range that the model removes or inserts walks every open editor; once
     * the ranges of the bracket have cost more such visits than the editor
     * budget, every persistent editor except the one of the current row is
     * closed, and the remaining ranges are cheap. Calls nest.
     */
    void beginBulkChange();
    //! Ends a bracket; the last one opens the editors of every visible value row in one pass.
    void endBulkChange();
    //! Inside a beginBulkChange() bracket.
    bool isInBulkChange() const { return m_bulkDepth > 0; }
    /*!
     * Editor visits (ranges times open editors) that a bulk change lets pass
     * before it closes the editors. 0, the default, closes them at the first
     * range: on cameras of 1 000 and 10 000 features that made a search
     * keystroke fastest, and on the default camera it costs no more than
     * keeping them. The delegate keeps the closed editors aside, and the
     * rows that stay get theirs back. A larger budget lets a small tree
     * keep its editors open throughout.
     */
    void setBulkEditorBudget(qint64 visits) { m_bulkEditorBudget = qMax<qint64>(0, visits); }
    //! The editor visits a bulk change lets pass before it closes the editors.
    qint64 bulkEditorBudget() const { return m_bulkEditorBudget; }
    //! Opens the missing editors of the visible value rows below expanded parents, from `parent` down.
    void openVisibleEditors(QModelIndex const& parent = QModelIndex());

    /*!
     * Whether some editors are still to be opened in later turns of the event
     * loop. After a change that brings many rows at once (the end of a bulk
     * change, an expansion, inserted rows, a new layout) the editors of the
     * rows in sight open before the next paint and the others in short
     * slices, top to bottom, so that the view answers meanwhile. Once the
     * events are processed every visible value row has its editor.
     */
    bool hasEditorsToOpen() const { return !m_waitingBranches.empty(); }
    //! Opens now every editor that is still waiting for a later turn of the event loop.
    void openWaitingEditors();

signals:
    //! The current row changed, also to none when the current row was hidden.
    void onCurrentChanged(QModelIndex current);

public slots:
    //! Shows the rows of this user level, rebuilding the favourites and refreshing the first node map.
    //! Nothing happens for the level and model of the last call.
    void setVisibility(GenApi::EVisibility visibility);
    //! A row was expanded: brings its children's rows and editors up to date; for the favourites root,
    //! remembers that it is expanded.
    void onSelfExpanded(QModelIndex const& index);
    //! A row was collapsed; for the favourites root, remembers that it is collapsed. Editors stay open.
    void onSelfCollapsed(QModelIndex const& index);
    //! The favourites changed: rebuilds the branch and selects again, by full name, what was selected.
    void onFavoriteDataUpdated();
    //! Expands or collapses the favourites root as the store says.
    void onFavoriteDataExpanded(bool bExpand);

private slots:
    //! Opens the editors of the rows that a re-filtering brought into sight.
    void onModelLayoutChanged();

protected:
    /*!
     * Repairs a changed row: spans full-row items, hides or shows the row for
     * the level, and opens or closes its editor as the access mode and the
     * level now allow.
     */
    void dataChanged(QModelIndex const& topLeft, QModelIndex const& bottomRight,
        QVector<int> const& roles = QVector<int>()) override;
    //! Opens the editors of the inserted rows.
    void rowsInserted(QModelIndex const& parent, int start, int end) override;
    //! Closes the editors first where a bulk change calls for it.
    void rowsAboutToBeRemoved(QModelIndex const& parent, int start, int end) override;
    //! Emits onCurrentChanged() first.
    void currentChanged(QModelIndex const& current, QModelIndex const& previous) override;
    // The item view's hook for the options its rows are painted with: a
    // function that returns them in Qt 5, one that fills them in in Qt 6.
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    //! The base class's options with a transparent highlight, so that selection doesn't colour the editors.
    QStyleOptionViewItem viewOptions() const override;
#else
    //! The base class's options with a transparent highlight, so that selection doesn't colour the editors.
    void initViewItemOption(QStyleOptionViewItem* option) const override;
#endif
    //! Paints a selected row as if it were not selected, with no selection signal.
    void drawRow(QPainter* painter, QStyleOptionViewItem const& option, QModelIndex const& index) const override;
    //! Paints the rows, or "No search results found." when there are none.
    void paintEvent(QPaintEvent* event) override;
    //! Places the editors once per turn of the event loop, however often it is asked.
    void updateEditorGeometries() override;
    //! Scrolls, then shows the editors of the rows that came into sight.
    void scrollContentsBy(int dx, int dy) override;

public:
    //! The cell's rectangle; while the editors are placed, an empty one for a cell out of sight.
    QRect visualRect(QModelIndex const& index) const override;
    //! Drops the editors still waiting to open along with the rows they were for.
    void reset() override;

protected:
    //! Makes model, proxy and delegate; a subclass may make others.
    virtual void createModel();

private:
    //! Hides a row and tells the host when the current row went with it.
    void hideRow(int row, QModelIndex const& parent);
    //! Brings the hidden rows below an expanded parent up to date with the
    //! level, and opens their editors at once if asked to.
    void updateRowsOf(QModelIndex const& parent, bool openEditors);
    //! Visits the value cells of the children of an expanded parent.
    void forEachValueCell(QModelIndex const& parent,
        const std::function<void(int row, QModelIndex const& child, FeatureTreeItem* item)>& visit);

    //! Closes the persistent editors, all but the current row's, once in a bulk change.
    void closeEditorsForBulkChange();
    //! Places the editors once for all the layout changes since the last call.
    void placeEditors();
    //! Whether the cell's editor stays shown although its row is out of sight.
    bool keepsEditorShown(QModelIndex const& index, QRect const& cell) const;
    //! Shows and places the hidden editors of the rows in sight, and opens
    //! those that are still waiting.
    void showEditorsInSight();

    //! Whether the value cell's row asks for an editor that it does not have yet.
    bool wantsEditor(QModelIndex const& value) const;
    //! Puts the branch below an expanded parent (or the whole tree for the
    //! root) among the waiting ones, expanded children included, and asks
    //! for a slice.
    void openEditorsSoon(QModelIndex const& parent);
    //! Opens the waiting editors of the rows in sight.
    void openEditorsInSight();
    //! Opens the waiting editors of the children of an expanded parent that are in sight.
    void openChildEditorsInSight(QModelIndex const& parent);
    //! One slice: the rows in sight, then waiting branches for a few milliseconds.
    void openEditorSlice();
    //! Opens waiting editors, top to bottom, until `nanoseconds` have passed (-1: all).
    void openWaitingEditorsFor(qint64 nanoseconds);
    //! Opens waiting editors for what is left of this turn's allowance.
    void openWaitingEditorsWithinTurn();
    //! Asks for a slice in the next turn of the event loop.
    void postEditorSlice();
    //! Forgets every waiting editor.
    void dropWaitingEditors();
    // The editors kept aside by the last bulk change go; with `whenAllOpen`,
    // only once no editor is waiting to open and no bulk change is running.
    void releaseParkedEditors(bool whenAllOpen);
    // Posts `call` to the event loop unless the flag `posted` says it is
    // posted already; the call is skipped if the flag is cleared before it runs.
    void postOnce(bool FeatureTreeView::*posted, void (FeatureTreeView::*call)());

    GenApi::EVisibility m_visibility;
    QSet<QPersistentModelIndex> m_persistentIndexes;
    FeatureTreeHighlighter m_highlighter;
    // Made by createModel() without a parent; deleted by the destructor.
    QAbstractItemModel* m_ownedModel = nullptr;
    QAbstractItemModel* m_ownedProxy = nullptr;
    // The cells of the persistent editors that this view opened. The copies
    // share their data with the base class's own, so they add no persistent
    // index that the model has to keep up to date.
    QSet<QPersistentModelIndex> m_editorIndexes;
    int m_bulkDepth = 0;
    bool m_editorsClosedForBulk = false;
    qint64 m_bulkEditorVisits = 0;
    qint64 m_bulkEditorBudget = 0;
    bool m_placeEditorsPosted = false;
    bool m_placingEditors = false;
    // Some editor was hidden because its row was out of sight.
    mutable bool m_editorsOutOfSight = false;
    // The cell that visualRect() was last asked for and its rectangle, so
    // that opening an editor does not work it out a second time.
    mutable QModelIndex m_lastVisualIndex;
    mutable QRect m_lastVisualRect;

    // A branch whose editors are still to be opened: the rows of `parent`
    // from `nextRow` on, and below those of them that are expanded. Rows
    // inserted or removed before `nextRow` meanwhile move it along with them.
    struct WaitingBranch
    {
        QPersistentModelIndex parent;
        bool root = false;
        int nextRow = 0;
        quint64 ticket = 0;
    };
    // The waiting branches in the order of the view's rows; the front one
    // is walked first.
    std::deque<WaitingBranch> m_waitingBranches;
    // The ticket of each parent's live entry (the root's apart); an entry
    // whose parent has since been given a newer ticket, or none, is skipped.
    QHash<QPersistentModelIndex, quint64> m_waitingTickets;
    quint64 m_rootTicket = 0;
    quint64 m_nextTicket = 0;
    bool m_editorSlicePosted = false;
    // Runs from the first editor opened at once in this turn of the event loop.
    QElapsedTimer m_turnClock;
    bool m_openingWaitingEditors = false;
};
