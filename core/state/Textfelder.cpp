#include "core/state/Textfelder.h"

#include "core/state/AppState.h"

#include <algorithm>

namespace zp {

void ApplyInlineText(AppState& s, const QString& text) {
    const int n = static_cast<int>(s.RahmenNummer);
    if (n < 1 || !s.Rahmenliste.Gueltig(n) || (n >= 21 && n <= 30)) return;
    ClassRahmen& r = s.Rahmenliste(n);
    r.Sichtbar = (r.bilddaten < 1 && text.isEmpty()) ? 0 : -1;
    if (s.IstEtikett != 0) {
        const double breite = s.AktuellesEtikett.Breite;
        const double hoehe = s.AktuellesEtikett.Höhe;
        if (r.X + r.Breite > breite) r.X = std::max(0.0, breite - r.Breite);
        if (r.Y + r.Höhe > hoehe) r.Y = std::max(0.0, hoehe - r.Höhe);
    }
}

void KalendertitelGeaendert(AppState& s, const QString& text) {
    s.Panel.TextTitel = text;
    if (s.Schriftliste.Gueltig(1)) s.Schriftliste(1).Textstring = text;
}

void KalenderunterschriftGeaendert(AppState& s, const QString& text) {
    s.Panel.TextUnterschrift = text;
    if (s.Schriftliste.Gueltig(7)) s.Schriftliste(7).Textstring = text;
}

} // namespace zp
