#pragma once

#include "zarvexviewercomponents_export.h"

#include <QObject>
#include <QPointer>

class QSlider;
class SliderSpanGuardStyle;

/*!
 * Watches the range of a slider and, while it is one that Qt cannot paint
 * (see SliderSpanGuardStyle), gives the slider a style that can. With any
 * other range the slider uses the application's style as usual, so the guard
 * costs nothing in the common case. Made as a child of the slider.
 */
class ZVC_AUTOTEST_EXPORT SliderSpanGuard : public QObject
{
    Q_OBJECT

public:
    explicit SliderSpanGuard(QSlider* slider);

    //! True while the slider draws through the guarding style.
    bool isGuarding() const;

private slots:
    void onRangeChanged(int min, int max);

private:
    QSlider* m_slider; // the parent
    QPointer<SliderSpanGuardStyle> m_style; // child of this guard while installed
};
