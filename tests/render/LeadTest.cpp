// The imaging control's operations against pictures made here: nothing changes at 0, and each
// operation changes the picture in its own direction.
#include "render/Lead.h"
#include "common/Bildhilfe.h"
#include "common/TestHilfe.h"
#include "tests/compose/canvas/Protokollcanvas.h"

#include <Magick++.h>
#undef Intensity // the library's deprecated pixel macro would hide the control's operation

#include <QBuffer>
#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <climits>
#include <cmath>

using namespace zp;
using namespace zp::test;

namespace {

class LeadTest : public ::testing::Test {
protected:
    QTemporaryDir tmp;
    QString datei;
    QImage original;
    Lead lead;

    void SetUp() override {
        ASSERT_TRUE(tmp.isValid());
        original = Testbild();
        datei = Speichere(original, QDir(tmp.path()), "test.png");
        lead.Load(datei);
    }
};

TEST_F(LeadTest, LoadsThePictureAsItIs) {
    ASSERT_EQ(lead.BitmapWidth(), 64);
    ASSERT_EQ(lead.BitmapHeight(), 48);
    EXPECT_EQ(lead.Bitmap(), original);
}

TEST_F(LeadTest, EveryOperationAtZeroLeavesEveryPixel) {
    lead.Rotate(0, true, 0xFFFFFFFF);
    lead.Rotate(36000, true, 0xFFFFFFFF);
    lead.Intensity(0);
    lead.Contrast(0);
    lead.Saturation(0);
    lead.Hue(0);
    lead.Hue(360);
    lead.Sharpen(0);
    lead.AddNoise(0, 0);
    lead.Mosaic(0);
    lead.Mosaic(1);
    lead.Shear(0, true, 0xFFFFFFFF);
    EXPECT_EQ(lead.Bitmap(), original);
}

TEST_F(LeadTest, IntensityAndContrastChangeInTheirDirection) {
    const double hell = MittlereHelligkeit(original);
    const double streu = Streuung(original);

    lead.Intensity(300);
    EXPECT_GT(MittlereHelligkeit(lead.Bitmap()), hell + 40);
    lead.Load(datei);
    lead.Intensity(-300);
    EXPECT_LT(MittlereHelligkeit(lead.Bitmap()), hell - 40);

    lead.Load(datei);
    lead.Contrast(500);
    EXPECT_GT(Streuung(lead.Bitmap()), streu * 1.3);
    lead.Load(datei);
    lead.Contrast(-500);
    EXPECT_LT(Streuung(lead.Bitmap()), streu * 0.8);
    // Absurd values are held to the range, never a crash.
    lead.Load(datei);
    lead.Contrast(99999);
    lead.Intensity(-99999);
    EXPECT_EQ(lead.BitmapWidth(), 64);
}

TEST_F(LeadTest, SaturationAndHue) {
    const double satt = MittlereSaettigung(original);
    lead.Saturation(500);
    EXPECT_GT(MittlereSaettigung(lead.Bitmap()), satt * 1.2);
    lead.Load(datei);
    lead.Saturation(-1000);
    EXPECT_LT(MittlereSaettigung(lead.Bitmap()), 3);

    // A third of a turn takes red to green.
    QTemporaryDir ordner;
    lead.Load(Speichere(Einfarbig(qRgb(220, 30, 30)), QDir(ordner.path()), "rot.png"));
    lead.Hue(120);
    const QRgb p = lead.Bitmap().pixel(5, 5);
    EXPECT_GT(qGreen(p), 150);
    EXPECT_LT(qRed(p), 80);
    EXPECT_LT(qBlue(p), 80);
}

TEST_F(LeadTest, SharpenRaisesAndNegativeValuesSoftenEdges) {
    const double kanten = Kantenenergie(original);
    lead.Sharpen(600);
    EXPECT_GT(Kantenenergie(lead.Bitmap()), kanten * 1.1);
    lead.Load(datei);
    lead.Sharpen(-600);
    EXPECT_LT(Kantenenergie(lead.Bitmap()), kanten * 0.9);
}

TEST_F(LeadTest, NoiseStaysInItsRangeAndIsTheSameOnEachCall) {
    QTemporaryDir ordner;
    const QString grau = Speichere(Einfarbig(qRgb(128, 128, 128), 60, 40), QDir(ordner.path()), "grau.png");
    lead.Load(grau);
    lead.AddNoise(200, 0); // +-10 % of full scale
    const QImage einmal = lead.Bitmap();
    EXPECT_GT(Streuung(einmal), 5);
    for (int y = 0; y < einmal.height(); ++y)
        for (int x = 0; x < einmal.width(); ++x) {
            const QRgb p = einmal.pixel(x, y);
            ASSERT_LE(std::abs(qRed(p) - 128), 26);
            // Channel 0 moves all colours together: grey stays grey.
            ASSERT_EQ(qRed(p), qGreen(p));
            ASSERT_EQ(qGreen(p), qBlue(p));
        }
    lead.Load(grau);
    lead.AddNoise(200, 0);
    EXPECT_EQ(lead.Bitmap(), einmal);

    lead.Load(grau);
    lead.AddNoise(200, 3); // blue only
    const QImage blau = lead.Bitmap();
    bool blauBewegt = false;
    for (int x = 0; x < blau.width(); ++x) {
        EXPECT_EQ(qRed(blau.pixel(x, 3)), 128);
        blauBewegt |= qBlue(blau.pixel(x, 3)) != 128;
    }
    EXPECT_TRUE(blauBewegt);
}

TEST_F(LeadTest, MosaicMakesTilesOfTheGivenSize) {
    lead.Mosaic(10); // 64 x 48: full tiles and narrower ones at the right and bottom edge
    const QImage m = lead.Bitmap();
    ASSERT_EQ(m.size(), QSize(64, 48));
    for (int y = 0; y < 48; ++y)
        for (int x = 0; x < 64; ++x)
            ASSERT_EQ(m.pixel(x, y), m.pixel(x / 10 * 10, y / 10 * 10)) << x << "," << y;
    // Neighbouring tiles differ (the picture is a gradient), and a tile is its area's mean.
    EXPECT_NE(m.pixel(0, 0), m.pixel(10, 0));
    double rot = 0;
    for (int y = 0; y < 10; ++y)
        for (int x = 0; x < 10; ++x)
            rot += qRed(original.pixel(x, y));
    EXPECT_NEAR(qRed(m.pixel(0, 0)), rot / 100, 1);
}

TEST_F(LeadTest, ShearGrowsTheBitmapWithWhiteCorners) {
    lead.Shear(30, true, 0xFFFFFFFF);
    const double zuwachs = 48 * std::tan(30 * M_PI / 180);
    EXPECT_NEAR(lead.BitmapWidth(), 64 + zuwachs, 2);
    EXPECT_EQ(lead.BitmapHeight(), 48);
    const QImage h = lead.Bitmap();
    EXPECT_TRUE(IstWeiss(h.pixel(0, 0)) || IstWeiss(h.pixel(0, h.height() - 1)));
    EXPECT_TRUE(IstWeiss(h.pixel(h.width() - 1, 0)) || IstWeiss(h.pixel(h.width() - 1, h.height() - 1)));

    lead.Load(datei);
    lead.Shear(-20, false, 0xFFFFFFFF);
    EXPECT_EQ(lead.BitmapWidth(), 64);
    EXPECT_NEAR(lead.BitmapHeight(), 48 + 64 * std::tan(20 * M_PI / 180), 2);

    lead.Load(datei);
    lead.Shear(200, true, 0xFFFFFFFF); // held to 45 degrees
    EXPECT_NEAR(lead.BitmapWidth(), 64 + 48, 2);
}

TEST_F(LeadTest, RotateTurnsAndGrowsWithWhiteCorners) {
    lead.Rotate(9000, true, 0xFFFFFFFF);
    EXPECT_EQ(lead.BitmapWidth(), 48);
    EXPECT_EQ(lead.BitmapHeight(), 64);
    // Clockwise: the old top-left corner lands at the top right.
    EXPECT_EQ(lead.Bitmap().pixel(47, 0), original.pixel(0, 0));

    lead.Load(datei);
    lead.Rotate(4500, true, 0xFFFFFFFF);
    const double seite = (64 + 48) * std::cos(M_PI / 4);
    EXPECT_NEAR(lead.BitmapWidth(), seite, 4);
    EXPECT_NEAR(lead.BitmapHeight(), seite, 4);
    const QImage r = lead.Bitmap();
    EXPECT_TRUE(IstWeiss(r.pixel(0, 0)));
    EXPECT_TRUE(IstWeiss(r.pixel(r.width() - 1, r.height() - 1)));
    EXPECT_FALSE(IstWeiss(r.pixel(r.width() / 2, r.height() / 2)));
}

TEST_F(LeadTest, InvertAndGrayscale) {
    lead.Invert();
    const QImage inv = lead.Bitmap();
    for (QPoint p : {QPoint(0, 0), QPoint(31, 20), QPoint(63, 47)}) {
        EXPECT_EQ(qRed(inv.pixel(p)), 255 - qRed(original.pixel(p)));
        EXPECT_EQ(qBlue(inv.pixel(p)), 255 - qBlue(original.pixel(p)));
    }
    lead.Load(datei);
    lead.Grayscale();
    const QImage g = lead.Bitmap();
    for (int y = 0; y < g.height(); y += 7)
        for (int x = 0; x < g.width(); x += 5) {
            const QRgb p = g.pixel(x, y);
            ASSERT_EQ(qRed(p), qGreen(p));
            ASSERT_EQ(qGreen(p), qBlue(p));
        }
    EXPECT_NEAR(MittlereHelligkeit(g), MittlereHelligkeit(original), 8);
}

TEST(LeadLaden, BadFilesThrowAGermanMessageAndKeepTheFormerBitmap) {
    QTemporaryDir tmp;
    const QDir ordner(tmp.path());
    Lead lead;
    const QImage vorher = Testbild(20, 10);
    lead.Load(Speichere(vorher, ordner, "gut.png"));

    auto schreibe = [&](const QString& name, const QByteArray& bytes) {
        QFile f(ordner.filePath(name));
        f.open(QIODevice::WriteOnly);
        f.write(bytes);
        return f.fileName();
    };
    // A BMP header that claims 30000 x 30000 pixels: refused before any pixel is decoded.
    QByteArray riesig(54, '\0');
    auto le32 = [&](int at, quint32 v) {
        for (int i = 0; i < 4; ++i)
            riesig[at + i] = static_cast<char>((v >> (8 * i)) & 0xFF);
    };
    riesig[0] = 'B', riesig[1] = 'M';
    le32(2, 54), le32(10, 54), le32(14, 40), le32(18, 30000), le32(22, 30000);
    riesig[26] = 1, riesig[28] = 24;
    QByteArray nichts = riesig; // the same header for 0 x 0 pixels
    nichts.replace(18, 8, QByteArray(8, '\0'));

    QByteArray jpeg;
    {
        QBuffer puffer(&jpeg);
        puffer.open(QIODevice::WriteOnly);
        Testbild(200, 200).save(&puffer, "JPG");
    }
    const std::vector<std::pair<QString, QString>> faelle = {
        {ordner.filePath("fehlt.jpg"), "gelesen"},
        {schreibe("leer.jpg", {}), "leer"},
        {schreibe("text.jpg", "Das ist kein Bild, nur Text.\r\n"), "geladen"},
        {schreibe("riesig.bmp", riesig), "zu groß"},
        {schreibe("leer.bmp", nichts), "Bild"},
        {schreibe("kaputt.png", QByteArray("\x89PNG\r\n\x1a\n", 8) + QByteArray(40, 'x')), "geladen"},
    };
    for (const auto& [datei, teil] : faelle) {
        try {
            lead.Load(datei);
            ADD_FAILURE() << "kein Fehler für " << datei.toStdString();
        } catch (const LeadFehler& e) {
            EXPECT_TRUE(e.Text().contains(teil)) << e.Text().toStdString();
        }
        EXPECT_EQ(lead.Bitmap(), vorher) << datei.toStdString();
    }

    // A JPEG cut in half: what can be read is shown, or the load is refused; never a crash.
    const QString halb = schreibe("halb.jpg", jpeg.left(jpeg.size() / 2));
    try {
        lead.Load(halb);
        EXPECT_EQ(lead.BitmapWidth(), 200);
    } catch (const LeadFehler&) {
        EXPECT_EQ(lead.Bitmap(), vorher);
    }
}

TEST(LeadSpeichern, BmpHoldsTheBitmapIn24Bits) {
    QTemporaryDir tmp;
    Lead lead;
    const QImage bild = Testbild(33, 17); // odd width: rows are padded in the file
    lead.SetzeBitmap(bild);
    const QString datei = QDir(tmp.path()).filePath("ZP.bmp");
    QString fehler;
    ASSERT_TRUE(lead.SaveBmp(datei, &fehler)) << fehler.toStdString();
    QFile f(datei);
    ASSERT_TRUE(f.open(QIODevice::ReadOnly));
    const QByteArray kopf = f.read(30);
    EXPECT_EQ(kopf.left(2), "BM");
    EXPECT_EQ(static_cast<uchar>(kopf[28]), 24);
    const QImage zurueck(datei);
    ASSERT_EQ(zurueck.size(), bild.size());
    for (int y = 0; y < bild.height(); ++y)
        for (int x = 0; x < bild.width(); ++x)
            ASSERT_EQ(zurueck.pixel(x, y), bild.pixel(x, y));

    Lead leer;
    EXPECT_FALSE(leer.SaveBmp(datei, &fehler));
    EXPECT_FALSE(fehler.isEmpty());
}

TEST(LeadRender, ReducesLargeBitmapsToTheDeviceSize) {
    Lead lead;
    lead.SetzeBitmap(Testbild(600, 400));
    Protokollcanvas ziel;                            // 15 twips per pixel
    lead.Render(ziel, QRectF(150, 300, 1500, 1500)); // 100 x 100 device pixels
    ASSERT_EQ(ziel.protokoll.size(), 1u);
    EXPECT_EQ(ziel.protokoll[0].bild.size(), QSize(100, 100));
    EXPECT_EQ(ziel.protokoll[0].twips, QRectF(150, 300, 1500, 1500));
    lead.Render(ziel, QRectF(0, 0, 9000, 6000)); // as large as the bitmap: handed over whole
    EXPECT_EQ(ziel.protokoll[1].bild.size(), QSize(600, 400));
}

} // namespace

namespace {
TEST(MitgelieferteMuster, AtLeastTwelvePatternsLoad) {
    Lead lead;
    for (int m = 1; m <= 12; ++m) {
        const QString datei = MitgelieferteDaten(QString("programm/daten/must%1.jpg").arg(m));
        ASSERT_NO_THROW(lead.Load(datei)) << datei.toStdString();
        EXPECT_GE(lead.BitmapWidth(), 400);
        EXPECT_GT(Streuung(lead.Bitmap()), 1.0) << "plain, no pattern: " << datei.toStdString();
    }
}
} // namespace

namespace {
// The dialogs list what the picture library reads here; on Debian with its ImageMagick that is
// all five kinds of file, each of which the next test loads.
TEST(LeadFormate, TheDialogsListTheFormatsThisSystemReads) {
    const QStringList muster = Bildmuster();
    EXPECT_EQ(muster, (QStringList{"*.bmp", "*.jpg", "*.jpeg", "*.png", "*.pcx", "*.wmf"}));
    EXPECT_EQ(BildmusterText(), u"*.bmp, *.jpg, *.png, *.pcx, *.wmf");
}

TEST(LeadFormate, TheDialogsFormatsLoad) {
    QTemporaryDir tmp;
    const QDir ordner(tmp.path());
    const QImage bild = Testbild(24, 16);
    Lead lead;
    for (const char* format : {"BMP", "PNG"}) {
        lead.Load(Speichere(bild, ordner, QString("bild.") + format));
        EXPECT_EQ(lead.Bitmap(), bild) << format;
    }
    lead.Load(Speichere(bild, ordner, "bild.jpg")); // lossy: only the size and the colours roughly
    EXPECT_EQ(lead.Bitmap().size(), bild.size());
    EXPECT_NEAR(MittlereHelligkeit(lead.Bitmap()), MittlereHelligkeit(bild), 3);

    // PCX as the picture library writes it.
    Lead quelle;
    quelle.SetzeBitmap(bild);
    ASSERT_TRUE(quelle.SaveBmp(ordner.filePath("quelle.bmp")));
    {
        Magick::Image pcx(ordner.filePath("quelle.bmp").toStdString());
        pcx.write(ordner.filePath("bild.pcx").toStdString());
    }
    lead.Load(ordner.filePath("bild.pcx"));
    EXPECT_EQ(lead.Bitmap(), bild);

    // A placeable metafile of 200 x 100 twips: a rectangle in red over the whole picture.
    const QByteArray wmf = QByteArray::fromHex(
        "d7cdc69a000000000000c8006400a005000000001d52010009000003280000000100070000000000050000000b02000000"
        "00050000000c026400c80007000000fc020000ff0000000000040000002d010000070000001b046400c80000000000030000"
        "00"
        "0000");
    QFile f(ordner.filePath("bild.wmf"));
    ASSERT_TRUE(f.open(QIODevice::WriteOnly));
    f.write(wmf);
    f.close();
    lead.Load(f.fileName());
    ASSERT_GT(lead.BitmapWidth(), 0);
    EXPECT_EQ(lead.BitmapWidth(), 2 * lead.BitmapHeight());
    const QRgb mitte = lead.Bitmap().pixel(lead.BitmapWidth() / 2, lead.BitmapHeight() / 2);
    EXPECT_GT(qRed(mitte), 200);
    EXPECT_LT(qGreen(mitte), 60);
}

TEST(LeadWerte, AbsurdValuesAreHeldToTheirRange) {
    QTemporaryDir tmp;
    Lead lead;
    const QString datei = Speichere(Testbild(20, 12), QDir(tmp.path()), "b.png");
    for (int wert : {INT_MIN, -100000, 100000, INT_MAX}) {
        lead.Load(datei);
        lead.Rotate(wert, true, 0xFFFFFFFF);
        lead.Intensity(wert);
        lead.Contrast(wert);
        lead.Saturation(wert);
        lead.Hue(wert);
        lead.Sharpen(wert);
        lead.AddNoise(wert, 0);
        lead.Mosaic(wert);
        lead.Shear(wert, wert > 0, 0xFFFFFFFF);
        EXPECT_GT(lead.BitmapWidth(), 0) << wert;
        EXPECT_LT(lead.BitmapWidth(), 200) << wert;
    }
}
} // namespace

namespace {
TEST(LeadGrenze, PicturesAboveTheLimitAndTooLargeTurnsAreRefused) {
    QTemporaryDir tmp;
    Lead lead;
    lead.Bildpunktgrenze = 5000; // 100 x 50 fits exactly
    const QString datei = Speichere(Testbild(100, 50), QDir(tmp.path()), "b.png");
    lead.Load(datei);
    lead.Rotate(9000, true, 0xFFFFFFFF); // a quarter turn keeps the area
    EXPECT_EQ(lead.BitmapWidth(), 50);

    lead.Load(datei);
    // 45 degrees: (100 + 50) x 0.71 squared = 11 250 pixels, more than twice the limit.
    EXPECT_THROW(lead.Rotate(4500, true, 0xFFFFFFFF), LeadFehler);
    EXPECT_EQ(lead.BitmapWidth(), 100);                          // the picture stays as it was
    EXPECT_THROW(lead.Shear(45, false, 0xFFFFFFFF), LeadFehler); // 100 x 150
    lead.Shear(20, false, 0xFFFFFFFF);                           // 100 x 86: within twice the limit
    EXPECT_NEAR(lead.BitmapHeight(), 86, 2);

    lead.Bildpunktgrenze = 4999;
    try {
        lead.Load(datei);
        ADD_FAILURE() << "ohne Fehler geladen";
    } catch (const LeadFehler& e) {
        EXPECT_TRUE(e.Text().contains("zu groß")) << e.Text().toStdString();
    }
}
} // namespace
