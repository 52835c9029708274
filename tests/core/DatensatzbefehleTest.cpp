#include "tests/core/state/ProtokollOberflaeche.h"

#include "core/Datensatzbefehle.h"
#include "core/state/AppState.h"

#include <gtest/gtest.h>

using namespace zp;

namespace {
// Records named by their first field: "A", "B", ...; field 2 "Straße A", field 21 a picture.
AppState Adressen(std::initializer_list<const char*> namen) {
    AppState s;
    s.IstVisitenkarte = -1;
    s.Datensaetze.Redim(30, static_cast<int>(namen.size()));
    int r = 0;
    for (const char* n : namen) {
        ++r;
        s.Datensaetze(1, r) = QString::fromUtf8(n);
        if (*n) {
            s.Datensaetze(2, r) = QStringLiteral("Straße ") + QString::fromUtf8(n);
            s.Datensaetze(21, r) = QStringLiteral("/bilder/%1.jpg").arg(QString::fromUtf8(n));
        }
    }
    s.DatensatzAnzahl = r;
    return s;
}
QString Namen(const AppState& s) {
    QString out;
    for (int r = 1; r <= static_cast<int>(s.DatensatzAnzahl); ++r)
        out += DatensatzFeld(s, 1, r).isEmpty() ? QStringLiteral("_") : DatensatzFeld(s, 1, r);
    return out;
}
} // namespace

TEST(ZeigeDatensatz, FillsBoxesTextObjectsAndPicture) {
    AppState s = Adressen({"A", "B"});
    s.Datensaetze(10, 2) = QStringLiteral("zehn");
    s.Datensaetze(11, 2) = QStringLiteral("elf"); // kept, but no box shows it
    s.DatensatzNummer = 2;
    test::ProtokollOberflaeche ui;
    ZeigeDatensatz(s, ui);
    EXPECT_EQ(s.Panel.Text1(21), u"B");
    EXPECT_EQ(s.Panel.Text1(22), u"Straße B");
    EXPECT_EQ(s.Panel.Text1(30), u"zehn");
    EXPECT_EQ(s.Schriftliste(21).Textstring, u"B");
    EXPECT_EQ(s.Schriftliste(30).Textstring, u"zehn");
    EXPECT_EQ(s.Panel.TextBild, u"/bilder/B.jpg");
    EXPECT_EQ(ui.anzeigen, 1);
    EXPECT_EQ(ui.neuzeichnen, 1);

    // A number beyond the table shows empty boxes instead of failing.
    s.DatensatzNummer = 9;
    ZeigeDatensatz(s, ui);
    EXPECT_TRUE(s.Panel.Text1(21).isEmpty());
}

TEST(Navigation, FirstPreviousLastStayInsideTheTable) {
    AppState s = Adressen({"A", "B", "C"});
    test::ProtokollOberflaeche ui;
    VorigerDatensatz(s, ui);
    EXPECT_EQ(s.DatensatzNummer, 1); // nothing before the first
    LetzterDatensatz(s, ui);
    EXPECT_EQ(s.DatensatzNummer, 3);
    EXPECT_EQ(s.Panel.Text1(21), u"C");
    VorigerDatensatz(s, ui);
    EXPECT_EQ(s.DatensatzNummer, 2);
    ErsterDatensatz(s, ui);
    EXPECT_EQ(s.Panel.Text1(21), u"A");
}

TEST(Navigation, NextAddsARecordOnlyAfterAFilledLastOne) {
    AppState s = Adressen({"A", "B"});
    test::ProtokollOberflaeche ui;
    NaechsterDatensatz(s, ui);
    EXPECT_EQ(s.DatensatzNummer, 2);
    EXPECT_EQ(s.DatensatzAnzahl, 2);

    NaechsterDatensatz(s, ui); // past a filled last record: a fresh one
    EXPECT_EQ(s.DatensatzAnzahl, 3);
    EXPECT_EQ(s.DatensatzNummer, 3);
    EXPECT_TRUE(s.Panel.Text1(21).isEmpty());
    EXPECT_TRUE(s.Panel.TextBild.isEmpty());
    EXPECT_EQ(DatensatzFeld(s, 21, 2), u"/bilder/B.jpg"); // the grow kept what stood

    NaechsterDatensatz(s, ui); // the empty last record isn't followed by another
    EXPECT_EQ(s.DatensatzAnzahl, 3);
    EXPECT_EQ(s.DatensatzNummer, 3);

    // Field 20 alone counts as content; field 21 (the picture) does not.
    s.Datensaetze(21, 3) = QStringLiteral("bild.jpg");
    NaechsterDatensatz(s, ui);
    EXPECT_EQ(s.DatensatzAnzahl, 3);
    s.Datensaetze(20, 3) = QStringLiteral("x");
    NaechsterDatensatz(s, ui);
    EXPECT_EQ(s.DatensatzAnzahl, 4);
}

TEST(Navigation, NextGrowsTheNarrowStartTableToTwentyFields) {
    AppState s; // the start-up table: 10 fields by 20 records, 10 counted
    s.Datensaetze(1, 10) = QStringLiteral("Z");
    s.DatensatzNummer = 10;
    test::ProtokollOberflaeche ui;
    NaechsterDatensatz(s, ui);
    EXPECT_EQ(s.DatensatzAnzahl, 11);
    EXPECT_EQ(s.Datensaetze.Obergrenze1(), 20);
    EXPECT_EQ(DatensatzFeld(s, 1, 10), u"Z");
}

TEST(Navigation, TypedRecordNumber) {
    AppState s = Adressen({"A", "B", "C"});
    test::ProtokollOberflaeche ui;
    DatensatzNummerEingegeben(s, ui, QStringLiteral("3"));
    EXPECT_EQ(s.DatensatzNummer, 3);
    EXPECT_EQ(ui.fokus, 21);
    for (const char* falsch : {"0", "4", "-2", "drei", ""}) {
        s.DatensatzNummer = 2;
        DatensatzNummerEingegeben(s, ui, QString::fromUtf8(falsch));
        EXPECT_EQ(s.DatensatzNummer, 1) << falsch;
    }
}

TEST(Suche, StartsBehindTheCurrentRecordAndWrapsRound) {
    AppState s = Adressen({"Anna", "Bernd", "Anja", "Carl"});
    test::ProtokollOberflaeche ui;
    s.DatensatzNummer = 1;
    EXPECT_TRUE(SucheDatensatz(s, ui, QStringLiteral("An")));
    EXPECT_EQ(s.DatensatzNummer, 3); // record 1 matches too, but the search starts at 2
    EXPECT_TRUE(SucheDatensatz(s, ui, QStringLiteral("An")));
    EXPECT_EQ(s.DatensatzNummer, 1); // round past the end
    EXPECT_EQ(s.Panel.Text1(21), u"Anna");

    s.DatensatzNummer = 4;
    EXPECT_FALSE(SucheDatensatz(s, ui, QStringLiteral("anna"))); // case counts
    EXPECT_EQ(s.DatensatzNummer, 4);
    EXPECT_EQ(ui.status.size(), 1);
    EXPECT_FALSE(SucheDatensatz(s, ui, QString()));
}

TEST(Suche, LooksAtFieldsOneToTwentyOnly) {
    AppState s = Adressen({"A", "B", "C"});
    s.Datensaetze(20, 2) = QStringLiteral("Kundennummer 4711");
    s.Datensaetze(25, 3) = QStringLiteral("0815");
    test::ProtokollOberflaeche ui;
    EXPECT_TRUE(SucheDatensatz(s, ui, QStringLiteral("4711")));
    EXPECT_EQ(s.DatensatzNummer, 2);
    EXPECT_FALSE(SucheDatensatz(s, ui, QStringLiteral("0815")));
    EXPECT_FALSE(SucheDatensatz(s, ui, QStringLiteral("/bilder/"))); // the picture column isn't searched
}

TEST(Suche, OneRecordIsFoundAfterOneLap) {
    AppState s = Adressen({"Anna"});
    test::ProtokollOberflaeche ui;
    EXPECT_TRUE(SucheDatensatz(s, ui, QStringLiteral("nn")));
    EXPECT_EQ(s.DatensatzNummer, 1);
    EXPECT_FALSE(SucheDatensatz(s, ui, QStringLiteral("Bernd")));
}

TEST(Loeschen, AsksAndClosesTheGap) {
    AppState s = Adressen({"A", "B", "C"});
    s.DatensatzNummer = 2;
    test::ProtokollOberflaeche ui;
    ui.standardAntwort = false;
    EXPECT_FALSE(LoescheDatensatz(s, ui));
    EXPECT_EQ(ui.fragen, QStringList{QStringLiteral("Diesen Datensatz löschen?")});
    EXPECT_EQ(Namen(s), u"ABC");

    ui.standardAntwort = true;
    EXPECT_TRUE(LoescheDatensatz(s, ui));
    EXPECT_EQ(Namen(s), u"AC");
    EXPECT_EQ(s.DatensatzNummer, 2);
    EXPECT_EQ(s.Panel.Text1(21), u"C");
    EXPECT_EQ(DatensatzFeld(s, 21, 2), u"/bilder/C.jpg"); // the whole record moved up

    EXPECT_TRUE(LoescheDatensatz(s, ui)); // the last one: the view steps back
    EXPECT_EQ(Namen(s), u"A");
    EXPECT_EQ(s.DatensatzNummer, 1);
}

TEST(Loeschen, TheOnlyRecordStaysAsAnEmptyOne) {
    AppState s = Adressen({"A"});
    test::ProtokollOberflaeche ui;
    EXPECT_TRUE(LoescheDatensatz(s, ui));
    EXPECT_EQ(s.DatensatzAnzahl, 1);
    for (int f = 1; f <= 20; ++f)
        EXPECT_TRUE(DatensatzFeld(s, f, 1).isEmpty()) << f;
    EXPECT_TRUE(s.Panel.Text1(22).isEmpty());
}

TEST(Einfuegen, InTheMiddle) {
    AppState s = Adressen({"A", "B", "C"});
    s.DatensatzNummer = 2;
    test::ProtokollOberflaeche ui;
    FuegeDatensatzEin(s, ui);
    EXPECT_EQ(s.DatensatzAnzahl, 4);
    EXPECT_EQ(Namen(s), u"A_BC");
    EXPECT_EQ(s.DatensatzNummer, 2);
    EXPECT_TRUE(DatensatzFeld(s, 21, 2).isEmpty());
    EXPECT_EQ(DatensatzFeld(s, 21, 4), u"/bilder/C.jpg");
    EXPECT_EQ(ui.fokus, 21);
    EXPECT_TRUE(s.Panel.Text1(21).isEmpty());
}

TEST(Feldbox, BoxesTwentyOneToThirtyEditTheRecord) {
    AppState s = Adressen({"A", "B"});
    s.DatensatzNummer = 2;
    test::ProtokollOberflaeche ui;
    FeldboxGeaendert(s, ui, 23, QStringLiteral("12345 Musterstadt"));
    EXPECT_EQ(DatensatzFeld(s, 3, 2), u"12345 Musterstadt");
    EXPECT_EQ(s.Schriftliste(23).Textstring, u"12345 Musterstadt");
    EXPECT_EQ(ui.neuzeichnen, 1);

    s.Datensaetze(5, 2) = QStringLiteral("fünf");
    FeldboxGeaendert(s, ui, 5, QStringLiteral("Slogan")); // a text box, no record field
    EXPECT_EQ(s.Schriftliste(5).Textstring, u"Slogan");
    EXPECT_EQ(DatensatzFeld(s, 5, 2), u"fünf");

    s.LadeSperre = 255; // filling the boxes: nothing is carried over
    FeldboxGeaendert(s, ui, 21, QStringLiteral("X"));
    EXPECT_EQ(DatensatzFeld(s, 1, 2), u"B");
    EXPECT_EQ(s.Panel.Text1(21), u"X");
}
