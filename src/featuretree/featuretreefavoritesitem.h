/*!
 * \file featuretree/featuretreefavoritesitem.h
 * FeatureTreeFavoritesItem, the root of the favourites branch of the feature tree.
 */
#pragma once

#include "featuretreeitem.h"

/*!
 * The root of the favourites branch. Shown at every user level, takes drops
 * in column 0, has no editor. Its full name is always "FavoritesTopLevel".
 */
class ZVC_EXPORT FeatureTreeFavoritesItem : public FeatureTreeItem
{
    Q_OBJECT

public:
    //! The root titled displayedName, below parent (the model's invisible root).
    FeatureTreeFavoritesItem(
        const QString& displayedName, IFeatureTreeModelExtension* extension, FeatureTreeItem* parent);
    ~FeatureTreeFavoritesItem() override;

    //! As a plain item's, except that column 0 counts as a category (IsCategoryRole).
    QVariant data(int column, int role) const override;
    //! EditorNone.
    int editorType() const override;
    //! Always true.
    bool ShowMe(GenApi::EVisibility visibility) const override;
    //! RW.
    GenApi::EAccessMode getAccessMode() const override;
    //! Beginner.
    GenApi::EVisibility getVisibility() const override;
    //! A plain item's flags, always enabled, and accepting drops in column 0.
    Qt::ItemFlags flags(int column) const override;
    //! Nothing: the root shows in the ordinary text colour.
    QVariant GetForegroundRole() const override;
    //! False.
    bool usePersistentEditor() const override;
    //! False.
    bool isEditable() const override;
};
