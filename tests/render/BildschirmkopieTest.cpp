// Brightness, contrast and saturation in one 8-bit pass, and the reduced copy of a large
// photograph that the screen gets: the same levels as the library's steps, the same look as the
// full picture reduced to the frame.
#include "common/Bildhilfe.h"
#include "compose/canvas/ImageCanvas.h"
#include "core/state/AppState.h"
#include "render/BildLaden.h"
#include "render/Bildwerk.h"
#include "render/Farbkorrektur.h"

#include <Magick++.h>

#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <cmath>

using namespace zp;
using namespace zp::test;

namespace {

// The 256 grey levels through the library's brightness step, then its contrast step, at 16 bits.
std::array<uint8_t, 256> KurveDerBibliothek(int helligkeit, int kontrast) {
    Magick::InitializeMagick(nullptr);
    QImage stufen(256, 1, QImage::Format_ARGB32);
    for (int i = 0; i < 256; ++i)
        stufen.setPixel(i, 0, qRgb(i, i, i));
    Magick::Image m(256, 1, "BGRA", Magick::CharPixel, stufen.constBits());
    m.matte(false);
    if (helligkeit != 0) m.brightnessContrast(helligkeit / 10.0, 0.0);
    if (kontrast != 0) m.brightnessContrast(0.0, kontrast / 10.0);
    QImage aus(256, 1, QImage::Format_ARGB32);
    m.write(0, 0, 256, 1, "BGRA", Magick::CharPixel, aus.bits());
    std::array<uint8_t, 256> kurve{};
    for (int i = 0; i < 256; ++i)
        kurve[static_cast<size_t>(i)] = static_cast<uint8_t>(qRed(aus.pixel(i, 0)));
    return kurve;
}

TEST(Farbkorrektur, ToneCurveGivesTheLevelsOfTheLibrarysSteps) {
    const struct {
        int hell, kontrast;
    } faelle[] = {{100, 0},  {-100, 0}, {0, 150},  {0, -150}, {100, 150},    {-350, 400},
                  {1000, 0}, {0, 990},  {0, -990}, {1, 1},    {-1000, -990}, {555, -333}};
    for (const auto& f : faelle) {
        SCOPED_TRACE(testing::Message() << "Helligkeit " << f.hell << ", Kontrast " << f.kontrast);
        const auto unsere = Tonkurve(f.hell, f.kontrast), ihre = KurveDerBibliothek(f.hell, f.kontrast);
        for (size_t i = 0; i < 256; ++i)
            EXPECT_EQ(unsere[i], ihre[i]) << "Stufe " << i;
    }
}

TEST(Farbkorrektur, SaturationMovesFromTheGreyOfTheSameBrightness) {
    EXPECT_EQ(Gesaettigt(qRgb(200, 100, 50), -1000), qRgb(124, 124, 124));
    EXPECT_EQ(Gesaettigt(qRgb(200, 100, 50), 0), qRgb(200, 100, 50));
    EXPECT_EQ(Gesaettigt(qRgb(200, 100, 50), 1000), qRgb(255, 76, 0));
    EXPECT_EQ(Gesaettigt(qRgb(90, 90, 90), 700), qRgb(90, 90, 90));
}

// A photograph-like picture: gradients, a horizon and fine texture, so that JPEG has work to do.
QImage Foto(int w, int h) {
    QImage q(w, h, QImage::Format_RGB32);
    for (int y = 0; y < h; ++y)
        for (int x = 0; x < w; ++x) {
            const int textur = ((x * 7 + y * 13) ^ (x * y)) & 31;
            const bool himmel = y < h / 2 + static_cast<int>(h / 10 * std::sin(x / 50.0));
            q.setPixel(x, y,
                       himmel ? qRgb(90 + y * 100 / h + textur, 140 + textur, 220 - textur)
                              : qRgb(60 + textur * 2, 110 + (x * 60 / w) + textur, 40 + textur));
        }
    return q;
}

double MittlereAbweichung(const QImage& a, const QImage& b) {
    double summe = 0;
    for (int y = 0; y < a.height(); ++y)
        for (int x = 0; x < a.width(); ++x) {
            const QRgb p = a.pixel(x, y), q = b.pixel(x, y);
            summe +=
                std::abs(qRed(p) - qRed(q)) + std::abs(qGreen(p) - qGreen(q)) + std::abs(qBlue(p) - qBlue(q));
        }
    return summe / (3.0 * a.width() * a.height());
}

class Bildschirmkopie : public ::testing::Test {
protected:
    QTemporaryDir tmp;
    AppState s;
    QString foto;
    const QSize rahmen{140, 100}; // device pixels of the frame

    void SetUp() override {
        foto = tmp.path() + "/foto.jpg";
        ASSERT_TRUE(Foto(2400, 1800).save(foto, "JPG", 90));
    }
    ClassBild Bild() const {
        ClassBild b;
        b.File = foto;
        b.Helligkeit = 100;
        b.Kontrast = 150;
        b.Farbintensität = 200;
        b.Farbverschiebung = 20;
        return b;
    }
    // The picture as the frame shows it: the bitmap painted into the frame on a screen canvas.
    QImage ImRahmen(const Lead& lead) const {
        ImageCanvas seite(rahmen);
        lead.Render(seite, QRectF(0, 0, rahmen.width() * 15.0, rahmen.height() * 15.0));
        return seite.Bild().copy();
    }
};

TEST_F(Bildschirmkopie, LooksAsTheFullPictureReducedToTheFrame) {
    ClassBild b = Bild();
    Lead voll, klein;
    BildLaden(s, b, klein, rahmen);
    BildLaden(s, b, voll);
    ASSERT_EQ(voll.Bitmap().width(), 2400);
    // 1/8 gives 300 x 225, the smallest reduction still above twice the frame.
    EXPECT_EQ(klein.Bitmap().size(), QSize(300, 225));
    // The fit of record pictures sees the picture's own size.
    EXPECT_EQ(klein.BitmapWidth(), 2400);
    EXPECT_EQ(klein.BitmapHeight(), 1800);
    EXPECT_LT(MittlereAbweichung(ImRahmen(klein), ImRahmen(voll)), 2.0);

    // From the cache at the same frame size: the same copy and the picture's own size again.
    BildwerkVon(s).Cache.Leeren();
    BildLaden(s, b, klein, rahmen);
    const QImage erste = klein.Bitmap();
    Lead wieder;
    BildLaden(s, b, wieder, rahmen);
    EXPECT_EQ(wieder.Bitmap(), erste);
    EXPECT_EQ(wieder.BitmapWidth(), 2400);
}

TEST_F(Bildschirmkopie, FullPictureWhereTheReductionWouldChangeTheLook) {
    struct Fall {
        const char* name;
        void (*aendern)(ClassBild&);
    };
    const Fall faelle[] = {
        {"Schärfe", [](ClassBild& b) { b.Schärfe = 300; }},
        {"Mosaik", [](ClassBild& b) { b.EffektMosaik = 8; }},
        {"Rauschen", [](ClassBild& b) { b.EffektPixel = 100; }},
        {"Trapez", [](ClassBild& b) { b.EffektTrapez = -10; }},
        {"Drehung", [](ClassBild& b) { b.Rotate = 4500; }},
    };
    for (const Fall& f : faelle) {
        SCOPED_TRACE(f.name);
        ClassBild b = Bild();
        f.aendern(b);
        Lead lead;
        BildLaden(s, b, lead, rahmen);
        EXPECT_GE(lead.Bitmap().width(), 2400);
    }
    // A frame more than half the picture's size gains nothing from a reduction.
    Lead lead;
    ClassBild b = Bild();
    BildLaden(s, b, lead, QSize(1300, 1000));
    EXPECT_EQ(lead.Bitmap().width(), 2400);
}

TEST(BildschirmGroesse, OnlyTheScreenAndPreviewsAskForACopy) {
    AppState s;
    ImageCanvas bildschirm(QSize(10, 10), CanvasArt::Bildschirm);
    ImageCanvas vorschau(QSize(10, 10), CanvasArt::Vorschau);
    ImageCanvas export_(QSize(10, 10), CanvasArt::Export);
    EXPECT_EQ(BildschirmGroesse(s, bildschirm, 1500, 1501), QSize(100, 101));
    EXPECT_EQ(BildschirmGroesse(s, vorschau, 15, 15), QSize(1, 1));
    EXPECT_FALSE(BildschirmGroesse(s, export_, 1500, 1500).isValid());
    EXPECT_FALSE(BildschirmGroesse(s, bildschirm, 0, 1500).isValid());
    s.DruckenAktiv = -1;
    EXPECT_FALSE(BildschirmGroesse(s, bildschirm, 1500, 1500).isValid());
    s.DruckenAktiv = 0;
    s.ExportAktiv = -1;
    EXPECT_FALSE(BildschirmGroesse(s, vorschau, 1500, 1500).isValid());
}

} // namespace
