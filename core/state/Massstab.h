#pragma once
// The scale of a drawing: the document's lengths in tenths of a millimetre, twips on the
// drawing surface at a zoom, and the surface's device pixels.

namespace zp {
struct AppState;

// Twips per tenth of a millimetre at 100 % (`Geraetefaktor`).
inline constexpr double TwipsJeZehntelmm = 5.67;
// Twips per pixel of a surface that hasn't told its own (96 dots per inch).
inline constexpr double StandardTwipsProPixel = 15;

struct Massstab {
    double twipsJeZehntel = TwipsJeZehntelmm; // zoom included
    double twipsProPixelX = StandardTwipsProPixel;
    double twipsProPixelY = StandardTwipsProPixel;

    // The composition's scale: Zeichenfaktor x Geraetefaktor on the state's surface.
    [[nodiscard]] static Massstab Zeichnung(const AppState& s);
    // The page view at its zoom: Zoomfaktor / 100 x Geraetefaktor.
    [[nodiscard]] static Massstab Ansicht(const AppState& s);
    // The device without zoom: Geraetefaktor alone (a printed label, the printer's offsets).
    [[nodiscard]] static Massstab Geraet(const AppState& s);

    [[nodiscard]] double Twips(double zehntel) const { return zehntel * twipsJeZehntel; }
    [[nodiscard]] double PixelX(double twips) const { return twips / twipsProPixelX; }
    [[nodiscard]] double PixelY(double twips) const { return twips / twipsProPixelY; }
    // Device pixels of one tenth of a millimetre.
    [[nodiscard]] double PixelJeZehntelX() const { return twipsJeZehntel / twipsProPixelX; }
    [[nodiscard]] double PixelJeZehntelY() const { return twipsJeZehntel / twipsProPixelY; }
};

} // namespace zp
