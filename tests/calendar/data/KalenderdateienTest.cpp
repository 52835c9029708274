#include "calendar/data/Kalenderdateien.h"
#include "core/runtime/TextDatei.h"
#include "core/state/AppState.h"
#include "core/state/Oberflaeche.h"
#include "persist/KalImport.h"
#include "persist/Kalenderdaten.h"
#include "tests/core/state/ProtokollOberflaeche.h"

#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace zp;

namespace {

QByteArray KalDatei(const QByteArray& zeile31) {
    QByteArray b;
    for (int i = 1; i <= 30; ++i)
        b += "Zeile " + QByteArray::number(i) + "\r\n";
    return b + zeile31 + "\r\n";
}
} // namespace

TEST(Zpd, EmptyDataIs2630LinesAndReadsBack) {
    const QByteArray bytes = ZpdBytes(Kalenderdaten{});
    EXPECT_EQ(bytes.count("\r\n"), 2630);
    const Kalenderdaten d = ZpdLesen(bytes);
    EXPECT_TRUE(d.Termine(31, 2).isEmpty());
    EXPECT_EQ(d.FeiertagBack(1, 1), -1);
}

TEST(Zpd, RoundTripKeepsMultiLineAppointmentsColoursAndUmlauts) {
    Kalenderdaten d;
    d.Termine(24, 12) = QStringLiteral("A\r\nB");
    d.Termine(1, 1) = QStringLiteral("eins\nzwei"); // a box's bare line feed becomes CR LF
    d.Termine(2, 1) = QStringLiteral("-1\r\nzwei"); // a line reading "-1" can't end the slot
    d.TerminSchrift(24, 12) = 255;
    d.TerminBack(3, 5) = 0x00FFEE;
    d.Feiertage(3, 10) = QStringLiteral("Tag der Dt. Einheit");
    d.FeiertagSchrift(3, 10) = 0x00FF00;
    d.Monatsbilder(7) = QStringLiteral("daten/bild7.jpg");
    d.Monatsbildtexte(7) = QStringLiteral("Sommer am See");
    d.TextTitel = QStringLiteral("Familienkalender für Müllers");
    d.TextUnterschrift = QStringLiteral("Größe €");
    const QByteArray bytes = ZpdBytes(d);
    EXPECT_FALSE(bytes.startsWith("\xEF\xBB\xBF")); // Windows-1252 holds all of it
    EXPECT_EQ(bytes.count("\r\n"), 2630 + 3);
    const Kalenderdaten r = ZpdLesen(bytes);
    EXPECT_EQ(r.Termine(24, 12), u"A\r\nB");
    EXPECT_EQ(r.Termine(1, 1), u"eins\r\nzwei");
    EXPECT_EQ(r.Termine(2, 1), u"-1 \r\nzwei");
    EXPECT_EQ(r.TerminSchrift(24, 12), 255);
    EXPECT_EQ(r.TerminBack(3, 5), 0x00FFEE);
    EXPECT_EQ(r.Feiertage(3, 10), u"Tag der Dt. Einheit");
    EXPECT_EQ(r.FeiertagSchrift(3, 10), 0x00FF00);
    EXPECT_EQ(r.Monatsbilder(7), u"daten/bild7.jpg");
    EXPECT_EQ(r.Monatsbildtexte(7), u"Sommer am See");
    EXPECT_EQ(r.TextTitel, u"Familienkalender für Müllers");
    EXPECT_EQ(r.TextUnterschrift, u"Größe €");
}

TEST(Zpd, BadFilesAreRefusedAndLeaveTheDocumentAlone) {
    QTemporaryDir dir;
    AppState s;
    s.Termine(5, 5) = QStringLiteral("bleibt");
    s.Datendatei = dir.filePath(QStringLiteral("vorher.zpd"));
    test::ProtokollOberflaeche ui;
    const QByteArray gut = ZpdBytes(Kalenderdaten{});
    QList<QByteArray> schlecht;
    schlecht << gut.left(gut.size() / 2); // cut short
    QByteArray text = gut;
    text.replace(text.indexOf("-1\r\n-1\r\n") + 4, 2, "xy"); // text where a colour stands
    schlecht << text;
    QByteArray verschoben = gut; // a "-1" inside an appointment
    verschoben.prepend("A\r\n-1\r\nB");
    schlecht << verschoben;
    QByteArray umbruch = gut;                             // a line break in a holiday
    umbruch.insert(372 * 14, "Feiertag\r\nzweite Zeile"); // 372 empty appointments of 14 bytes
    schlecht << umbruch;
    for (const QByteArray& b : schlecht) {
        const QString pfad = dir.filePath(QStringLiteral("kaputt.zpd"));
        ASSERT_TRUE(SchreibeDateiAtomar(pfad, b));
        EXPECT_EQ(DatenOeffnen(s, ui, pfad), Ladeergebnis::Fehler);
        EXPECT_EQ(s.Termine(5, 5), u"bleibt");
        EXPECT_EQ(s.Datendatei, dir.filePath(QStringLiteral("vorher.zpd")));
    }
    ASSERT_EQ(ui.meldungen.size(), schlecht.size());
    EXPECT_EQ(ui.meldungen[0], u"Falsches Datenformat");
    EXPECT_TRUE(ui.ganz[1].contains(QStringLiteral("Zeile ")));
    // A missing file is passed over silently.
    EXPECT_EQ(DatenOeffnen(s, ui, dir.filePath(QStringLiteral("fehlt.zpd"))), Ladeergebnis::Fehlt);
    EXPECT_EQ(ui.meldungen.size(), schlecht.size());
}

TEST(Zpd, SaveAndOpenThroughTheProgramFolder) {
    QTemporaryDir dir;
    AppState s;
    s.Programmpfad = dir.path() + QLatin1Char('/');
    s.Termine(29, 2) = QStringLiteral("Schalttag");
    s.Panel.TextTitel = QStringLiteral("Titel");
    s.Panel.MonthView1.Value = QDate(2024, 2, 29);
    Oberflaeche ui;
    ASSERT_TRUE(SpeichereAutoDaten(s, ui));
    EXPECT_EQ(s.Datendatei, dir.filePath(QStringLiteral("auto.zpd")));
    AppState t;
    t.Panel.MonthView1.Value = QDate(2024, 2, 29);
    t.Panel.MonthView2.Value = QDate(2024, 2, 1);
    ASSERT_EQ(DatenOeffnen(t, ui, s.Datendatei), Ladeergebnis::Geladen);
    EXPECT_EQ(t.Termine(29, 2), u"Schalttag");
    EXPECT_EQ(t.Panel.TextTitel, u"Titel");
    EXPECT_EQ(t.Panel.TextTermin, u"Schalttag"); // the panel shows the selected day afresh
    EXPECT_TRUE(t.Panel.MonthView1.Fett.contains(QDate(2024, 2, 29)));
}

TEST(Kal, EntriesAddToTheAppointments) {
    const auto e = KalLesen(KalDatei("24.12Heiligabend|5.06Tag|01.01Neujahr|"));
    ASSERT_EQ(e.size(), 3u);
    EXPECT_EQ(e[0].tag, 24);
    EXPECT_EQ(e[0].monat, 12);
    EXPECT_EQ(e[0].text, u"Heiligabend");
    EXPECT_EQ(e[1].tag, 5); // one digit: "5." reads as 5, the month stands behind the point
    EXPECT_EQ(e[1].monat, 6);
    EXPECT_EQ(e[1].text, u"Tag");
    // No "|" at all, a trailing entry without "|", and a short entry end the list.
    EXPECT_TRUE(KalLesen(KalDatei("24.12Heiligabend")).empty());
    EXPECT_EQ(KalLesen(KalDatei("01.02Eins|02.02Zwei")).size(), 1u);
    EXPECT_EQ(KalLesen(KalDatei("01.02Eins|1.2|03.02Drei|")).size(), 1u);
}

TEST(Kal, BadFilesReportAndChangeNothing) {
    EXPECT_THROW((void)KalLesen("nur\r\nwenige\r\nZeilen\r\n"), FormatFehler);
    EXPECT_THROW((void)KalLesen(KalDatei("01.01Gut|32.01Schlecht|")), FormatFehler);
    EXPECT_THROW((void)KalLesen(KalDatei("01.13Schlecht|")), FormatFehler);

    QTemporaryDir dir;
    AppState s;
    s.Termine(1, 1) = QStringLiteral("alt");
    s.Datendatei = QStringLiteral("vorher.zpd");
    test::ProtokollOberflaeche ui;
    const QString pfad = dir.filePath(QStringLiteral("alt.kal"));
    ASSERT_TRUE(SchreibeDateiAtomar(pfad, KalDatei("01.01Neu|xx.05Kaputt|")));
    EXPECT_EQ(KalOeffnen(s, ui, pfad), Ladeergebnis::Fehler);
    EXPECT_EQ(s.Termine(1, 1), u"alt"); // nothing taken over from a file that fails part way
    EXPECT_EQ(s.Datendatei, u"vorher.zpd");
    EXPECT_EQ(ui.meldungen, QStringList{QStringLiteral("Falsches Datenformat")});

    ASSERT_TRUE(SchreibeDateiAtomar(pfad, KalDatei("01.01Neu|24.12Fest|")));
    s.Feiertage(24, 12) = QStringLiteral("Hl. Abend");
    EXPECT_EQ(KalOeffnen(s, ui, pfad), Ladeergebnis::Geladen);
    EXPECT_EQ(s.Termine(1, 1), u"Neu");
    EXPECT_EQ(s.Termine(24, 12), u"Fest");
    EXPECT_EQ(s.Feiertage(24, 12), u"Hl. Abend");
    EXPECT_EQ(s.Datendatei, pfad);
}

TEST(Robustheit, DamagedFilesEndInAFormatErrorOrAResultNeverInAnotherFault) {
    Kalenderdaten d;
    d.Termine(3, 4) = QStringLiteral("zwei\r\nZeilen");
    d.Feiertage(1, 1) = QStringLiteral("Neujahr");
    const QByteArray gut = ZpdBytes(d);
    const QByteArray kal = KalDatei("01.01Eins|24.12Heiligabend|5.6Kurz|");
    auto pruefe = [](auto&& lesen, const QByteArray& b) {
        try {
            (void)lesen(b);
        } catch (const FormatFehler&) {
        } catch (const std::exception& e) {
            ADD_FAILURE() << "unerwarteter Fehler: " << e.what();
        }
    };
    const auto zpd = [](const QByteArray& b) { return ZpdLesen(b); };
    const auto alt = [](const QByteArray& b) { return KalLesen(b); };
    for (int i = 0; i < gut.size(); i += 37) {
        pruefe(zpd, gut.left(i));
        QByteArray kaputt = gut;
        kaputt[i] = static_cast<char>("-1x|\r\n\xFC."[i % 8]);
        pruefe(zpd, kaputt);
    }
    for (int i = 0; i < kal.size(); ++i) {
        pruefe(alt, kal.left(i));
        QByteArray kaputt = kal;
        kaputt[i] = static_cast<char>("-0x|.\n9\xE4"[i % 8]);
        pruefe(alt, kaputt);
    }
}
