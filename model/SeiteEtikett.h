#pragma once
// The page and the label sheet of a document. Lengths in tenths of a millimetre.

#include "model/Klassen.h"

namespace zp {

struct ClassSeite {
    QString Papier;
    int32_t Randlinks = 0; // on a sheet: left edge of the first label
    int32_t Breite = 0;
    int32_t Höhe = 0;
    int32_t Randoben = 0; // on a sheet: top edge of the first label
    int32_t Randrechts = 0;
    int32_t Randunten = 0;
    int32_t Kopfzeile = 0; // reserved
    int32_t Fußzeile = 0;  // reserved
    QString Maßeinheit;    // reserved
    Wahrheit Querformat = 0;
    Farbe BackFarbe = 0;  // reserved
    Farbe BackFarbe2 = 0; // reserved
    int16_t BackTyp = 0;  // reserved
    int16_t BackFarbverlaufart = 0;
    int16_t BackBereich = 0;
    QString BackBilddatei;
};

struct ClassEtikett {
    int32_t Breite = 0; // one label
    int32_t Höhe = 0;
    int32_t Randlinks = 0;
    int32_t Randoben = 0;
    int32_t Abstand_x = 0;
    int32_t Abstand_y = 0;
    int32_t Anzahl_x = 0;
    int32_t Anzahl_y = 0;
    int32_t Vorlage = 0;
    Farbe Farbe1 = 0;        // black
    Farbe Farbe2 = 0xFFFFFF; // white
    QString Bilddatei;
    int32_t Farbüberlauf = 0; // background mode, 0 none
    int32_t Design = 0;       // number of the design band
    int32_t Randrechts = 0;
    int32_t Randunten = 0;
    int32_t Links = 0;
    int32_t Oben = 0;
    int32_t Drehung = 0;
    int32_t Form = 0; // 1 round label
    QString Maskendatei;
    int32_t Rahmen = 0;
    int32_t Muster = 1;
    Farbe Farbe3 = 0xFFFFFF;
    int32_t Designbreite = 80;
    Wahrheit Schnittmarken = 0;
    Wahrheit Schnittrahmen = 0;
};

} // namespace zp
