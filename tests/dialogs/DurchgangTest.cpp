// The window with the program's own file, composition and print functions: a document saved,
// replaced and opened again, and a page printed into a PDF file.
#include "Attrappen.h"
#include "common/TestHilfe.h"

#include "dialogs/FrmDrucken.h"

#include <QAction>
#include <QComboBox>
#include <QFile>
#include <QLineEdit>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace zp::test {
namespace {

struct Echt : ::testing::Test {
    void Starten(const char* programmname) {
        ASSERT_TRUE(ordner.isValid());
        Grundzustand(s, QString::fromUtf8(programmname), ordner.path());
        // The new document of the card editions comes from the shipped neu.lay.
        ASSERT_TRUE(
            QFile::copy(zp::test::MitgelieferteDaten("programm/neu.lay"), ordner.filePath("neu.lay")));
        fenster = std::make_unique<TestFenster>(s);
        fenster->Laden();
        fenster->show();
    }
    QTemporaryDir ordner;
    AppState s;
    std::unique_ptr<TestFenster> fenster;
};

TEST_F(Echt, SpeichernNeuUndWiederOeffnen) {
    Starten("ZP Briefkopf");
    fenster->findChild<QLineEdit*>("Text1_2")->setText("Firma Muster & Söhne");
    fenster->datei = ordner.filePath("brief.zpb");
    fenster->Aktion("mnuFileSaveAs")->trigger();
    ASSERT_TRUE(QFile::exists(fenster->datei));
    EXPECT_EQ(s.AktuelleDatei, fenster->datei);

    fenster->antwort = true;
    fenster->Aktion("mnuFileNew")->trigger();
    EXPECT_TRUE(s.Schriftliste(2).Textstring.isEmpty());

    fenster->Aktion("mnuFileOpen")->trigger();
    EXPECT_EQ(s.Schriftliste(2).Textstring, "Firma Muster & Söhne");
    EXPECT_EQ(fenster->findChild<QLineEdit*>("Text1_2")->text(), "Firma Muster & Söhne");
    EXPECT_EQ(s.LadeSperre, 0);
}

TEST_F(Echt, EinKaputterEntwurfLaesstDasDokumentStehen) {
    Starten("ZP Visitenkarte");
    s.Schriftliste(3).Textstring = "bleibt";
    QFile kaputt(ordner.filePath("kaputt.zpv"));
    ASSERT_TRUE(kaputt.open(QIODevice::WriteOnly));
    kaputt.write("keine Karte\r\n");
    kaputt.close();
    const qsizetype vorher = fenster->meldungen.size();
    fenster->datei = kaputt.fileName();
    fenster->Aktion("mnuFileOpen")->trigger();
    EXPECT_EQ(s.Schriftliste(3).Textstring, "bleibt");
    EXPECT_GT(fenster->meldungen.size(), vorher);
    EXPECT_TRUE(fenster->isVisible());
}

TEST_F(Echt, SeiteInEinePdfDatei) {
    Starten("ZP Briefkopf");
    fenster->datei = ordner.filePath("brief"); // the ending is added
    FrmDrucken dialog(s, fenster->Antworten(), fenster.get());
    auto* drucker = dialog.findChild<QComboBox*>("Combo1");
    drucker->setCurrentText("PDF-Datei");
    ASSERT_EQ(drucker->currentText(), "PDF-Datei");
    dialog.CommandDrucken();
    QFile pdf(ordner.filePath("brief.pdf"));
    ASSERT_TRUE(pdf.open(QIODevice::ReadOnly));
    EXPECT_TRUE(pdf.read(5).startsWith("%PDF"));
}

TEST_F(Echt, SeiteWirdGezeichnet) {
    Starten("ZP Briefkopf");
    s.Schriftliste(1).Textstring = "Überschrift";
    s.Rahmenliste(1).Sichtbar = -1;
    fenster->Antworten().Neuzeichnen();
    const QImage& bild = fenster->findChild<QWidget*>("PictureSeite")->grab().toImage();
    ASSERT_FALSE(bild.isNull());
    // Something besides the white sheet is on the picture.
    bool gezeichnet = false;
    for (int y = 0; y < bild.height() && !gezeichnet; y += 2)
        for (int x = 0; x < bild.width() && !gezeichnet; x += 2)
            gezeichnet = bild.pixelColor(x, y) != QColor(Qt::white);
    EXPECT_TRUE(gezeichnet);
}

} // namespace
} // namespace zp::test
