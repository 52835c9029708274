#pragma once
// Frame1(1): the input boxes Text1(1) to Text1(20) of the page's texts.

#include "Seitenpanel.h"

namespace zp {
class Feldboxen;

class PanelTexte : public Seitenpanel {
    Q_OBJECT
public:
    explicit PanelTexte(Panelumgebung u);
    void Laden() override;
    void Zeigen(unsigned was) override;
    void Betreten() override;
    bool Fokus(int feld, bool nachKlick) override;

private:
    Feldboxen* m_boxen;
};

} // namespace zp
