#include "compose/canvas/RecordingCanvas.h"

#include "compose/canvas/GdiRunden.h"

#include <algorithm>

namespace zp {

int EmHoehe(const LogFont& font) {
    if (font.lfHeight < 0)
        return static_cast<int>(std::min<int64_t>(20000, -static_cast<int64_t>(font.lfHeight)));
    if (font.lfHeight > 0) return std::max(1, std::min(20000, gdi::Lng(font.lfHeight * 0.87)));
    return 16;
}

RecordingCanvas::RecordingCanvas(CanvasArt art, double twipsProPixelX, double twipsProPixelY, QSize pixel)
    : m_art(art), m_tppX(twipsProPixelX > 0 ? twipsProPixelX : 15),
      m_tppY(twipsProPixelY > 0 ? twipsProPixelY : 15), m_pixel(pixel) {}

std::vector<CanvasAufruf> RecordingCanvas::Alle(const std::string& name) const {
    std::vector<CanvasAufruf> r;
    for (const CanvasAufruf& a : Aufrufe)
        if (a.Name == name) r.push_back(a);
    return r;
}

std::vector<std::string> RecordingCanvas::Namen() const {
    std::vector<std::string> r;
    r.reserve(Aufrufe.size());
    for (const CanvasAufruf& a : Aufrufe)
        r.push_back(a.Name);
    return r;
}

CanvasAufruf& RecordingCanvas::Neu(const std::string& name, std::vector<int> werte) {
    CanvasAufruf a;
    a.Name = name;
    a.Werte = std::move(werte);
    a.ForeColor = ForeColor;
    a.FillColor = FillColor;
    a.FillStyle = FillStyle;
    a.DrawStyle = DrawStyle;
    a.DrawWidth = DrawWidth;
    a.Zeichenabstand = m_zeichenabstand;
    a.Clip = m_clip;
    a.Ursprung = m_ursprung;
    Aufrufe.push_back(std::move(a));
    return Aufrufe.back();
}

int RecordingCanvas::PxX(double twips) const {
    return gdi::Lng(twips / m_tppX);
}
int RecordingCanvas::PxY(double twips) const {
    return gdi::Lng(twips / m_tppY);
}

LogFont RecordingCanvas::BoxSchrift() const {
    LogFont lf;
    lf.lfFaceName = FontName;
    lf.lfHeight = -std::max(1, gdi::Lng(FontSize * GetDeviceCaps(LOGPIXELSY) / 72.0));
    lf.lfWeight = FontBold ? 700 : 400;
    lf.lfItalic = FontItalic;
    lf.lfUnderline = FontUnderline;
    lf.lfStrikeOut = FontStrikethru;
    return lf;
}

LogFont RecordingCanvas::TextSchrift() const {
    if (const LogFont* lf = m_objekte.Schrift(m_gewaehlteSchrift)) return *lf;
    return BoxSchrift();
}

void RecordingCanvas::Cls() {
    Neu("Cls");
    CurrentX = CurrentY = 0;
}

void RecordingCanvas::Line(double x1, double y1, double x2, double y2, CanvasFarbe farbe, LineForm form) {
    CanvasAufruf& a = Neu("Line", {PxX(x1), PxY(y1), PxX(x2), PxY(y2)});
    a.Form = form;
    if (farbe >= 0) a.ForeColor = farbe;
    CurrentX = x2;
    CurrentY = y2;
}

void RecordingCanvas::Circle(double x, double y, double r, CanvasFarbe farbe) {
    CanvasAufruf& a = Neu("Circle", {PxX(x), PxY(y), PxX(r)});
    if (farbe >= 0) a.ForeColor = farbe;
}

void RecordingCanvas::Print(const QString& text) {
    CanvasAufruf& a = Neu("Print", {PxX(CurrentX), PxY(CurrentY)});
    a.Text = text;
    a.Schrift = TextSchrift();
    CurrentX = 0;
    CurrentY += EmHoehe(a.Schrift) * m_tppY;
}

double RecordingCanvas::TextWidth(const QString& text) {
    const int em = EmHoehe(BoxSchrift());
    return static_cast<double>(text.size()) * ((em + 1) / 2 + m_zeichenabstand) * m_tppX;
}

double RecordingCanvas::TextHeight(const QString&) {
    return EmHoehe(BoxSchrift()) * m_tppY;
}

void RecordingCanvas::SetWindowOrgEx(int x, int y) {
    m_ursprung = QPoint(x, y);
    Neu("SetWindowOrgEx", {x, y});
}

void RecordingCanvas::OffsetWindowOrgEx(int dx, int dy) {
    m_ursprung += QPoint(dx, dy);
    Neu("OffsetWindowOrgEx", {dx, dy});
}

void RecordingCanvas::SetBkMode(bool transparent) {
    Neu("SetBkMode", {transparent ? 1 : 2});
}

GdiHandle RecordingCanvas::CreateFontIndirectA(const LogFont& font) {
    const GdiHandle h = m_objekte.NeueSchrift(font);
    Neu("CreateFontIndirectA", {h}).Schrift = font;
    return h;
}

GdiHandle RecordingCanvas::SelectObject(GdiHandle font) {
    const GdiHandle alt = m_gewaehlteSchrift;
    if (font == 0 || m_objekte.IstSchrift(font)) m_gewaehlteSchrift = font;
    Neu("SelectObject", {font, alt});
    return alt;
}

void RecordingCanvas::DeleteObject(GdiHandle handle) {
    Neu("DeleteObject", {handle});
    if (handle != m_gewaehlteSchrift) m_objekte.Loesche(handle);
}

QSize RecordingCanvas::GetTextExtentPoint32A(const QString& text) {
    const int em = EmHoehe(TextSchrift());
    const int cx = static_cast<int>(text.size()) * ((em + 1) / 2 + m_zeichenabstand);
    CanvasAufruf& a = Neu("GetTextExtentPoint32A", {cx, em});
    a.Text = text;
    a.Schrift = TextSchrift();
    return QSize(cx, em);
}

int RecordingCanvas::GetDeviceCaps(int index) const {
    switch (index) {
    case LOGPIXELSX:
        return gdi::Lng(1440.0 / m_tppX);
    case LOGPIXELSY:
        return gdi::Lng(1440.0 / m_tppY);
    default:
        return 0;
    }
}

int RecordingCanvas::SetTextCharacterExtra(int n) {
    const int alt = m_zeichenabstand;
    m_zeichenabstand = n;
    Neu("SetTextCharacterExtra", {n});
    return alt;
}

void RecordingCanvas::TextOutA(int x, int y, const QString& text) {
    CanvasAufruf& a = Neu("TextOutA", {x, y});
    a.Text = text;
    a.Schrift = TextSchrift();
}

GdiHandle RecordingCanvas::CreateRectRgn(int left, int top, int right, int bottom) {
    const GdiHandle h = m_objekte.NeueRegion(Clipflaeche::Rechteck(left, top, right, bottom));
    Neu("CreateRectRgn", {left, top, right, bottom, h});
    return h;
}

GdiHandle RecordingCanvas::CreatePolygonRgn(const std::vector<QPoint>& points, PolyFillMode mode) {
    QPolygon p;
    for (const QPoint& q : points)
        p.append(q);
    const GdiHandle h = m_objekte.NeueRegion(
        Clipflaeche::Vieleck(p, mode == PolyFillMode::Winding ? Qt::WindingFill : Qt::OddEvenFill));
    Neu("CreatePolygonRgn", {static_cast<int>(mode), h}).Punkte = points;
    return h;
}

void RecordingCanvas::SelectClipRgn(GdiHandle region) {
    if (region == 0)
        m_clip.reset();
    else if (const Clipflaeche* r = m_objekte.Region(region))
        m_clip = r->Region();
    Neu("SelectClipRgn", {region});
}

void RecordingCanvas::OffsetClipRgn(int dx, int dy) {
    if (m_clip) m_clip->translate(dx, dy);
    Neu("OffsetClipRgn", {dx, dy});
}

void RecordingCanvas::Polyline(const std::vector<QPoint>& points) {
    Neu("Polyline").Punkte = points;
}
void RecordingCanvas::Polygon(const std::vector<QPoint>& points) {
    Neu("Polygon").Punkte = points;
}
void RecordingCanvas::Rectangle(int left, int top, int right, int bottom) {
    Neu("Rectangle", {left, top, right, bottom});
}
void RecordingCanvas::Ellipse(int left, int top, int right, int bottom) {
    Neu("Ellipse", {left, top, right, bottom});
}

void RecordingCanvas::RenderBild(const QImage& bild, const QRectF& twips) {
    Neu("RenderBild", {PxX(twips.left()), PxY(twips.top()), PxX(twips.right()), PxY(twips.bottom()),
                       bild.width(), bild.height()});
}

void RecordingCanvas::SetzeGroesse(double breiteTwips, double hoeheTwips) {
    Neu("SetzeGroesse", {PxX(breiteTwips), PxY(hoeheTwips)});
    if (m_art == CanvasArt::Export) m_pixel = QSize(PxX(breiteTwips), PxY(hoeheTwips));
}

void RecordingCanvas::NewPage() {
    Neu("NewPage");
}
void RecordingCanvas::EndDoc() {
    Neu("EndDoc");
}

} // namespace zp
