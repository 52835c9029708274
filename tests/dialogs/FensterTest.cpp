// The main window on the offscreen platform: what each edition shows, the load handler's fills,
// and commands run through the window's own controls.
#include "Attrappen.h"

#include "core/Sitzung.h"
#include "core/state/Editionen.h"
#include "dialogs/FrmDrucken.h"
#include "dialogs/Monatskalender.h"
#include "dialogs/Seitenansicht.h"
#include "persist/Datensaetze.h"
#include "persist/Kalenderdaten.h"

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QFocusEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QProgressDialog>
#include <QPushButton>
#include <QSpinBox>
#include <QStackedWidget>
#include <QTemporaryDir>
#include <QToolBar>
#include <QToolButton>
#include <functional>
#include <gtest/gtest.h>
#include <memory>

namespace zp::test {
namespace {

struct Fenster {
    // `vorher` prepares the program folder before the window starts.
    explicit Fenster(const QString& programmname, const std::function<void(const QString&)>& vorher = {}) {
        Grundzustand(s, programmname, ordner.path());
        if (vorher) vorher(ordner.path());
        fenster = std::make_unique<TestFenster>(s);
        fenster->Laden();
        fenster->show();
    }
    template <typename T> T* kind(const QString& name) { return fenster->findChild<T*>(name); }
    QAction* aktion(const char* name) { return fenster->Aktion(QString::fromUtf8(name)); }
    QTemporaryDir ordner;
    AppState s;
    std::unique_ptr<TestFenster> fenster;
};

bool Sichtbar(QAction* a) {
    return a && a->isVisible();
}

TEST(Editionen, KalenderZeigtSeineEintraegeUndVerbirgtDieDerKarten) {
    Fenster f("ZP Kalender");
    for (const char* n :
         {"mnuBrief", "mnuWord", "mnuViewSeitenbreite", "mnuHilfsbereiche", "mnudatumeinfuegen", "mnuzeit",
          "mnuseriennummer", "mnuDesign", "mnuKartengrösse", "mnuBildSpeichern", "mnuimport"})
        EXPECT_FALSE(Sichtbar(f.aktion(n))) << n;
    for (const char* n :
         {"mnuFeiertage", "mnukalender", "mnuVerankernAlle", "mnuVerankernKeine", "mnuFileSaveAs2"})
        EXPECT_TRUE(Sichtbar(f.aktion(n))) << n;
    EXPECT_EQ(f.aktion("mnuFileSaveAs")->text(), "Design speichern unter...");
    EXPECT_EQ(f.aktion("mnuFileSave")->text(), "Daten speichern");
    EXPECT_FALSE(f.kind<QToolBar>("Toolbar4")->isVisible());
    EXPECT_TRUE(f.kind<QToolBar>("Toolbar5")->isVisible());
    // Frame1(8) is in front; button 4 of Toolbar5 only for the month types.
    EXPECT_EQ(f.kind<QStackedWidget>("Frame1")->currentWidget()->objectName(), "Frame1_8");
    EXPECT_FALSE(Sichtbar(f.aktion("Toolbar5_4")));
}

TEST(Editionen, EtikettUndVisitenkarte) {
    Fenster e("ZP Etikett");
    EXPECT_EQ(e.aktion("mnuDesign")->text(), "Etikettendesign");
    EXPECT_EQ(e.aktion("mnuKartengrösse")->text(), "Etikettengröße");
    EXPECT_TRUE(Sichtbar(e.aktion("mnuimport")));
    EXPECT_TRUE(Sichtbar(e.aktion("mnuseriennummer")));
    EXPECT_FALSE(Sichtbar(e.aktion("mnuFileSaveAs2")));
    EXPECT_TRUE(Sichtbar(e.aktion("Toolbar4_1")));
    EXPECT_EQ(e.kind<QLabel>("Label1_1")->text(), "Text 1");
    EXPECT_EQ(e.kind<QLabel>("Label1_29")->text(), "Data 9");
    EXPECT_EQ(e.s.SchriftNummer, 1);

    // The card edition reads its address records at start.
    Fenster v("ZP Visitenkarte", [](const QString& ordner) {
        AppState vorher;
        Grundzustand(vorher, "ZP Visitenkarte", ordner);
        vorher.Datensaetze(1, 1) = "Erika Muster";
        Nutzer still;
        ASSERT_TRUE(SpeichereDatensaetze(vorher, still));
    });
    EXPECT_FALSE(Sichtbar(v.aktion("mnuseriennummer")));
    EXPECT_FALSE(Sichtbar(v.aktion("mnuimport")));
    EXPECT_EQ(v.aktion("mnuDesign")->text(), "Kartendesign");
    EXPECT_FALSE(Sichtbar(v.aktion("Toolbar4_1")));
    EXPECT_TRUE(v.aktion("Toolbar4_2")->isChecked());
    EXPECT_EQ(v.kind<QStackedWidget>("Frame1")->currentWidget()->objectName(), "Frame1_4");
    EXPECT_EQ(v.kind<QLabel>("Label1_21")->text(), "Name");
    EXPECT_EQ(v.kind<QLabel>("Label1_24")->text(), "Telefon");
    EXPECT_EQ(v.s.Datensaetze(1, 1), "Erika Muster");
    EXPECT_EQ(v.s.SchriftNummer, 21);
}

TEST(Editionen, BriefkopfUndCdHuelleBehaltenDenGrundaufbau) {
    for (const char* name : {"ZP Briefkopf", "ZP CD-Hülle"}) {
        Fenster f(QString::fromUtf8(name));
        for (const char* n :
             {"mnuBrief", "mnuWord", "mnuViewSeitenbreite", "mnuHilfsbereiche", "mnuseriennummer"})
            EXPECT_TRUE(Sichtbar(f.aktion(n))) << name << n;
        for (const char* n : {"mnuFeiertage", "mnukalender", "mnuimport", "mnuFileSaveAs2"})
            EXPECT_FALSE(Sichtbar(f.aktion(n))) << name << n;
        EXPECT_EQ(f.aktion("mnuFileSave")->text(), "&Speichern");
        EXPECT_FALSE(f.kind<QToolBar>("Toolbar5")->isVisible()) << name;
    }
    // The CD cover's file dialogs carry no filter.
    Fenster cd("ZP CD-Hülle");
    cd.fenster->datei = cd.ordner.filePath("cover");
    cd.aktion("mnuFileSaveAs")->trigger();
    EXPECT_TRUE(cd.fenster->filter_.isEmpty());
    EXPECT_TRUE(QFileInfo::exists(cd.fenster->datei));
}

TEST(Laden, FuelltListenTitelUndStartdokument) {
    Fenster f("ZP Kalender");
    f.s.Kalenderjahr = 2002;
    EXPECT_EQ(f.fenster->windowTitle(), "ZP Kalender - Version 8.02");
    auto* jahr = f.kind<QComboBox>("ComboJahr");
    // From 1990 to ten years past the current one.
    const int letztes = QDate::currentDate().year() + 10;
    EXPECT_EQ(jahr->count(), letztes - 1990 + 1);
    EXPECT_EQ(jahr->itemText(0), "1990");
    EXPECT_EQ(jahr->itemText(jahr->count() - 1), QString::number(letztes));
    EXPECT_EQ(jahr->currentText(), "2002");
    EXPECT_EQ(f.kind<QComboBox>("ComboVariante")->itemText(1), "Variante 2");
    EXPECT_EQ(f.kind<QComboBox>("ComboMonat")->itemText(2), "März");
    auto* groessen = f.kind<QComboBox>("Combo3");
    EXPECT_EQ(groessen->count(), 33);
    EXPECT_EQ(groessen->itemText(32), "72");
    auto* galerie = f.kind<QListWidget>("List1");
    ASSERT_EQ(galerie->count(), 19);
    EXPECT_EQ(galerie->item(15)->text(), "Gelber Kreis im blauen Rahmen");
    EXPECT_EQ(f.aktion("Toolbar1_Eigenschaft")->text(), "Schriftart");
    // kalender.ini, then the working design of type 1.
    EXPECT_EQ(f.s.Datendatei, f.s.Programmpfad + "neu.zpd");
    EXPECT_EQ(f.kind<QLabel>("StatusBar_1")->text(), "Aktuelle Datei: " + f.s.Programmpfad + "neu.zpd");
    // The first paint ended the start-up lock; the page was fitted to the view's width.
    EXPECT_EQ(f.s.LadeSperre, 0);
    EXPECT_GT(f.s.Zoomfaktor, 1);
    EXPECT_LT(f.s.Zoomfaktor, 150);
    EXPECT_FALSE(f.kind<QWidget>("PictureSeite")->size().isEmpty());
}

TEST(Laden, EinJahrAusserhalbDerListeBleibtGueltig) {
    AppState s;
    QTemporaryDir ordner;
    Grundzustand(s, "ZP Kalender", ordner.path());
    s.Kalenderjahr = 2026;
    TestFenster f(s);
    f.Laden();
    EXPECT_EQ(f.findChild<QComboBox*>("ComboJahr")->currentText(), "2026");
    EXPECT_EQ(f.findChild<Monatskalender*>("MonthView1")->maximumDate(), QDate(2026, 12, 31));
    EXPECT_EQ(s.Kalenderjahr, 2026);
}

TEST(Laden, DieTageDerLetztenSitzungSindMitIhrenMarkenDa) {
    AppState s;
    QTemporaryDir ordner;
    Grundzustand(s, "ZP Kalender", ordner.path());
    s.Kalenderjahr = 2027;
    Kalenderdaten tage;
    tage.Termine(5, 1) = "Zahnarzt";
    QFile autoZpd(ordner.filePath("auto.zpd"));
    ASSERT_TRUE(autoZpd.open(QIODevice::WriteOnly));
    autoZpd.write(ZpdBytes(tage));
    autoZpd.close();
    TestFenster f(s);
    f.Laden();
    EXPECT_EQ(s.Termine(5, 1), "Zahnarzt");
    EXPECT_TRUE(s.Panel.MonthView1.Fett.contains(QDate(2027, 1, 5)));
    // The status bar says what came back, then shows the file again.
    auto* status = f.findChild<QLabel*>("StatusBar_1");
    EXPECT_TRUE(status->text().contains("letzten Sitzung")) << status->text().toStdString();
    f.Antworten().StatusDatei(s.Programmpfad + "anders.zpd");
    EXPECT_EQ(status->text(), "Aktuelle Datei: " + s.Programmpfad + "anders.zpd");
}

TEST(Laden, DateibefehleSindFreiSpaeteresBleibtAus) {
    Fenster f("ZP Kalender");
    for (const char* n : {"mnuFileOpen", "mnuFileSave", "mnuFileSaveAs", "mnukalender", "mnuFileNew"})
        EXPECT_TRUE(f.aktion(n)->isEnabled()) << n;
    EXPECT_TRUE(f.kind<QPushButton>("CommandTyp_2")->isEnabled());
    EXPECT_TRUE(f.kind<QPushButton>("CommandBerechnen")->isEnabled());
    // The calendar's own dialogs are there.
    EXPECT_TRUE(f.kind<QPushButton>("CommandOptionen")->isEnabled());
    for (const char* n :
         {"mnuFeiertage", "mnukalendereditieren", "Toolbar5_5", "mnuFilePageSetup", "Toolbar4_5"})
        EXPECT_TRUE(f.aktion(n)->isEnabled()) << n;
    // The frame editing is there; the letter body stays in place, disabled.
    for (const char* n : {"mnuRahmenLöschen", "popEigenschaft"})
        EXPECT_TRUE(f.aktion(n)->isEnabled()) << n;
    EXPECT_FALSE(f.aktion("mnuBrief")->isEnabled());
}

TEST(Befehle, NeuMitNeinUndJa) {
    Fenster f("ZP Kalender");
    const QString status = f.kind<QLabel>("StatusBar_1")->text();
    f.s.Termine(1, 1) = "Neujahrsempfang";
    f.s.Datendatei = "/home/ich/2004.zpd";
    f.fenster->antwort = false;
    f.aktion("mnuFileNew")->trigger();
    EXPECT_EQ(f.s.Termine(1, 1), "Neujahrsempfang");
    EXPECT_EQ(f.kind<QLabel>("StatusBar_1")->text(), status);
    f.fenster->antwort = true;
    f.aktion("mnuFileNew")->trigger();
    EXPECT_TRUE(f.s.Termine(1, 1).isEmpty());
    EXPECT_EQ(f.fenster->fragen.size(), 2);
}

TEST(Befehle, SeitenBlaettern) {
    Fenster f("ZP Kalender");
    f.s.Kalendertyp = 4;
    f.s.Seitennummer = 1;
    f.fenster->Antworten().SeitentitelAktualisieren();
    f.s.Seitenanzahl = 12;
    f.fenster->Antworten().SeitentitelAktualisieren();
    auto* spinner = f.kind<QSpinBox>("UpDownSeite");
    auto* text = f.kind<QLineEdit>("TextSeite");
    spinner->setValue(5);
    EXPECT_EQ(f.s.Seitennummer, 5);
    EXPECT_EQ(text->text(), "5");
    text->setText("");
    text->insert("13");
    emit text->textEdited(text->text());
    EXPECT_EQ(text->text(), "1");
    EXPECT_EQ(f.s.Seitennummer, 1);
    text->setText("-3");
    emit text->textEdited(text->text());
    EXPECT_EQ(text->text(), "1");
    text->setText("12");
    emit text->textEdited(text->text());
    EXPECT_EQ(f.s.Seitennummer, 12);
    EXPECT_EQ(spinner->value(), 12);
}

TEST(Befehle, ZoomMenuesUndKnoepfe) {
    Fenster f("ZP Briefkopf");
    f.aktion("mnuViewProzent100")->trigger();
    EXPECT_EQ(f.s.Zoomfaktor, 100);
    const int breite100 = f.kind<QWidget>("PictureSeite")->width();
    f.aktion("Commandzoom_1")->trigger();
    EXPECT_EQ(f.s.Zoomfaktor, 150);
    EXPECT_NEAR(f.kind<QWidget>("PictureSeite")->width(), breite100 * 1.5, 1);
    f.s.Zoomfaktor = 120;
    f.aktion("Commandzoom_0")->trigger();
    EXPECT_EQ(f.s.Zoomfaktor, 100);
    f.aktion("mnuViewProzent400")->trigger();
    f.aktion("Commandzoom_1")->trigger();
    EXPECT_EQ(f.s.Zoomfaktor, 400);
    f.aktion("mnuViewProzent50")->trigger();
    f.aktion("Commandzoom_0")->trigger();
    EXPECT_EQ(f.s.Zoomfaktor, 50);
    EXPECT_EQ(f.s.LadeSperre, 0);
}

TEST(Befehle, UmschalterUndDasUmgekehrteHaekchen) {
    Fenster f("ZP Briefkopf");
    f.s.MMGenau = 0;
    QAction* mm = f.aktion("mmummgenau");
    mm->trigger();
    EXPECT_EQ(f.s.MMGenau, -1);
    EXPECT_FALSE(mm->isChecked());
    mm->trigger();
    EXPECT_EQ(f.s.MMGenau, 0);
    EXPECT_TRUE(mm->isChecked());
    const float grid = f.s.GridAn;
    f.aktion("mnuGitterlinienansicht")->trigger();
    EXPECT_EQ(f.s.GridAn, grid == 0 ? -1 : 0);
    EXPECT_EQ(f.aktion("mnuGitterlinienansicht")->isChecked(), f.s.GridAn != 0);
}

TEST(Befehle, JahrAusDerListeMitJaUndNein) {
    Fenster f("ZP Kalender");
    auto* jahr = f.kind<QComboBox>("ComboJahr");
    for (int i = 1; i <= f.s.FeiertagWahl.Obergrenze(); ++i)
        f.s.FeiertagWahl(i) = 1; // every holiday switched on
    f.fenster->antwort = false;
    emit jahr->activated(14); // 2004
    EXPECT_EQ(f.s.Kalenderjahr, 2004);
    EXPECT_TRUE(f.s.Feiertage(1, 1).isEmpty());
    EXPECT_EQ(f.kind<Monatskalender>("MonthView2")->minimumDate(), QDate(2004, 1, 1));
    EXPECT_EQ(f.kind<Monatskalender>("MonthView1")->maximumDate(), QDate(2004, 12, 31));
    f.fenster->antwort = true;
    emit jahr->activated(15);
    EXPECT_EQ(f.s.Kalenderjahr, 2005);
    EXPECT_EQ(f.s.Feiertage(1, 1), "Neujahr");
    EXPECT_EQ(f.fenster->fragen.count("Sollen die Feiertage neu berechnet werden?"), 2);
    // A typed year of 0 is refused and the box shows the year again.
    jahr->setEditText("0");
    emit jahr->lineEdit()->editingFinished();
    EXPECT_EQ(f.s.Kalenderjahr, 2005);
    EXPECT_EQ(jahr->currentText(), "2005");
    EXPECT_EQ(f.fenster->meldungen.count(QStringLiteral("Bitte geben Sie ein Jahr zwischen 1 und 9999 ein.")),
              1);
}

TEST(Befehle, GetipptesJahrMitEnterWirktWieEineWahl) {
    Fenster f("ZP Kalender");
    auto* jahr = f.kind<QComboBox>("ComboJahr");
    auto* termine = f.kind<Monatskalender>("MonthView1");
    f.fenster->antwort = false;
    jahr->setEditText("2031");
    emit jahr->lineEdit()->editingFinished();
    EXPECT_EQ(f.s.Kalenderjahr, 2031);
    EXPECT_EQ(f.fenster->fragen.count("Sollen die Feiertage neu berechnet werden?"), 1);
    EXPECT_EQ(termine->minimumDate(), QDate(2031, 1, 1));
    // A day picked now lies in 2031, on its own weekday.
    termine->Waehlen(QDate(2031, 3, 3), false);
    EXPECT_EQ(f.s.Panel.MonthView1.Value, QDate(2031, 3, 3));
    // Leaving the box again with the same year asks nothing more.
    emit jahr->lineEdit()->editingFinished();
    EXPECT_EQ(f.fenster->fragen.size(), 1);
}

TEST(Befehle, FeiertagsfeldZeigtNachDemJahrDenGewaehltenTag) {
    Fenster f("ZP Kalender");
    auto* termine = f.kind<Monatskalender>("MonthView1");
    auto* feiertage = f.kind<Monatskalender>("MonthView2");
    auto* feld = f.kind<QLineEdit>("TextFeiertag");
    f.s.Feiertage(1, 1) = "Neujahr";
    termine->Waehlen(QDate(2002, 12, 5), false); // the appointments on view in December
    feiertage->Waehlen(QDate(2002, 1, 1), false);
    EXPECT_EQ(feld->text(), "Neujahr");
    f.fenster->antwort = false;
    emit f.kind<QComboBox>("ComboJahr")->activated(17); // 2007
    ASSERT_EQ(f.s.Kalenderjahr, 2007);
    // The view and the box show one and the same day.
    EXPECT_EQ(feiertage->selectedDate(), QDate(2007, 1, 1));
    EXPECT_EQ(feld->text(), f.s.Feiertage(1, 1));
    feld->setText(feld->text() + "X");
    EXPECT_EQ(f.s.Feiertage(1, 1), "NeujahrX");
    EXPECT_TRUE(f.s.Feiertage(1, 12).isEmpty());
    // Paging to another month keeps the selected day and its text.
    feiertage->setCurrentPage(2007, 6);
    EXPECT_EQ(f.s.Panel.MonthView2.Value, QDate(2007, 1, 1));
    EXPECT_EQ(feld->text(), "NeujahrX");
}

TEST(Befehle, KartenMitDatensaetzenBlaettern) {
    Fenster f("ZP Visitenkarte");
    f.s.Datensaetze.RedimPreserve(30, 3);
    f.s.DatensatzAnzahl = 3;
    f.s.Datensaetze(1, 3) = "Erika Muster";
    f.kind<QPushButton>("Comdata4")->click();
    EXPECT_EQ(f.s.DatensatzNummer, 3);
    EXPECT_EQ(f.kind<QLineEdit>("Text1_21")->text(), "Erika Muster");
    EXPECT_EQ(f.kind<QLineEdit>("TextData")->text(), "3");
    f.kind<QPushButton>("ComData1")->click();
    EXPECT_EQ(f.s.DatensatzNummer, 1);
    EXPECT_TRUE(f.kind<QLineEdit>("Text1_21")->text().isEmpty());
}

TEST(Befehle, TerminUeberDreiTageUndEinenGeleert) {
    Fenster f("ZP Kalender");
    auto* ansicht = f.kind<Monatskalender>("MonthView1");
    auto* text = f.kind<QPlainTextEdit>("TextTermin");
    ansicht->Waehlen(QDate(2002, 6, 10));
    ansicht->Waehlen(QDate(2002, 6, 12), true);
    EXPECT_EQ(ansicht->SelStart(), QDate(2002, 6, 10));
    text->setPlainText("Ferien\nam See");
    for (int t = 10; t <= 12; ++t)
        EXPECT_EQ(f.s.Termine(t, 6), "Ferien\r\nam See") << t;
    EXPECT_EQ(ansicht->dateTextFormat(QDate(2002, 6, 11)).fontWeight(), QFont::Bold);
    ansicht->Waehlen(QDate(2002, 6, 11));
    EXPECT_EQ(text->toPlainText(), "Ferien\nam See");
    text->clear();
    EXPECT_EQ(f.s.Termine(10, 6), "Ferien\r\nam See");
    EXPECT_TRUE(f.s.Termine(11, 6).isEmpty());
    EXPECT_EQ(f.s.Termine(12, 6), "Ferien\r\nam See");
    EXPECT_NE(ansicht->dateTextFormat(QDate(2002, 6, 11)).fontWeight(), QFont::Bold);
}

TEST(Befehle, FarbdialogAbbrechenAendertNichts) {
    Fenster f("ZP Kalender");
    auto* ansicht = f.kind<Monatskalender>("MonthView2");
    ansicht->Waehlen(QDate(2002, 12, 24));
    f.fenster->farbe.reset();
    f.kind<QToolButton>("PictureFeiertagBack")->click();
    EXPECT_EQ(f.s.FeiertagBack(24, 12), -1);
    f.fenster->farbe = QColor(255, 0, 0);
    f.kind<QToolButton>("PictureFeiertagBack")->click();
    EXPECT_EQ(f.s.FeiertagBack(24, 12), 0x0000FF);
}

TEST(Befehle, TextfeldFuehrtTextUndSichtbarkeit) {
    Fenster f("ZP Briefkopf");
    f.s.SchriftNummer = 3;
    f.s.RahmenNummer = 3;
    f.kind<QLineEdit>("Text1_3")->setText("Firma Muster");
    EXPECT_EQ(f.s.Schriftliste(3).Textstring, "Firma Muster");
    EXPECT_EQ(f.s.Rahmenliste(3).Sichtbar, -1);
    f.kind<QLineEdit>("Text1_3")->clear();
    EXPECT_EQ(f.s.Rahmenliste(3).Sichtbar, 0);
    // Boxes 21 to 30 are the current record's fields.
    f.s.DatensatzNummer = 2;
    f.kind<QLineEdit>("Text1_22")->setText("Hauptstraße 1");
    EXPECT_EQ(f.s.Datensaetze(2, 2), "Hauptstraße 1");
    EXPECT_EQ(f.s.Panel.Text1(22), "Hauptstraße 1");
    EXPECT_EQ(f.s.Rahmenliste(22).Sichtbar, -1); // frames 21 to 30 are left alone
}

TEST(Befehle, FokusWaehltDenRahmenDesTextfelds) {
    Fenster f("ZP Briefkopf");
    auto* box = f.kind<QLineEdit>("Text1_5");
    QFocusEvent rein(QEvent::FocusIn);
    QApplication::sendEvent(box, &rein);
    EXPECT_EQ(f.s.SchriftNummer, 5);
    EXPECT_EQ(f.s.RahmenNummer, 5);
    EXPECT_EQ(f.s.LadeSperre, 0);
    // While a new frame waits to be drawn the focus selects nothing.
    f.s.Auswahlmodus = 1;
    QApplication::sendEvent(f.kind<QLineEdit>("Text1_7"), &rein);
    EXPECT_EQ(f.s.SchriftNummer, 5);
}

TEST(Befehle, DieLetzteSitzungLaesstSichAusschalten) {
    Fenster f("ZP Etikett");
    QAction* sitzung = f.aktion("mnuSitzung");
    ASSERT_TRUE(sitzung->isCheckable());
    EXPECT_TRUE(sitzung->isChecked()); // on in a fresh folder
    sitzung->trigger();
    EXPECT_FALSE(SitzungWiederherstellenAn(f.s));
    EXPECT_TRUE(QFile::exists(f.s.Programmpfad + "zusatz.ini"));
    sitzung->trigger();
    EXPECT_TRUE(SitzungWiederherstellenAn(f.s));
}

TEST(Befehle, OhneBrowserSagenHilfeWebUndMailWohin) {
    Fenster f("ZP Kalender");
    f.fenster->oeffnenGelingt = false;
    QFile hilfe(f.s.Programmpfad + "deutsch.html");
    ASSERT_TRUE(hilfe.open(QIODevice::WriteOnly));
    hilfe.close();
    f.s.Hilfedatei = f.s.Programmpfad + "deutsch.hlp";
    for (const char* eintrag : {"mnuHelpContents", "mnuHelpZP", "mnuHelpHotline", "mnuupdate"}) {
        f.fenster->meldungen.clear();
        f.fenster->details.clear();
        f.aktion(eintrag)->trigger();
        ASSERT_EQ(f.fenster->meldungen.size(), 1) << eintrag;
        EXPECT_TRUE(f.fenster->meldungen[0].contains("eingerichtet")) << eintrag;
        EXPECT_FALSE(f.fenster->details[0].isEmpty()) << eintrag;
    }
    EXPECT_EQ(f.fenster->details[0], "https://zp-kalender.de/update802.html");
    f.fenster->details.clear();
    f.aktion("mnuHelpContents")->trigger();
    EXPECT_EQ(f.fenster->details[0], hilfe.fileName()); // where the user finds the help
}

TEST(Befehle, HilfeOhneDateiSagtEs) {
    Fenster f("ZP Etikett");
    f.s.Hilfedatei = f.s.Programmpfad + "deutsch.hlp"; // no deutsch.html beside it
    const qsizetype vorher = f.fenster->meldungen.size();
    f.aktion("mnuHelpContents")->trigger();
    ASSERT_EQ(f.fenster->meldungen.size(), vorher + 1);
    EXPECT_EQ(f.fenster->meldungen.last(),
              "Hilfeinhalt konnte nicht angezeigt werden. Dieser Anwendung ist keine "
              "Hilfedatei zugeordnet.");
}

TEST(Befehle, SchliessenSchreibtDieDateienDesKalenders) {
    Fenster f("ZP Kalender");
    f.aktion("mnuFileExit")->trigger();
    for (const char* datei : {"zp.ini", "kalender.ini", "auto.zpd", "kal1.zpk"})
        EXPECT_TRUE(QFileInfo::exists(f.ordner.filePath(datei))) << datei;
    EXPECT_EQ(f.s.Datendatei, f.s.Programmpfad + "auto.zpd");
    EXPECT_FALSE(f.fenster->isVisible());
}

TEST(Befehle, PanelknoepfeUndSchnappschuss) {
    // The snapshot goes into a private folder of the temporary folder, never to a fixed name
    // that another user could plant.
    QTemporaryDir tmp;
    const QByteArray altesTmp = qgetenv("TMPDIR");
    qputenv("TMPDIR", tmp.path().toUtf8());
    Fenster f("ZP Visitenkarte");
    f.aktion("Toolbar4_3")->trigger();
    qputenv("TMPDIR", altesTmp);
    EXPECT_EQ(f.kind<QStackedWidget>("Frame1")->currentWidget()->objectName(), "Frame1_3");
    EXPECT_FALSE(QFileInfo::exists(tmp.filePath("test.zpb")));
    QDirIterator it(tmp.path(), {"test.zpb"}, QDir::Files, QDirIterator::Subdirectories);
    ASSERT_TRUE(it.hasNext());
    const QFileInfo datei(it.next());
    EXPECT_EQ(QFileInfo(datei.path()).permissions() & (QFile::ReadOther | QFile::ReadGroup), 0);
    EXPECT_FALSE(f.s.AktuelleDatei.endsWith("test.zpb"));
}

TEST(Drucken, DialogZeigtSeitenUndSchreibtAbgleichSofort) {
    AppState s;
    QTemporaryDir ordner;
    Grundzustand(s, "ZP Kalender", ordner.path());
    s.Kalendertyp = 4;
    Nutzer ui;
    ui.vorgabeDatei = ordner.filePath("kalender.pdf"); // for the printer "PDF-Datei"
    FrmDrucken dialog(s, ui);
    EXPECT_EQ(dialog.findChild<QLineEdit*>("TextDruckEnde")->text(), "12");
    EXPECT_EQ(dialog.findChild<QLineEdit*>("TextProzent")->text(), "100");
    EXPECT_TRUE(dialog.findChild<QLineEdit*>("TextDruckStart")->isEnabled());
    auto* x = dialog.findChild<QLineEdit*>("TextAbgleichx");
    x->setText("12,5x");
    emit x->textEdited(x->text());
    EXPECT_EQ(s.AbgleichX, 12); // numeric prefix: the comma ends the number
    dialog.findChild<QCheckBox*>("Check2")->setChecked(true);
    EXPECT_EQ(s.AktuellesEtikett.Schnittmarken, -1);
    dialog.findChild<QLineEdit*>("TextDruckEnde")->setText("99");
    const Druckdialogwerte erhalten = dialog.Werte();
    EXPECT_EQ(erhalten.TextDruckEnde, "99");
    EXPECT_EQ(erhalten.Drucker, dialog.findChild<QComboBox*>("Combo1")->currentText());

    s.Kalendertyp = 3;
    FrmDrucken tasche(s, ui);
    EXPECT_FALSE(tasche.findChild<QLineEdit*>("TextDruckStart")->isEnabled());
    EXPECT_EQ(tasche.findChild<QLineEdit*>("TextDruckEnde")->text(), "1");
}

// A user who picks a PDF file and notes whether a progress box stood over the file dialog.
struct PdfNutzer : Nutzer {
    QString DateiWaehlen(const QString&, const QString& filter, bool speichern) override {
        EXPECT_TRUE(speichern);
        EXPECT_EQ(filter, "PDF-Datei (*.pdf)|*.pdf");
        for (QWidget* w : QApplication::topLevelWidgets())
            if (qobject_cast<QProgressDialog*>(w) && w->isVisible()) ueberdeckt = true;
        ++gefragt;
        return vorgabeDatei;
    }
    int gefragt = 0;
    bool ueberdeckt = false;
};

TEST(Drucken, PdfFragtZuerstNachDerDateiUndZeigtFortschrittNurBeimDrucken) {
    AppState s;
    QTemporaryDir ordner;
    Grundzustand(s, "ZP Kalender", ordner.path());
    s.Kalendertyp = 4;
    PdfNutzer ui;
    Druckdialogwerte erhalten;
    int laeufe = 0;
    bool abbrechen = false;
    const auto d = [&](AppState&, Oberflaeche&, const Druckdialogwerte& w, const Druckfortschritt& f) {
        ++laeufe;
        erhalten = w;
        EXPECT_EQ(ui.gefragt, 1); // the file was asked before the run began
        EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
        for (int seite = 1; seite <= 12; ++seite) {
            if (abbrechen && seite == 3)
                for (QWidget* w : QApplication::topLevelWidgets())
                    if (auto* box = qobject_cast<QProgressDialog*>(w)) box->cancel();
            if (!f(seite, 12)) return false;
        }
        return true;
    };
    FrmDrucken dialog(s, ui, nullptr, d);
    dialog.findChild<QComboBox*>("Combo1")->setCurrentText("PDF-Datei");

    // A cancelled file dialog prints nothing and says nothing.
    dialog.CommandDrucken();
    EXPECT_EQ(laeufe, 0);
    EXPECT_TRUE(ui.meldungen.isEmpty());

    ui.gefragt = 0;
    ui.vorgabeDatei = ordner.filePath("kalender");
    dialog.CommandDrucken();
    EXPECT_EQ(laeufe, 1);
    EXPECT_EQ(erhalten.PdfDatei, ordner.filePath("kalender.pdf"));
    EXPECT_FALSE(ui.ueberdeckt);
    EXPECT_TRUE(ui.meldungen.isEmpty());
    EXPECT_EQ(dialog.findChild<QProgressDialog*>(), nullptr); // gone with the last page

    // A cancel stops the run and says so.
    ui.gefragt = 0;
    abbrechen = true;
    dialog.CommandDrucken();
    EXPECT_EQ(ui.meldungen,
              QStringList{"Der Druck wurde abgebrochen. Die PDF-Datei wurde nicht geschrieben."});
}

TEST(Drucken, EtikettenstartUndSeriennummerNurWoStueckeGedrucktWerden) {
    for (const char* name : {"ZP Kalender", "ZP Briefkopf", "ZP Etikett", "ZP Visitenkarte"}) {
        AppState s;
        QTemporaryDir ordner;
        Grundzustand(s, name, ordner.path());
        Nutzer ui;
        FrmDrucken dialog(s, ui);
        dialog.show();
        const bool stuecke = QString(name).contains("Etikett") || QString(name).contains("Visitenkarte");
        EXPECT_EQ(dialog.findChild<QLineEdit*>("TextStart")->isVisible(), stuecke) << name;
        EXPECT_EQ(dialog.findChild<QLineEdit*>("TextSeriennummer")->isVisible(), stuecke) << name;
    }
}

} // namespace
} // namespace zp::test

namespace zp::test {
namespace {
TEST(Symbol, DasFenstersymbolIstEingebaut) {
    QFile symbol(":/zp/zp.svg");
    ASSERT_TRUE(symbol.open(QIODevice::ReadOnly));
    EXPECT_TRUE(symbol.readAll().startsWith("<svg"));
}
} // namespace
} // namespace zp::test
