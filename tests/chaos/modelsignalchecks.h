#pragma once

// The checks that QAbstractItemModelTester makes on each signal of a model,
// without the walk of the whole model that it adds to every one of them. On
// a tree of ten thousand rows that walk, repeated for every range a filter
// change removes or inserts, made one search take seconds. Here each signal
// is checked against the level it names: the counts and the rows next to an
// insertion or a removal, the persistent rows around a layout change, the
// range of a data change, and the parent of every row of the level touched.
// The whole walk is left to a tester built once the model is at rest.

#include <QAbstractItemModel>
#include <QList>
#include <QPersistentModelIndex>
#include <QStack>
#include <QStringList>
#include <QVariant>

class ModelSignalChecks : public QObject
{
public:
    explicit ModelSignalChecks(QAbstractItemModel* model)
        : m_model(model)
    {
        connect(model, &QAbstractItemModel::rowsAboutToBeInserted, this,
            [this](const QModelIndex& parent, int start, int) { aboutToChange(m_inserts, parent, start, start - 1); });
        connect(model, &QAbstractItemModel::rowsInserted, this,
            [this](const QModelIndex& parent, int start, int end) { inserted(parent, start, end); });
        connect(model, &QAbstractItemModel::rowsAboutToBeRemoved, this,
            [this](const QModelIndex& parent, int start, int end) {
                aboutToChange(m_removals, parent, end + 1, start - 1);
            });
        connect(model, &QAbstractItemModel::rowsRemoved, this,
            [this](const QModelIndex& parent, int start, int end) { removed(parent, start, end); });
        connect(model, &QAbstractItemModel::layoutAboutToBeChanged, this, [this] { layoutAboutToBeChanged(); });
        connect(model, &QAbstractItemModel::layoutChanged, this, [this] { layoutChanged(); });
        connect(model, &QAbstractItemModel::modelReset, this, [this] {
            ++m_structural;
            checkLevel(QModelIndex(), "modelReset");
        });
        connect(model, &QAbstractItemModel::dataChanged, this,
            [this](const QModelIndex& topLeft, const QModelIndex& bottomRight) { dataChanged(topLeft, bottomRight); });
    }

    //! Every failure so far; empties the list.
    QStringList takeFailures()
    {
        QStringList failures;
        failures.swap(m_failures);
        return failures;
    }

    //! The number of signals that changed the model's structure so far.
    int structuralChanges() const { return m_structural; }

private:
    struct Changing
    {
        QPersistentModelIndex parent;
        int oldSize = 0;
        QVariant before; // the row before the range
        QVariant after; // the row after the range
    };

    void fail(const char* signal, const QString& what)
    {
        m_failures << QLatin1String(signal) + QStringLiteral(": ") + what;
    }

    QVariant rowData(const QModelIndex& parent, int row) const
    {
        return row >= 0 && row < m_model->rowCount(parent) ? m_model->index(row, 0, parent).data() : QVariant();
    }

    // The rows of the level from first to last (clipped to it) give back their
    // parent, their siblings and themselves.
    void checkLevel(const QModelIndex& parent, const char* signal, int first = 0, int last = 99)
    {
        if (parent.isValid() && parent.model() != m_model)
            return fail(signal, QStringLiteral("a parent of another model"));
        const int rows = m_model->rowCount(parent);
        const int columns = m_model->columnCount(parent);
        if (rows < 0 || columns < 0)
            return fail(signal, QStringLiteral("negative row or column count"));
        if (rows > 0 && !m_model->hasChildren(parent))
            return fail(signal, QStringLiteral("rows but no children"));
        if (m_model->hasIndex(rows, 0, parent))
            return fail(signal, QStringLiteral("an index past the last row"));
        for (int row = qMax(first, 0); row < rows && row <= last; ++row) {
            for (int column = 0; column < columns; ++column) {
                const QModelIndex index = m_model->index(row, column, parent);
                if (!index.isValid() || index.row() != row || index.column() != column)
                    return fail(signal, QStringLiteral("index(%1, %2) is not that cell").arg(row).arg(column));
                if (index.parent() != parent)
                    return fail(signal, QStringLiteral("row %1 names another parent").arg(row));
                if (m_model->index(row, column, parent) != index)
                    return fail(signal, QStringLiteral("row %1 changes between two calls").arg(row));
                if (column > 0 && index.sibling(row, 0) != m_model->index(row, 0, parent))
                    return fail(signal, QStringLiteral("row %1's sibling is another row").arg(row));
            }
        }
    }

    void aboutToChange(QStack<Changing>& stack, const QModelIndex& parent, int after, int before)
    {
        ++m_structural;
        checkLevel(parent, "about to change rows", before, after);
        Changing changing;
        changing.parent = parent;
        changing.oldSize = m_model->rowCount(parent);
        changing.before = rowData(parent, before);
        changing.after = rowData(parent, after);
        stack.push(changing);
    }

    void inserted(const QModelIndex& parent, int start, int end)
    {
        if (m_inserts.isEmpty())
            return fail("rowsInserted", QStringLiteral("without rowsAboutToBeInserted"));
        const Changing changing = m_inserts.pop();
        if (QModelIndex(changing.parent) != parent)
            return fail("rowsInserted", QStringLiteral("another parent than announced"));
        if (m_model->rowCount(parent) != changing.oldSize + end - start + 1)
            fail("rowsInserted",
                QStringLiteral("%1 rows, %2 expected")
                    .arg(m_model->rowCount(parent))
                    .arg(changing.oldSize + end - start + 1));
        if (start > 0 && rowData(parent, start - 1) != changing.before)
            fail("rowsInserted", QStringLiteral("the row before the range changed"));
        if (end + 1 < m_model->rowCount(parent) && rowData(parent, end + 1) != changing.after)
            fail("rowsInserted", QStringLiteral("the row after the range changed"));
        checkLevel(parent, "rowsInserted", start - 1, end + 1);
    }

    void removed(const QModelIndex& parent, int start, int end)
    {
        if (m_removals.isEmpty())
            return fail("rowsRemoved", QStringLiteral("without rowsAboutToBeRemoved"));
        const Changing changing = m_removals.pop();
        if (QModelIndex(changing.parent) != parent)
            return fail("rowsRemoved", QStringLiteral("another parent than announced"));
        if (m_model->rowCount(parent) != changing.oldSize - (end - start + 1))
            fail("rowsRemoved",
                QStringLiteral("%1 rows, %2 expected")
                    .arg(m_model->rowCount(parent))
                    .arg(changing.oldSize - (end - start + 1)));
        if (start > 0 && rowData(parent, start - 1) != changing.before)
            fail("rowsRemoved", QStringLiteral("the row before the range changed"));
        if (start < m_model->rowCount(parent) && rowData(parent, start) != changing.after)
            fail("rowsRemoved", QStringLiteral("the row after the range changed"));
        checkLevel(parent, "rowsRemoved", start - 1, start);
    }

    void layoutAboutToBeChanged()
    {
        ++m_structural;
        checkLevel(QModelIndex(), "layoutAboutToBeChanged");
        m_layout.clear();
        for (int row = 0; row < qMin(m_model->rowCount(), 100); ++row)
            m_layout << QPersistentModelIndex(m_model->index(row, 0));
    }

    void layoutChanged()
    {
        for (const QPersistentModelIndex& row : qAsConst(m_layout)) {
            if (m_model->index(row.row(), row.column(), row.parent()) != QModelIndex(row))
                fail("layoutChanged", QStringLiteral("a persistent row doesn't lead back to itself"));
        }
        m_layout.clear();
        checkLevel(QModelIndex(), "layoutChanged");
    }

    void dataChanged(const QModelIndex& topLeft, const QModelIndex& bottomRight)
    {
        if (!topLeft.isValid() || !bottomRight.isValid())
            return fail("dataChanged", QStringLiteral("an invalid corner"));
        const QModelIndex parent = bottomRight.parent();
        if (topLeft.parent() != parent)
            return fail("dataChanged", QStringLiteral("corners under different parents"));
        if (topLeft.row() > bottomRight.row() || topLeft.column() > bottomRight.column())
            return fail("dataChanged", QStringLiteral("corners in the wrong order"));
        if (bottomRight.row() >= m_model->rowCount(parent) || bottomRight.column() >= m_model->columnCount(parent))
            return fail("dataChanged", QStringLiteral("a corner outside the model"));
        for (int row = topLeft.row(); row <= bottomRight.row(); ++row) {
            for (int column = topLeft.column(); column <= bottomRight.column(); ++column) {
                const QModelIndex index = m_model->index(row, column, parent);
                if (!index.isValid() || index.parent() != parent)
                    return fail("dataChanged", QStringLiteral("a cell of the range names another parent"));
                index.data(); // must not crash; the tester reads it too
            }
        }
    }

    QAbstractItemModel* m_model;
    QStack<Changing> m_inserts;
    QStack<Changing> m_removals;
    QList<QPersistentModelIndex> m_layout;
    QStringList m_failures;
    int m_structural = 0;
};
