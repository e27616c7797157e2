#!/usr/bin/env bash
# Draws the converter window after a paste of Unicode Armenian into a PNG, under a virtual X
# server, through tools/screenshot.sh. The README shows the result.
#
#   tools/screenshot-converter.sh [OUTPUT.png]        (BUILD_DIR: the build tree, default build/)
set -euo pipefail

root=$(cd "$(dirname "$0")/.." && pwd)
SCREENSHOT_PROGRAM=vorlexa-screenshot-converter \
SCREENSHOT_TEXT=${SCREENSHOT_TEXT:-"Իմ տունը մեծ է: Այս քաղաքը շատ գեղեցիկ է:"} \
    exec "$root/tools/screenshot.sh" "${1:-$root/packaging/screenshots/converter-window.png}"
