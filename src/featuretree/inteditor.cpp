#include "inteditor.h"

#include "editorsupport.h"
#include "messages/exceptionlogging.h"
#include "parameters/iintegerparameter.h"
#include "trimtoint32.h"

using namespace ParameterCollection;

IntEditor::IntEditor(QWidget* parent)
    : QLineEdit(parent)
{
    setFrame(false);
    setContentsMargins(1, 0, 1, 0);
}

IntEditor::~IntEditor() = default;

void IntEditor::setEditorData(AbstractItemEditor::EditorData data)
{
    const auto* integer = dynamic_cast<const IntegerParameterData*>(data.data.data());
    if (!data.node.dynamicCast<IIntegerParameter>() || !data.data || data.data->type != TypeInteger || !integer) {
        ZVC_LOGGER.debug("%s is called with non-integer node????", "setEditorData");
        return;
    }
    try {
        if (!integer->readable) {
            setText(tr("<not readable>"));
            setToolTip(QString());
            return;
        }
        // The limits serve the tool tip alone; the value is shown whole.
        const qint32 minimum = trimToInt32(integer->minimum);
        const qint32 maximum = trimToInt32(integer->maximum);
        const QString& representation = integer->representation;
        if (representation == QLatin1String("HexNumber")) {
            setText(integer->valueText);
            // A negative limit shows as its 64-bit two's complement, as the device would read it.
            setToolTip(
                tr("Range: 0x%1..0x%2").arg(quint64(qint64(minimum)), 0, 16).arg(quint64(qint64(maximum)), 0, 16));
        } else if (representation == QLatin1String("PureNumber") || representation == QLatin1String("Linear")
            || representation == QLatin1String("Logarithmic")) {
            setText(integer->valueText);
            setToolTip(tr("Range: %1..%2").arg(minimum, 0, 10).arg(maximum, 0, 10));
        } else if (representation == QLatin1String("IPV4Address") || representation == QLatin1String("Boolean")
            || representation == QLatin1String("MACAddress")) {
            setText(integer->valueText);
            setValidator(nullptr);
            setToolTip(QString());
        } else {
            ZVC_LOGGER.debug("%s unexpected representation.", "setEditorData");
        }
    } catch (...) {
        EditorSupport::logFailure("setEditorData", "Failed to update the integer value editor for node %s", data.node);
    }
}

QVariant IntEditor::editorData()
{
    return QVariant(text());
}
