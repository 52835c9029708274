#pragma once
// Frame1(8): the calendar itself: type, year, design variant, page, title and footer, and the
// standard design.

#include "Seitenpanel.h"

class QComboBox;
class QLineEdit;
class QPushButton;
class QSpinBox;

namespace zp {

class PanelKalender : public Seitenpanel {
    Q_OBJECT
public:
    explicit PanelKalender(Panelumgebung u);
    void Laden() override;
    void Zeigen(unsigned was) override;

    // CommandStandard and the menu's "Kalender zurücksetzen".
    void Standarddesign();

private:
    void Aufbauen();
    void Verbinden();
    void SeiteGetippt();
    void JahrGetipptBefehl();
    void Seitentitel();
    void TypHervorheben();

    QPushButton* m_typ[8] = {};
    QComboBox* m_comboJahr;
    QComboBox* m_comboVariante;
    QSpinBox* m_upDownSeite;
    QLineEdit* m_textSeite;
    QLineEdit* m_textTitel;
    QLineEdit* m_textUnterschrift;
    QPushButton* m_standard;
};

} // namespace zp
