#pragma once

#include "devicestate.h"

#include "parameters/iadvancedparameteraccess.h"

namespace Simulation {

/*!
 * Property access of one simulated parameter. Reads "DisplayName",
 * "Description", "Tooltip", "DocuURL", "Unit", "Representation", and the
 * current "Visibility" and "AccessMode"; imposes "Visibility" and "AccessMode".
 * A selector answers "SelectedFeatures" with the short names of the features
 * that name it as their selector, comma-separated; other features haven't got it.
 */
class SimulatedAdvancedAccess : public ParameterCollection::IAdvancedParameterAccess
{
public:
    SimulatedAdvancedAccess(QSharedPointer<DeviceState> state, const FeatureRef& ref, const QString& fullName);
    ~SimulatedAdvancedAccess() override;

    QString getProperty(QString key) const override;
    QString getProperty(QString key, QString defaultValue) const override;
    void setProperty(QString key, QString value) override;

private:
    QSharedPointer<DeviceState> m_state;
    FeatureRef m_ref;
    QString m_fullName;
};

} // namespace Simulation
