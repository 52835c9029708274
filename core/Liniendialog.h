#pragma once
// The shape dialog's commands: Ok writes the edited copy back, Cancel leaves the shape.

namespace zp {
struct AppState;
struct ClassLinie;
class Oberflaeche;

// Command3: the work copy replaces shape LinieNummer, the preview mode ends and the page is
// redrawn. Returns false when LinieNummer names no shape; nothing is changed then.
bool LiniendialogOk(AppState& s, Oberflaeche& ui, const ClassLinie& werk);

// Command1: the shape stays as it was; the preview mode ends.
void LiniendialogAbbruch(AppState& s);

} // namespace zp
