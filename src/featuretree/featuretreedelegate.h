/*!
 * \file featuretree/featuretreedelegate.h
 * FeatureTreeDelegate, which makes the value editors of the feature tree and
 * paints the search marks.
 */
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
 *
 * The editor of each editor type (FeatureTreeItem::EditorType): IntEditor,
 * or IntSliderEditor for the representations "Linear" and "Logarithmic";
 * FloatEditor, or FloatSliderEditor for those representations when the
 * feature has an "/Alias" parameter; EnumEditor, CheckBoxEditor and
 * ToolButtonEditor; Qt's default editor for strings. A feature that is not
 * implemented or not available gets none.
 */
class ZVC_EXPORT FeatureTreeDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    //! A delegate that reaches items through extension and marks the search text of highlighter.
    FeatureTreeDelegate(QObject* parent, IFeatureTreeModelExtension* extension, FeatureTreeHighlighter* highlighter);
    ~FeatureTreeDelegate() override;

    //! Not copyable.
    FeatureTreeDelegate(const FeatureTreeDelegate&) = delete;
    //! Not copyable.
    FeatureTreeDelegate& operator=(const FeatureTreeDelegate&) = delete;

    //! Paints a feature's name with the search matches on the highlight colour; other cells as the base class does.
    void paint(QPainter* painter, QStyleOptionViewItem const& option, QModelIndex const& index) const override;
    //! The editor for the item's editor type, its change signal connected to emitCommitData(); null for none.
    QWidget* createEditor(QWidget* parent, QStyleOptionViewItem const& option, QModelIndex const& index) const override;
    //! Deletes the editor later, never at once.
    void destroyEditor(QWidget* editor, QModelIndex const& index) const override;
    //! Hands the item's parameter and last snapshot to an AbstractItemEditor; other editors are left alone
    //! while they have the focus.
    void setEditorData(QWidget* editor, QModelIndex const& index) const override;
    //! Commits an AbstractItemEditor's editorData() through the model's setData() in Qt::EditRole.
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
