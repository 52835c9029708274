#include "dialogs/FrmSeite.h"
#include "common/TestHilfe.h"
#include "core/state/AppState.h"
#include "tests/core/state/ProtokollOberflaeche.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QCheckBox>
#include <QColorDialog>
#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QRadioButton>
#include <QSlider>
#include <QTabBar>
#include <QTimer>
#include <QToolButton>
#include <gtest/gtest.h>

using namespace zp;

namespace {

struct SeiteDialogTest : ::testing::Test {
    AppState s;
    test::ProtokollOberflaeche ui;

    void SetUp() override {
        s.IstEtikett = -1;
        s.Programmpfad = test::MitgelieferteDaten(QStringLiteral("programm/"));
        s.AktuelleSeite.Papier = QStringLiteral("DIN A4");
        s.AktuelleSeite.Breite = 2100;
        s.AktuelleSeite.Höhe = 2970;
        s.AktuellesEtikett.Breite = 700;
        s.AktuellesEtikett.Höhe = 370;
        s.AktuellesEtikett.Anzahl_x = 3;
        s.AktuellesEtikett.Anzahl_y = 8;
        s.KartenformatAnzahl = 2;
        const char* zeilen[2][10] = {{"991", "381", "2", "7", "25", "0", "46", "151", "0", "0"},
                                     {"1170", "1170", "1", "2", "0", "300", "465", "150", "1", "0"}};
        s.KartenformatNamen(1) = QStringLiteral("Eigenes Format 1");
        s.KartenformatNamen(2) = QStringLiteral("CD-Etiketten");
        for (int z = 1; z <= 2; ++z)
            for (int k = 1; k <= 10; ++k)
                s.KartenformatWerte(k, z) = QString::fromLatin1(zeilen[z - 1][k - 1]);
    }
    template <typename W> W* Kind(QWidget& d, const char* name) {
        W* w = d.findChild<W*>(QString::fromUtf8(name));
        EXPECT_NE(w, nullptr) << name;
        return w;
    }
};

} // namespace

TEST_F(SeiteDialogTest, SheetControlsRedrawTheSheetAndOkWritesThePage) {
    FrmSeite d(s, ui, FrmSeite::TabKarte);
    // The label edition: its captions, the card tab hidden and the labels on the format tab.
    EXPECT_EQ(d.Tabs()->tabText(0), u"Etikettenformat");
    EXPECT_FALSE(d.Tabs()->isTabVisible(2));
    EXPECT_EQ(d.Tabs()->currentIndex(), 0);

    // The paper's right and bottom edge stand inside the sheet preview.
    {
        const QImage bogen = d.Bogenbild();
        auto dunkel = [&](int x, int y) { return qGray(bogen.pixel(x, y)) < 80; };
        EXPECT_TRUE(dunkel(bogen.width() - 1, bogen.height() / 2) ||
                    dunkel(bogen.width() - 2, bogen.height() / 2));
        EXPECT_TRUE(dunkel(2, bogen.height() - 1) || dunkel(2, bogen.height() - 2));
    }

    auto* katalog = Kind<QComboBox>(d, "ComboKartenformat");
    ASSERT_EQ(katalog->count(), 3);
    EXPECT_EQ(katalog->itemText(0), u"Vorgaben");
    QImage vorher = d.Bogenbild();
    katalog->setCurrentIndex(1);
    EXPECT_EQ(Kind<QLineEdit>(d, "KartenBreite")->text(), u"991");
    EXPECT_EQ(Kind<QLineEdit>(d, "Seitelinks")->text(), u"46");
    EXPECT_EQ(Kind<QLineEdit>(d, "KartenAnzahlY")->text(), u"7");
    EXPECT_NE(d.Bogenbild(), vorher);

    // A typed box writes the copy and the user's own row.
    Kind<QLineEdit>(d, "KartenAbstandY")->setText(QStringLiteral("12"));
    EXPECT_EQ(s.EtikettKopie.Abstand_y, 12);
    EXPECT_EQ(s.KartenformatWerte(6, 1), u"12");

    vorher = d.Bogenbild();
    Kind<QCheckBox>(d, "CheckKreis")->setChecked(true);
    EXPECT_NE(d.Bogenbild(), vorher);
    Kind<QCheckBox>(d, "CheckKreis")->setChecked(false);

    vorher = d.Bogenbild();
    Kind<QComboBox>(d, "ComboPapierformat")->setCurrentText(QStringLiteral("DIN A5"));
    EXPECT_EQ(Kind<QLineEdit>(d, "TextBreite")->text(), u"1480");
    EXPECT_FALSE(Kind<QLineEdit>(d, "TextBreite")->isEnabled());
    EXPECT_NE(d.Bogenbild(), vorher);

    // The search narrows the list; the chosen row keeps its number. The list stays shut while
    // the user types, so that the next letter goes into the box and not into the list.
    Kind<QLineEdit>(d, "TextSuche")->setText(QStringLiteral("117 x 117"));
    ASSERT_EQ(katalog->count(), 2);
    EXPECT_EQ(katalog->itemData(1).toInt(), 2);
    EXPECT_FALSE(katalog->view()->isVisible());

    // A raster of 0 keeps the dialog open with a message.
    Kind<QLineEdit>(d, "Textrasterx")->setText(QStringLiteral("0"));
    d.accept();
    EXPECT_EQ(ui.meldungen.size(), 1);
    EXPECT_NE(d.result(), QDialog::Accepted);
    EXPECT_EQ(s.AktuellesEtikett.Breite, 700);

    Kind<QLineEdit>(d, "Textrasterx")->setText(QStringLiteral("50"));
    d.accept();
    EXPECT_EQ(d.result(), QDialog::Accepted);
    EXPECT_EQ(s.AktuelleSeite.Papier, u"DIN A5");
    EXPECT_EQ(s.AktuelleSeite.Randlinks, 46);
    EXPECT_EQ(s.AktuellesEtikett.Breite, 991);
    EXPECT_EQ(s.AktuellesEtikett.Abstand_y, 12);
    EXPECT_EQ(s.GitterX, 50);
}

TEST_F(SeiteDialogTest, BackgroundControlsRedrawTheCardAndAbbruchLeavesTheSheet) {
    s.IstEtikett = 0;
    s.IstVisitenkarte = -1;
    const ClassEtikett alt = s.AktuellesEtikett;
    FrmSeite d(s, ui, FrmSeite::TabDesign);
    EXPECT_EQ(d.Tabs()->currentIndex(), 1);
    EXPECT_TRUE(d.Tabs()->isTabVisible(2));

    QImage vorher = d.Kartenbild();
    Kind<QRadioButton>(d, "optverlauf_1")->setChecked(true); // plain colour, black
    EXPECT_NE(d.Kartenbild(), vorher);

    // A colour through the colour dialog.
    vorher = d.Kartenbild();
    Kind<QToolButton>(d, "ImageFarbe_1")->click();
    auto* farbdialog = d.findChild<QColorDialog*>();
    ASSERT_NE(farbdialog, nullptr);
    farbdialog->setCurrentColor(QColor(0, 0, 255));
    farbdialog->accept();
    EXPECT_EQ(s.EtikettKopie.Farbe1, 0xFF0000);
    EXPECT_NE(d.Kartenbild(), vorher);

    vorher = d.Kartenbild();
    Kind<QListWidget>(d, "PicMuster")->setCurrentRow(2);
    EXPECT_EQ(s.EtikettKopie.Farbüberlauf, 5);
    EXPECT_EQ(s.EtikettKopie.Muster, 3);
    EXPECT_NE(d.Kartenbild(), vorher);

    vorher = d.Kartenbild();
    Kind<QListWidget>(d, "PicDesign")->setCurrentRow(4);
    EXPECT_EQ(s.EtikettKopie.Design, 4);
    EXPECT_NE(d.Kartenbild(), vorher);
    // The inner field shows in the dark blue of its small picture, not in the sheet's white.
    const QColor mitte = d.Kartenbild().pixelColor(d.Kartenbild().rect().center());
    EXPECT_GT(mitte.blue(), mitte.red() + 60);

    vorher = d.Kartenbild();
    Kind<QSlider>(d, "Slider1")->setValue(300);
    EXPECT_NE(d.Kartenbild(), vorher);

    d.reject();
    EXPECT_EQ(s.AktuellesEtikett.Farbüberlauf, alt.Farbüberlauf);
    EXPECT_EQ(s.AktuellesEtikett.Design, alt.Design);
    EXPECT_EQ(s.AktuellesEtikett.Farbe1, alt.Farbe1);
    EXPECT_EQ(s.AktuellesEtikett.Farbe3, alt.Farbe3);
}

TEST_F(SeiteDialogTest, CalendarLosesTheCardTab) {
    s.IstEtikett = 0;
    s.IstKalender = -1;
    FrmSeite d(s, ui, FrmSeite::TabRaster);
    EXPECT_EQ(d.Tabs()->tabText(1), u"Taschenkalender");
    EXPECT_FALSE(d.Tabs()->isTabVisible(2));
    EXPECT_EQ(d.Tabs()->currentIndex(), 3);
}
