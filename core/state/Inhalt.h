#pragma once
// Inserting content into the document and deleting a frame with the renumbering that keeps every
// reference by position valid. The editing commands and dialogs call these.

#include <QString>

namespace zp {

struct AppState;
class Oberflaeche;

// The most objects of one kind and frames a design can hold: stacking levels are 16-bit numbers.
inline constexpr int GroessteAnzahl = 32767;

// Whether one more object of `typ` and one more frame fit into the document.
[[nodiscard]] bool PlatzFuerEinfuegen(const AppState& s, const QString& typ);

// The name of a new letter body: "RTF<n>.rtf" with the first n from 1 whose file doesn't exist in
// `ordner` yet (the file may belong to another design), up to 65535; empty when all are taken.
[[nodiscard]] QString NeuerBriefname(const QString& ordner);

// Adds a text ("Schrift"), letter body ("RTF"), picture ("Bild") or shape ("Linie") with a new
// frame on top, makes it current and hands it to mouse placement: the frame stays invisible until
// it has been drawn (`Auswahlmodus` 1). Returns the new frame's number, 0 for an unknown type or a
// full document.
int FuegeInhaltEin(AppState& s, const QString& typ);

// The current object of its kind (SchriftNummer, BildNummer, ...) follows the current frame.
void ObjektNachRahmen(AppState& s);

// The marker `Rahmen` takes the current frame's box in twips of the page picture.
void MarkerNachRahmen(AppState& s);

enum class Loeschergebnis {
    Geloescht,   // frame and content object removed
    Geleert,     // a template frame: its text or record picture was emptied instead
    Verweigert,  // a template frame that can't be emptied ("Sie können nur eingefügte Rahmen löschen")
    Abgebrochen, // the user said No
    Unveraendert // Kalender template frames: nothing happens
};

// Deletes frame `RahmenNummer`. `schonGefragt` skips the question: the path of an insertion that
// is taken back, whose kept undo step goes with it.
Loeschergebnis LoescheRahmen(AppState& s, Oberflaeche& ui, bool schonGefragt = false);

} // namespace zp
