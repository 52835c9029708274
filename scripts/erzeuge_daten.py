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


# ---- kalender.ini: the nationwide holidays switched on, and the four day colours ----------------
# Switch numbers of the holiday calculation: 1 Neujahr, 6 Karfreitag, 9 Ostermontag, 10 Maifeiertag,
# 11 Chr. Himmelfahrt, 13 Pfingstmontag, 16 Tag der Dt. Einheit, 23 and 24 Weihnachten.
BUNDESWEIT = {1, 6, 9, 10, 11, 13, 16, 23, 24}


def rgb(r, g, b):
    return r | (g << 8) | (b << 16)


def kalender_ini():
    z = ["1" if i in BUNDESWEIT else "0" for i in range(1, 31)]
    z += [str(rgb(64, 64, 64)),   # Saturday: dark grey
          str(rgb(255, 0, 0)),    # Sunday: red
          str(rgb(192, 0, 0)),    # holiday: dark red
          str(rgb(0, 0, 255))]    # appointment: blue
    schreibe(os.path.join("programm", "kalender.ini"), z)


# ---- etikett.ini: A4 sheets in tenths of a millimetre ------------------------------------------
# (name, label width, height in mm, across, down, gap x, gap y in mm, round). The first label's
# place centres the labels on the 210 x 297 mm sheet.
BOEGEN = [
    # Rows 1 to 5 are the user's own; they start as the most common formats.
    ("Eigenes Format 1", 70, 37, 3, 8, 0, 0, 0),
    ("Eigenes Format 2", 99.1, 38.1, 2, 7, 2.5, 0, 0),
    ("Eigenes Format 3", 85, 54, 2, 5, 0, 0, 0),
    ("Eigenes Format 4", 105, 74, 2, 4, 0, 0, 0),
    ("Eigenes Format 5", 210, 297, 1, 1, 0, 0, 0),
    # Address labels.
    ("Adressetiketten 70 x 37 mm (24 Stück)", 70, 37, 3, 8, 0, 0, 0),
    ("Adressetiketten 70 x 36 mm (24 Stück)", 70, 36, 3, 8, 0, 0, 0),
    ("Adressetiketten 70 x 35 mm (24 Stück)", 70, 35, 3, 8, 0, 0, 0),
    ("Adressetiketten 70 x 33,8 mm (24 Stück)", 70, 33.8, 3, 8, 0, 0, 0),
    ("Adressetiketten 70 x 32 mm (27 Stück)", 70, 32, 3, 9, 0, 0, 0),
    ("Adressetiketten 70 x 29,7 mm (30 Stück)", 70, 29.7, 3, 10, 0, 0, 0),
    ("Adressetiketten 70 x 25,4 mm (33 Stück)", 70, 25.4, 3, 11, 0, 0, 0),
    ("Adressetiketten 70 x 42,3 mm (21 Stück)", 70, 42.3, 3, 7, 0, 0, 0),
    ("Adressetiketten 70 x 41 mm (21 Stück)", 70, 41, 3, 7, 0, 0, 0),
    ("Adressetiketten 70 x 50,8 mm (15 Stück)", 70, 50.8, 3, 5, 0, 0, 0),
    ("Adressetiketten 70 x 67,7 mm (12 Stück)", 70, 67.7, 3, 4, 0, 0, 0),
    ("Adressetiketten 63,5 x 38,1 mm (21 Stück)", 63.5, 38.1, 3, 7, 2.5, 0, 0),
    ("Adressetiketten 63,5 x 33,9 mm (24 Stück)", 63.5, 33.9, 3, 8, 2.5, 0, 0),
    ("Adressetiketten 63,5 x 46,6 mm (18 Stück)", 63.5, 46.6, 3, 6, 2.5, 0, 0),
    ("Adressetiketten 63,5 x 72 mm (12 Stück)", 63.5, 72, 3, 4, 2.5, 0, 0),
    ("Adressetiketten 99,1 x 38,1 mm (14 Stück)", 99.1, 38.1, 2, 7, 2.5, 0, 0),
    ("Adressetiketten 99,1 x 33,9 mm (16 Stück)", 99.1, 33.9, 2, 8, 2.5, 0, 0),
    ("Adressetiketten 99,1 x 57 mm (10 Stück)", 99.1, 57, 2, 5, 2.5, 0, 0),
    ("Adressetiketten 99,1 x 67,7 mm (8 Stück)", 99.1, 67.7, 2, 4, 2.5, 0, 0),
    ("Adressetiketten 99,1 x 93,1 mm (6 Stück)", 99.1, 93.1, 2, 3, 2.5, 0, 0),
    ("Adressetiketten 99,1 x 139 mm (4 Stück)", 99.1, 139, 2, 2, 2.5, 0, 0),
    ("Adressetiketten 105 x 37 mm (16 Stück)", 105, 37, 2, 8, 0, 0, 0),
    ("Adressetiketten 105 x 35 mm (16 Stück)", 105, 35, 2, 8, 0, 0, 0),
    ("Adressetiketten 105 x 42,3 mm (14 Stück)", 105, 42.3, 2, 7, 0, 0, 0),
    ("Adressetiketten 105 x 41 mm (14 Stück)", 105, 41, 2, 7, 0, 0, 0),
    ("Adressetiketten 105 x 48 mm (12 Stück)", 105, 48, 2, 6, 0, 0, 0),
    ("Adressetiketten 105 x 57 mm (10 Stück)", 105, 57, 2, 5, 0, 0, 0),
    ("Adressetiketten 105 x 70 mm (8 Stück)", 105, 70, 2, 4, 0, 0, 0),
    ("Adressetiketten 105 x 74 mm (8 Stück)", 105, 74, 2, 4, 0, 0, 0),
    ("Adressetiketten 105 x 148 mm (4 Stück)", 105, 148, 2, 2, 0, 0, 0),
    # Multi-purpose labels.
    ("Universaletiketten 52,5 x 29,7 mm (40 Stück)", 52.5, 29.7, 4, 10, 0, 0, 0),
    ("Universaletiketten 52,5 x 21,2 mm (56 Stück)", 52.5, 21.2, 4, 14, 0, 0, 0),
    ("Universaletiketten 48,5 x 25,4 mm (40 Stück)", 48.5, 25.4, 4, 10, 0, 0, 0),
    ("Universaletiketten 48,5 x 16,9 mm (64 Stück)", 48.5, 16.9, 4, 16, 0, 0, 0),
    ("Universaletiketten 45,7 x 21,2 mm (48 Stück)", 45.7, 21.2, 4, 12, 2.5, 0, 0),
    ("Universaletiketten 38,1 x 21,2 mm (65 Stück)", 38.1, 21.2, 5, 13, 2.5, 0, 0),
    ("Universaletiketten 35,6 x 16,9 mm (80 Stück)", 35.6, 16.9, 5, 16, 2.5, 0, 0),
    ("Universaletiketten 25,4 x 10 mm (189 Stück)", 25.4, 10, 7, 27, 2.5, 0, 0),
    ("Universaletiketten 210 x 297 mm (1 Stück)", 210, 297, 1, 1, 0, 0, 0),
    ("Universaletiketten 210 x 148 mm (2 Stück)", 210, 148, 1, 2, 0, 0, 0),
    ("Universaletiketten 210 x 99 mm (3 Stück)", 210, 99, 1, 3, 0, 0, 0),
    ("Universaletiketten 210 x 74 mm (4 Stück)", 210, 74, 1, 4, 0, 0, 0),
    ("Universaletiketten 199,6 x 143,5 mm (2 Stück)", 199.6, 143.5, 1, 2, 0, 0, 0),
    ("Universaletiketten 97 x 42,3 mm (12 Stück)", 97, 42.3, 2, 6, 4, 4, 0),
    # Business cards.
    ("Visitenkarten 85 x 54 mm (10 Stück)", 85, 54, 2, 5, 0, 0, 0),
    ("Visitenkarten 85 x 55 mm (10 Stück)", 85, 55, 2, 5, 0, 0, 0),
    ("Visitenkarten 85 x 54 mm, mit Abstand (10 Stück)", 85, 54, 2, 5, 10, 0, 0),
    ("Namensschilder 88,9 x 50,8 mm (10 Stück)", 88.9, 50.8, 2, 5, 5, 0, 0),
    # Round labels: column 9 = 1.
    ("CD-Etiketten rund 117 mm (2 Stück)", 117, 117, 1, 2, 0, 30, 1),
    ("CD-Etiketten rund 116 mm (2 Stück)", 116, 116, 1, 2, 0, 30, 1),
    ("Runde Etiketten 60 mm (12 Stück)", 60, 60, 3, 4, 5, 5, 1),
    ("Runde Etiketten 40 mm (24 Stück)", 40, 40, 4, 6, 5, 5, 1),
    ("Runde Etiketten 30 mm (48 Stück)", 30, 30, 6, 8, 3, 3, 1),
    # File-folder spine labels.
    ("Ordnerrücken schmal 38 x 297 mm (5 Stück)", 38, 297, 5, 1, 0, 0, 0),
    ("Ordnerrücken breit 61 x 297 mm (3 Stück)", 61, 297, 3, 1, 0, 0, 0),
    ("Ordnerrücken kurz 192 x 38 mm (7 Stück)", 192, 38, 1, 7, 0, 0, 0),
    ("Ordnerrücken kurz breit 192 x 61 mm (4 Stück)", 192, 61, 1, 4, 0, 0, 0),
    ("Hängeregister-Etiketten 60 x 13 mm (60 Stück)", 60, 13, 3, 20, 5, 0, 0),
    # CD covers and inserts.
    ("CD-Booklet 121 x 121 mm (2 Stück)", 121, 121, 1, 2, 0, 10, 0),
    ("CD-Rückseite 151 x 118 mm (2 Stück)", 151, 118, 1, 2, 0, 10, 0),
]


def zehntel(mm):
    return int(round(mm * 10))


def etikett_ini():
    assert len(BOEGEN) >= 60
    z = []
    for name, b, h, nx, ny, gx, gy, rund in BOEGEN:
        b, h, gx, gy = zehntel(b), zehntel(h), zehntel(gx), zehntel(gy)
        links = (2100 - nx * b - (nx - 1) * gx) // 2
        oben = (2970 - ny * h - (ny - 1) * gy) // 2
        assert links >= 0 and oben >= 0, name
        z.append(name)
        z += [str(v) for v in (b, h, nx, ny, gx, gy, links, oben, rund, 0)]
    z.append("ende")
    schreibe(os.path.join("programm", "etikett.ini"), z)


# ---- neu.lay: the clean start document of the editions without a calendar ------------------------
def neu_lay():
    def rahmen(breite, hoehe, nummer, typ, sichtbar, x, y, z):
        return [str(breite), str(hoehe), str(nummer), typ, sichtbar, "0", "0", str(x), str(y), str(z), "0"]

    # The address texts 21 to 30 are laid out on a 70 x 37 mm label (a card is larger), the other
    # texts wait on the diagonal where new frames appear. None is shown until it has text.
    plaetze = {21: (40, 30, 620, 70), 22: (40, 110, 300, 55), 23: (40, 170, 300, 55),
               24: (40, 230, 300, 55), 25: (40, 290, 300, 55), 26: (360, 110, 300, 55),
               27: (360, 170, 300, 55), 28: (360, 230, 300, 55), 29: (360, 290, 300, 55),
               30: (360, 30, 300, 55)}
    z = ["ZP Datenfile", "ZP Etikett", "800", "1", "Vorlage", "Reserve", "Reserve", "Reserve", "Reserve"]
    z += ["Rahmen", "31"]
    for n in range(1, 31):
        x, y, b, h = plaetze.get(n, (n * 50 + 50, n * 50 + 50, 500, 200))
        z += rahmen(b, h, n, "Schrift", "0", x, y, n)
    z += rahmen(500, 200, 1, "RTF", "0", 1600, 1600, 31)
    z += ["Schrift", "30"]
    for n in range(1, 31):
        fett = "-1" if n == 21 else "0"
        groesse = "14" if n == 21 else "10"
        z += ["0", "0", "0", fett, "0", "0", "0", "0", "1" if n == 1 else "0", "Arial", groesse, "0", "0",
              "45", str(rgb(192, 192, 192)), "0", "0", "0", "0", "0", "", "0", "0", "0", "0", "0", "-1"]
    z += ["Bild", "0", "Linie", "0", "RTF", "1", "RTF1.rtf"]
    # The sheet: no background, pattern 1, design band 80 wide; a 3 x 8 sheet of 70 x 37 mm.
    z += ["", "0", "80", "0", "0", str(rgb(255, 255, 255)), str(rgb(255, 255, 255)), "0", "0", "", "1", "0"]
    z += ["0", "0", "3", "8", "700", "370", "0", "0", "0", "5", "0", "5", "0", "0", "0"]
    # One empty address record of 30 fields.
    z += ["1"] + [""] * 30
    z.append("-1")
    schreibe(os.path.join("programm", "neu.lay"), z)


def main():
    for edition, d in EDITIONEN.items():
        zp_ini(edition, d)
    kalender_ini()
    etikett_ini()
    neu_lay()


if __name__ == "__main__":
    main()
