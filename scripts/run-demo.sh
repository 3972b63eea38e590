#!/usr/bin/env bash
# Sets up what is missing, builds the viewer and starts it on the simulated
# camera. Arguments are passed on to zarvex-viewer (--print prints the node
# maps in the terminal instead of opening a window).
set -euo pipefail

root="$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)"

printing=0
for argument in "$@"; do
    if [ "$argument" = "--print" ]; then
        printing=1
    fi
done
if [ "$printing" = 0 ] && [ -z "${DISPLAY:-}" ] && [ -z "${WAYLAND_DISPLAY:-}" ] && [ -z "${QT_QPA_PLATFORM:-}" ]; then
    cat >&2 <<'TEXT'
run-demo.sh: there is no display to open the viewer on (neither DISPLAY nor
WAYLAND_DISPLAY nor QT_QPA_PLATFORM is set). Run it under a virtual display:
    xvfb-run -a scripts/run-demo.sh --screenshot viewer.png
or print the node maps in the terminal:
    scripts/run-demo.sh --print
TEXT
    exit 2
fi

"$root/scripts/setup.sh"

build="$root/build"
cmake -S "$root" -B "$build" -G Ninja -DZVC_BUILD_TESTS=ON -DZVC_BUILD_VIEWER=ON
cmake --build "$build" --parallel "$(nproc)" --target zarvex-viewer
exec "$build/apps/viewer/zarvex-viewer" "$@"
