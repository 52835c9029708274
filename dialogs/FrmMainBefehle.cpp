// frmMain: the menus and toolbars bound to their commands, what is enabled, and the edition's
// settings of the window.
#include "Eigenschaftsdialoge.h"
#include "Fensterantworten.h"
#include "FrmDrucken.h"
#include "FrmFeiertage.h"
#include "FrmInfo.h"
#include "FrmKalenderdesign.h"
#include "FrmMain.h"
#include "FrmSeite.h"
#include "PanelKalender.h"
#include "Seitenansicht.h"
#include "Seitenpanel.h"

#include "core/Dokumentbefehle.h"
#include "core/Druckbefehle.h"
#include "core/Formatbefehle.h"
#include "core/Importbefehl.h"
#include "core/Kalenderoptionen.h"
#include "core/Schnappschuss.h"
#include "core/Sitzung.h"
#include "core/state/Ansicht.h"
#include "core/state/AppState.h"
#include "core/state/Editionen.h"
#include "core/state/Zoom.h"

#include <QAction>
#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QLabel>
#include <QMenu>
#include <QStackedWidget>
#include <QToolBar>
#include <QUrl>

namespace zp {

namespace {

// The maker's pages that the help menu opens.
const char* const Homepage = "https://zp-kalender.de/";
const char* const Mailadresse = "mailto:autor@zp-kalender.de?subject=ZP";

// Runs a command under the hourglass.
template <typename F> void MitSanduhr(F&& befehl) {
    QApplication::setOverrideCursor(Qt::WaitCursor);
    befehl();
    QApplication::restoreOverrideCursor();
}

} // namespace

void FrmMain::Verbinden() {
    DateiVerbinden();
    AnsichtVerbinden();
    HilfeVerbinden();
    RahmenVerbinden();
    for (int k = 1; k <= 5; ++k) {
        connect(m_a.Toolbar4_[k], &QAction::triggered, this, [this, k] { Toolbar4Knopf(k); });
        connect(m_a.Toolbar5_[k], &QAction::triggered, this, [this, k] { Toolbar5Knopf(k); });
    }
    connect(m_a.mnukalender, &QAction::triggered, m_kalender, &PanelKalender::Standarddesign);
    // The dialog of the current frame's kind, also from the keyboard.
    m_a.Toolbar1_Eigenschaft->setShortcut(QKeySequence(Qt::ALT | Qt::Key_Return));
    connect(m_a.Toolbar1_Eigenschaft, &QAction::triggered, this,
            [this] { OpenPropertyDialog(s, *m_antworten); });
    // The page dialog on its tabs.
    connect(m_a.mnuFilePageSetup, &QAction::triggered, this,
            [this] { SeiteEinrichten(FrmSeite::TabFormat); });
    connect(m_a.mnuKartengrösse, &QAction::triggered, this, [this] { SeiteEinrichten(FrmSeite::TabKarte); });
    connect(m_a.mnuDesign, &QAction::triggered, this, [this] { SeiteEinrichten(FrmSeite::TabDesign); });
    connect(m_a.mnuRaster, &QAction::triggered, this, [this] { SeiteEinrichten(FrmSeite::TabRaster); });
    // The calendar's own dialogs and the editing of its template.
    connect(m_a.mnuFeiertage, &QAction::triggered, this,
            [this] { FrmFeiertage(s, *m_antworten, this).exec(); });
    connect(m_a.mnukalendereditieren, &QAction::triggered, this, [this] {
        m_a.mnukalendereditieren->setChecked(KalenderEditieren(s));
        Neuzeichnen();
    });
}

void FrmMain::DateiVerbinden() {
    Fensterantworten& ui = *m_antworten;
    connect(m_a.mnuFileNew, &QAction::triggered, this, [this, &ui] { BefehlNeu(s, ui); });
    connect(m_a.mnuFileOpen, &QAction::triggered, this, [this, &ui] { BefehlOeffnen(s, ui); });
    connect(m_a.mnuimport, &QAction::triggered, this, [this, &ui] {
        const QString datei = ui.QtDateiWaehlen(QStringLiteral("Importieren"), ImportFilter(s));
        if (!datei.isEmpty() && Importieren(s, ui, datei)) Neuzeichnen();
    });
    connect(m_a.mnuFileSave, &QAction::triggered, this, [this, &ui] { BefehlSpeichern(s, ui); });
    connect(m_a.mnuFileSaveAs, &QAction::triggered, this,
            [this, &ui] { BefehlSpeichernUnter(s, ui, Dateidialog::SpeichernUnter); });
    connect(m_a.mnuFileSaveAs2, &QAction::triggered, this,
            [this, &ui] { BefehlSpeichernUnter(s, ui, Dateidialog::SpeichernUnter2); });
    connect(m_a.mnuFilePrint, &QAction::triggered, this, [this] { Drucken(); });
    connect(m_a.mnuBildSpeichern, &QAction::triggered, this, [this, &ui] {
        const QString datei =
            ui.SpeicherDateiWaehlen(QStringLiteral("Bild speichern"),
                                    QStringLiteral("BMP-Bilddatei (*.bmp)|*.bmp"), QStringLiteral("ZP.bmp"));
        if (!datei.isEmpty()) MitSanduhr([&] { BefehlBildSpeichern(s, ui, datei); });
    });
    connect(m_a.mnuWord, &QAction::triggered, this,
            [this, &ui] { MitSanduhr([&] { BefehlWord(s, ui, QString(), true); }); });
    connect(m_a.mnuSitzung, &QAction::toggled, this, [this, &ui](bool an) {
        if (s.LadeSperre == 0) SitzungWiederherstellenSetzen(s, ui, an);
    });
    connect(m_a.mnuFileClose, &QAction::triggered, this, [this] { close(); });
    connect(m_a.mnuFileExit, &QAction::triggered, this, [this] { close(); });
}

void FrmMain::AnsichtVerbinden() {
    const struct {
        QAction* aktion;
        float& flag;
        bool umgekehrt, neuzeichnen;
    } schalter[] = {{m_a.mnuGitterlinienansicht, s.GridAn, false, true},
                    {m_a.mnuHilfsbereiche, s.HilfsbereicheAn, false, true},
                    {m_a.mnuRahmensichtbar, s.RahmenAnzeigen, false, true},
                    {m_a.mmummgenau, s.MMGenau, true, false},
                    {m_a.mnuRahmenMagnet, s.GitterAn, false, false}};
    for (const auto& k : schalter)
        connect(k.aktion, &QAction::triggered, this,
                [this, a = k.aktion, &flag = k.flag, u = k.umgekehrt, n = k.neuzeichnen] {
                    Umschalten(flag, a, u, n);
                });
    for (int i = 0; i < 5; ++i)
        connect(m_a.mnuViewProzent[i], &QAction::triggered, this,
                [this, p = Hauptaktionen::Prozente[i]] { ZoomSetzen(p); });
    connect(m_a.mnuViewSeitenbreite, &QAction::triggered, this,
            [this] { ZoomSetzen(ZoomSeitenbreite(s, m_seite->ViewportTwips(s.TwipsProPixelX).width())); });
    connect(m_a.mnuViewganze_Seite, &QAction::triggered, this, [this] {
        const QSizeF vp = m_seite->ViewportTwips(s.TwipsProPixelX);
        ZoomSetzen(ZoomGanzeSeite(s, vp.width(), vp.height()));
    });
    for (int richtung = 0; richtung <= 1; ++richtung)
        connect(m_a.Commandzoom[richtung], &QAction::triggered, this,
                [this, richtung] { ZoomSetzen(ZoomSchritt(s.Zoomfaktor, richtung == 1)); });
}

void FrmMain::HilfeVerbinden() {
    Fensterantworten& ui = *m_antworten;
    // Without a program for the address the user is told where to go.
    const auto oeffnen = [&ui](const QUrl& adresse, const QString& ohne, const QString& titel,
                               const QString& wohin) {
        if (!ui.AdresseOeffnen(adresse)) ui.Meldung(ohne, titel, wohin);
    };
    const QString keinBrowser =
        QStringLiteral("Die Seite konnte nicht geöffnet werden, weil kein Webbrowser eingerichtet ist. Bitte "
                       "rufen Sie diese Adresse selbst auf:");
    connect(m_a.mnuHelpContents, &QAction::triggered, this, [this] { Hilfe(); });
    connect(m_a.mnuHelpZP, &QAction::triggered, this, [oeffnen, keinBrowser] {
        const QUrl seite(QString::fromLatin1(Homepage));
        oeffnen(seite, keinBrowser, QStringLiteral("Zur ZP-Homepage"), seite.toString());
    });
    connect(m_a.mnuHelpHotline, &QAction::triggered, this, [oeffnen] {
        const QUrl mail(QString::fromLatin1(Mailadresse));
        oeffnen(mail,
                QStringLiteral(
                    "Die Mail konnte nicht begonnen werden, weil kein E-Mail-Programm eingerichtet ist. "
                    "Bitte schreiben Sie an diese Adresse:"),
                QStringLiteral("Mail an den Autor"), mail.path());
    });
    connect(m_a.mnuupdate, &QAction::triggered, this, [this, oeffnen, keinBrowser] {
        QString version = s.Programmversion;
        version.remove(QLatin1Char('.'));
        const QUrl seite(QString::fromLatin1(Homepage) + QStringLiteral("update") + version +
                         QStringLiteral(".html"));
        oeffnen(seite, keinBrowser, QStringLiteral("Programm aktualisieren"), seite.toString());
    });
    connect(m_a.mnuInfo, &QAction::triggered, this, [this] {
        FrmInfo info(s, this);
        info.exec();
    });
}

void FrmMain::Freigaben() {
    // Entries whose work isn't part of this build stay in place, disabled: the letter body.
    for (QAction* a : {m_a.mnuBrief})
        a->setEnabled(false);
}

void FrmMain::EditionAnwenden() {
    // What the window is built with, before the edition changes it.
    for (QAction* a : {m_a.mnuFeiertage, m_a.mnukalender, m_a.mnukalendereditieren, m_a.mnuVerankernAlle,
                       m_a.mnuVerankernKeine, m_a.mnuimport, m_a.mnuFileSaveAs2})
        a->setVisible(false);
    m_a.Toolbar4->setVisible(true);
    m_a.Toolbar5->setVisible(false);

    // The edition's rules name their controls: toolbars by themselves, everything else by its entry.
    const Edition e = AktuelleEdition(s);
    for (const Steuerelementregel& r : Editionsregeln(e)) {
        if (auto* leiste = findChild<QToolBar*>(r.name)) {
            if (r.sichtbar) leiste->setVisible(*r.sichtbar);
            continue;
        }
        QAction* a = Aktion(r.name);
        if (!a) continue;
        if (r.sichtbar) a->setVisible(*r.sichtbar);
        if (r.titel) a->setText(*r.titel);
    }
    // The calendar's menu entry for frame editing belongs to the calendar.
    m_a.mnukalendereditieren->setVisible(e == Edition::Kalender);
}

void FrmMain::Haekchen() {
    m_a.mnuSitzung->setChecked(SitzungWiederherstellenAn(s));
    m_a.mnuRahmensichtbar->setChecked(s.RahmenAnzeigen == -1);
    m_a.mnuRahmenMagnet->setChecked(s.GitterAn == -1);
    m_a.mmummgenau->setChecked(s.MMGenau != 0);
    m_a.mnuGitterlinienansicht->setChecked(s.GridAn != 0);
    m_a.mnuHilfsbereiche->setChecked(s.HilfsbereicheAn != 0);
}

void FrmMain::Umschalten(float& flag, QAction* a, bool umgekehrt, bool neuzeichnen) {
    zp::Umschalten(flag);
    // "1/10 mm genau" shows its mark the other way round: on while the flag is off.
    a->setChecked(umgekehrt ? flag == 0 : flag != 0);
    if (neuzeichnen) Neuzeichnen();
}

void FrmMain::Toolbar4Knopf(int knopf) {
    static const int panel[] = {0, 1, 4, 3, 5};
    if (knopf == 5) { // a command, not a panel: the sheet and card size
        m_a.Toolbar4_[5]->setChecked(false);
        SeiteEinrichten(FrmSeite::TabKarte);
        if (m_privat.isValid()) Schnappschuss(s, *m_antworten, m_privat.path());
        return;
    }
    if (knopf < 1 || knopf > 4) return;
    for (int k = 1; k <= 4; ++k)
        m_a.Toolbar4_[k]->setChecked(k == knopf);
    Panelzeigen(panel[knopf]);
    if (auto* p = qobject_cast<Seitenpanel*>(m_frame1->currentWidget()); p && knopf == 1) p->Betreten();
    if (knopf >= 2 && m_privat.isValid()) Schnappschuss(s, *m_antworten, m_privat.path());
}

void FrmMain::Toolbar5Knopf(int knopf) {
    static const int panel[] = {0, 8, 6, 7, 9};
    if (knopf == 5) { // a command, not a panel: the calendar's design, elsewhere the card size
        m_a.Toolbar5_[5]->setChecked(false);
        if (s.IstKalender != 0) {
            KalenderdesignZeigen();
        } else {
            Panelzeigen(4);
            SeiteEinrichten(FrmSeite::TabKarte);
        }
        return;
    }
    if (knopf < 1 || knopf > 4) return;
    for (int k = 1; k <= 4; ++k)
        m_a.Toolbar5_[k]->setChecked(k == knopf);
    Panelzeigen(panel[knopf]);
    if (auto* p = qobject_cast<Seitenpanel*>(m_frame1->currentWidget())) p->Betreten();
}

void FrmMain::SeiteEinrichten(int tab) {
    if (FrmSeite::Zeigen(s, *m_antworten, tab, this)) ApplyZoom();
}

void FrmMain::KalenderdesignZeigen() {
    // The design dialog opens the text and shape dialogs on the role's frame that it has chosen.
    const auto schrift = [this](AppState& st, int) {
        SchriftdialogAusfuehren(this, st, *m_antworten, 1);
        return true;
    };
    const auto linie = [this](AppState& st, int) {
        LiniendialogAusfuehren(this, st, *m_antworten, 1);
        return true;
    };
    FrmKalenderdesign(s, schrift, linie, this).exec();
    Neuzeichnen();
}

// ---- Help and printing ------------------------------------------------------------------------

void FrmMain::Hilfe() {
    QString datei = s.Hilfedatei;
    if (datei.endsWith(QLatin1String(".hlp"), Qt::CaseInsensitive))
        datei = datei.left(datei.size() - 4) + ".html";
    if (datei.isEmpty() || !QFileInfo::exists(datei)) {
        m_antworten->Meldung(
            QStringLiteral("Hilfeinhalt konnte nicht angezeigt werden. Dieser Anwendung ist keine Hilfedatei "
                           "zugeordnet."),
            s.Programmname, datei);
        return;
    }
    if (!m_antworten->AdresseOeffnen(QUrl::fromLocalFile(datei)))
        m_antworten->Meldung(
            QStringLiteral("Die Hilfe konnte nicht angezeigt werden, weil kein Webbrowser eingerichtet ist. "
                           "Sie können die Hilfedatei selbst öffnen:"),
            s.Programmname, datei);
}

void FrmMain::Drucken() {
    FrmDrucken dialog(s, *m_antworten, this);
    dialog.exec();
    Neuzeichnen();
}

} // namespace zp
