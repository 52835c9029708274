// The canvases keep the device meanings that the renderers rely on: boxes cover their pixels up
// to, not including, the right and bottom edge; regions stay in device pixels; text cells hang
// from their top-left point and turn counter-clockwise about it.
#include "compose/canvas/ImageCanvas.h"
#include "compose/canvas/RecordingCanvas.h"

#include <QFontMetrics>
#include <gtest/gtest.h>

using namespace zp;

namespace {
constexpr CanvasFarbe Rot = 0x0000FF;
constexpr CanvasFarbe Blau = 0xFF0000;

bool IstFarbe(const QImage& bild, int x, int y, QColor c) {
    return bild.pixelColor(x, y).rgb() == c.rgb();
}

// Bounding box of all pixels that aren't white.
QRect Tinte(const QImage& bild) {
    QRect r;
    for (int y = 0; y < bild.height(); ++y)
        for (int x = 0; x < bild.width(); ++x)
            if (bild.pixel(x, y) != qRgb(255, 255, 255)) r |= QRect(x, y, 1, 1);
    return r;
}
} // namespace

TEST(ImageCanvas, RechteckDecktBisVorDieRechteUntereKante) {
    ImageCanvas c(QSize(40, 40));
    c.ForeColor = Blau;
    c.FillColor = Rot;
    c.FillStyle = 0;
    c.Rectangle(10, 10, 20, 15);
    const QImage b = c.Bild();
    EXPECT_TRUE(IstFarbe(b, 10, 10, Qt::blue)); // the pen runs around the box
    EXPECT_TRUE(IstFarbe(b, 19, 14, Qt::blue));
    EXPECT_TRUE(IstFarbe(b, 15, 12, Qt::red)); // brush inside
    EXPECT_TRUE(IstFarbe(b, 20, 12, Qt::white));
    EXPECT_TRUE(IstFarbe(b, 15, 15, Qt::white));
    EXPECT_EQ(Tinte(b), QRect(10, 10, 10, 5));
}

// The device orders a box's corners itself: given right to left or bottom to top it is the same
// box, down to a bar one pixel across, as the shape renderer's bottom and right rules give them.
TEST(ImageCanvas, VertauschteEckenGebenDenselbenKasten) {
    for (const QRect k : {QRect(QPoint(10, 10), QPoint(20, 15)), QRect(QPoint(10, 10), QPoint(30, 11)),
                          QRect(QPoint(10, 10), QPoint(11, 30))}) {
        ImageCanvas richtig(QSize(40, 40)), verkehrt(QSize(40, 40));
        for (ImageCanvas* c : {&richtig, &verkehrt}) {
            c->ForeColor = Blau;
            c->FillColor = Rot;
            c->FillStyle = 0;
        }
        richtig.Rectangle(k.left(), k.top(), k.right(), k.bottom());
        verkehrt.Rectangle(k.right(), k.bottom(), k.left(), k.top());
        EXPECT_FALSE(Tinte(richtig.Bild()).isEmpty()) << k.width() << "x" << k.height();
        EXPECT_EQ(verkehrt.Bild(), richtig.Bild()) << k.width() << "x" << k.height();
        richtig.Ellipse(k.left(), k.top(), k.right(), k.bottom());
        verkehrt.Ellipse(k.right(), k.top(), k.left(), k.bottom());
        EXPECT_EQ(verkehrt.Bild(), richtig.Bild()) << "Ellipse " << k.width() << "x" << k.height();
    }
}

TEST(ImageCanvas, HohlerPinselUndGefuellteKastenlinie) {
    ImageCanvas c(QSize(40, 40));
    c.ForeColor = Blau;
    c.FillStyle = 1;
    c.Rectangle(0, 0, 10, 10);
    EXPECT_TRUE(IstFarbe(c.Bild(), 5, 5, Qt::white));
    // Line with the filled-box form and a colour: the given colour, ForeColor untouched.
    c.Line(300, 300, 450, 450, Rot, Canvas::LineForm::KastenGefuellt);
    EXPECT_TRUE(IstFarbe(c.Bild(), 25, 25, Qt::red));
    EXPECT_EQ(c.ForeColor, Blau);
}

TEST(ImageCanvas, FensterursprungVerschiebtZeichnungNichtAberRegion) {
    ImageCanvas c(QSize(60, 60));
    c.FillColor = Rot;
    c.ForeColor = Rot;
    c.FillStyle = 0;
    c.SetWindowOrgEx(10, 10); // logical (10,10) is device (0,0)
    c.Rectangle(10, 10, 20, 20);
    EXPECT_TRUE(IstFarbe(c.Bild(), 0, 0, Qt::red));
    EXPECT_TRUE(IstFarbe(c.Bild(), 10, 10, Qt::white));

    // The clip region stays where the device put it, whatever the origin.
    GdiHandle r = c.CreateRectRgn(30, 30, 40, 40);
    c.SelectClipRgn(r);
    c.DeleteObject(r); // the device keeps its own copy
    c.ForeColor = c.FillColor = Blau;
    c.Rectangle(0, 0, 100, 100); // device 0..89: only the region's pixels change
    const QImage b = c.Bild();
    EXPECT_TRUE(IstFarbe(b, 30, 30, Qt::blue));
    EXPECT_TRUE(IstFarbe(b, 39, 39, Qt::blue));
    EXPECT_TRUE(IstFarbe(b, 40, 40, Qt::white));
    EXPECT_TRUE(IstFarbe(b, 29, 35, Qt::white));
    c.OffsetClipRgn(-30, -30);
    c.Rectangle(0, 0, 100, 100);
    EXPECT_TRUE(IstFarbe(c.Bild(), 5, 5, Qt::blue));
    c.SelectClipRgn(0);
    c.Rectangle(0, 0, 100, 100);
    EXPECT_TRUE(IstFarbe(c.Bild(), 50, 50, Qt::blue));
}

TEST(ImageCanvas, LeereRegionLaesstNichtsDurch) {
    ImageCanvas c(QSize(20, 20));
    c.ForeColor = c.FillColor = Rot;
    c.FillStyle = 0;
    GdiHandle r = c.CreateRectRgn(5, 5, 5, 9);
    c.SelectClipRgn(r);
    c.Rectangle(0, 0, 20, 20);
    EXPECT_TRUE(Tinte(c.Bild()).isEmpty());
}

// A region selected again after the clip was taken off clips as it did the first time: a round
// label's circle is selected again after a gradient has switched its own clip off.
TEST(ImageCanvas, DieselbeRegionNachAbgeschaltetemClipSchneidetWieder) {
    ImageCanvas c(QSize(100, 100));
    const GdiHandle dreieck = c.CreatePolygonRgn({{0, 100}, {100, 0}, {100, 100}}, PolyFillMode::Alternate);
    c.SelectClipRgn(dreieck);
    c.SelectClipRgn(0);
    c.SelectClipRgn(dreieck);
    c.FillStyle = 0;
    c.FillColor = c.ForeColor = 0xFF0000;
    c.Rectangle(0, 0, 100, 100);
    EXPECT_EQ(c.Bild().pixel(5, 5), qRgb(255, 255, 255)); // outside the triangle
    EXPECT_EQ(c.Bild().pixel(95, 95), qRgb(0, 0, 255));
}

TEST(ImageCanvas, TextzelleHaengtAmPunktUndDrehtGegenDenUhrzeigersinn) {
    ImageCanvas c(QSize(300, 300));
    LogFont lf;
    lf.lfHeight = -40;
    lf.lfFaceName = QStringLiteral("Arial");
    c.SelectObject(c.CreateFontIndirectA(lf));
    c.ForeColor = 0;
    c.TextOutA(150, 150, QStringLiteral("HHHH"));
    QRect ink = Tinte(c.Bild());
    ASSERT_FALSE(ink.isEmpty());
    // Unturned: the ink lies right of and below the point, within one cell.
    EXPECT_GE(ink.left(), 150);
    EXPECT_GE(ink.top(), 150);
    EXPECT_LT(ink.bottom(), 150 + 50);
    const QSize ext = c.GetTextExtentPoint32A(QStringLiteral("HHHH"));
    EXPECT_NEAR(ink.right(), 150 + ext.width(), 8);

    // Turned by 90 degrees: the text runs upward from the point, its cell lies to the right.
    ImageCanvas d(QSize(300, 300));
    lf.lfEscapement = 900;
    d.SelectObject(d.CreateFontIndirectA(lf));
    d.TextOutA(150, 150, QStringLiteral("HHHH"));
    ink = Tinte(d.Bild());
    ASSERT_FALSE(ink.isEmpty());
    EXPECT_LE(ink.bottom(), 150);
    EXPECT_GE(ink.left(), 150);
    EXPECT_NEAR(ink.top(), 150 - ext.width(), 8);
}

TEST(ImageCanvas, ZeichenabstandZaehltImMassJedesZeichens) {
    ImageCanvas c(QSize(50, 50));
    LogFont lf;
    lf.lfHeight = -20;
    c.SelectObject(c.CreateFontIndirectA(lf));
    const int ohne = c.GetTextExtentPoint32A(QStringLiteral("abcd")).width();
    EXPECT_EQ(c.SetTextCharacterExtra(3), 0);
    EXPECT_EQ(c.GetTextExtentPoint32A(QStringLiteral("abcd")).width(), ohne + 12);
    EXPECT_EQ(c.SetTextCharacterExtra(0), 3);
    EXPECT_EQ(c.GetDeviceCaps(LOGPIXELSY), 96);
}

TEST(ImageCanvas, BildschirmkoordinatenRundenHalbAufGerade) {
    ImageCanvas c(QSize(40, 10));
    // 37.5 twips = 2.5 px -> 2; 52.5 twips = 3.5 px -> 4.
    c.Line(37.5, 0, 37.5, 150, 0x000000, Canvas::LineForm::KastenGefuellt);
    c.Line(52.5 + 150, 0, 52.5 + 150, 150, 0x000000, Canvas::LineForm::KastenGefuellt);
    const QImage b = c.Bild();
    EXPECT_TRUE(IstFarbe(b, 2, 0, Qt::black));
    EXPECT_TRUE(IstFarbe(b, 3, 0, Qt::white));
    EXPECT_TRUE(IstFarbe(b, 14, 0, Qt::black));
    EXPECT_TRUE(IstFarbe(b, 13, 0, Qt::white));
}

TEST(ImageCanvas, ExportbildFolgtNeuerGroesse) {
    ImageCanvas seite(QSize(10, 10));
    seite.SetzeGroesse(1500, 1500);
    EXPECT_EQ(seite.Bild().size(), QSize(10, 10)); // the page picture keeps its size
    ImageCanvas lead(QSize(10, 10), CanvasArt::Export, 5, 5);
    lead.SetzeGroesse(1500, 750);
    EXPECT_EQ(lead.Bild().size(), QSize(300, 150));
    EXPECT_DOUBLE_EQ(lead.Width(), 1500);
    lead.FillStyle = 0;
    lead.FillColor = lead.ForeColor = Rot;
    lead.Rectangle(0, 0, 300, 150);
    EXPECT_TRUE(IstFarbe(lead.Bild(), 299, 149, Qt::red));
}

TEST(RecordingCanvas, ProtokolliertGeraetekoordinatenUndZustand) {
    RecordingCanvas c(CanvasArt::Bildschirm, 15, 15);
    c.ForeColor = Rot;
    c.Line(150, 300, 1500, 3000, -1, Canvas::LineForm::Kasten);
    GdiHandle r = c.CreateRectRgn(1, 2, 3, 4);
    c.SelectClipRgn(r);
    c.FillStyle = 0;
    c.Rectangle(5, 6, 7, 8);
    ASSERT_EQ(c.Namen(), (std::vector<std::string>{"Line", "CreateRectRgn", "SelectClipRgn", "Rectangle"}));
    EXPECT_EQ(c.Aufrufe[0].Werte, (std::vector<int>{10, 20, 100, 200}));
    EXPECT_EQ(c.Aufrufe[0].Form, Canvas::LineForm::Kasten);
    EXPECT_EQ(c.Aufrufe[3].FillStyle, 0);
    ASSERT_TRUE(c.Aufrufe[3].Clip.has_value());
    EXPECT_EQ(c.Aufrufe[3].Clip->boundingRect(), QRect(1, 2, 2, 2));
    c.SelectClipRgn(0);
    c.DeleteObject(r);
    EXPECT_EQ(c.OffeneObjekte(), 0u);
}

// Boxes with a plain one-pixel pen are filled, not stroked: they must set the pixels the
// painter's own outline sets, whatever the size and brush.
TEST(ImageCanvas, KastenMitEinemPixelStiftGleichtDemUmrissDesMalers) {
    for (int breite = 2; breite <= 7; ++breite)
        for (int hoehe : {2, 3, 5, 9})
            for (int fuellung : {0, 1, 4}) {
                ImageCanvas c(QSize(20, 20));
                c.ForeColor = Blau;
                c.FillColor = Rot;
                c.FillStyle = fuellung;
                c.Rectangle(3, 4, 3 + breite, 4 + hoehe);

                QImage erwartet(20, 20, QImage::Format_RGB32);
                erwartet.fill(Qt::white);
                QPainter p(&erwartet);
                QPen stift(Qt::blue);
                stift.setCapStyle(Qt::FlatCap);
                stift.setJoinStyle(Qt::MiterJoin);
                p.setPen(stift);
                p.setBrush(fuellung == 1
                               ? QBrush(Qt::NoBrush)
                               : QBrush(Qt::red, fuellung == 0 ? Qt::SolidPattern : Qt::BDiagPattern));
                p.drawRect(QRect(QPoint(3, 4), QPoint(3 + breite, 4 + hoehe)).adjusted(0, 0, -2, -2));
                p.end();
                EXPECT_EQ(c.Bild(), erwartet) << breite << "x" << hoehe << " Füllung " << fuellung;
            }
}

// Wide outlines of level and upright lines are filled, not stroked: closed boxes and open
// staircases must set the pixels the painter's own round-joined stroke sets, for odd and even pens.
TEST(ImageCanvas, BreiterRechtwinkligerLinienzugGleichtDemStrichDesMalers) {
    const std::vector<std::vector<QPoint>> zuege = {
        {{10, 10}, {40, 10}, {40, 35}, {10, 35}, {10, 10}},          // a box, clockwise and closed
        {{12, 40}, {12, 12}, {45, 12}, {45, 40}, {12, 40}},          // the other way round
        {{8, 50}, {20, 50}, {20, 30}, {35, 30}, {35, 45}, {50, 45}}, // open, both turns
    };
    for (const auto& zug : zuege)
        for (int staerke = 2; staerke <= 7; ++staerke) {
            ImageCanvas c(QSize(60, 60));
            c.ForeColor = Blau;
            c.DrawWidth = staerke;
            c.Polyline(zug);

            QImage erwartet(60, 60, QImage::Format_RGB32);
            erwartet.fill(Qt::white);
            QPainter p(&erwartet);
            QPen stift(Qt::blue);
            stift.setWidth(staerke);
            stift.setCapStyle(Qt::RoundCap);
            stift.setJoinStyle(Qt::RoundJoin);
            p.setPen(stift);
            QPolygon punkte;
            for (const QPoint& q : zug)
                punkte << q;
            p.drawPolyline(punkte);
            p.end();
            EXPECT_EQ(c.Bild(), erwartet) << "Stärke " << staerke << ", Zug ab " << zug.front().x();
        }
}

// A wide pen ends and joins round, as the device's wide pens do: a diagonal reaches half the pen
// beyond its end points, not the length of a mitre, and a sharp corner is rounded off.
TEST(ImageCanvas, BreiterStiftEndetUndVerbindetRund) {
    ImageCanvas c(QSize(100, 100));
    c.ForeColor = Blau;
    c.DrawWidth = 7;
    c.Polygon({{30, 30}, {70, 70}}); // a diagonal of two points, as shapes 3 and 4 draw it
    const QImage bild = c.Bild();
    auto gemalt = [&](int x, int y) { return bild.pixel(x, y) != QColor(Qt::white).rgb(); };
    EXPECT_TRUE(gemalt(28, 28));  // the round end, 2.8 pixels out
    EXPECT_FALSE(gemalt(26, 26)); // a mitre of the turn back would reach far beyond
    EXPECT_FALSE(gemalt(74, 74));
    for (int i = 0; i < 100; ++i) {
        EXPECT_FALSE(gemalt(i, 25)) << i;
        EXPECT_FALSE(gemalt(25, i)) << i;
    }

    ImageCanvas d(QSize(100, 100));
    d.ForeColor = Blau;
    d.DrawWidth = 9;
    d.Polyline({{20, 80}, {80, 80}, {50, 20}, {20, 80}}); // a triangle's outline with its tip at (50, 20)
    const QImage dreieck = d.Bild();
    for (int y = 0; y < 15; ++y)
        for (int x = 0; x < 100; ++x)
            EXPECT_EQ(dreieck.pixel(x, y), QColor(Qt::white).rgb()) << x << "," << y;
    EXPECT_NE(dreieck.pixel(50, 17), QColor(Qt::white).rgb());
}
