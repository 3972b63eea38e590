#pragma once

#include "parameters/ibooleanparameter.h"
#include "parameters/icommandparameter.h"
#include "parameters/ienumparameter.h"
#include "parameters/ifloatparameter.h"
#include "parameters/iintegerparameter.h"
#include "parameters/iparametercollection.h"
#include "zarvexviewercomponents_export.h"

#include <QSharedPointer>
#include <QStyledItemDelegate>

class FeatureTreeHighlighter;
class IFeatureTreeModelExtension;

/*!
 * The delegate of the feature tree: it makes one editor for each value cell,
 * chosen by the item's editor type and the parameter's representation, moves
 * values between editor and model, and paints the names with the search
 * matches on the highlighter's colour.
 *
 * Neither the extension nor the highlighter is owned; both live as long as
 * the view that made the delegate.
 */
class ZVC_EXPORT FeatureTreeDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    FeatureTreeDelegate(QObject* parent, IFeatureTreeModelExtension* extension, FeatureTreeHighlighter* highlighter);
    ~FeatureTreeDelegate() override;

    FeatureTreeDelegate(const FeatureTreeDelegate&) = delete;
    FeatureTreeDelegate& operator=(const FeatureTreeDelegate&) = delete;

    void paint(QPainter* painter, QStyleOptionViewItem const& option, QModelIndex const& index) const override;
    QWidget* createEditor(QWidget* parent, QStyleOptionViewItem const& option, QModelIndex const& index) const override;
    void destroyEditor(QWidget* editor, QModelIndex const& index) const override;
    void setEditorData(QWidget* editor, QModelIndex const& index) const override;
    void setModelData(QWidget* editor, QAbstractItemModel* model, QModelIndex const& index) const override;

public slots:
    //! Every value change of an editor commits at once, without waiting for the editor to close.
    void emitCommitData();

private:
    QWidget* createEnumEditor(QWidget* parent, QStyleOptionViewItem const& option,
        QSharedPointer<ParameterCollection::IEnumParameter> parameter) const;
    QWidget* createToolButtonEditor(QWidget* parent, QStyleOptionViewItem const& option,
        QSharedPointer<ParameterCollection::ICommandParameter> parameter) const;
    QWidget* createCheckBoxEditor(QWidget* parent, QStyleOptionViewItem const& option,
        QSharedPointer<ParameterCollection::IBooleanParameter> parameter) const;
    QWidget* createIntEditor(QWidget* parent, QStyleOptionViewItem const& option,
        QSharedPointer<ParameterCollection::IIntegerParameter> parameter) const;
    QWidget* createFloatEditor(QWidget* parent, QStyleOptionViewItem const& option,
        QSharedPointer<ParameterCollection::IFloatParameter> parameter,
        QSharedPointer<ParameterCollection::IParameterCollection> collection) const;

    IFeatureTreeModelExtension* m_extension; // not owned
    FeatureTreeHighlighter* m_highlighter; // not owned
};
