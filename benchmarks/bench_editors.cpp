// The parameter editors beside the plain Qt widgets they are built on.
//
// For each kind: create 1 000 editors under one parent, fill each from a
// snapshot (what expanding a large category in the tree costs), then apply
// one new snapshot to each (what a device update costs). Time for the 1 000
// and heap bytes per editor; the plain widgets get the same numbers set by
// hand in the same run.

#include "benchmarkutil.h"

#include "featuretree/checkboxeditor.h"
#include "featuretree/comboslider.h"
#include "featuretree/doublespinbox.h"
#include "featuretree/enumeditor.h"
#include "featuretree/floateditor.h"
#include "featuretree/floatslidereditor.h"
#include "featuretree/inteditor.h"
#include "featuretree/intslidereditor.h"
#include "featuretree/toolbuttoneditor.h"
#include "featuretree/twomodedoublecomboslider.h"
#include "simulateddevice.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QSlider>
#include <QSpinBox>
#include <QTextStream>
#include <QToolButton>

#include <functional>
#include <memory>
#include <vector>

using namespace ParameterCollection;

namespace {

const int EditorCount = 1000;

const char* const CameraJson = R"({ "format": "zarvex-simulated-device", "version": 1, "vendor": "Zarvex",
    "model": "Bench", "serialNumber": "1", "transportLayerType": "GEV",
    "nodeMaps": [ { "name": "@CameraDevice", "features": [
        { "name": "Root", "type": "Category", "children": [] },
        { "name": "Flag", "type": "Boolean", "value": true },
        { "name": "Mode", "type": "Enumeration", "value": "B", "entries": [
            { "value": "A", "displayName": "Entry A" }, { "value": "B", "displayName": "Entry B" },
            { "value": "C", "displayName": "Entry C" }, { "value": "D", "displayName": "Entry D" },
            { "value": "E", "displayName": "Entry E" }, { "value": "F", "displayName": "Entry F" } ] },
        { "name": "Start", "type": "Command", "duration": 10 },
        { "name": "Count", "type": "Integer", "value": 7, "min": 0, "max": 1000 },
        { "name": "Width", "type": "Integer", "representation": "Linear", "value": 640, "min": 16, "max": 4096, "inc": 16 },
        { "name": "Gain", "type": "Float", "value": 1.5, "min": 0.0, "max": 24.0, "inc": 0.5 },
        { "name": "ExposureTime", "type": "Float", "representation": "Logarithmic", "alias": true, "precision": 1,
          "value": 5000.0, "min": 20.0, "max": 1000000.0 } ] } ] })";

struct Figures
{
    double createMs = 0.0;
    double fillMs = 0.0;
    double updateMs = 0.0;
    qint64 heapPerWidget = 0;
};

//! Creates the widgets, fills each, updates each; heap is what the parent and its widgets hold after filling.
Figures measure(const std::function<QWidget*(QWidget*)>& create, const std::function<void(QWidget*, bool)>& fill)
{
    Figures figures;
    const qint64 heapBefore = BenchmarkUtil::heapInUse();
    auto parent = std::make_unique<QWidget>();
    std::vector<QWidget*> widgets;
    widgets.reserve(EditorCount);
    figures.createMs = BenchmarkUtil::timeMs([&] {
        for (int i = 0; i < EditorCount; ++i)
            widgets.push_back(create(parent.get()));
    });
    figures.fillMs = BenchmarkUtil::timeMs([&] {
        for (QWidget* widget : widgets)
            fill(widget, false);
    });
    figures.heapPerWidget = (BenchmarkUtil::heapInUse() - heapBefore) / EditorCount;
    figures.updateMs = BenchmarkUtil::timeMs([&] {
        for (QWidget* widget : widgets)
            fill(widget, true);
    });
    return figures;
}

//! A snapshot of the feature and a second one that differs in value, as the next device update brings.
struct Snapshots
{
    AbstractItemEditor::EditorData first;
    AbstractItemEditor::EditorData second;
};

template <typename Data> Snapshots snapshots(const QSharedPointer<IParameter>& node, void (*change)(Data&))
{
    Snapshots result;
    result.first = { node, node->getParameterData() };
    QSharedPointer<Data> next(new Data(*node->getParameterData().template dynamicCast<const Data>()));
    change(*next);
    result.second = { node, next };
    return result;
}

std::function<void(QWidget*, bool)> editorFill(const Snapshots& data)
{
    return [data](QWidget* widget, bool second) {
        dynamic_cast<AbstractItemEditor*>(widget)->setEditorData(second ? data.second : data.first);
    };
}

//! A spin box of the given class beside a slider, in a layout as the combo sliders have it.
template <typename SpinBox> QWidget* spinAndSlider(QWidget* parent)
{
    auto* widget = new QWidget(parent);
    auto* layout = new QHBoxLayout(widget);
    layout->setContentsMargins(0, 1, 0, 1);
    layout->addWidget(new SpinBox);
    layout->addWidget(new QSlider(Qt::Horizontal), 10);
    return widget;
}

} // namespace

int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    QTextStream out(stdout);

    QString error;
    const auto device = Simulation::SimulatedDevice::fromJson(CameraJson, &error);
    if (!device) {
        out << "device refused: " << error << '\n';
        return 1;
    }
    const auto nodeMap = device->nodeMap(QStringLiteral("@CameraDevice"));
    const auto node = [&](const char* name) { return nodeMap->getParameter(QLatin1String(name)); };

    const Snapshots flag
        = snapshots<BooleanParameterData>(node("Flag"), [](BooleanParameterData& d) { d.value = !d.value; });
    const Snapshots mode
        = snapshots<EnumParameterData>(node("Mode"), [](EnumParameterData& d) { d.valueText = QStringLiteral("D"); });
    const Snapshots start
        = snapshots<CommandParameterData>(node("Start"), [](CommandParameterData& d) { d.done = false; });
    const Snapshots count = snapshots<IntegerParameterData>(node("Count"), [](IntegerParameterData& d) {
        d.value = 8;
        d.valueText = QStringLiteral("8");
    });
    const Snapshots width = snapshots<IntegerParameterData>(node("Width"), [](IntegerParameterData& d) {
        d.value = 656;
        d.valueText = QStringLiteral("656");
    });
    const Snapshots gain = snapshots<FloatParameterData>(node("Gain"), [](FloatParameterData& d) {
        d.value = 2.0;
        d.valueText = QStringLiteral("2.00");
    });
    const Snapshots exposure = snapshots<FloatParameterData>(node("ExposureTime"), [](FloatParameterData& d) {
        d.value = 6000.0;
        d.valueText = QStringLiteral("6000.0");
    });

    struct Row
    {
        const char* editor;
        const char* plain;
        std::function<QWidget*(QWidget*)> create;
        std::function<void(QWidget*, bool)> fill;
        std::function<QWidget*(QWidget*)> createPlain;
        std::function<void(QWidget*, bool)> fillPlain;
    };

    const std::vector<Row> rows = {
        { "CheckBoxEditor", "QCheckBox", [](QWidget* p) { return new CheckBoxEditor(p); }, editorFill(flag),
            [](QWidget* p) { return new QCheckBox(p); },
            [](QWidget* w, bool second) {
                auto* box = static_cast<QCheckBox*>(w);
                box->setChecked(!second);
                box->setEnabled(true);
            } },
        { "EnumEditor", "QComboBox", [](QWidget* p) { return new EnumEditor(p); }, editorFill(mode),
            [](QWidget* p) { return new QComboBox(p); },
            [mode](QWidget* w, bool second) {
                auto* box = static_cast<QComboBox*>(w);
                const auto data = mode.first.data.dynamicCast<const EnumParameterData>();
                box->clear();
                for (int i = 0; i < data->symbolicValues.size(); ++i)
                    box->addItem(data->displayTexts.at(i), data->symbolicValues.at(i));
                box->setCurrentIndex(box->findData(second ? QStringLiteral("D") : data->valueText));
            } },
        { "ToolButtonEditor", "QToolButton", [](QWidget* p) { return new ToolButtonEditor(p); }, editorFill(start),
            [](QWidget* p) {
                auto* button = new QToolButton(p);
                button->setText(QStringLiteral("Execute"));
                button->setCheckable(true);
                return button;
            },
            [](QWidget* w, bool second) { static_cast<QToolButton*>(w)->setChecked(second); } },
        { "IntEditor", "QLineEdit", [](QWidget* p) { return new IntEditor(p); }, editorFill(count),
            [](QWidget* p) { return new QLineEdit(p); },
            [](QWidget* w, bool second) {
                auto* edit = static_cast<QLineEdit*>(w);
                edit->setText(second ? QStringLiteral("8") : QStringLiteral("7"));
                edit->setToolTip(QStringLiteral("Range: %1..%2").arg(0).arg(1000));
            } },
        { "IntSliderEditor", "QSpinBox+QSlider", [](QWidget* p) { return new IntSliderEditor(p); }, editorFill(width),
            spinAndSlider<QSpinBox>,
            [](QWidget* w, bool second) {
                auto* spin = w->findChild<QSpinBox*>();
                auto* slider = w->findChild<QSlider*>();
                spin->setRange(16, 4096);
                spin->setSingleStep(16);
                slider->setRange(16, 4096);
                slider->setSingleStep(16);
                slider->setPageStep(204);
                spin->setValue(second ? 656 : 640);
                slider->setValue(second ? 656 : 640);
            } },
        { "FloatEditor", "QDoubleSpinBox", [](QWidget* p) { return new FloatEditor(p, QString()); }, editorFill(gain),
            [](QWidget* p) { return new QDoubleSpinBox(p); },
            [](QWidget* w, bool second) {
                auto* spin = static_cast<QDoubleSpinBox*>(w);
                spin->setDecimals(2);
                spin->setRange(0.0, 24.0);
                spin->setSingleStep(0.5);
                spin->setValue(second ? 2.0 : 1.5);
            } },
        { "FloatSliderEditor", "QDoubleSpinBox+QSlider",
            [nodeMap](QWidget* p) { return new FloatSliderEditor(nodeMap, p); }, editorFill(exposure),
            spinAndSlider<QDoubleSpinBox>,
            [](QWidget* w, bool second) {
                auto* spin = w->findChild<QDoubleSpinBox*>();
                auto* slider = w->findChild<QSlider*>();
                spin->setDecimals(1);
                spin->setRange(20.0, 1000000.0);
                slider->setRange(0, 100000);
                spin->setValue(second ? 6000.0 : 5000.0);
                slider->setValue(second ? 61000 : 60000);
            } },
    };

    const auto ms = [](double value) { return QString::number(value, 'f', 2); };
    const auto ratio = [](double a, double b) { return QString::number(a / qMax(b, 1e-9), 'f', 2); };
    out << "1000 widgets of each kind: create, fill from a snapshot, apply a new snapshot; ms for all 1000, "
           "heap bytes per widget after filling\n\n";
    out << qSetFieldWidth(18) << Qt::left << "editor" << qSetFieldWidth(8) << Qt::right << "create"
        << "fill"
        << "update"
        << "heap" << qSetFieldWidth(3) << "" << qSetFieldWidth(24) << Qt::left << "plain Qt" << qSetFieldWidth(8)
        << Qt::right << "create"
        << "fill"
        << "update"
        << "heap" << qSetFieldWidth(3) << "" << qSetFieldWidth(0) << "ratios create/fill/update/heap\n";
    for (const Row& row : rows) {
        // Once untimed, so that first-use costs (styles, fonts, metatypes) fall on neither side.
        measure(row.create, row.fill);
        measure(row.createPlain, row.fillPlain);
        const Figures editor = measure(row.create, row.fill);
        const Figures plain = measure(row.createPlain, row.fillPlain);
        out << qSetFieldWidth(18) << Qt::left << row.editor << qSetFieldWidth(8) << Qt::right << ms(editor.createMs)
            << ms(editor.fillMs) << ms(editor.updateMs) << editor.heapPerWidget << qSetFieldWidth(3) << ""
            << qSetFieldWidth(24) << Qt::left << row.plain << qSetFieldWidth(8) << Qt::right << ms(plain.createMs)
            << ms(plain.fillMs) << ms(plain.updateMs) << plain.heapPerWidget << qSetFieldWidth(3) << ""
            << qSetFieldWidth(0) << ratio(editor.createMs, plain.createMs) << " / "
            << ratio(editor.fillMs, plain.fillMs) << " / " << ratio(editor.updateMs, plain.updateMs) << " / "
            << ratio(double(editor.heapPerWidget), double(plain.heapPerWidget)) << '\n';
    }

    // Where the cost of creating an editor lies: the value widget it derives from, alone.
    out << "\ncreating 1000 of the value widgets the editors derive from [ms]\n";
    const std::vector<std::pair<const char*, std::function<QWidget*(QWidget*)>>> bases = {
        { "ComboSlider", [](QWidget* p) { return new ComboSlider(p); } },
        { "DoubleSpinBox", [](QWidget* p) { return new DoubleSpinBox(p, QString()); } },
        { "TwoModeDoubleComboSlider", [](QWidget* p) { return new TwoModeDoubleComboSlider(p); } },
    };
    const auto nothing = [](QWidget*, bool) {};
    for (const auto& base : bases) {
        measure(base.second, nothing);
        out << qSetFieldWidth(26) << Qt::left << base.first << qSetFieldWidth(8) << Qt::right
            << ms(measure(base.second, nothing).createMs) << qSetFieldWidth(0) << '\n';
    }
    return 0;
}
