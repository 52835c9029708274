#include "KalenderTestHilfe.h"

#include "calendar/data/Standarddesign.h"
#include "calendar/data/Tagesdaten.h"
#include "core/runtime/Basic.h"

#include <algorithm>
#include <gtest/gtest.h>

using namespace zp;
using namespace zp::test;

namespace {
// Monat 1 grid: month group 1400 x 600 gives columns of 200 and rows of 100.
AppState Monat1(int jahr, int monat) {
    AppState s = Kalenderdesign(4, jahr, monat);
    Rahmen(s, 38, 100, 500, 1400, 600);
    Rahmen(s, 35, 100, 500, 200, 100); // day box
    Rahmen(s, 3, 100, 500, 50, 40);    // day number
    return s;
}
} // namespace

TEST(Monat1, AMonthStartingOnMondayFillsFromTheTemplate) {
    AppState s = Monat1(2004, 3); // 1 March 2004 is a Monday
    const auto boxen = Form(s, 35);
    ASSERT_EQ(boxen.size(), 31u);
    EXPECT_DOUBLE_EQ(boxen[0].x, 100);
    EXPECT_DOUBLE_EQ(boxen[0].y, 500);
    EXPECT_DOUBLE_EQ(boxen[6].x, 100 + 6 * 200); // Sunday 7 March, last column
    EXPECT_DOUBLE_EQ(boxen[7].x, 100);           // Monday 8 March, next row
    EXPECT_DOUBLE_EQ(boxen[7].y, 600);
    const auto zahlen = Text(s, 3);
    ASSERT_EQ(zahlen.size(), 31u);
    for (size_t i = 0; i < 31; ++i) {
        EXPECT_EQ(zahlen[i].inhalt, QString::number(i + 1));
        EXPECT_DOUBLE_EQ(zahlen[i].x, boxen[i].x);
        EXPECT_DOUBLE_EQ(zahlen[i].y, boxen[i].y);
    }
}

TEST(Monat1, AMonthStartingOnSundayBeginsInTheLastColumn) {
    AppState s = Monat1(2004, 2); // 1 February 2004 is a Sunday
    const auto boxen = Form(s, 35);
    ASSERT_EQ(boxen.size(), 29u); // leap year
    EXPECT_DOUBLE_EQ(boxen[0].x, 100 + 6 * 200);
    EXPECT_DOUBLE_EQ(boxen[1].x, 100);
    EXPECT_DOUBLE_EQ(boxen[1].y, 600);
    // A 31-day month from a Saturday uses all six rows and no seventh.
    AppState j = Monat1(2011, 1);
    const auto jan = Form(j, 35);
    ASSERT_EQ(jan.size(), 31u);
    EXPECT_DOUBLE_EQ(jan[30].y, 500 + 5 * 100);
    EXPECT_DOUBLE_EQ(jan[30].x, 100);
}

TEST(Halbjahr, ShortMonthsKeep31BoxesButNoNumbersPastTheirEnd) {
    AppState s = Kalenderdesign(1, 2025, 1);
    Rahmen(s, 32, 0, 0, 2970, 1800); // background: rows of 300
    Rahmen(s, 35, 200, 1700, 80, 250);
    Rahmen(s, 3, 200, 1700, 80, 50);
    (void)Form(s, 32);
    EXPECT_DOUBLE_EQ(s.Spaltenabstand, 300);
    const auto boxen = Form(s, 35);
    EXPECT_EQ(boxen.size(), 6u * 31u);
    const auto zahlen = Text(s, 3);
    EXPECT_EQ(zahlen.size(), 31u + 28 + 31 + 30 + 31 + 30u);
    // April has 30 numbers; 1 May stands at the template's X, four rows up.
    const auto mai = std::find_if(zahlen.begin(), zahlen.end(),
                                  [](const Zelle& z) { return z.inhalt == u"1" && z.y == 1700 - 4 * 300; });
    ASSERT_NE(mai, zahlen.end());
    EXPECT_DOUBLE_EQ(mai->x, 200);
    EXPECT_EQ((mai - 1)->inhalt, u"30");
    EXPECT_DOUBLE_EQ((mai - 1)->x, 200 + 29 * 80);
    // Week lines stand on Mondays only: 26 Mondays from January to June 2025.
    Rahmen(s, 37, 200, 1700, 2, 250);
    EXPECT_EQ(Form(s, 37).size(), 26u);
}

TEST(JahrA5, TheSecondHalfStandsAtTheMirrorPointAndUpright) {
    AppState s = Kalenderdesign(2, 2025);
    Rahmen(s, 32, 0, 0, 1200, 1400); // column step 200
    Rahmen(s, 35, 1800, 1400, 200, 40);
    Rahmen(s, 3, 1800, 1400, 200, 40);
    (void)Form(s, 32);
    const auto boxen = Form(s, 35);
    EXPECT_EQ(boxen.size(), 12u * 31u);
    EXPECT_DOUBLE_EQ(boxen[1].y, 1400 - 40);   // days run towards smaller Y in the first half
    EXPECT_DOUBLE_EQ(boxen[31].x, 1800 - 200); // February one column to the left
    const Zelle& juli = boxen[6 * 31];
    EXPECT_DOUBLE_EQ(juli.x, 2100 - 1800 - 200); // mirror point of the template
    EXPECT_DOUBLE_EQ(juli.y, 2970 - 1400 - 40);
    EXPECT_DOUBLE_EQ(boxen[6 * 31 + 1].y, juli.y + 40);
    EXPECT_DOUBLE_EQ(boxen[7 * 31].x, juli.x + 200);

    const auto zahlen = Text(s, 3);
    ASSERT_EQ(zahlen.size(), 365u);
    EXPECT_EQ(zahlen[0].winkel, -1); // first half keeps the design's angle
    EXPECT_EQ(zahlen[180].winkel, -1);
    EXPECT_EQ(zahlen[181].inhalt, u"1"); // 1 July
    EXPECT_EQ(zahlen[181].winkel, 0);
    EXPECT_DOUBLE_EQ(zahlen[181].x, juli.x);
    EXPECT_DOUBLE_EQ(zahlen[181].y, juli.y);
    EXPECT_EQ(zahlen[364].winkel, 0);
    EXPECT_EQ(s.Winkelvorgabe, -1);
    // Title twice: at the template, then at the mirror point upright.
    Rahmen(s, 1, 300, 100, 600, 80);
    const auto titel = Text(s, 1);
    ASSERT_EQ(titel.size(), 2u);
    EXPECT_DOUBLE_EQ(titel[1].x, 2100 - 300 - 600);
    EXPECT_DOUBLE_EQ(titel[1].y, 2970 - 100 - 80);
    EXPECT_EQ(titel[1].winkel, 0);
}

TEST(Tasche, BothTwinsPlaceEveryDayAlikeAcrossTheTwoBands) {
    AppState s = Kalenderdesign(3, 2025);
    Rahmen(s, 32, 0, 0, 1800, 1000);   // band height 500
    Rahmen(s, 34, 100, 100, 280, 350); // month block: column step 280
    Rahmen(s, 35, 100, 150, 40, 40);
    Rahmen(s, 3, 100, 150, 40, 40);
    (void)Form(s, 32);
    EXPECT_DOUBLE_EQ(s.Zeilenabstand, 500);
    const auto bloecke = Form(s, 34);
    ASSERT_EQ(bloecke.size(), 12u);
    EXPECT_DOUBLE_EQ(bloecke[6].x, 100);
    EXPECT_DOUBLE_EQ(bloecke[6].y, 600);
    EXPECT_DOUBLE_EQ(s.Spaltenabstand, 280);
    const auto boxen = Form(s, 35);
    const auto zahlen = Text(s, 3);
    ASSERT_EQ(boxen.size(), 365u);
    ASSERT_EQ(zahlen.size(), 365u);
    for (size_t i = 0; i < 365; ++i) {
        EXPECT_DOUBLE_EQ(zahlen[i].x, boxen[i].x) << i;
        EXPECT_DOUBLE_EQ(zahlen[i].y, boxen[i].y) << i;
    }
    // 1 January 2025 is a Wednesday: third row. 1 July 2025, a Tuesday, opens the second band.
    EXPECT_DOUBLE_EQ(boxen[0].y, 150 + 2 * 40);
    const size_t juli = 31 + 28 + 31 + 30 + 31 + 30;
    EXPECT_EQ(zahlen[juli].inhalt, u"1");
    EXPECT_DOUBLE_EQ(boxen[juli].x, 100);
    EXPECT_DOUBLE_EQ(boxen[juli].y, 150 + 500 + 40);
    EXPECT_DOUBLE_EQ(boxen[juli + 31].x, 100 + 280); // August in the second column of the band
}

TEST(Woche, FirstAndLastPageAndTheHandOverToTheNextPage) {
    AppState s = Kalenderdesign(6, 2025, 1);
    Rahmen(s, 38, 100, 200, 1800, 2100); // rows of 300
    Rahmen(s, 35, 100, 200, 1800, 300);
    Rahmen(s, 3, 100, 200, 100, 50);
    Wochenstart(2025, 1, s.WocheTag, s.WocheMonat);
    const auto seite1 = Text(s, 3);
    ASSERT_EQ(seite1.size(), 5u); // Wednesday 1 to Sunday 5 January
    EXPECT_DOUBLE_EQ(seite1[0].y, 200 + 2 * 300);
    EXPECT_EQ(seite1[4].inhalt, u"5");
    EXPECT_EQ(Form(s, 35).size(), 5u);

    s.Seitennummer = 52;
    Wochenstart(2025, 52, s.WocheTag, s.WocheMonat);
    EXPECT_EQ(s.WocheTag, 21);
    EXPECT_EQ(s.WocheMonat, 12);
    const auto seite52 = Text(s, 3);
    ASSERT_EQ(seite52.size(), 7u);
    EXPECT_EQ(seite52[0].inhalt, u"22");
    EXPECT_DOUBLE_EQ(seite52[0].y, 200); // later weeks start in the top row
    EXPECT_EQ(s.NaechsteWocheTag, 28);
    EXPECT_EQ(s.NaechsteWocheMonat, 12);

    s.Seitennummer = 53;
    Wochenstart(2025, 53, s.WocheTag, s.WocheMonat);
    const auto seite53 = Text(s, 3);
    ASSERT_EQ(seite53.size(), 3u); // 29 to 31 December; the year ends the page
    EXPECT_EQ(seite53[2].inhalt, u"31");
    EXPECT_EQ(Form(s, 35).size(), 3u);
}

TEST(Planer, StripOfTwentySevenAndMonthsRunningUpwards) {
    AppState s = Kalenderdesign(7, 2025, 2);
    Rahmen(s, 38, 100, 100, 600, 3100); // row step 100
    Rahmen(s, 39, 100, 50, 70, 30);
    const auto streifen = Form(s, 39);
    ASSERT_EQ(streifen.size(), 27u);
    EXPECT_DOUBLE_EQ(streifen[26].x, 100 + 26 * 70);
    Rahmen(s, 3, 100, 3000, 60, 90);
    const auto zahlen = Text(s, 3);
    ASSERT_EQ(zahlen.size(), 30u + 31 + 30u); // April to June
    EXPECT_DOUBLE_EQ(zahlen[1].y, 2900);
    EXPECT_DOUBLE_EQ(zahlen[30].y, 3000 - 31 * 100); // 1 May continues after 31 slots
    // Appointments aren't written into a planner.
    s.Termine(2, 4) = QStringLiteral("Termin");
    EXPECT_TRUE(Text(s, 5).empty());
}

TEST(KalenderBearbeiten, EveryFrameStandsOnceAtItsTemplate) {
    AppState s = Monat1(2025, 6);
    s.KalenderBearbeiten = -1;
    s.Monatsbilder(6) = QStringLiteral("juni.jpg");
    const auto boxen = Form(s, 35);
    ASSERT_EQ(boxen.size(), 1u);
    // At the template's own place, not at the first day's column (June 2025 starts on a Sunday),
    // so that the frame drawn is the one the mouse picks up.
    EXPECT_DOUBLE_EQ(boxen[0].x, s.Rahmenliste(35).X);
    EXPECT_DOUBLE_EQ(boxen[0].y, s.Rahmenliste(35).Y);
    EXPECT_EQ(s.Bildliste(1).File, u"juni.jpg");
    const auto zahlen = Text(s, 3);
    ASSERT_EQ(zahlen.size(), 1u);
    EXPECT_DOUBLE_EQ(zahlen[0].x, s.Rahmenliste(3).X);
}

TEST(Farben, DayNumbersWeekdaysAndDayTexts) {
    AppState s = Kalenderdesign(5, 2025, 6); // June 2025: 1st a Sunday, 7th a Saturday
    Rahmen(s, 38, 100, 100, 1000, 3100);
    s.FarbeSamstag = 0x111111;
    s.FarbeSonntag = 0x0000FF;
    s.FarbeFeiertag = 0x00FF00;
    s.FarbeTermin = 0x333333;
    s.Feiertage(1, 6) = QStringLiteral("Sonntagsfeiertag");
    s.Feiertage(7, 6) = QStringLiteral("Samstagsfeiertag");
    s.FeiertagSchrift(7, 6) = 0x444444;
    s.Feiertage(9, 6) = QStringLiteral("Pfingstmontag");
    s.Termine(9, 6) = QStringLiteral("Geburtstag");
    s.FeiertagBack(9, 6) = 0x555555;
    s.TerminBack(9, 6) = 0x666666;
    s.FeiertagBack(10, 6) = 0x777777;

    const auto zahlen = Text(s, 3);
    EXPECT_EQ(zahlen[0].farbe, 0x0000FF);  // a Sunday holiday keeps the Sunday colour
    EXPECT_EQ(zahlen[6].farbe, 0x444444);  // a Saturday holiday takes its own colour
    EXPECT_EQ(zahlen[13].farbe, 0x111111); // a plain Saturday
    EXPECT_EQ(zahlen[8].farbe, 0x00FF00);  // a holiday on a Monday
    EXPECT_EQ(zahlen[2].farbe, -1);        // a plain weekday keeps the design's colour
    const auto namen = Text(s, 4);
    EXPECT_EQ(namen[0].inhalt, u"So");
    EXPECT_EQ(namen[0].farbe, 0x0000FF);

    const auto texte = Text(s, 5);
    ASSERT_EQ(texte.size(), 3u);
    EXPECT_EQ(texte[0].inhalt, u"Sonntagsfeiertag");
    EXPECT_EQ(texte[0].farbe, 0x00FF00);
    EXPECT_EQ(texte[2].inhalt, u"Geburtstag"); // the appointment hides the holiday
    EXPECT_EQ(texte[2].farbe, 0x333333);

    const auto boxen = Form(s, 36);
    ASSERT_EQ(boxen.size(), 30u);
    EXPECT_EQ(boxen[8].farbe, 0x666666); // the appointment's background beats the holiday's
    EXPECT_EQ(boxen[9].farbe, 0x777777);
    EXPECT_EQ(boxen[10].farbe, -1);
    EXPECT_EQ(s.Farbvorgabe, -1);
}

TEST(Wochennummern, CountMondaysAndNeverShow53) {
    auto nummern = [](int jahr, int monat) {
        AppState s = Kalenderdesign(5, jahr, monat);
        Rahmen(s, 38, 100, 100, 1000, 3100);
        Rahmen(s, 6, 100, 100, 50, 50);
        std::map<int, QString> tagZuNummer;
        for (const auto& z : Text(s, 6))
            tagZuNummer[static_cast<int>((z.y - 100) / 100 + 0.5) + 1] = z.inhalt;
        return tagZuNummer;
    };
    auto jan04 = nummern(2004, 1); // Thursday 1 January: week 1 started in December
    EXPECT_EQ(jan04[1], u"1");
    EXPECT_EQ(jan04[5], u"2");
    EXPECT_EQ(jan04.size(), 5u);
    auto dez04 = nummern(2004, 12);
    EXPECT_EQ(dez04[27], u"1"); // the 52nd Monday would be 53
    EXPECT_EQ(dez04[20], u"52");
    auto jan01 = nummern(2001, 1); // Monday 1 January
    EXPECT_EQ(jan01[1], u"1");
    EXPECT_EQ(jan01[8], u"2");
    auto jan05 = nummern(2005, 1); // Saturday 1 January: no number before the first Monday
    EXPECT_EQ(jan05.count(1), 0u);
    EXPECT_EQ(jan05[3], u"1");
}

TEST(Texte, TitleFooterCaptionsAndEmptyTexts) {
    AppState s = Kalenderdesign(4, 2025, 3);
    s.Monatsbildtexte(3) = QStringLiteral("Märzenbecher");
    const auto unterschrift = Text(s, 8);
    ASSERT_EQ(unterschrift.size(), 1u);
    EXPECT_EQ(unterschrift[0].inhalt, u"Märzenbecher");
    EXPECT_EQ(Text(s, 2)[0].inhalt, u"März");
    EXPECT_EQ(Text(s, 7)[0].inhalt, u"Fuß");
    s.Panel.TextTitel.clear();
    EXPECT_TRUE(Text(s, 1).empty());
    // In other types role 8 keeps its own text and draws nothing.
    s.Kalendertyp = 1;
    s.Schriftliste(8).Textstring = QStringLiteral("eigener Text");
    EXPECT_TRUE(Text(s, 8).empty());
    EXPECT_EQ(s.Schriftliste(8).Textstring, u"eigener Text");
    // A frame number out of range draws nothing.
    EXPECT_TRUE(Text(s, 99).empty());
    EXPECT_TRUE(Form(s, 0).empty());
}

TEST(Standarddesigns, EveryTypeAndVariantWalksInsideThePage) {
    for (int typ = 1; typ <= 7; ++typ)
        for (int variante = 1; variante <= 2; ++variante) {
            AppState s = Kalenderdesign(typ, 2027);
            BaueStandarddesign(s, typ, variante);
            Aufzeichner a;
            // Frames by their stacking, as the page is composed; shapes set the grid measures first.
            std::vector<int> folge;
            for (int n = 1; n <= static_cast<int>(s.RahmenAnzahl); ++n)
                folge.push_back(n);
            std::sort(folge.begin(), folge.end(),
                      [&](int x, int y) { return s.Rahmenliste(x).z < s.Rahmenliste(y).z; });
            for (int n : folge) {
                if (s.Rahmenliste(n).Sichtbar == 0) continue;
                if (s.Rahmenliste(n).Objekttyp == u"Schrift") KalenderTextLauf(s, a, n);
                if (s.Rahmenliste(n).Objekttyp == u"Linie") KalenderRahmenLauf(s, a, n);
            }
            int tageszahlen = 0;
            const double breite = typ == 3 ? 900 : 2100, hoehe = typ == 3 ? 620 : 2970;
            for (const Zelle& z : a.zellen) {
                EXPECT_GE(z.x, 0) << typ << "/" << variante << " Rolle " << z.rolle;
                EXPECT_GE(z.y, 0) << typ << "/" << variante << " Rolle " << z.rolle;
                EXPECT_LE(z.x + z.breite, breite + 0.5) << typ << "/" << variante << " Rolle " << z.rolle;
                EXPECT_LE(z.y + z.hoehe, hoehe + 0.5) << typ << "/" << variante << " Rolle " << z.rolle;
                tageszahlen += z.text && z.rolle == 3;
            }
            const int erwartet[] = {0, 181, 365, 365, 31, 31, 3, 90}; // 2027 begins on a Friday
            EXPECT_EQ(tageszahlen, erwartet[typ]) << typ << "/" << variante;
        }
}

TEST(Monatsname, AnEmptiedNameDrawsNothingAndTheRestOfThePageStays) {
    AppState s = Monat1(2027, 3);
    ASSERT_EQ(Text(s, 2).size(), 1u);
    EXPECT_EQ(Text(s, 2)[0].inhalt, s.Monatsnamen(3));
    s.Monatsnamen(3) = QString(); // emptied in the options dialog
    EXPECT_TRUE(Text(s, 2).empty());
    EXPECT_EQ(Text(s, 3).size(), 31u);
    s.Seitennummer = 4; // other months keep their names
    ASSERT_EQ(Text(s, 2).size(), 1u);
    EXPECT_EQ(Text(s, 2)[0].inhalt, s.Monatsnamen(4));
}
