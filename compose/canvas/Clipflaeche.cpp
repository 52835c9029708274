#include "compose/canvas/Clipflaeche.h"

#include <utility>

namespace zp {

Clipflaeche Clipflaeche::Rechteck(int left, int top, int right, int bottom) {
    if (left > right) std::swap(left, right);
    if (top > bottom) std::swap(top, bottom);
    Clipflaeche c;
    c.m_rechteck = QRect(QPoint(left, top), QPoint(right - 1, bottom - 1)); // empty when a side is 0
    return c;
}

Clipflaeche Clipflaeche::Vieleck(QPolygon ecken, Qt::FillRule regel) {
    if (ecken.size() < 3) return Rechteck(0, 0, 0, 0);
    Clipflaeche c;
    c.m_vieleck = std::move(ecken);
    c.m_regel = regel;
    return c;
}

void Clipflaeche::Verschiebe(int dx, int dy) {
    if (m_vieleck)
        m_vieleck->translate(dx, dy);
    else
        m_rechteck.translate(dx, dy);
    if (m_region) m_region->translate(dx, dy);
}

bool Clipflaeche::IstLeer() const {
    return m_vieleck ? Region().isEmpty() : m_rechteck.isEmpty();
}

QRect Clipflaeche::Umriss() const {
    return m_vieleck ? m_vieleck->boundingRect() : m_rechteck;
}

const QRegion& Clipflaeche::Region() const {
    if (!m_region) m_region = m_vieleck ? QRegion(*m_vieleck, m_regel) : QRegion(m_rechteck);
    return *m_region;
}

void Clipflaeche::Fuelle(QPainter& p, const QColor& farbe) const {
    if (!m_vieleck) {
        if (!m_rechteck.isEmpty()) p.fillRect(m_rechteck, farbe);
        return;
    }
    p.setPen(Qt::NoPen);
    p.setBrush(farbe);
    p.drawPolygon(*m_vieleck, m_regel);
}

} // namespace zp
