// The text, shape and position dialogs on a frame: every kind of control changes the preview and
// the work copy, Ok hands the copy to the command, Cancel leaves the document.

#include "dialogs/Eigenschaftsdialoge.h"
#include "core/Liniendialog.h"
#include "core/Positionsdialog.h"
#include "core/Schriftdialog.h"
#include "core/state/AppState.h"
#include "dialogs/FrmLinie.h"
#include "dialogs/FrmPosition.h"
#include "dialogs/FrmSchrift.h"
#include "tests/core/state/ProtokollOberflaeche.h"

#include <QAbstractButton>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QSlider>
#include <QTabWidget>
#include <QTest>
#include <QTimer>
#include <QValidator>
#include <functional>
#include <gtest/gtest.h>

namespace zp {
namespace {

AppState Zustand() {
    AppState s;
    const Farbe palette[6] = {0x000000, 0x0000FF, 0x00FF00, 0xFF0000, 0x00FFFF, 0xC0C0C0};
    for (int i = 1; i <= 48; ++i)
        s.Farbtabelle(i) = palette[(i - 1) % 6];
    s.Schriftenliste(1) = QStringLiteral("DejaVu Sans");
    s.Schriftenliste(2) = QStringLiteral("Liberation Serif");
    s.Schriftenliste(3) = QStringLiteral("-1");
    s.SchriftSkalierbar(1) = s.SchriftSkalierbar(2) = -1;
    s.Rahmenliste(1).Objekttyp = QStringLiteral("Schrift");
    s.Rahmenliste(1).Objektnummer = 1;
    s.Rahmenliste(2).Objekttyp = QStringLiteral("Linie");
    s.Rahmenliste(2).Objektnummer = 1;
    s.SchriftNummer = 1;
    s.LinieNummer = 1;
    ClassSchrift& t = s.Schriftliste(1);
    t.Textstring = QStringLiteral("Probe");
    t.fontname = QStringLiteral("DejaVu Sans");
    t.FontSize = 20;
    ClassLinie& l = s.Linienliste(1);
    l.Form = 16;
    l.Stärke = 5;
    l.Color1 = 0xFF0000;
    l.Color2 = 0x00FF00;
    return s;
}

template <typename T> T* Kind(QWidget& d, const QString& name) {
    T* w = d.findChild<T*>(name);
    EXPECT_NE(w, nullptr) << name.toStdString();
    return w;
}

void Taste(QWidget& ziel, int taste) {
    QKeyEvent druck(QEvent::KeyPress, taste, Qt::NoModifier);
    QApplication::sendEvent(&ziel, &druck);
}

// Runs `aktion` and expects the preview to change.
template <typename Dialog, typename Aktion> void AendertVorschau(Dialog& d, const char* was, Aktion aktion) {
    const QImage vorher = d.Vorschaubild();
    aktion();
    EXPECT_NE(d.Vorschaubild(), vorher) << was;
}

TEST(FrmSchrift, EveryKindOfControlWritesTheCopyAndRepaints) {
    AppState s = Zustand();
    const ClassSchrift original = s.Schriftliste(1);
    FrmSchrift d(s, original);
    d.SetzeFarbdialog([](const QColor&, QWidget*) { return std::optional<QColor>(QColor(0, 0, 200)); });
    d.show();
    auto* seiten = Kind<QTabWidget>(d, QStringLiteral("TabStripSchrift"));

    AendertVorschau(d, "Combo1", [&] { Kind<QComboBox>(d, QStringLiteral("Combo1"))->setCurrentIndex(1); });
    AendertVorschau(d, "Combo2", [&] { Kind<QComboBox>(d, QStringLiteral("Combo2"))->setCurrentIndex(1); });
    AendertVorschau(d, "Combo3", [&] { Kind<QComboBox>(d, QStringLiteral("Combo3"))->setCurrentText("33"); });
    AendertVorschau(d, "Schrifttext", [&] {
        auto* text = Kind<QLineEdit>(d, QStringLiteral("Schrifttext"));
        text->setText(QStringLiteral("Anders"));
        emit text->textEdited(text->text());
    });
    Kind<QAbstractButton>(d, QStringLiteral("OptAus3"))->click();
    Kind<QAbstractButton>(d, QStringLiteral("OptAus5"))->click();
    EXPECT_EQ(d.Werk().fontname, QStringLiteral("Liberation Serif"));
    EXPECT_EQ(d.Werk().Bold, -1);
    EXPECT_EQ(d.Werk().FontSize, 33);
    EXPECT_EQ(d.Werk().AusrichtungH, 2);
    EXPECT_EQ(d.Werk().AusrichtungV, 1);

    seiten->setCurrentIndex(1); // colour: the palette writes the text colour
    AendertVorschau(d, "ImageFarbe",
                    [&] { Kind<QAbstractButton>(d, QStringLiteral("ImageFarbe_2"))->click(); });
    EXPECT_EQ(d.Werk().Color1, 0x0000FF);
    Kind<QAbstractButton>(d, QStringLiteral("ComMehr2"))->click();
    EXPECT_EQ(d.Werk().Color2, 0xC80000);
    AendertVorschau(d, "OptVerlauf2",
                    [&] { Kind<QAbstractButton>(d, QStringLiteral("OptVerlauf2"))->click(); });
    EXPECT_EQ(d.Werk().ColorCircle, 1);

    seiten->setCurrentIndex(2); // shadow
    AendertVorschau(d, "SliderSchatten",
                    [&] { Kind<QSlider>(d, QStringLiteral("SliderSchatten"))->setValue(30); });
    AendertVorschau(d, "PicSchattTyp",
                    [&] { Kind<QAbstractButton>(d, QStringLiteral("PicSchattTyp_1"))->click(); });
    AendertVorschau(d, "PicSchattRich",
                    [&] { Kind<QAbstractButton>(d, QStringLiteral("PicSchattRich_270"))->click(); });
    AendertVorschau(d, "ImageFarbe Schatten",
                    [&] { Kind<QAbstractButton>(d, QStringLiteral("ImageFarbe_3"))->click(); });
    EXPECT_EQ(d.Werk().ShadowDeep, 30);
    EXPECT_EQ(d.Werk().ShadowType, 1);
    EXPECT_EQ(d.Werk().ShadowAngle, 270);
    EXPECT_EQ(d.Werk().ShadowColor1, 0x00FF00);

    seiten->setCurrentIndex(3); // angle and spacing
    AendertVorschau(d, "SliderAngle", [&] { Kind<QSlider>(d, QStringLiteral("SliderAngle"))->setValue(30); });
    AendertVorschau(d, "SliderSpace", [&] { Kind<QSlider>(d, QStringLiteral("SliderSpace"))->setValue(6); });
    auto* winkel = Kind<QLineEdit>(d, QStringLiteral("MaskEdBoxAngle"));
    EXPECT_EQ(winkel->text(), QStringLiteral("30"));
    winkel->setText(QStringLiteral("400"));
    emit winkel->textEdited(winkel->text());
    EXPECT_EQ(winkel->text(), QStringLiteral("0"));
    EXPECT_EQ(d.Werk().Angle, 0);
    winkel->setText(QStringLiteral("45"));
    emit winkel->textEdited(winkel->text());
    EXPECT_EQ(d.Werk().Angle, 45);

    // The dialog never touched the document; Enter is Ok.
    EXPECT_EQ(s.Schriftliste(1).fontname, QStringLiteral("DejaVu Sans"));
    EXPECT_EQ(s.Vorschaumodus, 0);
    Taste(d, Qt::Key_Return);
    EXPECT_EQ(d.result(), QDialog::Accepted);

    test::ProtokollOberflaeche ui;
    ASSERT_TRUE(SchriftdialogOk(s, ui, d.Werk(), d.Schrifttext()));
    const ClassSchrift& t = s.Schriftliste(1);
    EXPECT_EQ(t.Textstring, QStringLiteral("Anders"));
    EXPECT_EQ(t.Angle, 45);
    EXPECT_EQ(t.AusrichtungH, 1); // oblique: centred
    EXPECT_EQ(t.CharSpace, 6);
    EXPECT_EQ(s.Panel.Text1(1), QStringLiteral("Anders"));
}

TEST(FrmSchrift, EscapeCancelsAndAnUnknownFontKeepsItsName) {
    AppState s = Zustand();
    ClassSchrift t = s.Schriftliste(1);
    t.fontname = QStringLiteral("Gibt Es Nicht");
    FrmSchrift d(s, t);
    d.show();
    EXPECT_EQ(Kind<QComboBox>(d, QStringLiteral("Combo1"))->currentText(), QStringLiteral("Gibt Es Nicht"));
    Kind<QSlider>(d, QStringLiteral("SliderAngle"))->setValue(90);
    Taste(d, Qt::Key_Escape);
    EXPECT_EQ(d.result(), QDialog::Rejected);
    EXPECT_EQ(d.Werk().fontname, QStringLiteral("Gibt Es Nicht"));

    // The entry for other dialogs: Cancel leaves the object, Ok writes the copy with its text.
    QTimer::singleShot(0, [] {
        QWidget* w = QApplication::activeModalWidget();
        ASSERT_NE(w, nullptr);
        w->findChild<QSlider*>(QStringLiteral("SliderAngle"))->setValue(90);
        Taste(*w, Qt::Key_Escape);
    });
    EXPECT_FALSE(SchriftBearbeiten(nullptr, s, t));
    EXPECT_EQ(t.Angle, 0);
    QTimer::singleShot(0, [] {
        QWidget* w = QApplication::activeModalWidget();
        ASSERT_NE(w, nullptr);
        EXPECT_EQ(w->findChild<QTabWidget*>(QStringLiteral("TabStripSchrift"))->currentIndex(), 3);
        w->findChild<QSlider*>(QStringLiteral("SliderAngle"))->setValue(90);
        Taste(*w, Qt::Key_Return);
    });
    EXPECT_TRUE(SchriftBearbeiten(nullptr, s, t, 4));
    EXPECT_EQ(t.Angle, 90);
    EXPECT_EQ(t.Textstring, QStringLiteral("Probe"));
}

// From the keyboard: a page opens with the focus in its first box (the angle's box on the angle
// page), and the palette is one stop of the Tab key whose cells the arrow keys walk.
TEST(FrmSchrift, KeyboardReachesThePageAndWalksThePalette) {
    AppState s = Zustand();
    FrmSchrift d(s, s.Schriftliste(1));
    d.SeiteWaehlen(4);
    d.show();
    QApplication::setActiveWindow(&d);
    auto* winkel = Kind<QLineEdit>(d, QStringLiteral("MaskEdBoxAngle"));
    EXPECT_EQ(d.focusWidget(), winkel);
    EXPECT_EQ(winkel->selectedText(), QStringLiteral("0")); // typing replaces the old angle

    d.SeiteWaehlen(2);
    auto* zelle1 = Kind<QWidget>(d, QStringLiteral("ImageFarbe_1"));
    auto* zelle2 = Kind<QWidget>(d, QStringLiteral("ImageFarbe_2"));
    auto* zelle7 = Kind<QWidget>(d, QStringLiteral("ImageFarbe_7"));
    int stopps = 0;
    for (int i = 1; i <= 48; ++i)
        stopps += (d.findChild<QWidget*>(QStringLiteral("ImageFarbe_%1").arg(i))->focusPolicy() &
                   Qt::TabFocus) != 0;
    EXPECT_EQ(stopps, 1);
    zelle1->setFocus();
    Taste(*zelle1, Qt::Key_Down);
    EXPECT_EQ(d.focusWidget(), zelle2);
    Taste(*zelle2, Qt::Key_Right);
    QWidget* zelle8 = d.focusWidget();
    ASSERT_EQ(zelle8, Kind<QWidget>(d, QStringLiteral("ImageFarbe_8")));
    QTest::keyClick(zelle8, Qt::Key_Space); // the space bar picks the cell
    EXPECT_EQ(d.Werk().Color1, s.Farbtabelle(8));
    EXPECT_NE(d.Werk().Color1, s.Schriftliste(1).Color1);
    Taste(*zelle8, Qt::Key_Up);
    EXPECT_EQ(d.focusWidget(), zelle7);
    EXPECT_NE(zelle7->focusPolicy() & Qt::TabFocus, 0); // Tab comes back to it
    EXPECT_EQ(zelle1->focusPolicy() & Qt::TabFocus, 0);
}

TEST(FrmLinie, EveryKindOfControlWritesTheCopyAndRepaints) {
    AppState s = Zustand();
    s.Zeichenfaktor = 2; // the preview is at the true size whatever the zoom
    FrmLinie d(s, s.Linienliste(1));
    d.SetzeFarbdialog([](const QColor&, QWidget*) { return std::optional<QColor>(); }); // cancelled
    d.show();
    auto* seiten = Kind<QTabWidget>(d, QStringLiteral("TabStripLinie"));

    AendertVorschau(d, "Linienform",
                    [&] { Kind<QAbstractButton>(d, QStringLiteral("Linienform_17"))->click(); });
    AendertVorschau(d, "CheckFüllen", [&] { Kind<QCheckBox>(d, QStringLiteral("CheckFüllen"))->click(); });
    AendertVorschau(d, "SliderHeight",
                    [&] { Kind<QSlider>(d, QStringLiteral("SliderHeight"))->setValue(20); });
    seiten->setCurrentIndex(1);
    AendertVorschau(d, "ImageFarbe",
                    [&] { Kind<QAbstractButton>(d, QStringLiteral("ImageFarbe_1"))->click(); });
    Kind<QAbstractButton>(d, QStringLiteral("ComMehr2"))->click(); // cancelled: the fill stays
    AendertVorschau(d, "OptVerlauf3",
                    [&] { Kind<QAbstractButton>(d, QStringLiteral("OptVerlauf3"))->click(); });
    seiten->setCurrentIndex(2);
    AendertVorschau(d, "SliderSchatten",
                    [&] { Kind<QSlider>(d, QStringLiteral("SliderSchatten"))->setValue(20); });
    AendertVorschau(d, "PicSchattRich",
                    [&] { Kind<QAbstractButton>(d, QStringLiteral("PicSchattRich_180"))->click(); });
    auto* richtung = Kind<QLineEdit>(d, QStringLiteral("TextSchattRich"));
    EXPECT_EQ(richtung->text(), QStringLiteral("180"));
    AendertVorschau(d, "TextSchattRich", [&] {
        richtung->setText(QStringLiteral("10"));
        emit richtung->textEdited(richtung->text());
    });

    const ClassLinie& w = d.Werk();
    EXPECT_EQ(w.Form, 17);
    EXPECT_EQ(w.Füllung, -1);
    EXPECT_EQ(w.Stärke, 20);
    EXPECT_EQ(w.Color1, 0x000000);
    EXPECT_EQ(w.Color2, 0x00FF00);
    EXPECT_EQ(w.ColorCircle, 2);
    EXPECT_EQ(w.ShadowDeep, 20);
    EXPECT_EQ(w.ShadowAngle, 10);
    EXPECT_EQ(s.Zeichenfaktor, 2);
    EXPECT_EQ(s.Vorschaumodus, 0);

    test::ProtokollOberflaeche ui;
    Taste(d, Qt::Key_Escape);
    EXPECT_EQ(d.result(), QDialog::Rejected);
    LiniendialogAbbruch(s);
    EXPECT_EQ(s.Linienliste(1).Form, 16);
    ASSERT_TRUE(LiniendialogOk(s, ui, d.Werk()));
    EXPECT_EQ(s.Linienliste(1).Form, 17);
    EXPECT_EQ(s.Linienliste(1).ShadowDeep, 20);
}

TEST(FrmLinie, ThumbnailsDifferAndKeyboardReachesThem) {
    AppState s = Zustand();
    FrmLinie d(s, s.Linienliste(1));
    std::vector<QImage> daumen;
    for (int i = 1; i <= 18; ++i) {
        auto* knopf = Kind<QAbstractButton>(d, QStringLiteral("Linienform_%1").arg(i));
        ASSERT_FALSE(knopf->icon().isNull()) << i;
        daumen.push_back(knopf->icon().pixmap(40, 40).toImage());
        EXPECT_NE(knopf->focusPolicy() & Qt::TabFocus, 0) << i;
    }
    for (size_t i = 0; i < daumen.size(); ++i)
        for (size_t k = i + 1; k < daumen.size(); ++k)
            EXPECT_NE(daumen[i], daumen[k]) << "Linienform " << i + 1 << " und " << k + 1;
    EXPECT_TRUE(Kind<QAbstractButton>(d, QStringLiteral("Linienform_16"))->isChecked());
}

TEST(FrmPosition, LostFocusRepairsAndOkHandsTheBoxes) {
    AppState s = Zustand();
    s.AktuelleSeite.Breite = 2100;
    s.AktuelleSeite.Höhe = 2970;
    s.RahmenNummer = 1;
    s.Rahmenliste(1).X = 100, s.Rahmenliste(1).Y = 100;
    s.Rahmenliste(1).Breite = 500, s.Rahmenliste(1).Höhe = 200;
    FrmPosition d(PositionsdialogOeffnen(s), s.AktuelleSeite);
    d.show();
    auto* x = Kind<QLineEdit>(d, QStringLiteral("Text1"));
    auto* breite = Kind<QLineEdit>(d, QStringLiteral("Text3"));
    EXPECT_EQ(x->text(), QStringLiteral("100"));
    EXPECT_EQ(breite->text(), QStringLiteral("500"));

    x->setText(QStringLiteral("1900"));
    QFocusEvent weg(QEvent::FocusOut);
    QApplication::sendEvent(x, &weg);
    EXPECT_EQ(x->text(), QStringLiteral("1600"));
    QString buchstaben = QStringLiteral("12a");
    int stelle = 0;
    EXPECT_EQ(x->validator()->validate(buchstaben, stelle), QValidator::Invalid); // no letters typed
    breite->setText(QStringLiteral("900"));
    QApplication::sendEvent(breite, &weg);
    EXPECT_EQ(breite->text(), QStringLiteral("500"));

    Kind<QCheckBox>(d, QStringLiteral("Check2"))->setChecked(true);
    Taste(d, Qt::Key_Return);
    EXPECT_EQ(d.result(), QDialog::Accepted);
    test::ProtokollOberflaeche ui;
    ASSERT_TRUE(PositionsdialogOk(s, ui, d.Felder()));
    EXPECT_EQ(s.Rahmenliste(1).X, 1600);
    EXPECT_EQ(s.Rahmenliste(1).Breite, 500);
    EXPECT_EQ(s.Rahmenliste(1).Verankert, -1);
    EXPECT_EQ(s.LadeSperre, 0);
}

// Presses `taste` in the modal dialog once it is open, after `vorher` has changed its controls.
void ImDialog(int taste, std::function<void(QWidget&)> vorher = {}) {
    QTimer::singleShot(0, [taste, vorher] {
        QWidget* w = QApplication::activeModalWidget();
        ASSERT_NE(w, nullptr);
        if (vorher) vorher(*w);
        Taste(*w, taste);
    });
}

TEST(Dialoge, OkAndCancelOfTheCurrentFramesDialogGoToTheirCommands) {
    AppState s = Zustand();
    test::ProtokollOberflaeche ui;
    s.Vorschaumodus = -1;
    ImDialog(Qt::Key_Escape,
             [](QWidget& w) { w.findChild<QSlider*>(QStringLiteral("SliderAngle"))->setValue(30); });
    SchriftdialogAusfuehren(nullptr, s, ui, 4);
    EXPECT_EQ(s.Schriftliste(1).Angle, 0);
    EXPECT_EQ(s.Vorschaumodus, 0);
    ImDialog(Qt::Key_Return,
             [](QWidget& w) { w.findChild<QSlider*>(QStringLiteral("SliderAngle"))->setValue(30); });
    SchriftdialogAusfuehren(nullptr, s, ui, 4);
    EXPECT_EQ(s.Schriftliste(1).Angle, 30);
    EXPECT_EQ(s.Schriftliste(1).AusrichtungH, 1);

    ImDialog(Qt::Key_Return,
             [](QWidget& w) { w.findChild<QAbstractButton*>(QStringLiteral("Linienform_18"))->click(); });
    LiniendialogAusfuehren(nullptr, s, ui, 1);
    EXPECT_EQ(s.Linienliste(1).Form, 18);

    s.AktuelleSeite.Breite = 1000;
    s.AktuelleSeite.Höhe = 1000;
    s.RahmenNummer = 2;
    s.Rahmenliste(2).Breite = 300;
    ImDialog(Qt::Key_Return,
             [](QWidget& w) { w.findChild<QLineEdit*>(QStringLiteral("Text1"))->setText("900"); });
    PositionsdialogAusfuehren(nullptr, s, ui);
    EXPECT_EQ(s.Rahmenliste(2).X, 700); // repaired on Ok
    ImDialog(Qt::Key_Escape,
             [](QWidget& w) { w.findChild<QLineEdit*>(QStringLiteral("Text1"))->setText("5"); });
    PositionsdialogAusfuehren(nullptr, s, ui);
    EXPECT_EQ(s.Rahmenliste(2).X, 700);
    EXPECT_EQ(s.LadeSperre, 0);
}

TEST(Dialoge, FitA1024x768Screen) {
    AppState s = Zustand();
    FrmSchrift schrift(s, s.Schriftliste(1));
    FrmLinie linie(s, s.Linienliste(1));
    FrmPosition position(PositionsdialogOeffnen(s), s.AktuelleSeite);
    for (QDialog* d :
         {static_cast<QDialog*>(&schrift), static_cast<QDialog*>(&linie), static_cast<QDialog*>(&position)}) {
        const QSize g = d->sizeHint();
        EXPECT_LE(g.width(), 1000) << d->objectName().toStdString();
        EXPECT_LE(g.height(), 700) << d->objectName().toStdString();
    }
}

} // namespace
} // namespace zp
