#pragma once
// A calendar page drawn for a look before shipping: the frames by their stacking order through
// the calendar walks, month pictures stretched into their frame, on a white image.

#include <QImage>

namespace zp {
struct AppState;
}

namespace zp::werkzeug {
[[nodiscard]] QImage Kalenderseite(AppState& s, double zoom);
}
