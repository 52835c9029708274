#pragma once
// The text dialog's commands: what its Ok and Cancel do to the document. The dialog edits a copy
// of the text object and hands it here with the text of its box.

#include <QString>
#include <cstdint>

namespace zp {
struct AppState;
struct ClassSchrift;
class Oberflaeche;

// A turned text that isn't at a right angle: the anchoring of the frame only knows the right
// angles, so such a text is centred both ways.
[[nodiscard]] bool IstSchraeg(int angle);

// The angle typed into the dialog's box: a value above 360 becomes 0, letters count as 0.
[[nodiscard]] int16_t WinkelAusEingabe(const QString& text);

// Ok of the text dialog on text object SchriftNummer: the work copy goes into the list (centred
// when oblique), the text and its visibility follow, the side panel's box takes the text, every
// frame showing this text takes the visibility, the format bar is refilled and the page redrawn.
// Returns false when SchriftNummer names no text object; nothing is changed then.
bool SchriftdialogOk(AppState& s, Oberflaeche& ui, const ClassSchrift& werk, const QString& schrifttext);

// Cancel: the list object stays as it was; the dialog's preview mode ends.
void SchriftdialogAbbruch(AppState& s);

} // namespace zp
