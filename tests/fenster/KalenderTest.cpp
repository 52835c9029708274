// The calendar's commands and panel rules without a window: pages, year, type, day ranges.
#include "Attrappen.h"

#include "core/Kalenderbefehle.h"
#include "core/Seitennavigation.h"
#include "core/Tagesfelder.h"

#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace zp::test {
namespace {

TEST(Seiten, GetippteSeiteAusserhalbWirdEins) {
    struct Fall {
        const char* text;
        double anzahl;
        int seite;
        bool zurueck;
    };
    const Fall faelle[] = {
        {"12", 12, 12, false}, {"13", 12, 1, true}, {"-3", 12, 1, true},    {"0", 53, 1, true},
        {"abc", 4, 1, true},   {"", 4, 1, true},    {"153", 53, 53, false}, // the last two characters count
        {"2", 1, 1, true},     {"1", 1, 1, false},
    };
    for (const Fall& f : faelle) {
        const Seiteneingabe e = SeiteAusText(QString::fromLatin1(f.text), f.anzahl);
        EXPECT_EQ(e.seite, f.seite) << f.text;
        EXPECT_EQ(e.textZuruecksetzen, f.zurueck) << f.text;
    }
}

TEST(Seiten, BereichNachTypwechsel) {
    AppState s;
    s.Kalendertyp = 4;
    s.Seitennummer = 11;
    Seitenbereich(s);
    EXPECT_EQ(s.Seitenanzahl, 12);
    EXPECT_EQ(s.Seitennummer, 11);
    s.Kalendertyp = 7;
    Seitenbereich(s);
    EXPECT_EQ(s.Seitenanzahl, 4);
    EXPECT_EQ(s.Seitennummer, 1);
    // The week calendar always starts again at its first page.
    s.Kalendertyp = 6;
    s.Seitennummer = 20;
    Seitenbereich(s);
    EXPECT_EQ(s.Seitenanzahl, 53);
    EXPECT_EQ(s.Seitennummer, 1);
    EXPECT_FALSE(SeiteWaehlen(s, 1));
    EXPECT_TRUE(SeiteWaehlen(s, 53));
    EXPECT_FALSE(SeiteWaehlen(s, 54));
    EXPECT_EQ(s.Seitennummer, 53);
}

struct Jahr : ::testing::Test {
    void SetUp() override {
        Grundzustand(s, "ZP Kalender", "/tmp/zp");
        d = AlleDienste(p);
    }
    AppState s;
    Protokoll p;
    Dokumentdienste d;
    Nutzer ui;
};

TEST_F(Jahr, JaBerechnetDieFeiertageNeinBehaeltSie) {
    s.Feiertage(1, 5) = "Maifeiertag";
    ui.standardAntwort = true;
    EXPECT_TRUE(JahrGewaehlt(s, ui, d, 2004));
    EXPECT_EQ(s.Kalenderjahr, 2004);
    EXPECT_EQ(p.namen(), QStringList{"CommandBerechnen"});
    EXPECT_EQ(ui.fragen, QStringList{"Sollen die Feiertage neu berechnet werden?"});

    p.aufrufe.clear();
    ui.standardAntwort = false;
    s.Termine(3, 3) = "Zahnarzt";
    EXPECT_TRUE(JahrGewaehlt(s, ui, d, 2005));
    EXPECT_EQ(s.Kalenderjahr, 2005);
    EXPECT_TRUE(p.aufrufe.isEmpty());
    // Appointments stay in their day slot whatever the year.
    EXPECT_EQ(s.Termine(3, 3), "Zahnarzt");
    EXPECT_EQ(s.Feiertage(1, 5), "Maifeiertag");
}

TEST_F(Jahr, WaehrendEinesLadevorgangsKommtKeineFrage) {
    s.LadeSperre = 255;
    JahrGewaehlt(s, ui, d, 2003);
    EXPECT_TRUE(ui.fragen.isEmpty());
    EXPECT_TRUE(p.aufrufe.isEmpty());
}

TEST_F(Jahr, UnmoeglicheJahreWerdenAbgewiesen) {
    for (double j : {0.0, -3.0, 99999.0, 2004.5}) {
        EXPECT_FALSE(JahrGewaehlt(s, ui, d, j)) << j;
    }
    EXPECT_EQ(s.Kalenderjahr, 2002);
    EXPECT_EQ(ui.meldungen.size(), 4);
    EXPECT_TRUE(JahrZulaessig(1990) && JahrZulaessig(2150));
}

TEST_F(Jahr, TypwechselSpeichertDasAlteDesignUndLaedtDasNeue) {
    s.Kalendertyp = 1;
    s.Seitennummer = 2;
    EXPECT_TRUE(BefehlKalendertyp(s, ui, d, 6));
    EXPECT_EQ(p.aufrufe, (QStringList{"SaveDesign:/tmp/zp/kal1.zpk|" + s.Datendatei + "|",
                                      "LoadDesign:/tmp/zp/kal6.zpk|" + s.Datendatei + "|"}));
    EXPECT_EQ(s.Kalendertyp, 6);
    EXPECT_EQ(s.Seitenanzahl, 53);
    EXPECT_EQ(s.Seitennummer, 1);
    EXPECT_EQ(s.LadeSperre, 0);
    EXPECT_FALSE(BefehlKalendertyp(s, ui, d, 8));
}

TEST_F(Jahr, VarianteNimmtDieZahlAmEnde) {
    s.Kalendertyp = 4;
    BefehlVariante(s, ui, d, "Variante 2");
    EXPECT_EQ(s.Designvariante, "v2");
    EXPECT_EQ(p.namen(), (QStringList{"SaveDesign", "LoadDesign"}));
    EXPECT_TRUE(p.aufrufe[0].startsWith("SaveDesign:/tmp/zp/kal4.zpk"));
    EXPECT_TRUE(p.aufrufe[1].startsWith("LoadDesign:/tmp/zp/kal4v2.zpk"));
    BefehlVariante(s, ui, d, "Variante 1");
    EXPECT_TRUE(s.Designvariante.isEmpty());
}

TEST(Standarddesign, KopiertDieVorlageNurNachJa) {
    QTemporaryDir ordner;
    AppState s;
    Protokoll p;
    Nutzer ui;
    Grundzustand(s, "ZP Kalender", ordner.path());
    QDir(ordner.path()).mkdir("daten");
    auto schreibe = [](const QString& pfad, const QByteArray& inhalt) {
        QFile f(pfad);
        ASSERT_TRUE(f.open(QIODevice::WriteOnly));
        f.write(inhalt);
    };
    schreibe(ordner.filePath("daten/kal1.zpk"), "Vorlage");
    schreibe(ordner.filePath("kal1.zpk"), "Geaendert");
    auto inhalt = [&] {
        QFile f(ordner.filePath("kal1.zpk"));
        return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
    };
    ui.standardAntwort = false;
    EXPECT_FALSE(BefehlKalenderZuruecksetzen(s, ui, AlleDienste(p)));
    EXPECT_EQ(inhalt(), "Geaendert");
    ui.standardAntwort = true;
    EXPECT_TRUE(BefehlKalenderZuruecksetzen(s, ui, AlleDienste(p)));
    EXPECT_EQ(inhalt(), "Vorlage");
    EXPECT_EQ(p.namen(), QStringList{"LoadDesign"});
    EXPECT_EQ(s.AktuelleDatei, ordner.filePath("kal1.zpk"));
    // Without its master the working design stays and the user is told.
    s.Kalendertyp = 5;
    EXPECT_FALSE(BefehlKalenderZuruecksetzen(s, ui, AlleDienste(p)));
    EXPECT_EQ(ui.meldungen.size(), 1);
}

TEST(Tagesfelder, DreiTageGetipptEinenGeleert) {
    AppState s;
    const QDate a(2004, 3, 3), e(2004, 3, 5);
    TerminEingabe(s, {a, a, e}, "Urlaub");
    TagesfarbeSetzen(s, Tagesfarbe::TerminBack, {a, a, e}, 0x00FFFF);
    for (int t = 3; t <= 5; ++t) {
        EXPECT_EQ(s.Termine(t, 3), "Urlaub") << t;
        EXPECT_EQ(s.TerminBack(t, 3), 0x00FFFF) << t;
    }
    // Clearing with one day selected leaves the other two, and clears that day's colours.
    TerminEingabe(s, {QDate(2004, 3, 4), QDate(2004, 3, 4), QDate(2004, 3, 4)}, "");
    EXPECT_EQ(s.Termine(3, 3), "Urlaub");
    EXPECT_TRUE(s.Termine(4, 3).isEmpty());
    EXPECT_EQ(s.TerminBack(4, 3), -1);
    EXPECT_EQ(s.Termine(5, 3), "Urlaub");
    EXPECT_EQ(s.TerminBack(5, 3), 0x00FFFF);
}

TEST(Tagesfelder, FeiertagGiltNurFuerDenGewaehltenTag) {
    AppState s;
    FeiertagEingabe(s, QDate(2004, 12, 25), "1. Weihnachtstag");
    TagesfarbeSetzen(s, Tagesfarbe::FeiertagSchrift,
                     {QDate(2004, 12, 25), QDate(2004, 12, 24), QDate(2004, 12, 26)}, 0xFF);
    EXPECT_EQ(s.Feiertage(25, 12), "1. Weihnachtstag");
    EXPECT_EQ(s.FeiertagSchrift(25, 12), 0xFF);
    EXPECT_EQ(s.FeiertagSchrift(26, 12), -1);
    FeiertagEingabe(s, QDate(2004, 12, 25), "");
    EXPECT_EQ(s.FeiertagSchrift(25, 12), -1);
    // A range over the end of a month reaches no slot of the next one.
    TerminEingabe(s, {QDate(2004, 1, 30), QDate(2004, 1, 30), QDate(2004, 2, 2)}, "Reise");
    EXPECT_EQ(s.Termine(30, 1), "Reise");
    EXPECT_TRUE(s.Termine(31, 1).isEmpty());
    EXPECT_TRUE(s.Termine(1, 2).isEmpty());
}

TEST(Umschalten, NullUndMinusEinsTauschen) {
    float f = 0;
    Umschalten(f);
    EXPECT_EQ(f, -1);
    Umschalten(f);
    EXPECT_EQ(f, 0);
}

} // namespace
} // namespace zp::test
