#!/usr/bin/env bash
# Draws the converter window after a paste of Unicode Armenian into a PNG, under a virtual X
# server, with the shipped dictionaries in a fresh data folder. The README shows the result.
#
#   tools/screenshot-converter.sh [OUTPUT.png]        (BUILD_DIR: the build tree, default build/)
set -euo pipefail

root=$(cd "$(dirname "$0")/.." && pwd)
build=${BUILD_DIR:-$root/build}
out=${1:-$root/packaging/screenshots/converter-window.png}
text=${SCREENSHOT_TEXT:-"Իմ տունը մեծ է: Այս քաղաքը շատ գեղեցիկ է:"}

if ! command -v xvfb-run >/dev/null || ! command -v xauth >/dev/null; then
    echo "xvfb-run and xauth are needed (tools/install-deps.sh installs them)" >&2
    exit 1
fi

cmake --build "$build" --target vorlexa-screenshot-converter vorlexa_data -j 2

data=$(mktemp -d)
trap 'rm -rf "$data"' EXIT
mkdir -p "$(dirname "$out")"
QT_QPA_PLATFORM=xcb xvfb-run -a -s "-screen 0 1024x768x24" \
    "$build/bin/vorlexa-screenshot-converter" --data-dir "$data" --output "$out" --text "$text"
echo "$out"
