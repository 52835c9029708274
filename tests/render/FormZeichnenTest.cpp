// Device coordinates of the 18 shapes for the frame X 100, Y 200, B 300, H 100 with a line
// strength of 2. At zoom 150: S = 8.505, x(100) = 56.7, x(400) = 226.8, x(250) = 141.75,
// y(200) = 113.4, y(300) = 170.1, y(250) = 141.75; half thickness 0.567 px. At zoom 100:
// x(250) = y(250) = 94.5, which rounds half to even to 94.
#include "render/FormZeichnen.h"
#include "compose/canvas/RecordingCanvas.h"
#include "model/Klassen.h"

#include <gtest/gtest.h>

using namespace zp;

namespace {
using V = std::vector<int>;
using P = std::vector<QPoint>;

struct Fall {
    int form;
    bool fuellung;
    std::vector<std::string> namen;
    std::vector<V> rechtecke; // Rectangle arguments in order
    P punkte;                 // points of the one Polygon/Polyline
};

std::vector<CanvasAufruf> Zeichne(int form, bool fuellung, double zoom, int staerke = 2, double dx = 0,
                                  double dy = 0) {
    RecordingCanvas c;
    ClassLinie l;
    l.Form = static_cast<int16_t>(form);
    l.Füllung = fuellung ? -1 : 0;
    l.Stärke = static_cast<int16_t>(staerke);
    ClassRahmen r;
    r.X = 100, r.Y = 200, r.Breite = 300, r.Höhe = 100;
    Formlage g;
    g.Zeichenfaktor = zoom / 100;
    g.S = g.Zeichenfaktor * 5.67;
    g.DX = dx, g.DY = dy;
    FormZeichnen(c, l, r, g);
    return c.Aufrufe;
}
} // namespace

TEST(FormZeichnen, AlleFormenBeiZoom150) {
    const V oben{57, 113, 227, 115}, unten{57, 170, 227, 169}, links{57, 113, 58, 170},
        rechts{227, 113, 226, 170};
    const V mitteW{57, 141, 227, 142}, mitteS{141, 113, 142, 170};
    const std::vector<Fall> faelle{
        {1, false, {"Rectangle"}, {mitteW}, {}},
        {2, false, {"Rectangle"}, {mitteS}, {}},
        {3, false, {"Polygon"}, {}, {{57, 113}, {227, 170}}},
        {4, true, {"Polygon"}, {}, {{57, 170}, {227, 113}}},
        {5, false, {"Rectangle", "Rectangle"}, {oben, links}, {}},
        {6, false, {"Rectangle", "Rectangle"}, {unten, links}, {}},
        {7, false, {"Rectangle", "Rectangle"}, {unten, rechts}, {}},
        {8, false, {"Rectangle", "Rectangle"}, {oben, rechts}, {}},
        {9, false, {"Rectangle", "Rectangle"}, {oben, unten}, {}},
        {10, false, {"Rectangle", "Rectangle"}, {rechts, links}, {}},
        {11, false, {"Rectangle", "Rectangle"}, {mitteW, mitteS}, {}},
        {12, true, {"Polygon"}, {}, {{57, 170}, {227, 170}, {142, 113}}},
        {13, true, {"Polygon"}, {}, {{57, 113}, {227, 142}, {57, 170}}},
        {14, true, {"Polygon"}, {}, {{57, 113}, {227, 113}, {142, 170}}},
        {15, true, {"Polygon"}, {}, {{227, 113}, {227, 170}, {57, 142}}},
        {16, true, {"Polygon"}, {}, {{57, 113}, {227, 113}, {227, 170}, {57, 170}}},
        {17, true, {"Polygon"}, {}, {{142, 113}, {227, 142}, {142, 170}, {57, 142}}},
        // Outlines repeat the first corner: 4 and 5 points.
        {12, false, {"Polyline"}, {}, {{57, 170}, {227, 170}, {142, 113}, {57, 170}}},
        {16, false, {"Polyline"}, {}, {{57, 113}, {227, 113}, {227, 170}, {57, 170}, {57, 113}}},
        {17, false, {"Polyline"}, {}, {{142, 113}, {227, 142}, {142, 170}, {57, 142}, {142, 113}}},
    };
    for (const Fall& f : faelle) {
        SCOPED_TRACE("Form " + std::to_string(f.form) + (f.fuellung ? " gefüllt" : ""));
        const auto a = Zeichne(f.form, f.fuellung, 150);
        ASSERT_EQ(a.size(), f.namen.size());
        size_t rechteck = 0;
        for (size_t i = 0; i < a.size(); ++i) {
            EXPECT_EQ(a[i].Name, f.namen[i]);
            if (a[i].Name == "Rectangle")
                EXPECT_EQ(a[i].Werte, f.rechtecke.at(rechteck++));
            else
                EXPECT_EQ(a[i].Punkte, f.punkte);
        }
    }
    const auto ellipse = Zeichne(18, false, 150);
    ASSERT_EQ(ellipse.size(), 1u);
    EXPECT_EQ(ellipse[0].Name, "Ellipse");
    EXPECT_EQ(ellipse[0].Werte, (V{57, 113, 227, 170}));
}

TEST(FormZeichnen, BalkenBeiZoom100RundenHalbAufGerade) {
    // Half thickness 0.378: y(250) = 94.5 -> 94.122 and 94.878.
    EXPECT_EQ(Zeichne(1, false, 100)[0].Werte, (V{38, 94, 151, 95}));
    EXPECT_EQ(Zeichne(2, false, 100)[0].Werte, (V{94, 76, 95, 113}));
    // Top bar: y(200) = 75.6, plus 0.756 = 76.356: both edges on row 76.
    const auto ecke = Zeichne(5, false, 100);
    EXPECT_EQ(ecke[0].Werte, (V{38, 76, 151, 76}));
    EXPECT_EQ(ecke[1].Werte, (V{38, 76, 39, 113}));
    EXPECT_EQ(Zeichne(17, true, 100)[0].Punkte, (P{{94, 76}, {151, 94}, {94, 113}, {38, 94}}));
}

TEST(FormZeichnen, StaerkeNullGibtEinenHalbenPixel) {
    // y(250) = 94.5 -> 94.0 and 95.0: still a one-pixel bar.
    EXPECT_EQ(Zeichne(1, false, 100, 0)[0].Werte, (V{38, 94, 151, 95}));
    EXPECT_EQ(Zeichne(2, false, 100, 0)[0].Werte, (V{94, 76, 95, 113}));
}

TEST(FormZeichnen, SchattenlaufVerschiebtNurUmDxDy) {
    // 150 twips are 10 pixels.
    const auto a = Zeichne(3, false, 150, 2, 150, -150);
    EXPECT_EQ(a[0].Punkte, (P{{67, 103}, {237, 160}}));
}

TEST(FormZeichnen, UnbekannteFormZeichnetNichts) {
    EXPECT_TRUE(Zeichne(0, true, 100).empty());
    EXPECT_TRUE(Zeichne(19, true, 100).empty());
    EXPECT_TRUE(Zeichne(-3, true, 100).empty());
}
