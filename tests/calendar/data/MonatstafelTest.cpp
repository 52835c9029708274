// The walks' month table against the date arithmetic it stands in for: every weekday and month
// length a walk can ask for, including the days that roll over into the next or previous month.
#include "calendar/data/Monatstafel.h"
#include "calendar/data/Tagesdaten.h"
#include "core/runtime/Basic.h"

#include <gtest/gtest.h>

using namespace zp;

TEST(Monatstafel, WochentageUndMonatslaengenWieDieDatumsrechnung) {
    // Leap years by every rule (2024, 2000; not 1900, 2100), each weekday of 1 January, and the
    // ends of the range the calendar takes.
    for (int jahr : {1, 1900, 2000, 2021, 2022, 2023, 2024, 2025, 2026, 2027, 2100, 9998, 9999}) {
        const Monatstafel tafel(jahr);
        // Months before, inside and past the table, asked in no particular order so that the
        // entries worked out first don't hide a wrong one.
        for (int m : {7, 1, 13, 0, 2, 12, 3, 4, 5, 6, 8, 9, 10, 11, 14, 15, 16, 17, -1}) {
            SCOPED_TRACE(testing::Message() << jahr << "-" << m);
            EXPECT_EQ(tafel.LetzterTag(m), LetzterTag(jahr, m));
            for (int d = -8; d <= 40; ++d)
                ASSERT_EQ(tafel.Wochentag(m, d), basic::Weekday(basic::DateSerial(jahr, m, d)))
                    << "Tag " << d;
        }
    }
}

TEST(Monatstafel, BekannteTage) {
    const Monatstafel tafel(2027);
    EXPECT_EQ(tafel.Wochentag(1, 1), 6);  // 1 January 2027 is a Friday
    EXPECT_EQ(tafel.Wochentag(2, 14), 1); // Valentine's Day 2027 a Sunday
    EXPECT_EQ(tafel.Wochentag(2, 29), 2); // "29 February" is 1 March, a Monday
    EXPECT_EQ(tafel.LetzterTag(2), 28);
    EXPECT_EQ(Monatstafel(2028).LetzterTag(2), 29);
    EXPECT_EQ(tafel.Wochentag(12, 31), 6); // New Year's Eve 2027 a Friday
    EXPECT_EQ(tafel.Wochentag(13, 1), 7);  // 1 January 2028 a Saturday
    EXPECT_EQ(tafel.Wochentag(1, 0), 5);   // day 0: 31 December 2026, a Thursday
}
