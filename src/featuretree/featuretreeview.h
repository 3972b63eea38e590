#pragma once

#include "featuretreehighlighter.h"
#include "parameters/genapienums.h"
#include "zarvexviewercomponents_export.h"

#include <QPersistentModelIndex>
#include <QSet>
#include <QTreeView>

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
 */
class ZVC_EXPORT FeatureTreeView : public QTreeView
{
    Q_OBJECT

public:
    explicit FeatureTreeView(QWidget* parent = nullptr);
    ~FeatureTreeView() override;

    FeatureTreeView(const FeatureTreeView&) = delete;
    FeatureTreeView& operator=(const FeatureTreeView&) = delete;

    //! The view's model as the extension; null when the view has no model.
    IFeatureTreeModelExtension* getFeatureExtension();
    const IFeatureTreeModelExtension* getFeatureExtension() const;

    //! The view's own highlighter, shared by pointer with the proxy and the delegate.
    FeatureTreeHighlighter* getHightlighter();

    //! Where the favourites are kept; forwarded to the store.
    void setSettingsPath(QString const& path);
    QString getSettingsPath() const;

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

signals:
    void onCurrentChanged(QModelIndex current);

public slots:
    void setVisibility(GenApi::EVisibility visibility);
    void onSelfExpanded(QModelIndex const& index);
    void onSelfCollapsed(QModelIndex const& index);
    void onFavoriteDataUpdated();
    void onFavoriteDataExpanded(bool bExpand);

protected:
    void dataChanged(QModelIndex const& topLeft, QModelIndex const& bottomRight,
        QVector<int> const& roles = QVector<int>()) override;
    void rowsInserted(QModelIndex const& parent, int start, int end) override;
    void currentChanged(QModelIndex const& current, QModelIndex const& previous) override;
    QStyleOptionViewItem viewOptions() const override;
    void drawRow(QPainter* painter, QStyleOptionViewItem const& option, QModelIndex const& index) const override;
    void paintEvent(QPaintEvent* event) override;

    //! Makes model, proxy and delegate; a subclass may make others.
    virtual void createModel();

private:
    //! Hides a row and tells the host when the current row went with it.
    void hideRow(int row, QModelIndex const& parent);
    //! Visits the value cells of the children of an expanded parent.
    void forEachValueCell(QModelIndex const& parent,
        const std::function<void(int row, QModelIndex const& child, FeatureTreeItem* item)>& visit);

    GenApi::EVisibility m_visibility;
    QSet<QPersistentModelIndex> m_persistentIndexes;
    FeatureTreeHighlighter m_highlighter;
    // Made by createModel() without a parent; deleted by the destructor.
    QAbstractItemModel* m_ownedModel = nullptr;
    QAbstractItemModel* m_ownedProxy = nullptr;
};
