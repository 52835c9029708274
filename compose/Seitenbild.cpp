#include "compose/Seitenbild.h"

#include "compose/Seitenmaler.h"
#include "compose/canvas/GdiRunden.h"
#include "core/state/AppState.h"

#include <algorithm>

namespace zp {

QSize SeitenbildGroesse(const AppState& s) {
    // A sheet without a label size (no edition chosen) shows its page.
    const bool ganzeSeite = s.IstKalender != 0 || s.IstBriefkopf != 0 || s.AktuellesEtikett.Breite <= 0 ||
                            s.AktuellesEtikett.Höhe <= 0;
    const double breite = ganzeSeite ? s.AktuelleSeite.Breite : s.AktuellesEtikett.Breite;
    const double hoehe = ganzeSeite ? s.AktuelleSeite.Höhe : s.AktuellesEtikett.Höhe;
    const double twips = s.Geraetefaktor * s.Zoomfaktor / 100;
    const double tppX = s.TwipsProPixelX > 0 ? s.TwipsProPixelX : 15;
    const double tppY = s.TwipsProPixelY > 0 ? s.TwipsProPixelY : 15;
    return {std::max(1, gdi::Lng(breite * twips / tppX)), std::max(1, gdi::Lng(hoehe * twips / tppY))};
}

QImage ZeichneSeitenbild(AppState& s) {
    return Seitenmaler().Zeichne(s);
}

} // namespace zp
