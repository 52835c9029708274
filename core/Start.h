#pragma once
// Start-up: the built-in defaults, the settings, the edition, and what the main window's load
// handler does to the state before the first paint.

#include <QString>
#include <QStringList>

namespace zp {

struct AppState;
class Oberflaeche;

// `Main` without showing the window: defaults, work objects, the default document of 30 text
// frames and one letter-body frame, the settings of `programmpfad` and the edition flags.
// `programmpfad` is the program folder; a "/" is appended when missing.
void Main(AppState& s, const QString& programmpfad, Oberflaeche& ui);

// Removes the unfinished files of saves that a crash or kill cut off, in the program folder and
// its "daten" folder, and names them in the status bar.
void RaeumeZwischendateienAuf(const AppState& s, Oberflaeche& ui);

// Sets exactly one edition flag from `Programmname` (exact, case-sensitive), or none.
void SetzeEditionsflags(AppState& s);

// The state part of the main window's load handler, for the window and for runs without one:
// the installed fonts, the edition's catalogue files, the calendar's empty day data and the
// start document (`LoadDesign`). Returns false when the start document could not be loaded
// (the message has been given); the built-in document then stays.
bool LadeStartzustand(AppState& s, Oberflaeche& ui);

// The installed font families by the names users know ("C059", not "C059 [UKWN]"), with "Arial",
// sorted.
[[nodiscard]] QStringList Schriftfamilien();

// Fills `Schriftenliste` and `SchriftSkalierbar` from the installed font families, with the end
// mark "-1" after the last one.
void LeseSchriftenliste(AppState& s);

} // namespace zp
