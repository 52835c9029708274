#include "core/state/Objekte.h"

#include "core/state/AppState.h"

namespace zp {

void ErzeugeRahmen(AppState& s, int n, const QString& typ, double objektnummer) {
    // Callers ask for RahmenAnzahl + 1; the list grows by exactly one, so a number further out is
    // refused by the bounds check of the list.
    if (n > s.Rahmenliste.Obergrenze()) s.Rahmenliste.RedimPreserve(s.Rahmenliste.Obergrenze() + 1);
    ClassRahmen& r = s.Rahmenliste(n);
    r = ClassRahmen{};
    r.X = r.Y = n * 50.0 + 50.0; // new frames fall in a diagonal
    r.Breite = 500;
    r.Höhe = 200;
    r.z = static_cast<int16_t>(n);
    r.Objekttyp = typ;
    r.Objektnummer = objektnummer;
    s.RahmenAnzahl += 1;
    r.Sichtbar = -1;
}

void ErzeugeSchrift(AppState& s, int n) {
    s.Schriftliste(n) = ClassSchrift{};
}
void ErzeugeBild(AppState& s, int n) {
    s.Bildliste(n) = ClassBild{};
}
void ErzeugeLinie(AppState& s, int n) {
    s.Linienliste(n) = ClassLinie{};
}

} // namespace zp
