#pragma once
// Paging through a calendar: the page spinner UpDownSeite and the page box TextSeite.

#include <QString>

namespace zp {
struct AppState;

// The page caption update after a type change or a load: Seitenanzahl from the type, and the
// page back to 1 when it lies beyond the count, and always for the week calendar.
void Seitenbereich(AppState& s);

// A number typed into TextSeite: its last two characters are the page. A page outside 1 to
// Seitenanzahl gives 1, and the box is to show "1" again.
struct Seiteneingabe {
    int seite = 1;
    bool textZuruecksetzen = false;
};
[[nodiscard]] Seiteneingabe SeiteAusText(const QString& text, double seitenanzahl);

// UpDownSeite changed to `seite`: takes it when it differs. True when the page must be redrawn.
bool SeiteWaehlen(AppState& s, int seite);

} // namespace zp
