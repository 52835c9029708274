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

// PictureSeite: shows the composed page.
class Seitenbild : public QWidget {
    Q_OBJECT
public:
    explicit Seitenbild(QWidget* parent = nullptr);
    void BildSetzen(QImage bild);
    [[nodiscard]] const QImage& Bild() const { return m_bild; }
    [[nodiscard]] QSize sizeHint() const override { return m_bild.size(); }

signals:
    // The pointer over the page, in pixels of the picture.
    void zeigerBewegt(QPoint pixel);

protected:
    void paintEvent(QPaintEvent*) override;
    void mouseMoveEvent(QMouseEvent* e) override;

private:
    QImage m_bild;
};

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
