#include "trimtoint32.h"

#include <limits>

qint32 trimToInt32(long value)
{
    if (value < std::numeric_limits<qint32>::min())
        return std::numeric_limits<qint32>::min();
    if (value > std::numeric_limits<qint32>::max())
        return std::numeric_limits<qint32>::max();
    return static_cast<qint32>(value);
}
