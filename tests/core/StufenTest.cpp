// Stepped effects drawn with the covered steps left out and the gradients coloured band by band
// give the picture that drawing every step gives: exactly for shapes, and for letters up to the
// smoothing of their edges, which a hundred strokes over one another darken.
#include "bench/Musterseiten.h"
#include "compose/Seitenbild.h"
#include "compose/ZeichneSeite.h"
#include "compose/canvas/ImageCanvas.h"

#include <gtest/gtest.h>

using namespace zp;

namespace {
QImage Seite(AppState& s, bool sparen) {
    ImageCanvas seite(SeitenbildGroesse(s));
    seite.SetzeStufenSparen(sparen);
    Zeichenziele ziele;
    ziele.PictureSeite = &seite;
    ZeichneSeite(s, ziele);
    return seite.Bild();
}

int Abstand(QRgb a, QRgb b) {
    return std::max(
        {std::abs(qRed(a) - qRed(b)), std::abs(qGreen(a) - qGreen(b)), std::abs(qBlue(a) - qBlue(b))});
}

struct Vergleich {
    int tinte = 0; // pixels not white in the picture drawn step by step
    int weit = 0;  // pixels whose colour differs by more than a quarter of the range
};
Vergleich Vergleiche(const QImage& jeder, const QImage& gespart) {
    Vergleich v;
    for (int y = 0; y < jeder.height(); ++y)
        for (int x = 0; x < jeder.width(); ++x) {
            const QRgb a = jeder.pixel(x, y);
            if (a != qRgb(255, 255, 255)) ++v.tinte;
            if (Abstand(a, gespart.pixel(x, y)) > 64) ++v.weit;
        }
    return v;
}

// Six steps of one box in XOR: each step undoes the one before, so none may be left out.
QImage XorStufen(bool sparen) {
    ImageCanvas c(QSize(40, 40));
    c.SetzeStufenSparen(sparen);
    c.DrawMode = 7;
    c.FillStyle = 0;
    for (int i = 0; i < 6; ++i) {
        c.NeueStufe();
        c.ForeColor = c.FillColor = 0x00FF00;
        c.Rectangle(5, 5, 30, 30);
    }
    c.StufenEnde();
    return c.Bild();
}
} // namespace

TEST(Stufen, FormenMitVerlaufUndSchattenGleichenDenSchrittweiseGezeichneten) {
    AppState s;
    bench::EffektseiteMitVierzigRahmen(s);
    for (int i = 1; i <= 20; ++i)
        s.Schriftliste(i).Sichtbar = 0; // the letters hidden: only the 20 shapes draw
    const QImage jeder = Seite(s, false);
    const QImage gespart = Seite(s, true);
    ASSERT_EQ(jeder.size(), gespart.size());
    const Vergleich v = Vergleiche(jeder, gespart);
    EXPECT_GT(v.tinte, 50000);
    EXPECT_EQ(jeder, gespart);
}

TEST(Stufen, TexteMitVerlaufUndSchattenWeichenNurAnDenKantenAb) {
    AppState s;
    bench::EffektseiteMitVierzigRahmen(s);
    const QImage jeder = Seite(s, false);
    const QImage gespart = Seite(s, true);
    const Vergleich v = Vergleiche(jeder, gespart);
    EXPECT_GT(v.tinte, 200000);
    EXPECT_LT(v.weit, v.tinte / 30);
}

TEST(Stufen, XorStufenWerdenAlleGezeichnet) {
    const QImage jeder = XorStufen(false);
    EXPECT_EQ(jeder.pixel(15, 15), qRgb(255, 255, 255)); // an even count of XOR leaves white
    EXPECT_EQ(XorStufen(true), jeder);
}
