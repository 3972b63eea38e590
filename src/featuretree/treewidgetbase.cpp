#include "treewidgetbase.h"

#include <QDataStream>
#include <QHeaderView>
#include <QIODevice>
#include <QTreeView>

namespace {

// Widths beyond what a widget can be wide cannot come from saveState(); such
// a value would only push the header's running offsets towards overflow.
bool isPlausibleSectionSize(qint32 size)
{
    return size >= 0 && size <= QWIDGETSIZE_MAX;
}

} // namespace

TreeWidgetBase::TreeWidgetBase(QWidget* parent)
    : QWidget(parent)
{
}

TreeWidgetBase::~TreeWidgetBase() = default;

const QTreeView* TreeWidgetBase::treeView() const
{
    return const_cast<TreeWidgetBase*>(this)->treeView();
}

void TreeWidgetBase::onSaveState(QDataStream&) { }

void TreeWidgetBase::onRestoreState(QDataStream&) { }

QByteArray TreeWidgetBase::saveState(int version)
{
    QTreeView* const tree = treeView();
    if (!tree)
        return QByteArray();

    QByteArray state;
    QDataStream stream(&state, QIODevice::WriteOnly);
    const QHeaderView* const header = tree->header();
    const qint32 count = header->count();
    stream << qint32(version) << count;
    for (int section = 0; section < count; ++section)
        stream << qint32(header->sectionSize(section));
    onSaveState(stream);
    return state;
}

bool TreeWidgetBase::restoreState(const QByteArray& state, int version)
{
    if (state.isEmpty())
        return false;
    QTreeView* const tree = treeView();
    if (!tree)
        return false;
    QHeaderView* const header = tree->header();

    QDataStream stream(state);
    qint32 storedVersion = 0;
    qint32 storedCount = 0;
    stream >> storedVersion >> storedCount;
    // The count is only ever compared with the header's own: nothing is sized
    // by it, so a forged count costs nothing.
    if (stream.status() != QDataStream::Ok || storedVersion != version || storedCount != header->count())
        return false;

    // A width no header could have marks the blob as forged or damaged:
    // refuse it before anything is applied. Only the widths present are
    // looked at; a blob cut short is handled below.
    const int sizesOffset = 2 * int(sizeof(qint32));
    const int present = qMin(int(storedCount), (state.size() - sizesOffset) / int(sizeof(qint32)));
    {
        QDataStream peek(state);
        peek.skipRawData(sizesOffset);
        for (int section = 0; section < present; ++section) {
            qint32 size = 0;
            peek >> size;
            if (!isPlausibleSectionSize(size))
                return false;
        }
    }

    for (int section = 0; section < storedCount; ++section) {
        qint32 size = 0;
        stream >> size;
        if (stream.status() != QDataStream::Ok)
            return false;
        // The last section stretches over what is left; its stored width is dropped.
        if (section < storedCount - 1)
            header->resizeSection(section, size);
    }

    onRestoreState(stream);
    return true;
}
