#!/usr/bin/env bash
# Installs what is needed, builds, and runs every test; then each fuzzer for a few seconds when
# clang is present.
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/pakete.sh
scripts/bauen.sh
export QT_QPA_PLATFORM=offscreen
ctest --test-dir "${ZP_BUILD_DIR:-build}" --output-on-failure --parallel "$(nproc)"
if [ -x scripts/fuzzen.sh ] && command -v clang++ >/dev/null; then
    scripts/fuzzen.sh "${ZP_FUZZ_SECONDS:-5}"
fi
