// The document commands without a window: filters, New, Open, Save As, the gallery and the end,
// on the files of a program folder of their own.
#include "Attrappen.h"
#include "common/TestHilfe.h"

#include "calendar/data/Kalenderdateien.h"
#include "core/Beenden.h"
#include "core/Dokumentbefehle.h"
#include "persist/Design.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace zp::test {
namespace {

// A design file written from `s` with frame 2 at `x`, by which a test sees which design was loaded.
void DesignSchreiben(AppState s, const QString& pfad, double x) {
    Nutzer still;
    s.Rahmenliste(2).X = x;
    s.AktuelleDatei = pfad;
    ASSERT_TRUE(SaveDesign(s, still)) << pfad.toStdString();
}

struct Ordner : ::testing::Test {
    void Anlegen(const char* programmname) {
        ASSERT_TRUE(ordner.isValid());
        Grundzustand(s, QString::fromUtf8(programmname), ordner.path());
    }
    [[nodiscard]] QString Pfad(const QString& name) const { return ordner.filePath(name); }
    [[nodiscard]] bool Da(const QString& name) const { return QFileInfo::exists(Pfad(name)); }
    QTemporaryDir ordner;
    AppState s;
    Nutzer ui;
};

struct Kalender : Ordner {
    void SetUp() override { Anlegen("ZP Kalender"); }
};
struct Karten : Ordner {};

TEST(Dateifilter, JedeEditionMitIhrenEndungen) {
    AppState s;
    s.IstBriefkopf = -1;
    EXPECT_EQ(Dateifilter(s, Dateidialog::Oeffnen), "ZP Briefkopf (*.zpb)|*.zpb");
    s.IstBriefkopf = 0;
    s.IstEtikett = -1;
    EXPECT_TRUE(Dateifilter(s, Dateidialog::Oeffnen).endsWith("Textdatei (*.txt)|*.txt"));
    EXPECT_EQ(Dateifilter(s, Dateidialog::SpeichernUnter2), "ZP Etikett (*.zpe)|*.zpe");
    s.IstEtikett = 0;
    s.IstKalender = -1;
    // The two Save As entries differ only in which filter comes first.
    EXPECT_TRUE(Dateifilter(s, Dateidialog::SpeichernUnter).startsWith("Kalenderdesign"));
    EXPECT_TRUE(Dateifilter(s, Dateidialog::SpeichernUnter2).startsWith("Termine und Daten"));
    s.IstKalender = 0;
    s.IstCDHuelle = -1;
    EXPECT_TRUE(Dateifilter(s, Dateidialog::Oeffnen).isEmpty());
    EXPECT_TRUE(Dateifilter(s, Dateidialog::SpeichernUnter).isEmpty());
}

TEST(Dateifilter, QtFormKeepsEveryPattern) {
    EXPECT_EQ(QtDateifilter("Termine und Daten (*.zpd)|*.zpd|Version 5/6  (*.kal)|*.kal"),
              "Termine und Daten (*.zpd);;Version 5/6 (*.kal)");
    EXPECT_EQ(QtDateifilter("BMP|*.bmp"), "BMP (*.bmp)");
    EXPECT_TRUE(QtDateifilter({}).isEmpty());
}

TEST(Dateifilter, SpeichernUnterGibtDemNamenDieEndungDesFilters) {
    struct Fall {
        const char* name;
        const char* eintrag;
        const char* erwartet;
    } faelle[] = {
        {"/home/ich/meinkalender", "Kalenderdesign (*.zpk)", "/home/ich/meinkalender.zpk"},
        {"/home/ich/meinkalender", "Termine und Daten (*.zpd)", "/home/ich/meinkalender.zpd"},
        {"/home/ich/karte", "*.zpv", "/home/ich/karte.zpv"},
        {"/home/ich/plan.zpk", "Termine und Daten (*.zpd)", "/home/ich/plan.zpk"}, // typed ending stays
        {"/home/ich/Plan.ZPD", "Kalenderdesign (*.zpk)", "/home/ich/Plan.ZPD"},
        {"/home/ich.neu/cover", "", "/home/ich.neu/cover"}, // the CD cover has no filter
        {"", "Kalenderdesign (*.zpk)", ""},                 // cancelled
    };
    for (const Fall& f : faelle)
        EXPECT_EQ(MitFilterendung(f.name, f.eintrag), f.erwartet) << f.name << " " << f.eintrag;
}

TEST_F(Kalender, NeuMitNeinLaesstAllesStehen) {
    s.Termine(3, 5) = "Geburtstag";
    s.Datendatei = "/x/meine.zpd";
    ui.standardAntwort = false;
    ui.datei = "unverändert";
    EXPECT_FALSE(BefehlNeu(s, ui));
    EXPECT_EQ(s.Termine(3, 5), "Geburtstag");
    EXPECT_EQ(s.Datendatei, "/x/meine.zpd");
    EXPECT_EQ(ui.datei, "unverändert");
    EXPECT_EQ(ui.fragen, QStringList{"Sollen die aktuellen Daten gelöscht werden?"});
    EXPECT_TRUE(QDir(ordner.path()).isEmpty());
}

TEST_F(Kalender, NeuMitJaLeertDieTageUndLaedtKeinDesign) {
    s.Termine(3, 5) = "Geburtstag";
    s.TerminBack(3, 5) = 0x00FF00;
    s.Feiertage(1, 1) = "Neujahr";
    s.Panel.TextTitel = "Mein Jahr";
    s.Rahmenliste(2).X = 1234;
    EXPECT_TRUE(BefehlNeu(s, ui));
    EXPECT_TRUE(s.Termine(3, 5).isEmpty());
    EXPECT_EQ(s.TerminBack(3, 5), -1);
    EXPECT_TRUE(s.Feiertage(1, 1).isEmpty());
    EXPECT_TRUE(s.Panel.TextTitel.isEmpty());
    EXPECT_EQ(s.Datendatei, s.Programmpfad + "neu.zpd");
    EXPECT_EQ(ui.datei, s.Programmpfad + "neu.zpd");
    EXPECT_EQ(s.Rahmenliste(2).X, 1234); // the design stays
}

TEST_F(Karten, NeuLaedtDasNeueDokument) {
    Anlegen("ZP Briefkopf");
    // The new document of the card editions comes from the shipped neu.lay.
    ASSERT_TRUE(QFile::copy(MitgelieferteDaten("programm/neu.lay"), Pfad("neu.lay")));
    s.Rahmenliste(2).X = 1234;
    ui.standardAntwort = false;
    EXPECT_FALSE(BefehlNeu(s, ui));
    EXPECT_EQ(s.Rahmenliste(2).X, 1234);
    ui.standardAntwort = true;
    EXPECT_TRUE(BefehlNeu(s, ui));
    EXPECT_EQ(s.AktuelleDatei, s.Programmpfad + "neu.zpb"); // never over the file it came from
    EXPECT_NE(s.Rahmenliste(2).X, 1234);
    EXPECT_EQ(s.LadeSperre, 0);
}

TEST_F(Kalender, OeffnenVergleichtDieEndungKlein) {
    DesignSchreiben(s, Pfad("PLAN.ZPK"), 777);
    ui.vorgabeDatei = Pfad("PLAN.ZPK");
    EXPECT_TRUE(BefehlOeffnen(s, ui));
    EXPECT_EQ(s.AktuelleDatei, ui.vorgabeDatei);
    EXPECT_EQ(s.Rahmenliste(2).X, 777);
    EXPECT_EQ(s.LadeSperre, 0);

    // Day data under a capitalised ending are read as day data.
    s.Termine(4, 2) = "Zahnarzt";
    s.Datendatei = Pfad("Termine.Zpd");
    ASSERT_TRUE(SpeichereDaten(s, ui));
    s.Termine(4, 2).clear();
    const QString design = s.AktuelleDatei;
    ui.vorgabeDatei = Pfad("Termine.Zpd");
    BefehlOeffnen(s, ui);
    EXPECT_EQ(s.Termine(4, 2), "Zahnarzt");
    EXPECT_EQ(s.Datendatei, ui.vorgabeDatei);
    EXPECT_EQ(s.AktuelleDatei, design);

    // An old calendar file goes to the import, never to the design.
    QFile kal(Pfad("alt.KAL"));
    ASSERT_TRUE(kal.open(QIODevice::WriteOnly));
    kal.close();
    ui.vorgabeDatei = kal.fileName();
    BefehlOeffnen(s, ui);
    EXPECT_EQ(s.AktuelleDatei, design);
    EXPECT_EQ(s.Rahmenliste(2).X, 777);
}

TEST_F(Kalender, OeffnenOhneWahlOderMitFremderEndungLaedtNichts) {
    s.AktuelleDatei = "/x/plan.zpk";
    s.Datendatei = "/x/plan.zpd";
    ui.vorgabeDatei.clear();
    EXPECT_FALSE(BefehlOeffnen(s, ui));
    QFile bild(Pfad("bild.png"));
    ASSERT_TRUE(bild.open(QIODevice::WriteOnly));
    bild.close();
    ui.vorgabeDatei = bild.fileName();
    EXPECT_TRUE(BefehlOeffnen(s, ui));
    ui.vorgabeDatei = Pfad("fehlt.zpk");
    BefehlOeffnen(s, ui);
    EXPECT_EQ(s.AktuelleDatei, "/x/plan.zpk");
    EXPECT_EQ(s.Datendatei, "/x/plan.zpd");
    EXPECT_EQ(ui.meldungen.size(), 1);
    EXPECT_EQ(s.LadeSperre, 0);
}

TEST_F(Kalender, SpeichernUnterVergleichtDieEndungGenau) {
    ui.vorgabeDatei = Pfad("X.ZPD");
    const QString daten = s.Datendatei;
    BefehlSpeichernUnter(s, ui, Dateidialog::SpeichernUnter);
    // Capitals are no data ending here: a design is saved under that name.
    EXPECT_TRUE(Da("X.ZPD"));
    EXPECT_EQ(s.AktuelleDatei, Pfad("X.ZPD"));
    EXPECT_EQ(s.Datendatei, daten);

    ui.vorgabeDatei = Pfad("termine.zpd");
    BefehlSpeichernUnter(s, ui, Dateidialog::SpeichernUnter2);
    EXPECT_TRUE(Da("termine.zpd"));
    EXPECT_EQ(s.Datendatei, Pfad("termine.zpd"));
    EXPECT_EQ(s.AktuelleDatei, Pfad("X.ZPD"));
}

TEST_F(Kalender, SpeichernSchreibtDesignUndDaten) {
    s.AktuelleDatei = Pfad("plan.zpk");
    s.Datendatei = Pfad("plan.zpd");
    EXPECT_TRUE(BefehlSpeichern(s, ui));
    EXPECT_TRUE(Da("plan.zpk"));
    EXPECT_TRUE(Da("plan.zpd"));
}

TEST_F(Kalender, BeendenHinterlaesstAutoZpdUndDasDesignDesTyps) {
    s.Kalendertyp = 4;
    s.Designvariante = "v2";
    s.Datendatei = Pfad("meine.zpd");
    s.AktuelleDatei = Pfad("anders.zpk");
    EXPECT_TRUE(Beenden(s, ui));
    for (const char* datei : {"zp.ini", "kalender.ini", "auto.zpd", "kal4v2.zpk"})
        EXPECT_TRUE(Da(datei)) << datei;
    EXPECT_FALSE(Da("meine.zpd"));
    EXPECT_FALSE(Da("anders.zpk"));
    EXPECT_EQ(s.Datendatei, Pfad("auto.zpd"));
}

TEST_F(Kalender, EineDateiImWegWirdAufbewahrtUndGemeldet) {
    // A folder under the settings' name can't be read: it is moved aside, told, and the new
    // settings and the calendar's files are written all the same.
    ASSERT_TRUE(QDir(ordner.path()).mkdir("zp.ini"));
    EXPECT_TRUE(Beenden(s, ui));
    EXPECT_FALSE(ui.meldungen.isEmpty());
    EXPECT_TRUE(QFileInfo(Pfad("zp.ini.defekt")).isDir());
    for (const char* datei : {"zp.ini", "kalender.ini", "auto.zpd", "kal1.zpk"})
        EXPECT_TRUE(QFileInfo(Pfad(datei)).isFile()) << datei;
}

TEST_F(Karten, BeendenSchreibtDatensaetzeEtikettenIhrenKatalog) {
    Anlegen("ZP Visitenkarte");
    EXPECT_TRUE(Beenden(s, ui));
    EXPECT_TRUE(Da("daten.dat"));
    EXPECT_TRUE(Da("zp.ini"));
    EXPECT_FALSE(Da("etikett.ini"));

    QTemporaryDir anderer;
    AppState e;
    Grundzustand(e, "ZP Etikett", anderer.path());
    EXPECT_TRUE(Beenden(e, ui));
    EXPECT_TRUE(QFileInfo::exists(anderer.filePath("zp.ini")));
    EXPECT_TRUE(QFileInfo::exists(anderer.filePath("etikett.ini")));
    EXPECT_FALSE(QFileInfo::exists(anderer.filePath("daten.dat")));
}

TEST_F(Karten, GalerieLaedtVorlageUndBehaeltDenEigenenDateinamen) {
    Anlegen("ZP Visitenkarte");
    ASSERT_TRUE(QDir(ordner.path()).mkdir("daten"));
    DesignSchreiben(s, Pfad("daten/design3.zpv"), 333);
    s.AktuelleDatei = "/home/ich/karte.zpv";
    GalerieLaden(s, ui, 2);
    EXPECT_EQ(s.Rahmenliste(2).X, 333);
    EXPECT_EQ(s.AktuelleDatei, "/home/ich/karte.zpv");
    EXPECT_EQ(ui.datei, "/home/ich/karte.zpv");
    // A row without its file loads nothing.
    s.Rahmenliste(2).X = 1;
    GalerieLaden(s, ui, 7);
    EXPECT_EQ(s.Rahmenliste(2).X, 1);
}

} // namespace
} // namespace zp::test
