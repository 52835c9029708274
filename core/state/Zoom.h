#pragma once
// The zoom of the page view and the ticks of its rulers, without the widgets: the window asks
// these for numbers and sizes and applies them to the viewport.

#include "core/state/Massstab.h"
#include <QSizeF>
#include <vector>

namespace zp {
struct AppState;

// The size that the view shows, tenths of a millimetre: the page in the calendar and the
// letterhead, one label in every other edition (they edit one card, not the sheet).
[[nodiscard]] QSizeF AngezeigteGroesse(const AppState& s);
// The picture's size at `zoom` percent, twips.
[[nodiscard]] QSizeF BildgroesseTwips(const AppState& s, double zoom);

// Commandzoom(1) and Commandzoom(0): the next step of 50, 100, 150, 200, 400 above or below the
// value; at the end of the steps the value stays.
[[nodiscard]] double ZoomSchritt(double zoom, bool hoeher);
// Page width: the page's width (in every edition) fitted to the viewport, one percent less so that
// no scroll bar comes up. Viewport size in twips.
[[nodiscard]] double ZoomSeitenbreite(const AppState& s, double viewportBreite);
// Whole page: the shown size fitted into the viewport, the smaller of width and height.
[[nodiscard]] double ZoomGanzeSeite(const AppState& s, double viewportBreite, double viewportHoehe);
// The fit at start: the page's width in calendar and letterhead, the whole label elsewhere.
[[nodiscard]] double ZoomBeimStart(const AppState& s, double viewportBreite, double viewportHoehe);

// One tick of a ruler: position along the strip in twips, and its length in twips.
struct Linealstrich {
    double pos;
    double laenge;
};
// The ticks of a ruler strip `laenge` twips long: every 2 mm up to 100 %, every 1 mm above, 50
// twips long; every centimetre 100 twips long. Empty when the zoom is too small for a tick.
[[nodiscard]] std::vector<Linealstrich> Linealstriche(double zoom, double laenge);

} // namespace zp
