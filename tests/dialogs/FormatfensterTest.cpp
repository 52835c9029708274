// The format bar and the property dialogs in the main window: the bar follows the current frame,
// its keys open the dialog of the frame's kind on the right page, and the side panel's boxes select
// their frames unless a click on the page has chosen one.
#include "Attrappen.h"

#include "core/Auswahl.h"
#include "core/state/Objekte.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMap>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTimer>
#include <gtest/gtest.h>
#include <memory>

namespace zp::test {
namespace {

struct Fenster {
    explicit Fenster(const QString& programmname) {
        Grundzustand(s, programmname, ordner.path());
        // Frame 32 shows a shape, frame 33 a picture.
        ErzeugeLinie(s, 1);
        ErzeugeRahmen(s, 32, QStringLiteral("Linie"), 1);
        ErzeugeBild(s, 1);
        ErzeugeRahmen(s, 33, QStringLiteral("Bild"), 1);
        s.LinieAnzahl = 1;
        s.BildAnzahl = 1;
        fenster = std::make_unique<TestFenster>(s);
        fenster->Laden();
        fenster->show();
    }
    template <typename T> T* kind(const QString& name) { return fenster->findChild<T*>(name); }
    QAction* aktion(const QString& name) { return fenster->Aktion(name); }
    void Waehlen(int rahmen) {
        s.RahmenNummer = rahmen;
        UpdateSelection(s, fenster->Antworten());
    }
    QTemporaryDir ordner;
    AppState s;
    std::unique_ptr<TestFenster> fenster;
};

// What a modal dialog showed when it opened: its name and the page in front.
struct Geoeffnet {
    QString name;
    int seite = -1;
};

// Closes the next modal dialog with Escape and tells which one it was.
std::shared_ptr<Geoeffnet> SchliesseDenDialog(int taste = Qt::Key_Escape) {
    auto g = std::make_shared<Geoeffnet>();
    QTimer::singleShot(0, [g, taste] {
        QWidget* d = QApplication::activeModalWidget();
        if (!d) return;
        g->name = d->objectName();
        if (auto* seiten = d->findChild<QTabWidget*>()) g->seite = seiten->currentIndex() + 1;
        QKeyEvent druck(QEvent::KeyPress, taste, Qt::NoModifier);
        QApplication::sendEvent(d, &druck);
    });
    return g;
}

TEST(Formatfenster, DieLeisteFolgtDemAktuellenRahmen) {
    Fenster f("ZP Briefkopf");
    auto* combo1 = f.kind<QComboBox>("Combo1");
    auto* combo3 = f.kind<QComboBox>("Combo3");
    ASSERT_NE(combo1, nullptr);
    ASSERT_NE(combo3, nullptr);
    EXPECT_GT(combo1->count(), 0);
    EXPECT_EQ(combo3->count(), 33);

    f.s.Schriftliste(4).fontname = QStringLiteral("Arial");
    f.s.Schriftliste(4).FontSize = 18;
    f.s.Schriftliste(4).Italic = -1;
    f.s.Schriftliste(4).AusrichtungV = 2;
    f.Waehlen(4);
    EXPECT_TRUE(combo1->isEnabled());
    EXPECT_EQ(combo1->currentText(), "Arial");
    EXPECT_EQ(combo3->currentText(), "18");
    EXPECT_TRUE(f.aktion("Toolbar3_italic")->isChecked());
    EXPECT_FALSE(f.aktion("Toolbar3_fett")->isChecked());
    EXPECT_TRUE(f.aktion("Toolbar3_textunten")->isChecked());
    EXPECT_EQ(f.aktion("Toolbar1_Eigenschaft")->text(), "Schriftart");

    // The keys write the current text and the page follows.
    f.aktion("Toolbar3_fett")->trigger();
    f.aktion("Toolbar3_center")->trigger();
    EXPECT_EQ(f.s.Schriftliste(4).Bold, -1);
    EXPECT_EQ(f.s.Schriftliste(4).AusrichtungH, 1);
    EXPECT_TRUE(f.aktion("Toolbar3_center")->isChecked());
    EXPECT_FALSE(f.aktion("Toolbar3_links")->isChecked());
    emit combo1->textActivated(QStringLiteral("DejaVu Sans"));
    EXPECT_EQ(f.s.Schriftliste(4).fontname, "DejaVu Sans");

    // A shape: only colour, shadow, position and anchor.
    f.Waehlen(32);
    EXPECT_FALSE(combo1->isEnabled());
    EXPECT_FALSE(f.aktion("Toolbar3_fett")->isEnabled());
    EXPECT_FALSE(f.aktion("Toolbar3_winkel")->isEnabled());
    EXPECT_TRUE(f.aktion("Toolbar3_farbe")->isEnabled());
    EXPECT_TRUE(f.aktion("Toolbar3_positionieren")->isEnabled());
    EXPECT_EQ(f.aktion("Toolbar1_Eigenschaft")->text(), "Form");
    f.aktion("Toolbar3_gesperrt")->trigger();
    EXPECT_EQ(f.s.Rahmenliste(32).Verankert, -1);

    // The letter body has no dialog; a picture no colour.
    f.Waehlen(31);
    EXPECT_EQ(f.aktion("Toolbar1_Eigenschaft")->text(), "Brief");
    EXPECT_FALSE(f.aktion("Toolbar1_Eigenschaft")->isEnabled());
    f.Waehlen(33);
    EXPECT_FALSE(f.aktion("Toolbar3_farbe")->isEnabled());
    EXPECT_TRUE(f.aktion("Toolbar1_Eigenschaft")->isEnabled());
    // Back on the first text the anchor key is released again.
    f.Waehlen(4);
    EXPECT_FALSE(f.aktion("Toolbar3_gesperrt")->isChecked());

    // The delete key takes an inserted frame away after the question.
    f.Waehlen(33);
    const double anzahl = f.s.RahmenAnzahl;
    ASSERT_TRUE(f.aktion("Toolbar3_löschen")->isEnabled());
    f.aktion("Toolbar3_löschen")->trigger();
    EXPECT_EQ(f.fenster->fragen.size(), 1);
    EXPECT_EQ(f.s.RahmenAnzahl, anzahl - 1);
}

TEST(Formatfenster, TastenkuerzelSindEindeutig) {
    Fenster f("ZP Kalender");
    QMap<QString, QStringList> nach;
    for (QAction* a : f.fenster->findChildren<QAction*>())
        for (const QKeySequence& k : a->shortcuts())
            nach[k.toString()] << a->objectName();
    for (const char* taste : {"Ctrl+Shift+F", "Ctrl+Shift+K", "Ctrl+Shift+U", "Alt+Return"})
        EXPECT_EQ(nach.value(QString::fromLatin1(taste)).size(), 1)
            << taste << " " << nach.value(QString::fromLatin1(taste)).join(u',').toStdString();
}

TEST(Formatfenster, KnoepfeOeffnenDenDialogDerArtAufDerRichtigenSeite) {
    Fenster f("ZP Visitenkarte");
    f.Waehlen(22);
    struct Fall {
        int rahmen;
        const char* knopf;
        const char* dialog;
        int seite;
    };
    const Fall faelle[] = {
        {22, "Toolbar3_farbe", "frmSchrift", 2},     {22, "Toolbar3_schatten", "frmSchrift", 3},
        {22, "Toolbar3_winkel", "frmSchrift", 4},    {22, "Toolbar1_Eigenschaft", "frmSchrift", 1},
        {32, "Toolbar3_farbe", "frmlinie", 2},       {32, "Toolbar3_schatten", "frmlinie", 3},
        {32, "Toolbar1_Eigenschaft", "frmlinie", 1}, {32, "Toolbar3_positionieren", "frmPosition", -1},
        {33, "Toolbar1_Eigenschaft", "frmBild", -1},
    };
    for (const Fall& fall : faelle) {
        f.Waehlen(fall.rahmen);
        const auto g = SchliesseDenDialog();
        f.aktion(QString::fromUtf8(fall.knopf))->trigger();
        EXPECT_EQ(g->name, fall.dialog) << fall.knopf << " " << fall.rahmen;
        EXPECT_EQ(g->seite, fall.seite) << fall.knopf << " " << fall.rahmen;
    }
    // Cancel left the text as it was.
    EXPECT_EQ(f.s.Schriftliste(22).Angle, 0);
    EXPECT_EQ(f.s.LadeSperre, 0);
}

TEST(Formatfenster, PositionUndTextAusDenDialogenLandenImDokument) {
    Fenster f("ZP Briefkopf");
    f.Waehlen(32);
    QTimer::singleShot(0, [] {
        QWidget* d = QApplication::activeModalWidget();
        ASSERT_NE(d, nullptr);
        d->findChild<QLineEdit*>(QStringLiteral("Text1"))->setText("5000"); // far off the page
        d->findChild<QLineEdit*>(QStringLiteral("Text2"))->setText("abc");
        QKeyEvent enter(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
        QApplication::sendEvent(d, &enter);
    });
    f.aktion("Toolbar3_positionieren")->trigger();
    EXPECT_EQ(f.s.Rahmenliste(32).X, f.s.AktuelleSeite.Breite - f.s.Rahmenliste(32).Breite);
    EXPECT_EQ(f.s.Rahmenliste(32).Y, 0);

    // The text dialog's Ok writes the text back and the side box shows it.
    f.Waehlen(24);
    QTimer::singleShot(0, [] {
        QWidget* d = QApplication::activeModalWidget();
        ASSERT_NE(d, nullptr);
        d->findChild<QLineEdit*>(QStringLiteral("Schrifttext"))->setText("Telefon 123");
        QKeyEvent enter(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
        QApplication::sendEvent(d, &enter);
    });
    f.aktion("Toolbar1_Eigenschaft")->trigger();
    EXPECT_EQ(f.s.Schriftliste(24).Textstring, "Telefon 123");
    EXPECT_EQ(f.kind<QLineEdit>("Text1_24")->text(), "Telefon 123");
}

TEST(Formatfenster, FokusWaehltAusserNachEinemKlick) {
    Fenster f("ZP Visitenkarte");
    QApplication::setActiveWindow(f.fenster.get());
    // Frame 34 shows text 23 as well; a click chose it, and the focus that follows keeps it.
    ErzeugeRahmen(f.s, 34, QStringLiteral("Schrift"), 23);
    f.s.RahmenNummer = 34;
    f.s.SchriftNummer = 23;
    auto* box23 = f.kind<QLineEdit>("Text1_23");
    f.fenster->Antworten().FokusFeldbox(23);
    QFocusEvent rein(QEvent::FocusIn);
    if (!box23->hasFocus()) QApplication::sendEvent(box23, &rein); // the event the focus brings
    EXPECT_EQ(f.s.RahmenNummer, 34);
    // The mark is spent: the user's own focus on a box selects its frame.
    QApplication::sendEvent(f.kind<QLineEdit>("Text1_25"), &rein);
    EXPECT_EQ(f.s.RahmenNummer, 25);
    QApplication::sendEvent(box23, &rein);
    EXPECT_EQ(f.s.RahmenNummer, 23);
    EXPECT_EQ(f.s.SchriftNummer, 23);
    EXPECT_TRUE(f.aktion("Toolbar3_fett")->isEnabled());
    // A record's new first box is no click: its frame becomes current.
    f.s.RahmenNummer = 32;
    f.fenster->Antworten().FokusFeldbox(21);
    if (!f.kind<QLineEdit>("Text1_21")->hasFocus())
        QApplication::sendEvent(f.kind<QLineEdit>("Text1_21"), &rein);
    EXPECT_EQ(f.s.RahmenNummer, 21);
}

} // namespace
} // namespace zp::test
