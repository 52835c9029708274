#pragma once
// The shape renderer: one shape object (line, rectangle, ellipse, ... with fill, gradient, shadow).

namespace zp {
struct AppState;
struct ClassLinie;
struct ClassRahmen;
class Canvas;

void ZeichneLinie(AppState& s, Canvas& ziel, ClassLinie& linie, ClassRahmen& rahmen);

// Where the shadow of `linie` lies against the shape, in twips (x right, y down): its full length
// in its direction, which turns with the shape's angle. Zero without a shadow.
struct Schattenlage {
    double DX = 0, DY = 0;
};
[[nodiscard]] Schattenlage Schattenversatz(const ClassLinie& linie);

// The thumbnail of catalogue shape `form` (1 to 18) on a preview box of the shape dialog, in
// plain strokes in the box's own twips on the grid 40, 170, 280.
void ZeichneLinieVorschau(Canvas& box, int form);
} // namespace zp
