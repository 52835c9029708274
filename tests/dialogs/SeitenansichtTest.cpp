// The page view driven like a user: a shape inserted and its box drawn, a handle dragged, the
// frame moved, restacked, nudged with the keys, anchored, deleted and the edits undone.
#include "Attrappen.h"

#include "core/Auswahl.h"
#include "dialogs/Seitenansicht.h"

#include <QAction>
#include <QApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QMenu>
#include <QMouseEvent>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <cmath>
#include <gtest/gtest.h>
#include <memory>

namespace zp::test {
namespace {

// Closes the next modal dialog with Escape as soon as it shows, and keeps its name.
std::shared_ptr<QString> SchliesseDenDialog() {
    auto name = std::make_shared<QString>();
    auto* wache = new QTimer;
    QObject::connect(wache, &QTimer::timeout, [name, wache] {
        QWidget* d = QApplication::activeModalWidget();
        if (!d) return;
        *name = d->objectName();
        QKeyEvent druck(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
        QApplication::sendEvent(d, &druck);
        wache->deleteLater();
    });
    wache->start(10);
    return name;
}

struct Seitenfenster {
    explicit Seitenfenster(const QString& programmname) {
        Grundzustand(s, programmname, ordner.path());
        fenster = std::make_unique<TestFenster>(s);
        fenster->Laden();
        fenster->show();
        seite = fenster->Seite()->PictureSeite();
    }
    // A move with the left button held.
    void Ziehen(QPoint p) {
        QMouseEvent e(QEvent::MouseMove, p, seite->mapToGlobal(p), Qt::NoButton, Qt::LeftButton,
                      Qt::NoModifier);
        QApplication::sendEvent(seite, &e);
    }
    void Zug(QPoint von, QPoint nach) {
        QTest::mouseMove(seite, von);
        QTest::mousePress(seite, Qt::LeftButton, {}, von);
        Ziehen(von);
        Ziehen((von + nach) / 2);
        Ziehen(nach);
        QTest::mouseRelease(seite, Qt::LeftButton, {}, nach);
    }
    // Pixels of the page picture in tenths of a millimetre.
    double Zehntel(int pixel) const { return pixel * s.TwipsProPixelX / (s.Zoomfaktor / 100 * 5.67); }
    QString Status(int i) const {
        return fenster->findChild<QLabel*>(QStringLiteral("StatusBar_%1").arg(i))->text();
    }
    QTemporaryDir ordner;
    AppState s;
    std::unique_ptr<TestFenster> fenster;
    Seitenbild* seite = nullptr;
};

TEST(Seitenansicht, FormEinfuegenAufziehenZiehenStapelnUndZuruecknehmen) {
    Seitenfenster f(QStringLiteral("ZP Briefkopf"));
    // An empty letterhead: no frame of the layout under a click.
    for (int n = 1; n <= 31; ++n)
        f.s.Rahmenliste(n).Sichtbar = 0;
    for (const char* name :
         {"mnuLinieeinfügen", "mnuRahmenvorne", "mnuverankert", "popLoeschen", "mnuRueckgaengig"})
        EXPECT_TRUE(f.fenster->Aktion(QString::fromUtf8(name))->isEnabled()) << name;

    // Insert a shape and draw its box from (40, 50) to (140, 100) pixels.
    f.fenster->Aktion(QStringLiteral("mnuLinieeinfügen"))->trigger();
    ASSERT_EQ(f.s.RahmenAnzahl, 32);
    EXPECT_EQ(f.s.Auswahlmodus, 1);
    EXPECT_EQ(f.seite->cursor().shape(), Qt::CrossCursor);
    const auto dialog = SchliesseDenDialog();
    f.Zug({40, 50}, {140, 100});
    const ClassRahmen& r = f.s.Rahmenliste(32);
    EXPECT_NEAR(r.X, f.Zehntel(40), 0.01);
    EXPECT_NEAR(r.Y, f.Zehntel(50), 0.01);
    EXPECT_NEAR(r.Breite, f.Zehntel(100), 0.01);
    EXPECT_NEAR(r.Höhe, f.Zehntel(50), 0.01);
    EXPECT_EQ(r.Sichtbar, -1);
    EXPECT_EQ(*dialog, QStringLiteral("frmlinie")); // the shape dialog opened at once
    EXPECT_EQ(f.s.Auswahlmodus, 0);
    EXPECT_EQ(f.Status(2), QStringLiteral("x = %1").arg(static_cast<int>(f.Zehntel(40) + 1e-9)));

    // The bottom right handle: the pointer shows it, a drag makes the frame larger.
    QTest::mouseMove(f.seite, {139, 99});
    EXPECT_EQ(f.s.Griff, 5);
    EXPECT_EQ(f.seite->cursor().shape(), Qt::SizeFDiagCursor);
    f.Zug({139, 99}, {169, 119});
    EXPECT_NEAR(r.Breite, f.Zehntel(130), 0.01);
    EXPECT_NEAR(r.Höhe, f.Zehntel(70), 0.01);

    // Moved from the inside; the page is composed again only on release.
    f.Zug({90, 80}, {130, 120});
    EXPECT_NEAR(r.X, f.Zehntel(80), 0.01);
    EXPECT_NEAR(r.Y, f.Zehntel(90), 0.01);

    // To the back, a tenth to the right with the arrow key.
    f.fenster->Aktion(QStringLiteral("mnuRahmenhinten"))->trigger();
    EXPECT_EQ(r.z, 1);
    const double x = r.X;
    QTest::keyClick(f.seite, Qt::Key_Right);
    EXPECT_NEAR(r.X, x + 1, 1e-6);
    EXPECT_EQ(f.Status(2), QStringLiteral("x = %1").arg(static_cast<int>(std::floor(r.X + 1e-9))));

    // Anchored, it can't be dragged; the popup's mark shows it on a right click.
    f.fenster->Aktion(QStringLiteral("mnuverankert"))->trigger();
    EXPECT_EQ(r.Verankert, -1);
    f.Zug({130, 120}, {200, 200});
    EXPECT_NEAR(r.X, x + 1, 1e-6);
    EXPECT_EQ(f.s.RahmenNummer, 32);
    QTest::mouseClick(f.seite, Qt::RightButton, {}, {130, 120});
    auto* popup = f.fenster->findChild<QMenu*>(QStringLiteral("PopSchrift"));
    EXPECT_TRUE(popup->isVisible());
    EXPECT_TRUE(f.fenster->Aktion(QStringLiteral("mnuVerankern"))->isChecked());
    popup->hide();

    // Undo, step by step: anchoring, the nudge, the restacking, the move, the resize, the insertion.
    QAction* zurueck = f.fenster->Aktion(QStringLiteral("mnuRueckgaengig"));
    for (int i = 0; i < 5; ++i)
        zurueck->trigger();
    EXPECT_EQ(f.s.Rahmenliste(32).Verankert, 0);
    EXPECT_EQ(f.s.Rahmenliste(32).z, 32);
    EXPECT_NEAR(f.s.Rahmenliste(32).Breite, f.Zehntel(100), 0.01);
    zurueck->trigger();
    EXPECT_EQ(f.s.RahmenAnzahl, 31);
    f.fenster->Aktion(QStringLiteral("mnuWiederholen"))->trigger();
    EXPECT_EQ(f.s.RahmenAnzahl, 32);

    // Delete on the page asks first.
    f.s.RahmenNummer = 32;
    QTest::keyClick(f.seite, Qt::Key_Delete);
    EXPECT_EQ(f.fenster->fragen.last(), QStringLiteral("Soll dieser Rahmen wirklich gelöscht werden?"));
    EXPECT_EQ(f.s.RahmenAnzahl, 31);
}

TEST(Seitenansicht, KalendervorlageBearbeiten) {
    // With "Kalender Editieren" on, a template frame of the calendar is selected and moved.
    Seitenfenster f(QStringLiteral("ZP Kalender"));
    f.fenster->Aktion(QStringLiteral("mnukalendereditieren"))->trigger();
    ASSERT_NE(f.s.KalenderBearbeiten, 0);
    f.s.RahmenNummer = 1;
    ClassRahmen& r = f.s.Rahmenliste(1);
    r.X = 100, r.Y = 100, r.Breite = 400, r.Höhe = 200, r.Sichtbar = -1, r.Verankert = 0;
    f.fenster->Zeigen(Aenderung::Auswahl | Aenderung::Seite);
    UpdateSelection(f.s, f.fenster->Antworten());
    const int mitteX = static_cast<int>(f.s.Rahmen.Left / f.s.TwipsProPixelX + 20);
    const int mitteY = static_cast<int>(f.s.Rahmen.Top / f.s.TwipsProPixelY + 10);
    f.Zug({mitteX, mitteY}, {mitteX + 30, mitteY + 10});
    EXPECT_NEAR(r.X, 100 + f.Zehntel(30), 0.01);
}

} // namespace
} // namespace zp::test
