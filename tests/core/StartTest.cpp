#include "core/Start.h"
#include "common/TestHilfe.h"
#include "core/Beenden.h"
#include "core/Programmordner.h"
#include "core/runtime/TextDatei.h"
#include "core/state/AppState.h"
#include "core/state/Oberflaeche.h"
#include "tests/core/state/ProtokollOberflaeche.h"

#include <QDir>
#include <QFile>
#include <gtest/gtest.h>

using namespace zp;

namespace {
void Schreibe(const QString& pfad, const QByteArray& inhalt) {
    QFile f(pfad);
    ASSERT_TRUE(f.open(QIODevice::WriteOnly));
    f.write(inhalt);
}

// A program folder seeded from the shipped data for `edition`, with `Main` run on it.
AppState Gestartet(const QTemporaryDir& tmp, const QString& edition, test::ProtokollOberflaeche& ui) {
    QString fehler;
    EXPECT_TRUE(RichteProgrammordnerEin(tmp.path(), edition, QStringLiteral(ZP_DATEN_DIR), &fehler))
        << fehler.toStdString();
    AppState s;
    Main(s, tmp.path(), ui);
    return s;
}
} // namespace

TEST(Main, BuildsTheDefaultDocument) {
    QTemporaryDir leer; // no zp.ini: the built-in defaults stand and no edition is set
    AppState s;
    test::ProtokollOberflaeche ui;
    Main(s, leer.path(), ui);
    EXPECT_TRUE(ui.ganz.isEmpty());
    EXPECT_EQ(s.Programmpfad, leer.path() + u'/');
    EXPECT_EQ(s.Datendatei, leer.path() + QStringLiteral("/neu.zpd"));
    EXPECT_EQ(s.LadeSperre, 255);
    EXPECT_EQ(s.Seriennummer, 1); // "#Seriennummer" shows 1 until a print counts

    ASSERT_EQ(s.RahmenAnzahl, 31);
    ASSERT_EQ(s.Rahmenliste.Obergrenze(), 31);
    for (int n = 1; n <= 30; ++n) {
        EXPECT_EQ(s.Rahmenliste(n).Objekttyp, u"Schrift");
        EXPECT_EQ(s.Rahmenliste(n).Objektnummer, n);
        EXPECT_EQ(s.Rahmenliste(n).z, n);
        EXPECT_EQ(s.Rahmenliste(n).Data, -1);
    }
    EXPECT_EQ(s.Rahmenliste(31).Objekttyp, u"RTF");
    EXPECT_EQ(s.Rahmenliste(31).Objektnummer, 1);
    EXPECT_EQ(s.Rahmenliste(31).Sichtbar, -1);
    EXPECT_EQ(s.RTFliste(1), u"RTF1.rtf");
    EXPECT_EQ(s.Schriftliste.Obergrenze(), 30);
    EXPECT_EQ(s.Schriftliste(1).Data, 1);
    EXPECT_EQ(s.Schriftliste(2).Data, 0);
    EXPECT_EQ(s.AktuelleSeite.Breite, 2100);
    EXPECT_EQ(s.AktuelleSeite.Höhe, 2980); // ten higher than DIN A4, as a fresh page always was

    EXPECT_EQ(s.Farbtabelle(48), 0xFFC0FF);
    EXPECT_EQ(s.Farbtabelle(49), 0);
    EXPECT_EQ(s.Monatsnamen(3), QStringLiteral("März"));
    EXPECT_EQ(s.Wochentagsnamen(1), u"So");
    EXPECT_EQ(s.Wochentagsnamen(8), u"So");
    EXPECT_EQ(s.IstKalender + s.IstVisitenkarte + s.IstBriefkopf + s.IstEtikett + s.IstCDHuelle, 0);
}

TEST(Main, SettingsOverrideTheDefaultsAndChooseTheEdition) {
    QTemporaryDir tmp;
    Schreibe(tmp.filePath(QStringLiteral("zp.ini")),
             "Programmname = ZP CD-H\xFClle\r\nWochentag1 = Sonntag\r\nSeitenh\xF6he =  2970\r\n");
    AppState s;
    test::ProtokollOberflaeche ui;
    Main(s, tmp.path(), ui);
    EXPECT_EQ(s.IstCDHuelle, -1);
    EXPECT_EQ(s.AktuelleSeite.Höhe, 2970);
    EXPECT_EQ(s.Wochentagsnamen(1), u"Sonntag");
    EXPECT_EQ(s.Wochentagsnamen(8), u"So");
    // It lacks most keys: what it holds counts, and the user is told the rest are defaults.
    ASSERT_EQ(ui.ganz.size(), 1);
    EXPECT_TRUE(ui.ganz[0].contains(u"unvollständig")) << ui.ganz[0].toStdString();
    ui.ganz.clear();

    // A bad settings file is told and leaves the defaults.
    Schreibe(tmp.filePath(QStringLiteral("zp.ini")), "Programmname = ZP Etikett\r\nSeitenbreite = breit\r\n");
    AppState t;
    Main(t, tmp.path(), ui);
    ASSERT_EQ(ui.ganz.size(), 1);
    EXPECT_TRUE(ui.ganz[0].startsWith(u"Warnung!|Falsches Datenformat|"));
    EXPECT_TRUE(ui.ganz[0].contains(u"Zeile 2"));
    EXPECT_EQ(t.IstEtikett, 0);
}

TEST(SetzeEditionsflags, ExactNamesOnly) {
    struct Fall {
        const char* name;
        float AppState::*flag;
    } faelle[] = {{"ZP Kalender", &AppState::IstKalender},
                  {"ZP Visitenkarte", &AppState::IstVisitenkarte},
                  {"ZP Briefkopf", &AppState::IstBriefkopf},
                  {"ZP Etikett", &AppState::IstEtikett},
                  {"ZP CD-Hülle", &AppState::IstCDHuelle},
                  {"zp kalender", nullptr},
                  {"ZP Kalender ", nullptr},
                  {"ZP CD-Huelle", nullptr},
                  {"", nullptr}};
    for (const auto& f : faelle) {
        AppState s;
        s.IstKalender = -1; // a flag of before is cleared
        s.Programmname = QString::fromUtf8(f.name);
        SetzeEditionsflags(s);
        const float summe = s.IstKalender + s.IstVisitenkarte + s.IstBriefkopf + s.IstEtikett + s.IstCDHuelle;
        EXPECT_EQ(summe, f.flag ? -1 : 0) << f.name;
        if (f.flag) {
            EXPECT_EQ(s.*(f.flag), -1) << f.name;
        }
    }
}

TEST(Programmordner, EditionNamesAndFolderChoice) {
    EXPECT_EQ(NormaleEdition(QStringLiteral("etikett")), u"Etikett");
    EXPECT_EQ(NormaleEdition(QStringLiteral("CD-Huelle")), QStringLiteral("CD-Hülle"));
    EXPECT_EQ(NormaleEdition(QStringLiteral("cdhülle")), QStringLiteral("CD-Hülle"));
    EXPECT_EQ(NormaleEdition(QStringLiteral("Poster")), QString());
    EXPECT_EQ(ProgrammnameDerEdition(QStringLiteral("visitenkarte")), u"ZP Visitenkarte");

    QTemporaryDir tmp;
    EXPECT_EQ(WaehleProgrammordner(tmp.path(), QString()), tmp.path());
    const QString vorher = QDir::currentPath();
    const QByteArray xdg = qgetenv("XDG_DATA_HOME");
    qputenv("XDG_DATA_HOME", tmp.path().toUtf8());
    QDir::setCurrent(tmp.path());
    EXPECT_EQ(WaehleProgrammordner(QString(), QStringLiteral("etikett")),
              tmp.path() + QStringLiteral("/zp/Etikett"));
    EXPECT_EQ(WaehleProgrammordner(QString(), QString()), tmp.path() + QStringLiteral("/zp/Kalender"));
    // The current directory counts when it holds the settings file.
    Schreibe(tmp.filePath(QStringLiteral("zp.ini")), "");
    EXPECT_EQ(WaehleProgrammordner(QString(), QStringLiteral("Etikett")), tmp.path());
    QDir::setCurrent(vorher);
    qputenv("XDG_DATA_HOME", xdg);
}

TEST(Programmordner, SeedingKeepsTheUsersFiles) {
    QTemporaryDir tmp;
    const QString ordner = tmp.filePath(QStringLiteral("neu/tief"));
    QDir().mkpath(ordner);
    Schreibe(ordner + QStringLiteral("/etikett.ini"), "ende\r\n");
    QString fehler;
    ASSERT_TRUE(
        RichteProgrammordnerEin(ordner, QStringLiteral("Etikett"), QStringLiteral(ZP_DATEN_DIR), &fehler));
    EXPECT_EQ(LeseDatei(ordner + QStringLiteral("/etikett.ini")), QByteArray("ende\r\n"));
    EXPECT_TRUE(QFile::exists(ordner + QStringLiteral("/neu.lay")));
    EXPECT_TRUE(QFile::exists(ordner + QStringLiteral("/daten/must1.jpg")));
    EXPECT_FALSE(QFile::exists(ordner + QStringLiteral("/daten/editionen")));
    EXPECT_EQ(LeseDatei(ordner + QStringLiteral("/zp.ini")),
              LeseDatei(test::MitgelieferteDaten(QStringLiteral("editionen/Etikett/zp.ini"))));
    // A folder that has its settings is left alone.
    QFile::remove(ordner + QStringLiteral("/neu.lay"));
    ASSERT_TRUE(
        RichteProgrammordnerEin(ordner, QStringLiteral("Kalender"), QStringLiteral(ZP_DATEN_DIR), &fehler));
    EXPECT_FALSE(QFile::exists(ordner + QStringLiteral("/neu.lay")));
    // Without shipped data there is nothing to seed from.
    EXPECT_FALSE(RichteProgrammordnerEin(tmp.filePath(QStringLiteral("anders")), QString(),
                                         tmp.filePath(QStringLiteral("gibtsnicht")), &fehler));
    EXPECT_TRUE(fehler.contains(u"mitgelieferten Daten"));
}

TEST(Schriftenliste, FamiliennamenOhneHerstellerUndMitArial) {
    AppState s;
    LeseSchriftenliste(s);
    QStringList namen;
    for (int i = 1; i <= s.Schriftenliste.Obergrenze() && s.Schriftenliste(i) != u"-1"; ++i) {
        EXPECT_FALSE(s.Schriftenliste(i).contains(u'[')) << s.Schriftenliste(i).toStdString();
        EXPECT_FALSE(namen.contains(s.Schriftenliste(i))) << s.Schriftenliste(i).toStdString();
        namen << s.Schriftenliste(i);
        if (namen.last() == u"Arial") {
            EXPECT_EQ(s.SchriftSkalierbar(i), -1);
        }
    }
    EXPECT_TRUE(namen.contains(u"Arial"));
}

TEST(LadeStartzustand, EditionFilesAndStartDocument) {
    QTemporaryDir tmp;
    test::ProtokollOberflaeche ui;
    AppState e = Gestartet(tmp, QStringLiteral("Etikett"), ui);
    ASSERT_EQ(e.IstEtikett, -1);
    EXPECT_TRUE(LadeStartzustand(e, ui));
    EXPECT_GE(e.KartenformatAnzahl, 60);
    EXPECT_EQ(e.AktuelleDatei, tmp.path() + QStringLiteral("/neu.zpe"));
    EXPECT_EQ(e.RahmenAnzahl, 31);
    EXPECT_EQ(e.Rahmenliste(31).Sichtbar, 0);
    EXPECT_EQ(e.Schriftenliste(1).isEmpty(), false);
    EXPECT_TRUE(ui.ganz.isEmpty()) << ui.ganz.join(u'\n').toStdString();

    QTemporaryDir tmp2;
    AppState v = Gestartet(tmp2, QStringLiteral("Visitenkarte"), ui);
    EXPECT_TRUE(LadeStartzustand(v, ui));
    EXPECT_EQ(v.SchriftNummer, 21);
    // The records come from the shipped daten.dat, not from the start document (a template), and
    // the record on view fills the boxes 21 to 30 after the start document's own "Tel.:".
    EXPECT_EQ(v.Datensaetze(1, 1), u"Anna Schneider");
    EXPECT_EQ(v.Panel.Text1(21), v.Datensaetze(1, 1));
    EXPECT_EQ(v.Panel.Text1(25), v.Datensaetze(5, 1));

    // The calendar starts on its type's working design; without it the built-in document stays.
    QTemporaryDir tmp3;
    AppState k = Gestartet(tmp3, QStringLiteral("Kalender"), ui);
    QFile::remove(tmp3.filePath(QStringLiteral("kal1.zpk")));
    QFile::remove(tmp3.filePath(QStringLiteral("kal1v2.zpk"))); // shipped beside kal1.zpk
    k.Designvariante = QStringLiteral("v2");
    EXPECT_FALSE(LadeStartzustand(k, ui));
    EXPECT_TRUE(ui.ganz.last().contains(u"kal1v2.zpk"));
    EXPECT_EQ(k.RahmenAnzahl, 31);
    EXPECT_EQ(k.FeiertagWahl(1), 1); // kalender.ini was read
    EXPECT_EQ(k.Panel.MonthView1.MinDate, QDate(2027, 1, 1));
    EXPECT_EQ(k.Panel.MonthView2.MaxDate, QDate(2027, 12, 31));
    EXPECT_EQ(k.Panel.MonthView1.Value, QDate(2027, 1, 1));
}

TEST(Beenden, WritesTheEditionsFiles) {
    QTemporaryDir tmp;
    test::ProtokollOberflaeche ui;
    AppState k = Gestartet(tmp, QStringLiteral("Kalender"), ui);
    k.Kalendertyp = 3;
    k.FarbeTermin = 0x123456;
    EXPECT_TRUE(Beenden(k, ui));
    EXPECT_EQ(k.AktuelleDatei, tmp.path() + QStringLiteral("/kal3.zpk"));
    EXPECT_TRUE(LeseDatei(tmp.filePath(QStringLiteral("kal3.zpk")))->startsWith("ZP Datenfile\r\n"));
    EXPECT_TRUE(LeseDatei(tmp.filePath(QStringLiteral("kalender.ini")))->endsWith("\r\n1193046\r\n"));
    EXPECT_TRUE(LeseDatei(tmp.filePath(QStringLiteral("zp.ini")))->contains("Kalendertyp =  3\r\n"));
    EXPECT_EQ(k.Datendatei, tmp.path() + QStringLiteral("/auto.zpd")); // the day data's safety copy
    EXPECT_EQ(LeseDatei(k.Datendatei)->count("\r\n"), 2630);

    // A folder that can't be written: told, and the result says so.
    k.Programmpfad = tmp.filePath(QStringLiteral("weg/"));
    ui.ganz.clear();
    EXPECT_FALSE(Beenden(k, ui));
    EXPECT_EQ(ui.ganz.size(), 5); // zusatz.ini, zp.ini, kalender.ini, auto.zpd, the design

    // Visitenkarte: the address records go to daten.dat.
    QTemporaryDir tmp2;
    AppState v = Gestartet(tmp2, QStringLiteral("Visitenkarte"), ui);
    ASSERT_TRUE(LadeStartzustand(v, ui));
    v.Datensaetze(1, 1) = QStringLiteral("Erika Mustermann");
    EXPECT_TRUE(Beenden(v, ui));
    EXPECT_TRUE(LeseDatei(tmp2.filePath(QStringLiteral("daten.dat")))->contains("Erika Mustermann"));
}
