#include "Beenden.h"

#include "AppState.h"
#include "persist/Einstellungen.h"
#include "persist/Katalogdateien.h"

namespace zp {

bool BeendenDateienSchreiben(AppState& s, Oberflaeche& ui) {
    bool ok = true;
    ok = SaveSettings(s, ui) && ok;
    if (s.IstKalender != 0) ok = SaveKalenderIni(s, ui) && ok;
    if (s.IstEtikett != 0) ok = SaveKartenformate(s, ui) && ok;
    return ok;
}

} // namespace zp
