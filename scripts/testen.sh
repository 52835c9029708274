#!/usr/bin/env bash
# Installs what is needed, builds, and runs every test, the printing test on a real CUPS queue.
# Then, with clang, the libraries built once with AddressSanitizer and UndefinedBehaviorSanitizer
# serve twice: the test programs run under them (all but the window's), and each fuzzer runs for a
# few seconds.
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/pakete.sh
scripts/bauen.sh
export QT_QPA_PLATFORM=offscreen
JOBS="${ZP_JOBS:-$(nproc)}"

# The print queue: required on CI, where the tests run as root on a machine of their own.
if ausgabe=$(scripts/druckwarteschlange.sh); then
    export ZP_CUPS_AUSGABE="$ausgabe"
elif [ "${CI:-}" = "true" ]; then
    echo "testen: keine Druckerwarteschlange" >&2
    exit 1
fi
ctest --test-dir "${ZP_BUILD_DIR:-build}" --output-on-failure --parallel "$JOBS"

command -v clang++ >/dev/null || exit 0
SAN_DIR="${ZP_FUZZ_BUILD_DIR:-build-fuzz}"
if [ "${ZP_SANITIZER:-1}" = "1" ]; then
    LAUNCHER=()
    command -v ccache >/dev/null && LAUNCHER=(-DCMAKE_CXX_COMPILER_LAUNCHER=ccache)
    cmake -S . -B "$SAN_DIR" -G Ninja -DCMAKE_CXX_COMPILER=clang++ -DCMAKE_BUILD_TYPE=RelWithDebInfo \
        -DZP_BUILD_FUZZ=ON -DZP_BUILD_BENCH=OFF "${LAUNCHER[@]}" >/dev/null
    # One test program per test folder (tests/core/state becomes test_core_state); the window's
    # tests and the helper folders stay out.
    mapfile -t ZIELE < <(cd tests && find . -mindepth 2 -name '*.cpp' -printf '%h\n' | cut -c3- |
        grep -Ev '^(common|data|dialogs)(/|$)' | sort -u | tr / _ | sed 's/^/test_/')
    cmake --build "$SAN_DIR" --parallel "$JOBS" --target "${ZIELE[@]}"
    export ASAN_OPTIONS="detect_leaks=1:abort_on_error=1"
    export LSAN_OPTIONS="suppressions=$PWD/fuzz/lsan.supp:print_suppressions=0"
    export UBSAN_OPTIONS="print_stacktrace=1:halt_on_error=1"
    ctest --test-dir "$SAN_DIR" --output-on-failure --parallel "$JOBS" -E 'NOT_BUILT'
fi
if [ -x scripts/fuzzen.sh ]; then
    ZP_FUZZ_BUILD_DIR="$SAN_DIR" scripts/fuzzen.sh "${ZP_FUZZ_SECONDS:-5}"
fi
