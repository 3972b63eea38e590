/*!
 * \file featuretree/editorpark.h
 * EditorPark, value editors kept aside while a bulk change closes them.
 */
#pragma once

#include "parameters/iparameter.h"

#include <QHash>
#include <QObject>
#include <QPointer>
#include <QSharedPointer>
#include <QWeakPointer>
#include <QWidget>

/*!
 * Editors that a bulk change of the view closed, kept hidden so that the
 * same rows can have them back instead of new ones.
 *
 * A new search text closes every persistent editor of a large tree (each
 * range of removed rows would otherwise walk all of them) and opens those of
 * the rows that stay: most of them are the very editors just closed. Making
 * and destroying an editor widget cost more than the whole filter pass, so
 * while the view closes its editors for a bulk change the delegate parks
 * them here, one per parameter, and the delegate's next editor for that
 * parameter, of that kind and on the same parent, is the parked one. The
 * view releases what is left once the editors of the change are all open;
 * a parked editor is never shown.
 *
 * A child of the delegate, found with of(). GUI thread only, as widgets are.
 */
class EditorPark : public QObject
{
    Q_OBJECT

public:
    //! The park of `delegate`; made if `create` is set, else null when there is none.
    static EditorPark* of(QObject* delegate, bool create);

    //! While open, park() takes editors; closed, it takes none.
    void setOpen(bool open) { m_open = open; }
    bool isOpen() const { return m_open; }

    /*!
     * Keeps `editor`, the `editorType` editor of `node`, hidden, if the park
     * is open. False if it is not kept: the caller destroys it as usual. A
     * second editor for the same parameter is not kept.
     */
    bool park(QWidget* editor, const QSharedPointer<ParameterCollection::IParameter>& node, int editorType);
    //! The parked editor of `node` of that kind on `parent`, taken out of the park; null if there is none.
    QWidget* take(const QSharedPointer<ParameterCollection::IParameter>& node, int editorType, QWidget* parent);
    //! Destroys every parked editor (later, as the delegate destroys editors).
    void release();

private:
    explicit EditorPark(QObject* delegate);

    struct Parked
    {
        QPointer<QWidget> editor;
        // Compared, not dereferenced: a parameter gone and another one at its
        // address must not find its editor.
        QWeakPointer<ParameterCollection::IParameter> node;
        int editorType = 0;
    };
    QHash<const ParameterCollection::IParameter*, Parked> m_editors;
    bool m_open = false;
};
