#pragma once
// Frame1(7): the calendar's holidays: MonthView2, the holiday's name and colours, and their
// calculation for the year.

#include "Farbfelder.h"
#include "Seitenpanel.h"

class QLineEdit;

namespace zp {
class Monatskalender;

class PanelFeiertage : public Seitenpanel {
    Q_OBJECT
public:
    explicit PanelFeiertage(Panelumgebung u);
    void Zeigen(unsigned was) override;
    void Betreten() override;

private:
    Monatskalender* m_monat2;
    QLineEdit* m_textFeiertag;
    Tagesfarbfelder m_farben;
};

} // namespace zp
