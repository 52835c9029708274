// The format bar on the window's side: its keys follow the current frame, the alignments are
// exclusive, and the lists write font and size.

#include "dialogs/Formatleiste.h"
#include "core/state/AppState.h"
#include "tests/core/state/ProtokollOberflaeche.h"

#include <QAction>
#include <QComboBox>
#include <QLineEdit>
#include <gtest/gtest.h>

namespace zp {
namespace {

AppState Zustand() {
    AppState s;
    s.Schriftenliste(1) = QStringLiteral("Arial");
    s.Schriftenliste(2) = QStringLiteral("DejaVu Sans");
    s.Schriftenliste(3) = QStringLiteral("Fixed");
    s.Schriftenliste(4) = QStringLiteral("-1");
    s.SchriftSkalierbar(1) = s.SchriftSkalierbar(2) = -1; // "Fixed" is a bitmap font
    s.Rahmenliste(1).Objekttyp = QStringLiteral("Schrift");
    s.Rahmenliste(1).Objektnummer = 2;
    s.Rahmenliste(2).Objekttyp = QStringLiteral("Linie");
    s.Rahmenliste(2).Objektnummer = 1;
    s.Rahmenliste(3).Objekttyp = QStringLiteral("Bild");
    s.RahmenAnzahl = 3;
    s.RahmenNummer = 1;
    s.Schriftliste(2).FontSize = 12;
    s.Schriftliste(2).Bold = -1;
    return s;
}

TEST(Formatleiste, ShowsTheTextAndWritesItBack) {
    AppState s = Zustand();
    test::ProtokollOberflaeche ui;
    Formatleiste leiste(s, ui);
    QComboBox* schriften = leiste.Schriftliste();
    ASSERT_EQ(schriften->count(), 2); // scalable families only
    EXPECT_EQ(schriften->itemText(0), QStringLiteral("Arial"));
    EXPECT_EQ(leiste.Groessenliste()->count(), 33);
    EXPECT_EQ(leiste.Groessenliste()->currentText(), QStringLiteral("12"));
    EXPECT_TRUE(leiste.Knopf(QStringLiteral("fett"))->isChecked());
    EXPECT_TRUE(leiste.Knopf(QStringLiteral("links"))->isChecked());

    leiste.Knopf(QStringLiteral("rechts"))->trigger();
    EXPECT_EQ(s.Schriftliste(2).AusrichtungH, 2);
    EXPECT_FALSE(leiste.Knopf(QStringLiteral("links"))->isChecked());
    EXPECT_TRUE(leiste.Knopf(QStringLiteral("rechts"))->isChecked());
    leiste.Knopf(QStringLiteral("fett"))->trigger();
    EXPECT_EQ(s.Schriftliste(2).Bold, 0);
    EXPECT_FALSE(leiste.Knopf(QStringLiteral("fett"))->isChecked());

    emit schriften->textActivated(QStringLiteral("DejaVu Sans"));
    EXPECT_EQ(s.Schriftliste(2).fontname, QStringLiteral("DejaVu Sans"));
    leiste.Groessenliste()->setCurrentText(QStringLiteral("15"));
    emit leiste.Groessenliste()->lineEdit()->returnPressed();
    EXPECT_EQ(s.Schriftliste(2).FontSize, 15);
    leiste.Groessenliste()->setCurrentText(QStringLiteral("5000"));
    emit leiste.Groessenliste()->lineEdit()->returnPressed();
    EXPECT_EQ(s.Schriftliste(2).FontSize, 15);
    EXPECT_EQ(ui.meldungen.size(), 1);
    EXPECT_EQ(leiste.Groessenliste()->currentText(), QStringLiteral("15")); // the bar shows the truth
    EXPECT_GE(ui.neuzeichnen, 4);
}

TEST(Formatleiste, AFontTheMachineLacksIsShownOnlyForItsText) {
    AppState s = Zustand();
    s.Rahmenliste(2).Objekttyp = QStringLiteral("Schrift");
    s.Rahmenliste(2).Objektnummer = 3;
    s.Schriftliste(2).fontname = QStringLiteral("Frutiger");
    s.Schriftliste(3).fontname = QStringLiteral("Arial");
    test::ProtokollOberflaeche ui;
    Formatleiste leiste(s, ui);
    EXPECT_EQ(leiste.Schriftliste()->currentText(), QStringLiteral("Frutiger"));
    EXPECT_EQ(leiste.Schriftliste()->count(), 3);
    s.RahmenNummer = 2;
    leiste.Aktualisieren();
    EXPECT_EQ(leiste.Schriftliste()->currentText(), QStringLiteral("Arial"));
    EXPECT_EQ(leiste.Schriftliste()->findText(QStringLiteral("Frutiger")), -1);
    EXPECT_EQ(leiste.Schriftliste()->count(), 2);
    EXPECT_EQ(s.Schriftliste(2).fontname, QStringLiteral("Frutiger")); // the text keeps its name
}

TEST(Formatleiste, KeysFollowTheKindOfFrame) {
    AppState s = Zustand();
    test::ProtokollOberflaeche ui;
    Formatleiste leiste(s, ui);
    struct Fall {
        int rahmen;
        bool text, farbe;
    };
    for (const Fall f : {Fall{1, true, true}, Fall{2, false, true}, Fall{3, false, false}}) {
        s.RahmenNummer = f.rahmen;
        leiste.Aktualisieren();
        EXPECT_EQ(leiste.Schriftliste()->isEnabled(), f.text) << f.rahmen;
        EXPECT_EQ(leiste.Knopf(QStringLiteral("italic"))->isEnabled(), f.text) << f.rahmen;
        EXPECT_EQ(leiste.Knopf(QStringLiteral("textunten"))->isEnabled(), f.text) << f.rahmen;
        EXPECT_EQ(leiste.Knopf(QStringLiteral("winkel"))->isEnabled(), f.text) << f.rahmen;
        EXPECT_EQ(leiste.Knopf(QStringLiteral("farbe"))->isEnabled(), f.farbe) << f.rahmen;
        EXPECT_EQ(leiste.Knopf(QStringLiteral("schatten"))->isEnabled(), f.farbe) << f.rahmen;
        EXPECT_TRUE(leiste.Knopf(QStringLiteral("gesperrt"))->isEnabled()) << f.rahmen;
    }
    leiste.Knopf(QStringLiteral("gesperrt"))->trigger();
    EXPECT_EQ(s.Rahmenliste(3).Verankert, -1);
    EXPECT_TRUE(leiste.Knopf(QStringLiteral("gesperrt"))->isChecked());
}

} // namespace
} // namespace zp
