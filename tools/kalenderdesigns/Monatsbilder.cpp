#include "Monatsbilder.h"

#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <QRadialGradient>
#include <QRandomGenerator>
#include <cmath>

namespace zp::werkzeug {

namespace {

struct Palette {
    QColor himmelOben, himmelHorizont, sonne, fern, mitte, nah, akzent;
    bool schnee, blueten, baeume, wasser;
};

Palette PaletteFuer(int m) {
    switch (m) {
    case 1:
        return {QColor(70, 110, 170),
                QColor(214, 226, 240),
                QColor(255, 250, 235),
                QColor(176, 192, 214),
                QColor(222, 232, 244),
                QColor(246, 249, 252),
                QColor(90, 110, 130),
                true,
                false,
                true,
                false};
    case 2:
        return {QColor(110, 130, 180),
                QColor(240, 214, 220),
                QColor(255, 236, 214),
                QColor(160, 172, 200),
                QColor(214, 222, 238),
                QColor(240, 244, 250),
                QColor(80, 90, 110),
                true,
                false,
                true,
                false};
    case 3:
        return {QColor(96, 150, 210),
                QColor(226, 238, 244),
                QColor(255, 244, 200),
                QColor(150, 180, 170),
                QColor(130, 176, 110),
                QColor(96, 150, 80),
                QColor(250, 220, 90),
                false,
                true,
                false,
                false};
    case 4:
        return {QColor(80, 150, 220),
                QColor(220, 236, 246),
                QColor(255, 246, 210),
                QColor(150, 190, 200),
                QColor(120, 190, 110),
                QColor(80, 160, 80),
                QColor(250, 170, 200),
                false,
                true,
                true,
                false};
    case 5:
        return {QColor(60, 140, 220),
                QColor(210, 232, 246),
                QColor(255, 248, 220),
                QColor(130, 180, 190),
                QColor(100, 180, 90),
                QColor(60, 140, 60),
                QColor(255, 230, 90),
                false,
                true,
                true,
                true};
    case 6:
        return {QColor(40, 120, 210),
                QColor(200, 228, 246),
                QColor(255, 250, 220),
                QColor(120, 170, 190),
                QColor(170, 196, 90),
                QColor(110, 160, 60),
                QColor(230, 60, 60),
                false,
                true,
                false,
                true};
    case 7:
        return {QColor(30, 110, 200),
                QColor(190, 224, 246),
                QColor(255, 244, 200),
                QColor(110, 160, 190),
                QColor(226, 196, 90),
                QColor(200, 160, 60),
                QColor(120, 90, 200),
                false,
                true,
                false,
                true};
    case 8:
        return {QColor(60, 100, 180),
                QColor(250, 214, 160),
                QColor(255, 220, 150),
                QColor(150, 140, 170),
                QColor(214, 170, 80),
                QColor(170, 130, 60),
                QColor(250, 200, 60),
                false,
                false,
                true,
                true};
    case 9:
        return {QColor(80, 120, 180),
                QColor(240, 220, 190),
                QColor(255, 226, 170),
                QColor(150, 160, 170),
                QColor(170, 170, 90),
                QColor(130, 130, 60),
                QColor(220, 120, 40),
                false,
                false,
                true,
                false};
    case 10:
        return {QColor(90, 100, 150),
                QColor(246, 196, 150),
                QColor(255, 200, 130),
                QColor(150, 120, 130),
                QColor(200, 120, 60),
                QColor(150, 80, 40),
                QColor(230, 90, 30),
                false,
                false,
                true,
                false};
    case 11:
        return {QColor(90, 96, 120),
                QColor(206, 196, 196),
                QColor(250, 226, 200),
                QColor(130, 130, 140),
                QColor(140, 120, 100),
                QColor(100, 86, 70),
                QColor(170, 110, 60),
                false,
                false,
                true,
                true};
    default:
        return {QColor(40, 50, 100),
                QColor(190, 170, 200),
                QColor(255, 240, 220),
                QColor(150, 160, 190),
                QColor(210, 220, 238),
                QColor(244, 247, 252),
                QColor(60, 100, 70),
                true,
                false,
                true,
                false};
    }
}

// A soft hill line: a sum of sines over the width, `hoehe` the mean line as a share of the picture.
QPainterPath Huegel(const QSize& g, double hoehe, double welle, double phase, QRandomGenerator& z) {
    QPainterPath p;
    const double w = g.width(), h = g.height();
    const double f1 = 1.5 + z.bounded(1.5), f2 = 3 + z.bounded(3.0);
    p.moveTo(0, h);
    for (int x = 0; x <= g.width(); x += 4) {
        const double t = x / w;
        const double y = h * hoehe - welle * h *
                                         (0.6 * std::sin(2 * M_PI * f1 * t + phase) +
                                          0.25 * std::sin(2 * M_PI * f2 * t + 2 * phase));
        p.lineTo(x, y);
    }
    p.lineTo(w, h);
    p.closeSubpath();
    return p;
}

void Baum(QPainter& p, QPointF fuss, double groesse, const QColor& krone, bool nadel) {
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(90, 70, 50));
    p.drawRect(QRectF(fuss.x() - groesse * 0.06, fuss.y() - groesse * 0.4, groesse * 0.12, groesse * 0.4));
    p.setBrush(krone);
    if (nadel) {
        QPolygonF tanne;
        tanne << QPointF(fuss.x(), fuss.y() - groesse * 1.3)
              << QPointF(fuss.x() + groesse * 0.35, fuss.y() - groesse * 0.3)
              << QPointF(fuss.x() - groesse * 0.35, fuss.y() - groesse * 0.3);
        p.drawPolygon(tanne);
    } else {
        p.drawEllipse(QPointF(fuss.x(), fuss.y() - groesse * 0.75), groesse * 0.38, groesse * 0.45);
    }
}

} // namespace

QImage Monatsbild(int monat, QSize g) {
    QImage bild(g, QImage::Format_RGB32);
    const Palette pal = PaletteFuer(monat);
    QRandomGenerator z(static_cast<quint32>(1000 + monat * 37));
    QPainter p(&bild);
    p.setRenderHint(QPainter::Antialiasing);
    const double w = g.width(), h = g.height();

    QLinearGradient himmel(0, 0, 0, h * 0.7);
    himmel.setColorAt(0, pal.himmelOben);
    himmel.setColorAt(1, pal.himmelHorizont);
    p.fillRect(bild.rect(), himmel);

    // The sun low in winter, high in summer, with a soft glow.
    const double sonnenhoehe = 0.42 - 0.25 * std::sin(M_PI * (monat - 0.5) / 12.0);
    const QPointF sonne(w * (0.25 + 0.5 * z.bounded(1.0)), h * sonnenhoehe);
    QRadialGradient glut(sonne, h * 0.35);
    QColor innen = pal.sonne;
    innen.setAlpha(200);
    QColor aussen = pal.sonne;
    aussen.setAlpha(0);
    glut.setColorAt(0, innen);
    glut.setColorAt(1, aussen);
    p.setPen(Qt::NoPen);
    p.setBrush(glut);
    p.drawEllipse(sonne, h * 0.35, h * 0.35);
    p.setBrush(pal.sonne);
    p.drawEllipse(sonne, h * 0.05, h * 0.05);

    // Three layers of hills, far to near.
    const double phase = z.bounded(6.28);
    p.setBrush(pal.fern);
    p.drawPath(Huegel(g, 0.58, 0.08, phase, z));
    if (pal.wasser) {
        QLinearGradient see(0, h * 0.66, 0, h * 0.8);
        see.setColorAt(0, pal.himmelHorizont.darker(110));
        see.setColorAt(1, pal.himmelOben);
        p.setBrush(see);
        p.drawRect(QRectF(0, h * 0.66, w, h * 0.2));
    }
    QLinearGradient mitte(0, h * 0.6, 0, h);
    mitte.setColorAt(0, pal.mitte.lighter(110));
    mitte.setColorAt(1, pal.mitte.darker(115));
    p.setBrush(mitte);
    p.drawPath(Huegel(g, 0.74, 0.06, phase + 1.7, z));

    if (pal.baeume)
        for (int i = 0; i < 9; ++i) {
            const double x = w * (0.05 + 0.9 * z.bounded(1.0));
            const double gr = h * (0.09 + 0.06 * z.bounded(1.0));
            QColor krone = pal.schnee ? QColor(60, 90, 80) : pal.akzent;
            if (!pal.schnee && monat >= 4 && monat <= 8) krone = pal.nah.darker(130 + z.bounded(30));
            Baum(p, QPointF(x, h * (0.76 + 0.04 * z.bounded(1.0))), gr, krone, pal.schnee || monat == 11);
        }

    QLinearGradient nah(0, h * 0.8, 0, h);
    nah.setColorAt(0, pal.nah);
    nah.setColorAt(1, pal.nah.darker(125));
    p.setBrush(nah);
    p.drawPath(Huegel(g, 0.88, 0.04, phase + 3.1, z));

    // Flowers in spring and summer, snowflakes in winter, falling leaves in autumn.
    if (pal.blueten)
        for (int i = 0; i < 260; ++i) {
            const QPointF pt(w * z.bounded(1.0), h * (0.86 + 0.14 * z.bounded(1.0)));
            QColor c = i % 3 == 0 ? QColor(255, 255, 255) : pal.akzent;
            p.setBrush(c);
            p.drawEllipse(pt, h * 0.006, h * 0.006);
        }
    if (pal.schnee)
        for (int i = 0; i < 220; ++i) {
            p.setBrush(QColor(255, 255, 255, 150 + z.bounded(100)));
            p.drawEllipse(QPointF(w * z.bounded(1.0), h * z.bounded(0.9)), h * 0.004, h * 0.004);
        }
    if (monat >= 9 && monat <= 11)
        for (int i = 0; i < 70; ++i) {
            QColor c = pal.akzent;
            c.setAlpha(200);
            p.setBrush(c);
            p.drawEllipse(QPointF(w * z.bounded(1.0), h * (0.2 + 0.7 * z.bounded(1.0))), h * 0.007,
                          h * 0.004);
        }
    p.end();
    return bild;
}

} // namespace zp::werkzeug
