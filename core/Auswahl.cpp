#include "core/Auswahl.h"

#include "core/state/AppState.h"
#include "core/state/Inhalt.h"
#include "core/state/Massstab.h"
#include "core/state/Oberflaeche.h"

namespace zp {

namespace {

// The handle zones are 80 twips wide, the left edge's only 20.
constexpr double Zone = 80;
constexpr double LinkeKante = 20;

bool Gueltig(const AppState& s, int n) {
    return n >= 1 && n <= s.RahmenAnzahl && s.Rahmenliste.Gueltig(n);
}

// The frame becomes current, and with it the object of its kind.
void WirdAktuell(AppState& s, int n) {
    s.RahmenNummer = n;
    ObjektNachRahmen(s);
}

} // namespace

double ZehntelAlsTwips(const AppState& s, double zehntel) {
    return Massstab::Ansicht(s).Twips(zehntel);
}

void UpdateSelection(AppState& s, Oberflaeche& ui) {
    MarkerNachRahmen(s);
    ui.Geaendert(Aenderung::Auswahl);
}

bool SelectFrameAt(AppState& s, Oberflaeche& ui, double x, double y) {
    const int aktuell = static_cast<int>(s.RahmenNummer);
    const int anzahl = static_cast<int>(s.RahmenAnzahl);
    int k = aktuell;
    for (int schritt = 0; schritt < anzahl; ++schritt) {
        k = k + 1 > anzahl ? 1 : k + 1;
        if (k == aktuell) return false; // the current frame itself is never tested
        if (!Gueltig(s, k)) continue;
        const ClassRahmen& r = s.Rahmenliste(k);
        // The edges as the picture has them, in single precision; the click must lie strictly inside.
        const auto links = static_cast<float>(ZehntelAlsTwips(s, r.X));
        const auto rechts = static_cast<float>(ZehntelAlsTwips(s, r.X + r.Breite));
        const auto oben = static_cast<float>(ZehntelAlsTwips(s, r.Y));
        const auto unten = static_cast<float>(ZehntelAlsTwips(s, r.Y + r.Höhe));
        if (x > links && x < rechts && y > oben && y < unten && r.Sichtbar != 0) {
            WirdAktuell(s, k);
            const int schrift = static_cast<int>(s.SchriftNummer);
            if (r.Objekttyp == u"Schrift" && schrift < 30) ui.FokusFeldbox(schrift);
            UpdateSelection(s, ui);
            ui.Geaendert(Aenderung::Seite);
            return true;
        }
    }
    return false;
}

Griffwahl GriffAn(const AppState& s, double x, double y) {
    const int n = static_cast<int>(s.RahmenNummer);
    const auto& m = s.Rahmen;
    const bool verankert = Gueltig(s, n) && s.Rahmenliste(n).Verankert != 0;
    const bool innen = x >= m.Left && x <= m.Left + m.Width && y >= m.Top && y <= m.Top + m.Height;
    if (!innen || verankert || s.Auswahlmodus != 0 || !Gueltig(s, n)) return {0, 1};
    const double dx = x - m.Left;
    const double dy = y - m.Top;
    const double w = m.Width;
    const double h = m.Height;
    // The first zone that holds wins; in frames under 160 twips the corners overlap.
    if (dx < Zone && dy < Zone) return {1, 8};
    if (w - Zone < dx && dy < Zone) return {3, 6};
    if (dy < Zone) return {2, 7};
    if (h - Zone < dy && w - Zone < dx) return {5, 8};
    if (h - Zone < dy && dx < Zone) return {7, 6};
    if (h - Zone < dy) return {6, 7};
    if (dx < LinkeKante) return {8, 9};
    if (w - Zone < dx) return {4, 9};
    return {10, 15};
}

} // namespace zp
