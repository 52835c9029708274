#include "Dialogvorschau.h"

#include "compose/canvas/ImageCanvas.h"
#include "core/state/AppState.h"
#include "render/ZeichneLinie.h"
#include "render/ZeichneSchrift.h"

#include <algorithm>
#include <cmath>

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

// One axis of the shape preview in pixels: where the frame starts and how long it is in a box of
// `box` pixels, with a margin for wide pens and room for a shadow `versatz` pixels long. The edges
// and the middle fall at 0.3, 0.7 and 0.5 of a pixel: a bar a tenth of a millimetre thick, which
// is narrower than a pixel, rounds to one whole pixel there instead of to none.
struct Vorschaustrecke {
    double anfang = 0, laenge = 0;

    static Vorschaustrecke In(int box, double versatz) {
        constexpr int rand = 7; // about 100 twips: half of a pen of 2.5 mm
        const int frei = box - 2 * rand - static_cast<int>(std::ceil(std::abs(versatz)));
        int laenge = std::max(0, frei - 1);
        laenge -= laenge % 2; // an even length puts the middle on the half pixel
        const int anfang = rand + (versatz < 0 ? static_cast<int>(std::ceil(-versatz)) : 0);
        return {anfang + 0.3, laenge + 0.4};
    }
};

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
    // The shape keeps a margin for wide pens and gives way to its shadow, so that both show whole.
    const Schattenlage schatten = Schattenversatz(linie);
    const Vorschaustrecke x = Vorschaustrecke::In(pixel.width(), schatten.DX / tppX);
    const Vorschaustrecke y = Vorschaustrecke::In(pixel.height(), schatten.DY / tppY);
    ClassRahmen rahmen;
    rahmen.X = x.anfang * tppX / F;
    rahmen.Y = y.anfang * tppY / F;
    rahmen.Breite = x.laenge * tppX / F;
    rahmen.Höhe = y.laenge * tppY / F;
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
