#pragma once
// The holiday calculation: fills the holiday tables of the calendar year from the switches.

#include <QDate>

namespace zp {
struct AppState;

// Easter Sunday of `jahr` by the table-driven full moon that the calendar has always used
// (right for 1900 to 2199; other years go through the same steps).
[[nodiscard]] QDate Ostersonntag(int jahr);

// Clears the three holiday tables (typed holidays too) and writes the holidays of Kalenderjahr
// whose FeiertagWahl switch is 1. A later write on the same day replaces an earlier one.
void BerechneFeiertage(AppState& s);

// The button "Berechnen": the calculation, then the holiday side of the panel shows the new state.
void CommandBerechnen(AppState& s);
} // namespace zp
