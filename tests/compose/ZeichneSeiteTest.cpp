// The order and the conditions of the page composition, on recording canvases.
#include "compose/ZeichneSeite.h"
#include "compose/canvas/RecordingCanvas.h"
#include "core/state/AppState.h"
#include "core/state/Oberflaeche.h"
#include "core/state/Objekte.h"

#include <gtest/gtest.h>

using namespace zp;

namespace {
constexpr CanvasFarbe Umriss = 0x5C5C5C; // RGB(92, 92, 92)

// Three frames: text "C" at z 3, a shape at z 1, text "B" at z 2; zoom 100.
struct Seite {
    AppState s;
    RecordingCanvas bild;
    Zeichenziele ziele;
    Seite() {
        s.Zoomfaktor = 100;
        s.RahmenAnzahl = 0;
        s.Rahmenliste.Redim(3);
        s.Schriftliste.Redim(30);
        s.Linienliste.Redim(1);
        ErzeugeRahmen(s, 1, QStringLiteral("Schrift"), 1);
        ErzeugeRahmen(s, 2, QStringLiteral("Linie"), 1);
        ErzeugeRahmen(s, 3, QStringLiteral("Schrift"), 2);
        s.Rahmenliste(1).z = 3;
        s.Rahmenliste(2).z = 1;
        s.Rahmenliste(3).z = 2;
        s.Schriftliste(1).Textstring = QStringLiteral("C");
        s.Schriftliste(2).Textstring = QStringLiteral("B");
        s.Linienliste(1).Form = 16;
        s.Linienliste(1).Füllung = -1;
        s.AktuelleSeite.Breite = 2100;
        s.AktuelleSeite.Höhe = 2970;
        s.GridAn = 0;
        ziele.PictureSeite = &bild;
    }
    void Zeichne() { ZeichneSeite(s, ziele); }
};

bool IstUmriss(const CanvasAufruf& a) {
    return a.Name == "Line" && a.Form == Canvas::LineForm::Kasten && a.ForeColor == Umriss;
}
} // namespace

TEST(ZeichneSeite, ReihenfolgeHintergrundRasterRahmenUmrisseMarken) {
    Seite p;
    p.s.AktuellesEtikett.Farbüberlauf = 1;
    p.s.AktuellesEtikett.Breite = 900;
    p.s.AktuellesEtikett.Höhe = 500;
    p.s.AktuellesEtikett.Farbe1 = 0x00FFFF;
    p.s.HilfsbereicheAn = -1;
    p.s.GridAn = -1;
    p.s.Rasterhoehe = p.s.Rasterbreite = 500;
    p.s.RahmenAnzeigen = -1;
    p.s.Rahmen = {100, 200, 1000, 500};
    p.Zeichne();
    const auto& a = p.bild.Aufrufe;
    std::vector<std::string> folge;
    for (const CanvasAufruf& x : a) {
        if (x.Name == "Cls")
            folge.push_back("Cls");
        else if (x.Name == "Polygon" && x.FillColor == 0x00FFFF)
            folge.push_back("Hintergrund");
        else if (x.Name == "Line" && x.Form == Canvas::LineForm::KastenGefuellt && x.ForeColor == 0xDEDEDE)
            folge.push_back("Rand");
        else if (x.Name == "Line" && x.Form == Canvas::LineForm::Linie)
            folge.push_back("Raster");
        else if (x.Name == "Polygon")
            folge.push_back("Form");
        else if (x.Name == "Print")
            folge.push_back("Text " + x.Text.toStdString());
        else if (IstUmriss(x))
            folge.push_back("Umriss");
        else if (x.Name == "Line" && x.ForeColor == 0x5C5C5C)
            folge.push_back("Griff");
        else if (x.Name == "Line" && x.ForeColor == 0x000032)
            folge.push_back("Markierung");
        if (folge.size() > 1 && folge.back() == folge[folge.size() - 2] && folge.back() != "Umriss")
            folge.pop_back();
    }
    // Pass (z, n) draws frame n if its z matches, then repaints frame n's outline.
    const std::vector<std::string> erwartet{
        "Cls",    "Hintergrund", "Rand",   "Raster", "Umriss", "Form",   "Umriss", "Umriss", "Umriss",
        "Umriss", "Text B",      "Umriss", "Text C", "Umriss", "Umriss", "Umriss", "Griff",  "Markierung"};
    EXPECT_EQ(folge, erwartet);
    // Grid: every 500 tenths of a millimetre, dotted: 5 rows down to 2970 and 4 columns to 2100.
    int raster = 0;
    for (const CanvasAufruf& x : a)
        if (x.Name == "Line" && x.Form == Canvas::LineForm::Linie) {
            ++raster;
            EXPECT_EQ(x.DrawStyle, 2);
        }
    EXPECT_EQ(raster, 9);
    // The handles are 80 twips whatever the zoom: 100 / 15 = 6.67 -> 7 and 180 / 15 = 12.
    const auto griffe = p.bild.Alle("Line");
    const CanvasAufruf& marke = griffe[griffe.size() - 5];
    EXPECT_EQ(marke.Werte, (std::vector<int>{7, 13, 12, 19}));
    EXPECT_EQ(marke.DrawWidth, 2);
    EXPECT_EQ(p.bild.DrawWidth, 1);
}

TEST(ZeichneSeite, RasterNurBeiGenauMinusEins) {
    for (float an : {-1.0f, 1.0f, 0.0f}) {
        Seite p;
        p.s.GridAn = an;
        p.Zeichne();
        int raster = 0;
        for (const CanvasAufruf& x : p.bild.Alle("Line"))
            raster += x.Form == Canvas::LineForm::Linie;
        EXPECT_EQ(raster > 0, an == -1.0f) << an;
    }
}

TEST(ZeichneSeite, VerborgeneRahmenOhneInhaltUndOhneUmriss) {
    Seite p;
    p.s.RahmenAnzeigen = -1;
    p.s.Rahmenliste(1).Sichtbar = 0;
    p.s.Schriftliste(2).Textstring.clear(); // visible, empty: outline but no text
    p.Zeichne();
    EXPECT_TRUE(p.bild.Alle("Print").empty());
    int umrisse = 0;
    for (const CanvasAufruf& x : p.bild.Aufrufe)
        umrisse += IstUmriss(x);
    EXPECT_EQ(umrisse, 3 * 2);
}

TEST(ZeichneSeite, KalendervorlageZeigtBeimBearbeitenJedenRahmen) {
    const auto umrisse = [](bool bearbeiten) {
        Seite p;
        p.s.IstKalender = -1;
        p.s.Kalendertyp = 4;
        p.s.Kalenderjahr = 2027;
        p.s.KalenderBearbeiten = bearbeiten ? -1 : 0;
        p.Zeichne();
        int n = 0;
        for (const CanvasAufruf& x : p.bild.Aufrufe)
            n += IstUmriss(x);
        return n;
    };
    EXPECT_EQ(umrisse(false), 0);
    EXPECT_EQ(umrisse(true), 3 * 3); // every frame, in each of the three passes
}

TEST(ZeichneSeite, PaneltexteHolenIhreRahmenZurueck) {
    Seite p;
    p.s.Rahmenliste.RedimPreserve(31);
    p.s.Rahmenliste(25).Sichtbar = 0;
    p.s.Panel.Text1(25) = QStringLiteral("Hallo");
    p.s.Schriftliste(26).Textstring = QStringLiteral("alt");
    p.Zeichne();
    EXPECT_EQ(p.s.Schriftliste(25).Textstring, QStringLiteral("Hallo"));
    EXPECT_EQ(p.s.Rahmenliste(25).Sichtbar, -1);
    EXPECT_TRUE(p.s.Schriftliste(26).Textstring.isEmpty()); // an empty box empties its text too
}

TEST(ZeichneSeite, BrieftextHinweisNurImBriefkopfAufDemSchirm) {
    Seite p;
    p.s.Rahmenliste(2).Objekttyp = QStringLiteral("RTF");
    p.Zeichne();
    for (const CanvasAufruf& x : p.bild.Alle("Print"))
        EXPECT_NE(x.Text, QStringLiteral("Brieftext (Anzeige unter Vorschau)"));
    p.s.IstBriefkopf = -1;
    RecordingCanvas neu;
    p.ziele.PictureSeite = &neu;
    p.Zeichne();
    const auto texte = neu.Alle("Print");
    ASSERT_EQ(texte.size(), 3u);
    EXPECT_EQ(texte[0].Text, QStringLiteral("Brieftext (Anzeige unter Vorschau)"));
    EXPECT_EQ(texte[0].ForeColor, 0xC0C0C0);
    EXPECT_EQ(texte[0].Schrift.lfHeight, -13); // Arial 10 at 96 dpi
}

TEST(ZeichneSeite, DruckerVerschiebtUrsprungUndZeichnetSchnitthilfen) {
    Seite p;
    p.s.Zoomfaktor = 150;
    p.s.DruckenAktiv = -1;
    p.s.IstEtikett = -1;
    p.s.TwipsProPixelX = p.s.TwipsProPixelY = 2.4;
    p.s.DruckversatzX = 100; // 100 x 5.67 / 2.4 = 236.25 -> -236
    p.s.DruckversatzY = 50;  // 118.1 -> -118
    p.s.AktuellesEtikett.Breite = 500;
    p.s.AktuellesEtikett.Höhe = 300;
    p.s.AktuellesEtikett.Schnittrahmen = -1;
    p.s.AktuellesEtikett.Schnittmarken = -1;
    p.s.RahmenAnzeigen = -1;
    p.s.GridAn = -1;
    RecordingCanvas drucker(CanvasArt::Drucker, 2.4, 2.4);
    p.ziele.Printer = &drucker;
    p.Zeichne();
    EXPECT_EQ(p.s.Zeichenfaktor, 1);
    EXPECT_TRUE(p.bild.Aufrufe.empty()); // nothing on the page picture: no outlines, no marks
    ASSERT_FALSE(drucker.Aufrufe.empty());
    EXPECT_EQ(drucker.Aufrufe[0].Name, "OffsetWindowOrgEx");
    EXPECT_EQ(drucker.Aufrufe[0].Werte, (std::vector<int>{-236, -118}));
    EXPECT_TRUE(drucker.Alle("Cls").empty());
    const auto rahmen = drucker.Alle("Polyline");
    ASSERT_EQ(rahmen.size(), 1u);
    // 500 x 5.67 / 2.4 = 1181.25 and 300 x 5.67 / 2.4 = 708.75, truncated.
    EXPECT_EQ(rahmen[0].Punkte, (std::vector<QPoint>{{0, 0}, {1181, 0}, {1181, 708}, {0, 708}, {0, 0}}));
    EXPECT_EQ(rahmen[0].DrawStyle, 2);
    const auto marken = drucker.Alle("Rectangle");
    ASSERT_EQ(marken.size(), 8u);
    EXPECT_EQ(marken[0].Werte, (std::vector<int>{-94, 0, -23, 4})); // -40, 0, -10, 2
    EXPECT_EQ(marken[7].Werte, (std::vector<int>{1181, 732, 1185, 803}));
    EXPECT_EQ(marken[0].FillStyle, 0);
    EXPECT_EQ(drucker.FillStyle, 1);
}

TEST(ZeichneSeite, ExportBildGroesseUndUmrisseAufDerSeite) {
    Seite p;
    p.s.ExportAktiv = -1;
    p.s.ZoomExport = 2;
    p.s.RahmenAnzeigen = -1;
    p.s.AktuellesEtikett.Breite = 300;
    p.s.AktuellesEtikett.Höhe = 150;
    RecordingCanvas lead(CanvasArt::Export);
    p.ziele.Lead2 = &lead;
    p.Zeichne();
    EXPECT_EQ(p.s.Zeichenfaktor, 2);
    ASSERT_FALSE(lead.Aufrufe.empty());
    EXPECT_EQ(lead.Aufrufe[0].Name, "SetzeGroesse");
    EXPECT_EQ(lead.Aufrufe[0].Werte, (std::vector<int>{227, 113})); // 300 x 5.67 x 2 / 15 = 226.8
    EXPECT_EQ(lead.Alle("TextOutA").size(), 2u);
    int umrisse = 0;
    for (const CanvasAufruf& x : p.bild.Aufrufe)
        umrisse += IstUmriss(x);
    EXPECT_EQ(umrisse, 9);
    EXPECT_TRUE(lead.Alle("Line").empty());
}

TEST(ZeichneSeite, WochenansichtZaehltTageBisZurSeite) {
    // 31 December 2003 was a Wednesday: page 2 starts after 4 days, page 6 on 2 February.
    const std::vector<std::tuple<int, int, int>> faelle{
        {1, 0, 1}, {2, 4, 1}, {3, 11, 1}, {6, 1, 2}, {53, 26, 12}};
    for (const auto& [seite, tag, monat] : faelle) {
        Seite p;
        p.s.IstKalender = -1;
        p.s.Kalendertyp = 6;
        p.s.Kalenderjahr = 2004;
        p.s.Seitennummer = seite;
        p.Zeichne();
        EXPECT_EQ(p.s.WocheTag, tag) << "Seite " << seite;
        EXPECT_EQ(p.s.WocheMonat, monat) << "Seite " << seite;
    }
}

TEST(ZeichneSeite, MauszeigerUndRundesEtikett) {
    struct Fenster : Oberflaeche {
        std::vector<int> zeiger;
        void Mauszeiger(int z) override { zeiger.push_back(z); }
    } fenster;
    Seite p;
    p.ziele.Fenster = &fenster;
    p.s.Auswahlmodus = 1;
    p.s.IstEtikett = -1;
    p.s.AktuellesEtikett.Form = 1;
    p.Zeichne();
    EXPECT_EQ(fenster.zeiger, (std::vector<int>{11, 2}));
    const auto kreis = p.bild.Alle("Circle");
    ASSERT_EQ(kreis.size(), 1u);
    EXPECT_EQ(kreis[0].Werte, (std::vector<int>{500, 700, 500})); // the 1000 x 1400 px picture
    EXPECT_TRUE(p.bild.Alle("Line").empty() || p.bild.Alle("Line").back().ForeColor != 0x000032);
}

TEST(ZeichneSeite, FalscheNummernZeichnenNichtsUndStuerzenNicht) {
    Seite p;
    p.s.Rahmenliste(1).Objektnummer = 99;
    p.s.Rahmenliste(2).Objektnummer = -4;
    p.s.Rahmenliste(3).z = 77;
    p.s.RahmenAnzahl = 500;
    p.s.RahmenNummer = 1000;
    p.s.Rasterhoehe = 0;
    p.s.GridAn = -1;
    p.s.Rahmenliste(2).Objekttyp = QStringLiteral("Unbekannt");
    p.Zeichne();
    EXPECT_TRUE(p.bild.Alle("Print").empty());
    EXPECT_TRUE(p.bild.Alle("Polygon").empty());
    Zeichenziele leer;
    ZeichneSeite(p.s, leer); // no surface at all
}
