#include "core/Seitennavigation.h"

#include "calendar/data/Kalendertypen.h"
#include "core/runtime/Basic.h"
#include "core/state/AppState.h"

namespace zp {

void Seitenbereich(AppState& s) {
    s.Seitenanzahl = Seitenanzahl(static_cast<int>(s.Kalendertyp));
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
