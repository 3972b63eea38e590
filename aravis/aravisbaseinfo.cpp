#include "aravisbaseinfo.h"

namespace Aravis {

AravisBaseInfo::AravisBaseInfo(const QString& transportLayerType)
    : m_transportLayerType(transportLayerType)
{
}

AravisBaseInfo::~AravisBaseInfo() = default;

QString AravisBaseInfo::getTLType() const
{
    return m_transportLayerType;
}

} // namespace Aravis
