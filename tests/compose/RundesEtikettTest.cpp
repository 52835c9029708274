// A round label keeps its background and design inside its circle, on the page picture and on
// the printer with its origin moved to the label.
#include "common/Bildhilfe.h"
#include "compose/ZeichneSeite.h"
#include "compose/canvas/ImageCanvas.h"
#include "core/state/AppState.h"

#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace zp;

namespace {

constexpr CanvasFarbe Rot = 0x0000FF; // 0x00BBGGRR
constexpr CanvasFarbe Blau = 0xFF0000;

// A CD label of 117 mm: 1170 x 5.67 / 15 = 442 pixels at zoom 100.
struct CdEtikett {
    AppState s;
    Zeichenziele ziele;
    CdEtikett() {
        s.Zoomfaktor = 100;
        s.RahmenAnzahl = 0;
        s.GridAn = 0;
        s.IstCDHuelle = -1;
        s.AktuelleSeite.Breite = 2100;
        s.AktuelleSeite.Höhe = 2970;
        ClassEtikett& e = s.AktuellesEtikett;
        e.Breite = e.Höhe = 1170;
        e.Form = 1;
        e.Farbüberlauf = 1;
        e.Farbe1 = Rot;
    }
    QImage Bildschirm() {
        ImageCanvas bild(QSize(460, 460));
        ziele.PictureSeite = &bild;
        ZeichneSeite(s, ziele);
        return bild.Bild();
    }
};

bool IstRot(QRgb p) {
    return qRed(p) > 200 && qGreen(p) < 60 && qBlue(p) < 60;
}
bool IstWeiss(QRgb p) {
    return qRed(p) > 240 && qGreen(p) > 240 && qBlue(p) > 240;
}

} // namespace

TEST(RundesEtikett, ColourGradientAndDesignStayInsideTheCircle) {
    CdEtikett cd;
    QImage bild = cd.Bildschirm();
    EXPECT_TRUE(IstRot(bild.pixel(221, 221)));
    EXPECT_TRUE(IstRot(bild.pixel(221, 8))); // inside, near the top of the circle
    EXPECT_TRUE(IstWeiss(bild.pixel(12, 12))) << "the corner of the square stays paper";
    EXPECT_TRUE(IstWeiss(bild.pixel(430, 430)));

    // A gradient takes the circle too, and the design band drawn after it is clipped again.
    cd.s.AktuellesEtikett.Farbüberlauf = 3;
    cd.s.AktuellesEtikett.Farbe2 = Rot;
    cd.s.AktuellesEtikett.Design = 3; // all but a bottom strip
    cd.s.AktuellesEtikett.Farbe3 = Blau;
    bild = cd.Bildschirm();
    EXPECT_GT(qBlue(bild.pixel(221, 150)), 200);
    EXPECT_TRUE(IstWeiss(bild.pixel(12, 12)));
    EXPECT_TRUE(IstWeiss(bild.pixel(430, 12)));

    // A rectangular label of the same size is filled to its corners.
    cd.s.AktuellesEtikett.Form = 0;
    bild = cd.Bildschirm();
    EXPECT_GT(qBlue(bild.pixel(12, 12)), 200);
}

TEST(RundesEtikett, APictureFillsTheCircleOnScreenAndOnThePrinter) {
    QTemporaryDir ordner;
    CdEtikett cd;
    ClassEtikett& e = cd.s.AktuellesEtikett;
    e.Farbüberlauf = 4;
    e.Muster = 1;
    e.Bilddatei = test::Speichere(test::Einfarbig(qRgb(255, 0, 0), 40, 30), QDir(ordner.path()),
                                  QStringLiteral("rot.png"));
    const QImage bild = cd.Bildschirm();
    EXPECT_TRUE(IstRot(bild.pixel(221, 221)));
    EXPECT_TRUE(IstRot(bild.pixel(8, 221))); // the picture is stretched over the whole circle
    EXPECT_TRUE(IstWeiss(bild.pixel(12, 12)));

    // On the printer the origin walks to the label: 200 x 5.67 / 15 = 75.6, so 75 pixels in.
    cd.s.DruckenAktiv = -1;
    cd.s.TwipsProPixelX = cd.s.TwipsProPixelY = 15;
    cd.s.DruckversatzX = cd.s.DruckversatzY = 200;
    ImageCanvas drucker(QSize(600, 600), CanvasArt::Drucker, 15, 15);
    cd.ziele.PictureSeite = nullptr;
    cd.ziele.Printer = &drucker;
    ZeichneSeite(cd.s, cd.ziele);
    const QImage papier = drucker.Bild();
    EXPECT_TRUE(IstRot(papier.pixel(75 + 221, 75 + 221)));
    EXPECT_TRUE(IstRot(papier.pixel(75 + 221, 80)));
    EXPECT_TRUE(IstWeiss(papier.pixel(85, 85))) << "the corner of the label's square stays paper";
    EXPECT_TRUE(IstWeiss(papier.pixel(40, 296))) << "nothing left of the label";
}
