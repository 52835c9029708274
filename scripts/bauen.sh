#!/usr/bin/env bash
# Configures and builds zp into build/ (or $ZP_BUILD_DIR).
set -euo pipefail
cd "$(dirname "$0")/.."
BUILD_DIR="${ZP_BUILD_DIR:-build}"
cmake -S . -B "$BUILD_DIR" -G Ninja -DCMAKE_BUILD_TYPE="${ZP_BUILD_TYPE:-Debug}" >/dev/null
cmake --build "$BUILD_DIR" --parallel "${ZP_JOBS:-$(nproc)}"
