#pragma once
// The picture steps of the page composition: the label background from a picture or pattern,
// the design band, and picture frames with their fit. Implemented by the picture pipeline.

namespace zp {
struct AppState;
struct ClassEtikett;
class Canvas;

// Step 5a: a picture background (pattern must<M>.jpg or the sheet's Bilddatei) on the work frame.
void ZeichneBildHintergrund(AppState& s, Canvas& ziel);
// Step 5c: the design band of the card designs.
void ZeichneKartendesign(AppState& s, Canvas& ziel, double breite, double hoehe, double designbreite,
                         const ClassEtikett& etikett);
// Steps 8f and 8g: picture frame n, loaded, corrected, fitted where the edition asks, rendered.
void ZeichneBildRahmen(AppState& s, Canvas& ziel, int n);
} // namespace zp
