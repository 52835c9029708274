// Moving, sizing and drawing frames with the mouse and the arrow keys, headless, in twips of the
// page picture at zoom 100 (one tenth of a millimetre is 5.67 twips).
#include "tests/core/state/ProtokollOberflaeche.h"

#include "core/Bildbefehle.h"
#include "core/Mausbearbeitung.h"
#include "core/Rahmenbefehle.h"
#include "core/state/AppState.h"
#include "core/state/Objekte.h"

#include <gtest/gtest.h>

namespace zp::test {
namespace {

constexpr double F = 5.67;
double T(double zehntel) {
    return zehntel * F;
}

struct Dialoge : ProtokollOberflaeche {
    void LiniendialogZeigen(int) override { offen << QStringLiteral("Form"); }
    void SchriftdialogZeigen(int) override { offen << QStringLiteral("Text"); }
    void BilddialogZeigen() override { offen << QStringLiteral("Bild"); }
    QStringList offen;
};

// An A4 page with one shape frame at (100, 100), 200 by 100 tenths, current and marked.
struct Seite {
    Seite() {
        s.Zoomfaktor = 100;
        s.AktuelleSeite.Breite = 2100;
        s.AktuelleSeite.Höhe = 2970;
        s.FesteRahmen = 1; // frames above the first were inserted by the user
        s.RahmenAnzahl = 0;
        ErzeugeRahmen(s, 1, QStringLiteral("Linie"), 1);
        ErzeugeLinie(s, 1);
        s.LinieAnzahl = 1;
        Box(100, 100, 200, 100);
    }
    void Box(double x, double y, double b, double h) {
        ClassRahmen& r = s.Rahmenliste(1);
        r.X = x, r.Y = y, r.Breite = b, r.Höhe = h;
        s.RahmenNummer = 1;
        s.Rahmen = {T(x), T(y), T(b), T(h)};
    }
    // Press at (x, y), a first move there that starts the drag, then to (x + dx, y + dy), release.
    Mausantwort Ziehen(double x, double y, double dx, double dy) {
        MausGedrueckt(s, ui, Maustaste::Links, x, y);
        MausBewegt(s, ui, Maustaste::Links, x, y);
        MausBewegt(s, ui, Maustaste::Links, x + dx / 2, y + dy / 2);
        MausBewegt(s, ui, Maustaste::Links, x + dx, y + dy);
        return MausLosgelassen(s, ui, Maustaste::Links, x + dx, y + dy);
    }
    const ClassRahmen& r() const { return s.Rahmenliste(1); }
    AppState s;
    Dialoge ui;
};

void ErwarteBox(const ClassRahmen& r, double x, double y, double b, double h) {
    EXPECT_NEAR(r.X, x, 1e-6);
    EXPECT_NEAR(r.Y, y, 1e-6);
    EXPECT_NEAR(r.Breite, b, 1e-6);
    EXPECT_NEAR(r.Höhe, h, 1e-6);
}

TEST(Ziehen, JederGriffBewegtSeineKanten) {
    // The frame's box in twips: 567, 567, 1134 wide, 567 high. A point in each handle's zone,
    // relative to the top left corner, and the box after a drag by 50 and 30 tenths.
    struct Fall {
        int griff;
        double px, py;
        double x, y, b, h;
    } faelle[] = {
        {10, 500, 300, 150, 130, 200, 100}, {1, 10, 10, 150, 130, 150, 70},
        {2, 500, 10, 100, 130, 200, 70},    {3, 1130, 10, 100, 130, 250, 70},
        {4, 1130, 300, 100, 100, 250, 100}, {5, 1130, 560, 100, 100, 250, 130},
        {6, 500, 560, 100, 100, 200, 130},  {7, 10, 560, 150, 100, 150, 130},
        {8, 10, 300, 150, 100, 150, 100},
    };
    for (const Fall& f : faelle) {
        SCOPED_TRACE(f.griff);
        Seite p;
        p.Ziehen(T(100) + f.px, T(100) + f.py, T(50), T(30));
        EXPECT_EQ(p.s.ZiehenAktiv, 0);
        ErwarteBox(p.r(), f.x, f.y, f.b, f.h);
        EXPECT_EQ(p.s.LadeSperre, 0);
    }
}

TEST(Ziehen, GekreuzteKanteUndProportionaleRahmen) {
    Seite p;
    // The right edge dragged 300 tenths to the left, past the left edge: 100 twips wide, at the
    // outline's left.
    const Mausantwort a = p.Ziehen(T(300) - 5, T(150), -T(300), 0);
    ErwarteBox(p.r(), 100, 100, 100 / F, 100);
    EXPECT_TRUE(a.status);
    EXPECT_EQ(a.statusX, 100);
    EXPECT_EQ(a.statusY, 100);

    // A proportional frame keeps its aspect by the width: the bottom edge alone changes nothing,
    // the right edge takes the height along.
    Seite q;
    q.s.Rahmenliste(1).Proportional = -1;
    q.Ziehen(T(200), T(200) - 5, 0, T(80));
    ErwarteBox(q.r(), 100, 100, 200, 100);
    q.Ziehen(T(300) - 5, T(150), T(100), 0);
    ErwarteBox(q.r(), 100, 100, 300, 150);
}

TEST(Ziehen, SeitengrenzenNachDerAltenGroesse) {
    Seite p;
    p.Box(1800, 100, 200, 100);
    // Wider at the right edge: the limit uses the old width, so the frame hangs over the page.
    p.Ziehen(T(2000) - 5, T(150), T(200), 0);
    ErwarteBox(p.r(), 1800, 100, 400, 100);
    // Moved beyond the right and the top edge: flush with them.
    p.Box(1800, 100, 230, 100);
    p.Ziehen(T(1900), T(150), T(500), -T(400));
    ErwarteBox(p.r(), 2100 - 230, 0, 230, 100);
    // With the grid on it then snaps to the grid line left of that.
    p.s.GitterAn = -1;
    p.s.GitterX = 50;
    p.s.GitterY = 50;
    p.Box(1800, 100, 230, 100);
    p.Ziehen(T(1900), T(150), T(500), 0);
    EXPECT_NEAR(p.r().X, 1850, 1e-6);
}

TEST(CommitFrameBox, RasterUndMillimeterSchneidenZurNullHin) {
    struct Fall {
        const char* was;
        float gitterAn, mmGenau;
        double gitterX;
        Wahrheit proportional;
        double x, breite; // the marker's left and width, tenths
        double nachX, nachBreite;
    } faelle[] = {
        {"Raster 50: 37 breit wird 0", -1, 0, 50, 0, 100, 37, 100, 0},
        {"Raster 50 schneidet nach unten", -1, 0, 50, 0, 149, 99, 100, 50},
        {"proportional: nur der Ort rastet", -1, 0, 50, -1, 149, 99, 100, 99},
        {"Raster unter 0,5 rastet nicht", -1, 0, 0.4, 0, 149, 99, 149, 99},
        {"ganze Millimeter", 0, -1, 50, 0, 123.4, 37, 120, 30},
        {"ganze Millimeter auch proportional", 0, -1, 50, -1, 123.4, 37, 120, 30},
        {"das Raster geht vor", -1, -1, 50, 0, 149, 99, 100, 50},
        {"links vor der Seite wird 0", 0, 0, 50, 0, -20, 99, 0, 99},
    };
    for (const Fall& f : faelle) {
        SCOPED_TRACE(f.was);
        Seite p;
        p.s.GitterAn = f.gitterAn;
        p.s.MMGenau = f.mmGenau;
        p.s.GitterX = p.s.GitterY = f.gitterX;
        p.s.Rahmenliste(1).Proportional = f.proportional;
        p.s.Rahmen = {T(f.x), T(200), T(f.breite), T(100)};
        CommitFrameBox(p.s, p.ui);
        EXPECT_NEAR(p.r().X, f.nachX, 1e-6);
        EXPECT_NEAR(p.r().Breite, f.nachBreite, 1e-6);
        EXPECT_NEAR(p.s.Rahmen.Left, T(f.nachX), 1e-6); // the marker follows
        EXPECT_EQ(p.ui.neuzeichnen, 1);
    }
}

TEST(Ziehen, OhneGriffKeinZugUndEinKlickWaehlt) {
    Seite p;
    ErzeugeRahmen(p.s, 2, QStringLiteral("Linie"), 1);
    ClassRahmen& zwei = p.s.Rahmenliste(2);
    zwei.X = 1000, zwei.Y = 1000, zwei.Breite = 100, zwei.Höhe = 100;
    // A press outside the current frame drags nothing; without moving, it is a click that selects.
    p.Ziehen(T(1050), T(1050), 0, 0);
    EXPECT_EQ(p.s.RahmenNummer, 2);
    ErwarteBox(p.r(), 100, 100, 200, 100);
    // An anchored frame can't be dragged.
    p.s.RahmenNummer = 1;
    p.Box(100, 100, 200, 100);
    p.s.Rahmenliste(1).Verankert = -1;
    p.Ziehen(T(200), T(150), T(50), T(50));
    ErwarteBox(p.r(), 100, 100, 200, 100);
    EXPECT_EQ(p.s.RahmenNummer, 1);
}

TEST(Maus, RechtsOeffnetDasMenueUndAndereKnoepfeZiehenNicht) {
    Seite p;
    const Mausantwort druck = MausGedrueckt(p.s, p.ui, Maustaste::Rechts, T(200), T(150));
    EXPECT_TRUE(druck.einfangen);
    EXPECT_EQ(MausBewegt(p.s, p.ui, Maustaste::Rechts, T(400), T(150)).umriss, false);
    p.s.Rahmenliste(1).Verankert = -1;
    const Mausantwort los = MausLosgelassen(p.s, p.ui, Maustaste::Rechts, T(400), T(150));
    EXPECT_TRUE(los.kontextmenue);
    EXPECT_TRUE(los.verankert);
    EXPECT_TRUE(los.freigeben);
    EXPECT_EQ(p.s.LadeSperre, 0);
    ErwarteBox(p.r(), 100, 100, 200, 100);
    // Moves without a button tell the handle and its pointer.
    EXPECT_EQ(MausBewegt(p.s, p.ui, 0, T(100) + 5, T(100) + 5).zeiger, 1); // anchored: the arrow
    p.s.Rahmenliste(1).Verankert = 0;
    EXPECT_EQ(MausBewegt(p.s, p.ui, 0, T(100) + 5, T(100) + 5).zeiger, 8);
    EXPECT_EQ(p.s.Griff, 1);
}

TEST(Einfuegen, EinNeuerRahmenWirdAufgezogen) {
    Seite p;
    ASSERT_EQ(BefehlEinfuegen(p.s, p.ui, QStringLiteral("Linie")), 2);
    EXPECT_EQ(p.s.Auswahlmodus, 1);
    // Waiting for its box, the pointer is the cross and the status follows it.
    const Mausantwort warten = MausBewegt(p.s, p.ui, 0, T(305), T(407));
    EXPECT_EQ(warten.zeiger, 2);
    EXPECT_EQ(warten.statusX, 305);
    EXPECT_FALSE(MausGedrueckt(p.s, p.ui, Maustaste::Links, T(300), T(400)).einfangen);
    EXPECT_EQ(p.s.Auswahlmodus, 2);
    // The box grows only to the right and down, and is at least 100 twips.
    MausBewegt(p.s, p.ui, Maustaste::Links, T(250), T(350));
    EXPECT_DOUBLE_EQ(p.s.Rahmen.Width, 100);
    EXPECT_DOUBLE_EQ(p.s.Rahmen.Height, 100);
    MausBewegt(p.s, p.ui, Maustaste::Links, T(500), T(500));
    MausLosgelassen(p.s, p.ui, Maustaste::Links, T(500), T(500));
    const ClassRahmen& neu = p.s.Rahmenliste(2);
    ErwarteBox(neu, 300, 400, 200, 100);
    EXPECT_EQ(neu.Sichtbar, -1);
    EXPECT_EQ(p.ui.offen, QStringList{QStringLiteral("Form")}); // the dialog opened at once
    EXPECT_EQ(p.s.Auswahlmodus, 0);

    // A tiny drag still gives 100 twips, about 18 tenths at zoom 100.
    BefehlEinfuegen(p.s, p.ui, QStringLiteral("Schrift"));
    MausGedrueckt(p.s, p.ui, Maustaste::Links, T(1000), T(1000));
    MausLosgelassen(p.s, p.ui, Maustaste::Links, T(1000), T(1000));
    EXPECT_NEAR(p.s.Rahmenliste(3).Breite, 100 / F, 1e-9);
    EXPECT_EQ(p.ui.offen.last(), QStringLiteral("Text"));

    // Undo takes each insertion back whole; redo brings it again.
    ASSERT_TRUE(BefehlRueckgaengig(p.s, p.ui));
    EXPECT_EQ(p.s.RahmenAnzahl, 2);
    ASSERT_TRUE(BefehlRueckgaengig(p.s, p.ui));
    EXPECT_EQ(p.s.RahmenAnzahl, 1);
    EXPECT_EQ(p.s.LinieAnzahl, 1);
    ASSERT_TRUE(BefehlWiederholen(p.s, p.ui));
    ErwarteBox(p.s.Rahmenliste(2), 300, 400, 200, 100);
}

TEST(Einfuegen, EinAbgebrochenesBildGehtOhneSpur) {
    Seite p;
    ASSERT_EQ(BefehlEinfuegen(p.s, p.ui, QStringLiteral("Bild")), 2);
    EXPECT_EQ(p.s.Rahmenliste(2).Proportional, -1);
    MausGedrueckt(p.s, p.ui, Maustaste::Links, T(300), T(400));
    MausLosgelassen(p.s, p.ui, Maustaste::Links, T(300), T(400));
    EXPECT_EQ(p.ui.offen, QStringList{QStringLiteral("Bild")});
    // The picture dialog's Abbruch on the frame just drawn.
    BildAbbrechen(p.s, p.ui, true);
    EXPECT_EQ(p.s.RahmenAnzahl, 1);
    EXPECT_EQ(p.s.BildAnzahl, 0);
    EXPECT_FALSE(KannRueckgaengig(p.s)); // nothing to undo: the insertion never happened
}

TEST(Pfeiltasten, ZehntelRasterUndVerankert) {
    Seite p;
    EXPECT_TRUE(PfeilBewegen(p.s, p.ui, 1, 0, false));
    EXPECT_TRUE(PfeilBewegen(p.s, p.ui, 0, -1, false));
    ErwarteBox(p.r(), 101, 99, 200, 100);
    // Shift: by the grid step, through the snap.
    p.s.GitterX = 50;
    p.s.GitterY = 25;
    EXPECT_TRUE(PfeilBewegen(p.s, p.ui, 1, 1, true));
    ErwarteBox(p.r(), 151, 124, 200, 100);
    p.s.GitterAn = -1;
    EXPECT_TRUE(PfeilBewegen(p.s, p.ui, -1, 0, false)); // the grid snaps: a plain step is the grid's
    EXPECT_NEAR(p.r().X, 100, 1e-6);
    // At the page's edge nothing moves, and no undo step is kept for it.
    p.s.GitterAn = 0;
    p.Box(0, 0, 200, 100);
    const size_t schritte = p.s.Verlauf.Zurueck.size();
    EXPECT_FALSE(PfeilBewegen(p.s, p.ui, -1, 0, false));
    EXPECT_EQ(p.s.Verlauf.Zurueck.size(), schritte);
    p.s.Rahmenliste(1).Verankert = -1;
    EXPECT_FALSE(PfeilBewegen(p.s, p.ui, 1, 0, false));
    ErwarteBox(p.r(), 0, 0, 200, 100);
}

TEST(Rueckgaengig, EinZugIstEinSchritt) {
    Seite p;
    p.Ziehen(T(200), T(150), T(100), T(100)); // many moves, one step
    p.Ziehen(T(400), T(300), T(0), T(0));     // a press that moved nothing keeps no step
    ErwarteBox(p.r(), 200, 200, 200, 100);
    ASSERT_EQ(p.s.Verlauf.Zurueck.size(), 1u);
    ASSERT_TRUE(BefehlRueckgaengig(p.s, p.ui));
    ErwarteBox(p.r(), 100, 100, 200, 100);
    EXPECT_DOUBLE_EQ(p.s.Rahmen.Left, T(100)); // the marker follows the frame back
    EXPECT_FALSE(BefehlRueckgaengig(p.s, p.ui));
    ASSERT_TRUE(BefehlWiederholen(p.s, p.ui));
    ErwarteBox(p.r(), 200, 200, 200, 100);
}

} // namespace
} // namespace zp::test
