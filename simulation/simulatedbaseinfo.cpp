#include "simulatedbaseinfo.h"

namespace Simulation {

SimulatedBaseInfo::SimulatedBaseInfo(
    const QString& tlType, const QString& vendor, const QString& model, const QString& serialNumber)
    : m_tlType(tlType)
    , m_vendor(vendor)
    , m_model(model)
    , m_serialNumber(serialNumber)
{
}

SimulatedBaseInfo::~SimulatedBaseInfo() = default;

QString SimulatedBaseInfo::getTLType() const
{
    return m_tlType;
}

} // namespace Simulation
