#pragma once
// frmDrucken: printer, copies, pages or addresses, print size, printer adjustment and cut marks.
// "Drucken" hands the boxes to the print run and shows its progress.

#include "core/Druckbefehle.h"
#include "core/state/Editionen.h"

#include <functional>

#include <QDialog>

class QCheckBox;
class QComboBox;
class QFormLayout;
class QGroupBox;
class QLineEdit;
class QPushButton;
class QRadioButton;
class QVBoxLayout;

namespace zp {
struct AppState;
class Oberflaeche;

class FrmDrucken : public QDialog {
    Q_OBJECT
public:
    // The run that "Drucken" starts: whether it printed. Unset, the print command runs.
    using Druckstart =
        std::function<bool(AppState&, Oberflaeche&, const Druckdialogwerte&, const Druckfortschritt&)>;

    FrmDrucken(AppState& s, Oberflaeche& ui, QWidget* parent = nullptr, Druckstart druck = {});

    // The boxes as the print run receives them.
    [[nodiscard]] Druckdialogwerte Werte() const;
    // CommandDrucken: runs the print with the hourglass and a progress dialog, then hides.
    void CommandDrucken();

protected:
    void showEvent(QShowEvent* e) override;

private:
    QLineEdit* Feld(const char* name, const QString& text = {});
    // The parts of the dialog, top to bottom, then its first values and its wiring.
    void Druckerzeile(QVBoxLayout* haupt);
    void Auftragsfelder(QVBoxLayout* haupt, Edition e);
    void Adressgruppe(QVBoxLayout* haupt, Edition e);
    void Justierung(QVBoxLayout* haupt);
    void Hilfsmarken(QVBoxLayout* haupt);
    void Knoepfe(QVBoxLayout* haupt);
    void Laden(Edition e);
    void Verbindungen();

    AppState& s;
    Oberflaeche& m_ui;
    Druckstart m_druck;
    QComboBox* m_drucker;
    QLineEdit *m_kopien, *m_start, *m_seriennummer, *m_druckStart, *m_druckEnde, *m_prozent;
    QLineEdit *m_von, *m_bis, *m_kategorie, *m_abgleichX, *m_abgleichY;
    QRadioButton* m_option[7] = {};
    QCheckBox *m_check1, *m_check2;
    QGroupBox* m_hilfsmarken;
    QPushButton *m_drucken, *m_einstellen, *m_abbruch;
    QFormLayout* m_auftrag;
};

} // namespace zp
