#pragma once
// Birthdays taken from the address records into the appointments of the calendar year: every
// field that holds a date of birth becomes "Name (Alter)" on that day, below what stands there.

#include <QString>
#include <optional>

namespace zp {
struct AppState;
struct Datenbank;

// A date of birth as typed in an address field: "DD.MM.YYYY" or "DD.MM." (year 0: unknown).
struct Geburtsdatum {
    int tag = 0, monat = 0, jahr = 0;
};
// The field's text read as a date of birth; std::nullopt for anything else and for days the month
// doesn't have (31.02., 29.02. of a common year).
[[nodiscard]] std::optional<Geburtsdatum> LeseGeburtsdatum(const QString& feld);

struct Geburtstagsbilanz {
    int uebernommen = 0; // written into the calendar
    int schonDa = 0;     // the same line stood there already
    int inZukunft = 0;   // born after the calendar year: left out
    int unmoeglich = 0;  // looked like a date but the day doesn't exist (31.02.)
};
// Writes the birthdays of `db` into the appointments of `Kalenderjahr`. Field 1 is the name.
// The text is "Name (Alter)", the age the person reaches in that year, or "Name" without a year
// of birth. An appointment already there is kept and the birthday follows on a new line. In a
// common year a 29 February birthday stands on 28 February. Nothing but `Termine` changes.
Geburtstagsbilanz GeburtstageEintragen(AppState& s, const Datenbank& db);

// The line for the dialog: "12 Geburtstage übernommen." and what was left out.
[[nodiscard]] QString Bilanztext(const Geburtstagsbilanz& b);

} // namespace zp
