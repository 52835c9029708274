#include "render/FormZeichnen.h"

#include "compose/canvas/GdiRunden.h"
#include "compose/canvas/canvas.h"
#include "model/Klassen.h"

namespace zp {

namespace {
struct Geometrie {
    const Formlage& l;
    double X, Y, B, H, TX, TY;

    [[nodiscard]] double x(double t) const { return (t * l.S + l.DX) / l.PX; }
    [[nodiscard]] double y(double t) const { return (t * l.S + l.DY) / l.PY; }
    [[nodiscard]] QPoint P(double tx, double ty) const { return {gdi::Lng(x(tx)), gdi::Lng(y(ty))}; }

    static void Balken(Canvas& c, double left, double top, double right, double bottom) {
        c.Rectangle(gdi::Lng(left), gdi::Lng(top), gdi::Lng(right), gdi::Lng(bottom));
    }
    void Oben(Canvas& c) const { Balken(c, x(X), y(Y), x(X + B), y(Y) + 2 * TY); }
    void Unten(Canvas& c) const { Balken(c, x(X), y(Y + H), x(X + B), y(Y + H) - 2 * TY); }
    void Links(Canvas& c) const { Balken(c, x(X), y(Y), x(X) + 2 * TX, y(Y + H)); }
    void Rechts(Canvas& c) const { Balken(c, x(X + B), y(Y), x(X + B) - 2 * TX, y(Y + H)); }
    void MitteWaagerecht(Canvas& c) const { Balken(c, x(X), y(Y + H / 2) - TY, x(X + B), y(Y + H / 2) + TY); }
    void MitteSenkrecht(Canvas& c) const { Balken(c, x(X + B / 2) - TX, y(Y), x(X + B / 2) + TX, y(Y + H)); }
};

// A closed figure: filled as a polygon, or its outline with the first corner once more.
void Geschlossen(Canvas& c, std::vector<QPoint> ecken, bool fuellung) {
    if (fuellung) {
        c.Polygon(ecken);
        return;
    }
    ecken.push_back(ecken.front());
    c.Polyline(ecken);
}
} // namespace

void FormZeichnen(Canvas& c, const ClassLinie& linie, const ClassRahmen& r, const Formlage& lage) {
    // Half the line strength in pixels per axis; the strength keeps its size on any device.
    double TY = linie.Stärke * 10 / 2.0 * 0.567 * lage.Zeichenfaktor / lage.PY;
    double TX = linie.Stärke * 10 / 2.0 * 0.567 * lage.Zeichenfaktor / lage.PX;
    if (TY == 0) TY = 0.5;
    if (TX == 0) TX = 0.5;
    const Geometrie g{lage, r.X, r.Y, r.Breite, r.Höhe, TX, TY};
    const double X = r.X, Y = r.Y, B = r.Breite, H = r.Höhe;
    const bool fuellung = linie.Füllung != 0;

    switch (linie.Form) {
    case 1:
        g.MitteWaagerecht(c);
        break;
    case 2:
        g.MitteSenkrecht(c);
        break;
    case 3:
        c.Polygon({g.P(X, Y), g.P(X + B, Y + H)});
        break;
    case 4:
        c.Polygon({g.P(X, Y + H), g.P(X + B, Y)});
        break;
    case 5:
        g.Oben(c), g.Links(c);
        break;
    case 6:
        g.Unten(c), g.Links(c);
        break;
    case 7:
        g.Unten(c), g.Rechts(c);
        break;
    case 8:
        g.Oben(c), g.Rechts(c);
        break;
    case 9:
        g.Oben(c), g.Unten(c);
        break;
    case 10:
        g.Rechts(c), g.Links(c);
        break;
    case 11:
        g.MitteWaagerecht(c), g.MitteSenkrecht(c);
        break;
    case 12:
        Geschlossen(c, {g.P(X, Y + H), g.P(X + B, Y + H), g.P(X + B / 2, Y)}, fuellung);
        break;
    case 13:
        Geschlossen(c, {g.P(X, Y), g.P(X + B, Y + H / 2), g.P(X, Y + H)}, fuellung);
        break;
    case 14:
        Geschlossen(c, {g.P(X, Y), g.P(X + B, Y), g.P(X + B / 2, Y + H)}, fuellung);
        break;
    case 15:
        Geschlossen(c, {g.P(X + B, Y), g.P(X + B, Y + H), g.P(X, Y + H / 2)}, fuellung);
        break;
    case 16:
        Geschlossen(c, {g.P(X, Y), g.P(X + B, Y), g.P(X + B, Y + H), g.P(X, Y + H)}, fuellung);
        break;
    case 17:
        Geschlossen(c, {g.P(X + B / 2, Y), g.P(X + B, Y + H / 2), g.P(X + B / 2, Y + H), g.P(X, Y + H / 2)},
                    fuellung);
        break;
    case 18:
        c.Ellipse(gdi::Lng(g.x(X)), gdi::Lng(g.y(Y)), gdi::Lng(g.x(X + B)), gdi::Lng(g.y(Y + H)));
        break;
    default:
        break; // not a shape of the catalogue
    }
}

} // namespace zp
