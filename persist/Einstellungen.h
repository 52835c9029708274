#pragma once
// zp.ini: the settings that outlive a run (edition, page and sheet, view and snap, printer,
// calendar type and year, recent files, month and weekday names). "key = value" per line.

#include <QByteArray>
#include <QString>
#include <QStringList>

#include "persist/Dateimeldungen.h"

namespace zp {

struct AppState;
class Oberflaeche;

// One settings line split at the first "=": the key trimmed and in lower case, the value trimmed.
struct IniZeile {
    QString IniSchluessel;
    QString IniWert;
};
// std::nullopt-like: `gueltig` false for a line without "=", which readers pass over.
struct IniErgebnis {
    bool gueltig = false;
    IniZeile zeile;
};
[[nodiscard]] IniErgebnis ParseIniLine(const QString& zeile);

// Applies the settings in `bytes` to `s`. All or nothing: on a value that can't be read the
// state stays as it was, and the result names the line. Returns true on success.
bool LeseEinstellungen(AppState& s, const QByteArray& bytes, Lesefehler* fehler = nullptr);
// The keys of the 65 that `bytes` lacks, as they are written ("Kalenderjahr", "Monat3"): a file
// cut short lacks the last ones.
[[nodiscard]] QStringList FehlendeEinstellungen(const QByteArray& bytes);
// The 65 lines of the settings from the current state.
[[nodiscard]] QByteArray SchreibeEinstellungen(const AppState& s);

// `<Programmpfad>zp.ini`. A missing file leaves the defaults (no message); a bad one is told as
// "Falsches Datenformat" and leaves the state as it was; one that lacks keys is read and told.
// Either is remembered, so that the exit keeps it aside. Returns true when it was read whole.
bool LoadSettings(AppState& s, Oberflaeche& ui);
bool SaveSettings(const AppState& s, Oberflaeche& ui);

} // namespace zp
