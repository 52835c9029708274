#pragma once
// Calendar types and design variants: which design file a type and variant use, switching between
// them and what a loaded design needs. The type buttons' commands are in core/Kalenderbefehle.h.

#include <QString>

namespace zp {
struct AppState;

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

// What a loaded calendar design needs besides its frames: the template frames that can't be
// deleted (38, or 39 for the month designs with their picture caption), title and footer from
// their boxes, and the page count of the type.
void NachKalenderdesignLaden(AppState& s);

} // namespace zp
