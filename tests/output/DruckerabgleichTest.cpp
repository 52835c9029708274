#include "output/Druckerabgleich.h"
#include "compose/canvas/RecordingCanvas.h"
#include "core/state/AppState.h"
#include "tests/core/state/ProtokollOberflaeche.h"

#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <cmath>

using namespace zp;

TEST(Druckerabgleich, LinesRoundTripAndBrokenOnesArePassedOver) {
    Druckerabgleiche werte;
    werte.insert(QStringLiteral("HP LaserJet 4"), {-12.5, 7});
    werte.insert(QStringLiteral("PDF-Datei"), {0, 3});
    werte.insert(QStringLiteral("Büro\tDrucker"), {1, 1}); // a tab can't stand in a name
    const Druckerabgleiche gelesen = LeseDruckerabgleiche(SchreibeDruckerabgleiche(werte));
    EXPECT_EQ(gelesen.value(QStringLiteral("HP LaserJet 4")), (Abgleichwerte{-12.5, 7}));
    EXPECT_EQ(gelesen.value(QStringLiteral("PDF-Datei")), (Abgleichwerte{0, 3}));
    EXPECT_TRUE(gelesen.contains(QStringLiteral("Büro Drucker")));

    const Druckerabgleiche kaputt =
        LeseDruckerabgleiche("ohne Werte\r\nA\tx\t1\r\n\t1\t2\r\nB\t1,5\t-2\r\nC\t1\t2\t3\r\n");
    ASSERT_EQ(kaputt.size(), 1);
    EXPECT_EQ(kaputt.value(QStringLiteral("B")), (Abgleichwerte{1.5, -2}));
}

TEST(Druckerabgleich, KeptPerPrinterAndTakenWhenThePrinterIsChosen) {
    QTemporaryDir ordner;
    AppState s;
    s.Programmpfad = ordner.path() + u'/';
    s.Druckername = QStringLiteral("Laser");
    test::ProtokollOberflaeche ui;
    ASSERT_TRUE(SpeichereDruckerabgleich(s, ui, QStringLiteral("Tinte"), {20, -5}));
    EXPECT_EQ(s.AbgleichX, 0); // another printer than the current one: kept, not taken
    ASSERT_TRUE(SpeichereDruckerabgleich(s, ui, QStringLiteral("Laser"), {-3, 4}));
    EXPECT_EQ(s.AbgleichX, -3);
    EXPECT_EQ(s.AbgleichY, 4);

    EXPECT_TRUE(WendeDruckerabgleichAn(s, QStringLiteral("Tinte")));
    EXPECT_EQ(s.AbgleichX, 20);
    EXPECT_EQ(s.AbgleichY, -5);
    EXPECT_FALSE(WendeDruckerabgleichAn(s, QStringLiteral("Unbekannt")));
    EXPECT_EQ(s.AbgleichX, 20); // a printer without an entry keeps the values
    EXPECT_TRUE(WendeDruckerabgleichAn(s, QStringLiteral("Laser")));
    EXPECT_EQ(s.AbgleichX, -3);

    // A folder that can't be written: the user is told.
    s.Programmpfad = ordner.filePath(QStringLiteral("fehlt/nicht/da/"));
    EXPECT_FALSE(SpeichereDruckerabgleich(s, ui, QStringLiteral("Laser"), {1, 1}));
    EXPECT_EQ(ui.meldungen.size(), 1);
}

TEST(Druckerabgleich, TestSheetHasACrossAtEveryLabelCornerAndMillimetreRulers) {
    AppState s;
    s.AktuelleSeite.Breite = 2100;
    s.AktuelleSeite.Höhe = 2970;
    s.AktuelleSeite.Randlinks = 46;
    s.AktuelleSeite.Randoben = 151;
    s.AktuellesEtikett.Breite = 991;
    s.AktuellesEtikett.Höhe = 381;
    s.AktuellesEtikett.Abstand_x = 25;
    s.AktuellesEtikett.Anzahl_x = 2;
    s.AktuellesEtikett.Anzahl_y = 7;
    s.AbgleichX = 500; // the sheet is drawn without offsets
    RecordingCanvas d(CanvasArt::Drucker, 2.4, 2.4, QSize(4961, 7016));
    ZeichneTestbogen(s, d);
    const auto linien = d.Alle("Polyline");
    const size_t kreuze = 2 * 7 * 4 * 2;
    ASSERT_EQ(linien.size(), kreuze + 211 + 298);
    auto px = [](double v) { return static_cast<int>(std::lround(v * 5.67 / 2.4)); };
    // The first cross: the top-left corner of the first label.
    EXPECT_EQ(linien[0].Punkte, (std::vector<QPoint>{{px(46 - 30), px(151)}, {px(46 + 30), px(151)}}));
    // The last label's bottom-right corner.
    const int x = 46 + 991 + 25 + 991, y = 151 + 7 * 381;
    EXPECT_EQ(linien[kreuze - 1].Punkte, (std::vector<QPoint>{{px(x), px(y - 30)}, {px(x), px(y + 30)}}));
    // A centimetre tick of the top ruler is 5 mm long.
    EXPECT_EQ(linien[kreuze + 10].Punkte, (std::vector<QPoint>{{px(100), 0}, {px(100), px(50)}}));
    // The note's two lines start 30 mm in, clear of the ruler, one below the other.
    const auto texte = d.Alle("Print");
    ASSERT_GE(texte.size(), 2u);
    const auto& erste = texte[texte.size() - 2];
    const auto& zweite = texte.back();
    EXPECT_EQ(erste.Werte[0], px(300));
    EXPECT_EQ(zweite.Werte[0], px(300));
    EXPECT_GT(zweite.Werte[1], erste.Werte[1]);
}
