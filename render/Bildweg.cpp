// Until the picture pipeline is built, the composition draws no pictures and no design band:
// picture frames and picture backgrounds stay empty on every target.
#include "Bildweg.h"

namespace zp {
void ZeichneBildHintergrund(AppState&, Canvas&) {}
void ZeichneKartendesign(AppState&, Canvas&, double, double, double, const ClassEtikett&) {}
void ZeichneBildRahmen(AppState&, Canvas&, int) {}
} // namespace zp
