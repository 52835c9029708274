#pragma once
// Splitting colours into components and building the colours of a gradient or soft shadow step.

#include "model/Klassen.h"

#include <algorithm>
#include <cmath>

namespace zp {

struct Farbanteile {
    int R = 0, G = 0, B = 0;
};

[[nodiscard]] inline Farbanteile Zerlege(Farbe c) {
    return {c & 0xFF, (c >> 8) & 0xFF, (c >> 16) & 0xFF};
}

// The colour of step i between `von` and `nach` in n steps: per component the difference over n
// in single precision, times i, added to the start, rounded half to even.
[[nodiscard]] inline Farbe Stufenfarbe(Farbanteile von, Farbanteile nach, int i, int n) {
    if (n <= 0) n = 1;
    auto anteil = [&](int a, int b) {
        const float d = static_cast<float>(b - a) / static_cast<float>(n);
        const float v = static_cast<float>(a) + d * static_cast<float>(i);
        return std::clamp(static_cast<int>(std::nearbyint(v)), 0, 255);
    };
    return anteil(von.R, nach.R) | (anteil(von.G, nach.G) << 8) | (anteil(von.B, nach.B) << 16);
}

} // namespace zp
