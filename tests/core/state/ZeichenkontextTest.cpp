#include "core/state/Zeichenkontext.h"
#include "core/state/AppState.h"
#include "core/state/Massstab.h"

#include <gtest/gtest.h>
#include <stdexcept>

using namespace zp;

namespace {
AppState Bildschirm() {
    AppState s;
    s.Zoomfaktor = 150;
    s.Zeichenfaktor = 1.5;
    s.TwipsProPixelX = 15;
    s.TwipsProPixelY = 12;
    return s;
}

void ErwarteBildschirm(const AppState& s) {
    EXPECT_EQ(s.DruckenAktiv, 0);
    EXPECT_EQ(s.ExportAktiv, 0);
    EXPECT_EQ(s.TwipsProPixelX, 15);
    EXPECT_EQ(s.TwipsProPixelY, 12);
    EXPECT_EQ(s.Zeichenfaktor, 1.5);
    EXPECT_EQ(s.Geraetefaktor, TwipsJeZehntelmm);
    EXPECT_EQ(s.Zoomfaktor, 150);
}
} // namespace

TEST(Zeichenkontext, SetsTheModeAndPixelSizeForItsLifetime) {
    AppState s = Bildschirm();
    {
        const Zeichenkontext druck(s, Zeichenkontext::Art::Druck, 2.4, 2.5);
        EXPECT_EQ(s.DruckenAktiv, -1);
        EXPECT_EQ(s.ExportAktiv, 0);
        EXPECT_EQ(s.TwipsProPixelX, 2.4);
        EXPECT_EQ(s.TwipsProPixelY, 2.5);
        s.Zeichenfaktor = 1; // the composition's own scale for the printer
        {
            // An export inside keeps the print mode and gives it back.
            const Zeichenkontext bild(s, Zeichenkontext::Art::Export);
            EXPECT_EQ(s.ExportAktiv, -1);
            EXPECT_EQ(s.DruckenAktiv, -1);
            EXPECT_EQ(s.TwipsProPixelX, 2.4);
        }
        EXPECT_EQ(s.ExportAktiv, 0);
        EXPECT_EQ(s.DruckenAktiv, -1);
    }
    ErwarteBildschirm(s);
}

TEST(Zeichenkontext, PutsEverythingBackWhenTheDrawingThrows) {
    AppState s = Bildschirm();
    EXPECT_THROW(
        {
            Zeichenkontext vorschau(s, Zeichenkontext::Art::Bildschirm, 1, 1);
            vorschau.SetzeFaktoren(1, 1);
            s.Zoomfaktor = 100;
            throw std::runtime_error("Bild defekt");
        },
        std::runtime_error);
    ErwarteBildschirm(s);
}

TEST(Massstab, ConvertsTenthsOfAMillimetreToTwipsAndPixels) {
    AppState s = Bildschirm();
    s.Zeichenfaktor = 2;
    const Massstab zeichnung = Massstab::Zeichnung(s);
    EXPECT_DOUBLE_EQ(zeichnung.Twips(100), 1134);   // 10 mm at 200 %
    EXPECT_DOUBLE_EQ(zeichnung.PixelX(1134), 75.6); // 15 twips per pixel across
    EXPECT_DOUBLE_EQ(zeichnung.PixelY(1134), 94.5); // 12 down
    EXPECT_DOUBLE_EQ(zeichnung.PixelJeZehntelY(), 0.945);
    // The view follows Zoomfaktor, not the composition's last scale.
    EXPECT_DOUBLE_EQ(Massstab::Ansicht(s).Twips(100), 850.5);
    EXPECT_DOUBLE_EQ(Massstab::Geraet(s).Twips(100), 567);
}

TEST(Massstab, ASurfaceWithoutPixelSizeCountsAsTheScreen) {
    AppState s;
    s.TwipsProPixelX = 0;
    s.TwipsProPixelY = -3;
    const Massstab m = Massstab::Geraet(s);
    EXPECT_EQ(m.twipsProPixelX, StandardTwipsProPixel);
    EXPECT_EQ(m.twipsProPixelY, StandardTwipsProPixel);
    EXPECT_DOUBLE_EQ(m.PixelX(150), 10);
}
