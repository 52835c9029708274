// The print values of the command line.
#include "app/Druckoptionen.h"

#include <gtest/gtest.h>

namespace zp::test {
namespace {

TEST(Druckoptionen, Adressen) {
    Druckwahl w;
    QString fehler;
    ASSERT_TRUE(LeseAdressen("alle", w, fehler));
    EXPECT_EQ(w.Adressen, Adresswahl::Alle);
    ASSERT_TRUE(LeseAdressen("Aktiv", w, fehler));
    EXPECT_EQ(w.Adressen, Adresswahl::Aktiv);
    ASSERT_TRUE(LeseAdressen("3-12", w, fehler));
    EXPECT_EQ(w.Adressen, Adresswahl::Bereich);
    EXPECT_EQ(w.Von, "3");
    EXPECT_EQ(w.Bis, "12");
    ASSERT_TRUE(LeseAdressen("kategorie: Kunde A", w, fehler));
    EXPECT_EQ(w.Adressen, Adresswahl::Kategorie);
    EXPECT_EQ(w.Kategorie, " Kunde A"); // trimmed and upper-cased only when compared
    for (const char* falsch : {"", "einige", "3-", "-3-4", "x-y"}) {
        EXPECT_FALSE(LeseAdressen(falsch, w, fehler)) << falsch;
        EXPECT_TRUE(fehler.startsWith("--adressen")) << falsch;
    }
}

TEST(Druckoptionen, AbgleichUndZahlen) {
    EXPECT_EQ(LeseAbgleich("15,-7"), std::make_pair(15.0, -7.0));
    EXPECT_EQ(LeseAbgleich(" 2.5 , 0 "), std::make_pair(2.5, 0.0));
    EXPECT_FALSE(LeseAbgleich("15"));
    EXPECT_FALSE(LeseAbgleich("1,2,3"));
    EXPECT_FALSE(LeseAbgleich("a,b"));
    EXPECT_EQ(LeseZahl("-3"), -3.0);
    EXPECT_EQ(LeseZahl("1000000000"), 1e9);
    EXPECT_FALSE(LeseZahl("2.5"));
    EXPECT_FALSE(LeseZahl(""));
}

} // namespace
} // namespace zp::test
