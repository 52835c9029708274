// A file that Open or the import rejects leaves the document, its file names and the status bar
// as they were, so that the next Save can't go over the rejected file.
#include "common/TestHilfe.h"
#include "core/Dokumentbefehle.h"
#include "core/Importbefehl.h"
#include "core/Programmordner.h"
#include "core/Start.h"
#include "core/state/AppState.h"
#include "persist/Design.h"
#include "persist/Kalenderdaten.h"
#include "tests/core/state/ProtokollOberflaeche.h"

#include <QFile>
#include <gtest/gtest.h>

namespace zp::test {
namespace {

struct Gestartet {
    explicit Gestartet(const QString& edition) {
        QString fehler;
        EXPECT_TRUE(RichteProgrammordnerEin(tmp.path(), edition, QStringLiteral(ZP_DATEN_DIR), &fehler));
        Main(s, tmp.path(), ui);
        LadeStartzustand(s, ui);
        s.LadeSperre = 0;
        ui.meldungen.clear();
    }
    QString Datei(const QString& name, const QByteArray& inhalt) {
        const QString pfad = tmp.filePath(name);
        QFile f(pfad);
        EXPECT_TRUE(f.open(QIODevice::WriteOnly));
        f.write(inhalt);
        return pfad;
    }
    QTemporaryDir tmp;
    AppState s;
    ProtokollOberflaeche ui;
};

// A few bytes of a JPEG picture.
const QByteArray Foto("\xFF\xD8\xFF\xE0\x00\x10JFIF\x00\x01\x01\x00\x00\x01\x00\x01\x00\x00", 20);

TEST(Oeffnen, EinAbgelehntesFotoBleibtUnberuehrt) {
    for (const char* edition : {"CD-Hülle", "Visitenkarte", "Etikett"}) {
        Gestartet g(QString::fromUtf8(edition));
        const QString foto = g.Datei(QStringLiteral("urlaub.jpg"), Foto);
        const QString vorher = g.s.AktuelleDatei;
        const QByteArray dokument = SchreibeDesign(g.s);
        g.ui.datei = vorher; // what the status bar shows
        g.ui.vorgabeDatei = foto;
        BefehlOeffnen(g.s, g.ui);
        EXPECT_EQ(g.ui.meldungen, QStringList{"Falsches Datenformat"}) << edition;
        EXPECT_EQ(g.s.AktuelleDatei, vorher) << edition;
        EXPECT_EQ(g.ui.datei, vorher) << edition;
        EXPECT_EQ(SchreibeDesign(g.s), dokument) << edition;
        EXPECT_EQ(g.s.LadeSperre, 0);
        // Save goes to the document's own file, never over the photo.
        BefehlSpeichern(g.s, g.ui);
        QFile f(foto);
        ASSERT_TRUE(f.open(QIODevice::ReadOnly));
        EXPECT_EQ(f.readAll(), Foto) << edition;
    }
}

TEST(Oeffnen, KalenderBehaeltDatenUndDesignBeiFalschenDateien) {
    Gestartet g(QStringLiteral("Kalender"));
    g.s.Termine(3, 5) = QStringLiteral("Zahnarzt");
    const QString daten = g.s.Datendatei;
    const QString design = g.s.AktuelleDatei;
    const QByteArray tage = ZpdBytes(KalenderdatenAus(g.s));
    const QByteArray dokument = SchreibeDesign(g.s);
    for (const QString& name : {QStringLiteral("kaputt.zpd"), QStringLiteral("kaputt.zpk")}) {
        g.ui.meldungen.clear();
        g.ui.vorgabeDatei = g.Datei(name, Foto);
        BefehlOeffnen(g.s, g.ui);
        EXPECT_EQ(g.ui.meldungen, QStringList{"Falsches Datenformat"}) << name.toStdString();
        EXPECT_EQ(g.s.Datendatei, daten);
        EXPECT_EQ(g.s.AktuelleDatei, design);
        EXPECT_EQ(g.ui.datei, daten);
        EXPECT_EQ(ZpdBytes(KalenderdatenAus(g.s)), tage);
        EXPECT_EQ(SchreibeDesign(g.s), dokument);
    }
}

TEST(Oeffnen, EinDesignEinesAnderenTypsBringtDieSeiteInSeinenBereich) {
    Gestartet g(QStringLiteral("Kalender"));
    g.s.Kalendertyp = 4; // Monat 1
    const QString monat = g.Datei(QStringLiteral("monat.zpk"), SchreibeDesign(g.s));
    g.s.Kalendertyp = 6; // Woche, on its last page
    g.s.Seitenanzahl = 53;
    g.s.Seitennummer = 53;
    g.ui.vorgabeDatei = monat;
    BefehlOeffnen(g.s, g.ui);
    ASSERT_EQ(g.s.Kalendertyp, 4);
    EXPECT_LE(g.s.Seitenanzahl, 13);
    EXPECT_GE(g.s.Seitennummer, 1);
    EXPECT_LE(g.s.Seitennummer, g.s.Seitenanzahl);
}

TEST(Importieren, EineUnlesbareDateiLaesstDieAdressenStehen) {
    Gestartet g(QStringLiteral("Etikett"));
    g.s.Datensaetze(1, 1) = QStringLiteral("Erika Mustermann");
    const double anzahl = g.s.DatensatzAnzahl;
    const QString vorher = g.s.AktuelleDatei;
    EXPECT_FALSE(Importieren(g.s, g.ui, g.Datei(QStringLiteral("alt.eti"), "nur\r\ndrei\r\nZeilen\r\n")));
    EXPECT_EQ(g.ui.meldungen, QStringList{"Falsches Datenformat"});
    EXPECT_EQ(g.s.Datensaetze(1, 1), u"Erika Mustermann");
    EXPECT_EQ(g.s.DatensatzAnzahl, anzahl);
    EXPECT_EQ(g.s.AktuelleDatei, vorher);
}

} // namespace
} // namespace zp::test
