#include "PanelDatensatz.h"
#include "Benannt.h"
#include "Feldboxen.h"
#include "Fensterantworten.h"

#include "core/Datensatzbefehle.h"
#include "core/state/AppState.h"

#include <QFormLayout>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace zp {

PanelDatensatz::PanelDatensatz(Panelumgebung u) : Seitenpanel(QStringLiteral("Frame1_4"), u) {
    auto* v = new QVBoxLayout;
    auto* nav = new QHBoxLayout;
    auto knopf = [this](QBoxLayout* l, const char* name, const QString& titel, auto befehl) {
        auto* b = Benannt<QPushButton>(QString::fromLatin1(name), titel);
        l->addWidget(b);
        connect(b, &QPushButton::clicked, this, befehl);
        return b;
    };
    knopf(nav, "ComData1", QStringLiteral("|<"), [this] { ErsterDatensatz(s, ui); })->setMaximumWidth(32);
    knopf(nav, "ComData2", QStringLiteral("<"), [this] { VorigerDatensatz(s, ui); })->setMaximumWidth(32);
    m_textData = Benannt<QLineEdit>(QStringLiteral("TextData"));
    m_textData->setMaximumWidth(50);
    nav->addWidget(m_textData);
    knopf(nav, "Comdata3", QStringLiteral(">"), [this] { NaechsterDatensatz(s, ui); })->setMaximumWidth(32);
    knopf(nav, "Comdata4", QStringLiteral(">|"), [this] { LetzterDatensatz(s, ui); })->setMaximumWidth(32);
    connect(m_textData, &QLineEdit::returnPressed, this,
            [this] { DatensatzNummerEingegeben(s, ui, m_textData->text()); });
    v->addLayout(nav);

    auto* f = new QFormLayout;
    m_boxen = new Feldboxen(s, ui, f, 21, 30, this);
    v->addLayout(f);
    m_textSuchen = Benannt<QLineEdit>(QStringLiteral("TextSuchen"));
    m_textSuchen->setPlaceholderText(QStringLiteral("Suchtext"));
    v->addWidget(m_textSuchen);
    auto* suchen = new QHBoxLayout;
    knopf(suchen, "Command1", QStringLiteral("Suchen"),
          [this] { SucheDatensatz(s, ui, m_textSuchen->text()); });
    knopf(suchen, "Command2", QStringLiteral("Löschen"), [this] { LoescheDatensatz(s, ui); });
    knopf(suchen, "Command3", QStringLiteral("Einfügen"), [this] { FuegeDatensatzEin(s, ui); });
    v->addLayout(suchen);
    v->addStretch();
    Inhalt(v);
}

void PanelDatensatz::Laden() {
    m_boxen->Beschriften();
}

void PanelDatensatz::Zeigen(unsigned was) {
    // The record's fields stand in the panel's boxes 21 to 30 of the state; the text dialog
    // writes them there too.
    if (!(was & (Aenderung::Datensatz | Aenderung::Panel))) return;
    const uint8_t sperre = s.LadeSperre;
    s.LadeSperre = 255;
    m_boxen->Zeigen(false);
    m_textData->setText(QString::number(static_cast<long long>(s.DatensatzNummer)));
    s.LadeSperre = sperre;
}

bool PanelDatensatz::Fokus(int feld, bool nachKlick) {
    return m_boxen->Fokussieren(feld, nachKlick);
}

} // namespace zp
