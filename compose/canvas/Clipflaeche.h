#pragma once
// A clip region as the device keeps it, in device pixels: a rectangle or a polygon. The pixel
// region of a polygon is costly to build, so it is made only when a painter needs it; the stepped
// effects mostly fill the outline directly.

#include <QPainter>
#include <QPolygon>
#include <QRect>
#include <QRegion>
#include <optional>

namespace zp {

class Clipflaeche {
public:
    // The pixels from left/top up to, not including, right/bottom, with the corners put in order.
    static Clipflaeche Rechteck(int left, int top, int right, int bottom);
    // Fewer than three corners give an empty region.
    static Clipflaeche Vieleck(QPolygon ecken, Qt::FillRule regel);

    void Verschiebe(int dx, int dy);
    [[nodiscard]] bool IstRechteck() const { return !m_vieleck; }
    [[nodiscard]] bool IstLeer() const;
    // A rectangle that holds every pixel of the region.
    [[nodiscard]] QRect Umriss() const;
    // The region's pixels.
    [[nodiscard]] const QRegion& Region() const;
    // Paints the region's pixels in one colour, replacing what is there.
    void Fuelle(QPainter& p, const QColor& farbe) const;

    friend bool operator==(const Clipflaeche& a, const Clipflaeche& b) {
        return a.m_rechteck == b.m_rechteck && a.m_vieleck == b.m_vieleck && a.m_regel == b.m_regel;
    }

private:
    QRect m_rechteck;
    std::optional<QPolygon> m_vieleck;
    Qt::FillRule m_regel = Qt::OddEvenFill;
    mutable std::optional<QRegion> m_region;
};

} // namespace zp
