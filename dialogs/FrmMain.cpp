// frmMain: construction, the load handler and what the core asks of the window.
#include "dialogs/FrmMain.h"
#include "dialogs/FrmMsg.h"
#include "dialogs/Monatskalender.h"
#include "dialogs/Seitenansicht.h"

#include "calendar/data/Tagesdaten.h"
#include "core/Datensatzbefehle.h"
#include "core/Dokumentbefehle.h"
#include "core/Seitennavigation.h"
#include "core/Start.h"
#include "core/state/AppState.h"
#include "core/state/Editionen.h"
#include "core/state/Zoom.h"
#include "render/Bildwerk.h"

#include <QAction>
#include <QCloseEvent>
#include <QColorDialog>
#include <QComboBox>
#include <QDate>
#include <QDir>
#include <QFileDialog>
#include <QFontDatabase>
#include <QGuiApplication>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QListWidget>
#include <QMessageBox>
#include <QPainter>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QSignalBlocker>
#include <QSpinBox>
#include <QStackedWidget>
#include <QStatusBar>
#include <QTimer>
#include <QToolBar>
#include <QToolButton>
#include <cmath>

namespace zp {

namespace {

QColor AlsQColor(int farbe) {
    return QColor(farbe & 0xFF, (farbe >> 8) & 0xFF, (farbe >> 16) & 0xFF);
}

// The 19 sample designs of the business-card gallery, in the order of daten/design<n>.zpv.
const char* const Galerienamen[] = {
    "Korkstreifen",       "Blauer Pfeil",   "Grüne Streifen",  "Grüne Zacken",
    "Bunte Balken",       "Blaue Ecke",     "Wasserkarte",     "Rote Karte",
    "Grüne Karte",        "Gelbes Quadrat", "Lila Dreieck",    "Schwarze Ecke",
    "Blauer Streife",     "Gelber Kreis",   "Bunte Rechtecke", "Gelber Kreis im blauen Rahmen",
    "Roter Balken unten", "Grünes Dreieck", "Rotes Dach"};

} // namespace

FrmMain::FrmMain(AppState& state, Dokumentdienste dienste, QWidget* parent)
    : QMainWindow(parent), s(state), m_d(std::move(dienste)) {
    setObjectName(QStringLiteral("frmMain"));
    MenuesAnlegen();
    ToolbarsAnlegen();
    PanelsAnlegen();
    Verbinden();
    Freigaben();
    // A picture that can't be loaded is told in a message box, once per file.
    BildwerkVon(s).Meldungen = this;
}

FrmMain::~FrmMain() {
    Bildwerk& werk = BildwerkVon(s);
    if (werk.Meldungen == this) werk.Meldungen = nullptr;
}

void FrmMain::FarbfeldZeigen(QToolButton* feld, int farbe) {
    const QColor c = AlsQColor(farbe < 0 ? 0xFFFFFF : farbe);
    feld->setStyleSheet(
        QStringLiteral("QToolButton { background: %1; border: 1px solid #808080; }").arg(c.name()));
    feld->setProperty("farbe", farbe < 0 ? 0xFFFFFF : farbe);
}

void FrmMain::Laden() {
    s.LadeSperre = 255;
    const Edition e = AktuelleEdition(s);
    EditionAnwenden();

    // 1., 3. to 5. and 11. in the state: fonts, the calendar's empty day data and kalender.ini,
    // the label catalogue, the text object of the panel, the start document.
    LadeStartzustand(s, *this);
    if (e == Edition::Visitenkarte) DienstAusfuehren(m_d.LadeDatensaetze, s, *this);

    // 3. The calendar block of the panel.
    if (e == Edition::Kalender) {
        StatusDatei(s.Datendatei);
        MonatsansichtenAufJahr(s, static_cast<int>(s.Kalenderjahr));
        // The day data of the last session: the boxes show the selected days, the views their marks.
        TerminAnzeigen(s);
        FeiertagAnzeigen(s);
        TagesmarkenAufbauen(s);
        MonatsbildWaehlen(s, 0);
        Seitenbereich(s);
        SeitentitelAktualisieren();
        for (int t = 1; t <= 7; ++t)
            TypKnopfHervorheben(t, t == static_cast<int>(s.Kalendertyp));
        m_comboVariante->clear();
        m_comboVariante->addItems({QStringLiteral("Variante 1"), QStringLiteral("Variante 2")});
        m_comboVariante->setCurrentIndex(s.Designvariante == QLatin1String("v2") ? 1 : 0);
        m_comboJahr->clear();
        for (int j = 1990; j <= QDate::currentDate().year() + 10; ++j)
            m_comboJahr->addItem(QString::number(j));
        // A year outside the list stays valid; the box just shows it.
        m_comboJahr->setEditText(QString::number(static_cast<long long>(s.Kalenderjahr)));
        m_comboMonat->clear();
        for (int m = 1; m <= 12; ++m)
            m_comboMonat->addItem(s.Monatsnamen(m));
        const int typ = static_cast<int>(s.Kalendertyp);
        Aktion(QStringLiteral("Toolbar5_4"))->setVisible(typ == 4 || typ == 5);
    } else {
        StatusDatei(s.AktuelleDatei);
    }

    // 4. and 5. The card and sheet blocks.
    for (int i = 1; i <= 30; ++i)
        if (m_label1[i]) m_label1[i]->setText(Eingabebeschriftung(e, i));
    if (e != Edition::Etikett) {
        Aktion(QStringLiteral("Toolbar4_1"))->setVisible(false);
        Aktion(QStringLiteral("Toolbar4_2"))->setChecked(true);
    } else {
        Aktion(QStringLiteral("Toolbar4_1"))->setChecked(true);
    }

    // 6. and 7. Size, place and caption.
    resize(799, 599);
    if (const QScreen* bildschirm = QGuiApplication::primaryScreen()) {
        const QRect r = bildschirm->availableGeometry();
        move(r.center() - QPoint(400, 300));
    }
    setWindowTitle(s.Programmname + QStringLiteral(" - Version ") + s.Programmversion);

    // 8. The side panels share one place; the edition decides which comes first.
    Panelzeigen(StartPanels(e).vorne);

    // 9. The check marks follow the settings.
    Haekchen();

    // 10. The zoom fits the page's width (calendar, letterhead) or the whole label; the viewport
    // has its size once the window is laid out, so the fit is made again before the first paint.
    ZoomEinpassen();

    // 12. and 13. The format bar's button and lists: scalable fonts, sizes 8 to 72 by 2.
    Aktion(QStringLiteral("Toolbar1_Eigenschaft"))->setText(QStringLiteral("Schriftart"));
    m_combo1->clear();
    for (int i = 1; i <= s.Schriftenliste.Obergrenze(); ++i) {
        if (s.Schriftenliste(i) == QLatin1String("-1")) break;
        if (s.SchriftSkalierbar(i) != 0) m_combo1->addItem(s.Schriftenliste(i));
    }
    m_combo3->clear();
    for (int g = 8; g <= 72; g += 2)
        m_combo3->addItem(QString::number(g));

    // 14. The design gallery.
    m_list1->clear();
    for (const char* name : Galerienamen)
        m_list1->addItem(QString::fromUtf8(name));

    // 15. Selection and the record on show.
    PanelAktualisieren();
    AuswahlAktualisieren();
    if (e != Edition::Kalender) ZeigeDatensatz(s, *this);
}

void FrmMain::ZoomEinpassen() {
    if (layout()) layout()->activate();
    const QSizeF vp = m_seite->ViewportTwips(s.TwipsProPixelX > 0 ? s.TwipsProPixelX : 15);
    if (vp.width() > 0 && vp.height() > 0) {
        const double z = ZoomBeimStart(s, vp.width(), vp.height());
        if (z >= 1) s.Zoomfaktor = z;
    }
    ApplyZoom();
}

void FrmMain::showEvent(QShowEvent* e) {
    QMainWindow::showEvent(e);
    if (m_ersteAnzeige) {
        // The first paint ends the start-up lock.
        m_ersteAnzeige = false;
        ZoomEinpassen();
        Neuzeichnen();
        s.LadeSperre = 0;
    }
}

void FrmMain::closeEvent(QCloseEvent* e) {
    Beenden(s, *this, m_d);
    e->accept();
}

// ---- Questions and messages -----------------------------------------------------------------

bool FrmMain::Frage(const QString& text, const QString& titel) {
    QMessageBox box(QMessageBox::Question, titel, text, QMessageBox::Yes | QMessageBox::No, this);
    // Questions that delete or replace what the user made: a stray Enter keeps it.
    box.setDefaultButton(QMessageBox::No);
    return box.exec() == QMessageBox::Yes;
}

void FrmMain::Meldung(const QString& text, const QString& titel, const QString& detail) {
    FrmMsg::Zeigen(this, text, titel, detail);
}

QString FrmMain::DateiWaehlen(const QString& titel, const QString& filter, bool speichern) {
    const QString qt = QtDateifilter(filter);
    if (!speichern) return QFileDialog::getOpenFileName(this, titel, s.Programmpfad, qt);
    QString gewaehlt;
    const QString name = QFileDialog::getSaveFileName(this, titel, s.Programmpfad, qt, &gewaehlt);
    return MitFilterendung(name, gewaehlt);
}

std::optional<QColor> FrmMain::FarbeWaehlen(const QColor& start) {
    const QColor c = QColorDialog::getColor(start, this, QStringLiteral("Farbe"));
    if (!c.isValid()) return std::nullopt;
    return c;
}

// ---- Window updates ---------------------------------------------------------------------------

void FrmMain::Neuzeichnen() {
    if (m_d.Seitenbild) {
        QImage seite = SeiteZeichnen();
        if (!seite.isNull()) {
            m_seite->PictureSeite()->BildSetzen(std::move(seite));
            return;
        }
    }
    const QSizeF twips = BildgroesseTwips(s, s.Zoomfaktor);
    const double tx = s.TwipsProPixelX > 0 ? s.TwipsProPixelX : 15;
    const double ty = s.TwipsProPixelY > 0 ? s.TwipsProPixelY : 15;
    const QSize pixel(std::max(1, static_cast<int>(std::lround(twips.width() / tx))),
                      std::max(1, static_cast<int>(std::lround(twips.height() / ty))));
    QImage bild(pixel, QImage::Format_RGB32);
    bild.fill(Qt::white);
    if (!m_d.Seitenbild) {
        // Without the composition the view shows the bare sheet with its edge.
        QPainter p(&bild);
        p.setPen(QColor(160, 160, 160));
        p.drawRect(0, 0, pixel.width() - 1, pixel.height() - 1);
    }
    m_seite->PictureSeite()->BildSetzen(std::move(bild));
}

QImage FrmMain::SeiteZeichnen() {
    try {
        return m_d.Seitenbild(s);
    } catch (const std::exception& e) {
        Meldung(QStringLiteral("Die Seite konnte nicht gezeichnet werden."), QStringLiteral("Warnung!"),
                QString::fromUtf8(e.what()));
        return {};
    }
}

void FrmMain::ApplyZoom() {
    m_seite->RulerZoom(s.Zoomfaktor, s.TwipsProPixelX > 0 ? s.TwipsProPixelX : 15);
    AuswahlAktualisieren();
    if (s.LadeSperre == 0) Neuzeichnen();
}

void FrmMain::ZoomAktualisieren() {
    ApplyZoom();
}

void FrmMain::ZoomSetzen(double zoom) {
    if (!(zoom >= 1)) return; // a fit on a page too large for the view keeps the zoom
    s.LadeSperre = 255;
    s.Zoomfaktor = zoom;
    ApplyZoom();
    s.LadeSperre = 0;
    Neuzeichnen();
}

void FrmMain::Commandzoom(int index) {
    ZoomSetzen(ZoomSchritt(s.Zoomfaktor, index == 1));
}

void FrmMain::AuswahlAktualisieren() {
    QFrame* marker = m_seite->Rahmen();
    const int n = static_cast<int>(s.RahmenNummer);
    if (n < 1 || !s.Rahmenliste.Gueltig(n) || n > s.RahmenAnzahl || s.Rahmenliste(n).Sichtbar == 0) {
        marker->hide();
        return;
    }
    const ClassRahmen& r = s.Rahmenliste(n);
    const double f = s.Zoomfaktor / 100.0 * TwipsJeZehntelmm / (s.TwipsProPixelX > 0 ? s.TwipsProPixelX : 15);
    marker->setGeometry(static_cast<int>(r.X * f), static_cast<int>(r.Y * f),
                        std::max(2, static_cast<int>(r.Breite * f)),
                        std::max(2, static_cast<int>(r.Höhe * f)));
    marker->show();
}

void FrmMain::StatusDatei(const QString& pfad) {
    QLabel* feld = m_status[0];
    const QString text = StatusDateitext(pfad);
    // The same file again leaves a note standing; another file ends it.
    const bool notiz = feld->property("notizAktiv").toBool() && feld->property("datei").toString() == text;
    feld->setProperty("datei", text);
    if (notiz) return;
    feld->setProperty("notizAktiv", false);
    feld->setText(text);
}

void FrmMain::SeitentitelAktualisieren() {
    const QSignalBlocker b(m_upDownSeite);
    m_upDownSeite->setMaximum(std::max(1, static_cast<int>(s.Seitenanzahl)));
    if (s.Seitennummer > s.Seitenanzahl || static_cast<int>(s.Kalendertyp) == 6) s.Seitennummer = 1;
    m_upDownSeite->setValue(static_cast<int>(s.Seitennummer));
    const QSignalBlocker bt(m_textSeite);
    m_textSeite->setText(QString::number(static_cast<int>(s.Seitennummer)));
}

void FrmMain::TypKnopfHervorheben(int typ, bool an) {
    if (typ < 1 || typ > 7) return;
    m_typ[typ]->setStyleSheet(
        an ? QStringLiteral("QPushButton { background: %1; }").arg(AlsQColor(s.Dialogfarbe1).name())
           : QString());
}

void FrmMain::PanelAktualisieren() {
    const uint8_t sperre = s.LadeSperre;
    s.LadeSperre = 255;
    for (int i = 1; i <= 20; ++i) {
        const QString t = s.Schriftliste.Gueltig(i) ? s.Schriftliste(i).Textstring : s.Panel.Text1(i);
        if (m_text1[i]->text() != t) m_text1[i]->setText(t);
    }
    if (m_textTitel->text() != s.Panel.TextTitel) m_textTitel->setText(s.Panel.TextTitel);
    if (m_textUnterschrift->text() != s.Panel.TextUnterschrift)
        m_textUnterschrift->setText(s.Panel.TextUnterschrift);
    KalenderpanelZeigen();
    s.LadeSperre = sperre;
}

void FrmMain::DatensatzAnzeigen() {
    // The record's fields stand in the panel's boxes 21 to 30 of the state.
    const uint8_t sperre = s.LadeSperre;
    s.LadeSperre = 255;
    for (int i = 21; i <= 30; ++i)
        if (m_text1[i]->text() != s.Panel.Text1(i)) m_text1[i]->setText(s.Panel.Text1(i));
    m_textData->setText(QString::number(static_cast<long long>(s.DatensatzNummer)));
    s.LadeSperre = sperre;
}

void FrmMain::FokusFeldbox(int i) {
    if (i >= 1 && i <= 30) m_text1[i]->setFocus();
}

void FrmMain::Statusmeldung(const QString& text) {
    // The file's panel fills the bar, so a note stands in it for a while; then the file again.
    QLabel* feld = m_status[0];
    const int notiz = feld->property("notiz").toInt() + 1;
    feld->setProperty("notiz", notiz);
    feld->setProperty("notizAktiv", true);
    feld->setText(text);
    QTimer::singleShot(10000, feld, [feld, notiz] {
        if (feld->property("notiz").toInt() != notiz || !feld->property("notizAktiv").toBool()) return;
        feld->setProperty("notizAktiv", false);
        feld->setText(feld->property("datei").toString());
    });
}

QString FrmMain::SpeicherDateiWaehlen(const QString& titel, const QString& filter, const QString& vorschlag) {
    QString gewaehlt;
    const QString name = QFileDialog::getSaveFileName(this, titel, QDir(s.Programmpfad).filePath(vorschlag),
                                                      QtDateifilter(filter), &gewaehlt);
    return MitFilterendung(name, gewaehlt);
}

QString FrmMain::QtDateiWaehlen(const QString& titel, const QString& qtFilter) {
    return QFileDialog::getOpenFileName(this, titel, s.Programmpfad, qtFilter);
}

void FrmMain::Panelzeigen(int frame) {
    if (QWidget* w = m_panels.value(frame, nullptr)) m_frame1->setCurrentWidget(w);
}

} // namespace zp
