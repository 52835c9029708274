#pragma once
// The calendar's day data on disk: Save and Open of .zpd files, the .kal import, and the safety
// copy auto.zpd written at program end. Problems are told in German through the window.

#include <QString>

namespace zp {
struct AppState;
class Oberflaeche;

enum class Ladeergebnis { Geladen, Fehlt, Fehler };

// Writes the day data to Datendatei, replacing the file atomically.
bool SpeichereDaten(AppState& s, Oberflaeche& ui);
// Reads Datendatei. A missing file leaves everything as it stands; a file that can't be parsed is
// reported ("Falsches Datenformat") and the tables stay as they were. After a read the panel shows
// the new data.
Ladeergebnis LadeDaten(AppState& s, Oberflaeche& ui);
// Open of a .zpd: Datendatei becomes the path once the file has been read.
Ladeergebnis DatenOeffnen(AppState& s, Oberflaeche& ui, const QString& pfad);
// Open of a .kal: its appointments are added to the tables (same day and month replaced).
Ladeergebnis KalOeffnen(AppState& s, Oberflaeche& ui, const QString& pfad);
// Program end: Datendatei becomes auto.zpd in the program folder and is written.
bool SpeichereAutoDaten(AppState& s, Oberflaeche& ui);

} // namespace zp
