#pragma once
// The text renderer: one text object in its frame on a canvas.

namespace zp {
struct AppState;
struct ClassSchrift;
struct ClassRahmen;
class Canvas;

// Draws `schrift` in `rahmen` on `ziel`, at the scale Zeichenfaktor * Geraetefaktor of the state.
// Reads and clears the one-shot overrides Farbvorgabe and Winkelvorgabe.
void ZeichneSchrift(AppState& s, Canvas& ziel, ClassSchrift& schrift, ClassRahmen& rahmen);
} // namespace zp
