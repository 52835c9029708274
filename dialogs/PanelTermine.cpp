#include "PanelTermine.h"
#include "Benannt.h"
#include "Fensterantworten.h"
#include "Monatskalender.h"

#include "core/state/AppState.h"

#include <QFormLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QToolButton>
#include <QVBoxLayout>

namespace zp {

namespace {

// Appointment texts keep CR LF in the table; the box works with plain line breaks.
QString MitCrLf(QString text) {
    text.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    return text.replace(QLatin1Char('\n'), QStringLiteral("\r\n"));
}
QString OhneCrLf(QString text) {
    return text.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
}

} // namespace

PanelTermine::PanelTermine(Panelumgebung u)
    : Seitenpanel(QStringLiteral("Frame1_6"), u),
      m_farben(
          TagesfarbfelderAnlegen(s, ui, Tagesfarbe::TerminSchrift, "PictureTextfarbe", "PictureHintergrundfarbe")) {
    auto* v = new QVBoxLayout;
    m_monat1 = Benannt<Monatskalender>(QStringLiteral("MonthView1"));
    v->addWidget(m_monat1);
    auto* hinweis = new QLabel(QStringLiteral("Termin (Umschalt+Klick wählt mehrere Tage):"));
    hinweis->setWordWrap(true); // the panel keeps its width, without a scroll bar across
    v->addWidget(hinweis);
    m_textTermin = Benannt<QPlainTextEdit>(QStringLiteral("TextTermin"));
    m_textTermin->setTabChangesFocus(true);
    m_textTermin->setMaximumHeight(70);
    v->addWidget(m_textTermin);
    v->addLayout(m_farben.layout);
    auto* aktualisieren =
        Benannt<QPushButton>(QStringLiteral("CommandAktualisieren"), QStringLiteral("Aktualisieren"));
    v->addWidget(aktualisieren);
    v->addStretch();
    Inhalt(v);

    connect(m_monat1, &Monatskalender::auswahlGeaendert, this, [this] {
        m_monat1->InZustand(s.Panel.MonthView1);
        TerminAnzeigen(s);
        ui.Geaendert(Aenderung::Panel);
        m_textTermin->setFocus();
    });
    // Paging to another month marks the days of the month shown; the selected day, and so what
    // the boxes show and change, stays.
    connect(m_monat1, &QCalendarWidget::currentPageChanged, this, [this](int jahr, int monat) {
        MonatGeblaettert(s, false, jahr, monat);
        if (s.LadeSperre == 0) ui.Geaendert(Aenderung::Panel);
    });
    connect(m_textTermin, &QPlainTextEdit::textChanged, this, [this] {
        if (s.LadeSperre != 0) return;
        m_monat1->InZustand(s.Panel.MonthView1);
        TextTerminGeaendert(s, MitCrLf(m_textTermin->toPlainText()));
        ui.Geaendert(Aenderung::Panel);
    });
    connect(aktualisieren, &QPushButton::clicked, this, [this] { ui.Geaendert(Aenderung::Seite); });
}

void PanelTermine::Zeigen(unsigned was) {
    if (!(was & Aenderung::Panel)) return;
    const uint8_t sperre = s.LadeSperre;
    s.LadeSperre = 255;
    const Seitenleiste& p = s.Panel;
    const QString termin = OhneCrLf(p.TextTermin);
    if (m_textTermin->toPlainText() != termin) m_textTermin->setPlainText(termin);
    FarbfeldZeigen(m_farben.schrift, p.PictureTextfarbe);
    FarbfeldZeigen(m_farben.hintergrund, p.PictureHintergrundfarbe);
    m_monat1->AusZustand(p.MonthView1);
    s.LadeSperre = sperre;
}

void PanelTermine::Betreten() {
    m_textTermin->setFocus();
}

} // namespace zp
