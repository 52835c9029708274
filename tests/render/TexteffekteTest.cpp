// Shadows and gradients of a text on the recording canvas. The text "ABCD" at 10 pt, zoom 100,
// measures 420 x 195 twips and starts at X0 100, Y0 200 (567, 1134 twips; 37.8, 75.6 px).
#include "compose/canvas/RecordingCanvas.h"
#include "core/state/AppState.h"
#include "render/ZeichneSchrift.h"

#include <gtest/gtest.h>

using namespace zp;

namespace {
struct Text {
    AppState s;
    ClassSchrift schrift;
    ClassRahmen rahmen;
    Text() {
        s.Zeichenfaktor = 1;
        schrift.Textstring = QStringLiteral("ABCD");
        schrift.FontSize = 10;
        rahmen.X = 100, rahmen.Y = 200, rahmen.Breite = 400, rahmen.Höhe = 300;
    }
    std::vector<CanvasAufruf> Ausgaben(RecordingCanvas& c) {
        ZeichneSchrift(s, c, schrift, rahmen);
        return c.Alle(c.Art() == CanvasArt::Bildschirm ? "Print" : "TextOutA");
    }
};
using V = std::vector<int>;
} // namespace

TEST(Textschatten, WeicherSchattenLaeuftVomFernenEndeZumText) {
    Text t;
    t.schrift.ShadowDeep = 50; // D = 195 / 100 x 50 / 5.67 = 17.2 tenths of a mm, straight right
    t.schrift.ShadowAngle = 0;
    t.schrift.ShadowType = 0;          // any value but 1 is the soft run
    t.schrift.ShadowColor1 = 0x3264C8; // RGB(200, 100, 50)
    t.schrift.ShadowColor2 = 0xFA0000; // RGB(0, 0, 250)
    t.schrift.Color1 = 0x00FF00;
    RecordingCanvas c;
    const auto a = t.Ausgaben(c);
    ASSERT_EQ(a.size(), 101u);
    // Step 1: 99/100 of the offset: (100 + 17.02) x 0.378 = 44.2; colour one step from the far end.
    EXPECT_EQ(a[0].Werte, (V{44, 76}));
    EXPECT_EQ(a[0].ForeColor, 0xF80102); // RGB(2, 1, 248)
    // Step 100 lies under the text in ShadowColor1; the text follows in its own colour.
    EXPECT_EQ(a[99].Werte, (V{38, 76}));
    EXPECT_EQ(a[99].ForeColor, 0x3264C8);
    EXPECT_EQ(a[100].Werte, (V{38, 76}));
    EXPECT_EQ(a[100].ForeColor, 0x00FF00);
}

TEST(Textschatten, HarterSchattenUndRichtung) {
    Text t;
    t.schrift.ShadowDeep = 50;
    t.schrift.ShadowType = 1;
    t.schrift.ShadowColor1 = 0x808080;
    t.schrift.ShadowAngle = -90; // A = 0: straight down
    RecordingCanvas c;
    auto a = t.Ausgaben(c);
    ASSERT_EQ(a.size(), 2u);
    EXPECT_EQ(a[0].Werte, (V{38, 82})); // (200 + 17.2) x 0.378 = 82.1
    EXPECT_EQ(a[0].ForeColor, 0x808080);

    // The shadow turns with the text: ShadowAngle 0 and Angle 90 point straight up.
    t.schrift.ShadowAngle = 0;
    t.schrift.Angle = 90;
    RecordingCanvas d;
    a = t.Ausgaben(d);
    ASSERT_EQ(a.size(), 2u);
    EXPECT_EQ(a[0].Werte[0], a[1].Werte[0]);
    EXPECT_EQ(a[1].Werte[1] - a[0].Werte[1], 7); // 17.2 tenths of a mm are 6.5 px

    t.schrift.ShadowDeep = 0; // no shadow, whatever the type
    RecordingCanvas e;
    EXPECT_EQ(t.Ausgaben(e).size(), 1u);
}

TEST(Textverlauf, RechteckBandWeiseMitFarbenBeiderEnden) {
    Text t;
    t.schrift.ColorCircle = 1;
    t.schrift.Color1 = 0x0000FF;
    t.schrift.Color2 = 0xFF0000;
    RecordingCanvas c;
    const auto a = t.Ausgaben(c);
    ASSERT_EQ(a.size(), 101u); // the text, then 100 bands
    EXPECT_EQ(a[0].ForeColor, 0x0000FF);
    EXPECT_FALSE(a[0].Clip.has_value());
    EXPECT_EQ(a[1].ForeColor, 0x0300FC); // RGB(252, 0, 3)
    EXPECT_EQ(a[100].ForeColor, 0xFF0000);
    const auto regionen = c.Alle("CreateRectRgn");
    ASSERT_EQ(regionen.size(), 101u);
    // From the start point to the measured end: (420 + 567) / 15 = 65.8, (195 + 1134) / 15 = 88.6.
    EXPECT_EQ(std::vector<int>(regionen[0].Werte.begin(), regionen[0].Werte.begin() + 4),
              (V{38, 76, 66, 89}));
    // Each band starts 0.28 px further right; band 51 starts at 37.8 + 50 x 0.28 = 51.8.
    EXPECT_EQ(a[51].Clip->boundingRect(), QRect(QPoint(52, 76), QPoint(65, 88)));
    // The last band starts at 37.8 + 99 x 0.28 = 65.52 -> 66, where the text ends: nothing is left.
    EXPECT_TRUE(a[100].Clip->isEmpty());
    EXPECT_EQ(a[99].Clip->boundingRect(), QRect(QPoint(65, 76), QPoint(65, 88)));
    // All regions are freed and the clip is lifted.
    EXPECT_EQ(c.Aufrufe.back().Name, "DeleteObject");
    EXPECT_EQ(c.OffeneObjekte(), 0u);
    EXPECT_EQ(c.Alle("SelectClipRgn").back().Werte[0], 0);
}

TEST(Textverlauf, QuerVerlaufKursivrandUndDruckerrand) {
    Text t;
    t.schrift.ColorCircle = 3; // as 2: bands across the text
    RecordingCanvas c;
    auto a = t.Ausgaben(c);
    // Step (88.6 - 75.6) / 100 = 0.13 downward; the last band starts at 75.6 + 99 x 0.13 = 88.47.
    EXPECT_EQ(a[100].Clip->boundingRect().top(), 88);
    EXPECT_EQ(a[100].Clip->boundingRect().left(), 38);

    // Italic: one letter "i" more (7 px of the 13 px em): right = (420 + 567 + 105) / 15 = 72.8.
    t.schrift.Italic = -1;
    RecordingCanvas k;
    t.Ausgaben(k);
    EXPECT_EQ(k.Alle("CreateRectRgn")[0].Werte[2], 73);

    // On the printer the margin is added in twips, not divided: 168 + 236.25 + 100.8 = 505.
    t.s.DruckenAktiv = -1;
    t.s.TwipsProPixelX = t.s.TwipsProPixelY = 2.4;
    RecordingCanvas d(CanvasArt::Drucker, 2.4, 2.4);
    a = t.Ausgaben(d);
    EXPECT_EQ(d.Alle("CreateRectRgn")[0].Werte[2], 505);
}

TEST(Textverlauf, DruckversatzVerschiebtJedeRegion) {
    Text t;
    t.schrift.ColorCircle = 1;
    t.s.DruckversatzX = 10; // 10 x 5.67 / 15 = 3.78 -> 4
    t.s.DruckversatzY = 20; // 7.56 -> 8
    RecordingCanvas c;
    t.Ausgaben(c);
    const auto versatz = c.Alle("OffsetClipRgn");
    ASSERT_EQ(versatz.size(), 101u);
    EXPECT_EQ(versatz[0].Werte, (V{4, 8}));
}

TEST(Textverlauf, GedrehterTextMitPolygonDasSichAlsGanzesBewegt) {
    Text t;
    t.schrift.ColorCircle = 1;
    t.schrift.Angle = 45;
    RecordingCanvas c;
    const auto a = t.Ausgaben(c);
    ASSERT_EQ(a.size(), 101u);
    const auto polygone = c.Alle("CreatePolygonRgn");
    ASSERT_EQ(polygone.size(), 101u);
    EXPECT_TRUE(c.Alle("CreateRectRgn").empty());
    const auto& erstes = polygone[0].Punkte;
    ASSERT_EQ(erstes.size(), 4u);
    // P0 is the start point of the text in pixels; P1 lies up and right along the baseline.
    EXPECT_EQ(erstes[0], QPoint(a[0].Werte[0], a[0].Werte[1]));
    EXPECT_GT(erstes[1].x(), erstes[0].x());
    EXPECT_LT(erstes[1].y(), erstes[0].y());
    // After 100 steps the polygon has moved by P1 - P0 as a whole.
    const auto& letztes = polygone[100].Punkte;
    for (size_t k = 0; k < 4; ++k) {
        EXPECT_NEAR(letztes[k].x() - erstes[k].x(), erstes[1].x() - erstes[0].x(), 1);
        EXPECT_NEAR(letztes[k].y() - erstes[k].y(), erstes[1].y() - erstes[0].y(), 1);
    }
}

TEST(Textverlauf, GleicheFarbenLaufenDochAlleDurch) {
    Text t;
    t.schrift.ColorCircle = 2;
    t.schrift.Color1 = t.schrift.Color2 = 0x445566;
    t.schrift.Textstring.clear();
    RecordingCanvas c;
    const auto a = t.Ausgaben(c);
    ASSERT_EQ(a.size(), 101u);
    for (const CanvasAufruf& x : a)
        EXPECT_EQ(x.ForeColor, 0x445566);
}
