// The sheet walk of a print run: positions, origins, copies per address, serial numbers.
#include "Aufzeichnungsdrucker.h"

#include <gtest/gtest.h>

#include <cmath>

// The print choices below name only the fields a case sets; the others keep their defaults.
#pragma GCC diagnostic ignored "-Wmissing-field-initializers"

namespace zp::test {
namespace {

constexpr double kTpp = 2.4; // 600 dpi

int Px(double laenge) {
    return static_cast<int>(std::trunc(laenge * 5.67 / kTpp));
}

// Addresses with a name in field 1 and a category in field 10.
void Adressen(AppState& s, std::initializer_list<const char*> kategorien) {
    int n = 0;
    for (const char* k : kategorien) {
        ++n;
        s.Datensaetze(1, n) = QStringLiteral("Name %1").arg(n);
        s.Datensaetze(10, n) = QString::fromUtf8(k);
    }
    s.DatensatzAnzahl = n;
}

// Origin of the label in column x, row y (1-based) as the walk reaches it: each step truncated.
QPoint Platz(const AppState& s, int x, int y) {
    const auto& e = s.AktuellesEtikett;
    return {-(Px(s.AktuelleSeite.Randlinks) + (x - 1) * Px(e.Breite + e.Abstand_x)),
            -(Px(s.AktuelleSeite.Randoben) + (y - 1) * Px(e.Höhe + e.Abstand_y))};
}

TEST(Bogen, ErstesEtikettFuenfLaesstEtikettenfrei) {
    AppState s = Etikettenbogen();
    s.ErstesEtikett = 5;
    Aufzeichnungsdrucker d;
    ASSERT_EQ(d.Drucke(s, {.Kopien = "24"}), Druckergebnis::Gedruckt);

    ASSERT_EQ(d.Stuecke.size(), 24u);
    // Positions 1 to 4 stay empty; the first label lands on row 2, column 2.
    EXPECT_EQ(d.Stuecke[0].Ursprung, Platz(s, 2, 2));
    EXPECT_DOUBLE_EQ(d.Stuecke[0].EtikettX, 72 + 685);
    EXPECT_DOUBLE_EQ(d.Stuecke[0].EtikettY, 130 + 338);
    EXPECT_EQ(d.Stuecke[1].Ursprung, Platz(s, 3, 2));
    EXPECT_EQ(d.Stuecke[2].Ursprung, Platz(s, 1, 3));
    EXPECT_EQ(d.Stuecke[19].Ursprung, Platz(s, 3, 8));
    // 20 labels fill the first sheet, the other 4 start the second at the first place.
    EXPECT_EQ(d.Stuecke[19].Seite, 1);
    EXPECT_EQ(d.Stuecke[20].Seite, 2);
    EXPECT_EQ(d.Stuecke[20].Ursprung, Platz(s, 1, 1));
    EXPECT_EQ(d.Stuecke[23].Ursprung, Platz(s, 1, 2));
    EXPECT_EQ(d.Ereignisse, (std::vector<std::string>{"Oeffne", "NeueSeite", "Schliesse"}));
}

TEST(Bogen, VisitenkartenBeginnenAmErstenPlatzUndKuerzenNurDenErstenBogen) {
    AppState s = Etikettenbogen(true);
    s.ErstesEtikett = 5;
    Aufzeichnungsdrucker d;
    ASSERT_EQ(d.Drucke(s, {.Kopien = "24"}), Druckergebnis::Gedruckt);
    ASSERT_EQ(d.Stuecke.size(), 24u);
    // The cards start at the first place, with the margins, and follow the grid.
    EXPECT_EQ(d.Stuecke[0].Ursprung, Platz(s, 1, 1));
    EXPECT_DOUBLE_EQ(d.Stuecke[0].EtikettX, 72);
    EXPECT_EQ(d.Stuecke[1].Ursprung, Platz(s, 2, 1));
    EXPECT_EQ(d.Stuecke[3].Ursprung, Platz(s, 1, 2));
    EXPECT_EQ(d.Stuecke[19].Ursprung, Platz(s, 2, 7));
    // The four used places are still counted: the first sheet holds 20 cards, the second sheet
    // starts at its first place again.
    EXPECT_EQ(d.Stuecke[19].Seite, 1);
    EXPECT_EQ(d.Stuecke[20].Seite, 2);
    EXPECT_EQ(d.Stuecke[20].Ursprung, Platz(s, 1, 1));
    EXPECT_EQ(d.Stuecke[23].Ursprung, Platz(s, 1, 2));
    EXPECT_EQ(d.Ereignisse, (std::vector<std::string>{"Oeffne", "NeueSeite", "Schliesse"}));
}

TEST(Bogen, KopienZaehlenJeAdresseUndSeriennummernJeStueck) {
    AppState s = Etikettenbogen();
    Adressen(s, {"", ""});
    s.ErstesEtikett = 3;
    Aufzeichnungsdrucker d;
    d.Drucke(s, {.Kopien = "3", .Seriennummer = "7", .Adressen = Adresswahl::Alle});
    ASSERT_EQ(d.Stuecke.size(), 6u);
    const double datensaetze[] = {1, 1, 1, 2, 2, 2};
    for (size_t i = 0; i < 6; ++i) {
        EXPECT_DOUBLE_EQ(d.Stuecke[i].Datensatz, datensaetze[i]) << i;
        // Skipped places don't count: the first printed label gets the first number.
        EXPECT_DOUBLE_EQ(d.Stuecke[i].Seriennummer, 7 + static_cast<double>(i)) << i;
    }
    EXPECT_DOUBLE_EQ(s.Seriennummer, 13);
}

TEST(Bogen, SeiteDruckenZaehltBoegen) {
    AppState s = Etikettenbogen();
    s.AktuellesEtikett.Anzahl_x = 4;
    s.AktuellesEtikett.Anzahl_y = 6;
    Aufzeichnungsdrucker d;
    d.Drucke(s, {.Kopien = "2", .SeiteDrucken = true});
    EXPECT_EQ(d.Stuecke.size(), 48u);
    // The run ends on a full sheet: the stop comes before the page break, so no empty page follows.
    EXPECT_EQ(d.Seiten(), 2);
    EXPECT_EQ(d.Ereignisse, (std::vector<std::string>{"Oeffne", "NeueSeite", "Schliesse"}));
}

TEST(Bogen, KategorieWirdOhneRaenderUndGrossschreibungVerglichen) {
    AppState s = Etikettenbogen();
    Adressen(s, {"Lieferant", " kunde ", "Privat", "KUNDE"});
    s.DatensatzNummer = 3;
    Aufzeichnungsdrucker d;
    d.Drucke(s, {.Kopien = "2", .Adressen = Adresswahl::Kategorie, .Kategorie = "Kunde"});
    ASSERT_EQ(d.Stuecke.size(), 4u);
    EXPECT_DOUBLE_EQ(d.Stuecke[0].Datensatz, 2);
    EXPECT_DOUBLE_EQ(d.Stuecke[1].Datensatz, 2);
    EXPECT_DOUBLE_EQ(d.Stuecke[2].Datensatz, 4);
    // The active record and its panel are back afterwards.
    EXPECT_DOUBLE_EQ(s.DatensatzNummer, 3);
    EXPECT_EQ(s.Panel.Text1(30), "Privat");

    // A category that no address has prints nothing and opens no job.
    Aufzeichnungsdrucker leer;
    EXPECT_EQ(leer.Drucke(s, {.Kopien = "2", .Adressen = Adresswahl::Kategorie, .Kategorie = "Verein"}),
              Druckergebnis::Gedruckt);
    EXPECT_TRUE(leer.Stuecke.empty());
    EXPECT_TRUE(leer.Ereignisse.empty());
    EXPECT_TRUE(leer.o.Meldungen.empty());
}

TEST(Bogen, AdressenbereichWirdRepariert) {
    struct Fall {
        const char *von, *bis;
        std::vector<double> erwartet;
    };
    const Fall faelle[] = {
        {"2", "3", {2, 3}}, {"0", "2", {1, 2}}, // from below 1
        {"9", "2", {1, 2}},                     // from past the records
        {"3", "99", {3}},                       // to past the records becomes from
        {"3", "1", {3}},                        // to below from
        {"abc", "", {1}},                       // no numbers at all
    };
    for (const Fall& f : faelle) {
        AppState s = Etikettenbogen();
        Adressen(s, {"", "", "", ""});
        Aufzeichnungsdrucker d;
        d.Drucke(s, {.Adressen = Adresswahl::Bereich, .Von = f.von, .Bis = f.bis});
        std::vector<double> gedruckt;
        for (const Stueck& st : d.Stuecke)
            gedruckt.push_back(st.Datensatz);
        EXPECT_EQ(gedruckt, f.erwartet) << f.von << "-" << f.bis;
    }
}

TEST(Bogen, KorrekturenGeltenWaehrendDesDrucksUndWerdenZurueckgesetzt) {
    AppState s = Etikettenbogen();
    s.AbgleichX = 15;
    s.AbgleichY = -7;
    s.Seitennummer = 1;
    s.DatensatzNummer = 1;
    Aufzeichnungsdrucker d(false, 50); // 50 pixels of unprintable margin across
    d.Drucke(s, {.Kopien = "2"});
    ASSERT_EQ(d.Stuecke.size(), 2u);
    // The margin correction mixes tenths of a millimetre with the device's pixels, across only.
    EXPECT_DOUBLE_EQ(d.Stuecke[0].Randlinks, 72 + 15 - 50);
    EXPECT_DOUBLE_EQ(d.Stuecke[0].Randoben, 130 - 7);
    EXPECT_EQ(d.Stuecke[0].Ursprung, QPoint(-Px(37), -Px(123)));
    EXPECT_DOUBLE_EQ(d.Stuecke[0].TwipsProPixelX, kTpp);

    EXPECT_EQ(s.AktuelleSeite.Randlinks, 72);
    EXPECT_EQ(s.AktuelleSeite.Randoben, 130);
    EXPECT_DOUBLE_EQ(s.TwipsProPixelX, 15);
    EXPECT_DOUBLE_EQ(s.TwipsProPixelY, 15);
    EXPECT_EQ(s.DruckenAktiv, 0);
    EXPECT_DOUBLE_EQ(s.DruckversatzX, 0);
    EXPECT_DOUBLE_EQ(s.DruckversatzY, 0);
    EXPECT_DOUBLE_EQ(s.EtikettX, 0);

    // A letter is one page, shifted by the corrections alone.
    AppState brief;
    brief.IstBriefkopf = -1;
    brief.AbgleichX = 20;
    brief.AbgleichY = 10;
    Aufzeichnungsdrucker b(false, 30);
    b.Drucke(brief, {.Kopien = "2"});
    ASSERT_EQ(b.Stuecke.size(), 1u);
    EXPECT_EQ(b.Stuecke[0].Ursprung, QPoint(-Px(20 - 30), -Px(10)));
    EXPECT_EQ(b.Ereignisse, (std::vector<std::string>{"Oeffne", "Schliesse"}));
}

TEST(Bogen, UnsinnigeWerteEndenOhneHaengen) {
    // Negative or empty copies count as one.
    for (const char* kopien : {"-3", "", "0", "x"}) {
        AppState s = Etikettenbogen();
        Aufzeichnungsdrucker d;
        d.Drucke(s, {.Kopien = kopien});
        EXPECT_EQ(d.Stuecke.size(), 1u) << kopien;
    }
    // A start position at or past the end of the sheet starts at the first place.
    for (double erstes : {24.0, 1e9, 0.0, -3.0}) {
        AppState s = Etikettenbogen();
        s.ErstesEtikett = erstes;
        Aufzeichnungsdrucker d;
        d.Drucke(s);
        ASSERT_EQ(d.Stuecke.size(), 1u) << erstes;
        EXPECT_EQ(d.Stuecke[0].Ursprung, Platz(s, 1, 1)) << erstes;
    }
    {
        // A sheet without labels is refused with a message.
        AppState s = Etikettenbogen();
        s.AktuellesEtikett.Anzahl_y = 0;
        Aufzeichnungsdrucker d;
        EXPECT_EQ(d.Drucke(s), Druckergebnis::Fehler);
        EXPECT_TRUE(d.Ereignisse.empty());
        ASSERT_EQ(d.o.Meldungen.size(), 1u);
    }
}

TEST(Bogen, DruckerFehltMeldungUndNichtsVeraendert) {
    AppState s = Etikettenbogen();
    Adressen(s, {"", "", ""});
    s.DatensatzNummer = 2;
    s.Seriennummer = 4;
    Aufzeichnungsdrucker d;
    d.OeffnenGelingt = false;
    EXPECT_EQ(d.Drucke(s, {.Adressen = Adresswahl::Alle}), Druckergebnis::Fehler);
    ASSERT_EQ(d.o.Meldungen.size(), 1u);
    EXPECT_TRUE(d.o.Meldungen[0].first.startsWith("Der Druck kann nicht beginnen"));
    EXPECT_DOUBLE_EQ(s.DatensatzNummer, 2);
    EXPECT_EQ(s.Panel.Text1(21), "Name 2");
    EXPECT_EQ(s.AktuelleSeite.Randlinks, 72);
}

TEST(Bogen, AbbruchUeberFortschritt) {
    AppState s = Etikettenbogen();
    Aufzeichnungsdrucker d;
    Druckhilfen h = d.Hilfen();
    int gemeldet = 0;
    h.Fortschritt = [&](int) { return ++gemeldet < 5; };
    EXPECT_EQ(PrintDocument(s, d.o, d, {.Kopien = "100"}, h), Druckergebnis::Abgebrochen);
    EXPECT_EQ(d.Stuecke.size(), 5u);
    EXPECT_EQ(d.Ereignisse.back(), "Schliesse");
}

} // namespace
} // namespace zp::test
