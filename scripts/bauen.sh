#!/usr/bin/env bash
# Configures and builds zp into build/ (or $ZP_BUILD_DIR).
set -euo pipefail
cd "$(dirname "$0")/.."
BUILD_DIR="${ZP_BUILD_DIR:-build}"
LAUNCHER=()
if command -v ccache >/dev/null; then
    LAUNCHER=(-DCMAKE_CXX_COMPILER_LAUNCHER=ccache)
fi
cmake -S . -B "$BUILD_DIR" -G Ninja -DCMAKE_BUILD_TYPE="${ZP_BUILD_TYPE:-Debug}" "${LAUNCHER[@]}" >/dev/null
cmake --build "$BUILD_DIR" --parallel "${ZP_JOBS:-$(nproc)}"
