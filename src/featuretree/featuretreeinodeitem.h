#pragma once

#include "featuretreeitem.h"
#include "parameters/iparameter.h"
#include "parameters/iparametercollection.h"
#include "parameters/parameterdata.h"

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
    FeatureTreeHighlighter* highlighter() const { return m_highlighter; }
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

    // A tree of the largest cameras holds 100 000 of these, so the layout is
    // kept tight: the flags come first, where they fill the tail of the base
    // class instead of padding of their own, and what every item of a node
    // map would hold alike is not stored (the translation context is derived
    // from the full name, the model is the extension). What painting and
    // every search pass read of each row follows, together, so that a read
    // touches as few cache lines of a large tree as it can.
    bool m_textAsUtf8;
    bool m_subscribed = false;
    // Built and connected by a FeatureTreeModel, which is then the extension
    // and is told of updates directly (see FeatureTreeModel::connectItem); it
    // owns the item, so outlives it.
    bool m_notifiesModel = false;
    QSharedPointer<const ParameterCollection::ParameterData> m_parameterData;
    QSharedPointer<ParameterCollection::IParameter> m_node;
    QString m_unit;
    mutable QString m_titleWithUnit; // "<displayed name> [<unit>]", built on first request
    QString m_name;
    QSharedPointer<ParameterCollection::IParameterCollection> m_collection;
    FeatureTreeHighlighter* m_highlighter = nullptr; // not owned
    QString m_descriptionText;
    QString m_toolTipText;
    QString m_docuUrl;
};
