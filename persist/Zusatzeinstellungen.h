#pragma once
// zusatz.ini: settings of what this program adds beyond the 65 keys of zp.ini, which stay as they
// are so that zp.ini keeps its meaning for every reader. One file for all of them, "key = value"
// per line; keys a reader doesn't know are passed over and kept when the file is written again,
// so that newer files load in older builds and lose nothing there.
//
//   wochennummern = iso | montage   week numbers after DIN/ISO 8601, or the count of Mondays
//   bundesland = <name>              the state whose public holidays the options last preset
//   wiederherstellen = 1 | 0         whether the start brings the last session back
//   sitzungsdatei = <path>           the file the user worked on in the last session

#include <QByteArray>
#include <QList>
#include <QString>
#include <optional>
#include <utility>

#include "persist/Dateimeldungen.h"

namespace zp {

struct AppState;
class Oberflaeche;

using Zusatzwerte = QList<std::pair<QString, QString>>;

[[nodiscard]] QString ZusatzDatei(const AppState& s);

// The value of `schluessel` (lower case) in the file's bytes, or std::nullopt.
[[nodiscard]] std::optional<QString> Zusatzwert(const QByteArray& bytes, const QString& schluessel);
// `bytes` with the given keys set: a key's line is replaced where it stands, a new key is added at
// the end, and every other line stays as it was.
[[nodiscard]] QByteArray ZusatzwerteSetzen(const QByteArray& bytes, const Zusatzwerte& werte);
// Writes the given keys into zusatz.ini, keeping the others; atomically. A failure is told.
bool ZusatzwerteSpeichern(const AppState& s, Oberflaeche& ui, const Zusatzwerte& werte);

// The calendar's keys (week numbers and state). All or nothing: a known key with a value that
// can't be read leaves the state as it was and names the line. Returns true on success.
bool LeseZusatzeinstellungen(AppState& s, const QByteArray& bytes, Lesefehler* fehler = nullptr);
[[nodiscard]] Zusatzwerte Kalenderzusatzwerte(const AppState& s);
[[nodiscard]] QByteArray SchreibeZusatzeinstellungen(const AppState& s);

// `<Programmpfad>zusatz.ini` at the start: a missing file leaves the defaults; a bad one gets
// "Falsches Datenformat". The exit writes the calendar's keys with the session's (core/Sitzung).
bool LadeZusatzeinstellungen(AppState& s, Oberflaeche& ui);

} // namespace zp
