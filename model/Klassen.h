#pragma once
// The document's records: frames and the text, picture and shape objects they point at.
// Plain records with public fields in their declared order; the defaults are those of a new object.

#include <QString>
#include <cstdint>

namespace zp {

using Farbe = int32_t;    // 0x00BBGGRR, -1 for "no colour"
using Wahrheit = int16_t; // -1 true, 0 false

struct ClassRahmen {
    double X = 0;           // left edge, tenths of a millimetre
    double Y = 0;           // top edge
    int16_t z = 0;          // stacking level, 1 is drawn first
    Wahrheit Sichtbar = 0;  // drawn and selectable
    Wahrheit Verankert = 0; // anchored: the mouse can't move or size it
    Wahrheit Proportional = 0;
    double Breite = 0;
    double Höhe = 0;
    double Objektnummer = 0; // position of the content object in its list (and a calendar role)
    QString Objekttyp;       // "Schrift", "Bild", "Linie" or "RTF"
    Wahrheit Data = 0;       // set on the frames of the built-in document; not stored
    int16_t bilddaten = 0;   // > 0: picture taken from the address record, proportions kept
};

struct ClassSchrift {
    Farbe ShadowColor1 = 0xC0C0C0;
    Farbe ShadowColor2 = 0;
    int16_t ShadowDeep = 0;
    int16_t ShadowType = 0;
    int16_t ShadowWay = 0;
    int16_t ShadowAngle = 45;
    int16_t Angle = 0;
    int16_t CharSpace = 0;
    QString fontname = QStringLiteral("Arial");
    double FontSize = 10; // points
    Wahrheit Underline = 0;
    Wahrheit Italic = 0;
    Wahrheit Bold = 0;
    Wahrheit Strike = 0;
    Farbe Color1 = 0;
    Farbe Color2 = 0;
    double X = 0;
    double Top = 0;
    double widht = 0;
    double Height = 0;
    int16_t z = 0;
    int16_t ColorCircle = 0;
    QString Textstring;
    int16_t Data = 0;
    int16_t AusrichtungH = 0;
    int16_t AusrichtungV = 0;
    Wahrheit Sichtbar = -1;
};

struct ClassLinie {
    Farbe Color1 = 0;
    Farbe Color2 = 0;
    int16_t Form = 1; // shape kind; 16 is the full rectangle of page backgrounds
    int16_t Angle = 0;
    Farbe ShadowColor1 = 0xC0C0C0;
    Farbe ShadowColor2 = 0;
    int16_t ShadowAngle = 45;
    int16_t ShadowDeep = 0;
    int16_t ShadowType = 0;
    int16_t ShadowWay = 0;
    int32_t Height = 0; // carried and stored (as a single in the design file)
    int16_t ColorCircle = 0;
    int32_t X = 0;
    int32_t Y = 0;
    int32_t widht = 0;
    int16_t Stärke = 1;
    Wahrheit Füllung = 0;
};

struct ClassBild {
    Wahrheit Gray = 0;
    Wahrheit Invert = 0;
    int32_t Rotate = 0;
    QString File;
    int16_t Helligkeit = 0;
    int16_t Kontrast = 0;
    int32_t Farbintensität = 0;
    int16_t Farbverschiebung = 0;
    int16_t Schärfe = 0;
    QString Effekt = QStringLiteral("0");
    int32_t EffektPixel = 0;
    int32_t EffektMosaik = 0;
    int16_t EffektTrapez = 0;
    QString File_Dir;
    QString File_Path;
    QString File_Name;
    int16_t bilddaten = 0; // 1: File is replaced by column 21 of the current record at each composition
};

} // namespace zp
