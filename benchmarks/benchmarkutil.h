#pragma once

#include <QElapsedTimer>
#include <QString>

#include <functional>

namespace BenchmarkUtil {

//! Bytes currently allocated from the heap (glibc's count).
qint64 heapInUse();

//! Runs work `repeats` times and gives the fastest run in milliseconds.
double fastestMs(int repeats, const std::function<void()>& work);

//! Milliseconds of one run.
double timeMs(const std::function<void()>& work);

} // namespace BenchmarkUtil
