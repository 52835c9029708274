#pragma once
// The recording canvas for tests: draws nothing and logs every operation with its arguments in
// device pixels (twips of the picture-box operations already divided by the twips per pixel) and
// the drawing state it met. Text is measured by a fixed rule, so that positions can be foreseen:
// every character is half the em height wide plus the character extra, the cell is one em high.

#include "compose/canvas/GdiObjekte.h"
#include "compose/canvas/canvas.h"

#include <QRegion>
#include <optional>
#include <string>

namespace zp {

struct CanvasAufruf {
    std::string Name;           // the operation, e.g. "Rectangle", "TextOutA", "Line"
    std::vector<int> Werte;     // integer arguments, device pixels
    std::vector<QPoint> Punkte; // point lists of Polyline, Polygon and CreatePolygonRgn
    QString Text;
    // The state at the call.
    CanvasFarbe ForeColor = 0;
    CanvasFarbe FillColor = 0;
    int FillStyle = 1;
    int DrawStyle = 0;
    int DrawWidth = 1;
    LogFont Schrift; // the font that text output uses
    int Zeichenabstand = 0;
    std::optional<QRegion> Clip; // device pixels
    QPoint Ursprung;
    Canvas::LineForm Form = Canvas::LineForm::Linie; // of Line
};

class RecordingCanvas : public Canvas {
public:
    explicit RecordingCanvas(CanvasArt art = CanvasArt::Bildschirm, double twipsProPixelX = 15,
                             double twipsProPixelY = 15, QSize pixel = QSize(1000, 1400));

    std::vector<CanvasAufruf> Aufrufe;

    // The calls of one operation, in order.
    [[nodiscard]] std::vector<CanvasAufruf> Alle(const std::string& name) const;
    // Names of all calls, in order (to check the order of operations).
    [[nodiscard]] std::vector<std::string> Namen() const;
    // Fonts and regions created and not freed.
    [[nodiscard]] size_t OffeneObjekte() const { return m_objekte.Anzahl(); }
    [[nodiscard]] GdiHandle GewaehlteSchrift() const { return m_gewaehlteSchrift; }
    [[nodiscard]] int Zeichenabstand() const { return m_zeichenabstand; }

    [[nodiscard]] CanvasArt Art() const override { return m_art; }
    [[nodiscard]] double Width() const override { return m_pixel.width() * m_tppX; }
    [[nodiscard]] double Height() const override { return m_pixel.height() * m_tppY; }
    [[nodiscard]] double TwipsPerPixelX() const override { return m_tppX; }
    [[nodiscard]] double TwipsPerPixelY() const override { return m_tppY; }

    void Cls() override;
    void Line(double x1, double y1, double x2, double y2, CanvasFarbe farbe = -1,
              LineForm form = LineForm::Linie) override;
    void Circle(double x, double y, double r, CanvasFarbe farbe = -1) override;
    void Print(const QString& text) override;
    [[nodiscard]] double TextWidth(const QString& text) override;
    [[nodiscard]] double TextHeight(const QString& text) override;

    void SetWindowOrgEx(int x, int y) override;
    void OffsetWindowOrgEx(int dx, int dy) override;
    [[nodiscard]] QPoint WindowOrg() const override { return m_ursprung; }
    void SetBkMode(bool transparent) override;

    GdiHandle CreateFontIndirectA(const LogFont& font) override;
    GdiHandle SelectObject(GdiHandle font) override;
    void DeleteObject(GdiHandle handle) override;
    [[nodiscard]] QSize GetTextExtentPoint32A(const QString& text) override;
    [[nodiscard]] int GetDeviceCaps(int index) const override;
    int SetTextCharacterExtra(int n) override;
    void TextOutA(int x, int y, const QString& text) override;

    GdiHandle CreateRectRgn(int left, int top, int right, int bottom) override;
    GdiHandle CreatePolygonRgn(const std::vector<QPoint>& points, PolyFillMode mode) override;
    void SelectClipRgn(GdiHandle region) override;
    void OffsetClipRgn(int dx, int dy) override;

    void Polyline(const std::vector<QPoint>& points) override;
    void Polygon(const std::vector<QPoint>& points) override;
    void Rectangle(int left, int top, int right, int bottom) override;
    void Ellipse(int left, int top, int right, int bottom) override;

    void RenderBild(const QImage& bild, const QRectF& twips) override;
    void SetzeGroesse(double breiteTwips, double hoeheTwips) override;
    void NewPage() override;
    void EndDoc() override;

private:
    CanvasAufruf& Neu(const std::string& name, std::vector<int> werte = {});
    [[nodiscard]] int PxX(double twips) const;
    [[nodiscard]] int PxY(double twips) const;
    [[nodiscard]] LogFont BoxSchrift() const;
    [[nodiscard]] LogFont TextSchrift() const;

    CanvasArt m_art;
    double m_tppX, m_tppY;
    QSize m_pixel;
    QPoint m_ursprung;
    int m_zeichenabstand = 0;
    GdiObjekte m_objekte;
    GdiHandle m_gewaehlteSchrift = 0;
    std::optional<QRegion> m_clip;
};

// The em height in pixels of a logical font, as the canvases size it.
[[nodiscard]] int EmHoehe(const LogFont& font);

} // namespace zp
