#include "sliderspanguardstyle.h"

#include <QStyleOptionSlider>

namespace {

//! option itself, or a copy in safe whose range is one narrower where option's is unsafe.
const QStyleOptionComplex* narrowed(
    QStyle::ComplexControl control, const QStyleOptionComplex* option, QStyleOptionSlider& safe)
{
    if (control != QStyle::CC_Slider)
        return option;
    const auto* slider = qstyleoption_cast<const QStyleOptionSlider*>(option);
    if (!slider || !SliderSpanGuardStyle::isUnsafeSpan(slider->minimum, slider->maximum))
        return option;
    safe = *slider;
    safe.minimum += 1;
    safe.sliderPosition = qMax(safe.sliderPosition, safe.minimum);
    safe.sliderValue = qMax(safe.sliderValue, safe.minimum);
    return &safe;
}

} // namespace

SliderSpanGuardStyle::SliderSpanGuardStyle(const QString& key)
    : QProxyStyle(key)
{
}

bool SliderSpanGuardStyle::isUnsafeSpan(int minimum, int maximum)
{
    return quint32(maximum) - quint32(minimum) == 0x80000000u;
}

void SliderSpanGuardStyle::drawComplexControl(
    ComplexControl control, const QStyleOptionComplex* option, QPainter* painter, const QWidget* widget) const
{
    QStyleOptionSlider safe;
    QProxyStyle::drawComplexControl(control, narrowed(control, option, safe), painter, widget);
}

QStyle::SubControl SliderSpanGuardStyle::hitTestComplexControl(
    ComplexControl control, const QStyleOptionComplex* option, const QPoint& pos, const QWidget* widget) const
{
    QStyleOptionSlider safe;
    return QProxyStyle::hitTestComplexControl(control, narrowed(control, option, safe), pos, widget);
}

QRect SliderSpanGuardStyle::subControlRect(
    ComplexControl control, const QStyleOptionComplex* option, SubControl subControl, const QWidget* widget) const
{
    QStyleOptionSlider safe;
    return QProxyStyle::subControlRect(control, narrowed(control, option, safe), subControl, widget);
}
