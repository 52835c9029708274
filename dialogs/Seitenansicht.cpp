#include "dialogs/Seitenansicht.h"

#include "compose/Ziehumriss.h"
#include "core/Mausbearbeitung.h"
#include "core/Rahmenbefehle.h"
#include "core/state/AppState.h"
#include "core/state/Massstab.h"
#include "core/state/Zoom.h"

#include <QCursor>
#include <QFrame>
#include <QGridLayout>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>

#include <algorithm>
#include <cmath>

namespace zp {

Seitenbild::Seitenbild(QWidget* parent) : QWidget(parent) {
    setObjectName(QStringLiteral("PictureSeite"));
    setMouseTracking(true);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setFocusPolicy(Qt::ClickFocus);
    // The context menu opens on the release of the right button, from the editing.
    setContextMenuPolicy(Qt::PreventContextMenu);
}

void Seitenbild::BildSetzen(QImage bild) {
    m_bild = std::move(bild);
    setFixedSize(m_bild.size());
    update();
}

void Seitenbild::Bearbeiten(AppState& s, Oberflaeche& ui) {
    m_s = &s;
    m_ui = &ui;
}

Qt::CursorShape Zeigerform(int zeiger) {
    switch (zeiger) {
    case 2:
        return Qt::CrossCursor;
    case 6:
        return Qt::SizeBDiagCursor;
    case 7:
        return Qt::SizeVerCursor;
    case 8:
        return Qt::SizeFDiagCursor;
    case 9:
        return Qt::SizeHorCursor;
    case 11:
        return Qt::WaitCursor;
    case 15:
        return Qt::SizeAllCursor;
    default:
        return Qt::ArrowCursor;
    }
}

void Seitenbild::paintEvent(QPaintEvent* e) {
    QPainter p(this);
    MaleSeiteMitUmriss(p, m_bild, e->rect(), m_umriss);
}

QPointF Seitenbild::Twips(QPointF pixel) const {
    const double tx = m_s->TwipsProPixelX > 0 ? m_s->TwipsProPixelX : 15;
    const double ty = m_s->TwipsProPixelY > 0 ? m_s->TwipsProPixelY : 15;
    return {pixel.x() * tx, pixel.y() * ty};
}

// While a button is held the pointer stays on the visible part of the page: a position outside
// is taken at the edge, and the pointer is put back there.
QPointF Seitenbild::Eingefangen(QMouseEvent* e) {
    QPointF p = e->position();
    if (!m_gefangen || m_grenze.isEmpty()) return p;
    const QPointF innen(std::clamp(p.x(), double(m_grenze.left()), double(m_grenze.right())),
                        std::clamp(p.y(), double(m_grenze.top()), double(m_grenze.bottom())));
    if (innen != p) {
        QCursor::setPos(mapToGlobal(innen.toPoint()));
        p = innen;
    }
    return p;
}

void Seitenbild::UmrissAktualisieren() {
    const QRect neu = UmrissPixel(*m_s);
    if (neu == m_umriss) return;
    const QRegion streifen = Umrissstreifen(m_umriss, neu);
    m_umriss = neu;
    update(streifen);
}

void Seitenbild::Umsetzen(const Mausantwort& a, QMouseEvent* e) {
    if (a.einfangen) {
        m_gefangen = true;
        m_grenze = visibleRegion().boundingRect().intersected(rect());
        grabMouse();
    }
    if (a.freigeben) {
        m_gefangen = false;
        releaseMouse();
    }
    if (a.umriss) UmrissAktualisieren();
    if (a.zeiger >= 0) setCursor(Zeigerform(a.zeiger));
    if (m_s->Auswahlmodus == 1) setCursor(Qt::CrossCursor);
    if (a.status) emit statusGeaendert(a.statusX, a.statusY);
    if (a.kontextmenue) emit kontextmenue(mapToGlobal(e->position().toPoint()), a.verankert);
}

namespace {
int Knopf(Qt::MouseButton b) {
    switch (b) {
    case Qt::LeftButton:
        return Maustaste::Links;
    case Qt::RightButton:
        return Maustaste::Rechts;
    default:
        return Maustaste::Mitte;
    }
}
int Knoepfe(Qt::MouseButtons b) {
    return (b & Qt::LeftButton ? Maustaste::Links : 0) | (b & Qt::RightButton ? Maustaste::Rechts : 0) |
           (b & ~(Qt::LeftButton | Qt::RightButton) ? Maustaste::Mitte : 0);
}
} // namespace

void Seitenbild::mousePressEvent(QMouseEvent* e) {
    if (!m_s) return QWidget::mousePressEvent(e);
    setFocus(Qt::MouseFocusReason);
    const QPointF t = Twips(e->position());
    Umsetzen(MausGedrueckt(*m_s, *m_ui, Knopf(e->button()), t.x(), t.y()), e);
}

void Seitenbild::mouseMoveEvent(QMouseEvent* e) {
    if (!m_s) return QWidget::mouseMoveEvent(e);
    const QPointF t = Twips(Eingefangen(e));
    Umsetzen(MausBewegt(*m_s, *m_ui, Knoepfe(e->buttons()), t.x(), t.y()), e);
}

void Seitenbild::mouseReleaseEvent(QMouseEvent* e) {
    if (!m_s) return QWidget::mouseReleaseEvent(e);
    const QPointF t = Twips(Eingefangen(e));
    // Let the pointer go first: the release may open a dialog.
    m_gefangen = false;
    releaseMouse();
    Umsetzen(MausLosgelassen(*m_s, *m_ui, Knopf(e->button()), t.x(), t.y()), e);
    UmrissAktualisieren();
}

void Seitenbild::keyPressEvent(QKeyEvent* e) {
    if (!m_s) return QWidget::keyPressEvent(e);
    const bool raster = e->modifiers() & Qt::ShiftModifier;
    switch (e->key()) {
    case Qt::Key_Delete:
        DeleteFrame(*m_s, *m_ui);
        break;
    case Qt::Key_Left:
        PfeilBewegen(*m_s, *m_ui, -1, 0, raster);
        break;
    case Qt::Key_Right:
        PfeilBewegen(*m_s, *m_ui, 1, 0, raster);
        break;
    case Qt::Key_Up:
        PfeilBewegen(*m_s, *m_ui, 0, -1, raster);
        break;
    case Qt::Key_Down:
        PfeilBewegen(*m_s, *m_ui, 0, 1, raster);
        break;
    default:
        return QWidget::keyPressEvent(e);
    }
    // The status panels show where the frame stands now, as after a drag.
    const double f = Massstab::Ansicht(*m_s).twipsJeZehntel;
    if (f > 0)
        emit statusGeaendert(static_cast<int>(std::floor(m_s->Rahmen.Left / f + 1e-9)),
                             static_cast<int>(std::floor(m_s->Rahmen.Top / f + 1e-9)));
    e->accept();
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
