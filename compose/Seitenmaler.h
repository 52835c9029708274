#pragma once
// The page picture of the main window, redrawn after every edit. The painter keeps its image
// canvas between redraws and makes a new one only when the picture's size or resolution
// changes (zoom, page format, edition), so a redraw costs the drawing alone and not an
// allocation, a white fill and a release of the whole picture.

#include <QImage>
#include <QSize>
#include <memory>

namespace zp {
struct AppState;
class Canvas;
class ImageCanvas;

// The picture-box properties and device settings of a canvas back to those of a new one. A
// redraw clears the picture itself, but a clip region, a window origin, a selected font or pen
// settings left from the last redraw would otherwise cut, move or colour the next one, and an
// open run of stepped drawings would hold back its output.
void LeinwandGrundzustand(Canvas& c);

class Seitenmaler {
public:
    Seitenmaler();
    ~Seitenmaler();
    Seitenmaler(const Seitenmaler&) = delete;
    Seitenmaler& operator=(const Seitenmaler&) = delete;

    // Composes the page on the kept canvas and returns a copy of the picture, which the window
    // may keep while the canvas is drawn on again.
    [[nodiscard]] QImage Zeichne(AppState& s);

private:
    // A canvas of the picture's size and resolution for this redraw, with the state a new
    // canvas has: whatever the previous redraw left set must not change this one.
    ImageCanvas& BereiteLeinwand(const AppState& s);

    std::unique_ptr<ImageCanvas> m_seite;
    QSize m_groesse;
    double m_tppX = 0, m_tppY = 0;
};

} // namespace zp
