#pragma once
// frmMain: the program's one document window. Menus, toolbars, the stacked side panels Frame1,
// the page view with rulers and the status bar. It answers the core's questions (Oberflaeche)
// and binds every control to its command; entries whose work isn't part of this build stay
// visible and disabled.

#include "calendar/data/Kalendertypen.h"
#include "core/Dokumentdienste.h"
#include "core/state/Oberflaeche.h"

#include <QColor>
#include <QMainWindow>
#include <QMap>
#include <optional>

class QAction;
class QComboBox;
class QFormLayout;
class QLabel;
class QLineEdit;
class QListWidget;
class QPlainTextEdit;
class QPushButton;
class QSpinBox;
class QStackedWidget;
class QToolBar;
class QToolButton;
class QUrl;

namespace zp {
struct AppState;
class Monatskalender;
class Seitenansicht;

class FrmMain : public QMainWindow, public Oberflaeche {
    Q_OBJECT
public:
    FrmMain(AppState& s, Dokumentdienste dienste, QWidget* parent = nullptr);
    ~FrmMain() override;

    // The load handler: fonts, edition settings, panels, window size, zoom, start document.
    void Laden();

    // ---- What the core asks of the window --------------------------------------------------
    bool Frage(const QString& text, const QString& titel) override;
    void Meldung(const QString& text, const QString& titel, const QString& detail = {}) override;
    QString DateiWaehlen(const QString& titel, const QString& filter, bool speichern) override;
    void Neuzeichnen() override;
    void AuswahlAktualisieren() override;
    void ZoomAktualisieren() override;
    void StatusDatei(const QString& text) override;
    void SeitentitelAktualisieren() override;
    void TypKnopfHervorheben(int typ, bool an) override;
    void PanelAktualisieren() override;
    void DatensatzAnzeigen() override;
    void FokusFeldbox(int i) override;
    void Statusmeldung(const QString& text) override;
    // A file to open with a filter already in Qt's form.
    virtual QString QtDateiWaehlen(const QString& titel, const QString& qtFilter);
    // A file to save, with a suggested name (relative to the program folder, or absolute).
    QString SpeicherDateiWaehlen(const QString& titel, const QString& filter,
                                 const QString& vorschlag) override;

    // A web page, a mail or the help file in the desktop's program; false when there is none.
    virtual bool AdresseOeffnen(const QUrl& adresse);

    // The colour dialog: the chosen colour, or nothing when cancelled.
    virtual std::optional<QColor> FarbeWaehlen(const QColor& start);

    // ---- Commands the controls run -----------------------------------------------------------
    void ZoomSetzen(double zoom); // zoom menus: LadeSperre, ApplyZoom, redraw
    void Commandzoom(int index);  // 1 a step up, 0 a step down
    void ApplyZoom();
    void ZoomEinpassen();        // the fit of the start: page width or whole label
    void Panelzeigen(int frame); // brings Frame1(frame) to the front

    [[nodiscard]] QAction* Aktion(const QString& name) const;
    [[nodiscard]] Seitenansicht* Seite() const { return m_seite; }
    [[nodiscard]] const Dokumentdienste& Dienste() const { return m_d; }

protected:
    void closeEvent(QCloseEvent* e) override;
    bool eventFilter(QObject* objekt, QEvent* e) override;
    void showEvent(QShowEvent* e) override;

private:
    // Building, in FrmMainAufbau.cpp.
    void MenuesAnlegen();
    void ToolbarsAnlegen();
    void PanelsAnlegen();
    QWidget* PanelTexte();
    QWidget* PanelDatensatz();
    QWidget* PanelLayouts();
    QWidget* PanelGalerie();
    QWidget* PanelTermine();
    QWidget* PanelFeiertage();
    QWidget* PanelKalender();
    QWidget* PanelMonatsbilder();
    QAction* NeueAktion(QMenu* menue, const char* name, const QString& titel);
    QToolButton* Farbfeld(const char* name);
    QFormLayout* Farbpaar(int erstes, const char* schrift, const char* hintergrund);
    void Textfelder(QFormLayout* f, int von, int bis);

    // Binding, in FrmMainBefehle.cpp.
    void Verbinden();
    void Freigaben();
    void EditionAnwenden();
    void Haekchen();
    void Umschalten(float& flag, QAction* a, bool umgekehrt, bool neuzeichnen);
    void Toolbar4Knopf(int knopf);
    void Toolbar5Knopf(int knopf);
    void Schnappschuss();
    void TerminGeaendert();
    void FeiertagGeaendert();
    void TerminAngeklickt();
    void FeiertagAngeklickt();
    void FarbfeldGeklickt(int art);
    void KalenderpanelZeigen();
    void Vorschaubild();
    void JahrGetipptBefehl();
    void JahrGeklickt(int index);
    Designablage Ablage();
    void SeiteGetippt();
    void Hilfe();
    void Drucken();
    void FarbfeldZeigen(QToolButton* feld, int farbe);
    QImage SeiteZeichnen();

    AppState& s;
    Dokumentdienste m_d;
    QMap<QString, QAction*> m_aktionen;
    bool m_ersteAnzeige = true;

    QToolBar* m_toolbar1 = nullptr;
    QToolBar* m_toolbar3 = nullptr;
    QToolBar* m_toolbar4 = nullptr;
    QToolBar* m_toolbar5 = nullptr;
    QStackedWidget* m_frame1 = nullptr;
    QMap<int, QWidget*> m_panels;
    Seitenansicht* m_seite = nullptr;
    QLabel* m_status[3] = {};

    QLineEdit* m_text1[31] = {};
    QLabel* m_label1[31] = {};
    QLineEdit* m_textData = nullptr;
    QListWidget* m_list1 = nullptr;
    QComboBox* m_combo1 = nullptr;
    QComboBox* m_combo3 = nullptr;

    Monatskalender* m_monat1 = nullptr;
    Monatskalender* m_monat2 = nullptr;
    QPlainTextEdit* m_textTermin = nullptr;
    QLineEdit* m_textFeiertag = nullptr;
    QToolButton* m_farbfeld[4] = {}; // TerminSchrift, TerminBack, FeiertagSchrift, FeiertagBack
    QPushButton* m_typ[8] = {};
    QComboBox* m_comboJahr = nullptr;
    QComboBox* m_comboVariante = nullptr;
    QSpinBox* m_upDownSeite = nullptr;
    QLineEdit* m_textSeite = nullptr;
    QLineEdit* m_textTitel = nullptr;
    QLineEdit* m_textUnterschrift = nullptr;
    QComboBox* m_comboMonat = nullptr;
    QLineEdit* m_textbilddatei = nullptr;
    QLineEdit* m_textBildbeschreibung = nullptr;
    QLabel* m_leadKalender = nullptr;
};

} // namespace zp
