#include "tests/core/state/ProtokollOberflaeche.h"

#include "core/Datensatzbefehle.h"
#include "core/runtime/TextDatei.h"
#include "core/state/AppState.h"
#include "persist/Layout.h"

#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace zp;

namespace {
enum class Ausgabe { Visitenkarte, Etikett, Briefkopf };

// A document of 31 frames and 30 texts on a card of 850 x 550.
AppState Dokument(Ausgabe a) {
    AppState s;
    s.IstVisitenkarte = a == Ausgabe::Visitenkarte ? -1 : 0;
    s.IstEtikett = a == Ausgabe::Etikett ? -1 : 0;
    s.IstBriefkopf = a == Ausgabe::Briefkopf ? -1 : 0;
    s.AktuellesEtikett.Breite = 850;
    s.AktuellesEtikett.Höhe = 550;
    s.RahmenAnzahl = 31;
    for (int n = 1; n <= 31; ++n) {
        ClassRahmen& r = s.Rahmenliste(n);
        r = ClassRahmen{};
        r.Breite = 999;
        r.X = r.Y = 1;
        r.Objekttyp = n == 31 ? QStringLiteral("RTF") : QStringLiteral("Schrift");
        r.Objektnummer = n == 31 ? 1 : n;
    }
    for (int n = 1; n <= 30; ++n) {
        s.Schriftliste(n).Textstring = QStringLiteral("Text %1").arg(n);
        s.Schriftliste(n).fontname = QStringLiteral("Times");
    }
    return s;
}

// The layout file: every frame 123 wide at X 77, Y 600 (below a label of 550), texts turned 90°.
QByteArray Layoutdatei() {
    AppState q = Dokument(Ausgabe::Visitenkarte);
    for (int n = 1; n <= 31; ++n) {
        ClassRahmen& r = q.Rahmenliste(n);
        r.Breite = 123.7;
        r.Höhe = 40 + n;
        r.X = 77;
        r.Y = 600;
        r.z = static_cast<int16_t>(32 - n);
        r.Sichtbar = n % 2 ? -1 : 0;
    }
    for (int n = 1; n <= 30; ++n) {
        ClassSchrift& t = q.Schriftliste(n);
        t.Angle = 90;
        t.AusrichtungH = 2;
        t.AusrichtungV = 1;
        t.FontSize = 12.5;
        t.Top = 10 + n;
        t.widht = 300.9;
        t.X = 20;
        t.z = static_cast<int16_t>(n);
        t.Textstring = QStringLiteral("aus der Datei");
        t.fontname = QStringLiteral("Arial");
        t.Color1 = 0xFF;
    }
    return SchreibeLayout(q);
}

struct Zeile {
    const char* datei;
    Ausgabe ausgabe;
    int n;
    double breite, x, y;
};
} // namespace

// Width 850 and height 550: W - 100 = 750, W / 3 = 283, W / 3 - 50 = 233, (W / 3) * 2 = 566,
// W / 2 = 425, height - 30 = 520. The document's own width is 999, the file's 123.
TEST(LadeLayout, EveryFittingOfTheShippedLayouts) {
    const Zeile zeilen[] = {
        {"Layout5.lay", Ausgabe::Visitenkarte, 1, 750, 77, 600},
        {"Layout5.lay", Ausgabe::Etikett, 25, 850, 77, 520},
        {"Layout5.lay", Ausgabe::Briefkopf, 3, 850, 77, 600},
        {"Layout3.lay", Ausgabe::Visitenkarte, 30, 850, 77, 600},
        {"Layout3.lay", Ausgabe::Etikett, 31, 850, 77, 600}, // frame 31 keeps its place on a label
        {"Layout1.lay", Ausgabe::Visitenkarte, 5, 750, 77, 600},
        {"Layout2.lay", Ausgabe::Visitenkarte, 31, 750, 77, 600},
        {"Layout1.lay", Ausgabe::Etikett, 10, 233, 77, 520},
        {"Layout1.lay", Ausgabe::Etikett, 11, 566, 77, 520},
        {"Layout1.lay", Ausgabe::Etikett, 21, 566, 283, 520},
        {"Layout1.lay", Ausgabe::Etikett, 30, 566, 283, 520},
        {"Layout1.lay", Ausgabe::Etikett, 31, 999, 77, 600},
        {"Layout2.lay", Ausgabe::Etikett, 1, 233, 0, 520},
        {"Layout2.lay", Ausgabe::Etikett, 20, 566, 0, 520},
        {"Layout2.lay", Ausgabe::Etikett, 21, 566, 283, 520},
        {"Layout2.lay", Ausgabe::Briefkopf, 10, 233, 77, 600},
        {"Layout2.lay", Ausgabe::Briefkopf, 11, 566, 77, 600},
        {"Layout4.lay", Ausgabe::Visitenkarte, 21, 750, 77, 600},
        {"Layout4.lay", Ausgabe::Visitenkarte, 22, 425, 425, 600},
        {"Layout4.lay", Ausgabe::Etikett, 22, 425, 77, 520},
        {"Layout4.lay", Ausgabe::Briefkopf, 20, 750, 77, 600},
        {"Layout7.lay", Ausgabe::Visitenkarte, 4, 123, 77, 600}, // a layout of the user's own
        {"Layout7.lay", Ausgabe::Etikett, 30, 123, 77, 520},
    };
    const QByteArray datei = Layoutdatei();
    for (const Zeile& z : zeilen) {
        AppState s = Dokument(z.ausgabe);
        ASSERT_EQ(WendeLayoutAn(s, datei, QString::fromLatin1(z.datei)), LayoutLesung::Gelesen);
        const ClassRahmen& r = s.Rahmenliste(z.n);
        const std::string was = std::string(z.datei) + " Rahmen " + std::to_string(z.n);
        EXPECT_EQ(r.Breite, z.breite) << was;
        EXPECT_EQ(r.X, z.x) << was;
        EXPECT_EQ(r.Y, z.y) << was;
        EXPECT_EQ(r.Höhe, 40 + z.n) << was;
        EXPECT_EQ(r.z, 32 - z.n) << was;
        EXPECT_EQ(r.Sichtbar, z.n % 2 ? -1 : 0) << was;
    }
}

TEST(LadeLayout, TextsTakeOnlyTheirArrangement) {
    AppState s = Dokument(Ausgabe::Visitenkarte);
    ASSERT_EQ(WendeLayoutAn(s, Layoutdatei(), QStringLiteral("Layout3.lay")), LayoutLesung::Gelesen);
    const ClassSchrift& t = s.Schriftliste(22);
    EXPECT_EQ(t.Angle, 90);
    EXPECT_EQ(t.AusrichtungH, 2);
    EXPECT_EQ(t.AusrichtungV, 1);
    EXPECT_EQ(t.FontSize, 12.5);
    EXPECT_EQ(t.Top, 32);
    EXPECT_EQ(t.widht, 300); // cut to whole tenths
    EXPECT_EQ(t.X, 20);
    EXPECT_EQ(t.z, 22);
    // What the text says, its font and colour stay the document's.
    EXPECT_EQ(t.Textstring, u"Text 22");
    EXPECT_EQ(t.fontname, u"Times");
    EXPECT_EQ(t.Color1, 0);
}

TEST(LadeLayout, OutsideTheCardEditionsFramesAndTextsFrom21Stay) {
    AppState s = Dokument(Ausgabe::Briefkopf);
    ASSERT_EQ(WendeLayoutAn(s, Layoutdatei(), QStringLiteral("Layout3.lay")), LayoutLesung::Gelesen);
    EXPECT_EQ(s.Rahmenliste(20).Breite, 850);
    EXPECT_EQ(s.Rahmenliste(21).Breite, 999);
    EXPECT_EQ(s.Rahmenliste(31).Objekttyp, u"RTF");
    EXPECT_EQ(s.Schriftliste(20).Angle, 90);
    EXPECT_EQ(s.Schriftliste(21).Angle, 0);
}

TEST(LadeLayout, ALayoutWithMoreFramesThanTheDocumentMakesNone) {
    AppState s = Dokument(Ausgabe::Visitenkarte);
    s.RahmenAnzahl = 25;
    ASSERT_EQ(WendeLayoutAn(s, Layoutdatei(), QStringLiteral("Layout3.lay")), LayoutLesung::Gelesen);
    EXPECT_EQ(s.RahmenAnzahl, 25);
    EXPECT_EQ(s.Rahmenliste(25).Breite, 850);
    EXPECT_EQ(s.Rahmenliste(26).Breite, 999);
}

TEST(LadeLayout, DamagedOrForeignFilesChangeNothing) {
    AppState s = Dokument(Ausgabe::Etikett);
    EXPECT_EQ(WendeLayoutAn(s, "ZP Datenbank\r\n", QStringLiteral("Layout1.lay")), LayoutLesung::FremderKopf);
    QByteArray kurz = Layoutdatei();
    const qsizetype schrift = kurz.indexOf("\r\nSchrift\r\n");
    ASSERT_GT(schrift, 0);
    for (qsizetype ende : {schrift / 2, schrift + 40, kurz.size() - 200}) {
        EXPECT_THROW(WendeLayoutAn(s, kurz.left(ende), QStringLiteral("Layout1.lay")), FormatFehler);
        EXPECT_EQ(s.Rahmenliste(1).Breite, 999); // the frames read before the fault weren't taken
        EXPECT_EQ(s.Schriftliste(1).Angle, 0);
    }
    QByteArray falsch = Layoutdatei();
    falsch.replace("\r\nSchrift\r\n", "\r\nSchrift\r\nviele\r\n");
    EXPECT_THROW(WendeLayoutAn(s, falsch, QStringLiteral("Layout1.lay")), FormatFehler);
    EXPECT_EQ(s.Rahmenliste(1).Breite, 999);
}

TEST(LadeLayout, LayoutButtonsReadFromTheProgramFolder) {
    QTemporaryDir dir;
    AppState s = Dokument(Ausgabe::Visitenkarte);
    s.Programmpfad = dir.path() + QLatin1Char('/');
    s.RahmenNummer = 7;
    test::ProtokollOberflaeche ui;

    EXPECT_FALSE(LayoutKnopf(s, ui, 2)); // no file: a warning, nothing changed
    EXPECT_EQ(ui.meldungen.size(), 1);
    EXPECT_TRUE(s.Ladevorgabe.isEmpty());
    EXPECT_EQ(s.Rahmenliste(1).Breite, 999);

    ASSERT_TRUE(SchreibeDateiAtomar(s.Programmpfad + QStringLiteral("Layout2.lay"), Layoutdatei()));
    EXPECT_TRUE(LayoutKnopf(s, ui, 2));
    EXPECT_EQ(s.Rahmenliste(1).Breite, 750);
    EXPECT_EQ(s.RahmenNummer, 1);
    EXPECT_EQ(s.SchriftNummer, 1);
    EXPECT_EQ(ui.neuzeichnen, 1);
    EXPECT_TRUE(s.Ladevorgabe.isEmpty());

    ASSERT_TRUE(SchreibeDateiAtomar(s.Programmpfad + QStringLiteral("Layout3.lay"), "Kein Layout\r\n"));
    EXPECT_FALSE(LayoutKnopf(s, ui, 3));
    EXPECT_EQ(ui.meldungen.last(), u"Falsches Datenformat");
    EXPECT_EQ(ui.titel_, u"Warnung!");
}
