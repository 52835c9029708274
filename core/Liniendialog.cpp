#include "Liniendialog.h"

#include "core/state/AppState.h"
#include "core/state/Oberflaeche.h"
#include "core/state/Verlauf.h"

namespace zp {

bool LiniendialogOk(AppState& s, Oberflaeche& ui, const ClassLinie& werk) {
    const int n = static_cast<int>(s.LinieNummer);
    if (n < 1 || !s.Linienliste.Gueltig(n)) return false;
    if (s.Auswahlmodus == 0) VerlaufMerken(s); // while inserting, the insertion's step holds it
    s.Linienliste(n) = werk;
    s.Vorschaumodus = 0;
    s.Auswahlmodus = 0;
    ui.Neuzeichnen();
    return true;
}

void LiniendialogAbbruch(AppState& s) {
    s.Vorschaumodus = 0;
    s.Auswahlmodus = 0;
}

} // namespace zp
