#pragma once

#include "parameters/ibaseinfo.h"

namespace Aravis {

//! Camera information of an Aravis device: its transport-layer type.
class AravisBaseInfo : public Plugin::CameraPool::IBaseInfo
{
public:
    explicit AravisBaseInfo(const QString& transportLayerType);
    ~AravisBaseInfo() override;

    QString getTLType() const override;

private:
    QString m_transportLayerType;
};

} // namespace Aravis
