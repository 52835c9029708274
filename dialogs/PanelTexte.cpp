#include "PanelTexte.h"
#include "Feldboxen.h"
#include "Fensterantworten.h"

#include "core/state/AppState.h"

#include <QFormLayout>
#include <QLineEdit>

namespace zp {

PanelTexte::PanelTexte(Panelumgebung u) : Seitenpanel(QStringLiteral("Frame1_1"), u) {
    auto* f = new QFormLayout;
    m_boxen = new Feldboxen(s, ui, f, 1, 20, this);
    Inhalt(f);
}

void PanelTexte::Laden() {
    m_boxen->Beschriften();
}

void PanelTexte::Zeigen(unsigned was) {
    if (!(was & Aenderung::Panel)) return;
    const uint8_t sperre = s.LadeSperre;
    s.LadeSperre = 255;
    m_boxen->Zeigen(true);
    s.LadeSperre = sperre;
}

void PanelTexte::Betreten() {
    Fokus(1, false);
}

bool PanelTexte::Fokus(int feld, bool nachKlick) {
    return m_boxen->Fokussieren(feld, nachKlick);
}

} // namespace zp
