#include "compose/Ziehumriss.h"

#include "core/state/AppState.h"

#include <QPainter>
#include <algorithm>
#include <cmath>

namespace zp {

QRect UmrissPixel(const AppState& s) {
    if (s.ZiehenAktiv != 1 && s.Auswahlmodus != 2) return {};
    const double tx = s.TwipsProPixelX > 0 ? s.TwipsProPixelX : 15;
    const double ty = s.TwipsProPixelY > 0 ? s.TwipsProPixelY : 15;
    // Edges may cross during a drag: the box spans them either way.
    const double links = std::min(s.BoxLinks, s.BoxRechts), oben = std::min(s.BoxOben, s.BoxUnten);
    const double breite = std::abs(s.BoxRechts - s.BoxLinks), hoehe = std::abs(s.BoxUnten - s.BoxOben);
    return QRectF(links / tx, oben / ty, breite / tx, hoehe / ty).toRect();
}

QRegion Umrissstreifen(const QRect& alt, const QRect& neu) {
    QRegion streifen;
    for (const QRect& r : {alt, neu})
        if (!r.isNull()) streifen += QRegion(r.adjusted(-1, -1, 1, 1)) - QRegion(r.adjusted(2, 2, -2, -2));
    return streifen;
}

void MaleSeiteMitUmriss(QPainter& p, const QImage& seite, const QRect& bereich, const QRect& umriss) {
    p.drawImage(bereich.topLeft(), seite, bereich);
    if (umriss.isNull()) return;
    p.save();
    p.setClipRect(bereich);
    p.setBrush(Qt::NoBrush);
    // Grey dots over white, so that the outline shows on dark and light pages alike.
    p.setPen(QPen(Qt::white, 1));
    p.drawRect(umriss);
    p.setPen(QPen(QColor(0x80, 0x80, 0x80), 1, Qt::DotLine));
    p.drawRect(umriss);
    p.restore();
}

} // namespace zp
