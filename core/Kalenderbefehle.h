#pragma once
// The calendar panel's commands: type buttons, variant box, standard design and holidays. The
// window's buttons and the command line's options call these.

#include <QString>

namespace zp {
struct AppState;
class Oberflaeche;

// CommandTyp(i): the design in use is saved under its working name (always), then the design of
// type i in the current variant is loaded and page 1 shown. Without a design file the built-in
// standard design of the type stands in.
bool CommandTyp(AppState& s, Oberflaeche& ui, int typ);
// ComboVariante: the same for a change of variant within the type.
bool ComboVariante(AppState& s, Oberflaeche& ui, const QString& eintrag);
// CommandStandard / "Kalender zurücksetzen": after the question, the standard design is copied over
// the working design and loaded. Returns whether it was restored.
bool CommandStandard(AppState& s, Oberflaeche& ui);
// CommandBerechnen: the holidays of the calendar year into the day tables, and the panel's marks.
void FeiertageBerechnen(AppState& s, Oberflaeche& ui);

} // namespace zp
