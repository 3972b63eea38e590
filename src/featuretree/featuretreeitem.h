/*!
 * \file featuretree/featuretreeitem.h
 * FeatureTreeItem, the plain item of the feature tree, with the editor types
 * and the data roles that every part of the tree uses.
 */
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
    /*!
     * What editor the delegate makes for an item. The underlying type is
     * fixed so that any int is a value; an unnamed one (8, 9, -1, ...) gets
     * the delegate's default editor, as a string does.
     */
    enum EditorType : int {
        EditorInt = 0, //!< an integer of any representation but "Linear" and "Logarithmic": IntEditor
        EditorIntSlider = 1, //!< an integer shown as "Linear" or "Logarithmic": IntSliderEditor
        EditorFloat = 2, //!< a float of any other representation: FloatEditor
        //! a float shown as "Linear" or "Logarithmic": FloatSliderEditor where it has an alias, else FloatEditor
        EditorFloatSlider = 3,
        EditorEnum = 4, //!< an enumeration: EnumEditor
        EditorBool = 5, //!< a boolean: CheckBoxEditor
        EditorString = 6, //!< a string: the delegate's default line edit, opened on demand
        EditorCommand = 7, //!< a command: ToolButtonEditor
        EditorNone = 10, //!< a category, another kind, or an item that stands for no parameter: no editor
        EditorInvalid = 11 //!< a null or zombie parameter: no editor
    };

    //! Data roles of the feature tree, above Qt::UserRole. The gaps are part of the numbering.
    enum DataRole {
        NodeNameRole = Qt::UserRole + 0x01, //!< the name searched: the parameter's short name, a plain item's full name
        NodeToolTipRole = Qt::UserRole + 0x02, //!< the parameter's "Tooltip" property as it stands
        NodeDescriptionRole = Qt::UserRole + 0x03, //!< the parameter's "Description" property
        NodeDocuUrlRole = Qt::UserRole + 0x04, //!< the parameter's "DocuURL" property
        IsCategoryRole = Qt::UserRole + 0x05, //!< the item is a category (the favourites root counts as one)
        VisibilityRole = Qt::UserRole + 0x06, //!< the item's GenApi::EVisibility, as an integer
        //! a key of the row for remembering expansion: a hash of a plain item's full name; a parameter
        //! item's column 0 gives a new text on every request
        ItemIdRole = Qt::UserRole + 0x0a,
        //! the row spans both columns (node map roots, categories, the special lines)
        IsFullRowRole = Qt::UserRole + 0x0c,
        IsSpecialNodeRole = Qt::UserRole + 0x0d, //!< a special line, painted without search marks
        ShowMeRole = Qt::UserRole + 0x0e, //!< ShowMe() at the Guru level
        FullNameRole = Qt::UserRole + 0x20 //!< the item's full name
    };

    /*!
     * An item showing displayedName, keyed by fullName, below parent. The item
     * doesn't add itself to the parent's children: the builder appends it.
     */
    FeatureTreeItem(const QString& displayedName, IFeatureTreeModelExtension* extension, const QString& fullName,
        FeatureTreeItem* parent);
    //! Deletes the children.
    ~FeatureTreeItem() override;

    FeatureTreeItem(const FeatureTreeItem&) = delete;
    FeatureTreeItem& operator=(const FeatureTreeItem&) = delete;

    //! Deletes every child and empties the list.
    virtual void clearChildren();
    //! The number of children; a parameter item fetches its children first.
    virtual int childCount();
    /*!
     * What the item shows in column for role: the displayed name in column 0,
     * nothing in column 1, and the data roles of DataRole and the tool tip in
     * any column. A role the item doesn't know gives an invalid QVariant.
     */
    virtual QVariant data(int column, int role) const;
    //! Writes a value; does nothing here.
    virtual void setData(int column, const QVariant& value, int role);
    //! The item's row under its parent: 0 without a parent, -1 if the parent doesn't hold it.
    virtual int row() const;
    //! The parent item; null for the invisible root.
    virtual FeatureTreeItem* parent();
    //! The parent item; null for the invisible root.
    virtual const FeatureTreeItem* parent() const;
    //! The model the item belongs to, as the extension; not owned.
    virtual IFeatureTreeModelExtension* getExtension();
    //! The model the item belongs to, as the extension; not owned.
    virtual const IFeatureTreeModelExtension* getExtension() const;
    //! The editor the delegate makes for the item, one of EditorType; EditorNone here.
    virtual int editorType() const;
    //! True when the item has children built.
    virtual bool hasChildren() const;
    //! The item shows at this user level: its own visibility is at most visibility.
    virtual bool ShowMe(GenApi::EVisibility visibility) const;
    //! The access mode of the item's value; NA here, as a plain item has none.
    virtual GenApi::EAccessMode getAccessMode() const;
    //! The item's user level; 99 (undefined) until setVisibility().
    virtual GenApi::EVisibility getVisibility() const;
    //! Sets the item's user level.
    virtual void setVisibility(GenApi::EVisibility visibility);
    /*!
     * Qt's item flags for column: selectable, draggable and enabled in column
     * 0; editable in column 1 where the item keeps an editor open or its
     * access mode is NI or WO. The help line of an empty favourites list
     * ("Dummy") has none at all.
     */
    virtual Qt::ItemFlags flags(int column) const;
    //! The text brush of the row: the palette's disabled text here, so that a plain item shows grey.
    virtual QVariant GetForegroundRole() const;
    //! The view keeps an editor open on the value: every editor type but EditorInt, EditorString and EditorNone.
    virtual bool usePersistentEditor() const;
    //! The value may be edited; false here.
    virtual bool isEditable() const;

    //! 10 for an item, 11 for null.
    static int editorType(const FeatureTreeItem* item);
    //! 11 for any index that has a model; for an index with a negative row or column, the result for its item.
    static int editorType(const QModelIndex& index);

    //! Takes child as the last child; the child's parent was set when it was built.
    void appendChild(FeatureTreeItem* child);
    //! Takes child at row; the child's parent was set when it was built.
    void insertChild(FeatureTreeItem* child, int row);
    //! Null outside 0 to count - 1. Fetches nothing.
    FeatureTreeItem* child(int row) const;
    //! Takes the child out and returns it without deleting it; null at or past the end.
    FeatureTreeItem* removeChild(int row);
    //! The children built so far, without fetching.
    int builtChildCount() const { return m_children.count(); }
    //! Always 2: name and value.
    int columnCount() const { return 2; }

    //! The text of column 0.
    QString getDisplayedName() const;
    //! Sets the text of column 0.
    void setDisplayedName(QString name);
    //! The key of the item: a parameter's full name, or a name of the tree's own such as "FavoritesTopLevel".
    QString getFullName() const;
    //! The item has a description, and it isn't empty.
    bool HasDescription() const;
    //! Sets the description that FeatureTreeWidget::onNewText() reports for the row.
    void SetDescription(QString description);
    //! The description; empty where there is none.
    QString GetDescription() const;
    //! Sets the tool tip of the row.
    void SetToolTip(const QString& toolTip);
    //! The tool tip; empty where there is none.
    QString GetToolTip() const;
    //! Makes the row span both columns (IsFullRowRole).
    void SetIsFullRowItem(bool fullRow);
    //! Marks the row as a special line (IsSpecialNodeRole).
    void SetIsSpecialNode(bool special);
    //! The row spans both columns.
    bool isFullRowItem() const { return m_fullRow; }
    //! The row is a special line.
    bool isSpecialNode() const { return m_specialNode; }

    //! The item itself or one of its built descendants is item; compares addresses only.
    bool findShallow(const FeatureTreeItem* item) const;
    //! The item itself or its first built descendant, depth first, whose full name is fullName; null if none.
    FeatureTreeItem* findByFullNameShallow(const QString& fullName);
    //! The item itself or its first built descendant, depth first, whose column 0 answers value in role;
    //! null if none.
    FeatureTreeItem* findByRoleShallow(int role, const QVariant& value);

protected:
    //! The roles every item answers the same way, after the column-specific ones.
    QVariant commonData(int role) const;

    //! Description and tool tip of a plain item, made on the first
    //! SetDescription or SetToolTip: one pointer in every item instead of two,
    //! since items that stand for a parameter keep their texts elsewhere.
    struct Texts
    {
        QString description; //!< as given to SetDescription()
        QString toolTip; //!< as given to SetToolTip()
        bool hasToolTip = false; //!< SetToolTip() was called
    };
    //! The texts, made on first use.
    Texts& texts();

    std::unique_ptr<Texts> m_texts; //!< null until a description or a tool tip is set
    QString m_displayedName; //!< the text of column 0
    qint32 m_visibility = GenApi::_UndefinedVisibility; //!< a GenApi::EVisibility

private:
    // Where this item last stood in its parent's list: row() checks it first,
    // so that asking the row of an item in a wide category stays cheap. (It
    // sits here, beside the visibility, where it fills what would be padding.)
    mutable int m_rowHint = -1;

protected:
    QString m_fullName; //!< the key of the item
    FeatureTreeItem* m_parent; //!< not owned
    QList<FeatureTreeItem*> m_children; //!< owned
    qint32 m_editorType = EditorNone; //!< one of EditorType
    bool m_childrenFetched = false; //!< the children were fetched, or there are none; a category fetches once only
    bool m_fullRow = false; //!< the row spans both columns
    bool m_specialNode = false; //!< the row is a special line
    //! Set whenever the displayed name is set; a derived class that keeps text
    //! built from the name clears it when it builds that text again.
    mutable bool m_displayedNameChanged = true;
    IFeatureTreeModelExtension* m_extension; //!< not owned
};
