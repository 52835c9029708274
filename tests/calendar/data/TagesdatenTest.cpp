#include "calendar/data/Tagesdaten.h"
#include "core/state/AppState.h"
#include "core/state/Oberflaeche.h"
#include "tests/core/state/ProtokollOberflaeche.h"

#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace zp;

namespace {
AppState ImJahr(int jahr) {
    AppState s;
    s.Kalenderjahr = jahr;
    MonatsansichtenAufJahr(s, jahr);
    return s;
}
void Waehle(Monatsansicht& v, QDate von, QDate bis) {
    v.Value = v.SelStart = von;
    v.SelEnd = bis;
}
} // namespace

TEST(Termine, RangeTextLandsOnEveryDayAndClearingOneLeavesTheOthers) {
    AppState s = ImJahr(2025);
    Waehle(s.Panel.MonthView1, QDate(2025, 3, 10), QDate(2025, 3, 12));
    TextTerminGeaendert(s, QStringLiteral("Urlaub"));
    for (int d = 10; d <= 12; ++d)
        EXPECT_EQ(s.Termine(d, 3), u"Urlaub");
    EXPECT_TRUE(s.Panel.MonthView1.Fett.contains(QDate(2025, 3, 11)));

    s.TerminBack(11, 3) = 0x00FFFF;
    s.TerminSchrift(11, 3) = 0x0000FF;
    Waehle(s.Panel.MonthView1, QDate(2025, 3, 11), QDate(2025, 3, 11));
    TextTerminGeaendert(s, QString());
    EXPECT_TRUE(s.Termine(11, 3).isEmpty());
    EXPECT_EQ(s.TerminBack(11, 3), -1); // clearing the text clears its colours
    EXPECT_EQ(s.TerminSchrift(11, 3), -1);
    EXPECT_EQ(s.Panel.PictureHintergrundfarbe, 0xFFFFFF);
    EXPECT_EQ(s.Termine(10, 3), u"Urlaub");
    EXPECT_EQ(s.Termine(12, 3), u"Urlaub");
    EXPECT_FALSE(s.Panel.MonthView1.Fett.contains(QDate(2025, 3, 11)));
}

TEST(Feiertage, TextAppliesToTheSelectedDayOnlyAndColoursFollow) {
    AppState s = ImJahr(2025);
    Waehle(s.Panel.MonthView2, QDate(2025, 8, 8), QDate(2025, 8, 10));
    TextFeiertagGeaendert(s, QStringLiteral("Friedensfest"));
    EXPECT_EQ(s.Feiertage(8, 8), u"Friedensfest");
    EXPECT_TRUE(s.Feiertage(9, 8).isEmpty()); // no range for holidays
    TagesfarbeGewaehlt(s, Tagesfarbe::FeiertagBack, 0x00AAFF);
    EXPECT_EQ(s.FeiertagBack(8, 8), 0x00AAFF);
    EXPECT_EQ(s.FeiertagBack(9, 8), -1);
    EXPECT_EQ(TagesfarbeStart(s, Tagesfarbe::FeiertagBack), 0x00AAFF);
    EXPECT_EQ(TagesfarbeStart(s, Tagesfarbe::FeiertagSchrift), 0xFFFFFF); // white for none
    TextFeiertagGeaendert(s, QString());
    EXPECT_EQ(s.FeiertagBack(8, 8), -1);

    // Appointment colours go over the whole range.
    Waehle(s.Panel.MonthView1, QDate(2025, 8, 1), QDate(2025, 8, 3));
    TagesfarbeGewaehlt(s, Tagesfarbe::TerminSchrift, 0x112233);
    for (int d = 1; d <= 3; ++d)
        EXPECT_EQ(s.TerminSchrift(d, 8), 0x112233);
    EXPECT_EQ(s.Panel.PictureTextfarbe, 0x112233);
}

TEST(Tagesmarken, BoldRequestSkipsTheFirstDateAndShortMonthsRollOver) {
    AppState s = ImJahr(2025);
    s.Termine(1, 4) = QStringLiteral("a");
    s.Termine(2, 4) = QStringLiteral("b");
    const auto fett = FettAnfrage(s, false, QDate(2025, 4, 1), 3);
    ASSERT_EQ(fett.size(), 4u);
    EXPECT_TRUE(fett[1]); // start + 1 = 2 April
    EXPECT_FALSE(fett[2]);
    // Day 31 of April is 1 May for the marks, and takes the (empty) slot 31 April.
    s.Panel.MonthView2.Value = QDate(2025, 4, 15);
    s.Panel.MonthView1.Fett.insert(QDate(2025, 5, 1));
    TagesmarkenAufbauen(s);
    EXPECT_TRUE(s.Panel.MonthView1.Fett.contains(QDate(2025, 4, 1)));
    EXPECT_FALSE(s.Panel.MonthView1.Fett.contains(QDate(2025, 5, 1)));
    s.Termine(31, 4) = QStringLiteral("nie gezeichnet");
    TagesmarkenAufbauen(s);
    EXPECT_TRUE(s.Panel.MonthView1.Fett.contains(QDate(2025, 5, 1)));
}

TEST(Jahreswechsel, AsksKeepsAppointmentsAndMovesTheViews) {
    AppState s = ImJahr(2004);
    s.FeiertagWahl(1) = 1;
    s.Termine(3, 3) = QStringLiteral("Geburtstag");
    s.Feiertage(5, 5) = QStringLiteral("alt");
    test::ProtokollOberflaeche ui;
    ui.standardAntwort = false;
    ASSERT_TRUE(JahrGewaehlt(s, ui, 2005));
    EXPECT_EQ(ui.fragen, QStringList{QStringLiteral("Sollen die Feiertage neu berechnet werden?")});
    EXPECT_EQ(s.Kalenderjahr, 2005);
    EXPECT_EQ(s.Feiertage(5, 5), u"alt"); // No keeps last year's table
    EXPECT_EQ(s.Termine(3, 3), u"Geburtstag");
    EXPECT_EQ(s.Panel.MonthView1.MinDate, QDate(2005, 1, 1));
    EXPECT_EQ(s.Panel.MonthView2.MaxDate, QDate(2005, 12, 31));

    ui.standardAntwort = true;
    ASSERT_TRUE(JahrGewaehlt(s, ui, 2006));
    EXPECT_TRUE(s.Feiertage(5, 5).isEmpty());
    EXPECT_EQ(s.Feiertage(1, 1), u"Neujahr");

    s.LadeSperre = 255; // while a design loads nothing asks
    ASSERT_TRUE(JahrGewaehlt(s, ui, 2007));
    EXPECT_EQ(ui.fragen.size(), 2);

    EXPECT_FALSE(JahrGewaehlt(s, ui, 10000));
    EXPECT_FALSE(JahrGetippt(s, ui, QStringLiteral("0")));
    EXPECT_FALSE(JahrGetippt(s, ui, QStringLiteral("zwanzig")));
    EXPECT_EQ(ui.meldungen.size(), 3);
    EXPECT_EQ(s.Kalenderjahr, 2007);
    EXPECT_TRUE(JahrGetippt(s, ui, QStringLiteral(" 2030 ")));
    EXPECT_EQ(s.Kalenderjahr, 2030);
}

TEST(Jahreswechsel, EinGetipptesJahrWirktBeimBestaetigenWieEineWahl) {
    AppState s = ImJahr(2026);
    Waehle(s.Panel.MonthView1, QDate(2026, 3, 3), QDate(2026, 3, 3));
    test::ProtokollOberflaeche ui;
    ui.standardAntwort = false;
    // Typing alone only stores the year; the views stay until Enter or leaving the box.
    ASSERT_TRUE(JahrGetippt(s, ui, QStringLiteral("2027")));
    EXPECT_EQ(s.Panel.MonthView1.MinDate, QDate(2026, 1, 1));
    ASSERT_TRUE(JahrBestaetigt(s, ui, QStringLiteral("2027")));
    EXPECT_EQ(ui.fragen.size(), 1);
    EXPECT_EQ(s.Panel.MonthView1.MinDate, QDate(2027, 1, 1));
    // A day picked now falls on the weekday of the new year.
    EXPECT_EQ(s.Panel.MonthView1.Value, QDate(2027, 3, 3));
    EXPECT_EQ(s.Panel.MonthView1.Value.dayOfWeek(), Qt::Wednesday);
    // The year on view again: nothing to ask.
    ASSERT_TRUE(JahrBestaetigt(s, ui, QStringLiteral("2027")));
    EXPECT_EQ(ui.fragen.size(), 1);
    EXPECT_FALSE(JahrBestaetigt(s, ui, QStringLiteral("zwanzig")));
    EXPECT_EQ(ui.meldungen.size(), 1);
    EXPECT_EQ(s.Kalenderjahr, 2027);
}

TEST(Tagesmarken, BlaetternMarkiertDenMonatUndLaesstDieAuswahl) {
    AppState s = ImJahr(2027);
    s.Feiertage(1, 12) = QStringLiteral("Advent");
    s.Termine(24, 12) = QStringLiteral("Heiligabend");
    Waehle(s.Panel.MonthView2, QDate(2027, 1, 1), QDate(2027, 1, 1));
    MonatGeblaettert(s, true, 2027, 12);
    MonatGeblaettert(s, false, 2027, 12);
    EXPECT_EQ(s.Panel.MonthView2.Value, QDate(2027, 1, 1));
    EXPECT_TRUE(s.Panel.MonthView2.Fett.contains(QDate(2027, 12, 1)));
    EXPECT_FALSE(s.Panel.MonthView2.Fett.contains(QDate(2027, 12, 24)));
    EXPECT_TRUE(s.Panel.MonthView1.Fett.contains(QDate(2027, 12, 24)));
}

TEST(Monatsbilder, SlotsCaptionsAndTheJanuaryRedraw) {
    QTemporaryDir dir;
    const QString bild = dir.filePath(QStringLiteral("januar.jpg"));
    QFile(bild).open(QIODevice::WriteOnly);
    AppState s;
    MonatsbildWaehlen(s, 2);
    BildbeschreibungGeaendert(s, QStringLiteral("Krokusse"));
    EXPECT_FALSE(BilddateiGeaendert(s, bild));
    EXPECT_EQ(s.Monatsbildtexte(3), u"Krokusse");
    MonatsbildWaehlen(s, 0);
    EXPECT_TRUE(s.Panel.TextBildbeschreibung.isEmpty());
    EXPECT_TRUE(BilddateiGeaendert(s, bild));
    EXPECT_FALSE(BilddateiGeaendert(s, QStringLiteral("/gibt/es/nicht.jpg")));
    MonatsbildWaehlen(s, 2);
    EXPECT_EQ(s.Panel.TextBildbeschreibung, u"Krokusse");
}

TEST(Neu, AsksAndClearsTheDayData) {
    AppState s = ImJahr(2025);
    s.Programmpfad = QStringLiteral("/tmp/zp/");
    s.Termine(1, 1) = QStringLiteral("x");
    s.Monatsbilder(5) = QStringLiteral("b.jpg");
    s.Panel.TextTitel = QStringLiteral("T");
    test::ProtokollOberflaeche ui;
    ui.standardAntwort = false;
    EXPECT_FALSE(KalenderdatenNeu(s, ui));
    EXPECT_EQ(s.Termine(1, 1), u"x");
    ui.standardAntwort = true;
    EXPECT_TRUE(KalenderdatenNeu(s, ui));
    EXPECT_TRUE(s.Termine(1, 1).isEmpty());
    EXPECT_EQ(s.Monatsbilder(5), u"b.jpg"); // the month pictures stay
    EXPECT_TRUE(s.Panel.TextTitel.isEmpty());
    EXPECT_EQ(s.Datendatei, u"/tmp/zp/neu.zpd");
}
