#!/usr/bin/env bash
# Builds the API reference with Doxygen in build-docs/ and fails on any warning.
# The HTML ends up in build-docs/docs/html/ (open index.html). Only the docs
# target is built: the library itself is configured, not compiled.
set -euo pipefail

root="$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)"
"$root/scripts/setup.sh" doxygen graphviz qtbase5-doc-dev

build="$root/build-docs"
cmake -S "$root" -B "$build" -G Ninja \
    -DZVC_BUILD_TESTS=OFF -DZVC_BUILD_VIEWER=OFF -DZVC_BUILD_DOCS=ON

# Doxygen itself fails on a warning (WARN_AS_ERROR, which prints each warning
# as "error:"); the log is kept so that they can be counted as well.
log="$build/docs/doxygen.log"
status=0
cmake --build "$build" --target zvc_docs 2>&1 | tee "$log" || status=$?
warnings=$(grep -cE '(warning|error): ' "$log" || true)
if [ "$status" -ne 0 ] || [ "$warnings" -ne 0 ]; then
    echo "API reference: failed with $warnings Doxygen warning(s), see $log" >&2
    exit 1
fi
echo "API reference: no warnings; $build/docs/html/index.html"
