#pragma once
// The canvas over a QPainter: every operation of canvas.h with the meaning the device context
// gives it. Device pixels are the painter's own coordinates; twips are divided by the twips per
// pixel of the device. The image canvas and the printer canvas are built on it.

#include "compose/canvas/GdiObjekte.h"
#include "compose/canvas/Stufenplan.h"
#include "compose/canvas/Textsatzcache.h"
#include "compose/canvas/Zeichnung.h"
#include "compose/canvas/canvas.h"

#include <QFont>
#include <QPainter>
#include <deque>
#include <memory>
#include <optional>
#include <vector>

namespace zp {

class PainterCanvas : public Canvas {
public:
    // Draws on `geraet` with a painter of its own, begun here and ended in the destructor.
    PainterCanvas(QPaintDevice& geraet, CanvasArt art, double twipsProPixelX, double twipsProPixelY);
    // Draws with a painter that the caller has begun and keeps.
    PainterCanvas(QPainter& painter, CanvasArt art, double twipsProPixelX, double twipsProPixelY);
    ~PainterCanvas() override;
    PainterCanvas(const PainterCanvas&) = delete;
    PainterCanvas& operator=(const PainterCanvas&) = delete;

    [[nodiscard]] CanvasArt Art() const override { return m_art; }
    [[nodiscard]] double Width() const override;
    [[nodiscard]] double Height() const override;
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
    void SetBkMode(bool transparent) override { m_transparent = transparent; }

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

    void NeueStufe() override;
    void StufenEnde() override;

    void RenderBild(const QImage& bild, const QRectF& twips) override;

    // Stepped effects are drawn step by step as they come, leaving nothing out (for comparisons).
    void SetzeStufenSparen(bool sparen) { m_stufenSparen = sparen; }

    // The QFont that a logical font record stands for on this device.
    [[nodiscard]] static QFont QtSchrift(const LogFont& font);
    // 0x00BBGGRR to a Qt colour; -1 is transparent.
    [[nodiscard]] static QColor QtFarbe(CanvasFarbe farbe);

protected:
    [[nodiscard]] QPainter& Painter() { return *m_painter; }
    // Ends the own painter (before the device goes away) and starts one on a new device.
    void NeuesGeraet(QPaintDevice& geraet);
    void BeendeMaler();
    // Puts origin and clip back into a painter that was ended and begun again (a new page).
    void ZustandWiederherstellen();

private:
    void Einrichten();
    [[nodiscard]] int Px(double twips, double tpp) const;
    // Pen, brush and composition of a figure drawn now, from the picture-box properties.
    void StiftUndPinsel(Zeichnung& z, bool mitPinsel) const;
    // The font of Print and TextOutA: the selected device font, else the picture-box font.
    const Zeichensatz& AktuelleSchrift(bool geraeteschrift);
    const Zeichensatz& Schriftsatz(const LogFont& lf, int extra);
    [[nodiscard]] int Textbreite(const Zeichensatz& zs, const QString& text);
    void Text(int x, int y, const QString& text, const Zeichensatz& zs, double drehung);
    // The turn of the selected device font, degrees counter-clockwise.
    [[nodiscard]] double Drehung() const;

    // Draws now, or keeps it for the step it belongs to.
    void Ausgeben(Zeichnung z);
    void Zeichne(QPainter& p, const Zeichnung& z);
    void ZeichneText(QPainter& p, const Zeichnung& z);
    // Draws what the steps kept, leaving out what later steps cover.
    void StufenAusgeben();
    // The run as one figure coloured by bands, on a picture of its own laid over the page.
    bool AlsSchichtZeichnen(const std::vector<Stufe>& stufen, const Schichtplan& plan);
    void ClipAnwenden();
    void ClipSetzen(const std::optional<Clipflaeche>& clip);

    std::unique_ptr<QPainter> m_eigenerMaler;
    QPainter* m_painter = nullptr;
    CanvasArt m_art;
    double m_tppX, m_tppY;
    QPoint m_ursprung;
    bool m_transparent = true;
    int m_zeichenabstand = 0;
    GdiObjekte m_objekte;
    GdiHandle m_gewaehlteSchrift = 0;
    std::optional<Clipflaeche> m_clip;

    // Stepped effects: the steps kept so far while a run is open.
    bool m_stufenSparen = true;
    bool m_stufenOffen = false;
    std::vector<Stufe> m_stufen;

    // Fonts by their logical record, and measures and laid-out strings by font and text: a
    // calendar page sets the same few fonts and strings again and again, and shadows and
    // gradients draw the same text a hundred times.
    struct Schrifteintrag {
        LogFont lf;
        int extra = 0;
        Zeichensatz satz;
    };
    std::deque<Schrifteintrag> m_schriften;
    int m_naechsteSchrift = 1;
    Textsatzcache m_saetze;
};

} // namespace zp
