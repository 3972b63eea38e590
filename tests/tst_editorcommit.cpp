// Each editor filled from a tree item, changed as the user changes it, and
// its editorData() written through the model's setData, as the delegate
// does: the device ends with the value the user chose, and the item's next
// snapshot shows it.

#include "editortestsupport.h"
#include "valuewidgettestsupport.h"

#include "featuretree/checkboxeditor.h"
#include "featuretree/enumeditor.h"
#include "featuretree/featuretreeinodeitem.h"
#include "featuretree/floateditor.h"
#include "featuretree/floatslidereditor.h"
#include "featuretree/inteditor.h"
#include "featuretree/intslidereditor.h"
#include "featuretree/toolbuttoneditor.h"
#include "featuretree/zarvexqtdoublespinbox.h"
#include "featuretree/zarvexqtspinbox.h"

#include <QtTest>

#include <functional>

using namespace ParameterCollection;

namespace {

// Reach the inner boxes as a user's keyboard would.
class UserIntSlider : public IntSliderEditor
{
public:
    QAbstractSpinBox* box() const { return spinBox; }
};
class UserFloat : public FloatEditor
{
public:
    QAbstractSpinBox* box() const { return spinBox; }
};
class UserFloatSlider : public FloatSliderEditor
{
public:
    using FloatSliderEditor::FloatSliderEditor;
    QAbstractSpinBox* box() const { return spinBox; }
};

//! Replaces the text of a box by typing, and finishes with Return.
void retype(QWidget* box, const QString& text)
{
    box->setFocus();
    QTest::keyClick(box, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(box, Qt::Key_Backspace);
    QTest::keyClicks(box, text);
    QTest::keyClick(box, Qt::Key_Return);
}

using Make = std::function<QWidget*(const QSharedPointer<IParameterCollection>&)>;
using Act = std::function<void(QWidget*)>;

} // namespace

Q_DECLARE_METATYPE(Make)
Q_DECLARE_METATYPE(Act)

class TestEditorCommit : public QObject
{
    Q_OBJECT

private slots:
    void commitThroughTheModel_data();
    void commitThroughTheModel();
};

void TestEditorCommit::commitThroughTheModel_data()
{
    QTest::addColumn<QString>("feature");
    QTest::addColumn<Make>("make");
    QTest::addColumn<Act>("act");
    QTest::addColumn<QString>("shown");

    QTest::newRow("check box") << QStringLiteral("Flag")
                               << Make([](const QSharedPointer<IParameterCollection>&) { return new CheckBoxEditor; })
                               << Act([](QWidget* w) { QTest::keyClick(w, Qt::Key_Space); }) << QStringLiteral("0");
    QTest::newRow("enumeration") << QStringLiteral("Mode")
                                 << Make([](const QSharedPointer<IParameterCollection>&) { return new EnumEditor; })
                                 << Act([](QWidget* w) { QTest::keyClick(w, Qt::Key_Down); })
                                 << QStringLiteral("Width");
    QTest::newRow("integer, 64-bit") << QStringLiteral("Big")
                                     << Make([](const QSharedPointer<IParameterCollection>&) { return new IntEditor; })
                                     << Act([](QWidget* w) { retype(w, QStringLiteral("1099511627000")); })
                                     << QStringLiteral("1099511627000");
    QTest::newRow("integer, hexadecimal")
        << QStringLiteral("Hex") << Make([](const QSharedPointer<IParameterCollection>&) { return new IntEditor; })
        << Act([](QWidget* w) { retype(w, QStringLiteral("0x7F")); }) << QStringLiteral("0x7F");
    QTest::newRow("integer, IPv4") << QStringLiteral("Address")
                                   << Make([](const QSharedPointer<IParameterCollection>&) { return new IntEditor; })
                                   << Act([](QWidget* w) { retype(w, QStringLiteral("172.16.0.9")); })
                                   << QStringLiteral("172.16.0.9");
    QTest::newRow("integer, MAC") << QStringLiteral("Mac")
                                  << Make([](const QSharedPointer<IParameterCollection>&) { return new IntEditor; })
                                  << Act([](QWidget* w) { retype(w, QStringLiteral("AA:BB:CC:DD:EE:01")); })
                                  << QStringLiteral("AA:BB:CC:DD:EE:01");
    QTest::newRow("integer slider") << QStringLiteral("Count") << Make([](const QSharedPointer<IParameterCollection>&) {
        return new UserIntSlider;
    }) << Act([](QWidget* w) { retype(static_cast<UserIntSlider*>(w)->box(), QStringLiteral("42")); })
                                    << QStringLiteral("42");
    QTest::newRow("float") << QStringLiteral("Gain")
                           << Make([](const QSharedPointer<IParameterCollection>&) { return new UserFloat; })
                           << Act([](QWidget* w) { retype(static_cast<UserFloat*>(w)->box(), QStringLiteral("7.5")); })
                           << QStringLiteral("7.50");
    QTest::newRow("float with alias") << QStringLiteral(
        "ExposureDelay") << Make([](const QSharedPointer<IParameterCollection>& c) {
        return new UserFloatSlider(c);
    }) << Act([](QWidget* w) { retype(static_cast<UserFloatSlider*>(w)->box(), QStringLiteral("250.5")); })
                                      << QStringLiteral("250.5");
}

void TestEditorCommit::commitThroughTheModel()
{
    QFETCH(QString, feature);
    QFETCH(Make, make);
    QFETCH(Act, act);
    QFETCH(QString, shown);

    const auto device = TreeTest::makeDevice(EditorTest::editorCameraJson());
    QVERIFY(device);
    FeatureTreeModel model;
    TreeTest::addCamera(model, device);
    const QModelIndex name = model.findItemByFullName(QStringLiteral("@CameraDevice/") + feature, nullptr, 0);
    QVERIFY(name.isValid());
    auto* item = qobject_cast<FeatureTreeINodeItem*>(TreeTest::itemAt(name));
    QVERIFY(item);

    QWidget* widget = make(device->nodeMap(QStringLiteral("@CameraDevice")));
    std::unique_ptr<QWidget> owner(widget);
    auto* editor = dynamic_cast<AbstractItemEditor*>(widget);
    QVERIFY(editor);
    editor->setEditorData({ item->node(), item->getParameterData() });
    widget->resize(300, 30);
    QVERIFY(ValueWidgetTest::showActive(widget));
    act(widget);

    QVERIFY(model.setData(name.sibling(name.row(), 1), editor->editorData(), Qt::EditRole));
    EditorTest::settle();
    QCOMPARE(item->getParameterData()->valueText, shown);
    if (item->getParameterData()->type != TypeBoolean) // a Boolean shows a check state, not text
        QCOMPARE(name.sibling(name.row(), 1).data(Qt::DisplayRole).toString().section(QLatin1Char(' '), 0, 0), shown);
}

QTEST_MAIN(TestEditorCommit)
#include "tst_editorcommit.moc"
