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
    explicit Vorschauzeit(AppState& s)
        : m_s(s), m_modus(s.Vorschaumodus), m_zeichenfaktor(s.Zeichenfaktor), m_farbe(s.Farbvorgabe),
          m_winkel(s.Winkelvorgabe), m_text(s.LetzterText) {
        s.Vorschaumodus = -1;
        s.Zeichenfaktor = 1;
        s.Farbvorgabe = -1;
        s.Winkelvorgabe = -1;
    }
    ~Vorschauzeit() {
        m_s.Vorschaumodus = m_modus;
        m_s.Zeichenfaktor = m_zeichenfaktor;
        m_s.Farbvorgabe = m_farbe;
        m_s.Winkelvorgabe = m_winkel;
        m_s.LetzterText = m_text;
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
};

double Bildschirmtwips(double wert) {
    return wert > 0 ? wert : 15;
}
} // namespace

QImage Schriftvorschau(AppState& s, ClassSchrift schrift, QSize pixel) {
    const double tppX = Bildschirmtwips(s.TwipsProPixelX), tppY = Bildschirmtwips(s.TwipsProPixelY);
    ImageCanvas box(pixel, CanvasArt::Vorschau, tppX, tppY);
    const Vorschauzeit zeit(s);
    const double F = s.Geraetefaktor > 0 ? s.Geraetefaktor : 5.67;
    ClassRahmen rahmen;
    rahmen.Breite = pixel.width() * tppX / F;
    rahmen.Höhe = pixel.height() * tppY / F;
    ZeichneSchrift(s, box, schrift, rahmen);
    return box.Bild();
}

QImage Linienvorschau(AppState& s, ClassLinie linie, QSize pixel) {
    const double tppX = Bildschirmtwips(s.TwipsProPixelX), tppY = Bildschirmtwips(s.TwipsProPixelY);
    ImageCanvas box(pixel, CanvasArt::Vorschau, tppX, tppY);
    const Vorschauzeit zeit(s);
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
