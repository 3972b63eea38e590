#!/usr/bin/env bash
# Builds the libFuzzer targets with clang in their own build directory
# (build-fuzz/) and runs each for its share of a short while: the filter-file
# parser seeded with the shipped filter files, the restore of a saved widget
# state seeded with two states as the widget writes them, and the address
# validators with the IP address dialog, seeded with a few sets; the
# favourites settings file, a drop payload of tree items, and the simulated
# camera's JSON device description, each with its seeds; the public
# slots, methods and properties of the exported classes, called through
# QMetaObject on several widgets at once; the camera settings file reader,
# seeded with a saved default camera and a few small and damaged files; and a
# camera's GenICam document through the Aravis backend, seeded with small
# documents, ours and Aravis's own fake camera's (where Aravis is built). Fails on any
# crash, sanitizer report, leak, time-out or memory blow-up; the input that
# caused it is kept in build-fuzz/artifacts/.
#   scripts/fuzz-smoke.sh            180 seconds in all
#   scripts/fuzz-smoke.sh 600        as long as you like, shared equally
# ZVC_FUZZ_BUILD_DIR chooses another build directory; ZVC_FUZZ_QT_MAJOR_VERSION=6
# builds the fuzzers against Qt 6 (default 5).
set -euo pipefail

seconds="${1:-180}"
root="$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)"
qt="${ZVC_FUZZ_QT_MAJOR_VERSION:-5}"
setup_arguments=(clang-14 libclang-rt-14-dev)
if [ "$qt" = 6 ]; then
    setup_arguments+=(--qt6)
fi
"$root/scripts/setup.sh" "${setup_arguments[@]}"

fuzzers=(fuzz_nodemapfilter fuzz_restorestate fuzz_validators fuzz_favoritessettings fuzz_dropmime fuzz_devicejson fuzz_metaobject fuzz_camerasettings)
if pkg-config --exists aravis-0.8; then
    fuzzers+=(fuzz_genicamdocument)
fi
share=$(( seconds / ${#fuzzers[@]} ))
if [ "$share" -lt 1 ]; then
    share=1
fi

compiler="$(command -v clang++-14 || command -v clang++)"
build="${ZVC_FUZZ_BUILD_DIR:-$root/build-fuzz}"
cmake -S "$root" -B "$build" -G Ninja \
    -DCMAKE_CXX_COMPILER="$compiler" \
    -DCMAKE_BUILD_TYPE=RelWithDebInfo \
    -DZVC_BUILD_FUZZERS=ON -DZVC_BUILD_TESTS=ON -DZVC_BUILD_VIEWER=OFF -DZVC_QT_MAJOR_VERSION="$qt"
cmake --build "$build" --parallel "$(nproc)" --target "${fuzzers[@]}"

artifacts="$build/artifacts"
mkdir -p "$artifacts"

export ASAN_OPTIONS="detect_leaks=1:abort_on_error=1"
export UBSAN_OPTIONS="print_stacktrace=1:halt_on_error=1"
export LSAN_OPTIONS="suppressions=$root/fuzz/lsan.supp"
export QT_QPA_PLATFORM=offscreen

# -timeout: one input may take 10 s at most; -rss_limit_mb: the process 2 GiB.
# New inputs go to the first directory given; any further one is only read.
run() {
    local fuzzer="$1"
    shift
    echo "== $fuzzer for $share s"
    nice "$build/fuzz/$fuzzer" \
        -max_total_time="$share" \
        -timeout=10 \
        -rss_limit_mb=2048 \
        -artifact_prefix="$artifacts/$fuzzer-" \
        -print_final_stats=1 \
        "$@"
}

corpus="$build/corpus/nodemapfilter"
mkdir -p "$corpus"
run fuzz_nodemapfilter -dict="$root/fuzz/nodemapfilter.dict" "$corpus" "$root/src/resources/filters"

# Seeds: the first byte picks the column count (1 + byte % 8), the rest is a
# state of version 1 in the widget's big-endian layout.
corpus="$build/corpus/restorestate"
seeds="$build/corpus/restorestate-seeds"
mkdir -p "$corpus" "$seeds"
printf '\x01\x00\x00\x00\x01\x00\x00\x00\x02\x00\x00\x00\xc8\x00\x00\x00\x64' >"$seeds/two-columns"
printf '\x02\x00\x00\x00\x01\x00\x00\x00\x03\x00\x00\x00\x50\x00\x00\x00\x3c\x00\x00\x00\x28' >"$seeds/three-columns"
# Damaged ones: a count far beyond the data, a negative width, another version, a torn width.
printf '\x01\x00\x00\x00\x01\x7f\xff\xff\xff\x00\x00\x00\xc8' >"$seeds/huge-count"
printf '\x01\x00\x00\x00\x01\x00\x00\x00\x02\xff\xff\xff\xf6\x00\x00\x00\x64' >"$seeds/negative-width"
printf '\x01\x00\x00\x00\x02\x00\x00\x00\x02\x00\x00\x00\xc8\x00\x00\x00\x64' >"$seeds/other-version"
printf '\x07\x00\x00\x00\x01\x00\x00\x00\x08\x00\x00' >"$seeds/torn"
run fuzz_restorestate "$corpus" "$seeds"

corpus="$build/corpus/validators"
mkdir -p "$corpus"
run fuzz_validators -dict="$root/fuzz/validators.dict" "$corpus" "$root/fuzz/seeds/validators"

corpus="$build/corpus/favoritessettings"
mkdir -p "$corpus"
run fuzz_favoritessettings "$corpus" "$root/fuzz/seeds/favoritessettings"

corpus="$build/corpus/dropmime"
mkdir -p "$corpus"
run fuzz_dropmime "$corpus" "$root/fuzz/seeds/dropmime"

corpus="$build/corpus/devicejson"
mkdir -p "$corpus"
# Full stacks for the leak check, so that the suppression of the leak inside
# Qt's JSON parser (fuzz/lsan.supp) finds its frame.
ASAN_OPTIONS="$ASAN_OPTIONS:fast_unwind_on_malloc=0" run fuzz_devicejson "$corpus" "$root/fuzz/seeds/devicejson" "$root/simulation/devices"

# Seeds: a few operations each; the bytes choose objects, methods and arguments.
# Its widgets serve several inputs, so nearly every input that builds them
# would set off libFuzzer's leak check of the whole heap and halve the pace;
# that check is left out here. The leak check at exit still runs.
corpus="$build/corpus/metaobject"
mkdir -p "$corpus"
run fuzz_metaobject -detect_leaks=0 "$corpus" "$root/fuzz/seeds/metaobject"

corpus="$build/corpus/camerasettings"
mkdir -p "$corpus"
ASAN_OPTIONS="$ASAN_OPTIONS:fast_unwind_on_malloc=0" run fuzz_camerasettings "$corpus" "$root/fuzz/seeds/camerasettings"

if [[ " ${fuzzers[*]} " == *" fuzz_genicamdocument "* ]]; then
    corpus="$build/corpus/genicamdocument"
    seeds="$build/corpus/genicamdocument-seeds"
    mkdir -p "$corpus" "$seeds"
    # Aravis's own fake camera's document joins the seeds: the fuzzer writes it at its start.
    ZVC_FUZZ_WRITE_ARAVIS_SEED="$seeds/aravis-fake-camera.xml" run fuzz_genicamdocument \
        -dict="$root/fuzz/genicamdocument.dict" -max_len=65536 \
        "$corpus" "$seeds" "$root/fuzz/seeds/genicamdocument" "$root/tests/aravis"
fi
