/*!
 * \file featuretree/abstractitemeditor.h
 * AbstractItemEditor, the interface of the feature tree's value editors.
 */
#pragma once

#include "parameters/iparameter.h"
#include "parameters/parameterdata.h"
#include "zarvexviewercomponents_export.h"

#include <QSharedPointer>
#include <QVariant>

/*!
 * The interface of every value editor of the feature tree. It is a second
 * base class beside a Qt widget class: the delegate finds it on a QWidget*
 * with dynamic_cast, pushes each new state of the parameter in with
 * setEditorData() and pulls the value to commit out with editorData().
 *
 * Editors show what the snapshot says, never what the live parameter says;
 * the live parameter serves for names in messages and for the few operations
 * that act on the device directly.
 *
 * A host may use an editor in a form of its own: fill it with
 * setEditorData({parameter, snapshot}) and commit editorData() through the
 * model's setData() in Qt::EditRole. Editors catch and log what the
 * parameter throws; nothing leaves setEditorData().
 */
class ZVC_EXPORT AbstractItemEditor
{
public:
    //! One state of a parameter, as the tree item holds it.
    struct EditorData
    {
        //! The parameter that the item stands for.
        QSharedPointer<ParameterCollection::IParameter> node;
        //! Its latest snapshot; may be null.
        QSharedPointer<const ParameterCollection::ParameterData> data;
    };

    //! Takes a new state of the parameter. Never throws.
    virtual void setEditorData(AbstractItemEditor::EditorData data) = 0;
    //! The value to commit. Not const: an editor may act on its parameter here.
    virtual QVariant editorData() = 0;
    virtual ~AbstractItemEditor();

protected:
    //! For the editors.
    AbstractItemEditor() = default;
    //! Copies nothing: the interface has no data.
    AbstractItemEditor(const AbstractItemEditor&) = default;
    //! Copies nothing: the interface has no data.
    AbstractItemEditor& operator=(const AbstractItemEditor&) = default;
};

Q_DECLARE_METATYPE(AbstractItemEditor::EditorData)
