#pragma once

#include "parameters/iadvancedparameteraccess.h"

#include <QSharedPointer>

namespace Aravis {

class NodeMapState;

//! The properties of one Aravis feature as text, and the imposed Visibility and AccessMode.
class AravisAdvancedAccess : public ParameterCollection::IAdvancedParameterAccess
{
public:
    AravisAdvancedAccess(QSharedPointer<NodeMapState> state, int index, const QString& fullName);
    ~AravisAdvancedAccess() override;

    QString getProperty(QString key) const override;
    QString getProperty(QString key, QString defaultValue) const override;
    void setProperty(QString key, QString value) override;

private:
    QSharedPointer<NodeMapState> m_state;
    int m_index;
    QString m_fullName;
};

} // namespace Aravis
