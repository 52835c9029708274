// The window's page painter keeps its canvas between redraws: every picture must still be the one
// a new canvas gives, in the size of the present zoom, and a picture handed out stays as it was.
#include "compose/Seitenmaler.h"
#include "calendar/data/Feiertage.h"
#include "calendar/data/Standarddesign.h"
#include "compose/Seitenbild.h"
#include "compose/canvas/ImageCanvas.h"
#include "core/state/AppState.h"

#include <gtest/gtest.h>

using namespace zp;

namespace {

void Kalender(AppState& s, int typ, int variante, int seite) {
    s.IstKalender = -1;
    s.IstBriefkopf = 0;
    s.AktuelleSeite.Breite = 2100;
    s.AktuelleSeite.Höhe = 2970;
    s.Kalenderjahr = 2027;
    s.Seitennummer = seite;
    s.Zoomfaktor = 60; // small pictures keep the test quick; the canvas logic is the same
    for (int i = 1; i <= 25; ++i)
        s.FeiertagWahl(i) = 1;
    BerechneFeiertage(s);
    s.Panel.TextTitel = QStringLiteral("Familienkalender 2027");
    BaueStandarddesign(s, typ, variante);
}

// The picture of a new canvas for the state as it stands, drawn on a copy so that the state
// the kept canvas draws from is not stepped on by this drawing.
QImage NeuesBild(const AppState& s) {
    AppState kopie = s;
    return ZeichneSeitenbild(kopie);
}

int Unterschiede(const QImage& a, const QImage& b) {
    if (a.size() != b.size()) return -1;
    int n = 0;
    for (int y = 0; y < a.height(); ++y)
        for (int x = 0; x < a.width(); ++x)
            n += a.pixel(x, y) != b.pixel(x, y);
    return n;
}

} // namespace

TEST(Seitenmaler, BildNachEinerAenderungGleichtDemEinerNeuenLeinwand) {
    struct Fall {
        int typ, variante, seite;
    };
    for (const Fall f :
         {Fall{1, 1, 1}, Fall{2, 2, 1}, Fall{3, 1, 1}, Fall{5, 2, 1}, Fall{6, 1, 30}, Fall{7, 2, 1}}) {
        SCOPED_TRACE(testing::Message()
                     << "Typ " << f.typ << " Variante " << f.variante << " Seite " << f.seite);
        AppState s;
        Kalender(s, f.typ, f.variante, f.seite);
        Seitenmaler maler;
        const QImage erstes = maler.Zeichne(s);
        EXPECT_EQ(Unterschiede(erstes, NeuesBild(s)), 0);

        // An appointment on a day of the page and a new title: the edits of the side panel.
        s.Termine(14, 2) = QStringLiteral("Valentinstag");
        s.Termine(3, 7) = QStringLiteral("Zahnarzt");
        s.Panel.TextTitel = QStringLiteral("Unser Jahr");
        const QImage zweites = maler.Zeichne(s);
        EXPECT_EQ(Unterschiede(zweites, NeuesBild(s)), 0);
        EXPECT_NE(Unterschiede(erstes, zweites), 0) << "the edit must show on the page";
    }
}

TEST(Seitenmaler, ZoomOderSeitenformatGibtDieNeueGroesse) {
    AppState s;
    Kalender(s, 4, 2, 1);
    Seitenmaler maler;
    const QImage gross = maler.Zeichne(s);
    EXPECT_EQ(gross.size(), SeitenbildGroesse(s));

    s.Zoomfaktor = 35;
    const QImage klein = maler.Zeichne(s);
    EXPECT_EQ(klein.size(), SeitenbildGroesse(s));
    EXPECT_LT(klein.width(), gross.width());
    EXPECT_EQ(Unterschiede(klein, NeuesBild(s)), 0);

    // A landscape sheet at the same zoom: width and height swap, the whole sheet is drawn.
    std::swap(s.AktuelleSeite.Breite, s.AktuelleSeite.Höhe);
    const QImage quer = maler.Zeichne(s);
    EXPECT_EQ(quer.size(), klein.size().transposed());
    EXPECT_EQ(Unterschiede(quer, NeuesBild(s)), 0);

    // Back to the first zoom: the picture is the first one again, not a scaled or cropped one.
    std::swap(s.AktuelleSeite.Breite, s.AktuelleSeite.Höhe);
    s.Zoomfaktor = 60;
    EXPECT_EQ(Unterschiede(maler.Zeichne(s), gross), 0);
}

TEST(Seitenmaler, EinHerausgegebenesBildBleibtWieEsWar) {
    // The window keeps the last picture while the next one is drawn: the canvas must not write
    // into it.
    AppState s;
    Kalender(s, 1, 1, 1);
    Seitenmaler maler;
    const QImage erstes = maler.Zeichne(s);
    const QImage gesichert = erstes.copy();
    s.Panel.TextTitel = QStringLiteral("Ein ganz anderer Titel über der Seite");
    s.Kalenderjahr = 2031;
    BerechneFeiertage(s);
    const QImage zweites = maler.Zeichne(s);
    EXPECT_NE(Unterschiede(zweites, gesichert), 0);
    EXPECT_EQ(Unterschiede(erstes, gesichert), 0);
}

TEST(Seitenmaler, GrundzustandNimmtClipUrsprungSchriftUndStiftZurueck) {
    // Everything a renderer may leave set on the device, undone: the same drawing afterwards
    // gives the picture of a new canvas.
    const QSize groesse(240, 160);
    ImageCanvas alt(groesse), neu(groesse);
    alt.NeueStufe(); // a shadow whose drawing was cut short
    alt.Line(0, 0, 3000, 2000);
    const GdiHandle clip = alt.CreateRectRgn(0, 0, 20, 20);
    alt.SelectClipRgn(clip);
    alt.SetWindowOrgEx(-40, 30);
    LogFont quer;
    quer.lfHeight = -30;
    quer.lfEscapement = 900;
    quer.lfFaceName = QStringLiteral("Arial");
    alt.SelectObject(alt.CreateFontIndirectA(quer));
    alt.SetTextCharacterExtra(12);
    alt.SetBkMode(false);
    alt.ForeColor = 0x0000FF;
    alt.FillColor = 0x00FF00;
    alt.BackColor = 0x808080;
    alt.FillStyle = 0;
    alt.DrawStyle = 2;
    alt.DrawWidth = 5;
    alt.FontName = QStringLiteral("Courier New");
    alt.FontSize = 30;
    alt.FontBold = alt.FontItalic = alt.FontUnderline = alt.FontStrikethru = true;
    alt.FontTransparent = false;
    alt.CurrentX = 900;
    alt.CurrentY = 700;
    LeinwandGrundzustand(alt);

    for (ImageCanvas* c : {&alt, &neu}) {
        c->Cls();
        c->Line(150, 150, 1500, 900);
        c->Line(300, 300, 900, 600, -1, Canvas::LineForm::Kasten);
        c->Circle(2400, 1200, 600);
        c->Print(QStringLiteral("Probe"));
        c->TextOutA(100, 100, QStringLiteral("Gerät"));
        c->Rectangle(10, 120, 200, 150);
    }
    EXPECT_EQ(Unterschiede(alt.Bild(), neu.Bild()), 0);
}
