#!/usr/bin/env bash
# Installs the Debian 12 packages that zp needs to build, run and test. Idempotent and quiet.
set -euo pipefail
PAKETE=(cmake ninja-build g++ pkg-config libgtest-dev libbenchmark-dev qt6-base-dev
        qt6-translations-l10n libmagick++-dev fonts-liberation2 fonts-dejavu-core xvfb xauth
        poppler-utils clang libclang-rt-14-dev strace cups cups-client printer-driver-cups-pdf)
fehlend=()
for p in "${PAKETE[@]}"; do
    dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed" || fehlend+=("$p")
done
[ ${#fehlend[@]} -eq 0 ] && exit 0
SUDO=""
[ "$(id -u)" -ne 0 ] && SUDO="sudo"
$SUDO apt-get update -qq
DEBIAN_FRONTEND=noninteractive $SUDO apt-get install -y -qq --no-install-recommends \
    -o DPkg::Lock::Timeout=300 "${fehlend[@]}" >/dev/null
