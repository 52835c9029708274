// The design dialog's previews of the template texts: each drawn as the page draws it, turned as
// the page turns it, over the shapes the page draws there, whole inside its box.
#include "compose/Vorschaubild.h"
#include "calendar/data/Standarddesign.h"
#include "core/state/AppState.h"

#include <gtest/gtest.h>

using namespace zp;

namespace {

constexpr QSize kBox(260, 72);

// The pixels within `feld` near `farbe` (0x00BBGGRR), or off it with `abseits`: how many, and
// the box around them.
struct Treffer {
    QRect box;
    int anzahl = 0;
};
Treffer InFarbe(const QImage& bild, Farbe farbe, QRect feld = QRect(QPoint(), kBox), bool abseits = false,
                int toleranz = 40) {
    const QColor soll(farbe & 0xFF, (farbe >> 8) & 0xFF, (farbe >> 16) & 0xFF);
    Treffer t;
    for (int y = feld.top(); y <= feld.bottom(); ++y)
        for (int x = feld.left(); x <= feld.right(); ++x) {
            const QColor c = bild.pixelColor(x, y);
            const bool nah = std::abs(c.red() - soll.red()) + std::abs(c.green() - soll.green()) +
                                 std::abs(c.blue() - soll.blue()) <
                             toleranz;
            if (nah == abseits) continue;
            t.box |= QRect(x, y, 1, 1);
            ++t.anzahl;
        }
    return t;
}

AppState Design(int typ) {
    AppState s;
    s.IstKalender = -1;
    s.Kalenderjahr = 2027;
    s.Zoomfaktor = 37; // the page's zoom must not shrink the preview
    s.Zeichenfaktor = 0.37;
    BaueStandarddesign(s, typ, 1);
    return s;
}

QRectF Rechteck(const AppState& s, int rahmen) {
    const ClassRahmen& r = s.Rahmenliste(rahmen);
    return {r.X, r.Y, r.Breite, r.Höhe};
}

// The month name over the calendar's background and the month frame, as the design dialog asks.
QImage Monatsname(AppState& s, const QString& text) {
    ClassSchrift monat = s.Schriftliste(2);
    monat.Textstring = text;
    const std::vector<Grundform> grund = {{s.Linienliste(1), Rechteck(s, 32)},
                                          {s.Linienliste(3), Rechteck(s, 34)}};
    return SchriftAufGrund(s, monat, Rechteck(s, 2), grund, kBox);
}

} // namespace

TEST(SchriftAufGrund, TurnedWhiteMonthNameStandsWholeAndReadableOnItsColouredFrame) {
    AppState s = Design(1); // Halbjahr: white month names turned by 90 degrees on a coloured frame
    ASSERT_EQ(s.Schriftliste(2).Angle, 90);
    ASSERT_EQ(s.Schriftliste(2).Color1, 0xFFFFFF);
    const QImage bild = Monatsname(s, QStringLiteral("September"));
    ASSERT_EQ(bild.size(), kBox);
    // The month frame's column, and white letters on it: the word runs upwards, whole.
    const Treffer rahmen = InFarbe(bild, s.Linienliste(3).Color2);
    ASSERT_GT(rahmen.anzahl, 500);
    EXPECT_GT(rahmen.box.height(), rahmen.box.width());
    const Treffer weiss = InFarbe(bild, 0xFFFFFF, rahmen.box.adjusted(2, 2, -2, -2), false, 200);
    ASSERT_GT(weiss.anzahl, 60);
    EXPECT_GT(weiss.box.height(), 2 * weiss.box.width());
    EXPECT_TRUE(QRect(QPoint(2, 2), kBox - QSize(4, 4)).contains(weiss.box)) << "cut at the box's edge";

    // Emptied, the name draws nothing: the frame's colour without letters.
    const QImage leer = Monatsname(s, QString());
    const Treffer leererRahmen = InFarbe(leer, s.Linienliste(3).Color2);
    ASSERT_GT(leererRahmen.anzahl, 500);
    EXPECT_EQ(InFarbe(leer, 0xFFFFFF, leererRahmen.box.adjusted(2, 2, -2, -2), false, 200).anzahl, 0);
}

TEST(SchriftAufGrund, UprightMonthNameStaysOnThePaperBesideItsFrame) {
    AppState s = Design(4); // Monat 1: the month name stands upright above the weekday bar
    const Farbe farbe = s.Schriftliste(2).Color1;
    const QImage bild = Monatsname(s, QStringLiteral("Januar"));
    const Treffer buchstaben = InFarbe(bild, farbe);
    ASSERT_GT(buchstaben.anzahl, 100);
    EXPECT_GT(buchstaben.box.width(), buchstaben.box.height()); // upright
    // The letters at their true size (30 points bold) and not drowned in the bar's colour: most
    // of the box is the page's paper.
    EXPECT_GT(buchstaben.box.height(), 20);
    EXPECT_GT(InFarbe(bild, 0xFFFFFF).anzahl, kBox.width() * kBox.height() / 2);
}

TEST(SchriftAufGrund, ALongTitleIsShrunkWholeAndThePreviewLeavesNoTraceInTheState) {
    AppState s = Design(1);
    ClassSchrift titel = s.Schriftliste(1);
    titel.Textstring = QStringLiteral("Familienkalender der Berge 2027");
    // Shrunk, the letters are softened: every pixel off the white paper counts.
    const Treffer t =
        InFarbe(SchriftAufGrund(s, titel, Rechteck(s, 1), {}, kBox), 0xFFFFFF, QRect(QPoint(), kBox), true);
    ASSERT_GT(t.anzahl, 30);
    EXPECT_LE(t.box.height(), kBox.height() - 4); // 20 points turned are far taller than the box
    EXPECT_GT(t.box.height(), kBox.height() / 2); // but it is shrunk to fit, not cut
    EXPECT_GT(t.box.height(), t.box.width());
    // A walk's one-shot colour and angle are the page's: the preview neither uses nor leaves them.
    EXPECT_EQ(s.Farbvorgabe, -1);
    EXPECT_EQ(s.Winkelvorgabe, -1);
    EXPECT_DOUBLE_EQ(s.Zeichenfaktor, 0.37);
    EXPECT_EQ(s.Schriftliste(1).Textstring, u"");
}

TEST(SchriftAufGrund, ATinyWeekNumberIsDrawnLargerToBeRead) {
    AppState s = Design(4);
    ClassSchrift woche = s.Schriftliste(6); // six points
    woche.Textstring = QStringLiteral("12");
    const Treffer klein =
        InFarbe(SchriftAufGrund(s, woche, Rechteck(s, 6), {}, kBox), 0xFFFFFF, QRect(QPoint(), kBox), true);
    ASSERT_GT(klein.anzahl, 10);
    EXPECT_GE(klein.box.height(), 14); // at its true size the digits are about 6 pixels high
    EXPECT_LT(klein.box.height(), kBox.height());
    // A text already large enough keeps its true size.
    ClassSchrift monat = s.Schriftliste(2);
    monat.Textstring = QStringLiteral("Mai");
    const Treffer gross =
        InFarbe(SchriftAufGrund(s, monat, Rechteck(s, 2), {}, kBox), 0xFFFFFF, QRect(QPoint(), kBox), true);
    EXPECT_NEAR(gross.box.height(), 29, 6); // 30 points of 40 pixels: capitals about 29 pixels high
}
