#pragma once

#include "parameters/iparametercollection.h"

#include <QSharedPointer>

namespace Simulation {

class DeviceState;

/*!
 * One node map of a simulated device. Parameters are made on first look-up
 * and the same object is handed out while anybody holds it.
 *
 * getParameter accepts a full name ("@CameraDevice/Width"), a short name
 * ("Width") and the alias form "Width/Alias"; any other name gives a zombie.
 * getChildNames gives the children in their described order; with
 * presentationOrder false they are sorted by name, with recursive true the
 * whole subtree is listed depth first.
 */
class SimulatedNodeMap : public ParameterCollection::IParameterCollection
{
    Q_OBJECT

public:
    SimulatedNodeMap(QSharedPointer<DeviceState> state, int index, QObject* parent = nullptr);
    ~SimulatedNodeMap() override;

    //! "@" and the node map's name.
    QString name() const { return m_name; }

    QSharedPointer<ParameterCollection::IParameter> getParameter(QString fullName) override;
    bool hasParameter(QString fullName) const override;
    QList<QString> getChildNames(QString fullName, bool recursive, bool presentationOrder) const override;
    void refreshAll() override;
    void poll(qint64 elapsedMilliseconds) override;

private:
    QSharedPointer<DeviceState> m_state;
    int m_index;
    QString m_name;
};

} // namespace Simulation
