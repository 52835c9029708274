#pragma once
// The options of the calendar ("Optionen"): which holidays the calculation writes, the four text
// colours and the month and weekday names that stand on the page. The dialog edits a copy of the
// switches and colours and hands it back on "Ok"; the names change at once as they are typed.

#include "calendar/data/Landesfeiertage.h"
#include "model/Klassen.h"

#include <QString>
#include <QStringList>
#include <array>

namespace zp {
struct AppState;

// Captions of the 25 holiday boxes Check1(0..24), box i for FeiertagWahl(i + 1).
[[nodiscard]] const QStringList& Feiertagsschalter();
// The fixed German lists of the name boxes; they only select which name is edited.
[[nodiscard]] const QStringList& Monatsliste();
[[nodiscard]] const QStringList& Wochentagsliste(); // Sonntag .. Samstag

// Month and weekday names before the settings say otherwise: "Januar" ..., "So", "Mo", ... "So".
void StandardnamenSetzen(AppState& s);

struct Optionenwahl {
    Feiertagshaken haken{}; // Check1(0..29): the 25 classic switches, then 26 to 30
    Farbe samstag = 0, sonntag = 0, feiertag = 0, termin = 0;
    bool isoWochen = false; // week numbers after DIN/ISO 8601
    QString bundesland;     // the entry of the list "Bundesland" last chosen, or ""
};
// What the dialog shows on opening.
[[nodiscard]] Optionenwahl OptionenAusZustand(const AppState& s);
// "Ok": switches, colours and the week count taken over, Sunday's second slot follows the first.
// Nothing is recalculated or redrawn here.
void OptionenUebernehmen(AppState& s, const Optionenwahl& wahl);

// The list "Bundesland": the state's public holidays ticked on the copy; the user may still change
// single boxes before "Ok". False for a name not in the list.
bool BundeslandGewaehlt(Optionenwahl& wahl, const QString& land);

// TextMonat and TextWochentag changed, for the list entry `listenindex` (0-based).
void MonatsnameGeaendert(AppState& s, int listenindex, const QString& text);
void WochentagsnameGeaendert(AppState& s, int listenindex, const QString& text);

} // namespace zp
