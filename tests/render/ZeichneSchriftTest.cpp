// The text renderer on the recording canvas. A 10 pt text at 96 dpi has an em of 13 px at zoom
// 100 (20 px at 150); the recording canvas makes each character half an em wide, so "ABCD"
// measures 28 x 13 px = 420 x 195 twips (600 x 300 at zoom 150). The frame is X 100, Y 200,
// B 400, H 300. The expected device points come from the alignment tables worked through by hand
// for this measure, with the rotation offsets and the half-even rounding of every stored value.
#include "render/ZeichneSchrift.h"
#include "compose/canvas/RecordingCanvas.h"
#include "core/state/AppState.h"

#include <gtest/gtest.h>

using namespace zp;

namespace {
struct Umgebung {
    AppState s;
    ClassSchrift schrift;
    ClassRahmen rahmen;
    explicit Umgebung(double zoom = 100) {
        s.Zeichenfaktor = zoom / 100;
        s.TwipsProPixelX = s.TwipsProPixelY = 15;
        schrift.Textstring = QStringLiteral("ABCD");
        schrift.fontname = QStringLiteral("Arial");
        schrift.FontSize = 10;
        rahmen.X = 100, rahmen.Y = 200, rahmen.Breite = 400, rahmen.Höhe = 300;
        rahmen.Sichtbar = -1;
    }
    CanvasAufruf Text(RecordingCanvas& c, CanvasArt art = CanvasArt::Bildschirm) {
        (void)art;
        ZeichneSchrift(s, c, schrift, rahmen);
        const std::string name =
            c.Art() == CanvasArt::Bildschirm || c.Art() == CanvasArt::Vorschau ? "Print" : "TextOutA";
        const auto a = c.Alle(name);
        EXPECT_FALSE(a.empty());
        return a.empty() ? CanvasAufruf{} : a.back();
    }
    std::vector<int> Punkt(int angle, int h, int v) {
        RecordingCanvas c;
        schrift.Angle = static_cast<int16_t>(angle);
        schrift.AusrichtungH = static_cast<int16_t>(h);
        schrift.AusrichtungV = static_cast<int16_t>(v);
        return Text(c).Werte;
    }
};

using Punkte = std::vector<std::vector<int>>; // by (H, V): (0,0) (0,1) (0,2) (1,0) ... (2,2)
} // namespace

TEST(ZeichneSchrift, AnkerJeAusrichtungUndWinkel) {
    const std::vector<std::pair<int, Punkte>> zoom100{
        {0,
         {{38, 76}, {38, 126}, {38, 176}, {99, 76}, {99, 126}, {99, 176}, {161, 76}, {161, 126}, {161, 176}}},
        {90,
         {{41, 107},
          {41, 146},
          {41, 186},
          {107, 107},
          {107, 146},
          {107, 186},
          {173, 107},
          {173, 146},
          {173, 186}}},
        {180,
         {{189, 189},
          {189, 139},
          {189, 88},
          {127, 189},
          {127, 139},
          {127, 88},
          {66, 189},
          {66, 139},
          {66, 88}}},
        {270,
         {{193, 178},
          {193, 118},
          {193, 99},
          {120, 178},
          {120, 118},
          {120, 99},
          {62, 178},
          {62, 118},
          {62, 99}}},
        {45,
         {{37, 87}, {37, 138}, {37, 188}, {99, 87}, {99, 138}, {99, 188}, {161, 87}, {161, 138}, {161, 188}}},
    };
    const std::vector<std::pair<int, Punkte>> zoom150{
        {90,
         {{62, 158},
          {62, 218},
          {62, 278},
          {160, 158},
          {160, 218},
          {160, 278},
          {259, 158},
          {259, 218},
          {259, 278}}},
        {270,
         {{289, 269},
          {289, 179},
          {289, 149},
          {180, 269},
          {180, 179},
          {180, 149},
          {92, 269},
          {92, 179},
          {92, 149}}},
    };
    for (const auto& [zoom, tabelle] : {std::pair{100.0, zoom100}, std::pair{150.0, zoom150}}) {
        for (const auto& [angle, punkte] : tabelle) {
            Umgebung u(zoom);
            for (int h = 0; h < 3; ++h)
                for (int v = 0; v < 3; ++v) {
                    SCOPED_TRACE("Zoom " + std::to_string(zoom) + " Winkel " + std::to_string(angle) + " H " +
                                 std::to_string(h) + " V " + std::to_string(v));
                    EXPECT_EQ(u.Punkt(angle, h, v), punkte[static_cast<size_t>(h * 3 + v)]);
                }
        }
    }
}

TEST(ZeichneSchrift, RotationsversatzMitKonstantePiUndZweifacherRundung) {
    // w 1000, h 200 twips; F 5.67.
    EXPECT_EQ(RotVersatzX(1000, 200, 0, 5.67), 0);
    EXPECT_EQ(RotVersatzY(1000, 200, 0, 5.67), 0);
    EXPECT_EQ(RotVersatzX(1000, 200, 90, 5.67), 71); // 400 twips
    EXPECT_EQ(RotVersatzY(1000, 200, 90, 5.67), 106);
    EXPECT_EQ(RotVersatzX(1000, 200, 180, 5.67), 176); // about w: the text runs left
    EXPECT_EQ(RotVersatzY(1000, 200, 180, 5.67), 35);
    EXPECT_EQ(RotVersatzX(1000, 200, 270, 5.67), 106);
    EXPECT_EQ(RotVersatzY(1000, 200, 270, 5.67), -71);
    EXPECT_EQ(RotVersatzX(1000, 200, 45, 5.67), 13);
    EXPECT_EQ(RotVersatzY(1000, 200, 45, 5.67), 68);
    // A text of some 70 cm overflows 16 bits: clamped to 32767 twips, then divided.
    EXPECT_EQ(RotVersatzX(100000, 200, 180, 5.67), 5779);
    EXPECT_NEAR(PunktDrehen(100, 0, 90, QStringLiteral("y")), -100, 0.01);
    EXPECT_NEAR(PunktDrehen(0, 50, 90, QStringLiteral("x")), 50, 0.01);
    EXPECT_NEAR(PunktDrehen(100, 50, 0, QStringLiteral("x")), 100, 1e-9);
}

TEST(ZeichneSchrift, SchriftsatzUndRueckgabeDerObjekte) {
    Umgebung u(150);
    u.schrift.Bold = -1;
    u.schrift.Italic = -1;
    u.schrift.Angle = 30;
    u.s.Schriftenliste(3) = QStringLiteral(" Arial ");
    u.s.Schriftzeichensatz(3) = 0;
    RecordingCanvas c;
    const CanvasAufruf a = u.Text(c);
    EXPECT_EQ(a.Schrift.lfHeight, -20); // 1.5 x 10 pt x 96 / 72
    EXPECT_EQ(a.Schrift.lfWeight, 800);
    EXPECT_EQ(a.Schrift.lfEscapement, 300);
    EXPECT_EQ(a.Schrift.lfItalic, 1);
    EXPECT_EQ(a.Schrift.lfCharSet, 0); // from the font list's row
    EXPECT_EQ(a.Schrift.lfFaceName, QStringLiteral("Arial"));
    EXPECT_EQ(c.FontSize, 15); // the picture-box font is set for the measures
    // The font is put back and freed.
    EXPECT_EQ(c.GewaehlteSchrift(), 0);
    EXPECT_EQ(c.OffeneObjekte(), 0u);

    // A font the list doesn't know takes the default character set instead of failing.
    u.schrift.fontname = QStringLiteral("Nirgendwo Sans");
    RecordingCanvas d;
    EXPECT_EQ(u.Text(d).Schrift.lfCharSet, 1);
}

TEST(ZeichneSchrift, LeererSchriftnameBleibtAlsArial20ImDokument) {
    Umgebung u;
    u.schrift.fontname.clear();
    u.schrift.FontSize = 8;
    RecordingCanvas c;
    const CanvasAufruf a = u.Text(c);
    EXPECT_EQ(u.schrift.fontname, QStringLiteral("Arial"));
    EXPECT_EQ(u.schrift.FontSize, 20);
    EXPECT_EQ(a.Schrift.lfHeight, -27); // 20 pt at 96 dpi = 26.67
}

TEST(ZeichneSchrift, ZeichenabstandDesVorigenTextesStecktImMass) {
    Umgebung u;
    u.schrift.CharSpace = 5;
    RecordingCanvas c;
    ZeichneSchrift(u.s, c, u.schrift, u.rahmen);
    // The first text was measured without spacing; the device keeps 5 px for the next one.
    const auto masse = c.Alle("GetTextExtentPoint32A");
    ASSERT_EQ(masse.size(), 1u);
    EXPECT_EQ(masse[0].Werte[0], 28);
    EXPECT_EQ(c.Zeichenabstand(), 5);
    u.schrift.CharSpace = 0;
    u.schrift.AusrichtungH = 2; // right aligned: the wider measure moves the start left
    ZeichneSchrift(u.s, c, u.schrift, u.rahmen);
    const auto zweite = c.Alle("GetTextExtentPoint32A");
    EXPECT_EQ(zweite.back().Werte[0], 48); // 4 x (7 + 5)
    // X0 = 500 - 48 px in tenths of a mm (720 twips / 5.67 = 127.0) = 373 -> 141.0 px.
    EXPECT_EQ(c.Alle("Print").back().Werte[0], 141);
}

TEST(ZeichneSchrift, VorgabenFarbeBleibtWinkelWirdVerbraucht) {
    Umgebung u;
    u.schrift.Color1 = 0x123456;
    u.schrift.Angle = 0;
    u.s.Farbvorgabe = 0x0000FF;
    u.s.Winkelvorgabe = 90;
    RecordingCanvas c;
    const CanvasAufruf a = u.Text(c);
    EXPECT_EQ(a.ForeColor, 0x0000FF);
    EXPECT_EQ(a.Schrift.lfEscapement, 900);
    EXPECT_EQ(u.schrift.Color1, 0x123456); // the object as it was
    EXPECT_EQ(u.schrift.Angle, 0);
    EXPECT_EQ(u.s.Farbvorgabe, 0x0000FF); // the calendar clears the colour itself
    EXPECT_EQ(u.s.Winkelvorgabe, -1);
}

TEST(ZeichneSchrift, VerborgenerTextLaeuftMitLeeremTextDurch) {
    Umgebung u;
    u.schrift.Sichtbar = 0;
    u.schrift.ShadowDeep = 50;
    u.schrift.ShadowType = 1;
    RecordingCanvas c;
    ZeichneSchrift(u.s, c, u.schrift, u.rahmen);
    const auto ausgaben = c.Alle("Print");
    ASSERT_EQ(ausgaben.size(), 2u); // shadow and text, both empty
    EXPECT_TRUE(ausgaben[0].Text.isEmpty());
    EXPECT_EQ(c.Alle("CreateFontIndirectA").size(), 1u);

    // In a dialog preview the text shows all the same, centred in the box, at the true size.
    u.s.Vorschaumodus = -1;
    u.s.Zeichenfaktor = 2;
    u.schrift.ShadowDeep = 0;
    RecordingCanvas v(CanvasArt::Vorschau);
    ZeichneSchrift(u.s, v, u.schrift, u.rahmen);
    EXPECT_EQ(v.Aufrufe.front().Name, "Cls");
    const CanvasAufruf p = v.Alle("Print").back();
    EXPECT_EQ(p.Text, QStringLiteral("ABCD"));
    EXPECT_EQ(p.Schrift.lfHeight, -13);
    // X0 = 300 - 74.07 / 2 = 262.96 -> 263, Y0 = 350 - 17.2 = 332.8 -> 333.
    EXPECT_EQ(p.Werte, (std::vector<int>{99, 126}));
}

TEST(ZeichneSchrift, DruckerUndExportGebenMitTextOutAus) {
    Umgebung u;
    u.s.DruckenAktiv = -1;
    u.s.TwipsProPixelX = u.s.TwipsProPixelY = 2.4; // 600 dpi
    RecordingCanvas drucker(CanvasArt::Drucker, 2.4, 2.4);
    const CanvasAufruf a = u.Text(drucker);
    // 10 pt at 600 dpi: 83 px em; X0 = 100, Y0 = 200 -> 567 / 2.4 = 236.25, 1134 / 2.4 = 472.5.
    EXPECT_EQ(a.Schrift.lfHeight, -83);
    EXPECT_EQ(a.Werte, (std::vector<int>{236, 472}));
    EXPECT_TRUE(drucker.Alle("Print").empty());

    Umgebung e;
    e.s.ExportAktiv = -1;
    RecordingCanvas lead(CanvasArt::Export);
    lead.FontSize = 33;
    const CanvasAufruf b = e.Text(lead);
    EXPECT_EQ(b.Werte, (std::vector<int>{38, 76}));
    EXPECT_EQ(lead.FontSize, 33); // the export skips the picture-box font
}

TEST(ZeichneSchrift, UnsinnigeWerteZeichnenOhneAbsturz) {
    Umgebung u;
    u.schrift.FontSize = 1e12;
    u.schrift.Angle = 725;
    u.schrift.Textstring = QString(2000, QLatin1Char('W'));
    u.schrift.AusrichtungH = 7;
    u.rahmen.Breite = -50;
    RecordingCanvas c;
    ZeichneSchrift(u.s, c, u.schrift, u.rahmen);
    EXPECT_EQ(c.Alle("Print").size(), 1u);
    u.s.Zeichenfaktor = 0;
    ZeichneSchrift(u.s, c, u.schrift, u.rahmen);
    EXPECT_EQ(c.Alle("Print").size(), 2u);
}
