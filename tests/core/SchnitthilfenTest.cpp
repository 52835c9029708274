// The print run with the program's composition: crop bars and cut frame relative to each label.
#include "tests/output/Aufzeichnungsdrucker.h"

#include "core/Programmdruck.h"

#include <gtest/gtest.h>

#include <cmath>

namespace zp::test {
namespace {

int Px(double v) {
    return static_cast<int>(std::trunc(v * 5.67 / 2.4));
}

AppState Bogen(bool marken, bool rahmen) {
    AppState s;
    s.IstEtikett = -1;
    s.RahmenAnzahl = 0;
    s.AktuelleSeite.Randlinks = 100;
    s.AktuelleSeite.Randoben = 150;
    s.AktuellesEtikett.Breite = 700;
    s.AktuellesEtikett.Höhe = 400;
    s.AktuellesEtikett.Abstand_x = 50;
    s.AktuellesEtikett.Abstand_y = 20;
    s.AktuellesEtikett.Anzahl_x = 2;
    s.AktuellesEtikett.Anzahl_y = 2;
    s.AktuellesEtikett.Schnittmarken = marken ? -1 : 0;
    s.AktuellesEtikett.Schnittrahmen = rahmen ? -1 : 0;
    return s;
}

TEST(Schnitthilfen, AchtBalkenJeEtikettAnDessenEcke) {
    AppState s = Bogen(true, false);
    Aufzeichnungsdrucker d;
    Oberflaeche o;
    Druckwahl w;
    w.Kopien = "3";
    ASSERT_EQ(PrintDocument(s, o, d, w, ProgrammDruckhilfen(o)), Druckergebnis::Gedruckt);
    const auto balken = d.Alle("Rectangle");
    ASSERT_EQ(balken.size(), 24u);
    const int W = 700, H = 400;
    const std::vector<std::vector<int>> erwartet = {
        {Px(-40), 0, Px(-10), Px(2)},         {Px(-40), Px(H), Px(-10), Px(H + 2)},
        {Px(W + 10), 0, Px(W + 40), Px(2)},   {Px(W + 10), Px(H), Px(W + 40), Px(H + 2)},
        {0, Px(-40), Px(2), Px(-10)},         {0, Px(H + 10), Px(2), Px(H + 40)},
        {Px(W), Px(-40), Px(W + 2), Px(-10)}, {Px(W), Px(H + 10), Px(W + 2), Px(H + 40)},
    };
    // The label's corner is the origin: the same bars for every label, the origin walks.
    const QPoint ecken[] = {
        {-Px(100), -Px(150)}, {-Px(100) - Px(750), -Px(150)}, {-Px(100), -Px(150) - Px(420)}};
    for (size_t i = 0; i < balken.size(); ++i) {
        EXPECT_EQ(balken[i].Werte, erwartet[i % 8]) << i;
        EXPECT_EQ(balken[i].Ursprung, ecken[i / 8]) << i;
        EXPECT_EQ(balken[i].FillStyle, 0);
        EXPECT_EQ(balken[i].ForeColor, 0);
    }
    EXPECT_TRUE(d.Alle("Polyline").empty());
}

TEST(Schnitthilfen, SchnittrahmenUmJedesEtikettUndNichtsAufDemBriefkopf) {
    AppState s = Bogen(false, true);
    Aufzeichnungsdrucker d;
    Oberflaeche o;
    PrintDocument(s, o, d, Druckwahl{}, ProgrammDruckhilfen(o));
    const auto rahmen = d.Alle("Polyline");
    ASSERT_EQ(rahmen.size(), 1u);
    const int w = Px(700), h = Px(400);
    EXPECT_EQ(rahmen[0].Punkte, (std::vector<QPoint>{{0, 0}, {w, 0}, {w, h}, {0, h}, {0, 0}}));
    EXPECT_EQ(rahmen[0].DrawStyle, 2);

    AppState brief = Bogen(true, true);
    brief.IstEtikett = 0;
    brief.IstBriefkopf = -1;
    Aufzeichnungsdrucker b;
    PrintDocument(brief, o, b, Druckwahl{}, ProgrammDruckhilfen(o));
    EXPECT_TRUE(b.Alle("Rectangle").empty());
    EXPECT_TRUE(b.Alle("Polyline").empty());
}

TEST(Schnitthilfen, RoundCdLabelsAreCutAlongTheirCircle) {
    AppState s = Bogen(false, true);
    s.IstEtikett = 0;
    s.IstCDHuelle = -1;
    s.AktuellesEtikett.Breite = s.AktuellesEtikett.Höhe = 1170;
    s.AktuellesEtikett.Anzahl_x = 1;
    s.AktuellesEtikett.Form = 1;
    Aufzeichnungsdrucker d;
    Oberflaeche o;
    PrintDocument(s, o, d, Druckwahl{}, ProgrammDruckhilfen(o));
    const auto kreise = d.Alle("Ellipse");
    ASSERT_EQ(kreise.size(), 1u); // one label per page piece
    EXPECT_EQ(kreise[0].Werte, (std::vector<int>{0, 0, Px(1170), Px(1170)}));
    EXPECT_EQ(kreise[0].FillStyle, 1);
    EXPECT_TRUE(d.Alle("Polyline").empty());

    s.AktuellesEtikett.Form = 0; // a square CD booklet keeps the rectangle
    Aufzeichnungsdrucker eckig;
    PrintDocument(s, o, eckig, Druckwahl{}, ProgrammDruckhilfen(o));
    EXPECT_TRUE(eckig.Alle("Ellipse").empty());
    EXPECT_EQ(eckig.Alle("Polyline").size(), 1u);
}

} // namespace
} // namespace zp::test
