#!/usr/bin/env bash
# Sets up what is missing, builds everything and starts the demo viewer on the
# simulated camera. Arguments are passed on to zarvex-viewer.
set -euo pipefail

root="$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)"
"$root/scripts/setup.sh"

build="$root/build"
cmake -S "$root" -B "$build" -G Ninja -DZVC_BUILD_TESTS=ON -DZVC_BUILD_VIEWER=ON
cmake --build "$build" --parallel "$(nproc)"
exec "$build/apps/viewer/zarvex-viewer" "$@"
