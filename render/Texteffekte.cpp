// Shadows and gradients of a text: the same string drawn again at other places in other colours,
// or drawn again through a clip that shrinks band by band.
#include "compose/canvas/GdiRunden.h"
#include "core/state/AppState.h"
#include "core/state/Massstab.h"
#include "render/Farbanteile.h"
#include "render/Textausgabe.h"
#include "render/ZeichneSchrift.h"

#include <array>
#include <cmath>

namespace zp {

namespace {
constexpr double kPi = 3.1415;

int Schritte(const AppState& s) {
    return s.Verlaufsschritte > 0 ? s.Verlaufsschritte : 1;
}
} // namespace

void ZeichneTextschatten(AppState& s, Canvas& ziel, const ClassSchrift& schrift, const Textlage& lage) {
    const double Z = lage.Z, F = lage.F;
    // Length as a share of the text height, in tenths of a millimetre.
    const double D = (lage.h / 100) * schrift.ShadowDeep / Z / F;
    // The shadow turns with the text; 0 points straight down.
    int A = 90 + schrift.ShadowAngle + schrift.Angle;
    if (A > 360) A -= 360;
    const double dx = D * std::sin(A * kPi / 180);
    const double dy = D * std::cos(A * kPi / 180);

    if (schrift.ShadowType == 1) {
        ziel.CurrentX = (lage.X0 + dx) * Z * F;
        ziel.CurrentY = (lage.Y0 + dy) * Z * F;
        GibTextAus(s, ziel, lage, schrift.ShadowColor1);
        return;
    }
    // Soft: from the far end in nearly ShadowColor2 back to the text in ShadowColor1.
    const int n = Schritte(s);
    const Farbanteile nah = Zerlege(schrift.ShadowColor1);
    const Farbanteile fern = Zerlege(schrift.ShadowColor2);
    for (int i = 1; i <= n; ++i) {
        ziel.NeueStufe();
        ziel.CurrentX = (lage.X0 + dx - (dx / n) * i) * Z * F;
        ziel.CurrentY = (lage.Y0 + dy - (dy / n) * i) * Z * F;
        GibTextAus(s, ziel, lage, Stufenfarbe(fern, nah, i, n));
    }
    ziel.StufenEnde();
}

void ZeichneTextverlauf(AppState& s, Canvas& ziel, const ClassSchrift& schrift, const Textlage& lage) {
    const double Z = lage.Z, F = lage.F;
    const Massstab m = Massstab::Zeichnung(s);
    const double tppX = m.twipsProPixelX, tppY = m.twipsProPixelY;
    const int n = Schritte(s);
    // A margin of one letter for the overhang of italics.
    const double E = schrift.Italic != 0 ? ziel.TextWidth(QStringLiteral("i")) : ziel.TextWidth(QString());
    const double cx = ziel.CurrentX, cy = ziel.CurrentY;
    const bool gedreht = schrift.Angle > 0;
    const bool versetzt = s.DruckversatzX != 0 || s.DruckversatzY != 0;
    // A clip lies in device pixels and doesn't follow the moved origin of a printed label.
    const int versatzX = gdi::Lng(s.DruckversatzX * F / tppX);
    const int versatzY = gdi::Lng(s.DruckversatzY * F / tppY);

    std::array<double, 4> px{}, py{};
    double left = 0, top = 0, right = 0, bottom = 0;
    double stepX = 0, stepY = 0;
    GdiHandle region = 0;
    auto polygon = [&](double plusX, double plusY) {
        std::vector<QPoint> p(4);
        for (size_t k = 0; k < 4; ++k)
            p[k] = QPoint(gdi::Lng(px[k] + plusX), gdi::Lng(py[k] + plusY));
        return p;
    };

    if (gedreht) {
        const std::array<double, 4> tx{0, lage.w + E, lage.w + E, 0};
        const std::array<double, 4> ty{0, 0, lage.h, lage.h};
        for (size_t k = 0; k < 4; ++k) {
            px[k] = (cx + PunktDrehen(tx[k], ty[k], schrift.Angle, QStringLiteral("x"))) / tppX;
            py[k] = (cy + PunktDrehen(tx[k], ty[k], schrift.Angle, QStringLiteral("y"))) / tppY;
        }
        const size_t ziel_ecke = schrift.ColorCircle == 1 ? 1 : 3;
        stepX = (px[ziel_ecke] - px[0]) / n;
        stepY = (py[ziel_ecke] - py[0]) / n;
        region = ziel.CreatePolygonRgn(polygon(0, 0), PolyFillMode::Alternate);
    } else {
        left = cx / tppX;
        top = cy / tppY;
        // On the printer the italic margin is added in twips, a wider margin there.
        right = s.DruckenAktiv != 0 ? lage.w / tppX + cx / tppX + E : (lage.w + cx + E) / tppX;
        bottom = (lage.h + cy) / tppY;
        if (schrift.ColorCircle == 1)
            stepX = (right - left) / n;
        else
            stepY = (bottom - top) / n;
        region = ziel.CreateRectRgn(gdi::Lng(left), gdi::Lng(top), gdi::Lng(right), gdi::Lng(bottom));
    }
    ziel.SelectClipRgn(region);
    if (versetzt) ziel.OffsetClipRgn(versatzX, versatzY);

    const Farbanteile von = Zerlege(schrift.Color1);
    const Farbanteile nach = Zerlege(schrift.Color2);
    for (int i = 1; i <= n; ++i) {
        ziel.NeueStufe();
        ziel.CurrentX = lage.X0 * Z * F;
        ziel.CurrentY = lage.Y0 * Z * F;
        GibTextAus(s, ziel, lage, Stufenfarbe(von, nach, i, n));

        // The next band: the clip moves one step on, the part behind keeps this colour.
        ziel.SelectClipRgn(0);
        if (region > 0) ziel.DeleteObject(region);
        if (gedreht) {
            for (size_t k = 0; k < 4; ++k) {
                px[k] += stepX;
                py[k] += stepY;
            }
            // Later polygons carry the print offset as it stands, without the conversion.
            region =
                ziel.CreatePolygonRgn(polygon(s.DruckversatzX, s.DruckversatzY), PolyFillMode::Alternate);
            ziel.SelectClipRgn(region);
        } else {
            left += stepX;
            top += stepY;
            region = ziel.CreateRectRgn(gdi::Lng(left), gdi::Lng(top), gdi::Lng(right), gdi::Lng(bottom));
            ziel.SelectClipRgn(region);
            if (versetzt) ziel.OffsetClipRgn(versatzX, versatzY);
        }
    }
    ziel.StufenEnde();
    ziel.SelectClipRgn(0);
    if (region != 0) ziel.DeleteObject(region);
}

} // namespace zp
