#!/usr/bin/env python3
"""Seeds for the fuzzers whose input is not a file of the program.

ordner DIR: the shipped program folder of each edition, packed as the whole-folder fuzzer reads it
(per file one byte for its name, two bytes for its length, little-endian, then its bytes).
kommandozeile DIR: typical command lines, the arguments separated by NUL bytes.
kal DIR: a calendar file of the older version, with appointments on line 31.
"""
import os
import sys

NAMEN = ["zp.ini", "kalender.ini", "etikett.ini", "daten.dat", "neu.lay",
         "kal1.zpk", "auto.zpd", "neu.zpd", "Layout1.lay", "kal5.zpk"]
WURZEL = os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "daten")


def packe(dateien):
    out = bytearray()
    for name, inhalt in dateien:
        inhalt = inhalt[:65535]
        out += bytes([NAMEN.index(name)]) + len(inhalt).to_bytes(2, "little") + inhalt
    return bytes(out)


def lies(*teile):
    with open(os.path.join(WURZEL, *teile), "rb") as f:
        return f.read()


def ordner(ziel):
    for edition in sorted(os.listdir(os.path.join(WURZEL, "editionen"))):
        dateien = [("zp.ini", lies("editionen", edition, "zp.ini")),
                   ("kalender.ini", lies("programm", "kalender.ini")),
                   ("daten.dat", lies("programm", "daten.dat")),
                   ("neu.lay", lies("programm", "neu.lay"))]
        if edition == "Kalender":
            dateien += [("kal1.zpk", lies("programm", "kal1.zpk")), ("auto.zpd", lies("programm", "beispiel.zpd"))]
        if edition == "Etikett":
            dateien += [("etikett.ini", lies("programm", "etikett.ini"))]
        with open(os.path.join(ziel, "ordner-" + edition), "wb") as f:
            f.write(packe(dateien))


def kommandozeile(ziel):
    zeilen = [
        ["--programmpfad", "/tmp/x", "--edition", "Kalender", "--typ", "3", "--jahr", "2027", "--feiertage",
         "--pdf", "k.pdf", "--von", "1", "--bis", "12", "--beenden"],
        ["--edition=etikett", "--importieren", "a.txt", "--adressen", "3-9", "--erstes-etikett", "4",
         "--schnittmarken", "--abgleich", "1,5,-2", "--drucker", "PDF-Datei", "--pdf", "e.pdf"],
        ["--oeffnen", "karte.zpv", "--datensatz", "2", "--layout", "4", "--png", "s.png", "--zoom", "75"],
        ["--seite", "53", "--speichern-unter", "neu.zpb", "--word", "w.odt", "--bmp", "b.bmp"],
        ["-h"],
    ]
    for n, zeile in enumerate(zeilen):
        with open(os.path.join(ziel, "zeile-%d" % n), "wb") as f:
            f.write(b"\0".join(a.encode() for a in zeile))


def kal(ziel):
    zeilen = [b"Reserve"] * 30 + [b"01.01Neujahr|24.12Heiligabend|31.12Silvester|"]
    with open(os.path.join(ziel, "saat.kal"), "wb") as f:
        f.write(b"\r\n".join(zeilen) + b"\r\n")


if __name__ == "__main__":
    {"ordner": ordner, "kommandozeile": kommandozeile, "kal": kal}[sys.argv[1]](sys.argv[2])
