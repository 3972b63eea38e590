#include "featuretreefavoritesitem.h"

FeatureTreeFavoritesItem::FeatureTreeFavoritesItem(
    const QString& displayedName, IFeatureTreeModelExtension* extension, FeatureTreeItem* parent)
    : FeatureTreeItem(displayedName, extension, QStringLiteral("FavoritesTopLevel"), parent)
{
}

FeatureTreeFavoritesItem::~FeatureTreeFavoritesItem() = default;

QVariant FeatureTreeFavoritesItem::data(int column, int role) const
{
    if (column == 0 && role == IsCategoryRole)
        return true;
    return FeatureTreeItem::data(column, role);
}

int FeatureTreeFavoritesItem::editorType() const
{
    return EditorNone;
}

bool FeatureTreeFavoritesItem::ShowMe(GenApi::EVisibility) const
{
    return true;
}

GenApi::EAccessMode FeatureTreeFavoritesItem::getAccessMode() const
{
    return GenApi::RW;
}

GenApi::EVisibility FeatureTreeFavoritesItem::getVisibility() const
{
    return GenApi::Beginner;
}

Qt::ItemFlags FeatureTreeFavoritesItem::flags(int column) const
{
    Qt::ItemFlags result = FeatureTreeItem::flags(column) | Qt::ItemIsEnabled;
    if (column == 0)
        result |= Qt::ItemIsDropEnabled;
    return result;
}

QVariant FeatureTreeFavoritesItem::GetForegroundRole() const
{
    return QVariant();
}

bool FeatureTreeFavoritesItem::usePersistentEditor() const
{
    return false;
}

bool FeatureTreeFavoritesItem::isEditable() const
{
    return false;
}
