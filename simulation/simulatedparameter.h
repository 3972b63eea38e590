#pragma once

#include "devicestate.h"
#include "simulatedadvancedaccess.h"

#include "parameters/iparameter.h"

#include <QSharedPointer>
#include <QString>

namespace Simulation {

/*!
 * What every simulated parameter has in common, mixed into the interface of
 * its kind. The object itself holds only where its feature is; all state
 * lives in the shared DeviceState, which guards it with its lock.
 *
 * The interfaces carry Q_OBJECT, so qobject_cast and QMetaObject::cast narrow
 * to the kind's interface without a meta-object of this class's own.
 */
template <class Interface> class SimulatedParameter : public Interface
{
public:
    SimulatedParameter(
        QSharedPointer<DeviceState> state, const FeatureRef& ref, const QString& fullName, const QString& name)
        : m_state(std::move(state))
        , m_ref(ref)
        , m_fullName(fullName)
        , m_name(name)
    {
    }

    void setValueFromString(QString value) override { m_state->setValueFromString(m_ref, m_fullName, value); }
    bool isZombie() const override { return m_state->isZombie(m_ref, m_fullName); }
    bool isWritable() const override { return m_state->isWritable(m_ref, m_fullName); }
    bool isImposable() const override { return m_state->isImposable(m_ref, m_fullName); }
    GenApi::EVisibility getVisibility() const override { return m_state->getVisibility(m_ref, m_fullName); }
    int getType() const override { return m_state->getType(m_ref, m_fullName); }
    QString getFullName() const override
    {
        m_state->touch(m_ref, m_fullName, Operation::GetFullName);
        return m_fullName;
    }
    QString getName() const override
    {
        m_state->touch(m_ref, m_fullName, Operation::GetName);
        return m_name;
    }
    QSharedPointer<ParameterCollection::IAdvancedParameterAccess> advancedAccess() const override
    {
        m_state->checkAdvancedAccess(m_ref, m_fullName);
        // One heap block for the object and its reference count; an item asks
        // for one each time it is made.
        return QSharedPointer<SimulatedAdvancedAccess>::create(m_state, m_ref, m_fullName);
    }
    QSharedPointer<const ParameterCollection::ParameterData> getParameterData() const override
    {
        return m_state->getParameterData(m_ref, m_fullName);
    }

protected:
    QSharedPointer<DeviceState> m_state;
    FeatureRef m_ref;
    QString m_fullName;
    QString m_name;
};

} // namespace Simulation
