#include "dialogs/Seitenansicht.h"

#include "core/state/Zoom.h"

#include <QFrame>
#include <QGridLayout>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>

namespace zp {

Seitenbild::Seitenbild(QWidget* parent) : QWidget(parent) {
    setObjectName(QStringLiteral("PictureSeite"));
    setMouseTracking(true);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setFocusPolicy(Qt::ClickFocus);
}

void Seitenbild::BildSetzen(QImage bild) {
    m_bild = std::move(bild);
    setFixedSize(m_bild.size());
    update();
}

void Seitenbild::paintEvent(QPaintEvent* e) {
    QPainter p(this);
    p.drawImage(e->rect().topLeft(), m_bild, e->rect());
}

void Seitenbild::mouseMoveEvent(QMouseEvent* e) {
    emit zeigerBewegt(e->position().toPoint());
    QWidget::mouseMoveEvent(e);
}

Lineal::Lineal(Qt::Orientation richtung, QWidget* parent) : QWidget(parent), m_richtung(richtung) {
    setObjectName(richtung == Qt::Horizontal ? QStringLiteral("PictureLinealX")
                                             : QStringLiteral("PictureLinealY"));
    if (richtung == Qt::Horizontal)
        setFixedHeight(8);
    else
        setFixedWidth(8);
    setAttribute(Qt::WA_OpaquePaintEvent);
}

void Lineal::ZoomSetzen(double zoom, double twipsJePixel) {
    m_zoom = zoom;
    m_twipsJePixel = twipsJePixel > 0 ? twipsJePixel : 15;
    update();
}

void Lineal::paintEvent(QPaintEvent*) {
    QPainter p(this);
    p.fillRect(rect(), Qt::white);
    p.setPen(Qt::black);
    const bool waagrecht = m_richtung == Qt::Horizontal;
    const double laenge = (waagrecht ? width() : height()) * m_twipsJePixel;
    for (const Linealstrich& s : Linealstriche(m_zoom, laenge)) {
        const double pos = s.pos / m_twipsJePixel;
        const double l = s.laenge / m_twipsJePixel;
        if (waagrecht)
            p.drawLine(QPointF(pos, 0), QPointF(pos, l));
        else
            p.drawLine(QPointF(0, pos), QPointF(l, pos));
    }
}

Seitenansicht::Seitenansicht(QWidget* parent) : QWidget(parent) {
    m_view = new QScrollArea(this);
    m_view->setObjectName(QStringLiteral("VSView"));
    m_view->setBackgroundRole(QPalette::Dark);
    m_view->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    m_bild = new Seitenbild;
    m_view->setWidget(m_bild);
    m_rahmen = new QFrame(m_bild);
    m_rahmen->setObjectName(QStringLiteral("Rahmen"));
    m_rahmen->setFrameShape(QFrame::Box);
    m_rahmen->setStyleSheet(
        QStringLiteral("QFrame#Rahmen { border: 1px dashed #2060c0; background: transparent; }"));
    m_rahmen->setAttribute(Qt::WA_TransparentForMouseEvents);
    m_rahmen->hide();
    m_x = new Lineal(Qt::Horizontal, this);
    m_y = new Lineal(Qt::Vertical, this);
    auto* l = new QGridLayout(this);
    l->setContentsMargins(0, 0, 0, 0);
    l->setSpacing(0);
    l->addWidget(m_x, 0, 1);
    l->addWidget(m_y, 1, 0);
    l->addWidget(m_view, 1, 1);
}

QSizeF Seitenansicht::ViewportTwips(double twipsJePixel) const {
    const QSize s = m_view->maximumViewportSize();
    return QSizeF(s.width() * twipsJePixel, s.height() * twipsJePixel);
}

void Seitenansicht::RulerZoom(double zoom, double twipsJePixel) {
    m_x->ZoomSetzen(zoom, twipsJePixel);
    m_y->ZoomSetzen(zoom, twipsJePixel);
}

} // namespace zp
