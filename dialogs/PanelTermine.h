#pragma once
// Frame1(6): the calendar's appointments: MonthView1 with its range of days, the text and the
// colours of the selected days.

#include "Farbfelder.h"
#include "Seitenpanel.h"

class QPlainTextEdit;

namespace zp {
class Monatskalender;

class PanelTermine : public Seitenpanel {
    Q_OBJECT
public:
    explicit PanelTermine(Panelumgebung u);
    void Zeigen(unsigned was) override;
    void Betreten() override;

private:
    Monatskalender* m_monat1;
    QPlainTextEdit* m_textTermin;
    Tagesfarbfelder m_farben;
};

} // namespace zp
