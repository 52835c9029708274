#include "compose/Vorschaubild.h"

#include "compose/canvas/ImageCanvas.h"
#include "core/state/AppState.h"
#include "core/state/Massstab.h"
#include "core/state/Zeichenkontext.h"
#include "render/ZeichneLinie.h"
#include "render/ZeichneSchrift.h"

#include <QPainter>
#include <algorithm>

namespace zp {

namespace {

constexpr double kTwipsProPixel = StandardTwipsProPixel;
constexpr double kRand = 100; // twips

template <typename Zeichnen> QImage Vorschau(AppState& s, QSize pixel, Zeichnen zeichnen) {
    pixel = pixel.expandedTo(QSize(1, 1));
    ImageCanvas box(pixel, CanvasArt::Vorschau, kTwipsProPixel, kTwipsProPixel);
    // The box's own pixel size for the run, whatever a print or export has set.
    Zeichenkontext kontext(s, Zeichenkontext::Art::Bildschirm, kTwipsProPixel, kTwipsProPixel);
    const double g = s.Geraetefaktor > 0 ? s.Geraetefaktor : TwipsJeZehntelmm;
    ClassRahmen& r = s.AktuellerRahmen;
    r.X = kRand / g;
    r.Y = kRand / g;
    r.Breite = std::max(1.0, (pixel.width() * kTwipsProPixel - 2 * kRand) / g);
    r.Höhe = std::max(1.0, (pixel.height() * kTwipsProPixel - 2 * kRand) / g);
    r.Sichtbar = -1;
    const Farbe farbe = s.Farbvorgabe;
    const double winkel = s.Winkelvorgabe;
    s.Farbvorgabe = -1; // a walk's one-shot colour belongs to the page, not to the box
    s.Winkelvorgabe = -1;
    s.Vorschaumodus = -1;
    zeichnen(box, r);
    s.Vorschaumodus = 0;
    s.Farbvorgabe = farbe;
    s.Winkelvorgabe = winkel;
    return box.Bild();
}

// The text drawn once on white and once on black: what differs is the ground showing through, so
// the two pictures give each pixel's colour and coverage, whatever the text's colour.
QImage Freigestellt(const QImage& aufWeiss, const QImage& aufSchwarz) {
    QImage frei(aufWeiss.size(), QImage::Format_ARGB32);
    for (int y = 0; y < frei.height(); ++y) {
        const auto* w = reinterpret_cast<const QRgb*>(aufWeiss.constScanLine(y));
        const auto* b = reinterpret_cast<const QRgb*>(aufSchwarz.constScanLine(y));
        auto* ziel = reinterpret_cast<QRgb*>(frei.scanLine(y));
        for (int x = 0; x < frei.width(); ++x) {
            const int durch = std::max(
                {qRed(w[x]) - qRed(b[x]), qGreen(w[x]) - qGreen(b[x]), qBlue(w[x]) - qBlue(b[x]), 0});
            const int alpha = 255 - durch;
            const auto kanal = [alpha](int c) { return alpha > 0 ? std::min(255, c * 255 / alpha) : 0; };
            ziel[x] = qRgba(kanal(qRed(b[x])), kanal(qGreen(b[x])), kanal(qBlue(b[x])), alpha);
        }
    }
    return frei;
}

QRect Bedeckt(const QImage& frei) {
    QRect r;
    for (int y = 0; y < frei.height(); ++y) {
        const auto* zeile = reinterpret_cast<const QRgb*>(frei.constScanLine(y));
        for (int x = 0; x < frei.width(); ++x)
            if (qAlpha(zeile[x]) > 16) r |= QRect(x, y, 1, 1);
    }
    return r;
}

} // namespace

namespace {
// Letters smaller than this (pixels, the height of what they cover) are drawn larger in the box,
// up to kGroessteLupe times, so that a week number of six points can still be read.
constexpr int kLesbar = 18;
constexpr double kGroessteLupe = 3;
} // namespace

QImage SchriftAufGrund(AppState& s, const ClassSchrift& schrift, QRectF rahmen,
                       const std::vector<Grundform>& grund, QSize box) {
    box = box.expandedTo(QSize(1, 1));
    constexpr int kAussen = 240; // pixels around the text frame for a text that reaches beyond it
    const double g = s.Geraetefaktor > 0 ? s.Geraetefaktor : TwipsJeZehntelmm;
    const int rand = static_cast<int>(kRand / kTwipsProPixel) + 3;

    // The page's piece around the text frame drawn at `zoom` (1 is the true size).
    struct Stueck {
        QImage aufWeiss, aufSchwarz, mitGrund;
        QRect rahmen; // the text frame's pixels in the piece
    };
    const auto zeichneStueck = [&](double zoom, bool mitGrund) {
        const double pixelJeZehntel = g * zoom / kTwipsProPixel;
        const auto pixel = [&](double zehntel) {
            return std::clamp(static_cast<int>(zehntel * pixelJeZehntel), 1, 3000);
        };
        // Its top left corner in tenths of a millimetre.
        const QPointF ursprung = rahmen.topLeft() - QPointF(kAussen, kAussen) / pixelJeZehntel;
        const QSize flaeche(pixel(rahmen.width()) + 2 * kAussen, pixel(rahmen.height()) + 2 * kAussen);
        const auto arbeitsrahmen = [&](QRectF r) {
            ClassRahmen a;
            a.X = r.x() - ursprung.x();
            a.Y = r.y() - ursprung.y();
            a.Breite = std::max(1.0, r.width());
            a.Höhe = std::max(1.0, r.height());
            a.Sichtbar = -1;
            return a;
        };
        const auto zeichne = [&](Farbe papier, bool unterlage) {
            ImageCanvas bild(flaeche, CanvasArt::Vorschau, kTwipsProPixel, kTwipsProPixel);
            Zeichenkontext kontext(s, Zeichenkontext::Art::Bildschirm, kTwipsProPixel, kTwipsProPixel);
            kontext.SetzeFaktoren(zoom, g);
            bild.BackColor = papier;
            bild.Cls();
            const Farbe farbe = s.Farbvorgabe;
            const double winkel = s.Winkelvorgabe;
            s.Farbvorgabe = -1; // a walk's one-shot colour belongs to the page, not to the box
            s.Winkelvorgabe = -1;
            if (unterlage)
                for (const Grundform& form : grund) {
                    s.AktuelleLinie = form.linie;
                    s.AktuellerRahmen = arbeitsrahmen(form.rahmen);
                    ZeichneLinie(s, bild, s.AktuelleLinie, s.AktuellerRahmen);
                }
            s.AktuelleSchrift = schrift;
            s.AktuelleSchrift.Sichtbar = -1;
            s.AktuellerRahmen = arbeitsrahmen(rahmen);
            ZeichneSchrift(s, bild, s.AktuelleSchrift, s.AktuellerRahmen);
            s.Farbvorgabe = farbe;
            s.Winkelvorgabe = winkel;
            return bild.Bild();
        };
        Stueck st;
        st.rahmen = QRect(kAussen, kAussen, pixel(rahmen.width()), pixel(rahmen.height()));
        if (mitGrund) {
            st.mitGrund = zeichne(0xFFFFFF, true);
        } else {
            st.aufWeiss = zeichne(0xFFFFFF, false);
            st.aufSchwarz = zeichne(0, false);
        }
        return st;
    };
    // Where the letters are, whatever their colour; the frame itself for a text that draws nothing.
    const auto bedeckt = [&](double zoom) {
        const Stueck st = zeichneStueck(zoom, false);
        const QRect r = Bedeckt(Freigestellt(st.aufWeiss, st.aufSchwarz));
        return r.isEmpty() ? st.rahmen : r;
    };
    double zoom = 1;
    QRect ausschnitt = bedeckt(zoom);
    // Small letters drawn larger, as far as they still fit the box.
    const double passt = std::min((box.width() - 2.0 * rand) / std::max(1, ausschnitt.width()),
                                  (box.height() - 2.0 * rand) / std::max(1, ausschnitt.height()));
    if (ausschnitt.height() < kLesbar && passt > 1) {
        zoom = std::min({kGroessteLupe, passt, double(kLesbar) / std::max(1, ausschnitt.height())});
        ausschnitt = bedeckt(zoom);
    }
    // The piece of the page around the letters that fills the box: as drawn when the letters fit
    // inside the box's margin, else shrunk as a whole until they do.
    const double faktor = std::min({1.0, (box.width() - 2.0 * rand) / std::max(1, ausschnitt.width()),
                                    (box.height() - 2.0 * rand) / std::max(1, ausschnitt.height())});
    QRectF stueck(QPointF(), QSizeF(box) / std::max(faktor, 0.01));
    stueck.moveCenter(QRectF(ausschnitt).center());

    QImage bild(stueck.size().toSize(), QImage::Format_RGB32);
    bild.fill(Qt::white); // the page's paper beyond the piece drawn
    {
        QPainter maler(&bild);
        maler.drawImage(-stueck.topLeft(), zeichneStueck(zoom, true).mitGrund);
    }
    return bild.size() == box ? bild : bild.scaled(box, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

QImage SchriftVorschaubild(AppState& s, const ClassSchrift& schrift, QSize pixel) {
    s.AktuelleSchrift = schrift;
    return Vorschau(s, pixel,
                    [&](Canvas& box, ClassRahmen& r) { ZeichneSchrift(s, box, s.AktuelleSchrift, r); });
}

QImage LinieVorschaubild(AppState& s, const ClassLinie& linie, QSize pixel) {
    s.AktuelleLinie = linie;
    return Vorschau(s, pixel, [&](Canvas& box, ClassRahmen& r) { ZeichneLinie(s, box, s.AktuelleLinie, r); });
}

QImage LinieInGroesse(AppState& s, const ClassLinie& linie, QSizeF groesse, QSize pixel) {
    s.AktuelleLinie = linie;
    const double g = s.Geraetefaktor > 0 ? s.Geraetefaktor : TwipsJeZehntelmm;
    return Vorschau(s, pixel, [&](Canvas& box, ClassRahmen& r) {
        // The page's frame at its true size, or shrunk as a whole until it fits, centred; a thin
        // line keeps two pixels so that it doesn't vanish.
        const double w = std::max(1.0, groesse.width()), h = std::max(1.0, groesse.height());
        const double faktor = std::min({1.0, r.Breite / w, r.Höhe / h});
        const double mindest = 2 * kTwipsProPixel / g;
        const double breite = std::max(mindest, w * faktor), hoehe = std::max(mindest, h * faktor);
        r.X += (r.Breite - breite) / 2;
        r.Y += (r.Höhe - hoehe) / 2;
        r.Breite = breite;
        r.Höhe = hoehe;
        ZeichneLinie(s, box, s.AktuelleLinie, r);
    });
}

} // namespace zp
