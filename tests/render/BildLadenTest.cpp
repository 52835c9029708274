// BildLaden: the order of the corrections, the print-time memo, the cache and bad files.
#include "render/BildLaden.h"
#include "common/Bildhilfe.h"
#include "core/state/AppState.h"
#include "core/state/Oberflaeche.h"
#include "render/Bildwerk.h"
#include "tests/core/state/ProtokollOberflaeche.h"

#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace zp;
using namespace zp::test;

namespace {

class BildLadenTest : public ::testing::Test {
protected:
    QTemporaryDir tmp;
    AppState s;
    ProtokollOberflaeche ui;
    QString datei, zweite;
    Lead& lead() { return BildwerkVon(s).Lead; }

    void SetUp() override {
        BildwerkVon(s).Meldungen = &ui;
        datei = Speichere(Testbild(), QDir(tmp.path()), "foto.png");
        zweite = Speichere(Testbild(30, 30).mirrored(), QDir(tmp.path()), "zwei.png");
    }
    ClassBild Bild(const QString& file) {
        ClassBild b;
        b.File = file;
        return b;
    }
};

TEST_F(BildLadenTest, AppliesTheCorrectionsInTheirFixedOrder) {
    ClassBild b = Bild(datei);
    b.Rotate = 9000;
    b.Helligkeit = 150;
    b.Kontrast = 300;
    b.Farbintensität = -400;
    b.Farbverschiebung = 40;
    b.Schärfe = 200;
    b.EffektPixel = 50;
    b.EffektMosaik = 4;
    b.EffektTrapez = 10;
    b.Invert = -1;
    b.Gray = -1;
    BildLaden(s, b, lead());

    // The same steps by hand; the order matters: contrast before brightness gives another picture.
    auto vonHand = [&](bool kontrastZuerst) {
        Lead hand;
        hand.Load(datei);
        hand.Rotate(9000, true, 0xFFFFFFFF);
        if (kontrastZuerst) hand.Contrast(300);
        hand.Intensity(150);
        if (!kontrastZuerst) hand.Contrast(300);
        hand.Saturation(-400);
        hand.Hue(40);
        hand.Sharpen(200);
        hand.AddNoise(50, 0);
        hand.Mosaic(4);
        hand.Shear(10, true, 0xFFFFFFFF);
        hand.Invert();
        hand.Grayscale();
        return hand.Bitmap();
    };
    EXPECT_EQ(lead().Bitmap(), vonHand(false));
    EXPECT_NE(lead().Bitmap(), vonHand(true));
    EXPECT_EQ(s.LetztesBild, datei);
}

TEST_F(BildLadenTest, RotationOnlyAboveZeroAndShearBySign) {
    ClassBild b = Bild(datei);
    b.Rotate = -9000;
    BildLaden(s, b, lead());
    EXPECT_EQ(lead().BitmapWidth(), 64);
    EXPECT_EQ(lead().BitmapHeight(), 48);

    b.Rotate = 0;
    b.EffektTrapez = -10; // vertical shear of 10 degrees: the height grows
    BildLaden(s, b, lead());
    EXPECT_EQ(lead().BitmapWidth(), 64);
    EXPECT_GT(lead().BitmapHeight(), 48 + 8);

    b.EffektTrapez = 10; // horizontal: the width grows
    BildLaden(s, b, lead());
    EXPECT_GT(lead().BitmapWidth(), 64 + 6);
    EXPECT_EQ(lead().BitmapHeight(), 48);
}

TEST_F(BildLadenTest, WhilePrintingTheSameNameLoadsOnce) {
    s.DruckenAktiv = -1;
    ClassBild erstes = Bild(datei);
    ClassBild zweites = Bild(datei);
    zweites.Invert = -1;
    BildLaden(s, erstes, lead());
    const QImage ergebnis = lead().Bitmap();
    BildLaden(s, zweites, lead());
    EXPECT_EQ(lead().Bitmap(), ergebnis); // the memo compares the name only

    // On the screen each call does its work.
    s.DruckenAktiv = 0;
    BildLaden(s, zweites, lead());
    EXPECT_NE(lead().Bitmap(), ergebnis);

    // An empty name clears the memo, so the next picture loads also while printing.
    s.DruckenAktiv = -1;
    ClassBild leer;
    BildLaden(s, leer, lead());
    EXPECT_EQ(s.LetztesBild, QString());
    BildLaden(s, erstes, lead());
    EXPECT_EQ(lead().Bitmap(), ergebnis);
}

TEST_F(BildLadenTest, MissingOrEmptyNameLeavesTheControl) {
    ClassBild b = Bild(datei);
    BildLaden(s, b, lead());
    const QImage vorher = lead().Bitmap();
    for (const QString& name :
         {QString(), QDir(tmp.path()).filePath("gibtsnicht.jpg"), QString("daten\\must3.jpg")}) {
        ClassBild fehlt = Bild(name);
        BildLaden(s, fehlt, lead());
        EXPECT_EQ(lead().Bitmap(), vorher);
        EXPECT_EQ(s.LetztesBild, name);
    }
    EXPECT_TRUE(ui.meldungen.isEmpty());
}

TEST_F(BildLadenTest, CorruptFileIsReportedOnceAndTheFormerBitmapStays) {
    ClassBild gut = Bild(datei);
    BildLaden(s, gut, lead());
    const QImage vorher = lead().Bitmap();

    QFile f(QDir(tmp.path()).filePath("kaputt.jpg"));
    ASSERT_TRUE(f.open(QIODevice::WriteOnly));
    f.write("\xFF\xD8\xFF\xE0 kein JPEG");
    f.close();
    ClassBild kaputt = Bild(f.fileName());
    BildLaden(s, kaputt, lead());
    ASSERT_EQ(ui.meldungen.size(), 1);
    EXPECT_TRUE(ui.meldungen[0].contains("kaputt.jpg"));
    EXPECT_EQ(ui.titel_, "Hinweis");
    EXPECT_EQ(lead().Bitmap(), vorher);
    EXPECT_EQ(s.LetztesBild, f.fileName());

    // The next redraw does not repeat the message for the same file.
    BildLaden(s, kaputt, lead());
    EXPECT_EQ(ui.meldungen.size(), 1);
}

TEST_F(BildLadenTest, CacheGivesTheSameBitmapAndNoticesAChangedFile) {
    ClassBild b = Bild(datei);
    b.Helligkeit = 200;
    b.EffektMosaik = 3;
    BildLaden(s, b, lead());
    const QImage erstes = lead().Bitmap();
    ASSERT_EQ(BildwerkVon(s).Cache.Anzahl(), 1);

    Lead frisch;
    frisch.Load(datei);
    frisch.Intensity(200);
    frisch.Mosaic(3);
    BildLaden(s, b, lead());
    EXPECT_EQ(lead().Bitmap(), erstes);
    EXPECT_EQ(lead().Bitmap(), frisch.Bitmap());
    EXPECT_EQ(BildwerkVon(s).Cache.Anzahl(), 1);

    // Other corrections are another entry.
    b.Helligkeit = -200;
    BildLaden(s, b, lead());
    EXPECT_NE(lead().Bitmap(), erstes);
    EXPECT_EQ(BildwerkVon(s).Cache.Anzahl(), 2);

    // The file replaced by another picture (another size): loaded anew.
    b.Helligkeit = 200;
    ASSERT_TRUE(QFile::remove(datei));
    ASSERT_TRUE(Testbild(40, 40).save(datei));
    BildLaden(s, b, lead());
    EXPECT_EQ(lead().BitmapWidth(), 40);
}

TEST(Bildcache, KeepsWithinItsBudgetNewestFirst) {
    Bildcache cache(3 * 100 * 100 * 4); // three bitmaps of 100 x 100
    auto schluessel = [](int i) {
        BildSchluessel k;
        k.pfad = QString("/bild%1.png").arg(i);
        return k;
    };
    for (int i = 1; i <= 3; ++i)
        cache.Ablegen(schluessel(i), Einfarbig(qRgb(i, i, i), 100, 100));
    ASSERT_TRUE(cache.Finde(schluessel(1))); // now the newest
    cache.Ablegen(schluessel(4), Einfarbig(qRgb(4, 4, 4), 100, 100));
    EXPECT_FALSE(cache.Finde(schluessel(2)));
    EXPECT_TRUE(cache.Finde(schluessel(1)));
    EXPECT_EQ(cache.Anzahl(), 3);
    EXPECT_LE(cache.Bytes(), 3 * 100 * 100 * 4);
    cache.Ablegen(schluessel(5), Einfarbig(qRgb(5, 5, 5), 200, 200)); // larger than the budget
    EXPECT_FALSE(cache.Finde(schluessel(5)));
    EXPECT_EQ(cache.Anzahl(), 3);
}

} // namespace
