#!/usr/bin/env bash
# Writes the page pictures of every shipped design and calendar type, and the printed pages of
# the seven calendar types and a label sheet (as PNG pages of the PDFs, whose bytes carry a date),
# into a folder, so that two builds can be compared with `diff -r`.
#   scripts/ausgaben.sh AUSGABEORDNER [ZP]
set -euo pipefail
cd "$(dirname "$0")/.."
out="$(realpath -m "$1")"
zp="$(realpath "${2:-build/app/zp}")"
rm -rf "$out"; mkdir -p "$out"
tmp="$(mktemp -d)"; trap 'rm -rf "$tmp"' EXIT
ordner() { # a fresh program folder of an edition
    local d="$tmp/$1"; [ -d "$d" ] || "$zp" --programmpfad "$d" --edition "$1" --beenden >/dev/null 2>&1 || true
    echo "$d"
}
for ed in Kalender Visitenkarte Briefkopf Etikett CD-Hülle; do
    d="$(ordner "$ed")"
    "$zp" --programmpfad "$d" --png "$out/neu-$ed.png" 2>/dev/null || echo "fehlt: neu-$ed"
done
k="$(ordner Kalender)"
for f in "$k"/daten/*.zpk; do
    "$zp" --programmpfad "$k" --oeffnen "$f" --png "$out/design-$(basename "$f" .zpk).png" 2>/dev/null \
        || echo "fehlt: $f"
done
for f in "$(ordner Visitenkarte)"/daten/*.zpv; do
    [ -e "$f" ] || continue
    "$zp" --programmpfad "$(ordner Visitenkarte)" --oeffnen "$f" --png "$out/karte-$(basename "$f" .zpv).png" 2>/dev/null \
        || echo "fehlt: $f"
done
for typ in 1 2 3 4 5 6 7; do
    for v in 1 2; do
        "$zp" --programmpfad "$k" --typ $typ --variante $v --jahr 2027 --feiertage --png "$out/typ$typ-v$v.png" 2>/dev/null \
            || echo "fehlt: typ$typ v$v"
    done
    "$zp" --programmpfad "$k" --typ $typ --jahr 2027 --feiertage --pdf "$tmp/typ$typ.pdf" 2>/dev/null \
        && pdftoppm -r 40 -png "$tmp/typ$typ.pdf" "$out/druck-typ$typ" || echo "fehlt: druck typ$typ"
done
e="$(ordner Etikett)"
"$zp" --programmpfad "$e" --adressen alle --erstes-etikett 3 --pdf "$tmp/etiketten.pdf" 2>/dev/null \
    && pdftoppm -r 40 -png "$tmp/etiketten.pdf" "$out/druck-etiketten" || echo "fehlt: etiketten"
ls "$out" | wc -l
