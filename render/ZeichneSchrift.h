#pragma once
// The text renderer: one text object in its frame on a canvas.

#include <QString>
#include <cstdint>

namespace zp {
struct AppState;
struct ClassSchrift;
struct ClassRahmen;
class Canvas;

// Draws `schrift` in `rahmen` on `ziel`, at the scale Zeichenfaktor * Geraetefaktor of the state.
// Reads and clears the one-shot overrides Farbvorgabe and Winkelvorgabe.
void ZeichneSchrift(AppState& s, Canvas& ziel, ClassSchrift& schrift, ClassRahmen& rahmen);

// Distance in tenths of a millimetre from the top-left of the unturned text box (w by h twips)
// to the start point of the text when the box turns about its centre by `angle` degrees.
// `geraetefaktor` is twips per tenth of a millimetre.
[[nodiscard]] int16_t RotVersatzX(double w, double h, int angle, double geraetefaktor);
[[nodiscard]] int16_t RotVersatzY(double w, double h, int angle, double geraetefaktor);

// A text-space point turned counter-clockwise by `angle` on a y-down device: "x" gives the
// horizontal coordinate, any other axis the vertical one.
[[nodiscard]] double PunktDrehen(double x, double y, int32_t angle, const QString& achse);
} // namespace zp
