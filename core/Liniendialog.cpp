#include "Liniendialog.h"

#include "core/state/AppState.h"
#include "core/state/Oberflaeche.h"

namespace zp {

bool LiniendialogOk(AppState& s, Oberflaeche& ui, const ClassLinie& werk) {
    const int n = static_cast<int>(s.LinieNummer);
    if (n < 1 || !s.Linienliste.Gueltig(n)) return false;
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
