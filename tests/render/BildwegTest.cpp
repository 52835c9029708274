// The composition's picture steps: picture frames with and without the fit, record pictures,
// and the picture and pattern backgrounds of a label.
#include "render/Bildweg.h"
#include "common/Bildhilfe.h"
#include "core/state/AppState.h"
#include "tests/compose/canvas/Protokollcanvas.h"

#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace zp;
using namespace zp::test;

namespace {

class Bildrahmen : public ::testing::Test {
protected:
    QTemporaryDir tmp;
    AppState s;
    Protokollcanvas c{CanvasArt::Bildschirm, 1}; // a twip per pixel: bitmaps arrive unreduced
    QString breit, hoch;

    void SetUp() override {
        breit = Speichere(Testbild(200, 100), QDir(tmp.path()), "breit.png");
        hoch = Speichere(Testbild(100, 200), QDir(tmp.path()), "hoch.png");
        // Scale 1: the rendered twips are the frame's own numbers.
        s.Zeichenfaktor = 1;
        s.Geraetefaktor = 1;
        s.IstVisitenkarte = -1;
        s.RahmenAnzahl = 1;
        ClassRahmen& r = s.Rahmenliste(1);
        r = ClassRahmen{};
        r.X = 100, r.Y = 200, r.Breite = 300, r.Höhe = 300;
        r.Objekttyp = "Bild", r.Objektnummer = 1, r.Sichtbar = -1, r.z = 1;
    }
    QRectF Gezeichnet() {
        c.protokoll.clear();
        ZeichneBildRahmen(s, c, 1);
        if (c.protokoll.size() != 1) return {};
        return c.protokoll[0].twips;
    }
};

TEST_F(Bildrahmen, RecordPicturesAreFittedIntoTheMiddleAndTheFrameStays) {
    s.Rahmenliste(1).bilddaten = 1;
    s.Bildliste(1).File = breit;
    EXPECT_EQ(Gezeichnet(), QRectF(100, 275, 300, 150));
    s.Bildliste(1).File = hoch;
    EXPECT_EQ(Gezeichnet(), QRectF(175, 200, 150, 300));
    const ClassRahmen& r = s.Rahmenliste(1);
    EXPECT_EQ(QRectF(r.X, r.Y, r.Breite, r.Höhe), QRectF(100, 200, 300, 300));

    // A picture of the frame's own shape is drawn unchanged.
    s.Rahmenliste(1).Breite = 600;
    s.Bildliste(1).File = breit;
    EXPECT_EQ(Gezeichnet(), QRectF(100, 200, 600, 300));
}

TEST_F(Bildrahmen, OtherPicturesAreStretchedToTheFrame) {
    s.Bildliste(1).File = breit;
    EXPECT_EQ(Gezeichnet(), QRectF(100, 200, 300, 300));
    // The label and card editions fit only record pictures; the letterhead never.
    s.IstVisitenkarte = 0;
    s.IstBriefkopf = -1;
    s.Rahmenliste(1).bilddaten = 1;
    EXPECT_EQ(Gezeichnet(), QRectF(100, 200, 300, 300));
}

TEST_F(Bildrahmen, TheCalendarFitsTheFirstPictureOfTypesFourAndFive) {
    s.IstVisitenkarte = 0;
    s.IstKalender = -1;
    s.Bildliste(1).File = breit;
    for (int typ = 1; typ <= 7; ++typ) {
        s.Kalendertyp = typ;
        const bool passt = typ == 4 || typ == 5;
        EXPECT_EQ(Gezeichnet(), passt ? QRectF(100, 275, 300, 150) : QRectF(100, 200, 300, 300)) << typ;
    }
}

TEST_F(Bildrahmen, RecordPictureComesFromColumn21OfTheCurrentRecord) {
    s.Bildliste(1).bilddaten = 1;
    s.Bildliste(1).File = hoch;
    // The record table has no column 21 yet: nothing to draw.
    EXPECT_EQ(Gezeichnet(), QRectF());
    s.Datensaetze.RedimPreserve(21, 20);
    s.Datensaetze(21, 2) = breit;
    s.DatensatzNummer = 2;
    EXPECT_EQ(Gezeichnet(), QRectF(100, 200, 300, 300));
    EXPECT_EQ(s.Bildliste(1).File, breit);
    EXPECT_EQ(c.protokoll[0].bild.size(), QSize(200, 100));
    s.DatensatzNummer = 3; // a record without a picture
    EXPECT_EQ(Gezeichnet(), QRectF());
}

TEST_F(Bildrahmen, MissingFilesAndBadNumbersDrawNothing) {
    s.Bildliste(1).File = QDir(tmp.path()).filePath("fehlt.jpg");
    EXPECT_EQ(Gezeichnet(), QRectF());
    s.Rahmenliste(1).Objektnummer = 7;
    EXPECT_EQ(Gezeichnet(), QRectF());
    c.protokoll.clear();
    ZeichneBildRahmen(s, c, 99);
    EXPECT_TRUE(c.protokoll.empty());
}

TEST(Passform, FitOfWideAndTallPictures) {
    EXPECT_EQ(EingepassterRahmen(0, 0, 400, 100, 100, 100), QRectF(150, 0, 100, 100));
    EXPECT_EQ(EingepassterRahmen(10, 10, 100, 400, 100, 100), QRectF(10, 160, 100, 100));
    // Degenerate sizes leave the frame as it is.
    EXPECT_EQ(EingepassterRahmen(1, 2, 0, 50, 100, 100), QRectF(1, 2, 0, 50));
    EXPECT_EQ(EingepassterRahmen(1, 2, 30, 50, 0, 0), QRectF(1, 2, 30, 50));
}

class Hintergrund : public ::testing::Test {
protected:
    QTemporaryDir tmp;
    AppState s;
    QImage muster = Testbild(40, 30);

    void SetUp() override {
        s.Programmpfad = tmp.path() + "/";
        QDir(tmp.path()).mkdir("daten");
        ASSERT_TRUE(muster.save(tmp.path() + "/daten/must3.png", "PNG"));
        // The pattern files are JPEG by name; the content decides how it is read.
        QFile::rename(tmp.path() + "/daten/must3.png", tmp.path() + "/daten/must3.jpg");
        s.AktuellesEtikett.Breite = 500;
        s.AktuellesEtikett.Höhe = 300;
        s.Zeichenfaktor = 1.5;
    }
    std::vector<Zeichnung> Zeichne(CanvasArt art = CanvasArt::Bildschirm) {
        Protokollcanvas c(art);
        ZeichneBildHintergrund(s, c);
        return c.protokoll;
    }
};

TEST_F(Hintergrund, PatternCoversTheLabelWithoutCorrections) {
    s.AktuellesEtikett.Farbüberlauf = 5;
    s.AktuellesEtikett.Muster = 3;
    EXPECT_EQ(HintergrundbildDatei(s, s.AktuellesEtikett), tmp.path() + "/daten/must3.jpg");
    s.AktuellesBild.Helligkeit = 500; // left over from elsewhere: cleared for the background
    s.AktuellesBild.Invert = -1;
    const auto z = Zeichne();
    ASSERT_EQ(z.size(), 1u);
    EXPECT_EQ(z[0].twips, QRectF(0, 0, 500 * 5.67 * 1.5, 300 * 5.67 * 1.5));
    EXPECT_EQ(z[0].bild, muster);
    EXPECT_EQ(s.AktuellerRahmen.Objekttyp, "Bild");
    EXPECT_EQ(s.AktuellerRahmen.Breite, 500);
}

TEST_F(Hintergrund, PrinterGetsTheLabelSizeWithoutZoom) {
    s.AktuellesEtikett.Farbüberlauf = 5;
    s.AktuellesEtikett.Muster = 3;
    s.Zeichenfaktor = 2;
    const auto z = Zeichne(CanvasArt::Drucker);
    ASSERT_EQ(z.size(), 1u);
    EXPECT_EQ(z[0].twips, QRectF(0, 0, 500 * 5.67, 300 * 5.67));
}

TEST_F(Hintergrund, OwnPictureNeedsAPatternNumberAndOtherKindsDrawNoPicture) {
    const QString eigenes = Speichere(Testbild(20, 20), QDir(tmp.path()), "eigen.png");
    s.AktuellesEtikett.Bilddatei = eigenes;
    s.AktuellesEtikett.Farbüberlauf = 4;
    s.AktuellesEtikett.Muster = 1;
    auto z = Zeichne();
    ASSERT_EQ(z.size(), 1u);
    EXPECT_EQ(z[0].bild.size(), QSize(20, 20));

    s.AktuellesEtikett.Muster = 0; // kind 4 without a pattern: the design band alone
    EXPECT_TRUE(Zeichne().empty());
    for (int art : {0, 1, 2, 3, -2, 6}) {
        s.AktuellesEtikett.Farbüberlauf = art;
        s.AktuellesEtikett.Muster = 3;
        EXPECT_TRUE(Zeichne().empty()) << art;
    }
    // A missing pattern draws nothing.
    s.AktuellesEtikett.Farbüberlauf = 5;
    s.AktuellesEtikett.Muster = 12;
    EXPECT_TRUE(Zeichne().empty());
}

} // namespace
