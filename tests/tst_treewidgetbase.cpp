#include "featuretree/featuretreewidget.h"
#include "featuretree/treewidgetbase.h"

#include <QtTest>

#include <QDataStream>
#include <QHeaderView>
#include <QStandardItemModel>
#include <QTreeView>

#include <limits>

namespace {

//! A tree widget over a model of the given number of columns.
class ColumnsWidget : public TreeWidgetBase
{
public:
    explicit ColumnsWidget(int columns, bool withTree = true)
    {
        if (withTree) {
            m_tree = new QTreeView(this);
            m_model = new QStandardItemModel(1, columns, this);
            m_tree->setModel(m_model);
            // The last section keeps a width of its own, so that a test can
            // see whether a restore touched it.
            m_tree->header()->setStretchLastSection(false);
            m_tree->header()->setMinimumSectionSize(1);
        }
    }

    QTreeView* treeView() override { return m_tree; }

    QList<int> widths() const
    {
        QList<int> result;
        for (int section = 0; section < m_tree->header()->count(); ++section)
            result << m_tree->header()->sectionSize(section);
        return result;
    }

    void setWidths(const QList<int>& widths)
    {
        for (int section = 0; section < widths.size(); ++section)
            m_tree->header()->resizeSection(section, widths.at(section));
    }

private:
    QTreeView* m_tree = nullptr;
    QStandardItemModel* m_model = nullptr;
};

//! Appends a text after the widths and reads it back.
class HookWidget : public ColumnsWidget
{
public:
    HookWidget()
        : ColumnsWidget(2)
    {
    }

    QString saved = QStringLiteral("subclass data");
    QString restored;
    int restoreCalls = 0;

protected:
    void onSaveState(QDataStream& stream) override { stream << saved; }
    void onRestoreState(QDataStream& stream) override
    {
        ++restoreCalls;
        stream >> restored;
    }
};

//! A blob as saveState() writes it, from raw 32-bit fields.
QByteArray blob(const QList<qint32>& fields)
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    for (qint32 field : fields)
        stream << field;
    return bytes;
}

} // namespace

class TestTreeWidgetBase : public QObject
{
    Q_OBJECT

private slots:
    void saveStateLayout();
    void roundTrip();
    void refusedBlobLeavesWidthsAlone_data();
    void refusedBlobLeavesWidthsAlone();
    void cutShortKeepsEarlierSections_data();
    void cutShortKeepsEarlierSections();
    void rightCountAppliesAllButLast();
    void versionIsOnlyCompared_data();
    void versionIsOnlyCompared();
    void withoutTree();
    void hostileBytes_data();
    void hostileBytes();
    void hooksCarrySubclassData();
    void hookNotCalledOnRefusal();
    void featureTreeWidgetKeepsWidthsOnly();
};

void TestTreeWidgetBase::saveStateLayout()
{
    ColumnsWidget widget(2);
    widget.setWidths({ 123, 77 });
    const QByteArray state = widget.saveState(0x01020304);
    // Big-endian 32-bit fields: version, count, one size per section.
    QCOMPARE(state.size(), 16);
    QCOMPARE(state.toHex(),
        QByteArray("01020304"
                   "00000002"
                   "0000007b"
                   "0000004d"));

    ColumnsWidget five(5);
    QCOMPARE(five.saveState(1).size(), 8 + 4 * 5);
}

void TestTreeWidgetBase::roundTrip()
{
    ColumnsWidget source(3);
    source.setWidths({ 150, 60, 90 });
    const QByteArray state = source.saveState(7);

    ColumnsWidget target(3);
    target.setWidths({ 20, 20, 20 });
    QVERIFY(target.restoreState(state, 7));
    QCOMPARE(target.widths(), (QList<int> { 150, 60, 20 }));
}

void TestTreeWidgetBase::refusedBlobLeavesWidthsAlone_data()
{
    QTest::addColumn<QByteArray>("state");
    QTest::addColumn<int>("version");

    QTest::newRow("empty") << QByteArray() << 1;
    QTest::newRow("other version") << blob({ 2, 3, 150, 60, 90 }) << 1;
    QTest::newRow("fewer columns") << blob({ 1, 2, 150, 60 }) << 1;
    QTest::newRow("more columns") << blob({ 1, 4, 150, 60, 90, 30 }) << 1;
    QTest::newRow("no columns") << blob({ 1, 0 }) << 1;
}

void TestTreeWidgetBase::refusedBlobLeavesWidthsAlone()
{
    QFETCH(QByteArray, state);
    QFETCH(int, version);

    ColumnsWidget widget(3);
    widget.setWidths({ 40, 50, 60 });
    QVERIFY(!widget.restoreState(state, version));
    QCOMPARE(widget.widths(), (QList<int> { 40, 50, 60 }));
}

void TestTreeWidgetBase::cutShortKeepsEarlierSections_data()
{
    QTest::addColumn<QByteArray>("state");
    QTest::addColumn<QList<int>>("expected");

    const QByteArray full = blob({ 1, 4, 150, 60, 90, 30 });
    QTest::newRow("cut before the first size") << full.left(8) << QList<int> { 40, 50, 60, 70 };
    QTest::newRow("cut inside the first size") << full.left(10) << QList<int> { 40, 50, 60, 70 };
    QTest::newRow("cut after the first size") << full.left(12) << QList<int> { 150, 50, 60, 70 };
    QTest::newRow("cut inside the third size") << full.left(19) << QList<int> { 150, 60, 60, 70 };
    QTest::newRow("cut inside the last size") << full.left(full.size() - 1) << QList<int> { 150, 60, 90, 70 };
}

void TestTreeWidgetBase::cutShortKeepsEarlierSections()
{
    QFETCH(QByteArray, state);
    QFETCH(QList<int>, expected);

    ColumnsWidget widget(4);
    widget.setWidths({ 40, 50, 60, 70 });
    QVERIFY(!widget.restoreState(state, 1));
    QCOMPARE(widget.widths(), expected);
}

void TestTreeWidgetBase::rightCountAppliesAllButLast()
{
    ColumnsWidget widget(2);
    widget.setWidths({ 40, 50 });
    QVERIFY(widget.restoreState(blob({ 3, 2, 222, 333 }), 3));
    QCOMPARE(widget.widths(), (QList<int> { 222, 50 }));

    // With the default stretching last section the tree looks as a feature
    // tree does; the first column still takes the stored width.
    ColumnsWidget stretched(2);
    stretched.treeView()->header()->setStretchLastSection(true);
    QVERIFY(stretched.restoreState(blob({ 3, 2, 111, 5 }), 3));
    QCOMPARE(stretched.treeView()->header()->sectionSize(0), 111);
}

void TestTreeWidgetBase::versionIsOnlyCompared_data()
{
    QTest::addColumn<int>("version");
    QTest::newRow("zero") << 0;
    QTest::newRow("one") << 1;
    QTest::newRow("minus one") << -1;
    QTest::newRow("int max") << std::numeric_limits<int>::max();
    QTest::newRow("int min") << std::numeric_limits<int>::min();
    QTest::newRow("arbitrary") << 0x5a5a1234;
}

void TestTreeWidgetBase::versionIsOnlyCompared()
{
    QFETCH(int, version);

    ColumnsWidget source(2);
    source.setWidths({ 99, 10 });
    const QByteArray state = source.saveState(version);

    ColumnsWidget target(2);
    target.setWidths({ 40, 50 });
    QVERIFY(!target.restoreState(state, int(unsigned(version) + 1u)));
    QVERIFY(!target.restoreState(state, int(unsigned(version) - 1u)));
    QCOMPARE(target.widths(), (QList<int> { 40, 50 }));
    QVERIFY(target.restoreState(state, version));
    QCOMPARE(target.widths(), (QList<int> { 99, 50 }));
}

void TestTreeWidgetBase::withoutTree()
{
    ColumnsWidget widget(2, false);
    QVERIFY(widget.treeView() == nullptr);
    const QByteArray state = widget.saveState(1);
    QVERIFY(state.isEmpty());
    QVERIFY(!widget.restoreState(state, 1));
    // A good blob from elsewhere finds no tree to apply to.
    QVERIFY(!widget.restoreState(blob({ 1, 2, 100, 100 }), 1));
}

void TestTreeWidgetBase::hostileBytes_data()
{
    QTest::addColumn<QByteArray>("state");
    QTest::addColumn<QList<int>>("expected");

    const QList<int> untouched { 40, 50, 60 };
    QTest::newRow("one byte") << QByteArray(1, '\x01') << untouched;
    QTest::newRow("version only") << blob({ 1 }) << untouched;
    QTest::newRow("version and half a count") << blob({ 1 }) + QByteArray(2, '\0') << untouched;
    QTest::newRow("count 2^31") << blob({ 1, std::numeric_limits<qint32>::min() }) << untouched;
    QTest::newRow("count 2^31 with sizes") << blob({ 1, std::numeric_limits<qint32>::min(), 10, 10, 10 }) << untouched;
    QTest::newRow("count 2^31 - 1") << blob({ 1, std::numeric_limits<qint32>::max() }) << untouched;
    QTest::newRow("count -1") << blob({ 1, -1 }) << untouched;
    QTest::newRow("count -3") << blob({ 1, -3, 10, 10, 10 }) << untouched;
    QTest::newRow("negative first size") << blob({ 1, 3, -5, 10, 10 }) << untouched;
    QTest::newRow("negative size after a good one") << blob({ 1, 3, 100, -1, 10 }) << untouched;
    QTest::newRow("negative last size") << blob({ 1, 3, 100, 100, std::numeric_limits<qint32>::min() }) << untouched;
    QTest::newRow("negative size before a cut") << blob({ 1, 3, 100, -100 }) << untouched;
    QTest::newRow("size beyond any widget") << blob({ 1, 3, std::numeric_limits<qint32>::max(), 10, 10 }) << untouched;
    QTest::newRow("all ones") << QByteArray(20, '\xff') << untouched;
    QTest::newRow("zeros") << QByteArray(20, '\0') << untouched;
    QTest::newRow("text") << QByteArray("not a saved state at all") << untouched;
}

void TestTreeWidgetBase::hostileBytes()
{
    QFETCH(QByteArray, state);
    QFETCH(QList<int>, expected);

    ColumnsWidget widget(3);
    widget.setWidths({ 40, 50, 60 });
    QVERIFY(!widget.restoreState(state, 1));
    QCOMPARE(widget.widths(), expected);
}

void TestTreeWidgetBase::hooksCarrySubclassData()
{
    HookWidget source;
    source.setWidths({ 70, 30 });
    source.saved = QStringLiteral("after the widths");
    const QByteArray state = source.saveState(4);
    QVERIFY(state.size() > 16);
    QCOMPARE(state.left(16), blob({ 4, 2, 70, 30 }));

    HookWidget target;
    QVERIFY(target.restoreState(state, 4));
    QCOMPARE(target.restoreCalls, 1);
    QCOMPARE(target.restored, QStringLiteral("after the widths"));
    QCOMPARE(target.widths().first(), 70);

    // The base's blob carries nothing for a subclass; the hook still runs
    // and finds the stream at its end.
    ColumnsWidget plain(2);
    plain.setWidths({ 70, 30 });
    HookWidget reader;
    QVERIFY(reader.restoreState(plain.saveState(4), 4));
    QCOMPARE(reader.restoreCalls, 1);
    QVERIFY(reader.restored.isEmpty());
}

void TestTreeWidgetBase::hookNotCalledOnRefusal()
{
    HookWidget widget;
    QVERIFY(!widget.restoreState(blob({ 4, 2, 70 }), 4));
    QVERIFY(!widget.restoreState(blob({ 5, 2, 70, 30 }), 4));
    QCOMPARE(widget.restoreCalls, 0);
}

void TestTreeWidgetBase::featureTreeWidgetKeepsWidthsOnly()
{
    // The feature tree's two columns and nothing else: 16 bytes, the first
    // column as the widget sized it.
    FeatureTreeWidget widget;
    const QByteArray state = widget.saveState(2);
    QCOMPARE(state.size(), 16);
    QCOMPARE(state.left(12), blob({ 2, 2, widget.treeView()->header()->sectionSize(0) }));

    FeatureTreeWidget other;
    other.treeView()->header()->resizeSection(0, 321);
    QVERIFY(other.restoreState(other.saveState(2), 2));
    QVERIFY(widget.restoreState(other.saveState(2), 2));
    QCOMPARE(widget.treeView()->header()->sectionSize(0), 321);
    QVERIFY(!widget.restoreState(other.saveState(2), 3));
}

QTEST_MAIN(TestTreeWidgetBase)
#include "tst_treewidgetbase.moc"
