#include "PainterCanvas.h"

#include "compose/GdiRunden.h"

#include <QFontMetrics>
#include <QPaintDevice>
#include <QPolygon>
#include <QTextLayout>
#include <algorithm>

namespace zp {

namespace {
constexpr int kGroessteSchrift = 20000; // pixels; a larger em would only exhaust memory

QPolygon AlsPolygon(const std::vector<QPoint>& punkte) {
    QPolygon p;
    p.reserve(static_cast<int>(punkte.size()));
    for (const QPoint& q : punkte)
        p.append(q);
    return p;
}
} // namespace

PainterCanvas::PainterCanvas(QPaintDevice& geraet, CanvasArt art, double twipsProPixelX,
                             double twipsProPixelY)
    : m_eigenerMaler(std::make_unique<QPainter>()), m_art(art), m_tppX(twipsProPixelX),
      m_tppY(twipsProPixelY) {
    m_eigenerMaler->begin(&geraet);
    m_painter = m_eigenerMaler.get();
    Einrichten();
}

PainterCanvas::PainterCanvas(QPainter& painter, CanvasArt art, double twipsProPixelX, double twipsProPixelY)
    : m_painter(&painter), m_art(art), m_tppX(twipsProPixelX), m_tppY(twipsProPixelY) {
    Einrichten();
}

PainterCanvas::~PainterCanvas() {
    BeendeMaler();
}

void PainterCanvas::BeendeMaler() {
    if (m_eigenerMaler && m_eigenerMaler->isActive()) m_eigenerMaler->end();
}

void PainterCanvas::NeuesGeraet(QPaintDevice& geraet) {
    if (!m_eigenerMaler) return;
    BeendeMaler();
    m_eigenerMaler->begin(&geraet);
    m_painter = m_eigenerMaler.get();
    Einrichten();
    ZustandWiederherstellen();
}

void PainterCanvas::Einrichten() {
    if (m_tppX <= 0) m_tppX = 15;
    if (m_tppY <= 0) m_tppY = 15;
    if (!m_painter->isActive()) return;
    // Shapes stay crisp on whole pixels like the device's; text keeps its smoothing.
    m_painter->setRenderHint(QPainter::Antialiasing, false);
    m_painter->setRenderHint(QPainter::TextAntialiasing, true);
}

void PainterCanvas::ZustandWiederherstellen() {
    if (!m_painter->isActive()) return;
    m_painter->resetTransform();
    m_painter->translate(-m_ursprung.x(), -m_ursprung.y());
    ClipAnwenden();
}

double PainterCanvas::Width() const {
    const QPaintDevice* d = m_painter->device();
    return d ? d->width() * m_tppX : 0.0;
}
double PainterCanvas::Height() const {
    const QPaintDevice* d = m_painter->device();
    return d ? d->height() * m_tppY : 0.0;
}

int PainterCanvas::Px(double twips, double tpp) const {
    return gdi::Lng(twips / tpp);
}

QColor PainterCanvas::QtFarbe(CanvasFarbe farbe) {
    if (farbe < 0) return QColor(Qt::transparent);
    return QColor(farbe & 0xFF, (farbe >> 8) & 0xFF, (farbe >> 16) & 0xFF);
}

QFont PainterCanvas::QtSchrift(const LogFont& lf) {
    QFont f(lf.lfFaceName.trimmed().isEmpty() ? QStringLiteral("Arial") : lf.lfFaceName.trimmed());
    int pixel;
    if (lf.lfHeight < 0)
        pixel = -static_cast<int64_t>(lf.lfHeight) > kGroessteSchrift ? kGroessteSchrift : -lf.lfHeight;
    else if (lf.lfHeight > 0)
        pixel = std::min(kGroessteSchrift, gdi::Lng(lf.lfHeight * 0.87)); // cell height to em height
    else
        pixel = 16; // the device's default size
    f.setPixelSize(std::max(1, pixel));
    const int gewicht = lf.lfWeight <= 0 ? 400 : std::clamp(lf.lfWeight, 1, 1000);
    f.setWeight(static_cast<QFont::Weight>(gewicht));
    f.setItalic(lf.lfItalic != 0);
    f.setUnderline(lf.lfUnderline != 0);
    f.setStrikeOut(lf.lfStrikeOut != 0);
    f.setKerning(false); // the device sets character by character
    return f;
}

void PainterCanvas::StiftUndPinsel(bool mitPinsel) {
    QPainter& p = *m_painter;
    if (DrawStyle == 5) {
        p.setPen(Qt::NoPen);
    } else {
        QPen stift(QtFarbe(ForeColor));
        stift.setWidth(std::max(1, DrawWidth));
        // Patterned pens exist only at width 1, as on the device.
        Qt::PenStyle stil = Qt::SolidLine;
        if (DrawWidth <= 1) {
            switch (DrawStyle) {
            case 1:
                stil = Qt::DashLine;
                break;
            case 2:
                stil = Qt::DotLine;
                break;
            case 3:
                stil = Qt::DashDotLine;
                break;
            case 4:
                stil = Qt::DashDotDotLine;
                break;
            default:
                break;
            }
        }
        stift.setStyle(stil);
        stift.setCapStyle(Qt::FlatCap);
        stift.setJoinStyle(Qt::MiterJoin);
        p.setPen(stift);
    }
    if (!mitPinsel || FillStyle == 1) {
        p.setBrush(Qt::NoBrush);
    } else {
        Qt::BrushStyle stil = Qt::SolidPattern;
        switch (FillStyle) {
        case 2:
            stil = Qt::HorPattern;
            break;
        case 3:
            stil = Qt::VerPattern;
            break;
        case 4:
            stil = Qt::BDiagPattern;
            break;
        case 5:
            stil = Qt::FDiagPattern;
            break;
        case 6:
            stil = Qt::CrossPattern;
            break;
        case 7:
            stil = Qt::DiagCrossPattern;
            break;
        default:
            break;
        }
        p.setBrush(QBrush(QtFarbe(FillColor), stil));
    }
    switch (DrawMode) {
    case 6:
        p.setCompositionMode(QPainter::RasterOp_NotDestination);
        break;
    case 7:
        p.setCompositionMode(QPainter::RasterOp_SourceXorDestination);
        break;
    default:
        p.setCompositionMode(QPainter::CompositionMode_SourceOver);
        break;
    }
}

// ---- Picture-box methods ---------------------------------------------------------------------

void PainterCanvas::Cls() {
    QPainter& p = *m_painter;
    if (p.isActive() && p.device()) {
        const QTransform t = p.transform();
        const bool geclippt = p.hasClipping();
        p.resetTransform();
        p.setClipping(false);
        p.setCompositionMode(QPainter::CompositionMode_Source);
        p.fillRect(QRect(0, 0, p.device()->width(), p.device()->height()), QtFarbe(BackColor));
        p.setCompositionMode(QPainter::CompositionMode_SourceOver);
        p.setTransform(t);
        if (geclippt) ClipAnwenden();
    }
    CurrentX = 0;
    CurrentY = 0;
}

void PainterCanvas::Line(double x1, double y1, double x2, double y2, CanvasFarbe farbe, LineForm form) {
    QPainter& p = *m_painter;
    const CanvasFarbe alt = ForeColor;
    if (farbe >= 0) ForeColor = farbe;
    const int l = Px(x1, m_tppX), t = Px(y1, m_tppY), r = Px(x2, m_tppX), b = Px(y2, m_tppY);
    switch (form) {
    case LineForm::Linie:
        StiftUndPinsel(false);
        p.drawLine(l, t, r, b);
        break;
    case LineForm::Kasten:
        StiftUndPinsel(true);
        p.drawRect(QRect(QPoint(l, t), QPoint(r, b)).normalized().adjusted(0, 0, -1, -1));
        break;
    case LineForm::KastenGefuellt: {
        StiftUndPinsel(false);
        p.fillRect(QRect(QPoint(l, t), QPoint(r, b)).normalized(), QtFarbe(ForeColor));
        break;
    }
    }
    ForeColor = alt;
    CurrentX = x2;
    CurrentY = y2;
}

void PainterCanvas::Circle(double x, double y, double r, CanvasFarbe farbe) {
    const CanvasFarbe alt = ForeColor;
    if (farbe >= 0) ForeColor = farbe;
    StiftUndPinsel(true);
    const int l = Px(x - r, m_tppX), t = Px(y - r, m_tppY), rr = Px(x + r, m_tppX), b = Px(y + r, m_tppY);
    m_painter->drawEllipse(QRect(QPoint(l, t), QPoint(rr, b)).normalized());
    ForeColor = alt;
    CurrentX = x;
    CurrentY = y;
}

const PainterCanvas::Zeichensatz& PainterCanvas::AktuelleSchrift(bool geraeteschrift) {
    if (geraeteschrift && m_gewaehlteSchrift != 0) {
        if (const LogFont* lf = m_objekte.Schrift(m_gewaehlteSchrift)) {
            if (m_cacheHandle != m_gewaehlteSchrift || m_cacheExtra != m_zeichenabstand) {
                m_geraeteSchrift.font = QtSchrift(*lf);
                if (m_zeichenabstand != 0)
                    m_geraeteSchrift.font.setLetterSpacing(QFont::AbsoluteSpacing, m_zeichenabstand);
                const QFontMetrics fm(m_geraeteSchrift.font);
                m_geraeteSchrift.ascent = fm.ascent();
                m_geraeteSchrift.hoehe = fm.height();
                m_geraeteSchrift.extra = m_zeichenabstand;
                m_cacheHandle = m_gewaehlteSchrift;
                m_cacheExtra = m_zeichenabstand;
            }
            return m_geraeteSchrift;
        }
    }
    const int stil =
        (FontBold ? 1 : 0) | (FontItalic ? 2 : 0) | (FontUnderline ? 4 : 0) | (FontStrikethru ? 8 : 0);
    if (m_cacheBoxName != FontName || m_cacheBoxGroesse != FontSize || m_cacheBoxStil != stil ||
        m_cacheBoxExtra != m_zeichenabstand) {
        LogFont lf;
        lf.lfFaceName = FontName;
        lf.lfHeight = -gdi::Lng(FontSize * GetDeviceCaps(LOGPIXELSY) / 72.0);
        if (lf.lfHeight == 0) lf.lfHeight = -1;
        lf.lfWeight = FontBold ? 700 : 400;
        lf.lfItalic = FontItalic;
        lf.lfUnderline = FontUnderline;
        lf.lfStrikeOut = FontStrikethru;
        m_boxSchrift.font = QtSchrift(lf);
        if (m_zeichenabstand != 0)
            m_boxSchrift.font.setLetterSpacing(QFont::AbsoluteSpacing, m_zeichenabstand);
        const QFontMetrics fm(m_boxSchrift.font);
        m_boxSchrift.ascent = fm.ascent();
        m_boxSchrift.hoehe = fm.height();
        m_boxSchrift.extra = m_zeichenabstand;
        m_cacheBoxName = FontName;
        m_cacheBoxGroesse = FontSize;
        m_cacheBoxStil = stil;
        m_cacheBoxExtra = m_zeichenabstand;
    }
    return m_boxSchrift;
}

void PainterCanvas::SchreibeText(int x, int y, const QString& text, const Zeichensatz& zs, double drehung) {
    if (text.isEmpty()) return;
    QPainter& p = *m_painter;
    const QTransform alt = p.transform();
    p.translate(x, y);
    if (drehung != 0) p.rotate(-drehung); // counter-clockwise on a y-down device
    p.setCompositionMode(DrawMode == 7 ? QPainter::RasterOp_SourceXorDestination
                                       : QPainter::CompositionMode_SourceOver);
    p.setFont(zs.font);
    if (!m_transparent) {
        const QFontMetrics fm(zs.font);
        p.fillRect(QRect(0, 0, fm.horizontalAdvance(text), zs.hoehe), QtFarbe(BackColor));
    }
    p.setPen(QtFarbe(ForeColor));
    if (zs.font.underline() || zs.font.strikeOut()) {
        p.drawText(0, zs.ascent, text);
    } else {
        // The same string in the same font comes a hundred times in a row for shadows and
        // gradients: shape it once.
        if (!m_satz || m_satz->text() != text || m_satzFont != zs.font) {
            m_satz = std::make_unique<QTextLayout>(text, zs.font);
            m_satz->setCacheEnabled(true);
            m_satz->beginLayout();
            QTextLine zeile = m_satz->createLine();
            zeile.setPosition(QPointF(0, 0));
            m_satz->endLayout();
            m_satzFont = zs.font;
        }
        m_satz->draw(&p, QPointF(0, 0));
    }
    p.setTransform(alt);
}

void PainterCanvas::Print(const QString& text) {
    const bool geraet = m_gewaehlteSchrift != 0;
    const Zeichensatz& zs = AktuelleSchrift(geraet);
    double drehung = 0;
    if (geraet)
        if (const LogFont* lf = m_objekte.Schrift(m_gewaehlteSchrift)) drehung = lf->lfEscapement / 10.0;
    SchreibeText(Px(CurrentX, m_tppX), Px(CurrentY, m_tppY), text, zs, drehung);
    CurrentX = 0;
    CurrentY += zs.hoehe * m_tppY;
}

double PainterCanvas::TextWidth(const QString& text) {
    if (text.isEmpty()) return 0;
    const QFontMetrics fm(AktuelleSchrift(false).font);
    return fm.horizontalAdvance(text) * m_tppX;
}

double PainterCanvas::TextHeight(const QString&) {
    return AktuelleSchrift(false).hoehe * m_tppY;
}

// ---- Device context ----------------------------------------------------------------------------

void PainterCanvas::SetWindowOrgEx(int x, int y) {
    m_ursprung = QPoint(x, y);
    ZustandWiederherstellen();
}

void PainterCanvas::OffsetWindowOrgEx(int dx, int dy) {
    SetWindowOrgEx(m_ursprung.x() + dx, m_ursprung.y() + dy);
}

GdiHandle PainterCanvas::CreateFontIndirectA(const LogFont& font) {
    return m_objekte.NeueSchrift(font);
}

GdiHandle PainterCanvas::SelectObject(GdiHandle font) {
    const GdiHandle alt = m_gewaehlteSchrift;
    if (font == 0 || m_objekte.IstSchrift(font)) m_gewaehlteSchrift = font;
    return alt;
}

void PainterCanvas::DeleteObject(GdiHandle handle) {
    // A selected font stays in use until another is selected, as on the device.
    if (handle == m_gewaehlteSchrift) return;
    m_objekte.Loesche(handle);
}

QSize PainterCanvas::GetTextExtentPoint32A(const QString& text) {
    const Zeichensatz& zs = AktuelleSchrift(true);
    const QFontMetrics fm(zs.font);
    return QSize(text.isEmpty() ? 0 : fm.horizontalAdvance(text), zs.hoehe);
}

int PainterCanvas::GetDeviceCaps(int index) const {
    switch (index) {
    case LOGPIXELSX:
        return gdi::Lng(1440.0 / m_tppX);
    case LOGPIXELSY:
        return gdi::Lng(1440.0 / m_tppY);
    default:
        return 0;
    }
}

int PainterCanvas::SetTextCharacterExtra(int n) {
    const int alt = m_zeichenabstand;
    m_zeichenabstand = n;
    return alt;
}

void PainterCanvas::TextOutA(int x, int y, const QString& text) {
    const Zeichensatz& zs = AktuelleSchrift(true);
    double drehung = 0;
    if (const LogFont* lf = m_objekte.Schrift(m_gewaehlteSchrift)) drehung = lf->lfEscapement / 10.0;
    SchreibeText(x, y, text, zs, drehung);
}

GdiHandle PainterCanvas::CreateRectRgn(int left, int top, int right, int bottom) {
    return m_objekte.NeueRegion(RechteckRegion(left, top, right, bottom));
}

GdiHandle PainterCanvas::CreatePolygonRgn(const std::vector<QPoint>& points, PolyFillMode mode) {
    if (points.size() < 3) return m_objekte.NeueRegion(QRegion());
    return m_objekte.NeueRegion(
        QRegion(AlsPolygon(points), mode == PolyFillMode::Winding ? Qt::WindingFill : Qt::OddEvenFill));
}

void PainterCanvas::SelectClipRgn(GdiHandle region) {
    if (region == 0) {
        m_clip.reset();
    } else if (const QRegion* r = m_objekte.Region(region)) {
        m_clip = *r; // the device keeps a copy: freeing the handle later leaves the clip
    } else {
        return;
    }
    ClipAnwenden();
}

void PainterCanvas::OffsetClipRgn(int dx, int dy) {
    if (!m_clip) return;
    m_clip->translate(dx, dy);
    ClipAnwenden();
}

void PainterCanvas::ClipAnwenden() {
    QPainter& p = *m_painter;
    if (!p.isActive()) return;
    if (!m_clip) {
        p.setClipping(false);
        return;
    }
    // The clip lies in device pixels; the painter's coordinates are moved by the window origin.
    if (m_clip->isEmpty())
        p.setClipRect(QRect(m_ursprung.x() - 4, m_ursprung.y() - 4, 1, 1)); // outside: draws nothing
    else
        p.setClipRegion(m_clip->translated(m_ursprung));
}

void PainterCanvas::Polyline(const std::vector<QPoint>& points) {
    if (points.size() < 2) return;
    StiftUndPinsel(false);
    m_painter->drawPolyline(AlsPolygon(points));
}

void PainterCanvas::Polygon(const std::vector<QPoint>& points) {
    if (points.size() < 2) return;
    StiftUndPinsel(true);
    m_painter->drawPolygon(AlsPolygon(points), Qt::OddEvenFill);
}

void PainterCanvas::Rectangle(int left, int top, int right, int bottom) {
    StiftUndPinsel(true);
    const QRect r = QRect(QPoint(left, top), QPoint(right, bottom)).normalized();
    if (r.width() <= 1 || r.height() <= 1) return; // the device draws nothing for an empty box
    // Pen and brush together cover the pixels from left/top up to, not including, right/bottom.
    if (m_painter->pen().style() == Qt::NoPen) {
        if (FillStyle != 1) m_painter->fillRect(r.adjusted(0, 0, -1, -1), m_painter->brush());
        return;
    }
    m_painter->drawRect(r.adjusted(0, 0, -2, -2));
}

void PainterCanvas::Ellipse(int left, int top, int right, int bottom) {
    StiftUndPinsel(true);
    const QRect r = QRect(QPoint(left, top), QPoint(right, bottom)).normalized();
    if (r.width() <= 1 || r.height() <= 1) return;
    m_painter->drawEllipse(r.adjusted(0, 0, -2, -2));
}

void PainterCanvas::RenderBild(const QImage& bild, const QRectF& twips) {
    if (bild.isNull()) return;
    const QRect ziel(QPoint(Px(twips.left(), m_tppX), Px(twips.top(), m_tppY)),
                     QPoint(Px(twips.right(), m_tppX) - 1, Px(twips.bottom(), m_tppY) - 1));
    if (ziel.width() <= 0 || ziel.height() <= 0) return;
    m_painter->setCompositionMode(QPainter::CompositionMode_SourceOver);
    m_painter->setRenderHint(QPainter::SmoothPixmapTransform, true);
    m_painter->drawImage(ziel, bild);
    m_painter->setRenderHint(QPainter::SmoothPixmapTransform, false);
}

} // namespace zp
