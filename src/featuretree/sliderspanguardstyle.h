#pragma once

#include "zarvexviewercomponents_export.h"

#include <QProxyStyle>

/*!
 * A style for one slider whose range is exactly 2^31 wide (-2147483648..0,
 * say). Qt's slider geometry divides by twice the width of the range in 32
 * bits, which is 0 for that width, and the process dies of a division by zero
 * when such a slider is painted, hovered or clicked. This style narrows the
 * range it is asked about by one at the bottom before the base style sees
 * it; the slider itself, its range and its values are untouched, and the
 * handle moves by less than a pixel.
 */
class ZVC_AUTOTEST_EXPORT SliderSpanGuardStyle : public QProxyStyle
{
    Q_OBJECT

public:
    //! Draws like the style of the given key (QStyleFactory).
    explicit SliderSpanGuardStyle(const QString& key);

    //! True for a range that Qt's slider geometry cannot handle.
    static bool isUnsafeSpan(int minimum, int maximum);

    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
        const QWidget* widget = nullptr) const override;
    SubControl hitTestComplexControl(ComplexControl control, const QStyleOptionComplex* option, const QPoint& pos,
        const QWidget* widget = nullptr) const override;
    QRect subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl subControl,
        const QWidget* widget = nullptr) const override;
};
