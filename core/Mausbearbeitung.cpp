#include "core/Mausbearbeitung.h"

#include "core/Auswahl.h"
#include "core/Formatbefehle.h"
#include "core/runtime/Basic.h"
#include "core/state/AppState.h"
#include "core/state/Inhalt.h"
#include "core/state/Massstab.h"
#include "core/state/Oberflaeche.h"
#include "core/state/Verlauf.h"

#include <algorithm>
#include <cmath>

namespace zp {

namespace {

constexpr double KleinsteBox = 100; // twips: a drawn or dragged box is never smaller

ClassRahmen* AktuellerRahmen(AppState& s) {
    const int n = static_cast<int>(s.RahmenNummer);
    if (n < 1 || n > static_cast<int>(s.RahmenAnzahl) || !s.Rahmenliste.Gueltig(n)) return nullptr;
    return &s.Rahmenliste(n);
}

double TwipsJeZehntel(const AppState& s) {
    return Massstab::Ansicht(s).twipsJeZehntel;
}

// Twips of the picture in whole tenths of a millimetre, rounded down.
int GanzeZehntel(const AppState& s, double twips) {
    const double f = TwipsJeZehntel(s);
    // A hair above, so that a length converted there and back isn't a tenth short.
    return f > 0 ? static_cast<int>(std::floor(twips / f + 1e-9)) : 0;
}

void StatusAus(const AppState& s, Mausantwort& a, double x, double y) {
    a.status = true;
    a.statusX = GanzeZehntel(s, x);
    a.statusY = GanzeZehntel(s, y);
}

// The value cut to a multiple of `schritt` towards zero: both are first taken as whole numbers
// (rounded half to even), as the grid always did. A step that rounds to 0 doesn't snap.
double Einrasten(double wert, double schritt) {
    const auto teiler = static_cast<long long>(basic::RoundHalfEven(schritt));
    if (teiler == 0) return wert;
    const auto ganz = static_cast<long long>(basic::RoundHalfEven(wert));
    return static_cast<double>(ganz / teiler) * schritt;
}

// The edges of the outline follow the pointer by the handle held.
void KantenZiehen(AppState& s, double dx, double dy) {
    const int g = static_cast<int>(s.Griff);
    const bool links = g == 10 || g == 1 || g == 7 || g == 8;
    const bool rechts = g == 10 || g == 3 || g == 4 || g == 5;
    const bool oben = g == 10 || g == 1 || g == 2 || g == 3;
    const bool unten = g == 10 || g == 5 || g == 6 || g == 7;
    if (links) s.BoxLinks += dx;
    if (rechts) s.BoxRechts += dx;
    if (oben) s.BoxOben += dy;
    if (unten) s.BoxUnten += dy;
}

void BoxAusMarker(AppState& s) {
    s.BoxLinks = s.Rahmen.Left;
    s.BoxRechts = s.Rahmen.Left + s.Rahmen.Width;
    s.BoxOben = s.Rahmen.Top;
    s.BoxUnten = s.Rahmen.Top + s.Rahmen.Height;
}

// Equal but for the rounding of the way through twips and back.
bool GleicheBox(const ClassRahmen& a, const ClassRahmen& b) {
    const auto gleich = [](double u, double v) { return std::abs(u - v) < 1e-7; };
    return gleich(a.X, b.X) && gleich(a.Y, b.Y) && gleich(a.Breite, b.Breite) && gleich(a.Höhe, b.Höhe);
}

// The end of a move or resize drag: the outline becomes the marker and then the frame.
void ZiehenBeenden(AppState& s, Oberflaeche& ui) {
    s.Rahmen.Left = s.BoxLinks;
    s.Rahmen.Top = s.BoxOben;
    const double breite = s.BoxRechts - s.BoxLinks;
    const double hoehe = s.BoxUnten - s.BoxOben;
    s.Rahmen.Width = breite < KleinsteBox ? KleinsteBox : breite; // a crossed edge gives 100
    s.Rahmen.Height = hoehe < KleinsteBox ? KleinsteBox : hoehe;
    ClassRahmen* r = AktuellerRahmen(s);
    if (!r) return;
    // A proportional frame keeps its aspect by the width, whichever edge was dragged.
    if (r->Proportional != 0 && s.Seitenverhaeltnis != 0)
        s.Rahmen.Height = s.Rahmen.Width / s.Seitenverhaeltnis;
    const ClassRahmen vorher = *r;
    VerlaufMerken(s);
    CommitFrameBox(s, ui);
    if (GleicheBox(vorher, *r)) VerlaufZuruecknehmen(s);
    UpdateSelection(s, ui);
    s.LadeSperre = 0;
    ui.Neuzeichnen();
}

// The end of drawing a new frame's box: the frame takes it, and its dialog opens.
void BoxBeenden(AppState& s, Oberflaeche& ui, Mausantwort& a) {
    // A press released without a move still gives the smallest box, not an empty one.
    s.Rahmen.Width = std::max(KleinsteBox, s.Rahmen.Width);
    s.Rahmen.Height = std::max(KleinsteBox, s.Rahmen.Height);
    CommitFrameBox(s, ui);
    UpdateSelection(s, ui);
    a.zeiger = 1;
    OpenPropertyDialog(s, ui);
    // The dialogs end the insertion when they close; a letter body has none.
    s.Auswahlmodus = 0;
    s.LadeSperre = 0;
    UpdateSelection(s, ui);
    ui.Neuzeichnen();
}

} // namespace

Mausantwort MausGedrueckt(AppState& s, Oberflaeche& ui, int taste, double x, double y) {
    (void)ui;
    Mausantwort a;
    s.LadeSperre = 255;
    if (s.Auswahlmodus == 0) {
        a.einfangen = true;
        // The handle under the press, as the last move without a button would have found it.
        const Griffwahl g = GriffAn(s, x, y);
        s.Griff = g.griff;
    }
    BoxAusMarker(s);
    s.Seitenverhaeltnis = s.Rahmen.Height != 0 ? s.Rahmen.Width / s.Rahmen.Height : 1;
    if (taste == Maustaste::Links && s.Auswahlmodus == 1) {
        s.Rahmen = {x, y, 0, 0};
        s.Auswahlmodus = 2;
        s.StartX = x;
        s.StartY = y;
        s.Startbox = s.Rahmen;
        BoxAusMarker(s);
        a.umriss = true;
    }
    return a;
}

Mausantwort MausBewegt(AppState& s, Oberflaeche& ui, int tasten, double x, double y) {
    (void)ui;
    Mausantwort a;
    if (tasten & Maustaste::Links) {
        if (s.Auswahlmodus == 2) {
            // The new box grows to the right and down from the first press, at least 100 twips.
            s.Rahmen.Width = std::max(KleinsteBox, s.Startbox.Width + x - s.StartX);
            s.Rahmen.Height = std::max(KleinsteBox, s.Startbox.Height + y - s.StartY);
            BoxAusMarker(s);
            a.umriss = true;
        } else {
            if (s.ZiehenAktiv == 0 && s.Griff > 0) {
                s.ZiehenAktiv = 1;
                s.ZiehenX = x;
                s.ZiehenY = y;
                a.umriss = true;
            }
            if (s.ZiehenAktiv == 1) {
                KantenZiehen(s, x - s.ZiehenX, y - s.ZiehenY);
                s.ZiehenX = x;
                s.ZiehenY = y;
                a.umriss = true;
            }
        }
        StatusAus(s, a, s.BoxLinks, s.BoxOben);
        return a;
    }
    if (tasten != 0) return a; // another button: nothing
    if (s.Auswahlmodus == 1) StatusAus(s, a, x, y);
    const Griffwahl g = GriffAn(s, x, y);
    s.Griff = g.griff;
    a.zeiger = s.Auswahlmodus == 1 ? 2 : g.zeiger;
    return a;
}

Mausantwort MausLosgelassen(AppState& s, Oberflaeche& ui, int taste, double x, double y) {
    Mausantwort a;
    a.freigeben = true;
    if (taste == Maustaste::Rechts) {
        const ClassRahmen* r = AktuellerRahmen(s);
        a.kontextmenue = true;
        a.verankert = r && r->Verankert != 0;
        s.LadeSperre = 0;
    } else {
        const bool zog = s.ZiehenAktiv == 1;
        a.umriss = zog || s.Auswahlmodus == 2;
        if (!zog && s.Auswahlmodus == 0) {
            s.LadeSperre = 0; // a click: the selection redraws the page
            SelectFrameAt(s, ui, x, y);
        } else if (s.Auswahlmodus == 2) {
            BoxBeenden(s, ui, a);
        } else if (zog) {
            ZiehenBeenden(s, ui);
        }
        s.LadeSperre = 0;
        s.ZiehenAktiv = 0;
        a.zeiger = 0;
    }
    StatusAus(s, a, s.Rahmen.Left, s.Rahmen.Top);
    return a;
}

void CommitFrameBox(AppState& s, Oberflaeche& ui) {
    ClassRahmen* r = AktuellerRahmen(s);
    const double f = TwipsJeZehntel(s);
    if (!r || !(f > 0)) return;
    const double seiteB = s.AktuelleSeite.Breite;
    const double seiteH = s.AktuelleSeite.Höhe;
    // The page limits use the old size: the frame doesn't know its new one yet.
    r->X = s.Rahmen.Left / f;
    if (r->X < 0) r->X = 0;
    if (r->X + r->Breite > seiteB) r->X = seiteB - r->Breite;
    r->Y = s.Rahmen.Top / f;
    if (r->Y < 0) r->Y = 0;
    if (r->Y + r->Höhe > seiteH) r->Y = seiteH - r->Höhe;
    r->Breite = s.Rahmen.Width / f;
    r->Höhe = s.Rahmen.Height / f;

    if (s.GitterAn != 0) {
        r->X = Einrasten(r->X, s.GitterX);
        r->Y = Einrasten(r->Y, s.GitterY);
        if (r->Proportional == 0) {
            r->Breite = Einrasten(r->Breite, s.GitterX);
            r->Höhe = Einrasten(r->Höhe, s.GitterY);
        }
    } else if (s.MMGenau != 0) {
        r->X = Einrasten(r->X, 10);
        r->Y = Einrasten(r->Y, 10);
        r->Breite = Einrasten(r->Breite, 10);
        r->Höhe = Einrasten(r->Höhe, 10);
    }
    s.Rahmen = {r->X * f, r->Y * f, r->Breite * f, r->Höhe * f};
    if (s.LadeSperre == 0) ui.Neuzeichnen();
}

bool PfeilBewegen(AppState& s, Oberflaeche& ui, int dx, int dy, bool rasterschritt) {
    ClassRahmen* r = AktuellerRahmen(s);
    if (!r || r->Verankert != 0 || s.Auswahlmodus != 0 || s.ZiehenAktiv != 0 || (dx == 0 && dy == 0))
        return false;
    const bool gitter =
        s.GitterAn != 0 && basic::RoundHalfEven(s.GitterX) != 0 && basic::RoundHalfEven(s.GitterY) != 0;
    double schrittX = 1, schrittY = 1;
    if (rasterschritt || gitter) {
        schrittX = s.GitterX >= 0.5 ? s.GitterX : 1;
        schrittY = s.GitterY >= 0.5 ? s.GitterY : 1;
    } else if (s.MMGenau != 0) {
        schrittX = schrittY = 10;
    }
    const double f = TwipsJeZehntel(s);
    const ClassRahmen vorher = *r;
    s.Rahmen = {(r->X + dx * schrittX) * f, (r->Y + dy * schrittY) * f, r->Breite * f, r->Höhe * f};
    VerlaufMerken(s);
    const uint8_t sperre = s.LadeSperre;
    s.LadeSperre = 255;
    CommitFrameBox(s, ui);
    s.LadeSperre = sperre;
    const bool bewegt = !GleicheBox(vorher, *r);
    if (!bewegt) VerlaufZuruecknehmen(s);
    UpdateSelection(s, ui);
    if (bewegt) ui.Neuzeichnen();
    return bewegt;
}

} // namespace zp
