#include "calendar/data/Kalenderoptionen.h"
#include "calendar/data/Feiertage.h"
#include "core/state/AppState.h"

#include <gtest/gtest.h>

using namespace zp;

TEST(Kalenderoptionen, OkTakesSwitchesColoursAndSundaysSecondSlot) {
    AppState s;
    s.Kalenderjahr = 2025;
    s.FeiertagWahl(1) = 1;
    BerechneFeiertage(s);
    Optionenwahl w = OptionenAusZustand(s);
    EXPECT_TRUE(w.haken[0]);
    EXPECT_FALSE(w.haken[1]);
    w.haken.fill(false);
    w.haken[10] = true; // "Chriti Himmelfahrt" switches FeiertagWahl(11)
    w.sonntag = 0x0000C0;
    WochentagsnameGeaendert(s, 0, QStringLiteral("So."));
    EXPECT_NE(s.Wochentagsnamen(8), u"So.");
    OptionenUebernehmen(s, w);
    EXPECT_EQ(Feiertagsschalter()[10], u"Chriti Himmelfahrt");
    EXPECT_EQ(s.FeiertagWahl(1), 0);
    EXPECT_EQ(s.FeiertagWahl(11), 1);
    EXPECT_EQ(s.FarbeSonntag, 0x0000C0);
    EXPECT_EQ(s.Wochentagsnamen(8), u"So.");
    // The switches wait for the next calculation: the holidays stand as they were.
    EXPECT_EQ(s.Feiertage(1, 1), u"Neujahr");
    BerechneFeiertage(s);
    EXPECT_TRUE(s.Feiertage(1, 1).isEmpty());
    EXPECT_EQ(s.Feiertage(29, 5), u"Chr. Himmelfahrt");
}

TEST(Kalenderoptionen, NamesChangeAtOnceAndListsStayGerman) {
    AppState s;
    StandardnamenSetzen(s);
    EXPECT_EQ(s.Monatsnamen(3), u"März");
    EXPECT_EQ(s.Wochentagsnamen(2), u"Mo");
    MonatsnameGeaendert(s, 2, QString());
    EXPECT_TRUE(s.Monatsnamen(3).isEmpty());
    MonatsnameGeaendert(s, 12, QStringLiteral("außerhalb")); // no 13th month
    EXPECT_EQ(Monatsliste()[2], u"März");
    EXPECT_EQ(Wochentagsliste()[0], u"Sonntag");
}
