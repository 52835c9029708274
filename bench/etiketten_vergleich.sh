#!/usr/bin/env bash
# zp side by side with its floors and its peers, in one run, as medians of N interleaved runs:
#
#  1. The first redraw of a business card with a 12-megapixel photograph (zp_bench
#     KarteErsterAufbau) against Qt's plain decode of the same file (FotoQtDekodieren).
#  2. 240 addresses on a 3 x 8 label sheet into one PDF (10 pages): `zp --pdf` (the Etikett
#     edition's start document, addresses by the text import) against the bare QPdfWriter program
#     zp_pdfboden (the floor: the same pages of vector text, nothing else) and, where installed,
#     `glabels-3-batch` with a CSV merge of the same addresses on the same sheet. gLabels' own
#     start (its template catalogue) is measured apart with a one-address document.
#  3. 24,000 addresses the same way (wall clock and peak memory of zp).
#  4. A 12-month calendar into PDF: `zp --typ 4 --jahr 2027` against, where installed,
#     `pcal` + `ps2pdf` for the same year.
#
# Every program runs as a process of its own. With ZP_VORHER (and BENCH_VORHER) set to an older
# build, that build runs interleaved with the current one and the ratios new/old are printed too.
#
#   bench/etiketten_vergleich.sh [N]    (BUILD=build-rel by default, else build)
set -euo pipefail
cd "$(dirname "$0")/.."
N="${1:-5}"
BUILD="${BUILD:-$( [ -x build-rel/app/zp ] && echo build-rel || echo build )}"
ZP="${ZP:-$BUILD/app/zp}"
BENCH="${BENCH:-$BUILD/bench/zp_bench}"
BODEN="${BODEN:-$BUILD/bench/zp_pdfboden}"
ZP_VORHER="${ZP_VORHER:-}"
BENCH_VORHER="${BENCH_VORHER:-}"
for p in "$ZP" "$BENCH" "$BODEN"; do
    [ -x "$p" ] || { echo "$p fehlt: erst bauen (cmake --build $BUILD)" >&2; exit 1; }
done
command -v pdfinfo >/dev/null || { echo "pdfinfo fehlt (poppler-utils)" >&2; exit 1; }
hat() { command -v "$1" >/dev/null; }

arbeit="$(mktemp -d)"
trap 'rm -rf "$arbeit"' EXIT

median() { printf '%s\n' "$@" | sort -g | awk '{a[NR]=$1} END {print (NR % 2) ? a[(NR+1)/2] : (a[NR/2] + a[NR/2+1]) / 2}'; }
# Wall-clock seconds, CPU seconds (user + system) and peak memory (MB) of one run of the command.
einmal() {
    /usr/bin/env time -o "$arbeit/zeit" -f '%e %U %S %M' "$@" >/dev/null 2>&1 || true
    awk 'END {printf "%.3f %.3f %.1f\n", $1, $2 + $3, $4 / 1024}' "$arbeit/zeit"
}
if ! /usr/bin/env time -f '%e' true >/dev/null 2>&1; then
    einmal() { # without GNU time: no peak memory
        local zeile
        zeile="$({ TIMEFORMAT='%R %U %S'; time "$@" >/dev/null 2>&1; } 2>&1 | tail -1)"
        echo "$zeile" | awk '{printf "%.3f %.3f 0\n", $1, $2 + $3}'
    }
fi
# Runs the named jobs (the command lines in the arrays lauf_<job>) N times in turn, interleaved;
# sets WAND_<job>, CPU_<job>, MB_<job> to the medians.
messe() {
    declare -A wand cpu mb
    local job w c m
    for _ in $(seq 1 "$N"); do
        for job in "$@"; do
            local -n befehl="lauf_$job"
            read -r w c m < <(einmal "${befehl[@]}")
            wand[$job]+="$w "
            cpu[$job]+="$c "
            mb[$job]+="$m "
        done
    done
    for job in "$@"; do
        # shellcheck disable=SC2086
        printf -v "WAND_$job" '%s' "$(median ${wand[$job]})"
        # shellcheck disable=SC2086
        printf -v "CPU_$job" '%s' "$(median ${cpu[$job]})"
        # shellcheck disable=SC2086
        printf -v "MB_$job" '%s' "$(median ${mb[$job]})"
    done
}
zeige() { # $1: label, $2: job
    local w="WAND_$2" c="CPU_$2" m="MB_$2"
    printf '  %-34s %8.3f s Uhrzeit %8.3f s CPU %7.1f MB\n' "$1" "${!w}" "${!c}" "${!m}"
}
verhaeltnis() { # $1: label, $2: job, $3: job it is compared with
    local a="WAND_$2" b="WAND_$3" c="CPU_$2" d="CPU_$3"
    awk -v l="$1" -v a="${!a}" -v b="${!b}" -v c="${!c}" -v d="${!d}" \
        'BEGIN { if (b > 0 && d > 0) printf "  %-34s %8.3fx Uhrzeit %7.3fx CPU\n", l, a / b, c / d }'
}

# ---- 1. The photograph's first redraw ---------------------------------------------------------
echo "1. Erster Aufbau einer Karte mit 12-Megapixel-Foto ($N Wiederholungen, Median)"
foto_median() { # $1: zp_bench; prints the medians in ms of KarteErsterAufbau and FotoQtDekodieren
    "$1" --benchmark_filter='^(KarteErsterAufbau|FotoQtDekodieren)/' --benchmark_repetitions="$N" \
        --benchmark_report_aggregates_only=true --benchmark_format=json 2>/dev/null |
        python3 -c '
import json, sys
d = {b["run_name"].split("/")[0]: b["real_time"] for b in json.load(sys.stdin)["benchmarks"] if b.get("aggregate_name") == "median"}
print(d.get("KarteErsterAufbau", 0), d.get("FotoQtDekodieren", 0))'
}
read -r karte dekodieren < <(foto_median "$BENCH")
printf '  %-34s %8.1f ms\n' "zp KarteErsterAufbau" "$karte" "Qt: Foto dekodieren" "$dekodieren"
awk -v a="$karte" -v b="$dekodieren" 'BEGIN { if (b > 0) printf "  %-34s %8.3fx\n", "zp / Qt-Dekodieren", a / b }'
if [ -n "$BENCH_VORHER" ]; then
    read -r vorher _ < <(foto_median "$BENCH_VORHER")
    printf '  %-34s %8.1f ms\n' "vorher KarteErsterAufbau" "$vorher"
    awk -v a="$karte" -v b="$vorher" 'BEGIN { if (b > 0) printf "  %-34s %8.3fx\n", "nachher / vorher", a / b }'
fi

# ---- 2. and 3. Label sheets -------------------------------------------------------------------
adressen() { # $1: count, $2: file for zp, $3: CSV for gLabels
    echo "Name,Strasse,Ort" >"$3"
    awk -v n="$1" 'BEGIN { for (i = 1; i <= n; i++) printf "Name %d;Hauptstraße %d;%d Musterstadt\r\n", i, i, 10000 + i }' >"$2"
    awk -v n="$1" 'BEGIN { for (i = 1; i <= n; i++) printf "Name %d,Hauptstraße %d,%d Musterstadt\n", i, i, 10000 + i }' >>"$3"
}
adressen 240 "$arbeit/adressen.txt" "$arbeit/adressen.csv"
adressen 24000 "$arbeit/gross.txt" "$arbeit/gross.csv"
head -2 "$arbeit/adressen.csv" >"$arbeit/eine.csv"

glabels_dokument() { # $1: the CSV to merge
    cat <<XML
<?xml version="1.0"?>
<Glabels-document xmlns="http://glabels.org/xmlns/3.0/">
  <Template brand="ZP" part="3x8" size="A4" description="3 x 8 Etiketten 66 x 33,8 mm">
    <Meta category="label"/>
    <Label-rectangle id="0" width="66mm" height="33.8mm" round="0mm" x_waste="0mm" y_waste="0mm">
      <Markup-margin size="1.5mm"/>
      <Layout nx="3" ny="8" x0="7.2mm" y0="13mm" dx="68.5mm" dy="33.8mm"/>
    </Label-rectangle>
  </Template>
  <Objects id="0" rotate="False">
    <Object-text x="3mm" y="3mm" w="60mm" h="25mm" justify="Left" valign="Top" auto_shrink="False" a0="1" a1="0" a2="0" a3="1" a4="0" a5="0">
      <Span color="0x000000ff" font_family="Liberation Sans" font_size="10" font_weight="Regular" font_italic="False" line_spacing="1"><Field name="Name"/><NL/><Field name="Strasse"/><NL/><Field name="Ort"/></Span>
    </Object-text>
  </Objects>
  <Merge type="Text/Comma/Line1Keys" src="$1"/>
  <Data/>
</Glabels-document>
XML
}
glabels_dokument "$arbeit/adressen.csv" >"$arbeit/etiketten.glabels"
glabels_dokument "$arbeit/eine.csv" >"$arbeit/eine.glabels"

zp_etiketten() { # $1: zp, $2: addresses file, $3: PDF
    echo "$1" --programmpfad "$arbeit/zp" --edition Etikett --importieren "$2" --adressen alle --pdf "$3"
}
read -ra lauf_zp < <(zp_etiketten "$ZP" "$arbeit/adressen.txt" "$arbeit/zp.pdf")
read -ra lauf_vorher < <(zp_etiketten "$ZP_VORHER" "$arbeit/adressen.txt" "$arbeit/vorher.pdf")
lauf_boden=("$BODEN" "$arbeit/boden.pdf" 240)
lauf_glabels=(glabels-3-batch -o "$arbeit/glabels.pdf" "$arbeit/etiketten.glabels")
lauf_glabels1=(glabels-3-batch -o "$arbeit/glabels1.pdf" "$arbeit/eine.glabels")
read -ra lauf_zpgross < <(zp_etiketten "$ZP" "$arbeit/gross.txt" "$arbeit/gross.pdf")
read -ra lauf_vorhergross < <(zp_etiketten "$ZP_VORHER" "$arbeit/gross.txt" "$arbeit/vorhergross.pdf")

"${lauf_zp[@]}" >/dev/null 2>&1 || true # seeds the program folder, so that every measured run finds it ready
jobs=(zp boden)
[ -n "$ZP_VORHER" ] && jobs+=(vorher)
hat glabels-3-batch && jobs+=(glabels glabels1)
messe "${jobs[@]}"
seiten() { pdfinfo "$1" 2>/dev/null | awk '/^Pages:/ {print $2}'; }
echo
echo "2. Etikettenbogen 3 x 8, 240 Adressen in eine PDF-Datei ($N Läufe je Programm, verschränkt, Median)"
zeige "zp --pdf ($(seiten "$arbeit/zp.pdf") Seiten)" zp
[ -n "$ZP_VORHER" ] && zeige "zp vorher ($(seiten "$arbeit/vorher.pdf") Seiten)" vorher
zeige "zp_pdfboden ($(seiten "$arbeit/boden.pdf") Seiten, QPdfWriter)" boden
if hat glabels-3-batch; then
    zeige "glabels-3-batch ($(seiten "$arbeit/glabels.pdf") Seiten)" glabels
    zeige "glabels-3-batch, 1 Adresse" glabels1
fi
verhaeltnis "zp / zp_pdfboden" zp boden
[ -n "$ZP_VORHER" ] && verhaeltnis "vorher / zp_pdfboden" vorher boden
[ -n "$ZP_VORHER" ] && verhaeltnis "nachher / vorher" zp vorher
hat glabels-3-batch && verhaeltnis "zp / glabels-3-batch" zp glabels

echo
echo "3. 24.000 Adressen (1000 Seiten)"
grossjobs=(zpgross)
[ -n "$ZP_VORHER" ] && grossjobs+=(vorhergross)
N_ALT="$N"
N=$(( N < 3 ? N : 3 ))
messe "${grossjobs[@]}"
N="$N_ALT"
zeige "zp --pdf ($(seiten "$arbeit/gross.pdf") Seiten)" zpgross
if [ -n "$ZP_VORHER" ]; then
    zeige "zp vorher" vorhergross
    verhaeltnis "nachher / vorher" zpgross vorhergross
fi

# ---- 4. A year calendar ------------------------------------------------------------------------
lauf_kalender=("$ZP" --programmpfad "$arbeit/kal" --edition Kalender --typ 4 --jahr 2027 --pdf "$arbeit/kal.pdf")
lauf_kalendervorher=("$ZP_VORHER" --programmpfad "$arbeit/kal" --edition Kalender --typ 4 --jahr 2027
    --pdf "$arbeit/kalv.pdf")
lauf_pcal=(bash -c "pcal -o '$arbeit/pcal.ps' 1 2027 12 && ps2pdf '$arbeit/pcal.ps' '$arbeit/pcal.pdf'")
"${lauf_kalender[@]}" >/dev/null 2>&1 || true
kjobs=(kalender)
[ -n "$ZP_VORHER" ] && kjobs+=(kalendervorher)
hat pcal && hat ps2pdf && kjobs+=(pcal)
messe "${kjobs[@]}"
echo
echo "4. Monatskalender 2027 in eine PDF-Datei ($N Läufe, verschränkt, Median)"
zeige "zp --typ 4 ($(seiten "$arbeit/kal.pdf") Seiten)" kalender
[ -n "$ZP_VORHER" ] && zeige "zp vorher" kalendervorher && verhaeltnis "nachher / vorher" kalender kalendervorher
if hat pcal && hat ps2pdf; then
    zeige "pcal + ps2pdf ($(seiten "$arbeit/pcal.pdf") Seiten)" pcal
    verhaeltnis "zp / pcal + ps2pdf" kalender pcal
fi
