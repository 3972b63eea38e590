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

    void clearChildren() override;
    int childCount() override;
    QVariant data(int column, int role) const override;
    //! Writes to the parameter; throws what the parameter throws.
    void setData(int column, const QVariant& value, int role) override;
    int row() const override;
    FeatureTreeItem* parent() override;
    IFeatureTreeModelExtension* getExtension() override;
    const IFeatureTreeModelExtension* getExtension() const override;
    int editorType() const override;
    bool hasChildren() const override;
    bool ShowMe(GenApi::EVisibility visibility) const override;
    GenApi::EAccessMode getAccessMode() const override;
    GenApi::EVisibility getVisibility() const override;
    Qt::ItemFlags flags(int column) const override;
    QVariant GetForegroundRole() const override;
    bool isEditable() const override;

    using FeatureTreeItem::editorType;
    //! The editor type of a parameter by its kind and "Representation"; 11 for null or a zombie.
    static int editorType(QSharedPointer<ParameterCollection::IParameter> node);
    //! The rule above on the item's node; 11 for null.
    static int editorType(const FeatureTreeINodeItem* item);

    QSharedPointer<ParameterCollection::IParameter> node() const;
    QSharedPointer<const ParameterCollection::ParameterData> getParameterData() const;
    QSharedPointer<ParameterCollection::IParameterCollection> collection() const;

    void setHighlighter(FeatureTreeHighlighter* highlighter);
    FeatureTreeHighlighter* highlighter() const { return m_highlighterSet ? m_context->highlighter : nullptr; }
    QString translationContext() const;

signals:
    void nodeUpdated(int row, FeatureTreeINodeItem* item);

public slots:
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
