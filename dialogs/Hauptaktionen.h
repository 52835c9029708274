#pragma once
// The main window's menus, toolbars and the page's context menu, as typed members under the names
// the handlers, the edition rules and the tests know them by (each one's objectName).

#include <QString>

class QAction;
class QComboBox;
class QMainWindow;
class QMenu;
class QObject;
class QToolBar;

namespace zp {

struct Hauptaktionen {
    // File.
    QMenu* mnuFile = nullptr;
    QAction *mnuFileNew, *mnuFileOpen, *mnuimport, *mnuFileClose, *mnuFileSave, *mnuFileSaveAs2,
        *mnuFileSaveAs, *mnuBildSpeichern, *mnuWord, *mnuFilePageSetup, *mnuFilePrint, *mnuSitzung,
        *mnuFileExit;
    QAction* mnuFileMRU[3] = {}; // recent files: exist, stay hidden

    // Edit.
    QMenu* mnuBearbeiten = nullptr;
    QAction *mnuRueckgaengig, *mnuWiederholen; // undo and redo of the edits
    QAction *mnuBrief, *mnuKartengrösse, *mnuDesign, *mnuRaster, *mnubildeinfügen, *mnuLinieeinfügen,
        *mnuTexteinfügen, *mnudatumeinfuegen, *mnuzeit, *mnuseriennummer, *mnuFeiertage, *mnukalender,
        *mnukalendereditieren;

    // View.
    QMenu* mnuView = nullptr;
    QAction *mnuGitterlinienansicht, *mnuHilfsbereiche, *mnuViewSeitenbreite, *mnuViewganze_Seite;
    static constexpr int Prozente[5] = {50, 100, 150, 200, 400};
    QAction* mnuViewProzent[5] = {};

    // Objects.
    QMenu* mnuRahmen = nullptr;
    QAction *mnuRahmensichtbar, *mmummgenau, *mnuRahmenMagnet, *mnuRahmenEinfügen, *mnuRahmenLöschen,
        *mnuRahmenPositionieren, *mnuverankert, *mnuVerankernAlle, *mnuVerankernKeine, *mnuRahmenvorne,
        *mnuRahmenhinten, *mnuRahmeneinsvorn, *mnuRahmeneinshinten;

    // Help.
    QMenu* mnuHelp = nullptr;
    QAction *mnuHelpContents, *mnuHelpZP, *mnuHelpHotline, *mnuupdate, *mnuInfo;

    // The page's context menu.
    QMenu* PopSchrift = nullptr;
    QAction *popEigenschaft, *popPositionieren, *mnuVerankern, *popLoeschen, *popganzvorn, *popganzhinten,
        *popeinsvor, *popeinshinten;

    // Zoom keys: [0] a step down, [1] a step up.
    QAction* Commandzoom[2] = {};

    // Toolbars: tools, format (its keys are the format bar's own), and the two rows of panel
    // switches (index 1 to 5).
    QToolBar *Toolbar1 = nullptr, *Toolbar3 = nullptr, *Toolbar4 = nullptr, *Toolbar5 = nullptr;
    QAction *Toolbar1_Neu, *Toolbar1_Öffnen, *Toolbar1_Speichern, *Toolbar1_Drucken, *Toolbar1_Hilfe,
        *Toolbar1_Eigenschaft, *Toolbar1_Einfügen;
    QComboBox *Combo1 = nullptr, *Combo3 = nullptr;
    QAction* Toolbar4_[6] = {};
    QAction* Toolbar5_[6] = {};
};

// Builds the menu bar, the context menu and the toolbars into `fenster`; `formatleiste` (Toolbar3,
// with its lists Combo1 and Combo3) takes its place beside the tools.
void HauptaktionenAnlegen(QMainWindow& fenster, Hauptaktionen& a, QToolBar* formatleiste);

// The action under `name`: an entry, a toolbar button, or a menu's own entry in its parent.
[[nodiscard]] QAction* AktionNamens(const QObject& fenster, const QString& name);

} // namespace zp
