// The selection on the page: stepping through a stack of frames by clicks and the handle zones.
#include "tests/core/state/ProtokollOberflaeche.h"

#include "core/Auswahl.h"
#include "core/state/AppState.h"
#include "core/state/Objekte.h"

#include <gtest/gtest.h>

namespace zp::test {
namespace {

// Frames as (X, Y, Breite, Höhe) in tenths of a millimetre; at zoom 100 one is 5.67 twips.
AppState MitRahmen(std::initializer_list<std::array<double, 4>> boxen) {
    AppState s;
    s.Zoomfaktor = 100;
    s.RahmenAnzahl = 0;
    int n = 0;
    for (const auto& b : boxen) {
        ++n;
        ErzeugeRahmen(s, n, QStringLiteral("Schrift"), n);
        ErzeugeSchrift(s, n);
        ClassRahmen& r = s.Rahmenliste(n);
        r.X = b[0], r.Y = b[1], r.Breite = b[2], r.Höhe = b[3];
        r.Sichtbar = -1;
    }
    return s;
}

double T(double zehntel) {
    return zehntel * 5.67;
}

TEST(SelectFrameAt, KlickeGehenDurchDenStapelUndDerRandTrifftNicht) {
    AppState s = MitRahmen({{0, 0, 100, 100}, {50, 50, 100, 100}, {500, 500, 10, 10}});
    s.RahmenNummer = 1;
    ProtokollOberflaeche ui;
    // The overlap: the frame after the current one, whatever its z.
    EXPECT_TRUE(SelectFrameAt(s, ui, T(75), T(75)));
    EXPECT_EQ(s.RahmenNummer, 2);
    EXPECT_EQ(s.SchriftNummer, 2);
    EXPECT_TRUE(SelectFrameAt(s, ui, T(75), T(75)));
    EXPECT_EQ(s.RahmenNummer, 1);
    EXPECT_EQ(ui.neuzeichnen, 2);
    EXPECT_EQ(ui.fokus, 1);
    // Exactly on frame 2's left edge: strictly outside it; frame 1 is current and never tested.
    EXPECT_FALSE(SelectFrameAt(s, ui, T(50), T(75)));
    EXPECT_EQ(s.RahmenNummer, 1);
    // An invisible frame can't be hit.
    s.Rahmenliste(3).Sichtbar = 0;
    EXPECT_FALSE(SelectFrameAt(s, ui, T(505), T(505)));
    // Anchored frames are selected like any other.
    s.Rahmenliste(3).Sichtbar = -1;
    s.Rahmenliste(3).Verankert = -1;
    EXPECT_TRUE(SelectFrameAt(s, ui, T(505), T(505)));
    EXPECT_EQ(s.RahmenNummer, 3);
    EXPECT_EQ(s.Rahmen.Left, T(500));
}

TEST(SelectFrameAt, EinRahmenAlleinUndEineNummerAusserhalb) {
    AppState s = MitRahmen({{0, 0, 100, 100}});
    s.RahmenNummer = 1;
    ProtokollOberflaeche ui;
    EXPECT_FALSE(SelectFrameAt(s, ui, T(50), T(50)));
    EXPECT_FALSE(SelectFrameAt(s, ui, T(500), T(500)));
    s.RahmenNummer = 40; // out of range, as a damaged file may leave it
    EXPECT_TRUE(SelectFrameAt(s, ui, T(50), T(50)));
    EXPECT_EQ(s.RahmenNummer, 1);
    EXPECT_EQ(ui.neuzeichnen, 1);
}

TEST(GriffAn, JedeZoneMitIhremZeiger) {
    AppState s = MitRahmen({{0, 0, 100, 100}});
    s.RahmenNummer = 1;
    s.Rahmen = {1000, 2000, 600, 400}; // L, T, W, H in twips
    struct Fall {
        double dx, dy;
        int griff, zeiger;
    } faelle[] = {
        {10, 10, 1, 8},   {590, 10, 3, 6},  {300, 10, 2, 7},   {590, 390, 5, 8}, {10, 390, 7, 6},
        {300, 390, 6, 7}, {19, 200, 8, 9},  {20, 200, 10, 15}, {590, 200, 4, 9}, {300, 200, 10, 15},
        {0, 0, 1, 8},     {600, 400, 5, 8}, {-1, 200, 0, 1},   {300, 401, 0, 1},
    };
    for (const Fall& f : faelle) {
        const Griffwahl g = GriffAn(s, 1000 + f.dx, 2000 + f.dy);
        EXPECT_EQ(g.griff, f.griff) << f.dx << ", " << f.dy;
        EXPECT_EQ(g.zeiger, f.zeiger) << f.dx << ", " << f.dy;
    }
}

TEST(GriffAn, KleineRahmenVerankerteUndDasEinfuegen) {
    AppState s = MitRahmen({{0, 0, 100, 100}});
    s.RahmenNummer = 1;
    // Under 160 twips the corner zones overlap and the order decides: top left before top right,
    // the top and bottom right corners before the bottom left.
    s.Rahmen = {0, 0, 100, 100};
    EXPECT_EQ(GriffAn(s, 50, 50).griff, 1);
    EXPECT_EQ(GriffAn(s, 90, 50).griff, 3);
    EXPECT_EQ(GriffAn(s, 90, 90).griff, 5);
    EXPECT_EQ(GriffAn(s, 10, 90).griff, 7);
    s.Rahmen = {0, 0, 100, 300};
    EXPECT_EQ(GriffAn(s, 90, 250).griff, 5);
    EXPECT_EQ(GriffAn(s, 10, 150).griff, 8);
    EXPECT_EQ(GriffAn(s, 50, 150).griff, 4); // beyond the left edge's 20 twips: the right edge's zone
    // An anchored frame shows the arrow everywhere, and so does a frame waiting to be drawn.
    s.Rahmenliste(1).Verankert = -1;
    EXPECT_EQ(GriffAn(s, 50, 150).zeiger, 1);
    s.Rahmenliste(1).Verankert = 0;
    s.Auswahlmodus = 1;
    EXPECT_EQ(GriffAn(s, 50, 150).griff, 0);
}

} // namespace
} // namespace zp::test
