#!/usr/bin/env bash
# The pictures of the text and shape dialogs in docs/, taken on a virtual X display.
set -euo pipefail
cd "$(dirname "$0")/.."
BAU="${ZP_BUILD_DIR:-build}"
cmake --build "$BAU" --target zp_dialogbilder >/dev/null
QT_QPA_PLATFORM=xcb xvfb-run -a -s '-screen 0 1024x768x24' "$BAU/tools/dialogbilder/zp_dialogbilder" docs
ls -l docs/dialog-*.png
