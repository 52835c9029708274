#include "render/Etikettenbogen.h"

#include "compose/canvas/canvas.h"
#include "model/SeiteEtikett.h"

#include <algorithm>

namespace zp {

namespace {
constexpr CanvasFarbe Rot = 0x0000FF;
constexpr CanvasFarbe Schwarz = 0;
} // namespace

void ZeichneEtikettenbogen(Canvas& box, const ClassSeite& seite, const ClassEtikett& e) {
    box.Cls();
    // The paper's edge.
    box.FillStyle = 1;
    box.Line(0, 0, seite.Breite, seite.Höhe, Schwarz, Canvas::LineForm::Kasten);

    const double schrittX = static_cast<double>(e.Breite) + e.Abstand_x;
    const double schrittY = static_cast<double>(e.Höhe) + e.Abstand_y;
    const double rechts = box.Width();
    const double unten = box.Height();
    double y = seite.Randoben;
    for (int zeile = 1; zeile <= e.Anzahl_y; ++zeile) {
        if (y > unten) break;
        box.FillColor = Schwarz;
        box.FillStyle = 1;
        double x = seite.Randlinks;
        for (int spalte = 1; spalte <= e.Anzahl_x; ++spalte) {
            if (x > rechts) break;
            if (e.Form == 1) {
                box.FillColor = Rot;
                box.FillStyle = 0;
                box.Circle(x + e.Breite / 2.0, y + e.Höhe / 2.0, e.Breite / 2.0, Schwarz);
            } else {
                box.Line(x, y, x + e.Breite, y + e.Höhe, Rot, Canvas::LineForm::KastenGefuellt);
                box.Line(x, y, x + e.Breite, y + e.Höhe, Schwarz, Canvas::LineForm::Kasten);
            }
            if (schrittX <= 0) break; // every further label lies on this one
            x += schrittX;
        }
        if (schrittY <= 0) break;
        y += schrittY;
    }
    box.FillStyle = 1;
}

} // namespace zp
