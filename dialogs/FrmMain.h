#pragma once
// frmMain: the program's one document window. It holds the menus and toolbars (Hauptaktionen),
// the side panels Frame1 (each a Seitenpanel of its own), the page view with rulers and the status
// bar; its answers to the core are a Fensterantworten, whose change notices it shows. Entries whose
// work isn't part of this build stay visible and disabled.

#include "Hauptaktionen.h"

#include <QMainWindow>
#include <QTemporaryDir>
#include <memory>
#include <vector>

class QLabel;
class QStackedWidget;

namespace zp {
struct AppState;
class Fensterantworten;
class Formatleiste;
class PanelKalender;
class Seitenmaler;
class Seitenansicht;
class Seitenpanel;

class FrmMain : public QMainWindow {
    Q_OBJECT
public:
    explicit FrmMain(AppState& s, QWidget* parent = nullptr);
    // With answers of the caller's own (tests answer without dialogs).
    FrmMain(AppState& s, std::unique_ptr<Fensterantworten> antworten, QWidget* parent = nullptr);
    ~FrmMain() override;

    // The load handler: fonts, edition settings, panels, window size, zoom, start document.
    void Laden();

    // What changed in the state (Aenderung flags): the page, the marker, rulers, panels.
    void Zeigen(unsigned was);

    void ZoomSetzen(double zoom); // zoom menus: LadeSperre, ApplyZoom, redraw
    void ApplyZoom();
    void ZoomEinpassen();        // the fit of the start: page width or whole label
    void Panelzeigen(int frame); // brings Frame1(frame) to the front

    [[nodiscard]] Fensterantworten& Antworten() const { return *m_antworten; }
    [[nodiscard]] const Hauptaktionen& Aktionen() const { return m_a; }
    // An entry by its object name, as the edition rules and tests name them.
    [[nodiscard]] QAction* Aktion(const QString& name) const { return AktionNamens(*this, name); }
    [[nodiscard]] Seitenansicht* Seite() const { return m_seite; }

protected:
    void closeEvent(QCloseEvent* e) override;
    void showEvent(QShowEvent* e) override;

private:
    // Building, here.
    void PanelsAnlegen();
    template <typename P> P* Panel(int frame);
    void StatusleisteAnlegen();

    // Binding, in FrmMainBefehle.cpp.
    void Verbinden();
    void DateiVerbinden();
    void AnsichtVerbinden();
    void HilfeVerbinden();
    void RahmenVerbinden(); // in FrmMainRahmen.cpp
    void Freigaben();
    void EditionAnwenden();
    void Haekchen();
    void Umschalten(float& flag, QAction* a, bool umgekehrt, bool neuzeichnen);
    void Toolbar4Knopf(int knopf);
    void Toolbar5Knopf(int knopf);
    void KalenderdesignZeigen();
    // frmSeite on one of its tabs; the window is redrawn after Ok.
    void SeiteEinrichten(int tab);
    void Hilfe();
    void Drucken();

    // Showing, in FrmMain.cpp.
    void Neuzeichnen();
    void AuswahlAktualisieren();           // marker, format bar and the property key (UpdateSelection)
    void EigenschaftZeigen();              // Toolbar1's "Eigenschaft" by the current frame's kind
    void StatusDatei(const QString& pfad); // status panel 1, unless a note stands there for it
    void Notiz(const QString& text);       // a note in status panel 1 for ten seconds

    AppState& s;
    std::unique_ptr<Seitenmaler> m_maler; // the page picture, composed at the present zoom
    std::unique_ptr<Fensterantworten> m_antworten;
    Formatleiste* m_format = nullptr; // Toolbar3
    Hauptaktionen m_a;
    QTemporaryDir m_privat; // the window's own temporary folder (mode 0700) for the panel snapshot
    bool m_ersteAnzeige = true;

    QStackedWidget* m_frame1 = nullptr;
    std::vector<std::pair<int, Seitenpanel*>> m_panels;
    PanelKalender* m_kalender = nullptr;
    Seitenansicht* m_seite = nullptr;
    QLabel* m_status[3] = {};
};

} // namespace zp
