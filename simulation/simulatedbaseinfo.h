#pragma once

#include "parameters/ibaseinfo.h"

#include <QString>

namespace Simulation {

//! Camera information of a simulated device: its transport-layer type and its identity.
class SimulatedBaseInfo : public Plugin::CameraPool::IBaseInfo
{
public:
    explicit SimulatedBaseInfo(const QString& tlType, const QString& vendor = QString(),
        const QString& model = QString(), const QString& serialNumber = QString());
    ~SimulatedBaseInfo() override;

    QString getTLType() const override;

    QString vendor() const { return m_vendor; }
    QString model() const { return m_model; }
    QString serialNumber() const { return m_serialNumber; }

private:
    QString m_tlType;
    QString m_vendor;
    QString m_model;
    QString m_serialNumber;
};

} // namespace Simulation
