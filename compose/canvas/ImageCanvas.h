#pragma once
// The image canvas: a QPainter canvas on a QImage of its own. The page picture PictureSeite
// (15 twips per pixel at 96 dpi), the dialogs' preview boxes and the export bitmap Lead2 (with
// the twips per pixel of its own resolution) are of this kind.

#include "compose/canvas/PainterCanvas.h"

#include <QImage>

namespace zp {

// The picture is held in a base of its own so that it exists before the painter begins on it.
struct ImageCanvasBild {
    QImage m_bild;
};

class ImageCanvas : private ImageCanvasBild, public PainterCanvas {
public:
    // A white picture of `pixel` size.
    ImageCanvas(QSize pixel, CanvasArt art = CanvasArt::Bildschirm, double twipsProPixelX = 15,
                double twipsProPixelY = 15);
    ~ImageCanvas() override;

    // The picture as drawn so far: a deep copy, since the painter keeps writing into its buffer.
    [[nodiscard]] QImage Bild() const { return m_bild.copy(); }
    // Only the export bitmap follows a new size; its picture starts white again.
    void SetzeGroesse(double breiteTwips, double hoeheTwips) override;

private:
    static QImage NeuesBild(QSize pixel, double tppX, double tppY);
    static ImageCanvasBild Halter(QSize pixel, double tppX, double tppY) {
        return ImageCanvasBild{NeuesBild(pixel, tppX, tppY)};
    }
};

} // namespace zp
