// Building frmMain: the menu tree in its order, the toolbars, the side panels and the page view.
#include "dialogs/FrmMain.h"
#include "dialogs/Monatskalender.h"
#include "dialogs/Seitenansicht.h"

#include "core/state/AppState.h"

#include <QAction>
#include <QComboBox>
#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QIcon>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QSpinBox>
#include <QSplitter>
#include <QStackedWidget>
#include <QStatusBar>
#include <QStyle>
#include <QToolBar>
#include <QToolButton>
#include <QVBoxLayout>

namespace zp {

namespace {

QIcon Symbol(const char* thema, QStyle::StandardPixmap ersatz, QWidget* w) {
    return QIcon::fromTheme(QString::fromLatin1(thema), w->style()->standardIcon(ersatz));
}

// A new widget under its object name, by which the window's handlers and tests find it.
template <typename W, typename... Args> W* Benannt(const QString& name, Args&&... args) {
    auto* w = new W(std::forward<Args>(args)...);
    w->setObjectName(name);
    return w;
}

QWidget* Seitenpanel(const QString& name, QLayout* inhalt) {
    auto* innen = new QWidget;
    innen->setLayout(inhalt);
    auto* rollen = Benannt<QScrollArea>(name);
    rollen->setWidgetResizable(true);
    rollen->setFrameShape(QFrame::NoFrame);
    rollen->setWidget(innen);
    return rollen;
}

} // namespace

QAction* FrmMain::NeueAktion(QMenu* menue, const char* name, const QString& titel) {
    auto* a = Benannt<QAction>(QString::fromUtf8(name), titel, this);
    menue->addAction(a);
    m_aktionen.insert(a->objectName(), a);
    return a;
}

QAction* FrmMain::Aktion(const QString& name) const {
    return m_aktionen.value(name, nullptr);
}

void FrmMain::MenuesAnlegen() {
    auto menue = [this](const char* name, const QString& titel) {
        QMenu* m = menuBar()->addMenu(titel);
        m->setObjectName(QString::fromUtf8(name));
        m_aktionen.insert(m->objectName(), m->menuAction());
        return m;
    };
    auto tasten = [](QAction* a, QKeySequence k) { a->setShortcut(k); };

    QMenu* datei = menue("mnuFile", QStringLiteral("&Datei"));
    tasten(NeueAktion(datei, "mnuFileNew", QStringLiteral("&Neu")), QKeySequence::New);
    tasten(NeueAktion(datei, "mnuFileOpen", QStringLiteral("Ö&ffnen...")), QKeySequence::Open);
    NeueAktion(datei, "mnuimport", QStringLiteral("Importieren"));
    tasten(NeueAktion(datei, "mnuFileClose", QStringLiteral("S&chließen")), QKeySequence::Close);
    datei->addSeparator();
    tasten(NeueAktion(datei, "mnuFileSave", QStringLiteral("&Speichern")), QKeySequence::Save);
    NeueAktion(datei, "mnuFileSaveAs2", QStringLiteral("Daten speichern unter..."));
    tasten(NeueAktion(datei, "mnuFileSaveAs", QStringLiteral("Speichern unter...")), QKeySequence::SaveAs);
    NeueAktion(datei, "mnuBildSpeichern", QStringLiteral("als Bild speichern"));
    NeueAktion(datei, "mnuWord", QStringLiteral("in Word exportieren"));
    datei->addSeparator();
    NeueAktion(datei, "mnuFilePageSetup", QStringLiteral("Seite &einrichten..."));
    tasten(NeueAktion(datei, "mnuFilePrint", QStringLiteral("Dru&cken...")), QKeySequence::Print);
    datei->addSeparator();
    NeueAktion(datei, "mnuSitzung", QStringLiteral("Letzte Sitzung beim Start wiederherstellen"))
        ->setCheckable(true);
    // The recent-file entries exist and stay empty: the list passes through the settings untouched.
    for (int i = 0; i < 3; ++i) {
        QAction* a = NeueAktion(datei, "mnuFileMRU", QString());
        a->setObjectName(QStringLiteral("mnuFileMRU_%1").arg(i));
        m_aktionen.insert(a->objectName(), a);
        a->setVisible(false);
    }
    datei->addSeparator();
    tasten(NeueAktion(datei, "mnuFileExit", QStringLiteral("&Beenden")), QKeySequence::Quit);

    QMenu* bearbeiten = menue("mnuBearbeiten", QStringLiteral("&Bearbeiten"));
    NeueAktion(bearbeiten, "mnuBrief", QStringLiteral("Brief"));
    NeueAktion(bearbeiten, "mnuKartengrösse", QStringLiteral("Kartengröße"));
    NeueAktion(bearbeiten, "mnuDesign", QStringLiteral("Kartendesign"));
    NeueAktion(bearbeiten, "mnuRaster", QStringLiteral("Raster"));
    bearbeiten->addSeparator();
    NeueAktion(bearbeiten, "mnubildeinfügen", QStringLiteral("Bild einfügen"));
    NeueAktion(bearbeiten, "mnuLinieeinfügen", QStringLiteral("Form einfügen"));
    NeueAktion(bearbeiten, "mnuTexteinfügen", QStringLiteral("Text einfügen"));
    NeueAktion(bearbeiten, "mnudatumeinfuegen", QStringLiteral("Datum einfügen"));
    NeueAktion(bearbeiten, "mnuzeit", QStringLiteral("Zeit einfügen"));
    NeueAktion(bearbeiten, "mnuseriennummer", QStringLiteral("Seriennummer einfügen"));
    bearbeiten->addSeparator();
    NeueAktion(bearbeiten, "mnuFeiertage", QStringLiteral("Optionen"));
    NeueAktion(bearbeiten, "mnukalender", QStringLiteral("Kalender zurücksetzen"));
    NeueAktion(bearbeiten, "mnukalendereditieren", QStringLiteral("Kalender Editieren"))->setCheckable(true);

    QMenu* ansicht = menue("mnuView", QStringLiteral("&Ansicht"));
    NeueAktion(ansicht, "mnuGitterlinienansicht", QStringLiteral("Raster"))->setCheckable(true);
    NeueAktion(ansicht, "mnuHilfsbereiche", QStringLiteral("Hilfsbereiche"))->setCheckable(true);
    ansicht->addSeparator();
    NeueAktion(ansicht, "mnuViewSeitenbreite", QStringLiteral("&Seitenbreite"));
    NeueAktion(ansicht, "mnuViewganze_Seite", QStringLiteral("&ganze Seite"));
    ansicht->addSeparator();
    for (int p : {50, 100, 150, 200, 400}) {
        const QByteArray name = "mnuViewProzent" + QByteArray::number(p);
        NeueAktion(ansicht, name.constData(), QStringLiteral("%1 %").arg(p));
    }

    QMenu* objekte = menue("mnuRahmen", QStringLiteral("&Objekte"));
    NeueAktion(objekte, "mnuRahmensichtbar", QStringLiteral("Alle anzeigen"))->setCheckable(true);
    NeueAktion(objekte, "mmummgenau", QStringLiteral("1/10 mm genau"))->setCheckable(true);
    NeueAktion(objekte, "mnuRahmenMagnet", QStringLiteral("Rastermagnet"))->setCheckable(true);
    objekte->addSeparator();
    NeueAktion(objekte, "mnuRahmenEinfügen", QStringLiteral("Einfügen"));
    NeueAktion(objekte, "mnuRahmenLöschen", QStringLiteral("Löschen"));
    NeueAktion(objekte, "mnuRahmenPositionieren", QStringLiteral("Positionieren"));
    NeueAktion(objekte, "mnuverankert", QStringLiteral("verankern"));
    NeueAktion(objekte, "mnuVerankernAlle", QStringLiteral("Alle verankern"));
    NeueAktion(objekte, "mnuVerankernKeine", QStringLiteral("Alle Verankerungen aufheben"));
    objekte->addSeparator();
    NeueAktion(objekte, "mnuRahmenvorne", QStringLiteral("ganz nach vorne"));
    NeueAktion(objekte, "mnuRahmenhinten", QStringLiteral("ganz nach hinten"));
    NeueAktion(objekte, "mnuRahmeneinsvorn", QStringLiteral("eins nach vorne"));
    NeueAktion(objekte, "mnuRahmeneinshinten", QStringLiteral("eins nach hinten"));

    QMenu* hilfe = menue("mnuHelp", QStringLiteral("&Hilfe"));
    tasten(NeueAktion(hilfe, "mnuHelpContents", QStringLiteral("&Inhalt")), QKeySequence::HelpContents);
    NeueAktion(hilfe, "mnuHelpZP", QStringLiteral("Zur ZP-Homepage"));
    NeueAktion(hilfe, "mnuHelpHotline", QStringLiteral("Mail an den Autor"));
    NeueAktion(hilfe, "mnuupdate", QStringLiteral("Programm aktualisieren"));
    NeueAktion(hilfe, "mnuInfo", QStringLiteral("Info"));

    // The page's context menu; its entries edit frames, which the mouse editing brings.
    auto* pop = Benannt<QMenu>(QStringLiteral("PopSchrift"), this);
    NeueAktion(pop, "popEigenschaft", QStringLiteral("Eigenschaft"));
    NeueAktion(pop, "popPositionieren", QStringLiteral("Positionieren"));
    NeueAktion(pop, "mnuVerankern", QStringLiteral("Verankern"));
    NeueAktion(pop, "popLoeschen", QStringLiteral("Löschen"));
    NeueAktion(pop, "popganzvorn", QStringLiteral("ganz nach vorne"));
    NeueAktion(pop, "popganzhinten", QStringLiteral("ganz nach hinten"));
    NeueAktion(pop, "popeinsvor", QStringLiteral("eins nach vorne"));
    NeueAktion(pop, "popeinshinten", QStringLiteral("eins nach hinten"));

    // The view's zoom keys beside the menu's percentages.
    auto* rein = Benannt<QAction>(QStringLiteral("Commandzoom_1"), QStringLiteral("Vergrößern"), this);
    rein->setShortcuts({QKeySequence::ZoomIn, QKeySequence(Qt::CTRL | Qt::Key_Equal)});
    rein->setIcon(Symbol("zoom-in", QStyle::SP_ArrowUp, this));
    auto* raus = Benannt<QAction>(QStringLiteral("Commandzoom_0"), QStringLiteral("Verkleinern"), this);
    raus->setShortcut(QKeySequence::ZoomOut);
    raus->setIcon(Symbol("zoom-out", QStyle::SP_ArrowDown, this));
    m_aktionen.insert(rein->objectName(), rein);
    m_aktionen.insert(raus->objectName(), raus);
}

void FrmMain::ToolbarsAnlegen() {
    m_toolbar1 = addToolBar(QStringLiteral("Werkzeuge"));
    m_toolbar1->setObjectName(QStringLiteral("Toolbar1"));
    m_toolbar1->setMovable(false);
    struct Knopf {
        const char* schluessel;
        const char* thema;
        QStyle::StandardPixmap ersatz;
        const char* menue;
    };
    const Knopf knoepfe[] = {{"Neu", "document-new", QStyle::SP_FileIcon, "mnuFileNew"},
                             {"Öffnen", "document-open", QStyle::SP_DialogOpenButton, "mnuFileOpen"},
                             {"Speichern", "document-save", QStyle::SP_DialogSaveButton, "mnuFileSave"},
                             {"Drucken", "document-print", QStyle::SP_FileDialogDetailedView, "mnuFilePrint"},
                             {"Hilfe", "help-contents", QStyle::SP_DialogHelpButton, "mnuHelpContents"},
                             {"Eigenschaft", "format-text-bold", QStyle::SP_FileDialogInfoView, nullptr},
                             {"Einfügen", "insert-object", QStyle::SP_FileDialogNewFolder, nullptr}};
    for (const Knopf& k : knoepfe) {
        const QString schluessel = QString::fromUtf8(k.schluessel);
        auto* a = Benannt<QAction>(QStringLiteral("Toolbar1_") + schluessel, Symbol(k.thema, k.ersatz, this),
                                   schluessel, this);
        if (k.menue) {
            QAction* ziel = Aktion(QString::fromUtf8(k.menue));
            connect(a, &QAction::triggered, ziel, &QAction::trigger);
            a->setToolTip(ziel->text().remove(QLatin1Char('&')));
        }
        m_aktionen.insert(a->objectName(), a);
        m_toolbar1->addAction(a);
    }
    m_toolbar1->addSeparator();
    m_toolbar1->addAction(Aktion(QStringLiteral("Commandzoom_0")));
    m_toolbar1->addAction(Aktion(QStringLiteral("Commandzoom_1")));

    // The format bar: fonts and sizes of the current frame.
    m_toolbar3 = addToolBar(QStringLiteral("Format"));
    m_toolbar3->setObjectName(QStringLiteral("Toolbar3"));
    m_toolbar3->setMovable(false);
    m_combo1 = Benannt<QComboBox>(QStringLiteral("Combo1"));
    m_combo1->setMinimumContentsLength(14);
    m_combo3 = Benannt<QComboBox>(QStringLiteral("Combo3"));
    m_toolbar3->addWidget(m_combo1);
    m_toolbar3->addWidget(m_combo3);
    m_toolbar3->setEnabled(false);

    addToolBarBreak();
    auto panelleiste = [this](const char* name, const QStringList& titel) {
        QToolBar* t = addToolBar(QString::fromUtf8(name));
        t->setObjectName(QString::fromUtf8(name));
        t->setMovable(false);
        t->setToolButtonStyle(Qt::ToolButtonTextOnly);
        for (int i = 0; i < titel.size(); ++i) {
            auto* a = Benannt<QAction>(QStringLiteral("%1_%2").arg(QString::fromUtf8(name)).arg(i + 1),
                                       titel[i], this);
            a->setCheckable(i < 4);
            m_aktionen.insert(a->objectName(), a);
            t->addAction(a);
        }
        return t;
    };
    m_toolbar4 =
        panelleiste("Toolbar4", {QStringLiteral("Texte"), QStringLiteral("Adresse"), QStringLiteral("Layout"),
                                 QStringLiteral("Designs"), QStringLiteral("Karte")});
    m_toolbar5 = panelleiste("Toolbar5", {QStringLiteral("Kalender"), QStringLiteral("Termine"),
                                          QStringLiteral("Feiertage"), QStringLiteral("Monatsbilder"),
                                          QStringLiteral("Design")});
    m_toolbar5->hide();
}

QToolButton* FrmMain::Farbfeld(const char* name) {
    auto* b = Benannt<QToolButton>(QString::fromUtf8(name));
    b->setFixedSize(40, 20);
    b->setAutoRaise(false);
    FarbfeldZeigen(b, 0xFFFFFF);
    return b;
}

// The named text fields Text1(von..bis), each behind its Label1 caption.
void FrmMain::Textfelder(QFormLayout* f, int von, int bis) {
    for (int i = von; i <= bis; ++i) {
        m_label1[i] = Benannt<QLabel>(QStringLiteral("Label1_%1").arg(i));
        m_text1[i] = Benannt<QLineEdit>(QStringLiteral("Text1_%1").arg(i));
        m_label1[i]->setBuddy(m_text1[i]);
        f->addRow(m_label1[i], m_text1[i]);
    }
}

// Text and background colour of the days, as the appointment and holiday panels pick them:
// colour fields `erstes` and `erstes + 1`.
QFormLayout* FrmMain::Farbpaar(int erstes, const char* schrift, const char* hintergrund) {
    auto* farben = new QFormLayout;
    m_farbfeld[erstes] = Farbfeld(schrift);
    m_farbfeld[erstes + 1] = Farbfeld(hintergrund);
    farben->addRow(QStringLiteral("Textfarbe"), m_farbfeld[erstes]);
    farben->addRow(QStringLiteral("Hintergrund"), m_farbfeld[erstes + 1]);
    return farben;
}

QWidget* FrmMain::PanelTexte() {
    auto* f = new QFormLayout;
    Textfelder(f, 1, 20);
    return Seitenpanel(QStringLiteral("Frame1_1"), f);
}

QWidget* FrmMain::PanelDatensatz() {
    auto* v = new QVBoxLayout;
    auto* nav = new QHBoxLayout;
    const char* namen[] = {"ComData1", "ComData2", "Comdata3", "Comdata4"};
    const char* titel[] = {"|<", "<", ">", ">|"};
    for (int i = 0; i < 4; ++i) {
        auto* b = Benannt<QPushButton>(QString::fromLatin1(namen[i]), QString::fromLatin1(titel[i]));
        b->setMaximumWidth(32);
        nav->addWidget(b);
    }
    m_textData = Benannt<QLineEdit>(QStringLiteral("TextData"));
    m_textData->setMaximumWidth(50);
    nav->insertWidget(2, m_textData);
    v->addLayout(nav);
    auto* f = new QFormLayout;
    Textfelder(f, 21, 30);
    v->addLayout(f);
    auto* textSuchen = Benannt<QLineEdit>(QStringLiteral("TextSuchen"));
    textSuchen->setPlaceholderText(QStringLiteral("Suchtext"));
    v->addWidget(textSuchen);
    auto* suchen = new QHBoxLayout;
    const char* knoepfe[][2] = {{"Command1", "Suchen"}, {"Command2", "Löschen"}, {"Command3", "Einfügen"}};
    for (auto& k : knoepfe) {
        auto* b = Benannt<QPushButton>(QString::fromLatin1(k[0]), QString::fromUtf8(k[1]));
        suchen->addWidget(b);
    }
    v->addLayout(suchen);
    v->addStretch();
    return Seitenpanel(QStringLiteral("Frame1_4"), v);
}

QWidget* FrmMain::PanelLayouts() {
    auto* v = new QVBoxLayout;
    v->addWidget(new QLabel(QStringLiteral("Die Texte neu anordnen:")));
    for (int k = 1; k <= 5; ++k) {
        auto* b =
            Benannt<QPushButton>(QStringLiteral("Command4_%1").arg(k), QStringLiteral("Layout %1").arg(k));
        v->addWidget(b);
    }
    v->addStretch();
    return Seitenpanel(QStringLiteral("Frame1_3"), v);
}

QWidget* FrmMain::PanelGalerie() {
    auto* v = new QVBoxLayout;
    v->addWidget(new QLabel(QStringLiteral("Vorlage wählen:")));
    m_list1 = Benannt<QListWidget>(QStringLiteral("List1"));
    v->addWidget(m_list1);
    return Seitenpanel(QStringLiteral("Frame1_5"), v);
}

QWidget* FrmMain::PanelTermine() {
    auto* v = new QVBoxLayout;
    m_monat1 = Benannt<Monatskalender>(QStringLiteral("MonthView1"));
    v->addWidget(m_monat1);
    auto* hinweis = new QLabel(QStringLiteral("Termin (Umschalt+Klick wählt mehrere Tage):"));
    hinweis->setWordWrap(true); // the panel keeps its width, without a scroll bar across
    v->addWidget(hinweis);
    m_textTermin = Benannt<QPlainTextEdit>(QStringLiteral("TextTermin"));
    m_textTermin->setTabChangesFocus(true);
    m_textTermin->setMaximumHeight(70);
    v->addWidget(m_textTermin);
    v->addLayout(Farbpaar(0, "PictureTextfarbe", "PictureHintergrundfarbe"));
    auto* aktualisieren =
        Benannt<QPushButton>(QStringLiteral("CommandAktualisieren"), QStringLiteral("Aktualisieren"));
    v->addWidget(aktualisieren);
    v->addStretch();
    return Seitenpanel(QStringLiteral("Frame1_6"), v);
}

QWidget* FrmMain::PanelFeiertage() {
    auto* v = new QVBoxLayout;
    m_monat2 = Benannt<Monatskalender>(QStringLiteral("MonthView2"));
    v->addWidget(m_monat2);
    v->addWidget(new QLabel(QStringLiteral("Feiertag:")));
    m_textFeiertag = Benannt<QLineEdit>(QStringLiteral("TextFeiertag"));
    v->addWidget(m_textFeiertag);
    v->addLayout(Farbpaar(2, "PictureFeiertagSchrift", "PictureFeiertagBack"));
    auto* knoepfe = new QHBoxLayout;
    auto* berechnen =
        Benannt<QPushButton>(QStringLiteral("CommandBerechnen"), QStringLiteral("Feiertage berechnen"));
    auto* optionen = Benannt<QPushButton>(QStringLiteral("CommandOptionen"), QStringLiteral("Optionen"));
    knoepfe->addWidget(berechnen);
    knoepfe->addWidget(optionen);
    v->addLayout(knoepfe);
    auto* aktualisieren =
        Benannt<QPushButton>(QStringLiteral("CommandAktualisieren2"), QStringLiteral("Aktualisieren"));
    v->addWidget(aktualisieren);
    v->addStretch();
    return Seitenpanel(QStringLiteral("Frame1_7"), v);
}

QWidget* FrmMain::PanelKalender() {
    auto* v = new QVBoxLayout;
    auto* typen = new QGroupBox(QStringLiteral("Kalendertyp"));
    auto* g = new QGridLayout(typen);
    const char* namen[] = {"", "Halbjahr", "Jahr A5", "Tasche", "Monat 1", "Monat 2", "Woche", "Planer"};
    for (int t = 1; t <= 7; ++t) {
        m_typ[t] = Benannt<QPushButton>(QStringLiteral("CommandTyp_%1").arg(t), QString::fromUtf8(namen[t]));
        g->addWidget(m_typ[t], (t - 1) / 2, (t - 1) % 2);
    }
    v->addWidget(typen);
    auto* f = new QFormLayout;
    m_comboJahr = Benannt<QComboBox>(QStringLiteral("ComboJahr"));
    m_comboJahr->setEditable(true);
    m_comboJahr->setInsertPolicy(QComboBox::NoInsert);
    f->addRow(QStringLiteral("&Jahr"), m_comboJahr);
    m_comboVariante = Benannt<QComboBox>(QStringLiteral("ComboVariante"));
    f->addRow(QStringLiteral("&Variante"), m_comboVariante);
    auto* seite = new QHBoxLayout;
    m_textSeite = Benannt<QLineEdit>(QStringLiteral("TextSeite"));
    m_textSeite->setMaximumWidth(40);
    m_upDownSeite = Benannt<QSpinBox>(QStringLiteral("UpDownSeite"));
    m_upDownSeite->setRange(1, 2);
    m_upDownSeite->setButtonSymbols(QAbstractSpinBox::UpDownArrows);
    m_upDownSeite->setMaximumWidth(22);
    m_upDownSeite->setKeyboardTracking(false);
    seite->addWidget(m_textSeite);
    seite->addWidget(m_upDownSeite);
    seite->addStretch();
    f->addRow(QStringLiteral("Seite"), seite);
    m_textTitel = Benannt<QLineEdit>(QStringLiteral("TextTitel"));
    f->addRow(QStringLiteral("&Titel"), m_textTitel);
    m_textUnterschrift = Benannt<QLineEdit>(QStringLiteral("TextUnterschrift"));
    f->addRow(QStringLiteral("&Unterschrift"), m_textUnterschrift);
    v->addLayout(f);
    auto* standard =
        Benannt<QPushButton>(QStringLiteral("CommandStandard"), QStringLiteral("Standarddesign"));
    v->addWidget(standard);
    v->addStretch();
    return Seitenpanel(QStringLiteral("Frame1_8"), v);
}

QWidget* FrmMain::PanelMonatsbilder() {
    auto* f = new QFormLayout;
    m_comboMonat = Benannt<QComboBox>(QStringLiteral("ComboMonat"));
    f->addRow(QStringLiteral("&Monat"), m_comboMonat);
    auto* datei = new QHBoxLayout;
    m_textbilddatei = Benannt<QLineEdit>(QStringLiteral("Textbilddatei"));
    auto* durchsuchen = Benannt<QPushButton>(QStringLiteral("CommandDurchsuchen"), QStringLiteral("..."));
    durchsuchen->setMaximumWidth(30);
    datei->addWidget(m_textbilddatei);
    datei->addWidget(durchsuchen);
    f->addRow(QStringLiteral("Bild"), datei);
    m_textBildbeschreibung = Benannt<QLineEdit>(QStringLiteral("TextBildbeschreibung"));
    f->addRow(QStringLiteral("Bes&chreibung"), m_textBildbeschreibung);
    m_leadKalender = Benannt<QLabel>(QStringLiteral("LeadKalender"));
    m_leadKalender->setFixedSize(200, 150);
    m_leadKalender->setAlignment(Qt::AlignCenter);
    m_leadKalender->hide();
    f->addRow(m_leadKalender);
    return Seitenpanel(QStringLiteral("Frame1_9"), f);
}

void FrmMain::PanelsAnlegen() {
    m_frame1 = Benannt<QStackedWidget>(QStringLiteral("Frame1"));
    m_frame1->setMinimumWidth(270);
    m_panels = {{1, PanelTexte()},   {3, PanelLayouts()},   {4, PanelDatensatz()}, {5, PanelGalerie()},
                {6, PanelTermine()}, {7, PanelFeiertage()}, {8, PanelKalender()},  {9, PanelMonatsbilder()}};
    for (QWidget* w : m_panels)
        m_frame1->addWidget(w);

    m_seite = new Seitenansicht;
    auto* teiler = Benannt<QSplitter>(QStringLiteral("Frame2"));
    teiler->addWidget(m_frame1);
    teiler->addWidget(m_seite);
    teiler->setStretchFactor(1, 1);
    teiler->setSizes({280, 500});
    teiler->setChildrenCollapsible(false);
    setCentralWidget(teiler);

    statusBar()->setObjectName(QStringLiteral("StatusBar"));
    for (int i = 0; i < 3; ++i) {
        m_status[i] = Benannt<QLabel>(QStringLiteral("StatusBar_%1").arg(i + 1));
        statusBar()->addPermanentWidget(m_status[i], i == 0 ? 1 : 0);
    }
    m_status[0]->setText(QStringLiteral("Aktuelle Datei: "));
    m_status[1]->setMinimumWidth(80);
    m_status[2]->setMinimumWidth(80);
}

} // namespace zp
