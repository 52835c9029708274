#pragma once
// The page dialog's preview box: the label's background and design band on a small scale.

namespace zp {
struct AppState;
struct ClassEtikett;
class Canvas;

// Draws the background of `etikett` (colour, gradient, own picture or pattern) and its design band
// over the whole box. The box's own twips count: drawing and device factor are parked at 1 and the
// zoom at 100 while it draws, and put back afterwards; the band width is doubled and the box height less 60
// twips is the design's height, as the small box needs. Kind 0 leaves the box cleared; a missing picture
// leaves it cleared under the design band.
void ZeichneHintergrundVorschau(AppState& s, Canvas& box, const ClassEtikett& etikett);

} // namespace zp
