// The composite value widgets beside the plain Qt widgets they are made of.
//
// For each kind, 1 000 widgets: making them (time and heap per widget), then
// one update from the device on each (range and value), as an editor applies
// a snapshot; the fastest of three runs, which alternate between two sets of
// values so that each run changes every widget. The plain alternative is the same Qt widgets in the same layout
// with the same calls, without the widget's own bookkeeping.

#include "benchmarkutil.h"

#include "featuretree/comboslider.h"
#include "featuretree/doublespinbox.h"
#include "featuretree/twomodedoublecomboslider.h"

#include <QApplication>
#include <QDoubleSpinBox>
#include <QHBoxLayout>
#include <QSlider>
#include <QSpinBox>
#include <QTextStream>

#include <algorithm>
#include <functional>
#include <limits>
#include <memory>
#include <vector>

namespace {

const int count = 1000;

struct Figures
{
    double createUs = 0;
    double updateUs = 0;
    double bytes = 0;
};

//! The value widget i shows in an update of the given turn (0 or 1): the two turns differ for every widget,
//! and neither is a fresh widget's 0.
int valueFor(int i, int turn)
{
    return 1 + (i + turn * 500) % 999;
}

//! Makes count widgets with make, then applies update to each; all per widget. The update is timed three
//! times and the fastest kept; the runs alternate between two turns of values, so that every run changes
//! every widget, as a device update does. shown gives the value a widget shows, to check just that.
template <typename W>
Figures measure(const std::function<W*()>& make, const std::function<void(W*, int, int)>& update,
    const std::function<double(W*)>& shown)
{
    Figures figures;
    std::vector<std::unique_ptr<W>> widgets;
    widgets.reserve(count);
    const qint64 heapBefore = BenchmarkUtil::heapInUse();
    figures.createUs = BenchmarkUtil::timeMs([&] {
        for (int i = 0; i < count; ++i)
            widgets.emplace_back(make());
    }) * 1000.0
        / count;
    figures.bytes = double(BenchmarkUtil::heapInUse() - heapBefore) / count;
    double best = std::numeric_limits<double>::max();
    for (int run = 0; run < 3; ++run) {
        std::vector<double> before;
        before.reserve(count);
        for (const std::unique_ptr<W>& widget : widgets)
            before.push_back(shown(widget.get()));
        best = std::min(best, BenchmarkUtil::timeMs([&] {
            for (int i = 0; i < count; ++i)
                update(widgets[size_t(i)].get(), i, run % 2);
        }));
        for (int i = 0; i < count; ++i)
            if (shown(widgets[size_t(i)].get()) == before[size_t(i)])
                qFatal(
                    "device update run %d left widget %d at %g: the run measured no change", run, i, before[size_t(i)]);
    }
    figures.updateUs = best * 1000.0 / count;
    return figures;
}

//! A spin box and a slider in a layout, as the composite widgets hold them.
template <typename Box> QWidget* plainPair()
{
    auto* widget = new QWidget;
    auto* layout = new QHBoxLayout(widget);
    layout->setContentsMargins(0, 1, 0, 1);
    layout->addWidget(new Box);
    layout->addWidget(new QSlider(Qt::Horizontal));
    layout->addSpacing(4);
    return widget;
}

void row(QTextStream& out, const QString& what, const Figures& ours, const Figures& plain)
{
    auto line = [&](const QString& label, double a, double b, const QString& unit) {
        out << qSetFieldWidth(44) << Qt::left << (what + QStringLiteral(", ") + label) << qSetFieldWidth(12)
            << Qt::right << QString::number(a, 'f', 1) << QString::number(b, 'f', 1) << qSetFieldWidth(8)
            << QString::number(a / b, 'f', 2) << qSetFieldWidth(0) << QStringLiteral("  ") << unit << "\n";
    };
    line(QStringLiteral("make"), ours.createUs, plain.createUs, QStringLiteral("us/widget"));
    line(QStringLiteral("heap"), ours.bytes, plain.bytes, QStringLiteral("bytes/widget"));
    line(QStringLiteral("device update"), ours.updateUs, plain.updateUs, QStringLiteral("us/widget"));
}

} // namespace

int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    QTextStream out(stdout);

    // Warm up the style, fonts and allocator, so that the first kind measured is not charged for them.
    for (int i = 0; i < 200; ++i) {
        delete new ComboSlider;
        delete new DoubleSpinBox;
        delete new TwoModeDoubleComboSlider;
        delete plainPair<QSpinBox>();
        delete plainPair<QDoubleSpinBox>();
    }
    out << qSetFieldWidth(44) << Qt::left << QStringLiteral("1 000 widgets") << qSetFieldWidth(12) << Qt::right
        << QStringLiteral("ours") << QStringLiteral("plain Qt") << qSetFieldWidth(8) << QStringLiteral("ratio")
        << qSetFieldWidth(0) << "\n";

    row(out, QStringLiteral("ComboSlider"),
        measure<ComboSlider>([] { return new ComboSlider; },
            [](ComboSlider* w, int i, int turn) {
                w->setRangeAndStep(0, 1000 + i % 7 + turn, 1);
                w->setValue(valueFor(i, turn));
            },
            [](ComboSlider* w) { return double(w->value()); }),
        measure<QWidget>(
            plainPair<QSpinBox>,
            [](QWidget* w, int i, int turn) {
                auto* box = w->findChild<QSpinBox*>();
                auto* slider = w->findChild<QSlider*>();
                box->setRange(0, 1000 + i % 7 + turn);
                slider->setRange(0, 1000 + i % 7 + turn);
                slider->setValue(valueFor(i, turn));
                box->setValue(valueFor(i, turn));
            },
            [](QWidget* w) { return double(w->findChild<QSpinBox*>()->value()); }));

    row(out, QStringLiteral("DoubleSpinBox"),
        measure<DoubleSpinBox>([] { return new DoubleSpinBox(nullptr, QStringLiteral("Linear")); },
            [](DoubleSpinBox* w, int i, int turn) {
                w->setRangeStepAndIncrement(0.0, 1000.0 + i % 7 + turn, 0.5);
                w->setValue(valueFor(i, turn) + 0.25);
                w->updateToolTip();
            },
            [](DoubleSpinBox* w) { return w->value(); }),
        measure<QDoubleSpinBox>([] { return new QDoubleSpinBox; },
            [](QDoubleSpinBox* w, int i, int turn) {
                w->setRange(0.0, 1000.0 + i % 7 + turn);
                w->setSingleStep(0.5);
                w->setValue(valueFor(i, turn) + 0.25);
            },
            [](QDoubleSpinBox* w) { return w->value(); }));

    row(out, QStringLiteral("TwoModeDoubleComboSlider (logarithmic)"),
        measure<TwoModeDoubleComboSlider>(
            [] { return new TwoModeDoubleComboSlider(nullptr, TwoModeDoubleComboSlider::ModeLogarithmic); },
            [](TwoModeDoubleComboSlider* w, int i, int turn) {
                w->initControls(10.0, 1e6 + i % 7 + turn, 1000 + valueFor(i, turn), 10, 1000000 + i % 7 + turn, 1);
                w->setValue(1000.0 + valueFor(i, turn));
            },
            [](TwoModeDoubleComboSlider* w) { return w->value(); }),
        measure<QWidget>(
            plainPair<QDoubleSpinBox>,
            [](QWidget* w, int i, int turn) {
                auto* box = w->findChild<QDoubleSpinBox*>();
                auto* slider = w->findChild<QSlider*>();
                box->setRange(10.0, 1e6 + i % 7 + turn);
                slider->setRange(0, 100000);
                slider->setValue(1000 + valueFor(i, turn));
                box->setValue(1000.0 + valueFor(i, turn));
            },
            [](QWidget* w) { return w->findChild<QDoubleSpinBox*>()->value(); }));
    return 0;
}
