/*!
 * \file featuretree/featuretreewidget.h
 * FeatureTreeWidget, the searchable tree of a camera's GenICam features: the
 * widget a host places in its window.
 */
#pragma once

#include "parameters/genapienums.h"
#include "parameters/ibaseinfo.h"
#include "parameters/iparameter.h"
#include "parameters/iparametercollection.h"
#include "treewidgetbase.h"
#include "zarvexviewercomponents_export.h"

#include <QList>
#include <QModelIndex>
#include <QSharedPointer>
#include <QString>
#include <QVariant>

class FeatureTreeItem;
class FeatureTreeView;
class IFeatureTreeModelExtension;
class QAction;
class QMenu;
class Ui_FeatureTreeWidgetClass;

/*!
 * The searchable tree of the GenICam features of one camera, with a live
 * value and an in-place editor for each feature, the favourites, polling and
 * refresh. A host constructs it with the camera's information, adds the node
 * maps of the device with addParameterCollection(), and listens to its
 * signals. The tree view inside makes the model and the proxy; the widget
 * turns the user's gestures into calls on them and into signals.
 *
 * A typical life: construct it, optionally setVisibility() and
 * restoreState(); addParameterCollection() once per node map; setPolling(true)
 * while the device is open; deviceIsClosed() and clear() when it goes away;
 * saveState() before destroying it. Errors are not shown by the widget: they
 * are queued on GetTheGlobalAsyncErrorQueue() for the host to show.
 *
 * Above the tree sits a search line (F3 or Ctrl+F); below it the check boxes
 * "Show Unavailable Favorites" and "Polling" and a refresh button (F5). Esc
 * pressed twice clears the search. Ctrl+D adds the current feature to the
 * favourites; Ctrl+Up, Ctrl+Down and Delete move and remove favourites. The
 * widget uses the application's default QSettings (groups "FeatureTree" and
 * "Favorites"), so set the organisation and application name first.
 */
class ZVC_EXPORT FeatureTreeWidget : public TreeWidgetBase
{
    Q_OBJECT

public:
    //! The level and the flag are kept for the signature's sake: the tree starts at Guru, see setVisibility().
    explicit FeatureTreeWidget(QString text = QString(),
        QSharedPointer<Plugin::CameraPool::IBaseInfo> cameraInfo = QSharedPointer<Plugin::CameraPool::IBaseInfo>(),
        QWidget* parent = nullptr, GenApi::EVisibility visibility = GenApi::Beginner, bool flag = false);
    ~FeatureTreeWidget() override;

    FeatureTreeWidget(const FeatureTreeWidget&) = delete;
    FeatureTreeWidget& operator=(const FeatureTreeWidget&) = delete;

    //! The form's FeatureTreeView.
    QTreeView* treeView() override;
    //! The form's FeatureTreeView.
    const QTreeView* treeView() const override;

    //! The user level the tree shows.
    GenApi::EVisibility visibility() const;
    //! Shows the features up to this user level; emits nothing (see onVisibilityChanged()).
    void setVisibility(GenApi::EVisibility visibility);
    //! Keeps a text for the host; the widget doesn't read it.
    void setCameraType(QString cameraType);
    //! 400 x 500.
    QSize sizeHint() const override;

    //! Starts or stops polling the values every 300 ms, and sets the polling check box to match.
    void setPolling(bool on);
    //! Whether polling is on.
    bool getPolling() const;
    //! Shows or hides the polling check box.
    void setPollingVisible(bool visible);
    //! Shows or hides the favourites that the camera lacks, and sets the check box to match.
    void setViewAllFavorites(bool on);
    //! Whether favourites that the camera lacks are shown.
    bool getViewAllFavorites() const;
    //! Shows or hides the "Show Unavailable Favorites" check box.
    void setViewAllFavoritesVisible(bool visible);
    //! While off, the tree ignores the parameters' change signals and keeps showing the last values.
    void EnableGenICamCallbacks(bool on);
    //! The device has gone: polling ends, writes are refused, the tree keeps its last values.
    void deviceIsClosed();
    //! Reads every value of the first node map from the device again, as the refresh button does.
    void Refresh();
    //! Filters the tree again with the present search text and level.
    void refreshTree();
    //! Expands the top-level rows, and nothing below them.
    void expandRootNodes();

    //! The tree's model (the search proxy) as the extension; null without a model.
    IFeatureTreeModelExtension* getFeatureExtension();
    //! The tree's model (the search proxy) as the extension; null without a model.
    const IFeatureTreeModelExtension* getFeatureExtension() const;
    //! The tree's current index.
    QModelIndex GetCurrentIndex() const;
    //! The item of the current row; null for none.
    FeatureTreeItem* GetCurrentItem() const;
    //! The parameter of the current row; null for a row that stands for none.
    QSharedPointer<ParameterCollection::IParameter> GetCurrentNode() const;
    //! The current row is a row of the favourites list.
    bool IsCurrentFavorite() const;
    //! True when the global point lies on the current row of the tree.
    bool IsOnCurrentItem(QPoint const& globalPoint);

    // Expansion and selection memory, kept for the length of a search.
    //! Remembers which rows are expanded; the search calls it as it starts.
    void saveExpandedStatus();
    //! Expands the rows remembered and collapses all others; the search calls it as it ends.
    void restoreExpandedStatus();
    //! Remembers index and, below it, the expanded rows, if index is expanded.
    void saveExpandedOnLevel(QModelIndex const& index);
    //! Expands or collapses index and every row below it as remembered.
    void restoreExpandedOnLevel(QModelIndex const& index);
    //! Remembers the current row.
    void saveSelectionStatus();
    //! Makes the remembered row current again, where it can be found.
    void restoreSelectionStatus();

signals:
    //! The widget builds the menu; a listener adds its own entries and shows it.
    //!
    //! The menu holds the favourites actions of the current row; point is in
    //! the widget's coordinates. The menu goes when the last shared pointer
    //! lets go of it. Nothing is shown without a listener.
    void contextMenuRequested(QPoint const& point, QSharedPointer<QMenu> ptrMenu);
    //! onVisibilityChanged() changed the user level.
    void visibilityChanged(GenApi::EVisibility visibility);
    //! The current row now stands for this parameter; not emitted while the search line has the focus.
    void onCurrentChanged(QSharedPointer<ParameterCollection::IParameter> parameter);
    //! The current row stands for no parameter but has this description.
    void onNewText(QString str);
    //! The user switched polling with the check box or the polling action.
    void pollingStateChanged(bool on);
    //! The user clicked "Show Unavailable Favorites"; the host answers with setViewAllFavorites().
    void viewAllFavoritesStateChanged(bool on);
    //! The total of matches, then those of them that the present level hides.
    void filterMatchesChanged(int total, int hidden);

public slots:
    //! In monitor mode each poll refreshes every value of the first node map instead of polling it.
    void setMonitorMode(bool on);
    //! Removes every item from the tree, the favourites branch and the search result line included,
    //! resetting the views around it. Polling and refresh still reach the first node map.
    void clear();
    //! Expands the tree three levels deep.
    void expandTree();
    /*!
     * Adds one node map of the device. rootName is the text of its top-level
     * row; roleName is the node map's name ("@CameraDevice",
     * "@DeviceTransportLayer", ...), by which the filter for the camera's
     * transport-layer type is chosen and favourites are bound. isUtf8 writes
     * text values as UTF-8 rather than Latin-1.
     */
    void addParameterCollection(QSharedPointer<ParameterCollection::IParameterCollection> pParameterCollection,
        QString const& rootName, QString const& roleName, bool isUtf8);
    //! setPolling(newState); the answer to pollingStateChanged().
    void onPollingStateChanged(bool newState);
    //! The whole tree as the view's model shows it, as plain text.
    void copyToClipboard();

protected:
    //! Hands a font change on to every descendant widget, the tree's editors included.
    bool event(QEvent* event) override;
    //! A second Esc in a row, in any feature tree of the process, clears the search line.
    void keyPressEvent(QKeyEvent* event) override;

protected slots:
    //! The tree's current row changed: emits onCurrentChanged() or onNewText() and enables the favourites actions.
    void onCurrentChanged(QModelIndex const& current);
    //! Builds the context menu of the current row and emits contextMenuRequested().
    void contextualMenu(QPoint const& point);
    /*!
     * Filters and marks the tree by the search text and reports the matches
     * with filterMatchesChanged() and in the result line at the top.
     * Expansion and current row are saved when a search starts and restored
     * when it ends.
     */
    void onFilterTextChanged(QString const& newText);
    //! For a host's level selector: 0 to 3 for Beginner to Invisible, anything else ignored.
    //! Sets the level, emits visibilityChanged() and searches again.
    void onVisibilityChanged(int level);

private slots:
    void on_resetButton_clicked();
    void on_checkBoxPolling_clicked();
    void on_checkBoxViewAllFavorites_clicked();
    void AddToFavourites_triggered();
    void FavouriteMoveUp_triggered();
    void FavouriteMoveDown_triggered();
    void FavouriteRemove_triggered();
    void TogglePolling_triggered();

private:
    FeatureTreeView* featureTreeView() const;
    QAction* createFavouritesAction(const char* objectName, QKeySequence const& shortcut, QString const& iconFile,
        QString const& text, const char* slot);

    QList<quint64> m_savedExpandedKeys;
    QVariant m_savedSelectionKey;
    Ui_FeatureTreeWidgetClass* ui;
    QAction* actionAddToFavourites = nullptr;
    QAction* actionMoveFavouriteUp = nullptr;
    QAction* actionMoveFavouriteDown = nullptr;
    QAction* actionRemoveFavourite = nullptr;
    QAction* actionTogglePolling = nullptr;
    QString m_text;
    bool m_firstFilter = true;
    QString m_filterText;
    QString m_cameraType;
    QSharedPointer<Plugin::CameraPool::IBaseInfo> m_cameraInfo;
};
