#include "Seitennavigation.h"

#include "AppState.h"
#include "runtime/Basic.h"

namespace zp {

int SeitenanzahlFuerTyp(double kalendertyp) {
    switch (static_cast<int>(kalendertyp)) {
    case 1:
        return 2;
    case 2:
    case 3:
        return 1;
    case 4:
    case 5:
        return 12;
    case 6:
        return 53;
    case 7:
        return 4;
    default:
        return 1;
    }
}

void Seitenbereich(AppState& s) {
    s.Seitenanzahl = SeitenanzahlFuerTyp(s.Kalendertyp);
    if (s.Seitennummer > s.Seitenanzahl || s.Seitennummer < 1 || static_cast<int>(s.Kalendertyp) == 6)
        s.Seitennummer = 1;
}

Seiteneingabe SeiteAusText(const QString& text, double seitenanzahl) {
    const double wert = basic::Val(text.right(2));
    if (wert < 1 || wert > seitenanzahl) return {1, true};
    return {static_cast<int>(wert), false};
}

bool SeiteWaehlen(AppState& s, int seite) {
    if (seite < 1 || seite > s.Seitenanzahl || seite == s.Seitennummer) return false;
    s.Seitennummer = seite;
    return true;
}

} // namespace zp
