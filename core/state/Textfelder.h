#pragma once
// What the page does while one types into the side panel: the current frame shows or hides with
// its text, and the calendar's title and footer boxes edit text objects 1 and 7.

#include <QString>

namespace zp {
struct AppState;

// The current frame follows the text typed for it: without text and without a record picture it
// is hidden, else shown. Frames 21 to 30 (the record's fields) are left alone. A label keeps the
// frame inside its edges.
void ApplyInlineText(AppState& s, const QString& text);

// TextTitel and TextUnterschrift of the calendar.
void KalendertitelGeaendert(AppState& s, const QString& text);
void KalenderunterschriftGeaendert(AppState& s, const QString& text);

} // namespace zp
