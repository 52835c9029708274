// Building the main window's menu tree in its order, the page's context menu and the toolbars.
#include "Hauptaktionen.h"
#include "Benannt.h"

#include <QAction>
#include <QComboBox>
#include <QIcon>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QStyle>
#include <QToolBar>

namespace zp {

namespace {

QIcon Symbol(const char* thema, QStyle::StandardPixmap ersatz, QWidget* w) {
    return QIcon::fromTheme(QString::fromLatin1(thema), w->style()->standardIcon(ersatz));
}

// Adds entries to one menu under their object names.
struct Menue {
    QMainWindow& fenster;
    QMenu* menue;
    QAction* operator()(const char* name, const QString& titel) const {
        auto* a = Benannt<QAction>(QString::fromUtf8(name), titel, &fenster);
        menue->addAction(a);
        return a;
    }
    QAction* operator()(const char* name, const QString& titel, QKeySequence taste) const {
        QAction* a = (*this)(name, titel);
        a->setShortcut(taste);
        return a;
    }
    QAction* Haken(const char* name, const QString& titel) const {
        QAction* a = (*this)(name, titel);
        a->setCheckable(true);
        return a;
    }
};

QMenu* Hauptmenue(QMainWindow& w, const char* name, const QString& titel) {
    QMenu* m = w.menuBar()->addMenu(titel);
    m->setObjectName(QString::fromUtf8(name));
    return m;
}

void DateiBearbeiten(QMainWindow& w, Hauptaktionen& a) {
    a.mnuFile = Hauptmenue(w, "mnuFile", QStringLiteral("&Datei"));
    const Menue d{w, a.mnuFile};
    a.mnuFileNew = d("mnuFileNew", QStringLiteral("&Neu"), QKeySequence::New);
    a.mnuFileOpen = d("mnuFileOpen", QStringLiteral("Ö&ffnen..."), QKeySequence::Open);
    a.mnuimport = d("mnuimport", QStringLiteral("Importieren"));
    a.mnuFileClose = d("mnuFileClose", QStringLiteral("S&chließen"), QKeySequence::Close);
    a.mnuFile->addSeparator();
    a.mnuFileSave = d("mnuFileSave", QStringLiteral("&Speichern"), QKeySequence::Save);
    a.mnuFileSaveAs2 = d("mnuFileSaveAs2", QStringLiteral("Daten speichern unter..."));
    a.mnuFileSaveAs = d("mnuFileSaveAs", QStringLiteral("Speichern unter..."), QKeySequence::SaveAs);
    a.mnuBildSpeichern = d("mnuBildSpeichern", QStringLiteral("als Bild speichern"));
    a.mnuWord = d("mnuWord", QStringLiteral("in Word exportieren"));
    a.mnuFile->addSeparator();
    a.mnuFilePageSetup = d("mnuFilePageSetup", QStringLiteral("Seite &einrichten..."));
    a.mnuFilePrint = d("mnuFilePrint", QStringLiteral("Dru&cken..."), QKeySequence::Print);
    a.mnuFile->addSeparator();
    a.mnuSitzung = d.Haken("mnuSitzung", QStringLiteral("Letzte Sitzung beim Start wiederherstellen"));
    // The recent-file entries exist and stay empty: the list passes through the settings untouched.
    for (int i = 0; i < 3; ++i) {
        a.mnuFileMRU[i] = d("mnuFileMRU", QString());
        a.mnuFileMRU[i]->setObjectName(QStringLiteral("mnuFileMRU_%1").arg(i));
        a.mnuFileMRU[i]->setVisible(false);
    }
    a.mnuFile->addSeparator();
    a.mnuFileExit = d("mnuFileExit", QStringLiteral("&Beenden"), QKeySequence::Quit);

    a.mnuBearbeiten = Hauptmenue(w, "mnuBearbeiten", QStringLiteral("&Bearbeiten"));
    const Menue b{w, a.mnuBearbeiten};
    a.mnuRueckgaengig = b("mnuRueckgaengig", QStringLiteral("Rückgängig"), QKeySequence::Undo);
    a.mnuWiederholen = b("mnuWiederholen", QStringLiteral("Wiederholen"), QKeySequence(Qt::CTRL | Qt::Key_Y));
    a.mnuBearbeiten->addSeparator();
    a.mnuBrief = b("mnuBrief", QStringLiteral("Brief"));
    a.mnuKartengrösse = b("mnuKartengrösse", QStringLiteral("Kartengröße"));
    a.mnuDesign = b("mnuDesign", QStringLiteral("Kartendesign"));
    a.mnuRaster = b("mnuRaster", QStringLiteral("Raster"));
    a.mnuBearbeiten->addSeparator();
    a.mnubildeinfügen = b("mnubildeinfügen", QStringLiteral("Bild einfügen"));
    a.mnuLinieeinfügen = b("mnuLinieeinfügen", QStringLiteral("Form einfügen"));
    a.mnuTexteinfügen = b("mnuTexteinfügen", QStringLiteral("Text einfügen"));
    a.mnudatumeinfuegen = b("mnudatumeinfuegen", QStringLiteral("Datum einfügen"));
    a.mnuzeit = b("mnuzeit", QStringLiteral("Zeit einfügen"));
    a.mnuseriennummer = b("mnuseriennummer", QStringLiteral("Seriennummer einfügen"));
    a.mnuBearbeiten->addSeparator();
    a.mnuFeiertage = b("mnuFeiertage", QStringLiteral("Optionen"));
    a.mnukalender = b("mnukalender", QStringLiteral("Kalender zurücksetzen"));
    a.mnukalendereditieren = b.Haken("mnukalendereditieren", QStringLiteral("Kalender Editieren"));
}

void AnsichtObjekteHilfe(QMainWindow& w, Hauptaktionen& a) {
    a.mnuView = Hauptmenue(w, "mnuView", QStringLiteral("&Ansicht"));
    const Menue v{w, a.mnuView};
    a.mnuGitterlinienansicht = v.Haken("mnuGitterlinienansicht", QStringLiteral("Raster"));
    a.mnuHilfsbereiche = v.Haken("mnuHilfsbereiche", QStringLiteral("Hilfsbereiche"));
    a.mnuView->addSeparator();
    a.mnuViewSeitenbreite = v("mnuViewSeitenbreite", QStringLiteral("&Seitenbreite"));
    a.mnuViewganze_Seite = v("mnuViewganze_Seite", QStringLiteral("&ganze Seite"));
    a.mnuView->addSeparator();
    for (int i = 0; i < 5; ++i) {
        const QByteArray name = "mnuViewProzent" + QByteArray::number(Hauptaktionen::Prozente[i]);
        a.mnuViewProzent[i] = v(name.constData(), QStringLiteral("%1 %").arg(Hauptaktionen::Prozente[i]));
    }

    a.mnuRahmen = Hauptmenue(w, "mnuRahmen", QStringLiteral("&Objekte"));
    const Menue o{w, a.mnuRahmen};
    a.mnuRahmensichtbar = o.Haken("mnuRahmensichtbar", QStringLiteral("Alle anzeigen"));
    a.mmummgenau = o.Haken("mmummgenau", QStringLiteral("1/10 mm genau"));
    a.mnuRahmenMagnet = o.Haken("mnuRahmenMagnet", QStringLiteral("Rastermagnet"));
    a.mnuRahmen->addSeparator();
    a.mnuRahmenEinfügen = o("mnuRahmenEinfügen", QStringLiteral("Einfügen"));
    a.mnuRahmenLöschen = o("mnuRahmenLöschen", QStringLiteral("Löschen"));
    a.mnuRahmenPositionieren = o("mnuRahmenPositionieren", QStringLiteral("Positionieren"));
    a.mnuverankert = o.Haken("mnuverankert", QStringLiteral("verankern"));
    a.mnuVerankernAlle = o("mnuVerankernAlle", QStringLiteral("Alle verankern"));
    a.mnuVerankernKeine = o("mnuVerankernKeine", QStringLiteral("Alle Verankerungen aufheben"));
    a.mnuRahmen->addSeparator();
    a.mnuRahmenvorne = o("mnuRahmenvorne", QStringLiteral("ganz nach vorne"));
    a.mnuRahmenhinten = o("mnuRahmenhinten", QStringLiteral("ganz nach hinten"));
    a.mnuRahmeneinsvorn = o("mnuRahmeneinsvorn", QStringLiteral("eins nach vorne"));
    a.mnuRahmeneinshinten = o("mnuRahmeneinshinten", QStringLiteral("eins nach hinten"));

    a.mnuHelp = Hauptmenue(w, "mnuHelp", QStringLiteral("&Hilfe"));
    const Menue h{w, a.mnuHelp};
    a.mnuHelpContents = h("mnuHelpContents", QStringLiteral("&Inhalt"), QKeySequence::HelpContents);
    a.mnuHelpZP = h("mnuHelpZP", QStringLiteral("Zur ZP-Homepage"));
    a.mnuHelpHotline = h("mnuHelpHotline", QStringLiteral("Mail an den Autor"));
    a.mnuupdate = h("mnuupdate", QStringLiteral("Programm aktualisieren"));
    a.mnuInfo = h("mnuInfo", QStringLiteral("Info"));
}

void Kontextmenue(QMainWindow& w, Hauptaktionen& a) {
    a.PopSchrift = Benannt<QMenu>(QStringLiteral("PopSchrift"), &w);
    const Menue p{w, a.PopSchrift};
    a.popEigenschaft = p("popEigenschaft", QStringLiteral("Eigenschaft"));
    a.popPositionieren = p("popPositionieren", QStringLiteral("Positionieren"));
    a.mnuVerankern = p.Haken("mnuVerankern", QStringLiteral("Verankern"));
    a.popLoeschen = p("popLoeschen", QStringLiteral("Löschen"));
    a.popganzvorn = p("popganzvorn", QStringLiteral("ganz nach vorne"));
    a.popganzhinten = p("popganzhinten", QStringLiteral("ganz nach hinten"));
    a.popeinsvor = p("popeinsvor", QStringLiteral("eins nach vorne"));
    a.popeinshinten = p("popeinshinten", QStringLiteral("eins nach hinten"));

    // The view's zoom keys beside the menu's percentages.
    auto* rein = Benannt<QAction>(QStringLiteral("Commandzoom_1"), QStringLiteral("Vergrößern"), &w);
    rein->setShortcuts({QKeySequence::ZoomIn, QKeySequence(Qt::CTRL | Qt::Key_Equal)});
    rein->setIcon(Symbol("zoom-in", QStyle::SP_ArrowUp, &w));
    auto* raus = Benannt<QAction>(QStringLiteral("Commandzoom_0"), QStringLiteral("Verkleinern"), &w);
    raus->setShortcut(QKeySequence::ZoomOut);
    raus->setIcon(Symbol("zoom-out", QStyle::SP_ArrowDown, &w));
    a.Commandzoom[0] = raus;
    a.Commandzoom[1] = rein;
}

QToolBar* Leiste(QMainWindow& w, const char* name, const QString& titel) {
    QToolBar* t = w.addToolBar(titel);
    t->setObjectName(QString::fromUtf8(name));
    t->setMovable(false);
    return t;
}

void Werkzeugleisten(QMainWindow& w, Hauptaktionen& a, QToolBar* formatleiste) {
    a.Toolbar1 = Leiste(w, "Toolbar1", QStringLiteral("Werkzeuge"));
    // A tool button repeats its menu entry; the last two have their own work.
    auto knopf = [&](const char* schluessel, const char* thema, QStyle::StandardPixmap ersatz,
                     QAction* menue) {
        const QString text = QString::fromUtf8(schluessel);
        auto* b = Benannt<QAction>(QStringLiteral("Toolbar1_") + text, Symbol(thema, ersatz, &w), text, &w);
        if (menue) {
            QObject::connect(b, &QAction::triggered, menue, &QAction::trigger);
            b->setToolTip(menue->text().remove(QLatin1Char('&')));
        }
        a.Toolbar1->addAction(b);
        return b;
    };
    a.Toolbar1_Neu = knopf("Neu", "document-new", QStyle::SP_FileIcon, a.mnuFileNew);
    a.Toolbar1_Öffnen = knopf("Öffnen", "document-open", QStyle::SP_DialogOpenButton, a.mnuFileOpen);
    a.Toolbar1_Speichern = knopf("Speichern", "document-save", QStyle::SP_DialogSaveButton, a.mnuFileSave);
    a.Toolbar1_Drucken =
        knopf("Drucken", "document-print", QStyle::SP_FileDialogDetailedView, a.mnuFilePrint);
    a.Toolbar1_Hilfe = knopf("Hilfe", "help-contents", QStyle::SP_DialogHelpButton, a.mnuHelpContents);
    a.Toolbar1_Eigenschaft = knopf("Eigenschaft", "format-text-bold", QStyle::SP_FileDialogInfoView, nullptr);
    a.Toolbar1_Einfügen = knopf("Einfügen", "insert-object", QStyle::SP_FileDialogNewFolder, nullptr);
    a.Toolbar1->addSeparator();
    a.Toolbar1->addAction(a.Commandzoom[0]);
    a.Toolbar1->addAction(a.Commandzoom[1]);

    // The panel switches beside the tools, the format bar in a row of its own: so both rows fit
    // the window's starting width.
    auto panelleiste = [&w](const char* name, const QStringList& titel, QAction** knoepfe) {
        QToolBar* t = Leiste(w, name, QString::fromUtf8(name));
        t->setToolButtonStyle(Qt::ToolButtonTextOnly);
        for (int i = 0; i < titel.size(); ++i) {
            knoepfe[i + 1] = Benannt<QAction>(QStringLiteral("%1_%2").arg(QString::fromUtf8(name)).arg(i + 1),
                                              titel[i], &w);
            knoepfe[i + 1]->setCheckable(i < 4);
            t->addAction(knoepfe[i + 1]);
        }
        return t;
    };
    a.Toolbar4 = panelleiste("Toolbar4",
                             {QStringLiteral("Texte"), QStringLiteral("Adresse"), QStringLiteral("Layout"),
                              QStringLiteral("Designs"), QStringLiteral("Karte")},
                             a.Toolbar4_);
    a.Toolbar5 =
        panelleiste("Toolbar5",
                    {QStringLiteral("Kalender"), QStringLiteral("Termine"), QStringLiteral("Feiertage"),
                     QStringLiteral("Monatsbilder"), QStringLiteral("Design")},
                    a.Toolbar5_);
    a.Toolbar5->hide();

    // The format bar of the current frame.
    w.addToolBarBreak();
    w.addToolBar(formatleiste);
    a.Toolbar3 = formatleiste;
    a.Combo1 = formatleiste->findChild<QComboBox*>(QStringLiteral("Combo1"));
    a.Combo3 = formatleiste->findChild<QComboBox*>(QStringLiteral("Combo3"));
}

} // namespace

void HauptaktionenAnlegen(QMainWindow& fenster, Hauptaktionen& a, QToolBar* formatleiste) {
    DateiBearbeiten(fenster, a);
    AnsichtObjekteHilfe(fenster, a);
    Kontextmenue(fenster, a);
    Werkzeugleisten(fenster, a, formatleiste);
}

QAction* AktionNamens(const QObject& fenster, const QString& name) {
    if (auto* a = fenster.findChild<QAction*>(name)) return a;
    if (auto* m = fenster.findChild<QMenu*>(name)) return m->menuAction();
    return nullptr;
}

} // namespace zp
