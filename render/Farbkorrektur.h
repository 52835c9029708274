#pragma once
// Brightness, contrast and saturation of a picture in one pass over its 8-bit pixels.
//
// Brightness and contrast are the library's linear curves (percent of full scale, the slope of
// contrast a tangent), worked out once per value into a table of the 256 levels, with the
// rounding to 16 bits between the two steps and back to 8 bits that the library's own steps
// have, so the table gives the very levels of the step-by-step path. Saturation then moves every
// colour away from (or towards) the pixel's grey of the same brightness.

#include <QImage>

#include <array>
#include <cstdint>

namespace zp {

struct Farbwerte {
    int Helligkeit = 0;      // -1000..1000, tenths of a percent
    int Kontrast = 0;        // -990..990, tenths of a percent
    int Farbintensitaet = 0; // -1000..1000: -1000 grey, 1000 twice the colour

    [[nodiscard]] bool Neutral() const { return Helligkeit == 0 && Kontrast == 0 && Farbintensitaet == 0; }
};

// The values clamped to their ranges, as each single operation clamps them.
[[nodiscard]] Farbwerte Begrenzt(Farbwerte w);

// The level each of the 256 levels takes under brightness, then contrast.
[[nodiscard]] std::array<uint8_t, 256> Tonkurve(int helligkeit, int kontrast);

// The saturation of one opaque pixel.
[[nodiscard]] QRgb Gesaettigt(QRgb pixel, int farbintensitaet);

// Applies brightness, contrast and saturation (in that order) to every pixel of `bild` (made
// ARGB32 when it is not). Neutral values leave it as it is.
void Farbkorrektur(QImage& bild, Farbwerte werte);

} // namespace zp
