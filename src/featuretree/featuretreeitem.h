#pragma once

#include "parameters/genapienums.h"
#include "zarvexviewercomponents_export.h"

#include <QList>
#include <QModelIndex>
#include <QObject>
#include <QString>
#include <QVariant>

#include <memory>

class IFeatureTreeModelExtension;

/*!
 * A plain item of the feature tree: the invisible root, a zombie favourite,
 * a help or status line. Parameter items are FeatureTreeINodeItem.
 *
 * Ownership: an item owns its children (deleted with it or by
 * clearChildren()); removeChild() hands one back without deleting it. The
 * parent pointer is set at construction and never changes; appendChild and
 * insertChild don't touch it. The extension is not owned.
 */
class ZVC_EXPORT FeatureTreeItem : public QObject
{
    Q_OBJECT

public:
    //! What editor the delegate makes for an item.
    enum EditorType {
        EditorInt = 0,
        EditorIntSlider = 1,
        EditorFloat = 2,
        EditorFloatSlider = 3,
        EditorEnum = 4,
        EditorBool = 5,
        EditorString = 6,
        EditorCommand = 7,
        EditorNone = 10,
        EditorInvalid = 11
    };

    //! Data roles of the feature tree, above Qt::UserRole. The gaps are part of the numbering.
    enum DataRole {
        NodeNameRole = Qt::UserRole + 0x01,
        NodeToolTipRole = Qt::UserRole + 0x02,
        NodeDescriptionRole = Qt::UserRole + 0x03,
        NodeDocuUrlRole = Qt::UserRole + 0x04,
        IsCategoryRole = Qt::UserRole + 0x05,
        VisibilityRole = Qt::UserRole + 0x06,
        ItemIdRole = Qt::UserRole + 0x0a,
        IsFullRowRole = Qt::UserRole + 0x0c,
        IsSpecialNodeRole = Qt::UserRole + 0x0d,
        ShowMeRole = Qt::UserRole + 0x0e,
        FullNameRole = Qt::UserRole + 0x20
    };

    FeatureTreeItem(const QString& displayedName, IFeatureTreeModelExtension* extension, const QString& fullName,
        FeatureTreeItem* parent);
    ~FeatureTreeItem() override;

    FeatureTreeItem(const FeatureTreeItem&) = delete;
    FeatureTreeItem& operator=(const FeatureTreeItem&) = delete;

    virtual void clearChildren();
    virtual int childCount();
    virtual QVariant data(int column, int role) const;
    virtual void setData(int column, const QVariant& value, int role);
    virtual int row() const;
    virtual FeatureTreeItem* parent();
    virtual const FeatureTreeItem* parent() const;
    virtual IFeatureTreeModelExtension* getExtension();
    virtual const IFeatureTreeModelExtension* getExtension() const;
    virtual int editorType() const;
    virtual bool hasChildren() const;
    virtual bool ShowMe(GenApi::EVisibility visibility) const;
    virtual GenApi::EAccessMode getAccessMode() const;
    virtual GenApi::EVisibility getVisibility() const;
    virtual void setVisibility(GenApi::EVisibility visibility);
    virtual Qt::ItemFlags flags(int column) const;
    virtual QVariant GetForegroundRole() const;
    virtual bool usePersistentEditor() const;
    virtual bool isEditable() const;

    //! 10 for an item, 11 for null.
    static int editorType(const FeatureTreeItem* item);
    //! 11 for any index that has a model; for an index with a negative row or column, the result for its item.
    static int editorType(const QModelIndex& index);

    void appendChild(FeatureTreeItem* child);
    void insertChild(FeatureTreeItem* child, int row);
    //! Null outside 0 to count - 1. Fetches nothing.
    FeatureTreeItem* child(int row) const;
    //! Takes the child out and returns it without deleting it; null at or past the end.
    FeatureTreeItem* removeChild(int row);
    //! The children built so far, without fetching.
    int builtChildCount() const { return m_children.count(); }
    int columnCount() const { return 2; }

    QString getDisplayedName() const;
    void setDisplayedName(QString name);
    QString getFullName() const;
    bool HasDescription() const;
    void SetDescription(QString description);
    QString GetDescription() const;
    void SetToolTip(const QString& toolTip);
    QString GetToolTip() const;
    void SetIsFullRowItem(bool fullRow);
    void SetIsSpecialNode(bool special);
    bool isFullRowItem() const { return m_fullRow; }
    bool isSpecialNode() const { return m_specialNode; }

    //! The item itself or one of its built descendants is item; compares addresses only.
    bool findShallow(const FeatureTreeItem* item) const;
    FeatureTreeItem* findByFullNameShallow(const QString& fullName);
    FeatureTreeItem* findByRoleShallow(int role, const QVariant& value);

protected:
    //! The roles every item answers the same way, after the column-specific ones.
    QVariant commonData(int role) const;

    // Description and tool tip of a plain item, made on the first
    // SetDescription or SetToolTip: one pointer in every item instead of two,
    // since items that stand for a parameter keep their texts elsewhere.
    struct Texts
    {
        QString description;
        QString toolTip;
        bool hasToolTip = false;
    };
    Texts& texts();

    std::unique_ptr<Texts> m_texts;
    QString m_displayedName;
    qint32 m_visibility = GenApi::_UndefinedVisibility;

private:
    // Where this item last stood in its parent's list: row() checks it first,
    // so that asking the row of an item in a wide category stays cheap. (It
    // sits here, beside the visibility, where it fills what would be padding.)
    mutable int m_rowHint = -1;

protected:
    QString m_fullName;
    FeatureTreeItem* m_parent; // not owned
    QList<FeatureTreeItem*> m_children; // owned
    qint32 m_editorType = EditorNone;
    bool m_childrenFetched = false;
    bool m_fullRow = false;
    bool m_specialNode = false;
    // Set whenever the displayed name is set; a derived class that keeps text
    // built from the name clears it when it builds that text again.
    mutable bool m_displayedNameChanged = true;
    IFeatureTreeModelExtension* m_extension; // not owned
};
