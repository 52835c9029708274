// The thirteen design figures with their points on the recording canvas.
#include "core/state/AppState.h"
#include "render/Bildweg.h"
#include "tests/compose/canvas/Protokollcanvas.h"

#include <gtest/gtest.h>

using namespace zp;
using namespace zp::test;

namespace {

using Punkte = std::vector<QPoint>;
struct Form {
    std::string art;
    Punkte punkte;
};

std::vector<Form> Zeichne(int design, double w, double h, double a, AppState& s) {
    ClassEtikett e;
    e.Design = design;
    e.Farbe3 = 0x123456;
    Protokollcanvas c;
    ZeichneKartendesign(s, c, w, h, a, e);
    std::vector<Form> formen;
    for (const auto& z : c.protokoll) {
        EXPECT_EQ(z.fore, 0x123456);
        EXPECT_EQ(z.fill, 0x123456);
        EXPECT_EQ(z.fillStyle, 0);
        formen.push_back({z.art, z.punkte});
    }
    return formen;
}

// With both factors and the pixel size at 1 the points come out in the figures' own units.
AppState Einheitlich() {
    AppState s;
    s.Geraetefaktor = 1;
    s.Zeichenfaktor = 1;
    s.TwipsProPixelX = 1;
    s.TwipsProPixelY = 1;
    return s;
}

void Erwarte(const std::vector<Form>& ist, const std::vector<Form>& soll, int design) {
    ASSERT_EQ(ist.size(), soll.size()) << "Design " << design;
    for (size_t i = 0; i < soll.size(); ++i) {
        EXPECT_EQ(ist[i].art, soll[i].art) << "Design " << design << ", Form " << i;
        EXPECT_EQ(ist[i].punkte, soll[i].punkte) << "Design " << design << ", Form " << i;
    }
}

TEST(Kartendesign, TheThirteenFiguresWithTheirPoints) {
    AppState s = Einheitlich();
    const double W = 700, H = 400, A = 40;
    const Form r1{"Rectangle", {{0, 0}, {100, 400}}};
    const std::vector<std::vector<Form>> soll = {
        {r1},
        {r1, {"Rectangle", {{600, 0}, {700, 400}}}},
        {{"Rectangle", {{0, 0}, {700, 360}}}},
        {{"Rectangle", {{40, 40}, {660, 360}}}},
        {{"Polygon", {{0, 0}, {700, 0}, {700, 360}, {660, 400}, {0, 400}}}},
        {{"Polygon", {{0, 0}, {700, 0}, {700, 400}, {0, 400}, {40, 200}}}},
        {{"Rectangle", {{40, 0}, {660, 400}}}},
        {{"Ellipse", {{40, 40}, {660, 360}}}},
        {{"Polygon",
          {{40, 0},
           {700, 0},
           {700, 400},
           {40, 400},
           {80, 350},
           {40, 300},
           {80, 250},
           {40, 200},
           {80, 150},
           {40, 100},
           {80, 50}}}},
        {{"Rectangle", {{0, 0}, {660, 400}}}},
        {{"Polygon", {{40, 0}, {700, 0}, {660, 400}, {0, 400}}}},
        // W / 3 = 233.3 and 2W / 3 = 466.7 round to the nearest pixel.
        {{"Polygon", {{0, 39}, {233, 400}, {0, 400}}}, {"Polygon", {{467, 0}, {700, 0}, {700, 359}}}},
        // G = H / 6 = 66.7: W - G - A - 2 = 591.3, H - G - A - 2 = 291.3, W - G = 633.3, H - G = 333.3
        {{"Polygon", {{0, 0}, {591, 0}, {591, 291}, {0, 291}}},
         {"Polygon", {{633, 0}, {700, 0}, {700, 400}, {633, 400}}},
         {"Polygon", {{0, 333}, {700, 333}, {700, 400}, {0, 400}}},
         {"Rectangle", {{0, 0}, {700, 67}}},
         {"Rectangle", {{0, 0}, {67, 400}}}},
    };
    for (int d = 1; d <= 13; ++d)
        Erwarte(Zeichne(d, W, H, A, s), soll[static_cast<size_t>(d - 1)], d);
}

TEST(Kartendesign, NoFigureForZeroOrUnknownNumbers) {
    AppState s = Einheitlich();
    for (int d : {0, -1, 14, 99})
        EXPECT_TRUE(Zeichne(d, 700, 400, 40, s).empty()) << d;
}

TEST(Kartendesign, EdgeValuesOfTheWidthParameter) {
    AppState s = Einheitlich();
    // A of 0: a plain rectangle with a doubled point on the left edge.
    Erwarte(Zeichne(6, 700, 400, 0, s), {{"Polygon", {{0, 0}, {700, 0}, {700, 400}, {0, 400}, {0, 200}}}}, 6);
    // A of 1: the first wedge starts at the corner.
    const auto keile = Zeichne(12, 700, 400, 1, s);
    ASSERT_EQ(keile.size(), 2u);
    EXPECT_EQ(keile[0].punkte.front(), QPoint(0, 0));
}

TEST(Kartendesign, WidthAndHeightFollowTheZoomButTheBandWidthDoesNot) {
    AppState s;
    s.Geraetefaktor = 5.67;
    s.Zeichenfaktor = 1.5;
    s.TwipsProPixelX = 15;
    s.TwipsProPixelY = 15;
    // W = 700 * 5.67 * 1.5 = 5953.5 twips = 396.9 pixels; A = 80 twips = 5.3 pixels.
    auto f = Zeichne(4, 700, 400, 80, s);
    ASSERT_EQ(f.size(), 1u);
    EXPECT_EQ(f[0].punkte, (Punkte{{5, 5}, {392, 221}}));
    s.Zeichenfaktor = 3;
    f = Zeichne(4, 700, 400, 80, s);
    EXPECT_EQ(f[0].punkte, (Punkte{{5, 5}, {788, 448}}));
}

} // namespace
