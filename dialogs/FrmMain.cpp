// frmMain: construction, the load handler and the showing of the core's change notices.
#include "FrmMain.h"
#include "Benannt.h"
#include "Fensterantworten.h"
#include "Formatleiste.h"
#include "PanelDatensatz.h"
#include "PanelFeiertage.h"
#include "PanelGalerie.h"
#include "PanelKalender.h"
#include "PanelLayouts.h"
#include "PanelMonatsbilder.h"
#include "PanelTermine.h"
#include "PanelTexte.h"
#include "Seitenansicht.h"

#include "calendar/data/Tagesdaten.h"
#include "compose/Seitenmaler.h"
#include "core/Beenden.h"
#include "core/Datensatzbefehle.h"
#include "core/Dokumentbefehle.h"
#include "core/Formatbefehle.h"
#include "core/Seitennavigation.h"
#include "core/Start.h"
#include "core/state/AppState.h"
#include "core/state/Editionen.h"
#include "core/state/Inhalt.h"
#include "core/state/Massstab.h"
#include "core/state/Zoom.h"
#include "persist/Datensaetze.h"
#include "render/Bildwerk.h"

#include <QAction>
#include <QCloseEvent>
#include <QComboBox>
#include <QGuiApplication>
#include <QIcon>
#include <QLabel>
#include <QLayout>
#include <QScreen>
#include <QSplitter>
#include <QStackedWidget>
#include <QStatusBar>
#include <QTimer>
#include <QToolBar>

namespace zp {

FrmMain::FrmMain(AppState& state, QWidget* parent)
    : FrmMain(state, std::make_unique<Fensterantworten>(state), parent) {}

FrmMain::FrmMain(AppState& state, std::unique_ptr<Fensterantworten> antworten, QWidget* parent)
    : QMainWindow(parent), s(state), m_maler(std::make_unique<Seitenmaler>()),
      m_antworten(std::move(antworten)) {
    setObjectName(QStringLiteral("frmMain"));
    m_antworten->fenster = this;
    m_format = new Formatleiste(s, *m_antworten, this);
    HauptaktionenAnlegen(*this, m_a, m_format);
    PanelsAnlegen();
    StatusleisteAnlegen();
    m_antworten->geaendert = [this](unsigned was) { Zeigen(was); };
    m_antworten->statusDatei = [this](const QString& pfad) { StatusDatei(pfad); };
    m_antworten->statusmeldung = [this](const QString& text) { Notiz(text); };
    m_antworten->formatleiste = [this] { m_format->Aktualisieren(); };
    // The core moves the focus after a click on a text frame or to a new record's first box.
    m_antworten->fokus = [this](int feld) {
        const bool nachKlick = AuswahlZeigtText(s, feld);
        for (auto& [nummer, panel] : m_panels)
            if (panel->Fokus(feld, nachKlick)) return;
    };
    Verbinden();
    Freigaben();
    // A picture that can't be loaded is told in a message box, once per file.
    BildwerkVon(s).Meldungen = m_antworten.get();
}

FrmMain::~FrmMain() {
    Bildwerk& werk = BildwerkVon(s);
    if (werk.Meldungen == m_antworten.get()) werk.Meldungen = nullptr;
}

// A side panel in Frame1(frame); the window tells it every change.
template <typename P> P* FrmMain::Panel(int frame) {
    auto* p = new P(Panelumgebung{s, *m_antworten});
    m_frame1->addWidget(p);
    m_panels.emplace_back(frame, p);
    return p;
}

void FrmMain::PanelsAnlegen() {
    m_frame1 = Benannt<QStackedWidget>(QStringLiteral("Frame1"));
    m_frame1->setMinimumWidth(270);
    Panel<PanelTexte>(1);
    Panel<PanelLayouts>(3);
    Panel<PanelDatensatz>(4);
    Panel<PanelGalerie>(5);
    Panel<PanelTermine>(6);
    Panel<PanelFeiertage>(7);
    m_kalender = Panel<PanelKalender>(8);
    Panel<PanelMonatsbilder>(9);

    m_seite = new Seitenansicht;
    auto* teiler = Benannt<QSplitter>(QStringLiteral("Frame2"));
    teiler->addWidget(m_frame1);
    teiler->addWidget(m_seite);
    teiler->setStretchFactor(1, 1);
    teiler->setSizes({280, 500});
    teiler->setChildrenCollapsible(false);
    setCentralWidget(teiler);
}

void FrmMain::StatusleisteAnlegen() {
    statusBar()->setObjectName(QStringLiteral("StatusBar"));
    for (int i = 0; i < 3; ++i) {
        m_status[i] = Benannt<QLabel>(QStringLiteral("StatusBar_%1").arg(i + 1));
        statusBar()->addPermanentWidget(m_status[i], i == 0 ? 1 : 0);
    }
    m_status[0]->setText(QStringLiteral("Aktuelle Datei: "));
    m_status[1]->setMinimumWidth(80);
    m_status[2]->setMinimumWidth(80);
}

void FrmMain::Laden() {
    s.LadeSperre = 255;
    const Edition e = AktuelleEdition(s);
    EditionAnwenden();

    // 1., 3. to 5. and 11. in the state: fonts, the calendar's empty day data and kalender.ini,
    // the label catalogue, the text object of the panel, the start document.
    LadeStartzustand(s, *m_antworten);
    if (e == Edition::Visitenkarte) LadeDatensaetze(s, *m_antworten);

    // 3. The calendar block of the panel; 4. and 5. the captions of the card and sheet boxes.
    for (auto& [nummer, panel] : m_panels)
        panel->Laden();
    if (e == Edition::Kalender) {
        m_antworten->StatusDatei(s.Datendatei);
        MonatsansichtenAufJahr(s, static_cast<int>(s.Kalenderjahr));
        // The day data of the last session: the boxes show the selected days, the views their marks.
        TerminAnzeigen(s);
        FeiertagAnzeigen(s);
        TagesmarkenAufbauen(s);
        MonatsbildWaehlen(s, 0);
        Seitenbereich(s);
        Zeigen(Aenderung::Seitentitel | Aenderung::Kalendertyp);
    } else {
        m_antworten->StatusDatei(s.AktuelleDatei);
    }
    if (e != Edition::Etikett) {
        m_a.Toolbar4_[1]->setVisible(false);
        m_a.Toolbar4_[2]->setChecked(true);
    } else {
        m_a.Toolbar4_[1]->setChecked(true);
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
    m_a.Toolbar1_Eigenschaft->setText(QStringLiteral("Schriftart"));
    m_format->ListenFuellen();

    // 15. Selection and the record on show.
    Zeigen(Aenderung::Panel | Aenderung::Auswahl);
    if (e != Edition::Kalender) ZeigeDatensatz(s, *m_antworten);
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
    Beenden(s, *m_antworten);
    e->accept();
}

// ---- Change notices ---------------------------------------------------------------------------

void FrmMain::Zeigen(unsigned was) {
    const unsigned panels =
        Aenderung::Panel | Aenderung::Datensatz | Aenderung::Seitentitel | Aenderung::Kalendertyp;
    if (was & panels)
        for (auto& [nummer, panel] : m_panels)
            panel->Zeigen(was);
    if (was & Aenderung::Seitentitel) {
        const int typ = static_cast<int>(s.Kalendertyp);
        m_a.Toolbar5_[4]->setVisible(typ == 4 || typ == 5);
    }
    if (was & Aenderung::Zoom) {
        ApplyZoom(); // marker and, unless locked, the page
        was &= ~(Aenderung::Auswahl | (s.LadeSperre == 0 ? Aenderung::Seite : 0u));
    }
    if (was & Aenderung::Auswahl) AuswahlAktualisieren();
    if (was & Aenderung::Seite) Neuzeichnen();
}

void FrmMain::Neuzeichnen() {
    try {
        m_seite->PictureSeite()->BildSetzen(m_maler->Zeichne(s));
    } catch (const std::exception& e) {
        m_antworten->Meldung(QStringLiteral("Die Seite konnte nicht gezeichnet werden."),
                             QStringLiteral("Warnung!"), QString::fromUtf8(e.what()));
    }
}

void FrmMain::ApplyZoom() {
    m_seite->RulerZoom(s.Zoomfaktor, Massstab::Ansicht(s).twipsProPixelX);
    AuswahlAktualisieren();
    if (s.LadeSperre == 0) Neuzeichnen();
}

void FrmMain::ZoomSetzen(double zoom) {
    if (!(zoom >= 1)) return; // a fit on a page too large for the view keeps the zoom
    s.LadeSperre = 255;
    s.Zoomfaktor = zoom;
    ApplyZoom();
    s.LadeSperre = 0;
    Neuzeichnen();
}

void FrmMain::AuswahlAktualisieren() {
    // The marker follows the current frame also after a load or a zoom, for the handles and corners.
    MarkerNachRahmen(s);
    m_format->Aktualisieren();
    EigenschaftZeigen();
    QFrame* marker = m_seite->Rahmen();
    const int n = static_cast<int>(s.RahmenNummer);
    if (n < 1 || !s.Rahmenliste.Gueltig(n) || n > s.RahmenAnzahl || s.Rahmenliste(n).Sichtbar == 0) {
        marker->hide();
        return;
    }
    const ClassRahmen& r = s.Rahmenliste(n);
    const double f = Massstab::Ansicht(s).PixelJeZehntelX();
    marker->setGeometry(static_cast<int>(r.X * f), static_cast<int>(r.Y * f),
                        std::max(2, static_cast<int>(r.Breite * f)),
                        std::max(2, static_cast<int>(r.Höhe * f)));
    marker->show();
}

void FrmMain::EigenschaftZeigen() {
    // The property key names the dialog of the current frame's kind; a letter body has none here.
    struct Art {
        const char* objekttyp;
        const char* titel;
        const char* symbol;
    };
    static constexpr Art arten[] = {{"Schrift", "Schriftart", "format-text-bold"},
                                    {"Bild", "Bild", "image-x-generic"},
                                    {"Linie", "Form", "draw-rectangle"},
                                    {"RTF", "Brief", "x-office-document"}};
    const int n = static_cast<int>(s.RahmenNummer);
    const bool rahmen = n >= 1 && n <= s.RahmenAnzahl && s.Rahmenliste.Gueltig(n);
    const QString typ = rahmen ? s.Rahmenliste(n).Objekttyp : QString();
    QAction* knopf = m_a.Toolbar1_Eigenschaft;
    knopf->setEnabled(rahmen && typ != u"RTF");
    for (const Art& a : arten) {
        if (typ != QLatin1String(a.objekttyp)) continue;
        knopf->setText(QString::fromUtf8(a.titel));
        knopf->setIcon(QIcon::fromTheme(QString::fromLatin1(a.symbol), knopf->icon()));
    }
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

void FrmMain::Notiz(const QString& text) {
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

void FrmMain::Panelzeigen(int frame) {
    for (auto& [nummer, panel] : m_panels)
        if (nummer == frame) m_frame1->setCurrentWidget(panel);
}

} // namespace zp
