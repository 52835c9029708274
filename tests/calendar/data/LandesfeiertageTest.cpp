#include "calendar/data/Landesfeiertage.h"
#include "calendar/data/Feiertage.h"
#include "calendar/data/Kalenderoptionen.h"
#include "core/state/AppState.h"

#include <QDate>
#include <gtest/gtest.h>
#include <map>
#include <set>

using namespace zp;

namespace {

AppState Berechnet(int jahr, std::initializer_list<int> an) {
    AppState s;
    s.Kalenderjahr = jahr;
    for (int i : an)
        s.FeiertagWahl(i) = 1;
    BerechneFeiertage(s);
    return s;
}

QString Am(const AppState& s, const char* datum) {
    const QDate d = QDate::fromString(QString::fromLatin1(datum), QStringLiteral("dd.MM.yyyy"));
    return s.Feiertage(d.day(), d.month());
}

} // namespace

TEST(Zusatzfeiertage, DatesOfKnownYears) {
    struct Fall {
        int jahr;
        const char *muttertag, *sommerzeit, *winterzeit;
    };
    const Fall faelle[] = {
        {2027, "09.05.2027", "28.03.2027", "31.10.2027"},
        {2024, "12.05.2024", "31.03.2024", "27.10.2024"},
        {2025, "11.05.2025", "30.03.2025", "26.10.2025"},
        {2026, "10.05.2026", "29.03.2026", "25.10.2026"}, // 1 May a Friday: 8 May too
        {2022, "08.05.2022", "27.03.2022", "30.10.2022"}, // 8 May itself a Sunday
    };
    for (const Fall& f : faelle) {
        const AppState s = Berechnet(f.jahr, {26, 27, 28, 29, 30});
        EXPECT_EQ(Am(s, f.muttertag), u"Muttertag") << f.jahr;
        EXPECT_EQ(Am(s, f.sommerzeit), u"Sommerzeit") << f.jahr;
        EXPECT_TRUE(Am(s, f.winterzeit).endsWith(u"Winterzeit")) << f.jahr;
        EXPECT_EQ(s.Feiertage(8, 3), u"Frauentag");
        EXPECT_EQ(s.Feiertage(20, 9), u"Weltkindertag");
        EXPECT_TRUE(s.Feiertage(31, 10).startsWith(u"Reformationstag"));
    }
}

TEST(Zusatzfeiertage, ANewHolidayNeverHidesAnOlderOne) {
    // 2027: Easter Sunday is the start of summer time, and 31 October its end.
    const AppState s = Berechnet(2027, {8, 26, 30});
    EXPECT_EQ(s.Feiertage(28, 3), u"Ostersonntag, Sommerzeit");
    EXPECT_EQ(s.Feiertage(31, 10), u"Reformationstag, Winterzeit");
    // 2008: Mother's Day on Whit Sunday.
    EXPECT_EQ(Berechnet(2008, {12, 29}).Feiertage(11, 5), u"Pfingstsonntag, Muttertag");
}

TEST(Zusatzfeiertage, NothingChangesWhileSwitchedOff) {
    for (int jahr = 1990; jahr <= 2050; ++jahr) {
        AppState klassisch;
        klassisch.Kalenderjahr = jahr;
        for (int i = 1; i <= 25; ++i)
            klassisch.FeiertagWahl(i) = 1;
        AppState alle = klassisch;
        BerechneFeiertage(klassisch);
        for (int i = 26; i <= 30; ++i)
            alle.FeiertagWahl(i) = 1;
        BerechneFeiertage(alle);
        for (int m = 1; m <= 12; ++m)
            for (int d = 1; d <= 31; ++d) {
                const QString& alt = klassisch.Feiertage(d, m);
                for (const QString& neu : Zusatzschalter())
                    EXPECT_FALSE(alt.contains(neu)) << jahr << " " << d << "." << m;
                // With the new switches on, what stood before still leads the day.
                EXPECT_TRUE(alle.Feiertage(d, m).startsWith(alt)) << jahr << " " << d << "." << m;
            }
    }
}

// The public holidays of 2027 per state, written down from the states' holiday laws as dates.
// Easter 2027 is 28 March; Buß- und Bettag falls on 17 November.
TEST(Bundesland, PresetGivesTheStatesPublicHolidaysOf2027) {
    const std::set<QString> bundesweit = {"01.01.", "26.03.", "29.03.", "01.05.", "06.05.",
                                          "17.05.", "03.10.", "25.12.", "26.12."};
    const std::map<QString, std::set<QString>> dazu = {
        {"bundesweit", {}},
        {"Baden-Württemberg", {"06.01.", "27.05.", "01.11."}},
        {"Bayern", {"06.01.", "27.05.", "15.08.", "01.11."}},
        {"Berlin", {"08.03."}},
        {"Brandenburg", {"28.03.", "16.05.", "31.10."}},
        {"Bremen", {"31.10."}},
        {"Hamburg", {"31.10."}},
        {"Hessen", {"28.03.", "16.05.", "27.05."}},
        {"Mecklenburg-Vorpommern", {"08.03.", "31.10."}},
        {"Niedersachsen", {"31.10."}},
        {"Nordrhein-Westfalen", {"27.05.", "01.11."}},
        {"Rheinland-Pfalz", {"27.05.", "01.11."}},
        {"Saarland", {"27.05.", "15.08.", "01.11."}},
        {"Sachsen", {"31.10.", "17.11."}},
        {"Sachsen-Anhalt", {"06.01.", "31.10."}},
        {"Schleswig-Holstein", {"31.10."}},
        {"Thüringen", {"20.09.", "31.10."}},
    };
    ASSERT_EQ(Bundeslaender().size(), 17);
    for (const QString& land : Bundeslaender()) {
        ASSERT_TRUE(dazu.count(land)) << land.toStdString();
        Optionenwahl w;
        ASSERT_TRUE(BundeslandGewaehlt(w, land));
        AppState s;
        s.Kalenderjahr = 2027;
        OptionenUebernehmen(s, w);
        BerechneFeiertage(s);
        std::set<QString> tage;
        for (int m = 1; m <= 12; ++m)
            for (int d = 1; d <= 31; ++d)
                if (!s.Feiertage(d, m).isEmpty()) tage.insert(QDate(2027, m, d).toString("dd.MM."));
        std::set<QString> erwartet = bundesweit;
        erwartet.insert(dazu.at(land).begin(), dazu.at(land).end());
        EXPECT_EQ(tage, erwartet) << land.toStdString();
        EXPECT_EQ(s.Bundesland, land);
    }
}

TEST(Bundesland, PresetLeavesObservancesAndSingleBoxesToTheUser) {
    Optionenwahl w;
    w.haken[21] = true; // Hl. Abend
    w.haken[28] = true; // Muttertag
    ASSERT_TRUE(BundeslandGewaehlt(w, QStringLiteral("Sachsen")));
    EXPECT_TRUE(w.haken[17] && w.haken[25]); // Buß- und Bettag, Reformationstag
    ASSERT_TRUE(BundeslandGewaehlt(w, QStringLiteral("Bayern")));
    EXPECT_FALSE(w.haken[17] || w.haken[25]);
    EXPECT_TRUE(w.haken[1] && w.haken[13] && w.haken[14] && w.haken[16]);
    EXPECT_TRUE(w.haken[21] && w.haken[28]);
    w.haken[16] = false; // the user may still change a single box
    EXPECT_FALSE(BundeslandGewaehlt(w, QStringLiteral("Bayern ")));
    EXPECT_FALSE(w.haken[16]);
    EXPECT_EQ(w.bundesland, u"Bayern");
}
