#include "floateditor.h"

#include "editorsupport.h"
#include "messages/exceptionlogging.h"
#include "parameters/formatdoublevalue.h"
#include "parameters/invalidargumentexception.h"
#include "trimtoint32.h"
#include "zarvexqtdoublespinbox.h"

#include <cmath>

using namespace ParameterCollection;

namespace {
const char* const SourcePath = "featuretree/floateditor";
// The box's first range, until setEditorData() sets the feature's. Limits
// of this size round through a short text; a feature's value beyond them is
// clamped by initControls() and set again once the feature's range is in.
constexpr double FirstRangeLimit = 1e21;
} // namespace

FloatEditor::FloatEditor(QWidget* parent, QString representation)
    : DoubleSpinBox(parent, representation, FirstRangeLimit)
{
    connect(spinBox, SIGNAL(editingFinished()), this, SLOT(onSpinBoxEditingFinished()));
    connect(spinBox, SIGNAL(stepTriggered(int)), this, SLOT(onSpinBoxStepTriggered(int)));
}

FloatEditor::~FloatEditor() = default;

double FloatEditor::value()
{
    return adjustRangeLimits(spinBox->value());
}

QVariant FloatEditor::editorData()
{
    return QVariant(value());
}

void FloatEditor::onSpinBoxEditingFinished()
{
    // Lets the answer of the device through the focus gate.
    updateEnabled = true;
    emit boxValueChanged();
}

double FloatEditor::adjustRangeLimits(double value)
{
    if (!floatNode)
        return value;
    try {
        // The live limits, not the snapshot's: they may have moved since.
        if (floatNode->getMinimum() > value)
            return floatNode->getMinimum();
        if (value > floatNode->getMaximum())
            return floatNode->getMaximum();
        return value;
    } catch (...) {
        EditorSupport::logFailure("adjustRangeLimits", "%s: Failed to assert the range limits!", floatNode);
        return value;
    }
}

void FloatEditor::onSpinBoxStepTriggered(int steps)
{
    // A parameter without increment can't be stepped, by any key.
    if (increment == 0.0 || !floatNode)
        return;
    try {
        const double page = spinBox->pageStep;
        const double current = floatNode->getValue();
        updateEnabled = true;
        double target;
        if (steps == 10)
            target = current + page;
        else if (steps == -10)
            target = current - page;
        else
            target = std::fma(increment, double(steps), current);
        // Straight to the device; the box follows when the change comes back.
        floatNode->setValue(adjustRangeLimits(target));
    } catch (...) {
        EditorSupport::logFailure("onSpinBoxStepTriggered",
            "%s: Failed to set the value for the float node on a spin box step triggered event!", floatNode);
    }
}

bool FloatEditor::initMemberVariables(QSharedPointer<ParameterCollection::IParameter> node)
{
    try {
        floatNode = node.dynamicCast<IFloatParameter>();
        if (!floatNode)
            throw GenICam::InvalidArgumentException(
                tr("Dynamic cast on pNode has gone wrong!").toUtf8().constData(), SourcePath, 224);
        return true;
    } catch (...) {
        increment = 0.0;
        minRangeLimit = 0.0;
        maxRangeLimit = 0.0;
        throw;
    }
}

void FloatEditor::setEditorData(AbstractItemEditor::EditorData data)
{
    floatNode = data.node.objectCast<IFloatParameter>();
    const auto* snapshot = dynamic_cast<const FloatParameterData*>(data.data.data());
    if (!floatNode || !data.data || data.data->type != TypeFloat || !snapshot) {
        ZVC_LOGGER.debug("%s is called with non-float node", "setEditorData");
        return;
    }
    try {
        if (!snapshot->readable) {
            ZVC_LOGGER.debug("Non-readable comboBox: %s", data.node->getName().toUtf8().constData());
            return;
        }
        // The focus gate: while the user is in the box, only the answer to
        // the user's own edit or step comes through.
        if (hasFocus) {
            if (!updateEnabled)
                return;
            updateEnabled = false;
        }
        const double increment = snapshot->hasIncrement ? snapshot->increment : 0.0;
        if (!initialized) {
            initialized = initMemberVariables(data.node);
            initControls(snapshot->minimum, snapshot->maximum, snapshot->value, increment);
            updateToolTip();
        }
        try {
            if (snapshot->minimum > snapshot->maximum)
                throw GenICam::InvalidArgumentException(
                    tr("The minimum value is larger than the maximum value!").toUtf8().constData(), SourcePath, 91);
            if (snapshot->minimum > snapshot->value || snapshot->maximum < snapshot->value)
                throw GenICam::InvalidArgumentException(
                    tr("The minimum value is larger than the to be set node value or the maximum value is smaller "
                       "than the to be set node value!")
                        .toUtf8()
                        .constData(),
                    SourcePath, 96);
            const int decimals = trimToInt32(snapshot->precision);
            EditorSupport::keepEnabledInStep(this, snapshot->writable);
            if (spinBox->decimals() != decimals)
                setDecimals(decimals);
            const bool limitsChanged = checkIfLimitsChanged(snapshot->minimum, snapshot->maximum, increment);
            if (limitsChanged) {
                setRangeStepAndIncrement(snapshot->minimum, snapshot->maximum, increment);
                updateToolTip();
            }
            if (limitsChanged || snapshot->value != value())
                setValue(snapshot->value);
        } catch (const GenICam::GenericException&) {
            throw; // reported by the outer handler
        } catch (...) {
            EditorSupport::logFailure(
                "setEditorData", "%s: Failed to update the float value editor comboBox!", data.node);
        }
    } catch (...) {
        ExceptionLogging::logCurrentException("setEditorData", QStringLiteral("Failed to retrieve a node's name"));
    }
}

void FloatEditor::updateToolTip()
{
    try {
        const double largest = qMax(qAbs(spinBox->minimum()), qAbs(spinBox->maximum()));
        const FormatValueFlags flag = largest <= 1000000000.0 ? FormatFixed : FormatLarge;
        const QString minimum = formatDoubleValue(spinBox->minimum(), 0, flag, locale());
        const QString maximum = formatDoubleValue(spinBox->maximum(), 0, flag, locale());
        const QString step = formatDoubleValue(increment, 0, flag, locale());
        const QString text = step.toDouble() == 0.0 ? tr("Range: %1..%2").arg(minimum, maximum)
                                                    : tr("Range: %1..%2 (Increment: %3)").arg(minimum, maximum, step);
        spinBox->setToolTip(text);
        setToolTip(text);
    } catch (const GenICam::GenericException& e) {
        ZVC_LOGGER.debug("Error creating tooltip text! Err='%s'", e.GetDescription());
    } catch (const std::exception& e) {
        ZVC_LOGGER.debug("Error creating tooltip text! Err='%s'", e.what());
    }
}
