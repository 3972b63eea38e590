#include "benchmarkutil.h"

#include <malloc.h>

#include <algorithm>
#include <limits>

namespace BenchmarkUtil {

qint64 heapInUse()
{
    const struct mallinfo2 info = mallinfo2();
    return static_cast<qint64>(info.uordblks + info.hblkhd);
}

double timeMs(const std::function<void()>& work)
{
    QElapsedTimer timer;
    timer.start();
    work();
    return timer.nsecsElapsed() / 1e6;
}

double fastestMs(int repeats, const std::function<void()>& work)
{
    double best = std::numeric_limits<double>::max();
    for (int i = 0; i < repeats; ++i)
        best = std::min(best, timeMs(work));
    return best;
}

} // namespace BenchmarkUtil
