#include "Formatsymbole.h"

#include <QFont>
#include <QPainter>
#include <QPainterPath>
#include <QPixmap>

namespace zp {

namespace {

constexpr int Kante = 32; // drawn at twice the bar's size, so that it stays sharp when scaled
const QColor Tinte(40, 40, 40);

void Buchstabe(QPainter& p, const QString& text, bool fett, bool kursiv, bool unterstrichen) {
    QFont f(QStringLiteral("DejaVu Sans"));
    f.setPixelSize(24);
    f.setBold(fett);
    f.setItalic(kursiv);
    f.setUnderline(unterstrichen);
    p.setFont(f);
    p.setPen(Tinte);
    p.drawText(QRect(0, 0, Kante, Kante), Qt::AlignCenter, text);
}

// Four lines of text, ragged on the side that isn't aligned.
void Zeilen(QPainter& p, int ausrichtung) {
    static constexpr int laengen[4] = {26, 18, 26, 14};
    for (int i = 0; i < 4; ++i) {
        const int l = laengen[i];
        const int x = ausrichtung == 0 ? 3 : ausrichtung == 1 ? (Kante - l) / 2 : Kante - 3 - l;
        p.fillRect(x, 5 + i * 7, l, 3, Tinte);
    }
}

// A frame with a line of text at its top, middle or bottom.
void Senkrecht(QPainter& p, int ausrichtung) {
    p.setPen(QPen(QColor(120, 120, 120), 2));
    p.drawRect(4, 3, Kante - 8, Kante - 6);
    const int y = ausrichtung == 0 ? 7 : ausrichtung == 1 ? Kante / 2 - 2 : Kante - 11;
    p.fillRect(8, y, Kante - 16, 4, Tinte);
}

void Farbe(QPainter& p) {
    QFont f(QStringLiteral("DejaVu Sans"));
    f.setPixelSize(21);
    f.setBold(true);
    p.setFont(f);
    p.setPen(Tinte);
    p.drawText(QRect(0, 0, Kante, Kante - 8), Qt::AlignCenter, QStringLiteral("A"));
    p.fillRect(4, Kante - 8, Kante - 8, 6, QColor(210, 30, 30));
}

void Schatten(QPainter& p) {
    p.fillRect(10, 10, 18, 18, QColor(150, 150, 150));
    p.fillRect(4, 4, 18, 18, QColor(255, 255, 255));
    p.setPen(QPen(Tinte, 2));
    p.drawRect(4, 4, 18, 18);
}

void Winkel(QPainter& p) {
    p.setPen(QPen(Tinte, 2.5));
    p.drawLine(4, Kante - 5, Kante - 3, Kante - 5);
    p.drawLine(4, Kante - 5, Kante - 8, 6);
    p.setPen(QPen(QColor(30, 90, 200), 2.5));
    p.drawArc(QRectF(-8, Kante - 23, 36, 36), 0, 55 * 16);
}

void Position(QPainter& p) {
    p.setPen(QPen(QColor(120, 120, 120), 2, Qt::DashLine));
    p.drawRect(3, 3, Kante - 6, Kante - 6);
    p.setPen(QPen(Tinte, 2.5));
    const int m = Kante / 2;
    p.drawLine(m, 7, m, Kante - 7);
    p.drawLine(7, m, Kante - 7, m);
    for (const QPoint spitze : {QPoint(m, 7), QPoint(m, Kante - 7), QPoint(7, m), QPoint(Kante - 7, m)}) {
        const QPoint richtung = (QPoint(m, m) - spitze) / 4;
        const QPoint quer(richtung.y(), -richtung.x());
        p.drawLine(spitze, spitze + richtung + quer);
        p.drawLine(spitze, spitze + richtung - quer);
    }
}

void Loeschen(QPainter& p) {
    p.setPen(QPen(QColor(200, 30, 30), 4, Qt::SolidLine, Qt::RoundCap));
    p.drawLine(7, 7, Kante - 7, Kante - 7);
    p.drawLine(Kante - 7, 7, 7, Kante - 7);
}

void Schloss(QPainter& p) {
    p.setPen(QPen(Tinte, 3));
    p.drawArc(QRect(9, 3, 14, 18), 0, 180 * 16);
    p.drawLine(9, 12, 9, 15);
    p.drawLine(23, 12, 23, 15);
    p.fillRect(5, 15, 22, 14, QColor(200, 150, 30));
    p.setPen(QPen(Tinte, 2));
    p.drawRect(5, 15, 22, 14);
}

} // namespace

QIcon Formatsymbol(const QString& schluessel, const QString& thema) {
    if (!thema.isEmpty() && QIcon::hasThemeIcon(thema)) return QIcon::fromTheme(thema);
    QPixmap bild(Kante, Kante);
    bild.fill(Qt::transparent);
    QPainter p(&bild);
    p.setRenderHint(QPainter::Antialiasing);
    const QString& k = schluessel;
    if (k == u"fett")
        Buchstabe(p, QStringLiteral("F"), true, false, false);
    else if (k == u"italic")
        Buchstabe(p, QStringLiteral("K"), false, true, false);
    else if (k == u"underline")
        Buchstabe(p, QStringLiteral("U"), false, false, true);
    else if (k == u"links" || k == u"center" || k == u"rechts")
        Zeilen(p, k == u"links" ? 0 : k == u"center" ? 1 : 2);
    else if (k == u"textoben" || k == u"textcenter" || k == u"textunten")
        Senkrecht(p, k == u"textoben" ? 0 : k == u"textcenter" ? 1 : 2);
    else if (k == u"farbe")
        Farbe(p);
    else if (k == u"schatten")
        Schatten(p);
    else if (k == u"winkel")
        Winkel(p);
    else if (k == u"positionieren")
        Position(p);
    else if (k == QStringLiteral("löschen"))
        Loeschen(p);
    else if (k == u"gesperrt")
        Schloss(p);
    p.end();
    return QIcon(bild);
}

} // namespace zp
