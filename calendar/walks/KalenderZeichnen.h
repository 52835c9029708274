#pragma once
// The calendar walks: a template frame drawn over the cells of the page's month, week or half-year.

namespace zp {
struct AppState;
class Canvas;

// Text frame n of the calendar template (its Objektnummer is its role in the calendar type).
void ZeichneKalenderText(AppState& s, Canvas& ziel, int n);
// Shape frame n of the calendar template.
void ZeichneKalenderRahmen(AppState& s, Canvas& ziel, int n);
} // namespace zp
