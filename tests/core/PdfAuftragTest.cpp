// A print job into a PDF file through the command: a cancelled job leaves the older file, a whole
// one replaces it.
#include "common/Pdfhilfe.h"
#include "core/Druckbefehle.h"
#include "core/Programmordner.h"
#include "core/Start.h"
#include "core/runtime/TextDatei.h"
#include "core/state/AppState.h"
#include "output/Druckerliste.h"
#include "tests/core/state/ProtokollOberflaeche.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace zp::test {
namespace {

TEST(PdfDruck, NurEinGanzerAuftragNimmtDenNamenDerDatei) {
    if (!PopplerDa()) GTEST_SKIP() << "poppler-utils fehlen";
    QTemporaryDir dir;
    QString fehler;
    ASSERT_TRUE(RichteProgrammordnerEin(dir.filePath("ordner"), "Etikett", ZP_DATEN_DIR, &fehler));
    AppState s;
    ProtokollOberflaeche ui;
    Main(s, dir.filePath("ordner"), ui);
    LadeStartzustand(s, ui);
    s.LadeSperre = 0;
    s.Datensaetze.Redim(30, 60);
    for (int r = 1; r <= 60; ++r)
        s.Datensaetze(1, r) = QStringLiteral("Adresse%1").arg(r);
    s.DatensatzAnzahl = 60;
    Druckdialogwerte w;
    w.Drucker = kPdfDatei;
    w.PdfDatei = dir.filePath("etiketten.pdf");
    w.Kopien = "1";
    w.TextStart = "1";
    w.Adressen = 4;
    {
        QFile alt(w.PdfDatei);
        ASSERT_TRUE(alt.open(QIODevice::WriteOnly));
        alt.write("die alte Datei");
    }
    int gefragt = 0;
    // Cancelled after the second piece: the older file stays as it was, and no part is left over.
    EXPECT_NE(BefehlDrucken(s, ui, w, [&](int, int) { return ++gefragt < 2; }), Druckergebnis::Gedruckt);
    EXPECT_EQ(*LeseDatei(w.PdfDatei), "die alte Datei");
    EXPECT_EQ(QDir(dir.path()).entryList(QDir::Files), QStringList{"etiketten.pdf"});

    // A whole job replaces it with every page.
    std::pair<int, int> zuletzt;
    ASSERT_EQ(BefehlDrucken(s, ui, w,
                            [&](int seite, int gesamt) {
                                zuletzt = {seite, gesamt};
                                return true;
                            }),
              Druckergebnis::Gedruckt);
    EXPECT_GE(zuletzt.second, 2);
    EXPECT_EQ(zuletzt.first, zuletzt.second);
    EXPECT_EQ(PdfSeiten(w.PdfDatei), zuletzt.second);
    EXPECT_EQ(QDir(dir.path()).entryList(QDir::Files), QStringList{"etiketten.pdf"});
}

TEST(PdfDruck, KalenderDrucktSeineTageAuchBeimBearbeitenDerVorlage) {
    if (!PopplerDa()) GTEST_SKIP() << "poppler-utils fehlen";
    QTemporaryDir dir;
    QString fehler;
    ASSERT_TRUE(RichteProgrammordnerEin(dir.filePath("ordner"), "Kalender", ZP_DATEN_DIR, &fehler));
    AppState s;
    ProtokollOberflaeche ui;
    Main(s, dir.filePath("ordner"), ui);
    LadeStartzustand(s, ui);
    s.LadeSperre = 0;
    s.KalenderBearbeiten = -1; // the template stands once on the screen
    Druckdialogwerte w;
    w.Drucker = kPdfDatei;
    w.PdfDatei = dir.filePath("kalender.pdf");
    w.Kopien = "1";
    w.TextDruckStart = "1";
    w.TextDruckEnde = "1";
    w.TextProzent = "100";
    ASSERT_EQ(BefehlDrucken(s, ui, w, {}), Druckergebnis::Gedruckt);
    const QString text = Ausgabe("pdftotext", {w.PdfDatei, "-"});
    // The 28th of each of the half year's six months, not the template's one cell; the screen's
    // mode is kept.
    EXPECT_GE(text.count(QStringLiteral("28")), 6) << text.toStdString();
    EXPECT_EQ(s.KalenderBearbeiten, -1);
}

} // namespace
} // namespace zp::test
