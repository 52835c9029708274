#include "render/ZeichneLinie.h"

#include "compose/canvas/GdiRunden.h"
#include "compose/canvas/canvas.h"
#include "core/state/AppState.h"
#include "core/state/Massstab.h"
#include "render/Farbanteile.h"
#include "render/FormZeichnen.h"

#include <cmath>

namespace zp {

namespace {
constexpr double kPi = 3.1415;

// The clip of gradient band i in device pixels: the side where the gradient starts moves one
// band on per pass, the rest reaches a line width beyond the frame.
struct Band {
    double left, top, right, bottom;
};

Band Bandrechteck(const ClassLinie& l, const ClassRahmen& r, const Formlage& g, int i, int n) {
    const double X = r.X, Y = r.Y, B = r.Breite, H = r.Höhe, S = g.S, PX = g.PX, PY = g.PY;
    const double FW = l.Stärke * 10 * 0.567 * g.Zeichenfaktor;
    const double HW = FW / 2;
    if (l.ColorCircle == 1) {
        switch (l.Form) {
        case 1:
            return {X * S / PX + (B * S / PX) / n * i, ((Y + H / 2) * S - HW) / PY, (X + B) * S / PX + 1,
                    ((Y + H / 2) * S + HW) / PY + 1};
        case 2:
            return {((X + B / 2) * S - HW) / PX + (FW / PX) / n * i, Y * S / PY,
                    ((X + B / 2) * S + HW) / PX + 1, (Y + H) * S / PY + 1};
        default:
            return {X * S / PX + (B * S / PX) / n * i - FW / PX, Y * S / PY - FW / PY,
                    (X + B) * S / PX + 1 + FW / PX, (Y + H) * S / PY + 1 + FW / PY};
        }
    }
    switch (l.Form) {
    case 1:
        return {X * S / PX, ((Y + H / 2) * S - HW) / PY + (FW / PY) / n * i, (X + B) * S / PX + 1,
                ((Y + H / 2) * S + HW) / PY + 1};
    case 2:
        return {((X + B / 2) * S - HW) / PX, Y * S / PY + (H * S / PY) / n * i,
                ((X + B / 2) * S + HW) / PX + 1, (Y + H) * S / PY + 1};
    default:
        return {X * S / PX - FW / PX, Y * S / PY + (H * S / PY) / n * i - FW / PY,
                (X + B) * S / PX + 1 + FW / PX, (Y + H) * S / PY + 1 + FW / PY};
    }
}

void Grundzustand(Canvas& c) {
    c.FillStyle = 1;
    c.FillColor = 0;
    c.DrawStyle = 0;
    c.DrawWidth = 1;
}
} // namespace

Schattenlage Schattenversatz(const ClassLinie& linie) {
    const double D = linie.ShadowDeep * 10.0;
    if (!(D > 0)) return {};
    int A = linie.ShadowAngle + 90 + linie.Angle;
    if (A > 360) A -= 360;
    const double t = A * kPi / 180;
    return {std::sin(t) * D, std::cos(t) * D};
}

void ZeichneLinie(AppState& s, Canvas& ziel, ClassLinie& linie, ClassRahmen& rahmen) {
    // 1. A calendar day paints its shape filled in the day's colour.
    const bool farbeVorgegeben = s.Farbvorgabe > -1;
    const Wahrheit alteFuellung = linie.Füllung;
    const Farbe alteFarbe2 = linie.Color2;
    if (farbeVorgegeben) {
        linie.Füllung = -1;
        linie.Color2 = s.Farbvorgabe;
    }

    // 2. Scale; a preview is drawn at the true size.
    Formlage g;
    g.Zeichenfaktor = s.Zeichenfaktor;
    const Massstab m = s.Vorschaumodus != 0 ? Massstab::Geraet(s) : Massstab::Zeichnung(s);
    g.PX = m.twipsProPixelX;
    g.PY = m.twipsProPixelY;
    g.S = m.twipsJeZehntel;
    if (s.Vorschaumodus != 0) ziel.Cls();

    // 3./4. Pen: one pixel around bars, the line strength for diagonals and figures.
    Grundzustand(ziel);
    const int form = linie.Form;
    if (form == 3 || form == 4 || form > 11) {
        ziel.DrawWidth = gdi::Ganzzahl(linie.Stärke * 10 * 0.567 * s.Zeichenfaktor / g.PX);
        if (ziel.DrawWidth == 0) ziel.DrawWidth = 1;
    }

    // 5. Brush for shadow and gradient.
    const bool fuellung = linie.Füllung != 0;
    if (form > 11 && !fuellung) {
        ziel.ForeColor = linie.Color1;
        ziel.FillStyle = 1;
        ziel.FillColor = linie.Color1;
        ziel.DrawStyle = 0;
    } else if (form == 3 || form == 4) {
        ziel.FillStyle = 1;
        ziel.FillColor = 0;
    } else {
        ziel.FillStyle = 0;
        ziel.FillColor = linie.Color2;
    }

    // 6. Shadow: a length in twips, so it doesn't grow with the zoom; it turns with the angle.
    const int n = s.Verlaufsschritte > 0 ? s.Verlaufsschritte : 1;
    if (linie.ShadowDeep * 10.0 > 0) {
        const Schattenlage voll = Schattenversatz(linie);
        if (linie.ShadowType == 1) {
            ziel.ForeColor = ziel.FillColor = linie.ShadowColor1;
            g.DX = voll.DX;
            g.DY = voll.DY;
            FormZeichnen(ziel, linie, rahmen, g);
        } else {
            const Farbanteile nah = Zerlege(linie.ShadowColor1);
            const Farbanteile fern = Zerlege(linie.ShadowColor2);
            for (int i = 1; i <= n; ++i) {
                ziel.NeueStufe();
                g.DX = voll.DX - (voll.DX / n) * i;
                g.DY = voll.DY - (voll.DY / n) * i;
                ziel.ForeColor = ziel.FillColor = Stufenfarbe(fern, nah, i, n);
                FormZeichnen(ziel, linie, rahmen, g);
            }
            ziel.StufenEnde();
        }
    }

    // 7. The shape: plain, or in bands through a clip that shrinks pass by pass.
    g.DX = g.DY = 0;
    if (linie.ColorCircle == 0) {
        ziel.ForeColor = ziel.FillColor = linie.Color1;
        if (form > 11 && fuellung) {
            ziel.FillStyle = 0;
            ziel.FillColor = linie.Color2;
        } else if (s.DruckenAktiv != 0) {
            ziel.FillStyle = 1;
        }
        FormZeichnen(ziel, linie, rahmen, g);
    } else if (linie.ColorCircle == 1 || linie.ColorCircle == 2) {
        const Farbanteile von = Zerlege(linie.Color1);
        const Farbanteile nach = Zerlege(linie.Color2);
        const bool versetzt = s.DruckversatzX != 0 || s.DruckversatzY != 0;
        for (int i = 0; i <= n; ++i) {
            ziel.NeueStufe();
            ziel.ForeColor = ziel.FillColor = Stufenfarbe(von, nach, i, n);
            const Band b = Bandrechteck(linie, rahmen, g, i, n);
            const GdiHandle region =
                ziel.CreateRectRgn(gdi::Lng(b.left), gdi::Lng(b.top), gdi::Lng(b.right), gdi::Lng(b.bottom));
            ziel.SelectClipRgn(region);
            if (versetzt)
                ziel.OffsetClipRgn(gdi::Lng(m.PixelX(Massstab::Geraet(s).Twips(s.DruckversatzX))),
                                   gdi::Lng(m.PixelY(Massstab::Geraet(s).Twips(s.DruckversatzY))));
            FormZeichnen(ziel, linie, rahmen, g);
            ziel.DeleteObject(region);
        }
        ziel.StufenEnde();
        ziel.SelectClipRgn(0);
    }
    // Any other gradient kind leaves the shape undrawn: only its shadow shows.

    // 8. The canvas back to its plain state; the document's shape as it was.
    Grundzustand(ziel);
    if (farbeVorgegeben) {
        linie.Füllung = alteFuellung;
        linie.Color2 = alteFarbe2;
    }
}

void ZeichneLinieVorschau(Canvas& box, int form) {
    using F = Canvas::LineForm;
    box.Cls();
    auto strich = [&](double x1, double y1, double x2, double y2) { box.Line(x1, y1, x2, y2); };
    constexpr double a = 40, m = 170, e = 280;
    switch (form) {
    case 1:
        strich(a, m, e, m);
        break;
    case 2:
        strich(m, a, m, e);
        break;
    case 3:
        strich(a, a, e, e);
        break;
    case 4:
        strich(a, e, e, a);
        break;
    case 5:
        strich(a, a, e, a), strich(a, a, a, e);
        break;
    case 6:
        strich(a, e, e, e), strich(a, a, a, e);
        break;
    case 7:
        strich(a, e, e, e), strich(e, a, e, e);
        break;
    case 8:
        strich(a, a, e, a), strich(e, a, e, e);
        break;
    case 9:
        strich(a, a, e, a), strich(a, e, e, e);
        break;
    case 10:
        strich(e, a, e, e), strich(a, a, a, e);
        break;
    case 11:
        strich(a, m, e, m), strich(m, a, m, e);
        break;
    case 12:
        strich(a, e, e, e), strich(a, e, m, a), strich(e, e, m, a);
        break;
    case 13:
        strich(a, a, e, m), strich(e, m, a, e), strich(a, e, a, a);
        break;
    case 14:
        strich(a, a, e, a), strich(e, a, m, e), strich(m, e, a, a);
        break;
    case 15:
        strich(e, a, e, e), strich(e, e, a, m), strich(a, m, e, a);
        break;
    case 16:
        box.Line(a, a, e, e, -1, F::Kasten);
        break;
    case 17:
        strich(m, a, e, m), strich(e, m, m, e), strich(m, e, a, m), strich(a, m, m, a);
        break;
    case 18:
        box.Circle(m, m, 130);
        break;
    default:
        break;
    }
}

} // namespace zp
