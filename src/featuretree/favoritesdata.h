#pragma once

#include "zarvexviewercomponents_export.h"

#include <QList>
#include <QObject>
#include <QString>

/*!
 * The user's favourite features: one list for the whole process, shared by
 * every tree, and the only code that knows how it is kept in the settings.
 *
 * The store holds names, never parameters, so a favourite is remembered while
 * no camera that offers it is connected. Every change of the list or of the
 * view-all flag is announced by dataUpdated(); a change of the expansion flag
 * by expanded(bool). Nothing is saved on a change: SaveFavorites() is called
 * by the owners when a view goes away or a model is destroyed.
 *
 * GUI thread only; there is no lock and all signals are direct.
 */
class ZVC_EXPORT FavoritesData : public QObject
{
    Q_OBJECT

public:
    /*!
     * One favourite. Two items are the same favourite when name and
     * nodeMapName are equal; displayName takes no part in that.
     */
    struct FavoritesDataItem
    {
        QString name; //!< the feature's name; never empty in the list
        QString displayName; //!< shown while the feature is unavailable
        QString nodeMapName; //!< such as "@CameraDevice"
    };

    explicit FavoritesData(QObject* parent = nullptr);

    //! Loads from settingsPath and remembers it as the default group, once per store.
    void InitOnce(const QString& settingsPath);

    //! Connects the view's onFavoriteDataUpdated() and onFavoriteDataExpanded(bool).
    bool Register(QObject* view);
    //! Saves to getSettingsPath(), then disconnects the view's two slots.
    bool Deregister(QObject* view);

    /*!
     * Adds the entries stored in `group` that the list does not hold yet and
     * reads the two flags. Each added entry is announced, and the load once
     * more at its end; a caller that wants one signal defers around it.
     * False, with nothing touched, for an empty group.
     */
    bool LoadFavorites(const QString& group);
    //! Writes the list and the flags to `group`. False, with nothing written, for an empty group.
    bool SaveFavorites(const QString& group);

    QString getSettingsPath() const { return m_settingsPath; }
    //! Only redirects later saves; loads nothing.
    void setSettingsPath(const QString& settingsPath) { m_settingsPath = settingsPath; }

    int countNodes() const { return m_items.count(); }
    bool isValidIndex(int index) const { return index >= 0 && index < m_items.count(); }
    const FavoritesDataItem* nodeAt(int index) const;
    FavoritesDataItem* nodeAt(int index);
    int indexOfNode(const FavoritesDataItem& item) const;

    bool insertNode(int index, const FavoritesDataItem& item);
    bool appendNode(const FavoritesDataItem& item);
    bool removeNode(int index, FavoritesDataItem* removed);
    bool moveNode(int from, int to);

    void setViewAllFavorites(bool viewAll);
    bool getViewAllFavorites() const { return m_viewAll; }

    void setExpanded(bool expanded);
    bool getExpanded() const { return m_expanded; }

    void setDeferDataUpdatedSignals(bool defer);
    bool getDeferDataUpdatedSignals() const { return m_deferDataUpdatedSignals; }

    //! Emits dataUpdated(), or marks it pending while signals are deferred.
    void emitDataUpdatedSignal();

signals:
    void dataUpdated();
    void expanded(bool expanded);

private:
    bool removeNodeImpl(int index, FavoritesDataItem* removed);

    bool m_initialized;
    bool m_viewAll;
    bool m_expanded;
    bool m_deferDataUpdatedSignals;
    bool m_dataUpdatedPending;
    QString m_settingsPath;
    QList<FavoritesDataItem> m_items;
};
