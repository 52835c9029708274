// The drag outline over the page picture: where it lies and what a move paints again.
#include "compose/Ziehumriss.h"
#include "core/state/AppState.h"

#include <QPainter>
#include <gtest/gtest.h>

namespace zp {
namespace {

TEST(Ziehumriss, NurWaehrendEinesZugsUndAuchMitGekreuztenKanten) {
    AppState s;
    s.BoxLinks = 300, s.BoxRechts = 150, s.BoxOben = 30, s.BoxUnten = 330; // right edge dragged past the left
    EXPECT_TRUE(UmrissPixel(s).isNull());
    s.ZiehenAktiv = 1;
    EXPECT_EQ(UmrissPixel(s), QRect(10, 2, 10, 20));
    s.ZiehenAktiv = 0;
    s.Auswahlmodus = 2; // a new box being drawn
    EXPECT_EQ(UmrissPixel(s), QRect(10, 2, 10, 20));
}

TEST(Ziehumriss, EinZugMaltNurDieStreifenDesAltenUndNeuenUmrisses) {
    const QRect alt(10, 10, 40, 30), neu(20, 15, 40, 30);
    const QRegion streifen = Umrissstreifen(alt, neu);
    EXPECT_TRUE(streifen.contains(QPoint(10, 25)));  // old left edge
    EXPECT_TRUE(streifen.contains(QPoint(59, 30)));  // new right edge
    EXPECT_FALSE(streifen.contains(QPoint(35, 28))); // the inside stays as it is
    EXPECT_TRUE(Umrissstreifen(QRect(), QRect()).isEmpty());

    QImage seite(80, 60, QImage::Format_RGB32);
    seite.fill(Qt::black);
    QImage fenster(80, 60, QImage::Format_RGB32);
    fenster.fill(Qt::red);
    QPainter p(&fenster);
    for (const QRect& r : streifen)
        MaleSeiteMitUmriss(p, seite, r, neu);
    p.end();
    EXPECT_EQ(fenster.pixel(35, 28), qRgb(255, 0, 0)); // not painted
    EXPECT_EQ(fenster.pixel(10, 25), qRgb(0, 0, 0));   // the old outline wiped by the page
    const QRgb kante = fenster.pixel(20, 30);          // the new outline on the page's black
    EXPECT_NE(kante, qRgb(0, 0, 0));
    EXPECT_NE(kante, qRgb(255, 0, 0));
}

} // namespace
} // namespace zp
