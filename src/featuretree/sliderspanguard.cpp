#include "sliderspanguard.h"

#include "sliderspanguardstyle.h"

#include <QApplication>
#include <QSlider>

SliderSpanGuard::SliderSpanGuard(QSlider* slider)
    : QObject(slider)
    , m_slider(slider)
{
    connect(slider, SIGNAL(rangeChanged(int, int)), this, SLOT(onRangeChanged(int, int)));
    onRangeChanged(slider->minimum(), slider->maximum());
}

bool SliderSpanGuard::isGuarding() const
{
    return !m_style.isNull();
}

void SliderSpanGuard::onRangeChanged(int min, int max)
{
    const bool unsafe = SliderSpanGuardStyle::isUnsafeSpan(min, max);
    if (unsafe && !m_style) {
        m_style = new SliderSpanGuardStyle(QApplication::style()->objectName());
        m_style->setParent(this);
        m_slider->setStyle(m_style);
    } else if (!unsafe && m_style) {
        m_slider->setStyle(nullptr);
        delete m_style;
    }
}
