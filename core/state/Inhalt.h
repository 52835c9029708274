#pragma once
// Inserting content into the document and deleting a frame with the renumbering that keeps every
// reference by position valid. The editing commands and dialogs call these.

#include <QString>

namespace zp {

struct AppState;
class Oberflaeche;

// Adds a text ("Schrift"), picture ("Bild") or shape ("Linie") with a new frame on top, makes it
// current and hands it to mouse placement: the frame stays invisible until it has been drawn
// (`Auswahlmodus` 1). Returns the new frame's number, 0 for an unknown type.
int FuegeInhaltEin(AppState& s, const QString& typ);

enum class Loeschergebnis {
    Geloescht,   // frame and content object removed
    Geleert,     // a template frame: its text or record picture was emptied instead
    Verweigert,  // a template frame that can't be emptied ("Sie können nur eingefügte Rahmen löschen")
    Abgebrochen, // the user said No
    Unveraendert // Kalender template frames: nothing happens
};

// Deletes frame `RahmenNummer`. `schonGefragt` skips the question, for callers that have asked.
Loeschergebnis LoescheRahmen(AppState& s, Oberflaeche& ui, bool schonGefragt = false);

} // namespace zp
