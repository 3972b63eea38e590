/*!
 * \file featuretree/favoritesdata.h
 * FavoritesData, the process-wide list of the user's favourite features and
 * its place in the settings.
 */
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
 *
 * The settings group (normally "Favorites") holds "Version" (3),
 * "NumberOfEntries", one entry per favourite under its position ("0", "1",
 * ...) written as name, display name and node map joined by "*", and the
 * flags "ViewAll" and "Expanded". An entry that doesn't split into three
 * non-empty parts is dropped on loading. With no saved settings, a load
 * gives an empty list, view-all off and expanded on.
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

    //! An empty list, view-all on and expanded off until the first load.
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

    //! The settings group that the owners save to.
    QString getSettingsPath() const { return m_settingsPath; }
    //! Only redirects later saves; loads nothing.
    void setSettingsPath(const QString& settingsPath) { m_settingsPath = settingsPath; }

    //! The number of favourites.
    int countNodes() const { return m_items.count(); }
    //! index lies from 0 to countNodes() - 1.
    bool isValidIndex(int index) const { return index >= 0 && index < m_items.count(); }
    //! The favourite at index; null out of range.
    const FavoritesDataItem* nodeAt(int index) const;
    //! The favourite at index, writable; null out of range.
    FavoritesDataItem* nodeAt(int index);
    //! The position of the same favourite (equal name and node map), or -1.
    int indexOfNode(const FavoritesDataItem& item) const;

    /*!
     * Inserts a copy of item before index and announces the change. A
     * negative index counts from the end; the length appends. False for an
     * index out of range, an empty name, or a favourite the list holds already.
     */
    bool insertNode(int index, const FavoritesDataItem& item);
    //! Appends a copy of item and announces the change; refused as insertNode() refuses.
    bool appendNode(const FavoritesDataItem& item);
    //! Removes the favourite at index, copying it to removed unless that is null, and announces the change.
    //! False for an index out of range.
    bool removeNode(int index, FavoritesDataItem* removed);
    /*!
     * Moves the favourite at from to stand before the one now at to, as
     * counted before the move. A target the shortened list can't take loses
     * the favourite, unannounced: callers stay in range.
     */
    bool moveNode(int from, int to);

    //! Whether favourites that the present camera lacks are shown; a change is announced like one of the list.
    void setViewAllFavorites(bool viewAll);
    //! Whether favourites that the present camera lacks are shown.
    bool getViewAllFavorites() const { return m_viewAll; }

    //! Whether the favourites root is shown expanded; a change emits expanded(bool) at once.
    void setExpanded(bool expanded);
    //! Whether the favourites root is shown expanded.
    bool getExpanded() const { return m_expanded; }

    //! While on, dataUpdated() is held back; turning it off emits one dataUpdated() if anything changed meanwhile.
    void setDeferDataUpdatedSignals(bool defer);
    //! Whether dataUpdated() is held back.
    bool getDeferDataUpdatedSignals() const { return m_deferDataUpdatedSignals; }

    //! Emits dataUpdated(), or marks it pending while signals are deferred.
    void emitDataUpdatedSignal();

signals:
    //! The list or the view-all flag changed.
    void dataUpdated();
    //! The expansion flag changed.
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
