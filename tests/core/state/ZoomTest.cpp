// Zoom steps, the fits of page width and whole page, and the ruler ticks.
#include "core/state/Zoom.h"
#include "core/state/AppState.h"

#include <gtest/gtest.h>

namespace zp {
namespace {

TEST(Zoom, SchritteAufUndAb) {
    struct Fall {
        double von;
        double hoch, runter;
    };
    const Fall faelle[] = {{50, 100, 50},   {100, 150, 50},  {120, 150, 100}, {150, 200, 100},
                           {200, 400, 150}, {400, 400, 200}, {30, 100, 30},   {900, 900, 200}};
    // Going down the steps are searched from 200: above it every step lands there.
    for (const Fall& f : faelle) {
        EXPECT_EQ(ZoomSchritt(f.von, true), f.hoch) << f.von;
        EXPECT_EQ(ZoomSchritt(f.von, false), f.runter) << f.von;
    }
}

TEST(Zoom, EinpassenNachEdition) {
    AppState s;
    s.AktuelleSeite.Breite = 2100;
    s.AktuelleSeite.Höhe = 2970;
    s.AktuellesEtikett.Breite = 900;
    s.AktuellesEtikett.Höhe = 500;
    // A label of 90 mm in 9000 twips: Int(9000 / 5103 * 100) - 1.
    EXPECT_EQ(ZoomGanzeSeite(s, 9000, 9000), 175);
    EXPECT_EQ(ZoomBeimStart(s, 9000, 9000), 175);
    // Page width always measures the page, even where a label is shown.
    EXPECT_EQ(ZoomSeitenbreite(s, 9000), 74);
    s.IstKalender = -1;
    EXPECT_EQ(ZoomBeimStart(s, 9000, 100), 74);
    EXPECT_EQ(ZoomGanzeSeite(s, 9000, 9000), 52); // the page's height decides
    EXPECT_DOUBLE_EQ(BildgroesseTwips(s, 100).width(), 2100 * 5.67);
    // A page of no size keeps the zoom there is.
    s.AktuelleSeite.Breite = 0;
    s.Zoomfaktor = 133;
    EXPECT_EQ(ZoomSeitenbreite(s, 9000), 133);
}

TEST(Lineal, StricheJeMillimeterUndZentimeter) {
    // At 100 %: a tenth is 5.67 twips, rounded 6; ticks every 2 mm, long ones every cm.
    const auto striche = Linealstriche(100, 6 * 200);
    int kurz = 0, lang = 0;
    for (const Linealstrich& s : striche)
        (s.laenge == 50 ? kurz : lang)++;
    EXPECT_EQ(kurz, 11); // 0, 20, ..., 200 tenths
    EXPECT_EQ(lang, 3);  // 0, 100, 200
    EXPECT_DOUBLE_EQ(striche[1].pos, 20 * 5.67);
    // Above 100 % every millimetre.
    const auto fein = Linealstriche(200, 11 * 100);
    EXPECT_DOUBLE_EQ(fein[1].pos, 10 * 11.34);
    // Too small a zoom for one twip a tenth gives no scale instead of a division by zero.
    EXPECT_TRUE(Linealstriche(8, 10000).empty());
    EXPECT_TRUE(Linealstriche(100, 0).empty());
}

} // namespace
} // namespace zp
