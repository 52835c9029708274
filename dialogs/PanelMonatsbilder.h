#pragma once
// Frame1(9): the calendar's month pictures: the month, its picture file with a preview, and its
// caption.

#include "Seitenpanel.h"

class QComboBox;
class QLabel;
class QLineEdit;

namespace zp {

class PanelMonatsbilder : public Seitenpanel {
    Q_OBJECT
public:
    explicit PanelMonatsbilder(Panelumgebung u);
    void Laden() override;
    void Zeigen(unsigned was) override;

private:
    void Vorschaubild();

    QComboBox* m_comboMonat;
    QLineEdit* m_textbilddatei;
    QLineEdit* m_textBildbeschreibung;
    QLabel* m_leadKalender;
};

} // namespace zp
