#!/usr/bin/env bash
# Builds the libFuzzer target over the filter-file parser with clang in its
# own build directory (build-fuzz/) and runs it for a short while, seeded with
# the shipped filter files. Fails on any crash, sanitizer report, leak,
# time-out or memory blow-up; the input that caused it is kept in
# build-fuzz/artifacts/.
#   scripts/fuzz-smoke.sh            60 seconds
#   scripts/fuzz-smoke.sh 240        as long as you like
# ZVC_FUZZ_BUILD_DIR chooses another build directory.
set -euo pipefail

seconds="${1:-60}"
root="$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)"
"$root/scripts/setup.sh" clang-14 libclang-rt-14-dev

compiler="$(command -v clang++-14 || command -v clang++)"
build="${ZVC_FUZZ_BUILD_DIR:-$root/build-fuzz}"
cmake -S "$root" -B "$build" -G Ninja \
    -DCMAKE_CXX_COMPILER="$compiler" \
    -DCMAKE_BUILD_TYPE=RelWithDebInfo \
    -DZVC_BUILD_FUZZERS=ON -DZVC_BUILD_TESTS=ON -DZVC_BUILD_VIEWER=OFF
cmake --build "$build" --parallel "$(nproc)" --target fuzz_nodemapfilter

corpus="$build/corpus/nodemapfilter"
artifacts="$build/artifacts"
mkdir -p "$corpus" "$artifacts"

export ASAN_OPTIONS="detect_leaks=1:abort_on_error=1"
export UBSAN_OPTIONS="print_stacktrace=1:halt_on_error=1"
export QT_QPA_PLATFORM=offscreen

# New inputs go to the first directory; the shipped filters are only read.
# -timeout: one input may take 10 s at most; -rss_limit_mb: the process 2 GiB.
nice "$build/fuzz/fuzz_nodemapfilter" \
    -max_total_time="$seconds" \
    -timeout=10 \
    -rss_limit_mb=2048 \
    -dict="$root/fuzz/nodemapfilter.dict" \
    -artifact_prefix="$artifacts/" \
    -print_final_stats=1 \
    "$corpus" "$root/src/resources/filters"

# The address validators and the IP address dialog, seeded with a few sets.
cmake --build "$build" --parallel "$(nproc)" --target fuzz_validators
mkdir -p "$build/corpus/validators"
nice "$build/fuzz/fuzz_validators" \
    -max_total_time="$seconds" \
    -timeout=10 \
    -rss_limit_mb=2048 \
    -dict="$root/fuzz/validators.dict" \
    -artifact_prefix="$artifacts/" \
    -print_final_stats=1 \
    "$build/corpus/validators" "$root/fuzz/seeds/validators"
