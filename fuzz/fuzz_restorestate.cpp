// libFuzzer target over TreeWidgetBase::restoreState. The first byte of an
// input picks the tree's column count (1 to 8); the rest is handed over as a
// saved state of version 1. Whatever the bytes, restoreState must return
// without a sanitizer report, without allocating by a stored count, and must
// leave no column with a width that no saved state could hold. A state that
// the widget saves itself must always be taken back, with the widths it was
// saved with.

#include "featuretree/treewidgetbase.h"

#include <QApplication>
#include <QHeaderView>
#include <QStandardItemModel>
#include <QTreeView>
#include <QVector>

#include <cstddef>
#include <cstdint>
#include <cstdlib>

namespace {

class FuzzTreeWidget : public TreeWidgetBase
{
public:
    explicit FuzzTreeWidget(int columns)
        : m_model(1, columns)
    {
        m_tree.setModel(&m_model);
        m_tree.header()->setStretchLastSection(false);
    }

    QTreeView* treeView() override { return &m_tree; }

private:
    QStandardItemModel m_model;
    QTreeView m_tree;
};

QApplication* application = nullptr;

} // namespace

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    application = new QApplication(*argc, *argv);
    return 0;
}

namespace {

void fuzzOne(const uint8_t* data, size_t size)
{
    const int columns = 1 + data[0] % 8;
    const QByteArray state(reinterpret_cast<const char*>(data + 1), int(size - 1));

    FuzzTreeWidget widget(columns);
    QHeaderView* header = widget.treeView()->header();
    for (int section = 0; section < columns; ++section)
        header->resizeSection(section, 50);

    widget.restoreState(state, 1);
    for (int section = 0; section < columns; ++section) {
        const int width = header->sectionSize(section);
        if (width < 0 || width > QWIDGETSIZE_MAX)
            std::abort();
    }

    // The widget's own state always comes back, and gives back the widths it
    // was saved with (the last section's is dropped: it stretches).
    QVector<int> widths;
    for (int section = 0; section < columns; ++section)
        widths << header->sectionSize(section);
    const QByteArray saved = widget.saveState(1);
    for (int section = 0; section < columns; ++section)
        header->resizeSection(section, widths.at(section) == 77 ? 78 : 77);
    if (saved.size() != 8 + 4 * columns || !widget.restoreState(saved, 1))
        std::abort();
    for (int section = 0; section + 1 < columns; ++section)
        if (header->sectionSize(section) != widths.at(section))
            std::abort();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    if (size == 0)
        return 0;
    fuzzOne(data, size);
    // There is no event loop: run what the widgets posted, their deferred
    // deletions above all, so that memory stays flat across inputs.
    QCoreApplication::sendPostedEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    return 0;
}
