#pragma once
// The commands on frames of the Objekte menu, the page's context menu and the Bearbeiten menu:
// stacking, deletion, anchoring, insertion of new objects and of placeholders, undo and redo.
// Each works on the current frame `RahmenNummer`; each edit is one undo step.

#include "core/state/Inhalt.h"

#include <QString>

namespace zp {
struct AppState;
class Oberflaeche;

// Stacking by `z` (1 lowest). Each returns whether a level changed; the page is redrawn then.
bool BringToFront(AppState& s, Oberflaeche& ui);
bool SendToBack(AppState& s, Oberflaeche& ui);
bool OneForward(AppState& s, Oberflaeche& ui);
bool OneBack(AppState& s, Oberflaeche& ui);

// DeleteFrame: the current frame after the question; `Hilfswert` 9999 skips it (and is used up).
Loeschergebnis DeleteFrame(AppState& s, Oberflaeche& ui);

// The current frame anchored or free; returns the new state. The corner squares show it at once.
bool VerankernUmschalten(AppState& s, Oberflaeche& ui);
// Every frame anchored (`an`) or free.
void AlleVerankern(AppState& s, Oberflaeche& ui, bool an);

// A new text ("Schrift"), letter body ("RTF"), picture ("Bild") or shape ("Linie"), waiting for
// its box to be drawn on the page. A document that holds no more gets a message. Returns the new
// frame's number, or 0.
int BefehlEinfuegen(AppState& s, Oberflaeche& ui, const QString& typ);
// The buttons of frmEinfuegen: 1 text, 2 letter body, 3 picture, 4 shape.
[[nodiscard]] QString EinfuegeTyp(int knopf);

// The placeholders "#Datum", "#Zeit", "#Seriennummer" put in front of the current text.
bool PlatzhalterEinfuegen(AppState& s, Oberflaeche& ui, const QString& schluessel);

// Undo and redo: the document as before the last edit, or again after it.
bool BefehlRueckgaengig(AppState& s, Oberflaeche& ui);
bool BefehlWiederholen(AppState& s, Oberflaeche& ui);
[[nodiscard]] bool KannRueckgaengig(const AppState& s);
[[nodiscard]] bool KannWiederholen(const AppState& s);

} // namespace zp
