#include "core/state/Objekte.h"
#include "core/state/AppState.h"

#include <gtest/gtest.h>

using namespace zp;

TEST(ErzeugeRahmen, GrowsByOneAndPlacesOnDiagonal) {
    AppState s;
    s.RahmenAnzahl = 31;
    ErzeugeRahmen(s, 32, QStringLiteral("Bild"), 1);
    EXPECT_EQ(s.Rahmenliste.Obergrenze(), 32);
    EXPECT_EQ(s.RahmenAnzahl, 32);
    const ClassRahmen& r = s.Rahmenliste(32);
    EXPECT_EQ(r.X, 32 * 50 + 50);
    EXPECT_EQ(r.Y, 32 * 50 + 50);
    EXPECT_EQ(r.Breite, 500);
    EXPECT_EQ(r.Höhe, 200);
    EXPECT_EQ(r.z, 32); // new frames go on top
    EXPECT_EQ(r.Sichtbar, -1);
    EXPECT_EQ(r.Objekttyp, u"Bild");
    // Two above the bound is refused, as the list grows by one only.
    EXPECT_THROW(ErzeugeRahmen(s, 34, QStringLiteral("Bild"), 1), std::out_of_range);
}
