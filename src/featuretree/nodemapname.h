/*!
 * \file featuretree/nodemapname.h
 * GetNodemapName(), the translation context of a feature's tool tip.
 */
#pragma once

#include "zarvexviewercomponents_export.h"

#include <QString>

/*!
 * The translation context of a feature's tool tip, from the feature's full
 * name ("@CameraDevice/Width" gives "CameraDevice"). The first character is
 * dropped unseen, the part up to the first "/" is compared case-sensitively
 * with the node maps that have catalogues; anything else gives "Invalid".
 *
 * The contexts: "CameraDevice", "CameraInstance", "TransportLayer" (for
 * "DeviceTransportLayer"), "StreamGrabber" (for "StreamGrabber0" only),
 * "Interface" (for "GenTl"), "EventGrabber", "ChunkData", "ExcelRunner",
 * "ImageFormatConverter" and "DeepViewer".
 */
ZVC_EXPORT QString GetNodemapName(QString fullName);
