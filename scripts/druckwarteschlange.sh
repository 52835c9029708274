#!/usr/bin/env bash
# Sets up a real print queue for the printing tests: the CUPS daemon with a cups-pdf queue "PDF",
# whose jobs land as PDF files in $HOME/PDF. Prints that folder on success; exits 1 when the
# machine can't have one (no CUPS, not root), so that the caller can say so.
set -euo pipefail
command -v lpadmin >/dev/null && [ -x /usr/sbin/cupsd ] || { echo "CUPS fehlt" >&2; exit 1; }
[ "$(id -u)" -eq 0 ] || { echo "Eine Druckerwarteschlange einzurichten braucht Root-Rechte" >&2; exit 1; }
laeuft() { LC_ALL=C lpstat -r 2>/dev/null | grep -q "is running"; }
if ! laeuft; then
    /usr/sbin/cupsd
    for _ in $(seq 1 100); do
        laeuft && break
        sleep 0.2
    done
fi
if ! lpstat -p PDF >/dev/null 2>&1; then
    ppd=$(ls /usr/share/ppd/cups-pdf/CUPS-PDF_opt.ppd /usr/share/ppd/cups-pdf/*.ppd 2>/dev/null | head -n 1)
    lpadmin -p PDF -v cups-pdf:/ -E -P "$ppd"
fi
ausgabe="$(getent passwd "$(id -un)" | cut -d: -f6)/PDF"
mkdir -p "$ausgabe"
echo "$ausgabe"
