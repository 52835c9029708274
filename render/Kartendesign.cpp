// The design band of the card editions: thirteen figures in the sheet's Farbe3, drawn over the
// background of a cell.
#include "render/Bildweg.h"

#include "compose/canvas/canvas.h"
#include "core/runtime/Basic.h"
#include "core/state/AppState.h"
#include "core/state/Massstab.h"

#include <vector>

namespace zp {

void ZeichneKartendesign(AppState& s, Canvas& ziel, double breite, double hoehe, double designbreite,
                         const ClassEtikett& etikett) {
    ziel.ForeColor = etikett.Farbe3;
    ziel.FillColor = etikett.Farbe3;
    ziel.FillStyle = 0;
    ziel.DrawStyle = 0;

    // W and H follow the zoom; A is taken as twips as it stands.
    const Massstab g = Massstab::Geraet(s);
    const double W = g.Twips(breite) * s.Zeichenfaktor;
    const double H = g.Twips(hoehe) * s.Zeichenfaktor;
    const double A = designbreite;
    auto px = [&](double x) { return static_cast<int>(basic::RoundHalfEven(g.PixelX(x))); };
    auto py = [&](double y) { return static_cast<int>(basic::RoundHalfEven(g.PixelY(y))); };
    auto rechteck = [&](double l, double t, double r, double b) {
        ziel.Rectangle(px(l), py(t), px(r), py(b));
    };
    auto vieleck = [&](std::initializer_list<std::pair<double, double>> punkte) {
        std::vector<QPoint> p;
        p.reserve(punkte.size());
        for (const auto& [x, y] : punkte)
            p.emplace_back(px(x), py(y));
        ziel.Polygon(p);
    };

    switch (etikett.Design) {
    case 1: // left band
        rechteck(0, 0, W / 7, H);
        break;
    case 2: // two side bands
        rechteck(0, 0, W / 7, H);
        rechteck(W / 7 * 6, 0, W, H);
        break;
    case 3: // all but a bottom strip
        rechteck(0, 0, W, H - A);
        break;
    case 4: // inner field
        rechteck(A, A, W - A, H - A);
        break;
    case 5: // cut corner
        vieleck({{0, 0}, {W, 0}, {W, H - A}, {W - A, H}, {0, H}});
        break;
    case 6: // arrow notch on the left
        vieleck({{0, 0}, {W, 0}, {W, H}, {0, H}, {A, H / 2}});
        break;
    case 7: // middle band
        rechteck(A, 0, W - A, H);
        break;
    case 8: // ellipse
        ziel.Ellipse(px(A), py(A), px(W - A), py(H - A));
        break;
    case 9: // zigzag left edge
        vieleck({{A, 0},
                 {W, 0},
                 {W, H},
                 {A, H},
                 {2 * A, 7 * H / 8},
                 {A, 6 * H / 8},
                 {2 * A, 5 * H / 8},
                 {A, 4 * H / 8},
                 {2 * A, 3 * H / 8},
                 {A, 2 * H / 8},
                 {2 * A, H / 8}});
        break;
    case 10: // all but a right strip
        rechteck(0, 0, W - A, H);
        break;
    case 11: // slanted band
        vieleck({{A, 0}, {W, 0}, {W - A, H}, {0, H}});
        break;
    case 12: // two wedges
        vieleck({{0, A - 1}, {W / 3, H}, {0, H}});
        vieleck({{2 * W / 3, 0}, {W, 0}, {W, H - A - 1}});
        break;
    case 13: { // field with a frame
        const double G = H / 6;
        vieleck({{0, 0}, {W - G - A - 2, 0}, {W - G - A - 2, H - G - A - 2}, {0, H - G - A - 2}});
        vieleck({{W - G, 0}, {W, 0}, {W, H}, {W - G, H}});
        vieleck({{0, H - G}, {W, H - G}, {W, H}, {0, H}});
        rechteck(0, 0, W, G);
        rechteck(0, 0, G, H);
        break;
    }
    default:
        break;
    }
}

} // namespace zp
