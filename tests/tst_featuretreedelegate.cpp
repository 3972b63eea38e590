// The item delegate: which editor each value cell gets, how values travel
// between editor and model, and how the search matches are painted.

#include "featuretreewidgettestsupport.h"

#include "featuretree/abstractitemeditor.h"
#include "featuretree/checkboxeditor.h"
#include "featuretree/enumeditor.h"
#include "featuretree/featuretreedelegate.h"
#include "featuretree/featuretreehighlighter.h"
#include "featuretree/featuretreeinodeitem.h"
#include "featuretree/inteditor.h"
#include "featuretree/intslidereditor.h"
#include "featuretree/toolbuttoneditor.h"

#include <QLineEdit>
#include <QPainter>
#include <QPointer>

using namespace TreeTest;

namespace {

// A model that can hand out an item of the test's choosing for every index.
class SubstitutingModel : public FeatureTreeModel
{
public:
    FeatureTreeItem* getFeatureTreeItem(const QModelIndex& index) const override
    {
        return substitute ? substitute : FeatureTreeModel::getFeatureTreeItem(index);
    }
    FeatureTreeItem* substitute = nullptr;
};

// A parameter item that claims an editor type its parameter doesn't have.
class MislabelledItem : public FeatureTreeINodeItem
{
public:
    using FeatureTreeINodeItem::FeatureTreeINodeItem;
    int editorType() const override { return type; }
    int type = EditorNone;
};

const QColor kMarkColour(255, 0, 255);

} // namespace

class TestFeatureTreeDelegate : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();

    void editorByKind_data();
    void editorByKind();
    void readOnlyFeatureStillGetsItsEditor();
    void noEditorWithoutAccess_data();
    void noEditorWithoutAccess();
    void integerRepresentationChoosesTheEditor_data();
    void integerRepresentationChoosesTheEditor();
    void parameterOfTheWrongKind();
    void zombieGetsNoEditor();
    void editorDataAndModelData();
    void valueChangeCommitsAtOnce();
    void destroyEditorDeletesLater();
    void emptySearchMarksNothing();
    void matchesAreMarkedInTheVisibleTextOnly();
    void specialRowsAreNotMarked();
    void searchResultLineShowsNoTags();

private:
    QModelIndex valueIndex(const char* name) { return m_model->findItemByFullName(cameraFeature(name), nullptr, 1); }
    QImage paintName(FeatureTreeDelegate& delegate, const QModelIndex& index, int width);

    QSharedPointer<Simulation::SimulatedDevice> m_device;
    std::unique_ptr<SubstitutingModel> m_model;
    std::unique_ptr<FeatureTreeHighlighter> m_highlighter;
    std::unique_ptr<QWidget> m_parent;
};

void TestFeatureTreeDelegate::initTestCase()
{
    QStandardPaths::setTestModeEnabled(true);
    QCoreApplication::setOrganizationName(QStringLiteral("ZarvexTests"));
    QCoreApplication::setApplicationName(QStringLiteral("tst_featuretreedelegate"));
    QSettings settings;
    settings.setValue(QStringLiteral("FeatureTree/HighlightColor"), kMarkColour.name());
}

void TestFeatureTreeDelegate::init()
{
    QByteArray json = everyKindCamera();
    // One long name for the elision tests.
    json.replace(R"("children": ["Controls"])", R"("children": ["Controls", "AcquisitionFrameRateEnableMarker"])");
    json.replace(R"({ "name": "Root")",
        R"({ "name": "AcquisitionFrameRateEnableMarker", "displayName": "AcquisitionFrameRateEnableMarker", "type": "Boolean", "value": true }, { "name": "Root")");
    m_device = makeDevice(json);
    QVERIFY(m_device);
    m_model.reset(new SubstitutingModel);
    addCamera(*m_model, m_device);
    m_highlighter.reset(new FeatureTreeHighlighter);
    QCOMPARE(m_highlighter->getHighlightColor(), kMarkColour);
    m_parent.reset(new QWidget);
}

void TestFeatureTreeDelegate::cleanup()
{
    m_parent.reset();
    m_model.reset();
    m_highlighter.reset();
    m_device.reset();
}

void TestFeatureTreeDelegate::editorByKind_data()
{
    QTest::addColumn<QString>("feature");
    QTest::addColumn<QString>("editorClass");
    QTest::newRow("enumeration") << "Mode"
                                 << "EnumEditor";
    QTest::newRow("boolean") << "Flag"
                             << "CheckBoxEditor";
    QTest::newRow("command") << "Go"
                             << "ToolButtonEditor";
    QTest::newRow("hexadecimal integer") << "Offset"
                                         << "IntEditor";
    // A string edits in Qt's own line edit.
    QTest::newRow("string") << "Label"
                            << "QExpandingLineEdit";
}

void TestFeatureTreeDelegate::editorByKind()
{
    QFETCH(QString, feature);
    QFETCH(QString, editorClass);
    FeatureTreeDelegate delegate(nullptr, m_model.get(), m_highlighter.get());
    const QModelIndex index = valueIndex(qPrintable(feature));
    QVERIFY(index.isValid());
    QWidget* editor = delegate.createEditor(m_parent.get(), QStyleOptionViewItem(), index);
    QVERIFY(editor);
    QCOMPARE(QString::fromLatin1(editor->metaObject()->className()), editorClass);
    QCOMPARE(editor->parentWidget(), m_parent.get());
}

void TestFeatureTreeDelegate::readOnlyFeatureStillGetsItsEditor()
{
    impose(m_device, "Flag", "AccessMode", "RO");
    deliver();
    FeatureTreeDelegate delegate(nullptr, m_model.get(), m_highlighter.get());
    const QModelIndex index = valueIndex("Flag");
    QCOMPARE(int(m_model->getFeatureTreeItem(index)->getAccessMode()), int(GenApi::RO));
    QWidget* editor = delegate.createEditor(m_parent.get(), QStyleOptionViewItem(), index);
    QVERIFY(qobject_cast<CheckBoxEditor*>(editor));
}

void TestFeatureTreeDelegate::noEditorWithoutAccess_data()
{
    QTest::addColumn<QString>("feature");
    QTest::addColumn<QString>("access");
    for (const char* feature : { "Gain", "Width", "Offset", "Mode", "Flag", "Go", "Label" }) {
        QTest::addRow("%s not implemented", feature) << feature << "NI";
        QTest::addRow("%s not available", feature) << feature << "NA";
    }
}

void TestFeatureTreeDelegate::noEditorWithoutAccess()
{
    QFETCH(QString, feature);
    QFETCH(QString, access);
    impose(m_device, qPrintable(feature), "AccessMode", qPrintable(access));
    deliver();
    FeatureTreeDelegate delegate(nullptr, m_model.get(), m_highlighter.get());
    const QModelIndex index = valueIndex(qPrintable(feature));
    QVERIFY(m_model->getFeatureTreeItem(index)->getAccessMode() <= GenApi::NA);
    QVERIFY(!delegate.createEditor(m_parent.get(), QStyleOptionViewItem(), index));
}

void TestFeatureTreeDelegate::integerRepresentationChoosesTheEditor_data()
{
    QTest::addColumn<QString>("feature");
    QTest::addColumn<bool>("slider");
    QTest::newRow("HexNumber") << "Offset" << false;
    QTest::newRow("PureNumber") << "Plain" << false;
    QTest::newRow("Linear") << "Width" << true;
}

void TestFeatureTreeDelegate::integerRepresentationChoosesTheEditor()
{
    QFETCH(QString, feature);
    QFETCH(bool, slider);
    QByteArray json = everyKindCamera();
    json.replace(R"("children": ["Controls"])", R"("children": ["Controls", "Plain"])");
    json.replace(R"({ "name": "Root")",
        R"({ "name": "Plain", "type": "Integer", "value": 1, "min": 0, "max": 5 }, { "name": "Root")");
    m_device = makeDevice(json);
    m_model.reset(new SubstitutingModel);
    addCamera(*m_model, m_device);
    FeatureTreeDelegate delegate(nullptr, m_model.get(), m_highlighter.get());
    QWidget* editor = delegate.createEditor(m_parent.get(), QStyleOptionViewItem(), valueIndex(qPrintable(feature)));
    QVERIFY(editor);
    QCOMPARE(bool(qobject_cast<IntEditor*>(editor)), !slider);
    QCOMPARE(bool(qobject_cast<IntSliderEditor*>(editor)), slider);
}

void TestFeatureTreeDelegate::parameterOfTheWrongKind()
{
    // An item that claims an editor type its Boolean parameter doesn't have.
    const QSharedPointer<ParameterCollection::IParameterCollection> map
        = m_device->nodeMap(QStringLiteral("@CameraDevice"));
    MislabelledItem item(
        map, map->getParameter(cameraFeature("Flag")), m_model.get(), cameraFeature("Flag"), nullptr, false);
    m_model->substitute = &item;
    FeatureTreeDelegate delegate(nullptr, m_model.get(), m_highlighter.get());
    const QModelIndex index = valueIndex("Flag");

    // An enumeration editor needs an enumeration: no editor at all.
    item.type = FeatureTreeItem::EditorEnum;
    QVERIFY(!delegate.createEditor(m_parent.get(), QStyleOptionViewItem(), index));
    item.type = FeatureTreeItem::EditorCommand;
    QVERIFY(!delegate.createEditor(m_parent.get(), QStyleOptionViewItem(), index));
    item.type = FeatureTreeItem::EditorInt;
    QVERIFY(!delegate.createEditor(m_parent.get(), QStyleOptionViewItem(), index));

    // A float without a float parameter falls back to Qt's own editor.
    item.type = FeatureTreeItem::EditorFloat;
    QWidget* editor = delegate.createEditor(m_parent.get(), QStyleOptionViewItem(), index);
    QVERIFY(editor);
    QVERIFY(!dynamic_cast<AbstractItemEditor*>(editor));
    m_model->substitute = nullptr;
}

void TestFeatureTreeDelegate::zombieGetsNoEditor()
{
    FeatureTreeDelegate delegate(nullptr, m_model.get(), m_highlighter.get());
    const QModelIndex flag = valueIndex("Flag");
    const QModelIndex mode = valueIndex("Mode");
    auto* flagItem = static_cast<FeatureTreeINodeItem*>(m_model->getFeatureTreeItem(flag));
    QVERIFY(delegate.createEditor(m_parent.get(), QStyleOptionViewItem(), flag));
    m_device->unplug();
    QVERIFY(flagItem->node()->isZombie());
    // The item keeps its last snapshot and its access, but the parameter is gone.
    QVERIFY(!delegate.createEditor(m_parent.get(), QStyleOptionViewItem(), flag));
    QVERIFY(!delegate.createEditor(m_parent.get(), QStyleOptionViewItem(), mode));
    m_device->replug();
}

void TestFeatureTreeDelegate::editorDataAndModelData()
{
    FeatureTreeDelegate delegate(nullptr, m_model.get(), m_highlighter.get());
    const QModelIndex index = valueIndex("Flag");
    auto* editor = qobject_cast<CheckBoxEditor*>(delegate.createEditor(m_parent.get(), QStyleOptionViewItem(), index));
    QVERIFY(editor);
    delegate.setEditorData(editor, index);
    QVERIFY(!editor->isChecked());

    // The editor's value goes to the device through the model.
    editor->setChecked(true);
    delegate.setModelData(editor, m_model.get(), index);
    deliver();
    QCOMPARE(m_device->nodeMap(QStringLiteral("@CameraDevice"))
                 ->getParameter(cameraFeature("Flag"))
                 ->getParameterData()
                 ->valueText,
        QStringLiteral("1"));

    // The device's value comes back into the editor.
    QVERIFY(m_device->changeOnDevice(cameraFeature("Flag"), false));
    m_device->nodeMap(QStringLiteral("@CameraDevice"))->refreshAll();
    deliver();
    delegate.setEditorData(editor, index);
    QVERIFY(!editor->isChecked());
}

void TestFeatureTreeDelegate::valueChangeCommitsAtOnce()
{
    FeatureTreeDelegate delegate(nullptr, m_model.get(), m_highlighter.get());
    QSignalSpy commits(&delegate, SIGNAL(commitData(QWidget*)));
    auto* box = qobject_cast<CheckBoxEditor*>(
        delegate.createEditor(m_parent.get(), QStyleOptionViewItem(), valueIndex("Flag")));
    QVERIFY(box);
    m_parent->show();
    box->setGeometry(0, 0, 100, 20);
    box->show();
    QTest::mouseClick(box, Qt::LeftButton, Qt::NoModifier, QPoint(8, 10));
    QCOMPARE(commits.count(), 1);
    QCOMPARE(commits.at(0).at(0).value<QWidget*>(), box);

    // Called without a sender, it commits null.
    delegate.emitCommitData();
    QCOMPARE(commits.count(), 2);
    QCOMPARE(commits.at(1).at(0).value<QWidget*>(), static_cast<QWidget*>(nullptr));
}

void TestFeatureTreeDelegate::destroyEditorDeletesLater()
{
    FeatureTreeDelegate delegate(nullptr, m_model.get(), m_highlighter.get());
    QPointer<QWidget> editor = delegate.createEditor(m_parent.get(), QStyleOptionViewItem(), valueIndex("Mode"));
    QVERIFY(editor);
    delegate.destroyEditor(editor, valueIndex("Mode"));
    QVERIFY(editor);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(!editor);
}

QImage TestFeatureTreeDelegate::paintName(FeatureTreeDelegate& delegate, const QModelIndex& index, int width)
{
    QImage image(width, 24, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    QStyleOptionViewItem option;
    option.rect = QRect(0, 0, width, 24);
    option.font = painter.font();
    option.fontMetrics = painter.fontMetrics();
    option.state = QStyle::State_Enabled;
    delegate.paint(&painter, option, index);
    painter.end();
    return image;
}

void TestFeatureTreeDelegate::emptySearchMarksNothing()
{
    FeatureTreeDelegate delegate(nullptr, m_model.get(), m_highlighter.get());
    const QModelIndex name = m_model->findItemByFullName(cameraFeature("AcquisitionFrameRateEnableMarker"), nullptr, 0);
    QVERIFY(name.isValid());
    m_highlighter->setTextToHighlight(QString());
    QCOMPARE(m_highlighter->getTextToHighlightLength(), 0);
    const QImage empty = paintName(delegate, name, 400);
    QCOMPARE(countPixels(empty, kMarkColour), 0);
    QVERIFY(countPixels(empty, Qt::white) < 400 * 24); // the name is drawn

    // A search without a match marks nothing either, but takes its length off the width.
    m_highlighter->setTextToHighlight(QStringLiteral("zzzzzzzzzzzzzzzzzzzzzzzzzzzzzzzzzzzzzzzzzzzzzzzzzzzzzz"));
    const QImage other = paintName(delegate, name, 200);
    m_highlighter->setTextToHighlight(QString());
    const QImage full = paintName(delegate, name, 200);
    QCOMPARE(countPixels(other, kMarkColour), 0);
    QVERIFY(other != full);
}

void TestFeatureTreeDelegate::matchesAreMarkedInTheVisibleTextOnly()
{
    FeatureTreeDelegate delegate(nullptr, m_model.get(), m_highlighter.get());
    const QModelIndex name = m_model->findItemByFullName(cameraFeature("AcquisitionFrameRateEnableMarker"), nullptr, 0);
    QVERIFY(name.isValid());

    // At the start of the name: marked, in any case.
    m_highlighter->setTextToHighlight(QStringLiteral("acq"));
    QVERIFY(countPixels(paintName(delegate, name, 120), kMarkColour) > 0);

    // Further on: marked while that part of the name is drawn, not once elision cuts it away.
    m_highlighter->setTextToHighlight(QStringLiteral("Enable"));
    QVERIFY(countPixels(paintName(delegate, name, 600), kMarkColour) > 0);
    QCOMPARE(countPixels(paintName(delegate, name, 120), kMarkColour), 0);
}

void TestFeatureTreeDelegate::specialRowsAreNotMarked()
{
    m_model->rebuildFavoriteItems();
    FeatureTreeDelegate delegate(nullptr, m_model.get(), m_highlighter.get());
    const QModelIndex favorites = m_model->GetFavoritesRootIndex();
    QVERIFY(favorites.data(FeatureTreeItem::IsSpecialNodeRole).toBool());
    m_highlighter->setTextToHighlight(QStringLiteral("Fav"));
    QCOMPARE(countPixels(paintName(delegate, favorites, 300), kMarkColour), 0);
    // The same text on a feature's name is marked.
    m_highlighter->setTextToHighlight(QStringLiteral("Gai"));
    QVERIFY(countPixels(
                paintName(delegate, m_model->findItemByFullName(cameraFeature("Gain"), nullptr, 0), 300), kMarkColour)
        > 0);
}

void TestFeatureTreeDelegate::searchResultLineShowsNoTags()
{
    m_model->rebuildFavoriteItems();
    FeatureTreeItem* help = m_model->getSearchHelpItem();
    QVERIFY(help);
    const QModelIndex index = m_model->findItem(help, nullptr, 0);
    QVERIFY(index.isValid());
    const QString title = index.data(Qt::DisplayRole).toString();
    QVERIFY2(title.startsWith(QLatin1String("<HTML><B>")), qPrintable(title));
    FeatureTreeDelegate delegate(nullptr, m_model.get(), m_highlighter.get());
    const QImage painted = paintName(delegate, index, 1200);

    // The line is drawn in bold without its tags: its ink ends where the bold words alone end,
    // well before the literal text with "<HTML><B>" and "</B>" would.
    auto inkEnd = [](const QImage& image) {
        int end = 0;
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                if (image.pixelColor(x, y) != Qt::white)
                    end = qMax(end, x);
        return end;
    };
    QFont bold = QApplication::font();
    bold.setBold(true);
    QString words = title;
    words.remove(QStringLiteral("<HTML>")).remove(QStringLiteral("<B>")).remove(QStringLiteral("</B>"));
    const int boldWidth = QFontMetrics(bold).horizontalAdvance(words);
    const int literalWidth = QFontMetrics(QApplication::font()).horizontalAdvance(title);
    QVERIFY(inkEnd(painted) > 0);
    QVERIFY2(
        inkEnd(painted) < literalWidth - QFontMetrics(QApplication::font()).horizontalAdvance(QStringLiteral("<B>")),
        qPrintable(QStringLiteral("ink ends at %1, literal text is %2 wide").arg(inkEnd(painted)).arg(literalWidth)));
    QVERIFY(qAbs(inkEnd(painted) - boldWidth) < boldWidth / 5 + 10);
}

QTEST_MAIN(TestFeatureTreeDelegate)
#include "tst_featuretreedelegate.moc"
