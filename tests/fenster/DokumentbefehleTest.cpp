// The document commands without a window: filters, New, Open, Save As, the gallery and the end.
#include "Attrappen.h"

#include "core/Dokumentbefehle.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace zp::test {
namespace {

struct Kalender : ::testing::Test {
    void SetUp() override {
        ASSERT_TRUE(ordner.isValid());
        Grundzustand(s, QStringLiteral("ZP Kalender"), ordner.path());
        d = AlleDienste(p);
    }
    QString Datei(const QString& name) {
        const QString pfad = ordner.filePath(name);
        QFile f(pfad);
        EXPECT_TRUE(f.open(QIODevice::WriteOnly));
        return pfad;
    }
    QTemporaryDir ordner;
    AppState s;
    Protokoll p;
    Dokumentdienste d;
    Nutzer ui;
};

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
    EXPECT_FALSE(BefehlNeu(s, ui, d));
    EXPECT_EQ(s.Termine(3, 5), "Geburtstag");
    EXPECT_EQ(s.Datendatei, "/x/meine.zpd");
    EXPECT_EQ(ui.datei, "unverändert");
    EXPECT_EQ(ui.fragen, QStringList{"Sollen die aktuellen Daten gelöscht werden?"});
    EXPECT_TRUE(p.aufrufe.isEmpty());
}

TEST_F(Kalender, NeuMitJaLeertDieTageUndLaedtKeinDesign) {
    s.Termine(3, 5) = "Geburtstag";
    s.TerminBack(3, 5) = 0x00FF00;
    s.Feiertage(1, 1) = "Neujahr";
    s.Panel.TextTitel = "Mein Jahr";
    EXPECT_TRUE(BefehlNeu(s, ui, d));
    EXPECT_TRUE(s.Termine(3, 5).isEmpty());
    EXPECT_EQ(s.TerminBack(3, 5), -1);
    EXPECT_TRUE(s.Feiertage(1, 1).isEmpty());
    EXPECT_TRUE(s.Panel.TextTitel.isEmpty());
    EXPECT_EQ(s.Datendatei, s.Programmpfad + "neu.zpd");
    EXPECT_EQ(ui.datei, s.Programmpfad + "neu.zpd");
    EXPECT_TRUE(p.aufrufe.isEmpty());
}

TEST(Neu, KartenLadenDasNeueDokument) {
    AppState s;
    Protokoll p;
    Nutzer ui;
    Grundzustand(s, "ZP Briefkopf", "/tmp/zp");
    ui.standardAntwort = false;
    EXPECT_FALSE(BefehlNeu(s, ui, AlleDienste(p)));
    EXPECT_TRUE(p.aufrufe.isEmpty());
    ui.standardAntwort = true;
    EXPECT_TRUE(BefehlNeu(s, ui, AlleDienste(p)));
    EXPECT_EQ(p.aufrufe, QStringList{"LoadDesign:||neu"});
    EXPECT_EQ(s.LadeSperre, 0);
}

TEST_F(Kalender, OeffnenVergleichtDieEndungKlein) {
    ui.vorgabeDatei = Datei("PLAN.ZPK");
    EXPECT_TRUE(BefehlOeffnen(s, ui, d));
    ASSERT_EQ(p.namen(), QStringList{"LoadDesign"});
    EXPECT_EQ(s.AktuelleDatei, ui.vorgabeDatei);
    EXPECT_EQ(s.LadeSperre, 0);

    p.aufrufe.clear();
    ui.vorgabeDatei = Datei("Termine.Zpd");
    BefehlOeffnen(s, ui, d);
    EXPECT_EQ(p.namen(), QStringList{"LadeDaten"});
    EXPECT_EQ(s.Datendatei, ui.vorgabeDatei);

    p.aufrufe.clear();
    ui.vorgabeDatei = Datei("alt.KAL");
    BefehlOeffnen(s, ui, d);
    EXPECT_EQ(p.namen(), QStringList{"ImportKal"});
}

TEST_F(Kalender, OeffnenOhneWahlOderMitFremderEndungLaedtNichts) {
    ui.vorgabeDatei.clear();
    EXPECT_FALSE(BefehlOeffnen(s, ui, d));
    ui.vorgabeDatei = Datei("bild.png");
    EXPECT_TRUE(BefehlOeffnen(s, ui, d));
    ui.vorgabeDatei = ordner.filePath("fehlt.zpk");
    BefehlOeffnen(s, ui, d);
    EXPECT_TRUE(p.aufrufe.isEmpty());
    EXPECT_EQ(ui.meldungen.size(), 1);
    EXPECT_EQ(s.LadeSperre, 0);
}

TEST_F(Kalender, SpeichernUnterVergleichtDieEndungGenau) {
    ui.vorgabeDatei = "/tmp/X.ZPD";
    BefehlSpeichernUnter(s, ui, d, Dateidialog::SpeichernUnter);
    // Capitals are no data ending here: a design is saved under that name.
    EXPECT_EQ(p.aufrufe, QStringList{"SaveDesign:/tmp/X.ZPD|" + s.Datendatei + "|"});
    EXPECT_EQ(s.AktuelleDatei, "/tmp/X.ZPD");

    p.aufrufe.clear();
    ui.vorgabeDatei = "/tmp/termine.zpd";
    BefehlSpeichernUnter(s, ui, d, Dateidialog::SpeichernUnter2);
    EXPECT_EQ(p.namen(), QStringList{"SpeichereDaten"});
    EXPECT_EQ(s.Datendatei, "/tmp/termine.zpd");
    EXPECT_EQ(s.AktuelleDatei, "/tmp/X.ZPD");
}

TEST_F(Kalender, OhneSchreiberWirdNichtsAlsGespeichertAusgegeben) {
    d.SaveDesign = nullptr;
    ui.vorgabeDatei = "/tmp/plan.zpk";
    s.AktuelleDatei = "/tmp/alt.zpk";
    EXPECT_FALSE(BefehlSpeichernUnter(s, ui, d, Dateidialog::SpeichernUnter));
    EXPECT_EQ(s.AktuelleDatei, "/tmp/alt.zpk");
    EXPECT_EQ(ui.meldungen.size(), 1);
}

TEST_F(Kalender, SpeichernSchreibtDesignUndDaten) {
    BefehlSpeichern(s, ui, d);
    EXPECT_EQ(p.namen(), (QStringList{"SaveDesign", "SpeichereDaten"}));
}

TEST_F(Kalender, BeendenHinterlaesstAutoZpdUndDasDesignDesTyps) {
    s.Kalendertyp = 4;
    s.Designvariante = "v2";
    s.Datendatei = "/home/ich/meine.zpd";
    s.AktuelleDatei = "/home/ich/anders.zpk";
    Beenden(s, ui, d);
    const QString design = s.Programmpfad + "kal4v2.zpk";
    const QString autoZpd = s.Programmpfad + "auto.zpd";
    EXPECT_EQ(p.aufrufe, (QStringList{"SaveSettings:/home/ich/anders.zpk|/home/ich/meine.zpd|",
                                      "SaveKalenderIni:/home/ich/anders.zpk|/home/ich/meine.zpd|",
                                      "SpeichereDaten:/home/ich/anders.zpk|" + autoZpd + "|",
                                      "SaveDesign:" + design + "|" + autoZpd + "|"}));
}

TEST_F(Kalender, EinFehlerBeimSchreibenBeendetNichtsUndWirdGemeldet) {
    d.SaveSettings = [](AppState&, Oberflaeche&) -> bool { throw std::runtime_error("Datenträger voll"); };
    Beenden(s, ui, d);
    EXPECT_EQ(ui.meldungen.size(), 1);
    // The day data and the design are still written after the failed settings.
    EXPECT_EQ(p.namen(), (QStringList{"SaveKalenderIni", "SpeichereDaten", "SaveDesign"}));
}

TEST(Beenden, KartenSchreibenDatensaetzeEtikettenIhrenKatalog) {
    AppState s;
    Protokoll p;
    Nutzer ui;
    Grundzustand(s, "ZP Visitenkarte", "/tmp/zp");
    Beenden(s, ui, AlleDienste(p));
    EXPECT_EQ(p.namen(), (QStringList{"SpeichereDatensaetze", "SaveSettings"}));
    AppState e;
    Protokoll pe;
    Grundzustand(e, "ZP Etikett", "/tmp/zp");
    Beenden(e, ui, AlleDienste(pe));
    EXPECT_EQ(pe.namen(), (QStringList{"SaveSettings", "SaveKartenformate"}));
}

TEST(Galerie, LaedtVorlageUndBehaeltDenEigenenDateinamen) {
    QTemporaryDir ordner;
    QDir(ordner.path()).mkdir("daten");
    QFile vorlage(ordner.filePath("daten/design3.zpv"));
    ASSERT_TRUE(vorlage.open(QIODevice::WriteOnly));
    vorlage.close();
    AppState s;
    Protokoll p;
    Nutzer ui;
    Grundzustand(s, "ZP Visitenkarte", ordner.path());
    s.AktuelleDatei = "/home/ich/karte.zpv";
    GalerieLaden(s, ui, AlleDienste(p), 2);
    EXPECT_EQ(p.aufrufe, QStringList{"LoadDesign:" + vorlage.fileName() + "||" + vorlage.fileName()});
    EXPECT_EQ(s.AktuelleDatei, "/home/ich/karte.zpv");
    EXPECT_EQ(ui.datei, "/home/ich/karte.zpv");
    // A row without its file loads nothing.
    p.aufrufe.clear();
    GalerieLaden(s, ui, AlleDienste(p), 7);
    EXPECT_TRUE(p.aufrufe.isEmpty());
}

} // namespace
} // namespace zp::test
