// Week counters and page counts of the calendar types, as the print run steps through the pages.
#include "output/PrintDocument.h"

#include "core/AppState.h"
#include "core/runtime/Basic.h"

namespace zp {

int SeitenanzahlDesTyps(int kalendertyp) {
    switch (kalendertyp) {
    case 1:
        return 2;
    case 4:
    case 5:
        return 12;
    case 6:
        return 53;
    case 7:
        return 4;
    default:
        return 1;
    }
}

namespace {
int TageImMonat(int jahr, int monat) {
    // Day 0 of the next month is the last of this one; month 13 rolls into January.
    return basic::DateSerial(jahr, monat + 1, 0).day();
}
} // namespace

void WocheWeiter(AppState& s, int seite) {
    const int jahr = static_cast<int>(s.Kalenderjahr);
    // The first page ends on the first Sunday of the year: it holds the rest of the week that
    // began in December, so only the days up to that Sunday are stepped over.
    int t = 0;
    if (seite <= 1) {
        t = basic::Weekday(basic::DateSerial(jahr - 1, 12, 31)) - 1;
        if (t < 0) t = 6;
    }
    while (t != 7) {
        ++t;
        s.WocheTag += 1;
        if (s.WocheTag == TageImMonat(jahr, static_cast<int>(s.WocheMonat))) {
            s.WocheTag = 0;
            s.WocheMonat += 1;
        }
    }
}

void WocheAufSeite(AppState& s, int seite) {
    s.WocheMonat = 1;
    s.WocheTag = 0;
    for (int p = 1; p < seite; ++p)
        WocheWeiter(s, p);
}

} // namespace zp
