#include "calendar/data/Wochennummer.h"
#include "KalenderTestHilfe.h"

#include <QDate>
#include <gtest/gtest.h>
#include <map>

using namespace zp;
using namespace zp::test;

TEST(IsoWoche, AgreesWithQDateFrom1990To2050) {
    for (QDate d(1990, 1, 1); d <= QDate(2050, 12, 31); d = d.addDays(1))
        ASSERT_EQ(IsoWoche(d.year(), d.month(), d.day()), d.weekNumber()) << d.toString().toStdString();
}

TEST(IsoWoche, WalkShowsTheIsoWeekOnMondaysAndNewYear) {
    auto nummern = [](int jahr, int monat, bool iso) {
        AppState s = Kalenderdesign(5, jahr, monat);
        s.WochennummernIso = iso;
        Rahmen(s, 38, 100, 100, 1000, 3100);
        Rahmen(s, 6, 100, 100, 50, 50);
        std::map<int, QString> tagZuNummer;
        for (const auto& z : Text(s, 6))
            tagZuNummer[static_cast<int>((z.y - 100) / 100 + 0.5) + 1] = z.inhalt;
        return tagZuNummer;
    };
    // 1 January 2027 is a Friday of week 53 of 2026; the Monday after starts week 1.
    auto jan27 = nummern(2027, 1, true);
    EXPECT_EQ(jan27[1], u"53");
    EXPECT_EQ(jan27[4], u"1");
    EXPECT_EQ(jan27[25], u"4");
    EXPECT_EQ(jan27.size(), 5u);
    EXPECT_EQ(nummern(2027, 1, false).count(1), 0u); // the count of Mondays has nothing there
    // 28 December 2026 is a Monday of week 53, which the count of Mondays calls 1.
    EXPECT_EQ(nummern(2026, 12, true)[28], u"53");
    EXPECT_EQ(nummern(2026, 12, false)[28], u"1");
    // 29 December 2025: week 1 of 2026.
    EXPECT_EQ(nummern(2025, 12, true)[29], u"1");
}
