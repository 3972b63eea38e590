#pragma once

#include "aravisadvancedaccess.h"
#include "nodemapstate.h"

#include "parameters/ibooleanparameter.h"
#include "parameters/ienumparameter.h"
#include "parameters/iparameter.h"

#include <QSharedPointer>
#include <QString>

namespace Aravis {

/*!
 * What every Aravis parameter has in common, mixed into the interface of its
 * kind. The object holds only which entry of the node map it stands for (-1
 * for a name the node map doesn't hold); the node map's state does the rest.
 * The interfaces carry Q_OBJECT, so narrowing works without a meta-object of
 * this class's own.
 */
template <class Interface> class AravisParameter : public Interface
{
public:
    AravisParameter(QSharedPointer<NodeMapState> state, int index, const QString& fullName, const QString& name)
        : m_state(std::move(state))
        , m_index(index)
        , m_fullName(fullName)
        , m_name(name)
    {
    }

    void setValueFromString(QString value) override { m_state->setValueFromString(m_index, m_fullName, value); }
    bool isZombie() const override { return m_state->isZombie(m_index); }
    bool isWritable() const override { return m_state->isWritable(checked()); }
    bool isImposable() const override { return m_state->isImposable(m_index); }
    GenApi::EVisibility getVisibility() const override { return m_state->visibility(checked()); }
    int getType() const override { return m_state->type(checked()); }
    QString getFullName() const override { return m_fullName; }
    QString getName() const override { return m_name; }
    QSharedPointer<ParameterCollection::IAdvancedParameterAccess> advancedAccess() const override
    {
        m_state->checkAdvancedAccess(m_index, m_fullName);
        return QSharedPointer<ParameterCollection::IAdvancedParameterAccess>(
            new AravisAdvancedAccess(m_state, m_index, m_fullName));
    }
    QSharedPointer<const ParameterCollection::ParameterData> getParameterData() const override
    {
        return m_state->snapshot(checked());
    }

protected:
    //! The entry, after making sure that it still stands for a live feature (else it throws with the name).
    int checked() const
    {
        m_state->checkAdvancedAccess(m_index, m_fullName);
        return m_index;
    }

    QSharedPointer<NodeMapState> m_state;
    int m_index;
    QString m_fullName;
    QString m_name;
};

//! Booleans and enumerations are written with setValueFromString and read from their snapshots.
using AravisBooleanParameter = AravisParameter<ParameterCollection::IBooleanParameter>;
using AravisEnumParameter = AravisParameter<ParameterCollection::IEnumParameter>;
//! Strings, categories, and the zombies of names the node map doesn't hold.
using AravisStringParameter = AravisParameter<ParameterCollection::IParameter>;

} // namespace Aravis
