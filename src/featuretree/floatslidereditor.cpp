#include "floatslidereditor.h"

#include "editorsupport.h"
#include "messages/exceptionlogging.h"
#include "parameters/formatdoublevalue.h"
#include "parameters/iadvancedparameteraccess.h"
#include "parameters/invalidargumentexception.h"
#include "trimtoint32.h"
#include "zarvexqtdoublespinbox.h"

#include <QSlider>

#include <cmath>

using namespace ParameterCollection;

namespace {

const char* const SourcePath = "featuretree/floatslidereditor";

// The alias's 64-bit numbers are cut to their low 32 bits, not saturated: an
// alias stands for a quantity on a scale that fits an int.
qint32 low32(qint64 value)
{
    return static_cast<qint32>(static_cast<quint32>(static_cast<quint64>(value)));
}

struct AliasNumbers
{
    qint32 value = 0;
    qint32 minimum = 0;
    qint32 maximum = 0;
    qint32 increment = 0;
};

// A missing or foreign alias snapshot reads as all zeros, which the checks
// below then refuse by its increment.
AliasNumbers aliasNumbers(const QSharedPointer<const ParameterData>& data)
{
    AliasNumbers numbers;
    if (const auto* alias = dynamic_cast<const IntegerParameterData*>(data.data())) {
        numbers.value = low32(alias->value);
        numbers.minimum = low32(alias->minimum);
        numbers.maximum = low32(alias->maximum);
        numbers.increment = low32(alias->increment);
    }
    return numbers;
}

[[noreturn]] void throwInvalid(const QString& message, int line)
{
    throw GenICam::InvalidArgumentException(message.toUtf8().constData(), SourcePath, line);
}

} // namespace

FloatSliderEditor::FloatSliderEditor(
    QSharedPointer<ParameterCollection::IParameterCollection> collection, QWidget* parent)
    : TwoModeDoubleComboSlider(parent, ModeLinear)
    , collection(std::move(collection))
{
    connect(spinBox, SIGNAL(editingFinished()), this, SLOT(onSpinBoxEditingFinished()));
    connect(this, SIGNAL(valueChanged(int)), this, SLOT(onSliderValueChanged(int)));
}

FloatSliderEditor::~FloatSliderEditor() = default;

double FloatSliderEditor::value()
{
    return adjustRangeLimits(spinBox->value());
}

QVariant FloatSliderEditor::editorData()
{
    return QVariant(value());
}

double FloatSliderEditor::adjustRangeLimits(double value)
{
    if (!floatNode)
        return value;
    try {
        const double minimum = floatNode->getMinimum();
        const double maximum = floatNode->getMaximum();
        if (value < minimum)
            return minimum;
        if (value > maximum)
            return maximum;
        return value;
    } catch (...) {
        EditorSupport::logFailure("adjustRangeLimits", "%s: Failed to assert the range limits!", node);
        return value;
    }
}

void FloatSliderEditor::onSpinBoxEditingFinished()
{
    spinBox->setValue(adjustRangeLimits(spinBox->value()));
    updateEnabled = true;
    emit boxValueChanged();
}

void FloatSliderEditor::onSliderValueChanged(int val)
{
    if (!aliasNode)
        return;
    try {
        // The echo of the alias's own update ends here.
        if (aliasNode->getValue() == val)
            return;
        updateEnabled = true;
        // Straight to the device; both parameters' changes come back by themselves.
        aliasNode->setValue(trimSliderValue(val), true);
    } catch (...) {
        EditorSupport::logFailure(
            "onSliderValueChanged", "%s: Failed to set the alias nodes value on slider value changed signal!", node);
    }
}

bool FloatSliderEditor::initMemberVariables(QSharedPointer<ParameterCollection::IParameter> node)
{
    try {
        this->node = node;
        floatNode = node.objectCast<IFloatParameter>();
        if (!floatNode)
            throwInvalid(tr("Dynamic cast on pNode has gone wrong!"), 304);
        const QString name = node->getName();
        const QString fullName = node->getFullName();
        if (collection) {
            const QSharedPointer<IAdvancedParameterAccess> access = floatNode->advancedAccess();
            const QString representation = access ? access->getProperty(QStringLiteral("Representation")) : QString();
            // Only exposures get the logarithmic slider; other logarithmic features stay linear.
            setMode(representation == QLatin1String("Logarithmic") && name.contains(QLatin1String("Exposure"))
                    ? ModeLogarithmic
                    : ModeLinear);
            aliasNode = collection->getParameter(fullName + QStringLiteral("/Alias")).objectCast<IIntegerParameter>();
            if (!aliasNode)
                ZVC_LOGGER.debug("Alias node is not of type integer.");
            else
                aliasData = aliasNode->getParameterData();
        }
        if (!aliasNode)
            throwInvalid(tr("Could not retrieve an alias node on pNode"), 332);
        if (!aliasConnected) {
            aliasConnected = bool(connect(aliasNode.data(),
                SIGNAL(parameterDataChangedDecoupled(QSharedPointer<const ParameterCollection::ParameterData>)), this,
                SLOT(onAliasParameterDataChanged(QSharedPointer<const ParameterCollection::ParameterData>))));
        }
        minRangeLimit = floatNode->getMinimum();
        maxRangeLimit = floatNode->getMaximum();
        intIncrement = aliasNumbers(aliasData).increment;
        if (maxRangeLimit < minRangeLimit)
            throwInvalid(tr("The given range or increment information of the given pNode is not valid"), 348);
        return true;
    } catch (const GenICam::GenericException&) {
        minRangeLimit = 0.0;
        maxRangeLimit = 0.0;
        intIncrement = 0;
        throw;
    }
}

void FloatSliderEditor::setEditorData(AbstractItemEditor::EditorData data)
{
    const QSharedPointer<IFloatParameter> cast = data.node.objectCast<IFloatParameter>();
    const auto* snapshot = dynamic_cast<const FloatParameterData*>(data.data.data());
    if (!cast || !data.data || data.data->type != TypeFloat || !snapshot) {
        ZVC_LOGGER.debug("%s is called with non-float node????", "setEditorData");
        return;
    }
    if (!snapshot->readable) {
        try {
            ZVC_LOGGER.debug("Non-readable comboBox: %s??????", data.node->getName().toUtf8().constData());
        } catch (...) {
            ExceptionLogging::logCurrentException("setEditorData", QStringLiteral("Failed to retrieve a node's name"));
        }
        return;
    }
    floatData = data.data;

    // The focus gate holds the box still while the user types; the slider is
    // not behind it. A feature that turns read-only is disabled all the same.
    if (hasFocus) {
        if (updateEnabled) {
            updateEnabled = false;
        } else {
            if (isEnabled() && !snapshot->writable)
                setEnabled(false);
            return;
        }
    }
    try {
        if (!initialized) {
            initialized = initMemberVariables(data.node);
            const AliasNumbers alias = aliasNumbers(aliasData);
            initControls(minRangeLimit, maxRangeLimit, alias.value, alias.minimum, alias.maximum, intIncrement);
            updateToolTip();
        }
        if (snapshot->minimum > snapshot->maximum)
            throwInvalid(tr("The minimum value is larger than the maximum value!"), 120);
        if (snapshot->minimum > snapshot->value || snapshot->maximum < snapshot->value)
            throwInvalid(tr("The minimum allowed value is larger than the to be set node value or the maximum "
                            "allowed value is smaller than the to be set node value!"),
                126);
        const qint32 aliasIncrement = aliasNumbers(aliasData).increment;
        if (aliasIncrement == 0)
            throwInvalid(tr("The alias increment cannot be '0'!"), 131);
        try {
            const int decimals = trimToInt32(snapshot->precision);
            EditorSupport::keepEnabledInStep(this, snapshot->writable);
            if (spinBox->decimals() != decimals)
                setDecimals(decimals);
            if (checkIfLimitsChanged(snapshot->minimum, snapshot->maximum, aliasIncrement)) {
                TwoModeDoubleComboSlider::setRangeStepAndIncrement(
                    snapshot->minimum, snapshot->maximum, aliasIncrement);
                updateToolTip();
            }
            // Differences below this are rounding, not a new value.
            if (std::fabs(snapshot->value - value()) > 2.220446049250313e-14)
                setValue(snapshot->value);
        } catch (const GenICam::GenericException&) {
            throw;
        } catch (...) {
            EditorSupport::logFailure(
                "setEditorData", "%s: Failed to update the float value editor comboBox!", data.node);
        }
    } catch (...) {
        EditorSupport::logFailure("setEditorData", "%s: Failed to update the float value editor comboBox!", data.node);
    }
}

void FloatSliderEditor::onAliasParameterDataChanged(
    QSharedPointer<const ParameterCollection::ParameterData> ptrParameter)
{
    if (!ptrParameter || !ptrParameter->readable)
        return;
    aliasData = ptrParameter;
    try {
        const AliasNumbers alias = aliasNumbers(ptrParameter);
        if (alias.minimum > alias.maximum)
            throwInvalid(tr("The minimum value is larger than the maximum value!"), 223);
        if (alias.minimum > alias.value || alias.maximum < alias.value)
            throwInvalid(tr("The minimum allowed value is larger than the to be set node value or the maximum "
                            "allowed value is smaller than the to be set node value!"),
                229);
        if (alias.increment == 0)
            throwInvalid(tr("The alias increment cannot be '0'!"), 234);
        EditorSupport::keepEnabledInStep(this, ptrParameter->writable);
        TwoModeDoubleComboSlider::setRangeStepAndIncrement(alias.minimum, alias.maximum, alias.increment);
        updateToolTip();
        if (intValue() != alias.value) {
            updateEnabled = true;
            setIntValue(alias.value);
        }
    } catch (...) {
        EditorSupport::logFailure(
            "onAliasParameterDataChanged", "%s: Failed to update the float value editor slider!", node);
    }
}

void FloatSliderEditor::updateToolTip()
{
    if (!floatData)
        return;
    try {
        const auto* data = dynamic_cast<const FloatParameterData*>(floatData.data());
        if (!data)
            return;
        const int decimals = trimToInt32(data->precision);
        const double largest = qMax(qAbs(data->minimum), qAbs(data->maximum));
        const FormatValueFlags flag = largest <= 1000000000.0 ? FormatFixed : FormatLarge;
        const QString minimum = formatDoubleValue(spinBox->minimum(), decimals, flag, locale());
        const QString maximum = formatDoubleValue(spinBox->maximum(), decimals, flag, locale());
        const QString step
            = data->hasIncrement ? formatDoubleValue(data->increment, decimals, flag, locale()) : QString();
        // The increment shown is the float's own, not the alias's.
        const QString text = step.toDouble() == 0.0 ? tr("Range: %1..%2").arg(minimum, maximum)
                                                    : tr("Range: %1..%2 (Increment: %3)").arg(minimum, maximum, step);
        spinBox->setToolTip(text);
        slider->setToolTip(text);
        setToolTip(text);
    } catch (const GenICam::GenericException& e) {
        ZVC_LOGGER.debug("Error creating tooltip text! Err='%s'", e.GetDescription());
    } catch (const std::exception& e) {
        ZVC_LOGGER.debug("Error creating tooltip text! Err='%s'", e.what());
    }
}
