#pragma once
// The side panel's input boxes: Text1(1) ... Text1(30) edit the first thirty text objects, and
// boxes 21 to 30 also the current address record; the calendar's title and footer boxes edit
// text objects 1 and 7.

#include <QString>

namespace zp {
struct AppState;

// Text1(i) changed. Returns false for a box number outside 1 to 30 or a text object that doesn't
// exist in the document.
bool Text1Geaendert(AppState& s, int i, const QString& text);

// The current frame follows the text typed for it: without text and without a record picture it
// is hidden, else shown. Frames 21 to 30 (the record's fields) are left alone. A label keeps the
// frame inside its edges.
void ApplyInlineText(AppState& s, const QString& text);

// TextTitel and TextUnterschrift of the calendar.
void KalendertitelGeaendert(AppState& s, const QString& text);
void KalenderunterschriftGeaendert(AppState& s, const QString& text);

} // namespace zp
