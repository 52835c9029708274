#!/usr/bin/env bash
# The label sheet side by side with gLabels: 240 addresses on a 3 x 8 sheet of 66 x 33.8 mm labels
# into one PDF (10 pages), once by zp's print run (the benchmark program) and once by
# `glabels-3-batch` with a CSV merge of the same addresses, N runs each. Prints the medians of
# wall-clock and CPU seconds and the ratios; gLabels' runs start a process, so its start-up is
# measured too (the same document with one address) and shown apart. CPU time is the fairer
# measure on a busy machine.
#
#   bench/etiketten_vergleich.sh [N]     (BENCH=path/to/zp_bench, default build/bench/zp_bench)
set -euo pipefail
cd "$(dirname "$0")/.."
N="${1:-5}"
BENCH="${BENCH:-build/bench/zp_bench}"
command -v glabels-3-batch >/dev/null || { echo "glabels-3-batch fehlt (apt-get install glabels)" >&2; exit 1; }
[ -x "$BENCH" ] || { echo "$BENCH fehlt: erst scripts/bauen.sh" >&2; exit 1; }
command -v pdfinfo >/dev/null || { echo "pdfinfo fehlt (poppler-utils)" >&2; exit 1; }

arbeit="$(mktemp -d)"
trap 'rm -rf "$arbeit"' EXIT

# The addresses of the benchmark program's label run, as CSV with a head line for gLabels.
echo "Name,Strasse,Ort" >"$arbeit/adressen.csv"
for i in $(seq 1 240); do
    printf 'Name %d,Hauptstraße %d,%d Musterstadt\n' "$i" "$i" $((10000 + i)) >>"$arbeit/adressen.csv"
done

cat >"$arbeit/etiketten.glabels" <<XML
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
  <Merge type="Text/Comma/Line1Keys" src="$arbeit/adressen.csv"/>
  <Data/>
</Glabels-document>
XML

glabels_lauf() {
    glabels-3-batch -o "$arbeit/glabels.pdf" "$1" >/dev/null 2>&1
}

# gLabels' own start-up (reading its template catalogue): the same document with one address.
head -2 "$arbeit/adressen.csv" >"$arbeit/eine.csv"
sed "s|$arbeit/adressen.csv|$arbeit/eine.csv|" "$arbeit/etiketten.glabels" >"$arbeit/eine.glabels"

# Runs the command N times; prints the median wall-clock and CPU seconds.
messe() {
    local wand=() cpu=() zeile
    for _ in $(seq 1 "$N"); do
        zeile="$({ TIMEFORMAT='%R %U %S'; time "$@"; } 2>&1 | tail -1)"
        wand+=("$(echo "$zeile" | awk '{print $1}')")
        cpu+=("$(echo "$zeile" | awk '{printf "%.3f", $2 + $3}')")
    done
    echo "$(median "${wand[@]}") $(median "${cpu[@]}")"
}
median() { printf '%s\n' "$@" | sort -g | awk '{a[NR]=$1} END {print (NR % 2) ? a[(NR+1)/2] : (a[NR/2] + a[NR/2+1]) / 2}'; }

# zp: the same sheet and addresses printed through the program's print run into one PDF, measured
# by the benchmark program (state prepared once; each repetition prints all 240 labels).
zp_zeilen="$("$BENCH" --benchmark_filter='BM_Etikettenbogen240Adressen' --benchmark_repetitions="$N" \
    --benchmark_format=csv 2>/dev/null | grep '_median')"
zp_wand="$(echo "$zp_zeilen" | awk -F, '{printf "%.3f", $3 / 1000}')"
zp_cpu="$(echo "$zp_zeilen" | awk -F, '{printf "%.3f", $4 / 1000}')"

read -r gl_wand gl_cpu < <(messe glabels_lauf "$arbeit/etiketten.glabels")
gl_seiten="$(pdfinfo "$arbeit/glabels.pdf" | awk '/^Pages:/ {print $2}')"
read -r st_wand st_cpu < <(messe glabels_lauf "$arbeit/eine.glabels")

echo "Etikettenbogen 3 x 8, 240 Adressen, $N Läufe je Programm (Median)"
printf '  zp (Druckauftrag)          %7.3f s Uhrzeit  %7.3f s CPU\n' "$zp_wand" "$zp_cpu"
printf '  glabels-3-batch (%s Seiten) %7.3f s Uhrzeit  %7.3f s CPU\n' "$gl_seiten" "$gl_wand" "$gl_cpu"
printf '  glabels, nur Programmstart %7.3f s Uhrzeit  %7.3f s CPU\n' "$st_wand" "$st_cpu"
awk -v a="$zp_wand" -v b="$gl_wand" -v c="$zp_cpu" -v d="$gl_cpu" -v e="$st_wand" -v f="$st_cpu" 'BEGIN {
    printf "  Verhältnis zp/glabels: %.3f (Uhrzeit), %.3f (CPU)\n", a / b, c / d
    if (b - e > 0 && d - f > 0)
        printf "  Verhältnis zp/glabels ohne dessen Start: %.3f (Uhrzeit), %.3f (CPU)\n", a / (b - e), c / (d - f)
}'
