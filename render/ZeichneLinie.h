#pragma once
// The shape renderer: one shape object (line, rectangle, ellipse, ... with fill, gradient, shadow).

namespace zp {
struct AppState;
struct ClassLinie;
struct ClassRahmen;
class Canvas;

void ZeichneLinie(AppState& s, Canvas& ziel, ClassLinie& linie, ClassRahmen& rahmen);
} // namespace zp
