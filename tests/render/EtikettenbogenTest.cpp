#include "render/Etikettenbogen.h"
#include "compose/canvas/RecordingCanvas.h"
#include "model/SeiteEtikett.h"

#include <gtest/gtest.h>

using namespace zp;

namespace {
ClassSeite A4(int links, int oben) {
    ClassSeite s;
    s.Breite = 2100;
    s.Höhe = 2970;
    s.Randlinks = links;
    s.Randoben = oben;
    return s;
}
} // namespace

TEST(Etikettenbogen, RectangularLabelsFilledAndOutlinedAtTheirSlots) {
    ClassEtikett e;
    e.Breite = 991;
    e.Höhe = 381;
    e.Anzahl_x = 2;
    e.Anzahl_y = 7;
    e.Abstand_x = 25;
    RecordingCanvas box(CanvasArt::Vorschau, 1, 1, QSize(2100, 2970)); // one pixel a tenth of a mm
    ZeichneEtikettenbogen(box, A4(46, 151), e);
    const auto kaesten = box.Alle("Line");
    ASSERT_EQ(kaesten.size(), 1u + 2 * 14); // paper edge, then fill and outline per label
    // The last label: column 2, row 7.
    const CanvasAufruf& letzte = kaesten.back();
    EXPECT_EQ(letzte.Werte[0], 46 + 991 + 25);
    EXPECT_EQ(letzte.Werte[1], 151 + 6 * 381);
    EXPECT_EQ(kaesten[1].Form, Canvas::LineForm::KastenGefuellt);
    EXPECT_EQ(kaesten[2].Form, Canvas::LineForm::Kasten);
    EXPECT_TRUE(box.Alle("Circle").empty());
}

TEST(Etikettenbogen, RoundLabelsAreCirclesOfHalfTheWidthAndNoCountDrawsNothing) {
    ClassEtikett e;
    e.Form = 1;
    e.Breite = 1170;
    e.Höhe = 600; // the height plays no part in the radius
    e.Anzahl_x = 1;
    e.Anzahl_y = 2;
    e.Abstand_y = 300;
    RecordingCanvas box(CanvasArt::Vorschau, 1, 1, QSize(2100, 2970));
    ZeichneEtikettenbogen(box, A4(465, 150), e);
    const auto kreise = box.Alle("Circle");
    ASSERT_EQ(kreise.size(), 2u);
    EXPECT_EQ(kreise[1].Werte, (std::vector<int>{465 + 585, 150 + 600 + 300 + 300, 585}));
    EXPECT_EQ(kreise[0].FillStyle, 0);

    e.Anzahl_x = 0;
    RecordingCanvas leer(CanvasArt::Vorschau, 1, 1, QSize(2100, 2970));
    ZeichneEtikettenbogen(leer, A4(0, 0), e);
    EXPECT_TRUE(leer.Alle("Circle").empty());

    // Absurd counts stop at the box's edge instead of drawing millions of labels.
    e.Form = 0;
    e.Anzahl_x = 2'000'000'000;
    e.Anzahl_y = 2'000'000'000;
    e.Breite = 100;
    e.Höhe = 100;
    RecordingCanvas viele(CanvasArt::Vorschau, 1, 1, QSize(2100, 2970));
    ZeichneEtikettenbogen(viele, A4(0, 0), e);
    EXPECT_LT(viele.Alle("Line").size(), 2u * 22 * 31 + 2);
}
