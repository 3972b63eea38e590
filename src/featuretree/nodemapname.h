#pragma once

#include "zarvexviewercomponents_export.h"

#include <QString>

/*!
 * The translation context of a feature's tool tip, from the feature's full
 * name ("@CameraDevice/Width" gives "CameraDevice"). The first character is
 * dropped unseen, the part up to the first "/" is compared case-sensitively
 * with the node maps that have catalogues; anything else gives "Invalid".
 */
ZVC_EXPORT QString GetNodemapName(QString fullName);
