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
    FeatureTreeFavoritesItem(
        const QString& displayedName, IFeatureTreeModelExtension* extension, FeatureTreeItem* parent);
    ~FeatureTreeFavoritesItem() override;

    QVariant data(int column, int role) const override;
    int editorType() const override;
    bool ShowMe(GenApi::EVisibility visibility) const override;
    GenApi::EAccessMode getAccessMode() const override;
    GenApi::EVisibility getVisibility() const override;
    Qt::ItemFlags flags(int column) const override;
    QVariant GetForegroundRole() const override;
    bool usePersistentEditor() const override;
    bool isEditable() const override;
};
