#include "intslidereditor.h"

#include "editorsupport.h"
#include "messages/exceptionlogging.h"
#include "trimtoint32.h"

#include <QSlider>

using namespace ParameterCollection;

namespace {

// 32-bit arithmetic that wraps like the hardware does, without the undefined
// behaviour of signed overflow: the page step of a range as wide as the int
// span or of a saturated increment must not bring the editor down.
qint32 wrappingSubtract(qint32 a, qint32 b)
{
    return static_cast<qint32>(static_cast<quint32>(a) - static_cast<quint32>(b));
}

qint32 wrappingDouble(qint32 a)
{
    return static_cast<qint32>(static_cast<quint32>(a) * 2u);
}

qint32 wrappingAbs(qint32 a)
{
    return a < 0 ? static_cast<qint32>(0u - static_cast<quint32>(a)) : a;
}

} // namespace

IntSliderEditor::IntSliderEditor(QWidget* parent)
    : ComboSlider(parent)
{
}

IntSliderEditor::~IntSliderEditor() = default;

void IntSliderEditor::setEditorData(AbstractItemEditor::EditorData data)
{
    const auto* integer = dynamic_cast<const IntegerParameterData*>(data.data.data());
    if (!data.data || data.data->type != TypeInteger || !integer) {
        ZVC_LOGGER.debug("%s is called with non-integer node????", "setEditorData");
        return;
    }
    if (!integer->readable) {
        // The slider keeps what it showed.
        try {
            const QString name = data.node ? data.node->getName() : QString();
            ZVC_LOGGER.debug("Non-readable slider: %s??????", name.toUtf8().constData());
        } catch (...) {
            ExceptionLogging::logCurrentException("setEditorData", QStringLiteral("Failed to retrieve a node's name"));
        }
        return;
    }
    try {
        const qint32 minimum = trimToInt32(integer->minimum);
        const qint32 maximum = trimToInt32(integer->maximum);
        const qint32 value = trimToInt32(integer->value);
        const qint32 increment = trimToInt32(integer->increment);
        // Both oddities are reported and then shown as they are.
        if (minimum > maximum) {
            const QString name = data.node ? data.node->getName() : QString();
            ZVC_LOGGER.debug("%s: Feature %s: min value % d > max value %d???", "setEditorData",
                name.toUtf8().constData(), minimum, maximum);
        }
        if (value < minimum || value > maximum) {
            const QString name = data.node ? data.node->getName() : QString();
            ZVC_LOGGER.debug("%s: Feature %s: value %d out of range??? min = %d, max = %d", "setEditorData",
                name.toUtf8().constData(), value, minimum, maximum);
        }
        EditorSupport::keepEnabledInStep(this, integer->writable);

        bool rangeChanged = false;
        if (this->minimum() != minimum || this->maximum() != maximum || singleStep() != increment) {
            setRangeAndStep(minimum, maximum, increment);
            rangeChanged = true;
        }
        if (rangeChanged || this->value() != value)
            setValue(value);
        setPageStep(qMax(wrappingAbs(wrappingSubtract(maximum, minimum)) / 20, wrappingDouble(increment)));
    } catch (...) {
        ExceptionLogging::logCurrentException(
            "setEditorData", QStringLiteral("Failed to update the integer value editor"));
    }
}

QVariant IntSliderEditor::editorData()
{
    return QVariant(value());
}
