#!/usr/bin/env bash
# Screenshots of the main window in each edition for the README, taken on a virtual X display.
# Needs xvfb, x11-apps (xwd), netpbm and xdotool (to close a start-up message, if one comes). Each edition starts on a fresh program folder.
set -euo pipefail
cd "$(dirname "$0")/.."
ZP="${ZP_BUILD_DIR:-build}/app/zp"
ZIEL=docs
ARBEIT=$(mktemp -d)
mkdir -p "$ZIEL"
Xvfb :97 -screen 0 1024x700x24 -nolisten tcp &
XVFB=$!
trap 'kill $XVFB 2>/dev/null; rm -rf "$ARBEIT"' EXIT
sleep 1
for edition in Kalender Visitenkarte Briefkopf Etikett CD-Hülle; do
    DISPLAY=:97 QT_QPA_PLATFORM=xcb "$ZP" --programmpfad "$ARBEIT/$edition" --edition "$edition" &
    PROGRAMM=$!
    sleep "${ZP_WARTEN:-4}"
    # A message at start (a start document missing from the folder) is closed with Enter.
    if DISPLAY=:97 xdotool search --sync --limit 1 --name '^$' >/dev/null 2>&1 ||
        DISPLAY=:97 xdotool search --limit 1 --classname frmMsg >/dev/null 2>&1; then :; fi
    DISPLAY=:97 xdotool key --clearmodifiers Return 2>/dev/null || true
    sleep 2
    DISPLAY=:97 xwd -root -silent | xwdtopnm 2>/dev/null | pnmtopng > "$ZIEL/fenster-${edition//ü/ue}.png"
    kill "$PROGRAMM"
    wait "$PROGRAMM" 2>/dev/null || true
done
ls -l "$ZIEL"
