#pragma once
// The outline of a frame being dragged or drawn, over the last page picture: where it lies in
// pixels, and how it is painted. Only its strips are painted anew on each mouse move, so that a
// drag follows the hand without composing the page.

#include <QImage>
#include <QRect>
#include <QRegion>

class QPainter;

namespace zp {
struct AppState;

// The outline box of `s` in pixels of the page picture; empty while no drag or drawing runs.
[[nodiscard]] QRect UmrissPixel(const AppState& s);
// The pixels to paint again when the outline goes from `alt` to `neu`: the strips of both.
[[nodiscard]] QRegion Umrissstreifen(const QRect& alt, const QRect& neu);
// Paints `bereich` of the page picture and the outline over it, dotted in grey on white.
void MaleSeiteMitUmriss(QPainter& p, const QImage& seite, const QRect& bereich, const QRect& umriss);

} // namespace zp
