// Calendar pages in a print run: page range, week counters, the turn-over of the half-year calendar.
#include "Aufzeichnungsdrucker.h"

#include "core/runtime/Basic.h"
#include "output/Druckauftrag.h"

#include <gtest/gtest.h>

namespace zp::test {
namespace {

AppState Kalender(int typ, int jahr = 2027) {
    AppState s;
    s.IstKalender = -1;
    s.Kalendertyp = typ;
    s.Kalenderjahr = jahr;
    s.Seitenanzahl = SeitenanzahlDesTyps(typ);
    return s;
}

Druckauftrag Seiten(const char* von, const char* bis, const char* prozent = "100") {
    Druckauftrag a;
    a.DruckStart = von;
    a.DruckEnde = bis;
    a.Prozent = prozent;
    return a;
}

TEST(Kalenderdruck, SeitenbereichUndZoomWerdenRepariert) {
    struct Fall {
        int typ;
        const char *von, *bis;
        double druckVon, druckBis;
    };
    const Fall faelle[] = {
        {4, "3", "5", 3, 5},     {4, "0", "5", 1, 5},
        {4, "-7", "", 1, 12},    {4, "5", "3", 5, 5}, // an end before the start becomes the start
        {4, "13", "12", 12, 12},                      // a start past the pages becomes the last page
        {4, "3", "99", 12, 99}, // an end past the pages moves the start to the last page
        {6, "1", "", 1, 53},     {2, "1", "1", 1, 1},
    };
    for (const Fall& f : faelle) {
        AppState s = Kalender(f.typ);
        UebernimmSeitenbereich(s, Seiten(f.von, f.bis));
        EXPECT_DOUBLE_EQ(s.DruckVon, f.druckVon) << f.typ << " " << f.von << "-" << f.bis;
        EXPECT_DOUBLE_EQ(s.DruckBis, f.druckBis) << f.typ << " " << f.von << "-" << f.bis;
    }
    const std::pair<const char*, double> zooms[] = {{"9", 100},     {"10", 10}, {"9999", 9999},
                                                    {"10000", 100}, {"0", 100}, {"75%", 75}};
    for (const auto& [text, zoom] : zooms) {
        AppState s = Kalender(4);
        UebernimmSeitenbereich(s, Seiten("1", "1", text));
        EXPECT_DOUBLE_EQ(s.Druckzoom, zoom) << text;
    }
}

TEST(Kalenderdruck, EndePastDenSeitenDrucktNurDieLetzte) {
    AppState s = Kalender(4);
    Aufzeichnungsdrucker d;
    Mitschrift o;
    CommandDrucken(s, o, d, Seiten("3", "99"), d.Hilfen());
    ASSERT_EQ(d.Stuecke.size(), 1u);
    EXPECT_DOUBLE_EQ(d.Stuecke[0].Seitennummer, 12);
}

TEST(Kalenderdruck, WochenkalenderTraegtDieWochenVonSeiteZuSeite) {
    AppState s = Kalender(6);
    s.Seitennummer = 4;
    Aufzeichnungsdrucker d;
    Mitschrift o;
    CommandDrucken(s, o, d, Seiten("1", ""), d.Hilfen());
    ASSERT_EQ(d.Stuecke.size(), 53u);
    EXPECT_EQ(d.Seiten(), 53);
    // 1 January 2027 is a Friday: the first page holds Friday to Sunday, every later one starts on a
    // Monday, and the last one on 27 December.
    EXPECT_DOUBLE_EQ(d.Stuecke[0].WocheTag, 0);
    EXPECT_DOUBLE_EQ(d.Stuecke[0].WocheMonat, 1);
    for (size_t i = 1; i < d.Stuecke.size(); ++i) {
        const Stueck& st = d.Stuecke[i];
        const QDate start =
            basic::DateSerial(2027, static_cast<int>(st.WocheMonat), static_cast<int>(st.WocheTag) + 1);
        EXPECT_EQ(start, QDate(2027, 1, 4).addDays(7 * static_cast<qint64>(i - 1))) << "Seite " << i + 1;
        EXPECT_DOUBLE_EQ(st.Seitennummer, static_cast<double>(i + 1));
    }
    // Afterwards the page on view and the week counters are as before the run.
    EXPECT_DOUBLE_EQ(s.Seitennummer, 4);
    EXPECT_DOUBLE_EQ(s.WocheTag, 0);
    EXPECT_DOUBLE_EQ(s.WocheMonat, 1);

    // From a later page: 2004 begins on a Thursday, page 2 on 5 January, page 10 eight weeks later.
    AppState spaeter = Kalender(6, 2004);
    Aufzeichnungsdrucker ab10;
    CommandDrucken(spaeter, o, ab10, Seiten("10", "12"), ab10.Hilfen());
    ASSERT_EQ(ab10.Stuecke.size(), 3u);
    EXPECT_EQ(basic::DateSerial(2004, static_cast<int>(ab10.Stuecke[0].WocheMonat),
                                static_cast<int>(ab10.Stuecke[0].WocheTag) + 1),
              QDate(2004, 3, 1));
    EXPECT_EQ(ab10.Ereignisse, (std::vector<std::string>{"Oeffne", "NeueSeite", "NeueSeite", "Schliesse"}));
}

TEST(Kalenderdruck, HalbjahrWirdAufPapierGewendet) {
    AppState s = Kalender(1);
    Aufzeichnungsdrucker papier;
    Mitschrift o;
    CommandDrucken(s, o, papier, Seiten("1", "2"), papier.Hilfen());
    EXPECT_EQ(papier.Stuecke.size(), 2u);
    // Each side is a job of its own, with the request to turn the paper in between.
    EXPECT_EQ(papier.Ereignisse, (std::vector<std::string>{"Oeffne", "Schliesse", "Oeffne", "Schliesse"}));
    ASSERT_EQ(o.Meldungen.size(), 1u);
    EXPECT_EQ(o.Meldungen[0].first, "Bitte legen Sie die Rückseite(n) des Papiers in den Drucker!");
    EXPECT_EQ(o.Meldungen[0].second, "Warten!");

    // Into a file both pages go into one job, without a question.
    Aufzeichnungsdrucker datei(true);
    Mitschrift still;
    CommandDrucken(s, still, datei, Seiten("1", "2"), datei.Hilfen());
    EXPECT_EQ(datei.Ereignisse, (std::vector<std::string>{"Oeffne", "NeueSeite", "Schliesse"}));
    EXPECT_TRUE(still.Meldungen.empty());
}

TEST(Kalenderdruck, KopienMachtDasGeraetOderDieWiederholung) {
    AppState s = Kalender(4);
    Druckauftrag a = Seiten("1", "3");
    a.Wahl.Kopien = "2";
    Aufzeichnungsdrucker drucker; // makes copies itself
    Mitschrift o;
    CommandDrucken(s, o, drucker, a, drucker.Hilfen());
    EXPECT_EQ(drucker.Kopien, 2);
    EXPECT_EQ(drucker.Stuecke.size(), 3u);

    Aufzeichnungsdrucker datei(true); // a file gets the pages twice
    CommandDrucken(s, o, datei, a, datei.Hilfen());
    ASSERT_EQ(datei.Stuecke.size(), 6u);
    EXPECT_DOUBLE_EQ(datei.Stuecke[3].Seitennummer, 1);
}

TEST(Kalenderdruck, TascheDrucktEinenBogenKleinerKalender) {
    AppState s = Kalender(3);
    s.AktuellesEtikett.Anzahl_x = 2;
    s.AktuellesEtikett.Anzahl_y = 3;
    s.AktuellesEtikett.Breite = 850;
    s.AktuellesEtikett.Höhe = 540;
    Aufzeichnungsdrucker d;
    Mitschrift o;
    Druckauftrag a = Seiten("1", "1");
    a.Wahl.Kopien = "5"; // sheets; a calendar's grid is one sheet per job
    CommandDrucken(s, o, d, a, d.Hilfen());
    EXPECT_EQ(d.Stuecke.size(), 6u);
    EXPECT_EQ(d.Ereignisse, (std::vector<std::string>{"Oeffne", "Schliesse"}));
    EXPECT_DOUBLE_EQ(s.NurEineKarte, 0);
}

} // namespace
} // namespace zp::test
