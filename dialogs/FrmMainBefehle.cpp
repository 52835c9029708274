// frmMain: every control bound to its command.
#include "dialogs/FrmDrucken.h"
#include "dialogs/FrmInfo.h"
#include "dialogs/FrmMain.h"
#include "dialogs/Monatskalender.h"
#include "dialogs/Seitenansicht.h"

#include "calendar/data/Kalendertypen.h"
#include "calendar/data/Tagesdaten.h"
#include "core/Datensatzbefehle.h"
#include "core/Dokumentbefehle.h"
#include "core/Importbefehl.h"
#include "core/Seitennavigation.h"
#include "core/Sitzung.h"
#include "core/runtime/Basic.h"
#include "core/state/Ansicht.h"
#include "core/state/AppState.h"
#include "core/state/Editionen.h"
#include "core/state/Textfelder.h"
#include "core/state/Zoom.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDesktopServices>
#include <QDir>
#include <QFileInfo>
#include <QImageReader>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSignalBlocker>
#include <QSpinBox>
#include <QStackedWidget>
#include <QToolBar>
#include <QToolButton>
#include <QUrl>

namespace zp {

namespace {

// The maker's pages that the help menu opens.
const char* const Homepage = "https://zp-kalender.de/";
const char* const Mailadresse = "mailto:autor@zp-kalender.de?subject=ZP";

int AlsFarbe(const QColor& c) {
    return basic::RGB(c.red(), c.green(), c.blue());
}

// Appointment texts keep CR LF in the table; the box works with plain line breaks.
QString MitCrLf(QString text) {
    text.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    return text.replace(QLatin1Char('\n'), QStringLiteral("\r\n"));
}
QString OhneCrLf(QString text) {
    return text.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
}

} // namespace

void FrmMain::Verbinden() {
    auto bei = [this](const char* name, auto f) {
        connect(Aktion(QString::fromUtf8(name)), &QAction::triggered, this, f);
    };

    // File.
    bei("mnuFileNew", [this] { BefehlNeu(s, *this, m_d); });
    bei("mnuFileOpen", [this] { BefehlOeffnen(s, *this, m_d); });
    bei("mnuimport", [this] {
        const QString datei = QtDateiWaehlen(QStringLiteral("Importieren"), ImportFilter(s));
        if (!datei.isEmpty() && Importieren(s, *this, datei)) Neuzeichnen();
    });
    bei("mnuFileSave", [this] { BefehlSpeichern(s, *this, m_d); });
    bei("mnuFileSaveAs", [this] { BefehlSpeichernUnter(s, *this, m_d, Dateidialog::SpeichernUnter); });
    bei("mnuFileSaveAs2", [this] { BefehlSpeichernUnter(s, *this, m_d, Dateidialog::SpeichernUnter2); });
    bei("mnuFilePrint", [this] { Drucken(); });
    bei("mnuBildSpeichern", [this] {
        const QString datei =
            SpeicherDateiWaehlen(QStringLiteral("Bild speichern"),
                                 QStringLiteral("BMP-Bilddatei (*.bmp)|*.bmp"), QStringLiteral("ZP.bmp"));
        if (datei.isEmpty() || !m_d.BildSpeichern) return;
        QApplication::setOverrideCursor(Qt::WaitCursor);
        m_d.BildSpeichern(s, *this, datei);
        QApplication::restoreOverrideCursor();
    });
    bei("mnuWord", [this] {
        QApplication::setOverrideCursor(Qt::WaitCursor);
        DienstAusfuehren(m_d.Word, s, *this);
        QApplication::restoreOverrideCursor();
    });
    connect(Aktion(QStringLiteral("mnuSitzung")), &QAction::toggled, this, [this](bool an) {
        if (s.LadeSperre == 0) SitzungWiederherstellenSetzen(s, *this, an);
    });
    bei("mnuFileClose", [this] { close(); });
    bei("mnuFileExit", [this] { close(); });

    // View.
    bei("mnuGitterlinienansicht",
        [this] { Umschalten(s.GridAn, Aktion(QStringLiteral("mnuGitterlinienansicht")), false, true); });
    bei("mnuHilfsbereiche",
        [this] { Umschalten(s.HilfsbereicheAn, Aktion(QStringLiteral("mnuHilfsbereiche")), false, true); });
    bei("mnuRahmensichtbar",
        [this] { Umschalten(s.RahmenAnzeigen, Aktion(QStringLiteral("mnuRahmensichtbar")), false, true); });
    bei("mmummgenau", [this] { Umschalten(s.MMGenau, Aktion(QStringLiteral("mmummgenau")), true, false); });
    bei("mnuRahmenMagnet",
        [this] { Umschalten(s.GitterAn, Aktion(QStringLiteral("mnuRahmenMagnet")), false, false); });
    for (int p : {50, 100, 150, 200, 400})
        connect(Aktion(QStringLiteral("mnuViewProzent%1").arg(p)), &QAction::triggered, this,
                [this, p] { ZoomSetzen(p); });
    bei("mnuViewSeitenbreite",
        [this] { ZoomSetzen(ZoomSeitenbreite(s, m_seite->ViewportTwips(s.TwipsProPixelX).width())); });
    bei("mnuViewganze_Seite", [this] {
        const QSizeF vp = m_seite->ViewportTwips(s.TwipsProPixelX);
        ZoomSetzen(ZoomGanzeSeite(s, vp.width(), vp.height()));
    });
    bei("Commandzoom_0", [this] { Commandzoom(0); });
    bei("Commandzoom_1", [this] { Commandzoom(1); });

    // Help.
    bei("mnuHelpContents", [this] { Hilfe(); });
    const QString keinBrowser =
        QStringLiteral("Die Seite konnte nicht geöffnet werden, weil kein Webbrowser eingerichtet ist. Bitte "
                       "rufen Sie diese Adresse selbst auf:");
    bei("mnuHelpZP", [this, keinBrowser] {
        const QUrl seite(QString::fromLatin1(Homepage));
        if (!AdresseOeffnen(seite)) Meldung(keinBrowser, QStringLiteral("Zur ZP-Homepage"), seite.toString());
    });
    bei("mnuHelpHotline", [this] {
        const QUrl mail(QString::fromLatin1(Mailadresse));
        if (!AdresseOeffnen(mail))
            Meldung(QStringLiteral(
                        "Die Mail konnte nicht begonnen werden, weil kein E-Mail-Programm eingerichtet "
                        "ist. Bitte schreiben Sie an diese Adresse:"),
                    QStringLiteral("Mail an den Autor"), mail.path());
    });
    bei("mnuupdate", [this, keinBrowser] {
        QString version = s.Programmversion;
        version.remove(QLatin1Char('.'));
        const QUrl seite(QString::fromLatin1(Homepage) + QStringLiteral("update") + version +
                         QStringLiteral(".html"));
        if (!AdresseOeffnen(seite))
            Meldung(keinBrowser, QStringLiteral("Programm aktualisieren"), seite.toString());
    });
    bei("mnuInfo", [this] {
        FrmInfo info(s, this);
        info.exec();
    });

    // Panel switches.
    for (int k = 1; k <= 5; ++k) {
        connect(Aktion(QStringLiteral("Toolbar4_%1").arg(k)), &QAction::triggered, this,
                [this, k] { Toolbar4Knopf(k); });
        connect(Aktion(QStringLiteral("Toolbar5_%1").arg(k)), &QAction::triggered, this,
                [this, k] { Toolbar5Knopf(k); });
    }

    // Text boxes: focus selects the box's frame, leaving it draws what is still pending.
    for (int i = 1; i <= 30; ++i)
        m_text1[i]->installEventFilter(this);
    for (int i = 1; i <= 30; ++i) {
        connect(m_text1[i], &QLineEdit::textChanged, this, [this, i](const QString& t) {
            if (s.LadeSperre == 0) {
                // The frame of the current text shows or hides with it before the page is drawn.
                if (s.Schriftliste.Gueltig(i)) s.Schriftliste(i).Textstring = t;
                const int nummer = static_cast<int>(s.SchriftNummer);
                if (nummer >= 1 && s.Schriftliste.Gueltig(nummer))
                    ApplyInlineText(s, s.Schriftliste(nummer).Textstring);
            }
            FeldboxGeaendert(s, *this, i, t);
        });
    }
    connect(m_textTitel, &QLineEdit::textChanged, this, [this](const QString& t) {
        if (s.LadeSperre != 0) return;
        KalendertitelGeaendert(s, t);
        Neuzeichnen();
    });
    connect(m_textUnterschrift, &QLineEdit::textChanged, this, [this](const QString& t) {
        if (s.LadeSperre != 0) return;
        KalenderunterschriftGeaendert(s, t);
        Neuzeichnen();
    });

    // Records, layouts and gallery.
    for (int k = 1; k <= 5; ++k)
        connect(findChild<QPushButton*>(QStringLiteral("Command4_%1").arg(k)), &QPushButton::clicked, this,
                [this, k] { LayoutKnopf(s, *this, k); });
    auto knopf = [this](const char* name, auto f) {
        connect(findChild<QPushButton*>(QString::fromLatin1(name)), &QPushButton::clicked, this, f);
    };
    knopf("ComData1", [this] { ErsterDatensatz(s, *this); });
    knopf("ComData2", [this] { VorigerDatensatz(s, *this); });
    knopf("Comdata3", [this] { NaechsterDatensatz(s, *this); });
    knopf("Comdata4", [this] { LetzterDatensatz(s, *this); });
    knopf("Command1",
          [this] { SucheDatensatz(s, *this, findChild<QLineEdit*>(QStringLiteral("TextSuchen"))->text()); });
    knopf("Command2", [this] { LoescheDatensatz(s, *this); });
    knopf("Command3", [this] { FuegeDatensatzEin(s, *this); });
    connect(m_textData, &QLineEdit::returnPressed, this,
            [this] { DatensatzNummerEingegeben(s, *this, m_textData->text()); });
    connect(m_list1, &QListWidget::currentRowChanged, this, [this](int zeile) {
        if (s.LadeSperre != 0) return;
        GalerieLaden(s, *this, m_d, zeile);
    });

    // Calendar: type, year, variant, pages, standard design, holidays, refresh.
    auto nachDesign = [this] {
        SeitentitelAktualisieren();
        PanelAktualisieren();
        AuswahlAktualisieren();
        Aktion(QStringLiteral("Toolbar5_4"))
            ->setVisible(static_cast<int>(s.Kalendertyp) == 4 || static_cast<int>(s.Kalendertyp) == 5);
        Neuzeichnen();
    };
    for (int t = 1; t <= 7; ++t)
        connect(m_typ[t], &QPushButton::clicked, this, [this, t, nachDesign] {
            if (CommandTyp(s, *this, Ablage(), t)) nachDesign();
        });
    connect(m_comboVariante, &QComboBox::activated, this, [this, nachDesign] {
        if (ComboVariante(s, *this, Ablage(), m_comboVariante->currentText())) nachDesign();
    });
    connect(m_comboJahr, &QComboBox::activated, this, [this](int i) { JahrGeklickt(i); });
    connect(m_comboJahr->lineEdit(), &QLineEdit::editingFinished, this, [this] { JahrGetipptBefehl(); });
    connect(m_upDownSeite, &QSpinBox::valueChanged, this, [this](int seite) {
        if (SeiteWaehlen(s, seite)) {
            const QSignalBlocker b(m_textSeite);
            m_textSeite->setText(QString::number(seite));
            Neuzeichnen();
        }
    });
    connect(m_textSeite, &QLineEdit::textEdited, this, [this] { SeiteGetippt(); });
    connect(findChild<QPushButton*>(QStringLiteral("CommandStandard")), &QPushButton::clicked, this,
            [this, nachDesign] {
                if (CommandStandard(s, *this, Ablage())) nachDesign();
            });
    connect(Aktion(QStringLiteral("mnukalender")), &QAction::triggered, this, [this, nachDesign] {
        if (CommandStandard(s, *this, Ablage())) nachDesign();
    });
    connect(findChild<QPushButton*>(QStringLiteral("CommandBerechnen")), &QPushButton::clicked, this, [this] {
        DienstAusfuehren(m_d.CommandBerechnen, s, *this);
        TagesmarkenAufbauen(s);
        FeiertagAnzeigen(s);
        KalenderpanelZeigen();
        Neuzeichnen();
    });
    for (const char* name : {"CommandAktualisieren", "CommandAktualisieren2"})
        connect(findChild<QPushButton*>(QString::fromLatin1(name)), &QPushButton::clicked, this,
                [this] { Neuzeichnen(); });

    // Day data.
    connect(m_monat1, &Monatskalender::auswahlGeaendert, this, [this] {
        TerminAngeklickt();
        m_textTermin->setFocus();
    });
    connect(m_monat2, &Monatskalender::auswahlGeaendert, this, [this] {
        FeiertagAngeklickt();
        m_textFeiertag->setFocus();
    });
    // Paging a view to another month marks the days of the month shown; the selected day, and so
    // what the boxes show and change, stays.
    for (Monatskalender* v : {m_monat1, m_monat2})
        connect(v, &QCalendarWidget::currentPageChanged, this, [this, v](int jahr, int monat) {
            MonatGeblaettert(s, v == m_monat2, jahr, monat);
            if (s.LadeSperre == 0) KalenderpanelZeigen();
        });
    connect(m_textTermin, &QPlainTextEdit::textChanged, this, [this] { TerminGeaendert(); });
    connect(m_textFeiertag, &QLineEdit::textChanged, this, [this] { FeiertagGeaendert(); });
    for (int art = 0; art < 4; ++art)
        connect(m_farbfeld[art], &QToolButton::clicked, this, [this, art] { FarbfeldGeklickt(art); });

    // Month pictures.
    connect(m_comboMonat, &QComboBox::activated, this, [this](int i) {
        MonatsbildWaehlen(s, i);
        KalenderpanelZeigen();
    });
    connect(m_textBildbeschreibung, &QLineEdit::textChanged, this, [this](const QString& t) {
        if (s.LadeSperre == 0) BildbeschreibungGeaendert(s, t);
    });
    connect(m_textbilddatei, &QLineEdit::textChanged, this, [this](const QString& t) {
        if (s.LadeSperre != 0) return;
        const bool neuzeichnen = BilddateiGeaendert(s, t);
        Vorschaubild();
        if (neuzeichnen) Neuzeichnen();
    });
    connect(findChild<QPushButton*>(QStringLiteral("CommandDurchsuchen")), &QPushButton::clicked, this,
            [this] {
                const QString datei = DateiWaehlen(
                    QStringLiteral("Öffnen"), QStringLiteral("BMP (*.bmp)|*.bmp|JPG (*.jpg)|*.jpg"), false);
                if (!datei.isEmpty()) m_textbilddatei->setText(datei);
            });

    // The page's context menu.
    Seitenbild* seite = m_seite->PictureSeite();
    seite->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(seite, &QWidget::customContextMenuRequested, this, [this, seite](const QPoint& p) {
        if (auto* pop = findChild<QMenu*>(QStringLiteral("PopSchrift"))) pop->popup(seite->mapToGlobal(p));
    });

    // The page: pointer position in the status bar.
    connect(m_seite->PictureSeite(), &Seitenbild::zeigerBewegt, this, [this](QPoint p) {
        const double f =
            s.Zoomfaktor / 100.0 * TwipsJeZehntelmm / (s.TwipsProPixelX > 0 ? s.TwipsProPixelX : 15);
        m_status[1]->setText(QStringLiteral("x: %1 mm").arg(p.x() / f / 10.0, 0, 'f', 1));
        m_status[2]->setText(QStringLiteral("y: %1 mm").arg(p.y() / f / 10.0, 0, 'f', 1));
    });
}

bool FrmMain::eventFilter(QObject* objekt, QEvent* e) {
    if (e->type() == QEvent::FocusIn || e->type() == QEvent::FocusOut) {
        for (int i = 1; i <= 30; ++i) {
            if (objekt != m_text1[i]) continue;
            if (e->type() == QEvent::FocusIn && s.Auswahlmodus == 0) {
                // The box's text object and frame become the current ones.
                s.LadeSperre = 255;
                s.SchriftNummer = i;
                s.RahmenNummer = i;
                AuswahlAktualisieren();
                s.LadeSperre = 0;
                Neuzeichnen();
            } else if (e->type() == QEvent::FocusOut && s.NeuzeichnenOffen != 0) {
                s.NeuzeichnenOffen = 0;
                if (s.LadeSperre == 0) Neuzeichnen();
            }
            break;
        }
    }
    return QMainWindow::eventFilter(objekt, e);
}

void FrmMain::Freigaben() {
    // Entries whose work comes with the frame editing, the property dialogs or exports that
    // aren't part of this build stay in place, disabled.
    const char* spaeter[] = {"mnuFilePageSetup",
                             "mnuBrief",
                             "mnuKartengrösse",
                             "mnuDesign",
                             "mnuRaster",
                             "mnubildeinfügen",
                             "mnuLinieeinfügen",
                             "mnuTexteinfügen",
                             "mnudatumeinfuegen",
                             "mnuzeit",
                             "mnuseriennummer",
                             "mnuFeiertage",
                             "mnukalendereditieren",
                             "mnuRahmenEinfügen",
                             "mnuRahmenLöschen",
                             "mnuRahmenPositionieren",
                             "mnuverankert",
                             "mnuVerankernAlle",
                             "mnuVerankernKeine",
                             "mnuRahmenvorne",
                             "mnuRahmenhinten",
                             "mnuRahmeneinsvorn",
                             "mnuRahmeneinshinten",
                             "popEigenschaft",
                             "popPositionieren",
                             "mnuVerankern",
                             "popLoeschen",
                             "popganzvorn",
                             "popganzhinten",
                             "popeinsvor",
                             "popeinshinten",
                             "Toolbar1_Eigenschaft",
                             "Toolbar1_Einfügen",
                             "Toolbar4_5",
                             "Toolbar5_5"};
    for (const char* name : spaeter)
        Aktion(QString::fromUtf8(name))->setEnabled(false);
    findChild<QPushButton*>(QStringLiteral("CommandOptionen"))->setEnabled(false);

    // Entries that need another area's function are enabled when it is bound.
    const bool kalender = s.IstKalender != 0;
    const bool laden = static_cast<bool>(m_d.LoadDesign);
    const bool speichern = static_cast<bool>(m_d.SaveDesign);
    const bool oeffnen = laden || (kalender && m_d.LadeDaten);
    const bool sichern = speichern || (kalender && m_d.SpeichereDaten);
    Aktion(QStringLiteral("mnuFileOpen"))->setEnabled(oeffnen);
    Aktion(QStringLiteral("Toolbar1_Öffnen"))->setEnabled(oeffnen);
    for (const char* name : {"mnuFileSave", "mnuFileSaveAs", "mnuFileSaveAs2", "Toolbar1_Speichern"})
        Aktion(QString::fromUtf8(name))->setEnabled(sichern);
    Aktion(QStringLiteral("mnuFileNew"))->setEnabled(kalender ? static_cast<bool>(m_d.KalenderNeu) : laden);
    Aktion(QStringLiteral("Toolbar1_Neu"))->setEnabled(Aktion(QStringLiteral("mnuFileNew"))->isEnabled());
    Aktion(QStringLiteral("mnukalender"))->setEnabled(laden);
    findChild<QPushButton*>(QStringLiteral("CommandStandard"))->setEnabled(laden);
    for (int t = 1; t <= 7; ++t)
        m_typ[t]->setEnabled(laden && speichern);
    m_comboVariante->setEnabled(laden && speichern);
    m_list1->setEnabled(laden);
    Aktion(QStringLiteral("mnuBildSpeichern"))->setEnabled(static_cast<bool>(m_d.BildSpeichern));
    Aktion(QStringLiteral("mnuWord"))->setEnabled(static_cast<bool>(m_d.Word));
    Aktion(QStringLiteral("mnuFilePrint"))->setEnabled(true);
    findChild<QPushButton*>(QStringLiteral("CommandBerechnen"))
        ->setEnabled(static_cast<bool>(m_d.CommandBerechnen));
}

void FrmMain::EditionAnwenden() {
    // What the window is built with, before the edition changes it.
    for (const char* name : {"mnuFeiertage", "mnukalender", "mnukalendereditieren", "mnuVerankernAlle",
                             "mnuVerankernKeine", "mnuimport", "mnuFileSaveAs2"})
        Aktion(QString::fromUtf8(name))->setVisible(false);
    m_toolbar4->setVisible(true);
    m_toolbar5->setVisible(false);

    const Edition e = AktuelleEdition(s);
    for (const Steuerelementregel& r : Editionsregeln(e)) {
        if (r.name == QLatin1String("Toolbar4") || r.name == QLatin1String("Toolbar5")) {
            QToolBar* t = r.name == QLatin1String("Toolbar4") ? m_toolbar4 : m_toolbar5;
            if (r.sichtbar) t->setVisible(*r.sichtbar);
            continue;
        }
        QAction* a = Aktion(r.name);
        if (!a) continue;
        if (r.sichtbar) a->setVisible(*r.sichtbar);
        if (r.titel) a->setText(*r.titel);
    }
    // The calendar's menu entry for frame editing belongs to the calendar.
    Aktion(QStringLiteral("mnukalendereditieren"))->setVisible(e == Edition::Kalender);
}

void FrmMain::Haekchen() {
    Aktion(QStringLiteral("mnuSitzung"))->setChecked(SitzungWiederherstellenAn(s));
    Aktion(QStringLiteral("mnuRahmensichtbar"))->setChecked(s.RahmenAnzeigen == -1);
    Aktion(QStringLiteral("mnuRahmenMagnet"))->setChecked(s.GitterAn == -1);
    Aktion(QStringLiteral("mmummgenau"))->setChecked(s.MMGenau != 0);
    Aktion(QStringLiteral("mnuGitterlinienansicht"))->setChecked(s.GridAn != 0);
    Aktion(QStringLiteral("mnuHilfsbereiche"))->setChecked(s.HilfsbereicheAn != 0);
}

void FrmMain::Umschalten(float& flag, QAction* a, bool umgekehrt, bool neuzeichnen) {
    zp::Umschalten(flag);
    // "1/10 mm genau" shows its mark the other way round: on while the flag is off.
    a->setChecked(umgekehrt ? flag == 0 : flag != 0);
    if (neuzeichnen) Neuzeichnen();
}

void FrmMain::Toolbar4Knopf(int knopf) {
    static const int panel[] = {0, 1, 4, 3, 5};
    if (knopf < 1 || knopf > 4) return;
    for (int k = 1; k <= 4; ++k)
        Aktion(QStringLiteral("Toolbar4_%1").arg(k))->setChecked(k == knopf);
    Panelzeigen(panel[knopf]);
    if (knopf == 1) m_text1[1]->setFocus();
    if (knopf >= 2) Schnappschuss();
}

void FrmMain::Toolbar5Knopf(int knopf) {
    static const int panel[] = {0, 8, 6, 7, 9};
    if (knopf < 1 || knopf > 4) return;
    for (int k = 1; k <= 4; ++k)
        Aktion(QStringLiteral("Toolbar5_%1").arg(k))->setChecked(k == knopf);
    Panelzeigen(panel[knopf]);
    if (knopf == 2) m_textTermin->setFocus();
    if (knopf == 3) m_textFeiertag->setFocus();
}

void FrmMain::Schnappschuss() {
    // A copy of the design in the temporary folder; the user's file name stays.
    if (!m_d.SaveDesign) return;
    const QString gemerkt = s.AktuelleDatei;
    s.AktuelleDatei = QDir::tempPath() + QStringLiteral("/test.zpb");
    DienstAusfuehren(m_d.SaveDesign, s, *this);
    s.AktuelleDatei = gemerkt;
}

// ---- Calendar side panel ----------------------------------------------------------------------
// The rules live with the day data; the window hands them the selection and shows the result.

Designablage FrmMain::Ablage() {
    Designablage a;
    if (m_d.SaveDesign)
        a.speichern = [this](AppState& st) { return DienstAusfuehren(m_d.SaveDesign, st, *this); };
    if (m_d.LoadDesign)
        a.laden = [this](AppState& st) { return DienstAusfuehren(m_d.LoadDesign, st, *this); };
    return a;
}

void FrmMain::KalenderpanelZeigen() {
    const uint8_t sperre = s.LadeSperre;
    s.LadeSperre = 255;
    const Seitenleiste& p = s.Panel;
    const QString termin = OhneCrLf(p.TextTermin);
    if (m_textTermin->toPlainText() != termin) m_textTermin->setPlainText(termin);
    if (m_textFeiertag->text() != p.TextFeiertag) m_textFeiertag->setText(p.TextFeiertag);
    FarbfeldZeigen(m_farbfeld[0], p.PictureTextfarbe);
    FarbfeldZeigen(m_farbfeld[1], p.PictureHintergrundfarbe);
    FarbfeldZeigen(m_farbfeld[2], p.PictureFeiertagSchrift);
    FarbfeldZeigen(m_farbfeld[3], p.PictureFeiertagBack);
    m_monat1->AusZustand(p.MonthView1);
    m_monat2->AusZustand(p.MonthView2);
    if (m_comboMonat->count() == 12 && m_comboMonat->currentIndex() != p.ComboMonat)
        m_comboMonat->setCurrentIndex(std::clamp(p.ComboMonat, 0, 11));
    if (m_textbilddatei->text() != p.Textbilddatei) m_textbilddatei->setText(p.Textbilddatei);
    if (m_textBildbeschreibung->text() != p.TextBildbeschreibung)
        m_textBildbeschreibung->setText(p.TextBildbeschreibung);
    Vorschaubild();
    s.LadeSperre = sperre;
}

void FrmMain::TerminAngeklickt() {
    m_monat1->InZustand(s.Panel.MonthView1);
    TerminAnzeigen(s);
    KalenderpanelZeigen();
}

void FrmMain::FeiertagAngeklickt() {
    m_monat2->InZustand(s.Panel.MonthView2);
    FeiertagAnzeigen(s);
    KalenderpanelZeigen();
}

void FrmMain::TerminGeaendert() {
    if (s.LadeSperre != 0) return;
    m_monat1->InZustand(s.Panel.MonthView1);
    TextTerminGeaendert(s, MitCrLf(m_textTermin->toPlainText()));
    KalenderpanelZeigen();
}

void FrmMain::FeiertagGeaendert() {
    if (s.LadeSperre != 0) return;
    m_monat2->InZustand(s.Panel.MonthView2);
    TextFeiertagGeaendert(s, m_textFeiertag->text());
    KalenderpanelZeigen();
}

void FrmMain::FarbfeldGeklickt(int art) {
    const auto welche = static_cast<Tagesfarbe>(art);
    m_monat1->InZustand(s.Panel.MonthView1);
    m_monat2->InZustand(s.Panel.MonthView2);
    const int start = TagesfarbeStart(s, welche);
    const auto c = FarbeWaehlen(QColor(start & 0xFF, (start >> 8) & 0xFF, (start >> 16) & 0xFF));
    if (!c) return; // cancelled: nothing changes
    TagesfarbeGewaehlt(s, welche, AlsFarbe(*c));
    KalenderpanelZeigen();
    Neuzeichnen();
}

void FrmMain::JahrGetipptBefehl() {
    // Enter or leaving the box: a year the views don't show yet acts as a pick from the list.
    if (!JahrBestaetigt(s, *this, m_comboJahr->currentText().trimmed()))
        m_comboJahr->setEditText(QString::number(static_cast<long long>(s.Kalenderjahr)));
}

void FrmMain::JahrGeklickt(int index) {
    const int jahr = static_cast<int>(basic::Val(m_comboJahr->itemText(index)));
    JahrGewaehlt(s, *this, jahr); // shows the panel and redraws through the window
}

void FrmMain::SeiteGetippt() {
    const Seiteneingabe e = SeiteAusText(m_textSeite->text(), s.Seitenanzahl);
    if (e.textZuruecksetzen) {
        const QSignalBlocker b(m_textSeite);
        m_textSeite->setText(QStringLiteral("1"));
    }
    m_upDownSeite->setValue(e.seite);
    if (SeiteWaehlen(s, e.seite)) Neuzeichnen();
}

void FrmMain::Vorschaubild() {
    // LeadKalender: a thumbnail of the month's picture while its file exists.
    const QString datei = m_textbilddatei->text();
    QImage bild;
    if (QFileInfo::exists(datei)) {
        QImageReader leser(datei);
        leser.setAutoTransform(true);
        bild = leser.read();
    }
    if (bild.isNull()) {
        m_leadKalender->hide();
        return;
    }
    m_leadKalender->setPixmap(QPixmap::fromImage(
        bild.scaled(m_leadKalender->size(), Qt::KeepAspectRatio, Qt::SmoothTransformation)));
    m_leadKalender->show();
}

// ---- Help and printing ------------------------------------------------------------------------

void FrmMain::Hilfe() {
    QString datei = s.Hilfedatei;
    if (datei.endsWith(QLatin1String(".hlp"), Qt::CaseInsensitive))
        datei = datei.left(datei.size() - 4) + ".html";
    if (datei.isEmpty() || !QFileInfo::exists(datei)) {
        Meldung(
            QStringLiteral("Hilfeinhalt konnte nicht angezeigt werden. Dieser Anwendung ist keine Hilfedatei "
                           "zugeordnet."),
            s.Programmname, datei);
        return;
    }
    if (!AdresseOeffnen(QUrl::fromLocalFile(datei)))
        Meldung(
            QStringLiteral("Die Hilfe konnte nicht angezeigt werden, weil kein Webbrowser eingerichtet ist. "
                           "Sie können die Hilfedatei selbst öffnen:"),
            s.Programmname, datei);
}

bool FrmMain::AdresseOeffnen(const QUrl& adresse) {
    return QDesktopServices::openUrl(adresse);
}

void FrmMain::Drucken() {
    FrmDrucken dialog(s, *this, m_d, this);
    dialog.exec();
    Neuzeichnen();
}

} // namespace zp
