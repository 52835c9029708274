#include "Dialogvorschau.h"

#include "compose/canvas/ImageCanvas.h"
#include "core/state/AppState.h"
#include "render/ZeichneLinie.h"
#include "render/ZeichneSchrift.h"

namespace zp {

namespace {
// Preview mode and the true scale for the length of one drawing; the page's values come back.
class Vorschauzeit {
public:
    // `tppX`, `tppY`: the preview box's twips per pixel, which the renderers read from the state.
    Vorschauzeit(AppState& s, double tppX, double tppY)
        : m_s(s), m_modus(s.Vorschaumodus), m_zeichenfaktor(s.Zeichenfaktor), m_farbe(s.Farbvorgabe),
          m_winkel(s.Winkelvorgabe), m_text(s.LetzterText), m_tppX(s.TwipsProPixelX),
          m_tppY(s.TwipsProPixelY) {
        s.Vorschaumodus = -1;
        s.Zeichenfaktor = 1;
        s.Farbvorgabe = -1;
        s.Winkelvorgabe = -1;
        s.TwipsProPixelX = tppX;
        s.TwipsProPixelY = tppY;
    }
    ~Vorschauzeit() {
        m_s.Vorschaumodus = m_modus;
        m_s.Zeichenfaktor = m_zeichenfaktor;
        m_s.Farbvorgabe = m_farbe;
        m_s.Winkelvorgabe = m_winkel;
        m_s.LetzterText = m_text;
        m_s.TwipsProPixelX = m_tppX;
        m_s.TwipsProPixelY = m_tppY;
    }
    Vorschauzeit(const Vorschauzeit&) = delete;
    Vorschauzeit& operator=(const Vorschauzeit&) = delete;

private:
    AppState& m_s;
    float m_modus;
    double m_zeichenfaktor;
    Farbe m_farbe;
    double m_winkel;
    QString m_text;
    double m_tppX, m_tppY;
};

double Bildschirmtwips(double wert) {
    return wert > 0 ? wert : 15;
}

// Below this the preview stops shrinking: a text a third of its size still reads.
constexpr double kKleinsterMassstab = 0.33;

// Whether the drawing reaches the box's edge: the preview centres the text, so only a text
// larger than the box touches it.
bool AmRandAbgeschnitten(const QImage& bild) {
    const QRgb grund = qRgb(255, 255, 255);
    const int w = bild.width(), h = bild.height();
    for (int x = 0; x < w; ++x)
        if ((bild.pixel(x, 0) & 0xFFFFFF) != (grund & 0xFFFFFF) ||
            (bild.pixel(x, h - 1) & 0xFFFFFF) != (grund & 0xFFFFFF))
            return true;
    for (int y = 0; y < h; ++y)
        if ((bild.pixel(0, y) & 0xFFFFFF) != (grund & 0xFFFFFF) ||
            (bild.pixel(w - 1, y) & 0xFFFFFF) != (grund & 0xFFFFFF))
            return true;
    return false;
}
} // namespace

QImage Schriftvorschau(AppState& s, ClassSchrift schrift, QSize pixel) {
    const double tppX = Bildschirmtwips(s.TwipsProPixelX), tppY = Bildschirmtwips(s.TwipsProPixelY);
    const double F = s.Geraetefaktor > 0 ? s.Geraetefaktor : 5.67;
    // A text too large for the box is shown smaller, whole: the box's resolution is lowered step
    // by step, which scales the text, its spacing and its shadow alike.
    QImage bild;
    for (double massstab = 1;; massstab *= 0.8) {
        ImageCanvas box(pixel, CanvasArt::Vorschau, tppX / massstab, tppY / massstab);
        const Vorschauzeit zeit(s, tppX / massstab, tppY / massstab);
        ClassRahmen rahmen;
        rahmen.Breite = pixel.width() * tppX / massstab / F;
        rahmen.Höhe = pixel.height() * tppY / massstab / F;
        ClassSchrift text = schrift;
        ZeichneSchrift(s, box, text, rahmen);
        bild = box.Bild();
        if (massstab < kKleinsterMassstab || !AmRandAbgeschnitten(bild)) return bild;
    }
}

QImage Linienvorschau(AppState& s, ClassLinie linie, QSize pixel) {
    const double tppX = Bildschirmtwips(s.TwipsProPixelX), tppY = Bildschirmtwips(s.TwipsProPixelY);
    ImageCanvas box(pixel, CanvasArt::Vorschau, tppX, tppY);
    const Vorschauzeit zeit(s, tppX, tppY);
    const double F = s.Geraetefaktor > 0 ? s.Geraetefaktor : 5.67;
    constexpr double rand = 100; // twips
    ClassRahmen rahmen;
    rahmen.X = rahmen.Y = rand / F;
    rahmen.Breite = std::max(0.0, pixel.width() * tppX - 2 * rand) / F;
    rahmen.Höhe = std::max(0.0, pixel.height() * tppY - 2 * rand) / F;
    ZeichneLinie(s, box, linie, rahmen);
    return box.Bild();
}

QImage Formvorschau(int form, int pixel) {
    // The thumbnails are drawn on a grid of 320 twips.
    const double tpp = 320.0 / std::max(1, pixel);
    ImageCanvas box(QSize(pixel, pixel), CanvasArt::Vorschau, tpp, tpp);
    ZeichneLinieVorschau(box, form);
    return box.Bild();
}

} // namespace zp
