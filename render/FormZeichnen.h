#pragma once
// The geometry of the 18 shapes of the catalogue, in device pixels, drawn with whatever pen and
// brush the canvas holds.

#include "core/state/Massstab.h"

namespace zp {
struct ClassLinie;
struct ClassRahmen;
class Canvas;

// Scale and offsets of one pass of the shape renderer.
struct Formlage {
    double S = TwipsJeZehntelmm; // twips per tenth of a millimetre at the draw scale
    double Zeichenfaktor = 1;    // draw scale, for the line strength
    double PX = 15, PY = 15;     // twips per pixel
    double DX = 0, DY = 0;       // offset of a shadow pass, twips
};

// Draws shape `linie.Form` (1 to 18; anything else draws nothing) in the rectangle of `rahmen`.
void FormZeichnen(Canvas& ziel, const ClassLinie& linie, const ClassRahmen& rahmen, const Formlage& lage);
} // namespace zp
