#include "compose/canvas/PainterCanvas.h"

#include "compose/canvas/GdiRunden.h"

#include <QFontMetrics>
#include <QPaintDevice>
#include <QPolygon>
#include <QTextLayout>
#include <algorithm>
#include <cmath>
#include <utility>

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

void PainterCanvas::StiftUndPinsel(Zeichnung& z, bool mitPinsel) const {
    if (DrawStyle == 5) {
        z.stift = QPen(Qt::NoPen);
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
        // A wide pen of the device ends and joins round; a one-pixel pen has no ends to shape.
        const bool breit = DrawWidth > 1;
        stift.setCapStyle(breit ? Qt::RoundCap : Qt::FlatCap);
        stift.setJoinStyle(breit ? Qt::RoundJoin : Qt::MiterJoin);
        z.stift = stift;
    }
    if (!mitPinsel || FillStyle == 1) {
        z.pinsel = QBrush(Qt::NoBrush);
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
        z.pinsel = QBrush(QtFarbe(FillColor), stil);
    }
    switch (DrawMode) {
    case 6:
        z.modus = QPainter::RasterOp_NotDestination;
        break;
    case 7:
        z.modus = QPainter::RasterOp_SourceXorDestination;
        break;
    default:
        z.modus = QPainter::CompositionMode_SourceOver;
        break;
    }
}

// ---- Picture-box methods ---------------------------------------------------------------------

void PainterCanvas::Cls() {
    StufenAusgeben();
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
    const CanvasFarbe alt = ForeColor;
    if (farbe >= 0) ForeColor = farbe;
    const int l = Px(x1, m_tppX), t = Px(y1, m_tppY), r = Px(x2, m_tppX), b = Px(y2, m_tppY);
    Zeichnung z;
    switch (form) {
    case LineForm::Linie:
        StiftUndPinsel(z, false);
        z.art = Zeichnung::Art::Linienzug;
        z.punkte = QPolygon({QPoint(l, t), QPoint(r, b)});
        break;
    case LineForm::Kasten:
        StiftUndPinsel(z, true);
        z.art = Zeichnung::Art::Rahmen;
        z.rechteck = QRect(QPoint(l, t), QPoint(r, b)).normalized().adjusted(0, 0, -1, -1);
        break;
    case LineForm::KastenGefuellt:
        StiftUndPinsel(z, false);
        z.art = Zeichnung::Art::Flaeche;
        z.pinsel = QBrush(QtFarbe(ForeColor));
        z.rechteck = QRect(QPoint(l, t), QPoint(r, b)).normalized();
        break;
    }
    Ausgeben(std::move(z));
    ForeColor = alt;
    CurrentX = x2;
    CurrentY = y2;
}

void PainterCanvas::Circle(double x, double y, double r, CanvasFarbe farbe) {
    const CanvasFarbe alt = ForeColor;
    if (farbe >= 0) ForeColor = farbe;
    Zeichnung z;
    StiftUndPinsel(z, true);
    const int l = Px(x - r, m_tppX), t = Px(y - r, m_tppY), rr = Px(x + r, m_tppX), b = Px(y + r, m_tppY);
    z.art = Zeichnung::Art::Ellipse;
    z.rechteck = QRect(QPoint(l, t), QPoint(rr, b)).normalized();
    Ausgeben(std::move(z));
    ForeColor = alt;
    CurrentX = x;
    CurrentY = y;
}

const Zeichensatz& PainterCanvas::Schriftsatz(const LogFont& lf, int extra) {
    for (const Schrifteintrag& e : m_schriften)
        if (e.extra == extra && e.lf == lf) return e.satz;
    if (m_schriften.size() >= 64) m_schriften.clear(); // a document with ever new sizes
    Schrifteintrag e;
    e.lf = lf;
    e.extra = extra;
    e.satz.font = QtSchrift(lf);
    if (extra != 0) e.satz.font.setLetterSpacing(QFont::AbsoluteSpacing, extra);
    const QFontMetrics fm(e.satz.font);
    e.satz.ascent = fm.ascent();
    e.satz.hoehe = fm.height();
    e.satz.extra = extra;
    e.satz.nummer = m_naechsteSchrift++;
    m_schriften.push_back(std::move(e));
    return m_schriften.back().satz;
}

const Zeichensatz& PainterCanvas::AktuelleSchrift(bool geraeteschrift) {
    if (geraeteschrift && m_gewaehlteSchrift != 0)
        if (const LogFont* lf = m_objekte.Schrift(m_gewaehlteSchrift))
            return Schriftsatz(*lf, m_zeichenabstand);
    LogFont lf;
    lf.lfFaceName = FontName;
    lf.lfHeight = -gdi::Lng(FontSize * GetDeviceCaps(LOGPIXELSY) / 72.0);
    if (lf.lfHeight == 0) lf.lfHeight = -1;
    lf.lfWeight = FontBold ? 700 : 400;
    lf.lfItalic = FontItalic;
    lf.lfUnderline = FontUnderline;
    lf.lfStrikeOut = FontStrikethru;
    return Schriftsatz(lf, m_zeichenabstand);
}

int PainterCanvas::Textbreite(const Zeichensatz& zs, const QString& text) {
    return m_saetze.Breite(zs, text);
}

void PainterCanvas::Text(int x, int y, const QString& text, const Zeichensatz& zs, double drehung) {
    if (text.isEmpty()) return;
    Zeichnung z;
    z.art = Zeichnung::Art::Text;
    z.text = text;
    z.ort = QPoint(x, y);
    z.drehung = drehung;
    z.schrift = zs;
    z.stift = QPen(QtFarbe(ForeColor));
    z.pinsel = QBrush(Qt::NoBrush);
    z.modus = DrawMode == 7 ? QPainter::RasterOp_SourceXorDestination : QPainter::CompositionMode_SourceOver;
    if (!m_transparent) z.hintergrund = QtFarbe(BackColor);
    Ausgeben(std::move(z));
}

void PainterCanvas::ZeichneText(QPainter& p, const Zeichnung& z) {
    const Zeichensatz& zs = z.schrift;
    const QTransform alt = p.transform();
    p.translate(z.ort);
    if (z.drehung != 0) p.rotate(-z.drehung); // counter-clockwise on a y-down device
    p.setCompositionMode(z.modus);
    p.setFont(zs.font);
    if (z.hintergrund) p.fillRect(QRect(0, 0, Textbreite(zs, z.text), zs.hoehe), *z.hintergrund);
    p.setPen(z.stift);
    if (zs.font.underline() || zs.font.strikeOut())
        p.drawText(0, zs.ascent, z.text);
    else
        m_saetze.Satz(zs, z.text).draw(&p, QPointF(0, 0));
    p.setTransform(alt);
}

double PainterCanvas::Drehung() const {
    const LogFont* lf = m_objekte.Schrift(m_gewaehlteSchrift);
    return lf ? lf->lfEscapement / 10.0 : 0.0;
}

void PainterCanvas::Print(const QString& text) {
    const Zeichensatz& zs = AktuelleSchrift(m_gewaehlteSchrift != 0);
    const int hoehe = zs.hoehe;
    Text(Px(CurrentX, m_tppX), Px(CurrentY, m_tppY), text, zs, Drehung());
    CurrentX = 0;
    CurrentY += hoehe * m_tppY;
}

double PainterCanvas::TextWidth(const QString& text) {
    if (text.isEmpty()) return 0;
    return Textbreite(AktuelleSchrift(false), text) * m_tppX;
}

double PainterCanvas::TextHeight(const QString&) {
    return AktuelleSchrift(false).hoehe * m_tppY;
}

// ---- Device context ----------------------------------------------------------------------------

void PainterCanvas::SetWindowOrgEx(int x, int y) {
    StufenAusgeben();
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
    return QSize(Textbreite(zs, text), zs.hoehe);
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
    Text(x, y, text, AktuelleSchrift(true), Drehung());
}

GdiHandle PainterCanvas::CreateRectRgn(int left, int top, int right, int bottom) {
    return m_objekte.NeueRegion(Clipflaeche::Rechteck(left, top, right, bottom));
}

GdiHandle PainterCanvas::CreatePolygonRgn(const std::vector<QPoint>& points, PolyFillMode mode) {
    return m_objekte.NeueRegion(Clipflaeche::Vieleck(
        AlsPolygon(points), mode == PolyFillMode::Winding ? Qt::WindingFill : Qt::OddEvenFill));
}

void PainterCanvas::SelectClipRgn(GdiHandle region) {
    if (region == 0) {
        m_clip.reset();
    } else if (const Clipflaeche* r = m_objekte.Region(region)) {
        m_clip = *r; // the device keeps a copy: freeing the handle later leaves the clip
    } else {
        return;
    }
    if (!m_stufenOffen) ClipAnwenden(); // a run gives each kept drawing its own clip
}

void PainterCanvas::OffsetClipRgn(int dx, int dy) {
    if (!m_clip) return;
    m_clip->Verschiebe(dx, dy);
    if (!m_stufenOffen) ClipAnwenden();
}

void PainterCanvas::ClipAnwenden() {
    ClipSetzen(m_clip);
}

void PainterCanvas::ClipSetzen(const std::optional<Clipflaeche>& clip) {
    QPainter& p = *m_painter;
    if (!p.isActive()) return;
    if (!clip) {
        p.setClipping(false);
        return;
    }
    // Switched on first: the raster painter, its clip switched off, takes a region equal to its
    // former one as no change and goes on drawing unclipped.
    p.setClipping(true);
    // The clip lies in device pixels; the painter's coordinates are moved by the window origin.
    if (clip->IstLeer())
        p.setClipRect(QRect(m_ursprung.x() - 4, m_ursprung.y() - 4, 1, 1)); // outside: draws nothing
    else if (clip->IstRechteck())
        p.setClipRect(clip->Umriss().translated(m_ursprung));
    else
        p.setClipRegion(clip->Region().translated(m_ursprung));
}

void PainterCanvas::Polyline(const std::vector<QPoint>& points) {
    if (points.size() < 2) return;
    Zeichnung z;
    StiftUndPinsel(z, false);
    z.art = Zeichnung::Art::Linienzug;
    z.punkte = AlsPolygon(points);
    Ausgeben(std::move(z));
}

void PainterCanvas::Polygon(const std::vector<QPoint>& points) {
    if (points.size() < 2) return;
    Zeichnung z;
    StiftUndPinsel(z, true);
    z.art = Zeichnung::Art::Vieleck;
    z.punkte = AlsPolygon(points);
    Ausgeben(std::move(z));
}

namespace {
// The box of a GDI rectangle or ellipse: the device orders the corners itself, so a box given
// right to left or bottom to top is the same box. (QRect::normalized would lose a box one
// pixel across given the wrong way round: its width counts 0, not -2.)
QRect Gdikasten(int left, int top, int right, int bottom) {
    return {QPoint(std::min(left, right), std::min(top, bottom)),
            QPoint(std::max(left, right), std::max(top, bottom))};
}
} // namespace

void PainterCanvas::Rectangle(int left, int top, int right, int bottom) {
    Zeichnung z;
    StiftUndPinsel(z, true);
    const QRect r = Gdikasten(left, top, right, bottom);
    if (r.width() <= 1 || r.height() <= 1) return; // the device draws nothing for an empty box
    // Pen and brush together cover the pixels from left/top up to, not including, right/bottom.
    if (z.stift.style() == Qt::NoPen) {
        if (FillStyle == 1) return;
        z.art = Zeichnung::Art::Flaeche;
        z.rechteck = r.adjusted(0, 0, -1, -1);
    } else {
        z.art = Zeichnung::Art::Rahmen;
        z.rechteck = r.adjusted(0, 0, -2, -2);
    }
    Ausgeben(std::move(z));
}

void PainterCanvas::Ellipse(int left, int top, int right, int bottom) {
    Zeichnung z;
    StiftUndPinsel(z, true);
    const QRect r = Gdikasten(left, top, right, bottom);
    if (r.width() <= 1 || r.height() <= 1) return;
    z.art = Zeichnung::Art::Ellipse;
    z.rechteck = r.adjusted(0, 0, -2, -2);
    Ausgeben(std::move(z));
}

void PainterCanvas::RenderBild(const QImage& bild, const QRectF& twips) {
    if (bild.isNull()) return;
    StufenAusgeben();
    const QRect ziel(QPoint(Px(twips.left(), m_tppX), Px(twips.top(), m_tppY)),
                     QPoint(Px(twips.right(), m_tppX) - 1, Px(twips.bottom(), m_tppY) - 1));
    if (ziel.width() <= 0 || ziel.height() <= 0) return;
    m_painter->setCompositionMode(QPainter::CompositionMode_SourceOver);
    m_painter->setRenderHint(QPainter::SmoothPixmapTransform, true);
    m_painter->drawImage(ziel, bild);
    m_painter->setRenderHint(QPainter::SmoothPixmapTransform, false);
}

} // namespace zp
