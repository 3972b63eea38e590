/*!
 * \file featuretree/treewidgetbase.h
 * TreeWidgetBase, the saved column widths of a widget around a QTreeView.
 */
#pragma once

#include "zarvexviewercomponents_export.h"

#include <QByteArray>
#include <QWidget>

class QDataStream;
class QTreeView;

/*!
 * Base of widgets built around a QTreeView: turns the tree's column widths
 * into a small blob that a host keeps wherever it likes and hands back in a
 * later run.
 *
 * The blob is written with QDataStream's default settings (big-endian):
 * the version given to saveState() as a 32-bit integer, the header's section
 * count as a 32-bit integer, one 32-bit size per logical section, then
 * whatever a subclass appends in onSaveState(). A tree of two columns gives
 * 16 bytes.
 */
class ZVC_EXPORT TreeWidgetBase : public QWidget
{
    Q_OBJECT

public:
    //! A plain widget; the subclass supplies the tree.
    explicit TreeWidgetBase(QWidget* parent = nullptr);
    ~TreeWidgetBase() override;

    //! The tree whose columns are saved; may be null, then nothing is saved.
    virtual QTreeView* treeView() = 0;

    /*!
     * The column widths as a blob tagged with \a version; empty when there
     * is no tree.
     */
    QByteArray saveState(int version);

    /*!
     * Applies the column widths of a blob from saveState(). Refuses (returns
     * false) an empty blob, one of another version or another column count,
     * and one that is cut short or holds a width no header could have. The
     * last column's width is read but not applied, as the last section takes
     * up what is left. Widths applied before a cut stay applied.
     */
    bool restoreState(const QByteArray& state, int version);

protected:
    //! Appends a subclass's own fields after the column widths; does nothing here.
    virtual void onSaveState(QDataStream& stream);
    //! Reads back what onSaveState() wrote; does nothing here.
    virtual void onRestoreState(QDataStream& stream);

public:
    //! The const form of treeView(); by default the same tree.
    virtual const QTreeView* treeView() const;
};
