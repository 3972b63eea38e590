#include "valuewidgetsupport.h"

#include "messages/exceptionlogging.h"
#include "parameters/genericexception.h"

#include <QFontMetrics>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QSlider>
#include <QSpinBox>
#include <QStyle>
#include <QStyleOptionSpinBox>

#include <cmath>
#include <limits>

namespace ValueWidgetSupport {

int layOutSpinBoxAndSlider(QWidget* owner, QAbstractSpinBox* spinBox, QSlider* slider)
{
    auto* layout = new QHBoxLayout;
    layout->setContentsMargins(0, 1, 0, 1);

    QSizePolicy sliderPolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    sliderPolicy.setHorizontalStretch(10);
    slider->setSizePolicy(sliderPolicy);

    // Room for twelve digits whatever the range, so that the box does not
    // change its width when the range does.
    QStyleOptionSpinBox option;
    option.initFrom(spinBox);
    option.subControls = QStyle::SC_SpinBoxUp | QStyle::SC_SpinBoxDown | QStyle::SC_SpinBoxFrame;
    const QFontMetrics metrics(spinBox->font());
    const QSize textSize(metrics.horizontalAdvance(QStringLiteral("999999999999")), metrics.height());
    const int width = owner->style()->sizeFromContents(QStyle::CT_SpinBox, &option, textSize, spinBox).width();

    QSizePolicy boxPolicy = spinBox->sizePolicy();
    boxPolicy.setHorizontalPolicy(QSizePolicy::Fixed);
    boxPolicy.setHorizontalStretch(0);
    spinBox->setSizePolicy(boxPolicy);

    layout->addWidget(spinBox);
    layout->addWidget(slider);
    layout->addSpacing(4);
    owner->setLayout(layout);
    return width;
}

void finishKeyPress(QKeyEvent* event, const std::function<void(QKeyEvent*)>& passToBase)
{
    switch (event->key()) {
    case Qt::Key_Escape: {
        event->accept();
        QKeyEvent undo(QEvent::KeyPress, Qt::Key_Z, Qt::ControlModifier, QString(), false, 1);
        passToBase(&undo);
        break;
    }
    case Qt::Key_Return:
    case Qt::Key_Enter:
        event->accept();
        break;
    default:
        break;
    }
}

void setRangeToolTip(const std::function<QString()>& build, std::initializer_list<QWidget*> targets)
{
    QString text;
    try {
        text = build();
    } catch (const GenICam::GenericException& e) {
        ZVC_LOGGER.debug("Error creating tooltip text! Err='%s'", e.GetDescription());
        return;
    } catch (const std::exception& e) {
        ZVC_LOGGER.debug("Error creating tooltip text! Err='%s'", e.what());
        return;
    }
    for (QWidget* target : targets)
        target->setToolTip(text);
}

int truncateToInt(double value)
{
    if (std::isnan(value))
        return 0;
    if (value <= double(std::numeric_limits<int>::min()))
        return std::numeric_limits<int>::min();
    if (value >= double(std::numeric_limits<int>::max()))
        return std::numeric_limits<int>::max();
    return static_cast<int>(value);
}

} // namespace ValueWidgetSupport
