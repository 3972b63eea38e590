#!/usr/bin/env bash
# Sets up what is missing, builds everything and runs every test.
#   scripts/run-tests.sh              normal build in build/
#   scripts/run-tests.sh --sanitize   AddressSanitizer + UndefinedBehaviorSanitizer build in build-asan/
set -euo pipefail

root="$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)"
"$root/scripts/setup.sh"

build="$root/build"
options=(-DZVC_BUILD_TESTS=ON -DZVC_BUILD_VIEWER=ON)
if [ "${1:-}" = "--sanitize" ]; then
    build="$root/build-asan"
    options+=(-DZVC_SANITIZE=ON -DCMAKE_BUILD_TYPE=Debug)
    export ASAN_OPTIONS="detect_leaks=1:abort_on_error=1:strict_init_order=1"
    export UBSAN_OPTIONS="print_stacktrace=1:halt_on_error=1"
    export LSAN_OPTIONS="suppressions=$root/tests/lsan.supp"
fi

cmake -S "$root" -B "$build" -G Ninja "${options[@]}"
cmake --build "$build" --parallel "$(nproc)"
cd "$build"
QT_QPA_PLATFORM=offscreen ctest --output-on-failure --parallel "$(nproc)"
