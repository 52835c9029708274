#include "calendar/data/Geburtstage.h"
#include "core/state/AppState.h"
#include "persist/Datensaetze.h"

#include <gtest/gtest.h>

using namespace zp;

namespace {

Datenbank
Adressen(std::initializer_list<std::pair<const char*, std::vector<std::pair<int, const char*>>>> saetze) {
    Datenbank db;
    db.DatensatzAnzahl = static_cast<int>(saetze.size());
    db.Datensaetze.Redim(DatensatzFelder, db.DatensatzAnzahl);
    int r = 0;
    for (const auto& [name, felder] : saetze) {
        ++r;
        db.Datensaetze(1, r) = QString::fromUtf8(name);
        for (const auto& [f, text] : felder)
            db.Datensaetze(f, r) = QString::fromUtf8(text);
    }
    return db;
}

} // namespace

TEST(LeseGeburtsdatum, AcceptsDayMonthWithAndWithoutYear) {
    struct Fall {
        const char* text;
        int tag, monat, jahr; // tag 0: no date
    };
    const Fall faelle[] = {
        {"12.03.1980", 12, 3, 1980}, {" 1.2. ", 1, 2, 0},
        {"29.02.", 29, 2, 0},        {"29.02.1996", 29, 2, 1996},
        {"29.02.1997", 0, 0, 0},     {"31.02.", 0, 0, 0},
        {"12.13.1980", 0, 0, 0},     {"12.03.80", 0, 0, 0},
        {"Tel. 12.03.", 0, 0, 0},    {"", 0, 0, 0},
    };
    for (const Fall& f : faelle) {
        const auto g = LeseGeburtsdatum(QString::fromUtf8(f.text));
        ASSERT_EQ(g.has_value(), f.tag != 0) << f.text;
        if (g) {
            EXPECT_EQ(std::tie(g->tag, g->monat, g->jahr), std::tie(f.tag, f.monat, f.jahr)) << f.text;
        }
    }
}

TEST(GeburtstageEintragen, AgesAppendedLinesAndLeftOutDates) {
    AppState s;
    s.Kalenderjahr = 2027;
    s.Termine(12, 3) = QStringLiteral("Zahnarzt");
    s.TerminSchrift(12, 3) = 0x123456;
    const Datenbank db = Adressen({
        {"Anna Berg", {{5, "Hauptstr. 1"}, {12, "12.03.1980"}}},
        {"Bert", {{25, "29.02.1996"}}},
        {"Carla", {{3, "24.12."}, {4, "31.02.1990"}}},
        {"Dora", {{2, "01.01.2030"}, {7, "01.06.2027"}}},
        {"", {{2, "05.05.1950"}}},
    });
    const Geburtstagsbilanz b = GeburtstageEintragen(s, db);
    EXPECT_EQ(s.Termine(12, 3), u"Zahnarzt\r\nAnna Berg (47)"); // the appointment stays first
    EXPECT_EQ(s.TerminSchrift(12, 3), 0x123456);
    EXPECT_EQ(s.Termine(28, 2), u"Bert (31)"); // 2027 has no 29 February
    EXPECT_TRUE(s.Termine(29, 2).isEmpty());
    EXPECT_EQ(s.Termine(24, 12), u"Carla");
    EXPECT_EQ(s.Termine(1, 6), u"Dora (0)");
    EXPECT_TRUE(s.Termine(1, 1).isEmpty());
    EXPECT_EQ(s.Termine(5, 5), u"Geburtstag (77)");
    EXPECT_EQ(b.uebernommen, 5);
    EXPECT_EQ(b.inZukunft, 1);
    EXPECT_EQ(b.unmoeglich, 1);
    EXPECT_EQ(Bilanztext(b), u"5 Geburtstage übernommen. 1 mit einem Geburtsjahr nach dem Kalenderjahr "
                             u"ausgelassen. 1 ungültiges Datum ausgelassen.");
    EXPECT_EQ(Bilanztext({1, 2, 0, 3}),
              u"1 Geburtstag übernommen. 2 standen schon im Kalender. 3 ungültige Daten ausgelassen.");

    // Taken a second time, nothing is doubled.
    const Geburtstagsbilanz wieder = GeburtstageEintragen(s, db);
    EXPECT_EQ(wieder.uebernommen, 0);
    EXPECT_EQ(wieder.schonDa, 5);
    EXPECT_EQ(s.Termine(12, 3), u"Zahnarzt\r\nAnna Berg (47)");

    // In a leap year the birthday has its own day.
    s.Kalenderjahr = 2028;
    GeburtstageEintragen(s, db);
    EXPECT_EQ(s.Termine(29, 2), u"Bert (32)");
}
