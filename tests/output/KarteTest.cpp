// A business card through the whole page composition: pattern background, design band and a
// record photograph fitted into its frame, on the page picture and in the bitmap export.
#include "common/Bildhilfe.h"
#include "compose/ZeichneSeite.h"
#include "compose/canvas/ImageCanvas.h"
#include "core/state/AppState.h"
#include "output/Bitmapexport.h"

#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace zp;
using namespace zp::test;

namespace {

constexpr QRgb Muster = qRgb(200, 180, 150);
constexpr QRgb Foto = qRgb(20, 60, 200);
constexpr QRgb Band = qRgb(255, 0, 0); // Farbe3 0x0000FF

bool Nahe(QRgb a, QRgb b) {
    return std::abs(qRed(a) - qRed(b)) < 12 && std::abs(qGreen(a) - qGreen(b)) < 12 &&
           std::abs(qBlue(a) - qBlue(b)) < 12;
}

class Karte : public ::testing::Test {
protected:
    QTemporaryDir tmp;
    AppState s;

    void SetUp() override {
        s.Programmpfad = tmp.path() + "/";
        QDir(tmp.path()).mkdir("daten");
        ASSERT_TRUE(Einfarbig(Muster, 64, 40).save(tmp.path() + "/daten/must2.jpg", "JPG", 95));
        const QString foto = Speichere(Einfarbig(Foto, 200, 100), QDir(tmp.path()), "foto.png");

        s.IstVisitenkarte = -1;
        s.Zoomfaktor = 100;
        s.GridAn = 0;
        s.AktuellesEtikett.Breite = 850;
        s.AktuellesEtikett.Höhe = 550;
        s.AktuellesEtikett.Farbüberlauf = 5;
        s.AktuellesEtikett.Muster = 2;
        s.AktuellesEtikett.Design = 1; // left band, W / 7
        s.AktuellesEtikett.Farbe3 = 0x0000FF;
        s.RahmenAnzahl = 1;
        ClassRahmen& r = s.Rahmenliste(1);
        r = ClassRahmen{};
        r.X = 450, r.Y = 100, r.Breite = 300, r.Höhe = 300;
        r.Objekttyp = "Bild", r.Objektnummer = 1, r.Sichtbar = -1, r.z = 1, r.bilddaten = 1;
        s.Bildliste(1).File = foto;
    }
    // The colour at a place of the card, tenths of a millimetre, on a picture of `faktor` twips per unit.
    static QRgb Bei(const QImage& bild, double x, double y, double faktor) {
        return bild.pixel(static_cast<int>(x * faktor / 15), static_cast<int>(y * faktor / 15));
    }
};

TEST_F(Karte, PageShowsPatternBandAndTheFittedPhotograph) {
    ImageCanvas seite(QSize(322, 208));
    Zeichenziele ziele;
    ziele.PictureSeite = &seite;
    ZeichneSeite(s, ziele);
    const QImage bild = seite.Bild();
    const double f = 5.67;
    EXPECT_TRUE(Nahe(Bei(bild, 50, 300, f), Band));    // inside the band of 850 / 7
    EXPECT_TRUE(Nahe(Bei(bild, 300, 300, f), Muster)); // the pattern beside it
    // The 2:1 photograph in the square frame: full width, half the height, in the middle.
    EXPECT_TRUE(Nahe(Bei(bild, 600, 250, f), Foto));
    EXPECT_TRUE(Nahe(Bei(bild, 460, 200, f), Foto));
    EXPECT_TRUE(Nahe(Bei(bild, 600, 150, f), Muster)); // above the fitted picture, inside the frame
    EXPECT_TRUE(Nahe(Bei(bild, 600, 360, f), Muster)); // below it
    EXPECT_EQ(s.Rahmenliste(1).Höhe, 300);             // the frame keeps its size
}

TEST_F(Karte, ExportDrawsTheSameAtTheExportZoom) {
    s.ZoomExport = 2;
    const QString datei = tmp.path() + "/ZP.bmp";
    QString fehler;
    ASSERT_TRUE(BildSpeichern(s, datei, &fehler)) << fehler.toStdString();
    const QImage bild(datei);
    ASSERT_EQ(bild.size(), QSize(643, 416));
    const double f = 5.67 * 2;
    EXPECT_TRUE(Nahe(Bei(bild, 50, 300, f), Band));
    EXPECT_TRUE(Nahe(Bei(bild, 300, 300, f), Muster));
    EXPECT_TRUE(Nahe(Bei(bild, 600, 250, f), Foto));
    EXPECT_TRUE(Nahe(Bei(bild, 600, 150, f), Muster));
}

} // namespace
