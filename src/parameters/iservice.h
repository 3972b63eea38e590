/*!
 * \file parameters/iservice.h
 * Core::Service::IService, the base of the service interfaces.
 */
#pragma once

#include "zarvexviewercomponents_export.h"

#include <QObject>

//! The host's core interfaces that the library builds on.
namespace Core {
//! Services through which a host's plug-ins meet.
namespace Service {

//! Base of the service interfaces through which a host's plug-ins meet.
class ZVC_EXPORT IService : public QObject
{
    Q_OBJECT

public:
    ~IService() override;

protected:
    //! For the derived service interfaces.
    explicit IService(QObject* parent = nullptr);
};

} // namespace Service
} // namespace Core
