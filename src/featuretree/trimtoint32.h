#pragma once

#include "zarvexviewercomponents_export.h"

#include <QtGlobal>

//! Saturates a signed 64-bit value to the 32-bit range.
ZVC_EXPORT qint32 trimToInt32(long value);
