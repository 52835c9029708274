// What the renderers leave on a real picture: colours at the places the geometry says.
#include "compose/canvas/ImageCanvas.h"
#include "core/state/AppState.h"
#include "render/ZeichneLinie.h"
#include "render/ZeichneSchrift.h"

#include <gtest/gtest.h>

using namespace zp;

namespace {
QRect Tinte(const QImage& bild) {
    QRect r;
    for (int y = 0; y < bild.height(); ++y)
        for (int x = 0; x < bild.width(); ++x)
            if (bild.pixel(x, y) != qRgb(255, 255, 255)) r |= QRect(x, y, 1, 1);
    return r;
}
} // namespace

TEST(Bildpruefung, GefuelltesRechteckUndSeineKante) {
    AppState s;
    s.Zeichenfaktor = 1;
    ClassLinie l;
    l.Form = 16;
    l.Füllung = -1;
    l.Color1 = 0xFF0000; // blue pen
    l.Color2 = 0x0000FF; // red fill
    ClassRahmen r;
    r.X = 100, r.Y = 100, r.Breite = 200, r.Höhe = 100; // 37.8..113.4 x 37.8..75.6 px
    ImageCanvas c(QSize(150, 100));
    ZeichneLinie(s, c, l, r);
    const QImage b = c.Bild();
    EXPECT_EQ(b.pixel(70, 55), qRgb(255, 0, 0));
    EXPECT_EQ(b.pixel(38, 55), qRgb(0, 0, 255));
    EXPECT_EQ(b.pixel(70, 38), qRgb(0, 0, 255));
    EXPECT_EQ(b.pixel(30, 55), qRgb(255, 255, 255));
}

TEST(Bildpruefung, FormverlaufHatSeineZweiEnden) {
    AppState s;
    s.Zeichenfaktor = 1;
    ClassLinie l;
    l.Form = 16;
    l.Füllung = -1;
    l.ColorCircle = 1;
    l.Color1 = 0x0000FF; // red
    l.Color2 = 0xFF0000; // blue
    ClassRahmen r;
    r.X = 100, r.Y = 100, r.Breite = 400, r.Höhe = 100; // x 37.8 .. 189
    ImageCanvas c(QSize(220, 100));
    ZeichneLinie(s, c, l, r);
    const QImage b = c.Bild();
    const QColor links = b.pixelColor(41, 55), rechts = b.pixelColor(186, 55), mitte = b.pixelColor(113, 55);
    EXPECT_GT(links.red(), 240);
    EXPECT_LT(links.blue(), 20);
    EXPECT_GT(rechts.blue(), 240);
    EXPECT_LT(rechts.red(), 20);
    EXPECT_NEAR(mitte.red(), 128, 12);
}

TEST(Bildpruefung, GedrehterTextLiegtWoDerAnkerIhnHinlegt) {
    AppState s;
    s.Zeichenfaktor = 1;
    ClassSchrift t;
    t.Textstring = QStringLiteral("HHHHHH");
    t.FontSize = 20;
    t.Angle = 90;
    ClassRahmen r;
    r.X = 200, r.Y = 100, r.Breite = 300, r.Höhe = 600; // 75.6..189 x 37.8..264.6 px
    ImageCanvas c(QSize(300, 300));
    ZeichneSchrift(s, c, t, r);
    const QRect ink = Tinte(c.Bild());
    ASSERT_FALSE(ink.isEmpty());
    // Turned upward: taller than wide, within the frame, starting a quarter height in from the left.
    EXPECT_GT(ink.height(), 2 * ink.width());
    EXPECT_GE(ink.left(), 76);
    EXPECT_LE(ink.right(), 189);
    EXPECT_GE(ink.top(), 37);
    EXPECT_LE(ink.bottom(), 265);
}

TEST(Bildpruefung, TextverlaufVonLinksNachRechts) {
    AppState s;
    s.Zeichenfaktor = 1;
    ClassSchrift t;
    t.Textstring = QStringLiteral("MMMMMMMM");
    t.FontSize = 40;
    t.Bold = -1;
    t.ColorCircle = 1;
    t.Color1 = 0x0000FF;
    t.Color2 = 0xFF0000;
    ClassRahmen r;
    r.X = 20, r.Y = 20, r.Breite = 1000, r.Höhe = 300;
    ImageCanvas c(QSize(500, 150));
    ZeichneSchrift(s, c, t, r);
    const QImage b = c.Bild();
    const QRect ink = Tinte(b);
    ASSERT_GT(ink.width(), 100);
    // The strongest colour in the first and last ink columns.
    auto spalte = [&](int x) {
        int rot = 0, blau = 0;
        for (int y = ink.top(); y <= ink.bottom(); ++y) {
            const QColor p = b.pixelColor(x, y);
            if (p.rgb() == qRgb(255, 255, 255)) continue;
            rot = std::max(rot, p.red() - p.blue());
            blau = std::max(blau, p.blue() - p.red());
        }
        return std::pair{rot, blau};
    };
    const auto [rotL, blauL] = spalte(ink.left() + 2);
    const auto [rotR, blauR] = spalte(ink.right() - 2);
    EXPECT_GT(rotL, 150);
    EXPECT_LT(blauL, 20);
    EXPECT_GT(blauR, 150);
    EXPECT_LT(rotR, 20);
}

TEST(Bildpruefung, GedrehterTextverlaufFolgtDerSchrift) {
    // Turned by 45 degrees with the gradient along the text: red at its start (lower left), blue
    // at its end (upper right). The bands come through a turned polygon clip.
    AppState s;
    s.Zeichenfaktor = 1;
    ClassSchrift t;
    t.Textstring = QStringLiteral("MMMMMMMM");
    t.FontSize = 30;
    t.Bold = -1;
    t.Angle = 45;
    t.ColorCircle = 1;
    t.Color1 = 0x0000FF;
    t.Color2 = 0xFF0000;
    ClassRahmen r;
    r.X = 100, r.Y = 800, r.Breite = 300, r.Höhe = 300;
    ImageCanvas c(QSize(450, 450));
    ZeichneSchrift(s, c, t, r);
    const QImage b = c.Bild();
    const QRect ink = Tinte(b);
    ASSERT_GT(ink.width(), 150);
    auto spalte = [&](int x) {
        int rot = 0, blau = 0;
        for (int y = ink.top(); y <= ink.bottom(); ++y) {
            const QColor p = b.pixelColor(x, y);
            rot = std::max(rot, p.red() - p.blue());
            blau = std::max(blau, p.blue() - p.red());
        }
        return std::pair{rot, blau};
    };
    const auto [rotAnfang, blauAnfang] = spalte(ink.left() + 3);
    const auto [rotEnde, blauEnde] = spalte(ink.right() - 3);
    EXPECT_GT(rotAnfang, 150);
    EXPECT_LT(blauAnfang, 20);
    EXPECT_GT(blauEnde, 150);
    EXPECT_LT(rotEnde, 20);
}
