#pragma once
// Calendar types and design variants: which design file a type and variant use, switching between
// them, and going back to the shipped standard design.

#include <QString>
#include <functional>

namespace zp {
struct AppState;
class Oberflaeche;

// Pages of a calendar type: 2, 1, 1, 12, 12, 53, 4 for the types 1 to 7.
[[nodiscard]] int Seitenanzahl(int kalendertyp);

// Captions of the type buttons CommandTyp(1..7).
[[nodiscard]] QString Typname(int kalendertyp);

// Working design of the current type and variant: <program folder>kal<type>[v<n>].zpk.
[[nodiscard]] QString Designdatei(const AppState& s);
[[nodiscard]] QString Designdatei(const AppState& s, int kalendertyp, const QString& variante);
// The shipped standard design of the same name in the program folder's "daten/".
[[nodiscard]] QString Standarddesigndatei(const AppState& s, int kalendertyp, const QString& variante);
// The variant of a ComboVariante entry ("Variante 2" -> "v2", "Variante 1" -> "").
[[nodiscard]] QString VarianteAusText(const QString& eintrag);

// How designs are written and read: the design file writer and reader on AktuelleDatei. Each
// returns false after it has told the user what went wrong. Without a reader, or for a design
// file that isn't there, the built-in standard design of the type stands in.
struct Designablage {
    std::function<bool(AppState&)> speichern;
    std::function<bool(AppState&)> laden;
};

// What a loaded calendar design needs besides its frames: the template frames that can't be
// deleted (38, or 39 for the month designs with their picture caption), title and footer from
// their boxes, and the page count of the type.
void NachKalenderdesignLaden(AppState& s);

// CommandTyp(i): the design in use is saved under its working name (always), then the design of
// type i in the current variant is loaded and page 1 shown.
bool CommandTyp(AppState& s, Oberflaeche& ui, const Designablage& ablage, int typ);
// ComboVariante: the same for a change of variant within the type.
bool ComboVariante(AppState& s, Oberflaeche& ui, const Designablage& ablage, const QString& eintrag);
// CommandStandard / "Kalender zurücksetzen": after the question, the standard design is copied over
// the working design and loaded. Returns whether it was restored.
bool CommandStandard(AppState& s, Oberflaeche& ui, const Designablage& ablage);

} // namespace zp
