#!/usr/bin/env python3
"""Makes the shipped settings and catalogue files under daten/ (run from anywhere).

The files are plain Windows-1252 text with CR LF, in the layout the program writes them, so that
loading and saving a shipped file gives it back byte for byte.
"""
import os

WURZEL = os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "daten")


def schreibe(pfad, zeilen):
    pfad = os.path.join(WURZEL, pfad)
    os.makedirs(os.path.dirname(pfad), exist_ok=True)
    with open(pfad, "wb") as f:
        f.write("".join(z + "\r\n" for z in zeilen).encode("cp1252"))


def form_a(v):
    """BASIC Str: a leading blank for a value that isn't negative."""
    return ("" if v < 0 else " ") + str(v)


MONATE = ["Januar", "Februar", "März", "April", "Mai", "Juni", "Juli", "August", "September",
          "Oktober", "November", "Dezember"]
TAGE = ["So", "Mo", "Di", "Mi", "Do", "Fr", "Sa", "So"]

# Per edition: page (width, height, margins left/right/top/bottom) and the sheet of one label
# (width, height, across, down, gap x, gap y). For the sheet editions the page margins place the
# first label on the paper.
EDITIONEN = {
    "Kalender": dict(seite=(2100, 2970, 0, 0, 0, 0), etikett=(2100, 2970, 1, 1, 0, 0), typ=1),
    "Briefkopf": dict(seite=(2100, 2970, 250, 150, 200, 200), etikett=(2100, 2970, 1, 1, 0, 0), typ=1),
    # 2 x 5 business cards of 85 x 54 mm, centred on A4.
    "Visitenkarte": dict(seite=(2100, 2970, 200, 200, 135, 135), etikett=(850, 540, 2, 5, 0, 0), typ=1),
    # 3 x 8 address labels of 70 x 37 mm.
    "Etikett": dict(seite=(2100, 2970, 0, 0, 5, 5), etikett=(700, 370, 3, 8, 0, 0), typ=1),
    # Two CD booklet covers of 120 x 120 mm, one above the other.
    "CD-Hülle": dict(seite=(2100, 2970, 450, 450, 225, 225), etikett=(1200, 1200, 1, 2, 0, 120), typ=1),
}


def zp_ini(edition, d):
    b, h, rl, rr, ro, ru = d["seite"]
    eb, eh, ax, ay, abx, aby = d["etikett"]
    z = [
        "Version = 8.02", "Startdatei = ", "Sprache = deutsch", "Gitter an =  0", "Gitter x =  100",
        "Gitter y =  100", "MM Genau =  0", "Rahmen anzeigen =  0", "Hilfsbereiche =  0",
        "Seitenbreite = " + form_a(b), "Seitenhöhe = " + form_a(h),
        "Seitenrand links = " + form_a(rl), "Seitenrand rechts = " + form_a(rr),
        "Seitenrand oben = " + form_a(ro), "Seitenrand unten = " + form_a(ru),
        "Papierart  = DIN A4", "Querformat = 0", "Rasterbreite =  100", "Rasterhöhe =  100",
        "Programmname = ZP " + edition, "ZoomExport =  1",
        "Etikett links =  0", "Etikett oben =  0",
        "Etikett Abstand x = " + form_a(abx), "Etikett Abstand y = " + form_a(aby),
        "Etikett Anzahl x = " + form_a(ax), "Etikett Anzahl y = " + form_a(ay),
        "Etikett Breite = " + form_a(eb), "Etikett Höhe = " + form_a(eh),
        "Etikett Rand links = " + form_a(rl), "Etikett Rand rechts = " + form_a(rr),
        "Etikett Rand oben = " + form_a(ro), "Etikett Rand unten = " + form_a(ru),
        "Etikett Vorlage =  0", "Etikett Schnittmarken  = 0", "Etikett Schnittrahmen = 0",
        "Abgleich x =  0", "Abgleich y =  0", "Kalendertyp = " + form_a(d["typ"]),
        "Kalenderjahr =  2027", "Grid = -1", "Drucker = ", "Dateien1 = ", "Dateien2 = ", "Dateien3 = ",
    ]
    z += ["Monat%d = %s" % (i + 1, m) for i, m in enumerate(MONATE)]
    z += ["Wochentag%d = %s" % (i + 1, t) for i, t in enumerate(TAGE)]
    assert len(z) == 65
    schreibe(os.path.join("editionen", edition.replace("ü", "ue"), "zp.ini"), z)


def main():
    for edition, d in EDITIONEN.items():
        zp_ini(edition, d)


if __name__ == "__main__":
    main()
