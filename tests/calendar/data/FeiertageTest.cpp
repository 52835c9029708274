#include "calendar/data/Feiertage.h"
#include "core/state/AppState.h"

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

// The correction years of the table rule (1954, 1981, 2000, 2008) lie inside this range.
TEST(Ostersonntag, AgreesWithTheComputusFrom1900To2199) {
    for (int y = 1900; y <= 2199; ++y)
        EXPECT_EQ(Ostersonntag(y), OsternGauss(y)) << y;
}

TEST(BerechneFeiertage, WritesFixedMovableAndChurchYearHolidays) {
    const AppState s = MitAllenSchaltern(2025); // Easter 20 April 2025
    // Both Christmas days write the same text.
    const struct {
        int tag, monat;
        const char* name;
    } erwartet[] = {
        {1, 1, "Neujahr"},           {6, 1, "Hl. 3 Könige"},         {3, 3, "Rosenmontag"},
        {4, 3, "Fastnacht"},         {5, 3, "Aschermittwoch"},       {18, 4, "Karfreitag"},
        {19, 4, "Karsamstag"},       {20, 4, "Ostersonntag"},        {21, 4, "Ostermontag"},
        {29, 5, "Chr. Himmelfahrt"}, {8, 6, "Pfingstsonntag"},       {9, 6, "Pfingstmontag"},
        {19, 6, "Fronleichnam"},     {3, 10, "Tag der Dt. Einheit"}, {19, 11, "Buß- und Bettag"},
        {23, 11, "Totensonntag"},    {30, 11, "1. Advent"},          {21, 12, "4. Advent"},
        {24, 12, "Hl. Abend"},       {25, 12, "Weihnachten"},        {26, 12, "Weihnachten"},
        {31, 12, "Silvester"},
    };
    for (const auto& e : erwartet)
        EXPECT_EQ(F(s, e.tag, e.monat), QString::fromUtf8(e.name)) << e.tag << "." << e.monat;
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
