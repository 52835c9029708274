// Paging through a calendar and the view toggles, without a window.
#include "Attrappen.h"

#include "core/Seitennavigation.h"
#include "core/state/Ansicht.h"

#include <gtest/gtest.h>

namespace zp::test {
namespace {

TEST(Seiten, GetippteSeiteAusserhalbWirdEins) {
    struct Fall {
        const char* text;
        double anzahl;
        int seite;
        bool zurueck;
    };
    const Fall faelle[] = {
        {"12", 12, 12, false}, {"13", 12, 1, true}, {"-3", 12, 1, true},    {"0", 53, 1, true},
        {"abc", 4, 1, true},   {"", 4, 1, true},    {"153", 53, 53, false}, // the last two characters count
        {"2", 1, 1, true},     {"1", 1, 1, false},
    };
    for (const Fall& f : faelle) {
        const Seiteneingabe e = SeiteAusText(QString::fromLatin1(f.text), f.anzahl);
        EXPECT_EQ(e.seite, f.seite) << f.text;
        EXPECT_EQ(e.textZuruecksetzen, f.zurueck) << f.text;
    }
}

TEST(Seiten, BereichNachTypwechsel) {
    AppState s;
    s.Kalendertyp = 4;
    s.Seitennummer = 11;
    Seitenbereich(s);
    EXPECT_EQ(s.Seitenanzahl, 12);
    EXPECT_EQ(s.Seitennummer, 11);
    s.Kalendertyp = 7;
    Seitenbereich(s);
    EXPECT_EQ(s.Seitenanzahl, 4);
    EXPECT_EQ(s.Seitennummer, 1);
    // The week calendar always starts again at its first page.
    s.Kalendertyp = 6;
    s.Seitennummer = 20;
    Seitenbereich(s);
    EXPECT_EQ(s.Seitenanzahl, 53);
    EXPECT_EQ(s.Seitennummer, 1);
    EXPECT_FALSE(SeiteWaehlen(s, 1));
    EXPECT_TRUE(SeiteWaehlen(s, 53));
    EXPECT_FALSE(SeiteWaehlen(s, 54));
    EXPECT_EQ(s.Seitennummer, 53);
}

} // namespace
} // namespace zp::test
