#!/usr/bin/env bash
# Sets up what is missing, builds everything and runs every test.
#   scripts/run-tests.sh              normal build in build/
#   scripts/run-tests.sh --sanitize   AddressSanitizer + UndefinedBehaviorSanitizer build in build-asan/
#   scripts/run-tests.sh --tsan       ThreadSanitizer build in build-tsan/ of the error queue
#                                     stress test only (tst_errorreporting)
#   scripts/run-tests.sh --qt6        normal build against Qt 6 in build-qt6/
set -euo pipefail

root="$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)"

build="$root/build"
options=(-DZVC_BUILD_TESTS=ON -DZVC_BUILD_VIEWER=ON)
if [ "${1:-}" = "--qt6" ]; then
    "$root/scripts/setup.sh" --qt6
    build="$root/build-qt6"
    options+=(-DZVC_QT_MAJOR_VERSION=6)
else
    "$root/scripts/setup.sh"
fi
if [ "${1:-}" = "--sanitize" ]; then
    build="$root/build-asan"
    options+=(-DZVC_SANITIZE=ON -DCMAKE_BUILD_TYPE=Debug)
    export ASAN_OPTIONS="detect_leaks=1:abort_on_error=1:strict_init_order=1"
    export UBSAN_OPTIONS="print_stacktrace=1:halt_on_error=1"
    export LSAN_OPTIONS="suppressions=$root/tests/lsan.supp"
fi

if [ "${1:-}" = "--tsan" ]; then
    # Many threads report while the GUI thread drains the queue. Qt itself is
    # not instrumented: tests/tsan.supp leaves out what happens inside Qt's own
    # libraries, so that only races in the library's own code are reported.
    # One test has no parse of Qt's headers to share with others.
    build="$root/build-tsan"
    options=(-DZVC_BUILD_TESTS=ON -DZVC_BUILD_VIEWER=OFF -DZVC_SANITIZE_THREAD=ON -DCMAKE_BUILD_TYPE=Debug
        -DZVC_PRECOMPILE_TEST_HEADERS=OFF)
    export TSAN_OPTIONS="halt_on_error=1:second_deadlock_stack=1:suppressions=$root/tests/tsan.supp"
    cmake -S "$root" -B "$build" -G Ninja "${options[@]}"
    cmake --build "$build" --parallel "$(nproc)" --target tst_errorreporting
    cd "$build"
    QT_QPA_PLATFORM=offscreen ctest --output-on-failure -R '^tst_errorreporting$'
    exit 0
fi

cmake -S "$root" -B "$build" -G Ninja "${options[@]}"
cmake --build "$build" --parallel "$(nproc)"
cd "$build"
QT_QPA_PLATFORM=offscreen ctest --output-on-failure --parallel "$(nproc)"
