#pragma once
// frmFeiertage, "Optionen": which holidays the calculation writes (with the presets of the German
// states), the four colours of the calendar text, the week count, the month and weekday names, and
// the birthdays of the address records. Switches, colours and the week count are edited on a copy
// and handed over on "Ok"; the names change at once as they are typed, as they always have.

#include "calendar/data/Kalenderoptionen.h"

#include <QDialog>
#include <array>
#include <functional>
#include <optional>

class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QRadioButton;
class QToolButton;

namespace zp {
struct AppState;
class Oberflaeche;

class FrmFeiertage : public QDialog {
    Q_OBJECT
public:
    FrmFeiertage(AppState& s, Oberflaeche& ui, QWidget* parent = nullptr);

    // The colour dialog; tests put a stand-in here. std::nullopt means cancelled.
    std::function<std::optional<Farbe>(Farbe start)> farbeWaehlen;

    // The copy as the boxes show it.
    [[nodiscard]] const Optionenwahl& Wahl() const { return m_wahl; }
    // CommandOk: the copy goes to the state, the dialog closes. Nothing is computed or redrawn.
    void CommandOk();
    // "Geburtstage übernehmen": the birthdays go into the appointments at once, and the line under
    // the button says how many.
    void GeburtstageKlick();

private:
    QWidget* Feiertagsgruppe();
    QWidget* Farbgruppe();
    QWidget* Namensgruppe();
    QWidget* Wochengruppe();
    QToolButton* Farbfeld(const char* name, Farbe Optionenwahl::*farbe);
    void FarbfeldZeigen(QToolButton* feld, Farbe farbe);
    void HakenZeigen();
    void VorschauZeichnen();

    AppState& s;
    Oberflaeche& m_ui;
    Optionenwahl m_wahl;
    std::array<QCheckBox*, 30> m_check{};
    QComboBox *m_bundesland = nullptr, *m_comboMonat = nullptr, *m_comboWochentag = nullptr;
    QLineEdit *m_textMonat = nullptr, *m_textWochentag = nullptr;
    QRadioButton *m_montage = nullptr, *m_iso = nullptr;
    QLabel *m_vorschau = nullptr, *m_geburtstage = nullptr;
    bool m_fuellen = false; // boxes being filled by the program: their change handlers stay quiet
};

} // namespace zp
