#include "dialogs/FrmBild.h"
#include "common/Bildhilfe.h"
#include "core/state/AppState.h"
#include "core/state/Inhalt.h"
#include "core/state/Objekte.h"
#include "tests/core/state/ProtokollOberflaeche.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QListWidget>
#include <QSlider>
#include <QTemporaryDir>
#include <QTest>
#include <gtest/gtest.h>

using namespace zp;

namespace {

struct BildDialogTest : ::testing::Test {
    QTemporaryDir ordner;
    AppState s;
    test::ProtokollOberflaeche ui;
    QString foto;
    int rahmen = 0;

    void SetUp() override {
        for (int n = 1; n <= 31; ++n)
            ErzeugeRahmen(s, n, QStringLiteral("Schrift"), n);
        rahmen = FuegeInhaltEin(s, QStringLiteral("Bild"));
        s.Rahmenliste(rahmen).Sichtbar = -1;
        s.Auswahlmodus = 0;
        foto = test::Speichere(test::Testbild(400, 300), QDir(ordner.path()), QStringLiteral("foto.jpg"));
    }
    template <typename W> W* Kind(QWidget& d, const char* name) {
        W* w = d.findChild<W*>(QString::fromUtf8(name));
        EXPECT_NE(w, nullptr) << name;
        return w;
    }
};

} // namespace

TEST_F(BildDialogTest, EveryKindOfControlChangesThePreviewAndOkKeepsTheCopy) {
    FrmBild d(s, ui, true);
    EXPECT_TRUE(test::IstWeiss(d.Vorschau().pixel(160, 120))); // no file yet

    // The file list shows the folder's pictures; a click chooses and reshapes the frame.
    d.DateiGewaehlt(foto);
    EXPECT_FALSE(test::IstWeiss(d.Vorschau().pixel(160, 120)));
    EXPECT_DOUBLE_EQ(d.Rahmenkopie().Höhe, d.Rahmenkopie().Breite * 300 / 400);
    auto* liste = Kind<QListWidget>(d, "File1");
    ASSERT_TRUE(liste);
    EXPECT_EQ(liste->count(), 1);

    const double hell = test::MittlereHelligkeit(d.Vorschau());
    Kind<QSlider>(d, "Slider1_0")->setValue(40);
    EXPECT_GT(test::MittlereHelligkeit(d.Vorschau()), hell + 10);
    EXPECT_EQ(d.Kopie().Helligkeit, 400);

    Kind<QCheckBox>(d, "Check1")->setChecked(true);
    EXPECT_LT(test::MittlereSaettigung(d.Vorschau()), 3);
    EXPECT_EQ(d.Kopie().Gray, -1);

    const QImage vorDrehung = d.Vorschau();
    Kind<QSlider>(d, "Slider2")->setValue(90);
    EXPECT_EQ(Kind<QLineEdit>(d, "Text1")->text(), u"90");
    EXPECT_NE(d.Vorschau(), vorDrehung);

    auto* winkel = Kind<QLineEdit>(d, "Text1");
    winkel->setText(QStringLiteral("400"));
    emit winkel->editingFinished();
    EXPECT_EQ(winkel->text(), u"0");
    EXPECT_EQ(Kind<QSlider>(d, "Slider2")->value(), 0);
    EXPECT_EQ(d.Kopie().Rotate, 0);

    const QImage vorTrapez = d.Vorschau();
    Kind<QSlider>(d, "Slider3")->setValue(20);
    EXPECT_NE(d.Vorschau(), vorTrapez);

    // Nothing reached the document before Ok.
    EXPECT_TRUE(s.Bildliste(1).File.isEmpty());
    d.accept();
    EXPECT_EQ(s.Bildliste(1).File, foto);
    EXPECT_EQ(s.Bildliste(1).Helligkeit, 400);
    EXPECT_EQ(s.Bildliste(1).EffektTrapez, 20);
    EXPECT_DOUBLE_EQ(s.Rahmenliste(rahmen).Höhe, 375);
    EXPECT_TRUE(ui.meldungen.isEmpty());
}

TEST_F(BildDialogTest, OpensOnThePictureAndAbbruchTakesANewFrameOut) {
    s.Bildliste(1).File = foto;
    s.Bildliste(1).Kontrast = 250;
    s.Bildliste(1).Rotate = 4500;
    {
        FrmBild d(s, ui, false);
        EXPECT_EQ(Kind<QSlider>(d, "Slider1_1")->value(), 25);
        EXPECT_EQ(Kind<QLineEdit>(d, "Text1")->text(), u"45");
        EXPECT_FALSE(test::IstWeiss(d.Vorschau().pixel(160, 120)));
        Kind<QSlider>(d, "Slider1_1")->setValue(-50);
        d.reject();
    }
    EXPECT_EQ(s.Bildliste(1).Kontrast, 250); // Abbruch: the document keeps its values
    EXPECT_EQ(s.RahmenAnzahl, 32);
    {
        FrmBild d(s, ui, true);
        d.reject();
    }
    EXPECT_EQ(s.RahmenAnzahl, 31); // the frame inserted for the dialog is gone
}

TEST_F(BildDialogTest, ADamagedFileIsToldAndLeavesThePreviewEmpty) {
    const QString kaputt = QDir(ordner.path()).filePath(QStringLiteral("kaputt.jpg"));
    QFile f(kaputt);
    ASSERT_TRUE(f.open(QIODevice::WriteOnly));
    f.write("kein Bild");
    f.close();
    FrmBild d(s, ui, true);
    d.DateiGewaehlt(kaputt);
    EXPECT_EQ(ui.meldungen.size(), 1);
    EXPECT_TRUE(test::IstWeiss(d.Vorschau().pixel(160, 120)));
    d.accept(); // a file that is no picture stays, as a missing picture would be passed over
    EXPECT_EQ(s.RahmenAnzahl, 32);
}

// Return in the path or angle box takes what was typed and leaves the dialog open; only the
// button closes it. A path that doesn't exist is told and the box shows the folder again.
TEST_F(BildDialogTest, ReturnInABoxTakesItsTextAndKeepsTheDialogOpen) {
    FrmBild d(s, ui, true);
    d.show(); // the default button only answers Return while it can be seen
    auto* pfad = Kind<QLineEdit>(d, "Dir1");
    auto* liste = Kind<QListWidget>(d, "File1");
    ASSERT_TRUE(pfad && liste);
    const QString vorher = pfad->text();

    pfad->setText(ordner.path());
    QTest::keyClick(pfad, Qt::Key_Return);
    EXPECT_EQ(liste->count(), 1);
    EXPECT_EQ(d.result(), QDialog::Rejected); // not closed by Ok
    EXPECT_EQ(s.RahmenAnzahl, 32);            // and the new frame is still there
    EXPECT_TRUE(ui.meldungen.isEmpty());

    pfad->setText(QDir(ordner.path()).filePath(QStringLiteral("gibtsnicht")));
    QTest::keyClick(pfad, Qt::Key_Enter);
    ASSERT_EQ(ui.meldungen.size(), 1);
    EXPECT_TRUE(ui.meldungen[0].contains(u"gibtsnicht"));
    EXPECT_EQ(QDir(pfad->text()), QDir(ordner.path()));
    EXPECT_NE(pfad->text(), vorher);
    pfad->setText(QStringLiteral("/gibt/es/auch/nicht"));
    emit pfad->editingFinished(); // leaving the box for a button says nothing
    EXPECT_EQ(ui.meldungen.size(), 1);

    pfad->setText(foto); // a file typed is chosen as a click in the list chooses it
    QTest::keyClick(pfad, Qt::Key_Return);
    EXPECT_EQ(d.Kopie().File, foto);
    EXPECT_FALSE(test::IstWeiss(d.Vorschau().pixel(160, 120)));
    EXPECT_DOUBLE_EQ(d.Rahmenkopie().Höhe, d.Rahmenkopie().Breite * 300 / 400);

    auto* winkel = Kind<QLineEdit>(d, "Text1");
    winkel->setText(QStringLiteral("30"));
    QTest::keyClick(winkel, Qt::Key_Return);
    EXPECT_EQ(d.Kopie().Rotate, 3000);
    EXPECT_EQ(Kind<QSlider>(d, "Slider2")->value(), 30);
    EXPECT_EQ(d.result(), QDialog::Rejected);
    EXPECT_EQ(s.RahmenAnzahl, 32);
}
