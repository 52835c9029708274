#pragma once
// What the calendar side panel writes into the day tables: the appointment box over a selection
// of days, the holiday box for one day, and the four colour boxes. The tables have no year, so a
// date picks the slot of its day and month.

#include "model/Klassen.h"

#include <QDate>
#include <QString>

namespace zp {
struct AppState;

// The selection of a month view: the selected day (the first of a range) and the range
// SelStart..SelEnd.
struct Tagesauswahl {
    QDate aktuell;
    QDate start;
    QDate ende;
};

// The appointment box changed: the selected day takes the text, and so do the days after
// SelStart up to SelEnd in the selected month. An empty text also clears the colours of each.
void TerminEingabe(AppState& s, const Tagesauswahl& a, const QString& text);
// The holiday box changed: only the selected day.
void FeiertagEingabe(AppState& s, const QDate& tag, const QString& text);

enum class Tagesfarbe { TerminSchrift, TerminBack, FeiertagSchrift, FeiertagBack };
// The colour of a day's slot, -1 when none is set.
[[nodiscard]] Farbe TagesfarbeLesen(const AppState& s, Tagesfarbe art, const QDate& tag);
// A colour chosen in the colour dialog: the selected day, and for the appointment colours the
// days of the range as with the text.
void TagesfarbeSetzen(AppState& s, Tagesfarbe art, const Tagesauswahl& a, Farbe farbe);

[[nodiscard]] QString TerminText(const AppState& s, const QDate& tag);
[[nodiscard]] QString FeiertagText(const AppState& s, const QDate& tag);

} // namespace zp
