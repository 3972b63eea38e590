#pragma once

// What the composite spin box and slider widgets share: the layout of a spin
// box beside a slider, the key handling of their spin boxes and the guarded
// building of their range tool tips. Internal to the library.

#include "zarvexviewercomponents_export.h"

#include <QString>

#include <functional>
#include <initializer_list>

class QAbstractSpinBox;
class QKeyEvent;
class QSlider;
class QWidget;

namespace ValueWidgetSupport {

/*!
 * Lays out spinBox and slider side by side on owner: no margins but one pixel
 * above and below, the spin box at a fixed width, the slider taking the rest,
 * then a spacing of 4. Returns the width the spin box needs to show twelve
 * digits with its buttons and frame in owner's style; the caller stores it as
 * its edit box width. Both widgets are adopted by the layout.
 */
ZVC_AUTOTEST_EXPORT int layOutSpinBoxAndSlider(QWidget* owner, QAbstractSpinBox* spinBox, QSlider* slider);

/*!
 * The key handling that both spin boxes add after the base class has seen the
 * event: Escape is accepted and replayed through passToBase as the undo
 * shortcut, so that it reverts the edit and goes no further; Return and Enter
 * are accepted so that they do not reach a dialog's default button.
 */
ZVC_AUTOTEST_EXPORT void finishKeyPress(QKeyEvent* event, const std::function<void(QKeyEvent*)>& passToBase);

/*!
 * Builds a tool tip with build() and sets it on every widget of targets. If
 * building throws, the widgets keep their former tool tips and the failure is
 * logged at debug level.
 */
ZVC_AUTOTEST_EXPORT void setRangeToolTip(
    const std::function<QString()>& build, std::initializer_list<QWidget*> targets);

/*!
 * Truncates towards zero into the int range: NaN gives 0 and values beyond
 * the range saturate, where a plain cast would be undefined.
 */
ZVC_AUTOTEST_EXPORT int truncateToInt(double value);

} // namespace ValueWidgetSupport
