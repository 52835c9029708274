#include "PanelFeiertage.h"
#include "Benannt.h"
#include "Fensterantworten.h"
#include "FrmFeiertage.h"
#include "Monatskalender.h"

#include "core/Kalenderbefehle.h"
#include "core/state/AppState.h"

#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QToolButton>
#include <QVBoxLayout>

namespace zp {

PanelFeiertage::PanelFeiertage(Panelumgebung u)
    : Seitenpanel(QStringLiteral("Frame1_7"), u),
      m_farben(TagesfarbfelderAnlegen(s, ui, Tagesfarbe::FeiertagSchrift, "PictureFeiertagSchrift",
                                      "PictureFeiertagBack")) {
    auto* v = new QVBoxLayout;
    m_monat2 = Benannt<Monatskalender>(QStringLiteral("MonthView2"));
    v->addWidget(m_monat2);
    v->addWidget(new QLabel(QStringLiteral("Feiertag:")));
    m_textFeiertag = Benannt<QLineEdit>(QStringLiteral("TextFeiertag"));
    v->addWidget(m_textFeiertag);
    v->addLayout(m_farben.layout);
    auto* knoepfe = new QHBoxLayout;
    auto* berechnen =
        Benannt<QPushButton>(QStringLiteral("CommandBerechnen"), QStringLiteral("Feiertage berechnen"));
    auto* optionen = Benannt<QPushButton>(QStringLiteral("CommandOptionen"), QStringLiteral("Optionen"));
    knoepfe->addWidget(berechnen);
    knoepfe->addWidget(optionen);
    v->addLayout(knoepfe);
    auto* aktualisieren =
        Benannt<QPushButton>(QStringLiteral("CommandAktualisieren2"), QStringLiteral("Aktualisieren"));
    v->addWidget(aktualisieren);
    v->addStretch();
    Inhalt(v);

    connect(optionen, &QPushButton::clicked, this, [this] { FrmFeiertage(s, ui, this).exec(); });
    connect(berechnen, &QPushButton::clicked, this, [this] { FeiertageBerechnen(s, ui); });
    connect(m_monat2, &Monatskalender::auswahlGeaendert, this, [this] {
        m_monat2->InZustand(s.Panel.MonthView2);
        FeiertagAnzeigen(s);
        ui.Geaendert(Aenderung::Panel);
        m_textFeiertag->setFocus();
    });
    // Paging to another month marks the days of the month shown; the selected day, and so what
    // the boxes show and change, stays.
    connect(m_monat2, &QCalendarWidget::currentPageChanged, this, [this](int jahr, int monat) {
        MonatGeblaettert(s, true, jahr, monat);
        if (s.LadeSperre == 0) ui.Geaendert(Aenderung::Panel);
    });
    connect(m_textFeiertag, &QLineEdit::textChanged, this, [this] {
        if (s.LadeSperre != 0) return;
        m_monat2->InZustand(s.Panel.MonthView2);
        TextFeiertagGeaendert(s, m_textFeiertag->text());
        ui.Geaendert(Aenderung::Panel);
    });
    connect(aktualisieren, &QPushButton::clicked, this, [this] { ui.Geaendert(Aenderung::Seite); });
}

void PanelFeiertage::Zeigen(unsigned was) {
    if (!(was & Aenderung::Panel)) return;
    const uint8_t sperre = s.LadeSperre;
    s.LadeSperre = 255;
    const Seitenleiste& p = s.Panel;
    if (m_textFeiertag->text() != p.TextFeiertag) m_textFeiertag->setText(p.TextFeiertag);
    FarbfeldZeigen(m_farben.schrift, p.PictureFeiertagSchrift);
    FarbfeldZeigen(m_farben.hintergrund, p.PictureFeiertagBack);
    m_monat2->AusZustand(p.MonthView2);
    s.LadeSperre = sperre;
}

void PanelFeiertage::Betreten() {
    m_textFeiertag->setFocus();
}

} // namespace zp
