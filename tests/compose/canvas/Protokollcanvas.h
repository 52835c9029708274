#pragma once
// A canvas for the picture tests that records shapes and pictures with their device coordinates.

#include "compose/canvas/canvas.h"

#include <QImage>
#include <QRectF>
#include <string>
#include <vector>

namespace zp::test {

struct Zeichnung {
    std::string art; // "Rectangle", "Ellipse", "Polygon", "Bild", "Cls"
    std::vector<QPoint> punkte;
    QRectF twips;
    QImage bild;
    CanvasFarbe fore = 0, fill = 0;
    int fillStyle = 0;
};

class Protokollcanvas : public Canvas {
public:
    explicit Protokollcanvas(CanvasArt art = CanvasArt::Bildschirm, double tpp = 15)
        : m_art(art), m_tpp(tpp) {}
    std::vector<Zeichnung> protokoll;

    CanvasArt Art() const override { return m_art; }
    double Width() const override { return 9000; }
    double Height() const override { return 6000; }
    double TwipsPerPixelX() const override { return m_tpp; }
    double TwipsPerPixelY() const override { return m_tpp; }
    void Cls() override { protokoll.push_back({"Cls", {}, {}, {}, ForeColor, FillColor, FillStyle}); }
    void Line(double x1, double y1, double x2, double y2, CanvasFarbe farbe, LineForm) override {
        protokoll.push_back({"Line",
                             {QPoint(static_cast<int>(x1), static_cast<int>(y1)),
                              QPoint(static_cast<int>(x2), static_cast<int>(y2))},
                             {},
                             {},
                             farbe == -1 ? ForeColor : farbe,
                             FillColor,
                             FillStyle});
    }
    void Circle(double, double, double, CanvasFarbe) override {}
    void Print(const QString&) override {}
    double TextWidth(const QString&) override { return 0; }
    double TextHeight(const QString&) override { return 0; }
    void SetWindowOrgEx(int, int) override {}
    void OffsetWindowOrgEx(int, int) override {}
    QPoint WindowOrg() const override { return {}; }
    void SetBkMode(bool) override {}
    GdiHandle CreateFontIndirectA(const LogFont&) override { return 0; }
    GdiHandle SelectObject(GdiHandle) override { return 0; }
    void DeleteObject(GdiHandle) override {}
    QSize GetTextExtentPoint32A(const QString&) override { return {}; }
    int GetDeviceCaps(int) const override { return 96; }
    int SetTextCharacterExtra(int) override { return 0; }
    void TextOutA(int, int, const QString&) override {}
    GdiHandle CreateRectRgn(int, int, int, int) override { return 0; }
    GdiHandle CreatePolygonRgn(const std::vector<QPoint>&, PolyFillMode) override { return 0; }
    void SelectClipRgn(GdiHandle) override {}
    void OffsetClipRgn(int, int) override {}
    void Polyline(const std::vector<QPoint>& p) override { merke("Polyline", p); }
    void Polygon(const std::vector<QPoint>& p) override { merke("Polygon", p); }
    void Rectangle(int l, int t, int r, int b) override { merke("Rectangle", {{l, t}, {r, b}}); }
    void Ellipse(int l, int t, int r, int b) override { merke("Ellipse", {{l, t}, {r, b}}); }
    void RenderBild(const QImage& bild, const QRectF& twips) override {
        protokoll.push_back({"Bild", {}, twips, bild, ForeColor, FillColor, FillStyle});
    }

private:
    void merke(const char* art, std::vector<QPoint> p) {
        protokoll.push_back({art, std::move(p), {}, {}, ForeColor, FillColor, FillStyle});
    }
    CanvasArt m_art;
    double m_tpp;
};

} // namespace zp::test
