#pragma once
// The holidays beyond the classic 25 switches (26 to 30 of FeiertagWahl) and the presets of the
// sixteen German states, which tick the switches of a state's public holidays.

#include <QString>
#include <QStringList>
#include <array>
#include <vector>

namespace zp {
struct AppState;

// The boxes of the options dialog, index 0 for switch 1.
using Feiertagshaken = std::array<bool, 30>;

// Switches 26 to 30 and their captions in the options dialog, in switch order.
constexpr int ErsterZusatzschalter = 26;
constexpr int LetzterZusatzschalter = 30;
[[nodiscard]] const QStringList& Zusatzschalter();

// Writes the holidays of switches 26 to 30 into the holiday table of `jahr`. Runs after the
// classic calculation. A day that already holds a holiday keeps it, and the new name follows
// after a comma ("Reformationstag, Winterzeit"), so that the older text is never hidden.
void SchreibeZusatzfeiertage(AppState& s, int jahr);

// The entries of the list "Bundesland": "bundesweit", then the sixteen states alphabetically.
[[nodiscard]] const QStringList& Bundeslaender();
// The switches that are a public holiday in `land` (an entry of Bundeslaender()); empty for an
// unknown name.
[[nodiscard]] std::vector<int> GesetzlicheSchalter(const QString& land);
// Every switch that is a public holiday somewhere: the ones a preset sets on or off. The others
// (Rosenmontag, Hl. Abend, Advent, Muttertag, ...) are observances a preset leaves alone.
[[nodiscard]] const std::vector<int>& LandesabhaengigeSchalter();

// The preset of `land` on the boxes: public holidays ticked, the others
// among LandesabhaengigeSchalter() cleared, observances as they were. False for an unknown name.
bool BundeslandVorwahl(const QString& land, Feiertagshaken& haken);

} // namespace zp
