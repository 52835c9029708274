#include "tests/core/state/ProtokollOberflaeche.h"

#include "common/TestHilfe.h"
#include "core/runtime/TextDatei.h"
#include "core/state/AppState.h"
#include "persist/Datensaetze.h"

#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace zp;

namespace {
AppState MitDatensaetzen(int anzahl) {
    AppState s;
    s.Programmname = QStringLiteral("ZP Visitenkarte");
    s.Datensaetze.Redim(DatensatzFelder, anzahl);
    s.DatensatzAnzahl = anzahl;
    for (int r = 1; r <= anzahl; ++r)
        for (int f = 1; f <= DatensatzFelder; ++f)
            s.Datensaetze(f, r) = QStringLiteral("R%1F%2").arg(r).arg(f);
    return s;
}

QByteArray AlteDatei(int anzahl) { // a version 7 file: 20 lines a record
    QStringList z{QStringLiteral("ZP Datenbank"), QStringLiteral("ZP Etikett"), QStringLiteral("7.10"),
                  QStringLiteral("20"), QString::number(anzahl)};
    for (int r = 1; r <= anzahl; ++r)
        for (int f = 1; f <= 20; ++f)
            z << QStringLiteral("alt %1/%2").arg(r).arg(f);
    z << QStringLiteral("-1");
    return BytesAusZeilen(z);
}
} // namespace

TEST(Datenbank, RoundTripKeepsEveryFieldAndTheLineLayout) {
    AppState s = MitDatensaetzen(3);
    s.Datensaetze(1, 2) = QStringLiteral("Jürgen Weiß – „Büro“ €");
    s.Datensaetze(30, 3).clear();
    const QByteArray bytes = SchreibeDatenbank(s);
    const QStringList zeilen = ZeilenAusBytes(bytes);
    ASSERT_EQ(zeilen.size(), 5 + 3 * 30 + 1);
    EXPECT_EQ(zeilen[0], u"ZP Datenbank");
    EXPECT_EQ(zeilen[1], u"ZP Visitenkarte");
    EXPECT_EQ(zeilen[2], u"8.02");
    EXPECT_EQ(zeilen[3], u"20"); // constant of the format, though records have 30 fields
    EXPECT_EQ(zeilen[4], u"3");
    EXPECT_EQ(zeilen.last(), u"-1");
    EXPECT_TRUE(bytes.contains("\r\n"));
    EXPECT_FALSE(bytes.startsWith("\xEF\xBB\xBF")); // every character fits Windows-1252

    Datenbank db;
    ASSERT_EQ(LeseDatenbank(bytes, db), DatenbankLesung::Gelesen);
    EXPECT_EQ(db.DatensatzAnzahl, 3);
    EXPECT_EQ(db.FelderJeDatensatz, 30);
    for (int r = 1; r <= 3; ++r)
        for (int f = 1; f <= 30; ++f)
            EXPECT_EQ(db.Datensaetze(f, r), s.Datensaetze(f, r)) << r << "/" << f;
}

TEST(Datenbank, OldVersionHasTwentyFieldsAndIsSavedWithThirty) {
    // Only the version decides the width: line 4 says 30 here, and is not believed.
    QByteArray alt = AlteDatei(2);
    alt.replace("\r\n20\r\n2\r\n", "\r\n30\r\n2\r\n");
    Datenbank db;
    ASSERT_EQ(LeseDatenbank(alt, db), DatenbankLesung::Gelesen);
    EXPECT_EQ(db.FelderJeDatensatz, 20);
    EXPECT_EQ(db.Datensaetze.Obergrenze1(), 30);
    EXPECT_EQ(db.Datensaetze(20, 2), u"alt 2/20");
    EXPECT_EQ(db.Datensaetze(1, 2), u"alt 2/1"); // the second record starts right after 20 lines
    EXPECT_TRUE(db.Datensaetze(21, 1).isEmpty());

    AppState s;
    s.Datensaetze = db.Datensaetze;
    s.DatensatzAnzahl = db.DatensatzAnzahl;
    EXPECT_EQ(ZeilenAusBytes(SchreibeDatenbank(s)).size(), 5 + 2 * 30 + 1);
}

TEST(Datenbank, DamagedFilesAreRefusedWithTheLine) {
    Datenbank db;
    db.DatensatzAnzahl = 7;
    EXPECT_EQ(LeseDatenbank("ZP Datenfile\r\nx\r\n", db), DatenbankLesung::FremderKopf);
    EXPECT_EQ(LeseDatenbank("", db), DatenbankLesung::FremderKopf);
    EXPECT_EQ(db.DatensatzAnzahl, 7);

    // A count the file can't hold is refused before anything is allocated for it.
    try {
        LeseDatenbank(test::CrLf({"ZP Datenbank", "ZP Etikett", "8.02", "20", "999999999", "a", "-1"}), db);
        FAIL() << "no error";
    } catch (const FormatFehler& f) {
        EXPECT_EQ(f.zeile, 5);
    }
    QByteArray kurz = SchreibeDatenbank(MitDatensaetzen(2));
    kurz.chop(200);
    EXPECT_THROW(LeseDatenbank(kurz, db), FormatFehler);
    EXPECT_THROW(LeseDatenbank(test::CrLf({"ZP Datenbank", "x", "8.02", "20", "zwei"}), db), FormatFehler);
    EXPECT_EQ(db.DatensatzAnzahl, 7);
}

TEST(Datenbank, LineBreakInAFieldDoesNotShiftTheRecords) {
    AppState s = MitDatensaetzen(2);
    s.Datensaetze(2, 1) = QStringLiteral("Hauptstraße 1\r\nHinterhaus");
    Datenbank db;
    ASSERT_EQ(LeseDatenbank(SchreibeDatenbank(s), db), DatenbankLesung::Gelesen);
    EXPECT_EQ(db.Datensaetze(2, 1), u"Hauptstraße 1 Hinterhaus");
    EXPECT_EQ(db.Datensaetze(1, 2), u"R2F1");
}

TEST(Datenbank, FilesInTheProgramFolder) {
    QTemporaryDir dir;
    AppState s = MitDatensaetzen(2);
    s.Programmpfad = dir.path() + QLatin1Char('/');
    test::ProtokollOberflaeche ui;

    EXPECT_FALSE(LadeDatensaetze(s, ui)); // no file: nothing said, nothing changed
    EXPECT_TRUE(ui.meldungen.isEmpty() && ui.status.isEmpty());
    EXPECT_EQ(s.DatensatzAnzahl, 2);

    ASSERT_TRUE(SpeichereDatensaetze(s, ui));
    AppState neu;
    neu.Programmpfad = s.Programmpfad;
    neu.DatensatzNummer = 5;
    ASSERT_TRUE(LadeDatensaetze(neu, ui));
    EXPECT_EQ(neu.DatensatzAnzahl, 2);
    EXPECT_EQ(neu.DatensatzNummer, 1);
    EXPECT_EQ(neu.Datensaetze(30, 2), u"R2F30");

    // A foreign file is named in the status bar, a damaged one warned about; the records stay.
    const QString pfad = s.Programmpfad + QStringLiteral("daten.dat");
    ASSERT_TRUE(SchreibeDateiAtomar(pfad, "Adressen\r\n"));
    EXPECT_FALSE(LadeDatensaetze(neu, ui));
    EXPECT_EQ(ui.status.size(), 1);
    ASSERT_TRUE(SchreibeDateiAtomar(pfad, test::CrLf({"ZP Datenbank", "x", "8.02", "20", "1", "nur eins"})));
    EXPECT_FALSE(LadeDatensaetze(neu, ui));
    ASSERT_EQ(ui.meldungen, QStringList{QStringLiteral("Falsches Datenformat")});
    EXPECT_EQ(ui.titel_, u"Warnung!");
    EXPECT_TRUE(ui.detail_.contains(QStringLiteral("Zeile 5"))) << ui.detail_.toStdString();
    EXPECT_EQ(neu.Datensaetze(30, 2), u"R2F30");

    // An empty database still gives one record to type into.
    ASSERT_TRUE(SchreibeDateiAtomar(pfad, test::CrLf({"ZP Datenbank", "x", "8.02", "20", "0", "-1"})));
    EXPECT_TRUE(LadeDatensaetze(neu, ui));
    EXPECT_EQ(neu.DatensatzAnzahl, 1);
    EXPECT_TRUE(neu.Datensaetze(1, 1).isEmpty());
}
