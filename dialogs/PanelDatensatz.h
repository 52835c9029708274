#pragma once
// Frame1(4): the address record of the card and label editions: moving through the records, its
// fields in Text1(21) to Text1(30), finding, deleting and inserting.

#include "Seitenpanel.h"

class QLineEdit;

namespace zp {
class Feldboxen;

class PanelDatensatz : public Seitenpanel {
    Q_OBJECT
public:
    explicit PanelDatensatz(Panelumgebung u);
    void Laden() override;
    void Zeigen(unsigned was) override;
    bool Fokus(int feld, bool nachKlick) override;

private:
    Feldboxen* m_boxen;
    QLineEdit* m_textData;
    QLineEdit* m_textSuchen;
};

} // namespace zp
