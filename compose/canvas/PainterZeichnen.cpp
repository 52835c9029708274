// The drawing itself: each shape on the painter, or held back while a stepped effect (gradient,
// soft shadow) collects its steps, which then go out together as one layer where they can.
#include "compose/canvas/PainterCanvas.h"

#include <QPolygon>
#include <algorithm>
#include <cmath>
#include <utility>

namespace zp {

void PainterCanvas::Ausgeben(Zeichnung z) {
    if (m_stufenOffen) {
        if (m_stufen.empty()) m_stufen.emplace_back();
        z.clip = m_clip;
        m_stufen.back().push_back(std::move(z));
        return;
    }
    Zeichne(*m_painter, z);
}

namespace {
// A plain pen drawn straight onto whole pixels: the outlines that filled rectangles can stand for.
bool SchlichterStrich(const QPainter& p, const Zeichnung& z) {
    return z.stift.style() == Qt::SolidLine && z.modus == QPainter::CompositionMode_SourceOver &&
           !p.testRenderHint(QPainter::Antialiasing) && p.transform().type() <= QTransform::TxTranslate;
}

// A box with a plain one-pixel pen as five filled rectangles, the pixels the painter's outline
// would set: a calendar page has hundreds of day boxes, and the painter strokes each outline.
bool RahmenAlsFlaechen(QPainter& p, const Zeichnung& z) {
    if (!SchlichterStrich(p, z) || z.stift.width() > 1) return false;
    const QRect aussen(z.rechteck.topLeft(), QSize(z.rechteck.width() + 1, z.rechteck.height() + 1));
    if (aussen.width() <= 0 || aussen.height() <= 0) return false;
    const QColor farbe = z.stift.color();
    if (aussen.width() <= 2 || aussen.height() <= 2) {
        p.fillRect(aussen, farbe);
        return true;
    }
    if (z.pinsel.style() != Qt::NoBrush) p.fillRect(aussen.adjusted(1, 1, -1, -1), z.pinsel);
    p.fillRect(QRect(aussen.left(), aussen.top(), aussen.width(), 1), farbe);
    p.fillRect(QRect(aussen.left(), aussen.bottom(), aussen.width(), 1), farbe);
    p.fillRect(QRect(aussen.left(), aussen.top() + 1, 1, aussen.height() - 2), farbe);
    p.fillRect(QRect(aussen.right(), aussen.top() + 1, 1, aussen.height() - 2), farbe);
    return true;
}

// The pixel rows or columns whose centres lie in (a, b]: the painter's rule for outlines.
std::pair<int, int> Pixelspanne(double a, double b) {
    return {static_cast<int>(std::floor(a - 0.5)) + 1, static_cast<int>(std::floor(b - 0.5)) + 1};
}

// A wide plain outline of level and upright lines turning at right angles, as one filled
// rectangle per line: the day boxes of a calendar are such outlines, and stroking them costs the
// painter far more. Each line reaches half the pen beyond a corner and stops flat at a free end,
// as the painter's flat caps and mitred joins give.
bool LinienzugAlsFlaechen(QPainter& p, const Zeichnung& z) {
    const QPolygon& pt = z.punkte;
    if (!SchlichterStrich(p, z) || z.stift.width() < 2 || z.stift.capStyle() != Qt::FlatCap ||
        z.stift.joinStyle() != Qt::MiterJoin || pt.size() < 2)
        return false;
    for (int i = 0; i + 1 < pt.size(); ++i) {
        const QPoint d = pt[i + 1] - pt[i];
        if ((d.x() == 0) == (d.y() == 0)) return false;                        // slanted or of no length
        if (i > 0 && (pt[i] - pt[i - 1]).x() == 0 && d.x() == 0) return false; // no turn
        if (i > 0 && (pt[i] - pt[i - 1]).y() == 0 && d.y() == 0) return false;
    }
    const double h = z.stift.width() / 2.0;
    const QColor farbe = z.stift.color();
    for (int i = 0; i + 1 < pt.size(); ++i) {
        const QPoint a = pt[i], b = pt[i + 1];
        const double vorn = i > 0 ? h : 0, hinten = i + 2 < pt.size() ? h : 0;
        double x1, x2, y1, y2;
        if (a.y() == b.y()) {
            const bool vorwaerts = a.x() < b.x();
            x1 = std::min(a.x(), b.x()) - (vorwaerts ? vorn : hinten);
            x2 = std::max(a.x(), b.x()) + (vorwaerts ? hinten : vorn);
            y1 = a.y() - h;
            y2 = a.y() + h;
        } else {
            const bool vorwaerts = a.y() < b.y();
            y1 = std::min(a.y(), b.y()) - (vorwaerts ? vorn : hinten);
            y2 = std::max(a.y(), b.y()) + (vorwaerts ? hinten : vorn);
            x1 = a.x() - h;
            x2 = a.x() + h;
        }
        const auto [links, rechts] = Pixelspanne(x1, x2);
        const auto [oben, unten] = Pixelspanne(y1, y2);
        p.fillRect(QRect(links, oben, rechts - links, unten - oben), farbe);
    }
    return true;
}

// Each colour channel times a / 255, on premultiplied pixels.
inline QRgb Anteil(QRgb x, uint a) {
    uint rb = (x & 0xff00ff) * a;
    rb = ((rb + ((rb >> 8) & 0xff00ff) + 0x800080) >> 8) & 0xff00ff;
    uint ag = ((x >> 8) & 0xff00ff) * a;
    ag = (ag + ((ag >> 8) & 0xff00ff) + 0x800080) & 0xff00ff00;
    return ag | rb;
}

// Lays the bands, cut to the coverage of the mask, over the page at `ort`, in one pass: the
// painter would take two compositions and hand large ones to helper threads.
void LegeAuf(QImage& seite, QPoint ort, const QImage& baender, const QImage& maske) {
    const bool deckend = seite.format() == QImage::Format_RGB32;
    for (int y = 0; y < baender.height(); ++y) {
        const auto* band = reinterpret_cast<const QRgb*>(baender.constScanLine(y));
        const auto* deckung = reinterpret_cast<const QRgb*>(maske.constScanLine(y));
        auto* ziel = reinterpret_cast<QRgb*>(seite.scanLine(ort.y() + y)) + ort.x();
        for (int x = 0; x < baender.width(); ++x) {
            const uint a = qAlpha(deckung[x]);
            if (a == 0 || qAlpha(band[x]) == 0) continue;
            const QRgb farbe = a == 255 ? band[x] : Anteil(band[x], a);
            QRgb neu = farbe + Anteil(ziel[x], 255 - qAlpha(farbe));
            if (deckend) neu |= 0xff000000;
            ziel[x] = neu;
        }
    }
}
} // namespace

void PainterCanvas::Zeichne(QPainter& p, const Zeichnung& z) {
    if (!p.isActive()) return;
    if (z.art == Zeichnung::Art::Text) {
        ZeichneText(p, z);
        return;
    }
    p.setCompositionMode(z.modus);
    switch (z.art) {
    case Zeichnung::Art::Flaeche:
        p.fillRect(z.rechteck, z.pinsel);
        break;
    case Zeichnung::Art::Rahmen:
        if (RahmenAlsFlaechen(p, z)) break;
        p.setPen(z.stift);
        p.setBrush(z.pinsel);
        p.drawRect(z.rechteck);
        break;
    case Zeichnung::Art::Ellipse:
        p.setPen(z.stift);
        p.setBrush(z.pinsel);
        p.drawEllipse(z.rechteck);
        break;
    case Zeichnung::Art::Vieleck:
        p.setPen(z.stift);
        p.setBrush(z.pinsel);
        p.drawPolygon(z.punkte, Qt::OddEvenFill);
        break;
    case Zeichnung::Art::Linienzug:
        if (LinienzugAlsFlaechen(p, z)) break;
        p.setPen(z.stift);
        p.setBrush(Qt::NoBrush);
        p.drawPolyline(z.punkte);
        break;
    case Zeichnung::Art::Text:
        break;
    }
}

void PainterCanvas::NeueStufe() {
    if (!m_stufenSparen) return;
    m_stufenOffen = true;
    m_stufen.emplace_back();
}

void PainterCanvas::StufenEnde() {
    StufenAusgeben();
    m_stufenOffen = false;
}

void PainterCanvas::StufenAusgeben() {
    if (m_stufen.empty()) return;
    const std::vector<Stufe> stufen = std::move(m_stufen);
    m_stufen.clear();
    if (const std::optional<Schichtplan> plan = AlsSchicht(stufen);
        !plan || !AlsSchichtZeichnen(stufen, *plan)) {
        const std::optional<Clipflaeche>* gesetzt = nullptr; // the clip in the painter
        for (size_t k = 0; k < stufen.size(); ++k) {
            if (k + 1 < stufen.size() && Ueberdeckt(stufen[k + 1], stufen[k])) continue;
            for (const Zeichnung& z : stufen[k]) {
                if (!gesetzt || !(*gesetzt == z.clip)) ClipSetzen(z.clip);
                gesetzt = &z.clip;
                Zeichne(*m_painter, z);
            }
        }
    }
    ClipAnwenden();
}

bool PainterCanvas::AlsSchichtZeichnen(const std::vector<Stufe>& stufen, const Schichtplan& plan) {
    // Only on a picture: on the printer the figure stays drawn as lines and letters.
    QPainter& p = *m_painter;
    const QPaintDevice* geraet = p.device();
    if (!geraet || geraet->devType() != QInternal::Image) return false;
    const QRect flaeche = plan.umriss & QRect(0, 0, geraet->width(), geraet->height());
    if (flaeche.isEmpty()) return true;            // every clip lies off the picture
    constexpr qint64 kGroessteSchicht = 4'000'000; // pixels; beyond, drawing step by step costs less memory
    if (static_cast<qint64>(flaeche.width()) * flaeche.height() > kGroessteSchicht) return false;

    // The figure's coverage, drawn once in black.
    QImage maske(flaeche.size(), QImage::Format_ARGB32_Premultiplied);
    maske.fill(Qt::transparent);
    {
        QPainter m(&maske);
        m.setRenderHints(p.renderHints());
        m.translate(-flaeche.topLeft() - m_ursprung);
        for (Zeichnung z : stufen.back()) {
            if (z.stift.style() != Qt::NoPen) z.stift.setColor(Qt::black);
            if (z.pinsel.style() != Qt::NoBrush) z.pinsel.setColor(Qt::black);
            Zeichne(m, z);
        }
    }
    // Every pixel in the colour of the last step whose clip holds it, then cut to the figure.
    QImage baender(flaeche.size(), QImage::Format_ARGB32_Premultiplied);
    baender.fill(Qt::transparent);
    {
        QPainter b(&baender);
        b.translate(-flaeche.topLeft());
        b.setCompositionMode(QPainter::CompositionMode_Source);
        for (size_t k = 0; k < plan.farben.size(); ++k)
            plan.flaechen[k]->Fuelle(b, plan.farben[k]);
    }
    auto* seite = static_cast<QImage*>(p.device());
    // Written straight into the painter's buffer; a picture shared with a copy would detach.
    if (seite->isDetached() &&
        (seite->format() == QImage::Format_RGB32 || seite->format() == QImage::Format_ARGB32_Premultiplied)) {
        LegeAuf(*seite, flaeche.topLeft(), baender, maske);
        return true;
    }
    {
        QPainter b(&baender);
        b.setCompositionMode(QPainter::CompositionMode_DestinationIn);
        b.drawImage(0, 0, maske);
    }
    const QTransform alt = p.transform();
    p.resetTransform();
    p.setClipping(false);
    p.setCompositionMode(QPainter::CompositionMode_SourceOver);
    p.drawImage(flaeche.topLeft(), baender);
    p.setTransform(alt);
    return true;
}

} // namespace zp
