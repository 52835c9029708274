#include "core/state/Massstab.h"

#include "core/state/AppState.h"

namespace zp {

namespace {
// A surface that hasn't told its pixel size counts as a screen of 96 dots per inch.
double Bekannt(double twipsProPixel) {
    return twipsProPixel > 0 ? twipsProPixel : StandardTwipsProPixel;
}
Massstab Auf(const AppState& s, double twipsJeZehntel) {
    return {twipsJeZehntel, Bekannt(s.TwipsProPixelX), Bekannt(s.TwipsProPixelY)};
}
} // namespace

Massstab Massstab::Zeichnung(const AppState& s) {
    return Auf(s, s.Zeichenfaktor * s.Geraetefaktor);
}

Massstab Massstab::Ansicht(const AppState& s) {
    return Auf(s, s.Zoomfaktor / 100 * s.Geraetefaktor);
}

Massstab Massstab::Geraet(const AppState& s) {
    return Auf(s, s.Geraetefaktor);
}

} // namespace zp
