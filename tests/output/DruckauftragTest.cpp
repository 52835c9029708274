// The print request per edition: who makes the copies, which records each run gets, the question
// before a very long run.
#include "Aufzeichnungsdrucker.h"

#include "output/Druckauftrag.h"

#include <gtest/gtest.h>

namespace zp::test {
namespace {

AppState MitAdressen(float AppState::*edition, std::initializer_list<const char*> kategorien) {
    AppState s;
    s.*edition = -1;
    s.AktuellesEtikett.Anzahl_x = 2;
    s.AktuellesEtikett.Anzahl_y = 5;
    s.AktuellesEtikett.Breite = 850;
    s.AktuellesEtikett.Höhe = 550;
    int n = 0;
    for (const char* k : kategorien) {
        ++n;
        s.Datensaetze(1, n) = QStringLiteral("Name %1").arg(n);
        s.Datensaetze(10, n) = QString::fromUtf8(k);
    }
    s.DatensatzAnzahl = n;
    return s;
}

std::vector<double> Datensaetze(const Aufzeichnungsdrucker& d) {
    std::vector<double> v;
    for (const Stueck& st : d.Stuecke)
        v.push_back(st.Datensatz);
    return v;
}

TEST(Druckauftrag, BriefkopfDrucktJeAdresseEinenBrief) {
    AppState s = MitAdressen(&AppState::IstBriefkopf, {"Kunde", "kunde", "Kunde", "Privat"});
    s.DatensatzNummer = 4;
    Druckauftrag a;
    a.Wahl.Adressen = Adresswahl::Alle;
    Aufzeichnungsdrucker d;
    Mitschrift o;
    EXPECT_EQ(CommandDrucken(s, o, d, a, d.Hilfen()), Druckergebnis::Gedruckt);
    EXPECT_EQ(Datensaetze(d), (std::vector<double>{1, 2, 3, 4}));
    EXPECT_DOUBLE_EQ(s.DatensatzNummer, 4);

    // Here the category is taken as typed.
    Aufzeichnungsdrucker k;
    a.Wahl.Adressen = Adresswahl::Kategorie;
    a.Wahl.Kategorie = "Kunde";
    CommandDrucken(s, o, k, a, k.Hilfen());
    EXPECT_EQ(Datensaetze(k), (std::vector<double>{1, 3}));

    // A range with copies into a file: every letter twice, in order.
    Aufzeichnungsdrucker datei(true);
    a.Wahl.Adressen = Adresswahl::Bereich;
    a.Wahl.Von = "2";
    a.Wahl.Bis = "3";
    a.Wahl.Kopien = "2";
    CommandDrucken(s, o, datei, a, datei.Hilfen());
    EXPECT_EQ(Datensaetze(datei), (std::vector<double>{2, 3, 2, 3}));
}

TEST(Druckauftrag, KartenSchreitenInEinemLaufDurchDieAdressen) {
    AppState s = MitAdressen(&AppState::IstVisitenkarte, {"", "", ""});
    s.NurEineKarte = -1; // left over from a letter: cards never stop after one
    Druckauftrag a;
    a.Wahl.Adressen = Adresswahl::Alle;
    a.Wahl.Kopien = "4";
    a.EineKarte = true;
    Aufzeichnungsdrucker d(true);
    Mitschrift o;
    CommandDrucken(s, o, d, a, d.Hilfen());
    EXPECT_EQ(d.Stuecke.size(), 12u);
    EXPECT_EQ(d.Ereignisse.front(), "Oeffne");
    EXPECT_EQ(std::count(d.Ereignisse.begin(), d.Ereignisse.end(), "Oeffne"), 1);
    EXPECT_EQ(d.Seiten(), 2); // 10 cards a sheet
}

TEST(Druckauftrag, SehrLangeLaeufeFragenVorher) {
    AppState s = MitAdressen(&AppState::IstEtikett, {""});
    Druckauftrag a;
    a.Wahl.Kopien = "1000000";
    Aufzeichnungsdrucker d;
    Mitschrift o;
    o.standardAntwort = false;
    EXPECT_EQ(CommandDrucken(s, o, d, a, d.Hilfen()), Druckergebnis::Abgebrochen);
    EXPECT_EQ(o.Fragen, 1);
    EXPECT_TRUE(d.Ereignisse.empty());

    // Below the limit nobody is asked.
    a.Wahl.Kopien = "100";
    Aufzeichnungsdrucker kurz;
    CommandDrucken(s, o, kurz, a, kurz.Hilfen());
    EXPECT_EQ(o.Fragen, 1);
    EXPECT_EQ(kurz.Stuecke.size(), 100u);
}

TEST(Druckauftrag, FortschrittKenntDieErwarteteSeitenzahl) {
    AppState s = MitAdressen(&AppState::IstEtikett, {"", "", "", "", "", "", "", "", "", "", "", ""});
    s.ErstesEtikett = 4;
    Druckauftrag a;
    a.Wahl.Adressen = Adresswahl::Alle;
    Aufzeichnungsdrucker d;
    Mitschrift o;
    std::vector<std::pair<int, int>> meldungen;
    CommandDrucken(s, o, d, a, d.Hilfen(), [&](int seite, int gesamt) {
        meldungen.emplace_back(seite, gesamt);
        return true;
    });
    // 3 places left free and 12 labels on sheets of 10: two pages.
    ASSERT_EQ(meldungen.size(), 12u);
    EXPECT_EQ(meldungen.back(), std::make_pair(2, 2));
    EXPECT_EQ(d.Seiten(), 2);
}

} // namespace
} // namespace zp::test
