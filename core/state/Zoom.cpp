#include "core/state/Zoom.h"

#include "core/runtime/Basic.h"
#include "core/state/AppState.h"

#include <algorithm>
#include <cmath>

namespace zp {

QSizeF AngezeigteGroesse(const AppState& s) {
    if (s.IstKalender != 0 || s.IstBriefkopf != 0)
        return QSizeF(s.AktuelleSeite.Breite, s.AktuelleSeite.Höhe);
    return QSizeF(s.AktuellesEtikett.Breite, s.AktuellesEtikett.Höhe);
}

QSizeF BildgroesseTwips(const AppState& s, double zoom) {
    const QSizeF g = AngezeigteGroesse(s);
    const double f = TwipsJeZehntelmm * zoom / 100.0;
    return QSizeF(g.width() * f, g.height() * f);
}

double ZoomSchritt(double zoom, bool hoeher) {
    if (hoeher) {
        for (double stufe : {100.0, 150.0, 200.0, 400.0})
            if (stufe > zoom) return stufe;
    } else {
        for (double stufe : {200.0, 150.0, 100.0, 50.0})
            if (stufe < zoom) return stufe;
    }
    return zoom;
}

namespace {
// Int(viewport / (length * 5.67) * 100) - 1; a page of no size keeps the zoom it has.
double Einpassen(double viewport, double laenge, double bisher) {
    if (laenge <= 0) return bisher;
    return std::floor(viewport / (laenge * TwipsJeZehntelmm) * 100.0) - 1.0;
}
} // namespace

double ZoomSeitenbreite(const AppState& s, double viewportBreite) {
    return Einpassen(viewportBreite, s.AktuelleSeite.Breite, s.Zoomfaktor);
}

double ZoomGanzeSeite(const AppState& s, double viewportBreite, double viewportHoehe) {
    const QSizeF g = AngezeigteGroesse(s);
    return std::min(Einpassen(viewportBreite, g.width(), s.Zoomfaktor),
                    Einpassen(viewportHoehe, g.height(), s.Zoomfaktor));
}

double ZoomBeimStart(const AppState& s, double viewportBreite, double viewportHoehe) {
    if (s.IstBriefkopf != 0 || s.IstKalender != 0) return ZoomSeitenbreite(s, viewportBreite);
    return ZoomGanzeSeite(s, viewportBreite, viewportHoehe);
}

std::vector<Linealstrich> Linealstriche(double zoom, double laenge) {
    std::vector<Linealstrich> striche;
    const double f = zoom / 100.0 * TwipsJeZehntelmm;
    // The count of tenths along the strip, as whole numbers; below one twip a tenth there is no scale.
    // Integer division rounds both sides first, half to even, as the runtime does.
    const auto teiler = static_cast<long long>(basic::RoundHalfEven(f));
    if (teiler <= 0 || laenge <= 0) return striche;
    const long long k = static_cast<long long>(basic::RoundHalfEven(laenge)) / teiler;
    const long long schritt = zoom <= 100 ? 20 : 10;
    for (long long i = 0; i <= k; i += schritt)
        striche.push_back({f * static_cast<double>(i), 50});
    for (long long i = 0; i <= k; i += 100)
        striche.push_back({f * static_cast<double>(i), 100});
    return striche;
}

} // namespace zp
