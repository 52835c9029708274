#pragma once
// The page picture as the main window shows it, as an image of its own: for the command line
// and anyone who needs the screen's view once, without a window. Redraws after every edit go
// through a Seitenmaler, which keeps its canvas.

#include <QImage>
#include <QSize>

namespace zp {
struct AppState;

// Size in pixels of the page picture at the present zoom: the page in the calendar and the
// letterhead, one label or card in the other editions.
[[nodiscard]] QSize SeitenbildGroesse(const AppState& s);

// Composes the page on a new image canvas of that size (15 twips per pixel) and returns it.
[[nodiscard]] QImage ZeichneSeitenbild(AppState& s);
} // namespace zp
