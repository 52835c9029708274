#include "calendar/data/Wochennummer.h"

namespace zp {

namespace {

bool Schaltjahr(int jahr) {
    return (jahr % 4 == 0 && jahr % 100 != 0) || jahr % 400 == 0;
}

int Tagesnummer(int jahr, int monat, int tag) {
    static constexpr int kVorMonat[] = {0, 31, 59, 90, 120, 151, 181, 212, 243, 273, 304, 334};
    return kVorMonat[monat - 1] + tag + (monat > 2 && Schaltjahr(jahr) ? 1 : 0);
}

// Weekday Monday 1 to Sunday 7 (Sakamoto's method on the Gregorian calendar).
int IsoWochentag(int jahr, int monat, int tag) {
    static constexpr int kVersatz[] = {0, 3, 2, 5, 0, 3, 5, 1, 4, 6, 2, 4};
    if (monat < 3) --jahr;
    const int w = (jahr + jahr / 4 - jahr / 100 + jahr / 400 + kVersatz[monat - 1] + tag) % 7;
    return w == 0 ? 7 : w; // 0 is Sunday
}

// A year has 53 weeks when it starts on a Thursday, or on a Wednesday in a leap year.
int WochenImJahr(int jahr) {
    const int neujahr = IsoWochentag(jahr, 1, 1);
    return neujahr == 4 || (neujahr == 3 && Schaltjahr(jahr)) ? 53 : 52;
}

} // namespace

int IsoWoche(int jahr, int monat, int tag) {
    if (monat < 1 || monat > 12) return 0;
    const int woche = (Tagesnummer(jahr, monat, tag) - IsoWochentag(jahr, monat, tag) + 10) / 7;
    if (woche < 1) return WochenImJahr(jahr - 1);
    if (woche > WochenImJahr(jahr)) return 1;
    return woche;
}

} // namespace zp
