#pragma once

#include "zarvexviewercomponents_export.h"

#include <QObject>

namespace Core {
namespace Service {

//! Base of the service interfaces through which a host's plug-ins meet.
class ZVC_EXPORT IService : public QObject
{
    Q_OBJECT

public:
    ~IService() override;

protected:
    explicit IService(QObject* parent = nullptr);
};

} // namespace Service
} // namespace Core
