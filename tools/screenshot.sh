#!/usr/bin/env bash
# Draws the main window with an English text and its translation into a PNG, under a virtual
# X server, with the shipped dictionaries in a fresh data folder. The README shows the result.
#
#   tools/screenshot.sh [OUTPUT.png]        (BUILD_DIR: the build tree, default build/)
set -euo pipefail

root=$(cd "$(dirname "$0")/.." && pwd)
build=${BUILD_DIR:-$root/build}
out=${1:-$root/packaging/screenshots/main-window.png}
text=${SCREENSHOT_TEXT:-"My house is big. This city is very beautiful. We read books. My brother reads a good book."}
screen="-screen 0 1024x768x24"

if ! command -v xvfb-run >/dev/null || ! command -v xauth >/dev/null; then
    sudo=""
    if [ "$(id -u)" -ne 0 ]; then sudo="sudo"; fi
    DEBIAN_FRONTEND=noninteractive $sudo apt-get install -y -qq --no-install-recommends xvfb xauth
fi

cmake --build "$build" --target vorlexa-screenshot vorlexa_data -j 2

data=$(mktemp -d)
trap 'rm -rf "$data"' EXIT
mkdir -p "$(dirname "$out")"
# The xcb platform of a real (virtual) X server, not the offscreen one the tests use.
QT_QPA_PLATFORM=xcb xvfb-run -a -s "$screen" \
    "$build/bin/vorlexa-screenshot" --data-dir "$data" --output "$out" --text "$text"
echo "$out"
