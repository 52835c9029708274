#pragma once
// The address database `daten.dat` of the card and label editions: a head of five lines, then the
// records field by field, one line each, and the end mark "-1".

#include "core/runtime/Liste.h"

#include <QByteArray>
#include <QString>

namespace zp {

struct AppState;
class Oberflaeche;

// Fields a record has in memory and in every file this program writes.
constexpr int DatensatzFelder = 30;
// Fields the panel, the search and the imports work with; files before version 8 held only these.
constexpr int DatensatzFelderAlt = 20;
// The most records a file or an import may bring: far more than any address list, and a bound on
// the memory a table of 30 fields a record takes.
constexpr int DatensatzHoechstzahl = 100'000;

// The records of one database file, read before anything of the running program is replaced.
struct Datenbank {
    Tabelle<QString> Datensaetze; // (field, record), 30 fields
    int DatensatzAnzahl = 0;
    int FelderJeDatensatz = DatensatzFelder; // as the file held them: 30, or 20 before version 8
    int FremdkodierteZeile = 0;              // a line of a UTF-8 file that was not UTF-8, or 0
};

enum class DatenbankLesung { Gelesen, FremderKopf };

// Parses `daten.dat`. A first line other than "ZP Datenbank" gives FremderKopf and leaves `ziel`
// as it is; a file cut short or with a wrong count throws FormatFehler with the line.
DatenbankLesung LeseDatenbank(const QByteArray& bytes, Datenbank& ziel);
// The file as the program writes it: always 30 fields a record.
[[nodiscard]] QByteArray SchreibeDatenbank(const AppState& s);

// `LadeDatensaetze`: reads `Programmpfad` + "daten.dat" into the state. A missing file is no
// error; a foreign one is named in the status bar; a damaged one gets the format warning. In
// either case the records stay as they were, and the exit keeps the file aside. Returns true when
// records were taken over.
bool LadeDatensaetze(AppState& s, Oberflaeche& ui);
// `SpeichereDatensaetze`: writes `Programmpfad` + "daten.dat" atomically; false with a message
// when the file can't be written.
bool SpeichereDatensaetze(const AppState& s, Oberflaeche& ui);

} // namespace zp
