#pragma once
// What the text renderer hands its effects: the start point and measure of one text, and the
// output of the string by the kind of canvas.

#include "compose/canvas/canvas.h"
#include "core/state/Massstab.h"
#include "model/Klassen.h"

#include <QString>

namespace zp {
struct AppState;

struct Textlage {
    double X0 = 0, Y0 = 0; // start point, tenths of a millimetre
    double Z = 1;          // draw scale
    double F = TwipsJeZehntelmm;
    double w = 0, h = 0;   // measured text, twips
    QString Text;          // the expanded working string
    GdiHandle Schrift = 0; // the text's font, selected in the canvas
    bool Bildfeld = true;  // the canvas is a picture box (page picture or preview)
};

// Writes the string at CurrentX/CurrentY of the canvas in `farbe`: Print on a picture box,
// TextOutA on the printer and the export bitmap, in device pixels of the state's twips per pixel.
void GibTextAus(AppState& s, Canvas& ziel, const Textlage& lage, Farbe farbe);

// The shadow, drawn before the text, and the gradient, drawn over it.
void ZeichneTextschatten(AppState& s, Canvas& ziel, const ClassSchrift& schrift, const Textlage& lage);
void ZeichneTextverlauf(AppState& s, Canvas& ziel, const ClassSchrift& schrift, const Textlage& lage);
} // namespace zp
