// The items of the feature tree: the plain item, the parameter item and the
// favourites root, with their editor types, roles, texts and flags.

#include "featuretreetestsupport.h"

#include "featuretree/featuretreefavoritesitem.h"
#include "featuretree/featuretreehighlighter.h"
#include "featuretree/featuretreeinodeitem.h"
#include "featuretree/featuretreeitem.h"
#include "featuretree/featuretreemodel.h"
#include "featuretree/nodemapname.h"

#include <QApplication>
#include <QBrush>
#include <QFontMetricsF>
#include <QPalette>
#include <QSettings>
#include <QStandardPaths>
#include <QTranslator>
#include <QUuid>
#include <QtTest>

#include <limits>

using namespace TreeTest;
using ParameterCollection::IParameter;
using Simulation::FaultKind;
using Simulation::Operation;

namespace {

const QByteArray itemCamera = cameraJson(R"(
    { "name": "Root", "type": "Category", "children": ["Features", "Empty"] },
    { "name": "Features", "type": "Category", "displayName": "All Features",
      "children": ["IntPlain", "IntLinear", "IntLog", "IntHex", "FloatPlain", "FloatLinear", "FloatLog",
                   "Choice", "Switch", "Text", "Run", "ReadOnly", "WriteOnly", "NotAvailable",
                   "NotImplemented", "ExpertOne", "RootCause", "ReadOnlyChoice"] },
    { "name": "IntPlain", "type": "Integer", "displayName": "Plain Integer", "unit": "px",
      "tooltip": "How many pixels.", "description": "A plain number.", "docuUrl": "docs/int.html",
      "value": 5, "min": 0, "max": 100 },
    { "name": "IntLinear", "type": "Integer", "representation": "Linear", "value": 5, "min": 0, "max": 100 },
    { "name": "IntLog", "type": "Integer", "representation": "Logarithmic", "value": 5, "min": 1, "max": 100 },
    { "name": "IntHex", "type": "Integer", "representation": "HexNumber", "value": 255, "min": 0, "max": 4095 },
    { "name": "FloatPlain", "type": "Float", "value": 1.5, "min": 0, "max": 10 },
    { "name": "FloatLinear", "type": "Float", "representation": "Linear", "value": 1.5, "min": 0, "max": 10 },
    { "name": "FloatLog", "type": "Float", "representation": "Logarithmic", "value": 1.5, "min": 0.1, "max": 10 },
    { "name": "Choice", "type": "Enumeration", "value": "A",
      "entries": [ { "value": "A", "numeric": 0 }, { "value": "B", "numeric": 1 } ] },
    { "name": "Switch", "type": "Boolean", "value": true },
    { "name": "Text", "type": "String", "value": "abc", "maxLength": 32 },
    { "name": "Run", "type": "Command", "duration": 100000 },
    { "name": "ReadOnly", "type": "Integer", "access": "RO", "value": 3, "min": 0, "max": 9 },
    { "name": "WriteOnly", "type": "Integer", "access": "WO", "value": 3, "min": 0, "max": 9 },
    { "name": "NotAvailable", "type": "Integer", "access": "NA", "value": 3, "min": 0, "max": 9 },
    { "name": "NotImplemented", "type": "Integer", "access": "NI", "value": 3, "min": 0, "max": 9 },
    { "name": "ExpertOne", "type": "Integer", "visibility": "Expert", "value": 3, "min": 0, "max": 9 },
    { "name": "RootCause", "type": "Integer", "displayName": "Root Cause", "tooltip": "Why it failed.",
      "value": 3, "min": 0, "max": 9 },
    { "name": "ReadOnlyChoice", "type": "Enumeration", "access": "RO", "value": "A",
      "entries": [ { "value": "A", "numeric": 0 } ] },
    { "name": "Empty", "type": "Category", "children": [] }
)");

const Qt::ItemFlags baseColumn0 = Qt::ItemIsSelectable | Qt::ItemIsDragEnabled | Qt::ItemIsEnabled;
const Qt::ItemFlags editable = Qt::ItemIsEditable | Qt::ItemIsEnabled;

const QList<int> allRoles = { Qt::DisplayRole, Qt::EditRole, Qt::ToolTipRole, Qt::ForegroundRole, Qt::SizeHintRole,
    FeatureTreeItem::NodeNameRole, FeatureTreeItem::NodeToolTipRole, FeatureTreeItem::NodeDescriptionRole,
    FeatureTreeItem::NodeDocuUrlRole, FeatureTreeItem::IsCategoryRole, FeatureTreeItem::VisibilityRole,
    FeatureTreeItem::ItemIdRole, FeatureTreeItem::IsFullRowRole, FeatureTreeItem::IsSpecialNodeRole,
    FeatureTreeItem::ShowMeRole, FeatureTreeItem::FullNameRole };

} // namespace

class TestFeatureTreeItem : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();

    void numbering();
    void editorTypeByKind_data();
    void editorTypeByKind();
    void staticEditorTypes();

    void nullNodeItem();
    void nullSnapshotShowsNotImplemented();
    void valueTextByAccess_data();
    void valueTextByAccess();
    void booleanAndCategoryShowNoValue();
    void itemIdRole();
    void showMe_data();
    void showMe();
    void toolTip_data();
    void toolTip();
    void rolesOfParameterItems();
    void flagsOfParameterItems_data();
    void flagsOfParameterItems();
    void foregroundRole();
    void hasChildrenBeforeFetching();
    void emptyCategoryIsNotAskedAgain();

    void setDataWrites_data();
    void setDataWrites();
    void setDataRunsCommands();
    void cachingFailuresLeaveAUsableItem_data();
    void cachingFailuresLeaveAUsableItem();

    void plainItemData();
    void anyVisibilityComparesByValue_data();
    void anyVisibilityComparesByValue();
    void anyAccessModeAndEditorType_data();
    void anyAccessModeAndEditorType();
    void plainItemFlags();
    void plainItemChildren();
    void shallowFinders();
    void favoritesItem();
    void translationContextOfTwoNodeMapsBuiltAlternately();
    void titleWithUnitFollowsEveryNewDisplayedName();
    void highlighterOfOneItemLeavesTheOthersAlone();
    void childrenKeepTheirOwnCollection();
    void plainItemKeepsDescriptionAndToolTipApart();
    void valueTextFollowsALanguageChange();

private:
    QSharedPointer<IParameter> parameter(const QString& name) const
    {
        return m_device->nodeMap(QStringLiteral("@CameraDevice"))
            ->getParameter(QStringLiteral("@CameraDevice/") + name);
    }
    //! A parameter item as the model builds it below a category.
    std::unique_ptr<FeatureTreeINodeItem> item(const QString& name, bool textAsUtf8 = false) const
    {
        return std::make_unique<FeatureTreeINodeItem>(m_device->nodeMap(QStringLiteral("@CameraDevice")),
            parameter(name), m_model.get(), QStringLiteral("@CameraDevice/") + name, nullptr, textAsUtf8);
    }

    QSharedPointer<Simulation::SimulatedDevice> m_device;
    std::unique_ptr<FeatureTreeModel> m_model;
};

void TestFeatureTreeItem::initTestCase()
{
    QStandardPaths::setTestModeEnabled(true);
    QCoreApplication::setOrganizationName(QStringLiteral("ZarvexTests"));
    QCoreApplication::setApplicationName(QStringLiteral("tst_featuretreeitem"));
}

void TestFeatureTreeItem::init()
{
    QSettings().remove(QStringLiteral("Favorites"));
    m_device = makeDevice(itemCamera);
    QVERIFY(m_device);
    m_model = std::make_unique<FeatureTreeModel>();
}

void TestFeatureTreeItem::cleanup()
{
    m_model.reset();
    m_device.reset();
}

void TestFeatureTreeItem::numbering()
{
    QCOMPARE(int(FeatureTreeItem::EditorInt), 0);
    QCOMPARE(int(FeatureTreeItem::EditorIntSlider), 1);
    QCOMPARE(int(FeatureTreeItem::EditorFloat), 2);
    QCOMPARE(int(FeatureTreeItem::EditorFloatSlider), 3);
    QCOMPARE(int(FeatureTreeItem::EditorEnum), 4);
    QCOMPARE(int(FeatureTreeItem::EditorBool), 5);
    QCOMPARE(int(FeatureTreeItem::EditorString), 6);
    QCOMPARE(int(FeatureTreeItem::EditorCommand), 7);
    QCOMPARE(int(FeatureTreeItem::EditorNone), 10);
    QCOMPARE(int(FeatureTreeItem::EditorInvalid), 11);

    QCOMPARE(int(FeatureTreeItem::NodeNameRole), 0x101);
    QCOMPARE(int(FeatureTreeItem::NodeToolTipRole), 0x102);
    QCOMPARE(int(FeatureTreeItem::NodeDescriptionRole), 0x103);
    QCOMPARE(int(FeatureTreeItem::NodeDocuUrlRole), 0x104);
    QCOMPARE(int(FeatureTreeItem::IsCategoryRole), 0x105);
    QCOMPARE(int(FeatureTreeItem::VisibilityRole), 0x106);
    QCOMPARE(int(FeatureTreeItem::ItemIdRole), 0x10a);
    QCOMPARE(int(FeatureTreeItem::IsFullRowRole), 0x10c);
    QCOMPARE(int(FeatureTreeItem::IsSpecialNodeRole), 0x10d);
    QCOMPARE(int(FeatureTreeItem::ShowMeRole), 0x10e);
    QCOMPARE(int(FeatureTreeItem::FullNameRole), 0x120);
}

void TestFeatureTreeItem::editorTypeByKind_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("editorType");
    QTest::addColumn<bool>("persistentEditor");
    QTest::newRow("integer") << "IntPlain" << 0 << false;
    QTest::newRow("integer, hexadecimal") << "IntHex" << 0 << false;
    QTest::newRow("integer, linear") << "IntLinear" << 1 << true;
    QTest::newRow("integer, logarithmic") << "IntLog" << 1 << true;
    QTest::newRow("float") << "FloatPlain" << 2 << true;
    QTest::newRow("float, linear") << "FloatLinear" << 3 << true;
    QTest::newRow("float, logarithmic") << "FloatLog" << 3 << true;
    QTest::newRow("enumeration") << "Choice" << 4 << true;
    QTest::newRow("boolean") << "Switch" << 5 << true;
    QTest::newRow("string") << "Text" << 6 << false;
    QTest::newRow("command") << "Run" << 7 << true;
    QTest::newRow("category") << "Features" << 10 << false;
}

void TestFeatureTreeItem::editorTypeByKind()
{
    QFETCH(QString, name);
    QFETCH(int, editorType);
    QFETCH(bool, persistentEditor);
    QCOMPARE(FeatureTreeINodeItem::editorType(parameter(name)), editorType);
    const auto it = item(name);
    QCOMPARE(it->editorType(), editorType);
    QCOMPARE(FeatureTreeINodeItem::editorType(it.get()), editorType);
    QCOMPARE(it->usePersistentEditor(), persistentEditor);
}

void TestFeatureTreeItem::staticEditorTypes()
{
    FeatureTreeItem plain(QStringLiteral("Plain"), m_model.get(), QStringLiteral("Plain"), nullptr);
    QCOMPARE(FeatureTreeItem::editorType(&plain), 10);
    QCOMPARE(FeatureTreeItem::editorType(static_cast<const FeatureTreeItem*>(nullptr)), 11);
    QCOMPARE(FeatureTreeINodeItem::editorType(static_cast<const FeatureTreeINodeItem*>(nullptr)), 11);
    QCOMPARE(FeatureTreeINodeItem::editorType(QSharedPointer<IParameter>()), 11);
    // A name the node map doesn't hold gives a zombie.
    QCOMPARE(FeatureTreeINodeItem::editorType(parameter(QStringLiteral("Missing"))), 11);
    // An index without a row carries no item; an index with a model is never looked behind.
    QCOMPARE(FeatureTreeItem::editorType(QModelIndex()), 11);
    m_model->addParameterCollection(m_device->nodeMap(QStringLiteral("@CameraDevice")), QStringLiteral("Camera"),
        QStringLiteral("@CameraDevice"), false);
    const QModelIndex intPlain = m_model->index(0, 1, m_model->index(0, 0, m_model->index(0, 0)));
    QCOMPARE(intPlain.data(FeatureTreeItem::FullNameRole).toString(), QStringLiteral("@CameraDevice/IntPlain"));
    QCOMPARE(FeatureTreeItem::editorType(intPlain), 11);
    QCOMPARE(plain.editorType(), 10);
}

void TestFeatureTreeItem::nullNodeItem()
{
    FeatureTreeINodeItem it(m_device->nodeMap(QStringLiteral("@CameraDevice")), QSharedPointer<IParameter>(),
        m_model.get(), QStringLiteral("@CameraDevice/Nothing"), nullptr, false);
    QCOMPARE(it.editorType(), 11);
    QCOMPARE(it.getDisplayedName(), QStringLiteral("Unknown"));
    QVERIFY(it.getParameterData());
    QCOMPARE(it.getParameterData()->type, 0);
    for (int column = 0; column < 3; ++column) {
        for (int role : allRoles)
            QVERIFY2(!it.data(column, role).isValid(),
                qPrintable(QStringLiteral("column %1 role %2").arg(column).arg(role)));
    }
    QVERIFY(!it.hasChildren());
    QCOMPARE(it.childCount(), 0);
    QVERIFY(!it.isEditable());
    QVERIFY(!it.ShowMe(GenApi::Guru));
    QVERIFY(it.ShowMe(GenApi::Invisible));
    // Nothing happens on a write.
    it.setData(1, QStringLiteral("1"), Qt::EditRole);

    // The root constructor keeps the name it is given.
    FeatureTreeINodeItem root(m_device->nodeMap(QStringLiteral("@CameraDevice")), QSharedPointer<IParameter>(),
        QStringLiteral("Camera"), m_model.get(), QStringLiteral("@CameraDevice*Root"), nullptr, false);
    QCOMPARE(root.getDisplayedName(), QStringLiteral("Camera"));
    QCOMPARE(root.editorType(), 11);
}

void TestFeatureTreeItem::nullSnapshotShowsNotImplemented()
{
    m_device->setNullSnapshot(QStringLiteral("@CameraDevice/IntPlain"), true);
    const auto it = item(QStringLiteral("IntPlain"));
    m_device->setNullSnapshot(QStringLiteral("@CameraDevice/IntPlain"), false);
    QVERIFY(it->getParameterData());
    QCOMPARE(it->getParameterData()->type, 0);
    QVERIFY(it->getParameterData()->isPlaceholder);
    QCOMPARE(it->data(1, Qt::DisplayRole).toString(), QStringLiteral("<not implemented>"));
    QVERIFY(!it->data(1, Qt::EditRole).isValid());
    QCOMPARE(it->getAccessMode(), GenApi::NI);
    // Properties were cached all the same.
    QCOMPARE(it->data(0, Qt::DisplayRole).toString(), QStringLiteral("Plain Integer [px]"));
}

void TestFeatureTreeItem::valueTextByAccess_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("display");
    QTest::addColumn<QVariant>("edit");
    QTest::addColumn<int>("accessMode");
    QTest::newRow("read-write") << "IntPlain"
                                << "5" << QVariant(QStringLiteral("5")) << int(GenApi::RW);
    QTest::newRow("read-only") << "ReadOnly"
                               << "3" << QVariant(QStringLiteral("3")) << int(GenApi::RO);
    QTest::newRow("write-only") << "WriteOnly"
                                << "<not readable>" << QVariant() << int(GenApi::WO);
    QTest::newRow("not available") << "NotAvailable"
                                   << "<not available>" << QVariant() << int(GenApi::NA);
    QTest::newRow("not implemented") << "NotImplemented"
                                     << "<not implemented>" << QVariant() << int(GenApi::NI);
    QTest::newRow("hexadecimal") << "IntHex"
                                 << "0xFF" << QVariant(QStringLiteral("0xFF")) << int(GenApi::RW);
    QTest::newRow("enumeration") << "Choice"
                                 << "A" << QVariant(QStringLiteral("A")) << int(GenApi::RW);
    QTest::newRow("string") << "Text"
                            << "abc" << QVariant(QStringLiteral("abc")) << int(GenApi::RW);
}

void TestFeatureTreeItem::valueTextByAccess()
{
    QFETCH(QString, name);
    QFETCH(QString, display);
    QFETCH(QVariant, edit);
    QFETCH(int, accessMode);
    const auto it = item(name);
    QCOMPARE(it->data(1, Qt::DisplayRole).toString(), display);
    QCOMPARE(it->data(1, Qt::EditRole), edit);
    QCOMPARE(int(it->getAccessMode()), accessMode);
}

void TestFeatureTreeItem::booleanAndCategoryShowNoValue()
{
    const auto boolean = item(QStringLiteral("Switch"));
    QVERIFY(boolean->data(1, Qt::DisplayRole).isValid());
    QCOMPARE(boolean->data(1, Qt::DisplayRole).toString(), QString());
    QVERIFY(!boolean->data(1, Qt::EditRole).isValid());

    const auto category = item(QStringLiteral("Features"));
    QCOMPARE(category->data(1, Qt::DisplayRole).toString(), QString());
    QVERIFY(!category->data(1, Qt::EditRole).isValid());
    QCOMPARE(category->data(0, Qt::DisplayRole).toString(), QStringLiteral("All Features"));
}

void TestFeatureTreeItem::itemIdRole()
{
    const auto it = item(QStringLiteral("IntPlain"));
    const QString first = it->data(0, FeatureTreeItem::ItemIdRole).toString();
    const QString second = it->data(0, FeatureTreeItem::ItemIdRole).toString();
    QVERIFY(!QUuid(first).isNull());
    QVERIFY(!QUuid(second).isNull());
    QVERIFY(first != second);
    // In column 1 the plain item answers: the hash of the full name.
    const QVariant hash = it->data(1, FeatureTreeItem::ItemIdRole);
    QCOMPARE(hash.toUInt(), static_cast<unsigned int>(qHash(QStringLiteral("@CameraDevice/IntPlain"), 0)));
    QCOMPARE(it->data(1, FeatureTreeItem::ItemIdRole), hash);
}

void TestFeatureTreeItem::showMe_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("level");
    QTest::addColumn<bool>("shown");
    // Invisible passes without any other test, even for a feature that isn't implemented.
    QTest::newRow("not implemented, Invisible") << "NotImplemented" << int(GenApi::Invisible) << true;
    QTest::newRow("not implemented, Guru") << "NotImplemented" << int(GenApi::Guru) << false;
    QTest::newRow("not available, Beginner") << "NotAvailable" << int(GenApi::Beginner) << true;
    QTest::newRow("expert, Beginner") << "ExpertOne" << int(GenApi::Beginner) << false;
    QTest::newRow("expert, Expert") << "ExpertOne" << int(GenApi::Expert) << true;
    QTest::newRow("expert, Guru") << "ExpertOne" << int(GenApi::Guru) << true;
    QTest::newRow("beginner, Beginner") << "IntPlain" << int(GenApi::Beginner) << true;
}

void TestFeatureTreeItem::showMe()
{
    QFETCH(QString, name);
    QFETCH(int, level);
    QFETCH(bool, shown);
    const auto it = item(name);
    QCOMPARE(it->ShowMe(GenApi::EVisibility(level)), shown);
}

void TestFeatureTreeItem::toolTip_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("toolTip");
    QTest::newRow("feature with a tool tip")
        << "IntPlain"
        << "<nobr><b>Plain Integer (IntPlain)</b></nobr><br><nobr>How many pixels.</nobr>";
    QTest::newRow("feature without a tool tip") << "ReadOnly"
                                                << "<nobr><b><unknown> (ReadOnly)</b></nobr>";
    // "Root" in the name gives the short title, as node map roots have.
    QTest::newRow("name containing Root") << "RootCause"
                                          << "<nobr><b>Root Cause</b></nobr><br><nobr>Why it failed.</nobr>";
    QTest::newRow("category") << "Features"
                              << "<nobr><b>All Features</b></nobr>";
}

void TestFeatureTreeItem::toolTip()
{
    QFETCH(QString, name);
    QFETCH(QString, toolTip);
    const auto it = item(name);
    QCOMPARE(it->data(0, Qt::ToolTipRole).toString(), toolTip);
}

void TestFeatureTreeItem::rolesOfParameterItems()
{
    const auto it = item(QStringLiteral("IntPlain"));
    QCOMPARE(it->data(0, Qt::DisplayRole).toString(), QStringLiteral("Plain Integer [px]"));
    QCOMPARE(it->getDisplayedName(), QStringLiteral("Plain Integer"));
    QCOMPARE(it->data(0, FeatureTreeItem::NodeNameRole).toString(), QStringLiteral("IntPlain"));
    QCOMPARE(it->data(0, FeatureTreeItem::NodeToolTipRole).toString(), QStringLiteral("How many pixels."));
    QCOMPARE(it->data(0, FeatureTreeItem::NodeDescriptionRole).toString(), QStringLiteral("A plain number."));
    QCOMPARE(it->data(0, FeatureTreeItem::NodeDocuUrlRole).toString(), QStringLiteral("docs/int.html"));
    QCOMPARE(it->data(0, FeatureTreeItem::IsCategoryRole).toBool(), false);
    QCOMPARE(it->data(0, FeatureTreeItem::VisibilityRole).toInt(), int(GenApi::Beginner));
    QCOMPARE(it->data(0, FeatureTreeItem::IsFullRowRole).toBool(), false);
    QCOMPARE(it->data(0, FeatureTreeItem::IsSpecialNodeRole).toBool(), false);
    QCOMPARE(it->data(0, FeatureTreeItem::ShowMeRole).toBool(), true);
    QCOMPARE(it->data(0, FeatureTreeItem::FullNameRole).toString(), QStringLiteral("@CameraDevice/IntPlain"));
    QVERIFY(!it->data(0, Qt::UserRole + 0x107).isValid());
    QCOMPARE(it->translationContext(), QStringLiteral("CameraDevice"));

    // Column 1 answers the plain item's way: the full name, the full-row flag.
    QCOMPARE(it->data(1, FeatureTreeItem::NodeNameRole).toString(), QStringLiteral("@CameraDevice/IntPlain"));
    it->SetIsFullRowItem(true);
    QCOMPARE(it->data(1, FeatureTreeItem::IsFullRowRole).toBool(), true);
    QCOMPARE(it->data(0, FeatureTreeItem::IsFullRowRole).toBool(), false);
    it->SetIsSpecialNode(true);
    QCOMPARE(it->data(0, FeatureTreeItem::IsSpecialNodeRole).toBool(), true);

    const auto category = item(QStringLiteral("Features"));
    QCOMPARE(category->data(0, FeatureTreeItem::IsCategoryRole).toBool(), true);
    QCOMPARE(category->data(0, FeatureTreeItem::IsFullRowRole).toBool(), true);
    QCOMPARE(category->data(1, FeatureTreeItem::IsFullRowRole).toBool(), false);
    // Without properties the caller's default is read: "<unknown>" for the display name.
    QCOMPARE(item(QStringLiteral("ReadOnly"))->getDisplayedName(), QStringLiteral("<unknown>"));
}

void TestFeatureTreeItem::flagsOfParameterItems_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("column0");
    QTest::addColumn<int>("column1");
    QTest::newRow("read-write integer") << "IntPlain" << int(baseColumn0) << int(editable);
    QTest::newRow("read-only integer") << "ReadOnly" << int(baseColumn0) << int(Qt::ItemIsEnabled);
    QTest::newRow("write-only integer") << "WriteOnly" << int(baseColumn0) << int(editable);
    QTest::newRow("not available integer") << "NotAvailable" << int(baseColumn0) << int(Qt::ItemIsEnabled);
    // Not implemented: the plain item makes column 1 editable for NI and WO.
    QTest::newRow("not implemented integer") << "NotImplemented" << int(baseColumn0) << int(editable);
    // A persistent editor makes column 1 editable even for a read-only feature.
    QTest::newRow("read-only enumeration") << "ReadOnlyChoice" << int(baseColumn0) << int(editable);
    QTest::newRow("category") << "Features" << int(Qt::ItemIsSelectable | Qt::ItemIsEnabled) << int(Qt::ItemIsEnabled);
    QTest::newRow("command") << "Run" << int(baseColumn0) << int(editable);
}

void TestFeatureTreeItem::flagsOfParameterItems()
{
    QFETCH(QString, name);
    QFETCH(int, column0);
    QFETCH(int, column1);
    const auto it = item(name);
    QCOMPARE(int(it->flags(0)), column0);
    QCOMPARE(int(it->flags(1)), column1);
    QCOMPARE(int(it->flags(2)), int(Qt::ItemIsEnabled));
}

void TestFeatureTreeItem::foregroundRole()
{
    const QBrush greyed = QPalette().brush(QPalette::Disabled, QPalette::Text);
    const auto readOnly = item(QStringLiteral("ReadOnly"));
    QCOMPARE(readOnly->data(0, Qt::ForegroundRole).value<QBrush>(), greyed);
    QCOMPARE(readOnly->data(1, Qt::ForegroundRole).value<QBrush>(), greyed);
    QVERIFY(!readOnly->isEditable());
    const auto writable = item(QStringLiteral("IntPlain"));
    QVERIFY(!writable->data(0, Qt::ForegroundRole).isValid());
    QVERIFY(!writable->data(1, Qt::ForegroundRole).isValid());
    QVERIFY(writable->isEditable());
    const auto category = item(QStringLiteral("Features"));
    QVERIFY(!category->data(0, Qt::ForegroundRole).isValid());
    QVERIFY(!category->isEditable());
    FeatureTreeItem plain(QStringLiteral("Plain"), m_model.get(), QStringLiteral("Plain"), nullptr);
    QCOMPARE(plain.data(0, Qt::ForegroundRole).value<QBrush>(), greyed);
}

void TestFeatureTreeItem::hasChildrenBeforeFetching()
{
    const auto category = item(QStringLiteral("Features"));
    QVERIFY(category->hasChildren());
    QCOMPARE(category->builtChildCount(), 0);
    QVERIFY(!item(QStringLiteral("IntPlain"))->hasChildren());
}

void TestFeatureTreeItem::emptyCategoryIsNotAskedAgain()
{
    m_model->addParameterCollection(m_device->nodeMap(QStringLiteral("@CameraDevice")), QStringLiteral("Camera"),
        QStringLiteral("@CameraDevice"), false);
    const QModelIndex empty = childByFullName(*m_model, m_model->index(0, 0), QStringLiteral("@CameraDevice/Empty"));
    QVERIFY(empty.isValid());
    FeatureTreeItem* emptyItem = itemAt(empty);
    QCOMPARE(m_device->nodeMap(QStringLiteral("@CameraDevice"))
                 ->getChildNames(QStringLiteral("@CameraDevice/Empty"), false, true),
        QList<QString>());
    QCOMPARE(m_model->rowCount(empty), 0);

    // From now on, asking the node map for children would throw out of childCount().
    m_device->injectFault(QStringLiteral("@CameraDevice"), Operation::GetChildNames, FaultKind::StdException);
    try {
        QCOMPARE(emptyItem->childCount(), 0);
        QCOMPARE(m_model->rowCount(empty), 0);
    } catch (...) {
        m_device->clearFaults();
        QFAIL("the empty category asked its node map again");
    }
    m_device->clearFaults();
    QVERIFY(emptyItem->hasChildren());
}

void TestFeatureTreeItem::setDataWrites_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("utf8");
    QTest::addColumn<int>("column");
    QTest::addColumn<int>("role");
    QTest::addColumn<QString>("value");
    QTest::addColumn<QString>("stored");

    const QString text = QString::fromUtf8("Grüße");
    QTest::newRow("integer") << "IntPlain" << false << 1 << int(Qt::EditRole) << "42"
                             << "42";
    QTest::newRow("enumeration") << "Choice" << false << 1 << int(Qt::EditRole) << "B"
                                 << "B";
    // Text goes to the parameter layer as its encoded bytes, one character per byte.
    QTest::newRow("string as UTF-8") << "Text" << true << 1 << int(Qt::EditRole) << text
                                     << QString::fromLatin1(text.toUtf8());
    QTest::newRow("string as Latin-1") << "Text" << false << 1 << int(Qt::EditRole) << text << text;
    QTest::newRow("cut at a zero byte") << "Text" << false << 1 << int(Qt::EditRole)
                                        << QStringLiteral("ab") + QChar(0) + QStringLiteral("cd") << "ab";
    QTest::newRow("column 0 writes nothing") << "IntPlain" << false << 0 << int(Qt::EditRole) << "42"
                                             << "5";
    QTest::newRow("display role writes nothing") << "IntPlain" << false << 1 << int(Qt::DisplayRole) << "42"
                                                 << "5";
    QTest::newRow("read-only writes nothing") << "ReadOnly" << false << 1 << int(Qt::EditRole) << "4"
                                              << "3";
}

void TestFeatureTreeItem::setDataWrites()
{
    QFETCH(QString, name);
    QFETCH(bool, utf8);
    QFETCH(int, column);
    QFETCH(int, role);
    QFETCH(QString, value);
    QFETCH(QString, stored);
    const auto it = item(name, utf8);
    it->setData(column, value, role);
    QCOMPARE(parameter(name)->getParameterData()->valueText, stored);
}

void TestFeatureTreeItem::setDataRunsCommands()
{
    const auto it = item(QStringLiteral("Run"));
    auto before = parameter(QStringLiteral("Run"))
                      ->getParameterData()
                      .dynamicCast<const ParameterCollection::CommandParameterData>();
    QVERIFY(before);
    QVERIFY(before->done);
    // The value isn't looked at.
    it->setData(1, QStringLiteral("whatever"), Qt::EditRole);
    auto after = parameter(QStringLiteral("Run"))
                     ->getParameterData()
                     .dynamicCast<const ParameterCollection::CommandParameterData>();
    QVERIFY(after);
    QVERIFY(!after->done);
}

void TestFeatureTreeItem::cachingFailuresLeaveAUsableItem_data()
{
    QTest::addColumn<int>("operation");
    QTest::addColumn<QString>("sentence");
    QTest::addColumn<QString>("displayed");
    QTest::addColumn<QString>("value");
    QTest::newRow("properties") << int(Operation::GetProperty) << "Exception fired when caching parameter properties"
                                << QString() << "5";
    QTest::newRow("snapshot") << int(Operation::GetParameterData) << "Exception fired when caching parameter data"
                              << "Plain Integer"
                              << "<not implemented>";
}

void TestFeatureTreeItem::cachingFailuresLeaveAUsableItem()
{
    QFETCH(int, operation);
    QFETCH(QString, sentence);
    QFETCH(QString, displayed);
    QFETCH(QString, value);
    m_device->injectFault(QStringLiteral("@CameraDevice/IntPlain"), Operation(operation), FaultKind::StdException, 1);
    QTest::ignoreMessage(QtWarningMsg, qPrintable(sentence));
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("^initInternal : +Exception occurred:\\n")));
    const auto it = item(QStringLiteral("IntPlain"));
    QCOMPARE(it->getDisplayedName(), displayed);
    QVERIFY(it->getParameterData());
    QCOMPARE(it->data(1, Qt::DisplayRole).toString(), value);
}

void TestFeatureTreeItem::plainItemData()
{
    FeatureTreeItem plain(QStringLiteral("Shown"), m_model.get(), QStringLiteral("Full*Name"), nullptr);
    QCOMPARE(plain.columnCount(), 2);
    QCOMPARE(plain.data(0, Qt::DisplayRole).toString(), QStringLiteral("Shown"));
    QVERIFY(!plain.data(1, Qt::DisplayRole).isValid());
    QVERIFY(!plain.data(1, Qt::EditRole).isValid());
    const int expectedHeight = static_cast<int>(QFontMetricsF(QApplication::font()).height() + 10);
    QCOMPARE(plain.data(0, Qt::SizeHintRole).toSize(), QSize(0, expectedHeight));
    QCOMPARE(plain.data(0, FeatureTreeItem::NodeNameRole).toString(), QStringLiteral("Full*Name"));
    QCOMPARE(plain.data(0, FeatureTreeItem::FullNameRole).toString(), QStringLiteral("Full*Name"));
    QVERIFY(!plain.data(0, FeatureTreeItem::NodeToolTipRole).isValid());
    QVERIFY(!plain.data(0, FeatureTreeItem::NodeDescriptionRole).isValid());
    QVERIFY(!plain.data(0, FeatureTreeItem::NodeDocuUrlRole).isValid());
    QCOMPARE(plain.data(0, FeatureTreeItem::IsCategoryRole).toBool(), false);
    QCOMPARE(plain.data(0, FeatureTreeItem::VisibilityRole).toInt(), 99);
    QCOMPARE(plain.data(0, FeatureTreeItem::ItemIdRole).toUInt(),
        static_cast<unsigned int>(qHash(QStringLiteral("Full*Name"), 0)));
    // An unsigned int, the same on every request (a parameter item's is a new
    // UUID each time), and another name's differs.
    QCOMPARE(plain.data(0, FeatureTreeItem::ItemIdRole).userType(), int(QMetaType::UInt));
    const QVariant otherId = FeatureTreeItem(QStringLiteral("Other"), nullptr, QStringLiteral("Other*Name"), nullptr)
                                 .data(0, FeatureTreeItem::ItemIdRole);
    QVERIFY(otherId.isValid());
    QVERIFY(otherId != plain.data(0, FeatureTreeItem::ItemIdRole));
    QCOMPARE(plain.data(0, FeatureTreeItem::ShowMeRole).toBool(), false);
    plain.setVisibility(GenApi::Expert);
    QCOMPARE(plain.data(0, FeatureTreeItem::ShowMeRole).toBool(), true);
    QVERIFY(!plain.ShowMe(GenApi::Beginner));
    QVERIFY(!plain.data(0, Qt::UserRole).isValid());

    QVERIFY(plain.data(0, Qt::ToolTipRole).isValid());
    QCOMPARE(plain.GetToolTip(), QString());
    plain.SetToolTip(QStringLiteral("tip"));
    QCOMPARE(plain.data(1, Qt::ToolTipRole).toString(), QStringLiteral("tip"));
    QVERIFY(!plain.HasDescription());
    plain.SetDescription(QString());
    QVERIFY(!plain.HasDescription());
    plain.SetDescription(QStringLiteral("About it"));
    QVERIFY(plain.HasDescription());
    QCOMPARE(plain.GetDescription(), QStringLiteral("About it"));
    plain.setDisplayedName(QStringLiteral("Renamed"));
    QCOMPARE(plain.data(0, Qt::DisplayRole).toString(), QStringLiteral("Renamed"));
    QCOMPARE(plain.getAccessMode(), GenApi::NA);
    QCOMPARE(plain.editorType(), 10);
    QVERIFY(!plain.isEditable());
    QVERIFY(!plain.usePersistentEditor());
}

void TestFeatureTreeItem::plainItemFlags()
{
    FeatureTreeItem plain(QStringLiteral("Shown"), m_model.get(), QStringLiteral("Zombie"), nullptr);
    QCOMPARE(plain.flags(0), baseColumn0);
    QCOMPARE(plain.flags(1), Qt::ItemFlags(Qt::ItemIsEnabled));
    QCOMPARE(plain.flags(2), Qt::ItemFlags(Qt::ItemIsEnabled));
    // The help line of an empty favourites list takes nothing at all.
    FeatureTreeItem dummy(QStringLiteral("Help"), m_model.get(), QStringLiteral("Dummy"), nullptr);
    QCOMPARE(dummy.flags(0), Qt::ItemFlags());
    QCOMPARE(dummy.flags(1), Qt::ItemFlags());
}

void TestFeatureTreeItem::plainItemChildren()
{
    auto* parent = new FeatureTreeItem(QStringLiteral("Parent"), m_model.get(), QStringLiteral("P"), nullptr);
    std::unique_ptr<FeatureTreeItem> owner(parent);
    QCOMPARE(parent->row(), 0);
    QVERIFY(!parent->hasChildren());
    auto* a = new FeatureTreeItem(QStringLiteral("A"), m_model.get(), QStringLiteral("A"), parent);
    auto* b = new FeatureTreeItem(QStringLiteral("B"), m_model.get(), QStringLiteral("B"), parent);
    auto* c = new FeatureTreeItem(QStringLiteral("C"), m_model.get(), QStringLiteral("C"), parent);
    // Not yet in the list: no row.
    QCOMPARE(a->row(), -1);
    parent->appendChild(a);
    parent->appendChild(c);
    parent->insertChild(b, 1);
    QVERIFY(parent->hasChildren());
    QCOMPARE(parent->childCount(), 3);
    QCOMPARE(a->row(), 0);
    QCOMPARE(b->row(), 1);
    QCOMPARE(c->row(), 2);
    QCOMPARE(b->parent(), parent);
    QVERIFY(!parent->child(-1));
    QVERIFY(!parent->child(3));
    QVERIFY(!parent->removeChild(3));
    QCOMPARE(parent->removeChild(0), a);
    QCOMPARE(c->row(), 1);
    QCOMPARE(a->row(), -1);
    delete a;
    parent->clearChildren();
    QCOMPARE(parent->childCount(), 0);
    QVERIFY(parent->getExtension() == m_model.get());
}

void TestFeatureTreeItem::shallowFinders()
{
    FeatureTreeItem top(QStringLiteral("Top"), m_model.get(), QStringLiteral("Top"), nullptr);
    auto* child = new FeatureTreeItem(QStringLiteral("Child"), m_model.get(), QStringLiteral("Child"), &top);
    top.appendChild(child);
    auto* grandChild = new FeatureTreeItem(QStringLiteral("Grand"), m_model.get(), QStringLiteral("Grand"), child);
    child->appendChild(grandChild);
    FeatureTreeItem stranger(QStringLiteral("Stranger"), m_model.get(), QStringLiteral("Stranger"), nullptr);

    QVERIFY(top.findShallow(&top));
    QVERIFY(top.findShallow(grandChild));
    QVERIFY(!child->findShallow(&top));
    QVERIFY(!top.findShallow(&stranger));
    QVERIFY(!top.findShallow(nullptr));

    // A child taken out of its parent's list is not found, though it still
    // names that parent as its own.
    auto* second = new FeatureTreeItem(QStringLiteral("Second"), m_model.get(), QStringLiteral("Second"), &top);
    top.appendChild(second);
    QVERIFY(top.findShallow(second));
    QCOMPARE(top.removeChild(1), second);
    QVERIFY(!top.findShallow(second));
    // Nor is one below it.
    auto* below = new FeatureTreeItem(QStringLiteral("Below"), m_model.get(), QStringLiteral("Below"), second);
    second->appendChild(below);
    QVERIFY(second->findShallow(below));
    QVERIFY(!top.findShallow(below));
    // The address of a deleted item is only compared, never followed (the
    // sanitizer build would catch a read of it).
    const FeatureTreeItem* gone = below;
    delete second;
    QVERIFY(!top.findShallow(gone));
    QVERIFY(top.findShallow(grandChild));
    QCOMPARE(top.findByFullNameShallow(QStringLiteral("Grand")), grandChild);
    QVERIFY(!top.findByFullNameShallow(QStringLiteral("grand")));
    QCOMPARE(top.findByRoleShallow(Qt::DisplayRole, QStringLiteral("Child")), child);
    QVERIFY(!top.findByRoleShallow(Qt::DisplayRole, QStringLiteral("Nobody")));
}

void TestFeatureTreeItem::favoritesItem()
{
    FeatureTreeFavoritesItem favorites(QStringLiteral("Favorites"), m_model.get(), nullptr);
    QCOMPARE(favorites.getFullName(), QStringLiteral("FavoritesTopLevel"));
    QCOMPARE(favorites.data(0, FeatureTreeItem::IsCategoryRole).toBool(), true);
    QCOMPARE(favorites.data(1, FeatureTreeItem::IsCategoryRole).toBool(), false);
    QCOMPARE(favorites.data(0, Qt::DisplayRole).toString(), QStringLiteral("Favorites"));
    QVERIFY(!favorites.data(0, Qt::ForegroundRole).isValid());
    QVERIFY(favorites.ShowMe(GenApi::Beginner));
    QCOMPARE(favorites.getVisibility(), GenApi::Beginner);
    QCOMPARE(favorites.getAccessMode(), GenApi::RW);
    QCOMPARE(favorites.editorType(), 10);
    QVERIFY(!favorites.isEditable());
    QVERIFY(!favorites.usePersistentEditor());
    QCOMPARE(favorites.flags(0), baseColumn0 | Qt::ItemIsDropEnabled);
    QCOMPARE(favorites.flags(1), Qt::ItemFlags(Qt::ItemIsEnabled));
}

void TestFeatureTreeItem::translationContextOfTwoNodeMapsBuiltAlternately()
{
    // Each item's context is its own node map's, however the rows of node
    // maps follow each other, and whatever was built before.
    const QStringList fullNames { QStringLiteral("@CameraDevice/IntPlain"), QStringLiteral("@StreamGrabber0/Width"),
        QStringLiteral("@CameraDevice/IntPlain"), QStringLiteral("@StreamGrabber0/Width"),
        QStringLiteral("@StreamGrabber0/Other"), QStringLiteral("@CameraDevice"), QStringLiteral("@CameraDevice/A/B"),
        QStringLiteral("@CameraDeviceX/IntPlain"), QStringLiteral("@CameraDevice/IntPlain"),
        QStringLiteral("@InterfaceNode/IntPlain"), QStringLiteral("@StreamGrabber0/Width"),
        QStringLiteral("@CameraDevice/IntPlain") };
    QStringList contexts;
    for (int round = 0; round < 2; ++round) {
        for (const QString& fullName : fullNames) {
            FeatureTreeINodeItem built(m_device->nodeMap(QStringLiteral("@CameraDevice")),
                parameter(QStringLiteral("IntPlain")), m_model.get(), fullName, nullptr, false);
            QCOMPARE(built.translationContext(), GetNodemapName(fullName));
            contexts << built.translationContext();
        }
    }
    QCOMPARE(contexts.at(0), QStringLiteral("CameraDevice"));
    QVERIFY(contexts.at(1) != contexts.at(0));
    QCOMPARE(contexts.at(2), contexts.at(0));
    QCOMPARE(contexts.at(3), contexts.at(1));
}

void TestFeatureTreeItem::titleWithUnitFollowsEveryNewDisplayedName()
{
    const auto withUnit = item(QStringLiteral("IntPlain"));
    // The unit is kept until the title is first built, and read back from the
    // title when the displayed name changes: each name must keep the unit.
    withUnit->setDisplayedName(QStringLiteral("Before [x]"));
    QCOMPARE(withUnit->data(0, Qt::DisplayRole).toString(), QStringLiteral("Before [x] [px]"));
    QCOMPARE(withUnit->data(0, Qt::DisplayRole).toString(), QStringLiteral("Before [x] [px]"));
    withUnit->setDisplayedName(QStringLiteral("A"));
    QCOMPARE(withUnit->data(0, Qt::DisplayRole).toString(), QStringLiteral("A [px]"));
    withUnit->setDisplayedName(QStringLiteral("A much longer name than before"));
    QCOMPARE(withUnit->data(0, Qt::DisplayRole).toString(), QStringLiteral("A much longer name than before [px]"));
    withUnit->setDisplayedName(QString());
    QCOMPARE(withUnit->data(0, Qt::DisplayRole).toString(), QStringLiteral(" [px]"));
    withUnit->setDisplayedName(QStringLiteral("%1 %2"));
    QCOMPARE(withUnit->data(0, Qt::DisplayRole).toString(), QStringLiteral("%1 %2 [px]"));

    const auto withoutUnit = item(QStringLiteral("IntLinear"));
    withoutUnit->setDisplayedName(QStringLiteral("Plain [px]"));
    QCOMPARE(withoutUnit->data(0, Qt::DisplayRole).toString(), QStringLiteral("Plain [px]"));
}

void TestFeatureTreeItem::highlighterOfOneItemLeavesTheOthersAlone()
{
    const auto collection = m_device->nodeMap(QStringLiteral("@CameraDevice"));
    FeatureTreeINodeItem parent(collection, parameter(QStringLiteral("Features")), m_model.get(),
        QStringLiteral("@CameraDevice/Features"), nullptr, false);
    auto* first = new FeatureTreeINodeItem(collection, parameter(QStringLiteral("IntPlain")), m_model.get(),
        QStringLiteral("@CameraDevice/IntPlain"), &parent, false);
    parent.appendChild(first);
    FeatureTreeHighlighter one;
    FeatureTreeHighlighter other;
    parent.setHighlighter(&one);
    // A child built after its parent got a highlighter has none of its own.
    auto* second = new FeatureTreeINodeItem(collection, parameter(QStringLiteral("RootCause")), m_model.get(),
        QStringLiteral("@CameraDevice/RootCause"), &parent, false);
    parent.appendChild(second);
    QCOMPARE(parent.highlighter(), &one);
    QCOMPARE(first->highlighter(), nullptr);
    QCOMPARE(second->highlighter(), nullptr);

    first->setHighlighter(&other);
    QCOMPARE(first->highlighter(), &other);
    QCOMPARE(parent.highlighter(), &one);
    QCOMPARE(second->highlighter(), nullptr);

    second->setHighlighter(&one);
    parent.setHighlighter(nullptr);
    QCOMPARE(parent.highlighter(), nullptr);
    QCOMPARE(first->highlighter(), &other);
    QCOMPARE(second->highlighter(), &one);

    // The tool tip is marked by the item's own highlighter only.
    one.setTextToHighlight(QStringLiteral("Root"));
    other.setTextToHighlight(QStringLiteral("Plain"));
    QVERIFY(second->data(0, Qt::ToolTipRole).toString().contains(QLatin1String("<span")));
    QVERIFY(first->data(0, Qt::ToolTipRole).toString().contains(QLatin1String("<span")));
    first->setHighlighter(nullptr);
    QVERIFY(!first->data(0, Qt::ToolTipRole).toString().contains(QLatin1String("<span")));
    QVERIFY(second->data(0, Qt::ToolTipRole).toString().contains(QLatin1String("<span")));
}

void TestFeatureTreeItem::childrenKeepTheirOwnCollection()
{
    const auto collection = m_device->nodeMap(QStringLiteral("@CameraDevice"));
    const QSharedPointer<Simulation::SimulatedDevice> otherDevice = makeDevice(itemCamera);
    const auto otherCollection = otherDevice->nodeMap(QStringLiteral("@CameraDevice"));
    FeatureTreeINodeItem parent(collection, parameter(QStringLiteral("Features")), m_model.get(),
        QStringLiteral("@CameraDevice/Features"), nullptr, false);
    auto* same = new FeatureTreeINodeItem(collection, parameter(QStringLiteral("IntPlain")), m_model.get(),
        QStringLiteral("@CameraDevice/IntPlain"), &parent, false);
    parent.appendChild(same);
    auto* other = new FeatureTreeINodeItem(otherCollection,
        otherCollection->getParameter(QStringLiteral("@CameraDevice/IntPlain")), m_model.get(),
        QStringLiteral("@CameraDevice/IntPlain"), &parent, false);
    parent.appendChild(other);
    FeatureTreeItem plain(QStringLiteral("Plain"), m_model.get(), QStringLiteral("Plain"), nullptr);
    auto* underPlain = new FeatureTreeINodeItem(otherCollection,
        otherCollection->getParameter(QStringLiteral("@CameraDevice/IntPlain")), m_model.get(),
        QStringLiteral("@CameraDevice/IntPlain"), &plain, false);
    plain.appendChild(underPlain);
    QCOMPARE(parent.collection(), collection);
    QCOMPARE(same->collection(), collection);
    QCOMPARE(other->collection(), otherCollection);
    QCOMPARE(underPlain->collection(), otherCollection);
}

void TestFeatureTreeItem::plainItemKeepsDescriptionAndToolTipApart()
{
    FeatureTreeItem plain(QStringLiteral("Shown"), m_model.get(), QStringLiteral("Full*Name"), nullptr);
    // No tool tip set reads as an empty text, not as a null one.
    QVERIFY(!plain.GetToolTip().isNull());
    QVERIFY(plain.GetToolTip().isEmpty());
    QVERIFY(plain.GetDescription().isNull());
    plain.SetDescription(QStringLiteral("About it"));
    QVERIFY(!plain.GetToolTip().isNull());
    QVERIFY(plain.GetToolTip().isEmpty());
    plain.SetToolTip(QStringLiteral("tip"));
    QCOMPARE(plain.GetToolTip(), QStringLiteral("tip"));
    QCOMPARE(plain.GetDescription(), QStringLiteral("About it"));
    plain.SetToolTip(QString());
    QVERIFY(plain.GetToolTip().isNull());
    QCOMPARE(plain.GetDescription(), QStringLiteral("About it"));

    FeatureTreeItem tipFirst(QStringLiteral("Shown"), m_model.get(), QStringLiteral("Other"), nullptr);
    tipFirst.SetToolTip(QStringLiteral("tip"));
    QVERIFY(!tipFirst.HasDescription());
    QVERIFY(tipFirst.GetDescription().isNull());
    QCOMPARE(tipFirst.GetToolTip(), QStringLiteral("tip"));
}

void TestFeatureTreeItem::valueTextFollowsALanguageChange()
{
    // The value column keeps what a snapshot shows, but its fixed texts are
    // translated when asked: a new language reaches rows whose value stays.
    const auto writeOnly = item(QStringLiteral("WriteOnly"));
    const auto notAvailable = item(QStringLiteral("NotAvailable"));
    const auto notImplemented = item(QStringLiteral("NotImplemented"));
    const QString english = writeOnly->data(1, Qt::DisplayRole).toString();
    QCOMPARE(english, QStringLiteral("<not readable>"));
    QTranslator translator;
    QVERIFY(translator.load(QStringLiteral(":/translation/ZarvexViewerComponents_ja.qm")));
    QVERIFY(QCoreApplication::installTranslator(&translator));
    const QString translated = writeOnly->data(1, Qt::DisplayRole).toString();
    const QString translatedNotAvailable = notAvailable->data(1, Qt::DisplayRole).toString();
    const QString translatedNotImplemented = notImplemented->data(1, Qt::DisplayRole).toString();
    QCoreApplication::removeTranslator(&translator);
    QVERIFY(!translated.isEmpty());
    QVERIFY(translated != english);
    QCOMPARE(translated, translator.translate("FeatureTreeINodeItem", "<not readable>"));
    QCOMPARE(translatedNotAvailable, translator.translate("FeatureTreeINodeItem", "<not available>"));
    QCOMPARE(translatedNotImplemented, translator.translate("FeatureTreeINodeItem", "<not implemented>"));
    QCOMPARE(writeOnly->data(1, Qt::DisplayRole).toString(), english);
}

void TestFeatureTreeItem::anyVisibilityComparesByValue_data()
{
    QTest::addColumn<int>("visibility");
    for (int value : { 0, 3, 4, 5, -1, 98, 99, 100, std::numeric_limits<int>::max(), std::numeric_limits<int>::min() })
        QTest::newRow(qPrintable(QString::number(value))) << value;
}

// Visibilities and levels are ints to a host. Unnamed ones (4, -1, 99 as a
// level, ...) are kept as they came and compared like the named ones: a row
// shows at every level at or above its own.
void TestFeatureTreeItem::anyVisibilityComparesByValue()
{
    QFETCH(int, visibility);
    FeatureTreeItem plain(QStringLiteral("Plain"), m_model.get(), QStringLiteral("Plain"), nullptr);
    plain.setVisibility(static_cast<GenApi::EVisibility>(visibility));
    QCOMPARE(int(plain.getVisibility()), visibility);
    QCOMPARE(plain.data(0, FeatureTreeItem::VisibilityRole).toInt(), visibility);
    for (int level : { -1, 0, 2, 3, 4, 99, std::numeric_limits<int>::max(), std::numeric_limits<int>::min() })
        QCOMPARE(plain.ShowMe(static_cast<GenApi::EVisibility>(level)), visibility <= level);
}

namespace {

// An item of a host's own that reports any access mode and editor type.
class AnyItem : public FeatureTreeItem
{
public:
    AnyItem(IFeatureTreeModelExtension* extension, int accessMode, int editor)
        : FeatureTreeItem(QStringLiteral("Any"), extension, QStringLiteral("Any"), nullptr)
        , m_accessMode(accessMode)
        , m_editor(editor)
    {
    }
    GenApi::EAccessMode getAccessMode() const override { return static_cast<GenApi::EAccessMode>(m_accessMode); }
    int editorType() const override { return m_editor; }

private:
    int m_accessMode;
    int m_editor;
};

} // namespace

void TestFeatureTreeItem::anyAccessModeAndEditorType_data()
{
    QTest::addColumn<int>("accessMode");
    QTest::addColumn<int>("editor");
    QTest::addColumn<bool>("persistent");
    QTest::addColumn<bool>("editable");
    // No persistent editor (0, 6, 8, 10): editable only for NI and WO.
    QTest::newRow("NI, editor 8") << 0 << 8 << false << true;
    QTest::newRow("WO, editor 10") << 2 << 10 << false << true;
    QTest::newRow("RW, editor 0") << 4 << 0 << false << false;
    QTest::newRow("access 5, editor 6") << 5 << 6 << false << false;
    QTest::newRow("access -1, editor 8") << -1 << 8 << false << false;
    QTest::newRow("access 99, editor 10") << 99 << 10 << false << false;
    QTest::newRow("access INT_MIN, editor 0") << std::numeric_limits<int>::min() << 0 << false << false;
    // Every other editor type, named or not, keeps an editor open.
    QTest::newRow("access 5, editor 9") << 5 << 9 << true << true;
    QTest::newRow("access -1, editor 12") << -1 << 12 << true << true;
    QTest::newRow("access 99, editor -1") << 99 << -1 << true << true;
    QTest::newRow("access INT_MAX, editor INT_MAX")
        << std::numeric_limits<int>::max() << std::numeric_limits<int>::max() << true << true;
}

void TestFeatureTreeItem::anyAccessModeAndEditorType()
{
    QFETCH(int, accessMode);
    QFETCH(int, editor);
    QFETCH(bool, persistent);
    QFETCH(bool, editable);
    AnyItem item(m_model.get(), accessMode, editor);
    QCOMPARE(int(item.getAccessMode()), accessMode);
    QCOMPARE(item.usePersistentEditor(), persistent);
    QCOMPARE(item.flags(1).testFlag(Qt::ItemIsEditable), editable);
    QCOMPARE(item.flags(0), Qt::ItemIsSelectable | Qt::ItemIsDragEnabled | Qt::ItemIsEnabled);
}

QTEST_MAIN(TestFeatureTreeItem)
#include "tst_featuretreeitem.moc"
