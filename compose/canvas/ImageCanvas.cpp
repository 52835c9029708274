#include "compose/canvas/ImageCanvas.h"

#include "compose/canvas/GdiRunden.h"

#include <algorithm>

namespace zp {

namespace {
constexpr int kGroessteSeite = 16000; // pixels per side: a larger picture would exhaust memory
}

QImage ImageCanvas::NeuesBild(QSize pixel, double tppX, double tppY) {
    const QSize groesse(std::clamp(pixel.width(), 1, kGroessteSeite),
                        std::clamp(pixel.height(), 1, kGroessteSeite));
    QImage bild(groesse, QImage::Format_RGB32);
    if (bild.isNull()) bild = QImage(1, 1, QImage::Format_RGB32); // no memory for it: an empty sheet
    bild.fill(Qt::white);
    // The image's resolution is the device's: 1440 twips per inch.
    bild.setDotsPerMeterX(gdi::Lng(1440.0 / (tppX > 0 ? tppX : 15) / 0.0254));
    bild.setDotsPerMeterY(gdi::Lng(1440.0 / (tppY > 0 ? tppY : 15) / 0.0254));
    return bild;
}

ImageCanvas::ImageCanvas(QSize pixel, CanvasArt art, double twipsProPixelX, double twipsProPixelY)
    : ImageCanvasBild(Halter(pixel, twipsProPixelX, twipsProPixelY)),
      PainterCanvas(m_bild, art, twipsProPixelX, twipsProPixelY) {}

ImageCanvas::~ImageCanvas() {
    BeendeMaler(); // before the picture goes
}

void ImageCanvas::SetzeGroesse(double breiteTwips, double hoeheTwips) {
    if (Art() != CanvasArt::Export) return;
    const QSize pixel(gdi::Lng(breiteTwips / TwipsPerPixelX()), gdi::Lng(hoeheTwips / TwipsPerPixelY()));
    if (pixel == m_bild.size()) return;
    BeendeMaler();
    m_bild = NeuesBild(pixel, TwipsPerPixelX(), TwipsPerPixelY());
    NeuesGeraet(m_bild);
}

} // namespace zp
