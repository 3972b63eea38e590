// The composite value widgets beside the plain Qt widgets they are made of.
//
// For each kind, 1 000 widgets: making them (time and heap per widget), then
// one update from the device on each (range and value), as an editor applies
// a snapshot. The plain alternative is the same Qt widgets in the same layout
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

#include <functional>
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

//! Makes count widgets with make, then applies update to each; all per widget.
template <typename W> Figures measure(const std::function<W*()>& make, const std::function<void(W*, int)>& update)
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
    figures.updateUs = BenchmarkUtil::fastestMs(3,
                           [&] {
                               for (int i = 0; i < count; ++i)
                                   update(widgets[size_t(i)].get(), i);
                           })
        * 1000.0 / count;
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
            [](ComboSlider* w, int i) {
                w->setRangeAndStep(0, 1000 + i % 7, 1);
                w->setValue(i % 1000);
            }),
        measure<QWidget>(plainPair<QSpinBox>, [](QWidget* w, int i) {
            auto* box = w->findChild<QSpinBox*>();
            auto* slider = w->findChild<QSlider*>();
            box->setRange(0, 1000 + i % 7);
            slider->setRange(0, 1000 + i % 7);
            slider->setValue(i % 1000);
            box->setValue(i % 1000);
        }));

    row(out, QStringLiteral("DoubleSpinBox"),
        measure<DoubleSpinBox>([] { return new DoubleSpinBox(nullptr, QStringLiteral("Linear")); },
            [](DoubleSpinBox* w, int i) {
                w->setRangeStepAndIncrement(0.0, 1000.0 + i % 7, 0.5);
                w->setValue(i % 1000 + 0.25);
                w->updateToolTip();
            }),
        measure<QDoubleSpinBox>([] { return new QDoubleSpinBox; },
            [](QDoubleSpinBox* w, int i) {
                w->setRange(0.0, 1000.0 + i % 7);
                w->setSingleStep(0.5);
                w->setValue(i % 1000 + 0.25);
            }));

    row(out, QStringLiteral("TwoModeDoubleComboSlider (logarithmic)"),
        measure<TwoModeDoubleComboSlider>(
            [] { return new TwoModeDoubleComboSlider(nullptr, TwoModeDoubleComboSlider::ModeLogarithmic); },
            [](TwoModeDoubleComboSlider* w, int i) {
                w->initControls(10.0, 1e6 + i % 7, 1000 + i, 10, 1000000 + i % 7, 1);
                w->setValue(1000.0 + i);
            }),
        measure<QWidget>(plainPair<QDoubleSpinBox>, [](QWidget* w, int i) {
            auto* box = w->findChild<QDoubleSpinBox*>();
            auto* slider = w->findChild<QSlider*>();
            box->setRange(10.0, 1e6 + i % 7);
            slider->setRange(0, 100000);
            slider->setValue(1000 + i);
            box->setValue(1000.0 + i);
        }));
    return 0;
}
