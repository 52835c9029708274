#!/usr/bin/env bash
# Builds the reader fuzzers with clang into build-fuzz/ and runs each for N seconds (default 5),
# seeded with the shipped data. A crash leaves its input in build-fuzz/funde/ and fails the script;
# add it as a regression test under tests/data/persist/funde/. With fuzzer names after N, only
# those run ("scripts/fuzzen.sh 600 fuzz_bild").
set -euo pipefail
cd "$(dirname "$0")/.."
SEKUNDEN="${1:-5}"
BUILD_DIR="${ZP_FUZZ_BUILD_DIR:-build-fuzz}"
LAUNCHER=()
if command -v ccache >/dev/null; then
    LAUNCHER=(-DCMAKE_CXX_COMPILER_LAUNCHER=ccache)
fi
cmake -S . -B "$BUILD_DIR" -G Ninja -DCMAKE_CXX_COMPILER=clang++ -DCMAKE_BUILD_TYPE=RelWithDebInfo \
    -DZP_BUILD_FUZZ=ON -DZP_BUILD_BENCH=OFF "${LAUNCHER[@]}" >/dev/null
shift || true
ZIELE=("$@")
if [ ${#ZIELE[@]} -eq 0 ]; then
    for quelle in fuzz/*.cpp; do
        ZIELE+=("fuzz_$(basename "$quelle" .cpp)")
    done
fi
if ! cmake --build "$BUILD_DIR" --parallel "${ZP_JOBS:-$(nproc)}" --target "${ZIELE[@]}" >"$BUILD_DIR/bauen.log" 2>&1; then
    tail -n 40 "$BUILD_DIR/bauen.log" >&2
    exit 1
fi

export QT_QPA_PLATFORM=offscreen
export LSAN_OPTIONS="suppressions=$PWD/fuzz/lsan.supp"
mkdir -p "$BUILD_DIR/funde"
fehler=0
for ziel in "${ZIELE[@]}"; do
    korpus="$BUILD_DIR/korpus/$ziel"
    mkdir -p "$korpus"
    # Seeds: every shipped text file and the test data of the readers; the whole-folder and the
    # command-line fuzzers get their own, and the picture loader writes small pictures itself.
    extra=()
    case "$ziel" in
    fuzz_programmordner) python3 scripts/fuzzsaat.py ordner "$korpus" ;;
    fuzz_kommandozeile) python3 scripts/fuzzsaat.py kommandozeile "$korpus" ;;
    fuzz_bild) export ZP_BILDSAAT="$korpus" ;;
    *)
        find daten tests/data -type f \( -name '*.ini' -o -name '*.lay' -o -name '*.zp?' -o -name '*.dat' \) \
            -exec cp -n {} "$korpus/" \; 2>/dev/null || true
        python3 scripts/fuzzsaat.py kal "$korpus"
        ;;
    esac
    [ "$ziel" = fuzz_programmordner ] && extra=(-max_len=262144 -close_fd_mask=2)
    echo "fuzzen: $ziel, ${SEKUNDEN} s"
    if ! "$BUILD_DIR/fuzz/$ziel" -max_total_time="$SEKUNDEN" -max_len=65536 -rss_limit_mb=2048 "${extra[@]}" \
        -artifact_prefix="$BUILD_DIR/funde/$ziel-" "$korpus" >"$BUILD_DIR/$ziel.log" 2>&1; then
        echo "fuzzen: $ziel hat einen Fehler gefunden (siehe $BUILD_DIR/$ziel.log und $BUILD_DIR/funde/)" >&2
        tail -n 30 "$BUILD_DIR/$ziel.log" >&2
        fehler=1
    fi
    # What a run achieved: its executions and the coverage it reached.
    grep -E '^#[0-9]+ *DONE' "$BUILD_DIR/$ziel.log" | sed "s/^/fuzzen: $ziel /" || true
done
exit "$fehler"
