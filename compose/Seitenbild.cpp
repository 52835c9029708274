#include "compose/Seitenbild.h"

#include "compose/Seitenmaler.h"
#include "compose/canvas/GdiRunden.h"
#include "core/state/AppState.h"
#include "core/state/Massstab.h"

#include <algorithm>

namespace zp {

QSize SeitenbildGroesse(const AppState& s) {
    // A sheet without a label size (no edition chosen) shows its page.
    const bool ganzeSeite = s.IstKalender != 0 || s.IstBriefkopf != 0 || s.AktuellesEtikett.Breite <= 0 ||
                            s.AktuellesEtikett.Höhe <= 0;
    const double breite = ganzeSeite ? s.AktuelleSeite.Breite : s.AktuellesEtikett.Breite;
    const double hoehe = ganzeSeite ? s.AktuelleSeite.Höhe : s.AktuellesEtikett.Höhe;
    const Massstab m = Massstab::Ansicht(s);
    return {std::max(1, gdi::Lng(m.PixelX(m.Twips(breite)))),
            std::max(1, gdi::Lng(m.PixelY(m.Twips(hoehe))))};
}

QImage ZeichneSeitenbild(AppState& s) {
    return Seitenmaler().Zeichne(s);
}

} // namespace zp
