#!/usr/bin/env bash
# Installs what is needed, builds, and starts zp on its shipped data (edition: $1, default Kalender).
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/pakete.sh
scripts/bauen.sh
exec build/app/zp --edition "${1:-Kalender}"
