#pragma once
// `mnuimport`: address records from an old label file or a text file.

#include <QString>

namespace zp {

struct AppState;
class Oberflaeche;

// The file dialog's filter of the import in the running edition, Qt's form ("Name (*.x);;...").
[[nodiscard]] QString ImportFilter(const AppState& s);

// Imports `datei` by its last three characters, exactly: "txt" and "eti" are read, any other name
// and a file that doesn't exist end the command without a word. The records replace the table,
// record 1 is shown. A damaged file is told and changes nothing. Returns whether records came in.
bool Importieren(AppState& s, Oberflaeche& ui, const QString& datei);

} // namespace zp
