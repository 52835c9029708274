// frmMain: every control bound to its command.
#include "FrmDrucken.h"
#include "FrmInfo.h"
#include "FrmMain.h"
#include "Monatsansicht.h"
#include "Seitenansicht.h"

#include "core/AppState.h"
#include "core/Dokumentbefehle.h"
#include "core/Editionen.h"
#include "core/Kalenderbefehle.h"
#include "core/Seitennavigation.h"
#include "core/Tagesfelder.h"
#include "core/Textfelder.h"
#include "core/Zoom.h"
#include "core/runtime/Basic.h"

#include <QAction>
#include <QComboBox>
#include <QDesktopServices>
#include <QDir>
#include <QFileInfo>
#include <QImageReader>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
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
        DienstAusfuehren(m_d.Importieren, s, *this);
        PanelAktualisieren();
        Neuzeichnen();
    });
    bei("mnuFileSave", [this] { BefehlSpeichern(s, *this, m_d); });
    bei("mnuFileSaveAs", [this] { BefehlSpeichernUnter(s, *this, m_d, Dateidialog::SpeichernUnter); });
    bei("mnuFileSaveAs2", [this] { BefehlSpeichernUnter(s, *this, m_d, Dateidialog::SpeichernUnter2); });
    bei("mnuFilePrint", [this] { Drucken(); });
    bei("mnuFileClose", [this] { close(); });
    bei("mnuFileExit", [this] { close(); });

    // Calendar menu entries.
    bei("mnukalender", [this] { BefehlKalenderZuruecksetzen(s, *this, m_d); });

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
    bei("mnuHelpZP", [] { QDesktopServices::openUrl(QUrl(QString::fromLatin1(Homepage))); });
    bei("mnuHelpHotline", [] { QDesktopServices::openUrl(QUrl(QString::fromLatin1(Mailadresse))); });
    bei("mnuupdate", [this] {
        QString version = s.Programmversion;
        version.remove(QLatin1Char('.'));
        QDesktopServices::openUrl(QUrl(QString::fromLatin1(Homepage) + QStringLiteral("update") + version +
                                       QStringLiteral(".html")));
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

    // Text boxes.
    for (int i = 1; i <= 30; ++i) {
        connect(m_text1[i], &QLineEdit::textChanged, this, [this, i](const QString& t) {
            if (s.LadeSperre != 0) return;
            Text1Geaendert(s, i, t);
            Neuzeichnen();
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

    // Layouts and gallery.
    for (int k = 1; k <= 5; ++k) {
        connect(findChild<QPushButton*>(QStringLiteral("Command4_%1").arg(k)), &QPushButton::clicked, this,
                [this, k] {
                    s.Ladevorgabe = s.Programmpfad + QStringLiteral("Layout%1.lay").arg(k);
                    DienstAusfuehren(m_d.LadeLayout, s, *this);
                    s.Ladevorgabe.clear();
                    PanelAktualisieren();
                    AuswahlAktualisieren();
                    Neuzeichnen();
                });
    }
    connect(m_list1, &QListWidget::currentRowChanged, this, [this](int zeile) {
        if (s.LadeSperre != 0) return;
        GalerieLaden(s, *this, m_d, zeile);
    });

    // Calendar: type, year, variant, pages, standard design, holidays, refresh.
    for (int t = 1; t <= 7; ++t)
        connect(m_typ[t], &QPushButton::clicked, this, [this, t] { BefehlKalendertyp(s, *this, m_d, t); });
    connect(m_comboVariante, &QComboBox::activated, this,
            [this] { BefehlVariante(s, *this, m_d, m_comboVariante->currentText()); });
    connect(m_comboJahr, &QComboBox::activated, this, [this](int i) { JahrGeklickt(i); });
    connect(m_comboJahr->lineEdit(), &QLineEdit::editingFinished, this, [this] { JahrGetippt(); });
    connect(m_upDownSeite, &QSpinBox::valueChanged, this, [this](int seite) {
        if (SeiteWaehlen(s, seite)) {
            const QSignalBlocker b(m_textSeite);
            m_textSeite->setText(QString::number(seite));
            Neuzeichnen();
        }
    });
    connect(m_textSeite, &QLineEdit::textEdited, this, [this] { SeiteGetippt(); });
    connect(findChild<QPushButton*>(QStringLiteral("CommandStandard")), &QPushButton::clicked, this,
            [this] { BefehlKalenderZuruecksetzen(s, *this, m_d); });
    connect(findChild<QPushButton*>(QStringLiteral("CommandBerechnen")), &QPushButton::clicked, this, [this] {
        DienstAusfuehren(m_d.CommandBerechnen, s, *this);
        FeiertagAngeklickt();
        Tagesmarken();
        Neuzeichnen();
    });
    for (const char* name : {"CommandAktualisieren", "CommandAktualisieren2"})
        connect(findChild<QPushButton*>(QString::fromLatin1(name)), &QPushButton::clicked, this,
                [this] { Neuzeichnen(); });

    // Day data.
    connect(m_monat1, &Monatsansicht::auswahlGeaendert, this, [this] {
        TerminAngeklickt();
        m_textTermin->setFocus();
    });
    connect(m_monat2, &Monatsansicht::auswahlGeaendert, this, [this] {
        FeiertagAngeklickt();
        m_textFeiertag->setFocus();
    });
    connect(m_monat1, &QCalendarWidget::currentPageChanged, this, [this] { Tagesmarken(); });
    connect(m_monat2, &QCalendarWidget::currentPageChanged, this, [this] { Tagesmarken(); });
    connect(m_textTermin, &QPlainTextEdit::textChanged, this, [this] { TerminGeaendert(); });
    connect(m_textFeiertag, &QLineEdit::textChanged, this, [this] { FeiertagGeaendert(); });
    for (int art = 0; art < 4; ++art)
        connect(m_farbfeld[art], &QToolButton::clicked, this, [this, art] { FarbfeldGeklickt(art); });

    // Month pictures.
    connect(m_comboMonat, &QComboBox::activated, this, [this](int i) {
        const QSignalBlocker b1(m_textbilddatei), b2(m_textBildbeschreibung);
        m_textbilddatei->setText(s.Monatsbilder(i + 1));
        m_textBildbeschreibung->setText(s.Monatsbildtexte(i + 1));
        BilddateiGeaendert();
    });
    connect(m_textBildbeschreibung, &QLineEdit::textChanged, this, [this](const QString& t) {
        s.Monatsbildtexte(std::clamp(m_comboMonat->currentIndex() + 1, 1, 12)) = t;
        s.Panel.TextBildbeschreibung = t;
    });
    connect(m_textbilddatei, &QLineEdit::textChanged, this, [this] { BilddateiGeaendert(); });
    connect(findChild<QPushButton*>(QStringLiteral("CommandDurchsuchen")), &QPushButton::clicked, this,
            [this] {
                const QString datei = DateiWaehlen(
                    QStringLiteral("Öffnen"), QStringLiteral("BMP (*.bmp)|*.bmp|JPG (*.jpg)|*.jpg"), false);
                if (!datei.isEmpty()) m_textbilddatei->setText(datei);
            });

    // The page: pointer position in the status bar.
    connect(m_seite->PictureSeite(), &Seitenbild::zeigerBewegt, this, [this](QPoint p) {
        const double f =
            s.Zoomfaktor / 100.0 * TwipsJeZehntelmm / (s.TwipsProPixelX > 0 ? s.TwipsProPixelX : 15);
        m_status[1]->setText(QStringLiteral("x: %1 mm").arg(p.x() / f / 10.0, 0, 'f', 1));
        m_status[2]->setText(QStringLiteral("y: %1 mm").arg(p.y() / f / 10.0, 0, 'f', 1));
    });
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
                             "mnuBildSpeichern",
                             "mnuWord",
                             "Toolbar4_5",
                             "Toolbar5_5"};
    for (const char* name : spaeter)
        Aktion(QString::fromUtf8(name))->setEnabled(false);
    findChild<QPushButton*>(QStringLiteral("CommandOptionen"))->setEnabled(false);

    // Entries that need another area's function are enabled when it is bound.
    const bool laden = static_cast<bool>(m_d.LoadDesign);
    const bool speichern = static_cast<bool>(m_d.SaveDesign);
    Aktion(QStringLiteral("mnuimport"))->setEnabled(static_cast<bool>(m_d.Importieren));
    Aktion(QStringLiteral("mnuFileOpen"))->setEnabled(laden || m_d.LadeDaten);
    Aktion(QStringLiteral("Toolbar1_Öffnen"))->setEnabled(laden || m_d.LadeDaten);
    for (const char* name : {"mnuFileSave", "mnuFileSaveAs", "mnuFileSaveAs2", "Toolbar1_Speichern"})
        Aktion(QString::fromUtf8(name))->setEnabled(speichern);
    Aktion(QStringLiteral("mnukalender"))->setEnabled(laden);
    findChild<QPushButton*>(QStringLiteral("CommandStandard"))->setEnabled(laden);
    for (int t = 1; t <= 7; ++t)
        m_typ[t]->setEnabled(laden && speichern);
    m_comboVariante->setEnabled(laden && speichern);
    m_list1->setEnabled(laden);
    for (int k = 1; k <= 5; ++k)
        findChild<QPushButton*>(QStringLiteral("Command4_%1").arg(k))
            ->setEnabled(static_cast<bool>(m_d.LadeLayout));
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

void FrmMain::TerminAngeklickt() {
    const QDate tag = m_monat1->Aktuell();
    const uint8_t sperre = s.LadeSperre;
    s.LadeSperre = 255;
    const QString text = OhneCrLf(TerminText(s, tag));
    if (m_textTermin->toPlainText() != text) m_textTermin->setPlainText(text);
    FarbfeldZeigen(m_farbfeld[0], TagesfarbeLesen(s, Tagesfarbe::TerminSchrift, tag));
    FarbfeldZeigen(m_farbfeld[1], TagesfarbeLesen(s, Tagesfarbe::TerminBack, tag));
    s.LadeSperre = sperre;
}

void FrmMain::FeiertagAngeklickt() {
    const QDate tag = m_monat2->Aktuell();
    const uint8_t sperre = s.LadeSperre;
    s.LadeSperre = 255;
    const QString text = FeiertagText(s, tag);
    if (m_textFeiertag->text() != text) m_textFeiertag->setText(text);
    FarbfeldZeigen(m_farbfeld[2], TagesfarbeLesen(s, Tagesfarbe::FeiertagSchrift, tag));
    FarbfeldZeigen(m_farbfeld[3], TagesfarbeLesen(s, Tagesfarbe::FeiertagBack, tag));
    s.LadeSperre = sperre;
    Tagesmarken();
}

void FrmMain::TerminGeaendert() {
    if (s.LadeSperre != 0) return;
    const QString text = MitCrLf(m_textTermin->toPlainText());
    TerminEingabe(s, {m_monat1->Aktuell(), m_monat1->SelStart(), m_monat1->SelEnd()}, text);
    s.Panel.TextTermin = text;
    if (text.isEmpty()) {
        FarbfeldZeigen(m_farbfeld[0], -1);
        FarbfeldZeigen(m_farbfeld[1], -1);
    }
    Tagesmarken();
}

void FrmMain::FeiertagGeaendert() {
    if (s.LadeSperre != 0) return;
    const QString text = m_textFeiertag->text();
    FeiertagEingabe(s, m_monat2->Aktuell(), text);
    s.Panel.TextFeiertag = text;
    if (text.isEmpty()) {
        FarbfeldZeigen(m_farbfeld[2], -1);
        FarbfeldZeigen(m_farbfeld[3], -1);
    }
    Tagesmarken();
}

void FrmMain::FarbfeldGeklickt(int art) {
    const auto welche = static_cast<Tagesfarbe>(art);
    Monatsansicht* ansicht = art < 2 ? m_monat1 : m_monat2;
    const Tagesauswahl a{ansicht->Aktuell(), ansicht->SelStart(), ansicht->SelEnd()};
    const int bisher = TagesfarbeLesen(s, welche, a.aktuell);
    const int start = bisher < 0 ? 0xFFFFFF : bisher;
    const auto c = FarbeWaehlen(QColor(start & 0xFF, (start >> 8) & 0xFF, (start >> 16) & 0xFF));
    if (!c) return; // cancelled: nothing changes
    const int farbe = AlsFarbe(*c);
    TagesfarbeSetzen(s, welche, a, farbe);
    FarbfeldZeigen(m_farbfeld[art], farbe);
    Neuzeichnen();
}

void FrmMain::Tagesmarken() {
    // 31 marks per view for the month shown; short months roll over into the next, as the
    // date arithmetic does.
    auto marken = [this](Monatsansicht* v, bool termine) {
        const int jahr = v->yearShown(), monat = v->monthShown();
        for (int tag = 1; tag <= 31; ++tag) {
            const QDate d = basic::DateSerial(jahr, monat, tag);
            v->Fettdruck(d, termine ? !TerminText(s, d).isEmpty() : !FeiertagText(s, d).isEmpty());
        }
    };
    marken(m_monat1, true);
    marken(m_monat2, false);
}

void FrmMain::MonatsansichtenAufJahr() {
    const int jahr = static_cast<int>(s.Kalenderjahr);
    if (!JahrZulaessig(jahr)) return;
    m_monat1->JahrSetzen(jahr);
    m_monat2->JahrSetzen(jahr);
}

void FrmMain::JahrGetippt() {
    const QString text = m_comboJahr->currentText();
    const double jahr = basic::Val(text);
    if (static_cast<long long>(jahr) == static_cast<long long>(s.Kalenderjahr)) return;
    if (!JahrZulaessig(jahr)) {
        Meldung(QStringLiteral("Bitte ein Jahr zwischen 1 und 9999 angeben."),
                QStringLiteral("Kalenderjahr"));
        m_comboJahr->setEditText(QString::number(static_cast<long long>(s.Kalenderjahr)));
        return;
    }
    // A typed year is taken as it stands; the holidays are computed on request.
    s.Kalenderjahr = jahr;
    MonatsansichtenAufJahr();
    PanelAktualisieren();
    Neuzeichnen();
}

void FrmMain::JahrGeklickt(int index) {
    const double jahr = basic::Val(m_comboJahr->itemText(index));
    if (!JahrGewaehlt(s, *this, m_d, jahr)) return;
    MonatsansichtenAufJahr();
    TerminAngeklickt();
    FeiertagAngeklickt();
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

void FrmMain::BilddateiGeaendert() {
    const int monat = std::clamp(m_comboMonat->currentIndex() + 1, 1, 12);
    const QString datei = m_textbilddatei->text();
    s.Monatsbilder(monat) = datei;
    s.Panel.Textbilddatei = datei;
    if (!QFileInfo::exists(datei)) {
        m_leadKalender->hide();
        return;
    }
    QImageReader leser(datei);
    leser.setAutoTransform(true);
    const QImage bild = leser.read();
    if (bild.isNull()) {
        m_leadKalender->hide();
        return;
    }
    m_leadKalender->setPixmap(QPixmap::fromImage(
        bild.scaled(m_leadKalender->size(), Qt::KeepAspectRatio, Qt::SmoothTransformation)));
    m_leadKalender->show();
    // The first month's picture is on the page at once; the others at the next redraw.
    if (s.LadeSperre == 0 && m_comboMonat->currentText() == QLatin1String("Januar")) Neuzeichnen();
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
    QDesktopServices::openUrl(QUrl::fromLocalFile(datei));
}

void FrmMain::Drucken() {
    FrmDrucken dialog(s, *this, m_d, this);
    dialog.exec();
    Neuzeichnen();
}

} // namespace zp
