#include "featurepane.h"

#include "messages/exceptionlogging.h"
#include "parameters/iadvancedparameteraccess.h"
#include "parameters/parameterdata.h"

#include <QEvent>
#include <QFormLayout>
#include <QLabel>

namespace {

const char* const kFields[]
    = { "displayName", "name", "description", "type", "value", "range", "increment", "unit", "access", "visibility" };

QString typeName(int type)
{
    switch (type) {
    case ParameterCollection::TypeInteger:
        return FeaturePane::tr("Integer");
    case ParameterCollection::TypeBoolean:
        return FeaturePane::tr("Boolean");
    case ParameterCollection::TypeFloat:
        return FeaturePane::tr("Float");
    case ParameterCollection::TypeCommand:
        return FeaturePane::tr("Command");
    case ParameterCollection::TypeString:
        return FeaturePane::tr("String");
    case ParameterCollection::TypeEnumeration:
        return FeaturePane::tr("Enumeration");
    case ParameterCollection::TypeCategory:
        return FeaturePane::tr("Category");
    default:
        return FeaturePane::tr("Unknown");
    }
}

QString accessName(GenApi::EAccessMode mode)
{
    switch (mode) {
    case GenApi::RW:
        return FeaturePane::tr("Read and write");
    case GenApi::RO:
        return FeaturePane::tr("Read only");
    case GenApi::WO:
        return FeaturePane::tr("Write only");
    case GenApi::NA:
        return FeaturePane::tr("Not available");
    case GenApi::NI:
        return FeaturePane::tr("Not implemented");
    default:
        return FeaturePane::tr("Unknown");
    }
}

QString visibilityName(int visibility)
{
    switch (visibility) {
    case GenApi::Beginner:
        return FeaturePane::tr("Beginner");
    case GenApi::Expert:
        return FeaturePane::tr("Expert");
    case GenApi::Guru:
        return FeaturePane::tr("Guru");
    case GenApi::Invisible:
        return FeaturePane::tr("Invisible");
    default:
        return FeaturePane::tr("Unknown");
    }
}

} // namespace

FeaturePane::FeaturePane(QWidget* parent)
    : QWidget(parent)
    , m_layout(new QFormLayout(this))
{
    setObjectName(QStringLiteral("featurePane"));
    m_layout->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    for (const char* field : kFields)
        addField(field);
    retranslate();
}

QString FeaturePane::fieldText(const QString& field) const
{
    for (QLabel* label : m_fields) {
        if (label->objectName() == field)
            return label->text();
    }
    return QString();
}

void FeaturePane::addField(const char* name)
{
    auto* caption = new QLabel(this);
    auto* field = new QLabel(this);
    field->setObjectName(QLatin1String(name));
    field->setWordWrap(true);
    field->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    caption->setBuddy(field);
    m_layout->addRow(caption, field);
    m_captions.append(caption);
    m_fields.append(field);
}

void FeaturePane::retranslate()
{
    const QString captions[] = { tr("Display name:"), tr("Name:"), tr("Description:"), tr("Type:"), tr("Value:"),
        tr("Range:"), tr("Increment:"), tr("Unit:"), tr("Access:"), tr("Visibility:") };
    for (int i = 0; i < m_captions.size(); ++i)
        m_captions[i]->setText(captions[i]);
    fill();
}

void FeaturePane::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    QWidget::changeEvent(event);
}

void FeaturePane::setParameter(QSharedPointer<ParameterCollection::IParameter> parameter)
{
    if (m_parameter)
        disconnect(m_parameter.data(), nullptr, this, nullptr);
    m_parameter = std::move(parameter);
    // The pane follows the feature: value, range and access as the camera changes them.
    if (m_parameter)
        connect(m_parameter.data(), &ParameterCollection::IParameter::parameterDataChangedDecoupled, this,
            &FeaturePane::fill);
    fill();
}

void FeaturePane::setValueText(const QString& text)
{
    m_fields[4]->setText(text);
}

void FeaturePane::fill()
{
    QStringList texts;
    for (int i = 0; i < m_fields.size(); ++i)
        texts.append(QString());
    if (m_parameter) {
        try {
            const QSharedPointer<ParameterCollection::IAdvancedParameterAccess> access = m_parameter->advancedAccess();
            const QSharedPointer<const ParameterCollection::ParameterData> data = m_parameter->getParameterData();
            texts[0] = access ? access->getProperty(QStringLiteral("DisplayName")) : QString();
            texts[1] = m_parameter->getName();
            texts[2] = access ? access->getProperty(QStringLiteral("Description")) : QString();
            texts[3] = typeName(m_parameter->getType());
            texts[7] = access ? access->getProperty(QStringLiteral("Unit")) : QString();
            if (data) {
                texts[4] = data->valueText;
                texts[8] = accessName(data->accessMode());
                texts[9] = visibilityName(data->visibility);
                if (auto integer = data.dynamicCast<const ParameterCollection::IntegerParameterData>()) {
                    texts[5] = tr("%1 to %2").arg(integer->minimum).arg(integer->maximum);
                    texts[6] = QString::number(integer->increment);
                } else if (auto real = data.dynamicCast<const ParameterCollection::FloatParameterData>()) {
                    texts[5] = tr("%1 to %2")
                                   .arg(QString::number(real->minimum, 'f', int(real->precision)),
                                       QString::number(real->maximum, 'f', int(real->precision)));
                    texts[6] = real->hasIncrement ? QString::number(real->increment) : tr("none");
                }
            }
        } catch (...) {
            ExceptionLogging::logCurrentException(
                Q_FUNC_INFO, QStringLiteral("The feature pane could not read the current feature."));
        }
    }
    for (int i = 0; i < m_fields.size(); ++i)
        m_fields[i]->setText(texts[i]);
}
