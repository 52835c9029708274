#pragma once
// Conversions of doubles to the integers that the drawing layer takes. The runtime rounds half to
// even; where a value would overflow the integer, it is clamped, so that a huge frame or font
// draws something instead of failing.

#include <cmath>
#include <cstdint>

namespace zp::gdi {

// CLng: round half to even, clamped to the range that device coordinates can use.
[[nodiscard]] inline int32_t Lng(double v) {
    constexpr double grenze = 134217727.0; // 2^27 - 1: the coordinate space of the device
    if (std::isnan(v)) return 0;
    const double r = std::nearbyint(v);
    if (r > grenze) return static_cast<int32_t>(grenze);
    if (r < -grenze) return static_cast<int32_t>(-grenze);
    return static_cast<int32_t>(r);
}

// CInt: round half to even to a 16-bit integer, clamped instead of overflowing.
[[nodiscard]] inline int16_t Int16(double v) {
    if (std::isnan(v)) return 0;
    const double r = std::nearbyint(v);
    if (r > 32767.0) return 32767;
    if (r < -32768.0) return -32768;
    return static_cast<int16_t>(r);
}

// Int(): the largest whole number not above v, clamped like Lng.
[[nodiscard]] inline int32_t Ganzzahl(double v) {
    return Lng(std::floor(v));
}

} // namespace zp::gdi
