#pragma once
// The one place that states the drawing operations. Every renderer draws through a Canvas:
// the page picture and dialog previews (image canvas), the printer (printer canvas), the export
// bitmap (image canvas of its own kind) and, in tests, the recording canvas.
//
// Two families of operations, with their units:
//  * picture-box operations (state, Cls, Line, Circle, Print, TextWidth/TextHeight) in twips
//    (1/1440 inch), converted to device pixels by TwipsPerPixelX/Y;
//  * device-context operations (fonts, TextOutA, regions, Polyline, Polygon, Rectangle, Ellipse,
//    window origin) in device pixels, as the drawing layer addresses the device directly.
// Colours are 0x00BBGGRR longs as the model keeps them; -1 is "no colour".

#include <QImage>
#include <QPoint>
#include <QRectF>
#include <QSize>
#include <QString>
#include <cstdint>
#include <vector>

namespace zp {

using CanvasFarbe = int32_t;

// Which surface a canvas is; renderers ask for it where screen, printer and export differ.
enum class CanvasArt {
    Bildschirm, // the page picture PictureSeite
    Vorschau,   // a dialog's preview box
    Drucker,    // the printer (or the PDF file)
    Export      // the export bitmap Lead2
};

// The logical font record of CreateFontIndirectA.
struct LogFont {
    int32_t lfHeight = 0; // negative: em height in device pixels
    int32_t lfWidth = 0;
    int32_t lfEscapement = 0; // tenths of a degree, counter-clockwise
    int32_t lfOrientation = 0;
    int32_t lfWeight = 400; // 400 normal, 700 bold, 800 extra bold
    uint8_t lfItalic = 0;
    uint8_t lfUnderline = 0;
    uint8_t lfStrikeOut = 0;
    uint8_t lfCharSet = 0;
    uint8_t lfOutPrecision = 0;
    uint8_t lfClipPrecision = 0;
    uint8_t lfQuality = 0;
    uint8_t lfPitchAndFamily = 0;
    QString lfFaceName;

    friend bool operator==(const LogFont&, const LogFont&) = default;
};

// Handles of fonts and regions, as the device context hands them out; 0 is no object.
using GdiHandle = int32_t;

enum class PolyFillMode { Alternate = 1, Winding = 2 };

// GetDeviceCaps indexes that the program asks for.
enum DeviceCap : int { LOGPIXELSX = 88, LOGPIXELSY = 90, PHYSICALOFFSETX = 112, PHYSICALOFFSETY = 113 };

class Canvas {
public:
    virtual ~Canvas() = default;

    [[nodiscard]] virtual CanvasArt Art() const = 0;

    // ---- Picture-box state ------------------------------------------------------------------
    CanvasFarbe ForeColor = 0;
    CanvasFarbe FillColor = 0;
    CanvasFarbe BackColor = 0xFFFFFF;
    int FillStyle = 1; // 0 solid, 1 transparent
    int DrawStyle = 0; // 0 solid, 1 dash, 2 dot, 5 transparent
    int DrawWidth = 1; // pixels
    int DrawMode = 13; // 13 copy pen
    QString FontName = QStringLiteral("Arial");
    double FontSize = 10; // points
    bool FontBold = false;
    bool FontItalic = false;
    bool FontUnderline = false;
    bool FontStrikethru = false;
    bool FontTransparent = true;
    double CurrentX = 0; // twips
    double CurrentY = 0;

    // Size of the surface, twips, and the device's twips per pixel.
    [[nodiscard]] virtual double Width() const = 0;
    [[nodiscard]] virtual double Height() const = 0;
    [[nodiscard]] virtual double TwipsPerPixelX() const = 0;
    [[nodiscard]] virtual double TwipsPerPixelY() const = 0;

    // ---- Picture-box methods, twips -----------------------------------------------------------
    // Clear to BackColor and reset the current point.
    virtual void Cls() = 0;
    // Line (x1, y1)-(x2, y2): colour -1 takes ForeColor. The four forms of the runtime:
    //  plain line; filled box without colour (ForeColor); filled box with colour; box outline.
    enum class LineForm { Linie, Kasten, KastenGefuellt };
    virtual void Line(double x1, double y1, double x2, double y2, CanvasFarbe farbe = -1,
                      LineForm form = LineForm::Linie) = 0;
    // Circle at (x, y) with radius r, outline in `farbe` (-1: ForeColor), filled per FillStyle/FillColor.
    virtual void Circle(double x, double y, double r, CanvasFarbe farbe = -1) = 0;
    // Writes `text` at CurrentX/CurrentY in the current font and ForeColor; moves CurrentY a line down.
    virtual void Print(const QString& text) = 0;
    [[nodiscard]] virtual double TextWidth(const QString& text) = 0;
    [[nodiscard]] virtual double TextHeight(const QString& text) = 0;

    // ---- Device-context operations, device pixels ---------------------------------------------
    virtual void SetWindowOrgEx(int x, int y) = 0;
    virtual void OffsetWindowOrgEx(int dx, int dy) = 0;
    [[nodiscard]] virtual QPoint WindowOrg() const = 0;
    virtual void SetBkMode(bool transparent) = 0;

    virtual GdiHandle CreateFontIndirectA(const LogFont& font) = 0;
    // Selects a font handle; returns the one selected before (0 for the stock font).
    virtual GdiHandle SelectObject(GdiHandle font) = 0;
    // Frees a font or region handle.
    virtual void DeleteObject(GdiHandle handle) = 0;
    [[nodiscard]] virtual QSize GetTextExtentPoint32A(const QString& text) = 0;
    [[nodiscard]] virtual int GetDeviceCaps(int index) const = 0;
    // Absolute extra space of n device pixels after each character; returns the former value.
    virtual int SetTextCharacterExtra(int n) = 0;
    // Text with the top-left of its cell at (x, y), turned about that point by the font's escapement;
    // colour is ForeColor.
    virtual void TextOutA(int x, int y, const QString& text) = 0;

    virtual GdiHandle CreateRectRgn(int left, int top, int right, int bottom) = 0;
    virtual GdiHandle CreatePolygonRgn(const std::vector<QPoint>& points, PolyFillMode mode) = 0;
    // Clip to the region (0: no clipping). Regions stay in device pixels, unmoved by the window origin.
    virtual void SelectClipRgn(GdiHandle region) = 0;
    virtual void OffsetClipRgn(int dx, int dy) = 0;

    // Pen: ForeColor, DrawWidth, DrawStyle. Brush: FillColor when FillStyle is 0, else hollow.
    virtual void Polyline(const std::vector<QPoint>& points) = 0;
    virtual void Polygon(const std::vector<QPoint>& points) = 0; // alternate fill
    virtual void Rectangle(int left, int top, int right, int bottom) = 0;
    virtual void Ellipse(int left, int top, int right, int bottom) = 0;

    // ---- Stepped effects ------------------------------------------------------------------------
    // Shadows and gradients draw one figure again and again, each step over the one before, in
    // another colour, at another place or through another clip. NeueStufe opens the next step,
    // StufenEnde closes the run. A canvas may use the marks to leave out what a later step covers
    // anyway; drawing every step as it comes is always right, so the marks may be ignored.
    virtual void NeueStufe() {}
    virtual void StufenEnde() {}

    // ---- Pictures -----------------------------------------------------------------------------
    // The imaging control's Render: the bitmap stretched to the rectangle, given in twips.
    virtual void RenderBild(const QImage& bild, const QRectF& twips) = 0;

    // ---- Size and pages ------------------------------------------------------------------------
    // Gives the surface a new size in twips: the export bitmap is sized by the composition; the
    // page picture, the previews and the printer keep theirs.
    virtual void SetzeGroesse(double breiteTwips, double hoeheTwips) { (void)breiteTwips, (void)hoeheTwips; }
    // Printer only; the others ignore them.
    virtual void NewPage() {}
    virtual void EndDoc() {}
};

} // namespace zp
