#include "compose/ZeichneSeite.h"

#include "calendar/walks/KalenderLauf.h"
#include "calendar/walks/KalenderZeichnen.h"
#include "compose/canvas/GdiRunden.h"
#include "compose/canvas/canvas.h"
#include "core/runtime/Basic.h"
#include "core/state/AppState.h"
#include "core/state/Massstab.h"
#include "core/state/Oberflaeche.h"
#include "render/Bildweg.h"
#include "render/ZeichneLinie.h"
#include "render/ZeichneSchrift.h"

#include <cmath>
#include <stdexcept>

namespace zp {

namespace {
using basic::RGB;

constexpr int kMeisteRasterlinien = 5000; // per direction: more would only paint the page grey

bool An(double flag) {
    return flag != 0;
}

// Step 2: the week of page Seitennummer in the week calendar.
void BestimmeWoche(AppState& s) {
    const double seite = s.Seitennummer >= 1 ? std::min(s.Seitennummer, 600.0) : 1;
    Wochenstart(static_cast<int>(s.Kalenderjahr), static_cast<int>(seite), s.WocheTag, s.WocheMonat);
}

// Step 3: the draw scale of the target.
void SetzeMassstab(AppState& s) {
    s.Zeichenfaktor = s.Zoomfaktor / 100;
    if (An(s.DruckenAktiv)) s.Zeichenfaktor = 1;
    if (An(s.DruckenAktiv) && An(s.IstKalender)) s.Zeichenfaktor = s.Druckzoom / 100;
    if (An(s.ExportAktiv)) s.Zeichenfaktor = s.ZoomExport;
}

// A round label (a CD label, round stickers): `Form` 1 in the label or CD edition.
bool RundesEtikett(const AppState& s) {
    return s.AktuellesEtikett.Form == 1 && (An(s.IstEtikett) || An(s.IstCDHuelle));
}

// The circle of a round label as a clip region of the target, in its device pixels (regions are
// not moved by the window origin, which walks from label to label on the printer).
GdiHandle Etikettenkreis(const AppState& s, Canvas& ziel) {
    const ClassEtikett& e = s.AktuellesEtikett;
    const Massstab m = ziel.Art() == CanvasArt::Drucker ? Massstab::Geraet(s) : Massstab::Zeichnung(s);
    const double rx = m.PixelX(m.Twips(e.Breite)) / 2, ry = m.PixelY(m.Twips(e.Höhe)) / 2;
    const QPoint ursprung = ziel.WindowOrg();
    constexpr int ecken = 360;
    std::vector<QPoint> punkte;
    punkte.reserve(ecken);
    for (int i = 0; i < ecken; ++i) {
        const double w = 2 * M_PI * i / ecken;
        punkte.emplace_back(gdi::Lng(std::lround(rx + rx * std::cos(w))) - ursprung.x(),
                            gdi::Lng(std::lround(ry + ry * std::sin(w))) - ursprung.y());
    }
    return ziel.CreatePolygonRgn(punkte, PolyFillMode::Alternate);
}

// Step 5a and b: the background proper, as a work shape or a work picture over the label.
void ZeichneEtikettFlaeche(AppState& s, Canvas& ziel, bool rund) {
    const ClassEtikett& e = s.AktuellesEtikett;
    const int F = e.Farbüberlauf;
    const int M = e.Muster;
    ClassRahmen& r = s.AktuellerRahmen;
    r.X = r.Y = 0;
    r.Breite = e.Breite;
    r.Höhe = e.Höhe;
    r.Sichtbar = -1;
    if (F == 5 || (F == 4 && M >= 1)) {
        r.Objekttyp = QStringLiteral("Bild");
        NeuesArbeitsbild(s.AktuellesBild, HintergrundbildDatei(s, e));
        ZeichneBildHintergrund(s, ziel);
    } else if (F != 4) {
        r.Objekttyp = QStringLiteral("Linie");
        ClassLinie& l = s.AktuelleLinie;
        l.Color1 = e.Farbe1;
        l.Color2 = F < 2 ? e.Farbe1 : e.Farbe2;
        l.ColorCircle = static_cast<int16_t>(std::clamp(F - 1, -32768, 32767));
        l.Form = rund ? 18 : 16;
        l.Füllung = -1;
        l.Stärke = 0;
        l.ShadowDeep = 0;
        ZeichneLinie(s, ziel, l, r);
    }
}

// Step 5: a colour or picture background over the whole label, then the design band. A round
// label keeps both inside its circle, so that no colour goes onto the sheet around it: a colour
// or gradient is drawn as the ellipse shape, a picture and the design through the circle's clip.
void ZeichneEtikettHintergrund(AppState& s, Canvas& ziel) {
    const ClassEtikett& e = s.AktuellesEtikett;
    const int F = e.Farbüberlauf;
    if (F < 1) return;
    const bool rund = RundesEtikett(s);
    const GdiHandle kreis = rund ? Etikettenkreis(s, ziel) : 0;
    if (kreis) ziel.SelectClipRgn(kreis);
    ZeichneEtikettFlaeche(s, ziel, rund);
    if (kreis) ziel.SelectClipRgn(kreis); // a gradient leaves the clip off behind it
    ZeichneKartendesign(s, ziel, e.Breite, e.Höhe, e.Designbreite, e);
    if (kreis) {
        ziel.SelectClipRgn(0);
        ziel.DeleteObject(kreis);
    }
}

// Step 6: margins, the address window, fold and punch marks, and the grid (page picture only).
void ZeichneHilfen(AppState& s, Canvas& seite) {
    const double m = Massstab::Zeichnung(s).twipsJeZehntel;
    const ClassSeite& p = s.AktuelleSeite;
    using F = Canvas::LineForm;
    if (An(s.HilfsbereicheAn)) {
        seite.ForeColor = seite.FillColor = RGB(222, 222, 222);
        seite.FillStyle = 0;
        seite.Line(0, 0, p.Randlinks * m, p.Höhe * m, -1, F::KastenGefuellt);
        seite.Line((p.Breite - p.Randrechts) * m, 0, p.Breite * m, p.Höhe * m, -1, F::KastenGefuellt);
        seite.Line(0, 0, p.Breite * m, p.Randoben * m, -1, F::KastenGefuellt);
        seite.Line(0, (p.Höhe - p.Randunten) * m, p.Breite * m, p.Höhe * m, -1, F::KastenGefuellt);
        seite.ForeColor = RGB(255, 255, 192); // the address window of a letter
        seite.Line(200 * m, 450 * m, 1050 * m, 850 * m, -1, F::KastenGefuellt);
        seite.ForeColor = seite.FillColor = RGB(255, 255, 255); // two fold marks and the punch mark
        seite.Line(0, 1045 * m, 50 * m, 1055 * m, -1, F::KastenGefuellt);
        seite.Line(0, 1475 * m, 50 * m, 1485 * m, -1, F::KastenGefuellt);
        seite.Line(0, 2095 * m, 50 * m, 2105 * m, -1, F::KastenGefuellt);
    }
    seite.ForeColor = RGB(192, 192, 192);
    if (s.GridAn == -1) {
        seite.DrawStyle = 2;
        const double Z = s.Zeichenfaktor, Fg = Massstab::Geraet(s).twipsJeZehntel;
        const double dy = s.Rasterhoehe * Z, dx = s.Rasterbreite * Z;
        int anzahl = 0;
        if (dy > 0)
            for (double y = dy; y <= p.Höhe * Z && anzahl < kMeisteRasterlinien; y += dy, ++anzahl)
                seite.Line(0, y * Fg, p.Breite * m, y * Fg);
        anzahl = 0;
        if (dx > 0)
            for (double x = dx; x <= p.Breite * Z && anzahl < kMeisteRasterlinien; x += dx, ++anzahl)
                seite.Line(x * Fg, 0, x * Fg, p.Höhe * m);
    }
    seite.DrawStyle = 0;
}

// Step 8e: where the letter body goes, on the page picture of the letterhead.
void ZeichneBrieftextHinweis(AppState& s, Canvas& seite, const ClassRahmen& r) {
    const double m = Massstab::Zeichnung(s).twipsJeZehntel;
    seite.ForeColor = RGB(255, 255, 192);
    seite.Line(r.X * m, r.Y * m, (r.X + r.Breite) * m, (r.Y + r.Höhe) * m, -1,
               Canvas::LineForm::KastenGefuellt);
    seite.CurrentX = r.X * m;
    seite.CurrentY = r.Y * m;
    seite.FontName = QStringLiteral("Arial");
    seite.FontSize = 10;
    seite.ForeColor = RGB(192, 192, 192);
    seite.FontBold = false;
    seite.FontItalic = false;
    seite.FontTransparent = true;
    seite.Print(QStringLiteral("Brieftext (Anzeige unter Vorschau)"));
}

// Step 8a-g: one frame by its type.
void ZeichneRahmen(AppState& s, Canvas& ziel, Canvas* seite, int n) {
    ClassRahmen& r = s.Rahmenliste(n);
    const QString& typ = r.Objekttyp;
    const int k = static_cast<int>(r.Objektnummer);
    const bool aufDemSchirm = !An(s.DruckenAktiv) && !An(s.ExportAktiv);
    if (typ == QLatin1String("Schrift")) {
        if (An(s.IstKalender)) {
            ZeichneKalenderText(s, ziel, n);
            return;
        }
        if (k < 0 || k > s.Schriftliste.Obergrenze()) return;
        ClassSchrift& t = s.Schriftliste(k);
        if (t.Textstring.isEmpty()) return;
        r.Sichtbar = -1;
        ZeichneSchrift(s, ziel, t, r);
    } else if (typ == QLatin1String("Linie")) {
        if (An(s.IstKalender)) {
            const double linie = s.LinieNummer;
            ZeichneKalenderRahmen(s, ziel, n);
            s.LinieNummer = linie;
            return;
        }
        if (k < 0 || k > s.Linienliste.Obergrenze()) return;
        ZeichneLinie(s, ziel, s.Linienliste(k), r);
    } else if (typ == QLatin1String("RTF")) {
        if (aufDemSchirm && An(s.IstBriefkopf) && seite) ZeichneBrieftextHinweis(s, *seite, r);
    } else if (typ == QLatin1String("Bild")) {
        ZeichneBildRahmen(s, ziel, n);
    }
}

// Steps 9 and 10: the cutting frame and the crop marks of a printed label or card.
void ZeichneSchnitthilfen(AppState& s, Canvas& drucker) {
    const ClassEtikett& e = s.AktuellesEtikett;
    const bool art = An(s.IstEtikett) || An(s.IstVisitenkarte) || (An(s.IstKalender) && s.Kalendertyp == 3);
    const bool cd = An(s.IstCDHuelle);
    if (!art && !cd) return;
    const Massstab g = Massstab::Geraet(s);
    const double fx = g.PixelJeZehntelX(), fy = g.PixelJeZehntelY();
    auto px = [&](double v) { return gdi::Lng(std::trunc(v * fx)); };
    auto py = [&](double v) { return gdi::Lng(std::trunc(v * fy)); };
    if (e.Schnittrahmen != 0) {
        drucker.DrawWidth = 1;
        drucker.DrawStyle = 2;
        drucker.ForeColor = RGB(92, 92, 92);
        drucker.FillStyle = 1;
        drucker.FillColor = RGB(192, 255, 255);
        drucker.FontTransparent = true;
        drucker.SetBkMode(true);
        const int w = px(e.Breite), h = py(e.Höhe);
        if (cd && e.Form == 1)
            drucker.Ellipse(0, 0, w, h); // a CD label is cut along its circle
        else
            drucker.Polyline({{0, 0}, {w, 0}, {w, h}, {0, h}, {0, 0}});
        drucker.DrawStyle = 0;
    }
    if (e.Schnittmarken != 0) {
        drucker.FillStyle = 0;
        drucker.FillColor = 0;
        drucker.DrawStyle = 0;
        drucker.DrawWidth = 1;
        drucker.ForeColor = 0;
        const double W = e.Breite, H = e.Höhe;
        const double marken[8][4] = {
            {-40, 0, -10, 2}, {-40, H, -10, H + 2},   {W + 10, 0, W + 40, 2}, {W + 10, H, W + 40, H + 2},
            {0, -40, 2, -10}, {0, H + 10, 2, H + 40}, {W, -40, W + 2, -10},   {W, H + 10, W + 2, H + 40},
        };
        for (const auto& m : marken)
            drucker.Rectangle(px(m[0]), py(m[1]), px(m[2]), py(m[3]));
        drucker.FillStyle = 1;
        drucker.FillColor = 0;
        drucker.DrawStyle = 0;
        drucker.DrawWidth = 1;
    }
}

// Step 12: the handles of the current frame at the marker's corners, 80 twips whatever the zoom.
void ZeichneAuswahl(AppState& s, Canvas& seite) {
    seite.DrawWidth = 2;
    seite.FillStyle = 1;
    const int n = static_cast<int>(s.RahmenNummer);
    const bool verankert = s.Rahmenliste.Gueltig(n) && s.Rahmenliste(n).Verankert != 0;
    const CanvasFarbe c = verankert ? RGB(192, 192, 192) : RGB(92, 92, 92);
    const double L = s.Rahmen.Left, T = s.Rahmen.Top, W = s.Rahmen.Width, H = s.Rahmen.Height;
    using F = Canvas::LineForm;
    seite.Line(L, T, L + 80, T + 80, c, F::KastenGefuellt);
    seite.Line(L + W - 80, T, L + W, T + 80, c, F::KastenGefuellt);
    seite.Line(L + W - 80, T + H - 80, L + W, T + H, c, F::KastenGefuellt);
    seite.Line(L, T + H - 80, L + 80, T + H, c, F::KastenGefuellt);
    seite.Line(L, T, L + W, T + H, RGB(50, 0, 0), F::Kasten);
    seite.DrawWidth = 1;
}
} // namespace

void ZeichneSeite(AppState& s, Zeichenziele& ziele) {
    // 1. Hourglass.
    if (ziele.Fenster) ziele.Fenster->Mauszeiger(11);
    const bool drucken = An(s.DruckenAktiv), export_ = An(s.ExportAktiv);
    const bool aufDemSchirm = !drucken && !export_;
    Canvas* ziel = drucken ? ziele.Printer : export_ ? ziele.Lead2 : ziele.PictureSeite;
    Canvas* seite = ziele.PictureSeite;

    // 2. Week view.
    if (An(s.IstKalender) && s.Kalendertyp == 6 && !drucken) BestimmeWoche(s);

    // 3. Scale.
    SetzeMassstab(s);

    if (ziel) {
        // 4. Clear the target, or move the printer's origin to the label.
        const Massstab g = Massstab::Geraet(s);
        if (aufDemSchirm) {
            ziel->DrawWidth = 1;
            ziel->DrawStyle = 0;
            ziel->DrawMode = 13;
            ziel->Cls();
        } else if (export_) {
            ziel->SetzeGroesse(g.Twips(s.AktuellesEtikett.Breite) * s.ZoomExport,
                               g.Twips(s.AktuellesEtikett.Höhe) * s.ZoomExport);
        } else {
            ziel->OffsetWindowOrgEx(gdi::Lng(std::trunc(-g.PixelX(g.Twips(s.DruckversatzX)))),
                                    gdi::Lng(std::trunc(-g.PixelY(g.Twips(s.DruckversatzY)))));
        }

        // 5. Label background.
        ZeichneEtikettHintergrund(s, *ziel);

        // 6. Help areas and grid.
        if (aufDemSchirm) ZeichneHilfen(s, *ziel);
    }

    // 7. The panel boxes 21 to 30 feed their texts, and a text brings its frame back.
    for (int i = 21; i <= 30; ++i) {
        if (!s.Schriftliste.Gueltig(i) || !s.Panel.Text1.Gueltig(i)) continue;
        s.Schriftliste(i).Textstring = s.Panel.Text1(i);
        if (!s.Panel.Text1(i).isEmpty() && s.Rahmenliste.Gueltig(i)) s.Rahmenliste(i).Sichtbar = -1;
    }

    // 8. Frames by stacking order, the outlines repainted in every pass.
    const int anzahl = static_cast<int>(std::clamp(s.RahmenAnzahl, 0.0, double(s.Rahmenliste.Obergrenze())));
    // While the calendar's template is edited every frame shows its outline, so that a frame that
    // draws nothing at the moment (an empty title, a week number off Monday) can still be found.
    const bool vorlage = An(s.IstKalender) && An(s.KalenderBearbeiten);
    const bool umrisse = !drucken && (An(s.RahmenAnzeigen) || vorlage) && seite;
    for (int z = 1; z <= anzahl; ++z) {
        for (int n = 1; n <= anzahl; ++n) {
            ClassRahmen& r = s.Rahmenliste(n);
            if (ziel && r.z == z && r.Sichtbar != 0) {
                try {
                    ZeichneRahmen(s, *ziel, seite, n);
                } catch (const std::out_of_range&) {
                    // A frame that points past its lists draws nothing; the page goes on.
                }
            }
            if (umrisse) {
                seite->ForeColor = 0;
                seite->FillStyle = 1;
                if (r.Sichtbar != 0) {
                    const double m = Massstab::Zeichnung(s).twipsJeZehntel;
                    seite->Line(r.X * m, r.Y * m, (r.X + r.Breite) * m, (r.Y + r.Höhe) * m, RGB(92, 92, 92),
                                Canvas::LineForm::Kasten);
                }
            }
        }
    }

    // 9./10. Cutting frame and crop marks on the printer.
    if (drucken && ziel) ZeichneSchnitthilfen(s, *ziel);

    // 11. The round label's outline.
    if (!drucken && (An(s.IstEtikett) || An(s.IstCDHuelle)) && s.AktuellesEtikett.Form == 1 && seite) {
        seite->FillStyle = 1;
        seite->Circle(seite->Width() / 2, seite->Height() / 2, seite->Width() / 2, 0);
        seite->FillStyle = 0;
    }

    // 12. Selection marks.
    if (!drucken && s.Auswahlmodus == 0 && seite) ZeichneAuswahl(s, *seite);

    // 13. Pointer for drawing a new frame, or the default.
    if (ziele.Fenster) ziele.Fenster->Mauszeiger(s.Auswahlmodus == 1 ? 2 : 0);
}

} // namespace zp
