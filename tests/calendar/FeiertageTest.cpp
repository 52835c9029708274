#include "calendar/Feiertage.h"
#include "core/AppState.h"

#include <QDate>
#include <gtest/gtest.h>

using namespace zp;

namespace {

// Easter by the century arithmetic of the Gregorian computus, as a check of the table rule.
QDate OsternGauss(int y) {
    const int a = y % 19, b = y / 100, c = y % 100, d = b / 4, e = b % 4;
    const int f = (b + 8) / 25, g = (b - f + 1) / 3, h = (19 * a + b - d - g + 15) % 30;
    const int i = c / 4, k = c % 4, l = (32 + 2 * e + 2 * i - h - k) % 7;
    const int m = (a + 11 * h + 22 * l) / 451;
    const int monat = (h + l - 7 * m + 114) / 31, tag = (h + l - 7 * m + 114) % 31 + 1;
    return QDate(y, monat, tag);
}

AppState MitAllenSchaltern(int jahr) {
    AppState s;
    s.Kalenderjahr = jahr;
    for (int i = 1; i <= 25; ++i)
        s.FeiertagWahl(i) = 1;
    BerechneFeiertage(s);
    return s;
}

QString F(const AppState& s, int tag, int monat) {
    return s.Feiertage(tag, monat);
}

} // namespace

TEST(Ostersonntag, TheCorrectionYearsLandWhereTheTableRuleSays) {
    EXPECT_EQ(Ostersonntag(2000), QDate(2000, 4, 23)); // r 19 -> 18, moon on a Tuesday
    EXPECT_EQ(Ostersonntag(1981), QDate(1981, 4, 19)); // same moon date, on a Saturday
    EXPECT_EQ(Ostersonntag(1954), QDate(1954, 4, 18)); // r -12 -> 17
    EXPECT_EQ(Ostersonntag(2008), QDate(2008, 3, 23)); // r -9 + 31 = 22 March
}

TEST(Ostersonntag, AgreesWithTheComputusFrom1900To2199) {
    for (int y = 1900; y <= 2199; ++y)
        EXPECT_EQ(Ostersonntag(y), OsternGauss(y)) << y;
}

TEST(BerechneFeiertage, WritesFixedMovableAndChurchYearHolidays) {
    const AppState s = MitAllenSchaltern(2025); // Easter 20 April 2025
    EXPECT_EQ(F(s, 1, 1), u"Neujahr");
    EXPECT_EQ(F(s, 6, 1), u"Hl. 3 Könige");
    EXPECT_EQ(F(s, 3, 3), u"Rosenmontag");
    EXPECT_EQ(F(s, 4, 3), u"Fastnacht");
    EXPECT_EQ(F(s, 5, 3), u"Aschermittwoch");
    EXPECT_EQ(F(s, 18, 4), u"Karfreitag");
    EXPECT_EQ(F(s, 19, 4), u"Karsamstag");
    EXPECT_EQ(F(s, 20, 4), u"Ostersonntag");
    EXPECT_EQ(F(s, 21, 4), u"Ostermontag");
    EXPECT_EQ(F(s, 29, 5), u"Chr. Himmelfahrt");
    EXPECT_EQ(F(s, 8, 6), u"Pfingstsonntag");
    EXPECT_EQ(F(s, 9, 6), u"Pfingstmontag");
    EXPECT_EQ(F(s, 19, 6), u"Fronleichnam");
    EXPECT_EQ(F(s, 3, 10), u"Tag der Dt. Einheit");
    EXPECT_EQ(F(s, 19, 11), u"Buß- und Bettag");
    EXPECT_EQ(F(s, 23, 11), u"Totensonntag");
    EXPECT_EQ(F(s, 30, 11), u"1. Advent");
    EXPECT_EQ(F(s, 21, 12), u"4. Advent");
    EXPECT_EQ(F(s, 24, 12), u"Hl. Abend");
    EXPECT_EQ(F(s, 25, 12), u"Weihnachten"); // both Christmas days write the same text
    EXPECT_EQ(F(s, 26, 12), u"Weihnachten");
    EXPECT_EQ(F(s, 31, 12), u"Silvester");
    int anzahl = 0;
    for (int m = 1; m <= 12; ++m)
        for (int d = 1; d <= 31; ++d)
            anzahl += !s.Feiertage(d, m).isEmpty();
    EXPECT_EQ(anzahl, 28);
}

TEST(BerechneFeiertage, LaterWritesReplaceEarlierOnes) {
    // 2008: Ascension on 1 May.
    EXPECT_EQ(F(MitAllenSchaltern(2008), 1, 5), u"Chr. Himmelfahrt");
    // 2017: 24 December is a Sunday, so the 4th Advent replaces Christmas Eve; 22 November is a
    // Wednesday and is the Day of Repentance itself.
    const AppState s = MitAllenSchaltern(2017);
    EXPECT_EQ(F(s, 24, 12), u"4. Advent");
    EXPECT_EQ(F(s, 22, 11), u"Buß- und Bettag");
    for (int m = 1; m <= 12; ++m)
        for (int d = 1; d <= 31; ++d)
            EXPECT_NE(s.Feiertage(d, m), u"Hl. Abend");
}

TEST(BerechneFeiertage, SwitchesOffClearEverythingIncludingTypedHolidays) {
    AppState s;
    s.Kalenderjahr = 2025;
    s.Feiertage(7, 7) = QStringLiteral("Eigener Feiertag");
    s.FeiertagSchrift(7, 7) = 0x123456;
    s.FeiertagBack(1, 1) = 0x654321;
    BerechneFeiertage(s);
    for (int m = 1; m <= 12; ++m)
        for (int d = 1; d <= 31; ++d) {
            EXPECT_TRUE(s.Feiertage(d, m).isEmpty());
            EXPECT_EQ(s.FeiertagSchrift(d, m), -1);
            EXPECT_EQ(s.FeiertagBack(d, m), -1);
        }
    // One switch alone: the Easter dates move on although their switches are off.
    s.FeiertagWahl(14) = 1;
    BerechneFeiertage(s);
    EXPECT_EQ(F(s, 19, 6), u"Fronleichnam");
    EXPECT_TRUE(F(s, 20, 4).isEmpty());
}

TEST(BerechneFeiertage, YearsOutsideTheDateRangeOnlyClear) {
    AppState s = MitAllenSchaltern(2025);
    s.Kalenderjahr = 0;
    BerechneFeiertage(s);
    EXPECT_TRUE(F(s, 1, 1).isEmpty());
}
