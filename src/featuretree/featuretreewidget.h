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

    QTreeView* treeView() override;
    const QTreeView* treeView() const override;

    GenApi::EVisibility visibility() const;
    void setVisibility(GenApi::EVisibility visibility);
    void setCameraType(QString cameraType);
    QSize sizeHint() const override;

    void setPolling(bool on);
    bool getPolling() const;
    void setPollingVisible(bool visible);
    void setViewAllFavorites(bool on);
    bool getViewAllFavorites() const;
    void setViewAllFavoritesVisible(bool visible);
    void EnableGenICamCallbacks(bool on);
    void deviceIsClosed();
    void Refresh();
    void refreshTree();
    void expandRootNodes();

    IFeatureTreeModelExtension* getFeatureExtension();
    const IFeatureTreeModelExtension* getFeatureExtension() const;
    QModelIndex GetCurrentIndex() const;
    FeatureTreeItem* GetCurrentItem() const;
    QSharedPointer<ParameterCollection::IParameter> GetCurrentNode() const;
    bool IsCurrentFavorite() const;
    //! True when the global point lies on the current row of the tree.
    bool IsOnCurrentItem(QPoint const& globalPoint);

    // Expansion and selection memory, kept for the length of a search.
    void saveExpandedStatus();
    void restoreExpandedStatus();
    void saveExpandedOnLevel(QModelIndex const& index);
    void restoreExpandedOnLevel(QModelIndex const& index);
    void saveSelectionStatus();
    void restoreSelectionStatus();

signals:
    //! The widget builds the menu; a listener adds its own entries and shows it.
    void contextMenuRequested(QPoint const& point, QSharedPointer<QMenu> ptrMenu);
    void visibilityChanged(GenApi::EVisibility visibility);
    void onCurrentChanged(QSharedPointer<ParameterCollection::IParameter> parameter);
    void onNewText(QString str);
    void pollingStateChanged(bool on);
    void viewAllFavoritesStateChanged(bool on);
    //! The total of matches, then those of them that the present level hides.
    void filterMatchesChanged(int total, int hidden);

public slots:
    void setMonitorMode(bool on);
    void clear();
    void expandTree();
    void addParameterCollection(QSharedPointer<ParameterCollection::IParameterCollection> pParameterCollection,
        QString const& rootName, QString const& roleName, bool isUtf8);
    void onPollingStateChanged(bool newState);
    //! The whole tree as the view's model shows it, as plain text.
    void copyToClipboard();

protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

protected slots:
    void onCurrentChanged(QModelIndex const& current);
    void contextualMenu(QPoint const& point);
    void onFilterTextChanged(QString const& newText);
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
