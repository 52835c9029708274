#include "persist/Einstellungen.h"
#include "common/TestHilfe.h"
#include "core/runtime/TextDatei.h"
#include "core/state/AppState.h"

#include <QPrinterInfo>
#include <gtest/gtest.h>

using namespace zp;

TEST(ParseIniLine, SplitsAtTheFirstEqualsSign) {
    struct Fall {
        const char* zeile;
        const char* schluessel;
        const char* wert;
    } faelle[] = {
        {"Papierart  = DIN A4", "papierart", "DIN A4"},
        {"Papierart=DIN A4", "papierart", "DIN A4"},
        {"Dateien1 = C:\\a=b.zpb", "dateien1", "C:\\a=b.zpb"},
        {"  Gitter AN =   -1  ", "gitter an", "-1"},
        {"=", "", ""},
    };
    for (const auto& f : faelle) {
        const IniErgebnis e = ParseIniLine(QString::fromUtf8(f.zeile));
        ASSERT_TRUE(e.gueltig) << f.zeile;
        EXPECT_EQ(e.zeile.IniSchluessel, QString::fromUtf8(f.schluessel)) << f.zeile;
        EXPECT_EQ(e.zeile.IniWert, QString::fromUtf8(f.wert)) << f.zeile;
    }
    EXPECT_FALSE(ParseIniLine(QString()).gueltig);
    EXPECT_FALSE(ParseIniLine(QStringLiteral("kein Gleichheitszeichen")).gueltig);
}

TEST(LeseEinstellungen, AppliesTheKeyRules) {
    AppState s;
    s.Startdatei = QStringLiteral("vorher");
    const QByteArray ini = test::CrLf({
        "Gitter x = 5",
        "Gitter y = 7",
        "Rasterbreite = 20",
        "Rasterhoehe = 99",
        "Rasterh\xF6he = 30",
        "Kalendertyp =  3",
        "Kalenderjahr = 2003,5",
        "Startdatei = nie.zpk",
        "",
        "Seitenrand links = 12.5",
        "Seitenrand oben = 13.5abc",
        "Etikett Vorlage = 7",
        "Querformat = -1",
        "Grid = 0",
        "Unbekannt = 1",
        "Wochentag1 = Sonntag",
        "Monat3 = M\xE4rz",
        "Monat13 = zu viel",
        "Papierart = alt",
        "Papierart  = DIN A5",
        "Programmname = ZP Etikett",
    });
    ASSERT_TRUE(LeseEinstellungen(s, ini));
    // The grid that counts is the raster, whatever "Gitter x/y" said.
    EXPECT_EQ(s.GitterX, 20);
    EXPECT_EQ(s.GitterY, 30);
    EXPECT_EQ(s.Kalendertyp, 3);              // regional conversion
    EXPECT_EQ(s.Kalenderjahr, 2003);          // numeric prefix stops at the comma
    EXPECT_EQ(s.Startdatei, u"vorher");       // written as "Startdatei", looked for as "start_datei"
    EXPECT_EQ(s.AktuelleSeite.Randlinks, 12); // half to even
    EXPECT_EQ(s.AktuelleSeite.Randoben, 14);
    EXPECT_EQ(s.AktuellesEtikett.Vorlage, 7);
    EXPECT_EQ(s.AktuelleSeite.Querformat, -1);
    EXPECT_EQ(s.GridAn, 0);
    EXPECT_EQ(s.Wochentagsnamen(1), u"Sonntag");
    EXPECT_EQ(s.Wochentagsnamen(8), QString()); // index 8 has a key of its own
    EXPECT_EQ(s.Monatsnamen(3), QStringLiteral("März"));
    EXPECT_EQ(s.AktuelleSeite.Papier, u"DIN A5"); // the last of a repeated key counts
    EXPECT_EQ(s.Programmname, u"ZP Etikett");
}

TEST(LeseEinstellungen, ValueThatCannotBeReadChangesNothing) {
    AppState s;
    s.Programmname = QStringLiteral("ZP Kalender");
    Lesefehler fehler;
    EXPECT_FALSE(LeseEinstellungen(
        s, test::CrLf({"Programmname = ZP Etikett", "Rasterbreite = 20", "Gitter an = ja"}), &fehler));
    EXPECT_EQ(fehler.zeile, 3);
    EXPECT_EQ(s.Programmname, u"ZP Kalender");
    EXPECT_EQ(s.Rasterbreite, 100);
    // Integers and flags are checked; numeric-prefix keys never fail.
    EXPECT_FALSE(LeseEinstellungen(s, test::CrLf({"Seitenbreite = breit"})));
    EXPECT_FALSE(LeseEinstellungen(s, test::CrLf({"Querformat = vielleicht"})));
    EXPECT_TRUE(LeseEinstellungen(s, test::CrLf({"Abgleich x = links"})));
    EXPECT_EQ(s.AbgleichX, 0);
    // Text without "=" is not a settings file; empty lines are passed over.
    EXPECT_FALSE(LeseEinstellungen(s, test::CrLf({"Programmname = ZP Etikett", "", "\x01\x02 Unsinn"}), &fehler));
    EXPECT_EQ(fehler.zeile, 3);
    EXPECT_EQ(s.Programmname, u"ZP Kalender");
}

TEST(LeseEinstellungen, MissingKeysAreNamed) {
    AppState s;
    EXPECT_EQ(FehlendeEinstellungen(SchreibeEinstellungen(s)), QStringList());
    const QStringList alle = FehlendeEinstellungen({});
    EXPECT_EQ(alle.size(), 65);
    EXPECT_EQ(alle.first(), u"Version");
    EXPECT_EQ(alle.last(), u"Wochentag8");
    EXPECT_EQ(FehlendeEinstellungen(test::CrLf({"Version = 8.02", "Kalenderjahr = 2027"})).size(), 63);
}

TEST(SchreibeEinstellungen, WritesTheSixtyFiveKeysInTheirForms) {
    AppState s;
    s.GitterAn = -1;
    s.AktuelleSeite.Querformat = -1;
    s.AktuellesEtikett.Schnittmarken = -1;
    s.Kalendertyp = 2.5;
    s.Programmversion = QStringLiteral("8.02");
    s.Startdatei = QStringLiteral("x.zpk");
    s.Monatsnamen(1) = QStringLiteral("Januar");
    s.Druckername = QStringLiteral("PDF");
    const QStringList z = ZeilenAusBytes(SchreibeEinstellungen(s));
    ASSERT_EQ(z.size(), 65);
    EXPECT_EQ(z[0], u"Version = 8.02");
    EXPECT_EQ(z[1], u"Startdatei = x.zpk");
    EXPECT_EQ(z[3], u"Gitter an = -1");
    EXPECT_EQ(z[6], u"MM Genau =  0"); // form A: a blank for a value that isn't negative
    EXPECT_EQ(z[9], u"Seitenbreite =  0");
    EXPECT_EQ(z[15], u"Papierart  = ");
    EXPECT_EQ(z[16], u"Querformat = -1"); // form B
    EXPECT_EQ(z[34], u"Etikett Schnittmarken  = -1");
    EXPECT_EQ(z[38], u"Kalendertyp =  2.5");
    EXPECT_EQ(z[40], u"Grid = -1");
    EXPECT_EQ(z[41], u"Drucker = PDF");
    EXPECT_EQ(z[45], u"Monat1 = Januar");
    EXPECT_EQ(z[57], u"Wochentag1 = ");
    EXPECT_EQ(z[64], u"Wochentag8 = ");
}

TEST(SchreibeEinstellungen, ShippedSettingsComeBackByteForByte) {
    for (const char* edition : {"Kalender", "Visitenkarte", "Briefkopf", "Etikett", "CD-Huelle"}) {
        const QString pfad = test::MitgelieferteDaten(QStringLiteral("editionen/%1/zp.ini").arg(edition));
        const auto bytes = LeseDatei(pfad);
        ASSERT_TRUE(bytes) << edition;
        AppState s;
        ASSERT_TRUE(LeseEinstellungen(s, *bytes)) << edition;
        // The printer line names the machine's default printer when the file names none.
        QByteArray erwartet = *bytes;
        erwartet.replace("Drucker = \r\n",
                         "Drucker = " + QPrinterInfo::defaultPrinterName().toUtf8() + "\r\n");
        EXPECT_EQ(SchreibeEinstellungen(s), erwartet) << edition;
        EXPECT_TRUE(s.Programmname.startsWith(u"ZP ")) << edition;
    }
}
