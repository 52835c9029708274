#include "render/ZeichneSchrift.h"

#include "compose/canvas/GdiRunden.h"
#include "core/state/AppState.h"
#include "core/state/Massstab.h"
#include "render/Platzhalter.h"
#include "render/Textausgabe.h"

#include <cmath>

namespace zp {

namespace {
constexpr double kPi = 3.1415; // the rendering code's own value of pi

constexpr uint8_t kStandardZeichensatz = 1; // the device's default character set

// The character set of the font list's row with the same trimmed name; a font the list doesn't
// know (a design from another machine) takes the default set.
uint8_t Zeichensatz(const AppState& s, const QString& fontname) {
    // Views, not copies: every text of a calendar page looks its font up in a list of hundreds.
    const QStringView name = QStringView(fontname).trimmed();
    const std::vector<QString>& zeilen = s.Schriftenliste.Eintraege();
    const int grenze = std::min(s.Schriftenliste.Obergrenze(), s.Schriftzeichensatz.Obergrenze());
    for (int k = 0; k <= grenze; ++k) {
        const QString& zeile = zeilen[static_cast<size_t>(k)];
        if (zeile.size() < name.size()) continue; // most rows of the table are empty
        if (QStringView(zeile).trimmed() == name) return s.Schriftzeichensatz(k);
    }
    return kStandardZeichensatz;
}

bool IstBildfeld(const Canvas& c) {
    return c.Art() == CanvasArt::Bildschirm || c.Art() == CanvasArt::Vorschau;
}

// Horizontal anchor, tenths of a millimetre, before the rotation correction.
double AnkerX(const ClassRahmen& r, int ausrichtung, int angle, double w, double h, double Z, double F) {
    const double W = w / Z / F;
    const double H4 = (h / 4) / Z / F;
    const double H5 = (h / 4 + h) / Z / F;
    if (ausrichtung == 1) return r.X + r.Breite / 2 - W / 2;
    if (ausrichtung == 2) {
        switch (angle) {
        case 90:
            return r.X + r.Breite - H5;
        case 180:
            return r.X;
        case 270:
            return r.X + H4;
        default:
            return r.X + r.Breite - W;
        }
    }
    if (ausrichtung != 0) return 0; // an alignment the dialogs don't offer leaves the anchor at 0
    switch (angle) {
    case 90:
        return r.X + H4;
    case 180:
        return r.X + r.Breite - W;
    case 270:
        return r.X + r.Breite - H5;
    default:
        return r.X;
    }
}

// Vertical anchor, tenths of a millimetre, before the rotation correction.
double AnkerY(const ClassRahmen& r, int ausrichtung, int angle, double w, double h, double Z, double F) {
    const double Hh = h / Z / F;
    const double Q = (h / 4) / Z / F;
    const double V = (h / 4 + w) / Z / F;
    if (ausrichtung == 1) return r.Y + r.Höhe / 2 - Hh / 2;
    if (ausrichtung == 2) {
        switch (angle) {
        case 90:
            return r.Y + r.Höhe - Q;
        case 180:
            return r.Y;
        case 270:
            return r.Y + V;
        default:
            return r.Y + r.Höhe - Hh;
        }
    }
    if (ausrichtung != 0) return 0;
    switch (angle) {
    case 90:
        return r.Y + V;
    case 180:
        return r.Y + r.Höhe - Hh;
    case 270:
        return r.Y + r.Höhe - Q;
    default:
        return r.Y;
    }
}
} // namespace

int16_t RotVersatzX(double w, double h, int angle, double geraetefaktor) {
    const double a = w / 2, b = h / 2, t = angle * kPi / 180;
    const double r = (angle > 90 && angle < 270) ? a + std::fabs(a * std::cos(t)) - b * std::sin(t)
                                                 : a - std::fabs(a * std::cos(t)) - b * std::sin(t);
    return gdi::Int16(gdi::Int16(r) / geraetefaktor);
}

int16_t RotVersatzY(double w, double h, int angle, double geraetefaktor) {
    const double a = w / 2, b = h / 2, t = angle * kPi / 180;
    const double r = angle > 180 ? b - std::fabs(a * std::sin(t)) - b * std::cos(t)
                                 : b + std::fabs(a * std::sin(t)) - b * std::cos(t);
    return gdi::Int16(gdi::Int16(r) / geraetefaktor);
}

double PunktDrehen(double x, double y, int32_t angle, const QString& achse) {
    const double t = angle * kPi / 180;
    if (achse == QLatin1String("x"))
        return y > 0 ? std::cos(t) * x + std::sin(t) * y : std::cos(t) * x - std::sin(t) * y;
    return std::cos(t) * y - std::sin(t) * x;
}

void GibTextAus(AppState& s, Canvas& ziel, const Textlage& lage, Farbe farbe) {
    ziel.ForeColor = farbe;
    if (lage.Bildfeld) {
        ziel.Print(lage.Text);
        return;
    }
    // Printer and export bitmap: the font goes into the device context once more before output.
    ziel.SelectObject(lage.Schrift);
    const Massstab m = Massstab::Zeichnung(s);
    ziel.TextOutA(gdi::Lng(m.PixelX(ziel.CurrentX)), gdi::Lng(m.PixelY(ziel.CurrentY)), lage.Text);
}

void ZeichneSchrift(AppState& s, Canvas& ziel, ClassSchrift& schrift, ClassRahmen& rahmen) {
    // 1. One-shot overrides of a calendar cell.
    const bool farbeVorgegeben = s.Farbvorgabe > -1;
    const bool winkelVorgegeben = s.Winkelvorgabe > -1;
    const Farbe alteFarbe = schrift.Color1;
    const int16_t alterWinkel = schrift.Angle;
    if (farbeVorgegeben) schrift.Color1 = s.Farbvorgabe;
    if (winkelVorgegeben) schrift.Angle = gdi::Int16(s.Winkelvorgabe);

    // 2. Kind of canvas and scale; a preview is drawn at the true size.
    const bool vorschau = s.Vorschaumodus != 0;
    Textlage lage;
    lage.Bildfeld = IstBildfeld(ziel);
    lage.Z = vorschau ? 1.0 : s.Zeichenfaktor;
    lage.F = s.Geraetefaktor;
    if (!(lage.Z > 0)) lage.Z = 1; // a scale of 0 would divide by zero in every anchor
    if (!(lage.F > 0)) lage.F = TwipsJeZehntelmm;
    const double Z = lage.Z, F = lage.F;

    // 3./4. The working string: empty for a hidden text on the page, keywords replaced.
    QString text = schrift.Textstring;
    if (!vorschau && schrift.Sichtbar == 0) text.clear();
    lage.Text = ErsetzePlatzhalter(s, text);

    // 5. A text without a font gets the default, and keeps it in the document.
    if (schrift.fontname.isEmpty()) {
        schrift.fontname = QStringLiteral("Arial");
        schrift.FontSize = 20;
    }

    // 6. The picture-box font that the measures of the gradient margin use.
    if (lage.Bildfeld) {
        if (vorschau) ziel.Cls();
        ziel.FontName = schrift.fontname;
        ziel.FontSize = Z * schrift.FontSize;
    } else if (s.ExportAktiv == 0) {
        ziel.FontName = schrift.fontname;
        ziel.FontSize = Z * schrift.FontSize;
    }

    // 7. The device font: height from the device's vertical resolution, turned by the angle.
    LogFont lf;
    lf.lfHeight = -gdi::Lng(Z * schrift.FontSize * ziel.GetDeviceCaps(LOGPIXELSY) / 72.0);
    lf.lfWidth = 0;
    lf.lfEscapement = lf.lfOrientation = schrift.Angle * 10;
    lf.lfWeight = schrift.Bold != 0 ? 800 : 400;
    lf.lfItalic = schrift.Italic != 0;
    lf.lfUnderline = schrift.Underline != 0;
    lf.lfStrikeOut = schrift.Strike != 0;
    lf.lfCharSet = Zeichensatz(s, schrift.fontname);
    lf.lfFaceName = schrift.fontname.left(31);
    lage.Schrift = ziel.CreateFontIndirectA(lf);
    const GdiHandle alteSchrift = ziel.SelectObject(lage.Schrift);

    // 8.-10. Measure before this text's spacing is set: the spacing left by the text drawn before
    // is in the measure, as the device keeps it.
    const QSize mass = ziel.GetTextExtentPoint32A(lage.Text);
    ziel.SetTextCharacterExtra(schrift.CharSpace);
    const int dpiX = std::max(1, ziel.GetDeviceCaps(LOGPIXELSX));
    const int dpiY = std::max(1, ziel.GetDeviceCaps(LOGPIXELSY));
    lage.w = static_cast<double>(mass.width()) / dpiX * 1440;
    lage.h = static_cast<double>(mass.height()) / dpiY * 1440;
    const double w = lage.w, h = lage.h;

    // 11.-13. Anchor in the frame, then the correction for the turn about the box's centre.
    const int angle = schrift.Angle;
    int32_t X0 = gdi::Lng(AnkerX(rahmen, schrift.AusrichtungH, angle, w, h, Z, F));
    int32_t Y0 = gdi::Lng(AnkerY(rahmen, schrift.AusrichtungV, angle, w, h, Z, F));
    if (vorschau) {
        X0 = gdi::Lng(rahmen.X + rahmen.Breite / 2 - (w / F) / 2);
        Y0 = gdi::Lng(rahmen.Y + rahmen.Höhe / 2 - (h / F) / 2);
    }
    if (angle != 90 || schrift.AusrichtungH == 1 || vorschau)
        X0 = gdi::Lng(X0 + RotVersatzX(w, h, angle, F) / Z);
    if (angle != 90 || schrift.AusrichtungV == 1 || vorschau)
        Y0 = gdi::Lng(Y0 + RotVersatzY(w, h, angle, F) / Z);
    lage.X0 = X0;
    lage.Y0 = Y0;

    // 14. Shadow under the text.
    if (schrift.ShadowDeep > 0) ZeichneTextschatten(s, ziel, schrift, lage);

    // 15. The text itself.
    ziel.CurrentX = X0 * Z * F;
    ziel.CurrentY = Y0 * Z * F;
    GibTextAus(s, ziel, lage, schrift.Color1);

    // 16. The gradient over it.
    ziel.CurrentX = X0 * Z * F;
    ziel.CurrentY = Y0 * Z * F;
    if (schrift.ColorCircle > 0) ZeichneTextverlauf(s, ziel, schrift, lage);

    // 17. Font back and freed.
    ziel.SelectObject(alteSchrift);
    ziel.DeleteObject(lage.Schrift);

    // 18. The expanded text for whoever asks next; overrides put back, the angle one spent.
    s.LetzterText = lage.Text;
    if (farbeVorgegeben) schrift.Color1 = alteFarbe;
    if (winkelVorgegeben) {
        schrift.Angle = alterWinkel;
        s.Winkelvorgabe = -1;
    }
}

} // namespace zp
