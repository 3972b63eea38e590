// A window with every value widget and every parameter editor in each of its
// states, on the simulated default camera. It grabs itself and saves a PNG:
//
//   editor_gallery [file.png]        (default: editor-gallery.png)
//
// Run it on a real display or under xvfb-run to look at the pixels; the
// "focused" column is grabbed cell by cell, each with the focus in it.

#include "featuretree/checkboxeditor.h"
#include "featuretree/comboslider.h"
#include "featuretree/doublecomboslider.h"
#include "featuretree/doublespinbox.h"
#include "featuretree/enumeditor.h"
#include "featuretree/floateditor.h"
#include "featuretree/floatslidereditor.h"
#include "featuretree/inteditor.h"
#include "featuretree/intslidereditor.h"
#include "featuretree/toolbuttoneditor.h"
#include "featuretree/twomodedoublecomboslider.h"
#include "simulateddevice.h"

#include <QAbstractSpinBox>
#include <QApplication>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QPixmap>
#include <QTextStream>

#include <functional>
#include <vector>

using namespace ParameterCollection;

namespace {

enum State { Normal, ReadOnly, NotReadable, Focused, OutOfRange, StateCount };

const char* const StateNames[StateCount] = { "normal", "read-only", "not readable", "focused", "out of range" };

//! A writable copy of a snapshot, of its own kind.
QSharedPointer<ParameterData> copyOf(const QSharedPointer<const ParameterData>& data)
{
    if (auto d = data.dynamicCast<const IntegerParameterData>())
        return QSharedPointer<ParameterData>(new IntegerParameterData(*d));
    if (auto d = data.dynamicCast<const FloatParameterData>())
        return QSharedPointer<ParameterData>(new FloatParameterData(*d));
    if (auto d = data.dynamicCast<const BooleanParameterData>())
        return QSharedPointer<ParameterData>(new BooleanParameterData(*d));
    if (auto d = data.dynamicCast<const EnumParameterData>())
        return QSharedPointer<ParameterData>(new EnumParameterData(*d));
    if (auto d = data.dynamicCast<const CommandParameterData>())
        return QSharedPointer<ParameterData>(new CommandParameterData(*d));
    return QSharedPointer<ParameterData>(new ParameterData(*data));
}

//! The snapshot of the feature as it would look in the given state.
QSharedPointer<const ParameterData> snapshotIn(const QSharedPointer<IParameter>& node, State state)
{
    QSharedPointer<ParameterData> data = copyOf(node->getParameterData());
    switch (state) {
    case ReadOnly:
        data->writable = false;
        break;
    case NotReadable:
        data->readable = false;
        data->valueText = QString();
        break;
    case OutOfRange:
        if (auto* d = dynamic_cast<IntegerParameterData*>(data.data())) {
            d->value = d->maximum + qMax<qint64>(d->increment, 1);
            d->valueText = d->representation == QLatin1String("HexNumber")
                ? QStringLiteral("0x") + QString::number(d->value, 16).toUpper()
                : QString::number(d->value);
        } else if (auto* d = dynamic_cast<FloatParameterData*>(data.data())) {
            d->value = d->maximum * 2.0 + 1.0;
            d->valueText = QString::number(d->value);
        } else if (auto* d = dynamic_cast<EnumParameterData*>(data.data())) {
            d->valueText = QStringLiteral("NoSuchEntry");
        } else if (auto* d = dynamic_cast<CommandParameterData*>(data.data())) {
            d->done = false; // a command has no range: shown running instead
        }
        break;
    default:
        break;
    }
    return data;
}

struct Row
{
    QString title;
    std::function<QWidget*(State)> make; //!< null for a state that doesn't apply
};

//! Where the keyboard focus goes inside a composite widget.
QWidget* focusTarget(QWidget* widget)
{
    if (auto* box = widget->findChild<QAbstractSpinBox*>())
        return box;
    return widget;
}

} // namespace

int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    QTextStream err(stderr);
    const QString path = argc > 1 ? QString::fromLocal8Bit(argv[1]) : QStringLiteral("editor-gallery.png");

    const auto device = Simulation::SimulatedDevice::createDefault(QStringLiteral("GEV"));
    const QSharedPointer<IParameterCollection> camera = device->nodeMap(QStringLiteral("@CameraDevice"));
    const auto node = [&](const char* name) { return camera->getParameter(QLatin1String(name)); };

    const auto editorRow
        = [&](const QString& title, const char* feature, const std::function<QWidget*()>& create) -> Row {
        const QSharedPointer<IParameter> parameter = node(feature);
        return { QStringLiteral("%1\n%2").arg(title, QLatin1String(feature)),
            [parameter, create](State state) {
                QWidget* widget = create();
                dynamic_cast<AbstractItemEditor*>(widget)->setEditorData({ parameter, snapshotIn(parameter, state) });
                return widget;
            } };
    };

    std::vector<Row> rows;
    // The value widgets on their own: read-only is a disabled widget, out of range a value set beyond the maximum.
    rows.push_back({ QStringLiteral("ComboSlider\n0..100, step 5"), [](State state) -> QWidget* {
                        if (state == NotReadable)
                            return nullptr;
                        auto* widget = new ComboSlider;
                        widget->setRangeAndStep(0, 100, 5);
                        widget->setPageStep(10);
                        widget->setValue(state == OutOfRange ? 250 : 35);
                        widget->setEnabled(state != ReadOnly);
                        return widget;
                    } });
    rows.push_back({ QStringLiteral("DoubleSpinBox\n0..24, increment 0.5"), [](State state) -> QWidget* {
                        if (state == NotReadable)
                            return nullptr;
                        auto* widget = new DoubleSpinBox(nullptr, QStringLiteral("Linear"));
                        widget->setDecimals(2);
                        widget->initControls(0.0, 24.0, state == OutOfRange ? 99.0 : 1.5, 0.5);
                        widget->setEnabled(state != ReadOnly);
                        return widget;
                    } });
    rows.push_back({ QStringLiteral("DoubleComboSlider\n0..24, alias 0..24"), [](State state) -> QWidget* {
                        if (state == NotReadable)
                            return nullptr;
                        auto* widget = new DoubleComboSlider;
                        widget->setDecimals(2);
                        widget->initControls(0.0, 24.0, 6, 0, 24, 1);
                        widget->setValue(state == OutOfRange ? 99.0 : 6.0);
                        widget->setEnabled(state != ReadOnly);
                        return widget;
                    } });
    rows.push_back({ QStringLiteral("TwoModeDoubleComboSlider\nlogarithmic, 20..1000000"), [](State state) -> QWidget* {
                        if (state == NotReadable)
                            return nullptr;
                        auto* widget = new TwoModeDoubleComboSlider(nullptr, TwoModeDoubleComboSlider::ModeLogarithmic);
                        widget->setDecimals(1);
                        widget->initControls(20.0, 1000000.0, 5000, 20, 1000000, 1);
                        widget->setValue(state == OutOfRange ? 5e6 : 5000.0);
                        widget->setEnabled(state != ReadOnly);
                        return widget;
                    } });
    rows.push_back(editorRow(QStringLiteral("CheckBoxEditor"), "ReverseX", [] { return new CheckBoxEditor; }));
    rows.push_back(editorRow(QStringLiteral("EnumEditor"), "ExposureAuto", [] { return new EnumEditor; }));
    rows.push_back(
        editorRow(QStringLiteral("ToolButtonEditor"), "TestSlowCommand", [] { return new ToolButtonEditor; }));
    rows.push_back(editorRow(QStringLiteral("IntEditor"), "TestHexWide", [] { return new IntEditor; }));
    rows.push_back(editorRow(QStringLiteral("IntEditor"), "TestMACAddress", [] { return new IntEditor; }));
    rows.push_back(editorRow(QStringLiteral("IntSliderEditor"), "Width", [] { return new IntSliderEditor; }));
    rows.push_back(
        editorRow(QStringLiteral("FloatEditor"), "BlackLevel", [] { return new FloatEditor(nullptr, QString()); }));
    rows.push_back(editorRow(
        QStringLiteral("FloatSliderEditor"), "ExposureTime", [camera] { return new FloatSliderEditor(camera); }));
    rows.push_back(editorRow(
        QStringLiteral("FloatSliderEditor"), "TestLinearFloat", [camera] { return new FloatSliderEditor(camera); }));

    QWidget window;
    window.setWindowTitle(QStringLiteral("Editor gallery"));
    auto* grid = new QGridLayout(&window);
    grid->setHorizontalSpacing(12);
    grid->setVerticalSpacing(6);
    for (int state = 0; state < StateCount; ++state) {
        auto* header = new QLabel(QStringLiteral("<b>%1</b>").arg(QLatin1String(StateNames[state])));
        grid->addWidget(header, 0, state + 1);
    }
    std::vector<QWidget*> focusCells;
    for (size_t r = 0; r < rows.size(); ++r) {
        const int gridRow = int(r) + 1;
        grid->addWidget(new QLabel(rows[r].title), gridRow, 0);
        for (int state = 0; state < StateCount; ++state) {
            QWidget* widget = rows[r].make(State(state));
            if (!widget)
                widget = new QLabel(QStringLiteral("n/a"));
            widget->setMinimumWidth(220);
            grid->addWidget(widget, gridRow, state + 1);
            if (state == Focused)
                focusCells.push_back(widget);
        }
    }
    // The window itself holds the focus while the whole is grabbed, so that no cell looks focused by accident.
    window.setFocusPolicy(Qt::StrongFocus);
    window.show();
    window.activateWindow();
    window.setFocus();
    for (int i = 0; i < 10; ++i)
        QApplication::processEvents();

    QPixmap picture = window.grab();
    QPainter painter(&picture);
    for (QWidget* cell : focusCells) {
        focusTarget(cell)->setFocus(Qt::TabFocusReason);
        for (int i = 0; i < 5; ++i)
            QApplication::processEvents();
        painter.drawPixmap(cell->mapTo(&window, QPoint(0, 0)), cell->grab());
    }
    painter.end();
    if (picture.isNull() || !picture.save(path)) {
        err << "could not save " << path << '\n';
        return 1;
    }
    err << "saved " << path << " (" << picture.width() << "x" << picture.height() << " pixels)\n";
    return 0;
}
