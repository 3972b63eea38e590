/*!
 * \file featuretree/trimtoint32.h
 * trimToInt32(), which fits the parameters' 64-bit numbers to the widgets' int.
 */
#pragma once

#include "zarvexviewercomponents_export.h"

#include <QtGlobal>

//! Saturates a signed 64-bit value to the 32-bit range.
//! Below -2147483648 gives -2147483648, above 2147483647 gives 2147483647.
ZVC_EXPORT qint32 trimToInt32(long value);
