#include "calendar/data/Feiertage.h"

#include "calendar/data/Landesfeiertage.h"
#include "calendar/data/Tagesdaten.h"
#include "core/runtime/Basic.h"
#include "core/state/AppState.h"

namespace zp {

using basic::DateSerial;
using basic::Weekday;

namespace {

struct FesterFeiertag {
    int schalter, tag, monat;
    const char* text;
};
// In writing order; a later entry on the same day would replace an earlier one.
constexpr FesterFeiertag kFeste[] = {
    {1, 1, 1, "Neujahr"},          {2, 6, 1, "Hl. 3 Könige"},    {10, 1, 5, "Maifeiertag"},
    {15, 15, 8, "Maria Himmelf."}, {17, 1, 11, "Allerheiligen"}, {16, 3, 10, "Tag der Dt. Einheit"},
    {20, 6, 12, "Nikolaus"},       {22, 24, 12, "Hl. Abend"},    {23, 25, 12, "Weihnachten"},
    {24, 26, 12, "Weihnachten"},   {25, 31, 12, "Silvester"},
};

struct Osterfeiertag {
    int schalter, abstand;
    const char* text;
};
// Offsets from Easter Sunday, in writing order (the day after Pentecost comes before Pentecost).
constexpr Osterfeiertag kOstern[] = {
    {8, 0, "Ostersonntag"},     {9, 1, "Ostermontag"},        {6, -2, "Karfreitag"},
    {7, -1, "Karsamstag"},      {11, 39, "Chr. Himmelfahrt"}, {3, -48, "Rosenmontag"},
    {4, -47, "Fastnacht"},      {5, -46, "Aschermittwoch"},   {13, 50, "Pfingstmontag"},
    {12, 49, "Pfingstsonntag"}, {14, 60, "Fronleichnam"},
};

bool An(const AppState& s, int schalter) {
    return s.FeiertagWahl.Gueltig(schalter) && s.FeiertagWahl(schalter) == 1;
}

void Schreibe(AppState& s, int schalter, const QDate& datum, const char* text) {
    if (An(s, schalter)) s.Feiertage(datum.day(), datum.month()) = QString::fromUtf8(text);
}

} // namespace

QDate Ostersonntag(int jahr) {
    // Paschal full moon from a three-entry table on the golden number, with three fixed corrections.
    constexpr int T[3] = {14, 4, 24};
    const int g = jahr % 19;
    double r = T[g % 3] - g;
    if (r == 19) r = 18;
    if (r == 22) r = 23;
    if (r == -12) r = 17;
    if (r < 1) r += 31;
    const int monat = r <= 19 ? 4 : 3;
    const QDate mond = DateSerial(jahr, monat, static_cast<int>(r));
    // The Sunday after the full moon; a full moon on a Sunday moves a whole week on.
    return mond.addDays(8 - Weekday(mond));
}

void BerechneFeiertage(AppState& s) {
    s.Feiertage.Fuelle(QString());
    s.FeiertagSchrift.Fuelle(-1);
    s.FeiertagBack.Fuelle(-1);

    const int jahr = static_cast<int>(s.Kalenderjahr);
    if (!JahrGueltig(jahr)) return; // no dates to write; the year box refuses such a year
    for (const auto& f : kFeste)
        if (An(s, f.schalter)) s.Feiertage(f.tag, f.monat) = QString::fromUtf8(f.text);

    const QDate ostern = Ostersonntag(jahr);
    for (const auto& f : kOstern)
        Schreibe(s, f.schalter, ostern.addDays(f.abstand), f.text);

    // Day of Repentance: the Wednesday on or before 22 November.
    QDate buss = DateSerial(jahr, 12, 24).addDays(-32);
    while (Weekday(buss) != 4)
        buss = buss.addDays(-1);
    Schreibe(s, 18, buss, "Buß- und Bettag");
    QDate sonntag = buss.addDays(4);
    Schreibe(s, 19, sonntag, "Totensonntag");
    for (const char* advent : {"1. Advent", "2. Advent", "3. Advent", "4. Advent"}) {
        sonntag = sonntag.addDays(7);
        Schreibe(s, 21, sonntag, advent);
    }
    // Switches 26 to 30 come last, so that with them off the table is what it always was.
    SchreibeZusatzfeiertage(s, jahr);
}

void CommandBerechnen(AppState& s) {
    BerechneFeiertage(s);
    FeiertagAnzeigen(s);
}

} // namespace zp
