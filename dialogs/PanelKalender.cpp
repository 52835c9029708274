#include "PanelKalender.h"
#include "Benannt.h"
#include "Fensterantworten.h"

#include "calendar/data/Kalendertypen.h"
#include "calendar/data/Tagesdaten.h"
#include "core/Kalenderbefehle.h"
#include "core/Seitennavigation.h"
#include "core/runtime/Basic.h"
#include "core/state/AppState.h"
#include "core/state/Textfelder.h"

#include <QComboBox>
#include <QDate>
#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalBlocker>
#include <QSpinBox>
#include <QVBoxLayout>

namespace zp {

PanelKalender::PanelKalender(Panelumgebung u) : Seitenpanel(QStringLiteral("Frame1_8"), u) {
    Aufbauen();
    Verbinden();
}

void PanelKalender::Aufbauen() {
    auto* v = new QVBoxLayout;
    auto* typen = new QGroupBox(QStringLiteral("Kalendertyp"));
    auto* g = new QGridLayout(typen);
    const char* namen[] = {"", "Halbjahr", "Jahr A5", "Tasche", "Monat 1", "Monat 2", "Woche", "Planer"};
    for (int t = 1; t <= 7; ++t) {
        m_typ[t] = Benannt<QPushButton>(QStringLiteral("CommandTyp_%1").arg(t), QString::fromUtf8(namen[t]));
        g->addWidget(m_typ[t], (t - 1) / 2, (t - 1) % 2);
    }
    v->addWidget(typen);
    auto* f = new QFormLayout;
    m_comboJahr = Benannt<QComboBox>(QStringLiteral("ComboJahr"));
    m_comboJahr->setEditable(true);
    m_comboJahr->setInsertPolicy(QComboBox::NoInsert);
    f->addRow(QStringLiteral("&Jahr"), m_comboJahr);
    m_comboVariante = Benannt<QComboBox>(QStringLiteral("ComboVariante"));
    f->addRow(QStringLiteral("&Variante"), m_comboVariante);
    auto* seite = new QHBoxLayout;
    m_textSeite = Benannt<QLineEdit>(QStringLiteral("TextSeite"));
    m_textSeite->setMaximumWidth(40);
    m_upDownSeite = Benannt<QSpinBox>(QStringLiteral("UpDownSeite"));
    m_upDownSeite->setRange(1, 2);
    m_upDownSeite->setButtonSymbols(QAbstractSpinBox::UpDownArrows);
    m_upDownSeite->setMaximumWidth(22);
    m_upDownSeite->setKeyboardTracking(false);
    seite->addWidget(m_textSeite);
    seite->addWidget(m_upDownSeite);
    seite->addStretch();
    f->addRow(QStringLiteral("Seite"), seite);
    m_textTitel = Benannt<QLineEdit>(QStringLiteral("TextTitel"));
    f->addRow(QStringLiteral("&Titel"), m_textTitel);
    m_textUnterschrift = Benannt<QLineEdit>(QStringLiteral("TextUnterschrift"));
    f->addRow(QStringLiteral("&Unterschrift"), m_textUnterschrift);
    v->addLayout(f);
    m_standard = Benannt<QPushButton>(QStringLiteral("CommandStandard"), QStringLiteral("Standarddesign"));
    v->addWidget(m_standard);
    v->addStretch();
    Inhalt(v);
}

void PanelKalender::Verbinden() {
    for (int t = 1; t <= 7; ++t)
        connect(m_typ[t], &QPushButton::clicked, this, [this, t] { CommandTyp(s, ui, t); });
    connect(m_comboVariante, &QComboBox::activated, this,
            [this] { ComboVariante(s, ui, m_comboVariante->currentText()); });
    connect(m_comboJahr, &QComboBox::activated, this, [this](int i) {
        // shows the panel and redraws through the window
        JahrGewaehlt(s, ui, static_cast<int>(basic::Val(m_comboJahr->itemText(i))));
    });
    connect(m_comboJahr->lineEdit(), &QLineEdit::editingFinished, this, [this] { JahrGetipptBefehl(); });
    connect(m_upDownSeite, &QSpinBox::valueChanged, this, [this](int seite) {
        if (!SeiteWaehlen(s, seite)) return;
        const QSignalBlocker b(m_textSeite);
        m_textSeite->setText(QString::number(seite));
        ui.Geaendert(Aenderung::Seite);
    });
    connect(m_textSeite, &QLineEdit::textEdited, this, [this] { SeiteGetippt(); });
    connect(m_standard, &QPushButton::clicked, this, [this] { Standarddesign(); });
    connect(m_textTitel, &QLineEdit::textChanged, this, [this](const QString& t) {
        if (s.LadeSperre != 0) return;
        KalendertitelGeaendert(s, t);
        ui.Geaendert(Aenderung::Seite);
    });
    connect(m_textUnterschrift, &QLineEdit::textChanged, this, [this](const QString& t) {
        if (s.LadeSperre != 0) return;
        KalenderunterschriftGeaendert(s, t);
        ui.Geaendert(Aenderung::Seite);
    });
}

void PanelKalender::Standarddesign() {
    CommandStandard(s, ui);
}

void PanelKalender::Laden() {
    if (s.IstKalender == 0) return;
    m_comboVariante->clear();
    m_comboVariante->addItems({QStringLiteral("Variante 1"), QStringLiteral("Variante 2")});
    m_comboVariante->setCurrentIndex(s.Designvariante == QLatin1String("v2") ? 1 : 0);
    m_comboJahr->clear();
    for (int j = 1990; j <= QDate::currentDate().year() + 10; ++j)
        m_comboJahr->addItem(QString::number(j));
    // A year outside the list stays valid; the box just shows it.
    m_comboJahr->setEditText(QString::number(static_cast<long long>(s.Kalenderjahr)));
}

void PanelKalender::Zeigen(unsigned was) {
    if (was & Aenderung::Seitentitel) Seitentitel();
    if (was & (Aenderung::Kalendertyp | Aenderung::Panel)) TypHervorheben();
    if (!(was & Aenderung::Panel)) return;
    const uint8_t sperre = s.LadeSperre;
    s.LadeSperre = 255;
    if (m_textTitel->text() != s.Panel.TextTitel) m_textTitel->setText(s.Panel.TextTitel);
    if (m_textUnterschrift->text() != s.Panel.TextUnterschrift)
        m_textUnterschrift->setText(s.Panel.TextUnterschrift);
    s.LadeSperre = sperre;
}

void PanelKalender::TypHervorheben() {
    // The button of the calendar's type stands out in the dialog colour.
    const int farbe = static_cast<int>(s.Dialogfarbe1);
    const QColor hervor(farbe & 0xFF, (farbe >> 8) & 0xFF, (farbe >> 16) & 0xFF);
    for (int t = 1; t <= 7; ++t)
        m_typ[t]->setStyleSheet(t == static_cast<int>(s.Kalendertyp)
                                    ? QStringLiteral("QPushButton { background: %1; }").arg(hervor.name())
                                    : QString());
}

void PanelKalender::Seitentitel() {
    const QSignalBlocker b(m_upDownSeite);
    m_upDownSeite->setMaximum(std::max(1, static_cast<int>(s.Seitenanzahl)));
    if (s.Seitennummer > s.Seitenanzahl || static_cast<int>(s.Kalendertyp) == 6) s.Seitennummer = 1;
    m_upDownSeite->setValue(static_cast<int>(s.Seitennummer));
    const QSignalBlocker bt(m_textSeite);
    m_textSeite->setText(QString::number(static_cast<int>(s.Seitennummer)));
}

void PanelKalender::JahrGetipptBefehl() {
    // Enter or leaving the box: a year the views don't show yet acts as a pick from the list.
    if (!JahrBestaetigt(s, ui, m_comboJahr->currentText().trimmed()))
        m_comboJahr->setEditText(QString::number(static_cast<long long>(s.Kalenderjahr)));
}

void PanelKalender::SeiteGetippt() {
    const Seiteneingabe e = SeiteAusText(m_textSeite->text(), s.Seitenanzahl);
    if (e.textZuruecksetzen) {
        const QSignalBlocker b(m_textSeite);
        m_textSeite->setText(QStringLiteral("1"));
    }
    m_upDownSeite->setValue(e.seite);
    if (SeiteWaehlen(s, e.seite)) ui.Geaendert(Aenderung::Seite);
}

} // namespace zp
