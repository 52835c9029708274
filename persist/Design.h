#pragma once
// Design files (.zpb, .zpv, .zpe, .zpk, neu.lay, the shipped templates): one whole document,
// frames, texts, pictures, shapes, letter bodies, the sheet and, in the card editions, the
// address records. One value per line; a value is known by its line's place alone.

#include "persist/Dateimeldungen.h"

#include <QByteArray>
#include <QString>

namespace zp {

struct AppState;
class Oberflaeche;

// The document of `s` as the lines of a design file (Windows-1252, CR LF).
[[nodiscard]] QByteArray SchreibeDesign(const AppState& s);

// Loads a design from `bytes` as if read from `AktuelleDatei`: the file is parsed whole before
// anything of the document is replaced, and a file that can't be parsed leaves the document as
// it was (message "Falsches Datenformat", title "Warnung!", the line in the detail). Follows
// `Ladevorgabe` ("neu" for the new document, a template's path, or empty) and clears it.
bool LadeDesignAusBytes(AppState& s, Oberflaeche& ui, const QByteArray& bytes);

// Whether `bytes` parse whole as a design in the edition of `s`; nothing of `s` changes.
[[nodiscard]] bool DesignLesbar(const AppState& s, const QByteArray& bytes);

// `LoadDesign`: chooses the source from `Ladevorgabe` and `AktuelleDatei` and loads it.
bool LoadDesign(AppState& s, Oberflaeche& ui);
// `SaveDesign`: writes the document to `AktuelleDatei`, replacing the file atomically.
bool SaveDesign(const AppState& s, Oberflaeche& ui);

} // namespace zp
