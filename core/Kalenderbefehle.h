#pragma once
// The calendar's commands on the side panel and in the menu: type, variant, back to the
// standard design, and the year. A change of type or variant saves the design of the old one
// first, so that nothing the user did to it is lost.

#include <QString>

namespace zp {
struct AppState;
class Oberflaeche;
struct Dokumentdienste;

// CommandTyp(t), t from 1 to 7. Returns false for a type outside that range.
bool BefehlKalendertyp(AppState& s, Oberflaeche& ui, const Dokumentdienste& d, int typ);
// ComboVariante: the number is the last two characters of the entry ("Variante 2").
void BefehlVariante(AppState& s, Oberflaeche& ui, const Dokumentdienste& d, const QString& eintrag);
// mnukalender and CommandStandard: the master design from daten/ over the working design,
// after the question. Returns false when the user said No or the master is missing.
bool BefehlKalenderZuruecksetzen(AppState& s, Oberflaeche& ui, const Dokumentdienste& d);
// A click on a year of ComboJahr: asks whether to compute the holidays (not while a design is
// being loaded) and redraws. Years the date arithmetic can't hold are refused with a message.
bool JahrGewaehlt(AppState& s, Oberflaeche& ui, const Dokumentdienste& d, double jahr);
[[nodiscard]] bool JahrZulaessig(double jahr);

// A view toggle: 0 and -1 swap.
void Umschalten(float& flag);

} // namespace zp
