// The shape renderer on the recording canvas: frame X 100, Y 200, B 300, H 100, line strength 2,
// zoom 150 unless said otherwise (S = 8.505 twips per tenth of a millimetre, 15 twips per pixel).
#include "render/ZeichneLinie.h"
#include "compose/canvas/RecordingCanvas.h"
#include "core/state/AppState.h"

#include <gtest/gtest.h>

using namespace zp;

namespace {
using V = std::vector<int>;

struct Form {
    AppState s;
    ClassLinie linie;
    ClassRahmen rahmen;
    explicit Form(int form, bool fuellung = true) {
        s.Zeichenfaktor = 1.5;
        linie.Form = static_cast<int16_t>(form);
        linie.Füllung = fuellung ? -1 : 0;
        linie.Stärke = 2;
        linie.Color1 = 0x0000FF;
        linie.Color2 = 0x00FF00;
        rahmen.X = 100, rahmen.Y = 200, rahmen.Breite = 300, rahmen.Höhe = 100;
    }
    void Zeichne(RecordingCanvas& c) { ZeichneLinie(s, c, linie, rahmen); }
};

std::vector<CanvasAufruf> Figuren(const RecordingCanvas& c) {
    std::vector<CanvasAufruf> r;
    for (const CanvasAufruf& a : c.Aufrufe)
        if (a.Name == "Polygon" || a.Name == "Polyline" || a.Name == "Rectangle" || a.Name == "Ellipse")
            r.push_back(a);
    return r;
}
} // namespace

TEST(ZeichneLinie, StiftUndPinselJeForm) {
    {
        Form f(16);
        f.linie.Stärke = 10; // pen 10 x 10 x 0.567 x 1.5 / 15 = 5.67 -> 5 px
        RecordingCanvas c;
        c.FillStyle = 0, c.DrawWidth = 7;
        f.Zeichne(c);
        const auto a = Figuren(c);
        ASSERT_EQ(a.size(), 1u);
        EXPECT_EQ(a[0].Name, "Polygon");
        EXPECT_EQ(a[0].ForeColor, 0x0000FF);
        EXPECT_EQ(a[0].FillStyle, 0);
        EXPECT_EQ(a[0].FillColor, 0x00FF00);
        EXPECT_EQ(a[0].DrawWidth, 5);
        // The canvas is left plain.
        EXPECT_EQ(c.FillStyle, 1);
        EXPECT_EQ(c.FillColor, 0);
        EXPECT_EQ(c.DrawWidth, 1);
    }
    {
        Form f(12, false); // an outline in the object colour, hollow
        RecordingCanvas c;
        f.Zeichne(c);
        const auto a = Figuren(c);
        ASSERT_EQ(a.size(), 1u);
        EXPECT_EQ(a[0].Name, "Polyline");
        EXPECT_EQ(a[0].FillStyle, 1);
        EXPECT_EQ(a[0].ForeColor, 0x0000FF);
    }
    {
        Form f(5); // bars: filled in the object colour, a one-pixel pen around them
        f.linie.Stärke = 10;
        RecordingCanvas c;
        f.Zeichne(c);
        const auto a = Figuren(c);
        ASSERT_EQ(a.size(), 2u);
        EXPECT_EQ(a[0].DrawWidth, 1);
        EXPECT_EQ(a[0].FillStyle, 0);
        EXPECT_EQ(a[0].FillColor, 0x0000FF);
        // On the printer the brush of a plain shape is hollow.
        f.s.DruckenAktiv = -1;
        RecordingCanvas d(CanvasArt::Drucker);
        f.Zeichne(d);
        EXPECT_EQ(Figuren(d)[0].FillStyle, 1);
    }
    {
        Form f(3); // a diagonal is a stroke, filled or not
        RecordingCanvas c;
        f.Zeichne(c);
        EXPECT_EQ(Figuren(c)[0].FillStyle, 1);
    }
}

TEST(ZeichneLinie, WeicherSchattenInTwipsUnabhaengigVomZoom) {
    for (double zoom : {150.0, 300.0}) {
        Form f(16);
        f.s.Zeichenfaktor = zoom / 100;
        f.linie.ShadowDeep = 10; // 100 twips, whatever the zoom
        f.linie.ShadowAngle = 0; // 90 + 0: to the right
        f.linie.ShadowColor1 = 0x3264C8;
        f.linie.ShadowColor2 = 0xFA0000;
        RecordingCanvas c;
        f.Zeichne(c);
        const auto a = Figuren(c);
        ASSERT_EQ(a.size(), 101u);
        const int links = a[100].Punkte[0].x();
        // Step 1 lies 99 twips = 6.6 px right of the shape, step 100 under it.
        EXPECT_NEAR(a[0].Punkte[0].x() - links, 6.6, 0.6);
        EXPECT_EQ(a[0].ForeColor, 0xF80102);
        EXPECT_EQ(a[0].FillColor, 0xF80102);
        EXPECT_EQ(a[99].Punkte, a[100].Punkte);
        EXPECT_EQ(a[99].ForeColor, 0x3264C8);
        EXPECT_EQ(a[100].FillColor, 0x00FF00);
    }
}

TEST(ZeichneLinie, VerlaufIn101BaendernMitClipJeTabelle) {
    Form f(16);
    f.linie.ColorCircle = 1;
    f.linie.Color1 = 0x0000FF;
    f.linie.Color2 = 0xFF0000;
    RecordingCanvas c;
    f.Zeichne(c);
    const auto regionen = c.Alle("CreateRectRgn");
    ASSERT_EQ(regionen.size(), 101u);
    // FW = 17.01 twips = 1.134 px: 56.7 - 1.134, 113.4 - 1.134, 226.8 + 1 + 1.134, 170.1 + 1 + 1.134.
    EXPECT_EQ(V(regionen[0].Werte.begin(), regionen[0].Werte.begin() + 4), (V{56, 112, 229, 172}));
    EXPECT_EQ(regionen[100].Werte[0], 226); // 56.7 + 170.1 - 1.134
    const auto a = Figuren(c);
    ASSERT_EQ(a.size(), 101u);
    EXPECT_EQ(a[0].FillColor, 0x0000FF); // the first pass is the bare start colour
    EXPECT_EQ(a[1].FillColor, 0x0300FC);
    EXPECT_EQ(a[100].FillColor, 0xFF0000);
    EXPECT_EQ(a[50].Clip->boundingRect().left(), 141); // 56.7 + 85.05 - 1.134 = 140.6
    EXPECT_EQ(c.Alle("SelectClipRgn").back().Werte[0], 0);
    EXPECT_EQ(c.OffeneObjekte(), 0u);

    // Form 1 across: the gradient runs over the thickness of the line.
    Form g(1);
    g.linie.ColorCircle = 2;
    RecordingCanvas d;
    g.Zeichne(d);
    const auto r = d.Alle("CreateRectRgn");
    // ((250 x 8.505) - 8.505) / 15 = 141.18; + 1.134 over the 100 bands.
    EXPECT_EQ(V(r[0].Werte.begin(), r[0].Werte.begin() + 4), (V{57, 141, 228, 143}));
    EXPECT_EQ(r[100].Werte[1], 142);
}

TEST(ZeichneLinie, DruckversatzVerschiebtDieBandclips) {
    Form f(16);
    f.linie.ColorCircle = 2;
    f.s.DruckversatzX = 10;
    f.s.DruckversatzY = -20;
    RecordingCanvas c;
    f.Zeichne(c);
    const auto v = c.Alle("OffsetClipRgn");
    ASSERT_EQ(v.size(), 101u);
    EXPECT_EQ(v[0].Werte, (V{4, -8})); // 3.78 and -7.56
}

TEST(ZeichneLinie, AndererVerlaufZeichntNurDenSchatten) {
    Form f(16);
    f.linie.ColorCircle = 3;
    RecordingCanvas c;
    f.Zeichne(c);
    EXPECT_TRUE(Figuren(c).empty());
    f.linie.ShadowDeep = 5;
    f.linie.ShadowType = 1;
    RecordingCanvas d;
    f.Zeichne(d);
    EXPECT_EQ(Figuren(d).size(), 1u);
}

TEST(ZeichneLinie, FarbvorgabeFuelltFuerEinenAufruf) {
    Form f(16, false);
    f.s.Farbvorgabe = 0x00AAFF;
    RecordingCanvas c;
    f.Zeichne(c);
    const auto a = Figuren(c);
    ASSERT_EQ(a.size(), 1u);
    EXPECT_EQ(a[0].Name, "Polygon");
    EXPECT_EQ(a[0].FillColor, 0x00AAFF);
    EXPECT_EQ(f.linie.Füllung, 0);
    EXPECT_EQ(f.linie.Color2, 0x00FF00);
    EXPECT_EQ(f.s.Farbvorgabe, 0x00AAFF);
}

TEST(ZeichneLinie, VorschauInWahrerGroesse) {
    Form f(18);
    f.s.Vorschaumodus = -1;
    RecordingCanvas c(CanvasArt::Vorschau);
    f.Zeichne(c);
    EXPECT_EQ(c.Aufrufe.front().Name, "Cls");
    // S = 5.67 whatever the zoom: 37.8, 75.6, 151.2, 113.4.
    EXPECT_EQ(Figuren(c)[0].Werte, (V{38, 76, 151, 113}));
}

TEST(ZeichneLinieVorschau, StricheAufDemRaster) {
    RecordingCanvas c(CanvasArt::Vorschau, 1, 1);
    ZeichneLinieVorschau(c, 12);
    const auto l = c.Alle("Line");
    ASSERT_EQ(l.size(), 3u);
    EXPECT_EQ(l[0].Werte, (V{40, 280, 280, 280}));
    EXPECT_EQ(l[1].Werte, (V{40, 280, 170, 40}));
    EXPECT_EQ(l[2].Werte, (V{280, 280, 170, 40}));
    RecordingCanvas k(CanvasArt::Vorschau, 1, 1);
    ZeichneLinieVorschau(k, 16);
    ASSERT_EQ(k.Alle("Line").size(), 1u);
    EXPECT_EQ(k.Alle("Line")[0].Form, Canvas::LineForm::Kasten);
    RecordingCanvas e(CanvasArt::Vorschau, 1, 1);
    ZeichneLinieVorschau(e, 18);
    EXPECT_EQ(e.Alle("Circle")[0].Werte, (V{170, 170, 130}));
    for (int i = 1; i <= 18; ++i) {
        RecordingCanvas b(CanvasArt::Vorschau, 1, 1);
        ZeichneLinieVorschau(b, i);
        EXPECT_GT(b.Aufrufe.size(), 1u) << "Form " << i;
    }
}
