/*!
 * \file featuretree/featuretreeinodeitem.h
 * FeatureTreeINodeItem, the item of the feature tree that stands for one parameter.
 */
#pragma once

#include "featuretreeitem.h"
#include "parameters/iparameter.h"
#include "parameters/iparametercollection.h"
#include "parameters/parameterdata.h"

#include <QExplicitlySharedDataPointer>
#include <QSharedData>
#include <QSharedPointer>

class FeatureTreeHighlighter;
class FeatureTreeModel;

/*!
 * An item that stands for one parameter. It caches what the tree shows of the
 * parameter (properties when built, the last accepted snapshot since), so that
 * data() never reaches the device. Parameter and collection are shared with
 * the parameter layer; the item deletes neither. The highlighter is not owned.
 *
 * Column 0 shows the display name, with the unit in brackets, and a tool tip
 * translated in the context of the node map (see GetNodemapName()). Column 1
 * shows the snapshot's value text, or "<not implemented>", "<not readable>"
 * or "<not available>"; nothing for a category or a boolean. A category
 * fetches its children on the first childCount().
 *
 * Each new snapshot of the parameter is taken by onParameterDataChanged(),
 * except that a writable integer or float whose value lies outside its range
 * is written back to the nearer limit first. A node, or a snapshot, that is
 * null leaves every role invalid.
 */
class ZVC_EXPORT FeatureTreeINodeItem : public FeatureTreeItem
{
    Q_OBJECT

public:
    //! For node map roots: keeps displayedName and subscribes to nothing.
    FeatureTreeINodeItem(QSharedPointer<ParameterCollection::IParameterCollection> collection,
        QSharedPointer<ParameterCollection::IParameter> node, const QString& displayedName,
        IFeatureTreeModelExtension* extension, const QString& fullName, FeatureTreeItem* parent, bool textAsUtf8);
    //! For all other items: subscribes to the parameter's changes and shows its display name.
    FeatureTreeINodeItem(QSharedPointer<ParameterCollection::IParameterCollection> collection,
        QSharedPointer<ParameterCollection::IParameter> node, IFeatureTreeModelExtension* extension,
        const QString& fullName, FeatureTreeItem* parent, bool textAsUtf8);
    ~FeatureTreeINodeItem() override;

    //! Deletes the children; a category doesn't fetch them again.
    void clearChildren() override;
    //! Fetches a category's children through the model on the first call, then gives their number.
    int childCount() override;
    //! What the row shows, from the cached properties and the last snapshot; never asks the parameter.
    //! Column 1's display and edit roles give the value text while the snapshot is readable.
    QVariant data(int column, int role) const override;
    //! Writes to the parameter; throws what the parameter throws.
    //!
    //! Only column 1 and Qt::EditRole write, and only to a live, writable
    //! parameter. A command is executed and marked pending, whatever the
    //! value. Any other value is written as text with setValueFromString(),
    //! its characters being the bytes of the text in UTF-8 or Latin-1 (as
    //! chosen at construction), up to the first zero byte.
    void setData(int column, const QVariant& value, int role) override;
    //! The item's row under its parent.
    int row() const override;
    //! The parent item.
    FeatureTreeItem* parent() override;
    //! The model the item belongs to.
    IFeatureTreeModelExtension* getExtension() override;
    //! The model the item belongs to.
    const IFeatureTreeModelExtension* getExtension() const override;
    //! The editor type of the node, fixed when the item was built.
    int editorType() const override;
    //! True for a category, before anything is fetched, so that the view shows the expander.
    bool hasChildren() const override;
    //! Always true at the Invisible level; otherwise an implemented feature whose visibility is at most visibility.
    bool ShowMe(GenApi::EVisibility visibility) const override;
    //! The access mode of the last snapshot.
    GenApi::EAccessMode getAccessMode() const override;
    //! The visibility of the last snapshot.
    GenApi::EVisibility getVisibility() const override;
    //! Column 0 is selectable, enabled and draggable, except that a readable category can't be dragged;
    //! column 1 is editable where the parameter is writable or keeps an editor open. None without a snapshot.
    Qt::ItemFlags flags(int column) const override;
    //! The disabled text brush for a feature that isn't editable; nothing (the ordinary text) otherwise
    //! and for a category.
    QVariant GetForegroundRole() const override;
    //! The snapshot says writable, and the item has an editor type with an editor.
    bool isEditable() const override;

    using FeatureTreeItem::editorType;
    //! The editor type of a parameter by its kind and "Representation"; 11 for null or a zombie.
    static int editorType(QSharedPointer<ParameterCollection::IParameter> node);
    //! The rule above on the item's node; 11 for null.
    static int editorType(const FeatureTreeINodeItem* item);

    //! The parameter the item stands for; may be null.
    QSharedPointer<ParameterCollection::IParameter> node() const;
    //! The last snapshot accepted; the placeholder snapshot where none could be read.
    QSharedPointer<const ParameterCollection::ParameterData> getParameterData() const;
    //! The node map the parameter belongs to.
    QSharedPointer<ParameterCollection::IParameterCollection> collection() const;

    //! The highlighter whose search text the tool tip marks; may be null; not owned.
    void setHighlighter(FeatureTreeHighlighter* highlighter);
    //! The highlighter given to setHighlighter(); null before.
    FeatureTreeHighlighter* highlighter() const { return m_highlighterSet ? m_context->highlighter : nullptr; }
    //! The translation context of the feature's tool tip: GetNodemapName() of the full name.
    QString translationContext() const;

signals:
    //! The item took a new snapshot. The model that built the item is told
    //! directly as well (IFeatureTreeModelExtension::onNodeUpdated()).
    void nodeUpdated(int row, FeatureTreeINodeItem* item);

public slots:
    /*!
     * Takes a new snapshot of the parameter, connected to its
     * parameterDataChangedDecoupled(). Dropped while the model's callbacks
     * are disabled. A writable integer or float whose value lies outside its
     * range gets the nearer limit written instead, and the snapshot that
     * write brings is taken in its place. Properties such as the unit are
     * not read again.
     */
    void onParameterDataChanged(QSharedPointer<const ParameterCollection::ParameterData> data);

private:
    friend class FeatureTreeModel;
    friend class FeatureTreeProxyModel;

    //! Caches what the tree shows of the node; gives its display name where asked.
    void initInternal(QString* displayName = nullptr);
    void subscribe();
    void unsubscribe();
    QVariant toolTip() const;
    QVariant valueDisplayText() const;
    //! Qt::DisplayRole of the name column, without a QVariant around it.
    const QString& displayText() const;
    //! Sets m_parameterData and what the value column shows of it.
    void takeSnapshot(QSharedPointer<const ParameterCollection::ParameterData> data);
    //! False without a node or a snapshot, when every role is an invalid QVariant.
    bool answersRoles() const { return m_shownValue != ShownValue::Nothing; }

    // What all items of one node map hold alike. An item built under an item
    // of the same collection shares its parent's; setHighlighter() on a shared
    // one makes the item a copy of its own first, so that setting it on one
    // item never changes another.
    struct Context : QSharedData
    {
        QSharedPointer<ParameterCollection::IParameterCollection> collection;
        FeatureTreeHighlighter* highlighter = nullptr; // not owned
    };
    static QExplicitlySharedDataPointer<Context> contextFor(
        FeatureTreeItem* parent, QSharedPointer<ParameterCollection::IParameterCollection> collection);

    // A tree of the largest cameras holds 100 000 of these, so the layout is
    // kept tight: the small fields come first, where they fill the tail of the
    // base class instead of padding of their own; what every item of a node
    // map would hold alike is shared (the collection, the highlighter) or not
    // stored (the translation context is derived from the full name, the model
    // is the extension). What painting and every search pass read of each row
    // follows, together, so that a read touches as few cache lines of a large
    // tree as it can. At 184 bytes an item takes a 192-byte heap block.
    bool m_textAsUtf8;
    bool m_subscribed = false;
    // Built and connected by a FeatureTreeModel, which is then the extension
    // and is told of updates directly (see FeatureTreeModel::connectItem); it
    // owns the item, so outlives it.
    bool m_notifiesModel = false;
    // setHighlighter() was called; until then the item has none, whatever
    // the shared context holds.
    bool m_highlighterSet = false;
    // The length of the unit: negative while m_unitOrTitle still holds the
    // unit, positive once it holds the title built from it, 0 for no unit.
    mutable qint32 m_unitLength = 0;
    // What the value column shows, taken from each snapshot as it is accepted
    // (see takeSnapshot()), so that painting a row reads the item and one
    // text, and not the snapshot as well: on a tree too large for the cache
    // that is one wait for memory less per row.
    enum class ShownValue : quint8 {
        Nothing, // no node or no snapshot: the item answers no role
        Empty, // a category or a boolean
        NotImplemented,
        Value, // m_valueText
        NotReadable,
        NotAvailable
    };
    ShownValue m_shownValue = ShownValue::Nothing;
    QString m_valueText; // the snapshot's value text while it is readable; shared, not copied
    // The "Unit" property, until the name column is first asked for; then
    // "<displayed name> [<unit>]", from which the unit is read again if the
    // displayed name changes. One string instead of a unit and a title.
    mutable QString m_unitOrTitle;
    QSharedPointer<const ParameterCollection::ParameterData> m_parameterData;
    QSharedPointer<ParameterCollection::IParameter> m_node;
    QString m_name;
    QExplicitlySharedDataPointer<Context> m_context;
    QString m_descriptionText;
    QString m_toolTipText;
    QString m_docuUrl;
};
