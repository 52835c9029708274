#pragma once
// The two small line files of the catalogue: etikett.ini (label and card sheets, a name and ten
// values per row, "ende" after the last) and kalender.ini (holiday choices and four colours).

#include <QByteArray>
#include <QString>

#include "persist/Dateimeldungen.h"

namespace zp {

struct AppState;
class Oberflaeche;

// Rows of etikett.ini: at most 353.
constexpr int KartenformateMax = 353;

// Reads the catalogue from `bytes` into `s` (`KartenformatNamen`, `KartenformatWerte`,
// `KartenformatAnzahl`), all or nothing. On a fault returns false with the reason and line.
bool LeseKartenformate(AppState& s, const QByteArray& bytes, Lesefehler* fehler = nullptr);
// The catalogue as the exit writes it: the line "ende" only, whatever the rows. The next start
// thus finds an empty catalogue; that is how this file has always behaved.
[[nodiscard]] QByteArray SchreibeKartenformate(const AppState& s);

bool LeseKalenderIni(AppState& s, const QByteArray& bytes, Lesefehler* fehler = nullptr);
[[nodiscard]] QByteArray SchreibeKalenderIni(const AppState& s);

// File wrappers on `<Programmpfad>etikett.ini` and `<Programmpfad>kalender.ini`. A missing file
// is no fault (the defaults stay); a bad one gets "Falsches Datenformat".
bool LoadKartenformate(AppState& s, Oberflaeche& ui);
bool SaveKartenformate(const AppState& s, Oberflaeche& ui);
bool LoadKalenderIni(AppState& s, Oberflaeche& ui);
bool SaveKalenderIni(const AppState& s, Oberflaeche& ui);

} // namespace zp
