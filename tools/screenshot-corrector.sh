#!/usr/bin/env bash
# Draws the Word Corrector with a word found into a PNG, under a virtual X server, with the
# shipped dictionaries in a fresh data folder. The README shows the result.
#
#   tools/screenshot-corrector.sh [OUTPUT.png]        (BUILD_DIR: the build tree, default build/)
set -euo pipefail

root=$(cd "$(dirname "$0")/.." && pwd)
build=${BUILD_DIR:-$root/build}
out=${1:-$root/packaging/screenshots/word-corrector.png}
word=${SCREENSHOT_WORD:-house}
screen="-screen 0 1024x768x24"

if ! command -v xvfb-run >/dev/null || ! command -v xauth >/dev/null; then
    sudo=""
    if [ "$(id -u)" -ne 0 ]; then sudo="sudo"; fi
    DEBIAN_FRONTEND=noninteractive $sudo apt-get install -y -qq --no-install-recommends xvfb xauth
fi

cmake --build "$build" --target vorlexa-screenshot-corrector vorlexa_data -j 2

data=$(mktemp -d)
trap 'rm -rf "$data"' EXIT
mkdir -p "$(dirname "$out")"
QT_QPA_PLATFORM=xcb xvfb-run -a -s "$screen" \
    "$build/bin/vorlexa-screenshot-corrector" --data-dir "$data" --output "$out" --word "$word"
echo "$out"
