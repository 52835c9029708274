#include "core/Bildbefehle.h"
#include "core/state/ProtokollOberflaeche.h"
#include "core/state/AppState.h"
#include "core/state/Inhalt.h"
#include "core/state/Objekte.h"

#include <QImage>
#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace zp;

namespace {

// A document of the 31 template frames with one picture frame inserted on top.
AppState MitBildrahmen(int& nummer) {
    AppState s;
    for (int n = 1; n <= 31; ++n)
        ErzeugeRahmen(s, n, n == 31 ? QStringLiteral("RTF") : QStringLiteral("Schrift"), n);
    nummer = FuegeInhaltEin(s, QStringLiteral("Bild"));
    s.Rahmenliste(nummer).Sichtbar = -1;
    s.Auswahlmodus = 0;
    return s;
}

} // namespace

TEST(Bildregler, SlidersWriteTenTimesTheirValueAndOpenAtATenth) {
    ClassBild b;
    const struct {
        Bildregler regler;
        int ClassBild::*feld32;
        int16_t ClassBild::*feld16;
    } faelle[] = {{Bildregler::Helligkeit, nullptr, &ClassBild::Helligkeit},
                  {Bildregler::Kontrast, nullptr, &ClassBild::Kontrast},
                  {Bildregler::Farbverschiebung, nullptr, &ClassBild::Farbverschiebung},
                  {Bildregler::Farbintensitaet, &ClassBild::Farbintensität, nullptr},
                  {Bildregler::Schaerfe, nullptr, &ClassBild::Schärfe},
                  {Bildregler::Pixel, &ClassBild::EffektPixel, nullptr},
                  {Bildregler::Mosaik, &ClassBild::EffektMosaik, nullptr}};
    int wert = -7;
    for (const auto& f : faelle) {
        SetzeBildregler(b, f.regler, wert);
        const int gespeichert = f.feld32 ? b.*f.feld32 : b.*f.feld16;
        EXPECT_EQ(gespeichert, wert * 10) << static_cast<int>(f.regler);
        EXPECT_EQ(BildreglerStellung(b, f.regler), wert);
        wert += 3;
    }
    // Each slider wrote its own field only: the first keeps its value after all the others.
    EXPECT_EQ(b.Helligkeit, -70);
    // A slider far out of a 16-bit field's range is held at its end, not wrapped round.
    SetzeBildregler(b, Bildregler::Helligkeit, 10000);
    EXPECT_EQ(b.Helligkeit, 32767);
}

TEST(Bilddrehung, SliderHundredfoldAndTypedAngleFrom0To360) {
    ClassBild b;
    SetzeDrehung(b, 45);
    EXPECT_EQ(b.Rotate, 4500);
    EXPECT_EQ(WinkelText(b), u"45");

    const struct {
        const char* getippt;
        int32_t rotate;
        const char* zeigt;
    } faelle[] = {{"90", 9000, "90"}, {"12.5", 1250, "12.5"}, {"360", 36000, "360"}, {"0", 0, "0"},
                  {"400", 0, "0"},    {"-5", 0, "0"},         {"abc", 0, "0"},       {"", 0, "0"}};
    for (const auto& f : faelle) {
        b.Rotate = 777;
        EXPECT_EQ(WinkelGetippt(b, QString::fromLatin1(f.getippt)), QString::fromLatin1(f.zeigt))
            << f.getippt;
        EXPECT_EQ(b.Rotate, f.rotate) << f.getippt;
    }
    b.Rotate = 1250;
    EXPECT_EQ(WinkelText(b), u"12.5");
}

TEST(Bilddatei, ChoiceKeepsTheNamesAndReshapesTheFrame) {
    ClassBild b;
    SetzeBilddatei(b, QStringLiteral("/tmp/fotos/urlaub.jpg"));
    EXPECT_EQ(b.File, u"/tmp/fotos/urlaub.jpg");
    EXPECT_EQ(b.File_Name, u"urlaub.jpg");
    EXPECT_EQ(b.File_Path, u"/tmp/fotos");
    EXPECT_EQ(b.File_Dir, u"fotos");

    ClassRahmen r;
    r.X = 100;
    r.Y = 200;
    r.Breite = 600;
    r.Höhe = 100;
    RahmenNachBild(r, 4000, 3000); // landscape photo 4:3
    EXPECT_DOUBLE_EQ(r.Höhe, 450);
    RahmenNachBild(r, 1000, 2000); // portrait: twice as high as wide
    EXPECT_DOUBLE_EQ(r.Höhe, 1200);
    EXPECT_DOUBLE_EQ(r.Breite, 600); // the width and the place stay
    EXPECT_DOUBLE_EQ(r.X, 100);
    RahmenNachBild(r, 0, 500); // no picture: no change
    EXPECT_DOUBLE_EQ(r.Höhe, 1200);
}

TEST(BildOk, WritesTheCopyOrDeletesTheFrameOfAMissingFile) {
    QTemporaryDir ordner;
    const QString datei = ordner.filePath(QStringLiteral("logo.png"));
    QImage(8, 4, QImage::Format_RGB32).save(datei);

    int n = 0;
    AppState s = MitBildrahmen(n);
    test::ProtokollOberflaeche ui;
    ClassBild kopie;
    SetzeBilddatei(kopie, datei);
    kopie.Kontrast = 30;
    ClassRahmen rahmen = s.Rahmenliste(n);
    RahmenNachBild(rahmen, 8, 4);
    EXPECT_TRUE(BildUebernehmen(s, ui, kopie, rahmen));
    EXPECT_EQ(s.Bildliste(1).File, datei);
    EXPECT_EQ(s.Bildliste(1).Kontrast, 30);
    EXPECT_DOUBLE_EQ(s.Rahmenliste(n).Höhe, rahmen.Breite / 2);
    EXPECT_TRUE(ui.meldungen.isEmpty());
    EXPECT_GT(ui.neuzeichnen, 0);

    // The file went away before Ok: the frame and its picture leave the document.
    ClassBild fehlt = kopie;
    fehlt.File = ordner.filePath(QStringLiteral("weg.jpg"));
    EXPECT_FALSE(BildUebernehmen(s, ui, fehlt, s.Rahmenliste(n)));
    ASSERT_EQ(ui.meldungen.size(), 1);
    EXPECT_EQ(ui.meldungen[0], u"Diese Bilddatei existiert nicht. Der Rahmen wird gelöscht!");
    EXPECT_EQ(ui.titel_, u"Hinweis");
    EXPECT_EQ(s.RahmenAnzahl, 31);
    EXPECT_EQ(s.BildAnzahl, 0);
    EXPECT_TRUE(ui.fragen.isEmpty()); // deleted without asking
}

TEST(BildAbbruch, KeepsThePictureAndRemovesOnlyAFrameJustInserted) {
    int n = 0;
    AppState s = MitBildrahmen(n);
    s.Bildliste(1).Helligkeit = 50;
    test::ProtokollOberflaeche ui;
    BildAbbrechen(s, ui, false);
    EXPECT_EQ(s.RahmenAnzahl, 32);
    EXPECT_EQ(s.Bildliste(1).Helligkeit, 50);

    BildAbbrechen(s, ui, true);
    EXPECT_EQ(s.RahmenAnzahl, 31);
    EXPECT_EQ(s.BildAnzahl, 0);
    EXPECT_TRUE(ui.fragen.isEmpty());
}
