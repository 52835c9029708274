#pragma once
// Printing and the word-processor export as the program runs them: the central composition on the
// printer canvas, the record panel, the printer chosen by name. The print dialog and the command
// line call these.

#include "output/Druckauftrag.h"

#include <QString>

namespace zp {
struct AppState;
class Oberflaeche;

// The central composition and the record panel, for PrintDocument and CommandDrucken.
[[nodiscard]] Druckhilfen ProgrammDruckhilfen(Oberflaeche& ui);

// Runs `auftrag` on the printer `drucker` (a queue name, "PDF-Datei", or empty for the default);
// `pdfDatei` is the file for "PDF-Datei". A printer that isn't there, a file that can't be written:
// a German message through `ui`, and the document stays as it was.
Druckergebnis Drucke(AppState& s, Oberflaeche& ui, const QString& drucker, const QString& pdfDatei,
                     const Druckauftrag& auftrag, const Druckfortschritt& fortschritt = {});

// mnuWord with the export bitmap of the program: the document written to `ziel` (empty: a new file
// in the documents folder) and, with `oeffnen`, opened. Returns the document's path or empty.
QString WordExportieren(AppState& s, Oberflaeche& ui, const QString& ziel, bool oeffnen);

} // namespace zp
