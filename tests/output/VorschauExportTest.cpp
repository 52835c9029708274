// The page dialog's background preview and the bitmap export.
#include "common/Bildhilfe.h"
#include "compose/ZeichneSeite.h"
#include "core/state/AppState.h"
#include "output/Bitmapexport.h"
#include "render/Hintergrundvorschau.h"
#include "tests/compose/canvas/Protokollcanvas.h"

#include <QFile>
#include <QPainter>
#include <QTemporaryDir>
#include <gtest/gtest.h>
#include <set>

using namespace zp;
using namespace zp::test;

namespace {

std::vector<CanvasFarbe> Farben(const Protokollcanvas& c) {
    std::vector<CanvasFarbe> f;
    for (const auto& z : c.protokoll)
        if (z.art != "Cls") f.push_back(z.art == "Line" ? z.fore : (z.fillStyle == 0 ? z.fill : z.fore));
    return f;
}

TEST(Hintergrundvorschau, KindZeroClearsTheBoxAndDrawsNoDesign) {
    AppState s;
    ClassEtikett e;
    e.Farbüberlauf = 0;
    e.Design = 3;
    Protokollcanvas box;
    ZeichneHintergrundVorschau(s, box, e);
    ASSERT_EQ(box.protokoll.size(), 1u);
    EXPECT_EQ(box.protokoll[0].art, "Cls");
}

TEST(Hintergrundvorschau, PlainColourHasNoTraceOfTheSecondColour) {
    AppState s;
    s.Zoomfaktor = 150;
    s.Zeichenfaktor = 1.5;
    ClassEtikett e;
    e.Farbüberlauf = 1;
    e.Farbe1 = 0x3366CC;
    e.Farbe2 = 0x00FF00;
    Protokollcanvas box;
    ZeichneHintergrundVorschau(s, box, e);
    const auto farben = Farben(box);
    ASSERT_FALSE(farben.empty());
    for (CanvasFarbe f : farben)
        EXPECT_NE(f, 0x00FF00);
    EXPECT_NE(std::find(farben.begin(), farben.end(), 0x3366CC), farben.end());
    // The composition's scale is back as it was.
    EXPECT_EQ(s.Zoomfaktor, 150);
    EXPECT_EQ(s.Zeichenfaktor, 1.5);
    EXPECT_EQ(s.Geraetefaktor, 5.67);
    EXPECT_EQ(s.TwipsProPixelX, 15);
}

TEST(Hintergrundvorschau, GradientRunsFromTheFirstToTheSecondColour) {
    AppState s;
    ClassEtikett e;
    e.Farbe1 = 0x0000FF;
    e.Farbe2 = 0xFF0000;
    for (int art : {2, 3}) {
        e.Farbüberlauf = art;
        Protokollcanvas box;
        ZeichneHintergrundVorschau(s, box, e);
        const auto farben = Farben(box);
        ASSERT_GT(farben.size(), 2u) << art;
        // More than the two end colours: the steps between them.
        std::set<CanvasFarbe> verschieden(farben.begin(), farben.end());
        EXPECT_GT(verschieden.size(), 5u) << art;
    }
}

TEST(Hintergrundvorschau, PatternFillsTheBoxAndTheDesignIsDrawnSmall) {
    QTemporaryDir tmp;
    AppState s;
    s.Programmpfad = tmp.path() + "/";
    QDir(tmp.path()).mkdir("daten");
    ASSERT_TRUE(Testbild(90, 60).save(tmp.path() + "/daten/must2.jpg", "JPG"));
    ClassEtikett e;
    e.Farbüberlauf = 5;
    e.Muster = 2;
    e.Design = 3;
    e.Designbreite = 80;
    e.Farbe3 = 0x0000FF;
    Protokollcanvas box; // 9000 x 6000 twips at 15 twips per pixel
    ZeichneHintergrundVorschau(s, box, e);
    ASSERT_EQ(box.protokoll.size(), 3u);
    EXPECT_EQ(box.protokoll[1].art, "Bild");
    EXPECT_EQ(box.protokoll[1].twips, QRectF(0, 0, 9000, 6000));
    // All but a bottom strip: H = 6000 - 60, A = 2 x 80, (5940 - 160) / 15 = 385.3.
    EXPECT_EQ(box.protokoll[2].art, "Rectangle");
    EXPECT_EQ(box.protokoll[2].punkte, (std::vector<QPoint>{{0, 0}, {600, 385}}));

    // A missing pattern leaves the box cleared (the design still stands on it).
    e.Muster = 9;
    Protokollcanvas leer;
    ZeichneHintergrundVorschau(s, leer, e);
    ASSERT_EQ(leer.protokoll.size(), 2u);
    EXPECT_EQ(leer.protokoll[0].art, "Cls");
    EXPECT_EQ(leer.protokoll[1].art, "Rectangle");
}

class Bitmapexport : public ::testing::Test {
protected:
    QTemporaryDir tmp;
    AppState s;
    Zeichenziele ziele;
    void SetUp() override {
        s.AktuellesEtikett.Breite = 850; // a business card, 85 x 55 mm
        s.AktuellesEtikett.Höhe = 550;
        s.ZoomExport = 2;
    }
};

TEST_F(Bitmapexport, ComposesIntoLead2AtTheExportZoomAndSavesABmp) {
    int aufrufe = 0;
    const Komposition zeichne = [&](AppState& st, Zeichenziele& z) {
        ++aufrufe;
        EXPECT_EQ(st.ExportAktiv, -1);
        EXPECT_EQ(st.TwipsProPixelX, 15); // the export bitmap's own pixel size, not the printer's
        ASSERT_NE(z.Lead2, nullptr);
        EXPECT_EQ(z.Lead2->Art(), CanvasArt::Export);
        z.Lead2->Line(0, 0, 1500, 1500, 0x0000FF, Canvas::LineForm::KastenGefuellt); // 100 px red
    };
    s.TwipsProPixelX = s.TwipsProPixelY = 2.4; // left by a print at 600 dpi
    const QString datei = QDir(tmp.path()).filePath("ZP.bmp");
    QString fehler;
    ASSERT_TRUE(BildSpeichern(s, ziele, datei, zeichne, &fehler)) << fehler.toStdString();
    EXPECT_EQ(aufrufe, 1);
    EXPECT_EQ(s.ExportAktiv, 0);
    EXPECT_EQ(ziele.Lead2, nullptr);
    EXPECT_EQ(s.TwipsProPixelX, 2.4);

    const QImage bild(datei);
    // 850 x 5.67 x 2 = 9639 twips = 642.6 pixels; 550 x 5.67 x 2 = 6237 twips = 415.8 pixels.
    EXPECT_EQ(bild.size(), QSize(643, 416));
    EXPECT_EQ(bild.pixel(50, 50), qRgb(255, 0, 0));
    EXPECT_EQ(bild.pixel(300, 300), qRgb(255, 255, 255));
}

TEST_F(Bitmapexport, EmptyOrHugeBitmapsAreRefusedWithAMessage) {
    const Komposition nichts = [](AppState&, Zeichenziele&) {};
    QString fehler;
    s.ZoomExport = 0;
    EXPECT_FALSE(BildSpeichern(s, ziele, QDir(tmp.path()).filePath("a.bmp"), nichts, &fehler));
    EXPECT_TRUE(fehler.contains("leer"));
    s.ZoomExport = 200;
    EXPECT_FALSE(BildSpeichern(s, ziele, QDir(tmp.path()).filePath("b.bmp"), nichts, &fehler));
    EXPECT_TRUE(fehler.contains("zu groß"));
    EXPECT_FALSE(QFile::exists(QDir(tmp.path()).filePath("b.bmp")));
    EXPECT_EQ(s.ExportAktiv, 0);
}

TEST_F(Bitmapexport, AnUnwritableFileIsReported) {
    const Komposition nichts = [](AppState&, Zeichenziele&) {};
    QString fehler;
    EXPECT_FALSE(BildSpeichern(s, ziele, QDir(tmp.path()).filePath("fehlt/ZP.bmp"), nichts, &fehler));
    EXPECT_TRUE(fehler.contains("fehlt/ZP.bmp")) << fehler.toStdString();
    EXPECT_TRUE(fehler.contains("gespeichert")) << fehler.toStdString();
}

} // namespace
