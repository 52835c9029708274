#pragma once
// The page view: PictureSeite inside the scrolling viewport VSView, the rulers PictureLinealX and
// PictureLinealY, and the marker Rahmen around the current frame. The page is composed into an
// image only when something changed; painting just shows that image, so nothing flickers.

#include <QImage>
#include <QScrollArea>
#include <QWidget>
#include <functional>

class QFrame;

namespace zp {

struct AppState;
struct Mausantwort;
class Oberflaeche;

// PictureSeite: shows the composed page, and takes the mouse and keys for editing its frames.
// While a frame is dragged or drawn only the outline over the last picture is painted anew; the
// page itself is composed again on release.
class Seitenbild : public QWidget {
    Q_OBJECT
public:
    explicit Seitenbild(QWidget* parent = nullptr);
    void BildSetzen(QImage bild);
    [[nodiscard]] const QImage& Bild() const { return m_bild; }
    [[nodiscard]] QSize sizeHint() const override { return m_bild.size(); }
    // The frames of `s` become editable: mouse, Delete and the arrow keys call the commands.
    void Bearbeiten(AppState& s, Oberflaeche& ui);

signals:
    // The status panels "x = ", "y = ": whole tenths of a millimetre.
    void statusGeaendert(int x, int y);
    // A right click on the page: PopSchrift at `global`, "Verankern" checked when `verankert`.
    void kontextmenue(QPoint global, bool verankert);

protected:
    void paintEvent(QPaintEvent*) override;
    void mousePressEvent(QMouseEvent* e) override;
    void mouseMoveEvent(QMouseEvent* e) override;
    void mouseReleaseEvent(QMouseEvent* e) override;
    void keyPressEvent(QKeyEvent* e) override;

private:
    QPointF Twips(QPointF pixel) const;
    QPointF Eingefangen(QMouseEvent* e);
    void Umsetzen(const Mausantwort& a, QMouseEvent* e);
    void UmrissAktualisieren();

    QImage m_bild;
    AppState* m_s = nullptr;
    Oberflaeche* m_ui = nullptr;
    bool m_gefangen = false;
    QRect m_grenze; // the visible part of the page while the pointer is held on it
    QRect m_umriss; // the outline as last painted, pixels
};

// The Qt pointer shape for a mouse pointer number.
[[nodiscard]] Qt::CursorShape Zeigerform(int zeiger);

// PictureLinealX / PictureLinealY: ticks every 1 or 2 mm and every centimetre, from the page's
// origin; they don't follow the scrolling.
class Lineal : public QWidget {
    Q_OBJECT
public:
    Lineal(Qt::Orientation richtung, QWidget* parent = nullptr);
    void ZoomSetzen(double zoom, double twipsJePixel);

protected:
    void paintEvent(QPaintEvent*) override;

private:
    Qt::Orientation m_richtung;
    double m_zoom = 100;
    double m_twipsJePixel = 15;
};

// The whole page area: the rulers and VSView with PictureSeite and the marker.
class Seitenansicht : public QWidget {
    Q_OBJECT
public:
    explicit Seitenansicht(QWidget* parent = nullptr);

    [[nodiscard]] QScrollArea* VSView() const { return m_view; }
    [[nodiscard]] Seitenbild* PictureSeite() const { return m_bild; }
    [[nodiscard]] QFrame* Rahmen() const { return m_rahmen; }
    // The viewport's client size in twips, for the zoom fits.
    [[nodiscard]] QSizeF ViewportTwips(double twipsJePixel) const;
    void RulerZoom(double zoom, double twipsJePixel);

private:
    QScrollArea* m_view;
    Seitenbild* m_bild;
    QFrame* m_rahmen;
    Lineal* m_x;
    Lineal* m_y;
};

} // namespace zp
